// The classes of drawing objects.

#include "objects/classTable.h"

#include "host/db/OdDbClassMap.h"
#include "objects/CFxConverterIWAPIObject.h"
#include "objects/added/readers.h"
#include "objects/changed/changeLists.h"

#include <QHash>

#include <algorithm>

namespace {

using Objects = CFxConverterIWAPIObject;

/// Simple notes and notes are one type to an enumeration of object types, and so are the two kinds of polyline and of
/// angular dimension; the interfaces of the notes differ.
constexpr ClassRow kRows[] = {
    {"AcDbLine", "Line", "iwLineType", &ReadLine, &Objects::ConvertModifiedLine},
    {"AcDbCircle", "Circle", "iwCircleType", &ReadCircle, &modifiedCircle},
    {"AcDbPoint", "Point", "iwPointType", &ReadPoint, &modifiedPoint},
    {"AcDbRay", "Ray", "iwRayType", &ReadRay, &modifiedRay},
    {"AcDbArc", "CircleArc", "iwCircleArcType", &ReadArc, &modifiedArc},
    {"AcDbEllipse", "EllipseArc", "iwEllipseArcType", &ReadEllipse, &modifiedEllipse},
    {"AcDbXline", "InfiniteLine", "iwInfiniteLineType", &ReadInfiniteLine, &modifiedInfiniteLine},
    {"AcDbTextStyleTableRecord", "TextStyle", "iwTextStyleType", &ReadTextStyle, &modifiedTextStyle},
    {"AcDbAttributeDefinition", "AttributeDefinition", "iwAttributeDefinitionType", &ReadAttributeDefinition,
     &modifiedAttributeDefinition},
    {"AcDbText", "SimpleNote", "iwSimpleNoteType", &ReadSimpleNote, &modifiedSimpleNote},
    {"AcDbMText", "Note", "iwSimpleNoteType", &ReadNote, &modifiedNote},
    {"AcDbBlockReference", "BlockInstance", "iwBlockInstanceType", &ReadBlockReference,
     &Objects::ConvertModifiedBlockInstance},
    {"AcDbRasterImage", "ReferenceImage", "iwReferenceImageType", &ReadPicture, &modifiedPicture,
     kFinishedByCustomAction},
    {"AcDbMline", "RichLine", "iwRichLineType", &ReadRichLine, &modifiedRichLine},
    {"AcDbFcf", "Tolerance", "iwToleranceType", &ReadTolerance, &modifiedTolerance},
    {"AcDbTable", "Table", "iwTableType", &ReadTable, &Objects::ConvertModifiedTable},
    {"AcDbRegion", "Region", "iwRegionType", nullptr, nullptr, kFinishedByCustomAction | kRawPointer},
    {"AcDbShape", "Shape", "iwShapeType", &ReadShape, &modifiedShape},
    {"AcDbFace", "Face", "iwFaceType", &ReadFace, &modifiedFace},
    {"AcDbLeader", "Leader", "iwLeaderType", &ReadLeader, &modifiedLeader},
    {"AcDb3dPolyline", "PolyLine3D", "iwPolyLine3DType", &ReadPolyline3D, &modifiedPolyline3D},
    {"AcDbPolygonMesh", "PolygonMesh", "iwPolygonMeshType", &ReadPolygonMesh, &modifiedPolygonMesh},
    {"AcDbSolid", "Solid", "iwSolidType", &ReadSolid, &modifiedSolid},
    {"AcDbSpline", "Spline", "iwSplineType", &ReadSpline, &modifiedSpline},
    {"AcDbOle2Frame", "EmbeddedObject", "iwEmbeddedObjectType", nullptr, &modifiedEmbeddedObject,
     kFinishedByCustomAction},
    {"AcDbPolyline", "PolyLine", "iwPolyLineType", &ReadPolyline, &modifiedPolyline, kFinishedByCustomAction},
    {"AcDb2dPolyline", "PolyLine", "iwPolyLineType", nullptr, nullptr, kOnlyNamed},
    {"AcDbHatch", "Hatch", "iwHatchType", &ReadHatch, &Objects::ConvertModifiedHatch, kFinishedByCustomAction},
    {"AcDbPolyFaceMesh", "PolyFaceMesh", "iwPolyFaceMeshType", &ReadPolyFaceMesh, &modifiedPolyFaceMesh},
    {"AcDbBlockTableRecord", "BlockDefinition", "iwBlockDefinitionType", &ReadBlockDefinition,
     &Objects::ConvertModifiedBlockDefinition},
    {"AcDbGroup", "Group", "iwGroupType", &ReadGroup, &modifiedGroup},
    // Of a changed view only its removal is converted.
    {"AcDbViewTableRecord", "ModelNamedView", "iwModelNamedViewType", nullptr, nullptr, kFinishedByCustomAction},
    {"AcDbAlignedDimension", "AlignedDimension", "iwAlignedDimensionType", &ReadAlignedDimension, &modifiedDimension,
     kDimension},
    {"AcDb2LineAngularDimension", "AngularDimension", "iwAngularDimensionType", &Read2LineAngularDimension,
     &modifiedDimension, kDimension},
    {"AcDb3PointAngularDimension", "AngularDimension", "iwAngularDimensionType", &Read3PointAngularDimension,
     &modifiedDimension, kDimension},
    {"AcDbArcDimension", "ArcLengthDimension", "iwArcLengthDimensionType", &ReadArcLengthDimension,
     &modifiedArcLengthDimension, kDimension},
    {"AcDbDiametricDimension", "DiameterDimension", "iwDiameterDimensionType", &ReadDiameterDimension,
     &modifiedDimension, kDimension},
    {"AcDbOrdinateDimension", "OrdinateDimension", "iwOrdinateDimensionType", &ReadOrdinateDimension,
     &modifiedDimension, kDimension},
    {"AcDbRadialDimension", "RadialDimension", "iwRadialDimensionType", &ReadRadialDimension, &modifiedDimension,
     kDimension},
    {"AcDbRadialDimensionLarge", "JoggedDimension", "iwJoggedDimensionType", &ReadJoggedDimension,
     &modifiedJoggedDimension, kDimension},
    {"AcDbRotatedDimension", "RotatedDimension", "iwRotatedDimensionType", &ReadRotatedDimension, &modifiedDimension,
     kDimension},
    {"AcDbTableStyle", "TableStyle", "iwTableStyleType", &ReadTableStyle, &modifiedTableStyle},
    // No statement makes a style with its settings.
    {"AcDbDimStyleTableRecord", "DimensionStyle", "iwDimensionStyleType", &ReadDimensionStyle, &modifiedDimensionStyle,
     kSetWhenAdded},
    {"AcDbLinetypeTableRecord", "LineStyle", "iwLineStyleType", &ReadLineStyle},
    {"AcDbMlineStyle", "RichLineStyle", "iwRichLineStyleType", &ReadRichLineStyle, &modifiedRichLineStyle},
    {"AcDbViewport", "Viewport", "iwViewportType", &ReadViewport, &modifiedViewport},
    {"AcDbTrace", "Trace", "iwTraceType", &ReadTrace, &modifiedTrace},
    {"AcDbLayerTableRecord", "Layer", "iwLayerType", &ReadLayer, &Objects::ConvertModifiedLayer},
    {"AcDbLayout", "Layout", "iwLayoutType", nullptr, &Objects::ConvertModifiedSheet},
    {"AcDbViewportTableRecord", "ViewTile", "iwViewTileType", nullptr, &modifiedViewTile, kRawPointer},
    {"AcDbArcAlignedText", "ArcAlignedText", "iwArcAlignedTextType", &ReadCurvedText, &modifiedCurvedText},
    // Tables of records: their objects are taken, but have no variable.
    {"AcDbViewTable", nullptr, nullptr},
    {"AcDbLayerTable", nullptr, nullptr},
};

} // namespace

