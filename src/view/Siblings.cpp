#include "view/Siblings.h"

#include "host/db/OdDbSurfaces.h"
#include "view/actionData.h"

namespace inkmacro::view {

Siblings::Siblings(const CFxActionArray& actions)
{
    std::vector<const CFxCustomAction*> hatchings;
    std::vector<OdDbHandle> hatched;
    for (const OdRxObjectPtr& action : actions) {
        if (const auto object = odrxQuery<CFxObjectAdded>(action.get())) {
            added.insert(object->GetObjectClass());
            if (object->GetObjectClass() == OdDbHatch::desc())
                hatched.push_back(object->GetHandle());
        } else if (const auto custom = odrxQuery<CFxCustomAction>(action.get())) {
            switch (custom->GetKind()) {
            case kPolyline:
                polylines.emplace(datum(*custom, 3).GetHandle(), custom.get());
                break;
            case kHatch:
                hatchings.push_back(custom.get());
                break;
            case kEmbed:
                embeddings.push_back(custom.get());
                break;
            case kViewport:
                viewports.push_back(custom.get());
                break;
            default:
                break;
            }
        }
    }
    for (std::size_t i = 0; i < hatched.size() && i < hatchings.size(); ++i)
        hatches.emplace(hatched[i], hatchings[i]);
}

} // namespace inkmacro::view
