// The kinds of change: which statement a row's tag becomes.

#include "objects/changeKinds.h"

#include "host/db/OdDbClasses.h"
#include "host/kernel/CFxServices.h"
#include "objects/losses.h"
#include "objects/properties.h"
#include "objects/targets/dimensionOptions.h"
#include "objects/targets/setters.h"
#include "objects/targets/styles.h"
#include "objects/targets/tableStyles.h"
#include "objects/targets/tables.h"
#include "objects/targets/texts.h"
#include "objects/targets/viewportOverrides.h"
#include "statements/wording.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

// The drawing's numbers.
constexpr std::int32_t kUseScaleFactor = 1;
constexpr std::int32_t kScaleOfSheet = 2;
constexpr std::int32_t kCustomArrow = 20;
constexpr std::int32_t kNoCenterMark = 0;
constexpr std::int32_t kCenterLines = 1;
constexpr std::int32_t kCenterMark = 2;

using inkmacro::Meaning;
using enum inkmacro::Target;
const inkmacro::Fault kTurnedRound{"EmitSetBoolProperty",
                                   {Cpp, CSharp, JavaScript, VbNet, CppCom, Vba},
                                   "a layer that is shown is hidden, and the other way round"};
const inkmacro::Fault kNoRadius{"EmitSetDoubleProperty",
                                {Cpp, CSharp, JavaScript, VbNet, CppCom, Vba},
                                "an area below zero gives a radius that is no number"};

Statement setReal(const Change& change, double value, Meaning meaning = Meaning::None)
{
    return EmitSetDoubleProperty(change.writer, change.target, change.row.property, value, meaning);
}

template<Meaning meaning>
Statement setAnyReal(const Change& change)
{
    return setReal(change, change.value.GetDouble(), meaning);
}

template<double (*radiusOf)(double)>
Statement setRadius(const Change& change)
{
    const double radius = radiusOf(change.value.GetDouble());
    Statement statement = EmitSetDoubleProperty(change.writer, change.target, "Radius", radius);
    return std::isfinite(radius) ? statement : change.writer.mended(std::move(statement), kNoRadius);
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

Statement setBool(const Change& change, bool value)
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
    return wordOf(value).equalNoCase(ShownWord("Yes"));
}

bool isPlainYes(const CFxVariant& value)
{
    return value.GetString() == ShownWord("Yes");
}

const inkmacro::Fault kTwoTransparencies{"EmitSetBoolProperty",
                                         {Cpp, CSharp, JavaScript, VbNet, CppCom, Vba},
                                         "a yes or no is given to the transparency of an entity"};

Statement setEnum(const Change& change, const CFxString& word)
{
    return EmitSetEnumProperty(change.writer, change.target, *change.row.kind.byText, change.row.property, word);
}

template<std::int32_t (*numberOf)(const CFxVariant&)>
Statement setEnumValue(const Change& change)
{
    return EmitSetEnumValue(change.writer, change.target, *change.row.kind.byValue, change.row.property,
                            numberOf(change.value));
}

Statement setText(const Change& change, const inkmacro::EscapedText& value, bool quoted,
                  Meaning meaning = Meaning::None)
{
    return EmitSetProperty(change.writer, change.target, change.row.property, value, quoted, meaning);
}

Statement setYesOrFirst(const Change& change)
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

using SetText = Statement (*)(const Change& change, const CFxString& word);

template<SetText set, std::optional<CFxString> (*textOf)(const CFxVariant&) = &ChosenText>
Statement setChosen(const Change& change)
{
    const std::optional<CFxString> word = textOf(change.value);
    return word ? set(change, *word) : QString();
}

Statement setQuoted(const Change& change, const CFxString& word)
{
    return setText(change, word, true);
}

template<bool (*isYes)(const CFxVariant&)>
Statement setEnumIfYes(const Change& change)
{
    return isYes(change.value) ? EmitSetEnumSuffix(change.writer, change.target, *change.row.kind.byValue,
                                                   change.row.property, change.row.kind.suffix)
                               : QString();
}

Statement setContents(const Change& change, const CFxString& text)
{
    return setText(change, text, true, Meaning::Text);
}

