// The kinds of change: which statement a row's tag becomes.

#include "objects/changeKinds.h"

#include "objects/CFxConverterIWAPIObject.h"
#include "objects/targets/dimensionOptions.h"
#include "objects/targets/points.h"
#include "objects/targets/setters.h"
#include "targets/wording.h"

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

template<SetText set>
QString setChosen(const Change& change)
{
    const std::optional<CFxString> word = ChosenText(change.value);
    return word ? set(change, *word) : QString();
}

QString setQuoted(const Change& change, const CFxString& word)
{
    return setText(change, word, true);
}

QString changePoint(const Change& change)
{
    const QString& pair = change.row.property;
    return EmitChangePoint(change.writer, change.target, change.row.axis, "Get" + pair, "Set" + pair,
                           change.value.GetDouble(), change.index);
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

constinit const ChangeKind quoted{[](const Change& change) { return setQuoted(change, ElementText(change.value)); }};
constinit const ChangeKind chosenQuoted{setChosen<setQuoted>};
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

constinit const ChangeKind point{changePoint, "XYZ"};
constinit const ChangeKind indexedPoint{changePoint, "XYZ", true};
constinit const ChangeKind position{changePair<&EmitChangePosition>, "XYZ"};
constinit const ChangeKind firstPoint{changePair<&EmitChangeFirstPoint>, "XYZ"};
constinit const ChangeKind secondPoint{changePair<&EmitChangeSecondPoint>, "XYZ"};
constinit const ChangeKind vertex{changeVertex<&EmitChangeVertex>, "xyz", true};
constinit const ChangeKind vertex2D{changeVertex<&EmitChangeVertex2D>, "XY", true};
constinit const ChangeKind numberedVertex{changeNumberedVertex, "XYZ", true};
constinit const ChangeKind faceVertex{changeFaceVertex, "XYZ", true};

} // namespace kinds
