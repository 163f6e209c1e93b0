// Custom actions that change a list of objects in one call: mirror, stretch, copy, move, rotate, scale. Lengths are
// drawing units and angles radians, as recorded.

#include "targets/entityLists.h"
#include "actions/handedVariable.h"
#include "actions/handlers.h"

using inkmacro::HandedVariable;
using inkmacro::takeVariable;

static EntityList EntitiesOf(Conversion& conversion, const CFxCustomAction& action)
{
    return conversion.names().ResolveNames(action.GetData(0), action.GetData(1));
}

std::int32_t ConvertActionMirror(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::Replaced);
    text = EmitMirrorEntities(conversion.writer, EntitiesOf(conversion, action), action.GetData(2).GetPoint(),
                              action.GetData(3).GetPoint(), action.GetData(4).GetBool());
    return kFxSuccess;
}

std::int32_t ConvertActionStretch(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::Replaced);
    text = EmitStretchEntities(conversion.writer, EntitiesOf(conversion, action), action.GetData(2).GetPoint(),
                               action.GetData(3).GetPoint(), action.GetData(4).GetVector());
    return kFxSuccess;
}

std::int32_t ConvertActionCopy(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::Replaced);
    const EntityList entities = EntitiesOf(conversion, action);
    for (std::int32_t i = 2; i < action.GetDataCount(); ++i)
        text += EmitCopyEntities(conversion.writer, entities, action.GetData(i).GetVector(), i == 2);
    return kFxSuccess;
}

std::int32_t ConvertActionMove(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::Replaced);
    text = EmitMoveEntities(conversion.writer, EntitiesOf(conversion, action), action.GetData(2).GetVector(), true);
    return kFxSuccess;
}

std::int32_t ConvertActionRotate(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::Replaced);
    text = EmitRotateEntities(conversion.writer, EntitiesOf(conversion, action), action.GetData(2).GetPoint(),
                              action.GetData(3).GetDouble());
    return kFxSuccess;
}

std::int32_t ConvertActionScale(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::Replaced);
    text = EmitScaleEntities(conversion.writer, EntitiesOf(conversion, action), action.GetData(2).GetPoint(),
                             action.GetData(3).GetDouble());
    return kFxSuccess;
}
