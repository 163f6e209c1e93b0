#pragma once

#include "dxf/Accounts.h"
#include "dxf/Drawing.h"
#include "recordfile/Recording.h"

#include <functional>
#include <vector>

class QFileDevice;

namespace inkmacro {

/// What is wrong with a file of that name in which no drawing is found.
RecordingError noDrawing(const QString& name, const dxf::Drawing& file);

/// Whether the file, which is no pipe, is a drawing and no recording.
bool isDrawingFile(const QString& path);

/// Empty when the recording is read, else what is wrong with it. What has been kept of one is read in its place, when
/// there is a path of that. A drawing file becomes a recording, and `drawing` tells what became of its entities.
QString readRecording(const QString& path, Recording& recording, std::optional<dxf::Accounts>& drawing,
                      const QString& kept = {});
/// Reads the recording, or prints what is wrong with it and gives false.
bool readOrComplain(const QString& path, Recording& recording);

/// Reads on behind lines that are wrong, which the recording lacks then, and gives what is wrong with up to `most` of
/// them.
std::vector<RecordingError> readWithErrors(const QString& path, Recording& recording, std::size_t most);

/// Puts into the file all that comes of something that can be read only once, and calls `progress` at times. False with
/// errno when that fails.
bool keepInput(int descriptor, QFileDevice& file, const std::function<void()>& progress);

} // namespace inkmacro
