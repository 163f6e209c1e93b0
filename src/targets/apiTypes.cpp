#include "targets/apiTypes.h"

#include <QHash>

#include <algorithm>

namespace inkmacro {

namespace {

/// Simple notes and notes are one type to an enumeration of object types, and so are the two kinds of polyline and of
/// angular dimension; the interfaces of the notes differ.
constexpr ApiType kTypes[] = {
    {"AcDbLine", "Line", "iwLineType"},
    {"AcDbCircle", "Circle", "iwCircleType"},
    {"AcDbPoint", "Point", "iwPointType"},
    {"AcDbRay", "Ray", "iwRayType"},
    {"AcDbArc", "CircleArc", "iwCircleArcType"},
    {"AcDbEllipse", "EllipseArc", "iwEllipseArcType"},
    {"AcDbXline", "InfiniteLine", "iwInfiniteLineType"},
    {"AcDbTextStyleTableRecord", "TextStyle", "iwTextStyleType"},
    {"AcDbAttributeDefinition", "AttributeDefinition", "iwAttributeDefinitionType"},
    {"AcDbText", "SimpleNote", "iwSimpleNoteType"},
    {"AcDbMText", "Note", "iwSimpleNoteType"},
    {"AcDbBlockReference", "BlockInstance", "iwBlockInstanceType"},
    {"AcDbRasterImage", "ReferenceImage", "iwReferenceImageType"},
    {"AcDbMline", "RichLine", "iwRichLineType"},
    {"AcDbFcf", "Tolerance", "iwToleranceType"},
    {"AcDbTable", "Table", "iwTableType"},
    {"AcDbRegion", "Region", "iwRegionType"},
    {"AcDbShape", "Shape", "iwShapeType"},
    {"AcDbFace", "Face", "iwFaceType"},
    {"AcDbLeader", "Leader", "iwLeaderType"},
    {"AcDb3dPolyline", "PolyLine3D", "iwPolyLine3DType"},
    {"AcDbPolygonMesh", "PolygonMesh", "iwPolygonMeshType"},
    {"AcDbSolid", "Solid", "iwSolidType"},
    {"AcDbSpline", "Spline", "iwSplineType"},
    {"AcDbOle2Frame", "EmbeddedObject", "iwEmbeddedObjectType"},
    {"AcDbPolyline", "PolyLine", "iwPolyLineType"},
    {"AcDb2dPolyline", "PolyLine", "iwPolyLineType"},
    {"AcDbHatch", "Hatch", "iwHatchType"},
    {"AcDbPolyFaceMesh", "PolyFaceMesh", "iwPolyFaceMeshType"},
    {"AcDbBlockTableRecord", "BlockDefinition", "iwBlockDefinitionType"},
    {"AcDbGroup", "Group", "iwGroupType"},
    {"AcDbViewTableRecord", "ModelNamedView", "iwModelNamedViewType"},
    {"AcDbAlignedDimension", "AlignedDimension", "iwAlignedDimensionType"},
    {"AcDb2LineAngularDimension", "AngularDimension", "iwAngularDimensionType"},
    {"AcDb3PointAngularDimension", "AngularDimension", "iwAngularDimensionType"},
    {"AcDbArcDimension", "ArcLengthDimension", "iwArcLengthDimensionType"},
    {"AcDbDiametricDimension", "DiameterDimension", "iwDiameterDimensionType"},
    {"AcDbOrdinateDimension", "OrdinateDimension", "iwOrdinateDimensionType"},
    {"AcDbRadialDimension", "RadialDimension", "iwRadialDimensionType"},
    {"AcDbRadialDimensionLarge", "JoggedDimension", "iwJoggedDimensionType"},
    {"AcDbRotatedDimension", "RotatedDimension", "iwRotatedDimensionType"},
    {"AcDbTableStyle", "TableStyle", "iwTableStyleType"},
    {"AcDbDimStyleTableRecord", "DimensionStyle", "iwDimensionStyleType"},
    {"AcDbLinetypeTableRecord", "LineStyle", "iwLineStyleType"},
    {"AcDbMlineStyle", "RichLineStyle", "iwRichLineStyleType"},
    {"AcDbViewport", "Viewport", "iwViewportType"},
    {"AcDbTrace", "Trace", "iwTraceType"},
    {"AcDbLayerTableRecord", "Layer", "iwLayerType"},
    {"AcDbLayout", "Layout", "iwLayoutType"},
    {"AcDbViewportTableRecord", "ViewTile", "iwViewTileType"},
    {"AcDbArcAlignedText", "ArcAlignedText", "iwArcAlignedTextType"},
};

} // namespace

const ApiType* FindApiType(const QString& className)
{
    static const QHash<QString, const ApiType*> byName = [] {
        QHash<QString, const ApiType*> types;
        for (const ApiType& type : kTypes)
            types.insert(type.className, &type);
        return types;
    }();
    return byName.value(className, nullptr);
}

const ApiType* FindApiTypeOfInterface(const QString& interfaceName)
{
    const auto found = std::find_if(std::begin(kTypes), std::end(kTypes), [&](const ApiType& type) {
        return interfaceName.compare(QLatin1String(type.interfaceName), Qt::CaseInsensitive) == 0;
    });
    return found == std::end(kTypes) ? nullptr : found;
}

std::span<const ApiType> ApiTypes()
{
    return kTypes;
}

} // namespace inkmacro
