#pragma once

#include <QString>

namespace inkmacro {

/// The reference page of the system variables that convert, in Markdown.
QString systemVariablesPage();

} // namespace inkmacro
