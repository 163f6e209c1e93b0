#pragma once

#include "recordfile/Recording.h"

#include <functional>
#include <vector>

class QIODevice;

namespace inkmacro {

/// Gets the bytes read so far and those of the whole file, or -1 when that is not known.
using ReadingProgress = std::function<void(qint64 read, qint64 total)>;

/// No longer line is read, so that a file which is no recording cannot fill the memory.
inline constexpr qint64 kLongestLine = qint64{256} * 1024 * 1024;

/// Reads the file of that name, or standard input for "-". After an error the recording is an empty one.
std::optional<RecordingError> ReadRecording(const QString& path, Recording& recording,
                                            const ReadingProgress& progress = {});

/// The same from an open device; `name` stands for the file in errors.
std::optional<RecordingError> ReadRecording(QIODevice& device, const QString& name, Recording& recording,
                                            const ReadingProgress& progress = {}, qint64 longestLine = kLongestLine);

/// Reads lines behind those that the recording has already: before any of its actions, those of its drawing.
std::optional<RecordingError> ReadFurther(QIODevice& device, const QString& name, Recording& recording);

/// Reads on behind lines that are wrong, which the recording lacks then. Gives the first error of each of up to `most`
/// lines; with so many the rest of the file is not read.
std::vector<RecordingError> ReadWithErrors(const QString& path, Recording& recording, std::size_t most,
                                           const ReadingProgress& progress = {});
std::vector<RecordingError> ReadWithErrors(QIODevice& device, const QString& name, Recording& recording,
                                           std::size_t most, const ReadingProgress& progress = {});

} // namespace inkmacro
