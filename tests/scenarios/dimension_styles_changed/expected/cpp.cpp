    iwDimensionStyle_ptr iwdimensionstyle1;
    iwDimensionStyle_ptr iwdimensionstyle2;
    iwRichLineStyle_ptr iwrichlinestyle3;
    {
        iwCreateObjectResult_e result1;
        iwString dimStyleName1 = L"Shop";
        iwDimensionStyleManager_ptr DimensionStyleManager1;
        iwDoc->GetDimensionStyleManager(&DimensionStyleManager1);
        DimensionStyleManager1->CreateDimensionStyle( dimStyleName1, &iwdimensionstyle1, &result1 );
        {
            iwDimensionStyleArrowsOptions_ptr arrowOptions2;
            iwdimensionstyle1->GetDimensionStyleArrowsOptions( &arrowOptions2 );
            arrowOptions2->put_Size( 3.50000000000000 );
            iwDimensionArrowType_e arrowType3=iwDimensionArrowType_ArchitecturalTick;
            iwString arrowName3 = L"";
            arrowOptions2->SetStartArrow( arrowType3, arrowName3 );
            iwDimensionArrowType_e arrowType4=iwDimensionArrowType_Custom;
            iwString arrowName4 = L"My arrow";
            arrowOptions2->SetEndArrow( arrowType4, arrowName4 );
            iwDimensionStyleDualDimensionOptions_ptr dualOptions5;
            iwdimensionstyle1->GetDimensionStyleDualDimensionOptions( &dualOptions5 );
            dualOptions5->put_Show( false );
            iwDimensionStyleFitOptions_ptr fitOptions6;
            iwdimensionstyle1->GetDimensionStyleFitOptions( &fitOptions6 );
            fitOptions6->put_FitGeometry( iwDimensionFitGeometry_TextAndArrows );
            iwDimensionStyleLinearDimensionOptions_ptr linearOptions7;
            iwdimensionstyle1->GetDimensionStyleLinearDimensionOptions( &linearOptions7 );
            linearOptions7->put_Precision( iwUnitPrecision_2 );
            linearOptions7->put_DecimalSeparator( iwLinearDimensionDecimalSeparator_Comma );
            linearOptions7->put_Prefix( L"ca. " );
            linearOptions7->put_Suffix( L" mm" );
            iwDimensionStyleTextOptions_ptr textOptions8;
            iwdimensionstyle1->GetDimensionStyleTextOptions( &textOptions8 );
            textOptions8->put_Style( L"Titles" );
            textOptions8->put_Height( 2.50000000000000 );
        }
        iwCreateObjectResult_e result9;
        iwString dimStyleName9 = L"Site";
        iwDimensionStyleManager_ptr DimensionStyleManager9;
        iwDoc->GetDimensionStyleManager(&DimensionStyleManager9);
        DimensionStyleManager9->CreateDimensionStyle( dimStyleName9, &iwdimensionstyle2, &result9 );
        iwCreateObjectResult_e result10;
        iwString richLineStyleName10 = L"Walls";
        iwRichLineStyleManager_ptr RichLineStyleManager10;
        iwDoc->GetRichLineStyleManager(&RichLineStyleManager10);
        RichLineStyleManager10->CreateRichLineStyle( richLineStyleName10, &iwrichlinestyle3, &result10 );
    }
    {
        // AcDbDimStyleTableRecord object modified
        {
            iwCreateObjectResult_e result1;
            iwString styleName1 = L"Workshop";
            iwdimensionstyle1->Rename( styleName1, &result1 );
            iwdimensionstyle1->Activate();
            iwDimensionStyleArrowsOptions_ptr arrowOptions2;
            iwdimensionstyle1->GetDimensionStyleArrowsOptions( &arrowOptions2 );
            arrowOptions2->put_Size( 2.25000000000000 );
            iwDimensionArrowType_e arrowType3=iwDimensionArrowType_DotSmall;
            iwString arrowName3 = L"";
            arrowOptions2->SetLeaderArrow( arrowType3, arrowName3 );
            iwDimensionStyleAngularDimensionOptions_ptr angularOptions4;
            iwdimensionstyle1->GetDimensionStyleAngularDimensionOptions( &angularOptions4 );
            angularOptions4->put_Format( iwDimensionStyleAngleFormat_Deg_Min_Sec );
            angularOptions4->put_Precision( iwUnitPrecision_3 );
            angularOptions4->put_HideTrailingZeroes( true );
            angularOptions4->put_ArcLengthSymbols( iwArcLengthSymbols_None );
            iwDimensionStyleDualDimensionOptions_ptr dualOptions5;
            iwdimensionstyle1->GetDimensionStyleDualDimensionOptions( &dualOptions5 );
            dualOptions5->put_Show( true );
            dualOptions5->put_Format( iwDualDimensionFormat_Engineering );
            dualOptions5->put_MultiplierForConvertingUnits( 0.03937007870000 );
            dualOptions5->put_Suffix( L" in" );
            dualOptions5->put_Insertion( iwDualDimensionInsertPlacement_BelowPrimaryUnits );
            iwDimensionStyleFitOptions_ptr fitOptions6;
            iwdimensionstyle1->GetDimensionStyleFitOptions( &fitOptions6 );
            fitOptions6->put_FitGeometry( iwDimensionFitGeometry_Arrows );
            fitOptions6->put_FitGeometry( iwDimensionFitGeometry_Text );
            fitOptions6->put_FitDimensionText( iwDimensionFitDimensionText_AboveDimensionLineWithLeader );
            fitOptions6->put_DimensionLinesBetweenExtensionLine( true );
            fitOptions6->SetDimensionScale( iwDimensionScale_UseScaleFactor, 1.50000000000000 );
            fitOptions6->SetDimensionScale( iwDimensionScale_ScaleDimensionsAccordingToSheet, 1.00000000000000 );
            iwDimensionStyleLinearDimensionOptions_ptr linearOptions7;
            iwdimensionstyle1->GetDimensionStyleLinearDimensionOptions( &linearOptions7 );
            linearOptions7->put_Format( iwLinearDimensionFormat_Decimal );
            linearOptions7->put_Precision( iwUnitPrecision_0 );
            linearOptions7->put_DecimalSeparator( iwLinearDimensionDecimalSeparator_Period );
            linearOptions7->put_Prefix( L"R " );
            linearOptions7->put_ZeroesDisplayFollowSheetDimensions( false );
            iwDimensionStyleLineOptions_ptr linesOptions8;
            iwdimensionstyle1->GetDimensionStyleLineOptions( &linesOptions8 );
            linesOptions8->put_DimensionLineStyle( L"DASHED" );
            linesOptions8->put_DimensionLineLineWeight( iwLnWt_035 );
            iwColor_ptr iwColor9;
            m_pIwApp->GetRGBColor( 255, 128, 0, &iwColor9 );
            linesOptions8->put_DimensionLineColor( iwColor9 );
            linesOptions8->put_ExtensionLine1Style( L"ByBlock" );
            iwColor_ptr iwColor10;
            m_pIwApp->GetColorByIndex( 256, &iwColor10 );
            linesOptions8->put_ExtensionLineColor( iwColor10 );
            linesOptions8->SetExtensionLineFixedLength(true, 2.25000000000000);
            iwDimensionStyleRadialDiameterDimensionOptions_ptr radialDiameterOptions11;
            iwdimensionstyle1->GetDimensionStyleRadialDiameterDimensionOptions( &radialDiameterOptions11 );
            radialDiameterOptions11->put_SetCenterMarkDisplay(iwDimensionCenterMarkDisplay_AsCenterLine, 0.09000000000000);
            radialDiameterOptions11->put_RadiusDimensionJogAngle( 0.78539816339745 );
            iwDimensionStyleTextOptions_ptr textOptions12;
            iwdimensionstyle1->GetDimensionStyleTextOptions( &textOptions12 );
            textOptions12->put_Style( L"Standard" );
            iwColor_ptr iwColor13;
            m_pIwApp->GetColorByIndex( 3, &iwColor13 );
            textOptions12->put_Color( iwColor13 );
            textOptions12->put_VerticalPosition( iwDimensionTextVerticalPosition_Above );
            textOptions12->put_Alignment( iwDimensionTextAlignment_AlignWithDimensionLines );
            iwDimensionStyleToleranceOptions_ptr toleranceOptions14;
            iwdimensionstyle1->GetDimensionStyleToleranceOptions( &toleranceOptions14 );
            toleranceOptions14->put_Calculation( iwToleranceCalculation_Deviation );
            toleranceOptions14->put_MaximumValue( 0.05000000000000 );
            toleranceOptions14->put_MinimumValue( 0.02000000000000 );
            toleranceOptions14->put_VerticalTextJustification( iwToleranceVerticalTextJustification_Middle );
        }
        // AcDbDimStyleTableRecord object modified
        {
            iwDimensionStyleLinearDimensionOptions_ptr linearOptions15;
            iwdimensionstyle2->GetDimensionStyleLinearDimensionOptions( &linearOptions15 );
            linearOptions15->put_Precision( iwUnitPrecision_1 );
        }
        // AcDbDimStyleTableRecord object modified
        {
            iwCreateObjectResult_e result16;
            iwString styleName16 = L"Plans";
            iwdimensionstyle2->Rename( styleName16, &result16 );
        }
    }
    {
        // AcDbMlineStyle object modified
        {
            iwrichlinestyle3->put_ShowJunctions( false );
        }
    }
