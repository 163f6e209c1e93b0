#include "recordfile/drawingForms.h"

#include <algorithm>

namespace inkmacro::recordfile {

namespace {

constexpr std::size_t kTriangle = 3;
constexpr std::size_t kCorners = std::tuple_size_v<decltype(OdDbFaceRecord::vertices)>;

} // namespace

OdDbFaceRecord Form<OdDbFaceRecord>::read(const Json& json)
{
    const std::size_t size = json.array().size();
    if (size != kTriangle && size != kCorners)
        json.failExpected("three or four numbers of vertices");
    const auto numbers = Form<std::vector<int>>::read(json);
    OdDbFaceRecord face;
    std::copy(numbers.begin(), numbers.end(), face.vertices.begin());
    return face;
}

void Form<OdDbFaceRecord>::write(JsonOut& out, const OdDbFaceRecord& face)
{
    const bool triangle = face.vertices[kTriangle] == 0;
    Form<std::vector<int>>::write(out, {face.vertices.begin(), face.vertices.end() - (triangle ? 1 : 0)});
}

QJsonObject Form<OdDbFaceRecord>::schema(SchemaDefinitions& definitions)
{
    return listSchema(Form<int>::schema(definitions), kTriangle, kCorners);
}

void ObjectPathForm::write(JsonOut& out, const Path& path)
{
    if (path.isEmpty())
        out.null();
    else
        Form<Path>::write(out, path);
}

QJsonObject ObjectPathForm::schema(SchemaDefinitions& definitions)
{
    return anyOfSchema({typeSchema("null"), Form<Path>::schema(definitions)});
}

std::span<const Key<OdDbHatchLoop>> Form<OdDbHatchLoop>::keys()
{
    static constexpr std::array table{
        optional<&OdDbHatchLoop::type>("type", "sum of 2 for a polyline, 4 for one found by a point, and others"),
        optional<&OdDbHatchLoop::vertices>("vertices", "the vertices of a polyline"),
        optional<&OdDbHatchLoop::assocObjIds>("assocObjIds", "handles of the objects that the boundary follows"),
    };
    return table;
}

std::span<const Key<OdDbMlineElement>> Form<OdDbMlineElement>::keys()
{
    static constexpr std::array table{
        optional<&OdDbMlineElement::offset>("offset", "distance from the vertices"),
        optional<&OdDbMlineElement::color>("color", "the color, else by layer"),
        optional<&OdDbMlineElement::linetypeId>("lineStyle", "handle of the line style"),
    };
    return table;
}

} // namespace inkmacro::recordfile
