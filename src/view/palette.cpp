#include "view/palette.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace inkmacro::view {

namespace {

constexpr std::array<Rgb, 10> kFirst{{{0, 0, 0},
                                      {255, 0, 0},
                                      {255, 255, 0},
                                      {0, 255, 0},
                                      {0, 255, 255},
                                      {0, 0, 255},
                                      {255, 0, 255},
                                      {255, 255, 255},
                                      {128, 128, 128},
                                      {192, 192, 192}}};
constexpr std::array<std::uint8_t, 6> kGrays{51, 91, 132, 173, 214, 255};
/// Of the strongest part of a color, from the brightest shade to the darkest.
constexpr std::array<double, 5> kShades{255.0, 165.0, 127.0, 76.0, 38.0};

/// 24 hues, each in five shades, pure and half mixed with gray.
Rgb hueOf(int index)
{
    const int hue = index / 10 - 1;
    const double most = kShades[static_cast<std::size_t>(index % 10 / 2)];
    const double least = index % 2 != 0 ? most / 2.0 : 0.0;
    // Each hue lies between two of six pure ones, which are four apart.
    const double part = hue % 4 / 4.0;
    const double rising = least + (most - least) * part;
    const double falling = least + (most - least) * (1.0 - part);
    const auto color = [](double red, double green, double blue) {
        return Rgb{static_cast<std::uint8_t>(red), static_cast<std::uint8_t>(green), static_cast<std::uint8_t>(blue)};
    };
    switch (hue / 4) {
    case 0:
        return color(most, rising, least);
    case 1:
        return color(falling, most, least);
    case 2:
        return color(least, most, rising);
    case 3:
        return color(least, falling, most);
    case 4:
        return color(rising, least, most);
    default:
        return color(most, least, falling);
    }
}

double luminanceOf(Rgb color)
{
    const auto linear = [](std::uint8_t value) {
        const double share = value / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

} // namespace

std::optional<Rgb> rgbOf(const OdCmColor& color)
{
    constexpr int kInk = 7;
    constexpr int kFirstHue = 10;
    constexpr int kFirstGray = 250;
    if (color.isByLayer() || color.isByBlock())
        return std::nullopt;
    if (!color.isByACI())
        return Rgb{color.red(), color.green(), color.blue()};
    const int index = color.colorIndex();
    if (index < 1 || index > 255 || index == kInk)
        return std::nullopt;
    if (index < kFirstHue)
        return kFirst[static_cast<std::size_t>(index)];
    if (index < kFirstGray)
        return hueOf(index);
    const std::uint8_t gray = kGrays[static_cast<std::size_t>(index - kFirstGray)];
    return Rgb{gray, gray, gray};
}

double contrastOf(Rgb one, Rgb other)
{
    const auto [dark, light] = std::minmax({luminanceOf(one), luminanceOf(other)});
    return (light + 0.05) / (dark + 0.05);
}

Rgb visibleOn(Rgb paper, Rgb color)
{
    constexpr double kLeastContrast = 3.0;
    constexpr double kMiddle = 0.18; // of luminances, as they are seen
    if (contrastOf(color, paper) >= kLeastContrast)
        return color;
    const double end = luminanceOf(paper) > kMiddle ? 0.0 : 255.0;
    const auto mixed = [&](double share) {
        const auto part = [&](std::uint8_t value) {
            return static_cast<std::uint8_t>(std::lround(value + (end - value) * share));
        };
        return Rgb{part(color.red), part(color.green), part(color.blue)};
    };
    double low = 0.0;
    double high = 1.0;
    for (int i = 0; i < 12; ++i) {
        const double middle = (low + high) / 2.0;
        (contrastOf(mixed(middle), paper) >= kLeastContrast ? high : low) = middle;
    }
    return mixed(high);
}

} // namespace inkmacro::view
