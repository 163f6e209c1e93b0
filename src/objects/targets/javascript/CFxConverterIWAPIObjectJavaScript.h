#pragma once

#include "objects/targets/PhrasedObjectConverter.h"

/// Object statements in JavaScript.
class CFxConverterIWAPIObjectJavaScript final : public PhrasedObjectConverter
{
public:
    explicit CFxConverterIWAPIObjectJavaScript(CFxConverterIWAPIImpl* driver)
        : PhrasedObjectConverter(inkmacro::Target::JavaScript, driver)
    {
    }
};
