#include "dxf/sameness.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace inkmacro::dxf {

namespace {

constexpr double kClose = 1e-9;

bool isNumber(const CFxVariant& value)
{
    return value.GetType() == CFxVariant::kInt32 || value.GetType() == CFxVariant::kDouble;
}

/// Lists as long as each other, with the same in each place.
bool isSameList(const CFxVariantCollection& left, const CFxVariantCollection& right)
{
    const auto& one = left.GetCollectionDataForRead();
    const auto& other = right.GetCollectionDataForRead();
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](const CFxVariantCollectionElement& left, const CFxVariantCollectionElement& right) {
                          return isSame(*left.GetValue(), *right.GetValue());
                      });
}

} // namespace

bool isSame(double left, double right)
{
    // Far from the origin no writer has that many digits.
    constexpr double digits = 1e-15;
    return left == right || std::abs(left - right) <= kClose + digits * std::max(std::abs(left), std::abs(right));
}

bool isSame(const CFxVariant& left, const CFxVariant& right)
{
    if (isNumber(left) && isNumber(right))
        return isSame(left.GetDouble(), right.GetDouble());
    if (left.GetType() != right.GetType())
        return false;
    switch (left.GetType()) {
    case CFxVariant::kString:
        return left.GetString() == right.GetString();
    case CFxVariant::kPoint3d: {
        const OdGePoint3d one = left.GetPoint3d();
        const OdGePoint3d other = right.GetPoint3d();
        return isSame(one.x, other.x) && isSame(one.y, other.y) && isSame(one.z, other.z);
    }
    case CFxVariant::kColor:
        return left.GetColor() == right.GetColor();
    case CFxVariant::kId:
        return left.GetId() == right.GetId();
    case CFxVariant::kTransparency:
        return left.GetTransparency() == right.GetTransparency();
    case CFxVariant::kCollectionElement:
        return isSame(*left.GetCollectionElement().GetValue(), *right.GetCollectionElement().GetValue());
    case CFxVariant::kCollection:
        return isSameList(left.GetCollection(), right.GetCollection());
    default:
        return true;
    }
}

bool isSameDirection(const CFxVariant& left, const CFxVariant& right)
{
    const double turns = (left.GetDouble() - right.GetDouble()) / (2 * std::numbers::pi);
    return std::abs(turns - std::round(turns)) < kClose;
}

std::uint64_t mixed(std::uint64_t value)
{
    value ^= value >> 33;
    value *= 0xff51afd7ed558ccdULL;
    value ^= value >> 33;
    value *= 0xc4ceb9fe1a85ec53ULL;
    return value ^ value >> 33;
}

std::uint64_t hashOf(double number)
{
    constexpr double odd = 1.3717;
    constexpr double offset = 0.28713;
    constexpr int fineness = 20; // bits
    const int size = number == 0 ? 0 : std::max(std::ilogb(number * odd), 0);
    return mixed(static_cast<std::uint64_t>(std::llround(std::ldexp(number, fineness - size) + offset)) +
                 static_cast<std::uint64_t>(size));
}

std::uint64_t hashOf(const CFxVariant& value)
{
    switch (value.GetType()) {
    case CFxVariant::kInt32:
    case CFxVariant::kDouble:
        return hashOf(value.GetDouble());
    case CFxVariant::kString:
        return mixed(qHash(value.GetString().toQString()));
    case CFxVariant::kPoint3d: {
        const OdGePoint3d point = value.GetPoint3d();
        return hashOf(point.x) + 3 * hashOf(point.y) + 5 * hashOf(point.z);
    }
    case CFxVariant::kColor: {
        const OdCmColor color = value.GetColor();
        return mixed(color.colorIndex() | color.red() << 10 | color.green() << 18) + color.blue();
    }
    case CFxVariant::kId:
        return mixed(value.GetId().getHandle().value());
    case CFxVariant::kCollectionElement:
        return hashOf(*value.GetCollectionElement().GetValue());
    case CFxVariant::kCollection: {
        std::uint64_t hash = 0;
        for (const CFxVariantCollectionElement& element : value.GetCollection().GetCollectionDataForRead())
            hash = 3 * hash + hashOf(*element.GetValue());
        return hash;
    }
    default:
        return 0;
    }
}

} // namespace inkmacro::dxf
