#include "view/kinds.h"

#include "host/db/OdDbClassMap.h"
#include "view/drawers.h"

#include <unordered_map>

namespace inkmacro::view {

namespace {

struct Kind
{
    const char* className;
    Drawer drawer;
    bool isCurve = false;
};

constexpr Kind kinds[] = {
    {"AcDbLine", drawLine, true},
    {"AcDbCircle", drawCircle, true},
    {"AcDbArc", drawArc, true},
    {"AcDbEllipse", drawEllipse, true},
    {"AcDbPoint", drawPoint},
    {"AcDbRay", drawRay},
    {"AcDbXline", drawXLine},
    {"AcDbPolyline", drawPolyline, true},
    {"AcDb3dPolyline", drawPolyline, true},
    {"AcDbSpline", drawSpline, true},
    {"AcDbMline", drawRichLine},
    {"AcDbSolid", drawSolid},
    {"AcDbTrace", drawSolid},
    {"AcDbFace", drawFace},
    {"AcDbPolygonMesh", drawPolygonMesh},
    {"AcDbPolyFaceMesh", drawPolyFaceMesh},
    {"AcDbRegion", drawRegion},
    {"AcDbBlockReference", drawBlockReference},
    {"AcDbRasterImage", drawImage},
    {"AcDbOle2Frame", drawEmbedded},
    {"AcDbViewport", drawViewport},
    {"AcDbShape", drawShape},

    {"AcDbText", drawText},
    {"AcDbMText", drawNote},
    {"AcDbAttribute", drawAttribute},
    {"AcDbAttributeDefinition", drawAttribute},
    {"AcDbArcAlignedText", drawArcText},

    {"AcDbAlignedDimension", drawAlignedDimension},
    {"AcDbRotatedDimension", drawRotatedDimension},
    {"AcDbOrdinateDimension", drawOrdinateDimension},
    {"AcDb2LineAngularDimension", drawTwoLineAngle},
    {"AcDb3PointAngularDimension", drawThreePointAngle},
    {"AcDbArcDimension", drawArcLength},
    {"AcDbDiametricDimension", drawDiameter},
    {"AcDbRadialDimension", drawRadius},
    {"AcDbRadialDimensionLarge", drawJogged},

    {"AcDbLeader", drawLeader},
    {"AcDbFcf", drawTolerance},
    {"AcDbHatch", drawHatch},
    {"AcDbTable", drawTable},
};

const Kind* kindOf(const OdRxClass& cls)
{
    static const auto rows = [] {
        std::unordered_map<const OdRxClass*, const Kind*> found;
        for (const Kind& kind : kinds)
            found.emplace(oddbClassByName(kind.className), &kind);
        return found;
    }();
    const auto found = rows.find(&cls);
    return found == rows.end() ? nullptr : found->second;
}

} // namespace

Drawer drawerOf(const OdRxClass& cls)
{
    const Kind* const kind = kindOf(cls);
    return kind ? kind->drawer : nullptr;
}

Drawer curveDrawerOf(const OdRxClass& cls)
{
    const Kind* const kind = kindOf(cls);
    return kind && kind->isCurve ? kind->drawer : nullptr;
}

} // namespace inkmacro::view
