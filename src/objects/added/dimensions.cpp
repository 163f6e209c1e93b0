// Added dimensions.

#include "objects/targets/dimensions.h"

#include "host/db/OdDbClasses.h"
#include "objects/AddedProperties.h"
#include "objects/added/dimensionGeometry.h"
#include "objects/targets/dimensionsOnCurves.h"
#include "objects/targets/references.h"
#include "objects/targets/setters.h"
#include "objects/targets/texts.h"
#include "targets/wording.h"

namespace {

/// Distances up to this are none.
constexpr double kPointTolerance = 1e-10;

CFxString takeTextOverride(AddedProperties& properties)
{
    return inkmacro::doubleBackslashes(properties.takeText("Text override"));
}

/// A point of the drawing's plane, recorded as two numbers.
OdGePoint3d takePlanePoint(AddedProperties& properties, const char* yTag, const char* xTag)
{
    const double y = properties.takeReal(yTag, 0.0);
    const double x = properties.takeReal(xTag, 0.0);
    return {x, y, 0.0};
}

} // namespace

template<class Dimension>
std::optional<MeasuredCurve> CFxConverterIWAPIObject::CurveOf(const CFxString& name) const
{
    const auto dimension = odrxCast<Dimension>(AddedObject(name).get());
    const OdDbObjectPtr curve = dimension ? GetDimensionGeometry(*dimension) : OdDbObjectPtr();
    if (!curve)
        return std::nullopt;
    return MeasuredCurve{curve, AddedVariable(curve->objectId())};
}

/// The rotation belongs to the part of a dimension that all kinds have, so a statement fetches that first.
QString CFxConverterIWAPIObject::WithTextRotation(QString insertion, AddedProperties& properties, const CFxString& name)
{
    const CFxVariant rotation = properties.take("Rotation");
    if (rotation.IsNull())
        return insertion;
    CFxString general;
    insertion += EmitGetGeneralDimension(writer, name, general);
    return insertion + EmitSetDoubleProperty(writer, general, "TextRotation", rotation.GetDouble());
}

QString CFxConverterIWAPIObject::ReadAlignedDimension(AddedProperties& properties, const CFxString& name)
{
    const OdGePoint3d first = properties.takePoint("xLine1Point");
    const OdGePoint3d second = properties.takePoint("xLine2Point");
    const OdGePoint3d line = properties.takePoint("dimLinePoint");
    const CFxString text = takeTextOverride(properties);
    return WithTextRotation(EmitInsertAlignedDimension(writer, first, second, line, text, name), properties, name);
}

QString CFxConverterIWAPIObject::Read2LineAngularDimension(AddedProperties& properties, const CFxString& name)
{
    DimensionLine first;
    DimensionLine second;
    first.start = properties.takePoint("xLine1Start");
    first.end = properties.takePoint("xLine1End");
    second.start = properties.takePoint("xLine2Start");
    second.end = properties.takePoint("xLine2End");
    const OdGePoint3d arcPoint = properties.takePoint("arcPoint");
    const CFxString text = takeTextOverride(properties);
    if (MeasuresFromVariables(writer)) {
        if (const auto dimension = odrxCast<OdDb2LineAngularDimension>(AddedObject(name).get())) {
            OdDbObjectPtr firstObject;
            OdDbObjectPtr secondObject;
            GetDimensionAssociatedLines(*dimension, firstObject, secondObject);
            first.variable = firstObject ? AddedVariable(firstObject->objectId()) : QString();
            second.variable = secondObject ? AddedVariable(secondObject->objectId()) : QString();
        }
    }
    return WithTextRotation(EmitInsertAngularDimension2Line(writer, first, second, arcPoint, text, name), properties,
                            name);
}

QString CFxConverterIWAPIObject::Read3PointAngularDimension(AddedProperties& properties, const CFxString& name)
{
    const OdGePoint3d center = properties.takePoint("centerPoint");
    const OdGePoint3d first = properties.takePoint("xLine1Point");
    const OdGePoint3d second = properties.takePoint("xLine2Point");
    const OdGePoint3d arcPoint = properties.takePoint("arcPoint");
    const CFxString text = takeTextOverride(properties);
    const std::optional<MeasuredCurve> curve = CurveOf<OdDb3PointAngularDimension>(name);
    const bool onArc = curve && odrxQuery<OdDbArc>(curve->object.get());
    QString insertion = onArc ? EmitInsertAngularDimensionArc(writer, *curve, arcPoint, text, name)
                              : EmitInsertAngularDimension3Point(writer, center, first, second, arcPoint, text, name);
    return WithTextRotation(std::move(insertion), properties, name);
}

