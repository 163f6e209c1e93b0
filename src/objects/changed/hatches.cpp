// Changed hatches: pattern, gradient, inner regions and origin.

#include "objects/hatches.h"

#include "module/CFxConverterIWAPIImpl.h"
#include "objects/CFxConverterIWAPIObject.h"
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

void CFxConverterIWAPIObject::ConvertModifiedHatch(PropertyList& list, const CFxString& name, QString& text)
{
    const TakeTag take = [&](const char* tag) { return FindProperty(tag, list, driver.GetContext()); };
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
    const QString fetch = EmitGetHatchPattern(writer, name, pattern);
    const QString common = ConvertHatchCommonProperties(writer, pattern, take);
    if (data.isEmpty() && gradient.isEmpty() && common.isEmpty())
        return;
    text += fetch;
    if (!data.isEmpty())
        text += EmitSetHatchData(writer, pattern, data);
    if (!gradient.isEmpty())
        text += EmitHatchGradientData(writer, pattern, gradient);
    text += common;
}
