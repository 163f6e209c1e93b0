#pragma once

#include "view/Pen.h"

#include <span>

namespace inkmacro::view {

/// The numbers of a path or a boundary, step by step.
class PathSteps
{
public:
    struct Step
    {
        PathStep kind;
        std::span<const double> numbers; ///< without the kind
    };

    explicit PathSteps(std::span<const double> numbers) : rest_(numbers) {}

    /// False behind the last one.
    bool next(Step& step);

    /// How many numbers stand behind the kind.
    static std::size_t length(PathStep kind);

private:
    std::span<const double> rest_;
};

/// The family at the beginning of the numbers, which are moved behind it.
PatternLines takePatternLines(std::span<const double>& numbers);

/// The boundary of a pattern, behind its families.
std::span<const double> boundaryOf(std::span<const double> pattern);

} // namespace inkmacro::view
