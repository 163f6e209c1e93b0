#include "view/polylineEdits.h"

#include "view/actionData.h"
#include "view/polylineVertices.h"

#include <algorithm>

namespace inkmacro::view {

namespace {

void sayVertices(ObjectState& state, const std::vector<Vertex>& vertices)
{
    std::vector<OdGePoint3d> points;
    std::vector<double> bulges;
    std::vector<double> starts;
    std::vector<double> ends;
    for (const Vertex& vertex : vertices) {
        points.push_back(vertex.at);
        bulges.push_back(vertex.bulge);
        starts.push_back(vertex.startWidth);
        ends.push_back(vertex.endWidth);
    }
    state.sayPoints("Vertex", points);
    state.sayNumbers("Bulge", bulges);
    state.sayNumbers("Start segment width", starts);
    state.sayNumbers("End segment width", ends);
}

/// The vertices as they are seen, also behind a move.
std::vector<Vertex> verticesNow(const ObjectState& state)
{
    std::vector<Vertex> vertices = verticesOf(state).vertices;
    for (Vertex& vertex : vertices) {
        const Point at = state.moved() * fromAbove(vertex.at);
        vertex.at.x = at.x;
        vertex.at.y = at.y;
    }
    return vertices;
}

/// Edits the vertices of the polyline when the one of that number is there.
template<class Edit>
void editVertices(Fold& fold, const std::vector<OdDbHandle>& handles, int number, Edit edit)
{
    ObjectState* const state = handles.empty() ? nullptr : fold.objects().find(handles.front());
    // What the drawing tells is the end, with the edit.
    if (!state || !state->isThere || !state->hasPlace())
        return;
    std::vector<Vertex> vertices = verticesNow(*state);
    const auto at = static_cast<std::size_t>(std::max(number, 0));
    if (number < 0 || at >= vertices.size())
        return;
    edit(vertices, at);
    sayVertices(*state, vertices);
    fold.redraw(*state);
}

void insertBehind(std::vector<Vertex>& vertices, std::size_t at, const OdGePoint3d& point)
{
    vertices.insert(vertices.begin() + static_cast<std::ptrdiff_t>(at) + 1, Vertex{point});
}

/// A line in the place of what lies between two vertices.
void straighten(std::vector<Vertex>& vertices, std::size_t from, std::size_t to)
{
    if (from > to)
        std::swap(from, to);
    if (to >= vertices.size())
        return;
    vertices[from].bulge = 0.0;
    if (to > from)
        vertices.erase(vertices.begin() + static_cast<std::ptrdiff_t>(from) + 1,
                       vertices.begin() + static_cast<std::ptrdiff_t>(to));
}

} // namespace

void editPolyline(Fold& fold, const CFxCustomAction& action)
{
    const QString word = datum(action, 0).GetString();
    const std::vector<OdDbHandle> handles = handlesIn(action, 1);
    const int number = datum(action, 3).GetInt();
    const CFxCustomActionData& data = datum(action, 4);
    if (word.startsWith("_INSERT")) {
        editVertices(fold, handles, number,
                     [&](auto& vertices, std::size_t at) { insertBehind(vertices, at, data.GetPoint()); });
    } else if (word.startsWith("_MOVE")) {
        editVertices(fold, handles, number, [&](auto& vertices, std::size_t at) { vertices[at].at = data.GetPoint(); });
    } else if (word == "_WIDTH") {
        editVertices(fold, handles, number, [&](auto& vertices, std::size_t at) {
            vertices[at].startWidth = data.GetDouble();
            vertices[at].endWidth = datum(action, 5).GetDouble();
        });
    } else if (word == "_STRAIGHTEN") {
        editVertices(fold, handles, number, [&](auto& vertices, std::size_t at) {
            straighten(vertices, at, static_cast<std::size_t>(std::max(data.GetInt(), 0)));
        });
    } else {
        for (std::size_t i = 0; i < handles.size(); ++i)
            if (ObjectState* const state = fold.objects().find(handles[i])) {
                if (i == 0)
                    fold.reshape(*state);
                else
                    fold.useUp(*state);
            }
    }
}

void editVertex(Fold& fold, const CFxCustomAction& action)
{
    const bool isInsertion = action.GetDataCount() > 3;
    editVertices(fold, handlesIn(action, 0), datum(action, 2).GetInt(), [&](auto& vertices, std::size_t at) {
        if (isInsertion)
            insertBehind(vertices, at, datum(action, 3).GetPoint());
        else
            vertices.erase(vertices.begin() + static_cast<std::ptrdiff_t>(at));
    });
}

} // namespace inkmacro::view
