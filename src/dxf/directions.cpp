#include "dxf/directions.h"

#include "dxf/vectors.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace inkmacro::dxf {

namespace {

constexpr double pi = std::numbers::pi;
/// A normal that leans less is upright: points move by as much of their coordinates at most.
constexpr double upright = 1e-9;

} // namespace

Direction::Direction(const OdGeVector3d& normal)
{
    const double length = std::max({std::abs(normal.x), std::abs(normal.y), std::abs(normal.z)});
    if (!(length > 0) || !std::isfinite(normal.x) || !std::isfinite(normal.y) || !std::isfinite(normal.z))
        return;
    // Divided twice, for squares of what is very long or short are no numbers.
    const OdGeVector3d z = unit({normal.x / length, normal.y / length, normal.z / length});
    if (std::abs(z.x) <= upright && std::abs(z.y) <= upright) {
        if (z.z > 0)
            return;
        kind_ = Kind::Down;
        x_ = {-1, 0, 0};
        z_ = {0, 0, -1};
        return;
    }
    // The rule of drawings: X is level, unless Z is nearly that of the world, where X stands at a right angle to Y.
    constexpr double near = 1.0 / 64;
    const bool isNear = std::abs(z.x) < near && std::abs(z.y) < near;
    kind_ = Kind::Tilted;
    z_ = z;
    x_ = unit(cross(isNear ? OdGeVector3d{0, 1, 0} : OdGeVector3d{0, 0, 1}, z));
    y_ = cross(z, x_);
}

OdGePoint3d Direction::toWorld(const OdGePoint3d& point) const
{
    if (kind_ == Kind::Up)
        return point;
    return OdGePoint3d{} + (point.x * x_ + point.y * y_ + point.z * z_);
}

Arc Direction::arcToWorld(const Arc& arc) const
{
    if (!isDown())
        return arc;
    const double start = inTurn(pi - arc.end);
    const bool isWhole = std::abs(arc.end - arc.start - 2 * pi) < 1e-12;
    return {start, isWhole ? start + 2 * pi : inTurn(pi - arc.start)};
}

Placement Direction::placementToWorld(const Placement& placement) const
{
    if (!isDown())
        return placement;
    // A mirror image of the block in Y, turned against what would be a turn of it by the same angle.
    const OdGeScale3d& scale = placement.scale;
    return {inTurn(pi - placement.rotation), {scale.sx, -scale.sy, -scale.sz}};
}

double inTurn(double angle)
{
    const double rest = std::fmod(angle, 2 * pi);
    const double positive = rest < 0 ? rest + 2 * pi : rest;
    return positive < 2 * pi ? positive : 0.0;
}

} // namespace inkmacro::dxf
