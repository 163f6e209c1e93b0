#include "view/boundaries.h"

#include "host/db/OdDbClassMap.h"
#include "view/arcs.h"
#include "view/kinds.h"
#include "view/pathSteps.h"
#include "view/plane.h"
#include "view/transform.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace inkmacro::view {
namespace {

/// Of what is no curve and has an outline all the same.
constexpr const char* kOutlined[] = {"AcDbRegion", "AcDbSolid", "AcDbTrace", "AcDbFace"};

Drawer outlineDrawerOf(const QString& className)
{
    const OdRxClass& cls = *oddbClassByName(className);
    const auto isName = [&className](const char* one) { return className == QLatin1String(one); };
    const bool isOutlined = std::any_of(std::begin(kOutlined), std::end(kOutlined), isName);
    return isOutlined ? drawerOf(cls) : curveDrawerOf(cls);
}

struct Segment
{
    PathStep kind;
    Point from;
    Point to;
    std::vector<double> numbers; ///< of an arc, an ellipse or a cubic curve
};

using Chain = std::vector<Segment>;

void reverse(Segment& segment)
{
    std::swap(segment.from, segment.to);
    std::vector<double>& n = segment.numbers;
    if (segment.kind == PathStep::Arc || segment.kind == PathStep::Ellipse) {
        double& sweep = n.back();
        n[n.size() - 2] += sweep;
        sweep = -sweep;
    } else if (segment.kind == PathStep::Bezier) {
        n = {n[2], n[3], n[0], n[1]};
    }
}

void reverse(Chain& chain)
{
    std::reverse(chain.begin(), chain.end());
    for (Segment& segment : chain)
        reverse(segment);
}

void append(Outline& outline, const Segment& segment)
{
    const std::vector<double>& n = segment.numbers;
    switch (segment.kind) {
    case PathStep::Arc:
        outline.arc({n[0], n[1]}, n[2], n[3], n[4]);
        break;
    case PathStep::Ellipse:
        outline.ellipse({n[0], n[1]}, {n[2], n[3]}, {n[4], n[5]}, n[6], n[7]);
        break;
    case PathStep::Bezier:
        outline.bezier({n[0], n[1]}, {n[2], n[3]}, segment.to);
        break;
    default:
        outline.line(segment.to);
    }
}

Outline outlineOf(const Chain& chain)
{
    Outline outline;
    outline.move(chain.front().from);
    for (const Segment& segment : chain)
        append(outline, segment);
    outline.close();
    return outline;
}

Segment arcSegment(std::span<const double> n)
{
    const Point center{n[0], n[1]};
    return {PathStep::Arc, onCircle(center, n[2], n[3]), onCircle(center, n[2], n[3] + n[4]), {n.begin(), n.end()}};
}

Segment ellipseSegment(std::span<const double> n)
{
    const auto at = [&](double t) {
        return Point{n[0], n[1]} + Point{n[2], n[3]} * std::cos(t) + Point{n[4], n[5]} * std::sin(t);
    };
    return {PathStep::Ellipse, at(n[6]), at(n[6] + n[7]), {n.begin(), n.end()}};
}

/// The pieces of an outline, which each begin where it is moved to.
void takeSteps(std::span<const double> numbers, std::vector<Chain>& chains)
{
    PathSteps steps(numbers);
    PathSteps::Step step;
    Point at;
    const auto add = [&](Segment segment) {
        if (chains.empty())
            chains.emplace_back();
        at = segment.to;
        chains.back().push_back(std::move(segment));
    };
    while (steps.next(step)) {
        const std::span<const double> n = step.numbers;
        switch (step.kind) {
        case PathStep::Move:
            chains.emplace_back();
            at = {n[0], n[1]};
            break;
        case PathStep::Line:
            add({PathStep::Line, at, {n[0], n[1]}, {}});
            break;
        case PathStep::Arc:
            add(arcSegment(n));
            break;
        case PathStep::Ellipse:
            add(ellipseSegment(n));
            break;
        case PathStep::Bezier:
            add({PathStep::Bezier, at, {n[4], n[5]}, {n[0], n[1], n[2], n[3]}});
            break;
        case PathStep::Close:
            if (!chains.empty() && !chains.back().empty())
                add({PathStep::Line, at, chains.back().front().from, {}});
            break;
        }
    }
}

/// What is drawn of an object, as chains.
void takeObject(const Values& object, const Affine& moved, std::vector<Chain>& chains)
{
    const Drawer drawer = outlineDrawerOf(object.className());
    if (!drawer)
        return;
    Picture drawing;
    drawing.objects.emplace_back();
    Pen pen(drawing, {.object = 0, .layer = 0, .color = {}, .space = 0, .from = kNoStep, .until = kNoStep});
    drawer(object, pen);
    for (const Primitive& primitive : drawing.primitives) {
        if (!moved.isIdentity())
            transform(primitive, drawing, moved);
        const std::span<const double> n = drawing.numbersOf(primitive);
        if (primitive.shape == Shape::Line)
            chains.push_back({{PathStep::Line, {n[0], n[1]}, {n[2], n[3]}, {}}});
        else if (primitive.shape == Shape::Arc)
            chains.push_back({arcSegment(n)});
        else if (primitive.shape == Shape::Path || primitive.shape == Shape::Area)
            takeSteps(n, chains);
    }
    chains.erase(std::remove_if(chains.begin(), chains.end(), [](const Chain& chain) { return chain.empty(); }),
                 chains.end());
}

/// Finds the open chain that goes on at a point.
class Ends
{
public:
    Ends(const std::vector<Chain>& chains, double tolerance) : chains_(chains), cell_(2.0 * tolerance)
    {
        for (std::size_t i = 0; i < chains.size(); ++i) {
            places_.emplace(keyOf(chains[i].front().from, 0, 0), i);
            places_.emplace(keyOf(chains[i].back().to, 0, 0), i);
        }
    }

