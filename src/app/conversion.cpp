// One recording, one target: what the host does around a conversion.

#include "app/conversion.h"

#include "app/ExitStatus.h"
#include "app/LoadedModule.h"
#include "app/MacroMap.h"
#include "app/ProgressLine.h"
#include "app/ReportPart.h"
#include "app/StagedResult.h"
#include "app/StepMap.h"
#include "app/console.h"
#include "app/earlyEnd.h"
#include "app/importReport.h"
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

#include <algorithm>
#include <cerrno>
#include <memory>
#include <utility>

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
    GetFxSystemServices()->SetInt16(kSameIdentifiers, host.sameIdentifiers ? 1 : 0);
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
    if (job.toStandardOutput || job.home)
        return job.shownMacro();
    for (const QString& file : job.files())
        if (!result.has(file))
            return file;
    return job.macro;
}

/// What was noted last is of the action by which the conversion failed.
QString failureReason(const Job& job)
{
    if (const std::vector<CFxFailedFile>& failed = GetFxSystemServices()->GetFailedFiles(); !failed.empty())
        return ": " + failed.back().reason;
    const CFxConversionNotes& notes = GetFxSystemServices()->Notes();
    if (!notes.GetLosses().empty())
        return QString(": %1: %2").arg(notes.GetLosses().back().what, notes.GetLosses().back().reason);
    return notes.GetLossCount() > 0 ? QString("; inkmacro check %1 tells why").arg(job.input) : QString();
}

/// Tells its user, and gives what came of the conversion.
Outcome failure(const QString& message)
{
    complain(message);
    return {kFailed, message};
}

/// The module had files which could be opened but not filled.
QString incompleteFiles(const Job& job)
{
    QStringList messages;
    const QString directory = job.macro.left(job.macro.lastIndexOf('/') + 1);
    for (const auto& [path, reason] : GetFxSystemServices()->GetFailedFiles())
        messages.append(QString("%1%2 could not be written whole: %3")
                            .arg(directory, QFileInfo(path).fileName(), reason.toQString()));
    return messages.join("; ");
}

/// Line by line, so that none is cut where a terminal shows it.
Outcome printMacro(const QString& path)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        while (!file.atEnd() && file.error() == QFileDevice::NoError)
            printOut(file.readLine());
    if (file.error() == QFileDevice::NoError)
        return {kDone, {}, {"-"}};
    return failure("the macro cannot be read again: " + file.errorString());
}

/// A drawing may have dozens of line styles that no file holds.
void tellProblems(const Job& job)
{
    constexpr std::size_t most = 3;
    const auto& problems = GetFxSystemServices()->GetProblems();
    const auto tell = [&](const QString& text) {
        complain(QString("%1 to %2: %3").arg(job.input, targetName(*job.target), text));
    };
    // One more takes the place of telling that there is one more.
    const std::size_t told = problems.size() > most + 1 ? most : problems.size();
    for (std::size_t i = 0; i < told; ++i)
        tell(problems[i]);
    if (told < problems.size())
        tell(QString("and %1 more such").arg(problems.size() - told));
}

/// Places the files, or prints the macro.
Outcome convertRead(const Job& job, const Recording& recording, const HostSettings& host)
{
    StagedResult result(job.files(), job.home);
    CFxConversionNotes& notes = GetFxSystemServices()->Notes();
    std::optional<MacroMap> map;
    std::optional<StepMapWriter> steps;
    if (job.hasMap) {
        map.emplace(Job::mapOf(result.firstFile()), job, recording);
        notes.OnLines([&map](const CFxMacroLines& lines) { map->add(lines); });
    } else if (job.hasSteps) {
        steps.emplace(Job::stepsOf(result.firstFile()), recording.actions);
        notes.OnLines([&steps](const CFxMacroLines& lines) { steps->add(lines); });
    }
    const auto silence = qScopeGuard([&notes] { notes.OnLines({}); });
    const std::int32_t status = runModule(*job.target, result.firstFile(), recording, host);
    // A page has two macros of a target.
    if (!job.hasSteps || job.repaired)
        tellProblems(job);
    if (status != kFxSuccess) {
        return failure(
            QString("conversion to %1 failed with status %2: %3%4")
                .arg(targetName(*job.target), QString::number(status), failedFile(job, result), failureReason(job)));
    }
    if (job.toStandardOutput)
        return printMacro(result.firstFile());
    if (const QString incomplete = incompleteFiles(job); !incomplete.isEmpty())
        return failure(incomplete);
    if (const QString reason = map ? map->finish() : QString(); !reason.isEmpty())
        return failure(QString("%1 could not be written whole: %2").arg(Job::mapOf(job.macro), reason));
    if (const QString reason = steps ? steps->finish() : QString(); !reason.isEmpty())
        return failure(QString("%1 could not be written whole: %2").arg(Job::stepsOf(job.macro), reason));
    // Somebody else may have put a project there meanwhile.
    QString others;
    const QStringList placed = result.place([&] { return (others = otherProjectsIn({job})).isEmpty(); });
    return others.isEmpty() ? Outcome{kDone, {}, placed} : failure(others);
}

