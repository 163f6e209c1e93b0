#pragma once

#include "app/CommandLine.h"

namespace inkmacro {

/// Writes a page of a recording, in which it is seen with its macros, or a picture of it alone. Gives the exit status.
int viewRecording(const CommandLine& line);

} // namespace inkmacro
