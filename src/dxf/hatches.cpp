// Hatches: their boundaries, by the simplest way to hand these over, patterns and gradients.

#include "dxf/DrawingLine.h"
#include "dxf/GroupPieces.h"
#include "dxf/readers.h"
#include "dxf/splines.h"

#include <array>
#include <cmath>
#include <numbers>
#include <tuple>

namespace inkmacro::dxf {

namespace {

constexpr double kTurn = 2 * std::numbers::pi;
constexpr double kDegree = std::numbers::pi / 180;
constexpr double kNear = 1e-9; ///< as a part of what is measured

// The codes that keep the parts of a hatch apart. What counts say of the parts' numbers is not asked.
constexpr int kLoop = 92;
constexpr int kEdge = 72;
constexpr int kPoint = 10;
constexpr std::array kBehindLoops{75, 76, 52, 41, 77, 78, 98, 450};

/// A polyline or curves one by one.
struct Loop
{
    std::vector<OdGePoint2d> points;
    std::vector<double> bulges; ///< of the polyline, one a point
    std::vector<Piece> edges;   ///< in place of the points

    bool hasArcs() const
    {
        return std::any_of(bulges.begin(), bulges.end(), [](double bulge) { return bulge != 0; });
    }
};

/// How a boundary is handed over.
enum class Way
{
    Points,   ///< of all loops
    Polyline, ///< with arcs
    Curves,   ///< of the drawing
};

enum EdgeKind : qint64
{
    kLine = 1,
    kArc = 2,
    kEllipse = 3,
    kSpline = 4,
};

/// Reads the boundary of a hatch, as it is seen from above.
class Boundary
{
public:
    Boundary(Piece groups, const Direction& direction) : direction_(direction)
    {
        const std::vector<Piece> all = split(groups, kLoop);
        for (Piece loop : all) {
            if (loop.data() == all.back().data())
                loop = withoutWhatIsBehind(loop);
            add(loop);
        }
        if (loops_.empty())
            throw Lost{"it has no boundary"};
    }

    const std::vector<Loop>& loops() const { return loops_; }
    Way way() const
    {
        const auto isStraight = [](const Loop& loop) { return loop.edges.empty() && !loop.hasArcs(); };
        if (std::all_of(loops_.begin(), loops_.end(), isStraight))
            return Way::Points;
        return loops_.size() == 1 && loops_.front().edges.empty() ? Way::Polyline : Way::Curves;
    }

    /// Puts the curves into the drawing, by whose ids a hatch follows them.
    OdArray<OdDbObjectId> tellCurves(Surroundings& around, DrawnObject& object) const
    {
        OdArray<OdDbObjectId> ids;
        const auto next = [&] {
            const OdDbHandle handle = around.madeHandles.next();
            ids.append(around.ids.getOdDbObjectId(handle));
            return handle;
        };
        for (const Loop& loop : loops_) {
            for (const Piece edge : loop.edges)
                tellEdge(edge, next(), around.tolerance, object);
            if (loop.edges.empty()) {
                DrawingLine line(object.drawing, "AcDbPolyline", next());
                line.with("points", loop.points);
                if (loop.hasArcs())
                    line.with("bulges", loop.bulges);
                line.with("isClosed", true);
            }
        }
        return ids;
    }

private:
    static Piece withoutWhatIsBehind(Piece loop)
    {
        const auto end = std::find_if(loop.begin(), loop.end(), [](const Group& group) {
            return std::find(kBehindLoops.begin(), kBehindLoops.end(), group.code) != kBehindLoops.end();
        });
        return {loop.begin(), end};
    }

    OdGePoint2d point(Piece groups, int code) const
    {
        const OdGePoint3d world = direction_.toWorld({real(groups, code), real(groups, code + 10), 0});
        return {world.x, world.y};
    }
    OdGePoint3d placed(Piece groups, int code) const
    {
        const OdGePoint2d plane = point(groups, code);
        return {plane.x, plane.y, 0};
    }

    void add(Piece groups)
    {
        constexpr qint64 polyline = 2;
        Loop loop;
        if (EntityReader::integerOf(groups.front()) & polyline) {
            for (const Piece vertex : split(groups, kPoint)) {
                loop.points.push_back(point(vertex, kPoint));
                const double bulge = real(vertex, 42);
                loop.bulges.push_back(bulge != 0 ? direction_.bulgeToWorld(bulge) : bulge);
            }
        } else {
            loop.edges = split(groups, kEdge);
            joinLines(loop);
        }
        if (!loop.edges.empty() || encloses(loop))
            loops_.push_back(std::move(loop));
    }

