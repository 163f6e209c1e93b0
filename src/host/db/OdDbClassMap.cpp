#include "host/db/OdDbClassMap.h"

#include <QHash>

#include <algorithm>
#include <array>

namespace {

std::span<const OdDbField> noFields()
{
    return {};
}

template<class T>
OdDbObjectPtr make(OdRxClass* cls)
{
    return odrxNew<T>(cls);
}

constexpr const char* kObject = "AcDbObject";
constexpr const char* kEntity = "AcDbEntity";
constexpr const char* kDimension = "AcDbDimension";
constexpr const char* kRecord = "AcDbSymbolTableRecord";
constexpr const char* kTable = "AcDbSymbolTable";

constexpr OdDbClassRow abstractClass(const char* name, const char* parent,
                                     std::span<const OdDbField> (*fields)() = noFields)
{
    return {name, parent, 0, fields, nullptr};
}

/// A class without data of its own. `T` is the type of its objects, which holds the data of its parents.
template<class T>
constexpr OdDbClassRow plain(const char* name, const char* parent, int code = 0)
{
    return {name, parent, code, noFields, make<T>};
}

constexpr OdDbClassRow entity(const char* name, int code = 0)
{
    return plain<OdDbEntity>(name, kEntity, code);
}

constexpr OdDbClassRow record(const char* name, int code)
{
    return plain<OdDbSymbolTableRecord>(name, kRecord, code);
}

template<class T>
constexpr OdDbClassRow withData(const char* name, const char* parent, int code = 0)
{
    return {name, parent, code, T::fields, make<T>};
}

const std::array kRows{
    abstractClass(kObject, nullptr, OdDbObject::fields),
    abstractClass(kEntity, kObject, OdDbEntity::fields),
    abstractClass(kDimension, kEntity, OdDbDimension::fields),
    abstractClass(kTable, kObject),
    abstractClass(kRecord, kObject, OdDbSymbolTableRecord::fields),
    abstractClass("AcDbPlotSettings", kObject, OdDbPlotSettings::fields),

    withData<OdDbLine>("AcDbLine", kEntity, 19),
    withData<OdDbCircle>("AcDbCircle", kEntity, 18),
    entity("AcDbPoint", 27),
    entity("AcDbRay", 40),
    withData<OdDbArc>("AcDbArc", kEntity, 17),
    withData<OdDbEllipse>("AcDbEllipse", kEntity, 35),
    entity("AcDbXline", 41),
    entity("AcDbText", 1),
    plain<OdDbEntity>("AcDbAttributeDefinition", "AcDbText", 3),
    withData<OdDbAttribute>("AcDbAttribute", "AcDbText"),
    withData<OdDbMText>("AcDbMText", kEntity, 44),
    withData<OdDbBlockReference>("AcDbBlockReference", kEntity, 7),
    withData<OdDbTable>("AcDbTable", "AcDbBlockReference"),
    plain<OdDbRasterImage>("AcDbRasterImage", kEntity),
    withData<OdDbAlignedDimension>("AcDbAlignedDimension", kDimension, 22),
    withData<OdDb2LineAngularDimension>("AcDb2LineAngularDimension", kDimension, 24),
    withData<OdDb3PointAngularDimension>("AcDb3PointAngularDimension", kDimension, 23),
    withData<OdDbArcDimension>("AcDbArcDimension", kDimension),
    withData<OdDbDiametricDimension>("AcDbDiametricDimension", kDimension, 26),
    withData<OdDbOrdinateDimension>("AcDbOrdinateDimension", kDimension, 20),
    withData<OdDbRadialDimension>("AcDbRadialDimension", kDimension, 25),
    withData<OdDbRadialDimensionLarge>("AcDbRadialDimensionLarge", kDimension),
    withData<OdDbRotatedDimension>("AcDbRotatedDimension", kDimension, 21),
    withData<OdDbMline>("AcDbMline", kEntity, 47),
    withData<OdDbFace>("AcDbFace", kEntity, 28),
    withData<OdDbLeader>("AcDbLeader", kEntity, 45),
    entity("AcDb2dPolyline"),
    withData<OdDb3dPolyline>("AcDb3dPolyline", kEntity, 16),
    withData<OdDbPolygonMesh>("AcDbPolygonMesh", kEntity, 30),
    withData<OdDbSolid>("AcDbSolid", kEntity, 31),
    withData<OdDbFcf>("AcDbFcf", kEntity, 46),
    entity("AcDbSpline", 36),
    entity("AcDbShape", 33),
    withData<OdDbRegion>("AcDbRegion", kEntity),
    withData<OdDbHatch>("AcDbHatch", kEntity, 78),
    withData<OdDbPolyline>("AcDbPolyline", kEntity, 77),
    entity("AcDbOle2Frame", 74),
    withData<OdDbPolyFaceMesh>("AcDbPolyFaceMesh", kEntity, 29),
    withData<OdDbViewport>("AcDbViewport", kEntity, 34),
    withData<OdDbTrace>("AcDbTrace", kEntity, 32),
    withData<OdDbArcAlignedText>("AcDbArcAlignedText", kEntity),

    withData<OdDbTextStyleTableRecord>("AcDbTextStyleTableRecord", kRecord, 53),
    withData<OdDbBlockTableRecord>("AcDbBlockTableRecord", kRecord, 49),
    record("AcDbDimStyleTableRecord", 69),
    withData<OdDbLinetypeTableRecord>("AcDbLinetypeTableRecord", kRecord, 57),
    withData<OdDbViewTableRecord>("AcDbViewTableRecord", kRecord, 61),
    withData<OdDbLayerTableRecord>("AcDbLayerTableRecord", kRecord, 51),
    plain<OdDbRegAppTableRecord>("AcDbRegAppTableRecord", kRecord, 67),
    record("AcDbViewportTableRecord", 65),
    plain<OdDbObject>("AcDbViewTable", kTable),
    plain<OdDbObject>("AcDbLayerTable", kTable),
    plain<OdDbTableStyle>("AcDbTableStyle", kObject),
    withData<OdDbMlineStyle>("AcDbMlineStyle", kObject, 73),
    withData<OdDbGroup>("AcDbGroup", kObject, 72),
    withData<OdDbDimAssoc>("AcDbDimAssoc", kObject),
    withData<OdDbDictionary>("AcDbDictionary", kObject),
    withData<OdDbLayout>("AcDbLayout", "AcDbPlotSettings", 82),
};

/// Descriptors of the table's classes, made together so that every parent is known before its children.
const QHash<OdString, const OdDbClassRow*>& rowsByName()
{
    static const QHash<OdString, const OdDbClassRow*> rows = [] {
        QHash<OdString, const OdDbClassRow*> byName;
        for (const OdDbClassRow& row : kRows) {
            OdRxClass::define(row.name, row.parent ? OdRxClass::find(row.parent) : OdRxObject::desc());
            byName.insert(row.name, &row);
        }
        return byName;
    }();
    return rows;
}

OdRxClass* known(const char* name)
{
    rowsByName();
    return OdRxClass::find(name);
}

} // namespace

