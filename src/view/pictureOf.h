#pragma once

#include "host/db/OdDbDatabase.h"
#include "host/kernel/CFxActions.h"
#include "view/Picture.h"

namespace inkmacro::view {

/// What the picture of a recording needs beside its actions and its drawing.
struct PictureSource
{
    QString sheet; ///< that was current when recording began; empty for model space
    CFxValueContext context = 0;
};

/// Nothing of the drawing or of the actions is needed behind it. The drawing is as the recording tells it, without
/// stand-ins for what the recording adds.
Picture pictureOf(OdDbDatabase& database, const CFxActionArray& actions, const PictureSource& source);

} // namespace inkmacro::view
