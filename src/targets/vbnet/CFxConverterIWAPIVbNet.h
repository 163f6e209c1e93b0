#pragma once

#include "targets/MacroFrame.h"

/// VB.NET: a class with a `Run`, a start-up module that finds the running application, and a project file.
class CFxConverterIWAPIVbNet final : public MacroFrame
{
public:
    using MacroFrame::MacroFrame;

    Statement EmitFileHeader(const QString& className, bool hasSysVar) override;
    Statement EmitFileFooter() override;
    std::int32_t EmitProjectFiles(const QString& path) override;

private:
    Statement EmitProgramText(const QString& projectName) const;
    Statement EmitProjectText(const QString& projectName, const QString& macroFile) const;
};
