#pragma once

#include "objects/targets/boundaryEntities.h"
#include "targets/hatches.h"

/// Objects of the boundary that the macro has no variable for are made first. With `erase` these do not outlive the
/// insertion; the others stay in any case.
Statement EmitInsertHatchByEntities(Writer& writer, const CFxString& hatch, const std::vector<BoundaryObject>& boundary,
                                    const HatchPattern& pattern, bool erase);
/// `counts` tells how many of the points belong to each loop.
Statement EmitInsertHatchByBoundary(Writer& writer, const CFxString& hatch, const OdArray<int>& counts,
                                    const OdArray<OdGePoint2d>& points, const HatchPattern& pattern);
Statement EmitInsertHatchByInternalPoints(Writer& writer, const CFxString& hatch, const OdArray<OdGePoint2d>& points,
                                          const HatchPattern& pattern);
