#pragma once

#include <QStringList>

namespace inkmacro {

/// What `check` takes for wrong, and in which form it tells.
struct CheckMode
{
    bool strict = false; ///< warnings are failures
    bool json = false;
};

/// The command `check`: prints the errors of recordings, and of those without one what reads well and is probably not
/// what was meant. Gives an exit status.
int checkRecordings(const QStringList& files, const CheckMode& mode);

} // namespace inkmacro
