// Custom actions that put objects into a group or take them out.

#include "targets/groups.h"
#include "actions/handedVariable.h"
#include "host/db/OdDbClasses.h"
#include "module/CFxConverterIWAPIImpl.h"
#include "objects/CFxConverterIWAPIObject.h"
#include "statements/losses.h"

const ActionEntry* CFxConverterIWAPIImpl::FindGroup(const CFxString& groupName, OdDbHandle& handle) const
{
    if (!ACTIVE_DOCUMENT)
        return nullptr;
    const OdDbObjectPtr object = ACTIVE_DOCUMENT->GetDatabase()->getGroupDictionaryId().openObject();
    const auto groups = odrxCast<OdDbDictionary>(object.get());
    if (!groups)
        return nullptr;
    const OdDbObjectId id = groups->getAt(groupName);
    handle = id.getHandle();
    return id.isNull() ? nullptr : FindEntry(handle);
}

void CFxConverterIWAPIImpl::ConvertGroupChange(const CFxCustomAction& action, EmitGroupChange change, QString& text)
{
    inkmacro::takeVariable(writer, text, inkmacro::HandedVariable::AppendedTo);
    std::vector<CFxString> names;
    ResolveVariables(names, action.GetData(0), action.GetData(1));
    if (writer.repairs)
        std::erase_if(names, [](const CFxString& name) { return name.isEmpty(); });
    OdDbHandle handle;
    const ActionEntry* const group = FindGroup(action.GetData(2).GetString(), handle);
    if (!group) {
        NoteLoss(ActionTitle(&action), "the macro does not have the group");
        return;
    }
    CFxString name;
    text += Objects().EmitObjectVariable(handle, group->cls, name);
    text += change(writer, names, name);
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionGroupAdd(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    ConvertGroupChange(*action, &EmitGroupAddEntities, text);
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionGroupRemove(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    ConvertGroupChange(*action, &EmitGroupRemoveEntities, text);
    return kFxSuccess;
}
