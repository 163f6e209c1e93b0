#pragma once

#include "view/Fold.h"

namespace inkmacro::view {

/// Custom actions that edit a polyline: those of single vertices are performed.
void editPolyline(Fold& fold, const CFxCustomAction& action);
void editVertex(Fold& fold, const CFxCustomAction& action);

} // namespace inkmacro::view
