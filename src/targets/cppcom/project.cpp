// The project around a macro of the COM add-in.

#include "targets/cppcom/CFxConverterIWAPICPPCOM.h"

#include "frame/RecordingState.h"
#include "targets/cppcom/projectTexts.h"
#include "targets/projectFiles.h"
#include "targets/quoting.h"
#include "targets/wording.h"

#include <QUuid>

using namespace inkmacro;

QString CFxConverterIWAPICPPCOM::ConnectionClassUuid;
QString CFxConverterIWAPICPPCOM::TypeLibraryUuid;

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

CFxConverterIWAPICPPCOM::CFxConverterIWAPICPPCOM(std::uint32_t mode) : CFxConverterIWAPIImpl(Target::CppCom, mode)
{
    ConnectionClassUuid = QUuid::createUuid().toString();
    TypeLibraryUuid = QUuid::createUuid().toString();
}

QString CFxConverterIWAPICPPCOM::EmitProjectText(const QString& projectName)
{
    return cppcom::environmentProject(projectName, QUuid::createUuid().toString());
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
                  {name + ".vcproj", EmitProjectText(name), false},
                  {"typeconverter.h", typeConverterHeader(), true},
              });
}
