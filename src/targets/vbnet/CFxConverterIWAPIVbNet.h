#pragma once

#include "targets/dotnet/DotNetFrame.h"

/// VB.NET: a class with a `Run`.
class CFxConverterIWAPIVbNet final : public DotNetFrame
{
public:
    explicit CFxConverterIWAPIVbNet(Writer& writer);

    Statement EmitFileHeader(const QString& className, bool hasSysVar) override;
    Statement EmitFileFooter() override;
};
