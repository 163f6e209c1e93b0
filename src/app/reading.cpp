// Reading recordings.

#include "app/reading.h"

#include "app/ProgressLine.h"
#include "app/console.h"
#include "recordfile/RecordingReader.h"

namespace inkmacro {

QString readRecording(const QString& path, Recording& recording)
{
    const std::vector<RecordingError> errors = readWithErrors(path, recording, 1);
    if (errors.empty())
        return {};
    // What it holds of the other lines is no recording.
    recording = Recording();
    return errors.front().text();
}

bool readOrComplain(const QString& path, Recording& recording)
{
    const QString error = readRecording(path, recording);
    if (!error.isEmpty())
        printLine(error);
    return error.isEmpty();
}

std::vector<RecordingError> readWithErrors(const QString& path, Recording& recording, std::size_t most)
{
    qint64 done = 0;
    qint64 total = 0; // not above 0 when it is not known
    ProgressLine line([&] { return "reading " + (total > 0 ? progressBar(done, total) : megabytes(done)); });
    return ReadWithErrors(path, recording, most, [&](qint64 doneNow, qint64 totalNow) {
        done = doneNow;
        total = totalNow;
        line.update();
    });
}

} // namespace inkmacro
