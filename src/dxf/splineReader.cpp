// Splines, by control points or by fit points.

#include "dxf/readers.h"
#include "dxf/splines.h"
#include "host/db/OdDbClassMap.h"

#include <cmath>

namespace inkmacro::dxf {

namespace {

enum SplineFlag : qint64
{
    kClosed = 1,
};

struct Spline
{
    Nurbs curve;
    std::vector<OdGePoint3d> fit;
};

/// Counts may lie: what is there counts.
Spline splineOf(const EntityReader& entity)
{
    Spline spline;
    spline.curve.degree = static_cast<int>(std::clamp<qint64>(entity.integer(71, 3), 0, 100));
    std::vector<OdGePoint3d>* points = nullptr;
    for (const Group& group : entity.groups()) {
        switch (group.code) {
        case 10:
            points = &spline.curve.points;
            points->push_back({EntityReader::realOf(group), 0, 0});
            break;
        case 11:
            points = &spline.fit;
            points->push_back({EntityReader::realOf(group), 0, 0});
            break;
        case 20:
        case 21:
            if (points)
                points->back().y = EntityReader::realOf(group);
            break;
        case 30:
        case 31:
            if (points)
                points->back().z = EntityReader::realOf(group);
            break;
        case 40:
            spline.curve.knots.push_back(EntityReader::realOf(group));
            break;
        case 41:
            spline.curve.weights.push_back(EntityReader::realOf(group));
            break;
        default:
            break;
        }
    }
    return spline;
}

double sizeOf(const std::vector<OdGePoint3d>& points)
{
    OdGePoint3d least = points.front();
    OdGePoint3d most = points.front();
    for (const OdGePoint3d& point : points) {
        least = {std::min(least.x, point.x), std::min(least.y, point.y), std::min(least.z, point.z)};
        most = {std::max(most.x, point.x), std::max(most.y, point.y), std::max(most.z, point.z)};
    }
    return most.distanceTo(least);
}

void draw(const std::vector<OdGePoint3d>& points, bool isClosed, const OdGeVector3d& start, const OdGeVector3d& end,
          DrawnObject& object)
{
    object.add("Fit point", pointList(points));
    object.add("Closed", yesOrNo(isClosed));
    object.add("Start tangent vector X", start.x);
    object.add("Start tangent vector Y", start.y);
    object.add("Start tangent vector Z", start.z);
    object.add("End tangent vector X", end.x);
    object.add("End tangent vector Y", end.y);
    object.add("End tangent vector Z", end.z);
}

} // namespace

void readSpline(EntityReader& entity, Parts, Surroundings& around, DrawnObject& object)
{
    Spline spline = splineOf(entity);
    if (spline.fit.size() >= 2) {
        const bool isClosed = entity.integer(70) & kClosed;
        if (isClosed && spline.fit.front() == spline.fit.back())
            spline.fit.pop_back();
        return draw(spline.fit, isClosed, entity.vector(12), entity.vector(13), object);
    }
    if (isPolyline(spline.curve)) {
        object.cls = oddbClassByName("AcDb3dPolyline");
        object.isStandIn = true;
        object.add("Vertex", pointList(spline.curve.points));
        object.add("Closed", yesOrNo(false));
        return;
    }
    if (spline.curve.points.empty())
        throw Lost{"it has no points"};
    const std::optional<FitPoints> fitted = fitPoints(spline.curve, around.tolerance * sizeOf(spline.curve.points));
    if (!fitted)
        throw Lost{"its knots, weights and points make no curve"};
    object.deviation = fitted->deviation;
    // The application closes splines in another way than by their ends.
    if (entity.integer(70) & kClosed)
        object.untold.push_back("that it is closed");
    draw(fitted->points, false, fitted->startTangent, fitted->endTangent, object);
}

} // namespace inkmacro::dxf
