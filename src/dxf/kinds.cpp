#include "dxf/kinds.h"

#include "dxf/readers.h"
#include "host/db/OdDbClassMap.h"

#include <algorithm>
#include <unordered_map>

namespace inkmacro::dxf {

namespace {

constexpr KindRow kRows[] = {
    {"LINE", "AcDbLine", &readLine},
    {"3DLINE", "AcDbLine", &readLine},
    {"POINT", "AcDbPoint", &readPoint},
    {"CIRCLE", "AcDbCircle", &readCircle},
    {"ARC", "AcDbArc", &readArc},
    {"ELLIPSE", "AcDbEllipse", &readEllipse},
    {"RAY", "AcDbRay", &readRay},
    {"XLINE", "AcDbXline", &readRay},
    {"LWPOLYLINE", "AcDbPolyline", &readLightPolyline},
    {"POLYLINE", "AcDbPolyline", &readPolyline, true},
    {"SPLINE", "AcDbSpline", &readSpline},
    {"3DFACE", "AcDbFace", &readFace},
    {"SOLID", "AcDbSolid", &readSolid},
    {"TRACE", "AcDbSolid", &readSolid}, // no block takes a trace, and it draws the same,
    {"TEXT", "AcDbText", &readText},
    {"MTEXT", "AcDbMText", &readParagraphs},
    {"ATTDEF", "AcDbAttributeDefinition", &readAttributeDefinition},
    {"INSERT", "AcDbBlockReference", &readInsert},
    {"HATCH", "AcDbHatch", &readHatch, true},
    {"VIEWPORT", "AcDbViewport", &readViewport},
    {"MESH", "AcDbPolyFaceMesh", &readSubdivision, true},
    {"IMAGE", "AcDbRasterImage", &readImage},
    {"MLINE", "AcDbMline", &readRichLine},
    {"SHAPE", "AcDbShape", &readShape},
    {"DIMENSION", "AcDbRotatedDimension", &readDimension, true},
    {"ARC_DIMENSION", "AcDbArcDimension", &readArcDimension, true},
    {"LARGE_RADIAL_DIMENSION", "AcDbRadialDimensionLarge", &readJoggedDimension, true},
    {"LEADER", "AcDbLeader", &readLeader},
    {"TOLERANCE", "AcDbFcf", &readTolerance},
};

/// By layer, by block, or as much as the last byte says.
std::optional<OdCmTransparency> transparencyOf(const EntityReader& entity)
{
    const auto bits = static_cast<quint32>(entity.integer(440));
    const auto method = static_cast<std::uint8_t>(bits >> 24);
    if (method != OdCmTransparency::ByBlock && method != OdCmTransparency::ByAlpha)
        return {};
    OdCmTransparency transparency;
    transparency.method = method;
    transparency.alpha = method == OdCmTransparency::ByAlpha ? static_cast<std::uint8_t>(bits) : 0;
    return transparency;
}

} // namespace

std::optional<OdCmColor> colorOf(Piece piece)
{
    constexpr int byBlock = 0;
    constexpr int byLayer = 256;
    if (const Group* const trueColor = find(piece, 420))
        return trueColorOf(*trueColor);
    const qint64 number = integer(piece, 62, byLayer);
    if (number == byBlock)
        return OdCmColor::byBlock();
    if (number > 0 && number < byLayer)
        return OdCmColor::byIndex(static_cast<std::uint16_t>(number));
    return {};
}

OdCmColor trueColorOf(const Group& group)
{
    const qint64 rgb = EntityReader::integerOf(group);
    return OdCmColor::byRgb((rgb >> 16) & 0xff, (rgb >> 8) & 0xff, rgb & 0xff);
}

const Kind* findKind(std::string_view kind)
{
    static const std::unordered_map<std::string_view, Kind> byName = [] {
        std::unordered_map<std::string_view, Kind> kinds;
        for (const KindRow& row : kRows)
            kinds.emplace(row.kind, Kind{&row, oddbClassByName(row.className)});
        return kinds;
    }();
    const auto found = byName.find(kind);
    return found == byName.end() ? nullptr : &found->second;
}

void takeGeneral(const EntityReader& entity, Surroundings& around, DrawnObject& object)
{
    auto& properties = object.making == DrawnObject::Making::Added ? object.properties : object.changes;
    const auto add = [&](const char* tag, CFxVariant value) { properties.push_back({tag, std::move(value)}); };
    const Group* const layer = entity.find(8);
    if (CFxVariant id = around.layers.id(layer ? layer->bytes : std::string_view("0")); !id.IsNull())
        add("Layer", std::move(id));
    if (const std::optional<OdCmColor> color = colorOf(entity.groups()))
        add("LineColor", *color);
    else if (constexpr qint64 byLayer = 256; entity.integer(62, byLayer) != byLayer)
        object.untold.push_back(kNoColor);
    if (const Group* style = entity.find(6); style && !isByLayer(style->word())) {
        if (CFxVariant id = around.lineStyles.id(style->bytes); !id.IsNull())
            add("LineStyle", std::move(id));
        else
            object.untold.push_back("a line style that the drawing lacks");
    }
    if (const double scale = entity.real(48, 1.0); scale != 1.0)
        add("LineScale", scale);
    constexpr qint64 weightByLayer = -1;
    if (const qint64 weight = entity.integer(370, weightByLayer); !isLineWeight(weight))
        object.untold.push_back(kNoLineWeight);
    else if (weight != weightByLayer)
        add("LineWeight", static_cast<std::int32_t>(weight));
    if (const double thickness = entity.real(39); thickness != 0.0) {
        const Direction direction = entity.direction();
        if (direction.isTilted())
            object.untold.push_back("a thickness that does not go up");
        else
            add("Thickness", direction.isDown() ? -thickness : thickness);
    }
    if (const std::optional<OdCmTransparency> transparency = transparencyOf(entity))
        object.change("Transparency", *transparency);
    if (entity.integer(60) == 1)
        object.untold.push_back("that it is invisible");
    if (entity.hasExtendedData())
        object.untold.push_back(kOtherData);
}

bool isLineWeight(qint64 weight)
{
    static constexpr qint64 weights[] = {-3, -2, -1, 0,  5,  9,  13,  15,  18,  20,  25,  30,  35, 40,
                                         50, 53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211};
    return std::binary_search(std::begin(weights), std::end(weights), weight);
}

bool isByLayer(std::string_view name)
{
    constexpr std::string_view byLayer = "bylayer";
    return name.empty() || std::equal(name.begin(), name.end(), byLayer.begin(), byLayer.end(),
                                      [](char letter, char known) { return (letter | 0x20) == known; });
}

} // namespace inkmacro::dxf
