#include "view/Pen.h"

#include <algorithm>
#include <cmath>

namespace inkmacro::view {

namespace {

void append(std::vector<double>& numbers, PathStep step, std::initializer_list<double> of)
{
    numbers.push_back(static_cast<double>(step));
    numbers.insert(numbers.end(), of);
}

} // namespace

Outline& Outline::move(Point to)
{
    append(numbers_, PathStep::Move, {to.x, to.y});
    return *this;
}

Outline& Outline::line(Point to)
{
    append(numbers_, PathStep::Line, {to.x, to.y});
    return *this;
}

Outline& Outline::arc(Point center, double radius, double start, double sweep)
{
    append(numbers_, PathStep::Arc, {center.x, center.y, radius, start, sweep});
    return *this;
}

Outline& Outline::ellipse(Point center, Point u, Point v, double start, double sweep)
{
    append(numbers_, PathStep::Ellipse, {center.x, center.y, u.x, u.y, v.x, v.y, start, sweep});
    return *this;
}

Outline& Outline::bezier(Point first, Point second, Point to)
{
    append(numbers_, PathStep::Bezier, {first.x, first.y, second.x, second.y, to.x, to.y});
    return *this;
}

Outline& Outline::close()
{
    append(numbers_, PathStep::Close, {});
    return *this;
}

Outline& Outline::add(const Outline& other)
{
    numbers_.insert(numbers_.end(), other.numbers_.begin(), other.numbers_.end());
    return *this;
}

void Pen::add(Shape shape, std::span<const double> numbers)
{
    if (!std::all_of(numbers.begin(), numbers.end(),
                     [](double number) { return std::abs(number) <= kLargestNumber; })) {
        remark(kNotFinite);
        return;
    }
    Primitive primitive;
    primitive.shape = shape;
    primitive.object = now_.object;
    primitive.style = picture_.styleNumber({role_, now_.layer, now_.color});
    primitive.space = now_.space;
    primitive.from = now_.from;
    primitive.until = now_.until;
    primitive.first = picture_.numbers.size();
    primitive.count = numbers.size();
    picture_.numbers.insert(picture_.numbers.end(), numbers.begin(), numbers.end());
    picture_.primitives.push_back(primitive);
    picture_.objects[now_.object].isDrawn = true;
}

void Pen::line(Point from, Point to)
{
    add(Shape::Line, std::array{from.x, from.y, to.x, to.y});
}

void Pen::arc(Point center, double radius, double start, double sweep)
{
    add(Shape::Arc, std::array{center.x, center.y, radius, start, sweep});
}

void Pen::path(const Outline& outline)
{
    if (!outline.isEmpty())
        add(Shape::Path, outline.numbers());
}

void Pen::area(const Outline& boundary)
{
    if (!boundary.isEmpty())
        add(Shape::Area, boundary.numbers());
}

void Pen::pattern(const std::vector<PatternLines>& families, const Outline& boundary)
{
    std::vector<double> numbers{static_cast<double>(families.size())};
    for (const PatternLines& family : families) {
        numbers.insert(numbers.end(), {family.angle, family.base.x, family.base.y, family.distance,
                                       static_cast<double>(family.dashes.size())});
        numbers.insert(numbers.end(), family.dashes.begin(), family.dashes.end());
    }
    numbers.insert(numbers.end(), boundary.numbers().begin(), boundary.numbers().end());
    if (!boundary.isEmpty())
        add(Shape::Pattern, numbers);
}

void Pen::text(const Letters& letters)
{
    if (letters.text.isEmpty())
        return;
    add(Shape::Text,
        std::array{letters.at.x, letters.at.y, letters.height, letters.angle, letters.width,
                   static_cast<double>(letters.place), static_cast<double>(picture_.textNumber(letters.text))});
}

void Pen::point(Point at)
{
    add(Shape::Point, std::array{at.x, at.y});
}

void Pen::ray(Point from, Point towards)
{
    add(Shape::Ray, std::array{from.x, from.y, towards.x, towards.y});
}

void Pen::xline(Point through, Point towards)
{
    add(Shape::XLine, std::array{through.x, through.y, towards.x, towards.y});
}

void Pen::reference(const std::array<double, 6>& matrix, std::uint16_t space)
{
    std::array<double, 7> numbers;
    std::copy(matrix.begin(), matrix.end(), numbers.begin());
    numbers.back() = space;
    add(Shape::Reference, numbers);
}

void Pen::window(Point corner, double width, double height, Point center, double scale)
{
    add(Shape::Window, std::array{corner.x, corner.y, width, height, center.x, center.y, scale});
}

void Pen::remark(const QString& text)
{
    picture_.addRemark(now_.object, text);
}

} // namespace inkmacro::view
