// Selections: at a prompt, by points, and through a filter.

#include "targets/selections.h"
#include "actions/CustomActionKind.h"
#include "frame/CFxConverterIWAPIImpl.h"
#include "objects/classTable.h"
#include "targets/selectionPrompts.h"

std::int32_t CFxConverterIWAPIImpl::ConvertSelection(OdSmartPtr<CFxUserSelection> selection, QString& text)
{
    const std::vector<OdDbHandle>& objects = selection->GetHandles();
    const std::vector<const OdRxClass*>& classes = selection->GetClasses();
    if (classes.size() < objects.size())
        throw OdError_InvalidIndex();

    EntityList entities;
    for (std::size_t i = 0; i < objects.size(); ++i) {
        ListedEntity entity;
        CFxString type;
        // The name comes by the way that leaves the suffix of raw pointers in.
        ResolveVariable(objects[i], classes[i], entity.name);
        if (!entity.name.isEmpty())
            GetApiTypeName(classes[i], type, entity.type);
        entity.handle = objects[i].ascii();
        entities.push_back(std::move(entity));
    }
    if (!entities.empty())
        text = EmitPromptSelection(writer, entities);
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionSelect(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    if (action->GetKind() != kSelect)
        return kFxFailure;
    for (std::int32_t i = 0; i + 1 < action->GetDataCount(); i += 2)
        text += EmitSelectEntities(writer, action->GetData(i).GetInt(), action->GetData(i + 1).GetPointArray(), false);
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionSelectionFilter(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    if (action->GetKind() != kSelectionFilter)
        return kFxFailure;
    std::vector<CFxString> typeNames;
    OdArray<OdGePoint3d> points;
    std::int32_t mode = 0;
    for (std::int32_t i = 0; i < action->GetDataCount(); ++i) {
        const CFxCustomActionData& datum = action->GetData(i);
        if (datum.GetType() == CFxCustomActionData::kString) {
            if (const ClassRow* const row = FindClassOfInterface(datum.GetString()))
                typeNames.emplace_back(row->enumerator);
        } else if (datum.GetType() == CFxCustomActionData::kInt) {
            mode = datum.GetInt();
        } else if (datum.GetType() == CFxCustomActionData::kPointArray) {
            points = datum.GetPointArray();
        }
    }
    text += EmitSelectionFilter(writer, points, mode, typeNames);
    return kFxSuccess;
}
