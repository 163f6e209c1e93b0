// Custom actions that change a list of objects in one call: mirror, stretch, copy, move, rotate, scale. Lengths are
// drawing units and angles radians, as recorded.

#include "targets/entityLists.h"
#include "actions/CustomActionKind.h"
#include "frame/CFxConverterIWAPIImpl.h"

EntityList CFxConverterIWAPIImpl::EntitiesOf(const CFxCustomAction& action) const
{
    return ResolveNames(action.GetData(0), action.GetData(1));
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionMirror(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    if (action->GetKind() != kMirror)
        return kFxFailure;
    text = EmitMirrorEntities(writer, EntitiesOf(*action), action->GetData(2).GetPoint(), action->GetData(3).GetPoint(),
                              action->GetData(4).GetBool());
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionStretch(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    if (action->GetKind() != kStretch)
        return kFxFailure;
    text = EmitStretchEntities(writer, EntitiesOf(*action), action->GetData(2).GetPoint(),
                               action->GetData(3).GetPoint(), action->GetData(4).GetVector());
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionCopy(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    if (action->GetKind() != kCopy)
        return kFxFailure;
    const EntityList entities = EntitiesOf(*action);
    QString copies;
    for (std::int32_t i = 2; i < action->GetDataCount(); ++i)
        copies += EmitCopyEntities(writer, entities, action->GetData(i).GetVector(), i == 2);
    text = copies;
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionMove(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    if (action->GetKind() != kMove)
        return kFxFailure;
    text = EmitMoveEntities(writer, EntitiesOf(*action), action->GetData(2).GetVector(), true);
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionRotate(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    if (action->GetKind() != kRotate)
        return kFxFailure;
    text =
        EmitRotateEntities(writer, EntitiesOf(*action), action->GetData(2).GetPoint(), action->GetData(3).GetDouble());
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionScale(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    if (action->GetKind() != kScale)
        return kFxFailure;
    text =
        EmitScaleEntities(writer, EntitiesOf(*action), action->GetData(2).GetPoint(), action->GetData(3).GetDouble());
    return kFxSuccess;
}
