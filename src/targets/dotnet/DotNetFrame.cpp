#include "targets/dotnet/DotNetFrame.h"

#include "statements/LineEnd.h"
#include "statements/wording.h"
#include "targets/projectFiles.h"
#include "targets/texts.h"

#include <QFileInfo>

using namespace inkmacro;

// What is no name of one file to MSBuild.
static constexpr char kMisread[] = R"([;*?\\\x01-\x1F\x7F]|[@$%]\(|%[0-9A-Fa-f]{2}|^ )";

Statement DotNetFrame::EmitProgramText(const QString& projectName) const
{
    return fillProject(project_.program, {faultyName(projectName, identifier(projectName)), LineEnd});
}

Statement DotNetFrame::EmitProjectText(const QString& projectName, const QString& macroFile) const
{
    const QByteArray words = QByteArray(project_.words)
                                 .replace("{comReference}\n", texts::dotnet::comReference)
                                 .replace("{macroFile}", mended(project_.macroFile, "%3"));
    return fillProject(words, {xmlText(identifier(projectName)), LineEnd, msbuildItem(macroFile)});
}

const char* DotNetFrame::refusal(const QString& fileName) const
{
    return isXmlName(fileName) ? nullptr : "the project cannot hold the file's name, which is no UTF-8";
}

std::int32_t DotNetFrame::EmitProjectFiles(const QString& path)
{
    const QString name = projectName(path);
    const Statement project =
        faultyEntry("<Compile Include=\"", path, kMisread, EmitProjectText(name, QFileInfo(path).fileName()));
    return WriteProject(path, {{project_.programFile, EmitProgramText(name), writer.repairs},
                               {name + project_.extension, project, false}});
}
