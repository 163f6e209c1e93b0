// Dimensions of circles and arcs: diameter, radius and jogged radius.

#include "view/dimensionParts.h"
#include "view/drawers.h"
#include "view/measuredCurves.h"
#include "view/plane.h"
#include "view/readings.h"

#include "host/db/OdDbClasses.h"

#include <cmath>

namespace inkmacro::view {
namespace {

constexpr std::size_t kCurve = 1; ///< of the points of these dimensions the one that hangs on it
constexpr auto kNoCurve = "neither the recording nor its drawing tell the curve that it measures";

QString radiusSign()
{
    return QStringLiteral("R");
}

QString diameterSign()
{
    return QString(QChar(0x00D8));
}

template<class Drawn>
Point chordPointOf(const Values& values)
{
    const auto* const drawn = values.drawnAs<Drawn>();
    return placeOf(values, "chordPoint").value_or(drawn ? fromAbove(drawn->chordPoint()) : Point());
}

/// The center of what a dimension measures; none when neither the drawing's curve nor its dimension tells it.
template<class Drawn>
std::optional<Point> centerOf(const Values& values)
{
    if (const std::optional<MeasuredCurve> curve = measuredCurve(values, kCurve))
        return curve->center;
    const auto* const drawn = values.drawnAs<Drawn>();
    if (!drawn || drawn->center() == drawn->chordPoint())
        return std::nullopt;
    return fromAbove(drawn->center());
}

std::optional<Point> farChordPoint(const Values& values, Point chordPoint)
{
    if (const std::optional<MeasuredCurve> curve = measuredCurve(values, kCurve))
        return curve->center * 2.0 - chordPoint;
    const auto* const drawn = values.drawnAs<OdDbDiametricDimension>();
    if (!drawn || drawn->farChordPoint() == drawn->chordPoint())
        return std::nullopt;
    return fromAbove(drawn->farChordPoint());
}

/// Of the curve that the drawing has, else as far as the points are apart.
double radiusOf(const Values& values, double apart)
{
    const std::optional<MeasuredCurve> curve = measuredCurve(values, kCurve);
    return curve && curve->radius > 0.0 ? curve->radius : apart;
}

/// The text stands over the line where it has room there, else behind its end.
void drawMeasured(DimensionPen& parts, Point from, Point to, int arrows, const QString& text)
{
    const Point direction = unitOf(to - from);
    if (parts.fits(text, distanceOf(from, to), arrows))
        parts.textOver(middleOf(from, to), angleOf(direction), text);
    else
        parts.textBehind(to, direction, text);
}

struct Jog
{
    Point center; ///< that stands for the curve's own
    Point place;
    Point chord;
};

/// From the center along the line's direction, aside by way of the jog's place, and on to the curve.
Outline jogLine(const Jog& jog, Point direction, double angle)
{
    const Point across = leftOf(direction);
    const double aside = dot(jog.chord - jog.center, across);
    const double sine = std::sin(angle);
    Outline outline;
    outline.move(jog.center);
    constexpr double kFlat = 0.05;
    if (direction == Point{} || aside == 0.0 || std::abs(sine) < kFlat) {
        outline.line(jog.place);
    } else {
        const double tangent = std::abs(sine) * (aside < 0.0 ? -1.0 : 1.0);
        const Point slope = (direction * std::cos(angle) + across * tangent) * (1.0 / tangent);
        const auto knee = [&](Point on) { return jog.place + slope * dot(on - jog.place, across); };
        outline.line(knee(jog.center)).line(knee(jog.chord));
    }
    outline.line(jog.chord);
    return outline;
}

/// Where the record has a pair of numbers.
Point planePoint(const Values& values, const QString& tag)
{
    return placeOf(values, tag).value_or(Point());
}

} // namespace

void drawDiameter(const Values& values, Pen& pen)
{
    const Point chord = chordPointOf<OdDbDiametricDimension>(values);
    const std::optional<Point> far = farChordPoint(values, chord);
    DimensionPen parts(values, pen);
    if (!far || *far == chord) {
        parts.remark(far ? "its points coincide" : kNoCurve);
        return;
    }
    const Point direction = unitOf(chord - *far);
    parts.plainLine(*far, chord);
    parts.arrow(chord, direction);
    parts.arrow(*far, direction * -1.0);
    drawMeasured(parts, *far, chord, 2,
                 parts.settings().length(2.0 * radiusOf(values, distanceOf(*far, chord) / 2.0), diameterSign()));
}

void drawRadius(const Values& values, Pen& pen)
{
    const Point chord = chordPointOf<OdDbRadialDimension>(values);
    const std::optional<Point> center = centerOf<OdDbRadialDimension>(values);
    DimensionPen parts(values, pen);
    if (!center || *center == chord) {
        parts.remark(center ? "its points coincide" : kNoCurve);
        return;
    }
    const double radius = radiusOf(values, distanceOf(*center, chord));
    parts.plainLine(*center, chord);
    parts.arrow(chord, unitOf(chord - *center));
    drawMeasured(parts, *center, chord, 1, parts.settings().length(radius, radiusSign()));
}

/// The record has the point on the curve where others have the place of their text.
void drawJogged(const Values& values, Pen& pen)
{
    const std::optional<Point> center = centerOf<OdDbRadialDimensionLarge>(values);
    const auto* const drawn = values.drawnAs<OdDbRadialDimensionLarge>();
    const Point chord = placeOf(values, "Position").value_or(drawn ? fromAbove(drawn->chordPoint()) : Point());
    DimensionPen parts(values, pen);
    if (!center || *center == chord) {
        parts.remark(center ? "its points coincide" : kNoCurve);
        return;
    }
    const Jog jog{planePoint(values, "Center location override"), planePoint(values, "Jog location"), chord};
    const Point direction = unitOf(chord - *center);
    parts.plainPath(jogLine(jog, direction, values.number("Jog angle").value_or(kTurn / 8)));
    parts.arrow(chord, direction);
    const double radius = radiusOf(values, distanceOf(*center, chord));
    parts.textBehind(chord, direction, parts.settings().length(radius, radiusSign()));
}

} // namespace inkmacro::view
