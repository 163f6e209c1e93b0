#include "dxf/splines.h"

#include "dxf/vectors.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>

namespace inkmacro::dxf {

namespace {

constexpr int mostPoints = 10'000;
constexpr int highestDegree = 25;
/// Beyond it, rounding would decide on the curve.
constexpr double largestRatioOfWeights = 1e30;

bool isFinite(const OdGePoint3d& p)
{
    return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
}

/// The box around the control points, in which the curve stays.
struct Box
{
    explicit Box(const std::vector<OdGePoint3d>& points) : low(points.front()), high(low)
    {
        for (const OdGePoint3d& p : points) {
            low = {std::min(low.x, p.x), std::min(low.y, p.y), std::min(low.z, p.z)};
            high = {std::max(high.x, p.x), std::max(high.y, p.y), std::max(high.z, p.z)};
        }
    }

    double size() const { return low.distanceTo(high); }

    /// Places nearer to one another than this are one: part of the size, and what rounding leaves of coordinates.
    double grain() const
    {
        const double greatest = std::max({-low.x, -low.y, -low.z, high.x, high.y, high.z});
        return 1e-10 * size() + 4e-15 * greatest;
    }

    OdGePoint3d low;
    OdGePoint3d high;
};

/// Whether knots, counts and weights make a curve.
bool isCurve(const Nurbs& curve)
{
    const size_t count = curve.points.size();
    if (curve.degree < 1 || curve.degree > highestDegree || count < size_t(curve.degree) + 1 ||
        curve.knots.size() != count + curve.degree + 1 || (!curve.weights.empty() && curve.weights.size() != count))
        return false;
    const auto isNumber = [](double number) { return std::isfinite(number); };
    if (!std::all_of(curve.knots.begin(), curve.knots.end(), isNumber) ||
        !std::is_sorted(curve.knots.begin(), curve.knots.end()) ||
        !std::isfinite(curve.knots.back() - curve.knots.front()) || !(curve.knots[curve.degree] < curve.knots[count]))
        return false;
    if (!std::all_of(curve.points.begin(), curve.points.end(), isFinite) || !std::isfinite(Box(curve.points).size()))
        return false;
    if (curve.weights.empty())
        return true;
    if (!std::all_of(curve.weights.begin(), curve.weights.end(), isNumber))
        return false;
    const auto [least, greatest] = std::minmax_element(curve.weights.begin(), curve.weights.end());
    return *least > 0 && *greatest / *least < largestRatioOfWeights;
}

/// Evaluates a curve that is one.
class Evaluator
{
public:
    explicit Evaluator(const Nurbs& curve)
        : curve_(curve),
          greatestWeight_(curve.weights.empty() ? 1.0 : *std::max_element(curve.weights.begin(), curve.weights.end())),
          // The last span belongs to the end of the curve too.
          end_(std::lower_bound(curve.knots.begin(), curve.knots.end(), curve.knots[curve.points.size()]))
    {
    }

    OdGePoint3d at(double parameter) const
    {
        const auto after = std::upper_bound(curve_.knots.begin() + curve_.degree, end_, parameter);
        return blossom(int(after - curve_.knots.begin()) - 1, parameter, parameter, 0);
    }

    /// The control point `index` of the Bézier curve that runs over the span from a knot to the next one.
    OdGePoint3d bezierPoint(int knot, int index) const
    {
        return blossom(knot, curve_.knots[knot], curve_.knots[knot + 1], index);
    }

private:
    /// De Boor's scheme on the span that begins at a knot, with the parameter `b` in its first `times` steps and `a` in
    /// the others.
    OdGePoint3d blossom(int knot, double a, double b, int times) const
    {
        struct Homogeneous
        {
            OdGeVector3d v;
            double w;
        };
        std::array<Homogeneous, highestDegree + 1> steps;
        const int degree = curve_.degree;
        for (int i = 0; i <= degree; ++i) {
            const size_t control = knot - degree + i;
            const OdGePoint3d& p = curve_.points[control];
            const double weight = curve_.weights.empty() ? 1.0 : curve_.weights[control] / greatestWeight_;
            steps[i] = {weight * OdGeVector3d{p.x, p.y, p.z}, weight};
        }
        for (int step = 1; step <= degree; ++step) {
            const double parameter = step <= times ? b : a;
            for (int i = degree; i >= step; --i) {
                const double from = curve_.knots[knot - degree + i];
                const double to = curve_.knots[knot + i + 1 - step];
                const double part = (parameter - from) / (to - from);
                steps[i] = {(1 - part) * steps[i - 1].v + part * steps[i].v,
                            (1 - part) * steps[i - 1].w + part * steps[i].w};
            }
        }
        const OdGeVector3d v = 1 / steps[degree].w * steps[degree].v;
        return {v.x, v.y, v.z};
    }

