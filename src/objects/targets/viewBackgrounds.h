#pragma once

#include "host/db/OdCmColor.h"
#include "statements/Writer.h"

#include <array>

// What stands behind a named view. `view` is its variable.

/// `position` is an enumerator, such as "iwImageBackgroundPosition_Center"; the numbers are those of the host's call,
/// in its order.
Statement EmitImageBackground(Writer& writer, const CFxString& path, const CFxString& position,
                              const std::array<double, 4>& numbers, const CFxString& view);
Statement EmitGradientBackground(Writer& writer, const OdCmColor& top, const OdCmColor& middle, const OdCmColor& bottom,
                                 double rotation, double height, const CFxString& view);
Statement EmitSolidBackground(Writer& writer, const OdCmColor& color, const CFxString& view);
