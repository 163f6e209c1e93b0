    ITextStylePtr textstyle1;
    {
        iwCreateObjectResult_e result1;
        BSTR textStyleName1 = L"Titles";
        textstyle1 = pConnection->m_IwApp->GetActiveDocument()->GetTextStyleManager()->GetTextStyle( textStyleName1 );
        if (NULL == textstyle1)
        {
            pConnection->m_IwApp->GetActiveDocument()->GetTextStyleManager()->CreateTextStyle( textStyleName1, &textstyle1, &result1 );
        }
        textstyle1->put_Font( L"C:\\fonts\\arial.ttf" );
    }
    IShapeManagerPtr iwShapeManager = iwDoc->GetShapeManager();
    iwShapeManager->Load( L"C:\\shapes\\stairs.shx" );
    IAttributeDefinitionPtr attributedefinition3;
    {
        attributedefinition3 = iwSketchManager->InsertAttributeDefinition(  L"M8", L"SIZE", L"Size of the bolt?", 1.00000000000000, 2.00000000000000, 0.00000000000000, L"Standard", iwTextJustification_Left, 3.50000000000000, 0.00000000000000, false, true, false, true, true, false );
        attributedefinition3->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        attributedefinition3->put_Layer( L"0" );
        attributedefinition3->put_LineStyle( L"Continuous" );
        attributedefinition3->put_LineScale( 1.00000000000000 );
        attributedefinition3->put_LineWeight( iwLnWt_ByLayer );
        attributedefinition3->put_Thickness( 0.00000000000000 );
    }
    IAttributeDefinitionPtr attributedefinition4;
    {
        attributedefinition4 = iwSketchManager->InsertAttributeDefinition(  L"", L"NO", L"", 4.00000000000000, 5.00000000000000, 0.00000000000000, L"Titles", iwTextJustification_MiddleCenter, 0.20000000000000, 0.25000000000000, false, false, false, false, false, false );
        attributedefinition4->put_Color( pConnection->m_IwApp->GetColorByIndex( 2 ) );
        attributedefinition4->put_Layer( L"0" );
        attributedefinition4->put_LineStyle( L"Continuous" );
        attributedefinition4->put_LineScale( 1.00000000000000 );
        attributedefinition4->put_LineWeight( iwLnWt_ByLayer );
        attributedefinition4->put_Thickness( 0.00000000000000 );
    }
    ISimpleNotePtr simplenote5;
    {
         simplenote5=iwSketchManager->InsertSimpleNote( 1.00000000000000, 1.00000000000000, 0.00000000000000, 5.00000000000000, 0.10000000000000, L"Section A-A");
        simplenote5->put_Justify( iwTextJustification_MiddleCenter );
        simplenote5->SetAlignmentPoint( 2.00000000000000, 2.00000000000000, 0.00000000000000 );
        simplenote5->SetPosition( 1.00000000000000, 1.00000000000000, 0.00000000000000 );
        simplenote5->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        simplenote5->put_Layer( L"Walls" );
        simplenote5->put_LineStyle( L"Continuous" );
        simplenote5->put_LineScale( 1.00000000000000 );
        simplenote5->put_LineWeight( iwLnWt_ByLayer );
        simplenote5->put_Thickness( 0.00000000000000 );
    }
    ISimpleNotePtr simplenote6;
    {
         simplenote6=iwSketchManager->InsertSimpleNote( 0.00000000000000, 0.00000000000000, 0.00000000000000, 2.50000000000000, 0.00000000000000, L"100% of "it"");
        simplenote6->SetAlignmentPoint( 0.00000000000000, 0.00000000000000, 0.00000000000000 );
        simplenote6->SetPosition( 0.00000000000000, 0.00000000000000, 0.00000000000000 );
    }
    INotePtr note7;
    {
        VARIANT strArray1;
        strArray1.vt = ( VT_ARRAY | VT_BSTR );
        strArray1.parray = SafeArrayCreateVector( VT_BSTR, 0, 1 );
        long rgIndices1;
        rgIndices1 = 0;
        BSTR str1;
        str1 = SysAllocString(L"First\PSecond");
        SafeArrayPutElement( strArray1.parray, &rgIndices1, str1 );
        note7 = iwSketchManager->InsertNote( -20.00000000000000, 25.00000000000000, 0.00000000000000, 40.00000000000000, 15.00000000000000, 0.00000000000000, strArray1 );
        note7->put_Rotation( 0.20000000000000 );
        note7->put_TextHeight( 2.50000000000000 );
        note7->put_Width( 60.00000000000000 );
        note7->put_LineSpaceDistance( 4.17000000000000 );
        note7->put_TextStyle( L"Standard" );
        note7->put_Justify( iwNoteJustification_MiddleCenter );
        note7->put_Direction( iwNoteDirection_Horizontal );
        note7->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        note7->put_Layer( L"0" );
        note7->put_LineStyle( L"Continuous" );
        note7->put_LineScale( 1.00000000000000 );
        note7->put_LineWeight( iwLnWt_ByLayer );
        note7->put_Thickness( 0.00000000000000 );
    }
    INotePtr note8;
    {
        VARIANT strArray1;
        strArray1.vt = ( VT_ARRAY | VT_BSTR );
        strArray1.parray = SafeArrayCreateVector( VT_BSTR, 0, 1 );
        long rgIndices1;
        rgIndices1 = 0;
        BSTR str1;
        str1 = SysAllocString(L"Bare");
        SafeArrayPutElement( strArray1.parray, &rgIndices1, str1 );
        note8 = iwSketchManager->InsertNote( 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, strArray1 );
    }
    ITolerancePtr tolerance9;
    {
        {
            double x, y, z;
            VARIANT variant1;
            variant1.vt = ( VT_ARRAY | VT_R8 );
            variant1.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        long rgIndices1;
        rgIndices1 = 0;
        x=3.00000000000000; y=4.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z) );

            tolerance9 = iwSketchManager->InsertTolerance( variant1, L"{\\Fgdt;r}%%v0.05%%v\n%%vB" );
        }
        tolerance9->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        tolerance9->put_Layer( L"0" );
        tolerance9->put_LineStyle( L"Continuous" );
        tolerance9->put_LineScale( 1.00000000000000 );
        tolerance9->put_LineWeight( iwLnWt_ByLayer );
        tolerance9->put_Thickness( 0.00000000000000 );
    }
    ILeaderPtr leader10;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 9 );
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
        x_1=5.00000000000000; y_1=5.00000000000000; z_1=0.00000000000000;
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=9.00000000000000; y_1=5.00000000000000; z_1=0.00000000000000;
        rgIndices1=6;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=7;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=8;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );

        leader10 = iwSketchManager->InsertLeader( variant1, 40.00000000000000, L"See\ndetail \\ 5" );
        INotePtr note11 = leader10->GetNoteAnnotation();
        note11->put_BackgroundMask( true );
        note11->put_UseDrawingBackgroundColor( false );
        note11->put_BackgroundFillColor( pConnection->m_IwApp->GetColorByIndex( 3 ) );
        note11->put_BackgroundBorderOffsetFactor( 1.25000000000000 );
        note11->put_LineSpaceDistance( 6.25000000000000 );
        note11->put_LineSpaceFactor( 1.50000000000000 );
        note11->put_Rotation( 0.50000000000000 );
        note11->put_TextHeight( 2.50000000000000 );
        note11->put_Width( 40.00000000000000 );
        note11->put_Justify( iwNoteJustification_MiddleCenter );
        note11->put_TextStyle( L"Titles" );
        leader10->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        leader10->put_Layer( L"0" );
        leader10->put_LineStyle( L"Continuous" );
        leader10->put_LineScale( 1.00000000000000 );
        leader10->put_LineWeight( iwLnWt_ByLayer );
        leader10->put_Thickness( 0.00000000000000 );
    }
    ILeaderPtr leader12;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 6 );
        long rgIndices1;
        rgIndices1 = -1;
        double x_1, y_1, z_1;
        x_1=1.00000000000000; y_1=0.00000000000000; z_1=0.00000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=6.00000000000000; y_1=5.00000000000000; z_1=0.00000000000000;
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );

        leader12 = iwSketchManager->InsertLeader( variant1, 0.00000000000000, L"" );
        leader12->SetToleranceAnnotation( L"{\\Fgdt;j}%%v0.1\nA" );
        leader12->put_Color( pConnection->m_IwApp->GetColorByIndex( 256 ) );
        leader12->put_Layer( L"0" );
        leader12->put_LineStyle( L"Continuous" );
        leader12->put_LineScale( 1.00000000000000 );
        leader12->put_LineWeight( iwLnWt_ByLayer );
        leader12->put_Thickness( 0.00000000000000 );
    }
    ILeaderPtr leader13;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 6 );
        long rgIndices1;
        rgIndices1 = -1;
        double x_1, y_1, z_1;
        x_1=2.00000000000000; y_1=0.00000000000000; z_1=0.00000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=7.00000000000000; y_1=5.00000000000000; z_1=0.00000000000000;
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );

        leader13 = iwSketchManager->InsertLeader( variant1, 0.00000000000000, L"" );
        leader13->SetBlockAnnotation( L"Balloon" );
        leader13->put_Color( pConnection->m_IwApp->GetRGBColor( 1, 2, 3 ) );
        leader13->put_Layer( L"0" );
        leader13->put_LineStyle( L"Continuous" );
        leader13->put_LineScale( 1.00000000000000 );
        leader13->put_LineWeight( iwLnWt_ByLayer );
        leader13->put_Thickness( 0.00000000000000 );
    }
    ICircleArcPtr circlearc14;
    IArcAlignedTextPtr arcalignedtext15;
    {
        circlearc14 = iwSketchManager->InsertArc( 0.00000000000000, 0.00000000000000, 0.00000000000000, 30.00000000000000, 0.00000000000000, 3.00000000000000 );
        arcalignedtext15 = iwSketchManager->InsertCurvedText( L"Round the bend", circlearc14 );
        ICurvedSettingsPtr curvedSettings1 = arcalignedtext15->GetCurvedSettings();
        curvedSettings1->put_Color( pConnection->m_IwApp->GetColorByIndex( 6 ) );
        arcalignedtext15->SetCurvedSettings( curvedSettings1 );
        arcalignedtext15->put_Layer( L"0" );
        arcalignedtext15->put_LineStyle( L"Continuous" );
        arcalignedtext15->put_LineScale( 1.00000000000000 );
        arcalignedtext15->put_LineWeight( iwLnWt_ByLayer );
        arcalignedtext15->put_Thickness( 0.00000000000000 );
    }
    {
        // AcDbMText object modified
        INotePtr note16 = leader10->GetNoteAnnotation();
        {
            note16->put_Layer( L"Walls" );
        }
    }
    {
        {
            double X1;
            double Y1;
            double Z1;
            leader10->GetVertexCoordinate( 0, &X1, &Y1, &Z1 );
            X1 = 1.00000000000000;
            leader10->SetVertexCoordinate( 0, X1, Y1, Z1 );
        }
        // AcDbLeader object modified
        {
            leader10->put_DimensionStyle( L"ISO-25" );
            leader10->put_Type( iwLeaderType_SplineWithArrow );
            IDimensionStyleUserDataPtr dimensionStyle2 = leader10->GetDimensionStyleUserData();
            IDimensionStyleArrowsOptionsPtr arrowOptions3 = dimensionStyle2->GetDimensionStyleArrowsOptions();
            arrowOptions3->SetLeaderArrow( iwDimensionArrowType_Dot, L"" );
            IDimensionStyleUserDataPtr dimensionStyle4 = leader10->GetDimensionStyleUserData();
            IDimensionStyleArrowsOptionsPtr arrowOptions5 = dimensionStyle4->GetDimensionStyleArrowsOptions();
            arrowOptions5->put_Size( 2.5 );
            IDimensionStyleUserDataPtr dimensionStyle6 = leader10->GetDimensionStyleUserData();
            IDimensionStyleLineOptionsPtr linesOptions7 = dimensionStyle6->GetDimensionStyleLineOptions();
            linesOptions7->put_DimensionLineColor( pConnection->m_IwApp->GetColorByIndex( 1 ) );
            IDimensionStyleUserDataPtr dimensionStyle8 = leader10->GetDimensionStyleUserData();
            IDimensionStyleLineOptionsPtr linesOptions9 = dimensionStyle8->GetDimensionStyleLineOptions();
            linesOptions9->put_DimensionLineLineWeight( iwLnWt_025 );
            IDimensionStyleUserDataPtr dimensionStyle10 = leader10->GetDimensionStyleUserData();
            IDimensionStyleTextOptionsPtr textOptions11 = dimensionStyle10->GetDimensionStyleTextOptions();
            textOptions11->put_OffsetFromDimensionLines( 0.625 );
            IDimensionStyleUserDataPtr dimensionStyle12 = leader10->GetDimensionStyleUserData();
            IDimensionStyleFitOptionsPtr fitOptions13 = dimensionStyle12->GetDimensionStyleFitOptions();
            fitOptions13->SetDimensionScale( iwDimensionScale_UseScaleFactor, 2.00000000000000 );
        }
    }
    {
        // AcDbFcf object modified
        {
            double X1;
            double Y1;
            double Z1;
            tolerance9->GetPosition( &X1, &Y1, &Z1 );
            X1 = 5.00000000000000;
            tolerance9->SetPosition( X1, Y1, Z1 );
            
            tolerance9->put_DimensionScaleFactor( 2.00000000000000 );
            tolerance9->put_DimensionStyle( L"ISO-25" );
            IDimensionStyleUserDataPtr dimensionStyle2 = tolerance9->GetDimensionStyleUserData();
            IDimensionStyleLineOptionsPtr linesOptions3 = dimensionStyle2->GetDimensionStyleLineOptions();
            linesOptions3->put_DimensionLineColor( pConnection->m_IwApp->GetColorByIndex( 4 ) );
            tolerance9->put_TextStyle( L"Titles" );
            tolerance9->put_TextHeight( 3.00000000000000 );
            tolerance9->put_TextColor( pConnection->m_IwApp->GetColorByIndex( 7 ) );
            tolerance9->put_Text( L"a\\b\nc" );
        }
    }
    {
        // AcDbText object modified
        {
            simplenote6->put_Erased( true );
        }
    }
