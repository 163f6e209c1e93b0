#pragma once

#include "view/Pen.h"

#include <optional>
#include <vector>

namespace inkmacro::view {

/// In the place of a distance between lines: they lie so close that they are a tint.
inline constexpr double kTint = 0.0;

/// The lines of a pattern at a scale of 1; none for one that is not in the table here.
std::optional<std::vector<PatternLines>> patternNamed(const QString& name);

/// The lines of a pattern that is scaled and turned about its origin, which is moved.
std::vector<PatternLines> placed(std::vector<PatternLines> pattern, double scale, double angle, Point origin);

} // namespace inkmacro::view
