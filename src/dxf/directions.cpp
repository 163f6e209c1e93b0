#include "dxf/directions.h"

#include <cmath>

namespace inkmacro::dxf {

namespace {

/// Nearer than that to the Z axis, the X axis is found by the Y axis of the world.
constexpr double kNear = 1.0 / 64;

OdGeVector3d cross(const OdGeVector3d& left, const OdGeVector3d& right)
{
    return {left.y * right.z - left.z * right.y, left.z * right.x - left.x * right.z,
            left.x * right.y - left.y * right.x};
}

OdGeVector3d unit(const OdGeVector3d& vector)
{
    const double length = std::hypot(vector.x, vector.y, vector.z);
    return {vector.x / length, vector.y / length, vector.z / length};
}

} // namespace

Direction::Direction(const OdGeVector3d& normal)
{
    // What has no direction is seen from above.
    if (normal == OdGeVector3d{} || (normal.x == 0 && normal.y == 0 && normal.z > 0))
        return;
    zAxis_ = unit(normal);
    isDown_ = zAxis_ == OdGeVector3d{0, 0, -1};
    isTilted_ = !isDown_ && !(zAxis_ == OdGeVector3d{0, 0, 1});
    const bool isNear = std::abs(zAxis_.x) < kNear && std::abs(zAxis_.y) < kNear;
    xAxis_ = unit(cross(isNear ? OdGeVector3d{0, 1, 0} : OdGeVector3d{0, 0, 1}, zAxis_));
    yAxis_ = cross(zAxis_, xAxis_);
}

OdGePoint3d Direction::toWorld(const OdGePoint3d& point) const
{
    if (!isTilted_)
        return isDown_ ? OdGePoint3d{-point.x, point.y, -point.z} : point;
    const auto along = [&](double x, double y, double z) { return x * point.x + y * point.y + z * point.z; };
    return {along(xAxis_.x, yAxis_.x, zAxis_.x), along(xAxis_.y, yAxis_.y, zAxis_.y),
            along(xAxis_.z, yAxis_.z, zAxis_.z)};
}

} // namespace inkmacro::dxf
