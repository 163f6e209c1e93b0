#include "app/runCommand.h"

#include "app/CommandLine.h"
#include "app/ExitStatus.h"
#include "app/FilePrint.h"
#include "app/LoadedModule.h"
#include "app/StagedResult.h"
#include "app/TerminalIO.h"
#include "app/console.h"
#include "app/earlyEnd.h"
#include "app/reading.h"
#include "host/kernel/CFxCommand.h"
#include "recordfile/AddedEntities.h"
#include "recordfile/OpenDrawing.h"
#include "recordfile/RecordingWriter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <functional>
#include <optional>

namespace inkmacro {

namespace {

CFxCommandPtr findCommand(const QString& name)
{
    if (CFxCommandPtr command = GetFxCommandStack()->LookupCommand(name))
        return command;
    QStringList known;
    for (const CFxCommandPtr& command : GetFxCommandStack()->GetCommands())
        known.append(command->localName());
    throw WrongUse(QString("unknown command \"%1\"; known are %2").arg(name, known.join(", ")));
}

std::int32_t execute(CFxCommand& command, OdDbDatabase& database)
{
    TerminalIO io(database);
    CFxCommandContext context(database, &io);
    try {
        return command.Execute(&context);
    } catch (const OdError& error) {
        complain(QString::fromUtf8(error.what()));
        return kFxFailure;
    }
}

/// What the recording says of its drawing as a whole, as the command has left it and seen from another folder.
void updateDrawing(Recording& recording, const QString& output)
{
    recording.drawing.lineStyle = recording.database->currentLineStyleId().getHandle();
    const QDir from(recording.folder);
    const QDir to(QFileInfo(output).path());
    if (from.canonicalPath() == to.canonicalPath())
        return;
    for (QString& folder : recording.drawing.lineStyleFolders)
        if (QDir::isRelativePath(folder))
            folder = to.relativeFilePath(from.absoluteFilePath(folder));
}

/// A recording that a command has changed.
struct Changed
{
    const Recording& recording;
    const AddedEntities& added;
};

/// False when `mayReplace` forbids it. Raises PlacingError.
bool write(const Changed& changed, const QString& output, const std::function<bool()>& mayReplace = {})
{
    StagedResult result({output});
    QFile file(result.firstFile());
    if (!file.open(QIODevice::WriteOnly))
        throw PlacingError(output, file.errorString());
    const auto leavesOut = [&](const OdDbObject& object) { return changed.added.isUntouched(object); };
    if (!WriteRecording(changed.recording, file, leavesOut) || !file.flush())
        throw PlacingError(output, file.error() == QFileDevice::NoError
                                       ? "the drawing has data that no recording can hold"
                                       : file.errorString());
    file.close();
    return !result.place(mayReplace).isEmpty();
}

/// To a file that nothing stands at, beside the one that others have changed; gives its name. Raises PlacingError.
QString writeBeside(const Changed& changed, const QString& output)
{
    const auto isFree = [](const QString& name) { return !QFileInfo::exists(name) && !QFileInfo(name).isSymLink(); };
    QString name = output + ".new";
    for (int number = 2; !isFree(name) || !write(changed, name, [&] { return isFree(name); }); ++number)
        name = output + ".new" + QString::number(number);
    return name;
}

/// In the place of the recording as it was read; else beside it, with a message and false. Raises PlacingError.
bool writeBack(const Changed& changed, const QString& path, const FilePrint& asRead)
{
    // The lock is that of the folder where the file is, whatever links lead there.
    const QString file = QFileInfo(path).isSymLink() ? QFileInfo(path).canonicalFilePath() : path;
    if (!file.isEmpty() && write(changed, file, [&] { return asRead.stillHolds(); }))
        return true;
    const QString beside = writeBeside(changed, path);
    complain(QString("%1 was changed by somebody else meanwhile and stays as it is; the new drawing is in %2")
                 .arg(path, beside));
    return false;
}

} // namespace

int runCommand(const QString& path, const QString& name, const QString& output)
{
    nameWork(QString("running %1 on %2").arg(name, path));
    const LoadedModule module;
    const CFxCommandPtr command = findCommand(name);
    // Taken before the recording is read: what comes in between counts as a change then, and is not lost.
    std::optional<FilePrint> asRead;
    if (isSameFile(path, output))
        asRead.emplace(output);
    Recording recording;
    if (!readOrComplain(path, recording))
        return kUnreadable;
    if (const QString refusal = refusalOf({output}); !refusal.isEmpty()) {
        complain(refusal);
        return kFailed;
    }
    const AddedEntities added(recording);
    const OpenDrawing drawing(recording);
    const std::int32_t status = execute(*command, *recording.database);
    for (const CFxString& problem : GetFxSystemServices()->GetProblems())
        complain(problem);
    if (status != kFxSuccess) {
        const QString how = status == kFxCancelled ? "was cancelled" : QString("ended with status %1").arg(status);
        complain(QString("%1 %2; nothing is written").arg(command->localName(), how));
        return kFailed;
    }
    updateDrawing(recording, output);
    try {
        if (asRead)
            return writeBack({recording, added}, output, *asRead) ? kDone : kFailed;
        write({recording, added}, output);
    } catch (const PlacingError& error) {
        complain(error.message());
        return kFailed;
    }
    return kDone;
}

} // namespace inkmacro
