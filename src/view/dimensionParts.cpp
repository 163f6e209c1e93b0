#include "view/dimensionParts.h"

#include "view/plane.h"
#include "view/readings.h"

#include <cmath>

namespace inkmacro::view {
namespace {

constexpr int kMiddleLeft = 4;
constexpr int kCenter = 5;
constexpr int kMiddleRight = 6;

/// Half of how far a block, turned by that angle against a direction, reaches along it.
double halfAlong(const TextBlock& block, double turned)
{
    return (std::abs(widthOf(block) * std::cos(turned)) + std::abs(heightOf(block) * std::sin(turned))) / 2.0;
}

} // namespace

void drawArrow(Pen& pen, Point tip, Point direction, double size)
{
    constexpr double kHalfWidth = 1.0 / 6.0;
    if (!(size > 0.0) || direction == Point{})
        return;
    const Point back = tip - direction * size;
    const Point side = leftOf(direction) * (size * kHalfWidth);
    Outline outline;
    outline.move(tip).line(back + side).line(back - side).close();
    pen.area(outline);
}

DimensionPen::DimensionPen(const Values& dimension, Pen& pen)
    : dimension_(dimension), pen_(pen), settings_(dimension), arrowSize_(settings_.arrowSize())
{
    pen_.setRole(Role::Dimension);
    for (const QString& clause : settings_.omissions())
        pen_.remark(clause);
}

void DimensionPen::extensionLine(int number, Point measured, Point foot)
{
    const Point direction = unitOf(foot - measured);
    const double length = distanceOf(measured, foot);
    const double offset = settings_.extensionOffset();
    if (!settings_.hasExtensionLine(number) || direction == Point{} || length <= offset)
        return;
    Pen pen = penOf(settings_.extensionColor());
    pen.line(measured + direction * offset, foot + direction * settings_.extensionPast());
}

/// Where both arrows have no room they stand outside and point inwards, each with a piece of line behind it.
void DimensionPen::line(Point first, Point second)
{
    constexpr double kRoomOfArrow = 1.25;
    const Point direction = unitOf(second - first);
    const bool isOutside = distanceOf(first, second) < 2.0 * kRoomOfArrow * arrowSize_;
    const double overhang = isOutside ? 2.0 * arrowSize_ : 0.0;
    plainLine(first - direction * overhang, second + direction * overhang);
    arrow(first, isOutside ? direction : direction * -1.0);
    arrow(second, isOutside ? direction * -1.0 : direction);
}

/// An arrow lies on the chord that its length cuts off the arc.
void DimensionPen::arc(Point center, double radius, double start, double sweep)
{
    Pen pen = penOf(settings_.lineColor());
    pen.arc(center, radius, start, sweep);
    if (radius * sweep < 2.0 * arrowSize_ || arrowSize_ > radius)
        return;
    const double cut = 2.0 * std::asin(arrowSize_ / (2.0 * radius));
    const Point first = onCircle(center, radius, start);
    const Point second = onCircle(center, radius, start + sweep);
    drawArrow(pen, first, unitOf(first - onCircle(center, radius, start + cut)), arrowSize_);
    drawArrow(pen, second, unitOf(second - onCircle(center, radius, start + sweep - cut)), arrowSize_);
}

void DimensionPen::plainLine(Point from, Point to)
{
    penOf(settings_.lineColor()).line(from, to);
}

void DimensionPen::plainPath(const Outline& outline)
{
    penOf(settings_.lineColor()).path(outline);
}

void DimensionPen::arrow(Point tip, Point direction)
{
    Pen pen = penOf(settings_.lineColor());
    drawArrow(pen, tip, direction, arrowSize_);
}

bool DimensionPen::fits(const QString& measured, double length, int arrows) const
{
    return widthOf(blockOf(measured)) + 2.0 * settings_.textGap() <= length - arrows * arrowSize_;
}

void DimensionPen::textOver(Point middle, double angle, const QString& measured)
{
    TextBlock block = blockOf(measured);
    const double along = readableAngle(angle);
    block.angle = settings_.textRotation().value_or(along);
    const Point above = leftOf(directionOf(along));
    const double half = halfAlong(block, block.angle - angleOf(above));
    block.at = middle + above * (settings_.textGap() + half);
    draw(std::move(block));
}

void DimensionPen::textBehind(Point end, Point direction, const QString& measured)
{
    TextBlock block = blockOf(measured);
    block.angle = readableAngle(angleOf(direction));
    block.at = end + direction * settings_.textGap();
    block.attachment = dot(directionOf(block.angle), direction) > 0.0 ? kMiddleLeft : kMiddleRight;
    if (const std::optional<double> rotation = settings_.textRotation()) {
        block.angle = *rotation;
        block.attachment = kCenter;
        block.at = block.at + direction * halfAlong(block, *rotation - angleOf(direction));
    }
    draw(std::move(block));
}

Pen DimensionPen::penOf(const std::optional<OdCmColor>& color) const
{
    Pen pen = pen_;
    if (color)
        pen.setColor(*color);
    return pen;
}

TextBlock DimensionPen::blockOf(const QString& measured) const
{
    return {.lines = settings_.lines(measured), .at = {}, .attachment = kCenter, .height = settings_.textHeight()};
}

/// Of a jogged dimension the record has the point on the curve there.
std::optional<Point> DimensionPen::ownTextPlace() const
{
    return dimension_.className() == "AcDbRadialDimensionLarge" ? std::nullopt : placeOf(dimension_, "Position");
}

void DimensionPen::draw(TextBlock block)
{
    if (const std::optional<Point> own = ownTextPlace()) {
        block.at = *own;
        block.attachment = kCenter;
    }
    Pen pen = penOf(settings_.textColor());
    drawBlock(pen, block);
}

} // namespace inkmacro::view
