#ifndef _IWADDIN_CONNECTION_H_
#define _IWADDIN_CONNECTION_H_

#include "resource.h"
#include "stdafx.h"
#include "recording_i.h"
#include "recording.h"

class CIwAddinConnection;

// The connection that the application has made, NULL before it
CIwAddinConnection* getMacroApp();

class ATL_NO_VTABLE CIwAddinConnection :
    public CComObjectRootEx<CComSingleThreadModel>,
    public CComCoClass<CIwAddinConnection, &CLSID_IwAddinConnection>,
    public IDispatchImpl<IIwAddinConnection, &IID_IIwAddinConnection, &LIBID_recordingLib, 1, 0>,
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
        ICommandPtr pCommand = m_IwApp->CreateCommand( m_sApiUuid, L"recording", &commandErr );
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
