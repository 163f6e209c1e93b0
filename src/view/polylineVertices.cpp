#include "view/polylineVertices.h"

#include "host/db/OdDbCurves.h"

namespace inkmacro::view {

namespace {

/// Puts the values of a repeated tag to the vertices.
void takeNumbers(const Values& values, const char* tag, double Vertex::*member, std::vector<Vertex>& vertices)
{
    values.visit(QLatin1String(tag), [&](int index, const CFxVariant& value) {
        if (index >= 0 && static_cast<std::size_t>(index) < vertices.size())
            vertices[static_cast<std::size_t>(index)].*member = value.GetDouble();
    });
}

void takeDrawn(const Values& values, Vertices& all)
{
    if (const auto* const flat = values.drawnAs<OdDbPolyline>()) {
        all.isClosed = flat->isClosed();
        for (unsigned i = 0; i < flat->numVerts(); ++i)
            all.vertices.push_back({{flat->getPointAt(i).x, flat->getPointAt(i).y, 0.0}, flat->getBulgeAt(i)});
    } else if (const auto* const inSpace = values.drawnAs<OdDb3dPolyline>()) {
        all.isClosed = inSpace->isClosed();
        for (const OdGePoint3d& vertex : inSpace->vertices())
            all.vertices.push_back({vertex});
    }
}

} // namespace

Vertices verticesOf(const Values& values)
{
    Vertices all;
    takeDrawn(values, all);
    std::vector<Vertex>& vertices = all.vertices;
    const std::vector<OdGePoint3d> points = values.points("Vertex");
    // Bulges of the drawing are those of other vertices when there are more or less of them.
    if (!points.empty() && points.size() != vertices.size())
        vertices.assign(points.size(), {});
    for (std::size_t i = 0; i < points.size(); ++i)
        vertices[i].at = points[i];
    if (values.find("Bulge"))
        for (Vertex& vertex : vertices)
            vertex.bulge = 0.0;
    takeNumbers(values, "Bulge", &Vertex::bulge, vertices);
    if (const std::optional<double> width = values.number("Global width"))
        for (Vertex& vertex : vertices)
            vertex.startWidth = vertex.endWidth = *width;
    takeNumbers(values, "Start segment width", &Vertex::startWidth, vertices);
    takeNumbers(values, "End segment width", &Vertex::endWidth, vertices);
    if (values.find("Closed"))
        all.isClosed = values.isYes("Closed");
    return all;
}

} // namespace inkmacro::view
