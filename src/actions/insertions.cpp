// Custom actions that insert an object: embedded objects, regions, viewports. The command has made the object, and its
// action is handed the object's variable.

#include "actions/handedVariable.h"
#include "module/CFxConverterIWAPIImpl.h"
#include "objects/CFxConverterIWAPIObject.h"
#include "objects/targets/regions.h"
#include "statements/counters.h"
#include "statements/losses.h"
#include "statements/wording.h"
#include "targets/customActions.h"

#include <QStringList>

using inkmacro::HandedVariable;
using inkmacro::takeVariable;

std::int32_t CFxConverterIWAPIImpl::ConvertActionEmbeddedObject(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    const CFxString name = VariableOfMade(takeVariable(writer, text, HandedVariable::Replaced), "AcDbOle2Frame");
    const int flags = action->GetData(0).GetInt();
    const CFxString& path = action->GetData(1).GetString();
    if (path.isEmpty())
        return kFxFailure;
    text =
        EmitInsertEmbeddedObject(writer, name, inkmacro::doubleBackslashes(path), (flags & 1) != 0, (flags & 2) != 0);
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionRegion(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    const CFxString name = VariableOfMade(takeVariable(writer, text, HandedVariable::Replaced), "AcDbRegion");
    std::vector<CFxString> names;
    ResolveVariables(names, action->GetData(0), action->GetData(1));
    QStringList curves;
    for (const CFxString& curve : names)
        curves.append(curve);
    text = EmitInsertRegion(writer, name, curves, ++processCounters.regions);
    return kFxSuccess;
}

bool CFxConverterIWAPIImpl::NameInsertedObject(const CFxCustomAction& action, CFxString& name)
{
    if (!name.isEmpty())
        return true;
    const OdDbHandle handle = action.GetData(3).GetHandle();
    const OdRxClass* const cls = action.GetData(4).GetClass();
    if (!cls || !IsSupportedClass(cls))
        return false;
    RegisterObject(handle, cls);
    ResolveVariable(handle, cls, name);
    return true;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionViewport(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    CFxString name = takeVariable(writer, text, HandedVariable::Replaced);
    const OdArray<OdGePoint3d>& polygon = action->GetData(0).GetPointArray();
    if (!NameInsertedObject(*action, name))
        return PassOver(action, "objects of that class have no statements");
    text = EmitInsertViewport(writer, name, action->GetData(5).GetString(), polygon);
    return kFxSuccess;
}
