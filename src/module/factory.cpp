// The converters by language code.

#include "module/CFxConverterIWAPIImpl.h"
#include "statements/Target.h"

std::unique_ptr<CFxConverterIWAPI> CreateConverter(std::uint32_t language, std::uint32_t mode, CFxValueContext context)
{
    if (language >= inkmacro::targetCount)
        return nullptr;
    auto converter = std::make_unique<CFxConverterIWAPIImpl>(static_cast<inkmacro::Target>(language), mode);
    converter->SetContext(context);
    return converter;
}
