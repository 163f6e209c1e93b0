#include "view/patterns.h"

#include "view/plane.h"

#include <QHash>

namespace inkmacro::view {
namespace {

using Pattern = std::vector<PatternLines>;

/// Between the lines of the closest patterns at a scale of 1: an eighth of an inch, in millimeters.
constexpr double kStep = 3.175;
constexpr double kDiagonal = kTurn / 8;
constexpr double kUpright = kTurn / 4;
/// As far apart do diagonals that are one step from each other cross a level line.
constexpr double kAside = kStep * std::numbers::sqrt2;

Pattern net(double angle)
{
    return {{angle, {}, kStep}, {angle + kUpright, {}, kStep}};
}

/// Every second row of joints is half a brick aside.
Pattern brick()
{
    constexpr double kHeight = 2.0 * kStep;
    constexpr double kLength = 2.0 * kHeight;
    const std::vector<double> joints{kHeight, -kHeight};
    return {{0.0, {}, kHeight}, {kUpright, {}, kLength, joints}, {kUpright, {kHeight, kHeight}, kLength, joints}};
}

/// Rows that are half a distance aside from each other.
Pattern dots()
{
    constexpr double kDot = kStep / 20.0;
    const std::vector<double> row{kDot, kDot - kStep / 2.0};
    return {{0.0, {}, kStep / 2.0, row}, {0.0, {kStep / 4.0, kStep / 4.0}, kStep / 2.0, row}};
}

QHash<QString, Pattern> patterns()
{
    return {
        {"ANSI31", {{kDiagonal, {}, kStep}}},
        {"ANSI32", {{kDiagonal, {}, 3.0 * kStep}, {kDiagonal, {kAside, 0.0}, 3.0 * kStep}}},
        {"ANSI33", {{kDiagonal, {}, 2.0 * kStep}, {kDiagonal, {kAside, 0.0}, 2.0 * kStep, {kStep, -kStep / 2.0}}}},
        {"ANSI37", net(kDiagonal)},
        {"LINE", {{0.0, {}, kStep}}},
        {"NET", net(0.0)},
        {"GRID", net(0.0)},
        {"BRICK", brick()},
        {"DOTS", dots()},
    };
}

} // namespace

std::optional<std::vector<PatternLines>> patternNamed(const QString& name)
{
    static const QHash<QString, Pattern> known = patterns();
    const auto found = known.constFind(name.toUpper());
    return found == known.constEnd() ? std::nullopt : std::optional(*found);
}

std::vector<PatternLines> placed(std::vector<PatternLines> pattern, double scale, double angle, Point origin)
{
    const Point along = directionOf(angle);
    for (PatternLines& lines : pattern) {
        const Point base = lines.base * scale;
        lines.base = origin + along * base.x + leftOf(along) * base.y;
        lines.angle += angle;
        lines.distance *= scale;
        for (double& dash : lines.dashes)
            dash *= scale;
    }
    return pattern;
}

} // namespace inkmacro::view
