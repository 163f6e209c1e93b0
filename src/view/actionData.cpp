#include "view/actionData.h"

namespace inkmacro::view {

const CFxCustomActionData& datum(const CFxCustomAction& action, int number)
{
    static const CFxCustomActionData missing{CFxCustomActionData::Value()};
    return number < action.GetDataCount() ? action.GetData(number) : missing;
}

std::vector<OdDbHandle> handlesIn(const CFxCustomAction& action, int number)
{
    const CFxCustomActionData& data = datum(action, number);
    if (data.GetType() == CFxCustomActionData::kHandle)
        return {data.GetHandle()};
    return data.GetHandleArray();
}

} // namespace inkmacro::view
