// Dimensions along an arc: angles and lengths of arcs.

#include "view/dimensionParts.h"
#include "view/drawers.h"
#include "view/measuredCurves.h"
#include "view/plane.h"
#include "view/readings.h"

#include "host/db/OdDbClasses.h"

#include <algorithm>
#include <cmath>

namespace inkmacro::view {
namespace {

struct Segment
{
    Point start;
    Point end;
};

/// A line whose direction is a vector of length 1.
struct Side
{
    Point direction;
    double nearest; ///< what is measured of it, as distances from the center along the direction
    double farthest;
};

/// The part of a circle that a dimension's arc takes up.
struct Sector
{
    Point center;
    double radius;
    double start;
    double sweep;
};

/// The dimension's arc goes from the first to the second direction, by way of the point.
Sector sectorBy(Point center, Point first, Point second, Point by)
{
    const double firstAngle = angleOf(first);
    const double secondAngle = angleOf(second);
    const double radius = distanceOf(center, by);
    const double sweep = withinTurn(secondAngle - firstAngle);
    if (withinTurn(angleOf(by - center) - firstAngle) <= sweep)
        return {center, radius, firstAngle, sweep};
    return {center, radius, secondAngle, kTurn - sweep};
}

/// From what is measured, which lies along the direction, to the arc.
void drawExtension(DimensionPen& parts, int number, const Sector& sector, const Side& side)
{
    const auto at = [&](double distance) { return sector.center + side.direction * distance; };
    if (sector.radius > side.farthest)
        parts.extensionLine(number, at(side.farthest), at(sector.radius));
    else if (sector.radius < side.nearest)
        parts.extensionLine(number, at(side.nearest), at(sector.radius));
}

Point middleOf(const Sector& sector)
{
    return onCircle(sector.center, sector.radius, sector.start + sector.sweep / 2.0);
}

void drawSector(DimensionPen& parts, const Sector& sector, const Side& first, const Side& second, const QString& text)
{
    drawExtension(parts, 1, sector, first);
    drawExtension(parts, 2, sector, second);
    parts.arc(sector.center, sector.radius, sector.start, sector.sweep);
    parts.textOver(middleOf(sector), sector.start + sector.sweep / 2.0 + kTurn / 4, text);
}

std::optional<Point> crossingOf(const Segment& a, const Segment& b)
{
    constexpr double kParallel = 1e-9;
    const Point along = unitOf(a.end - a.start);
    const Point other = unitOf(b.end - b.start);
    const double sine = cross(along, other);
    if (std::abs(sine) < kParallel)
        return std::nullopt;
    return a.start + along * (cross(b.start - a.start, other) / sine);
}

/// Of the line's two directions the one of that sign.
Side sideOf(const Segment& segment, Point center, double sign)
{
    const Point direction = unitOf(segment.end - segment.start) * (sign < 0.0 ? -1.0 : 1.0);
    const double start = dot(segment.start - center, direction);
    const double end = dot(segment.end - center, direction);
    return {direction, std::min(start, end), std::max(start, end)};
}

Side sideThrough(Point point, Point center)
{
    const double distance = distanceOf(center, point);
    return {unitOf(point - center), distance, distance};
}

} // namespace

void drawTwoLineAngle(const Values& values, Pen& pen)
{
    const auto* const drawn = values.drawnAs<OdDb2LineAngularDimension>();
    using Read = const OdGePoint3d& (OdDb2LineAngularDimension::*)() const;
    const auto point = [&](const char* tag, Read read) {
        return placeOf(values, tag).value_or(drawn ? fromAbove((drawn->*read)()) : Point());
    };
    const Segment first{point("xLine1Start", &OdDb2LineAngularDimension::xLine1Start),
                        point("xLine1End", &OdDb2LineAngularDimension::xLine1End)};
    const Segment second{point("xLine2Start", &OdDb2LineAngularDimension::xLine2Start),
                         point("xLine2End", &OdDb2LineAngularDimension::xLine2End)};
    const Point by = point("arcPoint", &OdDb2LineAngularDimension::arcPoint);
    const std::optional<Point> center = crossingOf(first, second);
    DimensionPen parts(values, pen);
    if (!center || *center == by) {
        parts.remark(center ? "its points coincide" : "its lines are parallel");
        return;
    }
    // Of the four angles between the lines the one is meant in which the point lies.
    const Point towards = by - *center;
    const Point along = unitOf(first.end - first.start);
    const Point other = unitOf(second.end - second.start);
    const double sine = cross(along, other);
    const Side firstSide = sideOf(first, *center, cross(towards, other) / sine);
    const Side secondSide = sideOf(second, *center, cross(along, towards) / sine);
    const bool inOrder = cross(firstSide.direction, secondSide.direction) > 0.0;
    const double start = angleOf(inOrder ? firstSide.direction : secondSide.direction);
    const double end = angleOf(inOrder ? secondSide.direction : firstSide.direction);
    const Sector sector{*center, lengthOf(towards), start, withinTurn(end - start)};
    drawSector(parts, sector, firstSide, secondSide, parts.settings().angle(sector.sweep));
}

void drawThreePointAngle(const Values& values, Pen& pen)
{
    const auto* const drawn = values.drawnAs<OdDb3PointAngularDimension>();
    using Read = const OdGePoint3d& (OdDb3PointAngularDimension::*)() const;
    const auto point = [&](const char* tag, Read read) {
        return placeOf(values, tag).value_or(drawn ? fromAbove((drawn->*read)()) : Point());
    };
    const Point center = point("centerPoint", &OdDb3PointAngularDimension::centerPoint);
    const Point first = point("xLine1Point", &OdDb3PointAngularDimension::xLine1Point);
    const Point second = point("xLine2Point", &OdDb3PointAngularDimension::xLine2Point);
    const Point by = point("arcPoint", &OdDb3PointAngularDimension::arcPoint);
    DimensionPen parts(values, pen);
    if (center == first || center == second || center == by) {
        parts.remark("its points coincide");
        return;
    }
    const Sector sector = sectorBy(center, first - center, second - center, by);
    drawSector(parts, sector, sideThrough(first, center), sideThrough(second, center),
               parts.settings().angle(sector.sweep));
}

void drawArcLength(const Values& values, Pen& pen)
{
    constexpr std::size_t kCurve = 2;
    const auto* const drawn = values.drawnAs<OdDbArcDimension>();
    using Read = const OdGePoint3d& (OdDbArcDimension::*)() const;
    const auto point = [&](const char* tag, Read read) {
        return placeOf(values, tag).value_or(drawn ? fromAbove((drawn->*read)()) : Point());
    };
    const std::optional<MeasuredCurve> arc = measuredCurve(values, kCurve);
    DimensionPen parts(values, pen);
    if (!arc && (!drawn || drawn->centerPoint() == OdGePoint3d())) {
        parts.remark("neither the recording nor its drawing tell the arc that it measures");
        return;
    }
    const Point center = arc ? arc->center : fromAbove(drawn->centerPoint());
    const Point first = point("xLine1Point", &OdDbArcDimension::xLine1Point);
    const Point second = point("xLine2Point", &OdDbArcDimension::xLine2Point);
    const Point by = point("arcPoint", &OdDbArcDimension::arcPoint);
    if (center == first || center == second || center == by) {
        parts.remark("its points coincide");
        return;
    }
    const Sector sector = sectorBy(center, first - center, second - center, by);
    const double radius = arc && arc->radius > 0.0 ? arc->radius : distanceOf(center, first);
    constexpr int kWithoutSymbol = 2;
    const bool hasSymbol = values.choice("Arc length symbol").value_or(0) != kWithoutSymbol;
    const QString text = parts.settings().length(radius * sector.sweep, hasSymbol ? QString(QChar(0x2312)) : QString());
    drawSector(parts, sector, sideThrough(first, center), sideThrough(second, center), text);
}

} // namespace inkmacro::view