Outcome convertRecording(const Job& job, HostSettings host, Recording& recording, std::optional<dxf::Accounts>& drawing)
{
    if (const QString error = readRecording(job.input, recording, drawing, job.kept); !error.isEmpty()) {
        printLine(error);
        return {kUnreadable, error};
    }
    // A drawing has no recorder whose faults a macro could be faithful to.
    host.repair = host.repair || job.repaired || (drawing && !host.faithful);
    if (const QString refusal = job.toStandardOutput ? QString() : refusalOf(job.files()); !refusal.isEmpty())
        return failure(refusal);
    try {
        return convertRead(job, recording, host);
    } catch (const PlacingError& error) {
        return failure(error.message());
    } catch (const std::bad_alloc&) {
        endWithoutMemory();
    } catch (const std::exception& error) {
        return failure(QString("conversion to %1 failed: %2: %3")
                           .arg(targetName(*job.target), QString::fromUtf8(error.what()), job.shownMacro()));
    }
}

bool failsOn(const CFxConversionNotes& notes, const Telling& telling)
{
    const NoteCounts counts = countsOf(notes);
    return (telling.failsOnLoss && counts.losses > 0) || (telling.failsOnAssumption && counts.assumptions > 0) ||
           (telling.failsOnFault && counts.faults > 0);
}

} // namespace

int convertOne(const Job& job, const HostSettings& host, const Telling& telling, ReportPart* part)
{
    nameWork(QString("converting %1 to %2").arg(job.input, targetName(*job.target)));
    // Never destroyed: the end of the process gives the memory back at once, record by record it takes a while.
    static Recording& recording = *new Recording;
    GetFxSystemServices()->SetInt16(kIgnoreFaults, telling.looksAtFaults() ? 0 : 1);
    CFxConversionNotes& notes = GetFxSystemServices()->Notes();
    notes.KeepAll(part);
    std::optional<dxf::Accounts> drawing;
    const Outcome outcome = convertRecording(job, host, recording, drawing);
    if (!telling.quiet && outcome.status == kDone) {
        const QStringList talk{drawing ? importText(*drawing) : QString(), talkText(notes, !part)};
        for (const QString& told : talk)
            if (!told.isEmpty())
                printLine(job.shownMacro() + ": " + told);
    }
    if (!job.toStandardOutput && !job.home && !telling.reportsToOutput())
        for (const QString& file : outcome.files)
            printOut(file + '\n');
    int status = outcome.status;
    if (part) {
        nameWork(QString("reporting on %1 to %2%3")
                     .arg(job.input, targetName(*job.target), status == kDone ? ", whose files are written" : ""));
        if (!part->write(outcome, notes, recording, drawing)) {
            complain("the report on " + job.shownMacro() + " cannot be kept: " + qt_error_string(errno));
            status = std::max<int>(status, kFailed);
        }
    }
    return status == kDone && failsOn(notes, telling) ? kFailed : status;
}

int convertAlone(const Job& job, const HostSettings& host, const Telling& telling, ReportDocument& report)
{
    auto part = telling.report == ReportForm::None ? nullptr : std::make_unique<ReportPart>();
    if (part && !part->create()) {
        complain("the report cannot be kept: " + qt_error_string(errno));
        return kFailed;
    }
    const int status = convertOne(job, host, telling, part.get());
    report.add(job, std::move(part), {status});
    return status;
}

} // namespace inkmacro
