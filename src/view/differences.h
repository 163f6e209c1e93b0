#pragma once

#include <QByteArray>

#include <cstdint>
#include <vector>

namespace inkmacro::view {

/// Neighbouring lines of a macro that come from one step.
struct LineRange
{
    std::uint32_t count;
    std::int32_t step; ///< -1 for what holds the macro together
    std::uint8_t part; ///< a CFxMacroPart
};

/// A macro: its text, and where its lines come from, from the first to the last.
struct MacroLines
{
    QByteArray text;
    std::vector<LineRange> ranges;
};

/// Lines of a macro as recorded, and what stands in their place in the repaired one. Lines count from 1; where there
/// are none, the first one is that in front of which they would stand.
struct Hunk
{
    std::uint32_t recordedFirst;
    std::uint32_t recordedCount;
    std::uint32_t repairedFirst;
    std::uint32_t repairedCount;
    std::int32_t step;
};

/// What differs between two macros of one recording, step by step: equal statements of two steps are never taken for
/// one another. All outside the hunks is the same.
std::vector<Hunk> differencesOf(const MacroLines& recorded, const MacroLines& repaired);

} // namespace inkmacro::view
