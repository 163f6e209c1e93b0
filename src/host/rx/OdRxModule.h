#pragma once

#include "host/rx/OdRxObject.h"

/// A loadable module. The host creates it through the library's export `odrxCreateModuleObject` and runs the two
/// operations once each, after loading and before unloading.
class INKHOST_EXPORT OdRxModule : public OdRxObject
{
public:
    static OdRxClass* desc();
    OdRxClass* isA() const override { return desc(); }

    virtual void initApp() = 0;
    virtual void uninitApp() = 0;
};

/// The interface version that a module must have been built against, as `odrxGetAPIVersion` gives it.
inline constexpr unsigned odrxApiVersion = 1;
