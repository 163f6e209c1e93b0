// Leaders and tolerances.

#include "dxf/dimensionVariables.h"
#include "dxf/readers.h"

#include <QLocale>

namespace inkmacro::dxf {

namespace {

// Codes of variables of dimensions.
enum Code : int
{
    kScale = 40,
    kArrowSize = 41,
    kTextHeight = 140,
    kTextDistance = 147,
    kLineColor = 176,
    kTextColor = 178,
    kTextStyle = 340,
    kLeaderArrow = 341,
    kLineWeight = 371,
};

/// What a variable of dimensions is for a leader or a tolerance.
struct Row
{
    int code;
    const char* tag;
    CFxVariant (*value)(const Group& group, Surroundings& around);
};

CFxVariant number(const Group& group, Surroundings&)
{
    return EntityReader::realOf(group);
}

/// As the property sheet shows it.
CFxVariant numberText(const Group& group, Surroundings&)
{
    return CFxString(QString::number(EntityReader::realOf(group), 'g', QLocale::FloatingPointShortest));
}

CFxVariant color(const Group& group, Surroundings&)
{
    return dimensionColor(group);
}

CFxVariant weight(const Group& group, Surroundings&)
{
    return static_cast<std::int32_t>(EntityReader::integerOf(group));
}

CFxVariant textStyle(const Group& group, Surroundings& around)
{
    const NamedObjects::Named* const style = around.textStyles.findHandle(group.handle());
    return style ? choice(0, style->name) : CFxVariant::kNull;
}

constexpr Row kLeaderRows[] = {
    {kScale, "DimScale overall", &number},       {kArrowSize, "Arrow size", &numberText},
    {kTextDistance, "Text offset", &numberText}, {kLineColor, "DimLine LColor", &color},
    {kLeaderArrow, "Arrow", &dimensionArrow},    {kLineWeight, "DimLine LWeight", &weight},
};

constexpr Row kToleranceRows[] = {
    {kScale, "Dim scale overall", &number}, {kTextHeight, "Text height", &number},
    {kLineColor, "DimLine LColor", &color}, {kTextColor, "TextColor", &color},
    {kTextStyle, "TextStyle", &textStyle},
};

void takeStyle(EntityReader& entity, const char* tag, std::span<const Row> rows, Surroundings& around,
               DrawnObject& object)
{
    if (const QString name = dimensionStyleName(entity, around, object); !name.isEmpty())
        object.change(tag, choice(0, name));
    const DimensionVariables overrides(entity, nullptr);
    for (const Group& own : overrides.own()) {
        const auto row = std::find_if(rows.begin(), rows.end(), [&](const Row& row) { return row.code == own.code; });
        CFxVariant value = row == rows.end() ? CFxVariant::kNull : row->value(own, around);
        if (value.IsNull())
            object.untold.push_back("a setting of its own that no recording has");
        else
            object.change(row->tag, std::move(value));
    }
}

} // namespace

void readLeader(EntityReader& entity, Parts, Surroundings& around, DrawnObject& object)
{
    const std::vector<OdGePoint3d> vertices = points(entity.groups(), 10);
    if (vertices.size() < 2)
        throw Lost{"it has less than two vertices"};
    object.add("Vertex", pointList(vertices));
    object.add("width", 0.0);
    // Its note is an object of its own, and comes in as one.
    constexpr qint64 nothing = 3;
    if (entity.integer(73, nothing) != nothing)
        object.untold.push_back("that something hangs on it");
    static constexpr const char* types[] = {"LineWithNoArrow", "SplineWithNoArrow", "LineWithArrow", "SplineWithArrow"};
    const int type = (entity.integer(71, 1) != 0 ? 2 : 0) + (entity.integer(72) == 1 ? 1 : 0);
    object.change("Type", choice(type, types[type]));
    takeStyle(entity, "DimStyle", kLeaderRows, around, object);
}

void readTolerance(EntityReader& entity, Parts, Surroundings& around, DrawnObject& object)
{
    const Direction direction = entity.direction();
    if (direction.isDown())
        throw Lost{kFromBehind};
    if (direction.isTilted())
        throw Lost{kTilted};
    object.add("Position X", "Position Y", "Position Z", entity.point(10));
    object.add("Content", CFxString(entity.text(1)));
    if (entity.has(11)) {
        const OdGeVector3d along = entity.vector(11);
        if (along.y != 0 || along.x < 0)
            object.untold.push_back("that it is turned");
    }
    takeStyle(entity, "Dim style", kToleranceRows, around, object);
}

} // namespace inkmacro::dxf
