// Changed tables and table styles.

#include "objects/targets/tables.h"
#include "module/CFxConverterIWAPIImpl.h"
#include "objects/CFxConverterIWAPIObject.h"
#include "objects/changeKinds.h"
#include "objects/changed/changeLists.h"
#include "objects/targets/tableCells.h"
#include "statements/wording.h"

#include <algorithm>

using namespace kinds;
using inkmacro::Fault;
using inkmacro::Target;

const ChangeGroups modifiedTableStyle{
    {styleName, "TableStyleName"},
    {cellAlignment, "Align"},
    {cellColor, "backgroundColor", "SetBackgroundColor"},
    {cellColor, "Color", "SetTextColor"},
    {cellLength, "textHeight", "SetTextHeight"},
    {cellTextStyle, "textStyle"},
    {cellLength, "horzCellMargin", "SetHorizontalMargin"},
    {cellLength, "vertCellMargin", "SetVerticalMargin"},
    {orientation, "Direction", "TableStyle"},
    {gridColor, "gridColor"},
    {gridLineWeight, "gridLineWeight"},
};

static const ChangeGroups tablePosition{{point, "Position", "Position"}};

static const ChangeGroups tableLooks{{tableStyle, "TableStyle", "TableStyle"}, {orientation, "Direction", "Table"}};

/// The rows of a table or its columns: the tags that tell of them and the statements that change them. A tag that tells
/// of one line or cell has numbers behind it, from 0: "RowHeight_2", "Contents_2_0".
struct TableLines
{
    const char* countTag;
    const char* sizeTag; ///< of one line
    const char* wholeTag;
    int numberInCell; ///< whether the line is the first or the second number of a cell
    const char* sizeOperation;
    QString (*insert)(Writer& writer, const CFxString& table, std::int32_t index, double size);
    QString (*remove)(Writer& writer, const CFxString& table, std::int32_t index);
    QString (*setSize)(Writer& writer, const CFxString& table, std::int32_t index, double size);
    std::map<CFxString, std::int32_t> CFxConverterIWAPIObject::*counts;
    std::map<CFxString, double> CFxConverterIWAPIObject::*wholes;
};

