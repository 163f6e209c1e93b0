#pragma once

#include "host/kernel/CFxConversionNotes.h"

#include <cstddef>
#include <functional>
#include <vector>

namespace inkmacro {

/// Of which action a line of the macro is. Small, since there may be one for each of millions of lines.
struct Origin
{
    static constexpr std::uint32_t kNone = 0xFFFFFFFF;

    CFxMacroPart part = CFxMacroPart::kFrame;
    std::uint32_t action = kNone; ///< at the recording's top level, from 0
    std::uint32_t child = kNone;  ///< among those of the command; none for the action itself
    OdDbHandle made = {};         ///< see CFxMacroLines

    bool operator==(const Origin&) const = default;
};

/// So many lines, one after the other, that have one origin.
struct OriginRun
{
    Origin origin;
    std::uint32_t count;
};

using OriginRuns = std::vector<OriginRun>;
using OriginSink = std::function<void(const OriginRun&)>;

inline void addLines(OriginRuns& runs, const Origin& origin, std::uint32_t count = 1)
{
    if (!runs.empty() && runs.back().origin == origin)
        runs.back().count += count;
    else if (count > 0)
        runs.push_back({origin, count});
}

} // namespace inkmacro
