#include "app/ActionFilter.h"

#include "host/kernel/CFxCustomActionData.h"

#include <algorithm>

namespace inkmacro {

namespace {

std::vector<OdDbHandle> handlesIn(const CFxCustomAction& custom)
{
    std::vector<OdDbHandle> handles;
    for (std::int32_t i = 0; i < custom.GetDataCount(); ++i) {
        const CFxCustomActionData& data = custom.GetData(i);
        handles.push_back(data.GetHandle());
        handles.insert(handles.end(), data.GetHandleArray().begin(), data.GetHandleArray().end());
        for (const OdDbObjectId& id : data.GetObjectIdArray())
            handles.push_back(id.getHandle());
    }
    std::erase(handles, OdDbHandle());
    return handles;
}

} // namespace

QString ActionFilter::plainName(const QString& command)
{
    const auto* const begin = std::find_if_not(
        command.begin(), command.end(), [](QChar letter) { return letter == '_' || letter == '.' || letter == '\''; });
    return QString(begin, static_cast<int>(command.end() - begin)).toUpper();
}

bool ActionFilter::names(const QString& command) const
{
    return command_ && plainName(command) == plainName(*command_);
}

bool ActionFilter::isAbout(const OdRxObjectPtr& action) const
{
    return handle_.isNull() || std::ranges::count(handlesOf(action), handle_) > 0;
}

std::vector<OdDbHandle> handlesOf(const OdRxObjectPtr& action)
{
    if (const auto added = odrxQuery<CFxObjectAdded>(action.get()))
        return {added->GetHandle()};
    if (const auto modified = odrxQuery<CFxObjectModified>(action.get()))
        return {modified->GetHandle()};
    if (const auto property = odrxQuery<CFxPropertyChanged>(action.get()))
        return {property->GetHandle()};
    if (const auto selection = odrxQuery<CFxUserSelection>(action.get()))
        return selection->GetHandles();
    const auto custom = odrxQuery<CFxCustomAction>(action.get());
    return custom ? handlesIn(*custom) : std::vector<OdDbHandle>();
}

QString commandName(const CFxUserCommand& command)
{
    const OdResBufPtr line = command.GetCommand();
    return line ? line->getString() : QString();
}

} // namespace inkmacro
