// Polylines in a plane and in space, faces and solids.

#include "dxf/meshes.h"
#include "dxf/readers.h"
#include "host/db/OdDbClassMap.h"

namespace inkmacro::dxf {

namespace {

struct Vertex
{
    OdGePoint3d point; ///< as the file has it
    double bulge = 0;  ///< of the segment that begins here
    double startWidth = 0;
    double endWidth = 0;
};

struct PlanePolyline
{
    std::vector<Vertex> vertices;
    bool isClosed = false;
    bool isPatternContinuous = false; ///< the line style runs on across vertices
    double elevation = 0;
    double width = 0; ///< of all segments

    bool hasArcs() const
    {
        return std::any_of(vertices.begin(), vertices.end(), [](const Vertex& vertex) { return vertex.bulge != 0; });
    }
    /// Go before that of all segments.
    bool hasOwnWidths() const
    {
        return std::any_of(vertices.begin(), vertices.end(),
                           [](const Vertex& vertex) { return vertex.startWidth != 0 || vertex.endWidth != 0; });
    }
    bool hasWidths() const { return width != 0 || hasOwnWidths(); }
};

void drawIn3d(const PlanePolyline& polyline, const Direction& direction, DrawnObject& object)
{
    if (polyline.hasArcs())
        throw Lost{kTilted};
    if (polyline.hasWidths())
        object.untold.push_back("the width of a polyline in space");
    std::vector<OdGePoint3d> points;
    for (const Vertex& vertex : polyline.vertices)
        points.push_back(direction.toWorld({vertex.point.x, vertex.point.y, polyline.elevation}));
    object.cls = oddbClassByName("AcDb3dPolyline");
    object.isStandIn = true;
    object.add("Vertex", pointList(points));
    object.add("Closed", yesOrNo(polyline.isClosed));
}

void draw(const PlanePolyline& polyline, const Direction& direction, DrawnObject& object)
{
    if (polyline.vertices.size() < 2)
        throw Lost{"it has less than two vertices"};
    if (direction.isTilted())
        return drawIn3d(polyline, direction, object);
    std::vector<OdGePoint3d> points;
    for (const Vertex& vertex : polyline.vertices)
        points.push_back(direction.toWorld({vertex.point.x, vertex.point.y, polyline.elevation}));
    if (polyline.hasArcs() || polyline.hasWidths()) {
        OdArray<OdGePoint3d> vertices;
        OdArray<OdGePoint3d> bulges;
        OdArray<double> startWidths;
        OdArray<double> endWidths;
        const bool varies = polyline.hasOwnWidths();
        for (std::size_t i = 0; i < points.size(); ++i) {
            const Vertex& vertex = polyline.vertices[i];
            vertices.append(points[i]);
            bulges.append({direction.bulgeToWorld(vertex.bulge), 0, 0});
            if (varies) {
                startWidths.append(vertex.startWidth);
                endWidths.append(vertex.endWidth);
            }
        }
        object.making = DrawnObject::Making::Custom;
        object.customKind = kPolylineAction;
        object.custom = {{vertices},
                         {bulges},
                         {polyline.isClosed},
                         {object.handle},
                         {static_cast<const OdRxClass*>(object.cls)},
                         {startWidths},
                         {endWidths},
                         {!varies && polyline.width != 0},
                         {varies ? 0.0 : polyline.width}};
    } else {
        object.add("Vertex", pointList(points));
        object.add("Closed", yesOrNo(polyline.isClosed));
    }
    if (points.front().z != 0)
        object.change("Elevation", points.front().z);
    if (polyline.isPatternContinuous)
        object.change("LineStyleGen", choice(0, "Enabled"));
}

// What a POLYLINE is.
enum PolylineFlag : qint64
{
    kClosed = 1,
    kIs3d = 8,
    kIsMesh = 16,
    kIsPolyFace = 64,
    kPatternContinuous = 128,
};

// What a VERTEX is.
enum VertexFlag : qint64
{
    kFrame = 16, ///< it bends a curve that other vertices draw
};

} // namespace

void readLightPolyline(EntityReader& entity, Parts, Surroundings&, DrawnObject& object)
{
    PlanePolyline polyline;
    const qint64 flags = entity.integer(70);
    polyline.isClosed = flags & kClosed;
    polyline.isPatternContinuous = flags & kPatternContinuous;
    polyline.elevation = entity.real(38);
    for (const Group& group : entity.groups()) {
        if (group.code == 43)
            polyline.width = EntityReader::realOf(group);
        if (group.code == 10)
            polyline.vertices.emplace_back().point.x = EntityReader::realOf(group);
        if (polyline.vertices.empty())
            continue;
        Vertex& vertex = polyline.vertices.back();
        if (group.code == 20)
            vertex.point.y = EntityReader::realOf(group);
        else if (group.code == 40)
            vertex.startWidth = EntityReader::realOf(group);
        else if (group.code == 41)
            vertex.endWidth = EntityReader::realOf(group);
        else if (group.code == 42)
            vertex.bulge = EntityReader::realOf(group);
    }
    draw(polyline, entity.direction(), object);
}

void readPolyline(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object)
{
    const qint64 flags = entity.integer(70);
    if (flags & (kIsMesh | kIsPolyFace))
        return readMesh(entity, parts, around, object);
    if (around.isForDrawing)
        return;
    PlanePolyline polyline;
    polyline.isClosed = flags & kClosed;
    polyline.isPatternContinuous = flags & kPatternContinuous;
    polyline.elevation = entity.point(10).z;
    const double startWidth = entity.real(40);
    const double endWidth = entity.real(41);
    EntityReader part(around.drawing);
    for (const Entity& vertex : parts) {
        if (vertex.kind != "VERTEX")
            continue;
        part.read(vertex);
        if (part.integer(70) & kFrame)
            continue;
        polyline.vertices.push_back(
            {part.point(10), part.real(42), part.real(40, startWidth), part.real(41, endWidth)});
    }
    if (!(flags & kIs3d))
        return draw(polyline, entity.direction(), object);
    if (polyline.vertices.size() < 2)
        throw Lost{"it has less than two vertices"};
    std::vector<OdGePoint3d> points;
    for (const Vertex& vertex : polyline.vertices)
        points.push_back(vertex.point);
    object.cls = oddbClassByName("AcDb3dPolyline");
    object.add("Vertex", pointList(points));
    object.add("Closed", yesOrNo(polyline.isClosed));
}

namespace {

/// The fourth of a triangle is its third.
std::vector<OdGePoint3d> fourCorners(const EntityReader& entity)
{
    std::vector<OdGePoint3d> corners;
    for (const int code : {10, 11, 12, 13})
        corners.push_back(code == 13 && !entity.has(code) ? corners.back() : entity.point(code));
    return corners;
}

} // namespace

void readFace(EntityReader& entity, Parts, Surroundings&, DrawnObject& object)
{
    object.add("Vertex", pointList(fourCorners(entity)));
    const qint64 hidden = entity.integer(70);
    static constexpr const char* tags[] = {"Edge 1", "Edge 2", "Edge 3", "Edge 4"};
    for (int edge = 0; edge < 4; ++edge)
        object.add(tags[edge], CFxString(hidden & (1 << edge) ? "Hidden" : "Visible"));
}

void readSolid(EntityReader& entity, Parts, Surroundings&, DrawnObject& object)
{
    const Direction direction = entity.direction();
    if (direction.isTilted())
        throw Lost{kTilted};
    std::vector<OdGePoint3d> corners = fourCorners(entity);
    for (OdGePoint3d& corner : corners)
        corner = direction.toWorld(corner);
    object.add("Vertex", pointList(corners));
}

} // namespace inkmacro::dxf
