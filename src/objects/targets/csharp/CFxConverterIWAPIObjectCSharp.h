#pragma once

#include "objects/targets/PhrasedObjectConverter.h"

/// Object statements in C#.
class CFxConverterIWAPIObjectCSharp final : public PhrasedObjectConverter
{
public:
    explicit CFxConverterIWAPIObjectCSharp(CFxConverterIWAPIImpl* driver)
        : PhrasedObjectConverter(inkmacro::Target::CSharp, driver)
    {
    }
};