    static bool areNear(const OdGePoint2d& left, const OdGePoint2d& right)
    {
        const double size = std::max({std::abs(left.x), std::abs(left.y), std::abs(right.x), std::abs(right.y)});
        return std::max(std::abs(left.x - right.x), std::abs(left.y - right.y)) <= kNear * size;
    }

    /// Makes a polyline of lines of which each begins or ends where the one before ended.
    void joinLines(Loop& loop) const
    {
        std::vector<std::pair<OdGePoint2d, OdGePoint2d>> lines;
        for (const Piece edge : loop.edges) {
            if (EntityReader::integerOf(edge.front()) != kLine)
                return;
            lines.emplace_back(point(edge, 10), point(edge, 11));
        }
        if (lines.size() < 3)
            return;
        auto& [begin, end] = lines.front();
        if (!areNear(end, lines[1].first) && !areNear(end, lines[1].second))
            std::swap(begin, end);
        std::vector<OdGePoint2d> points;
        OdGePoint2d at = begin;
        for (const auto& [first, second] : lines) {
            if (!areNear(at, first) && !areNear(at, second))
                return;
            points.push_back(at);
            at = areNear(at, first) ? second : first;
        }
        if (!areNear(at, begin))
            return;
        loop.edges.clear();
        loop.bulges.assign(points.size(), 0.0);
        loop.points = std::move(points);
    }

    /// Drops a last point that is the first one again, since all loops are closed.
    static bool encloses(Loop& loop)
    {
        if (loop.points.size() > 1 && areNear(loop.points.front(), loop.points.back())) {
            loop.points.pop_back();
            loop.bulges.pop_back();
        }
        return loop.points.size() > (loop.hasArcs() ? 1 : 2);
    }

    void tellEdge(Piece edge, OdDbHandle handle, double tolerance, DrawnObject& object) const
    {
        switch (EntityReader::integerOf(edge.front())) {
        case kLine:
            DrawingLine(object.drawing, "AcDbLine", handle)
                .with("startPoint", placed(edge, 10))
                .with("endPoint", placed(edge, 11));
            break;
        case kArc:
            return tellArc(edge, handle, object.drawing);
        case kEllipse:
            return tellEllipse(edge, handle, object.drawing);
        case kSpline:
            return tellSpline(edge, handle, tolerance, object);
        default:
            throw Lost{"a curve of an unknown kind bounds it"};
        }
    }

    /// Where a curved edge begins and ends, counterclockwise from the axis of the file. The angles of a clockwise one
    /// are written clockwise.
    static std::pair<double, double> angles(Piece edge)
    {
        const double first = real(edge, 50) * kDegree;
        const double second = real(edge, 51) * kDegree;
        return integer(edge, 73, 1) != 0 ? std::pair(first, second) : std::pair(kTurn - second, kTurn - first);
    }
    static bool isWhole(double begin, double end) { return std::abs(end - begin) > kTurn - kNear; }

    void tellArc(Piece edge, OdDbHandle handle, QByteArray& drawing) const
    {
        const auto [begin, end] = angles(edge);
        if (isWhole(begin, end)) {
            DrawingLine(drawing, "AcDbCircle", handle).with("center", placed(edge, 10)).with("radius", real(edge, 40));
            return;
        }
        const Arc arc = direction_.arcToWorld({begin, end});
        DrawingLine(drawing, "AcDbArc", handle)
            .with("center", placed(edge, 10))
            .with("radius", real(edge, 40))
            .with("startAngle", inTurn(arc.start))
            .with("endAngle", inTurn(arc.end));
    }

    void tellEllipse(Piece edge, OdDbHandle handle, QByteArray& drawing) const
    {
        const OdGePoint2d axis = point(edge, 11);
        const double ratio = std::abs(real(edge, 40));
        DrawingLine line(drawing, "AcDbEllipse", handle);
        line.with("center", placed(edge, 10))
            .with("majorAxis", OdGeVector3d{axis.x, axis.y, 0})
            .with("minorAxis", OdGeVector3d{-axis.y * ratio, axis.x * ratio, 0});
        auto [begin, end] = angles(edge);
        if (isWhole(begin, end))
            return;
        if (direction_.isDown())
            std::tie(begin, end) = std::pair(-end, -begin);
        // Edges are measured by the angle that is seen, ellipses by the one of the circle that they are made from.
        const auto parameter = [&](double angle) {
            return inTurn(std::atan2(std::sin(angle), std::cos(angle) * ratio));
        };
        line.with("startAngle", parameter(begin)).with("endAngle", parameter(end));
    }

