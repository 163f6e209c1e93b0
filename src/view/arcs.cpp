#include "view/arcs.h"

#include <cmath>

namespace inkmacro::view {

ArcBetween arcBetween(Point from, Point to, double bulge)
{
    // The center lies beside the middle of the chord, by the chord times this.
    const double aside = (1.0 - bulge * bulge) / (4.0 * bulge);
    const Point chord{to.x - from.x, to.y - from.y};
    const Point center{(from.x + to.x) / 2.0 - chord.y * aside, (from.y + to.y) / 2.0 + chord.x * aside};
    return {center, std::hypot(from.x - center.x, from.y - center.y), std::atan2(from.y - center.y, from.x - center.x),
            4.0 * std::atan(bulge)};
}

double sweepBetween(double start, double end)
{
    const double sweep = std::fmod(end - start, kTurn);
    return sweep <= 0.0 ? sweep + kTurn : sweep;
}

} // namespace inkmacro::view
