// Lines, points, circles, arcs, ellipses, rays.

#include "dxf/readers.h"

#include <cmath>
#include <numbers>

namespace inkmacro::dxf {

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
    object.add("Radius", entity.real(40));
}

void readArc(EntityReader& entity, Parts, Surroundings&, DrawnObject& object)
{
    const Direction direction = entity.direction();
    if (direction.isTilted())
        throw Lost{kTilted};
    object.add("Center X", "Center Y", "Center Z", direction.toWorld(entity.point(10)));
    object.add("Radius", entity.real(40));
    const Arc arc = direction.arcToWorld({entity.radians(50), entity.radians(51)});
    object.add("Start Angle", arc.start);
    object.add("End Angle", arc.end);
}

void readEllipse(EntityReader& entity, Parts, Surroundings&, DrawnObject& object)
{
    // Center and axis are of the world, whatever the normal.
    const OdGeVector3d axis = entity.vector(11);
    const OdGePoint3d center = entity.point(10);
    object.add("Major axis vector X", axis.x);
    object.add("Major axis vector Y", axis.y);
    object.add("Major axis vector Z", axis.z);
    const double major = std::sqrt(axis.x * axis.x + axis.y * axis.y + axis.z * axis.z);
    if (!(major > 0))
        throw Lost{"its axis has no length"};
    const Direction direction = entity.direction();
    if (direction.isTilted() || axis.z != 0)
        throw Lost{kTilted};
    // It is drawn in the plane of the world, and lifted then.
    object.add("Center X", "Center Y", "Center Z", {center.x, center.y, 0});
    if (center.z != 0)
        object.change("Center Z", center.z);
    object.add("Minor radius", major * std::abs(entity.real(40, 1.0)));
    constexpr double turn = 2 * std::numbers::pi;
    double start = entity.real(41);
    double end = entity.real(42, turn);
    if (direction.isDown()) {
        const double mirrored = turn - end;
        end = turn - start;
        start = mirrored;
    }
    // An ellipse is whole at exactly 0 and a turn.
    constexpr double close = 1e-9;
    if (std::abs(end - start - turn) < close || (std::abs(start) < close && std::abs(end) < close)) {
        start = 0;
        end = turn;
    }
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
