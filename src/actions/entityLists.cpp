// Custom actions that change a list of objects in one call: mirror, stretch, copy, move, rotate, scale, and into a
// group or out of it. Lengths are drawing units and angles radians, as recorded.

#include "targets/entityLists.h"
#include "actions/handedVariable.h"
#include "actions/handlers.h"
#include "host/db/OdDbClasses.h"
#include "statements/losses.h"
#include "targets/groups.h"
#include "targets/selectionPrompts.h"

using inkmacro::HandedVariable;
using inkmacro::takeVariable;

/// Whether the user was asked to select these objects in the same command.
static bool AreAskedFor(const Conversion& conversion, const std::vector<OdDbHandle>& objects)
{
    const std::optional<AskedSelection>& asked = conversion.askedSelection;
    return conversion.command != 0 && asked && asked->command == conversion.command &&
           asked->objects == std::set<OdDbHandle>(objects.begin(), objects.end());
}

/// The objects of the first two data, or those that are selected when the macro asks.
static EntityList EntitiesOf(Conversion& conversion, const CFxCustomAction& action)
{
    return TakesWhatIsSelected(conversion.writer) && AreAskedFor(conversion, action.GetData(0).GetHandleArray())
               ? SelectedEntities()
               : conversion.names().ResolveNames(action.GetData(0), action.GetData(1));
}

/// A call for the objects of the first two data. In a repaired macro one for none of them is left out.
template<class Emit>
static std::int32_t ConvertEntityCall(Conversion& conversion, const CFxCustomAction& action, Statement& text, Emit emit)
{
    takeVariable(conversion.writer, text, HandedVariable::Replaced);
    const EntityList entities = EntitiesOf(conversion, action);
    if (entities.empty() && conversion.writer.repairs)
        return PassOver(action, "the macro has none of its objects");
    text = emit(entities);
    return kFxSuccess;
}

std::int32_t ConvertActionMirror(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    return ConvertEntityCall(conversion, action, text, [&](const EntityList& entities) {
        return EmitMirrorEntities(conversion.writer, entities, action.GetData(2).GetPoint(),
                                  action.GetData(3).GetPoint(), action.GetData(4).GetBool());
    });
}

std::int32_t ConvertActionStretch(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    return ConvertEntityCall(conversion, action, text, [&](const EntityList& entities) {
        return EmitStretchEntities(conversion.writer, entities, action.GetData(2).GetPoint(),
                                   action.GetData(3).GetPoint(), action.GetData(4).GetVector());
    });
}

std::int32_t ConvertActionCopy(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    return ConvertEntityCall(conversion, action, text, [&](const EntityList& entities) {
        Statement copies;
        for (std::int32_t i = 2; i < action.GetDataCount(); ++i)
            copies += EmitCopyEntities(conversion.writer, entities, action.GetData(i).GetVector(), i == 2);
        return copies;
    });
}

std::int32_t ConvertActionMove(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    return ConvertEntityCall(conversion, action, text, [&](const EntityList& entities) {
        return EmitMoveEntities(conversion.writer, entities, action.GetData(2).GetVector(), true);
    });
}

std::int32_t ConvertActionRotate(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    return ConvertEntityCall(conversion, action, text, [&](const EntityList& entities) {
        return EmitRotateEntities(conversion.writer, entities, action.GetData(2).GetPoint(),
                                  action.GetData(3).GetDouble());
    });
}

std::int32_t ConvertActionScale(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    return ConvertEntityCall(conversion, action, text, [&](const EntityList& entities) {
        return EmitScaleEntities(conversion.writer, entities, action.GetData(2).GetPoint(),
                                 action.GetData(3).GetDouble());
    });
}

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
