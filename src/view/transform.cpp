#include "view/transform.h"

#include "view/pathSteps.h"

namespace inkmacro::view {

namespace {

void transformPoint(double* x, const Affine& by)
{
    const Point point = by * Point{x[0], x[1]};
    x[0] = point.x;
    x[1] = point.y;
}

void transformVector(double* x, const Affine& by)
{
    const Point vector = by.turn({x[0], x[1]});
    x[0] = vector.x;
    x[1] = vector.y;
}

double turned(double angle, const Affine& by)
{
    return by.mirrors() ? by.angle() - angle : by.angle() + angle;
}

/// Center, radius, start, sweep.
void transformArc(double* n, const Affine& by)
{
    transformPoint(n, by);
    n[2] *= by.factor();
    n[3] = turned(n[3], by);
    if (by.mirrors())
        n[4] = -n[4];
}

void transformPath(std::span<double> numbers, const Affine& by)
{
    PathSteps steps(numbers);
    PathSteps::Step step;
    double* at = numbers.data();
    while (steps.next(step)) {
        double* const n = at + 1;
        switch (step.kind) {
        case PathStep::Move:
        case PathStep::Line:
            transformPoint(n, by);
            break;
        case PathStep::Arc:
            transformArc(n, by);
            break;
        case PathStep::Ellipse:
            transformPoint(n, by);
            transformVector(n + 2, by);
            transformVector(n + 4, by);
            break;
        case PathStep::Bezier:
            for (int i = 0; i < 6; i += 2)
                transformPoint(n + i, by);
            break;
        case PathStep::Close:
            break;
        }
        at += 1 + step.numbers.size();
    }
}

void transformText(double* n, const Affine& by)
{
    transformPoint(n, by);
    n[2] *= by.factor();
    n[4] *= by.factor();
    if (!by.mirrors()) {
        n[3] += by.angle();
        return;
    }
    // Written in the other direction, so that what was left of the point is right of it.
    n[3] = by.angle() - n[3] + std::numbers::pi;
    const int place = static_cast<int>(n[5]);
    const int column = (place - 1) % 3;
    n[5] = place - column + (2 - column);
}

void transformPattern(std::span<double> numbers, const Affine& by)
{
    const auto families = static_cast<std::size_t>(numbers[0]);
    double* n = numbers.data() + 1;
    for (std::size_t i = 0; i < families; ++i) {
        n[0] = turned(n[0], by);
        transformPoint(n + 1, by);
        n[3] *= by.factor();
        const auto dashes = static_cast<std::size_t>(n[4]);
        n += 5;
        for (std::size_t dash = 0; dash < dashes; ++dash)
            *n++ *= by.factor();
    }
    transformPath(numbers.subspan(static_cast<std::size_t>(n - numbers.data())), by);
}

void transformReference(double* n, const Affine& by)
{
    const Affine whole = by * Affine{n[0], n[1], n[2], n[3], n[4], n[5]};
    const std::array numbers{whole.a, whole.b, whole.c, whole.d, whole.e, whole.f};
    std::copy(numbers.begin(), numbers.end(), n);
}

} // namespace

void transform(const Primitive& primitive, Picture& picture, const Affine& by)
{
    const std::span<double> numbers(picture.numbers.data() + primitive.first, primitive.count);
    double* const n = numbers.data();
    switch (primitive.shape) {
    case Shape::Line:
    case Shape::Ray:
    case Shape::XLine:
        transformPoint(n, by);
        transformPoint(n + 2, by);
        break;
    case Shape::Arc:
        transformArc(n, by);
        break;
    case Shape::Path:
    case Shape::Area:
        transformPath(numbers, by);
        break;
    case Shape::Text:
        transformText(n, by);
        break;
    case Shape::Point:
        transformPoint(n, by);
        break;
    case Shape::Reference:
        transformReference(n, by);
        break;
    case Shape::Pattern:
        transformPattern(numbers, by);
        break;
    case Shape::Window:
        transformPoint(n, by);
        n[2] *= by.factor();
        n[3] *= by.factor();
        n[6] *= by.factor();
        break;
    }
}

} // namespace inkmacro::view
