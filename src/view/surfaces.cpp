#include "host/db/OdDbClassMap.h"
#include "host/db/OdDbSurfaces.h"
#include "view/drawers.h"
#include "view/kinds.h"

#include <algorithm>

namespace inkmacro::view {

namespace {

std::vector<Point> fromAbove(const std::vector<OdGePoint3d>& points)
{
    std::vector<Point> seen;
    for (const OdGePoint3d& point : points)
        seen.push_back(view::fromAbove(point));
    return seen;
}

/// The corners that the actions say, else those of the drawing.
template<class Class, class Read>
std::vector<Point> cornersOf(const Values& values, Read read)
{
    std::vector<OdGePoint3d> corners = values.points("Vertex");
    if (const auto* const drawn = values.drawnAs<Class>(); drawn && corners.empty())
        for (std::size_t i = 0; i < 4; ++i)
            corners.push_back(read(*drawn, i));
    return fromAbove(corners);
}

std::vector<Point> meshOf(const Values& values)
{
    std::vector<OdGePoint3d> vertices = values.points("Vertex");
    if (const auto* const drawn = values.drawnAs<OdDbVertexEntity>(); drawn && vertices.empty())
        vertices.assign(drawn->vertices().begin(), drawn->vertices().end());
    return fromAbove(vertices);
}

bool isEdgeVisible(const Values& values, int number)
{
    if (const std::optional<QString> word = values.text("Edge " + QString::number(number + 1)))
        return word->compare(QLatin1String("hidden"), Qt::CaseInsensitive) != 0;
    const auto* const drawn = values.drawnAs<OdDbFace>();
    return !drawn || drawn->isEdgeVisibleAt(static_cast<std::size_t>(number));
}

void drawRow(const std::vector<Point>& vertices, std::size_t first, std::size_t step, std::size_t count, bool isClosed,
             Outline& outline)
{
    outline.move(vertices[first]);
    for (std::size_t i = 1; i < count; ++i)
        outline.line(vertices[first + i * step]);
    if (isClosed)
        outline.line(vertices[first]);
}

bool isClosed(const Values& values, const char* tag, bool drawn)
{
    return values.find(QLatin1String(tag)) ? values.isYes(QLatin1String(tag)) : drawn;
}

void remarkSmooth(const Values& values, Pen& pen)
{
    const std::optional<QString> smooth = values.text("Fit/Smooth");
    if (smooth && smooth->compare(QLatin1String("none"), Qt::CaseInsensitive) != 0)
        pen.remark("the application makes the smoothed surface");
}

} // namespace

void drawSolid(const Values& values, Pen& pen)
{
    std::vector<Point> corners =
        cornersOf<OdDbFilledArea>(values, [](const OdDbFilledArea& area, std::size_t i) { return area.getPointAt(i); });
    if (corners.size() < 3)
        return;
    // The third corner lies opposite the first one, across the area.
    if (corners.size() > 3)
        std::swap(corners[2], corners[3]);
    Outline outline;
    outline.move(corners[0]);
    for (std::size_t i = 1; i < std::min<std::size_t>(corners.size(), 4); ++i)
        outline.line(corners[i]);
    pen.area(outline.close());
}

void drawFace(const Values& values, Pen& pen)
{
    const std::vector<Point> corners =
        cornersOf<OdDbFace>(values, [](const OdDbFace& face, std::size_t i) { return face.getVertexAt(i); });
    if (corners.size() < 3)
        return;
    const std::size_t count = std::min<std::size_t>(corners.size(), 4);
    Outline outline;
    for (std::size_t i = 0; i < count; ++i)
        if (isEdgeVisible(values, static_cast<int>(i)))
            outline.move(corners[i]).line(corners[(i + 1) % count]);
    if (outline.isEmpty())
        pen.remark("its edges are hidden");
    pen.path(outline);
}

void drawPolygonMesh(const Values& values, Pen& pen)
{
    const auto* const drawn = values.drawnAs<OdDbPolygonMesh>();
    const std::vector<Point> vertices = meshOf(values);
    const double rows = values.number("M vertex count").value_or(drawn ? drawn->mSize() : 0);
    const double columns = values.number("N vertex count").value_or(drawn ? drawn->nSize() : 0);
    if (!(rows >= 1.0 && columns >= 1.0 && rows * columns <= static_cast<double>(vertices.size()))) {
        pen.remark("its vertices do not fit its rows");
        return;
    }
    const auto m = static_cast<std::size_t>(rows);
    const auto n = static_cast<std::size_t>(columns);
    remarkSmooth(values, pen);
    Outline outline;
    for (std::size_t row = 0; row < m; ++row)
        drawRow(vertices, row * n, 1, n, isClosed(values, "N closed", drawn && drawn->isNClosed()), outline);
    for (std::size_t column = 0; column < n; ++column)
        drawRow(vertices, column, n, m, isClosed(values, "M closed", drawn && drawn->isMClosed()), outline);
    pen.path(outline);
}

void drawPolyFaceMesh(const Values& values, Pen& pen)
{
    const std::vector<Point> vertices = meshOf(values);
    const auto* const drawn = values.drawnAs<OdDbPolyFaceMesh>();
    Outline outline;
    if (drawn)
        for (const OdDbFaceRecord& face : drawn->faces()) {
            const auto end = std::find(face.vertices.begin(), face.vertices.end(), 0);
            const auto count = static_cast<std::size_t>(end - face.vertices.begin());
            for (std::size_t i = 0; i < count; ++i) {
                const auto from = static_cast<std::size_t>(face.vertices[i]);
                const auto to = static_cast<std::size_t>(std::abs(qint64{face.vertices[(i + 1) % count]}));
                if (face.vertices[i] > 0 && from <= vertices.size() && to <= vertices.size())
                    outline.move(vertices[from - 1]).line(vertices[to - 1]);
            }
        }
    if (outline.isEmpty()) {
        pen.remark("its faces are not told");
        for (const Point& vertex : vertices)
            pen.point(vertex);
    }
    pen.path(outline);
}

void drawRegion(const Values& values, Pen& pen)
{
    std::vector<OdDbHandle> pieces;
    if (const auto* const drawn = values.drawnAs<OdDbRegion>())
        for (const OdDbObjectPtr& piece : drawn->explode())
            pieces.push_back(piece->getDbHandle());
    if (const CFxVariant* const list = values.find("Pieces"); list && pieces.empty())
        for (const CFxVariantCollectionElement& element : list->GetCollection().GetCollectionDataForRead())
            pieces.emplace_back(element.GetValue()->GetString().toQString().toULongLong(nullptr, 16));
    if (pieces.empty())
        pen.remark("its boundary is not told");
    for (const OdDbHandle& handle : pieces) {
        const Values* const piece = values.other(handle);
        // Curves alone: another region would lead in a circle.
        const Drawer drawer = piece ? curveDrawerOf(*oddbClassByName(piece->className())) : nullptr;
        if (drawer)
            drawer(*piece, pen);
        else
            pen.remark("a part of its boundary is not told");
    }
}

} // namespace inkmacro::view