QString CFxConverterIWAPIObject::ReadArcLengthDimension(AddedProperties& properties, const CFxString& name)
{
    const OdGePoint3d first = properties.takePoint("xLine1Point");
    const OdGePoint3d second = properties.takePoint("xLine2Point");
    const bool partial = properties.take("isPartial").GetInt32() != 0;
    const OdGePoint3d arcPoint = properties.takePoint("arcPoint");
    const CFxString text = takeTextOverride(properties);
    QString insertion;
    if (const std::optional<MeasuredCurve> arc = CurveOf<OdDbArcDimension>(name))
        insertion = EmitInsertArcLengthDimension(writer, *arc, first, second, partial, arcPoint, text, name);
    return WithTextRotation(std::move(insertion), properties, name);
}

QString CFxConverterIWAPIObject::ReadOrdinateDimension(AddedProperties& properties, const CFxString& name)
{
    const OdGePoint3d point = properties.takePoint("definingPoint");
    const OdGePoint3d leaderEnd = properties.takePoint("leaderEndPoint");
    const bool usesXAxis = properties.take("isUsingXAxis").GetInt32() != 0;
    const CFxString text = takeTextOverride(properties);
    QString statements = WithTextRotation(EmitInsertOrdinateDimension(writer, point, leaderEnd, usesXAxis, text, name),
                                          properties, name);
    const CFxVariant zero = properties.take("setZero");
    if (!zero.IsNull() && zero.GetPoint3d().distanceTo({}) > kPointTolerance)
        statements += EmitCallWithPoint(writer, name, "SetOriginPoint", zero.GetPoint3d());
    return statements;
}

QString CFxConverterIWAPIObject::ReadDiameterDimension(AddedProperties& properties, const CFxString& name)
{
    const OdGePoint3d chordPoint = properties.takePoint("chordPoint");
    const CFxString text = takeTextOverride(properties);
    QString insertion;
    if (const std::optional<MeasuredCurve> curve = CurveOf<OdDbDiametricDimension>(name))
        insertion = EmitInsertDiameterDimension(writer, *curve, chordPoint, text, name);
    return WithTextRotation(std::move(insertion), properties, name);
}

QString CFxConverterIWAPIObject::ReadRadialDimension(AddedProperties& properties, const CFxString& name)
{
    const OdGePoint3d chordPoint = properties.takePoint("chordPoint");
    const CFxString text = takeTextOverride(properties);
    QString insertion;
    if (const std::optional<MeasuredCurve> curve = CurveOf<OdDbRadialDimension>(name))
        insertion = EmitInsertRadialDimension(writer, *curve, chordPoint, text, name);
    return WithTextRotation(std::move(insertion), properties, name);
}

QString CFxConverterIWAPIObject::ReadJoggedDimension(AddedProperties& properties, const CFxString& name)
{
    const OdGePoint3d center = takePlanePoint(properties, "Center location override Y", "Center location override X");
    const OdGePoint3d jog = takePlanePoint(properties, "Jog location Y", "Jog location X");
    const OdGePoint3d position = takePlanePoint(properties, "Position y", "Position x");
    const CFxString text = takeTextOverride(properties);
    QString insertion;
    if (const std::optional<MeasuredCurve> curve = CurveOf<OdDbRadialDimensionLarge>(name))
        insertion = EmitInsertJoggedDimension(writer, *curve, center, jog, position, text, name);
    return WithTextRotation(std::move(insertion), properties, name);
}

QString CFxConverterIWAPIObject::ReadRotatedDimension(AddedProperties& properties, const CFxString& name)
{
    const OdGePoint3d first = properties.takePoint("xLine1Point");
    const OdGePoint3d second = properties.takePoint("xLine2Point");
    const OdGePoint3d line = properties.takePoint("dimLinePoint");
    const double rotation = properties.takeReal("rotation", 0.0);
    const CFxString text = takeTextOverride(properties);
    return WithTextRotation(EmitInsertRotatedDimension(writer, first, second, line, rotation, text, name), properties,
                            name);
}
