#include "view/measuredCurves.h"

#include "view/readings.h"

#include "host/db/OdDbClasses.h"

namespace inkmacro::view {
namespace {

/// The handle of what the point hangs on; null for nothing and for what is gone.
OdDbHandle associated(const Values& dimension, std::size_t pointReference)
{
    const auto* const drawn = dimension.drawnAs<OdDbDimension>();
    const OdDbObjectPtr entry = drawn ? drawn->getExtension("ACAD_DIMASSOC").openObject() : OdDbObjectPtr();
    const auto* const association = dynamic_cast<const OdDbDimAssoc*>(entry.get());
    if (!association)
        return {};
    const OdArray<OdDbObjectId>& path = association->pointRef(pointReference);
    if (path.isEmpty())
        return {};
    const OdDbObjectId& last = path[path.length() - 1];
    return last.openObject() ? last.getHandle() : OdDbHandle();
}

template<class Curve>
std::optional<MeasuredCurve> roundCurve(const Values& curve, double radius)
{
    const auto* const drawn = curve.drawnAs<Curve>();
    const std::optional<Point> told = placeOf(curve, "Center");
    if (!told && !drawn)
        return std::nullopt;
    return MeasuredCurve{told ? *told : fromAbove(drawn->center()), radius};
}

template<class Curve>
double radiusOf(const Values& curve)
{
    const auto* const drawn = curve.drawnAs<Curve>();
    return sizeOf({curve.number("Radius")}, drawn ? drawn->radius() : 0.0);
}

} // namespace

std::optional<MeasuredCurve> measuredCurve(const Values& dimension, std::size_t pointReference)
{
    const OdDbHandle handle = associated(dimension, pointReference);
    const Values* const curve = handle.isNull() ? nullptr : dimension.other(handle);
    if (!curve)
        return std::nullopt;
    if (curve->className() == "AcDbCircle")
        return roundCurve<OdDbCircle>(*curve, radiusOf<OdDbCircle>(*curve));
    if (curve->className() == "AcDbArc")
        return roundCurve<OdDbArc>(*curve, radiusOf<OdDbArc>(*curve));
    if (curve->className() == "AcDbEllipse")
        return roundCurve<OdDbEllipse>(*curve, 0.0);
    return std::nullopt;
}

} // namespace inkmacro::view
