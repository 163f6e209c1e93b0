#include "view/parallels.h"

#include <cmath>

namespace inkmacro::view {

std::vector<Point> withoutRepeats(const std::vector<Point>& points, bool isClosed)
{
    std::vector<Point> kept;
    for (const Point& point : points)
        if (kept.empty() || point != kept.back())
            kept.push_back(point);
    while (isClosed && kept.size() > 1 && kept.front() == kept.back())
        kept.pop_back();
    return kept;
}

Point directionOf(Point from, Point to)
{
    const double length = std::hypot(to.x - from.x, to.y - from.y);
    return {(to.x - from.x) / length, (to.y - from.y) / length};
}

Point mitre(Point coming, Point leaving)
{
    const Point before{-coming.y, coming.x};
    const Point behind{-leaving.y, leaving.x};
    const double by = 1.0 + before.x * behind.x + before.y * behind.y;
    // Back on its own way there is no corner.
    constexpr double back = 1e-6;
    if (by < back)
        return before;
    return {(before.x + behind.x) / by, (before.y + behind.y) / by};
}

std::vector<Point> parallelTo(const std::vector<Point>& points, bool isClosed, double distance)
{
    const std::size_t count = points.size();
    std::vector<Point> beside;
    for (std::size_t i = 0; i < count; ++i) {
        const bool hasBefore = isClosed || i > 0;
        const bool hasBehind = isClosed || i + 1 < count;
        const Point coming = hasBefore ? directionOf(points[(i + count - 1) % count], points[i]) : Point();
        const Point leaving = hasBehind ? directionOf(points[i], points[(i + 1) % count]) : coming;
        const Point corner = mitre(hasBefore ? coming : leaving, leaving);
        beside.push_back({points[i].x + corner.x * distance, points[i].y + corner.y * distance});
    }
    return beside;
}

} // namespace inkmacro::view
