// Custom actions that call an operation of objects: erase, activate, join, explode, the value of an attribute, and the
// clip boundary of an image.

#include "actions/handedVariable.h"
#include "actions/handlers.h"
#include "host/db/OdDbClasses.h"
#include "objects/entries.h"
#include "objects/targets/blocks.h"
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
static Statement NoteOfLeader(Conversion& conversion, const OdDbHandle& note, const OdRxClass* noteClass,
                              const OdDbObjectId& leader, CFxString& name)
{
    if (conversion.writer.repairs)
        return conversion.names().EmitNoteOfLeader(note, leader.getHandle(), name);
    const OdDbObjectPtr object = leader.openObject();
    CFxString leaderName;
    conversion.names().EmitObjectVariable(note, noteClass, name);
    Statement text = conversion.names().EmitObjectVariable(leader.getHandle(), object->isA(), leaderName);
    return text += EmitGetNoteAnnotation(conversion.writer, name, leaderName);
}

static const inkmacro::Fault kNotErasable{"EmitEraseEntities",
                                          {inkmacro::Target::Cpp, inkmacro::Target::CSharp,
                                           inkmacro::Target::JavaScript, inkmacro::Target::VbNet,
                                           inkmacro::Target::CppCom, inkmacro::Target::Vba},
                                          "a layer, a named view or a sheet has no property that erases it"};

/// A layer alone is taken away by its variable; one that the macro does not have yet is fetched by its name.
static Statement takeAway(Conversion& conversion, RecordedObject object)
{
    Names& names = conversion.names();
    if (names.IsUnmade(object.handle))
        return names.EmitObjectVariable(object.handle, object.cls, object.name);
    if (object.cls != OdDbLayerTableRecord::desc())
        return TakeAway(conversion.writer, object);
    const CFxString layer = LayerName(conversion, object.handle);
    const bool isKnown = names.FindEntry(object.handle);
    if (!isKnown && layer.isEmpty()) {
        NoteLoss(ObjectTitle(object.cls, object.handle), "the drawing does not have the layer");
        return {};
    }
    object.name = names.NameObject(object.handle, object.cls);
    const Statement fetch = isKnown ? Statement() : EmitGetLayer(conversion.writer, object.name, layer);
    return fetch + TakeAway(conversion.writer, object);
}

std::int32_t ConvertActionErase(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::AppendedTo);
    const std::vector<OdDbHandle>& objects = action.GetData(0).GetHandleArray();
    const std::vector<const OdRxClass*>& classes = action.GetData(1).GetClassArray();
    std::vector<CFxString> names(objects.size());
    Statement takenAway;
    for (std::size_t i = 0; i < objects.size(); ++i) {
        const OdRxClass* const cls = ClassAt(classes, i);
        CFxString type;
        CFxString second;
        if (GetApiTypeName(cls, type, second) != kFxSuccess) {
            loseObject(cls, objects[i]);
            continue;
        }
        if (LacksErasure(cls) && conversion.Drops(kNotErasable)) {
            takenAway += takeAway(conversion, {cls, objects[i], {}});
            continue;
        }
        const OdDbObjectId leader = cls == OdDbMText::desc() ? GetNoteLeader(objects[i]) : OdDbObjectId();
        CFxString name;
        text += leader.isNull() ? conversion.names().EmitObjectVariable(objects[i], cls, name)
                                : NoteOfLeader(conversion, objects[i], cls, leader, name);
        // Without a variable the type is erased; it has to stay so.
        names[i] = name.isEmpty() && !conversion.writer.repairs ? type : name;
    }
    text += EmitEraseEntities(conversion.writer, names);
    text += takenAway;
    return kFxSuccess;
}

/// The first statement is always lost: all that remains of it is that its counter has risen.
std::int32_t ConvertActionAttributeValue(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    CFxString name;
    const OdDbHandle block = action.GetData(0).GetHandle();
    const OdRxClass* const cls = action.GetData(1).GetClass();
    conversion.names().ResolveVariable(block, cls, name);
    if (name.isEmpty())
        name = conversion.names().FetchedUnknown(block, cls);
    takeVariable(conversion.writer, text, name.isEmpty() ? HandedVariable::Kept : HandedVariable::Replaced);
    if (name.isEmpty())
        return PassOver(action, "the macro does not have the block");
    EmitGetLayer(conversion.writer, name, "0");
    text = EmitBlockAttributeValue(conversion.writer, name, "Value", action.GetData(2).GetString(),
                                   action.GetData(3).GetString());
    return kFxSuccess;
}

std::int32_t ConvertActionActivate(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::AppendedTo);
    const std::vector<OdDbHandle>& objects = action.GetData(0).GetHandleArray();
    const OdRxClass* const cls = ClassAt(action.GetData(1).GetClassArray(), 0);
    if (objects.empty())
        throw OdError_InvalidIndex();
    CFxString name;
    text += conversion.names().EmitObjectVariable(objects.front(), cls, name);
    if (name.isEmpty() && conversion.Drops(inkmacro::emptyPlace))
        return PassOver(action, "the macro has no variable for its object");
    text += EmitActivate(conversion.writer, name);
    return kFxSuccess;
}

std::int32_t ConvertActionJoin(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::Replaced);
    const auto variable = [&](std::int32_t index, CFxString& name) {
        const OdRxClass* const cls = action.GetData(index + 1).GetClass();
        return conversion.names().EmitObjectVariable(action.GetData(index).GetHandle(), cls, name);
    };
    CFxString name;
    CFxString other;
    text += variable(0, name);
    text += variable(2, other);
    if ((name.isEmpty() || other.isEmpty()) && conversion.Drops(inkmacro::emptyPlace)) {
        text.clear();
        return PassOver(action, "the macro has no variable for one of its objects");
    }
    text += EmitJoin(conversion.writer, name, other);
    return kFxSuccess;
}

std::int32_t ConvertActionExplode(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::Replaced);
    const std::vector<OdDbHandle>& objects = action.GetData(0).GetHandleArray();
    const std::vector<const OdRxClass*>& classes = action.GetData(1).GetClassArray();
    for (std::size_t i = 0; i < objects.size(); ++i) {
        const OdRxClass* const cls = ClassAt(classes, i);
        CFxString type;
        CFxString second;
        if (GetApiTypeName(cls, type, second) != kFxSuccess) {
            loseObject(cls, objects[i]);
            continue;
        }
        CFxString name;
        text += conversion.names().EmitObjectVariable(objects[i], cls, name);
        if (!name.isEmpty() || !conversion.Drops(inkmacro::emptyPlace))
            text += EmitExplode(conversion.writer, name);
    }
    return kFxSuccess;
}

/// The command that attached the image hands its variable over. Of an image that the macro does not know the statement
/// that would fetch it is lost, and the new name stays; but not in a repaired macro.
std::int32_t ConvertActionClipBoundary(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    CFxString image = inkmacro::takeVariable(conversion.writer, text, inkmacro::HandedVariable::Replaced);
    if (image.isEmpty())
        image = conversion.names().VariableWithoutFetch(action.GetData(0).GetHandle(), action.GetData(1).GetClass());
    if (image.isEmpty())
        return PassOver(action, "the macro has no variable for its image");
    const CFxCustomActionData& boundary = action.GetData(2);
    // A truth value removes the boundary, whichever it is.
    text = boundary.GetType() == CFxCustomActionData::kBool
               ? EmitRemoveClipBoundary(conversion.writer, image)
               : EmitSetClipBoundary(conversion.writer, image, boundary.Get2dPointArray());
    return kFxSuccess;
}