    /// No hatch follows a spline, but lines and arcs along it.
    void tellSpline(Piece edge, OdDbHandle handle, double tolerance, DrawnObject& object) const
    {
        Nurbs curve;
        curve.degree = static_cast<int>(std::clamp<qint64>(integer(edge, 94, 3), 0, 100));
        for (const Group& group : edge) {
            if (group.code == 40)
                curve.knots.push_back(EntityReader::realOf(group));
            else if (group.code == 42)
                curve.weights.push_back(EntityReader::realOf(group));
        }
        double size = 0;
        for (const Piece control : split(edge, kPoint)) {
            curve.points.push_back(placed(control, kPoint));
            size = std::max(size, curve.points.back().distanceTo(curve.points.front()));
        }
        std::optional<Bends> along = bends(curve, tolerance * size);
        if (!along)
            throw Lost{"a spline bounds it that is no curve"};
        const bool isClosed = areNear(along->points.front(), along->points.back());
        if (isClosed) {
            along->points.pop_back();
            along->bulges.pop_back();
        }
        if (!isPolyline(curve))
            object.deviation = std::max(object.deviation.value_or(0.0), along->deviation);
        DrawingLine(object.drawing, "AcDbPolyline", handle)
            .with("points", along->points)
            .with("bulges", along->bulges)
            .with("isClosed", isClosed);
    }

