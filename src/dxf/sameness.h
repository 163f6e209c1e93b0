#pragma once

#include "host/kernel/CFxVariant.h"

#include <cstdint>

namespace inkmacro::dxf {

/// Whether two values stand for the same: numbers are as good as equal within a billionth of a drawing unit, and within
/// what writers round.
bool isSame(double left, double right);
bool isSame(const CFxVariant& left, const CFxVariant& right);
/// Of angles in radians: whole turns do not count.
bool isSameDirection(const CFxVariant& left, const CFxVariant& right);

/// Spreads a number over all bits.
std::uint64_t mixed(std::uint64_t value);
/// The same for numbers that are as good as equal, but for a few near the limits of cells, which are where drawings
/// seldom have a number.
std::uint64_t hashOf(double number);
std::uint64_t hashOf(const CFxVariant& value);

} // namespace inkmacro::dxf
