#include "view/SvgPath.h"

#include <algorithm>
#include <cmath>

namespace inkmacro::view {

void SvgPath::point(Point point)
{
    text_.number(point.x - origin_.x).number(point.y - origin_.y);
    at_ = point;
    isBegun_ = true;
}

void SvgPath::move(Point to)
{
    text_.raw("M");
    point(to);
}

void SvgPath::line(Point to)
{
    if (!isBegun_) {
        move(to);
        return;
    }
    text_.raw("L");
    point(to);
}

void SvgPath::begin(Point at)
{
    // The step before has ended there, but for its last digits.
    constexpr double kNear = 1e-9;
    const double size = std::max({1.0, std::abs(at.x), std::abs(at.y)});
    if (!isBegun_)
        move(at);
    else if (std::hypot(at.x - at_.x, at.y - at_.y) > kNear * size)
        line(at);
}

void SvgPath::arc(Point center, double radius, double start, double sweep)
{
    const auto at = [&](double angle) {
        return Point{center.x + radius * std::cos(angle), center.y + radius * std::sin(angle)};
    };
    begin(at(start));
    // Each less than half a turn, where both ends tell which arc is meant.
    const int pieces = std::max(1, static_cast<int>(std::ceil(std::min(std::abs(sweep), kTurn) / (0.3 * kTurn))));
    for (int i = 1; i <= pieces; ++i) {
        text_.raw("A").number(radius).number(radius).raw(sweep < 0.0 ? " 0 0 0 " : " 0 0 1 ");
        point(at(start + sweep * i / pieces));
    }
}

void SvgPath::ellipse(Point center, Point u, Point v, double start, double sweep)
{
    const auto at = [&](double t, double part) {
        const double cosine = std::cos(t) - part * std::sin(t);
        const double sine = std::sin(t) + part * std::cos(t);
        return Point{center.x + u.x * cosine + v.x * sine, center.y + u.y * cosine + v.y * sine};
    };
    begin(at(start, 0.0));
    // So short that nobody sees what a cubic curve lacks.
    constexpr double longest = kTurn / 16.0;
    const int pieces = std::max(1, static_cast<int>(std::ceil(std::min(std::abs(sweep), kTurn) / longest)));
    const double step = sweep / pieces;
    const double handle = 4.0 / 3.0 * std::tan(step / 4.0);
    for (int i = 0; i < pieces; ++i) {
        const double from = start + i * step;
        bezier(at(from, handle), at(from + step, -handle), at(from + step, 0.0));
    }
}

void SvgPath::bezier(Point first, Point second, Point to)
{
    text_.raw("C");
    point(first);
    point(second);
    point(to);
}

void SvgPath::close()
{
    text_.raw("Z");
    isBegun_ = false;
}

void SvgPath::steps(std::span<const double> numbers)
{
    lift();
    PathSteps steps(numbers);
    PathSteps::Step step;
    while (steps.next(step)) {
        const std::span<const double>& n = step.numbers;
        switch (step.kind) {
        case PathStep::Move:
            move({n[0], n[1]});
            break;
        case PathStep::Line:
            line({n[0], n[1]});
            break;
        case PathStep::Arc:
            arc({n[0], n[1]}, n[2], n[3], n[4]);
            break;
        case PathStep::Ellipse:
            ellipse({n[0], n[1]}, {n[2], n[3]}, {n[4], n[5]}, n[6], n[7]);
            break;
        case PathStep::Bezier:
            bezier({n[0], n[1]}, {n[2], n[3]}, {n[4], n[5]});
            break;
        case PathStep::Close:
            close();
            break;
        }
    }
}

} // namespace inkmacro::view
