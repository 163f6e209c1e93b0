#include "view/hatchActions.h"

#include "view/ObjectState.h"
#include "view/actionData.h"

namespace inkmacro::view {
namespace {

/// The data of a hatch, by their numbers.
enum HatchDatum
{
    kPatternName,
    kPatternScale,
    kPatternAngle,
    kByPoints,
    kByObjects,
    kByPolyline,
    kHasGradient,
    kBoundary,
    kSecond ///< what follows the boundary
};

void sayNew(ObjectState& hatch, const char* tag, const CFxVariant& value)
{
    if (!hatch.find(tag))
        hatch.say(tag, -1, value);
}

template<class Items, class ToVariant>
void sayList(ObjectState& hatch, const char* tag, const Items& items, ToVariant toVariant)
{
    std::vector<CFxVariantCollectionElement> elements;
    for (const auto& item : items)
        elements.emplace_back(CFxVariant(), toVariant(item));
    hatch.say(tag, -1, CFxVariantCollection(std::move(elements)));
}

void sayPoints(ObjectState& hatch, const char* tag, const OdArray<OdGePoint2d>& points)
{
    sayList(hatch, tag, points, [](const OdGePoint2d& point) {
        return CFxVariant(OdGePoint3d{point.x, point.y, 0.0});
    });
}

/// Gives the number of the first datum of a gradient. Of the ways to make a hatch the first one that is set counts.
int sayBoundary(ObjectState& hatch, const CFxCustomAction& action)
{
    const CFxCustomActionData& boundary = datum(action, kBoundary);
    const CFxCustomActionData& second = datum(action, kSecond);
    if (datum(action, kByPoints).GetBool()) {
        sayPoints(hatch, kInternalPoints, boundary.Get2dPointArray());
        return kSecond;
    }
    if (datum(action, kByObjects).GetBool()) {
        sayList(hatch, kBoundaryObjects, boundary.GetObjectIdArray(),
                [](const OdDbObjectId& id) { return CFxVariant(id); });
        return kSecond + 1;
    }
    const bool byPolyline = datum(action, kByPolyline).GetBool();
    sayPoints(hatch, kBoundaryPoints, second.Get2dPointArray());
    if (byPolyline)
        sayList(hatch, kBoundaryBulges, boundary.GetDoubleArray(), [](double bulge) { return CFxVariant(bulge); });
    else
        sayList(hatch, kBoundaryCounts, boundary.GetIntArray(), [](int count) { return CFxVariant(count); });
    return byPolyline ? kSecond + 2 : kSecond + 1;
}

} // namespace

void sayHatch(ObjectState& hatch, const CFxCustomAction& action)
{
    sayNew(hatch, "Pattern name", datum(action, kPatternName).GetString());
    sayNew(hatch, "Scale", datum(action, kPatternScale).GetDouble());
    sayNew(hatch, "Angle", datum(action, kPatternAngle).GetDouble());
    const int gradient = sayBoundary(hatch, action);
    if (datum(action, kHasGradient).GetBool())
        sayNew(hatch, "Color 1", datum(action, gradient).GetColor());
}

} // namespace inkmacro::view
