#pragma once

#include "dxf/Accounts.h"
#include "dxf/Drawing.h"
#include "dxf/ImportOptions.h"
#include "recordfile/RecordingReader.h"

namespace inkmacro::dxf {

/// Whether a file that begins so is a drawing. A recording is none.
bool looksLikeDrawing(std::string_view begin);

/// Makes the recording of a drawing without a file of it. The lines of its actions are those of the drawing's text
/// file in which the kinds of the entities stand; in place of those that a binary one does not
/// have stand the numbers of the actions.
Accounts readDrawing(Drawing& drawing, const ImportOptions& options, Recording& recording,
                     const ReadingProgress& progress = {});

} // namespace inkmacro::dxf
