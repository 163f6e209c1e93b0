#pragma once

#include <QString>

namespace inkmacro {

/// A path of the installed application: its install directory with `tail` behind it, as generated projects write it.
QString installedPath(const char* tail);

} // namespace inkmacro