std::span<const OdDbClassRow> oddbClassRows()
{
    return kRows;
}

const OdDbClassRow* oddbFindClassRow(const OdString& name)
{
    return rowsByName().value(name, nullptr);
}

std::vector<const OdDbField*> oddbAllFields(const OdDbClassRow& row)
{
    std::vector<const OdDbField*> all;
    if (row.parent)
        all = oddbAllFields(*oddbFindClassRow(row.parent));
    for (const OdDbField& field : row.fields())
        all.push_back(&field);
    return all;
}

OdRxClass* oddbClassByName(const OdString& name)
{
    rowsByName();
    return OdRxClass::define(name, OdRxObject::desc());
}

OdRxClass* oddbDwgClassMapDesc(int code)
{
    static const QHash<int, OdRxClass*> byCode = [] {
        QHash<int, OdRxClass*> classes;
        for (const OdDbClassRow& row : kRows)
            if (row.code)
                classes.insert(row.code, known(row.name));
        return classes;
    }();
    return byCode.value(code, nullptr);
}

#define INKHOST_DESC(Name)                                                                                             \
    OdRxClass* OdDb##Name::desc()                                                                                      \
    {                                                                                                                  \
        static OdRxClass* const descriptor = known("AcDb" #Name);                                                      \
        return descriptor;                                                                                             \
    }

INKHOST_DESC(Object)
INKHOST_DESC(Entity)
INKHOST_DESC(Line)
INKHOST_DESC(Circle)
INKHOST_DESC(Arc)
INKHOST_DESC(Ellipse)
INKHOST_DESC(Polyline)
INKHOST_DESC(3dPolyline)
INKHOST_DESC(PolygonMesh)
INKHOST_DESC(PolyFaceMesh)
INKHOST_DESC(Solid)
INKHOST_DESC(Trace)
INKHOST_DESC(Face)
INKHOST_DESC(Region)
INKHOST_DESC(Hatch)
INKHOST_DESC(Viewport)
INKHOST_DESC(Attribute)
INKHOST_DESC(Dimension)
INKHOST_DESC(AlignedDimension)
INKHOST_DESC(RotatedDimension)
INKHOST_DESC(2LineAngularDimension)
INKHOST_DESC(3PointAngularDimension)
INKHOST_DESC(ArcDimension)
INKHOST_DESC(OrdinateDimension)
INKHOST_DESC(DiametricDimension)
INKHOST_DESC(RadialDimension)
INKHOST_DESC(RadialDimensionLarge)
INKHOST_DESC(RasterImage)
INKHOST_DESC(Mline)
INKHOST_DESC(BlockReference)
INKHOST_DESC(Table)
INKHOST_DESC(MText)
INKHOST_DESC(Leader)
INKHOST_DESC(Fcf)
INKHOST_DESC(ArcAlignedText)
INKHOST_DESC(SymbolTable)
INKHOST_DESC(SymbolTableRecord)
INKHOST_DESC(RegAppTableRecord)
INKHOST_DESC(LayerTableRecord)
INKHOST_DESC(LinetypeTableRecord)
INKHOST_DESC(TextStyleTableRecord)
INKHOST_DESC(ViewTableRecord)
INKHOST_DESC(BlockTableRecord)
INKHOST_DESC(TableStyle)
INKHOST_DESC(MlineStyle)
INKHOST_DESC(Group)
INKHOST_DESC(DimAssoc)
INKHOST_DESC(Dictionary)
INKHOST_DESC(PlotSettings)
INKHOST_DESC(Layout)
