// Added dimensions.

#include "objects/targets/dimensions.h"

#include "host/db/OdDbClasses.h"
#include "objects/AddedObject.h"
#include "objects/added/dimensionGeometry.h"
#include "objects/added/readers.h"
#include "objects/targets/dimensionOptions.h"
#include "objects/targets/dimensionsOnCurves.h"
#include "objects/targets/points.h"
#include "objects/targets/setters.h"
#include "statements/wording.h"

#include <optional>

namespace {

/// Distances up to this are none.
constexpr double kPointTolerance = 1e-10;

inkmacro::EscapedText takeTextOverride(AddedObject& added)
{
    return inkmacro::doubleBackslashes(added.takeOptionalText("Text override"));
}

/// A point of the drawing's plane, recorded as two numbers.
OdGePoint3d takePlanePoint(AddedObject& added, const char* yTag, const char* xTag)
{
    const double y = added.takeReal(yTag, 0.0);
    const double x = added.takeReal(xTag, 0.0);
    return {x, y, 0.0};
}

/// The curve that the dimension measures; nothing for a dimension that is not in the drawing, or has no curve.
template<class Dimension>
std::optional<MeasuredCurve> curveOf(const AddedObject& added)
{
    const auto dimension = added.open<Dimension>();
    const OdDbObjectPtr curve = dimension ? GetDimensionGeometry(*dimension) : OdDbObjectPtr();
    if (!curve)
        return std::nullopt;
    return MeasuredCurve{curve, added.conversion.names().AddedVariable(curve->objectId())};
}

/// The rotation belongs to the part of a dimension that all kinds have, so a statement fetches that first.
Statement withTextRotation(Statement insertion, AddedObject& added)
{
    const CFxVariant rotation = added.take("Rotation", forms::number);
    if (insertion.isEmpty()) {
        added.lost("neither records nor the drawing tell what it measures");
        added.conversion.names().SetUnmade(added.object.handle);
        if (added.writer.repairs)
            return insertion;
        added.conversion.faults.noteUnmade();
    }
    if (rotation.IsNull())
        return insertion;
    CFxString general;
    insertion += EmitGetOptions(added.writer, generalDimension, added.name, general);
    return insertion +
           EmitSetDoubleProperty(added.writer, general, "TextRotation", rotation.GetDouble(), inkmacro::Meaning::Angle);
}

/// A line without a variable is drawn anew.
QString variableOf(const AddedObject& added, const OdDbObjectPtr& line)
{
    return line ? added.conversion.names().AddedVariable(line->objectId()) : QString();
}

} // namespace

Statement ReadAlignedDimension(AddedObject& added)
{
    const OdGePoint3d first = added.takePoint("xLine1Point");
    const OdGePoint3d second = added.takePoint("xLine2Point");
    const OdGePoint3d line = added.takePoint("dimLinePoint");
    const inkmacro::EscapedText text = takeTextOverride(added);
    return withTextRotation(EmitInsertAlignedDimension(added.writer, first, second, line, text, added.name), added);
}

Statement Read2LineAngularDimension(AddedObject& added)
{
    DimensionLine first;
    DimensionLine second;
    first.start = added.takePoint("xLine1Start");
    first.end = added.takePoint("xLine1End");
    second.start = added.takePoint("xLine2Start");
    second.end = added.takePoint("xLine2End");
    const OdGePoint3d arcPoint = added.takePoint("arcPoint");
    const inkmacro::EscapedText text = takeTextOverride(added);
    if (MeasuresFromVariables(added.writer)) {
        if (const auto dimension = added.open<OdDb2LineAngularDimension>()) {
            OdDbObjectPtr firstObject;
            OdDbObjectPtr secondObject;
            GetDimensionAssociatedLines(*dimension, firstObject, secondObject);
            first.variable = variableOf(added, firstObject);
            second.variable = variableOf(added, secondObject);
        }
    }
    return withTextRotation(EmitInsertAngularDimension2Line(added.writer, first, second, arcPoint, text, added.name),
                            added);
}

