// Dimensions along a line: aligned, rotated and ordinate ones.

#include "view/dimensionParts.h"
#include "view/drawers.h"
#include "view/plane.h"
#include "view/readings.h"

#include "host/db/OdDbClasses.h"

#include <algorithm>
#include <cmath>

namespace inkmacro::view {
namespace {

struct LinearDimension
{
    Point first;
    Point second;
    Point linePoint;
};

template<class Drawn>
LinearDimension linearDimension(const Values& values)
{
    const auto* const drawn = values.drawnAs<Drawn>();
    const auto point = [&](const char* tag, auto read) {
        return placeOf(values, tag).value_or(drawn ? fromAbove((drawn->*read)()) : Point());
    };
    return {point("xLine1Point", &Drawn::xLine1Point), point("xLine2Point", &Drawn::xLine2Point),
            point("dimLinePoint", &Drawn::dimLinePoint)};
}

/// The dimension line goes along the direction, a vector of length 1.
void drawLinear(const Values& values, Pen& pen, const LinearDimension& dimension, Point direction)
{
    const Point across = leftOf(direction);
    const auto footOf = [&](Point point) { return point + across * dot(dimension.linePoint - point, across); };
    const Point first = footOf(dimension.first);
    const Point second = footOf(dimension.second);
    DimensionPen parts(values, pen);
    if (first == second) {
        parts.remark("its points coincide");
        return;
    }
    parts.extensionLine(1, dimension.first, first);
    parts.extensionLine(2, dimension.second, second);
    parts.line(first, second);
    parts.textOver(middleOf(first, second), angleOf(direction), parts.settings().length(distanceOf(first, second)));
}

/// The line of an ordinate steps aside in its middle where its end does not lie straight over the point.
Outline ordinateLine(Point from, Point end, Point direction, double step)
{
    const Point across = leftOf(direction);
    const double aside = dot(end - from, across);
    const double forward = dot(end - from, direction);
    Outline outline;
    outline.move(from);
    if (std::abs(aside) > 0.0) {
        const double last = std::max(forward - step, forward / 2.0);
        const double first = std::max(last - step, 0.0);
        outline.line(from + direction * first);
        outline.line(from + direction * last + across * aside);
    }
    outline.line(end);
    return outline;
}

} // namespace

void drawAlignedDimension(const Values& values, Pen& pen)
{
    const auto dimension = linearDimension<OdDbAlignedDimension>(values);
    const Point direction = unitOf(dimension.second - dimension.first);
    if (direction == Point{}) {
        pen.remark("its points coincide");
        return;
    }
    drawLinear(values, pen, dimension, direction);
}

void drawRotatedDimension(const Values& values, Pen& pen)
{
    const auto* const drawn = values.drawnAs<OdDbRotatedDimension>();
    const double angle = values.number("rotation").value_or(drawn ? drawn->rotation() : 0.0);
    drawLinear(values, pen, linearDimension<OdDbRotatedDimension>(values), directionOf(angle));
}

void drawOrdinateDimension(const Values& values, Pen& pen)
{
    const auto* const drawn = values.drawnAs<OdDbOrdinateDimension>();
    const auto point = [&](const char* tag, const OdGePoint3d& (OdDbOrdinateDimension::*read)() const) {
        return placeOf(values, tag).value_or(drawn ? fromAbove((drawn->*read)()) : Point());
    };
    const Point measured = point("definingPoint", &OdDbOrdinateDimension::definingPoint);
    const Point end = point("leaderEndPoint", &OdDbOrdinateDimension::leaderEndPoint);
    const Point origin = point("setZero", &OdDbOrdinateDimension::origin);
    const std::optional<int> told = values.choice("isUsingXAxis");
    const bool usesX = told ? *told != 0 : drawn && drawn->isUsingXAxis();

    DimensionPen parts(values, pen);
    const Point axis = usesX ? Point{0.0, 1.0} : Point{1.0, 0.0};
    const Point direction = axis * (dot(end - measured, axis) < 0.0 ? -1.0 : 1.0);
    const double length = dot(end - measured, direction);
    const double offset = std::min(parts.settings().extensionOffset(), length);
    if (measured == end) {
        parts.remark("its points coincide");
        return;
    }
    const double step = 2.0 * parts.settings().arrowSize();
    parts.plainPath(ordinateLine(measured + direction * offset, end, direction, step));
    const Point fromOrigin = measured - origin;
    parts.textBehind(end, direction, parts.settings().length(usesX ? fromOrigin.x : fromOrigin.y));
}

} // namespace inkmacro::view