    const Nurbs& curve_;
    double greatestWeight_;
    std::vector<double>::const_iterator end_; ///< the knots from which on the curve is at its end
};

/// A part of the curve between two fit points.
struct Span
{
    static constexpr int samples = 11;

    double from;
    double to;
    OdGePoint3d begin;
    OdGePoint3d end;
    std::array<OdGePoint3d, samples> between;
    double deviation = 0.0;
};

/// The parameters where the curve's polynomials meet, from its beginning to its end.
std::vector<double> joints(const Nurbs& curve)
{
    std::vector<double> parameters(curve.knots.begin() + curve.degree, curve.knots.begin() + curve.points.size() + 1);
    parameters.erase(std::unique(parameters.begin(), parameters.end()), parameters.end());
    return parameters;
}

/// Whether the curve goes on elsewhere behind a knot, which it can where more knots than its degree are equal.
bool hasGap(const Nurbs& curve, double close)
{
    const size_t end = curve.points.size();
    for (size_t first = curve.degree + 1; first < end;) {
        size_t next = first + 1;
        while (next < end && curve.knots[next] == curve.knots[first])
            ++next;
        const bool inside = curve.knots[first] > curve.knots[curve.degree] && curve.knots[first] < curve.knots[end];
        if (inside && next - first > size_t(curve.degree) &&
            curve.points[first - 1].distanceTo(curve.points[next - 1 - curve.degree]) > close)
            return true;
        first = next;
    }
    return false;
}

/// The direction in which the curve begins or ends: there the control points of its Bézier form that differ from the
/// outermost one tell it, whatever derivatives are zero.
OdGeVector3d endDirection(const Nurbs& curve, const Evaluator& evaluator, bool atEnd, double close)
{
    const int first = curve.degree;
    const int last = int(curve.points.size()) - 1;
    std::optional<OdGePoint3d> outermost;
    for (int i = first; i <= last; ++i) {
        const int knot = atEnd ? last - (i - first) : i;
        if (curve.knots[knot] == curve.knots[knot + 1])
            continue;
        for (int index = 0; index <= curve.degree; ++index) {
            const OdGePoint3d point = evaluator.bezierPoint(knot, atEnd ? curve.degree - index : index);
            if (!outermost)
                outermost = point;
            else if (point.distanceTo(*outermost) > close)
                return unit(atEnd ? *outermost - point : point - *outermost);
        }
    }
    return {};
}

class Fitter
{
public:
    Fitter(const Nurbs& curve, double grain, double tolerance)
        : evaluator_(curve),
          close_(grain),
          tolerance_(std::max(10 * grain, tolerance)),
          startTangent_(endDirection(curve, evaluator_, false, close_)),
          endTangent_(endDirection(curve, evaluator_, true, close_))
    {
        const std::vector<double> parameters = joints(curve);
        const size_t step = parameters.size() <= mostPoints ? 1 : 1 + parameters.size() / (mostPoints / 2);
        for (size_t i = 0; i + 1 < parameters.size(); i += step)
            addSpans(parameters[i], parameters[std::min(i + step, parameters.size() - 1)], spans_);
    }

    std::optional<FitPoints> fit()
    {
        for (;;) {
            if (spans_.empty())
                return std::nullopt;
            measure();
            std::vector<size_t> rough = roughSpans();
            if (rough.empty() || !halve(rough))
                return FitPoints{points_, startTangent_, endTangent_, deviation_};
        }
    }

private:
    /// Adds a part of the curve, unless it stays in one place. One that comes back to its beginning is divided, since
    /// fit points differ from their neighbours.
    void addSpans(double from, double to, std::vector<Span>& spans) const
    {
        Span span;
        span.from = from;
        span.to = to;
        span.begin = evaluator_.at(from);
        span.end = evaluator_.at(to);
        for (int i = 0; i < Span::samples; ++i)
            span.between[i] = evaluator_.at(from + (to - from) * (i + 1) / (Span::samples + 1));
        const double middle = middleOf(span);
        if (span.begin.distanceTo(span.end) > close_) {
            spans.push_back(span);
        } else if (from < middle && middle < to && !staysInPlace(span)) {
            addSpans(from, middle, spans);
            addSpans(middle, to, spans);
        }
    }

