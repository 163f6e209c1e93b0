// Bytes as a recording file: read, and if they are one, converted and written again.

#include "frame/CFxConverterIWAPI.h"
#include "host/db/OdDbClasses.h"
#include "host/kernel/CFxServices.h"
#include "objects/snapshot.h"
#include "recordfile/RecordingReader.h"
#include "recordfile/RecordingWriter.h"
#include "targets/Target.h"

#include <QBuffer>
#include <QTemporaryDir>

#include <cstdlib>

using namespace inkmacro;

namespace {

void convert(const Recording& recording)
{
    const auto language = static_cast<int>(Target::CSharp);
    const int recordingLanguage = recording.header.language.value_or(language);
    GetFxSystemServices()->SetInt16("RecordingLanguage", static_cast<std::int16_t>(recordingLanguage));
    CFxDocument document(recording.database.get());
    GetFxSystemServices()->SetActiveDocument(&document);

    if (!recording.drawing.currentLayout.isNull())
        recording.database->setCurrentLayoutId(recording.database->getOdDbObjectId(recording.drawing.currentLayout));
    for (const OdDbObjectId& id : recording.database->objectIds()) {
        std::vector<CFxSnapshotRecord> records;
        try {
            if (const OdDbObjectPtr object = id.openObject(true))
                TakeSnapshot(object.get(), records);
        } catch (const OdError&) {
            // The current layout may be any object.
        }
    }

    const QTemporaryDir folder;
    const auto converter =
        CreateConverter(static_cast<std::uint32_t>(language), static_cast<std::uint32_t>(recording.header.mode),
                        static_cast<CFxValueContext>(recording.header.context));
    converter->Convert(folder.filePath("macro.cs"), recording.actions);
    GetFxSystemServices()->SetActiveDocument(nullptr);
}

QByteArray written(const Recording& recording)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return WriteRecording(recording, buffer) ? buffer.data() : QByteArray();
}

std::optional<RecordingError> read(QByteArray bytes, Recording& recording)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return ReadRecording(buffer, "fuzz", recording);
}

/// What has been read and written must be read as the same.
void checkWriting(const Recording& recording)
{
    const QByteArray once = written(recording);
    if (once.isEmpty())
        return;
    Recording again;
    if (const auto error = read(once, again)) {
        qCritical("%s\n%s", qPrintable(error->text()), once.constData());
        std::abort();
    }
    if (const QByteArray twice = written(again); twice != once) {
        qCritical("%s\n%s", once.constData(), twice.constData());
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Recording recording;
    if (const auto error = read(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)), recording)) {
        error->text();
        return 0;
    }
    checkWriting(recording);
    convert(recording);
    return 0;
}
