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

    ILinePtr line1;
    ISplinePtr spline2;
    {
        line1 = iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 40.00000000000000, 0.00000000000000, 0.00000000000000 );
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 9 );
        long rgIndices1;
        rgIndices1 = -1;
        double x_1, y_1, z_1;
        x_1=0.00000000000000; y_1=60.00000000000000; z_1=0.00000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=10.00000000000000; y_1=65.00000000000000; z_1=0.00000000000000;
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=20.00000000000000; y_1=60.00000000000000; z_1=0.00000000000000;
        rgIndices1=6;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=7;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=8;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );

        spline2 = iwSketchManager->InsertSpline( variant1, false, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000 );
    }
    IHatchPtr hatch3;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 4 );
        long rgIndices1;
        rgIndices1 = -1;
        double x, y;
        x=2.00000000000000; y=1.00000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=30.00000000000000; y=12.50000000000000;
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );

        hatch3=iwSketchManager->InsertHatchByInternalPoints( variant1, L"ANSI31", 1.50000000000000, 0.78539816339745);
        IHatchPatternPtr iwHatchPattern;
        iwHatchPattern = hatch3->GetHatchPattern();

        iwHatchPattern->put_InternalRegionDetection( iwHatchPatternInternalRegionDetection_Outer );
        double x2, y2;
        iwHatchPattern->GetOrigin( &x2, &y2 );
        iwHatchPattern->SetOrigin( 4.00000000000000, y2 );
        double x3, y3;
        iwHatchPattern->GetOrigin( &x3, &y3 );
        iwHatchPattern->SetOrigin( x3, -2.50000000000000 );
        hatch3->put_Color( pConnection->m_IwApp->GetColorByIndex( 3 ) );
        hatch3->put_Layer( L"Planting" );
    }
    IHatchPtr hatch4;
    {
        ICirclePtr hatchCircle_0;
        hatchCircle_0 = iwSketchManager->InsertCircle( 10.00000000000000, 10.00000000000000, 0.00000000000000, 2.50000000000000 );
        ITablePtr hatchTable_0;
        hatchTable_0 = iwSketchManager->InsertTable(
         60.00000000000000, 20.00000000000000, 3, 2, 10.00000000000000, 25.00000000000000, (iwTableCellType_e)1, (iwTableCellType_e)2, (iwTableCellType_e)3 );
        IRegionPtr hatchRegion_0;
        ICirclePtr circle_0;
        circle_0 = iwSketchManager->InsertCircle( 90.00000000000000, 10.00000000000000, 0.00000000000000, 1.00000000000000 );
        IEllipseArcPtr ellipse_0;
        ellipse_0 = iwSketchManager->InsertEllipseDistanceToOtherAxis( 93.00000000000000, 20.00000000000000, 87.00000000000000, 20.00000000000000, 1.00000000000000 );
        ICircleArcPtr arc_0;
        arc_0 = iwSketchManager->InsertArc( 90.00000000000000, 30.00000000000000, 0.00000000000000, 2.00000000000000, 0.00000000000000, 1.50000000000000 );
        ILinePtr line_0;
        line_0 = iwSketchManager->InsertLine( 90.00000000000000, 40.00000000000000, 0.00000000000000, 95.00000000000000, 40.00000000000000, 0.00000000000000 );

        VARIANT entitiesArray1;
        entitiesArray1.vt = ( VT_ARRAY | VT_DISPATCH );
        entitiesArray1.parray = SafeArrayCreateVector( VT_DISPATCH, 0, 4 );
        long rgIndices1;
        rgIndices1 = 0;
        IDispatch* val1;
        val1 = circle_0;
        SafeArrayPutElement( entitiesArray1.parray, &rgIndices1, (IDispatch*)(val1) );
        rgIndices1++;
        val1 = ellipse_0;
        SafeArrayPutElement( entitiesArray1.parray, &rgIndices1, (IDispatch*)(val1) );
        rgIndices1++;
        val1 = arc_0;
        SafeArrayPutElement( entitiesArray1.parray, &rgIndices1, (IDispatch*)(val1) );
        rgIndices1++;
        val1 = line_0;
        SafeArrayPutElement( entitiesArray1.parray, &rgIndices1, (IDispatch*)(val1) );
        rgIndices1++;
        VARIANT regionArray1;
        iwSketchManager->InsertRegion(entitiesArray1, &regionArray1);
        IRegionPtr *iwRegions1 = NULL;
        int count1 = 0;
        TypeConverter::convertVariantArrayToPtrArray<IRegionPtr, IRegion>( regionArray1, iwRegions1, count1 );
        hatchRegion_0 = iwRegions1[0];

        IBlockInstancePtr hatchBlkRef_0;
         hatchBlkRef_0 = iwSketchManager->InsertExternalReference(  L"Tree", 5.00000000000000, 30.00000000000000, 0.00000000000000, 1.00000000000000, 2.00000000000000 );
        IBlockInstancePtr hatchBlkRef_1;
         hatchBlkRef_1 = iwSketchManager->InsertExternalReference(  L"survey.dwg", 15.00000000000000, 30.00000000000000, 1.00000000000000, 1.00000000000000, 1.00000000000000 );
        IPolygonMeshPtr hatchPolygonMesh_0;
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 18 );
        long rgIndices1;
        rgIndices1 = -1;
        double x_1, y_1, z_1;
        x_1=0.00000000000000; y_1=0.00000000000000; z_1=0.00000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=1.00000000000000; y_1=0.00000000000000; z_1=0.00000000000000;
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=2.00000000000000; y_1=0.00000000000000; z_1=0.00000000000000;
        rgIndices1=6;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=7;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=8;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=0.00000000000000; y_1=1.00000000000000; z_1=0.00000000000000;
        rgIndices1=9;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=10;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=11;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=1.00000000000000; y_1=1.00000000000000; z_1=0.50000000000000;
        rgIndices1=12;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=13;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=14;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=2.00000000000000; y_1=1.00000000000000; z_1=0.00000000000000;
        rgIndices1=15;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=16;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=17;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );

        hatchPolygonMesh_0 = iwSketchManager->InsertPolygonMesh( 2, 3, variant1 );
        IPolyFaceMeshPtr hatchPolyFaceMesh_0;
        VARIANT variant2;
        variant2.vt = ( VT_ARRAY | VT_R8 );
        variant2.parray = SafeArrayCreateVector( VT_R8, 0, 15 );
        VARIANT FaceVerticesCountLongArray3;
        FaceVerticesCountLongArray3.vt = ( VT_ARRAY | VT_I4 );
        FaceVerticesCountLongArray3.parray = SafeArrayCreateVector( VT_I4, 0, 2 );
        VARIANT FaceVerticesLongArray4;
        FaceVerticesLongArray4.vt = ( VT_ARRAY | VT_I4 );
        FaceVerticesLongArray4.parray = SafeArrayCreateVector( VT_I4, 0, 7 );
        long rgIndices2;
        rgIndices2 = -1;
        double x_2, y_2, z_2;
        x_2=0.00000000000000; y_2=0.00000000000000; z_2=0.00000000000000;
        rgIndices2=0;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(x_2) );
        rgIndices2=1;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(y_2) );
        rgIndices2=2;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(z_2) );
        x_2=1.00000000000000; y_2=0.00000000000000; z_2=0.00000000000000;
        rgIndices2=3;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(x_2) );
        rgIndices2=4;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(y_2) );
        rgIndices2=5;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(z_2) );
        x_2=1.00000000000000; y_2=1.00000000000000; z_2=0.00000000000000;
        rgIndices2=6;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(x_2) );
        rgIndices2=7;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(y_2) );
        rgIndices2=8;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(z_2) );
        x_2=0.00000000000000; y_2=1.00000000000000; z_2=0.00000000000000;
        rgIndices2=9;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(x_2) );
        rgIndices2=10;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(y_2) );
        rgIndices2=11;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(z_2) );
        x_2=0.50000000000000; y_2=0.50000000000000; z_2=1.00000000000000;
        rgIndices2=12;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(x_2) );
        rgIndices2=13;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(y_2) );
        rgIndices2=14;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(z_2) );

        long rgIndices3;
        rgIndices3 = 0;
        int val3;
        val3 = 4;
        SafeArrayPutElement( FaceVerticesCountLongArray3.parray, &rgIndices3, (int*)&(val3) );
        rgIndices3++;
        val3 = 3;
        SafeArrayPutElement( FaceVerticesCountLongArray3.parray, &rgIndices3, (int*)&(val3) );
        rgIndices3++;

        long rgIndices4;
        rgIndices4 = 0;
        int val4;
        val4 = 1;
        SafeArrayPutElement( FaceVerticesLongArray4.parray, &rgIndices4, (int*)&(val4) );
        rgIndices4++;
        val4 = 2;
        SafeArrayPutElement( FaceVerticesLongArray4.parray, &rgIndices4, (int*)&(val4) );
        rgIndices4++;
        val4 = 3;
        SafeArrayPutElement( FaceVerticesLongArray4.parray, &rgIndices4, (int*)&(val4) );
        rgIndices4++;
        val4 = 4;
        SafeArrayPutElement( FaceVerticesLongArray4.parray, &rgIndices4, (int*)&(val4) );
        rgIndices4++;
        val4 = 1;
        SafeArrayPutElement( FaceVerticesLongArray4.parray, &rgIndices4, (int*)&(val4) );
        rgIndices4++;
        val4 = 2;
        SafeArrayPutElement( FaceVerticesLongArray4.parray, &rgIndices4, (int*)&(val4) );
        rgIndices4++;
        val4 = 5;
        SafeArrayPutElement( FaceVerticesLongArray4.parray, &rgIndices4, (int*)&(val4) );
        rgIndices4++;

        hatchPolyFaceMesh_0 = iwSketchManager->InsertPolyFaceMesh( 5, variant2, FaceVerticesCountLongArray3, FaceVerticesLongArray4 );
        ISolidPtr hatchSolid_0;
        VARIANT variant5;
        variant5.vt = ( VT_ARRAY | VT_R8 );
        variant5.parray = SafeArrayCreateVector( VT_R8, 0, 12 );
        long rgIndices5;
        rgIndices5 = -1;
        double x_5, y_5, z_5;
        x_5=0.00000000000000; y_5=40.00000000000000; z_5=0.00000000000000;
        rgIndices5=0;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(x_5) );
        rgIndices5=1;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(y_5) );
        rgIndices5=2;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(z_5) );
        x_5=5.00000000000000; y_5=40.00000000000000; z_5=0.00000000000000;
        rgIndices5=3;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(x_5) );
        rgIndices5=4;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(y_5) );
        rgIndices5=5;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(z_5) );
        x_5=0.00000000000000; y_5=45.00000000000000; z_5=0.00000000000000;
        rgIndices5=6;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(x_5) );
        rgIndices5=7;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(y_5) );
        rgIndices5=8;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(z_5) );
        x_5=5.00000000000000; y_5=45.00000000000000; z_5=0.00000000000000;
        rgIndices5=9;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(x_5) );
        rgIndices5=10;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(y_5) );
        rgIndices5=11;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(z_5) );

        hatchSolid_0 = iwSketchManager->InsertSolid( variant5 );
        IPolyLine3DPtr hatchPolyLine3D_0;
        VARIANT variant6;
        variant6.vt = ( VT_ARRAY | VT_R8 );
        variant6.parray = SafeArrayCreateVector( VT_R8, 0, 9 );
        long rgIndices6;
        rgIndices6 = -1;
        double x_6, y_6, z_6;
        x_6=0.00000000000000; y_6=0.00000000000000; z_6=0.00000000000000;
        rgIndices6=0;
        SafeArrayPutElement( variant6.parray, &rgIndices6, (double*)&(x_6) );
        rgIndices6=1;
        SafeArrayPutElement( variant6.parray, &rgIndices6, (double*)&(y_6) );
        rgIndices6=2;
        SafeArrayPutElement( variant6.parray, &rgIndices6, (double*)&(z_6) );
        x_6=3.00000000000000; y_6=0.00000000000000; z_6=1.00000000000000;
        rgIndices6=3;
        SafeArrayPutElement( variant6.parray, &rgIndices6, (double*)&(x_6) );
        rgIndices6=4;
        SafeArrayPutElement( variant6.parray, &rgIndices6, (double*)&(y_6) );
        rgIndices6=5;
        SafeArrayPutElement( variant6.parray, &rgIndices6, (double*)&(z_6) );
        x_6=3.00000000000000; y_6=3.00000000000000; z_6=2.00000000000000;
        rgIndices6=6;
        SafeArrayPutElement( variant6.parray, &rgIndices6, (double*)&(x_6) );
        rgIndices6=7;
        SafeArrayPutElement( variant6.parray, &rgIndices6, (double*)&(y_6) );
        rgIndices6=8;
        SafeArrayPutElement( variant6.parray, &rgIndices6, (double*)&(z_6) );

        hatchPolyLine3D_0 = iwSketchManager->InsertPolyline3D( variant6, true );
        ICircleArcPtr hatchArc_0;
        hatchArc_0 = iwSketchManager->InsertArc( 20.00000000000000, 10.00000000000000, 0.00000000000000, 4.00000000000000, 0.50000000000000, 2.25000000000000 );
        IPolyLinePtr hatchPolyline_0;
        VARIANT variant7;
        variant7.vt = ( VT_ARRAY | VT_R8 );
        variant7.parray = SafeArrayCreateVector( VT_R8, 0, 8 );
        long rgIndices7;
        rgIndices7 = -1;
        double x, y;
        x=0.00000000000000; y=0.00000000000000;
        rgIndices7=0;
        SafeArrayPutElement( variant7.parray, &rgIndices7, (double*)&(x) );
        rgIndices7=1;
        SafeArrayPutElement( variant7.parray, &rgIndices7, (double*)&(y) );
        x=12.50000000000000; y=0.00000000000000;
        rgIndices7=2;
        SafeArrayPutElement( variant7.parray, &rgIndices7, (double*)&(x) );
        rgIndices7=3;
        SafeArrayPutElement( variant7.parray, &rgIndices7, (double*)&(y) );
        x=12.50000000000000; y=8.00000000000000;
        rgIndices7=4;
        SafeArrayPutElement( variant7.parray, &rgIndices7, (double*)&(x) );
        rgIndices7=5;
        SafeArrayPutElement( variant7.parray, &rgIndices7, (double*)&(y) );
        x=0.00000000000000; y=8.00000000000000;
        rgIndices7=6;
        SafeArrayPutElement( variant7.parray, &rgIndices7, (double*)&(x) );
        rgIndices7=7;
        SafeArrayPutElement( variant7.parray, &rgIndices7, (double*)&(y) );

        hatchPolyline_0=iwSketchManager->InsertPolyline2D( variant7, true);
        hatchPolyline_0->SetSegmentAngle( 1, 3.14159 );
        hatchPolyline_0->SetSegmentAngle( 3, -1.5708 );
        IEllipseArcPtr hatcEllipse_0;
        hatcEllipse_0 = iwSketchManager->InsertEllipseDistanceToOtherAxis( 36.00000000000000, 10.00000000000000, 24.00000000000000, 10.00000000000000, 5.00000000000000 );
        IEllipseArcPtr hatcEllipse_1;
        hatcEllipse_1 = iwSketchManager->InsertEllipseArcDistanceToOtherAxis( 45.00000000000000, 16.00000000000000, 45.00000000000000, 4.00000000000000, 2.00000000000000, 0.00000000000000, 6.28318530717959 );
        ILinePtr hatchLine_0;
        hatchLine_0 = iwSketchManager->InsertLine( 40.00000000000000, 0.00000000000000, 0.00000000000000, 40.00000000000000, 25.00000000000000, 0.00000000000000 );
        ILinePtr hatchLine_1;
        hatchLine_1 = iwSketchManager->InsertLine( 40.00000000000000, 25.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000 );
        IFacePtr hatchFace_0;
        VARIANT variant8;
        variant8.vt = ( VT_ARRAY | VT_R8 );
        variant8.parray = SafeArrayCreateVector( VT_R8, 0, 12 );
        long rgIndices8;
        rgIndices8 = -1;
        double x_8, y_8, z_8;
        x_8=0.00000000000000; y_8=0.00000000000000; z_8=0.00000000000000;
        rgIndices8=0;
        SafeArrayPutElement( variant8.parray, &rgIndices8, (double*)&(x_8) );
        rgIndices8=1;
        SafeArrayPutElement( variant8.parray, &rgIndices8, (double*)&(y_8) );
        rgIndices8=2;
        SafeArrayPutElement( variant8.parray, &rgIndices8, (double*)&(z_8) );
        x_8=1.00000000000000; y_8=0.00000000000000; z_8=0.00000000000000;
        rgIndices8=3;
        SafeArrayPutElement( variant8.parray, &rgIndices8, (double*)&(x_8) );
        rgIndices8=4;
        SafeArrayPutElement( variant8.parray, &rgIndices8, (double*)&(y_8) );
        rgIndices8=5;
        SafeArrayPutElement( variant8.parray, &rgIndices8, (double*)&(z_8) );
        x_8=1.00000000000000; y_8=1.00000000000000; z_8=0.00000000000000;
        rgIndices8=6;
        SafeArrayPutElement( variant8.parray, &rgIndices8, (double*)&(x_8) );
        rgIndices8=7;
        SafeArrayPutElement( variant8.parray, &rgIndices8, (double*)&(y_8) );
        rgIndices8=8;
        SafeArrayPutElement( variant8.parray, &rgIndices8, (double*)&(z_8) );
        x_8=0.00000000000000; y_8=1.00000000000000; z_8=0.00000000000000;
        rgIndices8=9;
        SafeArrayPutElement( variant8.parray, &rgIndices8, (double*)&(x_8) );
        rgIndices8=10;
        SafeArrayPutElement( variant8.parray, &rgIndices8, (double*)&(y_8) );
        rgIndices8=11;
        SafeArrayPutElement( variant8.parray, &rgIndices8, (double*)&(z_8) );

         hatchFace_0 = iwSketchManager->InsertFace(
         variant8,
         true,
         true,
         false ,true );
        IRichLinePtr hatchRichLine_0;
        VARIANT variant9;
        variant9.vt = ( VT_ARRAY | VT_R8 );
        variant9.parray = SafeArrayCreateVector( VT_R8, 0, 6 );
        long rgIndices9;
        rgIndices9 = -1;
        double x_9, y_9, z_9;
        x_9=0.00000000000000; y_9=50.00000000000000; z_9=0.00000000000000;
        rgIndices9=0;
        SafeArrayPutElement( variant9.parray, &rgIndices9, (double*)&(x_9) );
        rgIndices9=1;
        SafeArrayPutElement( variant9.parray, &rgIndices9, (double*)&(y_9) );
        rgIndices9=2;
        SafeArrayPutElement( variant9.parray, &rgIndices9, (double*)&(z_9) );
        x_9=20.00000000000000; y_9=50.00000000000000; z_9=0.00000000000000;
        rgIndices9=3;
        SafeArrayPutElement( variant9.parray, &rgIndices9, (double*)&(x_9) );
        rgIndices9=4;
        SafeArrayPutElement( variant9.parray, &rgIndices9, (double*)&(y_9) );
        rgIndices9=5;
        SafeArrayPutElement( variant9.parray, &rgIndices9, (double*)&(z_9) );

        hatchRichLine_0 = iwSketchManager->InsertRichLine( variant9, iwRichLineJustification_Zero, 0.75000000000000, L"Wall", false );
        ILeaderPtr hatchLeader_0;
        VARIANT variant10;
        variant10.vt = ( VT_ARRAY | VT_R8 );
        variant10.parray = SafeArrayCreateVector( VT_R8, 0, 6 );
        long rgIndices10;
        rgIndices10 = -1;
        double x_10, y_10, z_10;
        x_10=70.00000000000000; y_10=10.00000000000000; z_10=0.00000000000000;
        rgIndices10=0;
        SafeArrayPutElement( variant10.parray, &rgIndices10, (double*)&(x_10) );
        rgIndices10=1;
        SafeArrayPutElement( variant10.parray, &rgIndices10, (double*)&(y_10) );
        rgIndices10=2;
        SafeArrayPutElement( variant10.parray, &rgIndices10, (double*)&(z_10) );
        x_10=75.00000000000000; y_10=15.00000000000000; z_10=0.00000000000000;
        rgIndices10=3;
        SafeArrayPutElement( variant10.parray, &rgIndices10, (double*)&(x_10) );
        rgIndices10=4;
        SafeArrayPutElement( variant10.parray, &rgIndices10, (double*)&(y_10) );
        rgIndices10=5;
        SafeArrayPutElement( variant10.parray, &rgIndices10, (double*)&(z_10) );

        hatchLeader_0 = iwSketchManager->InsertLeader( variant10, 12.50000000000000, L"\fArial;Lawn" );
        ILeaderPtr hatchLeader_1;
        VARIANT variant11;
        variant11.vt = ( VT_ARRAY | VT_R8 );
        variant11.parray = SafeArrayCreateVector( VT_R8, 0, 6 );
        long rgIndices11;
        rgIndices11 = -1;
        double x_11, y_11, z_11;
        x_11=80.00000000000000; y_11=10.00000000000000; z_11=0.00000000000000;
        rgIndices11=0;
        SafeArrayPutElement( variant11.parray, &rgIndices11, (double*)&(x_11) );
        rgIndices11=1;
        SafeArrayPutElement( variant11.parray, &rgIndices11, (double*)&(y_11) );
        rgIndices11=2;
        SafeArrayPutElement( variant11.parray, &rgIndices11, (double*)&(z_11) );
        x_11=85.00000000000000; y_11=15.00000000000000; z_11=0.00000000000000;
        rgIndices11=3;
        SafeArrayPutElement( variant11.parray, &rgIndices11, (double*)&(x_11) );
        rgIndices11=4;
        SafeArrayPutElement( variant11.parray, &rgIndices11, (double*)&(y_11) );
        rgIndices11=5;
        SafeArrayPutElement( variant11.parray, &rgIndices11, (double*)&(z_11) );

        hatchLeader_1 = iwSketchManager->InsertLeader( variant11, 0.00000000000000, L"" );

        VARIANT EntityArray12;
        EntityArray12.vt = ( VT_ARRAY | VT_DISPATCH );
        EntityArray12.parray = SafeArrayCreateVector( VT_DISPATCH, 0, 20);
        long rgIndices12;
        rgIndices12 = 0;
        IDispatch* val12;
        val12 = line1;
        SafeArrayPutElement( EntityArray12.parray, &rgIndices12, (IDispatch*)(val12) );
        rgIndices12++;
        val12 = hatchCircle_0;
        SafeArrayPutElement( EntityArray12.parray, &rgIndices12, (IDispatch*)(val12) );
        rgIndices12++;
        val12 = hatchTable_0;
        SafeArrayPutElement( EntityArray12.parray, &rgIndices12, (IDispatch*)(val12) );
        rgIndices12++;
        val12 = hatchRegion_0;
        SafeArrayPutElement( EntityArray12.parray, &rgIndices12, (IDispatch*)(val12) );
        rgIndices12++;
        val12 = hatchBlkRef_0;
        SafeArrayPutElement( EntityArray12.parray, &rgIndices12, (IDispatch*)(val12) );
        rgIndices12++;
        val12 = hatchBlkRef_1;
        SafeArrayPutElement( EntityArray12.parray, &rgIndices12, (IDispatch*)(val12) );
        rgIndices12++;
        val12 = hatchPolygonMesh_0;
        SafeArrayPutElement( EntityArray12.parray, &rgIndices12, (IDispatch*)(val12) );
        rgIndices12++;
        val12 = hatchPolyFaceMesh_0;
        SafeArrayPutElement( EntityArray12.parray, &rgIndices12, (IDispatch*)(val12) );
        rgIndices12++;
        val12 = hatchSolid_0;
        SafeArrayPutElement( EntityArray12.parray, &rgIndices12, (IDispatch*)(val12) );
        rgIndices12++;
        val12 = hatchPolyLine3D_0;
        SafeArrayPutElement( EntityArray12.parray, &rgIndices12, (IDispatch*)(val12) );
        rgIndices12++;
        val12 = hatchArc_0;
        SafeArrayPutElement( EntityArray12.parray, &rgIndices12, (IDispatch*)(val12) );
        rgIndices12++;
        val12 = hatchPolyline_0;
        SafeArrayPutElement( EntityArray12.parray, &rgIndices12, (IDispatch*)(val12) );
        rgIndices12++;
        val12 = hatcEllipse_0;
        SafeArrayPutElement( EntityArray12.parray, &rgIndices12, (IDispatch*)(val12) );
        rgIndices12++;
        val12 = hatcEllipse_1;
        SafeArrayPutElement( EntityArray12.parray, &rgIndices12, (IDispatch*)(val12) );
        rgIndices12++;
        val12 = hatchLine_0;
        SafeArrayPutElement( EntityArray12.parray, &rgIndices12, (IDispatch*)(val12) );
        rgIndices12++;
        val12 = hatchLine_1;
        SafeArrayPutElement( EntityArray12.parray, &rgIndices12, (IDispatch*)(val12) );
        rgIndices12++;
        val12 = hatchFace_0;
        SafeArrayPutElement( EntityArray12.parray, &rgIndices12, (IDispatch*)(val12) );
        rgIndices12++;
        val12 = hatchRichLine_0;
        SafeArrayPutElement( EntityArray12.parray, &rgIndices12, (IDispatch*)(val12) );
        rgIndices12++;
        val12 = hatchLeader_0;
        SafeArrayPutElement( EntityArray12.parray, &rgIndices12, (IDispatch*)(val12) );
        rgIndices12++;
        val12 = hatchLeader_1;
        SafeArrayPutElement( EntityArray12.parray, &rgIndices12, (IDispatch*)(val12) );
        rgIndices12++;

        hatch4=iwSketchManager->InsertHatchByEntities(EntityArray12,L"AR-CONC",1234567.50000000000000,0.00000000000000 );
        hatchCircle_0->put_Erased( true );
        hatchTable_0->put_Erased( true );
        hatchRegion_0->put_Erased( true );
        hatchBlkRef_0->put_Erased( true );
        hatchBlkRef_1->put_Erased( true );
        hatchPolygonMesh_0->put_Erased( true );
        hatchPolyFaceMesh_0->put_Erased( true );
        hatchSolid_0->put_Erased( true );
        hatchPolyLine3D_0->put_Erased( true );
        hatchArc_0->put_Erased( true );
        hatchPolyline_0->put_Erased( true );
        hatcEllipse_0->put_Erased( true );
        hatcEllipse_1->put_Erased( true );
        hatchLine_0->put_Erased( true );
        hatchLine_1->put_Erased( true );
        hatchFace_0->put_Erased( true );
        hatchRichLine_0->put_Erased( true );
        hatchLeader_0->put_Erased( true );
        hatchLeader_1->put_Erased( true );

        IHatchPatternPtr iwHatchPattern;
        iwHatchPattern = hatch4->GetHatchPattern();
        double x13, y13;
        iwHatchPattern->GetOrigin( &x13, &y13 );
        iwHatchPattern->SetOrigin( 1.00000000000000, y13 );
        hatch4->put_Color( pConnection->m_IwApp->GetColorByIndex( 3 ) );
        hatch4->put_Layer( L"Planting" );
    }
    IHatchPtr hatch5;
    {
        ICirclePtr hatchCircle_1;
        hatchCircle_1 = iwSketchManager->InsertCircle( 10.00000000000000, 10.00000000000000, 0.00000000000000, 2.50000000000000 );
        VARIANT EntityArray1;
        EntityArray1.vt = ( VT_ARRAY | VT_DISPATCH );
        EntityArray1.parray = SafeArrayCreateVector( VT_DISPATCH, 0, 2);
        long rgIndices1;
        rgIndices1 = 0;
        IDispatch* val1;
        val1 = line1;
        SafeArrayPutElement( EntityArray1.parray, &rgIndices1, (IDispatch*)(val1) );
        rgIndices1++;
        val1 = hatchCircle_1;
        SafeArrayPutElement( EntityArray1.parray, &rgIndices1, (IDispatch*)(val1) );
        rgIndices1++;

        hatch5=iwSketchManager->InsertHatchByEntities(EntityArray1,L"GRASS",0.10000000000000,0.25000000000000 );

        IHatchPatternPtr hatchPattern2 = hatch5->GetHatchPattern();
        hatchPattern2->SetGradientData( pConnection->m_IwApp->GetColorByIndex( 3 ), pConnection->m_IwApp->GetRGBColor( 12 ,200 ,255 ), true, 0.50000000000000);
    }
    IHatchPtr hatch6;
    {
        VARIANT EntityArray1;
        EntityArray1.vt = ( VT_ARRAY | VT_DISPATCH );
        EntityArray1.parray = SafeArrayCreateVector( VT_DISPATCH, 0, 0);
        long rgIndices1;
        rgIndices1 = 0;
        IDispatch* val1;

        hatch6=iwSketchManager->InsertHatchByEntities(EntityArray1,L"SOLID",1.00000000000000,0.00000000000000 );
    }
    IHatchPtr hatch7;
    {

        IPolyLinePtr hatch_Polyline_0;
        {
            VARIANT variant1;
            variant1.vt = ( VT_ARRAY | VT_R8 );
            variant1.parray = SafeArrayCreateVector( VT_R8, 0, 8 );
        long rgIndices1;
        rgIndices1 = -1;
        double x, y;
        x=0; y=0;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=12.5; y=0;
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=12.5; y=8.12346;
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=0; y=8;
        rgIndices1=6;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=7;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );

            hatch_Polyline_0 = iwSketchManager->InsertPolyline2D( variant1, true);
        }
        hatch_Polyline_0->SetSegmentAngle( 1, 3.14159 );
        hatch_Polyline_0->SetSegmentAngle( 3, -1.5708 );
        VARIANT EntityArray2;
        EntityArray2.vt = ( VT_ARRAY | VT_DISPATCH );
        EntityArray2.parray = SafeArrayCreateVector( VT_DISPATCH, 0, 1);
        long rgIndices2;
        rgIndices2 = 0;
        long rgIndice2;
        rgIndice2 = 0;
        IDispatch* val2;
        val2 = hatch_Polyline_0;
        SafeArrayPutElement( EntityArray2.parray, &rgIndices2, (IDispatch*)(val2) );
        hatch7 = iwSketchManager->InsertHatchByEntities( EntityArray2, L"GRAVEL", 2.00000000000000, 0.00000000000000 );

        hatch_Polyline_0->put_Erased( true );

        IHatchPatternPtr hatchPattern3 = hatch7->GetHatchPattern();
        hatchPattern3->SetGradientData( pConnection->m_IwApp->GetRGBColor( 255 ,0 ,0 ), pConnection->m_IwApp->GetColorByIndex( 7 ), false, 1.25000000000000);
    }
    IHatchPtr hatch8;
    {

        IPolyLinePtr hatch_Polyline_1;
        {
            VARIANT variant1;
            variant1.vt = ( VT_ARRAY | VT_R8 );
            variant1.parray = SafeArrayCreateVector( VT_R8, 0, 6 );
        long rgIndices1;
        rgIndices1 = -1;
        double x, y;
        x=0; y=0;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=4; y=0;
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=4; y=3;
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );

            hatch_Polyline_1 = iwSketchManager->InsertPolyline2D( variant1, true);
        }
        VARIANT EntityArray2;
        EntityArray2.vt = ( VT_ARRAY | VT_DISPATCH );
        EntityArray2.parray = SafeArrayCreateVector( VT_DISPATCH, 0, 1);
        long rgIndices2;
        rgIndices2 = 0;
        long rgIndice2;
        rgIndice2 = 0;
        IDispatch* val2;
        val2 = hatch_Polyline_1;
        SafeArrayPutElement( EntityArray2.parray, &rgIndices2, (IDispatch*)(val2) );
        hatch8 = iwSketchManager->InsertHatchByEntities( EntityArray2, L"GRAVEL", 2.00000000000000, 0.00000000000000 );
    }
    IHatchPtr hatch9;
    {
        VARIANT variant1,BoundaryPointCountLongArray1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        FaceVerticesCountLongArray1.vt = ( VT_ARRAY | VT_I4 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 16 );
        FaceVerticesCountLongArray1.parray = SafeArrayCreateVector( VT_I4, 0, 2 );
        long rgIndices1;
        rgIndices1 = -1;
        double x, y;
        x=0.00000000000000; y=0.00000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=20.00000000000000; y=0.00000000000000;
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=20.00000000000000; y=10.00000000000000;
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=0.00000000000000; y=10.00000000000000;
        rgIndices1=6;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=7;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=5.00000000000000; y=5.00000000000000;
        rgIndices1=8;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=9;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=8.00000000000000; y=5.00000000000000;
        rgIndices1=10;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=11;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=8.00000000000000; y=8.00000000000000;
        rgIndices1=12;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=13;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=0.00000000000000; y=0.00000000000000;
        rgIndices1=14;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=15;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );

        long rgIndices1;
        rgIndices1 = 0;
        int val1;
        val1 = 4;
        SafeArrayPutElement( BoundaryPointCountLongArray1.parray, &rgIndices1, (int*)&(val1) );
        rgIndices1++;
        val1 = 3;
        SafeArrayPutElement( BoundaryPointCountLongArray1.parray, &rgIndices1, (int*)&(val1) );
        rgIndices1++;

         hatch9=iwSketchManager->InsertHatchByBoundary( BoundaryPointCountLongArray1, variant1, L"BRICK", 0.75000000000000, 1.57079632679490);

        IHatchPatternPtr hatchPattern2 = hatch9->GetHatchPattern();
        hatchPattern2->SetGradientData( pConnection->m_IwApp->GetRGBColor( 0 ,0 ,0 ), pConnection->m_IwApp->GetColorByIndex( 1 ), false, 0.00000000000000);
        IHatchPatternPtr iwHatchPattern;
        iwHatchPattern = hatch9->GetHatchPattern();

        iwHatchPattern->put_InternalRegionDetection( iwHatchPatternInternalRegionDetection_Ignore );
    }
    IHatchPtr hatch11;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 2 );
        long rgIndices1;
        rgIndices1 = -1;
        double x, y;
        x=50.00000000000000; y=5.00000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );

        hatch11=iwSketchManager->InsertHatchByInternalPoints( variant1, L"CROSS", 1.00000000000000, 0.00000000000000);

        IHatchPatternPtr hatchPattern2 = hatch11->GetHatchPattern();
        hatchPattern2->SetGradientData( pConnection->m_IwApp->GetColorByIndex( 5 ), pConnection->m_IwApp->GetColorByIndex( 6 ), true, 0.12500000000000);
    }
    {
        // AcDbHatch object modified
        {
            IHatchPatternPtr iwHatchPattern;
            iwHatchPattern = hatch3->GetHatchPattern();
            BSTR PatternName;
            double Angle;
            double Scale;
            iwHatchPatternType_e HatchPatternType;
            double Spacing;

            iwHatchPattern->GetHatchOrSolidData( &PatternName, &Angle, &Scale, &HatchPatternType, &Spacing );
            Angle = 0.50000000000000;
            Scale = 3.00000000000000;
            Spacing = 1.25000000000000;
            PatternName = L"ANSI37";
            HatchPatternType = iwHatchPatternType_Predefined;
            iwHatchPattern->SetHatchOrSolidData( PatternName, Angle, Scale, HatchPatternType, Spacing );

        }
    }
    {
        // AcDbHatch object modified
        {
            IHatchPatternPtr iwHatchPattern;
            iwHatchPattern = hatch5->GetHatchPattern();
            IColorPtr color1;
            IColorPtr color2;
            VARIANT_BOOL bCentered;
            double gradientAngle;

            iwHatchPattern->GetGradientData( &color1, &color2, &bCentered, &gradientAngle);
            color1 = pConnection->m_IwApp->GetColorByIndex( 2 );;
            color2 = pConnection->m_IwApp->GetRGBColor( 1 ,2 ,3 );;
            gradientAngle = 0.75000000000000;
            bCentered = true;
            iwHatchPattern->SetGradientData(color1, color2, bCentered, gradientAngle);
        }
    }
    {
        // AcDbHatch object modified
        hatch4->put_Color( pConnection->m_IwApp->GetColorByIndex( 1 ) );
        IHatchPatternPtr iwHatchPattern;
        iwHatchPattern = hatch4->GetHatchPattern();
        BSTR PatternName;
        double Angle;
        double Scale;
        iwHatchPatternType_e HatchPatternType;
        double Spacing;

        iwHatchPattern->GetHatchOrSolidData( &PatternName, &Angle, &Scale, &HatchPatternType, &Spacing );
        HatchPatternType = iwHatchPatternType_Custom;
        iwHatchPattern->SetHatchOrSolidData( PatternName, Angle, Scale, HatchPatternType, Spacing );

        IColorPtr color1;
        IColorPtr color2;
        VARIANT_BOOL bCentered;
        double gradientAngle;

        iwHatchPattern->GetGradientData( &color1, &color2, &bCentered, &gradientAngle);
        bCentered = false;
        iwHatchPattern->SetGradientData(color1, color2, bCentered, gradientAngle);

        iwHatchPattern->put_InternalRegionDetection( iwHatchPatternInternalRegionDetection_Ignore );
        double x1, y1;
        iwHatchPattern->GetOrigin( &x1, &y1 );
        iwHatchPattern->SetOrigin( x1, 7.00000000000000 );
    }
    {
        IHatchPatternPtr iwHatchPattern;
        iwHatchPattern = hatch9->GetHatchPattern();
        BSTR PatternName;
        double Angle;
        double Scale;
        iwHatchPatternType_e HatchPatternType;
        double Spacing;

        iwHatchPattern->GetHatchOrSolidData( &PatternName, &Angle, &Scale, &HatchPatternType, &Spacing );
        Scale = 2.50000000000000;
        iwHatchPattern->SetHatchOrSolidData( PatternName, Angle, Scale, HatchPatternType, Spacing );

    }
}

