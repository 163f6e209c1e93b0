#pragma once

#include "view/Picture.h"

namespace inkmacro::view {

/// Takes away references by which a block holds itself, those that stand too deep in one another, and those that would
/// draw more than anybody can look at; whoever draws the picture can follow all that are left.
void cutReferences(Picture& picture);

} // namespace inkmacro::view
