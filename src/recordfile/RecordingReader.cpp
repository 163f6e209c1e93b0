#include "recordfile/RecordingReader.h"

#include "recordfile/ParseAhead.h"
#include "recordfile/TextPool.h"
#include "recordfile/drawingForms.h"
#include "recordfile/lineForms.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <new>

namespace inkmacro {

using namespace recordfile;

namespace {

/// So many lines that waiting for the other thread costs nothing, and so few that they stay in the processor's caches.
constexpr std::size_t kBatchBytes = 128 * 1024;

/// Puts the lines of a file into a recording, one by one.
class RecordingMaker
{
public:
    explicit RecordingMaker(Recording& recording) : recording_(recording), reading_{*recording.database, texts_} {}

    /// Throws FormError.
    void take(const ParsedLine& line)
    {
        if (!line.fault.isNull())
            throw FormError{{}, line.fault};
        const Json json(line.document.root(), reading_);
        static const std::vector<std::string_view> keys = lineKeys();
        const ChosenEntry chosen = json.chosenEntry(keys, "kind of line");
        const Json entry = json.entry(chosen.key, chosen.value);
        if (chosen.choice >= kActionLines)
            takeAction(actionChoices()[chosen.choice - kActionLines], entry, line.number);
        else
            takeOther(static_cast<LineKind>(chosen.choice), entry);
        begun_ = true;
    }

private:
    void takeAction(const Choice<OdRxObjectPtr>& choice, const Json& json, qint64 number)
    {
        recording_.actions.append(choice.read(json));
        recording_.actionLines.push_back(number);
    }

    void takeOther(LineKind kind, const Json& json)
    {
        if (kind == kHeaderLine) {
            if (begun_)
                json.fail("the header must be the first line");
            recording_.header = Form<Recording::Header>::read(json);
            return;
        }
        if (!recording_.actions.isEmpty())
            json.fail("this line must stand before the first action");
        if (kind == kObjectLine)
            return DrawingObjectForm::read(json);
        if (std::exchange(hasDrawing_, true))
            json.fail("the drawing has been described before");
        recording_.drawing = Form<Recording::Drawing>::read(json);
    }

    Recording& recording_;
    TextPool texts_;
    Reading reading_;
    bool begun_ = false;
    bool hasDrawing_ = false;
};

/// Nothing at the end of the file.
std::optional<RecordingError> errorOf(const LineBatch::Ending& ending, const QString& name, qint64 longestLine)
{
    switch (ending.outcome) {
    case LineReader::Outcome::Failed:
        return RecordingError{name, 0, {}, "cannot be read: " + ending.reason};
    case LineReader::Outcome::TooLong:
        return RecordingError{name, ending.number, {}, QString("the line is longer than %1 bytes").arg(longestLine)};
    default:
        return {};
    }
}

/// Up to `most`, each of another line.
std::vector<RecordingError> readLines(QIODevice& device, const QString& name, Recording& recording,
                                      const ReadingProgress& progress, qint64 longestLine, std::size_t most)
{
    std::vector<RecordingError> errors;
    const bool comesLineByLine = device.isSequential();
    const qint64 total = comesLineByLine ? -1 : device.size();
    LineParser parser(device, longestLine, comesLineByLine ? 1 : kBatchBytes);
    ParseAhead batches(parser, !comesLineByLine);
    RecordingMaker maker(recording);
    for (;;) {
        const LineBatch& batch = batches.next();
        if (progress)
            progress(batch.bytesRead, total);
        for (std::size_t i = 0; i < batch.count; ++i) {
            try {
                maker.take(batch.lines[i]);
            } catch (const FormError& error) {
                errors.push_back({name, batch.lines[i].number, error.path, error.message});
                if (errors.size() == most)
                    return errors;
            }
        }
        if (!batch.ending)
            continue;
        if (const auto error = errorOf(*batch.ending, name, longestLine))
            errors.push_back(*error);
        return errors;
    }
}

} // namespace

std::optional<RecordingError> ReadRecording(QIODevice& device, const QString& name, Recording& recording,
                                            const ReadingProgress& progress, qint64 longestLine)
{
    recording = Recording();
    const std::vector<RecordingError> errors = readLines(device, name, recording, progress, longestLine, 1);
    if (errors.empty())
        return {};
    recording = Recording();
    return errors.front();
}

std::optional<RecordingError> ReadFurther(QIODevice& device, const QString& name, Recording& recording)
{
    const std::vector<RecordingError> errors = readLines(device, name, recording, {}, kLongestLine, 1);
    return errors.empty() ? std::nullopt : std::optional(errors.front());
}

std::vector<RecordingError> ReadWithErrors(QIODevice& device, const QString& name, Recording& recording,
                                           std::size_t most, const ReadingProgress& progress)
{
    recording = Recording();
    return readLines(device, name, recording, progress, kLongestLine, most);
}

std::vector<RecordingError> ReadWithErrors(const QString& path, Recording& recording, std::size_t most,
                                           const ReadingProgress& progress)
{
    recording = Recording();
    const bool standardInput = path == "-";
    const QString name = standardInput ? QStringLiteral("standard input") : path;
    QFile file;
    if (!standardInput)
        file.setFileName(path);
    // Unbuffered: the lines have a buffer of their own.
    constexpr auto mode = QIODevice::ReadOnly | QIODevice::Unbuffered;
    if (!(standardInput ? file.open(stdin, mode) : file.open(mode)))
        return {{name, 0, {}, "cannot be opened: " + file.errorString()}};
    std::vector<RecordingError> errors = ReadWithErrors(file, name, recording, most, progress);
    if (!standardInput)
        recording.folder = QFileInfo(path).path();
    return errors;
}

std::optional<RecordingError> ReadRecording(const QString& path, Recording& recording, const ReadingProgress& progress)
{
    const std::vector<RecordingError> errors = ReadWithErrors(path, recording, 1, progress);
    if (errors.empty())
        return {};
    recording = Recording();
    return errors.front();
}

} // namespace inkmacro
