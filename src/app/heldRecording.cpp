#include "app/heldRecording.h"

#include "app/ProgressLine.h"
#include "app/StagingFolder.h"
#include "app/console.h"
#include "app/importing.h"
#include "app/reading.h"
#include "recordfile/Recording.h"

#include <QFile>

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

namespace inkmacro {

namespace {

/// Files and pipes that this process has, and no other.
bool comesOnce(const QString& input)
{
    struct stat found = {};
    return input == "-" || (stat(QFile::encodeName(input).constData(), &found) == 0 &&
                            (S_ISFIFO(found.st_mode) || S_ISSOCK(found.st_mode)));
}

/// Why the input cannot be kept at the place, or empty text.
QString keep(const QString& input, const QString& place)
{
    QFile source(input);
    constexpr auto mode = QIODevice::ReadOnly | QIODevice::Unbuffered;
    if (!(input == "-" ? source.open(STDIN_FILENO, mode) : source.open(mode)))
        return "cannot be opened: " + source.errorString();
    QFile copy(place);
    ProgressLine line([&copy] { return "reading " + megabytes(copy.pos()); });
    if (!copy.open(QIODevice::WriteOnly) || !keepInput(source.handle(), copy, [&line] { line.update(); }))
        return "cannot be kept: " + qt_error_string(errno);
    return {};
}

} // namespace

std::optional<QString> holdRecording(const QString& input, const StagingFolder& folder)
{
    const auto place = [&folder](std::size_t number) {
        return QFile::decodeName(folder.file(kHeldNames[number]).c_str());
    };
    const QString name = input == "-" ? QStringLiteral("standard input") : input;
    QString held = input;
    if (comesOnce(input)) {
        held = place(0);
        if (const QString reason = keep(input, held); !reason.isEmpty()) {
            printLine(RecordingError{name, 0, {}, reason}.text());
            return {};
        }
    }
    if (!isDrawingFile(held))
        return held;
    if (!writeRecordingOf(held, name, place(1)))
        return {};
    return place(1);
}

} // namespace inkmacro
