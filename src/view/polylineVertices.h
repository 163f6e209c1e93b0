#pragma once

#include "view/Values.h"

namespace inkmacro::view {

/// A vertex of a polyline, with the segment that begins there.
struct Vertex
{
    OdGePoint3d at;
    double bulge = 0.0; ///< the tangent of a quarter of the angle of an arc, 0 for a line
    double startWidth = 0.0;
    double endWidth = 0.0;
};

struct Vertices
{
    std::vector<Vertex> vertices;
    bool isClosed = false;
};

/// Those of a polyline in a plane or in space: as the actions say, else as the drawing has them.
Vertices verticesOf(const Values& values);

} // namespace inkmacro::view
