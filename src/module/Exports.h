#pragma once

#include "module/CFxConverterIWAPIModule.h"
#include "statements/hostSettings.h"

extern "C" {

/// A new module object, whatever the name is: a CFxConverterIWAPIModule, whose one reference is the caller's.
OdRxModule* odrxCreateModuleObject(const char* name);

/// The interface version that the module was built with. A host that was built with another odrxApiVersion leaves the
/// module alone.
unsigned odrxGetAPIVersion();
}
