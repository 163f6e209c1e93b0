#pragma once

#include "app/actionJson.h"

namespace inkmacro {

/// The command `inspect`. Gives an exit status.
int inspectRecording(const QString& path, const ActionView& view, bool json);

} // namespace inkmacro
