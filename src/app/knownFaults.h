#pragma once

#include <QString>

namespace inkmacro {

/// A page in Markdown with the faults of macros that are written without repair.
QString knownFaultsPage();

} // namespace inkmacro
