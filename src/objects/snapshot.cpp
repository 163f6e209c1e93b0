#include "objects/snapshot.h"

#include "host/db/OdDbClasses.h"
#include "host/kernel/CFxServices.h"
#include "host/kernel/CFxUtils.h"
#include "statements/RecordingState.h"

#include <QCoreApplication>

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <iterator>

namespace {

using Records = std::vector<CFxVariantCollectionElement>;

void add(Records& target, const CFxString& tag, const CFxVariant& value)
{
    target.emplace_back(tag, value);
}

/// Stays as it is in every language, unlike the words that the property sheet shows.
CFxVariant word(bool value)
{
    return CFxString(value ? "YES" : "NO");
}

CFxVariant shownWord(bool value)
{
    return CFxString(QCoreApplication::translate("property_values", value ? "Yes" : "No"));
}

CFxVariant toVariant(bool value)
{
    return std::int32_t{value};
}

CFxVariant toVariant(const OdString& text)
{
    return CFxString(text);
}

CFxVariant toVariant(const std::optional<OdCmColor>& color)
{
    return color ? CFxVariant(*color) : CFxVariant::kNull;
}

template<class T>
CFxVariant toVariant(const T& value)
{
    return value;
}

/// An array as a value: the elements with their running index.
class NumberedValues
{
public:
    void add(const CFxVariant& value)
    {
        const auto index = static_cast<std::int32_t>(elements_.size());
        elements_.emplace_back(CFxVariant(index), value);
    }
    bool isEmpty() const { return elements_.empty(); }
    CFxVariant take() { return CFxVariantCollection(std::move(elements_)); }

private:
    std::vector<CFxVariantCollectionElement> elements_;
};

CFxVariant vertices(const OdDbMline& line)
{
    NumberedValues points;
    for (int i = 0; i < line.numVertices(); ++i)
        points.add(line.vertexAt(i));
    return points.take();
}

CFxVariant annotationText(const OdDbLeader& leader)
{
    CFxString text;
    if (leader.annoType() == OdDbLeader::kMText)
        if (const auto note = odrxCast<OdDbMText>(leader.annotationObjectId().openObject().get()))
            text = note->contents();
    return text;
}

CFxVariant entities(const OdDbBlockTableRecord& block)
{
    NumberedValues handles;
    for (const OdDbObjectIteratorPtr entity = block.newIterator(); !entity->done(); entity->step())
        handles.add(CFxString(entity->objectId().getHandle().ascii()));
    return handles.isEmpty() ? CFxVariant::kNull : handles.take();
}

CFxVariant description(const OdDbBlockTableRecord& block)
{
    CFxString text = block.comments();
    if (text.isEmpty())
        return {};
    text.replace("\n", "\\n");
    return text;
}

bool scalesUniformly(const OdDbBlockTableRecord& block)
{
    return block.blockScaling() == OdDbBlockTableRecord::kUniform;
}

CFxVariant insertUnits(const OdDbBlockTableRecord& block)
{
    return CFxUtils::GetStringForUnitScalingFactor(block.blockInsertUnits());
}

OdSmartPtr<OdDbTextStyleTableRecord> textStyleOf(const OdDbArcAlignedText& text)
{
    return odrxCast<OdDbTextStyleTableRecord>(text.textStyle().openObject().get());
}

CFxVariant textStyleName(const OdDbArcAlignedText& text)
{
    const auto style = textStyleOf(text);
    return style ? toVariant(style->getName()) : CFxVariant::kNull;
}

CFxVariant fontName(const OdDbArcAlignedText& text)
{
    const auto style = textStyleOf(text);
    return toVariant(style && style->isShapeFile() ? style->fileName() : text.typeface());
}

bool isPlainDefinition(const OdDbBlockTableRecord& block)
{
    return !block.isLayout() && !block.isFromExternalReference();
}

bool hasStyleSheet(const OdDbLayout& layout)
{
    return !layout.getCurrentStyleSheet().isEmpty();
}

// Functions and read operations as rows of the tables below hold them.

template<class>
struct ReadOf;
template<class Result, class Object>
struct ReadOf<Result (Object::*)() const>
{
    using Class = Object;
};
template<class Result, class Object>
struct ReadOf<Result (*)(const Object&)>
{
    using Class = Object;
};

template<auto Read>
auto call(const OdDbObject& object)
{
    return std::invoke(Read, static_cast<const typename ReadOf<decltype(Read)>::Class&>(object));
}

template<auto Read>
CFxVariant value(const OdDbObject& object)
{
    return toVariant(call<Read>(object));
}

template<auto Read>
CFxVariant wordOf(const OdDbObject& object)
{
    return word(call<Read>(object));
}

template<auto Read>
CFxVariant shownWordOf(const OdDbObject& object)
{
    return shownWord(call<Read>(object));
}

struct Row
{
    const char* tag;
    CFxVariant (*value)(const OdDbObject& object); ///< a null value adds no record
};

struct ClassRows
{
    OdRxClass* (*cls)();
    std::initializer_list<Row> rows;
    bool (*applies)(const OdDbObject& object) = nullptr; ///< whether an object adds anything; null for always
};

/// In the order in which an object's records are added. A jogged dimension is left out on purpose.
const ClassRows kClassRows[] = {
    {OdDbAlignedDimension::desc,
     {{"xLine1Point", value<&OdDbAlignedDimension::xLine1Point>},
      {"xLine2Point", value<&OdDbAlignedDimension::xLine2Point>},
      {"dimLinePoint", value<&OdDbAlignedDimension::dimLinePoint>}}},
    {OdDb2LineAngularDimension::desc,
     {{"xLine1Start", value<&OdDb2LineAngularDimension::xLine1Start>},
      {"xLine1End", value<&OdDb2LineAngularDimension::xLine1End>},
      {"xLine2Start", value<&OdDb2LineAngularDimension::xLine2Start>},
      {"xLine2End", value<&OdDb2LineAngularDimension::xLine2End>},
      {"arcPoint", value<&OdDb2LineAngularDimension::arcPoint>}}},
    {OdDb3PointAngularDimension::desc,
     {{"centerPoint", value<&OdDb3PointAngularDimension::centerPoint>},
      {"xLine1Point", value<&OdDb3PointAngularDimension::xLine1Point>},
      {"xLine2Point", value<&OdDb3PointAngularDimension::xLine2Point>},
      {"arcPoint", value<&OdDb3PointAngularDimension::arcPoint>}}},
    {OdDbArcDimension::desc,
     {{"xLine1Point", value<&OdDbArcDimension::xLine1Point>},
      {"xLine2Point", value<&OdDbArcDimension::xLine2Point>},
      {"centerPoint", value<&OdDbArcDimension::centerPoint>},
      {"isPartial", value<&OdDbArcDimension::isPartial>},
      {"arcPoint", value<&OdDbArcDimension::arcPoint>}}},
    {OdDbOrdinateDimension::desc,
     {{"definingPoint", value<&OdDbOrdinateDimension::definingPoint>},
      {"leaderEndPoint", value<&OdDbOrdinateDimension::leaderEndPoint>},
      {"isUsingXAxis", value<&OdDbOrdinateDimension::isUsingXAxis>},
      {"setZero", value<&OdDbOrdinateDimension::origin>}}},
    {OdDbRotatedDimension::desc,
     {{"xLine1Point", value<&OdDbRotatedDimension::xLine1Point>},
      {"xLine2Point", value<&OdDbRotatedDimension::xLine2Point>},
      {"dimLinePoint", value<&OdDbRotatedDimension::dimLinePoint>},
      {"rotation", value<&OdDbRotatedDimension::rotation>}}},
    {OdDbDiametricDimension::desc, {{"chordPoint", value<&OdDbDiametricDimension::chordPoint>}}},
    {OdDbRadialDimension::desc, {{"chordPoint", value<&OdDbRadialDimension::chordPoint>}}},
    {OdDbMline::desc, {{"vertices", value<vertices>}, {"closedMline", value<&OdDbMline::closedMline>}}},
    {OdDbLeader::desc, {{"content", value<annotationText>}, {"width", value<&OdDbLeader::annoWidth>}}},
    {OdDbFcf::desc, {{"Content", value<&OdDbFcf::text>}}},
    {OdDbMText::desc,
     {{"UseDrawingBackgroundColor", wordOf<&OdDbMText::useBackgroundColorOn>},
      {"BackgroundFillColor", value<&OdDbMText::getBackgroundFillColor>},
      {"BackgroundBorderOffsetFactor", value<&OdDbMText::getBackgroundScaleFactor>},
      {"TextBoxHeight", value<&OdDbMText::actualHeight>}}},
    {OdDbBlockTableRecord::desc,
     {{"Objects", value<entities>},
      {"Description", value<description>},
      {"ApplyUniformScale", shownWordOf<scalesUniformly>},
      {"Explodable", shownWordOf<&OdDbBlockTableRecord::explodable>},
      {"BlockUnit", value<insertUnits>}},
     call<isPlainDefinition>},
    {OdDbLayout::desc,
     {{"PrintStyleTable", value<&OdDbLayout::getCurrentStyleSheet>},
      {"Model_PrintStyleTable", shownWordOf<&OdDbLayout::modelType>},
      {"SheetName_PrintStyleTable", value<&OdDbLayout::getLayoutName>}},
     call<hasStyleSheet>},
    {OdDbArcAlignedText::desc,
     {{"CurvedSettings Underlined", wordOf<&OdDbArcAlignedText::isUnderlined>},
      {"CurvedSettings Flip", wordOf<&OdDbArcAlignedText::isReversedCharOrder>},
      {"CurvedSettings Alignment", value<&OdDbArcAlignedText::alignment>},
      {"CurvedSettings TextSide", value<&OdDbArcAlignedText::textPosition>},
      {"CurvedSettings TextDirection", value<&OdDbArcAlignedText::textDirection>},
      {"CurvedSettings TextStyle", value<textStyleName>},
      {"CurvedSettings Font", value<fontName>},
      {"CurvedSettings bold", wordOf<&OdDbArcAlignedText::isBold>},
      {"CurvedSettings italic", wordOf<&OdDbArcAlignedText::isItalic>}}},
};

/// The column widths stand among the cells of the first row: a table without rows adds none.
void addTable(const OdDbTable& table, Records& target)
{
    for (unsigned row = 0; row < table.numRows(); ++row) {
        for (unsigned column = 0; column < table.numColumns(); ++column) {
            add(target, QString("Contents_%1_%2").arg(row).arg(column), toVariant(table.textString(row, column)));
            if (row == 0)
                add(target, QString("ColumnWidth_%1").arg(column), table.columnWidth(column));
        }
        add(target, QString("RowHeight_%1").arg(row), table.rowHeight(row));
    }
}

/// The first snapshot of a recording fixes the layout; Convert arms the next recording by clearing the name.
void noteCurrentLayout()
{
    if (!RecordingSheetName.isEmpty() || !ACTIVE_DOCUMENT)
        return;
    const OdDbObjectPtr current = ACTIVE_DOCUMENT->GetDatabase()->currentLayoutId().openObject();
    if (const auto layout = odrxCast<OdDbLayout>(current.get())) {
        RecordingInModel = layout->modelType();
        RecordingSheetName = layout->getLayoutName();
    }
}

} // namespace

void TakeSnapshot(const OdDbObject* object, std::vector<CFxVariantCollectionElement>& target)
{
    noteCurrentLayout();
    add(target, "Erased", word(object->isErased()));

    const OdRxClass* const cls = object->isA();
    if (cls == OdDbTable::desc())
        return addTable(static_cast<const OdDbTable&>(*object), target);
    const auto found = std::find_if(std::begin(kClassRows), std::end(kClassRows),
                                    [cls](const ClassRows& rows) { return rows.cls() == cls; });
    if (found == std::end(kClassRows) || (found->applies && !found->applies(*object)))
        return;
    for (const Row& row : found->rows)
        if (const CFxVariant value = row.value(*object); !value.IsNull())
            add(target, row.tag, value);
}
