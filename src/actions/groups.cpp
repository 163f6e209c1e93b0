// Custom actions that put objects into a group or take them out.

#include "targets/groups.h"
#include "actions/handedVariable.h"
#include "actions/handlers.h"
#include "host/db/OdDbClasses.h"
#include "statements/losses.h"

static const ActionEntry* FindGroup(Conversion& conversion, const CFxString& groupName, OdDbHandle& handle)
{
    if (!ACTIVE_DOCUMENT)
        return nullptr;
    const OdDbObjectPtr object = ACTIVE_DOCUMENT->GetDatabase()->getGroupDictionaryId().openObject();
    const auto groups = odrxCast<OdDbDictionary>(object.get());
    if (!groups)
        return nullptr;
    const OdDbObjectId id = groups->getAt(groupName);
    handle = id.getHandle();
    return id.isNull() ? nullptr : conversion.names().FindEntry(handle);
}

using EmitGroupChange = Statement (*)(Writer&, const std::vector<CFxString>&, const CFxString&);

static void ConvertGroupChange(Conversion& conversion, const CFxCustomAction& action, EmitGroupChange change,
                               Statement& text)
{
    inkmacro::takeVariable(conversion.writer, text, inkmacro::HandedVariable::AppendedTo);
    std::vector<CFxString> names = conversion.names().ResolveVariables(action.GetData(0), action.GetData(1));
    conversion.names().DropUnnamed(names);
    OdDbHandle handle;
    const ActionEntry* const group = FindGroup(conversion, action.GetData(2).GetString(), handle);
    if (!group) {
        NoteLoss(ActionTitle(&action), "the macro does not have the group");
        return;
    }
    CFxString name;
    text += conversion.names().EmitObjectVariable(handle, group->cls, name);
    text += change(conversion.writer, names, name);
}

std::int32_t ConvertActionGroupAdd(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    ConvertGroupChange(conversion, action, &EmitGroupAddEntities, text);
    return kFxSuccess;
}

std::int32_t ConvertActionGroupRemove(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    ConvertGroupChange(conversion, action, &EmitGroupRemoveEntities, text);
    return kFxSuccess;
}
