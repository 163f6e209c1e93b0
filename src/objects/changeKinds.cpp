// The kinds of change: which statement a row's tag becomes.

#include "objects/changeKinds.h"

#include "frame/RecordingState.h"
#include "objects/CFxConverterIWAPIObject.h"
#include "objects/targets/dimensionOptions.h"
#include "objects/targets/points.h"
#include "objects/targets/setters.h"
#include "objects/targets/styles.h"
#include "objects/targets/tableStyles.h"
#include "objects/targets/tables.h"
#include "objects/targets/texts.h"
#include "targets/wording.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

/// The drawing's number for a scale that is given, not that of the sheet.
constexpr std::int32_t kUseScaleFactor = 1;

QString setReal(const Change& change, double value)
{
    return EmitSetDoubleProperty(change.writer, change.target, change.row.property, value);
}

template<double (*radius)(double)>
QString setRadius(const Change& change)
{
    return EmitSetDoubleProperty(change.writer, change.target, "Radius", radius(change.value.GetDouble()));
}

double fromArea(double area)
{
    return std::sqrt(area / std::numbers::pi);
}

double fromCircumference(double circumference)
{
    return circumference / (2 * std::numbers::pi);
}

double fromDiameter(double diameter)
{
    return diameter * 0.5;
}

QString setBool(const Change& change, bool value)
{
    return EmitSetBoolProperty(change.writer, change.target, change.row.property, value);
}

/// Whether the element shows that word, without regard to case.
bool shows(const CFxVariant& value, const char* word)
{
    return ElementText(value).equalNoCase(ShownWord(word));
}

std::int32_t elementNumber(const CFxVariant& value)
{
    return value.GetCollectionElement().GetTag()->GetInt32();
}

/// A number in any form.
std::int32_t anyNumber(const CFxVariant& value)
{
    switch (value.GetType()) {
    case CFxVariant::kCollection:
        return value.GetCollection().GetChosen();
    case CFxVariant::kCollectionElement:
        return elementNumber(value);
    default:
        return value.GetInt32();
    }
}

/// A text in any form.
std::optional<CFxString> anyText(const CFxVariant& value)
{
    return value.GetType() == CFxVariant::kString ? value.GetString() : ChosenText(value);
}

bool isAnyYes(const CFxVariant& value)
{
    return anyText(value).value_or(CFxString()).equalNoCase(ShownWord("Yes"));
}

QString setEnum(const Change& change, const CFxString& word)
{
    return EmitSetEnumProperty(change.writer, change.target, *change.row.kind.byText, change.row.property, word);
}

QString setText(const Change& change, const CFxString& value, bool quoted)
{
    return EmitSetProperty(change.writer, change.target, change.row.property, value, quoted);
}

QString setYesOrFirst(const Change& change)
{
    switch (change.value.GetType()) {
    case CFxVariant::kCollection:
        return setBool(change, change.value.GetCollection().GetChosen() == 0);
    case CFxVariant::kCollectionElement:
        return setBool(change, shows(change.value, "Yes"));
    default:
        return {};
    }
}

using SetText = QString (*)(const Change& change, const CFxString& word);

template<SetText set, std::optional<CFxString> (*textOf)(const CFxVariant&) = &ChosenText>
QString setChosen(const Change& change)
{
    const std::optional<CFxString> word = textOf(change.value);
    return word ? set(change, *word) : QString();
}

QString setQuoted(const Change& change, const CFxString& word)
{
    return setText(change, word, true);
}

QString setYes(const Change& change, const CFxString& word)
{
    return setBool(change, word.equalNoCase(ShownWord("Yes")));
}

QString setDoubled(const Change& change, const CFxString& text)
{
    return setQuoted(change, inkmacro::doubleBackslashes(text));
}

QString setNoteDirection(const Change& change, const CFxString& word)
{
    // In the order of the drawing's numbers.
    static constexpr const char* words[] = {"ByStyle", "Vertical", "Horizontal"};
    const auto found = std::find_if(std::begin(words), std::end(words),
                                    [&](const char* shown) { return word.equalNoCase(ShownWord(shown)); });
    if (found == std::end(words))
        return {};
    return EmitSetNoteDirection(change.writer, change.target, change.row.property,
                                static_cast<int>(found - std::begin(words)));
}

QString setNoteLineSpacing(const Change& change)
{
    const CFxVariant::Type type = change.value.GetType();
    if (type != CFxVariant::kCollection && type != CFxVariant::kCollectionElement && type != CFxVariant::kInt32)
        return {};
    return EmitSetNoteLineSpacing(change.writer, change.target, change.row.property, anyNumber(change.value));
}

QString renameStyle(const Change& change, const CFxString& name)
{
    return EmitRenameStyle(change.writer, change.target, name, false);
}

