// Dimensions. What they measure is given in points of the world, but for the places of text and arc, which lie in the
// dimension's plane.

#include "dxf/DrawingLine.h"
#include "dxf/dimensionVariables.h"
#include "dxf/readers.h"
#include "host/db/OdDbClassMap.h"

#include <cmath>
#include <numbers>

namespace inkmacro::dxf {

namespace {

// What a dimension is, beside its kind in the lowest bits.
enum DimensionFlag : qint64
{
    kKindBits = 7,
    kIsAlongX = 64,
    kHasMovedText = 128,
};

constexpr const char* kJogAngle = "Jog angle";

using TakePoints = void (*)(const EntityReader& entity, const Direction& direction, DrawnObject& object);

double distance(const OdGePoint3d& from, const OdGePoint3d& to)
{
    return from.distanceTo(to);
}

/// The angle between the plane's X axis and that of the user who drew it turns what is horizontal.
void takeHorizontal(const EntityReader& entity, DrawnObject& object)
{
    if (entity.real(51) != 0)
        object.untold.push_back("a turned horizontal direction");
}

void takeOblique(const EntityReader& entity, DrawnObject& object)
{
    if (entity.real(52) != 0)
        object.untold.push_back("that its extension lines are oblique");
}

void takeLinePoints(const EntityReader& entity, DrawnObject& object)
{
    object.add("xLine1Point", entity.point(13));
    object.add("xLine2Point", entity.point(14));
    object.add("dimLinePoint", entity.point(10));
    takeOblique(entity, object);
}

void takeRotated(const EntityReader& entity, const Direction& direction, DrawnObject& object)
{
    takeLinePoints(entity, object);
    const double rotation = entity.radians(50);
    object.add("rotation", direction.isDown() ? -rotation : rotation);
}

void takeAligned(const EntityReader& entity, const Direction&, DrawnObject& object)
{
    takeLinePoints(entity, object);
}

void takeTwoLines(const EntityReader& entity, const Direction& direction, DrawnObject& object)
{
    object.add("xLine1Start", entity.point(13));
    object.add("xLine1End", entity.point(14));
    object.add("xLine2Start", entity.point(15));
    object.add("xLine2End", entity.point(10));
    object.add("arcPoint", direction.toWorld(entity.point(16)));
}

void takeThreePoints(const EntityReader& entity, const Direction&, DrawnObject& object)
{
    object.add("centerPoint", entity.point(15));
    object.add("xLine1Point", entity.point(13));
    object.add("xLine2Point", entity.point(14));
    object.add("arcPoint", entity.point(10));
}

void takeLeader(const EntityReader& entity, DrawnObject& object)
{
    if (entity.real(40) != 0)
        object.untold.push_back("how far its text is from the curve");
}

void takeDiameter(const EntityReader& entity, const Direction&, DrawnObject& object)
{
    const OdGePoint3d chord = entity.point(15);
    const OdGePoint3d farChord = entity.point(10);
    if (!(distance(chord, farChord) > 0))
        throw Lost{"its circle has no size"};
    object.add("chordPoint", chord);
    DrawingLine(object.drawing, "AcDbDiametricDimension", object.handle)
        .with("chordPoint", chord)
        .with("farChordPoint", farChord);
    takeLeader(entity, object);
}

/// The line of the drawing that tells a radius.
void tellRadius(const char* className, const OdGePoint3d& center, const OdGePoint3d& chord, DrawnObject& object)
{
    if (!(distance(center, chord) > 0))
        throw Lost{"its circle has no size"};
    DrawingLine(object.drawing, className, object.handle).with("center", center).with("chordPoint", chord);
}

void takeRadius(const EntityReader& entity, const Direction&, DrawnObject& object)
{
    const OdGePoint3d chord = entity.point(15);
    object.add("chordPoint", chord);
    tellRadius("AcDbRadialDimension", entity.point(10), chord, object);
    takeLeader(entity, object);
}

void takeOrdinate(const EntityReader& entity, const Direction&, DrawnObject& object)
{
    if (entity.real(51) != 0)
        throw Lost{"it measures along a turned axis"};
    object.add("definingPoint", entity.point(13));
    object.add("leaderEndPoint", entity.point(14));
    object.add("isUsingXAxis", std::int32_t{(entity.integer(70) & kIsAlongX) != 0});
    object.add("setZero", entity.point(10));
}

struct DimensionKind
{
    const char* className;
    TakePoints takePoints;
};

/// By the kind's number.
constexpr DimensionKind kKinds[] = {
    {"AcDbRotatedDimension", &takeRotated},       {"AcDbAlignedDimension", &takeAligned},
    {"AcDb2LineAngularDimension", &takeTwoLines}, {"AcDbDiametricDimension", &takeDiameter},
    {"AcDbRadialDimension", &takeRadius},         {"AcDb3PointAngularDimension", &takeThreePoints},
    {"AcDbOrdinateDimension", &takeOrdinate},
};

Direction planeOf(const EntityReader& entity)
{
    Direction direction = entity.direction();
    if (direction.isTilted())
        throw Lost{kTilted};
    return direction;
}

/// The text and the style, which all kinds have.
void takeText(EntityReader& entity, const Direction& direction, Surroundings& around, DrawnObject& object)
{
    // Nothing, and a sign for it, stand for the measured value; one blank for no text at all.
    if (const QString text = entity.text(1); !text.isEmpty() && text != QLatin1String("<>", 2))
        object.add("Text override", CFxString(text));
    if (const double rotation = entity.radians(53); rotation != 0)
        object.add("Rotation", direction.isDown() ? -rotation : rotation);
    if (entity.integer(70) & kHasMovedText && entity.has(11)) {
        const OdGePoint3d middle = direction.toWorld(entity.point(11));
        object.change("Position x", middle.x);
        object.change("Position y", middle.y);
    }
    if (direction.isDown())
        object.untold.push_back("that its text is seen from behind");
    takeHorizontal(entity, object);
    takeDimensionStyle(entity, around, object);
}

/// Of the groups behind the marker of a class: those of its base have the same codes.
double realBehind(const EntityReader& entity, std::string_view className, int code)
{
    constexpr int marker = 100;
    bool isBehind = false;
    for (const Group& group : entity.groups()) {
        if (group.is(marker, className))
            isBehind = true;
        else if (isBehind && group.code == code)
            return EntityReader::realOf(group);
    }
    return 0;
}

void takeLineDistance(const EntityReader& entity, DrawnObject& object)
{
    if (entity.real(41, 1.0) != 1.0)
        object.untold.push_back("the distance of its text's lines");
}

/// An angle within a turn behind `start`.
double behind(double start, double angle)
{
    constexpr double turn = 2 * std::numbers::pi;
    return start + (angle - start) - turn * std::floor((angle - start) / turn);
}

} // namespace

void readDimension(EntityReader& entity, Parts, Surroundings& around, DrawnObject& object)
{
    const Direction direction = planeOf(entity);
    const qint64 kind = entity.integer(70) & kKindBits;
    if (kind >= static_cast<qint64>(std::size(kKinds)))
        throw Lost{"there is no such kind of dimension"};
    object.cls = oddbClassByName(kKinds[kind].className);
    kKinds[kind].takePoints(entity, direction, object);
    takeLineDistance(entity, object);
    takeText(entity, direction, around, object);
}

void readArcDimension(EntityReader& entity, Parts, Surroundings& around, DrawnObject& object)
{
    const Direction direction = planeOf(entity);
    const OdGePoint3d first = entity.point(13);
    const OdGePoint3d second = entity.point(14);
    const OdGePoint3d center = entity.point(15);
    const OdGePoint3d arcPoint = entity.point(10);
    if (!(distance(center, first) > 0))
        throw Lost{"its arc has no size"};
    const auto angleOf = [&](const OdGePoint3d& point) { return std::atan2(point.y - center.y, point.x - center.x); };
    // The measured arc runs counterclockwise, and through the direction in which the dimension line is.
    double start = angleOf(first);
    double end = angleOf(second);
    if (behind(start, angleOf(arcPoint)) > behind(start, end))
        std::swap(start, end);
    const auto own = [&entity](int code) { return realBehind(entity, "AcDbArcDimension", code); };
    const bool isPartial = own(70) == 1;
    if (isPartial && own(40) != own(41)) {
        start = own(40);
        end = own(41);
    }

    object.add("xLine1Point", first);
    object.add("xLine2Point", second);
    object.add("isPartial", std::int32_t{isPartial});
    object.add("arcPoint", arcPoint);
    // Without an arc, one through the dimension line would be measured.
    const OdDbHandle association = around.madeHandles.next();
    const OdDbHandle arc = around.madeHandles.next();
    DrawingLine(object.drawing, "AcDbArcDimension", object.handle)
        .with("extensionDictionary", "ACAD_DIMASSOC", association)
        .with("xLine1Point", first)
        .with("xLine2Point", second)
        .with("centerPoint", center)
        .with("arcPoint", arcPoint)
        .with("arcStartParam", start)
        .with("arcEndParam", end)
        .with("isPartial", isPartial);
    DrawingLine(object.drawing, "AcDbDimAssoc", association)
        .with("pointRefs", std::array<std::vector<OdDbHandle>, 4>{{{}, {}, {arc}, {}}});
    DrawingLine(object.drawing, "AcDbArc", arc)
        .with("center", center)
        .with("radius", distance(center, first))
        .with("startAngle", start)
        .with("endAngle", end);
    takeText(entity, direction, around, object);
}

void readJoggedDimension(EntityReader& entity, Parts, Surroundings& around, DrawnObject& object)
{
    const Direction direction = planeOf(entity);
    const OdGePoint3d points[] = {entity.point(13), entity.point(14), entity.point(15)};
    // Some write the point on the curve, the center that the line starts from, and the jog between them; others write
    // the first of these last.
    const bool isCurveFirst = distance(points[0], points[1]) >= distance(points[0], points[2]);
    const OdGePoint3d& chord = points[isCurveFirst ? 0 : 2];
    const OdGePoint3d& center = points[isCurveFirst ? 1 : 0];
    const OdGePoint3d& jog = points[isCurveFirst ? 2 : 1];
    const OdGePoint3d middle = direction.toWorld(entity.point(11));
    object.add("Center location override X", center.x);
    object.add("Center location override Y", center.y);
    object.add("Jog location X", jog.x);
    object.add("Jog location Y", jog.y);
    object.add("Position x", middle.x);
    object.add("Position y", middle.y);
    tellRadius("AcDbRadialDimensionLarge", entity.point(10), chord, object);
    takeLineDistance(entity, object);
    takeText(entity, direction, around, object);
    // Its own angle goes before that of its variables.
    if (const Group* const own = entity.find(40); own && EntityReader::realOf(*own) != 0) {
        std::erase_if(object.changes, [](const Property& change) { return std::string_view(change.tag) == kJogAngle; });
        object.change(kJogAngle, jogAngle(*own));
    }
}

} // namespace inkmacro::dxf
