#pragma once

#include "host/db/OdGe.h"
#include "statements/Writer.h"

// `range` is an enumerator, such as "iwZoomRange_Fit".

Statement EmitZoom(Writer& writer, const CFxString& range);
Statement EmitZoom(Writer& writer, const CFxString& range, const OdGePoint3d& lowerLeft, const OdGePoint3d& upperRight);
