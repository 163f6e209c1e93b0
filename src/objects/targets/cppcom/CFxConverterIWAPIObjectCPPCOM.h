#pragma once

#include "objects/targets/PhrasedObjectConverter.h"

/// Object statements in C++ through COM pointers.
class CFxConverterIWAPIObjectCPPCOM final : public PhrasedObjectConverter
{
public:
    explicit CFxConverterIWAPIObjectCPPCOM(CFxConverterIWAPIImpl* driver)
        : PhrasedObjectConverter(inkmacro::Target::CppCom, driver)
    {
    }
};
