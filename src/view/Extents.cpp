#include "view/Extents.h"

#include "view/pathSteps.h"

#include <algorithm>
#include <cmath>

namespace inkmacro::view {

namespace {

class Bounds
{
public:
    void add(Point point)
    {
        if (!box_) {
            box_ = Box{point.x, point.y, point.x, point.y};
            return;
        }
        box_->left = std::min(box_->left, point.x);
        box_->bottom = std::min(box_->bottom, point.y);
        box_->right = std::max(box_->right, point.x);
        box_->top = std::max(box_->top, point.y);
    }
    void add(const Box& box)
    {
        add(Point{box.left, box.bottom});
        add(Point{box.right, box.top});
    }
    const std::optional<Box>& box() const { return box_; }

private:
    std::optional<Box> box_;
};

/// Whether the arc passes the angle.
bool passes(double start, double sweep, double angle)
{
    double behind = std::fmod(sweep < 0.0 ? start - angle : angle - start, kTurn);
    if (behind < 0.0)
        behind += kTurn;
    return behind <= std::abs(sweep);
}

/// Center + u cos t + v sin t.
void addEllipse(Bounds& bounds, Point center, Point u, Point v, double start, double sweep)
{
    const auto at = [&](double t) {
        return Point{center.x + u.x * std::cos(t) + v.x * std::sin(t),
                     center.y + u.y * std::cos(t) + v.y * std::sin(t)};
    };
    bounds.add(at(start));
    bounds.add(at(start + sweep));
    for (const double extreme : {std::atan2(v.x, u.x), std::atan2(v.y, u.y)})
        for (const double t : {extreme, extreme + std::numbers::pi})
            if (passes(start, sweep, t))
                bounds.add(at(t));
}

void addArc(Bounds& bounds, Point center, double radius, double start, double sweep)
{
    const auto at = [&](double t) { return Point{center.x + radius * std::cos(t), center.y + radius * std::sin(t)}; };
    bounds.add(at(start));
    bounds.add(at(start + sweep));
    // The sides as they are, without the faults of sine and cosine.
    const std::array<Point, 4> sides{{{center.x + radius, center.y},
                                      {center.x, center.y + radius},
                                      {center.x - radius, center.y},
                                      {center.x, center.y - radius}}};
    for (std::size_t quarter = 0; quarter < sides.size(); ++quarter)
        if (passes(start, sweep, static_cast<double>(quarter) * kTurn / 4.0))
            bounds.add(sides[quarter]);
}

double bezierAt(double p0, double p1, double p2, double p3, double t)
{
    const double s = 1.0 - t;
    return s * s * s * p0 + 3.0 * s * s * t * p1 + 3.0 * s * t * t * p2 + t * t * t * p3;
}

/// Where one coordinate of the curve turns around, within its ends.
std::vector<double> turnsOf(double p0, double p1, double p2, double p3)
{
    // The derivative is a t^2 + b t + c.
    const double a = 3.0 * (p3 - 3.0 * p2 + 3.0 * p1 - p0);
    const double b = 6.0 * (p2 - 2.0 * p1 + p0);
    const double c = 3.0 * (p1 - p0);
    std::vector<double> turns;
    const double root = b * b - 4.0 * a * c;
    if (root >= 0.0) {
        // The form that loses no digits when a is small.
        const double q = -0.5 * (b + std::copysign(std::sqrt(root), b));
        for (const double t : {q / a, c / q})
            if (t > 0.0 && t < 1.0)
                turns.push_back(t);
    }
    return turns;
}

void addBezier(Bounds& bounds, Point p0, Point p1, Point p2, Point p3)
{
    std::vector<double> turns = turnsOf(p0.x, p1.x, p2.x, p3.x);
    for (const double t : turnsOf(p0.y, p1.y, p2.y, p3.y))
        turns.push_back(t);
    bounds.add(p3);
    for (const double t : turns)
        bounds.add(Point{bezierAt(p0.x, p1.x, p2.x, p3.x, t), bezierAt(p0.y, p1.y, p2.y, p3.y, t)});
}

void addPath(Bounds& bounds, std::span<const double> numbers)
{
    PathSteps steps(numbers);
    PathSteps::Step step;
    Point at;
    while (steps.next(step)) {
        const std::span<const double>& n = step.numbers;
        switch (step.kind) {
        case PathStep::Move:
        case PathStep::Line:
            at = {n[0], n[1]};
            bounds.add(at);
            break;
        case PathStep::Arc:
            addArc(bounds, {n[0], n[1]}, n[2], n[3], n[4]);
            at = {n[0] + n[2] * std::cos(n[3] + n[4]), n[1] + n[2] * std::sin(n[3] + n[4])};
            break;
        case PathStep::Ellipse: {
            addEllipse(bounds, {n[0], n[1]}, {n[2], n[3]}, {n[4], n[5]}, n[6], n[7]);
            const double end = n[6] + n[7];
            at = {n[0] + n[2] * std::cos(end) + n[4] * std::sin(end),
                  n[1] + n[3] * std::cos(end) + n[5] * std::sin(end)};
            break;
        }
        case PathStep::Bezier:
            addBezier(bounds, at, {n[0], n[1]}, {n[2], n[3]}, {n[4], n[5]});
            at = {n[4], n[5]};
            break;
        case PathStep::Close:
            break;
        }
    }
}

/// Letters are about as wide as this many heights of capitals.
constexpr double kLetterWidth = 0.75;
/// Below the baseline.
constexpr double kDescent = 0.3;

void addText(Bounds& bounds, std::span<const double> n, const QString& text)
{
    const double height = n[2];
    const double width = n[4] > 0.0 ? n[4] : kLetterWidth * height * text.size();
    const int place = static_cast<int>(n[5]);
    const double left = -0.5 * width * ((place - 1) % 3);
    double bottom = 0.0;
    if (place <= 3)
        bottom = -height;
    else if (place <= 6)
        bottom = -0.5 * height;
    const double top = bottom + height;
    if (place >= 10)
        bottom -= kDescent * height;
    const double cosine = std::cos(n[3]);
    const double sine = std::sin(n[3]);
    for (const Point corner : {Point{left, bottom}, {left + width, bottom}, {left + width, top}, {left, top}})
        bounds.add(Point{n[0] + corner.x * cosine - corner.y * sine, n[1] + corner.x * sine + corner.y * cosine});
}

void addTransformed(Bounds& bounds, std::span<const double> m, const Box& box)
{
    for (const Point corner :
         {Point{box.left, box.bottom}, {box.right, box.bottom}, {box.right, box.top}, {box.left, box.top}})
        bounds.add(Point{m[0] * corner.x + m[2] * corner.y + m[4], m[1] * corner.x + m[3] * corner.y + m[5]});
}

} // namespace

Extents::Extents(const Picture& picture) : picture_(picture)
{
}

/// Which primitives each space holds; nobody who asks for the box of a line needs it.
void Extents::sort()
{
    entries_.resize(picture_.spaces.size());
    contents_.resize(picture_.spaces.size());
    for (std::size_t i = 0; i < picture_.primitives.size(); ++i)
        if (picture_.primitives[i].until == kNoStep)
            contents_[picture_.primitives[i].space].push_back(static_cast<std::uint32_t>(i));
}

std::optional<Box> Extents::boxOf(const Primitive& primitive)
{
    const std::span<const double> n = picture_.numbersOf(primitive);
    Bounds bounds;
    switch (primitive.shape) {
    case Shape::Line:
        bounds.add(Point{n[0], n[1]});
        bounds.add(Point{n[2], n[3]});
        break;
    case Shape::Arc:
        addArc(bounds, {n[0], n[1]}, n[2], n[3], n[4]);
        break;
    case Shape::Path:
    case Shape::Area:
        addPath(bounds, n);
        break;
    case Shape::Pattern:
        addPath(bounds, boundaryOf(n));
        break;
    case Shape::Text:
        addText(bounds, n, picture_.texts[static_cast<std::size_t>(n[6])]);
        break;
    case Shape::Point:
        bounds.add(Point{n[0], n[1]});
        break;
    case Shape::Reference:
        if (const std::optional<Box>& box = of(static_cast<std::uint16_t>(n[6])))
            addTransformed(bounds, n, *box);
        break;
    case Shape::Window:
        bounds.add(Point{n[0], n[1]});
        bounds.add(Point{n[0] + n[2], n[1] + n[3]});
        break;
    case Shape::Ray:
    case Shape::XLine:
        break;
    }
    return bounds.box();
}

const std::optional<Box>& Extents::of(std::uint16_t space)
{
    if (entries_.empty())
        sort();
    Entry& entry = entries_[space];
    if (entry.state == State::Unknown) {
        entry.state = State::Begun; // a space within itself is left out
        Bounds bounds;
        for (const std::uint32_t number : contents_[space])
            if (const std::optional<Box> box = boxOf(picture_.primitives[number]))
                bounds.add(*box);
        entry.box = bounds.box();
        entry.state = State::Known;
    }
    return entry.box;
}

} // namespace inkmacro::view
