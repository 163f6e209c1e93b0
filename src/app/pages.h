#pragma once

#include <QString>

namespace inkmacro {

/// The reference page of the system variables that convert, in Markdown.
QString systemVariablesPage();

/// A page in Markdown with the faults of macros that are written without repair.
QString knownFaultsPage();

} // namespace inkmacro
