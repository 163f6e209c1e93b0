#pragma once

#include "view/Values.h"

namespace inkmacro::view {

/// The leader at whose end an object stands; null when the drawing does not tell.
const Values* leaderOf(const Values& annotation);

/// Draws a note or a tolerance behind the end of its leader.
void drawAtEnd(const Values& leader, const Values& annotation, Pen& pen);

/// A note at a place; with its own attachment when none is given.
void drawNoteAt(const Values& note, Pen& pen, Point at, std::optional<int> attachment = std::nullopt);

} // namespace inkmacro::view
