#pragma once

#include "objects/targets/PhrasedObjectConverter.h"

/// Object statements in VBA.
class CFxConverterIWAPIObjectVba final : public PhrasedObjectConverter
{
public:
    explicit CFxConverterIWAPIObjectVba(CFxConverterIWAPIImpl* driver)
        : PhrasedObjectConverter(inkmacro::Target::Vba, driver)
    {
    }
};
