#pragma once

#include "statements/Target.h"

#include <array>
#include <cstdint>

/// Numbers of names that go on from conversion to conversion, each raised by the one statement that has such a name.
/// Nothing ever puts them back, so the names of a macro depend on what the process has written before.
struct ProcessCounters
{
    /// Those that every target counts for itself.
    struct OfTarget
    {
        std::uint32_t transparencies = 0;
        std::uint32_t interfaceFiles = 0;
        std::uint32_t systemFiles = 0;
        std::uint32_t drawingSupportFiles = 0;
        std::uint32_t fileLocationArrays = 0;
        std::array<std::uint32_t, 15> boundaryEntities{}; ///< one a kind of temporary entity
        std::array<std::uint32_t, 4> regionPieces{};      ///< one a kind of curve
        std::uint32_t hatchRegions = 1;
        std::uint32_t imageBackgrounds = 0;
        std::uint32_t gradientBackgrounds = 0;
        std::uint32_t solidBackgrounds = 0;
    };

    std::uint32_t layerManagers = 0; ///< the first is 1
    std::uint32_t regions = 0;       ///< the first is 1
    std::uint32_t selections = 0;
    std::uint32_t elementColors = 0;
    std::uint32_t fillets = 0;
    std::uint32_t chamfers = 0;
    std::uint32_t hatchPolylines = 0;
    std::uint32_t viewTileArrays = 0;
    std::uint32_t blockArcs = 0;
    std::uint32_t blockArcLengthDimensions = 0;
    std::uint32_t clipCircles = 0;
    std::uint32_t clipPolylines = 0;
    std::uint32_t clipEllipses = 0;

    OfTarget& of(inkmacro::Target target) { return ofTargets[static_cast<std::size_t>(target)]; }
    std::array<OfTarget, inkmacro::targetCount> ofTargets{};
};

inline ProcessCounters processCounters;
