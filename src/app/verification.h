#pragma once

#include <QString>

#include <optional>

namespace inkmacro {

/// Runs the repaired JavaScript macro of a recording, or `edited` in its place, and prints how what it draws differs
/// from the recording. Gives an exit status.
int verifyRecording(const QString& input, const std::optional<QString>& edited, bool json);

} // namespace inkmacro
