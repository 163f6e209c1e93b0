#pragma once

#include "dxf/Facts.h"

namespace inkmacro {

/// How the statements of the macro writer take what changed of objects.
dxf::ChangeForms changeForms();

} // namespace inkmacro
