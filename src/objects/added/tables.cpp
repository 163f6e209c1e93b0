// Added tables. An insertion makes all rows of one height and all columns of one width.

#include "objects/targets/tables.h"
#include "host/db/OdDbClasses.h"
#include "objects/AddedObject.h"
#include "objects/added/readers.h"
#include "objects/losses.h"
#include "objects/targets/tableCells.h"
#include "statements/losses.h"

/// Heights and widths that are null are not known.
static void rememberTable(TableSizes& tables, const CFxString& table, std::int32_t rows, std::int32_t columns,
                          const CFxVariant& height, const CFxVariant& width)
{
    tables.rowCounts[table] = rows;
    tables.columnCounts[table] = columns;
    if (!height.IsNull())
        tables.heights[table] = height.GetDouble();
    if (!width.IsNull())
        tables.widths[table] = width.GetDouble();
}

/// Of texts in new cells, too, there is no statement: they are written when they change.
static void loseRest(const AddedObject& added, double height, double width)
{
    for (const CFxPropertyChangedPtr& record : added.rest()) {
        const QString& tag = record->GetName();
        const CFxVariant value = added.valueOf(*record);
        if (tag.startsWith(QLatin1String("Contents_")) && !wordOf(value).isEmpty())
            LoseProperty(added.object, tag, "the texts of a new table have no statement");
        else if (tag.startsWith(QLatin1String("RowHeight_")) && value.GetDouble() != height)
            LoseProperty(added.object, tag, "rows behind the second are made of one height");
        else if (tag.startsWith(QLatin1String("ColumnWidth_")) && value.GetDouble() != width)
            LoseProperty(added.object, tag, "columns are made of one width");
    }
}

/// Cell styles of the user's own.
static void loseOwnStyles(const AddedObject& added, const OdDbTable& table, const std::array<int, 3>& cellTypes)
{
    for (std::size_t row = 0; row < cellTypes.size(); ++row)
        if (const OdString style = table.cellStyle(static_cast<unsigned>(row), -1);
            cellTypes[row] == 0 && !style.isEmpty())
            NoteLoss("cell style \"" + style + "\" of " +
                         ObjectTitle(added.object.cls, added.object.handle).toQString(),
                     "the interface has no cell types of the user's own");
}

/// The height of the insertion is that of the first row of data. Other heights behind it and other widths have no
/// statement.
Statement ReadTable(AddedObject& added)
{
    const OdGePoint3d position = added.takePoint("Position X", "Position Y", "Position Z");
    if (position.z != 0)
        LoseProperty(added.object, "Position Z", "the insertion takes its position in the plane");
    const std::int32_t rows = added.takeInteger("Rows");
    const std::int32_t columns = added.takeInteger("Columns");
    const auto table = added.open<OdDbTable>();
    const double dataHeight = added.takeReal("RowHeight_2", 0.0);
    const double width = added.takeReal("ColumnWidth_0", 0.0);
    const std::array<int, 3> cellTypes = table ? tableCellTypes(*table) : std::array<int, 3>{};
    if (table)
        loseOwnStyles(added, *table, cellTypes);
    Statement text = EmitInsertTable(added.writer, position, rows, columns, dataHeight, width, cellTypes, added.name);

    const CFxVariant tableHeight = added.take("Table height", forms::number);
    const CFxVariant tableWidth = added.take("Table width", forms::number);
    rememberTable(added.conversion.tables, added.name, rows, columns, tableHeight, tableWidth);

    const char* const headTags[] = {"RowHeight_0", "RowHeight_1"};
    for (int row = 0; row < 2; ++row) {
        const CFxVariant recorded = added.take(headTags[row], forms::number, "as RowHeight_2");
        const double height = recorded.IsNull() ? dataHeight : recorded.GetDouble();
        if (height != dataHeight)
            text += EmitSetRowHeightAt(added.writer, added.name, row, height);
    }
    loseRest(added, dataHeight, width);
    return text;
}
