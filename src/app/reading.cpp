// Reading recordings.

#include "app/reading.h"

#include "app/ProgressLine.h"
#include "app/console.h"
#include "dxf/DrawingFile.h"
#include "dxf/DrawingReader.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>

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

/// So much tells a drawing from a recording.
constexpr qint64 kSniffed = 4096;

bool isDrawing(QFile& file, const QString& path)
{
    if (path.endsWith(QLatin1String(".dxf"), Qt::CaseInsensitive))
        return true;
    const QByteArray begin = file.peek(kSniffed);
    return dxf::looksLikeDrawing({begin.constData(), static_cast<std::size_t>(begin.size())});
}

std::vector<RecordingError> readDrawing(QFile& file, const QString& name, Recording& recording,
                                        std::optional<dxf::Accounts>& accounts)
{
    dxf::DrawingFile bytes;
    if (!bytes.read(file))
        return {{name, 0, {}, "cannot be read: " + file.errorString()}};
    dxf::Drawing drawing(bytes.bytes());
    if (!drawing.isValid())
        return {noDrawing(name, drawing)};
    withProgress([&](const ReadingProgress& progress) {
        accounts = dxf::readDrawing(drawing, {}, recording, progress);
        return 0;
    });
    return {};
}

/// From `place`, which errors call `path`.
std::vector<RecordingError> readFrom(const QString& place, const QString& path, Recording& recording, std::size_t most,
                                     std::optional<dxf::Accounts>& accounts)
{
    recording = Recording();
    const bool standardInput = place == "-";
    const QString name = path == "-" ? QStringLiteral("standard input") : path;
    QFile file(place);
    // Unbuffered: the lines have a buffer of their own.
    constexpr auto mode = QIODevice::ReadOnly | QIODevice::Unbuffered;
    if (!(standardInput ? file.open(stdin, mode) : file.open(mode)))
        return {{name, 0, {}, (place == path ? "cannot be opened: " : "cannot be read again: ") + file.errorString()}};
    std::vector<RecordingError> errors = isDrawing(file, place)
                                             ? readDrawing(file, name, recording, accounts)
                                             : withProgress([&](const ReadingProgress& progress) {
                                                   return ReadWithErrors(file, name, recording, most, progress);
                                               });
    if (path != "-")
        recording.folder = QFileInfo(path).path();
    return errors;
}

} // namespace

RecordingError noDrawing(const QString& name, const dxf::Drawing& file)
{
    const bool isText = file.form() == dxf::FileForm::Ascii;
    const auto begin = dxf::GroupReader(file.bytes(), file.form()).offset();
    return {name,
            isText ? 1 : 0,
            {},
            isText ? QStringLiteral("no section of a drawing is found from here on")
                   : QString("no section of a drawing is found from byte %1 on").arg(begin)};
}

bool isDrawingFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) && isDrawing(file, path);
}

QString readRecording(const QString& path, Recording& recording, std::optional<dxf::Accounts>& drawing,
                      const QString& kept)
{
    const std::vector<RecordingError> errors = readFrom(kept.isEmpty() ? path : kept, path, recording, 1, drawing);
    if (errors.empty())
        return {};
    // What it holds of the other lines is no recording.
    recording = Recording();
    return errors.front().text();
}

bool readOrComplain(const QString& path, Recording& recording)
{
    std::optional<dxf::Accounts> drawing;
    const QString error = readRecording(path, recording, drawing);
    if (!error.isEmpty())
        printLine(error);
    return error.isEmpty();
}

std::vector<RecordingError> readWithErrors(const QString& path, Recording& recording, std::size_t most)
{
    std::optional<dxf::Accounts> drawing;
    return readFrom(path, path, recording, most, drawing);
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
