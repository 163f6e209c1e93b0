// Changed leaders and tolerances. Their looks are overrides of a dimension style, which the host keeps in option
// objects.

#include "objects/ChangeRows.h"
#include "objects/targets/dimensionOptions.h"
#include "objects/targets/geometrySetters.h"
#include "objects/targets/pointChanges.h"
#include "objects/targets/setters.h"
#include "targets/wording.h"

namespace {

/// The drawing's number for a scale that is given, not that of the sheet.
constexpr std::int32_t kUseScaleFactor = 1;

std::int32_t elementNumber(const CFxVariant& value)
{
    return value.GetCollectionElement().GetTag()->GetInt32();
}

QString setQuoted(const Change& change, const CFxString& value)
{
    return EmitSetProperty(change.writer, change.name, change.row.property, value, true);
}

using OptionsGetter = QString (*)(Writer& writer, const CFxString& owner, CFxString& options);

/// Each tag fetches the option object anew, into variables of its own.
template<class Setter>
QString onOptions(const Change& change, OptionsGetter getter, const Setter& setter)
{
    CFxString userData;
    CFxString options;
    QString text = EmitGetDimensionStyleUserData(change.writer, change.name, userData);
    text += getter(change.writer, userData, options);
    text += setter(options);
    return text;
}

/// The value is a text as the property sheet shows it, and goes into the statement as it stands.
template<OptionsGetter getter>
QString setOptionText(const Change& change)
{
    return onOptions(change, getter, [&](const CFxString& options) {
        return EmitSetProperty(change.writer, options, change.row.property, change.value.GetString(), false);
    });
}

constexpr ChangeKind kVertex{[](const Change& change) {
                                 return EmitChangeVertex(change.writer, change.name, change.index, change.row.axis,
                                                         change.value.GetDouble());
                             },
                             "xyz", true};

constexpr ChangeKind kQuoted{[](const Change& change) { return setQuoted(change, ElementText(change.value)); }};

constexpr ChangeKind kChosenQuoted{[](const Change& change) {
    const auto word = ChosenText(change.value);
    return word ? setQuoted(change, *word) : QString();
}};

constexpr ChangeKind kEscaped{[](const Change& change) {
    return setQuoted(change, inkmacro::escapeText(change.writer.target, change.value.GetString()));
}};

constexpr ChangeKind kColor{[](const Change& change) {
    return EmitSetColor(change.writer, change.name, change.row.property, change.value.GetColor());
}};

constexpr ChangeKind kLeaderType{[](const Change& change) {
    return EmitSetLeaderType(change.writer, change.name, change.row.property, elementNumber(change.value));
}};

constexpr ChangeKind kArrow{[](const Change& change) {
    return onOptions(change, &EmitGetArrowsOptions, [&](const CFxString& options) {
        return EmitSetLeaderArrow(change.writer, options, change.row.property, elementNumber(change.value));
    });
}};

constexpr ChangeKind kLineColor{[](const Change& change) {
    return onOptions(change, &EmitGetLineOptions, [&](const CFxString& options) {
        return EmitSetColor(change.writer, options, change.row.property, change.value.GetColor());
    });
}};

constexpr ChangeKind kLineWeight{[](const Change& change) {
    return onOptions(change, &EmitGetLineOptions, [&](const CFxString& options) {
        return EmitSetLineWeight(change.writer, options, change.row.property, change.value.GetInt32());
    });
}};

constexpr ChangeKind kScale{[](const Change& change) {
    return onOptions(change, &EmitGetFitOptions, [&](const CFxString& options) {
        return EmitSetDimensionScale(change.writer, options, change.row.property, kUseScaleFactor,
                                     change.value.GetDouble());
    });
}};

} // namespace

std::int32_t CFxConverterIWAPIObject::ConvertModifiedLeader(PropertyList& list, bool fromAdded, const CFxString& name,
                                                            QString& text)
{
    static const ChangeRows rows{
        {kVertex, "Vertex"},
        {kQuoted, "DimStyle", "DimensionStyle"},
        {kLeaderType, "Type", "Type"},
        {kArrow, "Arrow", "SetLeaderArrow"},
        {{setOptionText<&EmitGetArrowsOptions>}, "Arrow size", "Size"},
        {kLineColor, "DimLine LColor", "DimensionLineColor"},
        {kLineWeight, "DimLine LWeight", "DimensionLineLineWeight"},
        {{setOptionText<&EmitGetTextOptions>}, "Text offset", "OffsetFromDimensionLines"},
        {kScale, "DimScale overall", "SetDimensionScale"},
    };
    return ConvertRows(rows, list, fromAdded, name, text);
}

std::int32_t CFxConverterIWAPIObject::ConvertModifiedTolerance(PropertyList& list, bool fromAdded,
                                                               const CFxString& name, QString& text)
{
    static const ChangeRows rows{
        {kPoint, "Position", "Position"},
        {kReal, "Dim scale overall", "DimensionScaleFactor"},
        {kChosenQuoted, "Dim style", "DimensionStyle"},
        {kLineColor, "DimLine LColor", "DimensionLineColor"},
        {kQuoted, "TextStyle", "TextStyle"},
        {kReal, "Text height", "TextHeight"},
        {kColor, "TextColor", "TextColor"},
        {kEscaped, "Content", "Text"},
    };
    return ConvertRows(rows, list, fromAdded, name, text);
}
