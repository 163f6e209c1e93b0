    iwAlignedDimension_ptr iwaligneddimension1;
    {
        iwDoubleArray Coordinates1,Coordinates2,Coordinates3;
        Coordinates1.clear();Coordinates2.clear();Coordinates3.clear(); 
        Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates2.add(120.00000000000000);Coordinates2.add(50.00000000000000);Coordinates2.add(0.00000000000000);
        Coordinates3.add(60.00000000000000);Coordinates3.add(-15.00000000000000);Coordinates3.add(0.00000000000000);
        iwSketchManager->InsertAlignedDimension( Coordinates1, Coordinates2, Coordinates3, L"", &iwaligneddimension1 );
    }
    iwRotatedDimension_ptr iwrotateddimension2;
    {
        iwDoubleArray Coordinates1,Coordinates2,Coordinates3;
        Coordinates1.clear();Coordinates2.clear();Coordinates3.clear(); 
        Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates2.add(120.00000000000000);Coordinates2.add(0.00000000000000);Coordinates2.add(0.00000000000000);
        Coordinates3.add(60.00000000000000);Coordinates3.add(-15.00000000000000);Coordinates3.add(0.00000000000000);
        iwSketchManager->InsertRotatedDimension( Coordinates1, Coordinates2, Coordinates3, L"", 0, &iwrotateddimension2 );
    }
    iwRadialDimension_ptr iwradialdimension3;
    {
        {
            iwDoubleArray Coordinates1;
            Coordinates1.clear();

            Coordinates1.add(42.50000000000000);Coordinates1.add(30.00000000000000);Coordinates1.add(0.00000000000000);
            iwCircle_ptr iwradialdimension3_associated_circle; iwSketchManager->InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000 ,&iwradialdimension3_associated_circle );
            iwSketchManager->InsertRadialDimensionCircle( iwradialdimension3_associated_circle, Coordinates1, L"" ,&iwradialdimension3 );
            iwradialdimension3_associated_circle->put_Erased(true);
        }
    }
    iwArcLengthDimension_ptr iwarclengthdimension4;
    {
        iwCircleArc_ptr iwarclengthdimension4_associated_arc;
        iwSketchManager->InsertArc(90.00000000000000, 30.00000000000000, 0.00000000000000, 32.01562118716424, 0.00000000000000, 1.57079632679490, &iwarclengthdimension4_associated_arc);
        {
            iwDoubleArray dimensionPosition;
            dimensionPosition.add(110.00000000000000); dimensionPosition.add(55.00000000000000); dimensionPosition.add(0.00000000000000);
            iwSketchManager->InsertArcLengthDimension(iwarclengthdimension4_associated_arc, dimensionPosition, L"", &iwarclengthdimension4);
            iwarclengthdimension4_associated_arc->put_Erased(true);
        }
    }
    iwJoggedDimension_ptr iwjoggeddimension5;
    {
        {
            iwDoubleArray Coordinates1,Coordinates2,Coordinates3;
            Coordinates1.clear();Coordinates2.clear();Coordinates3.clear();

            Coordinates1.add(10.00000000000000);Coordinates1.add(20.00000000000000);Coordinates1.add(0.00000000000000);
            Coordinates2.add(16.00000000000000);Coordinates2.add(26.00000000000000);Coordinates2.add(0.00000000000000);
            Coordinates3.add(17.50000000000000);Coordinates3.add(30.00000000000000);Coordinates3.add(0.00000000000000);
            iwCircle_ptr iwjoggeddimension5_associated_circle; iwSketchManager->InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000 ,&iwjoggeddimension5_associated_circle );
            iwSketchManager->InsertJoggedDimensionCircle( iwjoggeddimension5_associated_circle, Coordinates1, Coordinates2, Coordinates3, L"R<>" ,&iwjoggeddimension5 );
            iwjoggeddimension5_associated_circle->put_Erased(true);
        }
    }
    {
        // AcDbAlignedDimension object modified
        {
            iwGeneralDimension_ptr generalDimension2;
            iwaligneddimension1->GetGeneralDimension( &generalDimension2 );
            generalDimension2->put_DimensionStyle( L"Workshop" );
            iwGeneralDimension_ptr generalDimension3;
            iwaligneddimension1->GetGeneralDimension( &generalDimension3 );
            iwDimensionStyleUserData_ptr dimensionStyle4;
            generalDimension3->GetDimensionStyleUserData( &dimensionStyle4 );
            iwDimensionStyleArrowsOptions_ptr arrowsOptions5;
            dimensionStyle4->GetDimensionStyleArrowsOptions( &arrowsOptions5 );
            arrowsOptions5->SetStartArrow( iwDimensionArrowType_Custom, L"My arrow" );
            arrowsOptions5->SetEndArrow( iwDimensionArrowType_Open, L"" );
            arrowsOptions5->put_Size( 3.00000000000000 );
        }
    }
    {
        // AcDbRotatedDimension object modified
        {
            iwGeneralDimension_ptr generalDimension2;
            iwrotateddimension2->GetGeneralDimension( &generalDimension2 );
            generalDimension2->put_TextRotation( 0.50000000000000 );
        }
    }
    {
        // AcDbRotatedDimension object modified
            iwGeneralDimension_ptr generalDimension1;
            iwrotateddimension2->GetGeneralDimension( &generalDimension1 );
        iwColor_ptr iwColor2;
        m_pIwApp->GetColorByIndex( 1, &iwColor2 );
        generalDimension1->put_Color( iwColor2 );
        iwGeneralDimension_ptr generalDimension3;
        iwrotateddimension2->GetGeneralDimension( &generalDimension3 );
        iwDimensionStyleUserData_ptr dimensionStyle4;
        generalDimension3->GetDimensionStyleUserData( &dimensionStyle4 );
        iwDimensionStyleFitOptions_ptr fitOptions5;
        dimensionStyle4->GetDimensionStyleFitOptions( &fitOptions5 );
        fitOptions5->put_FitGeometry( iwDimensionFitGeometry_TextAndArrows );
        fitOptions5->put_FitGeometry( iwDimensionFitGeometry_KeepTextBetweenExtensionLines );
        fitOptions5->SetDimensionScale( iwDimensionScale_UseScaleFactor, 2.00000000000000 );
        iwGeneralDimension_ptr generalDimension6;
        iwrotateddimension2->GetGeneralDimension( &generalDimension6 );
        double x7, y7;
        generalDimension6->GetTextPosition( &x7, &y7 );
        generalDimension6->SetTextPosition( 55.00000000000000, y7 );
        double x8, y8;
        generalDimension6->GetTextPosition( &x8, &y8 );
        generalDimension6->SetTextPosition( x8, -20.00000000000000 );
        generalDimension6->put_TextOverride( L"<> \\A1;typ." );
        iwDimensionStyleUserData_ptr dimensionStyle9;
        generalDimension6->GetDimensionStyleUserData( &dimensionStyle9 );
        iwDimensionStyleTextOptions_ptr textOptions10;
        dimensionStyle9->GetDimensionStyleTextOptions( &textOptions10 );
        textOptions10->put_Height( 5.00000000000000 );
        textOptions10->put_Alignment( iwDimensionTextAlignment_AlignHorizontally );
        textOptions10->put_Alignment( iwDimensionTextAlignment_AlignWithDimensionLines );
    }
    {
        // AcDbRotatedDimension object modified
        {
            iwGeneralDimension_ptr generalDimension2;
            iwrotateddimension2->GetGeneralDimension( &generalDimension2 );
            iwDimensionStyleUserData_ptr dimensionStyle3;
            generalDimension2->GetDimensionStyleUserData( &dimensionStyle3 );
            iwDimensionStyleAngularDimensionOptions_ptr angularDimensionOptions4;
            dimensionStyle3->GetDimensionStyleAngularDimensionOptions( &angularDimensionOptions4 );
            angularDimensionOptions4->put_HideTrailingZeroes( true );
            iwGeneralDimension_ptr generalDimension5;
            iwrotateddimension2->GetGeneralDimension( &generalDimension5 );
            iwDimensionStyleUserData_ptr dimensionStyle6;
            generalDimension5->GetDimensionStyleUserData( &dimensionStyle6 );
            iwDimensionStyleDualDimensionOptions_ptr dualDimensionOptions7;
            dimensionStyle6->GetDimensionStyleDualDimensionOptions( &dualDimensionOptions7 );
            dualDimensionOptions7->put_Show( true );
            dualDimensionOptions7->put_Suffix( L" in" );
            iwGeneralDimension_ptr generalDimension8;
            iwrotateddimension2->GetGeneralDimension( &generalDimension8 );
            iwDimensionStyleUserData_ptr dimensionStyle9;
            generalDimension8->GetDimensionStyleUserData( &dimensionStyle9 );
            iwDimensionStyleLineOptions_ptr lineOptions10;
            dimensionStyle9->GetDimensionStyleLineOptions( &lineOptions10 );
            lineOptions10->put_DimensionLineStyle( L"DASHED" );
            lineOptions10->put_DimensionLineLineWeight( iwLnWt_ByLayer );
            iwColor_ptr iwColor11;
            m_pIwApp->GetColorByIndex( 2, &iwColor11 );
            lineOptions10->put_DimensionLineColor( iwColor11 );
            lineOptions10->put_HideDimensionLine2( true );
            lineOptions10->put_HideDimensionLine2( false );
            lineOptions10->SetExtensionLineFixedLength(false, 1.25000000000000);
            iwGeneralDimension_ptr generalDimension12;
            iwrotateddimension2->GetGeneralDimension( &generalDimension12 );
            iwDimensionStyleUserData_ptr dimensionStyle13;
            generalDimension12->GetDimensionStyleUserData( &dimensionStyle13 );
            iwDimensionStyleLinearDimensionOptions_ptr linearDimensionOptions14;
            dimensionStyle13->GetDimensionStyleLinearDimensionOptions( &linearDimensionOptions14 );
            linearDimensionOptions14->put_Precision( iwUnitPrecision_3 );
            linearDimensionOptions14->put_DecimalSeparator( iwLinearDimensionDecimalSeparator_Space );
            linearDimensionOptions14->put_Prefix( L"~" );
            iwGeneralDimension_ptr generalDimension15;
            iwrotateddimension2->GetGeneralDimension( &generalDimension15 );
            iwDimensionStyleUserData_ptr dimensionStyle16;
            generalDimension15->GetDimensionStyleUserData( &dimensionStyle16 );
            iwDimensionStyleToleranceOptions_ptr toleranceOptions17;
            dimensionStyle16->GetDimensionStyleToleranceOptions( &toleranceOptions17 );
            toleranceOptions17->put_Calculation( iwToleranceCalculation_Basic );
            toleranceOptions17->put_MaximumValue( 0.10000000000000 );
        }
    }
    {
        // AcDbRadialDimension object modified
        {
            iwGeneralDimension_ptr generalDimension2;
            iwradialdimension3->GetGeneralDimension( &generalDimension2 );
            iwDimensionStyleUserData_ptr dimensionStyle3;
            generalDimension2->GetDimensionStyleUserData( &dimensionStyle3 );
            iwDimensionStyleRadialDiameterDimensionOptions_ptr radialDiameterDimensionOptions4;
            dimensionStyle3->GetDimensionStyleRadialDiameterDimensionOptions( &radialDiameterDimensionOptions4 );
            iwDimensionCenterMarkDisplay_e CenterMarkDisplay5;
            double markSize5;
            radialDiameterDimensionOptions4->GetCenterMarkDisplay( &CenterMarkDisplay5, &markSize5 );
            markSize5 = 0.50000000000000;
            radialDiameterDimensionOptions4->SetCenterMarkDisplay( CenterMarkDisplay5, markSize5 );
            iwDimensionCenterMarkDisplay_e CenterMarkDisplay6;
            double markSize6;
            radialDiameterDimensionOptions4->GetCenterMarkDisplay( &CenterMarkDisplay6, &markSize6 );
            CenterMarkDisplay6 = iwDimensionCenterMarkDisplay_AsMark;
            radialDiameterDimensionOptions4->SetCenterMarkDisplay( CenterMarkDisplay6, markSize6 );
        }
    }
    {
        // AcDbArcDimension object modified
        {
            iwGeneralDimension_ptr generalDimension2;
            iwarclengthdimension4->GetGeneralDimension( &generalDimension2 );
            iwDimensionStyleUserData_ptr dimensionStyle3;
            generalDimension2->GetDimensionStyleUserData( &dimensionStyle3 );
            iwDimensionStyleAngularDimensionOptions_ptr angularDimensionOptions4;
            dimensionStyle3->GetDimensionStyleAngularDimensionOptions( &angularDimensionOptions4 );
            angularDimensionOptions4->put_Format( iwDimensionStyleAngleFormat_Radians );
            angularDimensionOptions4->put_HideLeadingZeroes( true );
            iwarclengthdimension4->put_ArcSymbolType( iwArcSymbolType_None );
        }
    }
    {
        // AcDbRadialDimensionLarge object modified
        {
            iwGeneralDimension_ptr generalDimension2;
            iwjoggeddimension5->GetGeneralDimension( &generalDimension2 );
            iwDimensionStyleUserData_ptr dimensionStyle3;
            generalDimension2->GetDimensionStyleUserData( &dimensionStyle3 );
            iwDimensionStyleRadialDiameterDimensionOptions_ptr radialDiameterDimensionOptions4;
            dimensionStyle3->GetDimensionStyleRadialDiameterDimensionOptions( &radialDiameterDimensionOptions4 );
            radialDiameterDimensionOptions4->put_RadiusDimensionJogAngle( 0.75000000000000 );
            double x5, y5, z5;
            iwjoggeddimension5->GetOverrideCenterPoint( &x5, &y5, &z5 );
            iwjoggeddimension5->SetOverrideCenterPoint( x5, 21.50000000000000, z5 );
            double x6, y6, z6;
            iwjoggeddimension5->GetJogPoint( &x6, &y6, &z6 );
            iwjoggeddimension5->SetJogPoint( 17.00000000000000, y6, z6 );
        }
    }
    {
        {
            iwGeneralDimension_ptr generalDimension2;
            iwradialdimension3->GetGeneralDimension( &generalDimension2 );
            iwDimensionStyleUserData_ptr dimensionStyle3;
            generalDimension2->GetDimensionStyleUserData( &dimensionStyle3 );
            iwDimensionStyleTextOptions_ptr textOptions4;
            dimensionStyle3->GetDimensionStyleTextOptions( &textOptions4 );
            iwColor_ptr iwColor5;
            m_pIwApp->GetColorByIndex( 8, &iwColor5 );
            textOptions4->put_FillColor( iwColor5 );
        }
    }
