#pragma once

#include "view/Values.h"

namespace inkmacro::view {

/// The boundaries that objects make: curves that end where others begin are chained, an open chain is closed by a line.
/// For what is itself moved by more than its properties tell.
std::vector<Outline> loopsAlong(const std::vector<const Values*>& objects, const Affine& moved = {});

/// A closed polyline. A bulge is the tangent of a quarter of an arc's angle; a missing one is 0.
Outline loopThrough(const std::vector<Point>& vertices, const std::vector<double>& bulges = {});

} // namespace inkmacro::view