/// A style that belongs to a label of the host's own has a name that no macro can give.
QString renameTextStyle(const Change& change, const CFxString& name)
{
    static const QLatin1String mark("<tag>");
    return name.toQString().startsWith(mark, Qt::CaseInsensitive) ? QString() : renameStyle(change, name);
}

QString setTableStyle(const Change& change, const CFxString& style)
{
    return EmitSetTableStyle(change.writer, change.target, style, change.row.property);
}

QString setOrientation(const Change& change, const CFxString& word)
{
    const bool down = word.equalNoCase(ShownWord("Down"));
    if (!down && !word.equalNoCase(ShownWord("Up")))
        return {};
    return EmitTableStyleOrientation(change.writer, change.target, change.row.property, down);
}

/// Without a number it is the title.
std::int32_t cellType(const Change& change)
{
    return anyNumber(change.number);
}

/// The line whose number stands beside the cell type, else that above the cells.
std::int32_t borderLine(const Change& change)
{
    constexpr std::int32_t horizontalTop = 1;
    if (change.number.GetType() != CFxVariant::kCollectionElement)
        return horizontalTop;
    return change.number.GetCollectionElement().GetValue()->GetInt32();
}

QString setCellAlignment(const Change& change, const CFxString& shownText)
{
    return EmitSetTableStyleAlignment(change.writer, change.target, cellType(change), shownText);
}

QString setCellTextStyle(const Change& change, const CFxString& name)
{
    return EmitSetTableStyleTextStyle(change.writer, change.target, cellType(change), name);
}

QString changePoint(const Change& change)
{
    const QString& pair = change.row.property;
    return EmitChangePoint(change.writer, change.target, change.row.axis, "Get" + pair, "Set" + pair,
                           change.value.GetDouble(), change.index);
}

QString changeScale(const Change& change)
{
    if (!RecordsIn(inkmacro::Target::JavaScript))
        return changePoint(change);
    const QString& pair = change.row.property;
    return EmitChangeScale(change.writer, change.target, change.row.axis, "Get" + pair, "Set" + pair,
                           change.value.GetDouble());
}

using PairChange = QString (*)(Writer& writer, const CFxString& target, const CFxString& local, double value);

template<PairChange emit>
QString changePair(const Change& change)
{
    return emit(change.writer, change.target, "get" + change.row.axis.toQString(), change.value.GetDouble());
}

using VertexChange = QString (*)(Writer& writer, const CFxString& target, std::int32_t index, const CFxString& axis,
                                 double value);

template<VertexChange emit>
QString changeVertex(const Change& change)
{
    return emit(change.writer, change.target, change.index, change.row.axis, change.value.GetDouble());
}

QString changeNumberedVertex(const Change& change)
{
    const qint64 number = qint64{change.index} + 1;
    return EmitChangePoint(change.writer, change.target, change.row.axis,
                           QStringLiteral("GetVertex%1Coordinate").arg(number),
                           QStringLiteral("SetVertex%1Coordinate").arg(number), change.value.GetDouble(), -1);
}

QString changeFaceVertex(const Change& change)
{
    const bool exists = change.index >= 0 && change.index <= 3;
    return exists ? changeNumberedVertex(change) : QString();
}

} // namespace

