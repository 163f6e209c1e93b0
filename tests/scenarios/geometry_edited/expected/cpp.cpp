    iwPolyLine_ptr iwpolyline1;
    iwDoubleArray Coordinates1;
    Coordinates1.clear();


    iwSketchManager->InsertPolyline2D( Coordinates1, false, &iwpolyline1 );
    iwColor_ptr iwColor2;
    m_pIwApp->GetColorByIndex( 256, &iwColor2 );
    iwpolyline1->put_Color( iwColor2 );
    iwpolyline1->put_Layer( L"Walls" );
    iwpolyline1->put_LineStyle( L"Continuous" );
    iwpolyline1->put_LineScale( 1.00000000000000 );
    iwpolyline1->put_LineWeight( iwLnWt_ByLayer );
    iwpolyline1->put_Thickness( 0.00000000000000 );
    iwPolyLine3D_ptr iwpolyline3d2;
    iwDoubleArray Coordinates3;
    Coordinates3.clear();


    iwSketchManager->InsertPolyline3D( Coordinates3, false, &iwpolyline3d2 );
    iwColor_ptr iwColor4;
    m_pIwApp->GetColorByIndex( 256, &iwColor4 );
    iwpolyline3d2->put_Color( iwColor4 );
    iwpolyline3d2->put_Layer( L"Walls" );
    iwpolyline3d2->put_LineStyle( L"Continuous" );
    iwpolyline3d2->put_LineScale( 1.00000000000000 );
    iwpolyline3d2->put_LineWeight( iwLnWt_ByLayer );
    iwpolyline3d2->put_Thickness( 0.00000000000000 );
    iwSpline_ptr iwspline3;
    iwDoubleArray Coordinates5;
    Coordinates5.clear();


    iwSketchManager->InsertSpline( Coordinates5, false, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, &iwspline3 );
    iwColor_ptr iwColor6;
    m_pIwApp->GetColorByIndex( 256, &iwColor6 );
    iwspline3->put_Color( iwColor6 );
    iwspline3->put_Layer( L"Walls" );
    iwspline3->put_LineStyle( L"Continuous" );
    iwspline3->put_LineScale( 1.00000000000000 );
    iwspline3->put_LineWeight( iwLnWt_ByLayer );
    iwspline3->put_Thickness( 0.00000000000000 );
    iwPolygonMesh_ptr iwpolygonmesh4;
    iwDoubleArray Coordinates7;
    Coordinates7.clear();


    iwSketchManager->InsertPolygonMesh( 0, 0, Coordinates7, &iwpolygonmesh4 );
    iwColor_ptr iwColor8;
    m_pIwApp->GetColorByIndex( 256, &iwColor8 );
    iwpolygonmesh4->put_Color( iwColor8 );
    iwpolygonmesh4->put_Layer( L"Walls" );
    iwpolygonmesh4->put_LineStyle( L"Continuous" );
    iwpolygonmesh4->put_LineScale( 1.00000000000000 );
    iwpolygonmesh4->put_LineWeight( iwLnWt_ByLayer );
    iwpolygonmesh4->put_Thickness( 0.00000000000000 );
    iwPolyFaceMesh_ptr iwpolyfacemesh5;
    iwDoubleArray Coordinates9;
    iwLongArray FaceVerticesCountLongArray9;
    iwLongArray FaceVerticesLongArray9;

    Coordinates9.clear();
    FaceVerticesCountLongArray9.clear();
    FaceVerticesLongArray9.clear();




    iwSketchManager->InsertPolyFaceMesh( 0, Coordinates9, FaceVerticesCountLongArray9, FaceVerticesLongArray9, &iwpolyfacemesh5 );
    iwColor_ptr iwColor10;
    m_pIwApp->GetColorByIndex( 256, &iwColor10 );
    iwpolyfacemesh5->put_Color( iwColor10 );
    iwpolyfacemesh5->put_Layer( L"Walls" );
    iwpolyfacemesh5->put_LineStyle( L"Continuous" );
    iwpolyfacemesh5->put_LineScale( 1.00000000000000 );
    iwpolyfacemesh5->put_LineWeight( iwLnWt_ByLayer );
    iwpolyfacemesh5->put_Thickness( 0.00000000000000 );
    iwSolid_ptr iwsolid6;
    iwDoubleArray Coordinates11;
    Coordinates11.clear();


    iwSketchManager->InsertSolid( Coordinates11, &iwsolid6 );
    iwColor_ptr iwColor12;
    m_pIwApp->GetColorByIndex( 256, &iwColor12 );
    iwsolid6->put_Color( iwColor12 );
    iwsolid6->put_Layer( L"Walls" );
    iwsolid6->put_LineStyle( L"Continuous" );
    iwsolid6->put_LineScale( 1.00000000000000 );
    iwsolid6->put_LineWeight( iwLnWt_ByLayer );
    iwsolid6->put_Thickness( 0.00000000000000 );
    iwTrace_ptr iwtrace7;
    iwDoubleArray Coordinates13;
    Coordinates13.clear();


    iwSketchManager->InsertTrace( Coordinates13, &iwtrace7 );
    iwColor_ptr iwColor14;
    m_pIwApp->GetColorByIndex( 256, &iwColor14 );
    iwtrace7->put_Color( iwColor14 );
    iwtrace7->put_Layer( L"Walls" );
    iwtrace7->put_LineStyle( L"Continuous" );
    iwtrace7->put_LineScale( 1.00000000000000 );
    iwtrace7->put_LineWeight( iwLnWt_ByLayer );
    iwtrace7->put_Thickness( 0.00000000000000 );
    iwFace_ptr iwface8;
    iwDoubleArray Coordinates15;
    Coordinates15.clear();


     iwSketchManager->InsertFace(
     Coordinates15,
     false,
     false,
     false ,false ,&iwface8);
    iwColor_ptr iwColor16;
    m_pIwApp->GetColorByIndex( 256, &iwColor16 );
    iwface8->put_Color( iwColor16 );
    iwface8->put_Layer( L"Walls" );
    iwface8->put_LineStyle( L"Continuous" );
    iwface8->put_LineScale( 1.00000000000000 );
    iwface8->put_LineWeight( iwLnWt_ByLayer );
    iwface8->put_Thickness( 0.00000000000000 );
    iwRichLine_ptr iwrichline9;
    iwDoubleArray Coordinates17;
    Coordinates17.clear();


    iwSketchManager->InsertRichLine( Coordinates17, iwRichLineJustification_Top, 0.00000000000000, L"", false, &iwrichline9 );
    iwColor_ptr iwColor18;
    m_pIwApp->GetColorByIndex( 256, &iwColor18 );
    iwrichline9->put_Color( iwColor18 );
    iwrichline9->put_Layer( L"Walls" );
    iwrichline9->put_LineStyle( L"Continuous" );
    iwrichline9->put_LineScale( 1.00000000000000 );
    iwrichline9->put_LineWeight( iwLnWt_ByLayer );
    iwrichline9->put_Thickness( 0.00000000000000 );
    iwShape_ptr iwshape10;
    iwSketchManager->InsertShape( L"", 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, &iwshape10 );
    iwColor_ptr iwColor19;
    m_pIwApp->GetColorByIndex( 256, &iwColor19 );
    iwshape10->put_Color( iwColor19 );
    iwshape10->put_Layer( L"Walls" );
    iwshape10->put_LineStyle( L"Continuous" );
    iwshape10->put_LineScale( 1.00000000000000 );
    iwshape10->put_LineWeight( iwLnWt_ByLayer );
    iwshape10->put_Thickness( 0.00000000000000 );
    iwEmbeddedObject_ptr iwembeddedobject11;
    iwViewport_ptr iwviewport12;
    iwRotatedDimension_ptr iwrotateddimension13;
    {
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
    }
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
        bool bRetVal20 = false;
        iwpolyline1->SetSegmentStartWidth( 0, 0.25000000000000, &bRetVal20 );
    }
    {
        bool bRetVal21 = false;
        iwpolyline1->SetSegmentEndWidth( 0, 0.50000000000000, &bRetVal21 );
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
        double X22;
        double Y22;
        double Z22;
        bool bRetVal22 = false;
        iwpolyline3d2->GetVertexCoordinate( 1, &X22, &Y22, &Z22, &bRetVal22 );
        Z22 = 7.00000000000000;
        iwpolyline3d2->SetVertexCoordinate( 1, X22, Y22, Z22, &bRetVal22 );
    }
    // AcDb3dPolyline object modified
    {
        iwpolyline3d2->put_FitSmooth( iwPolyLine3DFitSmooth_Qudratic );
        iwpolyline3d2->put_Closed( true );
    }
    {
        double X23;
        double Y23;
        double Z23;
        bool bRetVal23 = false;
        iwspline3->GetControlPointCoordinate( 0, &X23, &Y23, &Z23, &bRetVal23 );
        X23 = 3.00000000000000;
        iwspline3->SetControlPointCoordinate( 0, X23, Y23, Z23, &bRetVal23 );
    }
    {
        double X24;
        double Y24;
        double Z24;
        bool bRetVal24 = false;
        iwspline3->GetFitPointCoordinate( 3, &X24, &Y24, &Z24, &bRetVal24 );
        Y24 = 4.00000000000000;
        iwspline3->SetFitPointCoordinate( 3, X24, Y24, Z24, &bRetVal24 );
    }
    // AcDbSpline object modified
    {
        iwspline3->put_FitTolerance( 0.00100000000000 );
    }
    {
        double X25;
        double Y25;
        double Z25;
        bool bRetVal25 = false;
        iwpolygonmesh4->GetVertexCoordinate( 0, &X25, &Y25, &Z25, &bRetVal25 );
        X25 = 5.00000000000000;
        iwpolygonmesh4->SetVertexCoordinate( 0, X25, Y25, Z25, &bRetVal25 );
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
        double X26;
        double Y26;
        double Z26;
        bool bRetVal26 = false;
        iwpolyfacemesh5->GetVertexCoordinate( 5, &X26, &Y26, &Z26, &bRetVal26 );
        Y26 = 6.00000000000000;
        iwpolyfacemesh5->SetVertexCoordinate( 5, X26, Y26, Z26, &bRetVal26 );
    }
    {
        double X27;
        double Y27;
        double Z27;
        iwsolid6->GetVertex1Coordinate( &X27, &Y27, &Z27 );
        X27 = 1.00000000000000;
        iwsolid6->SetVertex1Coordinate( X27, Y27, Z27 );
    }
    {
        double X28;
        double Y28;
        double Z28;
        iwtrace7->GetVertex4Coordinate( &X28, &Y28, &Z28 );
        Z28 = 2.00000000000000;
        iwtrace7->SetVertex4Coordinate( X28, Y28, Z28 );
    }
    // AcDbFace object modified
    {
        iwface8->put_Edge1Visible( true );
        iwface8->put_Edge4Visible( false );
    }
    {
        double X29;
        double Y29;
        double Z29;
        iwface8->GetVertex4Coordinate( &X29, &Y29, &Z29 );
        X29 = 1.00000000000000;
        iwface8->SetVertex4Coordinate( X29, Y29, Z29 );
    }
    // AcDbMline object modified
    {
        iwrichline9->put_Justification( iwRichLineJustification_Zero );
        iwrichline9->put_Scale( 20.00000000000000 );
    }
    // AcDbShape object modified
    {
        double X30;
        double Y30;
        double Z30;
        iwshape10->GetPosition( &X30, &Y30, &Z30 );
        X30 = 1.00000000000000;
        iwshape10->SetPosition( X30, Y30, Z30 );
        iwshape10->put_Obliquing( 0.10000000000000 );
        iwshape10->put_Rotation( 0.20000000000000 );
        iwshape10->put_Size( 3.00000000000000 );
        iwshape10->put_WidthFactor( 0.80000000000000 );
    }
    // AcDbOle2Frame object modified
    {
        iwembeddedobject11->put_Height( 2.00000000000000 );
        double X31;
        double Y31;
        double Z31;
        iwembeddedobject11->GetPosition( &X31, &Y31, &Z31 );
        Y31 = 1.00000000000000;
        iwembeddedobject11->SetPosition( X31, Y31, Z31 );
        iwembeddedobject11->put_Width( 3.00000000000000 );
        iwembeddedobject11->put_PrintQuality( iwEmbeddedObjectPrintQuality_HighGraphics );
    }
    // AcDbViewport object modified
    {
        double X32;
        double Y32;
        double Z32;
        iwviewport12->GetCenter( &X32, &Y32, &Z32 );
        X32 = 5.00000000000000;
        iwviewport12->SetCenter( X32, Y32, Z32 );
        iwviewport12->put_Height( 4.00000000000000 );
        iwviewport12->put_CCSPerViewport( true );
        iwviewport12->put_CustomScale( 0.50000000000000 );
        iwviewport12->put_DisplayLocked( false );
        iwviewport12->put_IsOn( true );
        iwviewport12->put_ShadePrintStyle( iwViewportShadePrintStyle_Hidden );
        iwviewport12->put_StandardScale( iwViewportStandardScale_1_2 );
    }
    // AcDbRotatedDimension object modified
        iwGeneralDimension_ptr generalDimension33;
        iwrotateddimension13->GetGeneralDimension( &generalDimension33 );
    iwColor_ptr iwColor34;
    m_pIwApp->GetColorByIndex( 2, &iwColor34 );
    generalDimension33->put_Color( iwColor34 );
    // AcDbRotatedDimension object modified
    {
        iwGeneralDimension_ptr generalDimension35;
        iwrotateddimension13->GetGeneralDimension( &generalDimension35 );
        generalDimension35->put_Layer( L"Walls" );
    }
    // AcDbRotatedDimension object modified
    {
        iwGeneralDimension_ptr generalDimension37;
        iwrotateddimension13->GetGeneralDimension( &generalDimension37 );
        generalDimension37->put_Erased( true );
    }
    // AcDbBlockTableRecord object modified
    iwBlockDefinition_ptr iwblockdefinition15;
    {

        iwObjectPtrArray objects_39;

        iwLongArray objecttypes_39;

         iwDoc->CreateBlockDefinition(
         L"Bolt", 
         L"", 
         0.00000000000000, 
         0.00000000000000, 
         0.00000000000000, 
         objecttypes_39,  
         objects_39, 
         iwBlockDefinitionEntities_RemoveFromDrawing ,&iwblockdefinition15 );
        iwblockdefinition15->put_Erased( true );
    }
    iwLayerManager_ptr iwLayerManager_1;
    iwDoc->GetLayerManager( &iwLayerManager_1 );
    iwLayer_ptr iwlayer16;
    iwLayerManager_1->GetLayer( L"0", &iwlayer16 );
    // AcDbLayerTableRecord object modified
    {
        iwLayerManager_ptr iwLayerManager40;
        iwDoc->GetLayerManager( &iwLayerManager40 );
        iwString layerName40;
        iwlayer16->get_Name( &layerName40 );
        bool bResult40 = false;
        iwLayerManager40->RemoveLayer( layerName40, &bResult40 );
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
