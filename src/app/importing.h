#pragma once

#include "app/CommandLine.h"

namespace inkmacro {

/// Makes a recording of a drawing file and writes it to the output of the line, which is standard output when there is
/// none. Gives the exit status.
int importDrawing(const CommandLine& line);

/// Writes the recording of a drawing file to the file at `place`. False when the drawing cannot be read, of which
/// messages speak under `name`. Raises PlacingError.
bool writeRecordingOf(const QString& path, const QString& name, const QString& place);

} // namespace inkmacro
