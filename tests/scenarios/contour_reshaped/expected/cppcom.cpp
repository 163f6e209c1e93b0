
    IPolyLinePtr polyline1;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 8 );
    long rgIndices1;
    rgIndices1 = -1;
    double x, y;
    x=0; y=0;
    rgIndices1=0;
    SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
    rgIndices1=1;
    SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
    x=40; y=0;
    rgIndices1=2;
    SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
    rgIndices1=3;
    SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
    x=40; y=30.5;
    rgIndices1=4;
    SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
    rgIndices1=5;
    SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
    x=0; y=30.5;
    rgIndices1=6;
    SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
    rgIndices1=7;
    SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );

        polyline1 = iwSketchManager->InsertPolyline2D( variant1, true);
    }
    polyline1->SetSegmentAngle( 1, 1.5708 );
    polyline1->SetSegmentAngle( 3, -3.14159 );
    polyline1->SetSegmentStartWidth( 0, 0.00000000000000 );
    polyline1->SetSegmentEndWidth( 0, 0.50000000000000 );
    polyline1->SetSegmentStartWidth( 1, 0.50000000000000 );
    polyline1->SetSegmentEndWidth( 1, 0.50000000000000 );
    polyline1->SetSegmentStartWidth( 2, 0.00000000000000 );
    polyline1->SetSegmentEndWidth( 2, 0.00000000000000 );
    polyline1->SetSegmentStartWidth( 3, 0.00000000000000 );
    polyline1->SetSegmentEndWidth( 3, 0.00000000000000 );

    IPolyLinePtr polyline2;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 4 );
    long rgIndices1;
    rgIndices1 = -1;
    double x, y;
    x=60; y=0;
    rgIndices1=0;
    SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
    rgIndices1=1;
    SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
    x=80; y=45.25;
    rgIndices1=2;
    SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
    rgIndices1=3;
    SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );

        polyline2 = iwSketchManager->InsertPolyline2D( variant1, false);
    }
    polyline2->put_GlobalWidth( 1.25000000000000 );
    ILinePtr line3;
    {
        line3 = iwSketchManager->InsertLine( 80.00000000000000, 20.00000000000000, 0.00000000000000, 90.00000000000000, 20.00000000000000, 0.00000000000000 );
    }
    ICircleArcPtr circlearc4;
    {
        circlearc4 = iwSketchManager->InsertArc( 90.00000000000000, 25.00000000000000, 0.00000000000000, 5.00000000000000, 0.00000000000000, 1.50000000000000 );
    }
    IPolyLinePtr polyline5;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 4 );
        long rgIndices1;
        rgIndices1 = -1;
        double x, y;
        x=95.00000000000000; y=25.00000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=95.00000000000000; y=40.00000000000000;
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );

        polyline5=iwSketchManager->InsertPolyline2D( variant1, false);
    }
    ICirclePtr circle6;
    {
        circle6 = iwSketchManager->InsertCircle( 90.00000000000000, 25.00000000000000, 0.00000000000000, 2.00000000000000 );
    }
    IPolyLine3DPtr polyline3d7;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 9 );
        long rgIndices1;
        rgIndices1 = -1;
        double x_1, y_1, z_1;
        x_1=0.00000000000000; y_1=60.00000000000000; z_1=1.00000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=20.00000000000000; y_1=60.00000000000000; z_1=2.00000000000000;
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=20.00000000000000; y_1=80.00000000000000; z_1=3.00000000000000;
        rgIndices1=6;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=7;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=8;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );

        polyline3d7 = iwSketchManager->InsertPolyline3D( variant1, false );
    }
    {
        polyline1->Fit();
    }
    {
        polyline1->Decurve();
    }
    {
        polyline1->Spline();
    }
    {
        polyline2->JoinLine(line3);
        polyline2->JoinCircleArc(circlearc4);
        polyline2->JoinPolyLine(polyline5);
    }
    {
        polyline1->AddVertexAfter( 1, 40, 12.25 );
        polyline1->SetVertexCoordinate( 2, 41, 1e-07 );
        polyline1->SetSegmentStartWidth( 0, 0.25 );
        polyline1->SetSegmentEndWidth( 0, 0.75 );
        polyline1->Straighten( 1, 3 );
        IPolyLinePtr splittedPolyline1;
        polyline1->Split( 2, &splittedPolyline1 );
    }
    {
        polyline3d7->AddVertexAfter( 0, 10, 60, 1.5 );
        polyline3d7->SetVertexCoordinate( 1, 10, 61, 1.5 );
        IPolyLine3DPtr splittedPolyline3D1;
        polyline3d7->Split( 2, &splittedPolyline3D1 );
    }
    {
        polyline3d7->AddVertexAfter( 1, 20, 70, 2.5 );
        polyline3d7->DeleteVertex( 0 );
    }
    {
        iwObjectType_e type1;
        IPolyLinePtr polyline8 = pConnection->m_IwApp->GetActiveDocument()->GetObjectByHandle(L"70", &type1);
        polyline8->Spline();
    }
    IReferenceImagePtr referenceimage9;
    {
        referenceimage9 = iwSketchManager->InsertPicture( L"C:\site\aerial.png", 300.00000000000000, 20.00000000000000, 0.00000000000000, 0.37500000000000, 1.50000000000000 );
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 8 );
        long rgIndices1;
        rgIndices1 = -1;
        double x, y;
        x=300; y=20;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=340.5; y=20;
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=340.5; y=50;
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=300; y=50;
        rgIndices1=6;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=7;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );

        referenceimage9->SetClipBoundary( variant1 );

    }
    {
        referenceimage9->RemoveClipBoundary();
    }
