#pragma once

#include "host/kernel/CFxActions.h"

#include <QJsonObject>

#include <map>

namespace inkmacro {

/// How many actions of each kind there are, those within commands included.
using ActionCounts = std::map<QString, int>;

/// An action with all that is in it, in the form that recording files have, except that properties are counted and of
/// custom data only the types are told, and the name of the kind. Null stands for an empty place.
QJsonObject actionToJson(const OdRxObjectPtr& action, CFxValueContext context, ActionCounts& counts);

} // namespace inkmacro
