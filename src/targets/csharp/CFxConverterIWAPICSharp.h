#pragma once

#include "targets/dotnet/DotNetFrame.h"

/// C#: a class with a `Run`. It lives in a namespace of its own, which is why the program's call is qualified.
class CFxConverterIWAPICSharp final : public DotNetFrame
{
public:
    explicit CFxConverterIWAPICSharp(Writer& writer);

    Statement EmitFileHeader(const QString& className, bool hasSysVar) override;
    Statement EmitFileFooter() override;
};
