#pragma once

#include "view/Values.h"

namespace inkmacro::view {

struct MeasuredCurve
{
    Point center;
    double radius; ///< 0 for one that has not the same everywhere
};

/// The circle, arc or ellipse on which that point of the dimension hangs; none when the drawing does not tell it.
std::optional<MeasuredCurve> measuredCurve(const Values& dimension, std::size_t pointReference);

} // namespace inkmacro::view
