#include "host/kernel/CFxVariant.h"

#include <cmath>
#include <limits>

template<class T>
struct CFxVariant::Boxed : CFxVariant::Shared
{
    Boxed(Type type, T held) : Shared(type), value(std::move(held)) {}
    const T value;
};

template<class T>
const T& CFxVariant::boxed(Type type) const
{
    static const T neutral{};
    const auto* held = std::get_if<OdSmartPtr<const Shared>>(&value_);
    return held && (*held)->type == type ? static_cast<const Boxed<T>&>(**held).value : neutral;
}

const CFxVariant CFxVariant::kNull;

CFxVariant::CFxVariant(const OdGePoint3d& point)
    : value_(OdSmartPtr<const Shared>(new Boxed<OdGePoint3d>(kPoint3d, point), kOdRxObjAttach))
{
}

CFxVariant::CFxVariant(CFxVariantCollection collection)
    : value_(
          OdSmartPtr<const Shared>(new Boxed<CFxVariantCollection>(kCollection, std::move(collection)), kOdRxObjAttach))
{
}

CFxVariant::CFxVariant(CFxVariantCollectionElement element)
    : value_(OdSmartPtr<const Shared>(new Boxed<CFxVariantCollectionElement>(kCollectionElement, std::move(element)),
                                      kOdRxObjAttach))
{
}

CFxVariant::Type CFxVariant::GetType() const
{
    struct
    {
        Type operator()(std::monostate) const { return kNullType; }
        Type operator()(std::int32_t) const { return kInt32; }
        Type operator()(double) const { return kDouble; }
        Type operator()(const CFxString&) const { return kString; }
        Type operator()(const OdCmColor&) const { return kColor; }
        Type operator()(const OdDbObjectId&) const { return kId; }
        Type operator()(const OdCmTransparency&) const { return kTransparency; }
        Type operator()(const OdSmartPtr<const Shared>& held) const { return held->type; }
    } const typeOf;
    return std::visit(typeOf, value_);
}

namespace {

template<class T, class Value>
T heldOr(const Value& value, T neutral)
{
    const T* held = std::get_if<T>(&value);
    return held ? *held : neutral;
}

} // namespace

std::int32_t CFxVariant::GetInt32() const
{
    if (const auto* const number = std::get_if<double>(&value_)) {
        const bool fits = std::abs(*number) <= std::numeric_limits<std::int32_t>::max();
        return fits ? static_cast<std::int32_t>(*number) : 0;
    }
    return heldOr(value_, std::int32_t{0});
}

double CFxVariant::GetDouble() const
{
    if (const auto* const number = std::get_if<std::int32_t>(&value_))
        return *number;
    return heldOr(value_, 0.0);
}

CFxString CFxVariant::GetString() const
{
    return heldOr(value_, CFxString());
}

OdGePoint3d CFxVariant::GetPoint3d() const
{
    return boxed<OdGePoint3d>(kPoint3d);
}

OdCmColor CFxVariant::GetColor() const
{
    return heldOr(value_, OdCmColor());
}

OdCmTransparency CFxVariant::GetTransparency() const
{
    return heldOr(value_, OdCmTransparency());
}

OdDbObjectId CFxVariant::GetId() const
{
    return heldOr(value_, OdDbObjectId());
}

const CFxVariantCollection& CFxVariant::GetCollection() const
{
    return boxed<CFxVariantCollection>(kCollection);
}

const CFxVariantCollectionElement& CFxVariant::GetCollectionElement() const
{
    return boxed<CFxVariantCollectionElement>(kCollectionElement);
}
