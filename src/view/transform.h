#pragma once

#include "view/Affine.h"

namespace inkmacro::view {

/// Moves, turns, scales or mirrors what a primitive draws. The transformation keeps shapes, and so do texts, which stay
/// readable in a mirror.
void transform(const Primitive& primitive, Picture& picture, const Affine& by);

} // namespace inkmacro::view
