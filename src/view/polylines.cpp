#include "view/arcs.h"
#include "view/drawers.h"
#include "view/parallels.h"
#include "view/polylineVertices.h"

#include <algorithm>
#include <cmath>

namespace inkmacro::view {

namespace {

/// A segment of a polyline, seen from above.
struct Segment
{
    Point from;
    Point to;
    double bulge;
    double startWidth;
    double endWidth;

    /// A smaller bulge is straight.
    bool isArc() const { return std::abs(bulge) > 1e-10; }
    bool isWide() const { return startWidth > 0.0 || endWidth > 0.0; }
};

std::vector<Segment> segmentsOf(const Vertices& all)
{
    std::vector<Segment> segments;
    const std::size_t count = all.vertices.size();
    for (std::size_t i = 0; i < (all.isClosed ? count : count - 1); ++i) {
        const Vertex& vertex = all.vertices[i];
        const Point from = fromAbove(vertex.at);
        const Point to = fromAbove(all.vertices[(i + 1) % count].at);
        if (from != to)
            segments.push_back({from, to, vertex.bulge, vertex.startWidth, vertex.endWidth});
    }
    return segments;
}

void drawOutline(const Point& first, const std::vector<Segment>& segments, bool isClosed, Pen& pen)
{
    Outline outline;
    outline.move(first);
    for (const Segment& segment : segments) {
        if (segment.isArc()) {
            const ArcBetween arc = arcBetween(segment.from, segment.to, segment.bulge);
            outline.arc(arc.center, arc.radius, arc.start, arc.sweep);
        } else {
            outline.line(segment.to);
        }
    }
    if (isClosed)
        outline.close();
    pen.path(outline);
}

/// The left side of a line at one of its ends, as a vector for a distance of 1. Where the next line goes on with the
/// same width, both meet in a mitre.
Point sideOf(const Segment& segment, const Segment* neighbor, bool isEnd)
{
    const Point own = directionOf(segment.from, segment.to);
    const double width = isEnd ? segment.endWidth : segment.startWidth;
    if (!neighbor || neighbor->isArc() || (isEnd ? neighbor->startWidth : neighbor->endWidth) != width)
        return {-own.y, own.x};
    const Point other = directionOf(neighbor->from, neighbor->to);
    return isEnd ? mitre(own, other) : mitre(other, own);
}

Point aside(Point from, Point side, double by)
{
    return {from.x + side.x * by, from.y + side.y * by};
}

void drawWideLine(const Segment& segment, const Segment* before, const Segment* behind, Pen& pen)
{
    const Point start = sideOf(segment, before, false);
    const Point end = sideOf(segment, behind, true);
    const double first = segment.startWidth / 2.0;
    const double last = segment.endWidth / 2.0;
    Outline outline;
    outline.move(aside(segment.from, start, first)).line(aside(segment.to, end, last));
    outline.line(aside(segment.to, end, -last)).line(aside(segment.from, start, -first)).close();
    pen.area(outline);
}

/// Along an arc whose distance from its center grows steadily, by cubic curves; begins where the outline has ended.
void addTapered(Outline& outline, Point center, double startRadius, double endRadius, double start, double sweep)
{
    constexpr double longest = std::numbers::pi / 8.0;
    const int pieces = std::max(1, static_cast<int>(std::ceil(std::abs(sweep) / longest)));
    const double step = sweep / pieces;
    const double growth = (endRadius - startRadius) / pieces;
    const auto handle = [&](double radius, double angle, double part) {
        const double x = radius * std::cos(angle);
        const double y = radius * std::sin(angle);
        // The curve's direction there, by the whole step.
        const double dx = growth * std::cos(angle) - step * y;
        const double dy = growth * std::sin(angle) + step * x;
        return Point{center.x + x + part * dx, center.y + y + part * dy};
    };
    for (int i = 0; i < pieces; ++i) {
        const double angle = start + i * step;
        const double radius = startRadius + i * growth;
        outline.bezier(handle(radius, angle, 1.0 / 3.0), handle(radius + growth, angle + step, -1.0 / 3.0),
                       handle(radius + growth, angle + step, 0.0));
    }
}

void drawWideArc(const Segment& segment, Pen& pen)
{
    const ArcBetween arc = arcBetween(segment.from, segment.to, segment.bulge);
    const double first = segment.startWidth / 2.0;
    const double last = segment.endWidth / 2.0;
    const double end = arc.start + arc.sweep;
    const auto at = [&arc](double radius, double angle) {
        return Point{arc.center.x + radius * std::cos(angle), arc.center.y + radius * std::sin(angle)};
    };
    Outline outline;
    outline.move(at(arc.radius + first, arc.start));
    addTapered(outline, arc.center, arc.radius + first, arc.radius + last, arc.start, arc.sweep);
    outline.line(at(arc.radius - last, end));
    addTapered(outline, arc.center, arc.radius - last, arc.radius - first, end, -arc.sweep);
    pen.area(outline.close());
}

void drawWidths(const std::vector<Segment>& segments, bool isClosed, Pen& pen)
{
    const std::size_t count = segments.size();
    for (std::size_t i = 0; i < count; ++i) {
        if (!segments[i].isWide())
            continue;
        if (segments[i].isArc()) {
            drawWideArc(segments[i], pen);
            continue;
        }
        const Segment* const before = i > 0 || isClosed ? &segments[(i + count - 1) % count] : nullptr;
        const Segment* const behind = i + 1 < count || isClosed ? &segments[(i + 1) % count] : nullptr;
        drawWideLine(segments[i], before, behind, pen);
    }
}

} // namespace

void drawPolyline(const Values& values, Pen& pen)
{
    const Vertices all = verticesOf(values);
    if (all.vertices.empty())
        return;
    const std::optional<QString> smooth = values.text("Fit/Smooth");
    if (smooth && smooth->compare(QLatin1String("none"), Qt::CaseInsensitive) != 0)
        pen.remark("the application makes the smoothed curve");
    const std::vector<Segment> segments = segmentsOf(all);
    drawWidths(segments, all.isClosed, pen);
    drawOutline(fromAbove(all.vertices.front().at), segments, all.isClosed, pen);
}

} // namespace inkmacro::view