    void remove(std::size_t number)
    {
        removeAt(chains_[number].front().from, number);
        removeAt(chains_[number].back().to, number);
    }

    /// The number of chains when none goes on there.
    std::size_t at(Point point) const
    {
        for (int x = -1; x <= 1; ++x)
            for (int y = -1; y <= 1; ++y) {
                const auto [begin, end] = places_.equal_range(keyOf(point, x, y));
                for (auto place = begin; place != end; ++place)
                    if (isNear(chains_[place->second].front().from, point) ||
                        isNear(chains_[place->second].back().to, point))
                        return place->second;
            }
        return chains_.size();
    }

    bool isNear(Point a, Point b) const { return distanceOf(a, b) <= cell_ / 2.0; }

private:
    std::uint64_t keyOf(Point point, int x, int y) const
    {
        constexpr std::uint64_t kSpread = 0x9E3779B97F4A7C15;
        const auto column = static_cast<std::uint64_t>(std::llround(point.x / cell_) + x);
        const auto row = static_cast<std::uint64_t>(std::llround(point.y / cell_) + y);
        return (column * kSpread) ^ row;
    }

    void removeAt(Point point, std::size_t number)
    {
        const auto [begin, end] = places_.equal_range(keyOf(point, 0, 0));
        const auto found = std::find_if(begin, end, [number](const auto& place) { return place.second == number; });
        if (found != end)
            places_.erase(found);
    }

    const std::vector<Chain>& chains_;
    double cell_;
    std::unordered_multimap<std::uint64_t, std::size_t> places_;
};

/// Ends that lie closer than this are one, as far as numbers of that size can tell.
double toleranceOf(const std::vector<Chain>& chains)
{
    double largest = 0.0;
    for (const Chain& chain : chains)
        for (const Point end : {chain.front().from, chain.back().to})
            largest = std::max({largest, std::abs(end.x), std::abs(end.y)});
    return std::max(largest, 1.0) * 1e-6;
}

void chainUp(const std::vector<Chain>& chains, double tolerance, std::vector<Outline>& loops)
{
    Ends ends(chains, tolerance);
    std::vector<bool> isTaken(chains.size());
    const auto take = [&](std::size_t number) {
        isTaken[number] = true;
        ends.remove(number);
    };
    for (std::size_t first = 0; first < chains.size(); ++first) {
        if (isTaken[first])
            continue;
        Chain loop = chains[first];
        take(first);
        for (std::size_t next = ends.at(loop.back().to); next < chains.size(); next = ends.at(loop.back().to)) {
            Chain piece = chains[next];
            take(next);
            if (!ends.isNear(piece.front().from, loop.back().to))
                reverse(piece);
            loop.insert(loop.end(), piece.begin(), piece.end());
            if (ends.isNear(loop.front().from, loop.back().to))
                break;
        }
        loops.push_back(outlineOf(loop));
    }
}

} // namespace

std::vector<Outline> loopsAlong(const std::vector<const Values*>& objects, const Affine& moved)
{
    std::vector<Chain> chains;
    for (const Values* const object : objects)
        takeObject(*object, moved.inverse() * object->moved(), chains);
    const double tolerance = toleranceOf(chains);
    std::vector<Outline> loops;
    const auto isClosed = [&](const Chain& chain) {
        return distanceOf(chain.front().from, chain.back().to) <= tolerance;
    };
    const auto open = std::stable_partition(chains.begin(), chains.end(), isClosed);
    std::for_each(chains.begin(), open, [&](const Chain& chain) { loops.push_back(outlineOf(chain)); });
    chainUp({open, chains.end()}, tolerance, loops);
    return loops;
}

Outline loopThrough(const std::vector<Point>& vertices, const std::vector<double>& bulges)
{
    constexpr double kStraight = 1e-10;
    Outline outline;
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        const Point from = vertices[i];
        const Point to = vertices[(i + 1) % vertices.size()];
        const double bulge = i < bulges.size() ? bulges[i] : 0.0;
        if (i == 0)
            outline.move(from);
        if (std::abs(bulge) > kStraight && !(from == to)) {
            const ArcBetween arc = arcBetween(from, to, bulge);
            outline.arc(arc.center, arc.radius, arc.start, arc.sweep);
        } else if (i + 1 < vertices.size()) {
            outline.line(to);
        }
    }
    if (!vertices.empty())
        outline.close();
    return outline;
}

} // namespace inkmacro::view