    static double middleOf(const Span& span) { return span.from + (span.to - span.from) / 2; }

    bool staysInPlace(const Span& span) const
    {
        return std::all_of(span.between.begin(), span.between.end(),
                           [&](const OdGePoint3d& p) { return p.distanceTo(span.begin) <= close_; });
    }

    /// Lays the spline through the ends of the spans, and looks how far from it the curve runs.
    void measure()
    {
        points_.clear();
        for (const Span& span : spans_)
            points_.push_back(span.begin);
        points_.push_back(spans_.back().end);
        const std::vector<OdGeVector3d> slopes = slopesAt(points_);
        deviation_ = 0;
        for (size_t i = 0; i < spans_.size(); ++i) {
            spans_[i].deviation = deviationOf(spans_[i], points_[i], points_[i + 1], slopes[i], slopes[i + 1]);
            deviation_ = std::max(deviation_, spans_[i].deviation);
        }
    }

    /// The derivatives of the spline at its points: a tridiagonal system, whose diagonal outweighs the rest.
    std::vector<OdGeVector3d> slopesAt(const std::vector<OdGePoint3d>& points) const
    {
        const size_t last = points.size() - 1;
        std::vector<OdGeVector3d> slopes(last + 1);
        std::vector<double> above(last + 1);
        slopes[0] = startTangent_;
        slopes[last] = endTangent_;
        for (size_t i = 1; i < last; ++i) {
            const double before = points[i].distanceTo(points[i - 1]);
            const double behind = points[i + 1].distanceTo(points[i]);
            const double pivot = 2 * (before + behind) - behind * above[i - 1];
            const OdGeVector3d right =
                3 * behind / before * (points[i] - points[i - 1]) + 3 * before / behind * (points[i + 1] - points[i]);
            above[i] = before / pivot;
            slopes[i] = 1 / pivot * (right - behind * slopes[i - 1]);
        }
        for (size_t i = last; i-- > 1;)
            slopes[i] = slopes[i] - above[i] * slopes[i + 1];
        return slopes;
    }

    double deviationOf(const Span& span, const OdGePoint3d& begin, const OdGePoint3d& end, const OdGeVector3d& slope,
                       const OdGeVector3d& nextSlope) const
    {
        const OdGeVector3d chord = end - begin;
        const double length = std::sqrt(dot(chord, chord));
        const OdGeVector3d linear = length * slope;
        const OdGeVector3d square = 3 * chord - length * (2 * slope + nextSlope);
        const OdGeVector3d cube = length * (slope + nextSlope) - 2 * chord;
        double farthest = 0;
        for (const OdGePoint3d& sample : span.between) {
            // The nearest place, from where the sample lies along the chord.
            const OdGeVector3d target = sample - begin;
            double t = std::clamp(dot(target, chord) / (length * length), 0.0, 1.0);
            double nearest = std::numeric_limits<double>::infinity();
            for (int step = 0; step < 6; ++step) {
                const OdGeVector3d away = target - t * (linear + t * (square + t * cube));
                const double distance = dot(away, away);
                if (!(distance < nearest))
                    break;
                nearest = distance;
                const OdGeVector3d speed = linear + 2 * t * square + 3 * t * t * cube;
                t = std::clamp(t + dot(away, speed) / dot(speed, speed), 0.0, 1.0);
            }
            farthest = std::max(farthest, nearest);
        }
        return std::sqrt(farthest);
    }

    /// The spans to halve, the worst ones if there is no room for all.
    std::vector<size_t> roughSpans() const
    {
        std::vector<size_t> rough;
        for (size_t i = 0; i < spans_.size(); ++i)
            if (spans_[i].deviation > tolerance_)
                rough.push_back(i);
        const size_t room = mostPoints - std::min<size_t>(points_.size(), mostPoints);
        if (rough.size() > room) {
            std::nth_element(rough.begin(), rough.begin() + room, rough.end(),
                             [&](size_t a, size_t b) { return spans_[a].deviation > spans_[b].deviation; });
            rough.resize(room);
            std::sort(rough.begin(), rough.end());
        }
        return rough;
    }

    /// False where none can be halved.
    bool halve(const std::vector<size_t>& rough)
    {
        bool any = false;
        std::vector<Span> spans;
        auto next = rough.begin();
        for (size_t i = 0; i < spans_.size(); ++i) {
            const Span& span = spans_[i];
            const double middle = middleOf(span);
            const bool isRough = next != rough.end() && *next == i;
            next += isRough;
            if (isRough && span.from < middle && middle < span.to) {
                addSpans(span.from, middle, spans);
                addSpans(middle, span.to, spans);
                any = true;
            } else {
                spans.push_back(span);
            }
        }
        spans_ = std::move(spans);
        return any;
    }

