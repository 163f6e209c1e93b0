#include "view/Siblings.h"

#include "view/actionData.h"

namespace inkmacro::view {

Siblings::Siblings(const CFxActionArray& actions)
{
    for (const OdRxObjectPtr& action : actions) {
        if (const auto object = odrxQuery<CFxObjectAdded>(action.get())) {
            added.insert(object->GetObjectClass());
        } else if (const auto custom = odrxQuery<CFxCustomAction>(action.get())) {
            switch (custom->GetKind()) {
            case kPolyline:
                polylines.emplace(datum(*custom, 3).GetHandle(), custom.get());
                break;
            case kHatch:
                hatches.push_back(custom.get());
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
}

} // namespace inkmacro::view
