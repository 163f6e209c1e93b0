#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

namespace inkmacro {

/// The numbers that the host gives custom actions, from one to another.
struct KindNumbers
{
    constexpr KindNumbers(std::int32_t number) : first(number), last(number) {}
    constexpr KindNumbers(std::int32_t first, std::int32_t last) : first(first), last(last) {}

    std::int32_t first;
    std::int32_t last;
};

// The kinds that the walk over a command's children asks for.
inline constexpr std::int32_t kPolyline = 16;
inline constexpr std::int32_t kViewBackground = 41;
inline constexpr std::int32_t kViewport = 46;
// Others that make objects.
inline constexpr std::int32_t kSheet = 13;
inline constexpr std::int32_t kNamedView = 14;
inline constexpr std::int32_t kEmbeddedObject = 15;
inline constexpr std::int32_t kInsertHatch = 18;
inline constexpr std::int32_t kRegion = 44;
inline constexpr std::int32_t kViewTiles = 49;

/// What a custom action describes.
struct KindName
{
    KindNumbers numbers;
    const char* name; ///< for people
};

/// In the order of their numbers; the host has no others. What becomes of them stands in actions/handlers.h.
inline constexpr auto actionKinds = std::to_array<KindName>({
    {0, "mirror"},
    {1, "stretch"},
    {2, "copy"},
    {3, "move"},
    {4, "rotate"},
    {5, "scale"},
    {6, "trim"},
    {7, "extend"},
    {8, "fillet"},
    {9, "chamfer"},
    {10, "select"},
    {11, "selection filter"},
    {12, "coordinate system"},
    {kSheet, "sheet"},
    {kNamedView, "named view"},
    {kEmbeddedObject, "embedded object"},
    {kPolyline, "polyline"},
    {17, "erase"},
    {kInsertHatch, "insert hatch"},
    // Colors of the host's screen elements; the element is the action's first datum.
    {{19, 23}, "element color"},
    {{26, 32}, "element color"},
    {33, "option value"},
    {34, "interface file"},
    {35, "system file"},
    {36, "drawing support file"},
    {37, "group add"},
    {38, "group remove"},
    {39, "attribute value"},
    {40, "polyline edit"},
    {kViewBackground, "view background"},
    {42, "polyline vertex"},
    {43, "zoom"},
    {kRegion, "region"},
    {45, "activate"},
    {kViewport, "viewport"},
    {47, "print style"},
    {48, "clip boundary"},
    {kViewTiles, "view tiles"},
    {50, "join"},
    {55, "explode"},
});
static_assert(std::ranges::adjacent_find(actionKinds, [](const KindName& kind, const KindName& next) {
                  return kind.numbers.last >= next.numbers.first;
              }) == actionKinds.end());

/// The names by number; null where the host has no kind.
inline constexpr auto actionKindNames = [] {
    std::array<const char*, actionKinds.back().numbers.last + 1> names{};
    for (const KindName& kind : actionKinds)
        std::fill(names.begin() + kind.numbers.first, names.begin() + kind.numbers.last + 1, kind.name);
    return names;
}();

} // namespace inkmacro
