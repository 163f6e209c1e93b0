// Custom actions that call an operation of objects: erase, activate, join, explode, and the value of an attribute.

#include "actions/handedVariable.h"
#include "host/db/OdDbClasses.h"
#include "module/CFxConverterIWAPIImpl.h"
#include "objects/CFxConverterIWAPIObject.h"
#include "objects/targets/blockAttributes.h"
#include "objects/targets/references.h"
#include "statements/arrays.h"
#include "statements/losses.h"
#include "targets/customActions.h"
#include "targets/variables.h"

using inkmacro::HandedVariable;
using inkmacro::takeVariable;

static void loseObject(const OdRxClass* cls, const OdDbHandle& handle)
{
    NoteLoss(ObjectTitle(cls, handle), "objects of its class have no statements");
}

/// A note that a leader owns is reached through its leader, which also declares the note's variable. So the statement
/// that fetches the note itself is dropped, and the leader's is not.
QString CFxConverterIWAPIImpl::NoteOfLeader(const OdDbHandle& note, const OdRxClass* noteClass,
                                            const OdDbObjectId& leader, CFxString& name)
{
    const OdDbObjectPtr object = leader.openObject();
    CFxString leaderName;
    Objects().EmitObjectVariable(note, noteClass, name);
    QString text = Objects().EmitObjectVariable(leader.getHandle(), object->isA(), leaderName);
    return text += EmitGetNoteAnnotation(writer, name, leaderName);
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionErase(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    takeVariable(writer, text, HandedVariable::AppendedTo);
    const std::vector<OdDbHandle>& objects = action->GetData(0).GetHandleArray();
    const std::vector<const OdRxClass*>& classes = action->GetData(1).GetClassArray();
    std::vector<CFxString> names(objects.size());
    for (std::size_t i = 0; i < objects.size(); ++i) {
        const OdRxClass* const cls = ClassAt(classes, i);
        CFxString second;
        if (GetApiTypeName(cls, names[i], second) != kFxSuccess) {
            loseObject(cls, objects[i]);
            continue;
        }
        OdDbObjectId leader;
        if (cls == OdDbMText::desc())
            GetNoteLeader(leader, objects[i]);
        CFxString name;
        text += leader.isNull() ? Objects().EmitObjectVariable(objects[i], cls, name)
                                : NoteOfLeader(objects[i], cls, leader, name);
        if (!name.isEmpty())
            names[i] = name;
    }
    text += EmitEraseEntities(writer, names);
    return kFxSuccess;
}

/// The first statement is always lost: all that remains of it is that its counter has risen.
std::int32_t CFxConverterIWAPIImpl::ConvertActionAttributeValue(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    CFxString name;
    ResolveVariable(action->GetData(0).GetHandle(), action->GetData(1).GetClass(), name);
    takeVariable(writer, text, name.isEmpty() ? HandedVariable::Kept : HandedVariable::Replaced);
    if (name.isEmpty())
        return PassOver(action, "the macro does not have the block");
    EmitGetLayer(writer, name, "0");
    text =
        EmitBlockAttributeValue(writer, name, "Value", action->GetData(2).GetString(), action->GetData(3).GetString());
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionActivate(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    takeVariable(writer, text, HandedVariable::AppendedTo);
    const std::vector<OdDbHandle>& objects = action->GetData(0).GetHandleArray();
    const OdRxClass* const cls = ClassAt(action->GetData(1).GetClassArray(), 0);
    if (objects.empty())
        throw OdError_InvalidIndex();
    CFxString name;
    text += Objects().EmitObjectVariable(objects.front(), cls, name);
    if (name.isEmpty())
        NoteFault(inkmacro::emptyPlace);
    if (name.isEmpty() && writer.repairs)
        return PassOver(action, "objects of that class have no statements");
    text += EmitActivate(writer, name);
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionJoin(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    takeVariable(writer, text, HandedVariable::Replaced);
    const auto variable = [&](std::int32_t index, CFxString& name) {
        const OdRxClass* const cls = action->GetData(index + 1).GetClass();
        return Objects().EmitObjectVariable(action->GetData(index).GetHandle(), cls, name);
    };
    CFxString name;
    CFxString other;
    text += variable(0, name);
    text += variable(2, other);
    if (name.isEmpty() || other.isEmpty()) {
        NoteFault(inkmacro::emptyPlace);
        if (writer.repairs) {
            text.clear();
            return PassOver(action, "objects of that class have no statements");
        }
    }
    text += EmitJoin(writer, name, other);
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionExplode(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    takeVariable(writer, text, HandedVariable::Replaced);
    const std::vector<OdDbHandle>& objects = action->GetData(0).GetHandleArray();
    const std::vector<const OdRxClass*>& classes = action->GetData(1).GetClassArray();
    for (std::size_t i = 0; i < objects.size(); ++i) {
        const OdRxClass* const cls = ClassAt(classes, i);
        CFxString type;
        CFxString second;
        if (GetApiTypeName(cls, type, second) != kFxSuccess) {
            loseObject(cls, objects[i]);
            continue;
        }
        CFxString name;
        text += Objects().EmitObjectVariable(objects[i], cls, name);
        text += EmitExplode(writer, name);
    }
    return kFxSuccess;
}
