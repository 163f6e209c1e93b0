#pragma once

#include "host/db/OdGe.h"
#include "statements/Writer.h"

QString EmitCallWithPoint(Writer& writer, const CFxString& target, const CFxString& method, const OdGePoint3d& point);
/// `getter` and `setter` are the host's operations. `axis` is "X", "Y" or "Z"; `index` is -1 for a property that
/// is not repeated.
QString EmitChangePoint(Writer& writer, const CFxString& target, const CFxString& axis, const CFxString& getter,
                        const CFxString& setter, double value, std::int32_t index);
/// A scale factor of the axis. A page's points have members of their own for these; the other targets lack the
/// statement.
QString EmitChangeScale(Writer& writer, const CFxString& target, const CFxString& axis, const CFxString& getter,
                        const CFxString& setter, double value);
/// `local` is "getX", "getY" or "getZ".
QString EmitChangePosition(Writer& writer, const CFxString& target, const CFxString& local, double value);
QString EmitChangeFirstPoint(Writer& writer, const CFxString& target, const CFxString& local, double value);
QString EmitChangeSecondPoint(Writer& writer, const CFxString& target, const CFxString& local, double value);
QString EmitChangeVertex(Writer& writer, const CFxString& target, std::int32_t index, const CFxString& axis,
                         double value);
QString EmitChangeVertex2D(Writer& writer, const CFxString& target, std::int32_t index, const CFxString& axis,
                           double value);
// A coordinate of a point that has one host operation to read and one to write: "Get" and "Set" in front of the stem.
QString EmitChangeCoordinateX(Writer& writer, const CFxString& target, const CFxString& stem, double value);
QString EmitChangeCoordinateY(Writer& writer, const CFxString& target, const CFxString& stem, double value);
QString EmitChangeCoordinateZ(Writer& writer, const CFxString& target, const CFxString& stem, double value);
/// Of a point in a plane, as the next one does.
QString EmitChangeCoordinate2DX(Writer& writer, const CFxString& target, const CFxString& stem, double value);
QString EmitChangeCoordinate2DY(Writer& writer, const CFxString& target, const CFxString& stem, double value);
