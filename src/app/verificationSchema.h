#pragma once

#include <QByteArray>

namespace inkmacro {

/// The JSON Schema of what `verify` prints for programs.
QByteArray verificationSchema();

} // namespace inkmacro
