#pragma once

#include "host/db/OdGe.h"
#include "statements/Writer.h"
#include "targets/EntityList.h"

QString EmitMirrorEntities(Writer& writer, const EntityList& entities, const OdGePoint3d& first,
                           const OdGePoint3d& second, bool erase);
/// `first`: the arrays are written too; further calls of the same action use them again.
QString EmitCopyEntities(Writer& writer, const EntityList& entities, const OdGeVector3d& offset, bool first);
QString EmitMoveEntities(Writer& writer, const EntityList& entities, const OdGeVector3d& offset, bool first);
QString EmitRotateEntities(Writer& writer, const EntityList& entities, const OdGePoint3d& center, double angle);
QString EmitScaleEntities(Writer& writer, const EntityList& entities, const OdGePoint3d& center, double factor);
QString EmitStretchEntities(Writer& writer, const EntityList& entities, const OdGePoint3d& start,
                            const OdGePoint3d& end, const OdGeVector3d& offset);
