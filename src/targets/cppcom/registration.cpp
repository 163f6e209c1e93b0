// What the server of the COM add-in offers, and how it is registered.

#include "statements/Fill.h"
#include "statements/LineEnd.h"
#include "targets/cppcom/projectTexts.h"
#include "targets/projectFiles.h"

#include <QUuid>

// %1 is the project, %2 the line end; ids follow. One marker for the line end is enough: without any, its value would
// go to the marker behind it.

static const char* const interfaceText = R"(// %1.idl : Source of the type library and of the proxy code.

import "oaidl.idl";
import "ocidl.idl";

[
    object,
    uuid(%3),
    dual,
    nonextensible,
    helpstring("IIwAddinConnection Interface"),
    pointer_default(unique)
]
interface IIwAddinConnection : IDispatch
{
};

[
    uuid(%4),
    version(1.0),
    helpstring("%1 Type Library")
]
library %1Lib
{
    importlib("stdole2.tlb");

    [
        uuid(%5),
        helpstring("IwAddinConnection Class")
    ]
    coclass IwAddinConnection
    {
        [default] interface IIwAddinConnection;
    };
};%2)";

static const char* const connectionScript = R"(HKCR
{
    %1.IwAddinConnection.1 = s 'IwAddinConnection Class'
    {
        CLSID = s '%3'
    }
    %1.IwAddinConnection = s 'IwAddinConnection Class'
    {
        CLSID = s '%3'
        CurVer = s '%1.IwAddinConnection.1'
    }
    NoRemove CLSID
    {
        ForceRemove %3 = s 'IwAddinConnection Class'
        {
            ProgID = s '%1.IwAddinConnection.1'
            VersionIndependentProgID = s '%1.IwAddinConnection'
            ForceRemove 'Programmable'
            InprocServer32 = s '%MODULE%'
            {
                val ThreadingModel = s 'Apartment'
            }
            val AppID = s '%APPID%'
            'TypeLib' = s '%4'
        }
    }
}%2)";

static const char* const serverScript = R"(HKCR%2{
    NoRemove AppID
    {
        '%APPID%' = s '%1'
        '%1.DLL'
        {
            val AppID = s '%APPID%'
        }
    }
}
)";

static const char* const serverExportsText = R"(; %1.def : Declares the module parameters.%2
LIBRARY      "%1.DLL"

EXPORTS
    DllCanUnloadNow     PRIVATE
    DllGetClassObject   PRIVATE
    DllRegisterServer   PRIVATE
    DllUnregisterServer PRIVATE
)";

static const char* const proxyExportsText = R"(LIBRARY      "%1PS"%2
EXPORTS
    DllGetClassObject   PRIVATE
    DllCanUnloadNow     PRIVATE
    GetProxyDllInfo     PRIVATE
    DllRegisterServer   PRIVATE
    DllUnregisterServer PRIVATE
)";

namespace inkmacro::cppcom {

Statement interfaceDefinition(const QString& name, const QString& typeLibraryId, const QString& classId)
{
    const Template words(withIdentifier(interfaceText, {"library %1Lib"}, name).constData());
    const QString interfaceId = QUuid::createUuid().toString(QUuid::WithoutBraces);
    return fillProject(words).text(name).text(LineEnd).text(interfaceId).text(typeLibraryId).text(classId);
}

Statement connectionRegistration(const QString& name, const QString& classId, const QString& typeLibraryId)
{
    static const Template words(connectionScript);
    return fillProject(words).text(name).text(LineEnd).text(classId).text(typeLibraryId);
}

Statement serverRegistration(const QString& name)
{
    static const Template words(serverScript);
    return fillProject(words).text(name).text(LineEnd);
}

Statement serverExports(const QString& name)
{
    static const Template words(serverExportsText);
    return fillProject(words).text(name).text(LineEnd);
}

Statement proxyExports(const QString& name)
{
    static const Template words(proxyExportsText);
    return fillProject(words).text(name).text(LineEnd);
}

} // namespace inkmacro::cppcom
