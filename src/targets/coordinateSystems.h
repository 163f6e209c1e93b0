#pragma once

#include "host/db/OdGe.h"
#include "statements/Writer.h"

Statement EmitSaveCoordinateSystem(Writer& writer, const CFxString& name);
Statement EmitRestoreCoordinateSystem(Writer& writer, const CFxString& name);
Statement EmitRemoveCoordinateSystem(Writer& writer, const CFxString& name);
Statement EmitPreviousCoordinateSystem(Writer& writer);
Statement EmitWorldCoordinateSystem(Writer& writer);
/// `enumerator` as `iwDefaultCustomCoordinateSystem_Top`.
Statement EmitDefaultCoordinateSystem(Writer& writer, const CFxString& enumerator);

// The active system is changed.

Statement EmitViewCoordinateSystem(Writer& writer);
Statement EmitCoordinateSystemOrigin(Writer& writer, const OdGePoint3d& origin);
Statement EmitAlignCoordinateSystemToEntity(Writer& writer, const CFxString& entity, const OdGePoint3d& point);
Statement EmitAlignCoordinateSystemZAxis(Writer& writer, const OdGePoint3d& origin, const OdGePoint3d& onAxis);
Statement EmitThreePointCoordinateSystem(Writer& writer, const OdGePoint3d& origin, const OdGePoint3d& onXAxis,
                                         const OdGePoint3d& onPlane);
