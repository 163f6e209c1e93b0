#pragma once

#include "host/db/OdGe.h"
#include "host/rx/OdArray.h"
#include "statements/Writer.h"

QString EmitSetClipBoundary(Writer& writer, const CFxString& image, const OdArray<OdGePoint2d>& points);
QString EmitRemoveClipBoundary(Writer& writer, const CFxString& image);
