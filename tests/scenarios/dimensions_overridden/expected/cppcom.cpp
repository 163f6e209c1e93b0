    IAlignedDimensionPtr aligneddimension1;
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
        x=120.00000000000000; y=50.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(x) );
        rgIndices2=1;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(y) );
        rgIndices2=2;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(z) );

        long rgIndices3;
        rgIndices3 = 0;
        x=60.00000000000000; y=-15.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(x) );
        rgIndices3=1;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(y) );
        rgIndices3=2;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(z) );

        aligneddimension1 = iwSketchManager->InsertAlignedDimension( variant1, variant2, variant3, L"" );
    }
    IRotatedDimensionPtr rotateddimension2;
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
        x=120.00000000000000; y=0.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(x) );
        rgIndices2=1;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(y) );
        rgIndices2=2;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(z) );

        long rgIndices3;
        rgIndices3 = 0;
        x=60.00000000000000; y=-15.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(x) );
        rgIndices3=1;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(y) );
        rgIndices3=2;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(z) );

        rotateddimension2 = iwSketchManager->InsertRotatedDimension( variant1, variant2, variant3, L"", 0.00000000000000 );
    }
    IRadialDimensionPtr radialdimension3;
    {
        ICirclePtr radialdimension3_associated_circle; radialdimension3_associated_circle =iwSketchManager->InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000);
        {
            double x, y, z;
            VARIANT variant1;
            variant1.vt = ( VT_ARRAY | VT_R8 );
            variant1.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        long rgIndices1;
        rgIndices1 = 0;
        x=42.50000000000000; y=30.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z) );

            radialdimension3=iwSketchManager->InsertRadialDimensionCircle( radialdimension3_associated_circle, variant1, L"" );
            radialdimension3_associated_circle->put_Erased(true);
        }
    }
    IArcLengthDimensionPtr arclengthdimension4;
    {
        ICircleArcPtr arclengthdimension4_associated_arc; arclengthdimension4_associated_arc = iwSketchManager->InsertArc( 90.00000000000000, 30.00000000000000, 0.00000000000000, 32.01562118716424, 0.00000000000000, 1.57079632679490 );
        {
            double x, y, z;
            VARIANT variant1;
            variant1.vt = ( VT_ARRAY | VT_R8 );
            variant1.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        long rgIndices1;
        rgIndices1 = 0;
        x=110.00000000000000; y=55.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z) );

            arclengthdimension4=iwSketchManager->InsertArcLengthDimension( arclengthdimension4_associated_arc,variant1, L"");
            arclengthdimension4_associated_arc->put_Erased(true);
        }
    }
    IJoggedDimensionPtr joggeddimension5;
    {
        ICirclePtr joggeddimension5_associated_circle; joggeddimension5_associated_circle =iwSketchManager->InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000);
        {
            double x, y, z;
            VARIANT variant1,variant2,variant3;
            variant1.vt = ( VT_ARRAY | VT_R8 );
            variant2.vt = ( VT_ARRAY | VT_R8 );
            variant3.vt = ( VT_ARRAY | VT_R8 );
            variant1.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
            variant2.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
            variant3.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        long rgIndices1;
        rgIndices1 = 0;
        x=10.00000000000000; y=20.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z) );

        long rgIndices2;
        rgIndices2 = 0;
        x=16.00000000000000; y=26.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(x) );
        rgIndices2=1;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(y) );
        rgIndices2=2;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(z) );

        long rgIndices3;
        rgIndices3 = 0;
        x=17.50000000000000; y=30.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(x) );
        rgIndices3=1;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(y) );
        rgIndices3=2;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(z) );

            joggeddimension5=iwSketchManager->InsertJoggedDimensionCircle( joggeddimension5_associated_circle, variant1, variant2, variant3, L"R<>" );
            joggeddimension5_associated_circle->put_Erased(true);
        }
    }
    {
        // AcDbAlignedDimension object modified
        {
            IGeneralDimensionPtr generalDimension2 = aligneddimension1->GetGeneralDimension();
            generalDimension2->put_DimensionStyle( L"Workshop" );
            IGeneralDimensionPtr generalDimension3 = aligneddimension1->GetGeneralDimension();
            IDimensionStyleUserDataPtr dimensionStyle4 = generalDimension3->GetDimensionStyleUserData();
            IDimensionStyleArrowsOptionsPtr arrowsOptions5 = dimensionStyle4->GetDimensionStyleArrowsOptions();
            arrowsOptions5->SetStartArrow( iwDimensionArrowType_Custom, L"My arrow" );
            arrowsOptions5->SetEndArrow( iwDimensionArrowType_Open, L"" );
            arrowsOptions5->put_Size( 3.00000000000000 );
        }
    }
    {
        // AcDbRotatedDimension object modified
        {
            IGeneralDimensionPtr generalDimension2 = rotateddimension2->GetGeneralDimension();
            generalDimension2->put_TextRotation( 0.50000000000000 );
        }
    }
    {
        // AcDbRotatedDimension object modified
            IGeneralDimensionPtr generalDimension1 = rotateddimension2->GetGeneralDimension();
        generalDimension1->put_Color( pConnection->m_IwApp->GetColorByIndex( 1 ) );
        IGeneralDimensionPtr generalDimension2 = rotateddimension2->GetGeneralDimension();
        IDimensionStyleUserDataPtr dimensionStyle3 = generalDimension2->GetDimensionStyleUserData();
        IDimensionStyleFitOptionsPtr fitOptions4 = dimensionStyle3->GetDimensionStyleFitOptions();
        fitOptions4->put_FitGeometry( iwDimensionFitGeometry_TextAndArrows );
        fitOptions4->put_FitGeometry( iwDimensionFitGeometry_KeepTextBetweenExtensionLines );
        fitOptions4->SetDimensionScale( iwDimensionScale_UseScaleFactor, 2.00000000000000 );
        IGeneralDimensionPtr generalDimension5 = rotateddimension2->GetGeneralDimension();
        double x6, y6;
        generalDimension5->GetTextPosition( &x6, &y6 );
        generalDimension5->SetTextPosition( 55.00000000000000, y6 );
        double x7, y7;
        generalDimension5->GetTextPosition( &x7, &y7 );
        generalDimension5->SetTextPosition( x7, -20.00000000000000 );
        generalDimension5->put_TextOverride( L"<> \\A1;typ." );
        IDimensionStyleUserDataPtr dimensionStyle8 = generalDimension5->GetDimensionStyleUserData();
        IDimensionStyleTextOptionsPtr textOptions9 = dimensionStyle8->GetDimensionStyleTextOptions();
        textOptions9->put_Height( 5.00000000000000 );
        textOptions9->put_Alignment( iwDimensionTextAlignment_AlignHorizontally );
        textOptions9->put_Alignment( iwDimensionTextAlignment_AlignWithDimensionLines );
    }
    {
        // AcDbRotatedDimension object modified
        {
            IGeneralDimensionPtr generalDimension2 = rotateddimension2->GetGeneralDimension();
            IDimensionStyleUserDataPtr dimensionStyle3 = generalDimension2->GetDimensionStyleUserData();
            IDimensionStyleAngularDimensionOptionsPtr angularDimensionOptions4 = dimensionStyle3->GetDimensionStyleAngularDimensionOptions();
            angularDimensionOptions4->put_HideTrailingZeroes( true );
            IGeneralDimensionPtr generalDimension5 = rotateddimension2->GetGeneralDimension();
            IDimensionStyleUserDataPtr dimensionStyle6 = generalDimension5->GetDimensionStyleUserData();
            IDimensionStyleDualDimensionOptionsPtr dualDimensionOptions7 = dimensionStyle6->GetDimensionStyleDualDimensionOptions();
            dualDimensionOptions7->put_Show( true );
            dualDimensionOptions7->put_Suffix( L" in" );
            IGeneralDimensionPtr generalDimension8 = rotateddimension2->GetGeneralDimension();
            IDimensionStyleUserDataPtr dimensionStyle9 = generalDimension8->GetDimensionStyleUserData();
            IDimensionStyleLineOptionsPtr lineOptions10 = dimensionStyle9->GetDimensionStyleLineOptions();
            lineOptions10->put_DimensionLineStyle( L"DASHED" );
            lineOptions10->put_DimensionLineLineWeight( iwLnWt_ByLayer );
            lineOptions10->put_DimensionLineColor( pConnection->m_IwApp->GetColorByIndex( 2 ) );
            lineOptions10->put_HideDimensionLine2( true );
            lineOptions10->put_HideDimensionLine2( false );
            lineOptions10->SetExtensionLineFixedLength(false, 1.25000000000000);
            IGeneralDimensionPtr generalDimension11 = rotateddimension2->GetGeneralDimension();
            IDimensionStyleUserDataPtr dimensionStyle12 = generalDimension11->GetDimensionStyleUserData();
            IDimensionStyleLinearDimensionOptionsPtr linearDimensionOptions13 = dimensionStyle12->GetDimensionStyleLinearDimensionOptions();
            linearDimensionOptions13->put_Precision( iwUnitPrecision_3 );
            linearDimensionOptions13->put_DecimalSeparator( iwLinearDimensionDecimalSeparator_Space );
            linearDimensionOptions13->put_Prefix( L"~" );
            IGeneralDimensionPtr generalDimension14 = rotateddimension2->GetGeneralDimension();
            IDimensionStyleUserDataPtr dimensionStyle15 = generalDimension14->GetDimensionStyleUserData();
            IDimensionStyleToleranceOptionsPtr toleranceOptions16 = dimensionStyle15->GetDimensionStyleToleranceOptions();
            toleranceOptions16->put_Calculation( iwToleranceCalculation_Basic );
            toleranceOptions16->put_MaximumValue( 0.10000000000000 );
        }
    }
    {
        // AcDbRadialDimension object modified
        {
            IGeneralDimensionPtr generalDimension2 = radialdimension3->GetGeneralDimension();
            IDimensionStyleUserDataPtr dimensionStyle3 = generalDimension2->GetDimensionStyleUserData();
            IDimensionStyleRadialDiameterDimensionOptionsPtr radialDiameterDimensionOptions4 = dimensionStyle3->GetDimensionStyleRadialDiameterDimensionOptions();
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
            IGeneralDimensionPtr generalDimension2 = arclengthdimension4->GetGeneralDimension();
            IDimensionStyleUserDataPtr dimensionStyle3 = generalDimension2->GetDimensionStyleUserData();
            IDimensionStyleAngularDimensionOptionsPtr angularDimensionOptions4 = dimensionStyle3->GetDimensionStyleAngularDimensionOptions();
            angularDimensionOptions4->put_Format( iwDimensionStyleAngleFormat_Radians );
            angularDimensionOptions4->put_HideLeadingZeroes( true );
            arclengthdimension4->put_ArcSymbolType( iwArcSymbolType_None );
        }
    }
    {
        // AcDbRadialDimensionLarge object modified
        {
            IGeneralDimensionPtr generalDimension2 = joggeddimension5->GetGeneralDimension();
            IDimensionStyleUserDataPtr dimensionStyle3 = generalDimension2->GetDimensionStyleUserData();
            IDimensionStyleRadialDiameterDimensionOptionsPtr radialDiameterDimensionOptions4 = dimensionStyle3->GetDimensionStyleRadialDiameterDimensionOptions();
            radialDiameterDimensionOptions4->put_RadiusDimensionJogAngle( 0.75000000000000 );
            double x5, y5, z5;
            joggeddimension5->GetOverrideCenterPoint( &x5, &y5, &z5 );
            joggeddimension5->SetOverrideCenterPoint( x5, 21.50000000000000, z5 );
            double x6, y6, z6;
            joggeddimension5->GetJogPoint( &x6, &y6, &z6 );
            joggeddimension5->SetJogPoint( 17.00000000000000, y6, z6 );
        }
    }
    {
        {
            IGeneralDimensionPtr generalDimension2 = radialdimension3->GetGeneralDimension();
            IDimensionStyleUserDataPtr dimensionStyle3 = generalDimension2->GetDimensionStyleUserData();
            IDimensionStyleTextOptionsPtr textOptions4 = dimensionStyle3->GetDimensionStyleTextOptions();
            textOptions4->put_FillColor( pConnection->m_IwApp->GetColorByIndex( 8 ) );
        }
    }
