#pragma once

#include "host/db/OdGe.h"
#include "targets/Writer.h"

/// The host's call takes the scales along X and Y alone.
QString EmitInsertExternalReference(Writer& writer, const CFxString& path, const OdGePoint3d& position,
                                    const OdGeScale3d& scales, const CFxString& name);
