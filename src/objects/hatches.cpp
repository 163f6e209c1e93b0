// Hatches: what becomes of added and of changed ones, and what both have in common.

#include "objects/hatches.h"

#include "objects/AddedObject.h"
#include "objects/added/readers.h"
#include "objects/losses.h"
#include "objects/properties.h"
#include "objects/targets/hatchPatterns.h"
#include "objects/targets/points.h"

#include <set>

namespace {

constexpr const char* detections[] = {"Normal", "Outer", "Ignore"};
constexpr const char* patternTypes[] = {"User defined", "Custom", "Predefined"};

/// The way of detecting inner regions, from 1 up. Among all items it is the place of the chosen one that counts, and
/// else the word, as the property sheet shows it.
std::int32_t regionDetection(const CFxVariant& value)
{
    if (value.GetType() == CFxVariant::kCollection) {
        const std::int32_t chosen = value.GetCollection().GetChosen();
        return chosen == 1 || chosen == 2 ? chosen + 1 : 1;
    }
    const CFxString word = value.GetType() == CFxVariant::kCollectionElement ? ElementText(value) : value.GetString();
    if (word.equalNoCase(ShownWord("Outer")))
        return 2;
    return word.equalNoCase(ShownWord("Ignore")) ? 3 : 1;
}

} // namespace

Statement ConvertHatchCommonProperties(Writer& writer, const CFxString& pattern, const TakeTag& take)
{
    Statement text;
    if (const CFxVariant detection = take("Internal region detection", forms::word.with(detections));
        !detection.IsNull())
        text = EmitHatchRegionDetection(writer, pattern, regionDetection(detection));
    if (const CFxVariant x = take("Origin X", forms::number); !x.IsNull())
        text += EmitChangeCoordinate2DX(writer, pattern, "Origin", x.GetDouble());
    if (const CFxVariant y = take("Origin Y", forms::number); !y.IsNull())
        text += EmitChangeCoordinate2DY(writer, pattern, "Origin", y.GetDouble());
    return text;
}

std::vector<BoundaryObject> BoundaryObjects(const Names& names, const OdArray<OdDbObjectId>& ids)
{
    std::vector<BoundaryObject> boundary;
    std::set<OdDbObjectId> seen;
    for (const OdDbObjectId& id : ids) {
        if (seen.insert(id).second)
            boundary.push_back({id, names.AddedVariable(id)});
    }
    return boundary;
}

/// A custom action of the same command inserts the hatch; here it gets what its call has no argument for.
Statement ReadHatch(AddedObject& added)
{
    CFxString pattern;
    const Statement fetch = EmitGetHatchPattern(added.writer, added.name, pattern);
    const Statement settings = ConvertHatchCommonProperties(
        added.writer, pattern, [&](const char* tag, const ValueForm& form) { return added.take(tag, form); });
    return settings.isEmpty() ? Statement() : fetch + settings;
}

namespace {

std::optional<double> realOf(const CFxVariant& value)
{
    return value.IsNull() ? std::nullopt : std::optional(value.GetDouble());
}

std::optional<CFxString> textOf(const CFxVariant& value)
{
    return value.IsNull() ? std::nullopt : std::optional(wordOf(value));
}

std::optional<OdCmColor> colorOf(const CFxVariant& value)
{
    return value.IsNull() ? std::nullopt : std::optional(value.GetColor());
}

std::optional<bool> yesOf(const CFxVariant& value)
{
    return value.IsNull() ? std::nullopt : std::optional(wordOf(value) == ShownWord("Yes"));
}

} // namespace

void ConvertModifiedHatch(Conversion& conversion, const RecordedObject& object, PropertyList& list, Statement& text)
{
    const TakeTag take = [&](const char* tag, const ValueForm& form) {
        return TakeProperty(conversion, object, tag, form, list);
    };
    // The tags are read in this order.
    const HatchPatternChange data{.name = textOf(take("Pattern name", forms::word)),
                                  .angle = realOf(take("Angle", forms::number)),
                                  .scale = realOf(take("Scale", forms::number)),
                                  .spacing = realOf(take("Spacing", forms::number)),
                                  .type = textOf(take("Type", forms::word.with(patternTypes)))};
    const HatchGradientChange gradient{.first = colorOf(take("Color 1", forms::color)),
                                       .second = colorOf(take("Color 2", forms::color)),
                                       .centered = yesOf(take("Centered", forms::word.with(forms::yesNo))),
                                       .angle = realOf(take("Gradient Angle", forms::number))};
    CFxString pattern;
    const Statement fetch = EmitGetHatchPattern(conversion.writer, object.name, pattern);
    const Statement common = ConvertHatchCommonProperties(conversion.writer, pattern, take);
    if (data.isEmpty() && gradient.isEmpty() && common.isEmpty())
        return;
    text += fetch;
    if (!data.isEmpty())
        text += EmitSetHatchData(conversion.writer, pattern, data);
    if (!gradient.isEmpty())
        text += EmitHatchGradientData(conversion.writer, pattern, gradient);
    text += common;
}
