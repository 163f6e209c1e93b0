#pragma once

#include "view/Pen.h"

namespace inkmacro::view {

struct ArcBetween
{
    Point center;
    double radius;
    double start;
    double sweep;
};

/// The arc between two points that differ; the bulge, the tangent of a quarter of its angle, is not 0.
ArcBetween arcBetween(Point from, Point to, double bulge);

/// From one angle to the other against the clock; a whole turn where both are the same.
double sweepBetween(double start, double end);

} // namespace inkmacro::view
