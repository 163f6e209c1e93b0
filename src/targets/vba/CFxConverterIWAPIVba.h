#pragma once

#include "targets/PhrasedConverter.h"

/// VBA: one subroutine to paste into an editor. The macro's name plays no part in it.
class CFxConverterIWAPIVba final : public PhrasedConverter
{
public:
    explicit CFxConverterIWAPIVba(std::uint32_t mode) : PhrasedConverter(inkmacro::Target::Vba, mode) {}

    QString EmitFileHeader(const QString& className, bool hasSysVar) override;
    QString EmitFileFooter() override;
};
