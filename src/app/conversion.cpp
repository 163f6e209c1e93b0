// One recording, one target: what the host does around a conversion.

#include "app/conversion.h"

#include "app/ExitStatus.h"
#include "app/LoadedModule.h"
#include "app/OpenDrawing.h"
#include "app/ProgressLine.h"
#include "app/console.h"
#include "app/reading.h"
#include "app/turns.h"
#include "host/db/OdDbClasses.h"
#include "host/kernel/CFxRegistry.h"
#include "host/kernel/CFxServices.h"

#include <QDir>
#include <QFileInfo>

namespace inkmacro {

namespace {

/// The ConversionMode in which prompts are shown again.
constexpr int kReplay = 1;

/// The recorder takes its first snapshot when recording begins, and the module notes the layout of that moment. Here
/// the moment is past, and the layout may have another name now, so a drawing is made up that shows it.
void repeatFirstSnapshot(LoadedModule& module, const Recording::Sheet& sheet)
{
    OdDbDatabase database;
    const auto layout = odrxNew<OdDbLayout>(sheet.name, sheet.model);
    database.setCurrentLayoutId(database.addObject(OdDbHandle(1), layout));
    const OpenDrawing drawing(database);
    std::vector<CFxSnapshotRecord> records;
    module->TakeSnapshot(layout.get(), records);
}

std::int32_t runModule(const Job& job, const Recording& recording, const HostSettings& host)
{
    LoadedModule module;
    const auto code = static_cast<std::uint32_t>(job.target->target);
    const int language = host.recordingLanguage.value_or(recording.header.language.value_or(static_cast<int>(code)));
    GetFxSystemServices()->SetInt16("RecordingLanguage", static_cast<std::int16_t>(language));
    if (host.installDir)
        GetFxRegistry()->SetText("SOFTWARE\\Velmorand\\Inkwright", "InstallDir", *host.installDir);
    if (recording.header.sheet)
        repeatFirstSnapshot(module, *recording.header.sheet);

    const OpenDrawing drawing(recording);
    const ProgressLine line([&] { return "writing " + megabytes(QFileInfo(job.macro).size()); });
    const int mode = host.replay ? kReplay : recording.header.mode;
    return module->ConvertRecording(job.macro, code, static_cast<std::uint32_t>(mode),
                                    static_cast<CFxValueContext>(recording.header.context), recording.actions);
}

void printWritten(const Job& job)
{
    for (const QString& file : QStringList(job.macro) + job.projectFiles())
        if (QFileInfo::exists(file))
            printOut(file + '\n');
}

/// A part of a project file is worse than none. False when there was one.
bool removeIncompleteFiles()
{
    const std::vector<CFxString>& files = GetFxSystemServices()->GetIncompleteFiles();
    for (const CFxString& file : files) {
        QFile::remove(file);
        complain(QString("%1 could not be written whole and was removed").arg(QDir::cleanPath(file)));
    }
    return files.empty();
}

/// The file that a failure is about: the macro, or when that stands, the first file of the project which cannot be
/// opened.
QString failedFile(const Job& job)
{
    if (!QFileInfo(job.macro).isFile())
        return job.macro;
    for (const QString& name : job.projectFiles()) {
        QFile file(name);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::ExistingOnly))
            return name;
    }
    return job.macro;
}

} // namespace

int convertOne(const Job& job, const HostSettings& host)
{
    Recording recording;
    if (!readOrComplain(job.input, recording))
        return kUnreadable;
    waitForTurn();
    if (const QString refusal = refusalOf(job.macro); !refusal.isEmpty()) {
        complain(refusal);
        return kFailed;
    }
    try {
        const std::int32_t status = runModule(job, recording, host);
        if (status == kFxSuccess && removeIncompleteFiles()) {
            printWritten(job);
            return kDone;
        }
        if (status == kFxSuccess)
            return kFailed;
        complain(QString("conversion to %1 failed with status %2: %3")
                     .arg(targetName(*job.target))
                     .arg(status)
                     .arg(failedFile(job)));
    } catch (const std::exception& error) {
        complain(QString("conversion to %1 failed: %2: %3")
                     .arg(targetName(*job.target), QString::fromUtf8(error.what()), job.macro));
    }
    return kFailed;
}

} // namespace inkmacro
