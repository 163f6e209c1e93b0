// The project around a macro of the COM add-in.

#include "statements/LineEnd.h"
#include "statements/quoting.h"
#include "statements/wording.h"
#include "targets/cppcom/CFxConverterIWAPICPPCOM.h"
#include "targets/cppcom/uuids.h"
#include "targets/installation.h"
#include "targets/projectFiles.h"
#include "targets/texts.h"
#include "targets/vcproj.h"

#include <QFileInfo>

#include <algorithm>

using namespace inkmacro;

// In the texts %1 is the project and %2 the line end, unless something else is said; ids follow. One marker for the
// line end is enough: without any, its value would go to the marker behind it.

/// Debug information is to edit and continue (/ZI, 4) or only to debug (/Zi, 3). The former is for x86 alone, and no
/// compiler takes it together with the whole-program optimization of Release.
static constexpr ConfigurationWord words[] = {
    {"{name}", {"Debug|Win32", "Release|Win32", "Debug|x64", "Release|x64"}},
    {"{folder}", {"", "", "$(PlatformName)\\", "$(PlatformName)\\"}},
    {"{environment}", {"1", "1", "3", "3"}},
    {"{machine}", {"1", "1", "17", "17"}},
    {"{wholeProgram}", {"0", "1", "0", "1"}},
    {"{state}", {"_DEBUG", "NDEBUG", "_DEBUG", "NDEBUG"}},
    {"{debugDefinition}", {"_DEBUG;", "", "_DEBUG;", ""}},
    {"{optimization}", {"0", "2", "0", "2"}},
    {"{minimalRebuild}", {"true", "false", "true", "false"}},
    {"{checks}", {"3", "0", "3", "0"}},
    {"{runtime}", {"3", "2", "3", "2"}},
    {"{incremental}", {"2", "1", "2", "1"}},
    {"{references}", {"0", "2", "0", "2"}},
    {"{debugFormat}", {"4", "3", "3", "3"}},
};

/// How a file takes part in the precompiled header; 0 is not at all.
static QByteArray precompiled(const char* how)
{
    return forEachConfiguration(texts::cppcom::fileConfiguration_vcproj, words).replace("{precompiled}", how);
}

static QByteArray projectWords(const char* encoding, const char* macroFile)
{
    return QByteArray(texts::cppcom::project_vcproj)
        .replace("{encoding}", encoding)
        .replace("{macroFile}", macroFile)
        .replace("{configurations}\n", forEachConfiguration(texts::cppcom::configuration_vcproj, words))
        .replace("{makesPrecompiledHeader}\n", precompiled("1"))
        .replace("{withoutPrecompiledHeader}\n", precompiled("0"));
}

QByteArray CFxConverterIWAPICPPCOM::withIdentifier(QByteArray words, const char* marker, const QString& name) const
{
    return words.replace("{identifier}", mended(QByteArray(marker), legalName(name).toLatin1()));
}

Statement CFxConverterIWAPICPPCOM::faultyIdentifier(const QByteArray& words, const QString& name,
                                                    const Statement& text) const
{
    QByteArray front = words.left(words.indexOf("{identifier}"));
    front.remove(0, std::max(front.lastIndexOf('\n') + 1, front.lastIndexOf("%1") + 2));
    const Fault* const fault = faultOfName(name);
    return fault ? faultyAt(front + name, text, *fault) : text;
}

CFxConverterIWAPICPPCOM::CFxConverterIWAPICPPCOM(Writer& writer)
    : MacroFrame(writer), ConnectionClassUuid(newUuid("connection class")), TypeLibraryUuid(newUuid("type library"))
{
}

/// A name between the quotes of a registrar script, which puts other texts between two percent signs.
static QString registrarText(QString name)
{
    return name.replace('\'', "''").replace('%', "%%");
}

const char* CFxConverterIWAPICPPCOM::refusal(const QString& fileName) const
{
    return isFound(fileName) ? nullptr : kUnfound.reason();
}

static QString withoutBraces(const QString& uuid)
{
    return uuid.mid(1, uuid.size() - 2);
}

std::int32_t CFxConverterIWAPICPPCOM::EmitProjectFiles(const QString& path)
{
    using namespace texts::cppcom;
    const QString name = projectName(path);
    const QString classId = withoutBraces(ConnectionClassUuid);
    const QString libraryId = withoutBraces(TypeLibraryUuid);
    const QString interfaceId = withoutBraces(newUuid("interface"));
    const QString projectId = newUuid("project");
    const QString addins = installedPath("APISDK\\tlb\\iwAddin.tlb");
    const QString application = installedPath("bin\\iwAutomation.dll");
    const auto named = [&](const char* words, std::initializer_list<Statement> values) {
        return faultyIdentifier(words, name, fillProject(withIdentifier(words, "%1", name), values));
    };
    const Statement connectionHeader = fillNamed(withIdentifier(IwAddinConnection_h, "%1", name), name);
    // A script in UTF-8 without a byte order mark says so itself.
    const QByteArray script = withIdentifier(project_rc, "%5", name).replace("{codePage}", mended("1252", "65001"));
    const Statement project = fillProject(projectWords(encoding(), mended("%1.cpp", "%4")),
                                          {xmlText(name), LineEnd, projectId, xmlText(QFileInfo(path).fileName())});
    return WriteProject(
        path, {
                  {"IwAddinConnection.h", faultyIdentifier(IwAddinConnection_h, name, connectionHeader), true},
                  {"IwAddinConnection.cpp", fillProject(IwAddinConnection_cpp, {name, LineEnd}), true},
                  {name + ".h", QString(project_h), true},
                  {"resource.h", named(resource_h, {name, LineEnd}), false},
                  // %1 is the line end, %2 and %3 are the type libraries.
                  {"stdafx.h", fillProject(stdafx_h, {LineEnd, addins, application}), true},
                  {"stdafx.cpp", fillProject(stdafx_cpp, {LineEnd}), true},
                  {"smartvars.h", QString(smartvars_h), true},
                  {name + ".def", fillProject(project_def, {name, LineEnd}), false},
                  {name + "ps.def", fillProject(projectps_def, {name, LineEnd}), false},
                  {name + ".idl", named(project_idl, {name, LineEnd, interfaceId, libraryId, classId}), false},
                  {"IwAddinConnection.rgs",
                   named(IwAddinConnection_rgs, {name, LineEnd, ConnectionClassUuid, TypeLibraryUuid}), false},
                  {name + ".rgs", fillProject(project_rgs, {mended(name, registrarText(name)), LineEnd}), false},
                  // %1 is the line end, %2 to %4 are the numbers of the included texts, %5 is the project.
                  {name + ".rc",
                   faultyIdentifier(project_rc, name,
                                    fillProject(script, {LineEnd, QString("1"), QString("2"), QString("3"), name})),
                   false},
                  {name + ".vcproj", faultyEntry(kListed, path, kMisread, project), false},
                  {"typeconverter.h", QString(typeconverter_h), true},
              });
}
