// The add-in around a C++ macro.

#include "statements/LineEnd.h"
#include "statements/wording.h"
#include "targets/cpp/CFxConverterIWAPICPP.h"
#include "targets/installation.h"
#include "targets/projectFiles.h"
#include "targets/texts.h"
#include "targets/vcproj.h"

#include <QFileInfo>

using namespace inkmacro;

// In the texts %1 is the project or, in the first of them, the header itself, %2 the line end. One marker for it is
// enough: without any, a marker in the name would take its value.

static constexpr ConfigurationWord words[] = {
    {"{name}", {"Debug|Win32", "Debug|x64", "Release|Win32", "Release|x64"}},
    {"{environment}", {"1", "3", "1", "3"}},
    {"{runtime}", {"3", "3", "2", "2"}},
    {"{warnings}", {"", "\t\t\t\tWarnAsError=\"true\"\n", "", ""}},
    {"{debugFormat}", {"4", "3", "4", "3"}},
    {"{machine}", {"1", "17", "1", "17"}},
};

Statement CFxConverterIWAPICPP::EmitProgramText(const QString& name) const
{
    return fillProject(texts::cpp::IwAddin_global_h, {name, LineEnd});
}

/// %3 is the library directory, %4 the include directory and, in a repaired project, %5 the macro's file. Nothing is
/// built from a header; the entry of one is empty.
Statement CFxConverterIWAPICPP::EmitProjectText(const QString& projectName, const QString& macroFile) const
{
    const QByteArray text =
        QByteArray(texts::cpp::project_vcproj)
            .replace("{encoding}", encoding())
            .replace("{macroFile}", mended("%1.cpp", "%5"))
            .replace("{configurations}\n", forEachConfiguration(texts::cpp::configuration_vcproj, words))
            .replace("{headerConfigurations}\n", forEachConfiguration(texts::cpp::headerConfiguration_vcproj, words));
    return fillProject(text, {xmlText(projectName), LineEnd, xmlText(installedPath("APISDK\\lib\\cpp")),
                              xmlText(installedPath("APISDK\\headers\\cpp")), xmlText(macroFile)});
}

const char* CFxConverterIWAPICPP::refusal(const QString& fileName) const
{
    return isFound(fileName) ? nullptr : kUnfound.reason();
}

std::int32_t CFxConverterIWAPICPP::EmitProjectFiles(const QString& path)
{
    const QString name = projectName(path);
    const QString exportHeaderFile = "IwAddin_global.h";
    const Statement project = faultyEntry(kListed, path, kMisread, EmitProjectText(name, QFileInfo(path).fileName()));
    return WriteProject(path, {{exportHeaderFile, EmitProgramText(projectName(exportHeaderFile)), true},
                               {name + ".vcproj", project, false},
                               {"iwAddinConnection.h", fillNamed(texts::cpp::iwAddinConnection_h, name), true},
                               {"iwAddinConnection.cpp", fillNamed(texts::cpp::iwAddinConnection_cpp, name), true},
                               {name + ".h", QString(texts::cpp::project_h), true},
                               {name + ".def", fillProject(texts::cpp::project_def, {LineEnd, name}), false}});
}
