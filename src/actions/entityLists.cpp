// Custom actions that change a list of objects in one call: mirror, stretch, copy, move, rotate, scale. Lengths are
// drawing units and angles radians, as recorded.

#include "targets/entityLists.h"
#include "actions/handedVariable.h"
#include "module/CFxConverterIWAPIImpl.h"

using inkmacro::HandedVariable;
using inkmacro::takeVariable;

EntityList CFxConverterIWAPIImpl::EntitiesOf(const CFxCustomAction& action)
{
    return ResolveNames(action.GetData(0), action.GetData(1));
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionMirror(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    takeVariable(writer, text, HandedVariable::Replaced);
    text = EmitMirrorEntities(writer, EntitiesOf(*action), action->GetData(2).GetPoint(), action->GetData(3).GetPoint(),
                              action->GetData(4).GetBool());
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionStretch(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    takeVariable(writer, text, HandedVariable::Replaced);
    text = EmitStretchEntities(writer, EntitiesOf(*action), action->GetData(2).GetPoint(),
                               action->GetData(3).GetPoint(), action->GetData(4).GetVector());
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionCopy(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    takeVariable(writer, text, HandedVariable::Replaced);
    const EntityList entities = EntitiesOf(*action);
    for (std::int32_t i = 2; i < action->GetDataCount(); ++i)
        text += EmitCopyEntities(writer, entities, action->GetData(i).GetVector(), i == 2);
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionMove(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    takeVariable(writer, text, HandedVariable::Replaced);
    text = EmitMoveEntities(writer, EntitiesOf(*action), action->GetData(2).GetVector(), true);
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionRotate(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    takeVariable(writer, text, HandedVariable::Replaced);
    text =
        EmitRotateEntities(writer, EntitiesOf(*action), action->GetData(2).GetPoint(), action->GetData(3).GetDouble());
    return kFxSuccess;
}

std::int32_t CFxConverterIWAPIImpl::ConvertActionScale(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    takeVariable(writer, text, HandedVariable::Replaced);
    text =
        EmitScaleEntities(writer, EntitiesOf(*action), action->GetData(2).GetPoint(), action->GetData(3).GetDouble());
    return kFxSuccess;
}