Statement setDecimalSeparator(const Change& change, const CFxString& separator)
{
    return EmitSetDecimalSeparator(change.writer, change.target, change.row.property, separator);
}

/// Stands for the measure in the text of a dimension.
constexpr QLatin1String kMeasure("<>", 2);

Statement setAffix(const Change& change, const CFxString& part)
{
    return part.toQString() == kMeasure ? QString() : setContents(change, part);
}

Statement setPrefixAndSuffix(const Change& change, const CFxString& parts)
{
    const QString& whole = parts;
    const int measure = whole.indexOf(kMeasure);
    const auto set = [&](const char* property, const QString& part) {
        return part.isEmpty() ? QString()
                              : EmitSetProperty(change.writer, change.target, property, part, true, Meaning::Text);
    };
    if (measure < 0)
        return set("Prefix", whole);
    return set("Prefix", whole.left(measure)) + set("Suffix", whole.mid(measure + kMeasure.size()));
}

Statement setLineStyle(const Change& change)
{
    if (change.value.GetType() == CFxVariant::kId)
        return EmitSetLineStyle(change.writer, change.target, change.row.property, change.value.GetId());
    return setChosen<setQuoted, anyText>(change);
}

Statement setOverrideText(const Change& change, const CFxString& value)
{
    return EmitViewportOverrideText(change.writer, change.target, change.row.property, value, true);
}

using SetArrow = Statement (*)(Writer& writer, const CFxString& target, const CFxString& operation, std::int32_t arrow,
                               const CFxString& name);

template<SetArrow emit>
Statement setArrow(const Change& change)
{
    const std::int32_t arrow = anyNumber(change.value);
    const CFxString name = arrow == kCustomArrow ? anyText(change.value).value_or(CFxString()) : CFxString();
    return emit(change.writer, change.target, change.row.property, arrow, name);
}

Statement setStyleCenterMark(const Change& change)
{
    const auto set = [&](std::int32_t kind, double size) {
        return EmitSetStyleCenterMark(change.writer, change.target, change.row.property, kind, size);
    };
    if (change.value.GetType() != CFxVariant::kDouble)
        return set(anyNumber(change.value), 0);
    const double size = change.value.GetDouble();
    return set(size > 0 ? kCenterMark : size < 0 ? kCenterLines : kNoCenterMark, std::abs(size));
}

/// Statements that follow find it by that name.
Statement renamed(const Change& change, const CFxString& name, Statement statement)
{
    if (change.writer.repairs && !statement.isEmpty())
        change.writer.newNames.insert_or_assign(change.object.handle, name);
    return statement;
}

/// The current style has to be made current again under its new name.
Statement renameDimensionStyle(const Change& change, const CFxString& name)
{
    const OdDbObjectId style = IdOf(change.object.handle);
    const bool isCurrent = !style.isNull() && style == ACTIVE_DOCUMENT->GetDatabase()->currentDimensionStyleId();
    return renamed(change, name, EmitRenameStyle(change.writer, change.target, name, isCurrent));
}

CFxString integerWord(const Change& change)
{
    return CFxString(QString::number(change.value.GetInt32()));
}

Statement renameRichLineStyle(const Change& change, const CFxString& name)
{
    const bool isLayerOrGroup = change.object.cls != OdDbMlineStyle::desc();
    return renamed(change, name,
                   isLayerOrGroup ? EmitRenameLayerOrGroup(change.writer, change.target, name)
                                  : EmitRenameRichLineStyle(change.writer, change.target, name));
}

Statement setYes(const Change& change, const CFxString& word)
{
    return setBool(change, word.equalNoCase(ShownWord("Yes")));
}

Statement setDoubled(const Change& change, const CFxString& text)
{
    return setText(change, inkmacro::doubleBackslashes(text), true, Meaning::Text);
}

Statement setUnquoted(const Change& change)
{
    const CFxString& text = change.value.GetString();
    // Python does not take every number as it stands, "007" for one.
    if (change.writer.target == Python && inkmacro::isNumber(text))
        return setReal(change, text.toQString().toDouble(), Meaning::Length);
    const Statement statement = setText(change, text, false);
    return inkmacro::isNumber(text) ? statement : change.writer.mended(statement, inkmacro::textAsCode);
}

