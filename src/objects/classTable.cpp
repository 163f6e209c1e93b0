// The classes of drawing objects.

#include "objects/classTable.h"

#include "host/db/OdDbClassMap.h"
#include "objects/added/readers.h"
#include "objects/changed/changeLists.h"

#include <QHash>

#include <algorithm>

namespace {

constexpr ClassRow kRows[] = {
    {"AcDbLine", &ReadLine, &ConvertModifiedLine},
    {"AcDbCircle", &ReadCircle, &modifiedCircle},
    {"AcDbPoint", &ReadPoint, &modifiedPoint},
    {"AcDbRay", &ReadRay, &modifiedRay},
    {"AcDbArc", &ReadArc, &modifiedArc},
    {"AcDbEllipse", &ReadEllipse, &modifiedEllipse},
    {"AcDbXline", &ReadInfiniteLine, &modifiedInfiniteLine},
    {"AcDbTextStyleTableRecord", &ReadTextStyle, &modifiedTextStyle},
    {"AcDbAttributeDefinition", &ReadAttributeDefinition, &modifiedAttributeDefinition},
    {"AcDbText", &ReadSimpleNote, &modifiedSimpleNote},
    {"AcDbMText", &ReadNote, &modifiedNote},
    {"AcDbBlockReference", &ReadBlockReference, &ConvertModifiedBlockInstance},
    {"AcDbRasterImage", &ReadPicture, &modifiedPicture, kFinishedByCustomAction},
    {"AcDbMline", &ReadRichLine, &modifiedRichLine},
    {"AcDbFcf", &ReadTolerance, &modifiedTolerance},
    {"AcDbTable", &ReadTable, &ConvertModifiedTable},
    {"AcDbRegion", nullptr, nullptr, kFinishedByCustomAction},
    {"AcDbShape", &ReadShape, &modifiedShape},
    {"AcDbFace", &ReadFace, &modifiedFace},
    {"AcDbLeader", &ReadLeader, &modifiedLeader},
    {"AcDb3dPolyline", &ReadPolyline3D, &modifiedPolyline3D},
    {"AcDbPolygonMesh", &ReadPolygonMesh, &modifiedPolygonMesh},
    {"AcDbSolid", &ReadSolid, &modifiedSolid},
    {"AcDbSpline", &ReadSpline, &modifiedSpline},
    {"AcDbOle2Frame", nullptr, &modifiedEmbeddedObject, kFinishedByCustomAction},
    {"AcDbPolyline", &ReadPolyline, &modifiedPolyline, kFinishedByCustomAction},
    {"AcDb2dPolyline", nullptr, nullptr, kOnlyNamed},
    {"AcDbHatch", &ReadHatch, &ConvertModifiedHatch, kFinishedByCustomAction},
    {"AcDbPolyFaceMesh", &ReadPolyFaceMesh, &modifiedPolyFaceMesh},
    {"AcDbBlockTableRecord", &ReadBlockDefinition, &ConvertModifiedBlockDefinition},
    {"AcDbGroup", &ReadGroup, &modifiedGroup},
    // Of a changed view only its removal is converted.
    {"AcDbViewTableRecord", nullptr, nullptr, kFinishedByCustomAction},
    {"AcDbAlignedDimension", &ReadAlignedDimension, &modifiedDimension, kDimension},
    {"AcDb2LineAngularDimension", &Read2LineAngularDimension, &modifiedDimension, kDimension},
    {"AcDb3PointAngularDimension", &Read3PointAngularDimension, &modifiedDimension, kDimension},
    {"AcDbArcDimension", &ReadArcLengthDimension, &modifiedArcLengthDimension, kDimension},
    {"AcDbDiametricDimension", &ReadDiameterDimension, &modifiedDimension, kDimension},
    {"AcDbOrdinateDimension", &ReadOrdinateDimension, &modifiedDimension, kDimension},
    {"AcDbRadialDimension", &ReadRadialDimension, &modifiedDimension, kDimension},
    {"AcDbRadialDimensionLarge", &ReadJoggedDimension, &modifiedJoggedDimension, kDimension},
    {"AcDbRotatedDimension", &ReadRotatedDimension, &modifiedDimension, kDimension},
    {"AcDbTableStyle", &ReadTableStyle, &modifiedTableStyle},
    // No statement makes a style with its settings.
    {"AcDbDimStyleTableRecord", &ReadDimensionStyle, &modifiedDimensionStyle, kSetWhenAdded},
    {"AcDbLinetypeTableRecord", &ReadLineStyle},
    {"AcDbMlineStyle", &ReadRichLineStyle, &modifiedRichLineStyle},
    {"AcDbViewport", &ReadViewport, &modifiedViewport},
    {"AcDbTrace", &ReadTrace, &modifiedTrace},
    {"AcDbLayerTableRecord", &ReadLayer, &ConvertModifiedLayer},
    {"AcDbLayout", nullptr, &ConvertModifiedSheet},
    {"AcDbViewportTableRecord", nullptr, &modifiedViewTile},
    {"AcDbArcAlignedText", &ReadCurvedText, &modifiedCurvedText},
    // Tables of records: their objects are taken, but have no variable.
    {"AcDbViewTable"},
    {"AcDbLayerTable"},
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

bool IsSupportedClass(const OdRxClass* cls)
{
    const ClassRow* const row = FindClass(cls);
    return row && !row->has(kOnlyNamed);
}

bool IsDimensionClass(const OdRxClass* cls)
{
    const ClassRow* const row = FindClass(cls);
    return row && row->has(kDimension);
}
