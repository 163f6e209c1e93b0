// Leaders and tolerances, and what stands at a leader's end.

#include "view/leaders.h"

#include "view/dimensionParts.h"
#include "view/drawers.h"
#include "view/noteText.h"
#include "view/plane.h"
#include "view/readings.h"
#include "view/textBlock.h"

#include "host/db/OdDbClasses.h"

#include <QStringList>

#include <algorithm>

namespace inkmacro::view {
namespace {

constexpr double kUsualSize = 2.5;
constexpr double kUsualGap = 0.625;
constexpr int kMiddleLeft = 4;
constexpr int kMiddleRight = 6;

std::vector<Point> verticesOf(const Values& leader)
{
    std::vector<Point> vertices;
    for (const OdGePoint3d& vertex : leader.points("Vertex"))
        vertices.push_back(fromAbove(vertex));
    const auto* const drawn = leader.drawnAs<OdDbLeader>();
    if (vertices.empty() && drawn)
        for (const OdGePoint3d& vertex : drawn->vertices())
            vertices.push_back(fromAbove(vertex));
    return vertices;
}

double scaleOf(const Values& values, const QString& tag)
{
    return sizeOf({values.number(tag)}, 1.0);
}

enum LeaderType
{
    kLineWithNoArrow,
    kSplineWithNoArrow,
    kLineWithArrow,
    kSplineWithArrow
};

/// Where something stands at a leader's end, and how it is attached there.
struct EndPlace
{
    Point at;
    int attachment;
};

std::optional<EndPlace> endPlaceOf(const Values& leader)
{
    const std::vector<Point> vertices = verticesOf(leader);
    if (vertices.empty())
        return std::nullopt;
    const Point end = vertices.back();
    const Point before = vertices.size() > 1 ? vertices[vertices.size() - 2] : end;
    const double gap =
        std::max(leader.number("Text offset").value_or(kUsualGap), 0.0) * scaleOf(leader, "DimScale overall");
    if (end.x < before.x)
        return EndPlace{{end.x - gap, end.y}, kMiddleRight};
    return EndPlace{{end.x + gap, end.y}, kMiddleLeft};
}

const Values* annotationOf(const Values& leader)
{
    const auto* const drawn = leader.drawnAs<OdDbLeader>();
    return drawn && !drawn->annotationObjectId().isNull() ? leader.other(drawn->annotationObjectId().getHandle())
                                                          : nullptr;
}

/// An annotation with a place or a way to its leader is drawn as an object of its own.
bool standsByItself(const Values& annotation)
{
    return placeOf(annotation, "Position") || leaderOf(annotation) ||
           (annotation.className() != "AcDbMText" && annotation.className() != "AcDbFcf");
}

void drawContent(const Values& leader, Pen& pen, const EndPlace& place)
{
    TextBlock block;
    block.height = kUsualSize * scaleOf(leader, "DimScale overall");
    block.lines = wrapped(linesOfNote(leader.text("content").value_or(QString())), block.height,
                          leader.number("width").value_or(0.0));
    block.at = place.at;
    block.attachment = place.attachment;
    drawBlock(pen, block);
}

/// The texts of a frame row by row; cells without one have no width.
std::vector<std::vector<QString>> cellsOf(const QString& content)
{
    std::vector<std::vector<QString>> rows;
    QString written = content;
    written.replace("^J", "\n").replace("\\P", "\n");
    for (const QString& row : written.split('\n')) {
        std::vector<QString> cells;
        for (const QString& cell : row.split("%%v", Qt::KeepEmptyParts, Qt::CaseInsensitive))
            if (const QString text = linesOfNote(cell).front().trimmed(); !text.isEmpty())
                cells.push_back(text);
        if (!cells.empty())
            rows.push_back(cells);
    }
    return rows;
}

struct Frame
{
    std::vector<std::vector<QString>> rows;
    double height = kUsualSize; ///< of the letters
    OdCmColor textColor;
};

double widthOfCell(const Frame& frame, const QString& text)
{
    return std::max(estimatedWidth(text, frame.height) + frame.height, 2.0 * frame.height);
}

double widthOfFrame(const Frame& frame)
{
    double width = 0.0;
    for (const auto& row : frame.rows) {
        double filled = 0.0;
        for (const QString& cell : row)
            filled += widthOfCell(frame, cell);
        width = std::max(width, filled);
    }
    return width;
}

void drawCell(Pen& lines, Pen& letters, const Frame& frame, Point corner, const QString& text)
{
    constexpr int kCenter = 5;
    const double width = widthOfCell(frame, text);
    const double height = 2.0 * frame.height;
    Outline box;
    box.move(corner).line({corner.x + width, corner.y}).line({corner.x + width, corner.y + height});
    box.line({corner.x, corner.y + height}).close();
    lines.path(box);
    letters.text({.text = text,
                  .at = {corner.x + width / 2.0, corner.y + frame.height},
                  .height = frame.height,
                  .place = kCenter});
}

/// The first row stands with its middle at the height of the point.
void drawToleranceAt(const Values& tolerance, Pen& pen, EndPlace place)
{
    const auto* const drawn = tolerance.drawnAs<OdDbFcf>();
    Frame frame;
    frame.rows = cellsOf(tolerance.text("Content").value_or(drawn ? drawn->text() : QString()));
    frame.height = sizeOf({tolerance.number("Text height")}, kUsualSize) * scaleOf(tolerance, "Dim scale overall");
    pen.setRole(Role::Dimension);
    Pen lines = pen;
    Pen letters = pen;
    if (const std::optional<OdCmColor> color = colorIn(tolerance, "DimLine LColor"))
        lines.setColor(*color);
    if (const std::optional<OdCmColor> color = colorIn(tolerance, "TextColor"))
        letters.setColor(*color);
    const double left = place.attachment == kMiddleRight ? place.at.x - widthOfFrame(frame) : place.at.x;
    Point corner{left, place.at.y - frame.height};
    for (const auto& row : frame.rows) {
        for (const QString& cell : row) {
            drawCell(lines, letters, frame, corner, cell);
            corner.x += widthOfCell(frame, cell);
        }
        corner = {left, corner.y - 2.0 * frame.height};
    }
}

} // namespace

const Values* leaderOf(const Values& annotation)
{
    const OdDbObject* const drawn = annotation.drawn();
    if (!drawn)
        return nullptr;
    for (const OdDbObjectId& reactor : drawn->getPersistentReactors()) {
        const Values* const other = reactor.isNull() ? nullptr : annotation.other(reactor.getHandle());
        if (other && other->className() == "AcDbLeader")
            return other;
    }
    return nullptr;
}

void drawAtEnd(const Values& leader, const Values& annotation, Pen& pen)
{
    const std::optional<EndPlace> place = endPlaceOf(leader);
    if (!place)
        return;
    if (annotation.className() == "AcDbFcf")
        drawToleranceAt(annotation, pen, *place);
    else
        drawNoteAt(annotation, pen, place->at, place->attachment);
}

void drawLeader(const Values& values, Pen& pen)
{
    const std::vector<Point> vertices = verticesOf(values);
    if (vertices.size() < 2)
        return;
    pen.setRole(Role::Dimension);
    Pen lines = pen;
    if (const std::optional<OdCmColor> color = colorIn(values, "DimLine LColor"); color && !color->isByBlock())
        lines.setColor(*color);
    Outline path;
    path.move(vertices.front());
    std::for_each(vertices.begin() + 1, vertices.end(), [&](Point vertex) { path.line(vertex); });
    lines.path(path);

    const int type = values.choice("Type").value_or(kLineWithArrow);
    if (type == kSplineWithArrow || type == kSplineWithNoArrow)
        pen.remark("its spline as lines");
    if (type != kLineWithNoArrow && type != kSplineWithNoArrow) {
        const double size = sizeOf({values.number("Arrow size")}, kUsualSize) * scaleOf(values, "DimScale overall");
        drawArrow(lines, vertices[0], unitOf(vertices[0] - vertices[1]), size);
    }
    if (const Values* const annotation = annotationOf(values); !annotation)
        drawContent(values, pen, *endPlaceOf(values));
    else if (!standsByItself(*annotation))
        drawAtEnd(values, *annotation, pen);
}

void drawTolerance(const Values& values, Pen& pen)
{
    if (const std::optional<Point> position = placeOf(values, "Position"))
        drawToleranceAt(values, pen, {*position, kMiddleLeft});
    else if (const Values* const leader = leaderOf(values))
        drawAtEnd(*leader, values, pen);
}

} // namespace inkmacro::view
