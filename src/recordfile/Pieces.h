#pragma once

#include "host/kernel/CFxActions.h"
#include "host/kernel/CFxCustomActionData.h"

#include <QJsonObject>

namespace inkmacro {

// Parts of a recording as they stand in its file, for those who show them. Keys that a file may leave out are there,
// save those whose value would be null.

QJsonValue ValueToJson(const CFxVariant& value);

/// The value that stands behind the action's kind.
QJsonValue ActionToJson(const OdRxObjectPtr& action, CFxValueContext context);

/// The key of the action's kind, "null" for a null pointer; empty when a file has no such kind.
QString ActionKind(const OdRxObjectPtr& action);

/// The key that stands for the type of a custom action's item.
QString DataType(const CFxCustomActionData& data);

} // namespace inkmacro
