#pragma once

#include <QString>

namespace inkmacro {

/// The command `format`: writes the lines of a recording, whose values stand on as many lines as they like, to standard
/// output, or to that file when its name is not empty. Gives an exit status.
int formatRecording(const QString& path, const QString& output);

} // namespace inkmacro
