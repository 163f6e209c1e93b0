#pragma once

#include "host/kernel/CFxActions.h"

#include <optional>
#include <vector>

namespace inkmacro {

/// Which actions of a recording somebody wants to see.
class ActionFilter
{
public:
    /// Only what commands of that name did, and only what is about the object with that handle; without a name and with
    /// the null handle everything.
    ActionFilter(const std::optional<QString>& command, const OdDbHandle& handle) : command_(command), handle_(handle)
    {
    }

    bool takesAll() const { return !command_ && handle_.isNull(); }
    const std::optional<QString>& command() const { return command_; }
    const OdDbHandle& handle() const { return handle_; }

    /// In capitals, without the signs in front by which a user asks for a command by its global name (_), for the
    /// host's own one (.) or in the middle of another one (').
    static QString plainName(const QString& command);
    /// Whether a command of that name is wanted; names are the same when their plain forms are.
    bool names(const QString& command) const;
    /// Of an action that is no command.
    bool isAbout(const OdRxObjectPtr& action) const;

private:
    std::optional<QString> command_;
    OdDbHandle handle_;
};

/// The objects that an action, which is no command, is about: as the recording names them, and maybe several times.
std::vector<OdDbHandle> handlesOf(const OdRxObjectPtr& action);

/// As the recording has it.
QString commandName(const CFxUserCommand& command);

} // namespace inkmacro
