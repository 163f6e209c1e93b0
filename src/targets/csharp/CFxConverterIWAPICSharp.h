#pragma once

#include "targets/PhrasedConverter.h"

/// C#: a class with a `Run`, a start-up program that finds the running application, and a project file.
class CFxConverterIWAPICSharp final : public PhrasedConverter
{
public:
    explicit CFxConverterIWAPICSharp(std::uint32_t mode) : PhrasedConverter(inkmacro::Target::CSharp, mode) {}

    QString EmitFileHeader(const QString& className, bool hasSysVar) override;
    QString EmitFileFooter() override;
    QString EmitProgramText(const QString& projectName) override;
    QString EmitProjectText(const QString& projectName) override;
    std::int32_t EmitProjectFiles(const QString& path) override;
};
