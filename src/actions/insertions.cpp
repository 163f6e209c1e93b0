// Custom actions that insert an object: embedded objects, regions, viewports. The command has made the object, and its
// action is handed the object's variable.

#include "actions/handedVariable.h"
#include "actions/handlers.h"
#include "objects/classTable.h"
#include "objects/targets/regions.h"
#include "statements/counters.h"
#include "statements/losses.h"
#include "statements/wording.h"
#include "targets/customActions.h"

#include <QStringList>

using inkmacro::HandedVariable;
using inkmacro::takeVariable;

std::int32_t ConvertActionEmbeddedObject(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    const CFxString name = conversion.names().VariableOfMade(
        takeVariable(conversion.writer, text, HandedVariable::Replaced), "AcDbOle2Frame");
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
    const CFxString name = conversion.names().VariableOfMade(
        takeVariable(conversion.writer, text, HandedVariable::Replaced), "AcDbRegion");
    std::vector<CFxString> curves = conversion.names().ResolveVariables(action.GetData(0), action.GetData(1));
    conversion.names().DropUnnamed(curves);
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
