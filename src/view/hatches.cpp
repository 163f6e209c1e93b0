// Hatches: their boundaries and what fills them.

#include "view/boundaries.h"
#include "view/drawers.h"
#include "view/hatchActions.h"
#include "view/patterns.h"
#include "view/plane.h"
#include "view/readings.h"

#include "host/db/OdDbClasses.h"

#include <algorithm>

namespace inkmacro::view {
namespace {

using Loops = std::vector<Outline>;

std::vector<Point> fromAbove(const std::vector<OdGePoint3d>& points)
{
    std::vector<Point> seen;
    for (const OdGePoint3d& point : points)
        seen.push_back(view::fromAbove(point));
    return seen;
}

/// What stands in a list; nothing for another value.
std::vector<CFxVariant> itemsOf(const Values& values, const char* tag)
{
    std::vector<CFxVariant> items;
    if (const CFxVariant* const list = values.find(tag))
        for (const CFxVariantCollectionElement& element : list->GetCollection().GetCollectionDataForRead())
            items.push_back(*element.GetValue());
    return items;
}

Loops loopsByCounts(const std::vector<CFxVariant>& counts, const std::vector<Point>& points)
{
    Loops loops;
    auto at = points.begin();
    for (const CFxVariant& value : counts) {
        const auto count = std::clamp<std::ptrdiff_t>(value.GetInt32(), 0, points.end() - at);
        loops.push_back(loopThrough({at, at + count}));
        at += count;
    }
    return loops;
}

std::vector<double> bulgesOf(const Values& values)
{
    std::vector<double> bulges;
    for (const CFxVariant& bulge : itemsOf(values, kBoundaryBulges))
        bulges.push_back(bulge.GetDouble());
    return bulges;
}

Loops loopsAlongHandles(const Values& values, const std::vector<OdDbHandle>& handles)
{
    std::vector<const Values*> objects;
    std::vector<OdDbHandle> seen = handles;
    std::sort(seen.begin(), seen.end());
    seen.erase(std::unique(seen.begin(), seen.end()), seen.end());
    for (const OdDbHandle& handle : seen)
        if (const Values* const object = handle.isNull() ? nullptr : values.other(handle))
            objects.push_back(object);
    return loopsAlong(objects, values.moved());
}

Loops drawnLoops(const Values& values)
{
    const auto* const drawn = values.drawnAs<OdDbHatch>();
    Loops loops;
    for (int i = 0; drawn && i < drawn->numLoops(); ++i) {
        std::vector<Point> vertices;
        for (const OdGePoint2d& vertex : drawn->getLoopAt(i))
            vertices.push_back({vertex.x, vertex.y});
        std::vector<OdDbHandle> handles;
        for (const OdDbObjectId& id : drawn->getAssocObjIdsAt(i))
            handles.push_back(id.getHandle());
        const Loops followed = vertices.empty() ? loopsAlongHandles(values, handles) : Loops{loopThrough(vertices)};
        loops.insert(loops.end(), followed.begin(), followed.end());
    }
    return loops;
}

/// As the action has told that makes the hatch, else as the drawing has them.
Loops loopsOf(const Values& values)
{
    Loops loops;
    if (const std::vector<Point> points = fromAbove(values.points(kBoundaryPoints)); !points.empty()) {
        loops = values.find(kBoundaryCounts) ? loopsByCounts(itemsOf(values, kBoundaryCounts), points)
                                             : Loops{loopThrough(points, bulgesOf(values))};
    } else if (values.find(kBoundaryObjects)) {
        std::vector<OdDbHandle> handles;
        for (const CFxVariant& object : itemsOf(values, kBoundaryObjects))
            handles.push_back(object.GetId().getHandle());
        loops = loopsAlongHandles(values, handles);
    } else {
        loops = drawnLoops(values);
    }
    loops.erase(std::remove_if(loops.begin(), loops.end(), [](const Outline& loop) { return loop.isEmpty(); }),
                loops.end());
    return loops;
}

/// One boundary within which islands are left out; without islands each loop is one by itself.
Loops boundariesOf(const Values& values)
{
    Loops loops = loopsOf(values);
    const bool ignoresIslands =
        values.text("Internal region detection").value_or(QString()).compare("Ignore", Qt::CaseInsensitive) == 0;
    if (ignoresIslands || loops.size() < 2)
        return loops;
    Outline together;
    for (const Outline& loop : loops)
        together.add(loop);
    return {together};
}

std::vector<Point> internalPoints(const Values& values)
{
    std::vector<Point> points = fromAbove(values.points(kInternalPoints));
    const auto* const drawn = values.drawnAs<OdDbHatch>();
    for (unsigned i = 0; points.empty() && drawn && i < drawn->numSeedPoints(); ++i)
        points.push_back({drawn->getSeedPointAt(i).x, drawn->getSeedPointAt(i).y});
    return points;
}

void drawDiamond(Pen& pen, Point at)
{
    constexpr double kHalf = 1.25;
    Outline outline;
    outline.move({at.x - kHalf, at.y}).line({at.x, at.y - kHalf});
    outline.line({at.x + kHalf, at.y}).line({at.x, at.y + kHalf}).close();
    pen.path(outline);
}

/// What stands in the place of a hatch whose boundary nobody knows.
void drawWithoutBoundary(const Values& values, Pen& pen)
{
    const std::vector<Point> points = internalPoints(values);
    for (const Point point : points)
        drawDiamond(pen, point);
    pen.remark(points.empty() ? "neither the recording nor its drawing tell its boundary"
                              : "the application finds its boundary around the points that are shown");
}

QString patternNameOf(const Values& values)
{
    const auto* const drawn = values.drawnAs<OdDbHatch>();
    return values.text("Pattern name").value_or(drawn ? drawn->patternName() : QString());
}

/// The lines of the hatch; none for a pattern that is not known here.
std::optional<std::vector<PatternLines>> linesOf(const Values& values)
{
    const auto* const drawn = values.drawnAs<OdDbHatch>();
    const double angle = values.number("Angle").value_or(drawn ? drawn->patternAngle() : 0.0);
    const Point origin = placeOf(values, "Origin").value_or(Point());
    if (values.text("Type").value_or(QString()).compare("User defined", Qt::CaseInsensitive) == 0)
        return placed({{0.0, {}, sizeOf({values.number("Spacing")}, 1.0)}}, 1.0, angle, origin);
    const double scale =
        sizeOf({values.number("Scale"), drawn ? std::optional(drawn->patternScale()) : std::nullopt}, 1.0);
    std::optional<std::vector<PatternLines>> lines = patternNamed(patternNameOf(values));
    if (lines)
        lines = placed(std::move(*lines), scale, angle, origin);
    return lines;
}

void drawTinted(Pen& pen, const Loops& boundaries, const QString& name)
{
    for (const Outline& boundary : boundaries) {
        pen.pattern({{0.0, {}, kTint}}, boundary);
        pen.path(boundary);
    }
    pen.remark(name.isEmpty() ? QStringLiteral("its pattern, which is not recorded, as outline with tint")
                              : QStringLiteral("pattern %1 as outline with tint").arg(name));
}

void fill(Pen& pen, const Loops& boundaries)
{
    for (const Outline& boundary : boundaries)
        pen.area(boundary);
}

} // namespace

void drawHatch(const Values& values, Pen& pen)
{
    const Loops boundaries = boundariesOf(values);
    const QString name = patternNameOf(values);
    if (boundaries.empty()) {
        drawWithoutBoundary(values, pen);
    } else if (const std::optional<OdCmColor> gradient = colorIn(values, "Color 1")) {
        pen.setColor(*gradient);
        fill(pen, boundaries);
        pen.remark("its gradient in the first of its colors");
    } else if (name.compare("SOLID", Qt::CaseInsensitive) == 0) {
        fill(pen, boundaries);
    } else if (const std::optional<std::vector<PatternLines>> lines = linesOf(values)) {
        for (const Outline& boundary : boundaries)
            pen.pattern(*lines, boundary);
    } else {
        drawTinted(pen, boundaries, name);
    }
}

} // namespace inkmacro::view
