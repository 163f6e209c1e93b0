#include "app/actionCount.h"

#include "app/valueText.h"

namespace inkmacro {

namespace {

qint64 countWithCommands(const CFxActionArray& actions)
{
    qint64 count = 0;
    for (const OdRxObjectPtr& action : actions) {
        ++count;
        if (const auto command = odrxQuery<CFxUserCommand>(action.get()))
            count += countWithCommands(command->GetActions());
    }
    return count;
}

} // namespace

QString actionCountText(const CFxActionArray& actions)
{
    const QString top = counted(actions.length(), "action", "actions");
    const qint64 all = countWithCommands(actions);
    return all == actions.length() ? top : QString("%1 (%2 with those in commands)").arg(top).arg(all);
}

} // namespace inkmacro