/// In the order of the drawing's numbers.
constexpr const char* directions[] = {"ByStyle", "Vertical", "Horizontal"};

Statement setNoteDirection(const Change& change, const CFxString& word)
{
    const auto found = std::find_if(std::begin(directions), std::end(directions),
                                    [&](const char* shown) { return word.equalNoCase(ShownWord(shown)); });
    if (found == std::end(directions))
        return {};
    return EmitSetNoteDirection(change.writer, change.target, change.row.property,
                                static_cast<int>(found - std::begin(directions)));
}

Statement setNoteLineSpacing(const Change& change)
{
    const CFxVariant::Type type = change.value.GetType();
    constexpr CFxVariant::Type known[] = {CFxVariant::kCollection, CFxVariant::kCollectionElement, CFxVariant::kInt32,
                                          CFxVariant::kDouble};
    if (std::find(std::begin(known), std::end(known), type) == std::end(known))
        return {};
    return EmitSetNoteLineSpacing(change.writer, change.target, change.row.property, anyNumber(change.value));
}

Statement renameStyle(const Change& change, const CFxString& name)
{
    return renamed(change, name, EmitRenameStyle(change.writer, change.target, name, false));
}

/// A name that begins with the mark is none to be given; such a change is passed over.
Statement renameTextStyle(const Change& change, const CFxString& name)
{
    static const QLatin1String mark("<tag>");
    return name.toQString().startsWith(mark, Qt::CaseInsensitive) ? QString() : renameStyle(change, name);
}

Statement setTableStyle(const Change& change, const CFxString& style)
{
    return EmitSetTableStyle(change.writer, change.target, style, change.row.property);
}

Statement setOrientation(const Change& change, const CFxString& word)
{
    const bool down = word.equalNoCase(ShownWord("Down"));
    if (!down && !word.equalNoCase(ShownWord("Up")))
        return {};
    return EmitTableStyleOrientation(change.writer, change.target, change.row.property, down);
}

/// Without a number it is the title.
std::int32_t cellType(const Change& change)
{
    constexpr std::int32_t title = 1;
    return change.number.IsNull() ? title : anyNumber(change.number);
}

/// The line whose number stands beside the cell type, else that above the cells.
std::int32_t borderLine(const Change& change)
{
    constexpr std::int32_t horizontalTop = 1;
    if (change.number.GetType() != CFxVariant::kCollectionElement)
        return horizontalTop;
    return change.number.GetCollectionElement().GetValue()->GetInt32();
}

Statement setCellAlignment(const Change& change, const CFxString& shownText)
{
    return EmitSetTableStyleAlignment(change.writer, change.target, cellType(change), shownText);
}

Statement setCellTextStyle(const Change& change, const CFxString& name)
{
    return EmitSetTableStyleTextStyle(change.writer, change.target, cellType(change), name);
}

} // namespace

