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

    iwSheet = NULL;
    iwSheet = iwDoc->GetSheet(L"Grundriss EG");
    if( NULL == iwSheet )
    {
        MessageBox (NULL, L"Failed to get a paper space of the current document.", L"title", MB_OK);
        return;
    }

    iwSheet->Activate();

    iwSketchManager = iwSheet->GetSketchManager();
    if( NULL == iwSketchManager )
    {
        MessageBox (NULL, L"Failed to get a sketch manager of the current document.", L"title", MB_OK);
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

    ILinePtr line1;
    ILinePtr line2;
    {
        line1 = iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 2.80000000000000, 0.00000000000000, 0.00000000000000 );
        line1->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        line1->put_LineScale( 1.00000000000000 );
        line1->put_LineWeight( iwLnWt_ByLayer );
        line1->put_Thickness( 0.00000000000000 );
        line2 = iwSketchManager->InsertLine( 0.00000000000000, 0.28000000000000, 0.00000000000000, 2.80000000000000, 0.28000000000000, 0.00000000000000 );
        line2->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        line2->put_LineScale( 1.00000000000000 );
        line2->put_LineWeight( iwLnWt_ByLayer );
        line2->put_Thickness( 0.00000000000000 );
    }
    IShapeManagerPtr iwShapeManager = iwDoc->GetShapeManager();
    iwShapeManager->Load( L"stairs.shx" );
        line4 = iwSketchManager->InsertLine( 1.40000000000000, 0.00000000000000, 0.00000000000000, 1.40000000000000, 0.28000000000000, 0.00000000000000 );
        line4->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        line4->put_LineScale( 1.00000000000000 );
        line4->put_LineWeight( iwLnWt_ByLayer );
        line4->put_Thickness( 0.00000000000000 );
    ITextStylePtr textstyle5;
    ILinePtr line6;
    {
        line6 = iwSketchManager->InsertLine( 1.40000000000000, 0.28000000000000, 0.00000000000000, 1.40000000000000, 0.56000000000000, 0.00000000000000 );
        line6->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        line6->put_LineScale( 1.00000000000000 );
        line6->put_LineWeight( iwLnWt_ByLayer );
        line6->put_Thickness( 0.00000000000000 );
    }
    INotePtr note7;
    ILinePtr line8;
    {
        VARIANT strArray1;
        strArray1.vt = ( VT_ARRAY | VT_BSTR );
        strArray1.parray = SafeArrayCreateVector( VT_BSTR, 0, 1 );
        long rgIndices1;
        rgIndices1 = 0;
        BSTR str1;
        str1 = SysAllocString(L"");
        SafeArrayPutElement( strArray1.parray, &rgIndices1, str1 );
        note7 = iwSketchManager->InsertNote( 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, strArray1 );
        line8 = iwSketchManager->InsertLine( 3.00000000000000, 0.00000000000000, 0.00000000000000, 4.00000000000000, 1.00000000000000, 0.00000000000000 );
        line8->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        line8->put_LineScale( 1.00000000000000 );
        line8->put_LineWeight( iwLnWt_ByLayer );
        line8->put_Thickness( 0.00000000000000 );
    }
    ILinePtr line9;
    ILinePtr line10;
    {
        line9 = iwSketchManager->InsertLine( 5.00000000000000, 0.00000000000000, 0.00000000000000, 6.00000000000000, 0.00000000000000, 0.00000000000000 );
        line9->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        line9->put_LineScale( 1.00000000000000 );
        line9->put_LineWeight( iwLnWt_ByLayer );
        line9->put_Thickness( 0.00000000000000 );
    }
    ILinePtr line11;
    {
        line11 = iwSketchManager->InsertLine( 7.00000000000000, 0.00000000000000, 0.00000000000000, 8.00000000000000, 0.00000000000000, 0.00000000000000 );
        line11->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        line11->put_LineScale( 1.00000000000000 );
        line11->put_LineWeight( iwLnWt_ByLayer );
        line11->put_Thickness( 0.00000000000000 );
    }
    ILayerManagerPtr iwLayerManager_1 = iwDoc->GetLayerManager();
    ILayerPtr layer13 = iwLayerManager_1->GetLayer( "0" );
    // AcDbLayerTableRecord object modified
    {
        layer13->put_Frozen( true );
    }
    {
        ILayerManagerPtr iwLayerManager_2 = iwDoc->GetLayerManager();
        ILayerPtr layer14 = iwLayerManager_2->GetLayer( "0" );
        // AcDbLayerTableRecord object modified
        {
            layer14->put_Locked( true );
        }
        // AcDbLayerTableRecord object modified
        {
            layer13->put_Frozen( false );
        }
    }
    {
        line1->put_Thickness( 2.00000000000000 );
    }
    {
        iwSetCommandOptionResult_e result;
        pConnection->m_IwApp->GetActiveDocument()->SetCommandOptionInt16(iwCommandOptionInt16_SetCVPORT, 2,&result);
    }
}

