// Bytes as a recording file: read, and if they are one, converted and written again.

#include "fuzzing.h"

#include "host/db/OdDbClasses.h"
#include "objects/snapshot.h"
#include "recordfile/OpenDrawing.h"
#include "recordfile/RecordingWriter.h"

#include <QBuffer>

#include <cstdlib>

using namespace inkmacro;

namespace {

/// Its snapshot is as large as the product of two lists.
bool isLargeTable(const OdDbObject& object)
{
    constexpr unsigned mostCells = 10'000;
    const auto table = odrxCast<OdDbTable>(&object);
    return table && table->numRows() * std::uint64_t{table->numColumns()} > mostCells;
}

void takeSnapshots(const Recording& recording)
{
    const OpenDrawing drawing(recording);
    for (const OdDbObjectId& id : recording.database->objectIds()) {
        std::vector<CFxVariantCollectionElement> records;
        try {
            if (const OdDbObjectPtr object = id.openObject(true); object && !isLargeTable(*object))
                TakeSnapshot(object.get(), records);
        } catch (const OdError&) {
            // The current layout may be any object.
        }
    }
}

QByteArray written(const Recording& recording)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return WriteRecording(recording, buffer) ? buffer.data() : QByteArray();
}

/// What has been read and written must be read as the same.
void checkWriting(const Recording& recording)
{
    const QByteArray once = written(recording);
    if (once.isEmpty())
        return;
    Recording again;
    if (const auto error = readBytes(once, again)) {
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
    if (const auto error =
            readBytes(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)), recording)) {
        error->text();
        return 0;
    }
    checkWriting(recording);
    takeSnapshots(recording);
    convertRecording(recording, targetTable[1], static_cast<std::uint32_t>(recording.header.mode));
    return 0;
}
