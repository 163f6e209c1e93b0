#include "host/db/OdResBuf.h"

#include <type_traits>

namespace {

template<class T>
T valueOr(const OdResBuf::Value& value, T neutral)
{
    const T* held = std::get_if<T>(&value);
    return held ? *held : neutral;
}

} // namespace

/// Lets go of the chain element by element: each in its predecessor's destructor, a long one would overflow the stack.
OdResBuf::~OdResBuf()
{
    OdResBufPtr rest = std::move(next_);
    while (rest && !rest->isShared())
        rest = OdResBufPtr(std::move(rest->next_));
}

ODRX_DEFINE_DESC(OdResBuf, OdRxObject)

OdString OdResBuf::getString() const
{
    return valueOr(value_, OdString());
}

double OdResBuf::getDouble() const
{
    return valueOr(value_, 0.0);
}

bool OdResBuf::getBool() const
{
    return integer() != 0;
}

OdGePoint2d OdResBuf::getPoint2d() const
{
    return valueOr(value_, OdGePoint2d());
}

OdGePoint3d OdResBuf::getPoint3d() const
{
    return valueOr(value_, OdGePoint3d());
}

std::int32_t OdResBuf::integer() const
{
    return std::visit(
        [](const auto& held) -> std::int32_t {
            if constexpr (std::is_integral_v<std::decay_t<decltype(held)>>)
                return held;
            else
                return 0;
        },
        value_);
}
