// One recording, one target: what the host does around a conversion.

#include "app/conversion.h"

#include "app/ExitStatus.h"
#include "app/LoadedModule.h"
#include "app/ProgressLine.h"
#include "app/StagedResult.h"
#include "app/console.h"
#include "app/earlyEnd.h"
#include "app/otherProjects.h"
#include "app/reading.h"
#include "app/report.h"
#include "host/kernel/CFxRegistry.h"
#include "host/kernel/CFxServices.h"
#include "recordfile/OpenDrawing.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

namespace inkmacro {

namespace {

/// The ConversionMode in which prompts are shown again.
constexpr int kReplay = 1;

} // namespace

std::int32_t runModule(const TargetRow& target, const QString& macro, const Recording& recording,
                       const HostSettings& host)
{
    LoadedModule module;
    const auto code = static_cast<std::uint32_t>(target.target);
    const int language = host.recordingLanguage.value_or(recording.header.language.value_or(static_cast<int>(code)));
    GetFxSystemServices()->SetInt16(kRecordingLanguage, static_cast<std::int16_t>(language));
    GetFxSystemServices()->SetInt16(kRepairMacros, host.repair ? 1 : 0);
    if (host.installDir)
        GetFxRegistry()->SetText(kInstallationKey, kInstallDir, *host.installDir);
    if (recording.header.sheet) {
        const OpenSheet sheet(*recording.header.sheet);
        std::vector<CFxSnapshotRecord> records;
        module->TakeSnapshot(sheet.layout(), records);
    }
    const OpenDrawing drawing(recording);
    if (host.lineStyles) {
        std::vector<OdString> folders = recording.database->lineStyleFolders();
        folders.insert(folders.begin(), QDir(*host.lineStyles).absolutePath());
        recording.database->setLineStyleFolders(std::move(folders));
    }
    ProgressLine line([&] { return "writing " + megabytes(QFileInfo(macro).size()); });
    CFxConversionNotes& notes = GetFxSystemServices()->Notes();
    notes.OnAction([&line] { line.update(); });
    const auto silence = qScopeGuard([&notes] { notes.OnAction({}); });
    const int mode = host.replay ? kReplay : recording.header.mode;
    return module->ConvertRecording(macro, code, static_cast<std::uint32_t>(mode),
                                    static_cast<CFxValueContext>(recording.header.context), recording.actions);
}

namespace {

/// The file that a failure is about: the macro, or when that has been written, the first one of the project that has
/// not.
QString failedFile(const Job& job, const StagedResult& result)
{
    if (job.toStandardOutput)
        return job.shownMacro();
    for (const QString& file : job.files())
        if (!result.has(file))
            return file;
    return job.macro;
}

/// Whether the module had files which could be opened but not filled; they are named.
bool complainOfIncompleteFiles(const Job& job)
{
    const std::vector<CFxFailedFile>& incomplete = GetFxSystemServices()->GetFailedFiles();
    const QString directory = job.macro.left(job.macro.lastIndexOf('/') + 1);
    for (const auto& [path, reason] : incomplete)
        complain(QString("%1%2 could not be written whole: %3").arg(directory, QFileInfo(path).fileName(), reason));
    return !incomplete.empty();
}

/// Line by line, so that none is cut where a terminal shows it. Gives an exit status.
int printMacro(const QString& path)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        while (!file.atEnd() && file.error() == QFileDevice::NoError)
            printOut(file.readLine());
    if (file.error() == QFileDevice::NoError)
        return kDone;
    complain("the macro cannot be read again: " + file.errorString());
    return kFailed;
}

/// Places the files, whose paths it adds, or prints the macro. Gives an exit status, and has complained of a failure.
int convertRead(const Job& job, const Recording& recording, const HostSettings& host, QStringList& placed)
{
    StagedResult result(job.files());
    const std::int32_t status = runModule(*job.target, result.firstFile(), recording, host);
    for (const CFxString& problem : GetFxSystemServices()->GetProblems())
        complain(QString("%1 to %2: %3").arg(job.input, targetName(*job.target), problem));
    if (status != kFxSuccess) {
        const std::vector<CFxFailedFile>& failed = GetFxSystemServices()->GetFailedFiles();
        complain(QString("conversion to %1 failed with status %2: %3%4")
                     .arg(targetName(*job.target), QString::number(status), failedFile(job, result),
                          failed.empty() ? QString() : ": " + failed.back().reason));
        return kFailed;
    }
    if (job.toStandardOutput)
        return printMacro(result.firstFile());
    if (complainOfIncompleteFiles(job))
        return kFailed;
    // Somebody else may have put a project there meanwhile.
    QString others;
    placed = result.place([&] { return (others = otherProjectsIn({job})).isEmpty(); });
    if (!others.isEmpty())
        complain(others);
    return others.isEmpty() ? kDone : kFailed;
}

/// Gives an exit status.
int convertOrComplain(const Job& job, const HostSettings& host, Recording& recording, QStringList& placed)
{
    if (!readOrComplain(job.input, recording))
        return kUnreadable;
    const QString refusal = job.toStandardOutput ? QString() : refusalOf(job.files());
    if (!refusal.isEmpty()) {
        complain(refusal);
        return kFailed;
    }
    try {
        return convertRead(job, recording, host, placed);
    } catch (const PlacingError& error) {
        complain(error.message());
    } catch (const std::bad_alloc&) {
        endWithoutMemory();
    } catch (const std::exception& error) {
        complain(QString("conversion to %1 failed: %2: %3")
                     .arg(targetName(*job.target), QString::fromUtf8(error.what()), job.shownMacro()));
    }
    return kFailed;
}

} // namespace

int convertOne(const Job& job, const HostSettings& host, const Telling& telling)
{
    nameWork(QString("converting %1 to %2").arg(job.input, targetName(*job.target)));
    // Never destroyed: the end of the process gives the memory back at once, record by record it takes a while.
    static Recording& recording = *new Recording;
    const bool asked = telling.report != ReportForm::None;
    const bool tellsNothing = telling.quiet && !asked;
    GetFxSystemServices()->SetInt16(kIgnoreFaults, tellsNothing ? 1 : 0);
    CFxConversionNotes& notes = GetFxSystemServices()->Notes();
    notes.KeepAll(asked);
    QStringList placed;
    const int status = convertOrComplain(job, host, recording, placed);
    const QString counts = countText(notes);
    if (status == kDone && !telling.quiet && !counts.isEmpty())
        printLine(job.shownMacro() + ": " + counts + (asked ? "" : "; see --report"));
    if (asked) {
        nameWork(QString("reporting on %1 to %2%3")
                     .arg(job.input, targetName(*job.target), status == kDone ? ", whose files are written" : ""));
        printPart(job, status, telling.report, Noted{&notes, &recording});
    } else {
        for (const QString& file : placed)
            printOut(file + '\n');
    }
    return status;
}

} // namespace inkmacro
