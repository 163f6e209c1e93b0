#include "view/Siblings.h"

#include "host/db/OdDbSurfaces.h"
#include "view/actionData.h"

namespace inkmacro::view {

namespace {

/// What is added, and what makes it, in one order.
struct Makers
{
    std::vector<OdDbHandle> made;
    std::vector<const CFxCustomAction*> actions;

    Siblings::ByHandle pairs() const
    {
        Siblings::ByHandle pairs;
        for (std::size_t i = 0; i < made.size() && i < actions.size(); ++i)
            pairs.emplace(made[i], actions[i]);
        return pairs;
    }
};

} // namespace

Siblings::Siblings(const CFxActionArray& actions)
{
    Makers hatchings;
    Makers embeddings;
    Makers regionMakers;
    for (const OdRxObjectPtr& action : actions) {
        if (const auto object = odrxQuery<CFxObjectAdded>(action.get())) {
            const OdRxClass* const cls = object->GetObjectClass();
            added.insert(cls);
            if (cls->name() == "AcDbOle2Frame")
                embeddings.made.push_back(object->GetHandle());
            else if (cls == OdDbHatch::desc())
                hatchings.made.push_back(object->GetHandle());
            else if (cls == OdDbRegion::desc())
                regionMakers.made.push_back(object->GetHandle());
        } else if (const auto custom = odrxQuery<CFxCustomAction>(action.get())) {
            switch (custom->GetKind()) {
            case kPolyline:
                polylines.emplace(datum(*custom, 3).GetHandle(), custom.get());
                break;
            case kHatch:
                hatchings.actions.push_back(custom.get());
                break;
            case kEmbed:
                embeddings.actions.push_back(custom.get());
                break;
            case kViewport:
                viewports.emplace(datum(*custom, 3).GetHandle(), custom.get());
                break;
            case kRegion:
                regionMakers.actions.push_back(custom.get());
                break;
            default:
                break;
            }
        }
    }
    hatches = hatchings.pairs();
    embedded = embeddings.pairs();
    // One action may make several, and nobody tells which of what.
    if (regionMakers.made.size() == regionMakers.actions.size())
        regions = regionMakers.pairs();
}

} // namespace inkmacro::view
