#pragma once

#include "frame/CFxConverterIWAPIImpl.h"

/// C++: a command class whose `ExecuteNotify` repeats the recording, and the add-in project that registers it.
class CFxConverterIWAPICPP final : public CFxConverterIWAPIImpl
{
public:
    explicit CFxConverterIWAPICPP(std::uint32_t mode) : CFxConverterIWAPIImpl(inkmacro::Target::Cpp, mode) {}

    QString EmitFileHeader(const QString& className, bool hasSysVar) override;
    QString EmitFileFooter() override;
    /// The header with the export macros; `name` is its own, without extension.
    QString EmitProgramText(const QString& name) override;
    QString EmitProjectText(const QString& projectName) override;
    std::int32_t EmitProjectFiles(const QString& path) override;
};
