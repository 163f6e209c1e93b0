// Changed polylines, splines, meshes, solids, traces, faces, rich lines, shapes, embedded objects and viewports.

#include "objects/ChangeRows.h"
#include "objects/targets/geometrySetters.h"
#include "objects/targets/pointChanges.h"
#include "objects/targets/setters.h"

namespace {

QString setEnum(const Change& change, const CFxString& word)
{
    return EmitSetEnumProperty(change.writer, change.name, *change.row.enumeration, change.row.property, word);
}

QString setBool(const Change& change, bool value)
{
    return EmitSetBoolProperty(change.writer, change.name, change.row.property, value);
}

constexpr ChangeKind kInteger{[](const Change& change) {
    return EmitSetDoubleProperty(change.writer, change.name, change.row.property, change.value.GetInt32());
}};

constexpr ChangeKind kEnum{[](const Change& change) { return setEnum(change, ElementText(change.value)); }};

constexpr ChangeKind kChosenEnum{[](const Change& change) {
    const auto word = ChosenText(change.value);
    return word ? setEnum(change, *word) : QString();
}};

constexpr ChangeKind kYes{[](const Change& change) { return setBool(change, change.shows("Yes")); }};
constexpr ChangeKind kExactYes{[](const Change& change) { return setBool(change, IsYes(change.value)); }};
constexpr ChangeKind kVisible{[](const Change& change) { return setBool(change, change.shows("Visible")); }};
constexpr ChangeKind kEnabled{
    [](const Change& change) { return setBool(change, ElementText(change.value) == ShownWord("Enabled")); }};

/// Among all items the word is not looked at: the first is "Yes", whatever it is called.
constexpr ChangeKind kClosed{[](const Change& change) {
    switch (change.value.GetType()) {
    case CFxVariant::kCollection:
        return setBool(change, change.value.GetCollection().GetChosen() == 0);
    case CFxVariant::kCollectionElement:
        return setBool(change, change.shows("Yes"));
    default:
        return QString();
    }
}};

constexpr ChangeKind kIndexedReal{[](const Change& change) {
                                      return EmitSetIndexedDouble(change.writer, change.name, change.row.property,
                                                                  change.index, change.value.GetDouble());
                                  },
                                  nullptr, true};

constexpr ChangeKind kIndexedPoint{changePoint, "XYZ", true};

constexpr ChangeKind kVertex2D{[](const Change& change) {
                                   return EmitChangeVertex2D(change.writer, change.name, change.index, change.row.axis,
                                                             change.value.GetDouble());
                               },
                               "XY", true};

/// The host counts these vertices from 1 and has a pair of operations for each.
QString changeNumberedVertex(const Change& change)
{
    const qint64 number = qint64{change.index} + 1;
    return EmitChangePoint(change.writer, change.name, change.row.axis,
                           QStringLiteral("GetVertex%1Coordinate").arg(number),
                           QStringLiteral("SetVertex%1Coordinate").arg(number), change.value.GetDouble(), -1);
}

constexpr ChangeKind kNumberedVertex{changeNumberedVertex, "XYZ", true};

constexpr ChangeKind kFaceVertex{[](const Change& change) {
                                     const bool exists = change.index >= 0 && change.index <= 3;
                                     return exists ? changeNumberedVertex(change) : QString();
                                 },
                                 "XYZ", true};

} // namespace

std::int32_t CFxConverterIWAPIObject::ConvertModifiedPolyline3D(PropertyList& list, bool fromAdded,
                                                                const CFxString& name, QString& text)
{
    static const ChangeRows rows{
        {kIndexedPoint, "Vertex", "VertexCoordinate"},
        {kChosenEnum, "Fit/Smooth", "FitSmooth", &inkmacro::enums::polyLine3DFitSmooth},
        {kYes, "Closed", "Closed"},
    };
    return ConvertRows(rows, list, fromAdded, name, text);
}

std::int32_t CFxConverterIWAPIObject::ConvertModifiedPolyline(PropertyList& list, bool fromAdded, const CFxString& name,
                                                              QString& text)
{
    static const ChangeRows rows{
        {kReal, "Elevation", "Elevation"},
        {kReal, "Global width", "GlobalWidth"},
        {kIndexedReal, "Start segment width", "SetSegmentStartWidth"},
        {kIndexedReal, "End segment width", "SetSegmentEndWidth"},
        {kVertex2D, "Vertex"},
        {kClosed, "Closed", "Closed"},
        {kEnabled, "LineStyleGen", "LineStyleGeneration"},
    };
    return ConvertRows(rows, list, fromAdded, name, text);
}

std::int32_t CFxConverterIWAPIObject::ConvertModifiedSpline(PropertyList& list, bool fromAdded, const CFxString& name,
                                                            QString& text)
{
    static const ChangeRows rows{
        {kIndexedPoint, "Control point", "ControlPointCoordinate"},
        {kIndexedPoint, "Fit point", "FitPointCoordinate"},
        {kReal, "Fit tolerance", "FitTolerance"},
    };
    return ConvertRows(rows, list, fromAdded, name, text);
}

