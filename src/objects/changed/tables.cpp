// Changed tables and table styles.

#include "objects/targets/tables.h"
#include "host/db/OdDbClasses.h"
#include "objects/changeKinds.h"
#include "objects/changed/changeLists.h"
#include "objects/losses.h"
#include "objects/properties.h"
#include "objects/targets/tableCells.h"
#include "statements/wording.h"

#include <algorithm>
#include <cmath>

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
    Statement (*insert)(Writer& writer, const CFxString& table, std::int32_t index, double size);
    Statement (*remove)(Writer& writer, const CFxString& table, std::int32_t index);
    Statement (*removeAll)(Writer& writer, const CFxString& table, std::int32_t last, std::int32_t first);
    Statement (*setSize)(Writer& writer, const CFxString& table, std::int32_t index, double size);
    std::map<CFxString, std::int32_t> TableSizes::*counts;
    std::map<CFxString, double> TableSizes::*wholes;
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

const Fault kNoCoefficient{
    "EmitScaleTableRows",
    {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
    "the size that a table had is 0 or not known, and what is divided by it is no number"};

const Fault kSingleRemoval{
    "ConvertTableCount",
    {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
    "of several rows or columns that went only the last is removed"};

/// Takes all records out of the list whose tags begin so.
PropertyList takeAll(Conversion& conversion, const char* tag, const ValueForm& form, PropertyList& list)
{
    if (conversion.asked)
        conversion.asked->push_back({tag + QLatin1String("_*"), form});
    const auto taken = std::stable_partition(list.begin(), list.end(),
                                             [&](const CFxPropertyChangedPtr& record) { return !isOf(record, tag); });
    PropertyList records(std::make_move_iterator(taken), std::make_move_iterator(list.end()));
    list.erase(taken, list.end());
    return records;
}

/// Of a record whose tag or value does not tell what its statement says.
void assumeWhatLacks(const RecordedObject& object, const CFxPropertyChangedPtr& record, const CFxVariant& value,
                     const ValueForm& form, int numbers)
{
    const QString& tag = record->GetName();
    for (int which = 1; which <= numbers; ++which) {
        bool isNumber = false;
        tag.section('_', which, which).toInt(&isNumber);
        if (!isNumber)
            return AssumeProperty(object, tag, "its tag does not number a line or cell, which gives the first one");
    }
    AssumeUnlessFormed(object, tag, value, form);
}

Statement cellStatement(Writer& writer, const CFxString& table, const CFxPropertyChangedPtr& record,
                        const CFxString& text)
{
    return EmitSetCellText(writer, table, numberIn(record, 1), numberIn(record, 2), inkmacro::doubleBackslashes(text));
}

/// New lines stand behind the old ones; `count` receives how many lines there are then. One pass over the records finds
/// them, so one whose record comes too early, or behind a gap, is no new line.
Statement insertLines(Writer& writer, const TableLines& lines, const PropertyList& list, CFxValueContext context,
                      const CFxString& table, std::int32_t first, qint64& count)
{
    const auto tagOf = [&](qint64 number) { return lines.sizeTag + ('_' + QString::number(number)); };
    Statement text;
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

/// From behind. The recording tells of many by one number, so their statements may not be as many.
Statement removeLines(Writer& writer, const TableLines& lines, const CFxString& table, std::int32_t before,
                      std::int32_t count)
{
    constexpr std::int32_t few = 8;
    const std::int32_t first = std::max(count, 0);
    if (before - first > few)
        return lines.removeAll(writer, table, before - 1, first);
    Statement text = lines.remove(writer, table, before - 1);
    for (std::int32_t line = before - 2; line >= first; --line)
        text += lines.remove(writer, table, line);
    return text;
}

} // namespace

static double sumOf(const OdDbTable& table, double (OdDbTable::*size)(unsigned) const, unsigned count)
{
    double sum = 0;
    for (unsigned line = 0; line < count; ++line)
        sum += (table.*size)(line);
    return sum;
}

/// What the sizes of the table are remembered under. One of the drawing has another variable in each command; before
/// its first change it is as large as the drawing tells.
static CFxString sizesKey(Conversion& conversion, const RecordedObject& object)
{
    if (!conversion.names().IsLent(object.handle))
        return object.name;
    const CFxString key(object.handle.ascii());
    TableSizes& sizes = conversion.tables;
    const auto table = odrxCast<OdDbTable>(IdOf(object.handle).openObject(true).get());
    if (!table || sizes.rowCounts.contains(key))
        return key;
    sizes.rowCounts[key] = static_cast<std::int32_t>(table->numRows());
    sizes.columnCounts[key] = static_cast<std::int32_t>(table->numColumns());
    sizes.heights[key] =
        table->height() != 0 ? table->height() : sumOf(*table, &OdDbTable::rowHeight, table->numRows());
    sizes.widths[key] =
        table->width() != 0 ? table->width() : sumOf(*table, &OdDbTable::columnWidth, table->numColumns());
    return key;
}

/// Takes the count of the lines. True if it was there.
static bool ConvertTableCount(Conversion& conversion, const TableLines& lines, const RecordedObject& object,
                              const CFxString& key, PropertyList& list, Statement& text)
{
    const CFxVariant value = TakeProperty(conversion, object, lines.countTag, forms::whole, list);
    if (value.IsNull())
        return false;
    const bool isNumber = value.GetType() == CFxVariant::kInt32 || value.GetType() == CFxVariant::kDouble;
    if (!isNumber) {
        LoseProperty(object, lines.countTag, "it is not recorded as a number");
        return true;
    }
    std::int32_t& count = (conversion.tables.*lines.counts)[key];
    const std::int32_t before = count;
    count = value.GetInt32();
    if (count > before) {
        qint64 reached = 0;
        text += insertLines(conversion.writer, lines, list, conversion.context, object.name, before, reached);
        if (reached < count)
            LoseProperty(object, lines.countTag,
                         "new lines are inserted by the records of their sizes, which are too few");
    } else if (count < before) {
        Writer& writer = conversion.writer;
        const bool onlyLast = before - count > 1 && !writer.repairs;
        text += onlyLast ? writer.faulty(lines.remove(writer, object.name, before - 1), kSingleRemoval)
                         : removeLines(writer, lines, object.name, before, count);
        if (onlyLast)
            LoseProperty(object, lines.countTag, "one line is removed where several went");
    }
    return true;
}

/// Takes the records of cells. True if there were any.
static bool ConvertCellTexts(Conversion& conversion, const RecordedObject& object, PropertyList& list, Statement& text)
{
    const PropertyList cells = takeAll(conversion, cellTag, forms::word, list);
    for (const CFxPropertyChangedPtr& record : cells) {
        const CFxVariant value = record->GetValue(conversion.context);
        if (value.IsNull())
            continue;
        assumeWhatLacks(object, record, value, forms::word, 2);
        text += cellStatement(conversion.writer, object.name, record, wordOf(value));
    }
    return !cells.empty();
}

/// Takes the sizes of single lines. True if there were any.
static bool ConvertTableSizes(Conversion& conversion, const TableLines& lines, const RecordedObject& object,
                              PropertyList& list, Statement& text)
{
    const PropertyList sizes = takeAll(conversion, lines.sizeTag, forms::number, list);
    for (const CFxPropertyChangedPtr& record : sizes) {
        const CFxVariant value = record->GetValue(conversion.context);
        if (value.IsNull())
            continue;
        assumeWhatLacks(object, record, value, forms::number, 1);
        text += lines.setSize(conversion.writer, object.name, numberIn(record, 1), value.GetDouble());
    }
    return !sizes.empty();
}

/// Takes the size of the whole table. A table that became larger or smaller with nothing else to tell why was scaled.
static void ConvertTableSize(Conversion& conversion, const TableLines& lines, const RecordedObject& object,
                             const CFxString& key, PropertyList& list, bool told, Statement& text)
{
    const CFxVariant value = TakeProperty(conversion, object, lines.wholeTag, forms::number, list);
    if (value.IsNull())
        return;
    double& whole = (conversion.tables.*lines.wholes)[key];
    const double coefficient = value.GetDouble() / whole;
    if (!told && !std::isfinite(coefficient) && conversion.Drops(kNoCoefficient))
        LoseProperty(object, lines.wholeTag, "the size that it had is not known");
    else if (!told)
        text += EmitScaleTableRows(conversion.writer, object.name, lines.sizeOperation, coefficient);
    whole = value.GetDouble();
}

void ConvertModifiedTable(Conversion& conversion, const RecordedObject& object, PropertyList& list, Statement& text)
{
    static const TableLines rows{"Rows",
                                 "RowHeight",
                                 "Table height",
                                 1,
                                 "SetRowHeight",
                                 &EmitInsertRow,
                                 &EmitDeleteRow,
                                 &EmitDeleteRows,
                                 &EmitSetRowHeightAt,
                                 &TableSizes::rowCounts,
                                 &TableSizes::heights};
    static const TableLines columns{"Columns",
                                    "ColumnWidth",
                                    "Table width",
                                    2,
                                    "SetColumnWidth",
                                    &EmitInsertColumn,
                                    &EmitDeleteColumn,
                                    &EmitDeleteColumns,
                                    &EmitSetColumnWidthAt,
                                    &TableSizes::columnCounts,
                                    &TableSizes::widths};

    ConvertRows(conversion, tablePosition, object, list, text);
    const CFxString key = sizesKey(conversion, object);
    const bool rowsTold = ConvertTableCount(conversion, rows, object, key, list, text);
    const bool columnsTold = ConvertTableCount(conversion, columns, object, key, list, text);
    const bool cellsTold = ConvertCellTexts(conversion, object, list, text);
    const bool heightsTold = ConvertTableSizes(conversion, rows, object, list, text);
    ConvertTableSize(conversion, rows, object, key, list, rowsTold || cellsTold || heightsTold, text);
    const bool widthsTold = ConvertTableSizes(conversion, columns, object, list, text);
    ConvertTableSize(conversion, columns, object, key, list, columnsTold || cellsTold || widthsTold, text);
    ConvertRows(conversion, tableLooks, object, list, text);
}
