#pragma once

#include "host/rx/OdArray.h"
#include "targets/trimSearch.h"

#include <vector>

/// The edges that objects are cut off at or extended to, those objects, and where the user picked each.
struct CutObjects
{
    std::vector<CFxString> edges;
    std::vector<CFxString> objects;
    OdArray<OdGePoint3d> points;
};

/// The pick points are one an object to trim. `edgeFlag`: 1 when cutting edges count as if they went on. Behind the
/// call comes the search for the pieces, when there are any.
Statement EmitTrimEntities(Writer& writer, const std::vector<CFxString>& cutting, const std::vector<CFxString>& removed,
                         const OdArray<OdGePoint3d>& points, std::int32_t edgeFlag,
                         const std::vector<TrimPiece>& pieces);
Statement EmitExtendEntities(Writer& writer, const std::vector<CFxString>& boundary,
                           const std::vector<CFxString>& extended, const OdArray<OdGePoint3d>& points,
                           std::int32_t edgeFlag);
