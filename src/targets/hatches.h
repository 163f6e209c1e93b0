#pragma once

#include "host/db/OdCmColor.h"
#include "host/db/OdGe.h"
#include "host/rx/OdArray.h"
#include "statements/Writer.h"

/// How a pattern fills a hatch, as the host's insertion calls take it.
struct HatchPattern
{
    CFxString name;
    double first = 1.0;  ///< the first number of every call: the scale as the recording has it
    double second = 0.0; ///< the second: the angle, in radians
};

/// A blend of two colors in place of a pattern. The angle is in radians.
struct HatchGradient
{
    OdCmColor first;
    OdCmColor second;
    bool centered = false;
    double angle = 0.0;
};

/// Declares the variable of the polyline too.
/// The variable of a polyline that bounds a hatch and goes again.
CFxString HatchPolylineName(const Writer& writer, std::uint32_t number);
Statement EmitHatchBoundaryPolyline(Writer& writer, const CFxString& name, const OdArray<OdGePoint2d>& points,
                                    bool closed);
/// Bends the segment that begins at the vertex; `angle` is that of the arc, in radians.
Statement EmitSetSegmentAngle(Writer& writer, const CFxString& polyline, std::int32_t index, double angle);
/// Bends the segments by their bulges, the tangents of a quarter of the angle of each arc.
Statement EmitSetSegmentAngles(Writer& writer, const CFxString& polyline, const OdArray<double>& bulges);
/// With `erase` the polyline does not outlive the insertion.
Statement EmitHatchByPolyline(Writer& writer, const CFxString& hatch, const CFxString& polyline,
                              const HatchPattern& pattern, bool erase);
Statement EmitHatchGradient(Writer& writer, const CFxString& hatch, const HatchGradient& gradient);
