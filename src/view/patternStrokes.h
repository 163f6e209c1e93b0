#pragma once

#include "view/Pen.h"

#include <optional>
#include <span>

namespace inkmacro::view {

struct Stroke
{
    Point from;
    Point to;
};

/// The lines of a pattern within its boundary; none when there are more than anybody could tell from a tint.
std::optional<std::vector<Stroke>> strokesOf(std::span<const double> pattern);

} // namespace inkmacro::view
