    IDimensionStylePtr dimensionstyle1;
    IDimensionStylePtr dimensionstyle2;
    IRichLineStylePtr richlinestyle3;
    {
        iwCreateObjectResult_e result1;
        BSTR dimStyleName1 = L"Shop";
        pConnection->m_IwApp->GetActiveDocument()->GetDimensionStyleManager()->CreateDimensionStyle( dimStyleName1, &dimensionstyle1, &result1 );
        {
            IDimensionStyleArrowsOptionsPtr arrowOptions2 = dimensionstyle1->GetDimensionStyleArrowsOptions();
            arrowOptions2->put_Size( 3.50000000000000 );
            iwDimensionArrowType_e arrowType3=iwDimensionArrowType_ArchitecturalTick;
            BSTR arrowName3 = L"";
            arrowOptions2->SetStartArrow( arrowType3, arrowName3 );
            iwDimensionArrowType_e arrowType4=iwDimensionArrowType_Custom;
            BSTR arrowName4 = L"My arrow";
            arrowOptions2->SetEndArrow( arrowType4, arrowName4 );
            IDimensionStyleDualDimensionOptionsPtr dualOptions5 = dimensionstyle1->GetDimensionStyleDualDimensionOptions();
            dualOptions5->put_Show( false );
            IDimensionStyleFitOptionsPtr fitOptions6 = dimensionstyle1->GetDimensionStyleFitOptions();
            fitOptions6->put_FitGeometry( iwDimensionFitGeometry_TextAndArrows );
            IDimensionStyleLinearDimensionOptionsPtr linearOptions7 = dimensionstyle1->GetDimensionStyleLinearDimensionOptions();
            linearOptions7->put_Precision( iwUnitPrecision_2 );
            linearOptions7->put_DecimalSeparator( iwLinearDimensionDecimalSeparator_Comma );
            linearOptions7->put_Prefix( L"ca. " );
            linearOptions7->put_Suffix( L" mm" );
            IDimensionStyleTextOptionsPtr textOptions8 = dimensionstyle1->GetDimensionStyleTextOptions();
            textOptions8->put_Style( L"Titles" );
            textOptions8->put_Height( 2.50000000000000 );
        }
        iwCreateObjectResult_e result9;
        BSTR dimStyleName9 = L"Site";
        pConnection->m_IwApp->GetActiveDocument()->GetDimensionStyleManager()->CreateDimensionStyle( dimStyleName9, &dimensionstyle2, &result9 );
        iwCreateObjectResult_e result10;
        BSTR richLineStyleName10 = L"Walls";
        pConnection->m_IwApp->GetActiveDocument()->GetRichLineStyleManager()->CreateRichLineStyle( richLineStyleName10, &richlinestyle3, &result10 );
    }
    {
        // AcDbDimStyleTableRecord object modified
        {
            iwCreateObjectResult_e result1;
            BSTR styleName1 = L"Workshop";
            result1 = dimensionstyle1->Rename( styleName1 );
            dimensionstyle1->Activate();
            IDimensionStyleArrowsOptionsPtr arrowOptions2 = dimensionstyle1->GetDimensionStyleArrowsOptions();
            arrowOptions2->put_Size( 2.25000000000000 );
            iwDimensionArrowType_e arrowType3=iwDimensionArrowType_DotSmall;
            BSTR arrowName3 = L"";
            arrowOptions2->SetLeaderArrow( arrowType3, arrowName3 );
            IDimensionStyleAngularDimensionOptionsPtr angularOptions4 = dimensionstyle1->GetDimensionStyleAngularDimensionOptions();
            angularOptions4->put_Format( iwDimensionStyleAngleFormat_Deg_Min_Sec );
            angularOptions4->put_Precision( iwUnitPrecision_3 );
            angularOptions4->put_HideTrailingZeroes( true );
            angularOptions4->put_ArcLengthSymbols( iwArcLengthSymbols_None );
            IDimensionStyleDualDimensionOptionsPtr dualOptions5 = dimensionstyle1->GetDimensionStyleDualDimensionOptions();
            dualOptions5->put_Show( true );
            dualOptions5->put_Format( iwDualDimensionFormat_Engineering );
            dualOptions5->put_MultiplierForConvertingUnits( 0.03937007870000 );
            dualOptions5->put_Suffix( L" in" );
            dualOptions5->put_Insertion( iwDualDimensionInsertPlacement_BelowPrimaryUnits );
            IDimensionStyleFitOptionsPtr fitOptions6 = dimensionstyle1->GetDimensionStyleFitOptions();
            fitOptions6->put_FitGeometry( iwDimensionFitGeometry_Arrows );
            fitOptions6->put_FitGeometry( iwDimensionFitGeometry_Text );
            fitOptions6->put_FitDimensionText( iwDimensionFitDimensionText_AboveDimensionLineWithLeader );
            fitOptions6->put_DimensionLinesBetweenExtensionLine( true );
            fitOptions6->SetDimensionScale( iwDimensionScale_UseScaleFactor, 1.50000000000000 );
            fitOptions6->SetDimensionScale( iwDimensionScale_ScaleDimensionsAccordingToSheet, 1.00000000000000 );
            IDimensionStyleLinearDimensionOptionsPtr linearOptions7 = dimensionstyle1->GetDimensionStyleLinearDimensionOptions();
            linearOptions7->put_Format( iwLinearDimensionFormat_Decimal );
            linearOptions7->put_Precision( iwUnitPrecision_0 );
            linearOptions7->put_DecimalSeparator( iwLinearDimensionDecimalSeparator_Period );
            linearOptions7->put_Prefix( L"R " );
            linearOptions7->put_ZeroesDisplayFollowSheetDimensions( false );
            IDimensionStyleLineOptionsPtr linesOptions8 = dimensionstyle1->GetDimensionStyleLineOptions();
            linesOptions8->put_DimensionLineStyle( L"DASHED" );
            linesOptions8->put_DimensionLineLineWeight( iwLnWt_035 );
            linesOptions8->put_DimensionLineColor( pConnection->m_IwApp->GetRGBColor( 255, 128, 0 ) );
            linesOptions8->put_ExtensionLine1Style( L"ByBlock" );
            linesOptions8->put_ExtensionLineColor( pConnection->m_IwApp->GetColorByIndex( 256 ) );
            linesOptions8->SetExtensionLineFixedLength(true, 2.25000000000000);
            IDimensionStyleRadialDiameterDimensionOptionsPtr radialDiameterOptions9 = dimensionstyle1->GetDimensionStyleRadialDiameterDimensionOptions();
            radialDiameterOptions9->SetCenterMarkDisplay(iwDimensionCenterMarkDisplay_AsCenterLine, 0.09000000000000);
            radialDiameterOptions9->put_RadiusDimensionJogAngle( 0.78539816339745 );
            IDimensionStyleTextOptionsPtr textOptions10 = dimensionstyle1->GetDimensionStyleTextOptions();
            textOptions10->put_Style( L"Standard" );
            textOptions10->put_Color( pConnection->m_IwApp->GetColorByIndex( 3 ) );
            textOptions10->put_VerticalPosition( iwDimensionTextVerticalPosition_Above );
            textOptions10->put_Alignment( iwDimensionTextAlignment_AlignWithDimensionLines );
            IDimensionStyleToleranceOptionsPtr toleranceOptions11 = dimensionstyle1->GetDimensionStyleToleranceOptions();
            toleranceOptions11->put_Calculation( iwToleranceCalculation_Deviation );
            toleranceOptions11->put_MaximumValue( 0.05000000000000 );
            toleranceOptions11->put_MinimumValue( 0.02000000000000 );
            toleranceOptions11->put_VerticalTextJustification( iwToleranceVerticalTextJustification_Middle );
        }
        // AcDbDimStyleTableRecord object modified
        {
            IDimensionStyleLinearDimensionOptionsPtr linearOptions12 = dimensionstyle2->GetDimensionStyleLinearDimensionOptions();
            linearOptions12->put_Precision( iwUnitPrecision_1 );
        }
        // AcDbDimStyleTableRecord object modified
        {
            iwCreateObjectResult_e result13;
            BSTR styleName13 = L"Plans";
            result13 = dimensionstyle2->Rename( styleName13 );
        }
    }
    {
        // AcDbMlineStyle object modified
        {
            richlinestyle3->Rename("Outer walls");
            richlinestyle3->put_ShowJunctions( false );
        }
    }
