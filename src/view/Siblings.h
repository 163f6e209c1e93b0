#pragma once

#include "host/kernel/CFxActions.h"

#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace inkmacro::view {

/// What the actions of one command say of one another.
struct Siblings
{
    using ByHandle = std::unordered_map<OdDbHandle, const CFxCustomAction*, OdDbHandleHash>;

    explicit Siblings(const CFxActionArray& actions);

    std::unordered_set<const OdRxClass*> added; ///< classes of what is added
    /// Custom actions that draw polylines, by the polyline.
    ByHandle polylines;
    ByHandle viewports;
    ByHandle hatches;  ///< the first one by the first action
    ByHandle embedded; ///< objects, likewise
    ByHandle regions;
};

} // namespace inkmacro::view
