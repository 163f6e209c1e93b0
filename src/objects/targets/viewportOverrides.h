#pragma once

#include "host/db/OdCmColor.h"
#include "host/db/OdDbObjectId.h"
#include "statements/Writer.h"

// What a layer looks like in the active viewport. `operation` is the host's.

Statement EmitViewportOverrideBool(Writer& writer, const CFxString& layer, const CFxString& operation, bool value);
Statement EmitViewportOverrideColor(Writer& writer, const CFxString& layer, const CFxString& operation,
                                    const OdCmColor& color);
/// Empty for a style that the drawing does not have.
Statement EmitViewportOverrideLineStyle(Writer& writer, const CFxString& layer, const CFxString& operation,
                                        const OdDbObjectId& id);
/// `weight` is in hundredths of a millimetre, -1 by layer, -2 by block.
Statement EmitViewportOverrideLineWeight(Writer& writer, const CFxString& layer, const CFxString& operation,
                                         int weight);
Statement EmitViewportOverrideText(Writer& writer, const CFxString& layer, const CFxString& operation,
                                   const CFxString& value, bool quoted);
