#include "targets/dotnet/DotNetFrame.h"

#include "statements/LineEnd.h"
#include "statements/wording.h"
#include "targets/projectFiles.h"
#include "targets/texts.h"

#include <QFileInfo>

using namespace inkmacro;

Statement DotNetFrame::EmitProgramText(const QString& projectName) const
{
    return fillProject(project_.program, {faultyName(projectName, identifier(projectName)), LineEnd});
}

Statement DotNetFrame::EmitProjectText(const QString& projectName, const QString& macroFile) const
{
    const QByteArray words = QByteArray(project_.words)
                                 .replace("{comReference}\n", texts::dotnet::comReference)
                                 .replace("{macroFile}", mended(project_.macroFile, "%3"));
    return fillProject(words, {xmlText(identifier(projectName)), LineEnd, xmlText(macroFile)});
}

std::int32_t DotNetFrame::EmitProjectFiles(const QString& path)
{
    const QString name = projectName(path);
    return WriteProject(path, {{project_.programFile, EmitProgramText(name), writer.repairs},
                               {name + project_.extension, EmitProjectText(name, QFileInfo(path).fileName()), false}});
}
