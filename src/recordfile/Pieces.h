#pragma once

#include "host/db/OdDbObject.h"
#include "host/kernel/CFxActions.h"

#include <QJsonObject>

namespace inkmacro {

// Parts of a recording as they stand in its file, for those who show them. Keys that a file may leave out are there,
// save those whose value would be null.

QJsonValue ValueToJson(const CFxVariant& value);

/// The value that stands behind the action's kind.
QJsonValue ActionToJson(const OdRxObjectPtr& action, CFxValueContext context);

/// An object of the drawing, without the keys whose value is that of a new object.
QJsonObject ObjectToJson(const OdDbObject& object);

/// The key of the action's kind, "null" for a null pointer; empty when a file has no such kind.
QString ActionKind(const OdRxObjectPtr& action);

} // namespace inkmacro
