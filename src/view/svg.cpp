#include "view/svg.h"

#include "view/Affine.h"
#include "view/Extents.h"
#include "view/SvgColors.h"
#include "view/SvgPath.h"
#include "view/patternStrokes.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace inkmacro::view {

namespace {

/// The capitals of the usual fonts, in relation to the size of the font.
constexpr double kCapitals = 0.72;

constexpr char kRules[] = "path{fill:none;stroke:currentColor;stroke-width:1.25;stroke-linejoin:round;"
                          "stroke-linecap:round;vector-effect:non-scaling-stroke}"
                          ".area{fill:currentColor;fill-rule:evenodd;stroke-width:.5}"
                          ".tint{fill:currentColor;fill-opacity:.15;fill-rule:evenodd;stroke-opacity:.5}"
                          ".frame{stroke-dasharray:4 3}"
                          ".dot{stroke-width:4}"
                          "text{fill:currentColor;font-family:system-ui,sans-serif;white-space:pre}";

/// A line without ends, or with one, as far as it runs through the box; none beside it.
std::optional<std::pair<Point, Point>> clipped(Point from, Point towards, bool isRay, const Box& box)
{
    const Point along{towards.x - from.x, towards.y - from.y};
    double low = isRay ? 0.0 : -std::numeric_limits<double>::infinity();
    double high = std::numeric_limits<double>::infinity();
    const auto cut = [&](double at, double step, double least, double most) {
        if (step == 0.0)
            return at >= least && at <= most;
        const auto [first, last] = std::minmax({(least - at) / step, (most - at) / step});
        low = std::max(low, first);
        high = std::min(high, last);
        return low < high;
    };
    if (!cut(from.x, along.x, box.left, box.right) || !cut(from.y, along.y, box.bottom, box.top) ||
        !std::isfinite(low) || !std::isfinite(high))
        return std::nullopt;
    return std::pair(Point{from.x + low * along.x, from.y + low * along.y},
                     Point{from.x + high * along.x, from.y + high * along.y});
}

Box grown(const Box& box, double by)
{
    return {box.left - by, box.bottom - by, box.right + by, box.top + by};
}

class SvgWriter
{
public:
    explicit SvgWriter(const Picture& picture) : picture_(picture), extents_(picture), colors_(picture)
    {
        contents_.resize(picture.spaces.size());
        std::vector<bool> isSeen(picture.layers.size(), true);
        for (const LayerSwitch& change : picture.layerSwitches)
            isSeen[change.layer] = change.visible;
        for (const Primitive& primitive : picture.primitives)
            if (primitive.until == kNoStep && isSeen[picture.styles[primitive.style].layer])
                contents_[primitive.space].push_back(&primitive);
    }

