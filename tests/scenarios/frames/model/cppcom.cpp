#include "stdafx.h"
#include "resource.h"
#include "recording_i.h"
#include "recording.h"
#include "smartvars.h"
#include "typeconverter.h"
#include "IwAddinConnection.h"
#include "math.h"

class CrecordingModule : public CAtlDllModuleT< CrecordingModule >
{
public:
    DECLARE_LIBID(LIBID_recordingLib)
    DECLARE_REGISTRY_APPID_RESOURCEID(IDR_recording, "{00000000-0000-4000-8000-000000000003}")
};

CrecordingModule _AtlModule;

#ifdef _MANAGED
#pragma managed(push, off)
#endif

// Entry point of the library
extern "C" BOOL WINAPI DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID lpReserved)
{
    hInstance;
    return _AtlModule.DllMain(dwReason, lpReserved);
}

#ifdef _MANAGED
#pragma managed(pop)
#endif

// Tells whether the library is still in use
STDAPI DllCanUnloadNow(void)
{
    return _AtlModule.DllCanUnloadNow();
}

// Gives the class factory of an object of this server
STDAPI DllGetClassObject(REFCLSID rclsid, REFIID riid, LPVOID* ppv)
{
    return _AtlModule.DllGetClassObject(rclsid, riid, ppv);
}

// Adds the server, its type library and the interfaces of the type library to the registry
STDAPI DllRegisterServer(void)
{
    return _AtlModule.DllRegisterServer();
}

// Removes from the registry what DllRegisterServer added
STDAPI DllUnregisterServer(void)
{
    return _AtlModule.DllUnregisterServer();
}

IwMacroCommand::IwMacroCommand( ICommand* pCommand )
    : m_IwCommand( pCommand )
{
    DispEventAdvise( m_IwCommand );
}

IwMacroCommand::~IwMacroCommand()
{
    DispEventUnadvise( m_IwCommand );
}

void __stdcall IwMacroCommand::OnExecuteNotify()
{
    CIwAddinConnection* pConnection = getMacroApp();

    IDocumentPtr iwDoc( pConnection->m_IwApp->GetActiveDocument() );
    if( NULL == iwDoc )
    {
        MessageBox (NULL, L"Failed to get current document.", L"title", MB_OK);
        return;
    }

    IModelPtr iwModel( iwDoc->GetModel() );
    if( NULL == iwModel )
    {
        MessageBox (NULL, L"Failed to get a model space of the current document.", L"title", MB_OK);
        return;
    }

    ISketchManagerPtr iwSketchManager;
    iwSketchManager = iwModel->GetSketchManager();
    if( NULL == iwSketchManager )
    {
        MessageBox (NULL, L"Failed to get a sketch manager of the current document.", L"title", MB_OK);
        return;
    }

    _variant_t pVariantArray = iwDoc->GetSheets();
    ISheetPtr *iwSheetArrays = NULL;
    int count = 0;
    TypeConverter::convertVariantArrayToPtrArray<ISheetPtr, ISheet>( pVariantArray, iwSheetArrays, count );
    ISheetPtr iwSheet = iwSheetArrays[1];
    if( NULL == iwSheet )
    {
        MessageBox (NULL, L"Failed to get a paper space of the current document.", L"title", MB_OK);
        return;
    }

    ISelectionManagerPtr iwSelManager( iwDoc->GetSelectionManager() );
    if( NULL == iwSelManager )
    {
        MessageBox (NULL, L"Failed to get selection manager of the current document.", L"title", MB_OK);
        return;
    }

    IViewManagerPtr iwViewManager( iwDoc->GetViewManager() );
    if( NULL == iwViewManager )
    {
        MessageBox (NULL, L"Failed to get a view manager of the current document.", L"title", MB_OK);
        return;
    }

<statements>
}

