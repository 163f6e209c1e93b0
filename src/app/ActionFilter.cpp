#include "app/ActionFilter.h"

#include "host/kernel/CFxCustomActionData.h"

#include <algorithm>

namespace inkmacro {

namespace {

bool holds(const CFxCustomAction& custom, const OdDbHandle& handle)
{
    for (std::int32_t i = 0; i < custom.GetDataCount(); ++i) {
        const CFxCustomActionData& data = custom.GetData(i);
        if (data.GetHandle() == handle || std::ranges::count(data.GetHandleArray(), handle) > 0)
            return true;
        for (const OdDbObjectId& id : data.GetObjectIdArray())
            if (id.getHandle() == handle)
                return true;
    }
    return false;
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
    if (handle_.isNull())
        return true;
    if (const auto added = odrxQuery<CFxObjectAdded>(action.get()))
        return added->GetHandle() == handle_;
    if (const auto modified = odrxQuery<CFxObjectModified>(action.get()))
        return modified->GetHandle() == handle_;
    if (const auto property = odrxQuery<CFxPropertyChanged>(action.get()))
        return property->GetHandle() == handle_;
    if (const auto selection = odrxQuery<CFxUserSelection>(action.get()))
        return std::ranges::count(selection->GetHandles(), handle_) > 0;
    const auto custom = odrxQuery<CFxCustomAction>(action.get());
    return custom && holds(*custom, handle_);
}

QString commandName(const CFxUserCommand& command)
{
    const OdResBufPtr line = command.GetCommand();
    return line ? line->getString() : QString();
}

} // namespace inkmacro
