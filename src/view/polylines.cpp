#include "host/db/OdDbCurves.h"
#include "view/arcs.h"
#include "view/drawers.h"

namespace inkmacro::view {

namespace {

struct Vertex
{
    Point at;
    double bulge = 0.0; ///< of the segment that begins here: the tangent of a quarter of the angle of an arc
};

std::vector<Vertex> verticesOf(const Values& values)
{
    std::vector<Vertex> vertices;
    for (const OdGePoint3d& point : values.points("Vertex"))
        vertices.push_back({fromAbove(point)});
    const auto* const drawn = values.drawnAs<OdDbPolyline>();
    if (drawn && vertices.empty())
        for (unsigned i = 0; i < drawn->numVerts(); ++i)
            vertices.push_back({{drawn->getPointAt(i).x, drawn->getPointAt(i).y}});
    if (values.count("Bulge") > 0) {
        values.visit("Bulge", [&vertices](int index, const CFxVariant& value) {
            if (index >= 0 && static_cast<std::size_t>(index) < vertices.size())
                vertices[static_cast<std::size_t>(index)].bulge = value.GetDouble();
        });
    } else if (drawn && drawn->numVerts() == vertices.size()) {
        for (unsigned i = 0; i < drawn->numVerts(); ++i)
            vertices[i].bulge = drawn->getBulgeAt(i);
    }
    return vertices;
}

bool isClosed(const Values& values, bool drawn)
{
    return values.find("Closed") ? values.isYes("Closed") : drawn;
}

void addSegment(Outline& outline, const Vertex& from, Point to)
{
    if (from.bulge == 0.0 || from.at == to) {
        outline.line(to);
        return;
    }
    const ArcBetween arc = arcBetween(from.at, to, from.bulge);
    outline.arc(arc.center, arc.radius, arc.start, arc.sweep);
}

} // namespace

void drawPolyline(const Values& values, Pen& pen)
{
    const std::vector<Vertex> vertices = verticesOf(values);
    if (vertices.empty())
        return;
    const auto* const drawn = values.drawnAs<OdDbPolyline>();
    const bool closed = isClosed(values, drawn && drawn->isClosed());
    Outline outline;
    outline.move(vertices.front().at);
    for (std::size_t i = 1; i < vertices.size(); ++i)
        addSegment(outline, vertices[i - 1], vertices[i].at);
    if (closed) {
        addSegment(outline, vertices.back(), vertices.front().at);
        outline.close();
    }
    pen.path(outline);
}

void drawSpacePolyline(const Values& values, Pen& pen)
{
    std::vector<OdGePoint3d> vertices = values.points("Vertex");
    const auto* const drawn = values.drawnAs<OdDb3dPolyline>();
    if (drawn && vertices.empty())
        vertices.assign(drawn->vertices().begin(), drawn->vertices().end());
    if (vertices.empty())
        return;
    Outline outline;
    outline.move(fromAbove(vertices.front()));
    for (std::size_t i = 1; i < vertices.size(); ++i)
        outline.line(fromAbove(vertices[i]));
    if (isClosed(values, drawn && drawn->isClosed()))
        outline.close();
    pen.path(outline);
}

} // namespace inkmacro::view
