#pragma once

#include "statements/Target.h"

#include <QString>

#include <cstdint>

namespace inkmacro {

/// The number of an enumerator of iwObjectType_e, which a script has no name for; 0 for an unknown one.
std::int32_t ObjectTypeValue(const QString& enumerator);

/// An object type as an array of object types holds it.
QString objectTypeWord(Target target, const QString& enumerator);

} // namespace inkmacro
