// Reading recordings, and the command that does no more than that.

#include "app/reading.h"

#include "app/ExitStatus.h"
#include "app/ProgressLine.h"
#include "app/console.h"
#include "app/valueText.h"
#include "recordfile/RecordingReader.h"

namespace inkmacro {

bool readOrComplain(const QString& path, Recording& recording)
{
    std::optional<RecordingError> error;
    {
        qint64 done = 0;
        qint64 total = 0; // not above 0 when it is not known
        ProgressLine line([&] { return "reading " + (total > 0 ? progressBar(done, total) : megabytes(done)); });
        error = ReadRecording(path, recording, [&](qint64 doneNow, qint64 totalNow) {
            done = doneNow;
            total = totalNow;
            line.update();
        });
    }
    if (error)
        printLine(error->text());
    return !error;
}

int checkRecordings(const QStringList& files)
{
    int status = kDone;
    for (const QString& file : files) {
        Recording recording;
        if (readOrComplain(file, recording))
            printOut(
                QString("%1: ok, %2\n").arg(printable(file), counted(recording.actions.length(), "action", "actions")));
        else
            status = kUnreadable;
    }
    return status;
}

} // namespace inkmacro
