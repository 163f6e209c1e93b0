#pragma once

#include "host/db/OdCmColor.h"

#include <cstdint>
#include <optional>

namespace inkmacro::view {

struct Rgb
{
    std::uint8_t red;
    std::uint8_t green;
    std::uint8_t blue;
    bool operator==(const Rgb&) const = default;
};

/// What a color looks like; none for index 7, which is black or white by the paper, and for one by layer or by block.
std::optional<Rgb> rgbOf(const OdCmColor& color);

/// By how much two colors differ in brightness, from 1 to 21.
double contrastOf(Rgb one, Rgb other);

/// The color itself, or mixed with as little black or white as lets it be seen on the paper, which keeps the hue.
Rgb visibleOn(Rgb paper, Rgb color);

} // namespace inkmacro::view
