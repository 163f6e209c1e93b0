// Rich lines: several parallel ones along the same vertices.

#include "dxf/DrawingLine.h"
#include "dxf/GroupPieces.h"
#include "dxf/readers.h"

#include <array>

namespace inkmacro {

namespace dxf {

namespace {

/// One of the lines of a style.
struct ParallelLine
{
    double offset;
    OdCmColor color;
    quint64 lineStyle; ///< 0 for the layer's
};

} // namespace

} // namespace dxf

template<>
struct recordfile::Form<dxf::ParallelLine>
{
    static void write(JsonOut& out, const dxf::ParallelLine& line)
    {
        out.beginObject();
        out.key(std::string_view("offset"));
        out.number(line.offset);
        out.key(std::string_view("color"));
        Form<OdCmColor>::write(out, line.color);
        if (line.lineStyle != 0) {
            out.key(std::string_view("lineStyle"));
            Form<OdDbHandle>::write(out, OdDbHandle(line.lineStyle));
        }
        out.endObject();
    }
};

} // namespace inkmacro

namespace inkmacro::dxf {

void readRichLine(EntityReader& entity, Parts, Surroundings&, DrawnObject& object)
{
    enum LineFlag : qint64
    {
        kIsClosed = 2,
        kHasNoStart = 4,
        kHasNoEnd = 8,
    };
    const Direction direction = entity.direction();
    if (direction.isTilted())
        throw Lost{kTilted};
    const std::vector<OdGePoint3d> vertices = points(entity.groups(), 11);
    if (vertices.size() < 2)
        throw Lost{"it has less than two vertices"};
    static constexpr std::array justifications{"Top", "Zero", "Bottom"};
    const qint64 justification = entity.integer(70);
    const qint64 flags = entity.integer(71);
    object.add("vertices", pointList(vertices));
    object.add(
        "RLine justification",
        CFxString(
            justifications[justification > 0 && justification < 3 ? static_cast<std::size_t>(justification) : 0]));
    // From behind, what is left of the line is right of it.
    const double scale = entity.real(40, 1.0);
    object.add("RLine scale", direction.isDown() ? -scale : scale);
    object.add("RLineStyle", CFxString(entity.text(2)));
    object.add("closedMline", flags & kIsClosed ? 1 : 0);
    if (flags & (kHasNoStart | kHasNoEnd))
        object.untold.push_back("that a rich line has no caps");
}

void readRichLineStyle(EntityReader& record, Parts, Surroundings& around, DrawnObject& object)
{
    enum StyleFlag : qint64
    {
        kIsFilled = 1,
        kShowsJunctions = 2,
        kCaps = 16 | 32 | 64 | 256 | 512 | 1024,
    };
    const QString name = record.text(2);
    // Every drawing has it.
    if (name.compare(QLatin1String("Standard"), Qt::CaseInsensitive) == 0)
        return;
    std::vector<ParallelLine> lines;
    for (const Piece piece : split(record.groups(), 49)) {
        const Group* const style = find(piece, 6);
        const NamedObjects::Named* const named = style ? around.lineStyles.find(style->bytes) : nullptr;
        lines.push_back({real(piece, 49), colorOf(piece).value_or(OdCmColor()), named ? named->handle : 0});
    }
    DrawingLine(object.drawing, "AcDbMlineStyle", object.handle).with("name", name).with("elements", lines);
    object.add("RichLineStyleName", CFxString(name));
    const qint64 flags = record.integer(70);
    if (flags & kShowsJunctions)
        object.change("Show junctions", choice(0, "Yes"));
    if (flags & kIsFilled)
        object.untold.push_back("what a rich line is filled with");
    if (flags & kCaps)
        object.untold.push_back("the caps of rich lines");
}

} // namespace inkmacro::dxf
