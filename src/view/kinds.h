#pragma once

#include "view/Values.h"

namespace inkmacro::view {

/// What draws the objects of that class; null for one that is not drawn.
Drawer drawerOf(const OdRxClass& cls);

} // namespace inkmacro::view