namespace kinds {

// They are ready before the rows of other files, which copy them.

constinit const ChangeKind real{[](const Change& change) { return setReal(change, change.value.GetDouble()); }};
constinit const ChangeKind integer{[](const Change& change) { return setReal(change, change.value.GetInt32()); }};
constinit const ChangeKind indexedReal{[](const Change& change) {
                                           return EmitSetIndexedDouble(change.writer, change.target,
                                                                       change.row.property, change.index,
                                                                       change.value.GetDouble());
                                       },
                                       nullptr, true};
constinit const ChangeKind radiusFromArea{setRadius<fromArea>};
constinit const ChangeKind radiusFromCircumference{setRadius<fromCircumference>};
constinit const ChangeKind radiusFromDiameter{setRadius<fromDiameter>};

constinit const ChangeKind yes{[](const Change& change) { return setBool(change, shows(change.value, "Yes")); }};
constinit const ChangeKind exactYes{[](const Change& change) { return setBool(change, IsYes(change.value)); }};
constinit const ChangeKind visible{
    [](const Change& change) { return setBool(change, shows(change.value, "Visible")); }};
constinit const ChangeKind exactEnabled{
    [](const Change& change) { return setBool(change, ElementText(change.value) == ShownWord("Enabled")); }};
constinit const ChangeKind yesOrFirst{setYesOrFirst};
constinit const ChangeKind anyYes{[](const Change& change) { return setBool(change, isAnyYes(change.value)); }};
constinit const ChangeKind chosenYes{setChosen<setYes>};

ChangeKind enumText(const inkmacro::TextEnumeration& enumeration)
{
    return {.statement = [](const Change& change) { return setEnum(change, ElementText(change.value)); },
            .byText = &enumeration};
}

ChangeKind enumValue(const inkmacro::ValueEnumeration& enumeration)
{
    return {.statement =
                [](const Change& change) {
                    return EmitSetEnumValue(change.writer, change.target, *change.row.kind.byValue, change.row.property,
                                            elementNumber(change.value));
                },
            .byValue = &enumeration};
}

ChangeKind chosenEnumText(const inkmacro::TextEnumeration& enumeration)
{
    return {.statement = setChosen<setEnum>, .byText = &enumeration};
}

ChangeKind anyEnumText(const inkmacro::TextEnumeration& enumeration)
{
    return {.statement = setChosen<setEnum, anyText>, .byText = &enumeration};
}

ChangeKind anyEnumValue(const inkmacro::ValueEnumeration& enumeration)
{
    return {.statement =
                [](const Change& change) {
                    return EmitSetEnumValue(change.writer, change.target, *change.row.kind.byValue, change.row.property,
                                            anyNumber(change.value));
                },
            .byValue = &enumeration};
}

constinit const ChangeKind quoted{[](const Change& change) { return setQuoted(change, ElementText(change.value)); }};
constinit const ChangeKind chosenQuoted{setChosen<setQuoted>};
constinit const ChangeKind anyQuoted{setChosen<setQuoted, anyText>};
constinit const ChangeKind doubledBackslashes{setChosen<setDoubled, anyText>};
constinit const ChangeKind escaped{[](const Change& change) {
    return setQuoted(change, inkmacro::escapeText(change.writer.target, change.value.GetString()));
}};
constinit const ChangeKind unquoted{
    [](const Change& change) { return setText(change, change.value.GetString(), false); }};

constinit const ChangeKind color{[](const Change& change) {
    return EmitSetColor(change.writer, change.target, change.row.property, change.value.GetColor());
}};
constinit const ChangeKind lineWeight{[](const Change& change) {
    return EmitSetLineWeight(change.writer, change.target, change.row.property, change.value.GetInt32());
}};
constinit const ChangeKind arrow{[](const Change& change) {
    return EmitSetLeaderArrow(change.writer, change.target, change.row.property, elementNumber(change.value));
}};
constinit const ChangeKind dimensionScale{[](const Change& change) {
    return EmitSetDimensionScale(change.writer, change.target, change.row.property, kUseScaleFactor,
                                 change.value.GetDouble());
}};

constinit const ChangeKind noteDirection{setChosen<setNoteDirection, anyText>};
constinit const ChangeKind noteLineSpacing{setNoteLineSpacing};
constinit const ChangeKind fontParameter{[](const Change& change) {
    return EmitSetFontParameter(change.writer, change.target, change.row.property, isAnyYes(change.value));
}};

constinit const ChangeKind tableStyle{setChosen<setTableStyle, anyText>};
constinit const ChangeKind orientation{setChosen<setOrientation, anyText>};
constinit const ChangeKind cellAlignment{setChosen<setCellAlignment, anyText>};
constinit const ChangeKind cellTextStyle{setChosen<setCellTextStyle, anyText>};
constinit const ChangeKind cellColor{[](const Change& change) {
    return EmitSetTableStyleColor(change.writer, change.target, change.row.property, cellType(change),
                                  change.value.GetColor());
}};
constinit const ChangeKind cellLength{[](const Change& change) {
    return EmitSetTableStyleLength(change.writer, change.target, change.row.property, cellType(change),
                                   change.value.GetDouble());
}};
constinit const ChangeKind gridColor{[](const Change& change) {
    return EmitTableBordersColor(change.writer, change.target, cellType(change), borderLine(change),
                                 change.value.GetColor());
}};
constinit const ChangeKind gridLineWeight{[](const Change& change) {
    return EmitTableBordersLineWeight(change.writer, change.target, cellType(change), borderLine(change),
                                      anyNumber(change.value));
}};

constinit const ChangeKind point{changePoint, "XYZ"};
constinit const ChangeKind indexedPoint{changePoint, "XYZ", true};
constinit const ChangeKind scale{changeScale, "XYZ"};
constinit const ChangeKind position{changePair<&EmitChangePosition>, "XYZ"};
constinit const ChangeKind firstPoint{changePair<&EmitChangeFirstPoint>, "XYZ"};
constinit const ChangeKind secondPoint{changePair<&EmitChangeSecondPoint>, "XYZ"};
constinit const ChangeKind vertex{changeVertex<&EmitChangeVertex>, "xyz", true};
constinit const ChangeKind vertex2D{changeVertex<&EmitChangeVertex2D>, "XY", true};
constinit const ChangeKind numberedVertex{changeNumberedVertex, "XYZ", true};
constinit const ChangeKind faceVertex{changeFaceVertex, "XYZ", true};

constinit const ChangeKind textStyleName{setChosen<renameTextStyle, anyText>};
constinit const ChangeKind styleName{setChosen<renameStyle, anyText>};

} // namespace kinds
