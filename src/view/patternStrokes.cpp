#include "view/patternStrokes.h"

#include "view/pathSteps.h"

#include <algorithm>
#include <cmath>

namespace inkmacro::view {

namespace {

/// More strokes are a tint.
constexpr std::size_t kMost = 20000;

/// The edges of a boundary as straight ones.
class Edges
{
public:
    explicit Edges(std::span<const double> boundary)
    {
        PathSteps steps(boundary);
        PathSteps::Step step;
        while (steps.next(step))
            add(step.kind, step.numbers);
        close();
    }

    const std::vector<Stroke>& all() const { return edges_; }

private:
    static constexpr int kPieces = 32; ///< of a curve

    void lineTo(Point to)
    {
        if (to != at_)
            edges_.push_back({at_, to});
        at_ = to;
    }

    void close() { lineTo(first_); }

    template<class At>
    void curve(At at)
    {
        for (int i = 1; i <= kPieces; ++i)
            lineTo(at(static_cast<double>(i) / kPieces));
    }

    void add(PathStep kind, std::span<const double> n)
    {
        switch (kind) {
        case PathStep::Move:
            close();
            first_ = at_ = {n[0], n[1]};
            isBegun_ = true;
            break;
        case PathStep::Line:
            lineTo({n[0], n[1]});
            break;
        case PathStep::Arc:
            begin({n[0] + n[2] * std::cos(n[3]), n[1] + n[2] * std::sin(n[3])});
            curve([n](double t) {
                const double angle = n[3] + t * n[4];
                return Point{n[0] + n[2] * std::cos(angle), n[1] + n[2] * std::sin(angle)};
            });
            break;
        case PathStep::Ellipse:
            begin(ellipseAt(n, n[6]));
            curve([n](double t) { return ellipseAt(n, n[6] + t * n[7]); });
            break;
        case PathStep::Bezier:
            curve([n, from = at_](double t) {
                const double s = 1.0 - t;
                const auto along = [&](double p, std::size_t i) {
                    return s * s * s * p + 3.0 * s * s * t * n[i] + 3.0 * s * t * t * n[i + 2] + t * t * t * n[i + 4];
                };
                return Point{along(from.x, 0), along(from.y, 1)};
            });
            break;
        case PathStep::Close:
            close();
            isBegun_ = false;
            break;
        }
    }

    /// A curve may begin a boundary, or follow another step.
    void begin(Point at)
    {
        if (isBegun_)
            lineTo(at);
        else
            first_ = at_ = at;
        isBegun_ = true;
    }

    static Point ellipseAt(std::span<const double> n, double t)
    {
        return {n[0] + n[2] * std::cos(t) + n[4] * std::sin(t), n[1] + n[3] * std::cos(t) + n[5] * std::sin(t)};
    }

    std::vector<Stroke> edges_;
    Point first_;
    Point at_;
    bool isBegun_ = false;
};

/// Along the lines of a family, and from one to the next.
struct Frame
{
    explicit Frame(const PatternLines& family)
        : base(family.base), cosine(std::cos(family.angle)), sine(std::sin(family.angle))
    {
    }
    Point from(Point point) const
    {
        const double x = point.x - base.x;
        const double y = point.y - base.y;
        return {x * cosine + y * sine, y * cosine - x * sine};
    }
    Point to(Point point) const
    {
        return {base.x + point.x * cosine - point.y * sine, base.y + point.x * sine + point.y * cosine};
    }

    Point base;
    double cosine;
    double sine;
};

class Hatching
{
public:
    explicit Hatching(std::span<const double> boundary) : edges_(boundary) {}

    /// False when there are too many.
    bool add(const PatternLines& family)
    {
        const double distance = std::abs(family.distance);
        if (!(distance > 0.0))
            return false;
        const Frame frame(family);
        std::vector<Stroke> edges;
        double lowest = 0.0;
        double highest = 0.0;
        for (const Stroke& edge : edges_.all()) {
            edges.push_back({frame.from(edge.from), frame.from(edge.to)});
            const auto [low, high] = std::minmax(edges.back().from.y, edges.back().to.y);
            lowest = edges.size() == 1 ? low : std::min(lowest, low);
            highest = edges.size() == 1 ? high : std::max(highest, high);
        }
        const double first = std::ceil(lowest / distance);
        const double last = std::floor(highest / distance);
        // Beyond this, a number has no next one.
        constexpr double kCountable = 1e15;
        if (!(last - first < static_cast<double>(kMost) && std::abs(first) < kCountable && std::abs(last) < kCountable))
            return false;
        return addLines(frame, edges, family, first, last);
    }

    std::vector<Stroke> take() { return std::move(strokes_); }

private:
    /// Each edge meets a few of the lines, and between pairs of places each line is within.
    bool addLines(const Frame& frame, const std::vector<Stroke>& edges, const PatternLines& family, double first,
                  double last)
    {
        if (last < first)
            return true;
        const double distance = std::abs(family.distance);
        std::vector<std::vector<double>> places(static_cast<std::size_t>(last - first) + 1);
        std::size_t count = 0;
        for (const Stroke& edge : edges) {
            const auto [low, high] = std::minmax(edge.from.y, edge.to.y);
            // An edge has its lower end and lacks the upper one, so that a corner counts once.
            for (double n = std::max(first, std::ceil(low / distance)); n <= last && n * distance < high; ++n) {
                const double part = (n * distance - edge.from.y) / (edge.to.y - edge.from.y);
                places[static_cast<std::size_t>(n - first)].push_back(edge.from.x + part * (edge.to.x - edge.from.x));
                if (++count > 2 * kMost)
                    return false;
            }
        }
        for (std::size_t i = 0; i < places.size(); ++i) {
            std::vector<double>& row = places[i];
            std::sort(row.begin(), row.end());
            const double y = (first + static_cast<double>(i)) * distance;
            for (std::size_t at = 0; at + 1 < row.size(); at += 2)
                if (!addDashes(frame, y, row[at], row[at + 1], family.dashes))
                    return false;
        }
        return true;
    }

    bool addDashes(const Frame& frame, double y, double from, double to, const std::vector<double>& dashes)
    {
        double period = 0.0;
        for (const double dash : dashes)
            period += std::abs(dash);
        if (!(period > 0.0))
            return addStroke(frame, y, from, to);
        const double count = (to - from) / period * static_cast<double>(dashes.size());
        if (count > static_cast<double>(kMost) || from + period == from || to + period == to)
            return false;
        for (double x = std::floor(from / period) * period; x < to;)
            for (const double dash : dashes) {
                const double end = x + std::abs(dash);
                if (dash >= 0.0 && end >= from && x <= to && !addStroke(frame, y, std::max(x, from), std::min(end, to)))
                    return false;
                x = end;
            }
        return true;
    }

    bool addStroke(const Frame& frame, double y, double from, double to)
    {
        strokes_.push_back({frame.to({from, y}), frame.to({to, y})});
        return strokes_.size() <= kMost;
    }

    Edges edges_;
    std::vector<Stroke> strokes_;
};

} // namespace

std::optional<std::vector<Stroke>> strokesOf(std::span<const double> pattern)
{
    Hatching hatching(boundaryOf(pattern));
    std::span<const double> rest = pattern.subspan(1);
    for (double i = 0.0; i < pattern[0]; ++i)
        if (!hatching.add(takePatternLines(rest)))
            return std::nullopt;
    return hatching.take();
}

} // namespace inkmacro::view