    QByteArray write(std::uint16_t space, const QString& title)
    {
        const Box view = viewOf(space);
        const Point origin = originOf(space);
        SvgText body;
        draw(space, view, body);
        const SvgText definitions = define();

        SvgText svg;
        svg.raw("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"");
        writeRect(svg, view, origin, " ", " ", " ");
        svg.raw("\">\n<title>").text(title).raw("</title>\n<style>").raw(kRules).raw(colors_.rules()).raw("</style>\n");
        if (!definitions.isEmpty())
            svg.raw("<defs>\n").raw(definitions.bytes()).raw("</defs>\n");
        svg.raw("<rect class=\"paper\" x=\"");
        writeRect(svg, view, origin, "\" y=\"", "\" width=\"", "\" height=\"");
        svg.raw("\"/>\n<g class=\"ink\" transform=\"scale(1 -1)\">\n").raw(body.bytes()).raw("</g>\n</svg>\n");
        return svg.bytes();
    }

private:
    /// The numbers of a box as it is seen, with y downwards.
    static void writeRect(SvgText& svg, const Box& box, Point origin, const char* second, const char* third,
                          const char* fourth)
    {
        svg.number(box.left - origin.x).raw(second).number(origin.y - box.top).raw(third);
        svg.number(box.right - box.left).raw(fourth).number(box.top - box.bottom);
    }

    /// What a space shows, with a margin.
    Box viewOf(std::uint16_t space)
    {
        constexpr Box kNothing{0.0, 0.0, 100.0, 100.0};
        constexpr double kMargin = 0.04;
        const std::optional<Box> box = extents_.of(space);
        if (!box)
            return kNothing;
        const double size = std::max(box->right - box->left, box->top - box->bottom);
        const Box view = grown(*box, size > 0.0 ? size * kMargin : 1.0);
        return std::isfinite(size) && view.right > view.left && view.top > view.bottom ? view : kNothing;
    }

    /// Whole numbers, near what is drawn.
    Point originOf(std::uint16_t space)
    {
        const std::optional<Box> box = extents_.of(space);
        if (!box)
            return {};
        const Point middle{box->left / 2.0 + box->right / 2.0, box->bottom / 2.0 + box->top / 2.0};
        // Nothing is gained where all digits are left anyhow.
        const double size = std::max(box->right - box->left, box->top - box->bottom);
        constexpr double kFar = 1000.0;
        if (std::max(std::abs(middle.x), std::abs(middle.y)) < kFar * std::max(size, 1.0))
            return {};
        return {std::floor(middle.x), std::floor(middle.y)};
    }

    /// The definitions that are referred to, and those that they refer to.
    SvgText define()
    {
        SvgText definitions;
        while (!asked_.empty()) {
            const std::uint16_t space = *asked_.begin();
            asked_.erase(asked_.begin());
            defined_.insert(space);
            SvgText body;
            const std::optional<Box> box = extents_.of(space);
            const Box view = box.value_or(Box{});
            // The view of a reference is not known here.
            draw(space, grown(view, 2.0 * std::max(view.right - view.left, view.top - view.bottom) + 1.0), body);
            definitions.raw("<g id=\"b").number(space).raw("\">\n").raw(body.bytes()).raw("</g>\n");
        }
        return definitions;
    }

    void draw(std::uint16_t space, const Box& view, SvgText& body)
    {
        const Point origin = originOf(space);
        QByteArray current;
        SvgPath run(origin);
        const auto flush = [&] {
            if (!run.isEmpty())
                writePath(body, current, run);
            run = SvgPath(origin);
        };
        for (const Primitive* const primitive : contents_[space]) {
            QByteArray classes = colors_.classOf(*primitive);
            if (picture_.styles[primitive->style].role == Role::Frame)
                classes += " frame";
            // A run of strokes is one path, though not without end.
            constexpr int kLongest = 30000;
            if (classes != current || !isStroke(primitive->shape) || run.bytes().size() > kLongest)
                flush();
            current = classes;
            if (isStroke(primitive->shape))
                addStroke(*primitive, view, run);
            else
                drawOther(*primitive, origin, classes, body);
        }
        flush();
    }

    static bool isStroke(Shape shape)
    {
        return shape == Shape::Line || shape == Shape::Arc || shape == Shape::Path || shape == Shape::Ray ||
               shape == Shape::XLine;
    }

    static void writePath(SvgText& body, const QByteArray& classes, const SvgPath& path)
    {
        body.raw("<path");
        if (!classes.isEmpty())
            body.raw(" class=\"").raw(classes.trimmed()).raw("\"");
        body.raw(" d=\"").raw(path.bytes()).raw("\"/>\n");
    }

    void addStroke(const Primitive& primitive, const Box& view, SvgPath& path)
    {
        const std::span<const double> n = picture_.numbersOf(primitive);
        path.lift();
        if (primitive.shape == Shape::Arc) {
            path.arc({n[0], n[1]}, n[2], n[3], n[4]);
            return;
        }
        if (primitive.shape == Shape::Path) {
            path.steps(n);
            return;
        }
        std::optional<std::pair<Point, Point>> ends(std::pair(Point{n[0], n[1]}, Point{n[2], n[3]}));
        if (primitive.shape != Shape::Line)
            ends = clipped(ends->first, ends->second, primitive.shape == Shape::Ray, view);
        if (ends) {
            path.move(ends->first);
            path.line(ends->second);
        }
    }

    void drawOther(const Primitive& primitive, Point origin, const QByteArray& classes, SvgText& body)
    {
        const std::span<const double> n = picture_.numbersOf(primitive);
        SvgPath path(origin);
        switch (primitive.shape) {
        case Shape::Area:
            path.steps(n);
            writePath(body, classes + " area", path);
            break;
        case Shape::Point:
            path.move({n[0], n[1]});
            path.line({n[0], n[1]});
            writePath(body, classes + " dot", path);
            break;
        case Shape::Pattern:
            drawPattern(n, origin, classes, body);
            break;
        case Shape::Text:
            drawText(n, origin, classes, body);
            break;
        case Shape::Reference:
            drawReference(n, origin, classes, body);
            break;
        case Shape::Window:
            drawWindow(n, origin, body);
            break;
        default:
            break;
        }
    }

    static void drawPattern(std::span<const double> n, Point origin, const QByteArray& classes, SvgText& body)
    {
        SvgPath path(origin);
        if (const auto strokes = strokesOf(n)) {
            for (const Stroke& stroke : *strokes) {
                path.move(stroke.from);
                path.line(stroke.to);
            }
            if (!path.isEmpty())
                writePath(body, classes, path);
        } else {
            path.steps(boundaryOf(n));
            writePath(body, classes + " tint", path);
        }
    }

    void drawText(std::span<const double> n, Point origin, const QByteArray& classes, SvgText& body) const
    {
        static constexpr const char* anchors[] = {"start", "middle", "end"};
        const int place = static_cast<int>(n[5]);
        double down = 0.0;
        if (place <= 3)
            down = n[2];
        else if (place <= 6)
            down = n[2] / 2.0;
        body.raw("<text");
        if (!classes.isEmpty())
            body.raw(" class=\"").raw(classes.trimmed()).raw("\"");
        body.raw(" transform=\"translate(").number(n[0] - origin.x).number(n[1] - origin.y).raw(")rotate(");
        body.number(n[3] * 360.0 / kTurn).raw(")scale(1 -1)\" font-size=\"").number(n[2] / kCapitals);
        body.raw("\" text-anchor=\"").raw(anchors[(place - 1) % 3]).raw("\"");
        if (down != 0.0)
            body.raw(" y=\"").number(down).raw("\"");
        if (n[4] > 0.0)
            body.raw(" textLength=\"").number(n[4]).raw("\" lengthAdjust=\"spacingAndGlyphs\"");
        body.raw(">").text(picture_.texts[static_cast<std::size_t>(n[6])]).raw("</text>\n");
    }

    static void writeMatrix(const Affine& matrix, SvgText& body)
    {
        body.raw(" transform=\"matrix(").number(matrix.a).number(matrix.b).number(matrix.c).number(matrix.d);
        body.number(matrix.e).number(matrix.f).raw(")\"");
    }

    void drawReference(std::span<const double> n, Point origin, const QByteArray& classes, SvgText& body)
    {
        const auto space = static_cast<std::uint16_t>(n[6]);
        const Point inner = originOf(space);
        body.raw("<use href=\"#b").number(space).raw("\"");
        if (!classes.isEmpty())
            body.raw(" class=\"").raw(classes.trimmed()).raw("\"");
        writeMatrix(Affine::moved(-origin.x, -origin.y) * Affine{n[0], n[1], n[2], n[3], n[4], n[5]} *
                        Affine::moved(inner.x, inner.y),
                    body);
        body.raw("/>\n");
        ask(space);
    }

    void drawWindow(std::span<const double> n, Point origin, SvgText& body)
    {
        const std::uint16_t model = 0;
        const Point inner = originOf(model);
        const Affine shown = Affine::moved(n[0] + n[2] / 2.0 - origin.x, n[1] + n[3] / 2.0 - origin.y) *
                             Affine::scaled(n[6], n[6]) * Affine::moved(inner.x - n[4], inner.y - n[5]);
        const int number = windows_++;
        body.raw("<clipPath id=\"w").number(number).raw("\"><rect x=\"").number(n[0] - origin.x).raw("\" y=\"");
        body.number(n[1] - origin.y).raw("\" width=\"").number(n[2]).raw("\" height=\"").number(n[3]);
        body.raw("\"/></clipPath><g clip-path=\"url(#w").number(number).raw(")\"><use href=\"#b0\"");
        writeMatrix(shown, body);
        body.raw("/></g>\n");
        ask(model);
    }

    void ask(std::uint16_t space)
    {
        if (defined_.count(space) == 0)
            asked_.insert(space);
    }

    const Picture& picture_;
    Extents extents_;
    SvgColors colors_;
    std::vector<std::vector<const Primitive*>> contents_; ///< by space
    std::set<std::uint16_t> asked_;
    std::set<std::uint16_t> defined_;
    int windows_ = 0;
};

} // namespace

QByteArray svgOf(const Picture& picture, std::uint16_t space, const QString& title)
{
    return SvgWriter(picture).write(space, title);
}

} // namespace inkmacro::view
