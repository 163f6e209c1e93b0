// Custom actions about which objects there are: erased ones, and the members of groups.

#include "actions/CustomActionKind.h"
#include "frame/CFxConverterIWAPIImpl.h"
#include "host/db/OdDbClasses.h"
#include "host/kernel/CFxServices.h"
#include "objects/CFxConverterIWAPIObject.h"
#include "objects/targets/references.h"
#include "targets/customActions.h"
#include "targets/groups.h"

/// A note that a leader owns is reached through its leader, which also declares the note's variable. So the statement
/// that fetches the note itself is dropped, and the leader's is not.
QString CFxConverterIWAPIImpl::NoteOfLeader(const OdDbHandle& note, const OdRxClass* noteClass,
                                            const OdDbObjectId& leader, CFxString& name)
{
    const OdDbObjectPtr object = leader.openObject();
    CFxString leaderName;
    Objects().ObjectVariable(note, noteClass, name);
    QString text = Objects().ObjectVariable(leader.getHandle(), object->isA(), leaderName);
    return text += EmitGetNoteAnnotation(writer, name, leaderName);
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionErase(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    if (action->GetKind() != kErase)
        return kFxFailure;
    const std::vector<OdDbHandle>& objects = action->GetData(0).GetHandleArray();
    const std::vector<const OdRxClass*>& classes = action->GetData(1).GetClassArray();
    if (classes.size() < objects.size())
        throw OdError_InvalidIndex();

    std::vector<CFxString> names(objects.size());
    for (std::size_t i = 0; i < objects.size(); ++i) {
        CFxString second;
        if (GetApiTypeName(classes[i], names[i], second) != kFxSuccess)
            continue;
        const OdRxClass* const cls = classes[i];
        OdDbObjectId leader;
        if (cls == OdDbMText::desc())
            GetNoteLeader(leader, objects[i]);
        CFxString name;
        text += leader.isNull() ? Objects().ObjectVariable(objects[i], cls, name)
                                : NoteOfLeader(objects[i], cls, leader, name);
        if (!name.isEmpty())
            names[i] = name;
    }
    text += EmitEraseEntities(writer, names);
    return kFxSuccess;
}

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
    std::vector<CFxString> names;
    ResolveVariables(names, action.GetData(0), action.GetData(1));
    OdDbHandle handle;
    const ActionEntry* const group = FindGroup(action.GetData(2).GetString(), handle);
    if (!group)
        return;
    CFxString name;
    text += Objects().ObjectVariable(handle, group->cls, name);
    text += change(writer, names, name);
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionGroupAdd(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    if (action->GetKind() != kGroupAdd)
        return kFxFailure;
    ConvertGroupChange(*action, &EmitGroupAddEntities, text);
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionGroupRemove(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    if (action->GetKind() != kGroupRemove)
        return kFxFailure;
    ConvertGroupChange(*action, &EmitGroupRemoveEntities, text);
    return kFxSuccess;
}
