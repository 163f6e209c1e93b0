#pragma once

#include "objects/targets/PhrasedObjectConverter.h"

/// Object statements in C++.
class CFxConverterIWAPIObjectCPP final : public PhrasedObjectConverter
{
public:
    explicit CFxConverterIWAPIObjectCPP(CFxConverterIWAPIImpl* driver)
        : PhrasedObjectConverter(inkmacro::Target::Cpp, driver)
    {
    }
};
