#pragma once

#include "targets/MacroFrame.h"

/// The project around a macro in a language of .NET: a program that finds the running application and runs the macro,
/// and the project file.
class DotNetFrame : public MacroFrame
{
public:
    /// What differs by language. In the texts %1 is the project and %2 the line end. One marker for the line end is
    /// enough: without any, a marker in the name would take its value.
    struct Project
    {
        const char* programFile;
        const char* program;
        const char* extension; ///< of the project file
        const char* words;
        const char* macroFile; ///< stands in the words for "{macroFile}"
    };

    std::int32_t EmitProjectFiles(const QString& path) final;
    const char* refusal(const QString& fileName) const final;

protected:
    /// The project must outlive the frame.
    DotNetFrame(Writer& writer, const Project& project) : MacroFrame(writer), project_(project) {}

private:
    Statement EmitProgramText(const QString& projectName) const;
    /// In a repaired project the macro's file is %3, since its name need not be that of the class.
    Statement EmitProjectText(const QString& projectName, const QString& macroFile) const;

    const Project& project_;
};
