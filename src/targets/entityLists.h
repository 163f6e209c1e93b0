#pragma once

#include "host/db/OdGe.h"
#include "statements/Writer.h"
#include "targets/EntityList.h"

Statement EmitMirrorEntities(Writer& writer, const EntityList& entities, const OdGePoint3d& first,
                             const OdGePoint3d& second, bool erase);
/// `first`: the arrays are written too; further calls of the same action use them again.
Statement EmitCopyEntities(Writer& writer, const EntityList& entities, const OdGeVector3d& offset, bool first);
Statement EmitMoveEntities(Writer& writer, const EntityList& entities, const OdGeVector3d& offset, bool first);
Statement EmitRotateEntities(Writer& writer, const EntityList& entities, const OdGePoint3d& center, double angle);
Statement EmitScaleEntities(Writer& writer, const EntityList& entities, const OdGePoint3d& center, double factor);
Statement EmitStretchEntities(Writer& writer, const EntityList& entities, const OdGePoint3d& start,
                              const OdGePoint3d& end, const OdGeVector3d& offset);
