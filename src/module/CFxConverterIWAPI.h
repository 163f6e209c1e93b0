#pragma once

#include "module/CFxConverterIWAPIModule.h"

#include <memory>

/// A converter as the module sees it: made for one target, used for one conversion, then destroyed.
class CFxConverterIWAPI
{
public:
    virtual ~CFxConverterIWAPI() = default;

    /// Writes the macro file and the project around it; gives kFxSuccess or kFxFailure.
    virtual std::int32_t Convert(const CFxString& path, const CFxActionArray& actions) = 0;
    virtual CFxValueContext GetContext() const = 0;
    virtual void SetContext(CFxValueContext context) = 0;

protected:
    CFxConverterIWAPI() = default;
    CFxConverterIWAPI(const CFxConverterIWAPI&) = delete;
    CFxConverterIWAPI& operator=(const CFxConverterIWAPI&) = delete;
};

/// The converter for a language code, with the context set; null for a code that no target has.
std::unique_ptr<CFxConverterIWAPI> CreateConverter(std::uint32_t language, std::uint32_t mode, CFxValueContext context);