    Evaluator evaluator_;
    double close_;
    double tolerance_;
    OdGeVector3d startTangent_;
    OdGeVector3d endTangent_;
    std::vector<Span> spans_;
    std::vector<OdGePoint3d> points_;
    double deviation_ = 0.0;
};

/// A line or an arc of a polyline.
struct Bend
{
    OdGePoint3d begin;
    OdGePoint3d end;
    double bulge = 0.0;

    /// The arc that leads through a point between.
    static Bend through(const OdGePoint3d& begin, const OdGePoint3d& between, const OdGePoint3d& end)
    {
        const OdGeVector3d back = begin - between;
        const OdGeVector3d forth = end - between;
        const double turning = back.x * forth.y - back.y * forth.x;
        // What the point sees of both ends is less than half a turn by half of the arc's angle.
        const double angle = std::numbers::pi - std::atan2(std::abs(turning), dot(back, forth));
        return {begin, end, std::copysign(std::tan(angle / 2), -turning)};
    }

    double distanceTo(const OdGePoint3d& point) const
    {
        const OdGeVector3d chord = end - begin;
        const OdGeVector3d away = point - begin;
        const double length = std::sqrt(dot(chord, chord));
        const double beside = (chord.x * away.y - chord.y * away.x) / length;
        constexpr double straight = 1e-7;
        if (std::abs(bulge) < straight)
            return std::abs(beside);
        // Along the chord, and from it to its left.
        const double toCenter = length * (1 - bulge * bulge) / (4 * bulge);
        const double radius = length * (1 + bulge * bulge) / (4 * std::abs(bulge));
        return std::abs(std::hypot(dot(chord, away) / length - length / 2, beside - toCenter) - radius);
    }
};

} // namespace

bool isPolyline(const Nurbs& curve)
{
    return curve.degree == 1 && isCurve(curve);
}

std::optional<FitPoints> fitPoints(const Nurbs& curve, double tolerance)
{
    if (!isCurve(curve))
        return std::nullopt;
    const double grain = Box(curve.points).grain();
    if (hasGap(curve, grain))
        return std::nullopt;
    return Fitter(curve, grain, tolerance).fit();
}

std::optional<Bends> bends(const Nurbs& curve, double tolerance)
{
    if (!isCurve(curve))
        return std::nullopt;
    const double grain = Box(curve.points).grain();
    if (hasGap(curve, grain))
        return std::nullopt;
    const Evaluator evaluator(curve);
    const std::vector<double> parameters = joints(curve);
    std::vector<std::pair<double, double>> waiting;
    for (std::size_t i = parameters.size() - 1; i > 0; --i)
        waiting.emplace_back(parameters[i - 1], parameters[i]);
    OdGePoint3d begin = evaluator.at(parameters.front());
    Bends result;
    result.points.push_back({begin.x, begin.y});
    while (!waiting.empty()) {
        const auto [from, to] = waiting.back();
        waiting.pop_back();
        const double middle = from + (to - from) / 2;
        const Bend bend = Bend::through(begin, evaluator.at(middle), evaluator.at(to));
        const bool isPlace = begin.distanceTo(bend.end) <= grain;
        double deviation = 0.0;
        for (int i = 1; i <= Span::samples; ++i) {
            const OdGePoint3d sample = evaluator.at(from + (to - from) * i / (Span::samples + 1));
            deviation = std::max(deviation, isPlace ? begin.distanceTo(sample) : bend.distanceTo(sample));
        }
        const bool hasRoom = from < middle && middle < to && result.points.size() + waiting.size() < mostPoints;
        if (hasRoom && (deviation > std::max(10 * grain, tolerance) || (!isPlace && std::abs(bend.bulge) > 1))) {
            waiting.emplace_back(middle, to);
            waiting.emplace_back(from, middle);
            continue;
        }
        if (isPlace)
            continue;
        result.deviation = std::max(result.deviation, deviation);
        result.points.push_back({bend.end.x, bend.end.y});
        result.bulges.push_back(bend.bulge);
        begin = bend.end;
    }
    if (result.bulges.empty())
        return std::nullopt;
    result.bulges.push_back(0.0);
    return result;
}

} // namespace inkmacro::dxf
