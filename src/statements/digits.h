#pragma once

#include "statements/Fault.h"

namespace inkmacro {

/// Whether the form of FormatShort is another number.
bool losesDigits(double value);

extern const Fault kSixDigits;

} // namespace inkmacro
