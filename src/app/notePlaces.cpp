#include "app/notePlaces.h"

#include <QStringList>

namespace inkmacro {

QString pathOf(const CFxActionPlace& place)
{
    QStringList steps;
    for (std::size_t i = 1; i < place.size(); ++i)
        steps.append(QString("command.actions[%1]").arg(place[i]));
    return steps.join('.');
}

OdRxObjectPtr actionAt(const CFxActionPlace& place, const Recording& recording)
{
    const CFxActionArray* actions = &recording.actions;
    OdRxObjectPtr found;
    for (const std::uint32_t number : place) {
        found = (*actions)[number];
        if (const auto command = odrxQuery<CFxUserCommand>(found.get()))
            actions = &command->GetActions();
    }
    return found;
}

qint64 lineOf(const CFxActionPlace& place, const Recording& recording)
{
    return place.empty() ? 0 : recording.actionLines.at(place.front());
}

} // namespace inkmacro
