#include "host/db/OdDbCurves.h"
#include "host/db/OdDbRecords.h"
#include "view/drawers.h"
#include "view/parallels.h"

#include <algorithm>

namespace inkmacro::view {

namespace {

using Elements = std::vector<OdDbMlineElement>;

/// The lines of its style; two, where the style is not told.
Elements elementsOf(const Values& values, Pen& pen)
{
    const Values* const style = values.named("AcDbMlineStyle", values.text("RLineStyle").value_or(QString()));
    const auto* const drawn = style ? style->drawnAs<OdDbMlineStyle>() : nullptr;
    Elements elements;
    for (int i = 0; drawn && i < drawn->numElements(); ++i)
        elements.push_back(drawn->getElementAt(i));
    if (elements.empty()) {
        pen.remark("the lines of its style are not told");
        elements.resize(2);
        elements.front().offset = 0.5;
        elements.back().offset = -0.5;
    }
    return elements;
}

/// The offset of what runs through the vertices.
double anchorOf(const Values& values, const Elements& elements)
{
    const auto [lowest, highest] = std::minmax_element(
        elements.begin(), elements.end(), [](const auto& one, const auto& other) { return one.offset < other.offset; });
    const auto* const drawn = values.drawnAs<OdDbMline>();
    const QString word = values.text("RLine justification").value_or(QString()).toLower();
    const int justification = !word.isEmpty() ? (word == "top"    ? OdDbMline::kTop
                                                 : word == "zero" ? OdDbMline::kZero
                                                                  : OdDbMline::kBottom)
                              : drawn         ? drawn->justification()
                                              : OdDbMline::kTop;
    return justification == OdDbMline::kTop    ? highest->offset
           : justification == OdDbMline::kZero ? 0.0
                                               : lowest->offset;
}

} // namespace

void drawRichLine(const Values& values, Pen& pen)
{
    const auto* const drawn = values.drawnAs<OdDbMline>();
    std::vector<OdGePoint3d> vertices = values.points("vertices");
    if (drawn && vertices.empty())
        vertices.assign(drawn->vertices().begin(), drawn->vertices().end());
    std::vector<Point> points;
    for (const OdGePoint3d& vertex : vertices)
        points.push_back(fromAbove(vertex));
    const bool isClosed = values.number("closedMline").value_or(drawn && drawn->closedMline() ? 1.0 : 0.0) != 0.0;
    points = withoutRepeats(points, isClosed);
    if (points.size() < 2)
        return;
    const double scale = values.number("RLine scale").value_or(drawn ? drawn->scale() : 1.0);
    const Elements elements = elementsOf(values, pen);
    const double anchor = anchorOf(values, elements);
    for (const OdDbMlineElement& element : elements) {
        const std::vector<Point> line = parallelTo(points, isClosed, (element.offset - anchor) * scale);
        Outline outline;
        outline.move(line.front());
        for (std::size_t i = 1; i < line.size(); ++i)
            outline.line(line[i]);
        if (isClosed)
            outline.close();
        Pen colored = pen;
        if (!element.color.isByLayer() && !element.color.isByBlock())
            colored.setColor(element.color);
        colored.path(outline);
    }
}

} // namespace inkmacro::view
