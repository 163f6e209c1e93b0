#pragma once

#include "targets/MacroFrame.h"

/// C#: a class with a `Run`, a start-up program that finds the running application, and a project file.
class CFxConverterIWAPICSharp final : public MacroFrame
{
public:
    using MacroFrame::MacroFrame;

    QString EmitFileHeader(const QString& className, bool hasSysVar) override;
    QString EmitFileFooter() override;
    std::int32_t EmitProjectFiles(const QString& path) override;

private:
    QString EmitProgramText(const QString& projectName) const;
    QString EmitProjectText(const QString& projectName) const;
};
