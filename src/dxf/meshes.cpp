// Meshes: rows and columns of vertices, and faces between vertices.

#include "dxf/meshes.h"

#include "dxf/DrawingLine.h"
#include "dxf/readers.h"
#include "host/db/OdDbClassMap.h"

#include <array>

namespace inkmacro::dxf {

namespace {

// What a POLYLINE is, when it is a mesh.
enum MeshFlag : qint64
{
    kClosedInM = 1,
    kClosedInN = 32,
    kHasFaces = 64,
};

// What a VERTEX is.
enum VertexFlag : qint64
{
    kIsControl = 16, ///< of a smoothed mesh
    kIsOfMesh = 64,  ///< else it is a face, where a mesh has faces
};

/// Three or four numbers of vertices, from 1 on; a negative one begins a hidden edge.
using Face = std::vector<int>;

constexpr std::size_t kMostCorners = 4;
/// Beyond all meshes, so that any number of a file fits.
constexpr qint64 kMostVertices = 1'000'000'000;

struct Smoothing
{
    qint64 code;
    const char* word;
};

/// From 1 on, as they are chosen.
constexpr std::array kSmoothings{Smoothing{5, "Quadratic"}, Smoothing{6, "Cubic"}, Smoothing{8, "Bezier"}};

/// Tells of the mesh in the drawing too: a record has no place for faces.
void drawFaces(const std::vector<OdGePoint3d>& vertices, const std::vector<Face>& faces, DrawnObject& object)
{
    if (faces.empty())
        throw Lost{"it has no faces"};
    object.cls = oddbClassByName("AcDbPolyFaceMesh");
    object.add("Vertex", pointList(vertices));
    DrawingLine(object.drawing, "AcDbPolyFaceMesh", object.handle).with("vertices", vertices).with("faces", faces);
}

void readGrid(const EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object)
{
    const qint64 flags = entity.integer(70);
    const qint64 rows = entity.integer(71);
    const qint64 columns = entity.integer(72);
    const qint64 smoothing = entity.integer(75);
    std::vector<OdGePoint3d> vertices;
    EntityReader part(around.drawing);
    for (const Entity& vertex : parts) {
        if (vertex.kind != "VERTEX")
            continue;
        part.read(vertex);
        // The others of a smoothed mesh follow from those that control it.
        if (smoothing == 0 || part.integer(70) & kIsControl)
            vertices.push_back(part.point(10));
    }
    const auto count = static_cast<qint64>(vertices.size());
    if (rows < 2 || columns < 2 || rows > count || columns > count || rows * columns != count)
        throw Lost{"its vertices are no rows and columns"};
    object.cls = oddbClassByName("AcDbPolygonMesh");
    object.add("Vertex", pointList(vertices));
    object.add("M vertex count", static_cast<std::int32_t>(rows));
    object.add("N vertex count", static_cast<std::int32_t>(columns));
    if (flags & kClosedInM)
        object.change("M closed", choice(0, "Yes"));
    if (flags & kClosedInN)
        object.change("N closed", choice(0, "Yes"));
    for (std::size_t i = 0; i < kSmoothings.size(); ++i) {
        if (kSmoothings[i].code != smoothing)
            continue;
        object.change("M density", static_cast<std::int32_t>(entity.integer(73)));
        object.change("N density", static_cast<std::int32_t>(entity.integer(74)));
        object.change("Fit/Smooth", choice(static_cast<int>(i) + 1, kSmoothings[i].word));
    }
}

/// The same face from another corner on: a fourth number below 0, for a hidden edge, would be taken for none.
void beginElsewhere(Face& face, DrawnObject& object)
{
    const auto visible = std::find_if(face.begin(), face.end(), [](int number) { return number > 0; });
    if (visible != face.end()) {
        std::rotate(face.begin(), visible + 1, face.end());
        return;
    }
    face.back() = -face.back();
    object.untold.push_back("a hidden edge");
}

void readFaces(Parts parts, Surroundings& around, DrawnObject& object)
{
    std::vector<OdGePoint3d> vertices;
    std::vector<Face> faces;
    EntityReader part(around.drawing);
    for (const Entity& vertex : parts) {
        if (vertex.kind != "VERTEX")
            continue;
        part.read(vertex);
        if (part.integer(70) & kIsOfMesh) {
            vertices.push_back(part.point(10));
            continue;
        }
        Face face;
        for (const int code : {71, 72, 73, 74})
            if (const auto number = static_cast<int>(std::clamp(part.integer(code), -kMostVertices, kMostVertices));
                number != 0)
                face.push_back(number);
        if (face.size() < 2)
            continue;
        if (face.size() == 2) // a line
            face.push_back(face.back());
        if (face.size() == kMostCorners && face.back() < 0)
            beginElsewhere(face, object);
        faces.push_back(std::move(face));
    }
    const auto isThere = [&](qint64 number) { return std::abs(number) <= static_cast<qint64>(vertices.size()); };
    if (std::erase_if(faces, [&](const Face& face) { return !std::all_of(face.begin(), face.end(), isThere); }))
        object.untold.push_back("a face between vertices that there are not");
    drawFaces(vertices, faces, object);
}

/// Triangles with hidden edges between them, for a face of more corners than four.
void addFan(const Face& corners, std::vector<Face>& faces)
{
    if (corners.size() <= kMostCorners) {
        faces.push_back(corners);
        return;
    }
    for (std::size_t i = 1; i + 1 < corners.size(); ++i) {
        const bool isFirst = i == 1;
        const bool isLast = i + 2 == corners.size();
        faces.push_back({isFirst ? corners[0] : -corners[0], corners[i], isLast ? corners[i + 1] : -corners[i + 1]});
    }
}

} // namespace

void readMesh(const EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object)
{
    if (entity.integer(70) & kHasFaces)
        readFaces(parts, around, object);
    else
        readGrid(entity, parts, around, object);
}

void readSubdivision(EntityReader& entity, Parts, Surroundings&, DrawnObject& object)
{
    constexpr int firstOfFaces = 93;
    constexpr int firstOfEdges = 94;
    if (entity.integer(91) != 0)
        throw Lost{"it is smoothed"};
    const std::vector<OdGePoint3d> vertices = points(entity.groups(), 10);
    std::vector<int> numbers; ///< of each face: how many corners it has, and these
    bool isAmongFaces = false;
    for (const Group& group : entity.groups()) {
        if (group.code == firstOfFaces || group.code == firstOfEdges)
            isAmongFaces = group.code == firstOfFaces;
        else if (group.code == 90 && isAmongFaces)
            numbers.push_back(static_cast<int>(EntityReader::integerOf(group)));
    }
    std::vector<Face> faces;
    for (std::size_t i = 0; i < numbers.size();) {
        const int count = numbers[i++];
        if (count < 3 || static_cast<std::size_t>(count) > numbers.size() - i)
            throw Lost{"its faces cannot be read"};
        Face corners;
        for (const std::size_t end = i + static_cast<std::size_t>(count); i < end; ++i) {
            if (numbers[i] < 0 || static_cast<std::size_t>(numbers[i]) >= vertices.size())
                throw Lost{"its faces cannot be read"};
            corners.push_back(numbers[i] + 1);
        }
        addFan(corners, faces);
    }
    drawFaces(vertices, faces, object);
}

} // namespace inkmacro::dxf
