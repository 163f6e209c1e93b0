#pragma once

#include "host/db/OdDbObject.h"
#include "statements/Writer.h"

/// Whether an entity without a variable can be drawn once more; null cannot.
bool CanMakeClip(const OdDbObject* entity);
/// A viewport on the sheet that an entity bounds. `variable` is what the macro has for the entity; when it has none, a
/// circle, polyline or ellipse is drawn like it. `clip` may be null.
Statement EmitInsertViewportByEntity(Writer& writer, const CFxString& sheet, const OdDbObjectPtr& clip,
                                     const QString& variable, const CFxString& name);
