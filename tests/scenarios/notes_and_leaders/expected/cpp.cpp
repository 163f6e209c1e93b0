    iwTextStyle_ptr iwtextstyle1;
    {
        iwCreateObjectResult_e result1;
        iwString textStyleName1 = L"Titles";
        iwTextStyleManager_ptr TextStyleManager1;
        iwDoc->GetTextStyleManager(&TextStyleManager1);
        TextStyleManager1->GetTextStyle( textStyleName1, &iwtextstyle1 );
        if ( !iwtextstyle1 )
        {
            TextStyleManager1->CreateTextStyle( textStyleName1, &iwtextstyle1, &result1 );
        }
        iwtextstyle1->put_Font( L"C:\\fonts\\arial.ttf" );
    }
    iwShapeManager_ptr iwShapeManager;
    iwDoc->GetShapeManager( &iwShapeManager );
    iwShapeManager->Load( L"C:\\shapes\\stairs.shx" );
    iwAttributeDefinition_ptr iwattributedefinition3;
    {
        iwSketchManager->InsertAttributeDefinition(  L"M8", L"SIZE", L"Size of the bolt?", 1.00000000000000, 2.00000000000000, 0.00000000000000, L"Standard", iwTextJustification_Left, 3.50000000000000, 0.00000000000000, false, true, false, true, true, false, &iwattributedefinition3 );
        iwColor_ptr iwColor1;
        m_pIwApp->GetColorByIndex( 256, &iwColor1 );
        iwattributedefinition3->put_Color( iwColor1 );
        iwattributedefinition3->put_Layer( L"0" );
        iwattributedefinition3->put_LineStyle( L"Continuous" );
        iwattributedefinition3->put_LineScale( 1.00000000000000 );
        iwattributedefinition3->put_LineWeight( iwLnWt_ByLayer );
        iwattributedefinition3->put_Thickness( 0.00000000000000 );
    }
    iwAttributeDefinition_ptr iwattributedefinition4;
    {
        iwSketchManager->InsertAttributeDefinition(  L"", L"NO", L"", 4.00000000000000, 5.00000000000000, 0.00000000000000, L"Titles", iwTextJustification_MiddleCenter, 0.20000000000000, 0.25000000000000, false, false, false, false, false, false, &iwattributedefinition4 );
        iwColor_ptr iwColor1;
        m_pIwApp->GetColorByIndex( 2, &iwColor1 );
        iwattributedefinition4->put_Color( iwColor1 );
        iwattributedefinition4->put_Layer( L"0" );
        iwattributedefinition4->put_LineStyle( L"Continuous" );
        iwattributedefinition4->put_LineScale( 1.00000000000000 );
        iwattributedefinition4->put_LineWeight( iwLnWt_ByLayer );
        iwattributedefinition4->put_Thickness( 0.00000000000000 );
    }
    iwSimpleNote_ptr iwsimplenote5;
    {
        iwSketchManager->InsertSimpleNote( 1.00000000000000, 1.00000000000000, 0.00000000000000, 5.00000000000000, 0.10000000000000, L"Section A-A", &iwsimplenote5 );
        iwsimplenote5->put_Justify( iwTextJustification_MiddleCenter );
        iwsimplenote5->SetAlignmentPoint( 2.00000000000000, 2.00000000000000, 0.00000000000000 );
        iwsimplenote5->SetPosition( 1.00000000000000, 1.00000000000000, 0.00000000000000 );
        iwColor_ptr iwColor1;
        m_pIwApp->GetColorByIndex( 256, &iwColor1 );
        iwsimplenote5->put_Color( iwColor1 );
        iwsimplenote5->put_Layer( L"Walls" );
        iwsimplenote5->put_LineStyle( L"Continuous" );
        iwsimplenote5->put_LineScale( 1.00000000000000 );
        iwsimplenote5->put_LineWeight( iwLnWt_ByLayer );
        iwsimplenote5->put_Thickness( 0.00000000000000 );
    }
    iwSimpleNote_ptr iwsimplenote6;
    {
        iwSketchManager->InsertSimpleNote( 0.00000000000000, 0.00000000000000, 0.00000000000000, 2.50000000000000, 0.00000000000000, L"100% of "it"", &iwsimplenote6 );
        iwsimplenote6->SetAlignmentPoint( 0.00000000000000, 0.00000000000000, 0.00000000000000 );
        iwsimplenote6->SetPosition( 0.00000000000000, 0.00000000000000, 0.00000000000000 );
    }
    iwNote_ptr iwnote7;
    {
        iwStringArray strArray1;
        strArray1.add(L"First\PSecond");
        iwSketchManager->InsertNote( -20.00000000000000, 25.00000000000000, 0.00000000000000, 40.00000000000000, 15.00000000000000, 0.00000000000000, strArray1, &iwnote7 );
        iwnote7->put_Rotation( 0.20000000000000 );
        iwnote7->put_TextHeight( 2.50000000000000 );
        iwnote7->put_Width( 60.00000000000000 );
        iwnote7->put_LineSpaceDistance( 4.17000000000000 );
        iwnote7->put_TextStyle( L"Standard" );
        iwnote7->put_Justify( iwNoteJustification_MiddleCenter );
        iwnote7->put_Direction( iwNoteDirection_Horizontal );
        iwColor_ptr iwColor2;
        m_pIwApp->GetColorByIndex( 256, &iwColor2 );
        iwnote7->put_Color( iwColor2 );
        iwnote7->put_Layer( L"0" );
        iwnote7->put_LineStyle( L"Continuous" );
        iwnote7->put_LineScale( 1.00000000000000 );
        iwnote7->put_LineWeight( iwLnWt_ByLayer );
        iwnote7->put_Thickness( 0.00000000000000 );
    }
    iwNote_ptr iwnote8;
    {
        iwStringArray strArray1;
        strArray1.add(L"Bare");
        iwSketchManager->InsertNote( 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, strArray1, &iwnote8 );
    }
    iwTolerance_ptr iwtolerance9;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(3.00000000000000);Coordinates1.add(4.00000000000000);Coordinates1.add(0.00000000000000);

        iwSketchManager->InsertTolerance( Coordinates1, L"{\\Fgdt;r}%%v0.05%%v\n%%vB", &iwtolerance9 );
        iwColor_ptr iwColor2;
        m_pIwApp->GetColorByIndex( 256, &iwColor2 );
        iwtolerance9->put_Color( iwColor2 );
        iwtolerance9->put_Layer( L"0" );
        iwtolerance9->put_LineStyle( L"Continuous" );
        iwtolerance9->put_LineScale( 1.00000000000000 );
        iwtolerance9->put_LineWeight( iwLnWt_ByLayer );
        iwtolerance9->put_Thickness( 0.00000000000000 );
    }
    iwLeader_ptr iwleader10;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(5.00000000000000);Coordinates1.add(5.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(9.00000000000000);Coordinates1.add(5.00000000000000);Coordinates1.add(0.00000000000000);

        iwSketchManager->InsertLeader( Coordinates1, 40.00000000000000, L"See\ndetail \\ 5", &iwleader10 );
        iwNote_ptr iwnote11;
        iwleader10->GetNoteAnnotation( &iwnote11 );
        iwnote11->put_BackgroundMask( true );
        iwnote11->put_UseDrawingBackgroundColor( false );
        iwColor_ptr iwColor3;
        m_pIwApp->GetColorByIndex( 3, &iwColor3 );
        iwnote11->put_BackgroundFillColor( iwColor3 );
        iwnote11->put_BackgroundBorderOffsetFactor( 1.25000000000000 );
        iwnote11->put_LineSpaceDistance( 6.25000000000000 );
        iwnote11->put_LineSpaceFactor( 1.50000000000000 );
        iwnote11->put_Rotation( 0.50000000000000 );
        iwnote11->put_TextHeight( 2.50000000000000 );
        iwnote11->put_Width( 40.00000000000000 );
        iwnote11->put_Justify( iwNoteJustification_MiddleCenter );
        iwnote11->put_TextStyle( L"Titles" );
        iwColor_ptr iwColor4;
        m_pIwApp->GetColorByIndex( 256, &iwColor4 );
        iwleader10->put_Color( iwColor4 );
        iwleader10->put_Layer( L"0" );
        iwleader10->put_LineStyle( L"Continuous" );
        iwleader10->put_LineScale( 1.00000000000000 );
        iwleader10->put_LineWeight( iwLnWt_ByLayer );
        iwleader10->put_Thickness( 0.00000000000000 );
    }
    iwLeader_ptr iwleader12;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(1.00000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(6.00000000000000);Coordinates1.add(5.00000000000000);Coordinates1.add(0.00000000000000);

        iwSketchManager->InsertLeader( Coordinates1, 0.00000000000000, L"", &iwleader12 );
        iwleader12->SetToleranceAnnotation( L"{\\Fgdt;j}%%v0.1\nA" );
        iwColor_ptr iwColor2;
        m_pIwApp->GetColorByIndex( 256, &iwColor2 );
        iwleader12->put_Color( iwColor2 );
        iwleader12->put_Layer( L"0" );
        iwleader12->put_LineStyle( L"Continuous" );
        iwleader12->put_LineScale( 1.00000000000000 );
        iwleader12->put_LineWeight( iwLnWt_ByLayer );
        iwleader12->put_Thickness( 0.00000000000000 );
    }
    iwLeader_ptr iwleader13;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(2.00000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(7.00000000000000);Coordinates1.add(5.00000000000000);Coordinates1.add(0.00000000000000);

        iwSketchManager->InsertLeader( Coordinates1, 0.00000000000000, L"", &iwleader13 );
        iwleader13->SetBlockAnnotation( L"Balloon" );
        iwColor_ptr iwColor2;
        m_pIwApp->GetRGBColor( 1, 2, 3, &iwColor2 );
        iwleader13->put_Color( iwColor2 );
        iwleader13->put_Layer( L"0" );
        iwleader13->put_LineStyle( L"Continuous" );
        iwleader13->put_LineScale( 1.00000000000000 );
        iwleader13->put_LineWeight( iwLnWt_ByLayer );
        iwleader13->put_Thickness( 0.00000000000000 );
    }
    iwCircleArc_ptr iwcirclearc14;
    iwArcAlignedText_ptr iwarcalignedtext15;
    {
        iwSketchManager->InsertArc( 0.00000000000000, 0.00000000000000, 0.00000000000000, 30.00000000000000, 0.00000000000000, 3.00000000000000, &iwcirclearc14 );
        iwSketchManager->InsertCurvedText( L"Round the bend", iwcirclearc14, &iwarcalignedtext15 );
        iwCurvedSettings_ptr curvedSettings1;
        iwarcalignedtext15->GetCurvedSettings( &curvedSettings1 );
        iwColor_ptr iwColor2;
        m_pIwApp->GetColorByIndex( 6, &iwColor2 );
        curvedSettings1->put_Color( iwColor2 );
        iwarcalignedtext15->SetCurvedSettings( curvedSettings1 );
        iwarcalignedtext15->put_Layer( L"0" );
        iwarcalignedtext15->put_LineStyle( L"Continuous" );
        iwarcalignedtext15->put_LineScale( 1.00000000000000 );
        iwarcalignedtext15->put_LineWeight( iwLnWt_ByLayer );
        iwarcalignedtext15->put_Thickness( 0.00000000000000 );
    }
    {
        // AcDbMText object modified
        iwNote_ptr iwnote16;
        iwleader10->GetNoteAnnotation( &iwnote16 );
        {
            iwnote16->put_Layer( L"Walls" );
        }
    }
    {
        {
            double X;
            double Y;
            double Z;
            bool retVal = false;
            iwleader10->GetVertexCoordinate( 0, &X, &Y, &Z );
            X = 1.00000000000000;
            iwleader10->SetVertexCoordinate( 0, X, Y, Z, &retVal );
        }
        // AcDbLeader object modified
        {
            iwleader10->put_DimensionStyle( L"ISO-25" );
            iwleader10->put_Type( iwLeaderType_SplineWithArrow );
            iwDimensionStyleUserData_ptr dimensionStyle1;
            iwleader10->GetDimensionStyleUserData( &dimensionStyle1 );
            iwDimensionStyleArrowsOptions_ptr arrowOptions2;
            dimensionStyle1->GetDimensionStyleArrowsOptions( &arrowOptions2 );
            arrowOptions2->SetLeaderArrow( iwDimensionArrowType_Dot, L"" );
            iwDimensionStyleUserData_ptr dimensionStyle3;
            iwleader10->GetDimensionStyleUserData( &dimensionStyle3 );
            iwDimensionStyleArrowsOptions_ptr arrowOptions4;
            dimensionStyle3->GetDimensionStyleArrowsOptions( &arrowOptions4 );
            arrowOptions4->put_Size( 2.5 );
            iwDimensionStyleUserData_ptr dimensionStyle5;
            iwleader10->GetDimensionStyleUserData( &dimensionStyle5 );
            iwDimensionStyleLineOptions_ptr linesOptions6;
            dimensionStyle5->GetDimensionStyleLineOptions( &linesOptions6 );
            iwColor_ptr iwColor7;
            m_pIwApp->GetColorByIndex( 1, &iwColor7 );
            linesOptions6->put_DimensionLineColor( iwColor7 );
            iwDimensionStyleUserData_ptr dimensionStyle8;
            iwleader10->GetDimensionStyleUserData( &dimensionStyle8 );
            iwDimensionStyleLineOptions_ptr linesOptions9;
            dimensionStyle8->GetDimensionStyleLineOptions( &linesOptions9 );
            linesOptions9->put_DimensionLineLineWeight( iwLnWt_025 );
            iwDimensionStyleUserData_ptr dimensionStyle10;
            iwleader10->GetDimensionStyleUserData( &dimensionStyle10 );
            iwDimensionStyleTextOptions_ptr textOptions11;
            dimensionStyle10->GetDimensionStyleTextOptions( &textOptions11 );
            textOptions11->put_OffsetFromDimensionLines( 0.625 );
            iwDimensionStyleUserData_ptr dimensionStyle12;
            iwleader10->GetDimensionStyleUserData( &dimensionStyle12 );
            iwDimensionStyleFitOptions_ptr fitOptions13;
            dimensionStyle12->GetDimensionStyleFitOptions( &fitOptions13 );
            fitOptions13->SetDimensionScale( iwDimensionScale_UseScaleFactor, 2.00000000000000 );
        }
    }
    {
        // AcDbFcf object modified
        {
            double X1;
            double Y1;
            double Z1;
            iwtolerance9->GetPosition( &X1, &Y1, &Z1 );
            X1 = 5.00000000000000;
            iwtolerance9->SetPosition( X1, Y1, Z1 );
            iwtolerance9->put_DimensionScaleFactor( 2.00000000000000 );
            iwtolerance9->put_DimensionStyle( L"ISO-25" );
            iwDimensionStyleUserData_ptr dimensionStyle2;
            iwtolerance9->GetDimensionStyleUserData( &dimensionStyle2 );
            iwDimensionStyleLineOptions_ptr linesOptions3;
            dimensionStyle2->GetDimensionStyleLineOptions( &linesOptions3 );
            iwColor_ptr iwColor4;
            m_pIwApp->GetColorByIndex( 4, &iwColor4 );
            linesOptions3->put_DimensionLineColor( iwColor4 );
            iwtolerance9->put_TextStyle( L"Titles" );
            iwtolerance9->put_TextHeight( 3.00000000000000 );
            iwColor_ptr iwColor5;
            m_pIwApp->GetColorByIndex( 7, &iwColor5 );
            iwtolerance9->put_TextColor( iwColor5 );
            iwtolerance9->put_Text( L"a\\b\nc" );
        }
    }
    {
        // AcDbText object modified
        {
            iwsimplenote6->put_Erased( true );
        }
    }
