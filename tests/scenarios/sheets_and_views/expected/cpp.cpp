    iwLine_ptr iwline1;
    {
        iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 4.00000000000000, 2.50000000000000, 0.00000000000000, &iwline1 );
    }
    {
        iwSheet_ptr sheet1;
        iwDoc->CreateSheet(L"Ground floor", &sheet1);
    }
    {
        iwDoc->CopySheet(L"Ground floor" , L"First floor" );
    }
    {
        iwDoc->CopySheet(L"First floor" , L"First floor" );
    }
    {
        iwSheet_ptr PreSheet1;
        iwDoc->GetSheet(L"First floor", &PreSheet1);
        if (NULL != PreSheet1)
           PreSheet1->put_Name( L"Upper floor" );
    }
    {
        iwSheet_ptr template_sheet1;
        iwDoc->CreateSheetByTemplate( L"A3.dwt", L"Frame", L"Sections", &template_sheet1 );
    }
    {
        iwDoc->RemoveSheet( L"Layout2" );
    }
    {
        iwDoc->GetSheet(L"Ground floor", &iwSheet);
        if (NULL != iwSheet)
        {
             iwSheet->Activate();
             iwSheet->GetSketchManager( &iwSketchManager );
        }
    }
    {
        iwModel->Activate();
        iwModel->GetSketchManager( &iwSketchManager );
    }
    {
        iwCustomCoordinateSystemManager_ptr iwCCSManager1;
        iwDoc->GetCustomCoordinateSystemManager( &iwCCSManager1 );
        if ( NULL != iwCCSManager1 )
        {
            iwCCSManager1->SetActiveCustomCoordinateSystemOrigin( 1.5, 2, 0  );
        }
        iwCustomCoordinateSystemManager_ptr iwCCSManager2;
        iwDoc->GetCustomCoordinateSystemManager( &iwCCSManager2 );
        iwCustomCoordinateSystem_ptr iwCustomCoordinateSystem2;
        if ( NULL != iwCCSManager2 )
        {
            iwCCSManager2->SaveActiveViewAs( L"Corner", &iwCustomCoordinateSystem2 );
        }
        iwCustomCoordinateSystemManager_ptr iwCCSManager3;
        iwDoc->GetCustomCoordinateSystemManager( &iwCCSManager3 );
        if ( NULL != iwCCSManager3 )
        {
            iwCCSManager3->AlignActiveCustomCoordinateSystemZAxis( 1, 1, 0, 1, 1, 5 );
        }
        iwCustomCoordinateSystemManager_ptr iwCCSManager4;
        iwDoc->GetCustomCoordinateSystemManager( &iwCCSManager4 );
        if ( NULL != iwCCSManager4 )
        {
            iwCCSManager4->AlignActiveCustomCoordinateSystemZAxis( 1, 1, 0, 1.5, 1, 1 );
        }
    }
    {
        iwCustomCoordinateSystemManager_ptr iwCCSManager1;
        iwDoc->GetCustomCoordinateSystemManager( &iwCCSManager1 );
        if ( NULL != iwCCSManager1 )
        {
            iwDoubleArray pointOnEntity1;
            pointOnEntity1.add(4);pointOnEntity1.add(2.5);pointOnEntity1.add(2.5);
            iwCCSManager1->AlignActiveCustomCoordinateSystemByEntity( iwline1, pointOnEntity1 );
        }
        iwCustomCoordinateSystemManager_ptr iwCCSManager2;
        iwDoc->GetCustomCoordinateSystemManager( &iwCCSManager2 );
        iwCustomCoordinateSystem_ptr iwPreviousCCS2;
        if ( NULL != iwCCSManager2 )
        {
            iwCCSManager2->GetPreviousCustomCoordinateSystem( &iwPreviousCCS2 );
            iwPreviousCCS2->Activate();
        }
        iwCustomCoordinateSystemManager_ptr iwCCSManager3;
        iwDoc->GetCustomCoordinateSystemManager( &iwCCSManager3 );
        if ( NULL != iwCCSManager3 )
        {
            iwCCSManager3->AlignActiveCustomCoordinateSystemByView();
        }
    }
    {
        iwCustomCoordinateSystemManager_ptr iwCCSManager_1;
        iwDoc->GetCustomCoordinateSystemManager( &iwCCSManager_1 );
        if ( NULL != iwCCSManager_1 )
        {
            iwMathUtility_ptr iwMathUtility_1;
            m_pIwApp->GetMathUtility( &iwMathUtility_1 );
            iwMathPoint_ptr Origin_1;
            iwMathUtility_1->CreatePoint( 0, 0, 0, &Origin_1 );
            iwMathPoint_ptr XAxisThroughPoint_1;
            iwMathUtility_1->CreatePoint( 4, 0, 0, &XAxisThroughPoint_1 );
            iwMathPoint_ptr XYPlaneThroughPoint_1;
            iwMathUtility_1->CreatePoint( 0, 0, 2.75, &XYPlaneThroughPoint_1 );
            iwCCSManager_1->AlignActiveCustomCoordinateSystemXYPlane( Origin_1, XAxisThroughPoint_1, XYPlaneThroughPoint_1 );
        }
        iwCustomCoordinateSystemManager_ptr iwCCSManager2;
        iwDoc->GetCustomCoordinateSystemManager( &iwCCSManager2 );
        iwCustomCoordinateSystem_ptr iwCustomCoordinateSystem2;
        if ( NULL != iwCCSManager2 )
        {
            iwCCSManager2->GetDefaultCustomCoordinateSystem( iwDefaultCustomCoordinateSystem_Front, &iwCustomCoordinateSystem2 );
            iwCustomCoordinateSystem2->Activate();
        }
    }
    {
        iwCustomCoordinateSystemManager_ptr iwCCSManager1;
        iwDoc->GetCustomCoordinateSystemManager( &iwCCSManager1 );
        iwCustomCoordinateSystem_ptr iwCustomCoordinateSystem1;
        iwCCSManager1->GetNamedCustomCoordinateSystem( L"Corner", &iwCustomCoordinateSystem1);
        iwCustomCoordinateSystem1->Activate();
        iwCustomCoordinateSystemManager_ptr iwCCSManager2;
        iwDoc->GetCustomCoordinateSystemManager( &iwCCSManager2 );
        if ( NULL != iwCCSManager2 )
        {
            iwCCSManager2->RemoveCustomCoordinateSystem( L"Corner" );
        }
        iwCustomCoordinateSystemManager_ptr iwCCSManager3;
        iwDoc->GetCustomCoordinateSystemManager( &iwCCSManager3 );
        iwCustomCoordinateSystem_ptr iwWorldCCS3;
        if ( NULL != iwCCSManager3 )
        {
            iwCCSManager3->GetWorldCustomCoordinateSystem( &iwWorldCCS3 );
            iwWorldCCS3->Activate();
        }
    }
    iwModelNamedView_ptr iwmodelnamedview2;
    iwModelNamedView_ptr iwmodelnamedview3;
    {
        iwModel->Activate();
        iwModel->GetSketchManager( &iwSketchManager );
        iwViewManager->CreateModelNamedView( L"North wall", &iwmodelnamedview2 );
        iwDoc->GetSheet(L"Ground floor", &iwSheet);
        if (NULL != iwSheet)
        {
             iwSheet->Activate();
             iwSheet->GetSketchManager( &iwSketchManager );
        }
        iwColor_ptr TopColor0;
        iwColor_ptr MiddleColor0;
        iwColor_ptr BottomColor0;
        m_pIwApp->GetRGBColor( 10, 20, 200, &TopColor0 );
        m_pIwApp->GetRGBColor( 90, 120, 220, &MiddleColor0 );
        m_pIwApp->GetRGBColor( 200, 220, 255, &BottomColor0 );
        iwGradientBackground_ptr iwGradientBackground0;
        iwViewManager->CreateGradientBackground( TopColor0, MiddleColor0, BottomColor0, 0.00000000000000, 0.50000000000000, &iwGradientBackground0 );
        iwmodelnamedview2->SetGradientBackground( iwGradientBackground0 );

        iwModel->Activate();
        iwModel->GetSketchManager( &iwSketchManager );
        iwViewManager->CreateModelNamedView( L"Roof", &iwmodelnamedview3 );
        iwColor_ptr SolidColor0;
        m_pIwApp->GetRGBColor( 255, 250, 240, &SolidColor0 );
        iwSolidBackground_ptr iwSolidBackground0;
        iwViewManager->CreateSolidBackground( SolidColor0, &iwSolidBackground0 );
        iwmodelnamedview3->SetSolidBackground( iwSolidBackground0 );

    }
    iwModelNamedView_ptr iwmodelnamedview4;
    {
        iwDoc->GetSheet(L"Ground floor", &iwSheet);
        if (NULL != iwSheet)
        {
             iwSheet->Activate();
             iwSheet->GetSketchManager( &iwSketchManager );
        }
        iwSheetNamedView_ptr sheetNamedView_1;
        iwViewManager->CreateSheetNamedView( L"Detail", &sheetNamedView_1 );
        iwModel->Activate();
        iwModel->GetSketchManager( &iwSketchManager );
    }
    {
        iwNamedView_ptr namedView_1_rename;
        iwmodelnamedview2->GetNamedView( &namedView_1_rename );
        namedView_1_rename->Rename( L"North facade" );

        iwNamedView_ptr namedView_2_class;
        iwmodelnamedview2->GetNamedView( &namedView_2_class );
        namedView_2_class->put_Class( L"Elevations" );

        iwMathUtility_ptr iwMathUtility3;
        m_pIwApp->GetMathUtility( &iwMathUtility3 );
        iwMathPoint_ptr FirstCorner_3_1;
        iwMathUtility3->CreatePoint( 0, 0, 0, &FirstCorner_3_1 );
        iwMathPoint_ptr OppositeCorner_3_1;
        iwMathUtility3->CreatePoint( 12, 8.5, 0, &OppositeCorner_3_1 );
        iwNamedView_ptr namedView_3_Pt;
        iwmodelnamedview2->GetNamedView( &namedView_3_Pt );
        namedView_3_Pt->SetWindow( FirstCorner_3_1, OppositeCorner_3_1 );

    }
    {
        iwSheetNamedView_ptr sheetNamedView_1_rename;
        iwViewManager->GetSheetNamedView( L"Detail", &sheetNamedView_1_rename );
        iwNamedView_ptr namedView_1_rename;
        sheetNamedView_1_rename->GetNamedView( &namedView_1_rename );
        namedView_1_rename->Rename( L"Detail 1:10" );

        iwSheetNamedView_ptr sheetNamedView_2_class;
        iwViewManager->GetSheetNamedView( L"Detail 1:10", &sheetNamedView_2_class );
        iwNamedView_ptr namedView_2_class;
        sheetNamedView_2_class->GetNamedView( &namedView_2_class );
        namedView_2_class->put_Class( L"Details" );

        iwMathUtility_ptr iwMathUtility3;
        m_pIwApp->GetMathUtility( &iwMathUtility3 );
        iwMathPoint_ptr FirstCorner_3_1;
        iwMathUtility3->CreatePoint( 1, 1, 0, &FirstCorner_3_1 );
        iwMathPoint_ptr OppositeCorner_3_1;
        iwMathUtility3->CreatePoint( 2, 2, 0, &OppositeCorner_3_1 );
        iwSheetNamedView_ptr sheetNamedView_3_Pt;
        iwViewManager->GetSheetNamedView( L"Detail 1:10", &sheetNamedView_3_Pt );
        iwNamedView_ptr namedView_3_Pt;
        sheetNamedView_3_Pt->GetNamedView( &namedView_3_Pt );
        namedView_3_Pt->SetWindow( FirstCorner_3_1, OppositeCorner_3_1 );

    }
    {
        iwDoubleArray lowerLeft_1, upperRight_1;
        lowerLeft_1.add(0);lowerLeft_1.add(0);lowerLeft_1.add(0);
        upperRight_1.add(12.5);upperRight_1.add(8.25);upperRight_1.add(0);
        m_pIwApp->Zoom(iwZoomRange_Window, lowerLeft_1, upperRight_1);
    }
    {
        iwDoubleArray lowerLeft_1, upperRight_1;
        m_pIwApp->Zoom(iwZoomRange_Fit, lowerLeft_1, upperRight_1);
    }
    {
        iwObjectPtrArray iwViewTileArray0;
        iwModel->InsertViewTiles(iwViewTilesMode_2_Vertical, iwViewTilesApplyTo_Display, &iwViewTileArray0);
        iwModel->GetViewTiles(&iwViewTileArray0);

        iwViewTile_c* iwviewtile5 =(iwViewTile_c*)iwViewTileArray0[0];
        iwViewTile_c* iwviewtile6 =(iwViewTile_c*)iwViewTileArray0[1];
    }
    {
        iwObjectPtrArray iwViewTileArray1;
        iwModel->InsertViewTiles(iwViewTilesMode_1, iwViewTilesApplyTo_ActiveViewTile, &iwViewTileArray1);
        iwModel->GetViewTiles(&iwViewTileArray1);

        iwViewTile_c* iwviewtile7 =(iwViewTile_c*)iwViewTileArray1[0];
    }
        iwModelNamedView_ptr iwmodelnamedview8;
        {
            iwModel->Activate();
            iwModel->GetSketchManager( &iwSketchManager );
            iwViewManager->CreateModelNamedView( L"Garden", &iwmodelnamedview8 );
        }
        iwImageBackground_ptr iwImageBackground0;
        iwViewManager->CreateImageBackground( L"garden.png", iwImageBackgroundPosition_Center, 0.00000000000000, 0.00000000000000, 1.50000000000000, 1.50000000000000, &iwImageBackground0 );
        iwmodelnamedview8->SetImageBackground( iwImageBackground0 );

        {
            iwDoubleArray lowerLeft_1, upperRight_1;
            m_pIwApp->Zoom(iwZoomRange_All, lowerLeft_1, upperRight_1);
        }
