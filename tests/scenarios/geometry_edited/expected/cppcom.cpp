    IPolyLinePtr polyline1;
    VARIANT variant1;
    variant1.vt = ( VT_ARRAY | VT_R8 );
    variant1.parray = SafeArrayCreateVector( VT_R8, 0, 0 );
    long rgIndices1;
    rgIndices1 = -1;
    double x, y;

    polyline1=iwSketchManager->InsertPolyline2D( variant1, false);
    polyline1->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
    polyline1->put_Layer( L"Walls" );
    polyline1->put_LineStyle( L"Continuous" );
    polyline1->put_LineScale( 1.00000000000000 );
    polyline1->put_LineWeight( iwLnWt_ByLayer );
    polyline1->put_Thickness( 0.00000000000000 );
    IPolyLine3DPtr polyline3d2;
    VARIANT variant2;
    variant2.vt = ( VT_ARRAY | VT_R8 );
    variant2.parray = SafeArrayCreateVector( VT_R8, 0, 0 );
    long rgIndices2;
    rgIndices2 = -1;
    double x_2, y_2, z_2;

    polyline3d2 = iwSketchManager->InsertPolyline3D( variant2, false );
    polyline3d2->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
    polyline3d2->put_Layer( L"Walls" );
    polyline3d2->put_LineStyle( L"Continuous" );
    polyline3d2->put_LineScale( 1.00000000000000 );
    polyline3d2->put_LineWeight( iwLnWt_ByLayer );
    polyline3d2->put_Thickness( 0.00000000000000 );
    ISplinePtr spline3;
    VARIANT variant3;
    variant3.vt = ( VT_ARRAY | VT_R8 );
    variant3.parray = SafeArrayCreateVector( VT_R8, 0, 0 );
    long rgIndices3;
    rgIndices3 = -1;
    double x_3, y_3, z_3;

    spline3 = iwSketchManager->InsertSpline( variant3, false, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000 );
    spline3->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
    spline3->put_Layer( L"Walls" );
    spline3->put_LineStyle( L"Continuous" );
    spline3->put_LineScale( 1.00000000000000 );
    spline3->put_LineWeight( iwLnWt_ByLayer );
    spline3->put_Thickness( 0.00000000000000 );
    IPolygonMeshPtr polygonmesh4;
    VARIANT variant4;
    variant4.vt = ( VT_ARRAY | VT_R8 );
    variant4.parray = SafeArrayCreateVector( VT_R8, 0, 0 );
    long rgIndices4;
    rgIndices4 = -1;
    double x_4, y_4, z_4;

    polygonmesh4 = iwSketchManager->InsertPolygonMesh( 0, 0, variant4 );
    polygonmesh4->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
    polygonmesh4->put_Layer( L"Walls" );
    polygonmesh4->put_LineStyle( L"Continuous" );
    polygonmesh4->put_LineScale( 1.00000000000000 );
    polygonmesh4->put_LineWeight( iwLnWt_ByLayer );
    polygonmesh4->put_Thickness( 0.00000000000000 );
    IPolyFaceMeshPtr polyfacemesh5;
    VARIANT variant5;
    variant5.vt = ( VT_ARRAY | VT_R8 );
    variant5.parray = SafeArrayCreateVector( VT_R8, 0, 0 );
    VARIANT FaceVerticesCountLongArray6;
    FaceVerticesCountLongArray6.vt = ( VT_ARRAY | VT_I4 );
    FaceVerticesCountLongArray6.parray = SafeArrayCreateVector( VT_I4, 0, 0 );
    VARIANT FaceVerticesLongArray7;
    FaceVerticesLongArray7.vt = ( VT_ARRAY | VT_I4 );
    FaceVerticesLongArray7.parray = SafeArrayCreateVector( VT_I4, 0, 0 );
    long rgIndices5;
    rgIndices5 = -1;
    double x_5, y_5, z_5;

    long rgIndices6;
    rgIndices6 = 0;
    int val6;

    long rgIndices7;
    rgIndices7 = 0;
    int val7;

    polyfacemesh5 = iwSketchManager->InsertPolyFaceMesh( 0, variant5, FaceVerticesCountLongArray6, FaceVerticesLongArray7 );
    polyfacemesh5->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
    polyfacemesh5->put_Layer( L"Walls" );
    polyfacemesh5->put_LineStyle( L"Continuous" );
    polyfacemesh5->put_LineScale( 1.00000000000000 );
    polyfacemesh5->put_LineWeight( iwLnWt_ByLayer );
    polyfacemesh5->put_Thickness( 0.00000000000000 );
    ISolidPtr solid6;
    VARIANT variant8;
    variant8.vt = ( VT_ARRAY | VT_R8 );
    variant8.parray = SafeArrayCreateVector( VT_R8, 0, 0 );
    long rgIndices8;
    rgIndices8 = -1;
    double x_8, y_8, z_8;

    solid6 = iwSketchManager->InsertSolid( variant8 );
    solid6->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
    solid6->put_Layer( L"Walls" );
    solid6->put_LineStyle( L"Continuous" );
    solid6->put_LineScale( 1.00000000000000 );
    solid6->put_LineWeight( iwLnWt_ByLayer );
    solid6->put_Thickness( 0.00000000000000 );
    ITracePtr trace7;
    VARIANT variant9;
    variant9.vt = ( VT_ARRAY | VT_R8 );
    variant9.parray = SafeArrayCreateVector( VT_R8, 0, 0 );
        long rgIndices9;
    rgIndices9 = -1;
    double x_9, y_9, z_9;

    trace7=iwSketchManager->InsertTrace( variant9 );
    trace7->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
    trace7->put_Layer( L"Walls" );
    trace7->put_LineStyle( L"Continuous" );
    trace7->put_LineScale( 1.00000000000000 );
    trace7->put_LineWeight( iwLnWt_ByLayer );
    trace7->put_Thickness( 0.00000000000000 );
    IFacePtr face8;
    VARIANT variant10;
    variant10.vt = ( VT_ARRAY | VT_R8 );
    variant10.parray = SafeArrayCreateVector( VT_R8, 0, 0 );
    long rgIndices10;
    rgIndices10 = -1;
    double x_10, y_10, z_10;

     face8 = iwSketchManager->InsertFace(
     variant10,
     false,
     false,
     false ,false );
    face8->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
    face8->put_Layer( L"Walls" );
    face8->put_LineStyle( L"Continuous" );
    face8->put_LineScale( 1.00000000000000 );
    face8->put_LineWeight( iwLnWt_ByLayer );
    face8->put_Thickness( 0.00000000000000 );
    IRichLinePtr richline9;
    VARIANT variant11;
    variant11.vt = ( VT_ARRAY | VT_R8 );
    variant11.parray = SafeArrayCreateVector( VT_R8, 0, 0 );
    long rgIndices11;
    rgIndices11 = -1;
    double x_11, y_11, z_11;

    richline9 = iwSketchManager->InsertRichLine( variant11, iwRichLineJustification_Top, 0.00000000000000, L"", false );
    richline9->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
    richline9->put_Layer( L"Walls" );
    richline9->put_LineStyle( L"Continuous" );
    richline9->put_LineScale( 1.00000000000000 );
    richline9->put_LineWeight( iwLnWt_ByLayer );
    richline9->put_Thickness( 0.00000000000000 );
    IShapePtr shape10;
    shape10 = iwSketchManager->InsertShape( L"", 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000 );
    shape10->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
    shape10->put_Layer( L"Walls" );
    shape10->put_LineStyle( L"Continuous" );
    shape10->put_LineScale( 1.00000000000000 );
    shape10->put_LineWeight( iwLnWt_ByLayer );
    shape10->put_Thickness( 0.00000000000000 );
    IEmbeddedObjectPtr embeddedobject11;
    IViewportPtr viewport12;
    IRotatedDimensionPtr rotateddimension13;
    {
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
    }
    IModelNamedViewPtr modelnamedview14;
    {
        double X12;
        double Y12;
        polyline1->GetVertexCoordinate( 2, &X12, &Y12 );
        X12 = 1.50000000000000;
        polyline1->SetVertexCoordinate( 2, X12, Y12 );
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
        double X13;
        double Y13;
        double Z13;
        polyline3d2->GetVertexCoordinate( 1, &X13, &Y13, &Z13 );
        Z13 = 7.00000000000000;
        polyline3d2->SetVertexCoordinate( 1, X13, Y13, Z13 );
        
    }
    // AcDb3dPolyline object modified
    {
        polyline3d2->put_FitSmooth( iwPolyLine3DFitSmooth_Qudratic );
        polyline3d2->put_Closed( true );
    }
    {
        double X14;
        double Y14;
        double Z14;
        spline3->GetControlPointCoordinate( 0, &X14, &Y14, &Z14 );
        X14 = 3.00000000000000;
        spline3->SetControlPointCoordinate( 0, X14, Y14, Z14 );
        
    }
    {
        double X15;
        double Y15;
        double Z15;
        spline3->GetFitPointCoordinate( 3, &X15, &Y15, &Z15 );
        Y15 = 4.00000000000000;
        spline3->SetFitPointCoordinate( 3, X15, Y15, Z15 );
        
    }
    // AcDbSpline object modified
    {
        spline3->put_FitTolerance( 0.00100000000000 );
    }
    {
        double X16;
        double Y16;
        double Z16;
        polygonmesh4->GetVertexCoordinate( 0, &X16, &Y16, &Z16 );
        X16 = 5.00000000000000;
        polygonmesh4->SetVertexCoordinate( 0, X16, Y16, Z16 );
        
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
        double X17;
        double Y17;
        double Z17;
        polyfacemesh5->GetVertexCoordinate( 5, &X17, &Y17, &Z17 );
        Y17 = 6.00000000000000;
        polyfacemesh5->SetVertexCoordinate( 5, X17, Y17, Z17 );
        
    }
    {
        double X18;
        double Y18;
        double Z18;
        solid6->GetVertex1Coordinate( &X18, &Y18, &Z18 );
        X18 = 1.00000000000000;
        solid6->SetVertex1Coordinate( X18, Y18, Z18 );
        
    }
    {
        double X19;
        double Y19;
        double Z19;
        trace7->GetVertex4Coordinate( &X19, &Y19, &Z19 );
        Z19 = 2.00000000000000;
        trace7->SetVertex4Coordinate( X19, Y19, Z19 );
        
    }
    // AcDbFace object modified
    {
        face8->put_Edge1Visible( true );
        face8->put_Edge4Visible( false );
    }
    {
        double X20;
        double Y20;
        double Z20;
        face8->GetVertex4Coordinate( &X20, &Y20, &Z20 );
        X20 = 1.00000000000000;
        face8->SetVertex4Coordinate( X20, Y20, Z20 );
        
    }
    // AcDbMline object modified
    {
        richline9->put_Justification( iwRichLineJustification_Zero );
        richline9->put_Scale( 20.00000000000000 );
    }
    // AcDbShape object modified
    {
        double X21;
        double Y21;
        double Z21;
        shape10->GetPosition( &X21, &Y21, &Z21 );
        X21 = 1.00000000000000;
        shape10->SetPosition( X21, Y21, Z21 );
        
        shape10->put_Obliquing( 0.10000000000000 );
        shape10->put_Rotation( 0.20000000000000 );
        shape10->put_Size( 3.00000000000000 );
        shape10->put_WidthFactor( 0.80000000000000 );
    }
    // AcDbOle2Frame object modified
    {
        embeddedobject11->put_Height( 2.00000000000000 );
        double X22;
        double Y22;
        double Z22;
        embeddedobject11->GetPosition( &X22, &Y22, &Z22 );
        Y22 = 1.00000000000000;
        embeddedobject11->SetPosition( X22, Y22, Z22 );
        
        embeddedobject11->put_Width( 3.00000000000000 );
        embeddedobject11->put_PrintQuality( iwEmbeddedObjectPrintQuality_HighGraphics );
    }
    // AcDbViewport object modified
    {
        double X23;
        double Y23;
        double Z23;
        viewport12->GetCenter( &X23, &Y23, &Z23 );
        X23 = 5.00000000000000;
        viewport12->SetCenter( X23, Y23, Z23 );
        
        viewport12->put_Height( 4.00000000000000 );
        viewport12->put_CCSPerViewport( true );
        viewport12->put_CustomScale( 0.50000000000000 );
        viewport12->put_DisplayLocked( false );
        viewport12->put_IsOn( true );
        viewport12->put_ShadePrintStyle( iwViewportShadePrintStyle_Hidden );
        viewport12->put_StandardScale( iwViewportStandardScale_1_2 );
    }
    // AcDbRotatedDimension object modified
        IGeneralDimensionPtr generalDimension24 = rotateddimension13->GetGeneralDimension();
    generalDimension24->put_Color( pConnection->m_IwApp->GetColorByIndex( 2 ) );
    // AcDbRotatedDimension object modified
    {
        IGeneralDimensionPtr generalDimension25 = rotateddimension13->GetGeneralDimension();
        generalDimension25->put_Layer( L"Walls" );
    }
    // AcDbRotatedDimension object modified
    {
        IGeneralDimensionPtr generalDimension27 = rotateddimension13->GetGeneralDimension();
        generalDimension27->put_Erased( true );
    }
    // AcDbBlockTableRecord object modified
    IBlockDefinitionPtr blockdefinition15;
    {

        VARIANT objects_29;
        objects_29.vt = ( VT_ARRAY | VT_DISPATCH );
        objects_29.parray = SafeArrayCreateVector( VT_DISPATCH, 0, 0 );
        long rgIndices29;
        rgIndices29 = 0;
        IDispatch* val29;

        VARIANT objecttypes_29;
        objecttypes_29.vt = ( VT_ARRAY | VT_I4 );
        objecttypes_29.parray = SafeArrayCreateVector( VT_I4, 0, 0 );
        {
            long rgIndices29;
            rgIndices29 = 0;
            int val29;
        }

         blockdefinition15 = iwDoc->CreateBlockDefinition(
         L"Bolt", 
         L"", 
         0.00000000000000, 
         0.00000000000000, 
         0.00000000000000, 
         objecttypes_29,  
         objects_29, 
         iwBlockDefinitionEntities_RemoveFromDrawing );
        blockdefinition15->put_Erased( true );
    }
    ILayerManagerPtr iwLayerManager_1 = iwDoc->GetLayerManager();
    ILayerPtr layer16 = iwLayerManager_1->GetLayer( "0" );
    // AcDbLayerTableRecord object modified
    {
        ILayerManagerPtr iwLayerManager30 = iwDoc->GetLayerManager();
        BSTR layerName30;
        layer16->get_Name( &layerName30 );
        iwLayerManager30->RemoveLayer( layerName30 );
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
