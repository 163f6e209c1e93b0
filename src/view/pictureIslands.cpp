#include "view/pictureIslands.h"

#include "view/palette.h"

#include <QJsonDocument>

#include <algorithm>

namespace inkmacro::view {

namespace {

/// By layer or by block; else what is recorded, and what it looks like unless that is the paper's to say.
QJsonValue colorJson(const OdCmColor& color)
{
    if (color.isByLayer())
        return "bylayer";
    if (color.isByBlock())
        return "byblock";
    QJsonObject json;
    if (color.isByACI())
        json.insert("index", color.colorIndex());
    if (const std::optional<Rgb> rgb = rgbOf(color))
        json.insert("rgb", QJsonArray{rgb->red, rgb->green, rgb->blue});
    return json;
}

QJsonArray spacesJson(const Picture& picture)
{
    static constexpr const char* kinds[] = {"model", "sheet", "block"};
    QJsonArray list;
    for (const Space& space : picture.spaces)
        list.append(QJsonObject{{"name", space.name}, {"kind", kinds[static_cast<int>(space.kind)]}});
    return list;
}

QJsonArray layersJson(const Picture& picture)
{
    QJsonArray list;
    for (const Layer& layer : picture.layers)
        list.append(QJsonObject{{"name", layer.name}, {"color", colorJson(layer.color)}});
    return list;
}

QJsonArray stylesJson(const Picture& picture)
{
    static constexpr const char* roles[] = {"object", "dimension", "frame"};
    QJsonArray list;
    for (const Style& style : picture.styles)
        list.append(QJsonObject{
            {"role", roles[static_cast<int>(style.role)]}, {"layer", style.layer}, {"color", colorJson(style.color)}});
    return list;
}

/// Column by column, since the rows are many and their members few.
template<class Number, class Rows, class Member>
std::vector<Number> column(const Rows& rows, Member member)
{
    std::vector<Number> numbers(rows.size());
    std::transform(rows.begin(), rows.end(), numbers.begin(),
                   [&member](const auto& row) { return static_cast<Number>(member(row)); });
    return numbers;
}

Columns objectColumns(const Picture& picture, ClassNames& classes)
{
    const auto& objects = picture.objects;
    Columns columns;
    columns.addDeltas("low", column<std::int32_t>(objects, [](const auto& o) { return o.handle.value(); }));
    columns.add("high", column<std::uint32_t>(objects, [](const auto& o) { return o.handle.value() >> 32; }));
    columns.add("cls", column<std::uint16_t>(objects, [&](const auto& o) { return classes.numberOf(o.className); }));
    columns.addDeltas("added", column<std::int32_t>(objects, [](const auto& o) { return o.added; }));
    columns.addDeltas("erased", column<std::int32_t>(objects, [](const auto& o) { return o.erased; }));
    columns.add("layer", column<std::uint16_t>(objects, [](const auto& o) { return o.layer; }));
    columns.add("space", column<std::uint16_t>(objects, [](const auto& o) { return o.space; }));
    columns.add("isDrawn", column<std::uint8_t>(objects, [](const auto& o) { return o.isDrawn; }));
    columns.add("hasGeometry", column<std::uint8_t>(objects, [](const auto& o) { return o.hasGeometry; }));
    columns.add("remark", column<std::uint16_t>(objects, [](const auto& o) { return o.remark; }));
    return columns;
}

Columns geometryColumns(const Picture& picture)
{
    const auto& primitives = picture.primitives;
    std::vector<double> numbers;
    numbers.reserve(picture.numbers.size());
    for (const Primitive& primitive : primitives) {
        const auto first = picture.numbers.begin() + static_cast<std::ptrdiff_t>(primitive.first);
        numbers.insert(numbers.end(), first, first + static_cast<std::ptrdiff_t>(primitive.count));
    }
    Columns columns;
    columns.add("shape", column<std::uint8_t>(primitives, [](const auto& p) { return p.shape; }));
    columns.addDeltas("object", column<std::int32_t>(primitives, [](const auto& p) { return p.object; }));
    columns.add("style", column<std::uint16_t>(primitives, [](const auto& p) { return p.style; }));
    columns.add("space", column<std::uint16_t>(primitives, [](const auto& p) { return p.space; }));
    columns.addDeltas("from", column<std::int32_t>(primitives, [](const auto& p) { return p.from; }));
    columns.addDeltas("until", column<std::int32_t>(primitives, [](const auto& p) { return p.until; }));
    columns.add("count", column<std::uint32_t>(primitives, [](const auto& p) { return p.count; }));
    columns.add("numbers", numbers);
    return columns;
}

} // namespace

void addColumns(const QByteArray& name, const Columns& columns, PageFile& page, QJsonObject& index)
{
    QJsonObject layout = index["layout"].toObject();
    layout.insert(name, columns.layout());
    index.insert("layout", layout);
    page.addIsland(name, columns.bytes());
}

void addPicture(const Picture& picture, ClassNames& classes, PageFile& page, QJsonObject& index)
{
    addColumns("objects", objectColumns(picture, classes), page, index);
    addColumns("geometry", geometryColumns(picture), page, index);
    QJsonArray strings;
    for (const QString& text : picture.texts)
        strings.append(text);
    page.addIsland("texts", QJsonDocument(strings).toJson(QJsonDocument::Compact));
    QJsonArray remarks;
    for (const QString& remark : picture.remarks)
        remarks.append(remark);
    QJsonArray layerSwitches;
    for (const LayerSwitch& one : picture.layerSwitches)
        layerSwitches.append(QJsonObject{{"step", one.step}, {"layer", one.layer}, {"visible", one.visible}});
    QJsonArray spaceSwitches;
    for (const SpaceSwitch& one : picture.spaceSwitches)
        spaceSwitches.append(QJsonObject{{"step", one.step}, {"space", one.space}});
    index.insert("spaces", spacesJson(picture));
    index.insert("firstSpace", picture.firstSpace);
    index.insert("layers", layersJson(picture));
    index.insert("styles", stylesJson(picture));
    index.insert("remarks", remarks);
    index.insert("layerSwitches", layerSwitches);
    index.insert("spaceSwitches", spaceSwitches);
}

} // namespace inkmacro::view
