#pragma once

#include "recordfile/RecordingReader.h"
#include "statements/TargetTable.h"

#include <cstdint>

namespace inkmacro {

std::optional<RecordingError> readBytes(QByteArray bytes, Recording& recording);

/// What the program does around a conversion, in this process. The files go to a folder that all conversions share and
/// that is gone when the process ends.
void convertRecording(const Recording& recording, const TargetRow& target, std::uint32_t mode);

} // namespace inkmacro
