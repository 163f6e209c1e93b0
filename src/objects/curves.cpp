// Added lines, circles, points, rays, arcs, infinite lines and ellipses. Lengths are drawing units, angles radians, as
// recorded; nothing is checked here, it is the macro that meets the host's answer.

#include "objects/targets/curves.h"
#include "objects/AddedProperties.h"

#include <numbers>

QString CFxConverterIWAPIObject::ReadLine(AddedProperties& properties, const CFxString& name)
{
    const OdGePoint3d start = properties.takePoint("Start X", "Start Y", "Start Z");
    const OdGePoint3d end = properties.takePoint("End X", "End Y", "End Z");
    return EmitInsertLine(writer, start, end, name);
}

QString CFxConverterIWAPIObject::ReadCircle(AddedProperties& properties, const CFxString& name)
{
    const OdGePoint3d center = properties.takePoint("Center X", "Center Y", "Center Z");
    const double radius = properties.takeReal("Radius", 1.0);
    return EmitInsertCircle(writer, center, radius, name);
}

QString CFxConverterIWAPIObject::ReadPoint(AddedProperties& properties, const CFxString& name)
{
    return EmitInsertPoint(writer, properties.takePoint("Position X", "Position Y", "Position Z"), name);
}

QString CFxConverterIWAPIObject::ReadRay(AddedProperties& properties, const CFxString& name)
{
    const OdGePoint3d base = properties.takePoint("Base point X", "Base point Y", "Base point Z");
    const OdGePoint3d second = properties.takePoint("Second point X", "Second point Y", "Second point Z");
    return EmitInsertRay(writer, base, second, name);
}

QString CFxConverterIWAPIObject::ReadArc(AddedProperties& properties, const CFxString& name)
{
    const OdGePoint3d center = properties.takePoint("Center X", "Center Y", "Center Z");
    const double radius = properties.takeReal("Radius", 1.0);
    const double startAngle = properties.takeReal("Start Angle", 0.0);
    const double endAngle = properties.takeReal("End Angle", 0.0);
    return EmitInsertArc(writer, center, radius, startAngle, endAngle, name);
}

QString CFxConverterIWAPIObject::ReadInfiniteLine(AddedProperties& properties, const CFxString& name)
{
    const OdGePoint3d base = properties.takePoint("Base point X", "Base point Y", "Base point Z");
    const OdGePoint3d second = properties.takePoint("Second point X", "Second point Y", "Second point Z");
    return EmitInsertInfiniteLine(writer, base, second, name);
}

QString CFxConverterIWAPIObject::ReadEllipse(AddedProperties& properties, const CFxString& name)
{
    const OdGePoint3d center = properties.takePoint("Center X", "Center Y", "Center Z");
    const OdGePoint3d major = properties.takePoint("Major axis vector X", "Major axis vector Y", "Major axis vector Z");
    const OdGeVector3d half{major.x, major.y, major.z};
    const double minorRadius = properties.takeReal("Minor radius", 1.0);
    // The tags are in another case than those of an arc.
    const double startAngle = properties.takeReal("Start angle", 0.0);
    const double endAngle = properties.takeReal("End angle", 0.0);
    // No tolerance: an ellipse that is open by the last bit is an arc to the host.
    if (startAngle == 0.0 && endAngle == 2 * std::numbers::pi)
        return EmitInsertEllipse(writer, center + half, center - half, minorRadius, name);
    return EmitInsertEllipseArc(writer, center + half, center - half, minorRadius, startAngle, endAngle, name);
}