std::int32_t CFxConverterIWAPIObject::ConvertModifiedPolygonMesh(PropertyList& list, bool fromAdded,
                                                                 const CFxString& name, QString& text)
{
    static const ChangeRows rows{
        {kIndexedPoint, "Vertex", "VertexCoordinate"},
        {kClosed, "M closed", "MClosed"},
        {kInteger, "M density", "MDensity"},
        {kInteger, "N density", "NDensity"},
        {kClosed, "N closed", "NClosed"},
        {kEnum, "Fit/Smooth", "FitSmooth", &inkmacro::enums::polygonMeshFitSmooth},
    };
    return ConvertRows(rows, list, fromAdded, name, text);
}

std::int32_t CFxConverterIWAPIObject::ConvertModifiedPolyFaceMesh(PropertyList& list, bool fromAdded,
                                                                  const CFxString& name, QString& text)
{
    static const ChangeRows rows{{kIndexedPoint, "Vertex", "VertexCoordinate"}};
    return ConvertRows(rows, list, fromAdded, name, text);
}

std::int32_t CFxConverterIWAPIObject::ConvertModifiedSolid(PropertyList& list, bool fromAdded, const CFxString& name,
                                                           QString& text)
{
    static const ChangeRows rows{{kNumberedVertex, "Vertex"}};
    return ConvertRows(rows, list, fromAdded, name, text);
}

std::int32_t CFxConverterIWAPIObject::ConvertModifiedTrace(PropertyList& list, bool fromAdded, const CFxString& name,
                                                           QString& text)
{
    static const ChangeRows rows{{kNumberedVertex, "Vertex"}};
    return ConvertRows(rows, list, fromAdded, name, text);
}

std::int32_t CFxConverterIWAPIObject::ConvertModifiedFace(PropertyList& list, bool fromAdded, const CFxString& name,
                                                          QString& text)
{
    static const ChangeRows rows{
        {kVisible, "Edge 1", "Edge1Visible"},
        {kVisible, "Edge 2", "Edge2Visible"},
        {kVisible, "Edge 3", "Edge3Visible"},
        {kVisible, "Edge 4", "Edge4Visible"},
        {kFaceVertex, "Vertex"},
    };
    return ConvertRows(rows, list, fromAdded, name, text);
}

std::int32_t CFxConverterIWAPIObject::ConvertModifiedRichLine(PropertyList& list, bool fromAdded, const CFxString& name,
                                                              QString& text)
{
    static const ChangeRows rows{
        {kEnum, "RLine justification", "Justification", &inkmacro::enums::richLineJustification},
        {kReal, "RLine scale", "Scale"},
    };
    return ConvertRows(rows, list, fromAdded, name, text);
}

std::int32_t CFxConverterIWAPIObject::ConvertModifiedShape(PropertyList& list, bool fromAdded, const CFxString& name,
                                                           QString& text)
{
    static const ChangeRows rows{
        {kPoint, "Position", "Position"}, {kReal, "Obliquing", "Obliquing"},      {kReal, "Rotation", "Rotation"},
        {kReal, "Size", "Size"},          {kReal, "Width factor", "WidthFactor"},
    };
    return ConvertRows(rows, list, fromAdded, name, text);
}

std::int32_t CFxConverterIWAPIObject::ConvertModifiedEmbeddedObject(PropertyList& list, bool fromAdded,
                                                                    const CFxString& name, QString& text)
{
    static const ChangeRows rows{
        {kReal, "Height", "Height"},
        {kPoint, "Position", "Position"},
        {kReal, "Width", "Width"},
        {kEnum, "Print quality", "PrintQuality", &inkmacro::enums::embeddedObjectPrintQuality},
    };
    return ConvertRows(rows, list, fromAdded, name, text);
}

std::int32_t CFxConverterIWAPIObject::ConvertModifiedViewport(PropertyList& list, bool fromAdded, const CFxString& name,
                                                              QString& text)
{
    static const ChangeRows rows{
        {kPoint, "Center", "Center"},
        {kReal, "Height", "Height"},
        {kReal, "Width", "Width"},
        {kExactYes, "CCS per viewport", "CCSPerViewport"},
        {kReal, "Custom scale", "CustomScale"},
        {kExactYes, "Display locked", "DisplayLocked"},
        {kExactYes, "On", "IsOn"},
        {kEnum, "Shade print", "ShadePrintStyle", &inkmacro::enums::viewportShadePrintStyle},
        {kChosenEnum, "Standard scale", "StandardScale", &inkmacro::enums::viewportStandardScale},
    };
    return ConvertRows(rows, list, fromAdded, name, text);
}
