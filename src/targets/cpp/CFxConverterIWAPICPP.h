#pragma once

#include "targets/MacroFrame.h"

/// C++: a command class whose `ExecuteNotify` repeats the recording, and the add-in project that registers it.
class CFxConverterIWAPICPP final : public MacroFrame
{
public:
    using MacroFrame::MacroFrame;

    QString EmitFileHeader(const QString& className, bool hasSysVar) override;
    QString EmitFileFooter() override;
    std::int32_t EmitProjectFiles(const QString& path) override;

private:
    /// The header with the export macros; `name` is its own, without extension.
    QString EmitProgramText(const QString& name) const;
    QString EmitProjectText(const QString& projectName) const;
};
