#pragma once

#include "host/db/OdDbHandle.h"

namespace inkmacro {

/// The command `snapshot`: shows what the recorder's snapshot adds for one object of the recording's drawing. Gives an
/// exit status.
int showSnapshot(const QString& path, const OdDbHandle& handle, bool json);

} // namespace inkmacro
