#pragma once

#include "host/kernel/CFxActions.h"

namespace inkmacro::view {

/// The numbers of the custom actions that change a picture.
enum CustomKind : std::int32_t
{
    kMirror = 0,
    kStretch = 1,
    kCopy = 2,
    kMove = 3,
    kRotate = 4,
    kScale = 5,
    kTrim = 6,
    kExtend = 7,
    kFillet = 8,
    kChamfer = 9,
    kSheet = 13,
    kEmbed = 15,
    kPolyline = 16,
    kErase = 17,
    kHatch = 18,
    kAttribute = 39,
    kPolylineEdit = 40,
    kVertex = 42,
    kRegion = 44,
    kActivate = 45,
    kViewport = 46,
    kClip = 48,
    kJoin = 50,
    kExplode = 55
};

/// A datum by its number; a missing one is neutral.
const CFxCustomActionData& datum(const CFxCustomAction& action, int number);

/// Of one handle or several.
std::vector<OdDbHandle> handlesIn(const CFxCustomAction& action, int number);

} // namespace inkmacro::view
