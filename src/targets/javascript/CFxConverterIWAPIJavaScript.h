#pragma once

#include "frame/CFxConverterIWAPIImpl.h"

/// JavaScript: one page that loads the host's script library and runs the macro at the press of a button.
class CFxConverterIWAPIJavaScript final : public CFxConverterIWAPIImpl
{
public:
    explicit CFxConverterIWAPIJavaScript(std::uint32_t mode) : CFxConverterIWAPIImpl(inkmacro::Target::JavaScript, mode)
    {
    }

    QString EmitFileHeader(const QString& className, bool hasSysVar) override;
    QString EmitFileFooter() override;
};
