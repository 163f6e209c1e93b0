#pragma once

#include <QString>

namespace inkmacro {

struct CommandRow;

/// What `--help` prints: of one command, or with null of the program.
QString helpPage(const CommandRow* row);

} // namespace inkmacro
