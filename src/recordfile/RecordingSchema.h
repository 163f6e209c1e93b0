#pragma once

#include <QByteArray>

namespace inkmacro {

/// The JSON Schema (draft 2020-12) of one line of a recording file.
QByteArray RecordingSchema();

} // namespace inkmacro
