#include "host/db/OdDbCurves.h"
#include "view/arcs.h"
#include "view/drawers.h"

#include <cmath>

namespace inkmacro::view {

namespace {

/// What the actions say, else what the drawing has.
template<class Class, class Read>
std::optional<Point> pointOr(const Values& values, const QString& tag, Read read)
{
    if (const std::optional<OdGePoint3d> point = values.point(tag))
        return fromAbove(*point);
    if (const auto* const drawn = values.drawnAs<Class>())
        return fromAbove(read(*drawn));
    return std::nullopt;
}

template<class Class, class Read>
std::optional<double> numberOr(const Values& values, const QString& tag, Read read)
{
    if (const std::optional<double> number = values.number(tag))
        return number;
    if (const auto* const drawn = values.drawnAs<Class>())
        return read(*drawn);
    return std::nullopt;
}

using Axes = std::pair<Point, Point>;

/// The shorter axis: across the longer one, in the drawing's plane where it tells one, since the record does not.
Point minorAxis(const OdGePoint3d& major, double radius, const OdDbEllipse* drawn)
{
    if (drawn) {
        const OdGeVector3d& axis = drawn->minorAxis();
        const double length = std::hypot(axis.x, axis.y, axis.z);
        const double along = axis.x * major.x + axis.y * major.y + axis.z * major.z;
        // It is of another state where it does not stand across.
        constexpr double across = 1e-9;
        if (length > 0.0 && std::abs(along) <= across * length * major.distanceTo({}))
            return {axis.x * radius / length, axis.y * radius / length};
    }
    const double flat = std::hypot(major.x, major.y);
    return flat > 0.0 ? Point{-major.y * radius / flat, major.x * radius / flat} : Point{0.0, radius};
}

/// The axes of an ellipse, which may lie aslant in space: from the center, seen from above.
std::optional<Axes> axesOf(const Values& values)
{
    const std::optional<OdGePoint3d> major = values.point("Major axis vector");
    const std::optional<double> minor = values.number("Minor radius");
    const auto* const drawn = values.drawnAs<OdDbEllipse>();
    if (major && minor)
        return Axes(fromAbove(*major), minorAxis(*major, *minor, drawn));
    if (!drawn)
        return std::nullopt;
    const OdGeVector3d& u = drawn->majorAxis();
    const OdGeVector3d& v = drawn->minorAxis();
    return Axes({u.x, u.y}, {v.x, v.y});
}

} // namespace

void drawLine(const Values& values, Pen& pen)
{
    const auto start =
        pointOr<OdDbLine>(values, QStringLiteral("Start"), [](const OdDbLine& line) { return line.startPoint(); });
    const auto end =
        pointOr<OdDbLine>(values, QStringLiteral("End"), [](const OdDbLine& line) { return line.endPoint(); });
    if (start && end)
        pen.line(*start, *end);
}

void drawCircle(const Values& values, Pen& pen)
{
    const auto center =
        pointOr<OdDbCircle>(values, QStringLiteral("Center"), [](const OdDbCircle& circle) { return circle.center(); });
    const auto radius = numberOr<OdDbCircle>(values, QStringLiteral("Radius"),
                                             [](const OdDbCircle& circle) { return circle.radius(); });
    if (center && radius)
        pen.circle(*center, std::abs(*radius));
}

void drawArc(const Values& values, Pen& pen)
{
    const auto center =
        pointOr<OdDbArc>(values, QStringLiteral("Center"), [](const OdDbArc& arc) { return arc.center(); });
    const auto radius =
        numberOr<OdDbArc>(values, QStringLiteral("Radius"), [](const OdDbArc& arc) { return arc.radius(); });
    const auto start =
        numberOr<OdDbArc>(values, QStringLiteral("Start Angle"), [](const OdDbArc& arc) { return arc.startAngle(); });
    const auto end =
        numberOr<OdDbArc>(values, QStringLiteral("End Angle"), [](const OdDbArc& arc) { return arc.endAngle(); });
    if (center && radius && start && end)
        pen.arc(*center, std::abs(*radius), *start, sweepBetween(*start, *end));
}

void drawEllipse(const Values& values, Pen& pen)
{
    const auto center =
        pointOr<OdDbEllipse>(values, QStringLiteral("Center"), [](const OdDbEllipse& one) { return one.center(); });
    auto axes = axesOf(values);
    if (!center || !axes)
        return;
    const auto start = numberOr<OdDbEllipse>(values, QStringLiteral("Start angle"),
                                             [](const OdDbEllipse& one) { return one.startAngle(); });
    const auto end = numberOr<OdDbEllipse>(values, QStringLiteral("End angle"),
                                           [](const OdDbEllipse& one) { return one.endAngle(); });
    auto [u, v] = *axes;
    // Later changes give the lengths alone.
    if (const std::optional<double> major = values.number("Major radius"); major && std::hypot(u.x, u.y) > 0.0) {
        const double factor = *major / std::hypot(u.x, u.y);
        u = {u.x * factor, u.y * factor};
    }
    const double first = start.value_or(0.0);
    pen.path(Outline().ellipse(*center, u, v, first, sweepBetween(first, end.value_or(0.0))));
}

void drawPoint(const Values& values, Pen& pen)
{
    if (const std::optional<OdGePoint3d> at = values.point("Position"))
        pen.point(fromAbove(*at));
}

void drawRay(const Values& values, Pen& pen)
{
    const std::optional<OdGePoint3d> from = values.point("Base point");
    const std::optional<OdGePoint3d> towards = values.point("Second point");
    if (from && towards)
        pen.ray(fromAbove(*from), fromAbove(*towards));
}

void drawXLine(const Values& values, Pen& pen)
{
    const std::optional<OdGePoint3d> through = values.point("Base point");
    const std::optional<OdGePoint3d> towards = values.point("Second point");
    if (through && towards)
        pen.xline(fromAbove(*through), fromAbove(*towards));
}

} // namespace inkmacro::view
