// What the drawing knows about the geometry that a dimension measures.

#include "objects/added/dimensionGeometry.h"

#include "host/db/OdDbClasses.h"

#include <optional>

namespace {

/// The object that one of the dimension's points hangs on. Null for none, and for one that is gone.
OdDbObjectPtr associatedObject(const OdDbDimension& dimension, std::size_t pointRef)
{
    const OdDbObjectPtr entry = dimension.getExtension("ACAD_DIMASSOC").openObject();
    const auto association = odrxQuery<OdDbDimAssoc>(entry.get());
    if (!association)
        return {};
    const OdArray<OdDbObjectId>& path = association->pointRef(pointRef);
    return path.isEmpty() ? OdDbObjectPtr() : path[path.length() - 1].openObject();
}

/// Which of the points hangs on the curve.
std::optional<std::size_t> curveReference(const OdDbDimension& dimension)
{
    const OdRxClass* const cls = dimension.isA();
    if (cls == OdDbDiametricDimension::desc() || cls == OdDbRadialDimension::desc() ||
        cls == OdDbRadialDimensionLarge::desc())
        return 1;
    if (cls == OdDbArcDimension::desc() || cls == OdDb3PointAngularDimension::desc())
        return 2;
    return std::nullopt;
}

OdDbObjectPtr circleThrough(const OdGePoint3d& center, const OdGePoint3d& point)
{
    return odrxNew<OdDbCircle>(center, center.distanceTo(point));
}

OdDbObjectPtr madeUpCurve(const OdDbDimension& dimension)
{
    if (const auto diameter = odrxQuery<OdDbDiametricDimension>(&dimension)) {
        const OdGePoint3d& a = diameter->chordPoint();
        const OdGePoint3d& b = diameter->farChordPoint();
        return circleThrough({(a.x + b.x) / 2, (a.y + b.y) / 2, (a.z + b.z) / 2}, a);
    }
    if (const auto radial = odrxQuery<OdDbRadialDimension>(&dimension))
        return circleThrough(radial->center(), radial->chordPoint());
    if (const auto jogged = odrxQuery<OdDbRadialDimensionLarge>(&dimension))
        return circleThrough(jogged->center(), jogged->chordPoint());
    if (const auto arc = odrxQuery<OdDbArcDimension>(&dimension))
        return odrxNew<OdDbArc>(arc->centerPoint(), arc->centerPoint().distanceTo(arc->arcPoint()),
                                arc->arcStartParam(), arc->arcEndParam());
    return {};
}

} // namespace

OdDbObjectPtr GetDimensionGeometry(const OdDbDimension& dimension)
{
    OdDbObjectPtr curve;
    if (const std::optional<std::size_t> pointRef = curveReference(dimension))
        curve = associatedObject(dimension, *pointRef);
    return curve ? curve : madeUpCurve(dimension);
}

void GetDimensionAssociatedLines(const OdDbDimension& dimension, OdDbObjectPtr& first, OdDbObjectPtr& second)
{
    first = associatedObject(dimension, 0);
    second = associatedObject(dimension, 2);
}
