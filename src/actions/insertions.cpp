// Custom actions that insert an object: embedded objects, regions, viewports, hatches. The command has made the object,
// and its action is handed the object's variable.

#include "actions/handedVariable.h"
#include "actions/handlers.h"
#include "objects/classTable.h"
#include "objects/hatches.h"
#include "objects/targets/hatchInsertions.h"
#include "objects/targets/regions.h"
#include "statements/counters.h"
#include "statements/losses.h"
#include "statements/wording.h"
#include "targets/customActions.h"
#include "targets/hatches.h"

#include <QStringList>

using inkmacro::HandedVariable;
using inkmacro::takeVariable;

std::int32_t ConvertActionEmbeddedObject(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    const CFxString name =
        conversion.VariableOfMade(takeVariable(conversion.writer, text, HandedVariable::Replaced), "AcDbOle2Frame");
    const int flags = action.GetData(0).GetInt();
    const CFxString& path = action.GetData(1).GetString();
    if (path.isEmpty())
        return kFxFailure;
    text = EmitInsertEmbeddedObject(conversion.writer, name, inkmacro::doubleBackslashes(path), (flags & 1) != 0,
                                    (flags & 2) != 0);
    return kFxSuccess;
}

std::int32_t ConvertActionRegion(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    const CFxString name =
        conversion.VariableOfMade(takeVariable(conversion.writer, text, HandedVariable::Replaced), "AcDbRegion");
    std::vector<CFxString> curves = conversion.names().ResolveVariables(action.GetData(0), action.GetData(1));
    conversion.names().DropUnnamed(curves);
    if (curves.empty() && !action.GetData(0).GetHandleArray().empty() && conversion.writer.repairs) {
        conversion.names().SetUnmade(conversion.lastFinished);
        return PassOver(action, "the macro has none of its curves");
    }
    text = EmitInsertRegion(conversion.writer, name, {curves.begin(), curves.end()}, ++processCounters.regions);
    return kFxSuccess;
}

bool NameInsertedObject(Conversion& conversion, const CFxCustomAction& action, CFxString& name)
{
    if (!name.isEmpty())
        return true;
    const OdDbHandle handle = action.GetData(3).GetHandle();
    const OdRxClass* const cls = action.GetData(4).GetClass();
    if (!cls || !IsSupportedClass(cls))
        return false;
    conversion.names().RegisterObject(handle, cls);
    conversion.names().ResolveVariable(handle, cls, name);
    return true;
}

std::int32_t ConvertActionViewport(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    CFxString name = takeVariable(conversion.writer, text, HandedVariable::Replaced);
    const OdArray<OdGePoint3d>& polygon = action.GetData(0).GetPointArray();
    if (!NameInsertedObject(conversion, action, name))
        return PassOver(action, "objects of that class have no statements");
    text = EmitInsertViewport(conversion.writer, name, action.GetData(5).GetString(), polygon);
    return kFxSuccess;
}

namespace {

/// A polyline of its own is the boundary.
Statement hatchByBulges(Writer& writer, const CFxString& hatch, const HatchPattern& pattern,
                        const CFxCustomAction& action)
{
    const CFxString polyline = HatchPolylineName(writer, processCounters.hatchPolylines);
    Statement text = EmitHatchBoundaryPolyline(writer, polyline, action.GetData(8).Get2dPointArray(), true);
    text += EmitSetSegmentAngles(writer, polyline, action.GetData(7).GetDoubleArray());
    ++processCounters.hatchPolylines;
    return text + EmitHatchByPolyline(writer, hatch, polyline, pattern, action.GetData(9).GetBool());
}

/// The points are one more than the counts add up to: the first stands at the end once more, whatever the number of
/// loops. A boundary without a loop writes nothing.
Statement hatchByBoundary(Writer& writer, const CFxString& hatch, const HatchPattern& pattern,
                          const CFxCustomAction& action)
{
    const OdArray<int>& counts = action.GetData(7).GetIntArray();
    if (counts.isEmpty()) {
        NoteLoss(ActionTitle(&action), "its boundary has no loop");
        return {};
    }
    OdArray<OdGePoint2d> points = action.GetData(8).Get2dPointArray();
    points.append(points[0]);
    return EmitInsertHatchByBoundary(writer, hatch, counts, points, pattern);
}

HatchGradient gradientAt(const CFxCustomAction& action, std::int32_t first)
{
    return {action.GetData(first).GetColor(), action.GetData(first + 1).GetColor(), action.GetData(first + 2).GetBool(),
            action.GetData(first + 3).GetDouble()};
}

} // namespace

/// Of the ways to make a hatch the first one that is set is taken; the last needs no mark.
std::int32_t ConvertActionInsertHatch(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    const CFxString handedOver = takeVariable(conversion.writer, text, HandedVariable::Replaced);
    const CFxString hatch = conversion.VariableOfMade(handedOver, "AcDbHatch");
    const HatchPattern pattern{action.GetData(0).GetString(), action.GetData(1).GetDouble(),
                               action.GetData(2).GetDouble()};
    const bool byInternalPoints = action.GetData(3).GetBool();
    const bool byEntities = action.GetData(4).GetBool();
    const bool byBulges = action.GetData(5).GetBool();
    const bool hasGradient = action.GetData(6).GetBool();
    std::int32_t gradient = 9;
    if (byInternalPoints) {
        text = EmitInsertHatchByInternalPoints(conversion.writer, hatch, action.GetData(7).Get2dPointArray(), pattern);
        gradient = 8;
    } else if (byEntities) {
        text = EmitInsertHatchByEntities(conversion.writer, hatch,
                                         BoundaryObjects(conversion.names(), action.GetData(7).GetObjectIdArray()),
                                         pattern, action.GetData(8).GetBool());
    } else if (byBulges) {
        text = hatchByBulges(conversion.writer, hatch, pattern, action);
        gradient = 10;
    } else {
        text = hatchByBoundary(conversion.writer, hatch, pattern, action);
    }
    const bool inserts = !text.isEmpty();
    if (!inserts && !handedOver.isEmpty())
        conversion.names().SetUnmade(conversion.lastFinished);
    if (hasGradient && (inserts || conversion.names().NamesUnmade()))
        text += EmitHatchGradient(conversion.writer, hatch, gradientAt(action, gradient));
    if (inserts) {
        conversion.insertedHatches.insert(hatch); // not before it is sure that nothing fails
        text += conversion.TakeSettings(hatch);
    }
    return kFxSuccess;
}
