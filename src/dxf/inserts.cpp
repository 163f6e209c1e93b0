// References of blocks, with their attributes.

#include "dxf/readers.h"

#include <cmath>

namespace inkmacro::dxf {

namespace {

/// The places of a rectangular array are written out up to so many.
constexpr qint64 kMostPlaces = 10'000;

/// An attribute that is called so would be taken for the property of the reference.
bool isPropertyName(const QString& tag)
{
    static constexpr const char* names[] = {
        "Position X", "Position Y", "Position Z", "Scale X",   "Scale Y",    "Scale Z",   "Rotation",   "Erased",
        "LineColor",  "Layer",      "LineStyle",  "LineScale", "LineWeight", "Thickness", "PrintStyle", "Transparency",
    };
    return std::any_of(std::begin(names), std::end(names),
                       [&](const char* name) { return tag.compare(QLatin1String(name), Qt::CaseInsensitive) == 0; });
}

/// `taken`: the tags of those before, as the block has them.
const char* takeAttribute(const EntityReader& attribute, const Insertable& block, std::unordered_set<QString>& taken,
                          DrawnObject& object)
{
    const auto defined = block.tags.find(attribute.text(2).trimmed().toLower());
    if (defined == block.tags.end())
        return "the block defines no such attribute";
    const QString& tag = defined->second;
    if (!taken.insert(tag).second)
        return "there is another one of its tag";
    Property text{"", CFxString(attribute.text(1)), CFxVariant::kNull, "BlockAttributes", CFxString(tag)};
    if (isPropertyName(tag)) {
        object.unsaid.push_back(std::move(text));
        return "it is called like a property of the reference";
    }
    object.changes.push_back(std::move(text));
    return nullptr;
}

void takeArray(const EntityReader& entity, const Direction& direction, double rotation, DrawnObject& object)
{
    const qint64 columns = std::max<qint64>(entity.integer(70, 1), 1);
    const qint64 rows = std::max<qint64>(entity.integer(71, 1), 1);
    if (columns > kMostPlaces || rows > kMostPlaces || columns * rows > kMostPlaces)
        throw Lost{"its array has more than 10,000 places"};
    const OdGePoint3d origin = entity.point(10);
    const double across = entity.real(44);
    const double up = entity.real(45);
    for (qint64 place = 1; place < columns * rows; ++place) {
        const double x = static_cast<double>(place % columns) * across;
        const double y = static_cast<double>(place / columns) * up;
        object.repeats.push_back(
            direction.toWorld({origin.x + x * std::cos(rotation) - y * std::sin(rotation),
                               origin.y + x * std::sin(rotation) + y * std::cos(rotation), origin.z}));
    }
}

} // namespace

void readInsert(EntityReader& entity, Parts parts, Surroundings& around, DrawnObject& object)
{
    const Direction direction = entity.direction();
    if (direction.isTilted())
        throw Lost{kTilted};
    const Group* const name = entity.find(2);
    const Insertable& block = around.insertable(name ? name->bytes : std::string_view());
    const double inPlane = entity.radians(50);
    takeArray(entity, direction, inPlane, object);
    OdGeScale3d factors{entity.real(41, 1.0), entity.real(42, 1.0), entity.real(43, 1.0)};
    if (factors.sx == 0 || factors.sy == 0)
        throw Lost{"its scale is 0"};
    // Some write none for what is plane.
    if (factors.sz == 0)
        factors.sz = 1;
    const auto [rotation, scale] = direction.placementToWorld({inPlane, factors});
    object.add("Name", CFxString(block.name));
    object.add("Position X", "Position Y", "Position Z", direction.toWorld(entity.point(10)));
    object.add("Scale X", scale.sx);
    object.add("Scale Y", scale.sy);
    object.add("Scale Z", scale.sz);
    object.add("Rotation", rotation);
    EntityReader attribute(around.drawing);
    std::unordered_set<QString> taken;
    for (const Entity& part : parts) {
        if (part.kind != "ATTRIB")
            continue;
        attribute.read(part);
        object.parts.push_back({"ATTRIB", takeAttribute(attribute, block, taken, object)});
    }
}

} // namespace inkmacro::dxf
