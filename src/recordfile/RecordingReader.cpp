#include "recordfile/RecordingReader.h"

#include "recordfile/LineReader.h"
#include "recordfile/TextPool.h"
#include "recordfile/actionForms.h"
#include "recordfile/jsonFaults.h"
#include "recordfile/lineForms.h"
#include "recordfile/lineKinds.h"

#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <new>

namespace inkmacro {

using namespace recordfile;

namespace {

constexpr std::size_t kLongLine = 1024 * 1024;

/// Puts the lines of a file into a recording, one by one.
class RecordingMaker
{
public:
    explicit RecordingMaker(Recording& recording) : recording_(recording), reading_{*recording.database, texts_} {}

    /// Throws FormError.
    void take(std::string_view line, qint64 number)
    {
        simdjson::dom::element element;
        if (const auto code = parser_.parse(line.data(), line.size(), false).get(element); code != simdjson::SUCCESS)
            throw FormError{{}, explainFault(code, line)};
        // Of a long line what the parser has noted beside the document takes as much memory as what is made of it now.
        if (line.size() > kLongLine && parser_.allocate(kLongLine) != simdjson::SUCCESS)
            throw std::bad_alloc();
        const Json json(element, reading_);
        static const std::vector<std::string_view> keys = lineKeys();
        const ChosenEntry chosen = chosenEntry(json, keys, "kind of line");
        const Json entry = json.entry(chosen.key, chosen.value);
        if (chosen.choice >= kActionLines)
            takeAction(actionChoices()[chosen.choice - kActionLines], entry, number);
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
    simdjson::dom::parser parser_;
    bool begun_ = false;
    bool hasDrawing_ = false;
};

bool isBlank(std::string_view line)
{
    return line.find_first_not_of(" \t\r") == std::string_view::npos;
}

std::optional<RecordingError> readLines(QIODevice& device, const QString& name, Recording& recording,
                                        const ReadingProgress& progress, qint64 longestLine)
{
    const qint64 total = device.isSequential() ? -1 : device.size();
    LineReader lines(device, longestLine, [&](qint64 read) {
        if (progress)
            progress(read, total);
    });
    RecordingMaker maker(recording);
    std::string_view line;
    for (qint64 number = 1;; ++number) {
        switch (lines.next(line)) {
        case LineReader::Outcome::End:
            return {};
        case LineReader::Outcome::Failed:
            return RecordingError{name, 0, {}, "cannot be read: " + device.errorString()};
        case LineReader::Outcome::TooLong:
            return RecordingError{name, number, {}, QString("the line is longer than %1 bytes").arg(longestLine)};
        case LineReader::Outcome::Line:
            break;
        }
        if (isBlank(line))
            continue;
        try {
            maker.take(line, number);
        } catch (const FormError& error) {
            return RecordingError{name, number, error.path, error.message};
        }
    }
}

} // namespace

std::optional<RecordingError> ReadRecording(QIODevice& device, const QString& name, Recording& recording,
                                            const ReadingProgress& progress, qint64 longestLine)
{
    recording = Recording();
    auto error = readLines(device, name, recording, progress, longestLine);
    if (error)
        recording = Recording();
    return error;
}

std::optional<RecordingError> ReadRecording(const QString& path, Recording& recording, const ReadingProgress& progress)
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
        return RecordingError{name, 0, {}, "cannot be opened: " + file.errorString()};
    auto error = ReadRecording(file, name, recording, progress);
    if (!standardInput)
        recording.folder = QFileInfo(path).path();
    return error;
}

} // namespace inkmacro
