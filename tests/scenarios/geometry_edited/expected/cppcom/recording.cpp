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

    IPolyLinePtr polyline1;
    IPolyLine3DPtr polyline3d2;
    ISplinePtr spline3;
    IPolygonMeshPtr polygonmesh4;
    IPolyFaceMeshPtr polyfacemesh5;
    ISolidPtr solid6;
    ITracePtr trace7;
    IFacePtr face8;
    IRichLinePtr richline9;
    IShapePtr shape10;
    IEmbeddedObjectPtr embeddedobject11;
    IViewportPtr viewport12;
    IRotatedDimensionPtr rotateddimension13;
    double x, y, z;
    VARIANT variant1,variant2,variant3;
    variant1.vt = ( VT_ARRAY | VT_R8 );
    variant2.vt = ( VT_ARRAY | VT_R8 );
    variant3.vt = ( VT_ARRAY | VT_R8 );
    variant1.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
    variant2.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
    variant3.parray = SafeArrayCreateVector( VT_R8, 0, 3);
    long rgIndices1;
    rgIndices1 = 0;
    x=0.00000000000000; y=0.00000000000000; z=0.00000000000000;
    SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
    rgIndices1=1;
    SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
    rgIndices1=2;
    SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z) );

    long rgIndices2;
    rgIndices2 = 0;
    x=0.00000000000000; y=0.00000000000000; z=0.00000000000000;
    SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(x) );
    rgIndices2=1;
    SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(y) );
    rgIndices2=2;
    SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(z) );

    long rgIndices3;
    rgIndices3 = 0;
    x=0.00000000000000; y=0.00000000000000; z=0.00000000000000;
    SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(x) );
    rgIndices3=1;
    SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(y) );
    rgIndices3=2;
    SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(z) );

    rotateddimension13 = iwSketchManager->InsertRotatedDimension( variant1, variant2, variant3, L"", 0.00000000000000 );
        IGeneralDimensionPtr generalDimension4 = rotateddimension13->GetGeneralDimension();
    generalDimension4->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
    generalDimension4->put_Layer( L"Walls" );
    generalDimension4->put_LineStyle( L"Continuous" );
    generalDimension4->put_LineScale( 1.00000000000000 );
    generalDimension4->put_LineWeight( iwLnWt_ByLayer );
    generalDimension4->put_Thickness( 0.00000000000000 );
    IModelNamedViewPtr modelnamedview14;
    {
        double X5;
        double Y5;
        polyline1->GetVertexCoordinate( 2, &X5, &Y5 );
        X5 = 1.50000000000000;
        polyline1->SetVertexCoordinate( 2, X5, Y5 );
    }
    {
        polyline1->SetSegmentStartWidth( 0, 0.25000000000000 );
    }
    {
        polyline1->SetSegmentEndWidth( 0, 0.50000000000000 );
    }
    // AcDbPolyline object modified
    {
        polyline1->put_Elevation( 1.00000000000000 );
        polyline1->put_GlobalWidth( 0.10000000000000 );
        polyline1->put_Closed( true );
        polyline1->put_LineStyleGeneration( true );
    }
    // AcDbPolyline object modified
    {
        polyline1->put_Closed( false );
        polyline1->put_LineStyleGeneration( false );
    }
    {
        double X6;
        double Y6;
        double Z6;
        polyline3d2->GetVertexCoordinate( 1, &X6, &Y6, &Z6 );
        Z6 = 7.00000000000000;
        polyline3d2->SetVertexCoordinate( 1, X6, Y6, Z6 );
        
    }
    // AcDb3dPolyline object modified
    {
        polyline3d2->put_FitSmooth( iwPolyLine3DFitSmooth_Qudratic );
        polyline3d2->put_Closed( true );
    }
    {
        double X7;
        double Y7;
        double Z7;
        spline3->GetControlPointCoordinate( 0, &X7, &Y7, &Z7 );
        X7 = 3.00000000000000;
        spline3->SetControlPointCoordinate( 0, X7, Y7, Z7 );
        
    }
    {
        double X8;
        double Y8;
        double Z8;
        spline3->GetFitPointCoordinate( 3, &X8, &Y8, &Z8 );
        Y8 = 4.00000000000000;
        spline3->SetFitPointCoordinate( 3, X8, Y8, Z8 );
        
    }
    // AcDbSpline object modified
    {
        spline3->put_FitTolerance( 0.00100000000000 );
    }
    {
        double X9;
        double Y9;
        double Z9;
        polygonmesh4->GetVertexCoordinate( 0, &X9, &Y9, &Z9 );
        X9 = 5.00000000000000;
        polygonmesh4->SetVertexCoordinate( 0, X9, Y9, Z9 );
        
    }
    // AcDbPolygonMesh object modified
    {
        polygonmesh4->put_MClosed( true );
        polygonmesh4->put_MDensity( 6.00000000000000 );
        polygonmesh4->put_NDensity( 4.00000000000000 );
        polygonmesh4->put_NClosed( false );
        polygonmesh4->put_FitSmooth( iwPolygonMeshFitSmooth_Bezier );
    }
    {
        double X10;
        double Y10;
        double Z10;
        polyfacemesh5->GetVertexCoordinate( 5, &X10, &Y10, &Z10 );
        Y10 = 6.00000000000000;
        polyfacemesh5->SetVertexCoordinate( 5, X10, Y10, Z10 );
        
    }
    {
        double X11;
        double Y11;
        double Z11;
        solid6->GetVertex1Coordinate( &X11, &Y11, &Z11 );
        X11 = 1.00000000000000;
        solid6->SetVertex1Coordinate( X11, Y11, Z11 );
        
    }
    {
        double X12;
        double Y12;
        double Z12;
        trace7->GetVertex4Coordinate( &X12, &Y12, &Z12 );
        Z12 = 2.00000000000000;
        trace7->SetVertex4Coordinate( X12, Y12, Z12 );
        
    }
    // AcDbFace object modified
    {
        face8->put_Edge1Visible( true );
        face8->put_Edge4Visible( false );
    }
    {
        double X13;
        double Y13;
        double Z13;
        face8->GetVertex4Coordinate( &X13, &Y13, &Z13 );
        X13 = 1.00000000000000;
        face8->SetVertex4Coordinate( X13, Y13, Z13 );
        
    }
    // AcDbMline object modified
    {
        richline9->put_Justification( iwRichLineJustification_Zero );
        richline9->put_Scale( 20.00000000000000 );
    }
    // AcDbShape object modified
    {
        double X14;
        double Y14;
        double Z14;
        shape10->GetPosition( &X14, &Y14, &Z14 );
        X14 = 1.00000000000000;
        shape10->SetPosition( X14, Y14, Z14 );
        
        shape10->put_Obliquing( 0.10000000000000 );
        shape10->put_Rotation( 0.20000000000000 );
        shape10->put_Size( 3.00000000000000 );
        shape10->put_WidthFactor( 0.80000000000000 );
    }
    // AcDbOle2Frame object modified
    {
        embeddedobject11->put_Height( 2.00000000000000 );
        double X15;
        double Y15;
        double Z15;
        embeddedobject11->GetPosition( &X15, &Y15, &Z15 );
        Y15 = 1.00000000000000;
        embeddedobject11->SetPosition( X15, Y15, Z15 );
        
        embeddedobject11->put_Width( 3.00000000000000 );
        embeddedobject11->put_PrintQuality( iwEmbeddedObjectPrintQuality_HighGraphics );
    }
    // AcDbViewport object modified
    {
        double X16;
        double Y16;
        double Z16;
        viewport12->GetCenter( &X16, &Y16, &Z16 );
        X16 = 5.00000000000000;
        viewport12->SetCenter( X16, Y16, Z16 );
        
        viewport12->put_Height( 4.00000000000000 );
        viewport12->put_CCSPerViewport( true );
        viewport12->put_CustomScale( 0.50000000000000 );
        viewport12->put_DisplayLocked( false );
        viewport12->put_IsOn( true );
        viewport12->put_ShadePrintStyle( iwViewportShadePrintStyle_Hidden );
        viewport12->put_StandardScale( iwViewportStandardScale_1_2 );
    }
    // AcDbRotatedDimension object modified
        IGeneralDimensionPtr generalDimension17 = rotateddimension13->GetGeneralDimension();
    generalDimension17->put_Color( pConnection->m_IwApp->GetColorByIndex( 2 ) );
    // AcDbRotatedDimension object modified
    {
        IGeneralDimensionPtr generalDimension18 = rotateddimension13->GetGeneralDimension();
        generalDimension18->put_Layer( L"Walls" );
    }
    // AcDbRotatedDimension object modified
    {
        IGeneralDimensionPtr generalDimension20 = rotateddimension13->GetGeneralDimension();
        generalDimension20->put_Erased( true );
    }
    // AcDbBlockTableRecord object modified
    IBlockDefinitionPtr blockdefinition15;
    {
        blockdefinition15->put_Erased( true );
    }
    ILayerManagerPtr iwLayerManager_1 = iwDoc->GetLayerManager();
    ILayerPtr layer16 = iwLayerManager_1->GetLayer( "0" );
    // AcDbLayerTableRecord object modified
    {
        ILayerManagerPtr iwLayerManager22 = iwDoc->GetLayerManager();
        BSTR layerName22;
        layer16->get_Name( &layerName22 );
        iwLayerManager22->RemoveLayer( layerName22 );
    }
    // AcDbViewTableRecord object modified
    {
        iwViewManager->RemoveModelNamedView( L"Front" );
    }
    IModelNamedViewPtr modelnamedview17;
    // AcDbViewTableRecord object modified
    {
        iwViewManager->RemoveSheetNamedView( L"Title block" );
    }
}

