#include "recording.h"
#include "iwAddinConnection.h"
#include "iwCommandMessage_c.h"
#include "iwApplicationOptions_c.h"
#include "iwSheet_c.h"
#include "math.h"

CMacroCommand::CMacroCommand( iwApplication_c *pApp, const iwString & name )
    : m_pIwApp( pApp )
    , m_name( name )
    , m_pCmd( NULL )
{
    iwCreateCommandError_e Error;
    m_pIwApp->CreateCommand( MacroApplication::appID, name, &Error, &m_pCmd );
    if ( Error )
    {
        return;
    }

    RegisterCommandExecuteNotifyHook( m_pCmd );
}

CMacroCommand::~CMacroCommand()
{
    if ( m_pCmd )
    {
        UnRegisterCommandExecuteNotifyHook( m_pCmd );
    }
}

ImplementCommandExecuteNotifyHook(CMacroCommand)

bool CMacroCommand::ExecuteNotify(void)
{
    iwDocument_ptr iwDoc;
    m_pIwApp->GetActiveDocument( &iwDoc );
    if ( !iwDoc )
    {
        return false;
    }

    iwModel_ptr iwModel;
    iwDoc->GetModel( &iwModel );
    if ( !iwModel )
    {
        return false;
    }

    iwSketchManager_ptr iwSketchManager;
    iwModel->GetSketchManager( &iwSketchManager );
    if ( !iwSketchManager )
    {
        return false;
    }

    iwObjectPtrArray iwSheetsArray;
    iwDoc->GetSheets( &iwSheetsArray );
    iwSheet_ptr iwSheet = (iwSheet_c *)iwSheetsArray[1];
    if ( !iwSheet )
    {
        return false;
    }

    iwViewManager_ptr iwViewManager;
    iwDoc->GetViewManager( &iwViewManager );
    if ( !iwViewManager )
    {
        return false;
    }

    iwPolyLine_ptr iwpolyline1;
    iwPolyLine3D_ptr iwpolyline3d2;
    iwSpline_ptr iwspline3;
    iwPolygonMesh_ptr iwpolygonmesh4;
    iwPolyFaceMesh_ptr iwpolyfacemesh5;
    iwSolid_ptr iwsolid6;
    iwTrace_ptr iwtrace7;
    iwFace_ptr iwface8;
    iwRichLine_ptr iwrichline9;
    iwShape_ptr iwshape10;
    iwEmbeddedObject_ptr iwembeddedobject11;
    iwViewport_ptr iwviewport12;
    iwRotatedDimension_ptr iwrotateddimension13;
    iwDoubleArray Coordinates1,Coordinates2,Coordinates3;
    Coordinates1.clear();Coordinates2.clear();Coordinates3.clear(); 
    Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);
    Coordinates2.add(0.00000000000000);Coordinates2.add(0.00000000000000);Coordinates2.add(0.00000000000000);
    Coordinates3.add(0.00000000000000);Coordinates3.add(0.00000000000000);Coordinates3.add(0.00000000000000);
    iwSketchManager->InsertRotatedDimension( Coordinates1, Coordinates2, Coordinates3, L"", 0, &iwrotateddimension13 );
        iwGeneralDimension_ptr generalDimension1;
        iwrotateddimension13->GetGeneralDimension( &generalDimension1 );
    iwColor_ptr iwColor2;
    m_pIwApp->GetColorByIndex( 256, &iwColor2 );
    generalDimension1->put_Color( iwColor2 );
    generalDimension1->put_Layer( L"Walls" );
    generalDimension1->put_LineStyle( L"Continuous" );
    generalDimension1->put_LineScale( 1.00000000000000 );
    generalDimension1->put_LineWeight( iwLnWt_ByLayer );
    generalDimension1->put_Thickness( 0.00000000000000 );
    iwModelNamedView_ptr iwmodelnamedview14;
    {
        double X;
        double Y;
        bool retVal = false;
        iwpolyline1->GetVertexCoordinate( 2, &X, &Y );
        X = 1.50000000000000;
        iwpolyline1->SetVertexCoordinate( 2, X, Y, &retVal );
    }
    {
        bool bRetVal3 = false;
        iwpolyline1->SetSegmentStartWidth( 0, 0.25000000000000, &bRetVal3 );
    }
    {
        bool bRetVal4 = false;
        iwpolyline1->SetSegmentEndWidth( 0, 0.50000000000000, &bRetVal4 );
    }
    // AcDbPolyline object modified
    {
        iwpolyline1->put_Elevation( 1.00000000000000 );
        iwpolyline1->put_GlobalWidth( 0.10000000000000 );
        iwpolyline1->put_Closed( true );
        iwpolyline1->put_LineStyleGeneration( true );
    }
    // AcDbPolyline object modified
    {
        iwpolyline1->put_Closed( false );
        iwpolyline1->put_LineStyleGeneration( false );
    }
    {
        double X5;
        double Y5;
        double Z5;
        bool bRetVal5 = false;
        iwpolyline3d2->GetVertexCoordinate( 1, &X5, &Y5, &Z5, &bRetVal5 );
        Z5 = 7.00000000000000;
        iwpolyline3d2->SetVertexCoordinate( 1, X5, Y5, Z5, &bRetVal5 );
    }
    // AcDb3dPolyline object modified
    {
        iwpolyline3d2->put_FitSmooth( iwPolyLine3DFitSmooth_Qudratic );
        iwpolyline3d2->put_Closed( true );
    }
    {
        double X6;
        double Y6;
        double Z6;
        bool bRetVal6 = false;
        iwspline3->GetControlPointCoordinate( 0, &X6, &Y6, &Z6, &bRetVal6 );
        X6 = 3.00000000000000;
        iwspline3->SetControlPointCoordinate( 0, X6, Y6, Z6, &bRetVal6 );
    }
    {
        double X7;
        double Y7;
        double Z7;
        bool bRetVal7 = false;
        iwspline3->GetFitPointCoordinate( 3, &X7, &Y7, &Z7, &bRetVal7 );
        Y7 = 4.00000000000000;
        iwspline3->SetFitPointCoordinate( 3, X7, Y7, Z7, &bRetVal7 );
    }
    // AcDbSpline object modified
    {
        iwspline3->put_FitTolerance( 0.00100000000000 );
    }
    {
        double X8;
        double Y8;
        double Z8;
        bool bRetVal8 = false;
        iwpolygonmesh4->GetVertexCoordinate( 0, &X8, &Y8, &Z8, &bRetVal8 );
        X8 = 5.00000000000000;
        iwpolygonmesh4->SetVertexCoordinate( 0, X8, Y8, Z8, &bRetVal8 );
    }
    // AcDbPolygonMesh object modified
    {
        iwpolygonmesh4->put_MClosed( true );
        iwpolygonmesh4->put_MDensity( 6.00000000000000 );
        iwpolygonmesh4->put_NDensity( 4.00000000000000 );
        iwpolygonmesh4->put_NClosed( false );
        iwpolygonmesh4->put_FitSmooth( iwPolygonMeshFitSmooth_Bezier );
    }
    {
        double X9;
        double Y9;
        double Z9;
        bool bRetVal9 = false;
        iwpolyfacemesh5->GetVertexCoordinate( 5, &X9, &Y9, &Z9, &bRetVal9 );
        Y9 = 6.00000000000000;
        iwpolyfacemesh5->SetVertexCoordinate( 5, X9, Y9, Z9, &bRetVal9 );
    }
    {
        double X10;
        double Y10;
        double Z10;
        iwsolid6->GetVertex1Coordinate( &X10, &Y10, &Z10 );
        X10 = 1.00000000000000;
        iwsolid6->SetVertex1Coordinate( X10, Y10, Z10 );
    }
    {
        double X11;
        double Y11;
        double Z11;
        iwtrace7->GetVertex4Coordinate( &X11, &Y11, &Z11 );
        Z11 = 2.00000000000000;
        iwtrace7->SetVertex4Coordinate( X11, Y11, Z11 );
    }
    // AcDbFace object modified
    {
        iwface8->put_Edge1Visible( true );
        iwface8->put_Edge4Visible( false );
    }
    {
        double X12;
        double Y12;
        double Z12;
        iwface8->GetVertex4Coordinate( &X12, &Y12, &Z12 );
        X12 = 1.00000000000000;
        iwface8->SetVertex4Coordinate( X12, Y12, Z12 );
    }
    // AcDbMline object modified
    {
        iwrichline9->put_Justification( iwRichLineJustification_Zero );
        iwrichline9->put_Scale( 20.00000000000000 );
    }
    // AcDbShape object modified
    {
        double X13;
        double Y13;
        double Z13;
        iwshape10->GetPosition( &X13, &Y13, &Z13 );
        X13 = 1.00000000000000;
        iwshape10->SetPosition( X13, Y13, Z13 );
        iwshape10->put_Obliquing( 0.10000000000000 );
        iwshape10->put_Rotation( 0.20000000000000 );
        iwshape10->put_Size( 3.00000000000000 );
        iwshape10->put_WidthFactor( 0.80000000000000 );
    }
    // AcDbOle2Frame object modified
    {
        iwembeddedobject11->put_Height( 2.00000000000000 );
        double X14;
        double Y14;
        double Z14;
        iwembeddedobject11->GetPosition( &X14, &Y14, &Z14 );
        Y14 = 1.00000000000000;
        iwembeddedobject11->SetPosition( X14, Y14, Z14 );
        iwembeddedobject11->put_Width( 3.00000000000000 );
        iwembeddedobject11->put_PrintQuality( iwEmbeddedObjectPrintQuality_HighGraphics );
    }
    // AcDbViewport object modified
    {
        double X15;
        double Y15;
        double Z15;
        iwviewport12->GetCenter( &X15, &Y15, &Z15 );
        X15 = 5.00000000000000;
        iwviewport12->SetCenter( X15, Y15, Z15 );
        iwviewport12->put_Height( 4.00000000000000 );
        iwviewport12->put_CCSPerViewport( true );
        iwviewport12->put_CustomScale( 0.50000000000000 );
        iwviewport12->put_DisplayLocked( false );
        iwviewport12->put_IsOn( true );
        iwviewport12->put_ShadePrintStyle( iwViewportShadePrintStyle_Hidden );
        iwviewport12->put_StandardScale( iwViewportStandardScale_1_2 );
    }
    // AcDbRotatedDimension object modified
        iwGeneralDimension_ptr generalDimension16;
        iwrotateddimension13->GetGeneralDimension( &generalDimension16 );
    iwColor_ptr iwColor17;
    m_pIwApp->GetColorByIndex( 2, &iwColor17 );
    generalDimension16->put_Color( iwColor17 );
    // AcDbRotatedDimension object modified
    {
        iwGeneralDimension_ptr generalDimension18;
        iwrotateddimension13->GetGeneralDimension( &generalDimension18 );
        generalDimension18->put_Layer( L"Walls" );
    }
    // AcDbRotatedDimension object modified
    {
        iwGeneralDimension_ptr generalDimension20;
        iwrotateddimension13->GetGeneralDimension( &generalDimension20 );
        generalDimension20->put_Erased( true );
    }
    // AcDbBlockTableRecord object modified
    iwBlockDefinition_ptr iwblockdefinition15;
    {
        iwblockdefinition15->put_Erased( true );
    }
    iwLayerManager_ptr iwLayerManager_1;
    iwDoc->GetLayerManager( &iwLayerManager_1 );
    iwLayer_ptr iwlayer16;
    iwLayerManager_1->GetLayer( L"0", &iwlayer16 );
    // AcDbLayerTableRecord object modified
    {
        iwLayerManager_ptr iwLayerManager22;
        iwDoc->GetLayerManager( &iwLayerManager22 );
        iwString layerName22;
        iwlayer16->get_Name( &layerName22 );
        bool bResult22 = false;
        iwLayerManager22->RemoveLayer( layerName22, &bResult22 );
    }
    // AcDbViewTableRecord object modified
    {
        iwViewManager->RemoveModelNamedView( L"Front" );
    }
    iwModelNamedView_ptr iwmodelnamedview17;
    // AcDbViewTableRecord object modified
    {
        iwViewManager->RemoveSheetNamedView( L"Title block" );
    }
    return true;
}

const iwString &CMacroCommand::GetName() const
{
    return m_name;
}
