#pragma once

#include "frame/CFxConverterIWAPIImpl.h"

/// C#: a class with a `Run`, a start-up program that finds the running application, and a project file.
class CFxConverterIWAPICSharp final : public CFxConverterIWAPIImpl
{
public:
    explicit CFxConverterIWAPICSharp(std::uint32_t mode) : CFxConverterIWAPIImpl(inkmacro::Target::CSharp, mode) {}

    QString EmitFileHeader(const QString& className, bool hasSysVar) override;
    QString EmitFileFooter() override;
    QString EmitProgramText(const QString& projectName) override;
    QString EmitProjectText(const QString& projectName) override;
    std::int32_t EmitProjectFiles(const QString& path) override;
};
