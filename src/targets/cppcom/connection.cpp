// The object of the COM add-in that the host connects to, and the command that runs the macro.

#include "statements/Fill.h"
#include "statements/LineEnd.h"
#include "targets/cppcom/projectTexts.h"
#include "targets/projectFiles.h"

// %1 is the project, %2 the line end.

static const char* const headerText = R"(#ifndef _IWADDIN_CONNECTION_H_%2#define _IWADDIN_CONNECTION_H_

#include "resource.h"
#include "stdafx.h"
#include "%1_i.h"
#include "%1.h"

class CIwAddinConnection;

// The connection that the application has made, NULL before it
CIwAddinConnection* getMacroApp();

class ATL_NO_VTABLE CIwAddinConnection :
    public CComObjectRootEx<CComSingleThreadModel>,
    public CComCoClass<CIwAddinConnection, &CLSID_IwAddinConnection>,
    public IDispatchImpl<IIwAddinConnection, &IID_IIwAddinConnection, &LIBID_%1Lib, 1, 0>,
    public IDispatchImpl<IIwAddin, &__uuidof(IIwAddin), &LIBID_IwAddinLib, 1, 0>,
    public IDispEventImpl<IDC_IWAPPLICATIONEVENT, CIwAddinConnection, &DIID__IApplicationEvents, &LIBID_Inkwright, 1, 0>
{
public:
    CIwAddinConnection();

    DECLARE_REGISTRY_RESOURCEID(IDR_IWADDINCONNECTION)

    BEGIN_COM_MAP(CIwAddinConnection)
        COM_INTERFACE_ENTRY(IIwAddinConnection)
        COM_INTERFACE_ENTRY2(IDispatch, IIwAddinConnection)
        COM_INTERFACE_ENTRY(IIwAddin)
    END_COM_MAP()

    BEGIN_SINK_MAP(CIwAddinConnection)
    END_SINK_MAP()

    DECLARE_PROTECT_FINAL_CONSTRUCT()

    HRESULT FinalConstruct()
    {
        return S_OK;
    }

    void FinalRelease()
    {
    }

    IDocument* GetActiveDocument()
    {
        m_IwActiveDoc = (IDocument*)m_IwApp->GetActiveDocument();
        return m_IwActiveDoc;
    }

    CComQIPtr<IApplication> m_IwApp;
    BSTR m_sApiUuid;

    STDMETHOD(ConnectToInkwright)(LPDISPATCH IwApp, long Cookie, VARIANT_BOOL * IsConnected)
    {
        m_IwApp = IwApp;
        DispEventAdvise( m_IwApp );
        *IsConnected = VARIANT_TRUE;

        LPOLESTR sClassUuid = NULL;
        StringFromCLSID( CLSID_IwAddinConnection, &sClassUuid );
        m_sApiUuid = SysAllocString( sClassUuid );
        CoTaskMemFree( sClassUuid );

        // The command is named after the project and runs the macro
        iwCreateCommandError_e commandErr;
        ICommandPtr pCommand = m_IwApp->CreateCommand( m_sApiUuid, L"%1", &commandErr );
        if( iwCreateCommand_Succeeded == commandErr )
        {
            new IwMacroCommand( pCommand );
        }

        return S_OK;
    }

    STDMETHOD(DisconnectFromInkwright)(VARIANT_BOOL * IsDisconnected)
    {
        m_IwApp->RemoveUserInterface( m_sApiUuid );
        SysFreeString( m_sApiUuid );
        m_sApiUuid = NULL;

        DispEventUnadvise( m_IwApp );
        *IsDisconnected = VARIANT_TRUE;

        return S_OK;
    }

private:
    CComQIPtr<IDocument> m_IwActiveDoc;
};

OBJECT_ENTRY_AUTO(__uuidof(IwAddinConnection), CIwAddinConnection)

#endif // _IWADDIN_CONNECTION_H_
)";

static const char* const sourceText = R"(#include "stdafx.h"%2#include "%1.h"
#include "IwAddinConnection.h"

static CIwAddinConnection* s_pMacroApp = NULL;

CIwAddinConnection* getMacroApp()
{
    return s_pMacroApp;
}

CIwAddinConnection::CIwAddinConnection()
    : m_sApiUuid( NULL )
{
    s_pMacroApp = this;
}
)";

static const char* const commandText = R"(#ifndef _IWADDIN_COMMAND_H_
#define _IWADDIN_COMMAND_H_

#include "resource.h"

#if defined(_WIN32_WCE) && !defined(_CE_DCOM) && !defined(_CE_ALLOW_SINGLE_THREADED_OBJECTS_IN_MTA)
#error "Windows CE without DCOM has no single-threaded COM objects. Define _CE_ALLOW_SINGLE_THREADED_OBJECTS_IN_MTA to build this class with the threading model 'Free' in its .rgs file."
#endif

class IwMacroCommand :
    public IDispEventImpl<IDC_IWAPPLICATIONEVENT, IwMacroCommand, &DIID__ICommandEvents, &LIBID_Inkwright, 1, 0>
{
public:
    IwMacroCommand( ICommand* pCommand );
    virtual ~IwMacroCommand();

    BEGIN_SINK_MAP(IwMacroCommand)
        SINK_ENTRY_EX(IDC_IWAPPLICATIONEVENT, DIID__ICommandEvents, iwCommand_ExecuteNotify_id, OnExecuteNotify)
    END_SINK_MAP()

    void __stdcall OnExecuteNotify();

private:
    CComQIPtr<ICommand> m_IwCommand;
};

#endif // _IWADDIN_COMMAND_H_
)";

namespace inkmacro::cppcom {

Statement connectionHeader(const QString& name)
{
    const Template words(withIdentifier(headerText, {"LIBID_%1Lib"}, name).constData(), Target::CppCom);
    return fillProject(words).text(name).text(LineEnd);
}

Statement connectionSource(const QString& name)
{
    static const Template words(sourceText, Target::CppCom);
    return fillProject(words).text(name).text(LineEnd);
}

Statement commandHeader()
{
    return QString::fromLatin1(commandText);
}

} // namespace inkmacro::cppcom
