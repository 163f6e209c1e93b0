#pragma once

#include <QString>

namespace inkmacro {

/// An identifier in braces that nothing else has; for a host that asks for sameness (kSameIdentifiers) that of the
/// role, each time the same.
QString newUuid(const QString& role);

} // namespace inkmacro
