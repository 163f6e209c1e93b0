#pragma once

#include "host/db/OdGe.h"
#include "host/rx/OdArray.h"
#include "statements/Writer.h"

Statement EmitSetClipBoundary(Writer& writer, const CFxString& image, const OdArray<OdGePoint2d>& points);
Statement EmitRemoveClipBoundary(Writer& writer, const CFxString& image);
