// Selections: at a prompt, by points, and through a filter.

#include "targets/selections.h"
#include "actions/entries.h"
#include "actions/handedVariable.h"
#include "actions/handlers.h"
#include "objects/classTable.h"
#include "statements/losses.h"
#include "targets/selectionPrompts.h"

using inkmacro::HandedVariable;
using inkmacro::takeVariable;

std::int32_t ConvertSelection(Conversion& conversion, const CFxUserSelection& selection, Statement& text)
{
    const std::vector<OdDbHandle>& objects = selection.GetHandles();
    const std::vector<const OdRxClass*>& classes = selection.GetClasses();
    EntityList entities;
    for (std::size_t i = 0; i < objects.size(); ++i) {
        ListedEntity entity;
        CFxString type;
        // The class of an object that the generated code does not know is not asked for.
        const OdRxClass* const cls = conversion.names().FindEntry(objects[i]) ? ClassAt(classes, i) : nullptr;
        // The name comes by the way that leaves the suffix of raw pointers in.
        conversion.names().ResolveVariable(objects[i], cls, entity.name);
        if (!entity.name.isEmpty())
            GetApiTypeName(cls, type, entity.type);
        entity.handle = objects[i].ascii();
        entities.push_back(std::move(entity));
    }
    if (entities.empty())
        return kFxSuccess;
    text = EmitPromptSelection(conversion.writer, entities);
    conversion.askedSelection = AskedSelection{conversion.command, {objects.begin(), objects.end()}};
    return kFxSuccess;
}

std::int32_t ConvertActionSelect(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::AppendedTo);
    for (std::int32_t i = 0; i + 1 < action.GetDataCount(); i += 2)
        text += EmitSelectEntities(conversion.writer, action.GetData(i).GetInt(), action.GetData(i + 1).GetPointArray(),
                                   false);
    return kFxSuccess;
}

std::int32_t ConvertActionSelectionFilter(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::AppendedTo);
    std::vector<CFxString> typeNames;
    OdArray<OdGePoint3d> points;
    std::int32_t mode = 0;
    for (std::int32_t i = 0; i < action.GetDataCount(); ++i) {
        const CFxCustomActionData& datum = action.GetData(i);
        if (datum.GetType() == CFxCustomActionData::kString) {
            if (const InterfaceType* const type = FindInterface(datum.GetString()))
                typeNames.emplace_back(type->enumerator);
            else
                NoteLoss("selection filter for " + datum.GetString().toQString(), "the interface has no such type");
        } else if (datum.GetType() == CFxCustomActionData::kInt) {
            mode = datum.GetInt();
        } else if (datum.GetType() == CFxCustomActionData::kPointArray) {
            points = datum.GetPointArray();
        }
    }
    text += EmitSelectionFilter(conversion.writer, points, mode, typeNames);
    return kFxSuccess;
}
