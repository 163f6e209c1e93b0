#pragma once

#include "frame/CFxConverterIWAPIImpl.h"

/// VB.NET: a class with a `Run`, a start-up module that finds the running application, and a project file.
class CFxConverterIWAPIVbNet final : public CFxConverterIWAPIImpl
{
public:
    explicit CFxConverterIWAPIVbNet(std::uint32_t mode) : CFxConverterIWAPIImpl(inkmacro::Target::VbNet, mode) {}

    QString EmitFileHeader(const QString& className, bool hasSysVar) override;
    QString EmitFileFooter() override;
    QString EmitProgramText(const QString& projectName) override;
    QString EmitProjectText(const QString& projectName) override;
    std::int32_t EmitProjectFiles(const QString& path) override;
};
