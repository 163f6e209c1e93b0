    ILayerPtr layer1;
    {
        ILayerManagerPtr iwLayerManager1 = iwDoc->GetLayerManager();
        iwCreateObjectResult_e iwCreateObjectResult1;
        iwLayerManager1->CreateLayer( L"Holes", &layer1, &iwCreateObjectResult1 );
    }
    IPolyLinePtr polyline2;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 14 );
        long rgIndices1;
        rgIndices1 = -1;
        double x, y;
        x=0.00000000000000; y=0.00000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=40.00000000000000; y=0.00000000000000;
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=40.00000000000000; y=30.00000000000000;
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=20.00000000000000; y=45.00000000000000;
        rgIndices1=6;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=7;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=0.00000000000000; y=35.00000000000000;
        rgIndices1=8;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=9;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=0.00000000000000; y=30.00000000000000;
        rgIndices1=10;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=11;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=0.00000000000000; y=0.00000000000000;
        rgIndices1=12;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=13;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );

        polyline2=iwSketchManager->InsertPolyline2D( variant1, false);
    }
    ICirclePtr circle3;
    {
        circle3 = iwSketchManager->InsertCircle( 20.00000000000000, 20.00000000000000, 0.00000000000000, 6.25000000000000 );
        {
            circle3->put_Layer( L"Holes" );
        }
    }
    ICirclePtr circle4;
    ICirclePtr circle5;
    {
        circle4 = iwSketchManager->InsertCircle( 30.00000000000000, 10.00000000000000, 0.00000000000000, 6.25000000000000 );
        circle5 = iwSketchManager->InsertCircle( 10.00000000000000, 10.00000000000000, 0.00000000000000, 6.25000000000000 );
    }
    ICirclePtr circle6;
    {
        circle6 = iwSketchManager->InsertCircle( 5.00000000000000, 5.00000000000000, 213.36000000000001, 10.00000000000000 );
    }
    ISimpleNotePtr simplenote7;
    {
         simplenote7=iwSketchManager->InsertSimpleNote( 5.00000000000000, -30.00000000000000, 0.00000000000000, 2.50000000000000, 0.00000000000000, L"Ø 12,5 "H7"
(4x)");
        simplenote7->SetAlignmentPoint( 0.00000000000000, 0.00000000000000, 0.00000000000000 );
        simplenote7->SetPosition( 5.00000000000000, -30.00000000000000, 0.00000000000000 );
    }
    {
        // AcDbCircle object modified
        {
            double X1;
            double Y1;
            double Z1;
            circle3->GetCenter( &X1, &Y1, &Z1 );
            Y1 = 18.50000000000000;
            circle3->SetCenter( X1, Y1, Z1 );
            
            circle3->put_Radius( 7.12500000000000 );
        }
    }
    ICircleArcPtr circlearc8;
    {
        circlearc8 = iwSketchManager->InsertArc( 0.00000000000000, 0.00000000000000, 0.00000000000000, 4.00000000000000, 0.50000000000000, 2.25000000000000 );
    }
