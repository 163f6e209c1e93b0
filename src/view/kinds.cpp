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
};

constexpr Kind kinds[] = {
    {"AcDbLine", drawLine},
    {"AcDbCircle", drawCircle},
    {"AcDbArc", drawArc},
    {"AcDbEllipse", drawEllipse},
    {"AcDbPoint", drawPoint},
    {"AcDbRay", drawRay},
    {"AcDbXline", drawXLine},
    {"AcDbPolyline", drawPolyline},
    {"AcDb3dPolyline", drawSpacePolyline},

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

} // namespace

Drawer drawerOf(const OdRxClass& cls)
{
    static const auto drawers = [] {
        std::unordered_map<const OdRxClass*, Drawer> found;
        for (const Kind& kind : kinds)
            found.emplace(oddbClassByName(kind.className), kind.drawer);
        return found;
    }();
    const auto found = drawers.find(&cls);
    return found == drawers.end() ? nullptr : found->second;
}

} // namespace inkmacro::view
