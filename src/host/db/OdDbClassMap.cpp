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

constexpr OdDbClassRow plain(const char* name, const char* parent, int code = 0)
{
    return {name, parent, code, noFields, make<OdDbObject>};
}

constexpr OdDbClassRow abstractClass(const char* name, const char* parent)
{
    return {name, parent, 0, noFields, nullptr};
}

template<class T>
constexpr OdDbClassRow withData(const char* name, const char* parent, int code = 0)
{
    return {name, parent, code, T::fields, make<T>};
}

const std::array kRows{
    OdDbClassRow{kObject, nullptr, 0, OdDbObject::fields, nullptr},
    abstractClass(kEntity, kObject),
    abstractClass(kDimension, kEntity),
    abstractClass(kTable, kObject),
    abstractClass(kRecord, kObject),
    OdDbClassRow{"AcDbPlotSettings", kObject, 0, OdDbPlotSettings::fields, nullptr},

    plain("AcDbLine", kEntity, 19),
    plain("AcDbCircle", kEntity, 18),
    plain("AcDbPoint", kEntity, 27),
    plain("AcDbRay", kEntity, 40),
    plain("AcDbArc", kEntity, 17),
    plain("AcDbEllipse", kEntity, 35),
    plain("AcDbXline", kEntity, 41),
    plain("AcDbText", kEntity, 1),
    plain("AcDbAttributeDefinition", "AcDbText", 3),
    OdDbClassRow{"AcDbMText", kEntity, 44, noFields, make<OdDbMText>},
    plain("AcDbBlockReference", kEntity, 7),
    plain("AcDbTable", "AcDbBlockReference"),
    plain("AcDbRasterImage", kEntity),
    plain("AcDbAlignedDimension", kDimension, 22),
    plain("AcDb2LineAngularDimension", kDimension, 24),
    plain("AcDb3PointAngularDimension", kDimension, 23),
    plain("AcDbArcDimension", kDimension),
    plain("AcDbDiametricDimension", kDimension, 26),
    plain("AcDbOrdinateDimension", kDimension, 20),
    plain("AcDbRadialDimension", kDimension, 25),
    plain("AcDbRadialDimensionLarge", kDimension),
    plain("AcDbRotatedDimension", kDimension, 21),
    plain("AcDbMline", kEntity, 47),
    plain("AcDbFace", kEntity, 28),
    OdDbClassRow{"AcDbLeader", kEntity, 45, noFields, make<OdDbLeader>},
    plain("AcDb2dPolyline", kEntity),
    plain("AcDb3dPolyline", kEntity, 16),
    plain("AcDbPolygonMesh", kEntity, 30),
    plain("AcDbSolid", kEntity, 31),
    plain("AcDbFcf", kEntity, 46),
    plain("AcDbSpline", kEntity, 36),
    plain("AcDbShape", kEntity, 33),
    plain("AcDbRegion", kEntity),
    plain("AcDbHatch", kEntity, 78),
    plain("AcDbPolyline", kEntity, 77),
    plain("AcDbOle2Frame", kEntity, 74),
    plain("AcDbPolyFaceMesh", kEntity, 29),
    plain("AcDbViewport", kEntity, 34),
    plain("AcDbTrace", kEntity, 32),
    plain("AcDbArcAlignedText", kEntity),

    withData<OdDbTextStyleTableRecord>("AcDbTextStyleTableRecord", kRecord, 53),
    plain("AcDbBlockTableRecord", kRecord, 49),
    plain("AcDbDimStyleTableRecord", kRecord, 69),
    plain("AcDbLinetypeTableRecord", kRecord, 57),
    withData<OdDbViewTableRecord>("AcDbViewTableRecord", kRecord, 61),
    plain("AcDbLayerTableRecord", kRecord, 51),
    plain("AcDbViewportTableRecord", kRecord, 65),
    plain("AcDbViewTable", kTable),
    plain("AcDbLayerTable", kTable),
    plain("AcDbTableStyle", kObject),
    plain("AcDbMlineStyle", kObject, 73),
    plain("AcDbGroup", kObject, 72),
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

#define INKHOST_DESC(Class, name)                                                                                      \
    OdRxClass* Class::desc()                                                                                           \
    {                                                                                                                  \
        static OdRxClass* const descriptor = known(name);                                                              \
        return descriptor;                                                                                             \
    }

INKHOST_DESC(OdDbObject, kObject)
INKHOST_DESC(OdDbEntity, kEntity)
INKHOST_DESC(OdDbRasterImage, "AcDbRasterImage")
INKHOST_DESC(OdDbArcDimension, "AcDbArcDimension")
INKHOST_DESC(OdDbRadialDimensionLarge, "AcDbRadialDimensionLarge")
INKHOST_DESC(OdDbTable, "AcDbTable")
INKHOST_DESC(OdDbTableStyle, "AcDbTableStyle")
INKHOST_DESC(OdDbArcAlignedText, "AcDbArcAlignedText")
INKHOST_DESC(OdDbMText, "AcDbMText")
INKHOST_DESC(OdDbLeader, "AcDbLeader")
INKHOST_DESC(OdDbTextStyleTableRecord, "AcDbTextStyleTableRecord")
INKHOST_DESC(OdDbViewTableRecord, "AcDbViewTableRecord")
INKHOST_DESC(OdDbPlotSettings, "AcDbPlotSettings")
INKHOST_DESC(OdDbLayout, "AcDbLayout")
