#pragma once

#include <QString>

namespace inkmacro {

/// The command `inspect`. Gives an exit status.
int inspectRecording(const QString& path, bool json);

} // namespace inkmacro
