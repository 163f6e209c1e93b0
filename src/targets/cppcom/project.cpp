// The project around a macro of the COM add-in.

#include "targets/cppcom/CFxConverterIWAPICPPCOM.h"

#include "statements/RecordingState.h"
#include "statements/quoting.h"
#include "statements/wording.h"
#include "targets/cppcom/projectTexts.h"
#include "targets/projectFiles.h"

#include <QUuid>

using namespace inkmacro;

static QString withoutBraces(const QString& uuid)
{
    return uuid.mid(1, uuid.size() - 2);
}

QByteArray cppcom::withIdentifier(QByteArray words, std::initializer_list<const char*> places, const QString& name)
{
    if (!RepairsMacros())
        return words;
    const QByteArray identifier = legalName(name).toLatin1();
    for (const char* const place : places) {
        QByteArray legal(place);
        words.replace(place, legal.replace(legal.indexOf('%'), 2, identifier));
    }
    return words;
}

CFxConverterIWAPICPPCOM::CFxConverterIWAPICPPCOM(Writer& writer)
    : MacroFrame(writer),
      ConnectionClassUuid(QUuid::createUuid().toString()),
      TypeLibraryUuid(QUuid::createUuid().toString())
{
}

std::int32_t CFxConverterIWAPICPPCOM::EmitProjectFiles(const QString& path)
{
    using namespace cppcom;
    const QString name = projectName(path);
    const QString classId = withoutBraces(ConnectionClassUuid);
    const QString libraryId = withoutBraces(TypeLibraryUuid);
    return WriteProject(
        path, {
                  {"IwAddinConnection.h", connectionHeader(name), true},
                  {"IwAddinConnection.cpp", connectionSource(name), true},
                  {name + ".h", commandHeader(), true},
                  {"resource.h", resourceHeader(name), false},
                  {"stdafx.h", precompiledHeader(), true},
                  {"stdafx.cpp", precompiledSource(), true},
                  {"smartvars.h", safeArrayHeader(), true},
                  {name + ".def", serverExports(name), false},
                  {name + "ps.def", proxyExports(name), false},
                  {name + ".idl", interfaceDefinition(name, libraryId, classId), false},
                  {"IwAddinConnection.rgs", connectionRegistration(name, ConnectionClassUuid, TypeLibraryUuid), false},
                  {name + ".rgs", serverRegistration(name), false},
                  {name + ".rc", resourceScript(name), false},
                  {name + ".vcproj", environmentProject(name, QUuid::createUuid().toString()), false},
                  {"typeconverter.h", typeConverterHeader(), true},
              });
}