namespace kinds {

// They are ready before the rows of other files, which copy them.

constexpr const char* visibility[] = {"Visible", "Hidden"};
constexpr const char* enabledOrNot[] = {"Enabled", "Disabled"};
constexpr const char* separators[] = {",", " ", "."};
constexpr const char* orientations[] = {"Down", "Up"};
constexpr inkmacro::ValueEnumeration lineSpacings{"iwNoteLineSpacingStyle", 0, {"AtLeast", "Exactly"}};
constexpr ValueForm wholeChoice{forms::choice.types, ValueForm::kWholeNumber};
constexpr ValueForm arrowForm = forms::element.with(inkmacro::enums::dimensionArrowType);
constexpr ValueForm anyArrowForm = forms::choice.with(inkmacro::enums::dimensionArrowType);
constexpr ValueForm markForm = forms::choice.with(inkmacro::enums::dimensionCenterMarkDisplay);

constinit const ChangeKind length{setAnyReal<Meaning::Length>, forms::number};
constinit const ChangeKind angle{setAnyReal<Meaning::Angle>, forms::number};
constinit const ChangeKind factor{setAnyReal<Meaning::Factor>, forms::number};
constinit const ChangeKind integer{
    [](const Change& change) { return setReal(change, change.value.GetInt32(), Meaning::Count); }, forms::whole};
constinit const ChangeKind indexedReal{[](const Change& change) {
                                           return EmitSetIndexedDouble(change.writer, change.target,
                                                                       change.row.property, change.index,
                                                                       change.value.GetDouble());
                                       },
                                       forms::number, nullptr, true};
constinit const ChangeKind radiusFromArea{setRadius<fromArea>, forms::number};
constinit const ChangeKind radiusFromCircumference{setRadius<fromCircumference>, forms::number};
constinit const ChangeKind radiusFromDiameter{setRadius<fromDiameter>, forms::number};

constinit const ChangeKind yes{[](const Change& change) { return setBool(change, shows(change.value, "Yes")); },
                               forms::element.with(forms::yesNo)};
constinit const ChangeKind exactYes{[](const Change& change) { return setBool(change, IsYes(change.value)); },
                                    forms::element.with(forms::yesNo)};
constinit const ChangeKind visible{[](const Change& change) { return setBool(change, shows(change.value, "Visible")); },
                                   forms::element.with(visibility)};
constinit const ChangeKind exactEnabled{
    [](const Change& change) { return setBool(change, ElementText(change.value) == ShownWord("Enabled")); },
    forms::element.with(enabledOrNot)};
constinit const ChangeKind plainYes{[](const Change& change) { return setBool(change, isPlainYes(change.value)); },
                                    forms::text.with(forms::yesNo)};
constinit const ChangeKind plainNo{[](const Change& change) {
                                       return change.writer.mended(
                                           setBool(change, change.value.GetString() == ShownWord("No")), kTurnedRound,
                                           setBool(change, isPlainYes(change.value)));
                                   },
                                   forms::text.with(forms::yesNo)};
constinit const ChangeKind yesOrFirst{setYesOrFirst, forms::chosen.with(forms::yesNo)};
constinit const ChangeKind anyYes{[](const Change& change) { return setBool(change, isAnyYes(change.value)); },
                                  forms::word.with(forms::yesNo)};
constinit const ChangeKind otherTransparency{[](const Change& change) {
                                                 return change.writer.mended(setBool(change, isAnyYes(change.value)),
                                                                             kTwoTransparencies);
                                             },
                                             forms::word.with(forms::yesNo)};
constinit const ChangeKind chosenYes{setChosen<setYes>, forms::chosen.with(forms::yesNo)};

ChangeKind enumText(const inkmacro::TextEnumeration& enumeration)
{
    return {.statement = [](const Change& change) { return setEnum(change, ElementText(change.value)); },
            .form = forms::element.with(enumeration),
            .byText = &enumeration};
}

ChangeKind enumValue(const inkmacro::ValueEnumeration& enumeration)
{
    return {
        .statement = setEnumValue<elementNumber>, .form = forms::element.with(enumeration), .byValue = &enumeration};
}

ChangeKind chosenEnumText(const inkmacro::TextEnumeration& enumeration)
{
    return {.statement = setChosen<setEnum>, .form = forms::chosen.with(enumeration), .byText = &enumeration};
}

ChangeKind anyEnumText(const inkmacro::TextEnumeration& enumeration)
{
    return {.statement = setChosen<setEnum, anyText>, .form = forms::word.with(enumeration), .byText = &enumeration};
}

ChangeKind anyEnumValue(const inkmacro::ValueEnumeration& enumeration)
{
    return {.statement = setEnumValue<anyNumber>, .form = forms::choice.with(enumeration), .byValue = &enumeration};
}

ChangeKind exactYesEnum(const inkmacro::ValueEnumeration& enumeration, const char* suffix)
{
    return {.statement = setEnumIfYes<IsYes>,
            .form = forms::element.with(forms::yesNo),
            .byValue = &enumeration,
            .suffix = suffix,
            .maySayNothing = true};
}

ChangeKind plainYesEnum(const inkmacro::ValueEnumeration& enumeration, const char* suffix)
{
    return {.statement = setEnumIfYes<isPlainYes>,
            .form = forms::text.with(forms::yesNo),
            .byValue = &enumeration,
            .suffix = suffix,
            .maySayNothing = true};
}

constinit const ChangeKind decimalSeparator{setChosen<setDecimalSeparator, anyText>, forms::word.with(separators)};

constinit const ChangeKind quoted{[](const Change& change) { return setQuoted(change, ElementText(change.value)); },
                                  forms::element};
constinit const ChangeKind chosenQuoted{setChosen<setQuoted>, forms::chosen};
constinit const ChangeKind anyQuoted{setChosen<setQuoted, anyText>, forms::word};
constinit const ChangeKind contents{setChosen<setContents, anyText>, forms::word};
constinit const ChangeKind doubledBackslashes{setChosen<setDoubled, anyText>, forms::word};
constinit const ChangeKind affix{.statement = setChosen<setAffix, anyText>, .form = forms::word, .maySayNothing = true};
constinit const ChangeKind prefixAndSuffix{
    .statement = setChosen<setPrefixAndSuffix, anyText>, .form = forms::word, .maySayNothing = true};
constinit const ChangeKind escaped{[](const Change& change) {
                                       return setText(
                                           change, inkmacro::escapeText(change.writer.target, change.value.GetString()),
                                           true, Meaning::Text);
                                   },
                                   forms::text};
constinit const ChangeKind unquoted{setUnquoted, forms::text};
constinit const ChangeKind integerText{[](const Change& change) { return setText(change, integerWord(change), false); },
                                       forms::whole};

constinit const ChangeKind color{[](const Change& change) {
                                     return EmitSetColor(change.writer, change.target, change.row.property,
                                                         change.value.GetColor());
                                 },
                                 forms::color};
constinit const ChangeKind lineWeight{[](const Change& change) {
                                          return EmitSetLineWeight(change.writer, change.target, change.row.property,
                                                                   anyNumber(change.value));
                                      },
                                      wholeChoice};
constinit const ChangeKind lineStyle{setLineStyle, forms::style};
/// A leader's record does not tell the block of an arrow of one's own.
constinit const ChangeKind arrow{[](const Change& change) {
                                     return EmitSetArrow(change.writer, change.target, change.row.property,
                                                         elementNumber(change.value), {});
                                 },
                                 arrowForm};

constinit const ChangeKind activation{
    .statement =
        [](const Change& change) {
            return isPlainYes(change.value) ? EmitActivateLayer(change.writer, change.target) : QString();
        },
    .form = forms::text.with(forms::yesNo),
    .maySayNothing = true,
};
constinit const ChangeKind overrideYes{
    [](const Change& change) {
        return EmitViewportOverrideBool(change.writer, change.target, change.row.property, isPlainYes(change.value));
    },
    forms::text.with(forms::yesNo)};
constinit const ChangeKind overrideColor{
    [](const Change& change) {
        return EmitViewportOverrideColor(change.writer, change.target, change.row.property, change.value.GetColor());
    },
    forms::color};
constinit const ChangeKind overrideLineStyle{
    [](const Change& change) {
        if (change.value.GetType() != CFxVariant::kId)
            return setChosen<setOverrideText, anyText>(change);
        return EmitViewportOverrideLineStyle(change.writer, change.target, change.row.property, change.value.GetId());
    },
    forms::style};
constinit const ChangeKind overrideLineWeight{[](const Change& change) {
                                                  return EmitViewportOverrideLineWeight(change.writer, change.target,
                                                                                        change.row.property,
                                                                                        anyNumber(change.value));
                                              },
                                              wholeChoice};
constinit const ChangeKind overrideText{setChosen<setOverrideText, anyText>, forms::word};
constinit const ChangeKind overrideInteger{
    [](const Change& change) {
        return EmitViewportOverrideText(change.writer, change.target, change.row.property, integerWord(change), false);
    },
    forms::whole};

constinit const ChangeKind dimensionArrow{setArrow<&EmitSetArrow>, anyArrowForm};
constinit const ChangeKind styleArrow{setArrow<&EmitSetStyleArrow>, anyArrowForm};
constinit const ChangeKind scaleFactor{[](const Change& change) {
                                           return EmitSetDimensionScale(change.writer, change.target,
                                                                        change.row.property, kUseScaleFactor,
                                                                        change.value.GetDouble());
                                       },
                                       forms::number};
constinit const ChangeKind sheetScale{
    .statement =
        [](const Change& change) {
            return IsYes(change.value)
                       ? EmitSetDimensionScale(change.writer, change.target, change.row.property, kScaleOfSheet, 1.0)
                       : QString();
        },
    .form = forms::element.with(forms::yesNo),
    .maySayNothing = true,
};
constinit const ChangeKind centerMark{[](const Change& change) {
                                          return EmitSetCenterMarkKind(change.writer, change.target,
                                                                       change.row.property, anyNumber(change.value));
                                      },
                                      markForm};
constinit const ChangeKind centerMarkSize{
    [](const Change& change) {
        return EmitSetCenterMarkSize(change.writer, change.target, change.row.property, change.value.GetDouble());
    },
    forms::number};
constinit const ChangeKind styleCenterMark{setStyleCenterMark, markForm};

ChangeKind fixedLength(const char* lengthTag)
{
    return {.statement =
                [](const Change& change) {
                    return EmitSetExtensionLineFixedLength(change.writer, change.target, IsYes(change.value),
                                                           change.second.GetDouble());
                },
            .form = forms::element.with(forms::yesNo),
            .secondTag = lengthTag};
}

constinit const ChangeKind textInside{
    .statement =
        [](const Change& change) {
            if (!odrxQuery<OdDbDimension>(IdOf(change.object.handle).openObject().get()).isNull())
                return setEnumIfYes<IsYes>(change);
            if (IsYes(change.value))
                LoseProperty(change.object, change.row.tag.text(), "the drawing does not have the dimension");
            return Statement();
        },
    .form = forms::element.with(forms::yesNo),
    .byValue = &inkmacro::enums::dimensionFitGeometry,
    .suffix = "KeepTextBetweenExtensionLines",
    .maySayNothing = true,
};

constinit const ChangeKind noteDirection{setChosen<setNoteDirection, anyText>, forms::word.with(directions)};
constinit const ChangeKind noteLineSpacing{setNoteLineSpacing, forms::choice.with(lineSpacings)};
constinit const ChangeKind fontParameter{[](const Change& change) {
                                             return EmitSetFontParameter(change.writer, change.target,
                                                                         change.row.property, isAnyYes(change.value));
                                         },
                                         forms::word.with(forms::yesNo)};

constinit const ChangeKind tableStyle{setChosen<setTableStyle, anyText>, forms::word};
constinit const ChangeKind orientation{setChosen<setOrientation, anyText>, forms::word.with(orientations)};
constinit const ChangeKind cellAlignment{setChosen<setCellAlignment, anyText>,
                                         forms::word.with(inkmacro::enums::tableCellAlignment)};
constinit const ChangeKind cellTextStyle{setChosen<setCellTextStyle, anyText>, forms::word};
constinit const ChangeKind cellColor{[](const Change& change) {
                                         return EmitSetTableStyleColor(change.writer, change.target,
                                                                       change.row.property, cellType(change),
                                                                       change.value.GetColor());
                                     },
                                     forms::color};
constinit const ChangeKind cellLength{[](const Change& change) {
                                          return EmitSetTableStyleLength(change.writer, change.target,
                                                                         change.row.property, cellType(change),
                                                                         change.value.GetDouble());
                                      },
                                      forms::number};
constinit const ChangeKind gridColor{[](const Change& change) {
                                         return EmitTableBordersColor(change.writer, change.target, cellType(change),
                                                                      borderLine(change), change.value.GetColor());
                                     },
                                     forms::color};
constinit const ChangeKind gridLineWeight{[](const Change& change) {
                                              return EmitTableBordersLineWeight(change.writer, change.target,
                                                                                cellType(change), borderLine(change),
                                                                                anyNumber(change.value));
                                          },
                                          wholeChoice};

constinit const ChangeKind textStyleName{setChosen<renameTextStyle, anyText>, forms::word};
constinit const ChangeKind styleName{setChosen<renameStyle, anyText>, forms::word};
constinit const ChangeKind dimensionStyleName{setChosen<renameDimensionStyle, anyText>, forms::word};
constinit const ChangeKind richLineStyleName{setChosen<renameRichLineStyle, anyText>, forms::word};

} // namespace kinds
