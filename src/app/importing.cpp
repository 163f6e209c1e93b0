// A drawing file becomes a recording.

#include "app/importing.h"

#include "app/ExitStatus.h"
#include "app/ProgressLine.h"
#include "app/StagedResult.h"
#include "app/changeForms.h"
#include "app/console.h"
#include "app/importReport.h"
#include "app/reading.h"
#include "dxf/Changes.h"
#include "dxf/DrawingFile.h"
#include "dxf/Import.h"
#include "recordfile/JsonOut.h"
#include "recordfile/actionForms.h"

namespace inkmacro {

namespace {

/// So much is written at once.
constexpr int kPiece = 1 << 16;

/// Gives `write` the lines of the recording, piece by piece; it says whether they could be written.
bool writeLines(dxf::ActionSource& import, qint64 size, const std::function<bool(const QByteArray&)>& write)
{
    ProgressLine line([&] { return "reading " + progressBar(static_cast<qint64>(import.offset()), size); });
    if (!write(import.head()))
        return false;
    recordfile::JsonOut out{CFxValueContext{}};
    while (const OdRxObjectPtr action = import.next()) {
        recordfile::Form<OdRxObjectPtr>::write(out, action);
        out.endLine();
        if (out.bytes().size() < kPiece)
            continue;
        line.update();
        if (!write(out.bytes()))
            return false;
        out.clear();
    }
    return write(out.bytes());
}

/// `name` is what messages call the file. Raises PlacingError.
void writeFile(dxf::ActionSource& import, qint64 size, const QString& place, const QString& name)
{
    QFile file(place);
    if (!file.open(QIODevice::WriteOnly) ||
        !writeLines(import, size, [&](const QByteArray& lines) { return file.write(lines) == lines.size(); }) ||
        !file.flush())
        throw PlacingError(name, file.errorString());
}

QString shownName(const QString& path)
{
    return path == "-" ? QStringLiteral("standard input") : path;
}

/// A drawing and the file that it is in.
struct OpenedDrawing
{
    dxf::DrawingFile file;
    std::optional<dxf::Drawing> drawing;

    /// Tells why when it cannot be read.
    bool open(const QString& path) { return open(path, shownName(path)); }
    bool open(const QString& path, const QString& name)
    {
        if (!file.open(path)) {
            printLine(name + ": cannot be read: " + file.error());
            return false;
        }
        drawing.emplace(file.bytes());
        if (!drawing->isValid())
            printLine(noDrawing(name, *drawing).text());
        return drawing->isValid();
    }
};

std::unique_ptr<dxf::ActionSource> sourceOf(OpenedDrawing& opened, std::optional<OpenedDrawing>& older,
                                            OdDbDatabase& ids, const CommandLine& line)
{
    if (older)
        return std::make_unique<dxf::Changes>(*older->drawing, *opened.drawing, ids, line.import, changeForms());
    return std::make_unique<dxf::Import>(*opened.drawing, ids, line.import);
}

} // namespace

int importDrawing(const CommandLine& line)
{
    const QString path = line.files.front();
    const QString name = shownName(path);
    OpenedDrawing opened;
    std::optional<OpenedDrawing> older;
    if (!opened.open(path) || (line.since && !older.emplace().open(*line.since)))
        return kUnreadable;
    OdDbDatabase ids;
    const std::unique_ptr<dxf::ActionSource> import = sourceOf(opened, older, ids, line);
    const auto size = static_cast<qint64>(opened.file.bytes().size());
    const bool toOutput = !line.output || line.output == "-";
    try {
        if (toOutput) {
            writeLines(*import, size, [](const QByteArray& lines) {
                printOut(lines);
                return true;
            });
        } else {
            StagedResult result({*line.output});
            writeFile(*import, size, result.firstFile(), *line.output);
            result.place();
        }
    } catch (const PlacingError& error) {
        complain(error.message());
        return kFailed;
    }
    if (line.telling.report != ReportForm::None) {
        const QByteArray report = '{' + importMembers(import->accounts()) + "}\n";
        toOutput ? printError(report) : printOut(report);
    } else if (!line.telling.quiet) {
        for (const QString& told : importLines(import->accounts()))
            printLine(name + ": " + told);
    }
    return kDone;
}

bool writeRecordingOf(const QString& path, const QString& name, const QString& place)
{
    OpenedDrawing opened;
    if (!opened.open(path, name))
        return false;
    OdDbDatabase ids;
    dxf::Import import(*opened.drawing, ids, {});
    writeFile(import, static_cast<qint64>(opened.file.bytes().size()), place, place);
    return true;
}

} // namespace inkmacro
