#include "recordfile/OpenDrawing.h"

#include "host/db/OdDbRecords.h"

#include <QDir>

namespace inkmacro {

namespace {

std::vector<OdString> absoluteFolders(const Recording& recording)
{
    const QDir base(recording.folder);
    std::vector<OdString> folders;
    for (const QString& folder : recording.drawing.lineStyleFolders)
        folders.push_back(QDir::cleanPath(base.absoluteFilePath(folder)));
    return folders;
}

void setVariables(OdDbDatabase& database, const Recording::Drawing& drawing)
{
    for (const auto& [name, setting] : drawing.settings) {
        if (const auto* const number = std::get_if<double>(&setting))
            database.setSysVar(name, *number);
        else if (const auto* const truth = std::get_if<bool>(&setting))
            database.setSysVar(name, *truth ? 1.0 : 0.0);
    }
}

} // namespace

OpenDrawing::OpenDrawing(const Recording& recording) : OpenDrawing(*recording.database)
{
    const Recording::Drawing& drawing = recording.drawing;
    OdDbDatabase& database = *recording.database;
    database.setCurrentLayoutId(database.getOdDbObjectId(drawing.currentLayout));
    database.setActiveLayoutBTRId(database.getOdDbObjectId(drawing.activeBlock));
    database.setCLAYER(database.getOdDbObjectId(drawing.layer));
    database.setGroupDictionaryId(database.getOdDbObjectId(drawing.groupDictionary));
    database.setTablestyle(database.getOdDbObjectId(drawing.tableStyle));
    database.setCurrentDimensionStyleId(database.getOdDbObjectId(drawing.dimensionStyle));
    database.setCurrentRichLineStyleId(database.getOdDbObjectId(drawing.richLineStyle));
    database.setCurrentLineStyleId(database.getOdDbObjectId(drawing.lineStyle));
    database.setLineStyleFolders(absoluteFolders(recording));
    setVariables(database, drawing);
}

OpenSheet::OpenSheet(const Recording::Sheet& sheet) : layout_(odrxNew<OdDbLayout>(sheet.name, sheet.model))
{
    database_.setCurrentLayoutId(database_.addObject(OdDbHandle(1), layout_));
}

} // namespace inkmacro
