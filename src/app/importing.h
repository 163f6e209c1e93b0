#pragma once

#include "app/CommandLine.h"

namespace inkmacro {

/// Makes a recording of a drawing file and writes it to the output of the line, which is standard output when there is
/// none. Gives the exit status.
int importDrawing(const CommandLine& line);

} // namespace inkmacro
