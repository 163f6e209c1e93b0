    ILinePtr line1;
    {
        line1 = iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 4.00000000000000, 2.50000000000000, 0.00000000000000 );
    }
    {
        ISheetPtr sheet1 = iwDoc->CreateSheet(L"Ground floor");
    }
    {
        ISheetPtr *sheets = NULL;
        pConnection->m_IwApp->CopySheet(L"Ground floor" , L"First floor" ,&sheets );
    }
    {
        ISheetPtr *sheets = NULL;
        pConnection->m_IwApp->CopySheet(L"First floor" , L"First floor" ,&sheets );
    }
    {
        ISheetPtr PreSheet1 = iwDoc->GetSheet(L"First floor");
        if (NULL != PreSheet1)
           PreSheet1->put_Name( L"Upper floor" );
    }
    {
        ISheetPtr template_sheet1 = iwDoc->CreateSheetByTemplate( L"A3.dwt", L"Frame", L"Sections" );
    }
    {
        iwDoc->RemoveSheet( L"Layout2" );
    }
    {
        iwSheet = iwDoc->GetSheet(L"Ground floor");
        if (NULL != iwSheet)
        {
             iwSheet->Activate();
             iwSketchManager = iwSheet->GetSketchManager();
        }
    }
    {
        iwModel->Activate();
        iwSketchManager = iwModel->GetSketchManager();
    }
    {
        ICustomCoordinateSystemManagerPtr iwCCSManager1;
        iwCCSManager1 = iwDoc->GetCustomCoordinateSystemManager();
        if ( NULL != iwCCSManager1 )
        {
            iwCCSManager1->SetActiveCustomCoordinateSystemOrigin( 1.5, 2, 0  );
        }
        ICustomCoordinateSystemManagerPtr iwCCSManager2;
        iwCCSManager2 = iwDoc->GetCustomCoordinateSystemManager();
        ICustomCoordinateSystemPtr iwCustomCoordinateSystem2;
        if ( NULL != iwCCSManager2 )
        {
            iwCCSManager2->SaveActiveViewAs( L"Corner", &iwCustomCoordinateSystem2 );
        }
        ICustomCoordinateSystemManagerPtr iwCCSManager3;
        iwCCSManager3 = iwDoc->GetCustomCoordinateSystemManager();
        if ( NULL != iwCCSManager3 )
        {
            iwCCSManager3->AlignActiveCustomCoordinateSystemZAxis( 1, 1, 0, 1, 1, 5 );
        }
        ICustomCoordinateSystemManagerPtr iwCCSManager4;
        iwCCSManager4 = iwDoc->GetCustomCoordinateSystemManager();
        if ( NULL != iwCCSManager4 )
        {
            iwCCSManager4->AlignActiveCustomCoordinateSystemZAxis( 1, 1, 0, 1.5, 1, 1 );
        }
    }
    {
        ICustomCoordinateSystemManagerPtr iwCCSManager1;
        iwCCSManager1 = iwDoc->GetCustomCoordinateSystemManager();
        if ( NULL != iwCCSManager1 )
        {
            VARIANT pointOnEntity1;
            pointOnEntity1.vt = ( VT_ARRAY | VT_R8 );
            pointOnEntity1.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
            long rgIndices1;
            rgIndices1 = 0;
            double x, y, z;
            x=4; y=2.5; z=0.25;
            SafeArrayPutElement( pointOnEntity1.parray, &rgIndices1, (double*)&(x) );
            rgIndices1=1;
            SafeArrayPutElement( pointOnEntity1.parray, &rgIndices1, (double*)&(y) );
            rgIndices1=2;
            SafeArrayPutElement( pointOnEntity1.parray, &rgIndices1, (double*)&(z) );
            iwCCSManager1->AlignActiveCustomCoordinateSystemByEntity( line1, pointOnEntity1 );
        }
        ICustomCoordinateSystemManagerPtr iwCCSManager2;
        iwCCSManager2 = iwDoc->GetCustomCoordinateSystemManager();
        ICustomCoordinateSystemPtr iwPreviousCCS2;
        if ( NULL != iwCCSManager2 )
        {
            iwPreviousCCS2 = iwCCSManager2->GetPreviousCustomCoordinateSystem();
            iwPreviousCCS2->Activate();
        }
        ICustomCoordinateSystemManagerPtr iwCCSManager3;
        iwCCSManager3 = iwDoc->GetCustomCoordinateSystemManager();
        if ( NULL != iwCCSManager3 )
        {
            iwCCSManager3->AlignActiveCustomCoordinateSystemByView();
        }
    }
    {
        ICustomCoordinateSystemManagerPtr iwCCSManager_1 = iwDoc->GetCustomCoordinateSystemManager();
        if ( NULL != iwCCSManager_1 )
        {
            IMathUtilityPtr iwMathUtility_1 = pConnection->m_IwApp->GetMathUtility();
            IMathPointPtr Origin_1 = iwMathUtility_1->CreatePoint( 0, 0, 0 );
            IMathPointPtr XAxisThroughPoint_1 = iwMathUtility_1->CreatePoint( 4, 0, 0 );
            IMathPointPtr XYPlaneThroughPoint_1 = iwMathUtility_1->CreatePoint( 0, 0, 2.75 );
            iwCCSManager_1->AlignActiveCustomCoordinateSystemXYPlane( Origin_1, XAxisThroughPoint_1, XYPlaneThroughPoint_1 );
        }
        ICustomCoordinateSystemManagerPtr iwCCSManager2;
        iwCCSManager2 = iwDoc->GetCustomCoordinateSystemManager();
        ICustomCoordinateSystemPtr iwCustomCoordinateSystem2;
        if ( NULL != iwCCSManager2 )
        {
            iwCustomCoordinateSystem2 = iwCCSManager2->GetDefaultCustomCoordinateSystem( iwDefaultCustomCoordinateSystem_Front );
            iwCustomCoordinateSystem2->Activate();
        }
    }
    {
        ICustomCoordinateSystemManagerPtr iwCCSManager1;
        iwCCSManager1 = iwDoc->GetCustomCoordinateSystemManager();
        ICustomCoordinateSystemPtr iwCustomCoordinateSystem1;
        iwCustomCoordinateSystem1 = iwCCSManager1->GetNamedCustomCoordinateSystem( L"Corner");
        iwCustomCoordinateSystem1->Activate();
        ICustomCoordinateSystemManagerPtr iwCCSManager2;
        iwCCSManager2 = iwDoc->GetCustomCoordinateSystemManager();
        if ( NULL != iwCCSManager2 )
        {
            iwCCSManager2->RemoveCustomCoordinateSystem( L"Corner" );
        }
        ICustomCoordinateSystemManagerPtr iwCCSManager3;
        iwCCSManager3 = iwDoc->GetCustomCoordinateSystemManager();
        ICustomCoordinateSystemPtr iwWorldCCS3;
        if ( NULL != iwCCSManager3 )
        {
            iwWorldCCS3 = iwCCSManager3->GetWorldCustomCoordinateSystem();
            iwWorldCCS3->Activate();
        }
    }
    IModelNamedViewPtr modelnamedview2;
    IModelNamedViewPtr modelnamedview3;
    {
        iwModel->Activate();
        iwSketchManager = iwModel->GetSketchManager();
        modelnamedview2 = iwViewManager->CreateModelNamedView( L"North wall" );
        iwSheet = iwDoc->GetSheet(L"Ground floor");
        if (NULL != iwSheet)
        {
             iwSheet->Activate();
             iwSketchManager = iwSheet->GetSketchManager();
        }
        IColorPtr TopColor0;
        IColorPtr MiddleColor0;
        IColorPtr BottomColor0;
        TopColor0 = pConnection->m_IwApp->GetRGBColor( 10, 20, 200 );
        MiddleColor0 = pConnection->m_IwApp->GetRGBColor( 90, 120, 220 );
        BottomColor0 = pConnection->m_IwApp->GetRGBColor( 200, 220, 255 );
        IGradientBackgroundPtr iwGradientBackground0;
        iwGradientBackground0 = iwViewManager->CreateGradientBackground( TopColor0, MiddleColor0, BottomColor0, 0.00000000000000, 0.50000000000000 );
        modelnamedview2->SetGradientBackground( iwGradientBackground0 );

        iwModel->Activate();
        iwSketchManager = iwModel->GetSketchManager();
        modelnamedview3 = iwViewManager->CreateModelNamedView( L"Roof" );
        IColorPtr SolidColor0;
        SolidColor0 = pConnection->m_IwApp->GetRGBColor( 255, 250, 240 );
        ISolidBackgroundPtr iwSolidBackground0;
        iwSolidBackground0 = iwViewManager->CreateSolidBackground( SolidColor0 );
        modelnamedview3->SetSolidBackground( iwSolidBackground0 );

    }
    IModelNamedViewPtr modelnamedview4;
    {
        iwSheet = iwDoc->GetSheet(L"Ground floor");
        if (NULL != iwSheet)
        {
             iwSheet->Activate();
             iwSketchManager = iwSheet->GetSketchManager();
        }
        ISheetNamedViewPtr sheetNamedView_1 = iwViewManager->CreateSheetNamedView( L"Detail" );
        iwModel->Activate();
        iwSketchManager = iwModel->GetSketchManager();
    }
    {
        modelnamedview2->GetNamedView()->Rename( L"North facade" );

        modelnamedview2->GetNamedView()->put_Class( L"Elevations" );

        IMathUtilityPtr iwMathUtility1 = pConnection->m_IwApp->GetMathUtility();
        IMathPointPtr FirstCorner_1_1 = iwMathUtility1->CreatePoint( 0, 0, 0 );
        IMathPointPtr OppositeCorner_1_1 = iwMathUtility1->CreatePoint( 12, 8.5, 0 );
        modelnamedview2->GetNamedView()->SetWindow( FirstCorner_1_1, OppositeCorner_1_1 );

    }
    {
        ISheetNamedViewPtr sheetNamedView_1_rename = iwViewManager->GetSheetNamedView( L"Detail" );
        sheetNamedView_1_rename->GetNamedView()->Rename( L"Detail 1:10" );

        ISheetNamedViewPtr sheetNamedView_2_class = iwViewManager->GetSheetNamedView( L"Detail 1:10" );
        sheetNamedView_2_class->GetNamedView()->put_Class( L"Details" );

        IMathUtilityPtr iwMathUtility3 = pConnection->m_IwApp->GetMathUtility();
        IMathPointPtr FirstCorner_3_1 = iwMathUtility3->CreatePoint( 1, 1, 0 );
        IMathPointPtr OppositeCorner_3_1 = iwMathUtility3->CreatePoint( 2, 2, 0 );
        ISheetNamedViewPtr sheetNamedView_3_Pt = iwViewManager->GetSheetNamedView( L"Detail 1:10" );
        sheetNamedView_3_Pt->GetNamedView()->SetWindow( FirstCorner_3_1, OppositeCorner_3_1 );

    }
    {
        VARIANT lowerLeft_1;
        lowerLeft_1.vt = ( VT_ARRAY | VT_R8 );
        lowerLeft_1.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        {
            long rgIndices1;
            rgIndices1 = 0;
            double x, y, z;
            x=0; y=0; z=0;
            SafeArrayPutElement( lowerLeft_1.parray, &rgIndices1, (double*)&(x) );
            rgIndices1=1;
            SafeArrayPutElement( lowerLeft_1.parray, &rgIndices1, (double*)&(y) );
            rgIndices1=2;
            SafeArrayPutElement( lowerLeft_1.parray, &rgIndices1, (double*)&(z) );
        }
        VARIANT upperRight_1;
        upperRight_1.vt = ( VT_ARRAY | VT_R8 );
        upperRight_1.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        {
            long rgIndices1;
            rgIndices1 = 0;
            double x, y, z;
            x=12.5; y=8.25; z=0;
            SafeArrayPutElement( upperRight_1.parray, &rgIndices1, (double*)&(x) );
            rgIndices1=1;
            SafeArrayPutElement( upperRight_1.parray, &rgIndices1, (double*)&(y) );
            rgIndices1=2;
            SafeArrayPutElement( upperRight_1.parray, &rgIndices1, (double*)&(z) );
        }
        pConnection->m_IwApp->Zoom(iwZoomRange_Window, lowerLeft_1, upperRight_1);
    }
    {
        pConnection->m_IwApp->Zoom(iwZoomRange_Fit, NULL, NULL);
    }
    {
        _variant_t variant_iwViewTileArray0 = iwModel->InsertViewTiles(iwViewTilesMode_2_Vertical, iwViewTilesApplyTo_Display);
        variant_iwViewTileArray0 = iwModel->GetViewTiles();
        IViewTilePtr *iwViewTileArray0 = NULL;
        int count_iwViewTileArray0 = 0;
        TypeConverter::convertVariantArrayToPtrArray<IViewTilePtr, IViewTile>( variant_iwViewTileArray0, iwViewTileArray0, count_iwViewTileArray0 );

        IViewTilePtr viewtile5 = iwViewTileArray0[0];
        IViewTilePtr viewtile6 = iwViewTileArray0[1];
    }
    {
        _variant_t variant_iwViewTileArray1 = iwModel->InsertViewTiles(iwViewTilesMode_1, iwViewTilesApplyTo_ActiveViewTile);
        variant_iwViewTileArray1 = iwModel->GetViewTiles();
        IViewTilePtr *iwViewTileArray1 = NULL;
        int count_iwViewTileArray1 = 0;
        TypeConverter::convertVariantArrayToPtrArray<IViewTilePtr, IViewTile>( variant_iwViewTileArray1, iwViewTileArray1, count_iwViewTileArray1 );

        IViewTilePtr viewtile7 = iwViewTileArray1[0];
    }
        IModelNamedViewPtr modelnamedview8;
        {
            iwModel->Activate();
            iwSketchManager = iwModel->GetSketchManager();
            modelnamedview8 = iwViewManager->CreateModelNamedView( L"Garden" );
        }
        IImageBackgroundPtr iwImageBackground0;
        iwImageBackground0 = iwViewManager->CreateImageBackground( L"garden.png", iwImageBackgroundPosition_Center, 0.00000000000000, 0.00000000000000, 1.50000000000000, 1.50000000000000 );
        modelnamedview8->SetImageBackground( iwImageBackground0 );

        {
            pConnection->m_IwApp->Zoom(iwZoomRange_All, NULL, NULL);
        }
