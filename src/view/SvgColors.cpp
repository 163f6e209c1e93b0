#include "view/SvgColors.h"

namespace inkmacro::view {

namespace {

struct Scheme
{
    Rgb paper;
    Rgb ink;
    Rgb dimension;
    Rgb there;
};

constexpr Scheme kLight{{255, 255, 255}, {0x17, 0x20, 0x2b}, {0x39, 0x53, 0x6f}, {0x83, 0x8e, 0x9c}};
constexpr Scheme kDark{{0x14, 0x1b, 0x24}, {0xe4, 0xea, 0xf2}, {0x9f, 0xb9, 0xd6}, {0x6f, 0x7e, 0x90}};

std::uint32_t keyOf(Rgb color)
{
    return std::uint32_t{color.red} << 16 | std::uint32_t{color.green} << 8 | color.blue;
}

QByteArray hexOf(Rgb color)
{
    return '#' + QByteArray::number(keyOf(color), 16).rightJustified(6, '0');
}

QByteArray rulesOf(const Scheme& scheme, const std::map<std::uint32_t, int>& numbers)
{
    QByteArray rules = ".paper{fill:" + hexOf(scheme.paper) + "}.ink{color:" + hexOf(scheme.ink) +
                       "}.dimension{color:" + hexOf(scheme.dimension) + "}.there{color:" + hexOf(scheme.there) + '}';
    for (const auto& [key, number] : numbers) {
        const Rgb color{static_cast<std::uint8_t>(key >> 16), static_cast<std::uint8_t>(key >> 8),
                        static_cast<std::uint8_t>(key)};
        rules += ".c" + QByteArray::number(number) + "{color:" + hexOf(visibleOn(scheme.paper, color)) + '}';
    }
    return rules;
}

} // namespace

QByteArray SvgColors::classOf(const Primitive& primitive)
{
    const Style& style = picture_.styles[primitive.style];
    const Layer& layer = picture_.layers[style.layer];
    const bool isInBlock = picture_.spaces[primitive.space].kind == Space::Kind::Block;
    // What stands on layer 0 within a block takes the layer of the reference.
    const bool isOnNone = isInBlock && style.color.isByLayer() && style.layer == 0;
    if (isOnNone || (isInBlock && style.color.isByBlock()))
        return {};
    if (const std::optional<Rgb> color = rgbOf(style.color.isByLayer() ? layer.color : style.color))
        return numbered(*color);
    if (picture_.objects[primitive.object].added == kNoStep)
        return "there";
    return style.role == Role::Object ? "ink" : "dimension";
}

QByteArray SvgColors::numbered(Rgb color)
{
    const auto number = static_cast<int>(numbers_.size());
    return 'c' + QByteArray::number(numbers_.emplace(keyOf(color), number).first->second);
}

QByteArray SvgColors::rules() const
{
    return rulesOf(kLight, numbers_) + "\n@media screen and (prefers-color-scheme:dark){" + rulesOf(kDark, numbers_) +
           '}';
}

} // namespace inkmacro::view
