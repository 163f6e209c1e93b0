// Lines, points, circles, arcs, ellipses, rays.

#include "dxf/readers.h"

#include <cmath>
#include <numbers>
#include <utility>

namespace inkmacro::dxf {

namespace {

double radiusOf(const EntityReader& entity)
{
    const double radius = entity.real(40);
    if (!(radius > 0))
        throw Lost{"its radius is not above zero"};
    return radius;
}

} // namespace

void readLine(EntityReader& entity, Parts, Surroundings&, DrawnObject& object)
{
    object.add("Start X", "Start Y", "Start Z", entity.point(10));
    object.add("End X", "End Y", "End Z", entity.point(11));
}

void readPoint(EntityReader& entity, Parts, Surroundings&, DrawnObject& object)
{
    object.add("Position X", "Position Y", "Position Z", entity.point(10));
}

void readCircle(EntityReader& entity, Parts, Surroundings&, DrawnObject& object)
{
    const Direction direction = entity.direction();
    if (direction.isTilted())
        throw Lost{kTilted};
    object.add("Center X", "Center Y", "Center Z", direction.toWorld(entity.point(10)));
    object.add("Radius", radiusOf(entity));
}

void readArc(EntityReader& entity, Parts, Surroundings&, DrawnObject& object)
{
    const Direction direction = entity.direction();
    if (direction.isTilted())
        throw Lost{kTilted};
    object.add("Center X", "Center Y", "Center Z", direction.toWorld(entity.point(10)));
    object.add("Radius", radiusOf(entity));
    const Arc arc = direction.arcToWorld({entity.radians(50), entity.radians(51)});
    object.add("Start Angle", arc.start);
    object.add("End Angle", arc.end);
}

void readEllipse(EntityReader& entity, Parts, Surroundings&, DrawnObject& object)
{
    // Center and axis are of the world, whatever the normal.
    OdGeVector3d axis = entity.vector(11);
    const OdGePoint3d center = entity.point(10);
    const double length = std::hypot(axis.x, axis.y, axis.z);
    const double ratio = std::abs(entity.real(40, 1.0));
    if (!(length > 0) || !(ratio > 0))
        throw Lost{"one of its axes has no length"};
    const Direction direction = entity.direction();
    // Turning it may have left the axis a trace of height.
    constexpr double close = 1e-9;
    if (direction.isTilted() || std::abs(axis.z) > close * length)
        throw Lost{kTilted};
    constexpr double turn = 2 * std::numbers::pi;
    double start = entity.real(41);
    double end = entity.real(42, turn);
    double minor = length * ratio;
    if (ratio > 1) {
        // The second axis is the longer one: it comes first, a quarter of a turn on.
        const double along = direction.isDown() ? -ratio : ratio;
        axis = {-axis.y * along, axis.x * along, 0};
        minor = length;
        start -= turn / 4;
        end -= turn / 4;
    }
    if (direction.isDown())
        start = turn - std::exchange(end, turn - start);
    if (start < 0) {
        start += turn;
        end += turn;
    }
    // An ellipse is whole at exactly 0 and a turn.
    if (std::abs(end - start - turn) < close || std::abs(end - start) < close) {
        start = 0;
        end = turn;
    }
    // It is drawn in the plane of the world, and lifted then.
    object.add("Center X", "Center Y", "Center Z", {center.x, center.y, 0});
    if (center.z != 0)
        object.change("Center Z", center.z);
    object.add("Major axis vector X", axis.x);
    object.add("Major axis vector Y", axis.y);
    object.add("Major axis vector Z", 0.0);
    object.add("Minor radius", minor);
    object.add("Start angle", start);
    object.add("End angle", end);
}

void readRay(EntityReader& entity, Parts, Surroundings&, DrawnObject& object)
{
    const OdGePoint3d base = entity.point(10);
    object.add("Base point X", "Base point Y", "Base point Z", base);
    object.add("Second point X", "Second point Y", "Second point Z", base + entity.vector(11));
}

} // namespace inkmacro::dxf
