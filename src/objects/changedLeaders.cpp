// Changed leaders and tolerances. Their looks are overrides of a dimension style, which the host keeps in option
// objects.

#include "objects/ChangeRows.h"

namespace {

/// The drawing's number for a scale that is given, not that of the sheet.
constexpr std::int32_t kUseScaleFactor = 1;

std::int32_t elementNumber(const CFxVariant& value)
{
    return value.GetCollectionElement().GetTag()->GetInt32();
}

QString setQuoted(const Change& change, const CFxString& value)
{
    return change.objects.EmitSetProperty(change.name, change.row.property, value, true);
}

using OptionsGetter = QString (CFxConverterIWAPIObject::*)(const CFxString& owner, CFxString& options);

/// Each tag fetches the option object anew, into variables of its own.
template<class Setter>
QString onOptions(const Change& change, OptionsGetter getter, const Setter& setter)
{
    CFxString userData;
    CFxString options;
    QString text = change.objects.EmitGetDimensionStyleUserData(change.name, userData);
    text += (change.objects.*getter)(userData, options);
    text += setter(options);
    return text;
}

/// The value is a text as the property sheet shows it, and goes into the statement as it stands.
template<OptionsGetter getter>
QString setOptionText(const Change& change)
{
    return onOptions(change, getter, [&](const CFxString& options) {
        return change.objects.EmitSetProperty(options, change.row.property, change.value.GetString(), false);
    });
}

constexpr ChangeKind kVertex{[](const Change& change) {
                                 return change.objects.EmitChangeVertex(change.name, change.index, change.row.axis,
                                                                        change.value.GetDouble());
                             },
                             "xyz", true};

constexpr ChangeKind kQuoted{[](const Change& change) { return setQuoted(change, ElementText(change.value)); }};

constexpr ChangeKind kChosenQuoted{[](const Change& change) {
    const auto word = ChosenText(change.value);
    return word ? setQuoted(change, *word) : QString();
}};

constexpr ChangeKind kEscaped{
    [](const Change& change) { return setQuoted(change, change.objects.EscapeText(change.value.GetString())); }};

constexpr ChangeKind kColor{[](const Change& change) {
    return change.objects.EmitSetColor(change.name, change.row.property, change.value.GetColor());
}};

constexpr ChangeKind kLeaderType{[](const Change& change) {
    return change.objects.EmitSetLeaderType(change.name, change.row.property, elementNumber(change.value));
}};

constexpr ChangeKind kArrow{[](const Change& change) {
    return onOptions(change, &CFxConverterIWAPIObject::EmitGetArrowsOptions, [&](const CFxString& options) {
        return change.objects.EmitSetLeaderArrow(options, change.row.property, elementNumber(change.value));
    });
}};

constexpr ChangeKind kLineColor{[](const Change& change) {
    return onOptions(change, &CFxConverterIWAPIObject::EmitGetLineOptions, [&](const CFxString& options) {
        return change.objects.EmitSetColor(options, change.row.property, change.value.GetColor());
    });
}};

constexpr ChangeKind kLineWeight{[](const Change& change) {
    return onOptions(change, &CFxConverterIWAPIObject::EmitGetLineOptions, [&](const CFxString& options) {
        return change.objects.EmitSetLineWeight(options, change.row.property, change.value.GetInt32());
    });
}};

constexpr ChangeKind kScale{[](const Change& change) {
    return onOptions(change, &CFxConverterIWAPIObject::EmitGetFitOptions, [&](const CFxString& options) {
        return change.objects.EmitSetDimensionScale(options, change.row.property, kUseScaleFactor,
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
        {{setOptionText<&CFxConverterIWAPIObject::EmitGetArrowsOptions>}, "Arrow size", "Size"},
        {kLineColor, "DimLine LColor", "DimensionLineColor"},
        {kLineWeight, "DimLine LWeight", "DimensionLineLineWeight"},
        {{setOptionText<&CFxConverterIWAPIObject::EmitGetTextOptions>}, "Text offset", "OffsetFromDimensionLines"},
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
