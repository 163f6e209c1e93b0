#pragma once

#include "frame/CFxConverterIWAPIImpl.h"

/// VBA: one subroutine to paste into an editor. The macro's name plays no part in it.
class CFxConverterIWAPIVba final : public CFxConverterIWAPIImpl
{
public:
    explicit CFxConverterIWAPIVba(std::uint32_t mode) : CFxConverterIWAPIImpl(inkmacro::Target::Vba, mode) {}

    QString EmitFileHeader(const QString& className, bool hasSysVar) override;
    QString EmitFileFooter() override;
};
