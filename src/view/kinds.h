#pragma once

#include "view/Values.h"

namespace inkmacro::view {

/// What draws the objects of that class; null for one that is not drawn.
Drawer drawerOf(const OdRxClass& cls);

/// The same of curves alone, which need no other object.
Drawer curveDrawerOf(const OdRxClass& cls);

} // namespace inkmacro::view
