#pragma once

#include "view/Fold.h"

namespace inkmacro::view {

/// What a custom action says of the picture.
void perform(Fold& fold, const CFxCustomAction& action);

/// What the custom actions of the command say of an object that one of its actions adds.
void tellMade(Fold& fold, ObjectState& made);

/// Handles of objects that a custom action makes, as far as it tells them.
std::vector<OdDbHandle> madeBy(const CFxCustomAction& action);

} // namespace inkmacro::view