namespace {

constexpr char cellTag[] = "Contents";

bool isOf(const CFxPropertyChangedPtr& record, const char* tag)
{
    return record->GetName().toQString().startsWith(QLatin1String(tag));
}

/// The first or second number of a tag; 0 for what is missing or no number.
std::int32_t numberIn(const CFxPropertyChangedPtr& record, int which)
{
    return record->GetName().toQString().section('_', which, which).toInt();
}

const Fault kSingleRemoval{
    "ConvertTableCount",
    {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
    "of several rows or columns that went only the last is removed"};

/// Takes all records out of the list whose tags begin so.
PropertyList takeAll(const char* tag, PropertyList& list)
{
    const auto taken = std::stable_partition(list.begin(), list.end(),
                                             [&](const CFxPropertyChangedPtr& record) { return !isOf(record, tag); });
    PropertyList records(std::make_move_iterator(taken), std::make_move_iterator(list.end()));
    list.erase(taken, list.end());
    return records;
}

QString cellStatement(Writer& writer, const CFxString& table, const CFxPropertyChangedPtr& record,
                      const CFxString& text)
{
    return EmitSetCellText(writer, table, numberIn(record, 1), numberIn(record, 2), inkmacro::doubleBackslashes(text));
}

/// New lines stand behind the old ones; `count` receives how many lines there are then. One pass over the records finds
/// them, so one whose record comes too early, or behind a gap, is no new line.
QString insertLines(Writer& writer, const TableLines& lines, const PropertyList& list, CFxValueContext context,
                    const CFxString& table, std::int32_t first, qint64& count)
{
    const auto tagOf = [&](qint64 number) { return lines.sizeTag + ('_' + QString::number(number)); };
    QString text;
    count = first;
    QString next = tagOf(count);
    for (const CFxPropertyChangedPtr& record : list) {
        if (record->GetName().toQString() != next)
            continue;
        const CFxVariant size = record->GetValue(context);
        if (size.IsNull())
            continue;
        text += lines.insert(writer, table, static_cast<std::int32_t>(count), size.GetDouble());
        next = tagOf(++count);
    }
    for (const CFxPropertyChangedPtr& record : list) {
        if (!isOf(record, cellTag))
            continue;
        const std::int32_t line = numberIn(record, lines.numberInCell);
        const CFxString content = wordOf(record->GetValue(context));
        if (line >= first && line < count && !content.isEmpty())
            text += cellStatement(writer, table, record, content);
    }
    return text;
}

/// One statement, however many lines went; in a repaired macro one each, from behind.
QString removeLines(Writer& writer, const TableLines& lines, const CFxString& table, std::int32_t before,
                    std::int32_t count)
{
    QString text = lines.remove(writer, table, before - 1);
    if (!writer.repairs)
        return count < before - 1 ? writer.faulty(text, kSingleRemoval) : text;
    for (std::int32_t line = before - 2; line >= std::max(count, 0); --line)
        text += lines.remove(writer, table, line);
    return text;
}

} // namespace

/// Takes the count of the lines. True if it was there.
bool CFxConverterIWAPIObject::ConvertTableCount(const TableLines& lines, PropertyList& list, const CFxString& name,
                                                QString& text)
{
    const CFxVariant value = FindProperty(lines.countTag, list, driver.GetContext());
    if (value.IsNull())
        return false;
    const bool isNumber = value.GetType() == CFxVariant::kInt32 || value.GetType() == CFxVariant::kDouble;
    if (!isNumber) {
        LoseProperty(lines.countTag, "it is not recorded as a number");
        return true;
    }
    std::int32_t& count = (this->*lines.counts)[name];
    const std::int32_t before = count;
    count = value.GetInt32();
    if (count > before) {
        qint64 reached = 0;
        text += insertLines(writer, lines, list, driver.GetContext(), name, before, reached);
        if (reached < count)
            LoseProperty(lines.countTag, "new lines are inserted by the records of their sizes, which are too few");
    } else if (count < before) {
        text += removeLines(writer, lines, name, before, count);
        if (before - count > 1 && !writer.repairs)
            LoseProperty(lines.countTag, "one line is removed where several went");
    }
    return true;
}

/// Takes the records of cells. True if there were any.
bool CFxConverterIWAPIObject::ConvertCellTexts(PropertyList& list, const CFxString& name, QString& text)
{
    const PropertyList cells = takeAll(cellTag, list);
    for (const CFxPropertyChangedPtr& record : cells) {
        const CFxVariant value = record->GetValue(driver.GetContext());
        if (!value.IsNull())
            text += cellStatement(writer, name, record, wordOf(value));
    }
    return !cells.empty();
}

/// Takes the sizes of single lines. True if there were any.
bool CFxConverterIWAPIObject::ConvertTableSizes(const TableLines& lines, PropertyList& list, const CFxString& name,
                                                QString& text)
{
    const PropertyList sizes = takeAll(lines.sizeTag, list);
    for (const CFxPropertyChangedPtr& record : sizes) {
        const CFxVariant value = record->GetValue(driver.GetContext());
        if (!value.IsNull())
            text += lines.setSize(writer, name, numberIn(record, 1), value.GetDouble());
    }
    return !sizes.empty();
}

/// Takes the size of the whole table. A table that became larger or smaller with nothing else to tell why was scaled.
void CFxConverterIWAPIObject::ConvertTableSize(const TableLines& lines, PropertyList& list, bool told,
                                               const CFxString& name, QString& text)
{
    const CFxVariant value = FindProperty(lines.wholeTag, list, driver.GetContext());
    if (value.IsNull())
        return;
    double& whole = (this->*lines.wholes)[name];
    if (!told)
        text += EmitScaleTableRows(writer, name, lines.sizeOperation, value.GetDouble() / whole);
    whole = value.GetDouble();
}

void CFxConverterIWAPIObject::ConvertModifiedTable(PropertyList& list, const CFxString& name, QString& text)
{
    static const TableLines rows{"Rows",
                                 "RowHeight",
                                 "Table height",
                                 1,
                                 "SetRowHeight",
                                 &EmitInsertRow,
                                 &EmitDeleteRow,
                                 &EmitSetRowHeightAt,
                                 &CFxConverterIWAPIObject::tableRowCounts,
                                 &CFxConverterIWAPIObject::tableHeights};
    static const TableLines columns{"Columns",
                                    "ColumnWidth",
                                    "Table width",
                                    2,
                                    "SetColumnWidth",
                                    &EmitInsertColumn,
                                    &EmitDeleteColumn,
                                    &EmitSetColumnWidthAt,
                                    &CFxConverterIWAPIObject::tableColumnCounts,
                                    &CFxConverterIWAPIObject::tableWidths};

    ConvertRows(tablePosition, list, name, text);
    const bool rowsTold = ConvertTableCount(rows, list, name, text);
    const bool columnsTold = ConvertTableCount(columns, list, name, text);
    const bool cellsTold = ConvertCellTexts(list, name, text);
    const bool heightsTold = ConvertTableSizes(rows, list, name, text);
    ConvertTableSize(rows, list, rowsTold || cellsTold || heightsTold, name, text);
    const bool widthsTold = ConvertTableSizes(columns, list, name, text);
    ConvertTableSize(columns, list, columnsTold || cellsTold || widthsTold, name, text);
    ConvertRows(tableLooks, list, name, text);
}