Statement Read3PointAngularDimension(AddedObject& added)
{
    const OdGePoint3d center = added.takePoint("centerPoint");
    const OdGePoint3d first = added.takePoint("xLine1Point");
    const OdGePoint3d second = added.takePoint("xLine2Point");
    const OdGePoint3d arcPoint = added.takePoint("arcPoint");
    const inkmacro::EscapedText text = takeTextOverride(added);
    const std::optional<MeasuredCurve> curve = curveOf<OdDb3PointAngularDimension>(added);
    const bool onArc = curve && odrxQuery<OdDbArc>(curve->object.get());
    Statement insertion =
        onArc ? EmitInsertAngularDimensionArc(added.writer, *curve, arcPoint, text, added.name)
              : EmitInsertAngularDimension3Point(added.writer, center, first, second, arcPoint, text, added.name);
    return withTextRotation(std::move(insertion), added);
}

Statement ReadArcLengthDimension(AddedObject& added)
{
    const OdGePoint3d first = added.takePoint("xLine1Point");
    const OdGePoint3d second = added.takePoint("xLine2Point");
    const bool partial = added.takeFlag("isPartial");
    const OdGePoint3d arcPoint = added.takePoint("arcPoint");
    const inkmacro::EscapedText text = takeTextOverride(added);
    Statement insertion;
    if (const std::optional<MeasuredCurve> arc = curveOf<OdDbArcDimension>(added))
        insertion =
            EmitInsertArcLengthDimension(added.writer, *arc, first, second, partial, arcPoint, text, added.name);
    return withTextRotation(std::move(insertion), added);
}

Statement ReadOrdinateDimension(AddedObject& added)
{
    const OdGePoint3d point = added.takePoint("definingPoint");
    const OdGePoint3d leaderEnd = added.takePoint("leaderEndPoint");
    const bool usesXAxis = added.takeFlag("isUsingXAxis");
    const inkmacro::EscapedText text = takeTextOverride(added);
    Statement statements = withTextRotation(
        EmitInsertOrdinateDimension(added.writer, point, leaderEnd, usesXAxis, text, added.name), added);
    const CFxVariant zero = added.take("setZero", forms::point);
    if (!zero.IsNull() && zero.GetPoint3d().distanceTo({}) > kPointTolerance)
        statements += EmitCallWithPoint(added.writer, added.name, "SetOriginPoint", zero.GetPoint3d());
    return statements;
}

Statement ReadDiameterDimension(AddedObject& added)
{
    const OdGePoint3d chordPoint = added.takePoint("chordPoint");
    const inkmacro::EscapedText text = takeTextOverride(added);
    Statement insertion;
    if (const std::optional<MeasuredCurve> curve = curveOf<OdDbDiametricDimension>(added))
        insertion = EmitInsertDiameterDimension(added.writer, *curve, chordPoint, text, added.name);
    return withTextRotation(std::move(insertion), added);
}

Statement ReadRadialDimension(AddedObject& added)
{
    const OdGePoint3d chordPoint = added.takePoint("chordPoint");
    const inkmacro::EscapedText text = takeTextOverride(added);
    Statement insertion;
    if (const std::optional<MeasuredCurve> curve = curveOf<OdDbRadialDimension>(added))
        insertion = EmitInsertRadialDimension(added.writer, *curve, chordPoint, text, added.name);
    return withTextRotation(std::move(insertion), added);
}

Statement ReadJoggedDimension(AddedObject& added)
{
    const OdGePoint3d center = takePlanePoint(added, "Center location override Y", "Center location override X");
    const OdGePoint3d jog = takePlanePoint(added, "Jog location Y", "Jog location X");
    const OdGePoint3d position = takePlanePoint(added, "Position y", "Position x");
    const inkmacro::EscapedText text = takeTextOverride(added);
    Statement insertion;
    if (const std::optional<MeasuredCurve> curve = curveOf<OdDbRadialDimensionLarge>(added))
        insertion = EmitInsertJoggedDimension(added.writer, *curve, center, jog, position, text, added.name);
    return withTextRotation(std::move(insertion), added);
}

Statement ReadRotatedDimension(AddedObject& added)
{
    const OdGePoint3d first = added.takePoint("xLine1Point");
    const OdGePoint3d second = added.takePoint("xLine2Point");
    const OdGePoint3d line = added.takePoint("dimLinePoint");
    const double rotation = added.takeReal("rotation", 0.0);
    const inkmacro::EscapedText text = takeTextOverride(added);
    return withTextRotation(EmitInsertRotatedDimension(added.writer, first, second, line, rotation, text, added.name),
                            added);
}
