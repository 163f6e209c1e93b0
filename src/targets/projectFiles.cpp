// The files of a project, beside the macro file.

#include "targets/projectFiles.h"

#include "targets/PhrasedConverter.h"

#include <QDir>
#include <QFileInfo>

using namespace inkmacro;

QString inkmacro::xmlText(const QString& text)
{
    return text.toHtmlEscaped();
}

std::int32_t PhrasedConverter::WriteProject(const QString& macroPath, const std::vector<ProjectFile>& files)
{
    const QString directory = QFileInfo(macroPath).path();
    if (!QDir().exists(directory) && !QDir().mkpath(directory))
        return kFxFailure;
    for (const ProjectFile& file : files)
        if (!WriteTextFile(directory + "//" + file.name, file.text, file.byteOrderMark))
            return kFxFailure;
    return kFxSuccess;
}
