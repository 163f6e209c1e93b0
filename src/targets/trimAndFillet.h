#pragma once

#include "host/db/OdGe.h"
#include "host/rx/OdArray.h"
#include "statements/Writer.h"
#include "targets/trimSearch.h"

#include <array>
#include <optional>
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

/// The objects on one side of a corner, and where the user picked them.
struct CornerSide
{
    std::vector<CFxString> names;
    OdArray<OdGePoint3d> points;
};

/// What the host was set to when the corners were cut.
struct ChamferSettings
{
    /// First and second distance, length (drawing units) and angle; none without a drawing.
    std::optional<std::array<double, 4>> sizes;
    std::int16_t byAngle = 0; ///< 1: by length and angle, 0: by the two distances
    std::int16_t trims = 0;   ///< 1: the objects are cut off at the corner
};

/// Without a radius, that of the program that runs the macro is left as it is.
Statement EmitFilletEntities(Writer& writer, const CornerSide& first, const CornerSide& second,
                             std::optional<double> radius);
Statement EmitChamferEntities(Writer& writer, const CornerSide& first, const CornerSide& second,
                              const ChamferSettings& settings);
