#include "view/arcs.h"
#include "view/drawers.h"

#include <algorithm>
#include <cmath>

namespace inkmacro::view {

namespace {

/// A cubic curve through points, with its derivatives there by the length of the chords.
struct Knots
{
    std::vector<Point> points;
    std::vector<double> spans; ///< between a point and the next
    std::vector<Point> slopes;
};

/// Equations of three neighbors each, which are solved in place.
class Tridiagonal
{
public:
    void add(double before, double own, double behind) { rows_.push_back({before, own, behind}); }

    std::vector<Point> solve(std::vector<Point> right) const
    {
        std::vector<double> behind(rows_.size());
        double last = 0.0;
        Point former;
        for (std::size_t i = 0; i < rows_.size(); ++i) {
            const double by = rows_[i].own - rows_[i].before * last;
            last = behind[i] = rows_[i].behind / by;
            former = right[i] = {(right[i].x - rows_[i].before * former.x) / by,
                                 (right[i].y - rows_[i].before * former.y) / by};
        }
        for (std::size_t i = rows_.size() - 1; i-- > 0;) {
            right[i].x -= behind[i] * right[i + 1].x;
            right[i].y -= behind[i] * right[i + 1].y;
        }
        return right;
    }

    struct Row
    {
        double before;
        double own;
        double behind;
    };
    std::vector<Row>& rows() { return rows_; }

private:
    std::vector<Row> rows_;
};

Point chord(const Knots& knots, std::size_t i)
{
    const Point& from = knots.points[i];
    const Point& to = knots.points[i + 1];
    return {(to.x - from.x) / knots.spans[i], (to.y - from.y) / knots.spans[i]};
}

/// What the curvature asks of the slope between two spans.
void addInner(const Knots& knots, std::size_t before, std::size_t behind, Tridiagonal& matrix,
              std::vector<Point>& right)
{
    const double h0 = knots.spans[before];
    const double h1 = knots.spans[behind];
    const Point d0 = chord(knots, before);
    const Point d1 = chord(knots, behind);
    matrix.add(h1, 2.0 * (h0 + h1), h0);
    right.push_back({3.0 * (h1 * d0.x + h0 * d1.x), 3.0 * (h1 * d0.y + h0 * d1.y)});
}

using Tangent = std::optional<Point>;

void solveOpen(Knots& knots, const Tangent& start, const Tangent& end)
{
    Tridiagonal matrix;
    std::vector<Point> right;
    const auto addEnd = [&](const Tangent& tangent, std::size_t span, bool isFirst) {
        if (tangent) {
            matrix.add(0.0, 1.0, 0.0);
            right.push_back(*tangent);
            return;
        }
        const Point d = chord(knots, span);
        matrix.add(isFirst ? 0.0 : 1.0, 2.0, isFirst ? 1.0 : 0.0);
        right.push_back({3.0 * d.x, 3.0 * d.y});
    };
    addEnd(start, 0, true);
    for (std::size_t i = 1; i < knots.spans.size(); ++i)
        addInner(knots, i - 1, i, matrix, right);
    addEnd(end, knots.spans.size() - 1, false);
    knots.slopes = matrix.solve(std::move(right));
}

/// The last point is the first one.
void solveClosed(Knots& knots)
{
    const std::size_t count = knots.spans.size();
    Tridiagonal matrix;
    std::vector<Point> right;
    for (std::size_t i = 0; i < count; ++i)
        addInner(knots, i == 0 ? count - 1 : i - 1, i, matrix, right);
    // The corners of the matrix by Sherman and Morrison.
    const double corner = matrix.rows().front().before;
    const double other = matrix.rows().back().behind;
    const double gamma = -matrix.rows().front().own;
    matrix.rows().front().own -= gamma;
    matrix.rows().back().own -= corner * other / gamma;
    matrix.rows().front().before = 0.0;
    matrix.rows().back().behind = 0.0;
    std::vector<Point> column(count);
    column.front().x = gamma;
    column.back().x = other;
    std::vector<Point> slopes = matrix.solve(std::move(right));
    column = matrix.solve(std::move(column));
    const double by = 1.0 + column.front().x + corner * column.back().x / gamma;
    const Point factor{(slopes.front().x + corner * slopes.back().x / gamma) / by,
                       (slopes.front().y + corner * slopes.back().y / gamma) / by};
    for (std::size_t i = 0; i < count; ++i) {
        slopes[i].x -= factor.x * column[i].x;
        slopes[i].y -= factor.y * column[i].x;
    }
    slopes.push_back(slopes.front());
    knots.slopes = std::move(slopes);
}

/// The direction of a tangent; none for one that is not told.
Tangent tangentOf(const Values& values, const char* tag)
{
    const std::optional<OdGePoint3d> vector = values.point(QLatin1String(tag));
    const double length = vector ? vector->distanceTo({}) : 0.0;
    return length > 0.0 ? Tangent(Point{vector->x / length, vector->y / length}) : std::nullopt;
}

void drawKnots(const Knots& knots, Pen& pen)
{
    Outline outline;
    outline.move(knots.points.front());
    for (std::size_t i = 0; i < knots.spans.size(); ++i) {
        const double third = knots.spans[i] / 3.0;
        const Point& from = knots.points[i];
        const Point& to = knots.points[i + 1];
        const Point& leaving = knots.slopes[i];
        const Point& coming = knots.slopes[i + 1];
        outline.bezier({from.x + leaving.x * third, from.y + leaving.y * third},
                       {to.x - coming.x * third, to.y - coming.y * third}, to);
    }
    pen.path(outline);
}

/// Along points that pull at the curve: a uniform cubic one that begins and ends in them.
void drawPulled(std::vector<Point> points, Pen& pen)
{
    const auto between = [](Point one, Point other, double part) {
        return Point{one.x + (other.x - one.x) * part, one.y + (other.y - one.y) * part};
    };
    // Three times each, the ends are where the curve begins and ends.
    for (int i = 0; i < 2; ++i) {
        points.insert(points.begin(), points.front());
        points.push_back(points.back());
    }
    Outline outline;
    outline.move(points.front());
    for (std::size_t i = 1; i + 2 < points.size(); ++i) {
        const Point first = between(points[i], points[i + 1], 1.0 / 3.0);
        const Point second = between(points[i], points[i + 1], 2.0 / 3.0);
        outline.bezier(first, second, between(second, between(points[i + 1], points[i + 2], 1.0 / 3.0), 0.5));
    }
    pen.path(outline);
}

} // namespace

void drawSpline(const Values& values, Pen& pen)
{
    std::vector<OdGePoint3d> points = values.points("Fit point");
    const bool isClosed = values.isYes("Closed");
    if (points.empty()) {
        std::vector<Point> pulling;
        for (const OdGePoint3d& point : values.points("Control point"))
            pulling.push_back(fromAbove(point));
        if (pulling.size() < 2)
            return;
        pen.remark("its degree and its knots are not recorded");
        drawPulled(std::move(pulling), pen);
        return;
    }
    if (isClosed && points.front() != points.back())
        points.push_back(points.front());
    Knots knots;
    for (const OdGePoint3d& point : points) {
        const OdGePoint3d* const former = &point == points.data() ? nullptr : &point - 1;
        if (former && point == *former)
            continue;
        if (former)
            knots.spans.push_back(point.distanceTo(*former));
        knots.points.push_back(fromAbove(point));
    }
    if (knots.spans.empty())
        return;
    if (isClosed && knots.spans.size() > 2)
        solveClosed(knots);
    else
        solveOpen(knots, tangentOf(values, "Start tangent vector"), tangentOf(values, "End tangent vector"));
    pen.remark("the application's curve may run otherwise between its points");
    drawKnots(knots, pen);
}

} // namespace inkmacro::view
