// Reading recordings.

#include "app/reading.h"

#include "app/ProgressLine.h"
#include "app/console.h"
#include "recordfile/RecordingReader.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>

#include <unistd.h>

namespace inkmacro {

namespace {

/// Reads with a line of progress; `read` gets what moves it on.
template<class Read>
auto withProgress(Read read)
{
    qint64 done = 0;
    qint64 total = 0; // not above 0 when it is not known
    ProgressLine line([&] { return "reading " + (total > 0 ? progressBar(done, total) : megabytes(done)); });
    return read([&](qint64 doneNow, qint64 totalNow) {
        done = doneNow;
        total = totalNow;
        line.update();
    });
}

QString readKept(const QString& path, Recording& recording, const QString& kept)
{
    QFile file(kept);
    const QString name = path == "-" ? QStringLiteral("standard input") : path;
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return RecordingError{name, 0, {}, "cannot be read again: " + file.errorString()}.text();
    const auto error =
        withProgress([&](const ReadingProgress& progress) { return ReadRecording(file, name, recording, progress); });
    if (path != "-")
        recording.folder = QFileInfo(path).path();
    return error ? error->text() : QString();
}

} // namespace

QString readRecording(const QString& path, Recording& recording, const QString& kept)
{
    if (!kept.isEmpty())
        return readKept(path, recording, kept);
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
    return withProgress(
        [&](const ReadingProgress& progress) { return ReadWithErrors(path, recording, most, progress); });
}

bool keepInput(int descriptor, QFileDevice& file, const std::function<void()>& progress)
{
    std::vector<char> piece(1 << 20);
    for (;; progress()) {
        const ssize_t got = read(descriptor, piece.data(), piece.size());
        if (got == 0)
            return file.flush();
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0 || file.write(piece.data(), got) != got)
            return false;
    }
}

} // namespace inkmacro
