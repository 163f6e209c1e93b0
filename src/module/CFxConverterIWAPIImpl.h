#pragma once

#include "conversion/Conversion.h"
#include "module/CFxConverterIWAPI.h"
#include "targets/MacroFrame.h"

class MacroFile;

/// One conversion from the output path to the project files. Knows no target: the words come from the Emit operations,
/// and the target's frame adds what varies in more than words.
class CFxConverterIWAPIImpl final : public CFxConverterIWAPI
{
public:
    CFxConverterIWAPIImpl(inkmacro::Target target, std::uint32_t mode);

    std::int32_t Convert(const CFxString& path, const CFxActionArray& actions) override;
    CFxValueContext GetContext() const override { return conversion.context; }
    void SetContext(CFxValueContext value) override { conversion.context = value; }

private:
    std::int32_t ConvertTopLevel(MacroFile& macro, const OdRxObjectPtr& action);

    Conversion conversion;
    const std::unique_ptr<MacroFrame> frame;
};
