#include "view/pathSteps.h"

namespace inkmacro::view {

bool PathSteps::next(Step& step)
{
    if (rest_.empty())
        return false;
    step.kind = static_cast<PathStep>(rest_.front());
    step.numbers = rest_.subspan(1, length(step.kind));
    rest_ = rest_.subspan(1 + step.numbers.size());
    return true;
}

std::size_t PathSteps::length(PathStep kind)
{
    switch (kind) {
    case PathStep::Move:
    case PathStep::Line:
        return 2;
    case PathStep::Arc:
        return 5;
    case PathStep::Ellipse:
        return 8;
    case PathStep::Bezier:
        return 6;
    case PathStep::Close:
        return 0;
    }
    return 0;
}

PatternLines takePatternLines(std::span<const double>& numbers)
{
    const auto dashes = static_cast<std::size_t>(numbers[4]);
    PatternLines family{numbers[0], {numbers[1], numbers[2]}, numbers[3]};
    family.dashes.assign(numbers.begin() + 5, numbers.begin() + 5 + static_cast<std::ptrdiff_t>(dashes));
    numbers = numbers.subspan(5 + dashes);
    return family;
}

std::span<const double> boundaryOf(std::span<const double> pattern)
{
    const auto families = static_cast<std::size_t>(pattern[0]);
    std::span<const double> rest = pattern.subspan(1);
    for (std::size_t i = 0; i < families; ++i)
        rest = rest.subspan(5 + static_cast<std::size_t>(rest[4]));
    return rest;
}

} // namespace inkmacro::view
