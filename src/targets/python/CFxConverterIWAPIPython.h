#pragma once

#include "targets/MacroFrame.h"
#include "targets/python/Functions.h"

/// Python: a module with a function for each command, which repeats the recording when it is run.
class CFxConverterIWAPIPython final : public MacroFrame
{
public:
    using MacroFrame::MacroFrame;

    Statement EmitFileHeader(const QString& className, bool hasSysVar) override;
    Statement EmitFileFooter() override;
    std::int32_t EmitProjectFiles(const QString& path) override;
    inkmacro::CommandFunctions* functions() override { return &functions_; }

private:
    /// What the class Drawing does about the place where the recording began.
    QString sketchManager() const;

    inkmacro::python::Functions functions_;
    QString name_; ///< of the macro's file, without its suffix
};
