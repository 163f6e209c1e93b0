#pragma once

#include <QString>

namespace inkmacro {

/// Ends every generated line, on every platform.
inline const QString LineEnd = QStringLiteral("\n");

} // namespace inkmacro
