#pragma once

#include "host/kernel/CFxActions.h"

#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace inkmacro::view {

/// What the actions of one command say of one another.
struct Siblings
{
    explicit Siblings(const CFxActionArray& actions);

    std::unordered_set<const OdRxClass*> added; ///< classes of what is added
    /// Custom actions that draw polylines, by the polyline.
    std::unordered_map<OdDbHandle, const CFxCustomAction*, OdDbHandleHash> polylines;
    /// Those that make hatches, by the hatch: the first makes the first that is added.
    std::unordered_map<OdDbHandle, const CFxCustomAction*, OdDbHandleHash> hatches;
    /// Those that make embedded objects and viewports, in their order.
    std::vector<const CFxCustomAction*> embeddings;
    std::vector<const CFxCustomAction*> viewports;
};

} // namespace inkmacro::view
