#pragma once

#include "host/db/OdGe.h"

#include <optional>
#include <vector>

namespace inkmacro::dxf {

/// A curve as drawings have it, from the knot at `degree` to the one at the number of control points: so closed curves
/// whose last control points repeat the first ones need nothing of their own. Those that end where they began are
/// closed.
struct Nurbs
{
    int degree = 3;
    std::vector<double> knots;
    std::vector<OdGePoint3d> points;
    std::vector<double> weights; ///< empty: all 1
};

/// Points for a curve through them: the cubic spline with continuous second derivatives, whose parameter grows from
/// point to point by their distance, and which begins and ends in the given directions (unit vectors, both with the run
/// of the curve) at the speed of 1.
struct FitPoints
{
    std::vector<OdGePoint3d> points;
    OdGeVector3d startTangent;
    OdGeVector3d endTangent;
    double deviation = 0.0; ///< drawing units, the largest that was seen
};

/// Whether it is a curve, and one that is a polyline through its control points.
bool isPolyline(const Nurbs& curve);

/// As few points as halving the spans between the knots makes of it until none deviates more than the tolerance (in
/// drawing units; never finer than a billionth of the curve's size and what rounding leaves of its coordinates), and at
/// most 10,000: the deviation says what was reached. Where the curve was made from fit points, they are these again.
/// Nothing where knots, counts or weights make no curve (degrees are at most 25), where it has a gap, or where all of
/// it is one place.
std::optional<FitPoints> fitPoints(const Nurbs& curve, double tolerance);

/// Vertices of a polyline in the XY plane, and one a vertex the bulge of the segment that begins there, 0 for the last.
struct Bends
{
    std::vector<OdGePoint2d> points;
    std::vector<double> bulges;
    double deviation = 0.0; ///< drawing units, the largest that was seen
};

/// Lines and arcs along a curve of the XY plane, as few as halving makes of it until none deviates more than the
/// tolerance. Nothing where there are no fit points either.
std::optional<Bends> bends(const Nurbs& curve, double tolerance);

} // namespace inkmacro::dxf
