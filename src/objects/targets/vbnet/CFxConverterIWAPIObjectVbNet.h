#pragma once

#include "objects/targets/PhrasedObjectConverter.h"

/// Object statements in VB.NET.
class CFxConverterIWAPIObjectVbNet final : public PhrasedObjectConverter
{
public:
    explicit CFxConverterIWAPIObjectVbNet(CFxConverterIWAPIImpl* driver)
        : PhrasedObjectConverter(inkmacro::Target::VbNet, driver)
    {
    }
};
