#pragma once

#include "host/db/OdGe.h"
#include "host/rx/OdArray.h"
#include "statements/Writer.h"

/// `justification` is the drawing's number: 0 top, 1 zero, 2 bottom; any other gives top.
Statement EmitInsertRichLine(Writer& writer, const OdArray<OdGePoint3d>& vertices, int justification, double scale,
                             const CFxString& style, bool closed, const CFxString& name);
Statement EmitInsertPolyline3D(Writer& writer, const OdArray<OdGePoint3d>& vertices, bool closed,
                               const CFxString& name);
Statement EmitInsertPolyline2D(Writer& writer, const OdArray<OdGePoint2d>& vertices, bool closed,
                               const CFxString& name);
Statement EmitInsertSpline(Writer& writer, const OdArray<OdGePoint3d>& fitPoints, bool closed,
                           const OdGePoint3d& startTangent, const OdGePoint3d& endTangent, const CFxString& name);
