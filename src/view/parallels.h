#pragma once

#include "view/Pen.h"

#include <vector>

namespace inkmacro::view {

/// The same points without those that repeat the one before.
std::vector<Point> withoutRepeats(const std::vector<Point>& points, bool isClosed);

/// The corners of a line beside another one, by the distance to its left, with mitres.
std::vector<Point> parallelTo(const std::vector<Point>& points, bool isClosed, double distance);

/// Where two lines meet that run beside others with these directions, as a vector for a distance of 1 to the left.
Point mitre(Point coming, Point leaving);

/// From one point to the other, with the length 1.
Point directionOf(Point from, Point to);

} // namespace inkmacro::view