    Direction direction_;
    std::vector<Loop> loops_;
};

/// The angle by which a pattern has to be turned to look as it does from behind. Nothing for one that no angle makes
/// look so.
std::optional<double> angleFromBehind(Piece groups, double angle)
{
    const std::vector<Piece> lines = split(groups, 53);
    if (lines.empty())
        return {};
    std::optional<double> turned;
    for (const Piece line : lines) {
        const double ofLine = real(line, 53) * kDegree; // with the pattern's angle
        const double candidate = inTurn(std::numbers::pi + angle - 2 * ofLine);
        // A line runs both ways.
        if (turned && std::abs(std::remainder(candidate - *turned, std::numbers::pi)) > kNear)
            return {};
        if (!turned)
            turned = candidate;
    }
    return turned;
}

struct Gradient
{
    OdCmColor first;
    OdCmColor second;
    bool isCentered;
    double angle;
};

std::optional<OdCmColor> gradientColor(Piece color)
{
    if (const Group* const trueColor = find(color, 421))
        return trueColorOf(*trueColor);
    if (const qint64 number = integer(color, 63, 0); number > 0 && number < 256)
        return OdCmColor::byIndex(static_cast<std::uint16_t>(number));
    return {};
}

std::optional<Gradient> gradientOf(const EntityReader& entity, bool isSeenFromBehind, DrawnObject& object)
{
    if (entity.integer(450) == 0)
        return {};
    const std::vector<Piece> colors = split(entity.groups(), 463);
    const std::optional<OdCmColor> first = colors.empty() ? std::nullopt : gradientColor(colors[0]);
    const std::optional<OdCmColor> second = colors.size() < 2 ? std::nullopt : gradientColor(colors[1]);
    if (!first || !second) {
        object.untold.push_back("a gradient without colors");
        return {};
    }
    if (entity.has(470) && entity.find(470)->word() != "LINEAR")
        object.untold.push_back("the shape of a gradient");
    const double angle = entity.real(460);
    constexpr double halfShifted = 0.5;
    return Gradient{*first, *second, entity.real(461) < halfShifted,
                    isSeenFromBehind ? std::numbers::pi - angle : angle};
}

struct Pattern
{
    CFxString name;
    double scale;
    double angle; ///< radians
};

enum PatternType : qint64
{
    kUserDefined = 0,
    kPredefined = 1,
    kCustom = 2,
};

Pattern patternOf(const EntityReader& entity, bool isSeenFromBehind, DrawnObject& object)
{
    if (entity.integer(70) == 1)
        return {"SOLID", 1, 0};
    Pattern pattern{CFxString(entity.text(2)), entity.real(41, 1.0), entity.radians(52)};
    if (pattern.name.isEmpty())
        throw Lost{"its pattern has no name"};
    if (isSeenFromBehind) {
        const std::optional<double> angle = angleFromBehind(entity.groups(), pattern.angle);
        if (!angle)
            object.untold.push_back("that a pattern is seen from behind");
        pattern.angle = angle.value_or(std::numbers::pi - pattern.angle);
    }
    const qint64 type = entity.integer(76, kPredefined);
    if (type == kUserDefined) {
        object.change("Type", CFxString("User defined"));
        object.change("Spacing", pattern.scale);
    } else if (type == kCustom) {
        object.change("Type", CFxString("Custom"));
    }
    if (entity.integer(77) != 0)
        object.untold.push_back("that the lines of a pattern cross");
    return pattern;
}

/// Where the pattern begins stands among the data of applications.
void takeOrigin(const EntityReader& entity, bool isSeenFromBehind, DrawnObject& object)
{
    constexpr int application = 1001;
    constexpr int originX = 1010;
    constexpr int originY = 1020;
    GroupReader groups = entity.drawing().groups(entity.entity());
    Group group;
    bool isOurs = false;
    while (entity.hasExtendedData() && groups.next(group)) {
        if (group.code == application)
            isOurs = group.word() == "ACAD";
        else if (isOurs && group.code == originX)
            object.add("Origin X", (isSeenFromBehind ? -1 : 1) * EntityReader::realOf(group));
        else if (isOurs && group.code == originY)
            object.add("Origin Y", EntityReader::realOf(group));
    }
}

template<class Item>
OdArray<Item> arrayOf(const std::vector<Item>& items)
{
    OdArray<Item> array;
    for (const Item& item : items)
        array.append(item);
    return array;
}

void handOver(const Boundary& boundary, Surroundings& around, DrawnObject& object)
{
    const std::vector<Loop>& loops = boundary.loops();
    switch (boundary.way()) {
    case Way::Points: {
        OdArray<int> counts;
        OdArray<OdGePoint2d> points;
        for (const Loop& loop : loops) {
            counts.append(static_cast<int>(loop.points.size()));
            for (const OdGePoint2d& point : loop.points)
                points.append(point);
        }
        object.custom.emplace_back(counts);
        object.custom.emplace_back(points);
        break;
    }
    case Way::Polyline:
        object.custom.emplace_back(arrayOf(loops.front().bulges));
        object.custom.emplace_back(arrayOf(loops.front().points));
        object.custom.emplace_back(true); // goes behind it
        break;
    case Way::Curves:
        object.custom.emplace_back(boundary.tellCurves(around, object));
        object.custom.emplace_back(true);
        break;
    }
}

} // namespace

void readHatch(EntityReader& entity, Parts, Surroundings& around, DrawnObject& object)
{
    const Direction direction = entity.direction();
    if (direction.isTilted())
        throw Lost{kTilted};
    const bool isSeenFromBehind = direction.isDown();
    const Boundary boundary(entity.groups(), direction);
    const Pattern pattern = patternOf(entity, isSeenFromBehind, object);
    const std::optional<Gradient> gradient = gradientOf(entity, isSeenFromBehind, object);
    const Way way = boundary.way();
    object.making = DrawnObject::Making::CustomInCommand;
    object.command = "HATCH";
    object.customKind = kHatchAction;
    object.custom = {{pattern.name},       {pattern.scale},        {pattern.angle},       {false},
                     {way == Way::Curves}, {way == Way::Polyline}, {gradient.has_value()}};
    handOver(boundary, around, object);
    if (gradient) {
        object.custom.emplace_back(gradient->first);
        object.custom.emplace_back(gradient->second);
        object.custom.emplace_back(gradient->isCentered);
        object.custom.emplace_back(gradient->angle);
    }
    static constexpr std::array detections{"Normal", "Outer", "Ignore"};
    const qint64 style = entity.integer(75);
    object.add("Internal region detection",
               CFxString(detections[style > 0 && style < 3 ? static_cast<std::size_t>(style) : 0]));
    takeOrigin(entity, isSeenFromBehind, object);
    if (entity.real(30) != 0)
        object.untold.push_back("the elevation of a hatch");
    if (entity.integer(71) != 0)
        object.untold.push_back("that it follows what bounds it");
}

} // namespace inkmacro::dxf
