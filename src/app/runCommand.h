#pragma once

#include <QString>

namespace inkmacro {

/// Runs a command of the host, known by its name, on the drawing of the recording, and writes the recording with the
/// changed drawing to `output` when the command has ended well. Gives an ExitStatus. Raises WrongUse for a command that
/// does not exist.
int runCommand(const QString& path, const QString& name, const QString& output);

} // namespace inkmacro
