#pragma once

#include "view/Affine.h"
#include "view/Values.h"

namespace inkmacro::view {

/// The value that stands in the place of an attribute's name where a reference puts its definition.
void drawAttributeValue(const Values& definition, const QString& value, const Affine& place, Pen& pen);

} // namespace inkmacro::view
