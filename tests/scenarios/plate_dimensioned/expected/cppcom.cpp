    ILinePtr line1;
    ILinePtr line2;
    {
        line1 = iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 120.00000000000000, 0.00000000000000, 0.00000000000000 );
        line2 = iwSketchManager->InsertLine( 120.00000000000000, 0.00000000000000, 0.00000000000000, 150.00000000000000, 60.00000000000000, 0.00000000000000 );
    }
    ICirclePtr circle3;
    {
        circle3 = iwSketchManager->InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000 );
    }
    ICircleArcPtr circlearc4;
    {
        circlearc4 = iwSketchManager->InsertArc( 90.00000000000000, 30.00000000000000, 0.00000000000000, 20.00000000000000, 0.00000000000000, 1.57079632679490 );
    }
    IAlignedDimensionPtr aligneddimension5;
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
        x=120.00000000000000; y=0.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z) );

        long rgIndices2;
        rgIndices2 = 0;
        x=150.00000000000000; y=60.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(x) );
        rgIndices2=1;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(y) );
        rgIndices2=2;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(z) );

        long rgIndices3;
        rgIndices3 = 0;
        x=145.00000000000000; y=25.00000000000000; z=0.50000000000000;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(x) );
        rgIndices3=1;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(y) );
        rgIndices3=2;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(z) );

        aligneddimension5 = iwSketchManager->InsertAlignedDimension( variant1, variant2, variant3, L"<> H7" );
        IGeneralDimensionPtr generalDimension4 = aligneddimension5->GetGeneralDimension();
        generalDimension4->put_TextRotation( 0.25000000000000 );
            IGeneralDimensionPtr generalDimension5 = aligneddimension5->GetGeneralDimension();
        generalDimension5->put_Color( pConnection->m_IwApp->GetColorByIndex( 1 ) );
        generalDimension5->put_Layer( L"Dimensions" );
    }
    IRotatedDimensionPtr rotateddimension6;
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

        rotateddimension6 = iwSketchManager->InsertRotatedDimension( variant1, variant2, variant3, L"A\\B", 3.14159265358979 );
        {
            IGeneralDimensionPtr generalDimension4 = rotateddimension6->GetGeneralDimension();
            generalDimension4->put_Layer( L"Dimensions" );
        }
    }
    IOrdinateDimensionPtr ordinatedimension7;
    {
        double x, y, z;
        VARIANT variant1,variant2;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant2.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        variant2.parray = SafeArrayCreateVector( VT_R8, 0, 3);
        long rgIndices1;
        rgIndices1 = 0;
        x=30.00000000000000; y=30.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z) );

        long rgIndices2;
        rgIndices2 = 0;
        x=30.00000000000000; y=80.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(x) );
        rgIndices2=1;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(y) );
        rgIndices2=2;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(z) );

        ordinatedimension7 = iwSketchManager->InsertOrdinateDimension( variant1, variant2, L"", iwOrdinateDimensionMeasure_UseXAxis );
        IGeneralDimensionPtr generalDimension3 = ordinatedimension7->GetGeneralDimension();
        generalDimension3->put_TextRotation( 1.50000000000000 );
        ordinatedimension7->SetOriginPoint( 10.00000000000000, 5.00000000000000, 0.00000000000000 );
    }
    IOrdinateDimensionPtr ordinatedimension8;
    {
        double x, y, z;
        VARIANT variant1,variant2;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant2.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        variant2.parray = SafeArrayCreateVector( VT_R8, 0, 3);
        long rgIndices1;
        rgIndices1 = 0;
        x=90.00000000000000; y=30.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z) );

        long rgIndices2;
        rgIndices2 = 0;
        x=160.00000000000000; y=30.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(x) );
        rgIndices2=1;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(y) );
        rgIndices2=2;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(z) );

        ordinatedimension8 = iwSketchManager->InsertOrdinateDimension( variant1, variant2, L"", iwOrdinateDimensionMeasure_UseYAxis );
    }
    IAngularDimensionPtr angulardimension9;
    {
        double x, y, z;
        VARIANT variant1,variant2,variant3,variant4;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant2.vt = ( VT_ARRAY | VT_R8 );
        variant3.vt = ( VT_ARRAY | VT_R8 );
        variant4.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        variant2.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        variant3.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        variant4.parray = SafeArrayCreateVector( VT_R8, 0, 3);
        long rgIndices1;
        rgIndices1 = 0;
        x=90.12345678900000; y=30.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z) );

        long rgIndices2;
        rgIndices2 = 0;
        x=110.00000000000000; y=30.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(x) );
        rgIndices2=1;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(y) );
        rgIndices2=2;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(z) );

        long rgIndices3;
        rgIndices3 = 0;
        x=90.00000000000000; y=50.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(x) );
        rgIndices3=1;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(y) );
        rgIndices3=2;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(z) );

        long rgIndices4;
        rgIndices4 = 0;
        x=105.00000000000000; y=45.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant4.parray, &rgIndices4, (double*)&(x) );
        rgIndices4=1;
        SafeArrayPutElement( variant4.parray, &rgIndices4, (double*)&(y) );
        rgIndices4=2;
        SafeArrayPutElement( variant4.parray, &rgIndices4, (double*)&(z) );

        angulardimension9 = iwSketchManager->InsertAngularDimension3Point( variant1, variant2, variant3, variant4, L"" );
    }
    IAngularDimensionPtr angulardimension10;
    {
        {
            double x, y, z;
            VARIANT variant1;
            variant1.vt = ( VT_ARRAY | VT_R8 );
            variant1.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        long rgIndices1;
        rgIndices1 = 0;
        x=107.00000000000000; y=47.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z) );

            angulardimension10=iwSketchManager->InsertAngularDimensionArc( circlearc4,variant1, L"");
        }
    }
    IAngularDimensionPtr angulardimension11;
    {
        ICircleArcPtr angulardimension11_associated_arc; angulardimension11_associated_arc = iwSketchManager->InsertArc( 200.00001250000000, 0.00000000000000, 0.00000000000000, 8.33333333330000, 0.10000000000000, 3.04159265358979 );
        {
            double x, y, z;
            VARIANT variant1;
            variant1.vt = ( VT_ARRAY | VT_R8 );
            variant1.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        long rgIndices1;
        rgIndices1 = 0;
        x=200.00000000000000; y=12.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z) );

            angulardimension11=iwSketchManager->InsertAngularDimensionArc( angulardimension11_associated_arc,variant1, L"<>\\P(typ.)");
            angulardimension11_associated_arc->put_Erased(true);
        }
    }
    IAngularDimensionPtr angulardimension12;
    {
        {
            ILinePtr iwLine1,iwLine2;
            double x, y, z;
            VARIANT variant1;
            variant1.vt = ( VT_ARRAY | VT_R8 );
            variant1.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
                long rgIndices1;
        rgIndices1 = 0;
        x=100.00000000000000; y=20.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z) );

            iwLine1 =iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 120.00000000000000, 0.00000000000000, 0.00000000000000);
            iwLine2 = iwSketchManager->InsertLine(  120.00000000000000, 0.00000000000000, 0.00000000000000, 150.00000000000000, 60.00000000000000, 0.00000000000000 );
            angulardimension12=iwSketchManager->InsertAngularDimension2Line( iwLine1, iwLine2, variant1, L"<>" );
        }
    }
    IAngularDimensionPtr angulardimension13;
    {
        {
            ILinePtr iwLine1,iwLine2;
            double x, y, z;
            VARIANT variant1;
            variant1.vt = ( VT_ARRAY | VT_R8 );
            variant1.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
                long rgIndices1;
        rgIndices1 = 0;
        x=15.00000000000000; y=15.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z) );

            iwLine1 =iwSketchManager->InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 120.00000000000000, 0.00000000000000, 0.00000000000000);
            iwLine2 = iwSketchManager->InsertLine(  0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 60.00000000000000, 0.00000000000000 );
            angulardimension13=iwSketchManager->InsertAngularDimension2Line( iwLine1, iwLine2, variant1, L"<>" );
        }
    }
    IAngularDimensionPtr angulardimension14;
    {
        {
            ILinePtr iwLine1,iwLine2;
            double x, y, z;
            VARIANT variant1;
            variant1.vt = ( VT_ARRAY | VT_R8 );
            variant1.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
                long rgIndices1;
        rgIndices1 = 0;
        x=5.00000000000000; y=1.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z) );

            iwLine1 =iwSketchManager->InsertLine( 1.00000000000000, 0.00000000000000, 0.00000000000000, 2.00000000000000, 0.00000000000000, 0.00000000000000);
            iwLine2 = iwSketchManager->InsertLine(  1.00000000000000, 1.00000000000000, 0.00000000000000, 2.00000000000000, 3.00000000000000, 0.00000000000000 );
            angulardimension14=iwSketchManager->InsertAngularDimension2Line( iwLine1, iwLine2, variant1, L"<>" );
        }
    }
    IArcLengthDimensionPtr arclengthdimension15;
    {
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
        x=110.00000000000000; y=30.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z) );

        long rgIndices2;
        rgIndices2 = 0;
        x=90.00000000000000; y=50.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(x) );
        rgIndices2=1;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(y) );
        rgIndices2=2;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(z) );

        long rgIndices3;
        rgIndices3 = 0;
        x=110.00000000000000; y=55.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(x) );
        rgIndices3=1;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(y) );
        rgIndices3=2;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(z) );

            arclengthdimension15=iwSketchManager->InsertArcLengthDimensionPartial( circlearc4,variant1, variant2, variant3, L"");
        }
    }
    IArcLengthDimensionPtr arclengthdimension16;
    {
        ICircleArcPtr arclengthdimension16_associated_arc; arclengthdimension16_associated_arc = iwSketchManager->InsertArc( 200.00001250000000, 0.00000000000000, 0.00000000000000, 8.33333333330000, 0.10000000000000, 3.04159265358979 );
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
        x=110.00000000000000; y=30.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z) );

        long rgIndices2;
        rgIndices2 = 0;
        x=90.00000000000000; y=50.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(x) );
        rgIndices2=1;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(y) );
        rgIndices2=2;
        SafeArrayPutElement( variant2.parray, &rgIndices2, (double*)&(z) );

        long rgIndices3;
        rgIndices3 = 0;
        x=110.00000000000000; y=55.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(x) );
        rgIndices3=1;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(y) );
        rgIndices3=2;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(z) );

            arclengthdimension16=iwSketchManager->InsertArcLengthDimensionPartial( arclengthdimension16_associated_arc,variant1, variant2, variant3, L"");
            arclengthdimension16_associated_arc->put_Erased(true);
        }
    }
    IArcLengthDimensionPtr arclengthdimension17;
    {
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

            arclengthdimension17=iwSketchManager->InsertArcLengthDimension( circlearc4,variant1, L"");
        }
    }
    IArcLengthDimensionPtr arclengthdimension18;
    {
        ICircleArcPtr arclengthdimension18_associated_arc; arclengthdimension18_associated_arc = iwSketchManager->InsertArc( 1.00000000000000, 2.00000000000000, 3.00000000000000, 5.00000000000000, 0.25000000000000, 1.75000000000000 );
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

            arclengthdimension18=iwSketchManager->InsertArcLengthDimension( arclengthdimension18_associated_arc,variant1, L"");
            arclengthdimension18_associated_arc->put_Erased(true);
        }
    }
    IDiameterDimensionPtr diameterdimension19;
    IDiameterDimensionPtr diameterdimension20;
    IDiameterDimensionPtr diameterdimension21;
    IDiameterDimensionPtr diameterdimension22;
    {
        ICirclePtr diameterdimension19_associated_circle; diameterdimension19_associated_circle =iwSketchManager->InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000);
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

            diameterdimension19=iwSketchManager->InsertDiameterDimensionCircle( diameterdimension19_associated_circle, variant1, L"<> H7" );
            diameterdimension19_associated_circle->put_Erased(true);
        }
        ICirclePtr diameterdimension20_associated_circle; diameterdimension20_associated_circle =iwSketchManager->InsertCircle( 0.00000000000000, 0.00000000000000, 0.00000000000000, 5.00000000000000);
        {
            double x, y, z;
            VARIANT variant3;
            variant3.vt = ( VT_ARRAY | VT_R8 );
            variant3.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        long rgIndices3;
        rgIndices3 = 0;
        x=3.00000000000000; y=4.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(x) );
        rgIndices3=1;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(y) );
        rgIndices3=2;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(z) );

            diameterdimension20=iwSketchManager->InsertDiameterDimensionCircle( diameterdimension20_associated_circle, variant3, L"" );
            diameterdimension20_associated_circle->put_Erased(true);
        }
        ICircleArcPtr diameterdimension21_associated_arc; diameterdimension21_associated_arc = iwSketchManager->InsertArc( 90.00000000000000, 30.00000000000000, 0.00000000000000, 20.00000000000000, 0.00000000000000, 1.57079632679490 );
        {
            double x, y, z;
            VARIANT variant5;
            variant5.vt = ( VT_ARRAY | VT_R8 );
            variant5.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        long rgIndices5;
        rgIndices5 = 0;
        x=110.00000000000000; y=30.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(x) );
        rgIndices5=1;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(y) );
        rgIndices5=2;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(z) );

            diameterdimension21=iwSketchManager->InsertDiameterDimensionArc( diameterdimension21_associated_arc,variant5, L"");
            diameterdimension21_associated_arc->put_Erased(true);
        }
        ICircleArcPtr diameterdimension22_associated_arc; diameterdimension22_associated_arc = iwSketchManager->InsertArc( 200.00001250000000, 0.00000000000000, 0.00000000000000, 8.33333333330000, 0.10000000000000, 3.04159265358979 );
        {
            double x, y, z;
            VARIANT variant7;
            variant7.vt = ( VT_ARRAY | VT_R8 );
            variant7.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        long rgIndices7;
        rgIndices7 = 0;
        x=208.50000000000000; y=0.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant7.parray, &rgIndices7, (double*)&(x) );
        rgIndices7=1;
        SafeArrayPutElement( variant7.parray, &rgIndices7, (double*)&(y) );
        rgIndices7=2;
        SafeArrayPutElement( variant7.parray, &rgIndices7, (double*)&(z) );

            diameterdimension22=iwSketchManager->InsertDiameterDimensionArc( diameterdimension22_associated_arc,variant7, L"");
            diameterdimension22_associated_arc->put_Erased(true);
        }
    }
    IRadialDimensionPtr radialdimension23;
    IRadialDimensionPtr radialdimension24;
    IRadialDimensionPtr radialdimension25;
    IRadialDimensionPtr radialdimension26;
    {
        ICirclePtr radialdimension23_associated_circle; radialdimension23_associated_circle =iwSketchManager->InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000);
        {
            double x, y, z;
            VARIANT variant1;
            variant1.vt = ( VT_ARRAY | VT_R8 );
            variant1.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        long rgIndices1;
        rgIndices1 = 0;
        x=30.00000000000000; y=42.50000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z) );

            radialdimension23=iwSketchManager->InsertRadialDimensionCircle( radialdimension23_associated_circle, variant1, L"" );
            radialdimension23_associated_circle->put_Erased(true);
        }
        ICirclePtr radialdimension24_associated_circle; radialdimension24_associated_circle =iwSketchManager->InsertCircle( 175.00000000000000, 30.00000000000000, 0.50000000000000, 4.25000000000000);
        {
            double x, y, z;
            VARIANT variant3;
            variant3.vt = ( VT_ARRAY | VT_R8 );
            variant3.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        long rgIndices3;
        rgIndices3 = 0;
        x=179.25000000000000; y=30.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(x) );
        rgIndices3=1;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(y) );
        rgIndices3=2;
        SafeArrayPutElement( variant3.parray, &rgIndices3, (double*)&(z) );

            radialdimension24=iwSketchManager->InsertRadialDimensionCircle( radialdimension24_associated_circle, variant3, L"R<>" );
            radialdimension24_associated_circle->put_Erased(true);
        }
        ICircleArcPtr radialdimension25_associated_arc; radialdimension25_associated_arc = iwSketchManager->InsertArc( 90.00000000000000, 30.00000000000000, 0.00000000000000, 20.00000000000000, 0.00000000000000, 1.57079632679490 );
        {
            double x, y, z;
            VARIANT variant5;
            variant5.vt = ( VT_ARRAY | VT_R8 );
            variant5.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        long rgIndices5;
        rgIndices5 = 0;
        x=90.00000000000000; y=50.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(x) );
        rgIndices5=1;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(y) );
        rgIndices5=2;
        SafeArrayPutElement( variant5.parray, &rgIndices5, (double*)&(z) );

            radialdimension25=iwSketchManager->InsertRadialDimensionArc( radialdimension25_associated_arc,variant5, L"");
            radialdimension25_associated_arc->put_Erased(true);
        }
        ICircleArcPtr radialdimension26_associated_arc; radialdimension26_associated_arc = iwSketchManager->InsertArc( 200.00001250000000, 0.00000000000000, 0.00000000000000, 8.33333333330000, 0.10000000000000, 3.04159265358979 );
        {
            double x, y, z;
            VARIANT variant7;
            variant7.vt = ( VT_ARRAY | VT_R8 );
            variant7.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        long rgIndices7;
        rgIndices7 = 0;
        x=200.00000000000000; y=8.30000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant7.parray, &rgIndices7, (double*)&(x) );
        rgIndices7=1;
        SafeArrayPutElement( variant7.parray, &rgIndices7, (double*)&(y) );
        rgIndices7=2;
        SafeArrayPutElement( variant7.parray, &rgIndices7, (double*)&(z) );

            radialdimension26=iwSketchManager->InsertRadialDimensionArc( radialdimension26_associated_arc,variant7, L"");
            radialdimension26_associated_arc->put_Erased(true);
        }
    }
    IRadialDimensionPtr radialdimension28;
    {
        ICirclePtr radialdimension28_associated_circle; radialdimension28_associated_circle =iwSketchManager->InsertCircle( 5.00000000000000, 5.00000000000000, 0.00000000000000, 2.00000000000000);
        {
            double x, y, z;
            VARIANT variant1;
            variant1.vt = ( VT_ARRAY | VT_R8 );
            variant1.parray = SafeArrayCreateVector( VT_R8, 0, 3 );
        long rgIndices1;
        rgIndices1 = 0;
        x=7.00000000000000; y=5.00000000000000; z=0.00000000000000;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z) );

            radialdimension28=iwSketchManager->InsertRadialDimensionCircle( radialdimension28_associated_circle, variant1, L"" );
            radialdimension28_associated_circle->put_Erased(true);
        }
    }
    IJoggedDimensionPtr joggeddimension29;
    {
        ICirclePtr joggeddimension29_associated_circle; joggeddimension29_associated_circle =iwSketchManager->InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000);
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

            joggeddimension29=iwSketchManager->InsertJoggedDimensionCircle( joggeddimension29_associated_circle, variant1, variant2, variant3, L"R<>" );
            joggeddimension29_associated_circle->put_Erased(true);
        }
    }
    IJoggedDimensionPtr joggeddimension30;
    {
        ICirclePtr joggeddimension30_associated_circle; joggeddimension30_associated_circle =iwSketchManager->InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000);
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

            joggeddimension30=iwSketchManager->InsertJoggedDimensionCircle( joggeddimension30_associated_circle, variant1, variant2, variant3, L"R<>" );
            joggeddimension30_associated_circle->put_Erased(true);
        }
    }
    IJoggedDimensionPtr joggeddimension31;
    {
        ICircleArcPtr joggeddimension31_associated_arc; joggeddimension31_associated_arc = iwSketchManager->InsertArc( 90.00000000000000, 30.00000000000000, 0.00000000000000, 20.00000000000000, 0.00000000000000, 1.57079632679490 );
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

            joggeddimension31=iwSketchManager->InsertJoggedDimensionArc( joggeddimension31_associated_arc,variant1, variant2, variant3, L"R<>");
            joggeddimension31_associated_arc->put_Erased(true);
        }
    }
    IJoggedDimensionPtr joggeddimension32;
    {
        ICircleArcPtr joggeddimension32_associated_arc; joggeddimension32_associated_arc = iwSketchManager->InsertArc( 200.00001250000000, 0.00000000000000, 0.00000000000000, 8.33333333330000, 0.10000000000000, 3.04159265358979 );
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

            joggeddimension32=iwSketchManager->InsertJoggedDimensionArc( joggeddimension32_associated_arc,variant1, variant2, variant3, L"R<>");
            joggeddimension32_associated_arc->put_Erased(true);
        }
    }
