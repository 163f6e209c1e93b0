// Added lines, circles, points, rays, arcs, infinite lines and ellipses. Lengths are drawing units, angles radians, as
// recorded; nothing is checked here, it is the macro that meets the host's answer.

#include "objects/targets/curves.h"
#include "objects/AddedObject.h"
#include "objects/added/readers.h"

#include <numbers>

Statement ReadLine(AddedObject& added)
{
    const OdGePoint3d start = added.takePoint("Start X", "Start Y", "Start Z");
    const OdGePoint3d end = added.takePoint("End X", "End Y", "End Z");
    return EmitInsertLine(added.writer, start, end, added.name);
}

Statement ReadCircle(AddedObject& added)
{
    const OdGePoint3d center = added.takePoint("Center X", "Center Y", "Center Z");
    const double radius = added.takeReal("Radius", 1.0);
    return EmitInsertCircle(added.writer, center, radius, added.name);
}

Statement ReadPoint(AddedObject& added)
{
    return EmitInsertPoint(added.writer, added.takePoint("Position X", "Position Y", "Position Z"), added.name);
}

Statement ReadRay(AddedObject& added)
{
    const OdGePoint3d base = added.takePoint("Base point X", "Base point Y", "Base point Z");
    const OdGePoint3d second = added.takePoint("Second point X", "Second point Y", "Second point Z");
    return EmitInsertRay(added.writer, base, second, added.name);
}

Statement ReadArc(AddedObject& added)
{
    const OdGePoint3d center = added.takePoint("Center X", "Center Y", "Center Z");
    const double radius = added.takeReal("Radius", 1.0);
    const double startAngle = added.takeReal("Start Angle", 0.0);
    const double endAngle = added.takeReal("End Angle", 0.0);
    return EmitInsertArc(added.writer, center, radius, startAngle, endAngle, added.name);
}

Statement ReadInfiniteLine(AddedObject& added)
{
    const OdGePoint3d base = added.takePoint("Base point X", "Base point Y", "Base point Z");
    const OdGePoint3d second = added.takePoint("Second point X", "Second point Y", "Second point Z");
    return EmitInsertInfiniteLine(added.writer, base, second, added.name);
}

Statement ReadEllipse(AddedObject& added)
{
    const OdGePoint3d center = added.takePoint("Center X", "Center Y", "Center Z");
    const OdGePoint3d major = added.takePoint("Major axis vector X", "Major axis vector Y", "Major axis vector Z");
    if (center.z != 0)
        LoseProperty(added.object, "Center Z", "the insertion takes its axis in the plane");
    if (major.z != 0)
        LoseProperty(added.object, "Major axis vector Z", "the insertion takes its axis in the plane");
    const OdGeVector3d half{major.x, major.y, major.z};
    const double minorRadius = added.takeReal("Minor radius", 1.0);
    // The tags are in another case than those of an arc.
    const double startAngle = added.takeReal("Start angle", 0.0);
    const double endAngle = added.takeReal("End angle", 0.0);
    // No tolerance: an ellipse that is open by the last bit is an arc to the host.
    if (startAngle == 0.0 && endAngle == 2 * std::numbers::pi)
        return EmitInsertEllipse(added.writer, center + half, center - half, minorRadius, added.name);
    return EmitInsertEllipseArc(added.writer, center + half, center - half, minorRadius, startAngle, endAngle,
                                added.name);
}
