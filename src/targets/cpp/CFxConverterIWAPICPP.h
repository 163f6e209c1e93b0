#pragma once

#include "targets/MacroFrame.h"

/// C++: a command class whose `ExecuteNotify` repeats the recording, and the add-in project that registers it.
class CFxConverterIWAPICPP final : public MacroFrame
{
public:
    using MacroFrame::MacroFrame;

    Statement EmitFileHeader(const QString& className, bool hasSysVar) override;
    Statement EmitFileFooter() override;
    std::int32_t EmitProjectFiles(const QString& path) override;
    const char* refusal(const QString& fileName) const override;

private:
    /// The header with the export macros; `name` is its own, without extension.
    Statement EmitProgramText(const QString& name) const;
    Statement EmitProjectText(const QString& projectName, const QString& macroFile) const;
};
