#pragma once

#include "host/kernel/CFxActions.h"

namespace inkmacro {

/// "4 actions (9 with those in commands)": how many actions a recording has, in the words of all commands.
QString actionCountText(const CFxActionArray& actions);

} // namespace inkmacro
