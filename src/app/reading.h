#pragma once

#include "recordfile/Recording.h"

#include <vector>

namespace inkmacro {

/// Empty when the recording is read, else what is wrong with it.
QString readRecording(const QString& path, Recording& recording);
/// Reads the recording, or prints what is wrong with it and gives false.
bool readOrComplain(const QString& path, Recording& recording);

/// Reads on behind lines that are wrong, which the recording lacks then, and gives what is wrong with up to `most` of
/// them.
std::vector<RecordingError> readWithErrors(const QString& path, Recording& recording, std::size_t most);

} // namespace inkmacro
