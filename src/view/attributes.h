#pragma once

#include "view/Values.h"

namespace inkmacro::view {

/// Whether references to a block show values of their own in the place of this part of it.
bool isAttributeOfReferences(const Values& definition);

/// The values that a reference to a block gives to its attributes, where the block's definitions stand. `place` leads
/// from the block to where it lands.
void drawAttributes(const Values& reference, const Values& block, const Affine& place, Pen& pen);

} // namespace inkmacro::view
