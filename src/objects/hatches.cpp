// What added and changed hatches have in common.

#include "objects/hatches.h"

#include "objects/properties.h"
#include "objects/targets/hatchPatterns.h"
#include "objects/targets/points.h"

#include <set>

namespace {

/// The way of detecting inner regions, from 1 up. Among all items it is the place of the chosen one that counts, and
/// else the word, as the property sheet shows it.
std::int32_t regionDetection(const CFxVariant& value)
{
    if (value.GetType() == CFxVariant::kCollection) {
        const std::int32_t chosen = value.GetCollection().GetChosen();
        return chosen == 1 || chosen == 2 ? chosen + 1 : 1;
    }
    const CFxString word = value.GetType() == CFxVariant::kCollectionElement ? ElementText(value) : value.GetString();
    if (word.equalNoCase(ShownWord("Outer")))
        return 2;
    return word.equalNoCase(ShownWord("Ignore")) ? 3 : 1;
}

} // namespace

Statement ConvertHatchCommonProperties(Writer& writer, const CFxString& pattern, const TakeTag& take)
{
    Statement text;
    if (const CFxVariant detection = take("Internal region detection"); !detection.IsNull())
        text = EmitHatchRegionDetection(writer, pattern, regionDetection(detection));
    if (const CFxVariant x = take("Origin X"); !x.IsNull())
        text += EmitChangeCoordinate2DX(writer, pattern, "Origin", x.GetDouble());
    if (const CFxVariant y = take("Origin Y"); !y.IsNull())
        text += EmitChangeCoordinate2DY(writer, pattern, "Origin", y.GetDouble());
    return text;
}

std::vector<BoundaryObject> BoundaryObjects(const Names& names, const OdArray<OdDbObjectId>& ids)
{
    std::vector<BoundaryObject> boundary;
    std::set<OdDbObjectId> seen;
    for (const OdDbObjectId& id : ids) {
        if (!seen.insert(id).second)
            continue;
        OdDbObjectPtr object = id.openObject(true);
        if (!object)
            throw OdError(eNullObjectPointer);
        boundary.push_back({std::move(object), names.AddedVariable(id)});
    }
    return boundary;
}
