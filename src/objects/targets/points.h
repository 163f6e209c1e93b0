#pragma once

#include "host/db/OdGe.h"
#include "statements/Writer.h"

Statement EmitCallWithPoint(Writer& writer, const CFxString& target, const CFxString& method, const OdGePoint3d& point);
/// `getter` and `setter` are the host's operations. `axis` is "X", "Y" or "Z"; `index` is -1 for a property that
/// is not repeated.
Statement EmitChangePoint(Writer& writer, const CFxString& target, const CFxString& axis, const CFxString& getter,
                          const CFxString& setter, double value, std::int32_t index,
                          inkmacro::Meaning meaning = inkmacro::Meaning::None);
/// A scale factor of the axis. A page's points have members of their own for these; the other targets lack the
/// statement.
Statement EmitChangeScale(Writer& writer, const CFxString& target, const CFxString& axis, const CFxString& getter,
                          const CFxString& setter, double value);
/// `local` is "getX", "getY" or "getZ".
Statement EmitChangePosition(Writer& writer, const CFxString& target, const CFxString& local, double value);
Statement EmitChangeFirstPoint(Writer& writer, const CFxString& target, const CFxString& local, double value);
Statement EmitChangeSecondPoint(Writer& writer, const CFxString& target, const CFxString& local, double value);
Statement EmitChangeVertex(Writer& writer, const CFxString& target, std::int32_t index, const CFxString& axis,
                           double value);
Statement EmitChangeVertex2D(Writer& writer, const CFxString& target, std::int32_t index, const CFxString& axis,
                             double value);
// A coordinate of a point that has one host operation to read and one to write: "Get" and "Set" in front of the stem.
Statement EmitChangeCoordinateX(Writer& writer, const CFxString& target, const CFxString& stem, double value);
Statement EmitChangeCoordinateY(Writer& writer, const CFxString& target, const CFxString& stem, double value);
Statement EmitChangeCoordinateZ(Writer& writer, const CFxString& target, const CFxString& stem, double value);
/// Of a point in a plane, as the next one does.
Statement EmitChangeCoordinate2DX(Writer& writer, const CFxString& target, const CFxString& stem, double value);
Statement EmitChangeCoordinate2DY(Writer& writer, const CFxString& target, const CFxString& stem, double value);
