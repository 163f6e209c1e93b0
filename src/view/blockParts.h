#pragma once

#include "view/Values.h"

namespace inkmacro::view {

/// What the definition of a block is made of: by the action that makes it, else as the drawing has it.
std::vector<OdDbHandle> partsOf(const Values& block);

} // namespace inkmacro::view
