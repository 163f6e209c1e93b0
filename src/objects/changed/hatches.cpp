// Changed hatches: pattern, gradient, inner regions and origin.

#include "objects/hatches.h"

#include "objects/losses.h"
#include "objects/properties.h"
#include "objects/targets/hatchPatterns.h"

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
    const TakeTag take = [&](const char* tag) { return FindProperty(conversion, tag, list); };
    // The tags are read in this order.
    const HatchPatternChange data{.name = textOf(take("Pattern name")),
                                  .angle = realOf(take("Angle")),
                                  .scale = realOf(take("Scale")),
                                  .spacing = realOf(take("Spacing")),
                                  .type = textOf(take("Type"))};
    const HatchGradientChange gradient{.first = colorOf(take("Color 1")),
                                       .second = colorOf(take("Color 2")),
                                       .centered = yesOf(take("Centered")),
                                       .angle = realOf(take("Gradient Angle"))};
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
