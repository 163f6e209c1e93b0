#include "app/snapshot.h"

#include "app/ExitStatus.h"
#include "app/LoadedModule.h"
#include "app/console.h"
#include "app/reading.h"
#include "app/valueText.h"
#include "host/db/OdDbClasses.h"
#include "recordfile/OpenDrawing.h"
#include "recordfile/Pieces.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace inkmacro {

namespace {

constexpr qint64 kMostCells = 1'000'000;

/// Rows and columns take a few bytes each in a recording, and their product makes the records.
bool isTooLarge(const OdDbObject& object, const QString& path)
{
    if (object.isA() != OdDbTable::desc())
        return false;
    const auto& table = static_cast<const OdDbTable&>(object);
    if (qint64{table.numRows()} * table.numColumns() <= kMostCells)
        return false;
    complain(QString("%1: the table %2 has %3 rows and %4 columns, but a snapshot has at most %5 cells")
                 .arg(path, object.getDbHandle().ascii())
                 .arg(table.numRows())
                 .arg(table.numColumns())
                 .arg(kMostCells));
    return true;
}

void printTable(const std::vector<CFxSnapshotRecord>& records)
{
    int width = 0;
    for (const CFxSnapshotRecord& record : records)
        width = std::max(width, printable(record.GetTag()->GetString()).length());
    for (const CFxSnapshotRecord& record : records)
        printOut(printable(record.GetTag()->GetString()).leftJustified(width) + "  " +
                 valueText(ValueToJson(*record.GetValue())) + '\n');
}

void printJson(const std::vector<CFxSnapshotRecord>& records)
{
    QJsonArray array;
    for (const CFxSnapshotRecord& record : records)
        array.append(
            QJsonObject{{"tag", record.GetTag()->GetString().toQString()}, {"value", ValueToJson(*record.GetValue())}});
    printOut(QJsonDocument(array).toJson());
}

} // namespace

int showSnapshot(const QString& path, const OdDbHandle& handle, bool json)
{
    Recording recording;
    if (!readOrComplain(path, recording))
        return kUnreadable;
    LoadedModule module;
    const OpenDrawing drawing(recording);
    // An erased object has a snapshot too: it says so.
    const OdDbObjectPtr object = recording.database->getOdDbObjectId(handle).openObject(true);
    if (!object) {
        complain(QString("%1: the drawing has no object with the handle %2").arg(path, handle.ascii()));
        return kFailed;
    }
    if (isTooLarge(*object, path))
        return kFailed;
    std::vector<CFxSnapshotRecord> records;
    module->TakeSnapshot(object.get(), records);
    if (json)
        printJson(records);
    else
        printTable(records);
    return kDone;
}

} // namespace inkmacro
