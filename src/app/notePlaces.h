#pragma once

#include "host/kernel/CFxConversionNotes.h"
#include "recordfile/Recording.h"

namespace inkmacro {

/// The place of an action within its line, as the recording file's errors name it; empty for the whole line.
QString pathOf(const CFxActionPlace& place);
/// Null for no place.
OdRxObjectPtr actionAt(const CFxActionPlace& place, const Recording& recording);
/// From 1; 0 for no place.
qint64 lineOf(const CFxActionPlace& place, const Recording& recording);

} // namespace inkmacro