std::span<const ClassRow> ClassTable()
{
    return kRows;
}

const ClassRow* FindClass(const OdRxClass* cls)
{
    // Asked for each object several times: by address.
    static const QHash<const OdRxClass*, const ClassRow*> byClass = [] {
        QHash<const OdRxClass*, const ClassRow*> rows;
        for (const ClassRow& row : kRows)
            rows.insert(oddbClassByName(row.name), &row);
        return rows;
    }();
    return byClass.value(cls, nullptr);
}

const ClassRow* FindClass(const QString& name)
{
    static const QHash<QString, const ClassRow*> byName = [] {
        QHash<QString, const ClassRow*> rows;
        for (const ClassRow& row : kRows)
            rows.insert(row.name, &row);
        return rows;
    }();
    return byName.value(name, nullptr);
}

const ClassRow* FindClassOfInterface(const QString& interfaceName)
{
    const auto found = std::find_if(std::begin(kRows), std::end(kRows), [&](const ClassRow& row) {
        return row.interfaceName && interfaceName.compare(QLatin1String(row.interfaceName), Qt::CaseInsensitive) == 0;
    });
    return found == std::end(kRows) ? nullptr : found;
}

bool IsSupportedClass(const OdRxClass* cls)
{
    const ClassRow* const row = FindClass(cls);
    return row && !row->has(kOnlyNamed);
}

bool CFxConverterIWAPIObject::IsDimensionClass(const OdRxClass* cls) const
{
    const ClassRow* const row = FindClass(cls);
    return row && row->has(kDimension);
}
