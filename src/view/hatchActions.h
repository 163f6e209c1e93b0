#pragma once

#include "host/kernel/CFxActions.h"

namespace inkmacro::view {

class ObjectState;

// What a custom action says of the boundary of the hatch that it makes, as properties that no record has. Each is a
// list.
inline constexpr auto kInternalPoints = "Internal points";
inline constexpr auto kBoundaryPoints = "Boundary points";   ///< of all loops
inline constexpr auto kBoundaryCounts = "Boundary counts";   ///< how many points each loop has; none for a single one
inline constexpr auto kBoundaryBulges = "Boundary bulges";   ///< of the segments that begin at the points
inline constexpr auto kBoundaryObjects = "Boundary objects"; ///< their ids

/// Of what makes a hatch. What its record has already is not said again.
void sayHatch(ObjectState& hatch, const CFxCustomAction& action);

} // namespace inkmacro::view
