#pragma once

#include "host/db/OdGe.h"
#include "statements/Writer.h"

QString EmitSaveCoordinateSystem(Writer& writer, const CFxString& name);
QString EmitRestoreCoordinateSystem(Writer& writer, const CFxString& name);
QString EmitRemoveCoordinateSystem(Writer& writer, const CFxString& name);
QString EmitPreviousCoordinateSystem(Writer& writer);
QString EmitWorldCoordinateSystem(Writer& writer);
/// `enumerator` as `iwDefaultCustomCoordinateSystem_Top`.
QString EmitDefaultCoordinateSystem(Writer& writer, const CFxString& enumerator);

// The active system is changed.

QString EmitViewCoordinateSystem(Writer& writer);
QString EmitCoordinateSystemOrigin(Writer& writer, const OdGePoint3d& origin);
QString EmitAlignCoordinateSystemToEntity(Writer& writer, const CFxString& entity, const OdGePoint3d& point);
QString EmitAlignCoordinateSystemZAxis(Writer& writer, const OdGePoint3d& origin, const OdGePoint3d& onAxis);
QString EmitThreePointCoordinateSystem(Writer& writer, const OdGePoint3d& origin, const OdGePoint3d& onXAxis,
                                       const OdGePoint3d& onPlane);
