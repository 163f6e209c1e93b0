
    iwPolyLine_ptr iwpolyline1;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

    Coordinates1.add(0);Coordinates1.add(0);
    Coordinates1.add(40);Coordinates1.add(0);
    Coordinates1.add(40);Coordinates1.add(30.5);
    Coordinates1.add(0);Coordinates1.add(30.5);

        iwSketchManager->InsertPolyline2D( Coordinates1, true, &iwpolyline1 );
    }
    bool bRet2 = false;
    iwpolyline1->SetSegmentAngle( 1, 1.5708, &bRet2 );
    bool bRet3 = false;
    iwpolyline1->SetSegmentAngle( 3, -3.14159, &bRet3 );
    bool bRetVal4 = false;
    iwpolyline1->SetSegmentStartWidth( 0, 0.00000000000000, &bRetVal4 );
    bool bRetVal5 = false;
    iwpolyline1->SetSegmentEndWidth( 0, 0.50000000000000, &bRetVal5 );
    bool bRetVal6 = false;
    iwpolyline1->SetSegmentStartWidth( 1, 0.50000000000000, &bRetVal6 );
    bool bRetVal7 = false;
    iwpolyline1->SetSegmentEndWidth( 1, 0.50000000000000, &bRetVal7 );
    bool bRetVal8 = false;
    iwpolyline1->SetSegmentStartWidth( 2, 0.00000000000000, &bRetVal8 );
    bool bRetVal9 = false;
    iwpolyline1->SetSegmentEndWidth( 2, 0.00000000000000, &bRetVal9 );
    bool bRetVal10 = false;
    iwpolyline1->SetSegmentStartWidth( 3, 0.00000000000000, &bRetVal10 );
    bool bRetVal11 = false;
    iwpolyline1->SetSegmentEndWidth( 3, 0.00000000000000, &bRetVal11 );

    iwPolyLine_ptr iwpolyline2;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

    Coordinates1.add(60);Coordinates1.add(0);
    Coordinates1.add(80);Coordinates1.add(45.25);

        iwSketchManager->InsertPolyline2D( Coordinates1, false, &iwpolyline2 );
    }
    iwpolyline2->put_GlobalWidth( 1.25000000000000 );
    iwLine_ptr iwline3;
    {
        iwSketchManager->InsertLine( 80.00000000000000, 20.00000000000000, 0.00000000000000, 90.00000000000000, 20.00000000000000, 0.00000000000000, &iwline3 );
    }
    iwCircleArc_ptr iwcirclearc4;
    {
        iwSketchManager->InsertArc( 90.00000000000000, 25.00000000000000, 0.00000000000000, 5.00000000000000, 0.00000000000000, 1.50000000000000, &iwcirclearc4 );
    }
    iwPolyLine_ptr iwpolyline5;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(95.00000000000000);Coordinates1.add(25.00000000000000);
        Coordinates1.add(95.00000000000000);Coordinates1.add(40.00000000000000);

        iwSketchManager->InsertPolyline2D( Coordinates1, false, &iwpolyline5 );
    }
    iwCircle_ptr iwcircle6;
    {
        iwSketchManager->InsertCircle( 90.00000000000000, 25.00000000000000, 0.00000000000000, 2.00000000000000, &iwcircle6 );
    }
    iwPolyLine3D_ptr iwpolyline3d7;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(0.00000000000000);Coordinates1.add(60.00000000000000);Coordinates1.add(1.00000000000000);
        Coordinates1.add(20.00000000000000);Coordinates1.add(60.00000000000000);Coordinates1.add(2.00000000000000);
        Coordinates1.add(20.00000000000000);Coordinates1.add(80.00000000000000);Coordinates1.add(3.00000000000000);

        iwSketchManager->InsertPolyline3D( Coordinates1, false, &iwpolyline3d7 );
    }
    {
        bool Success1;
        iwpolyline1->Fit( &Success1 );
    }
    {
        bool Success1;
        iwpolyline1->Decurve( &Success1 );
    }
    {
        bool Success1;
        iwpolyline1->Spline( &Success1 );
    }
    {
        bool Success1;
        iwpolyline2->JoinLine(iwline3, &Success1);
        bool Success2;
        iwpolyline2->JoinCircleArc(iwcirclearc4, &Success2);
        bool Success3;
        iwpolyline2->JoinPolyLine(iwpolyline5, &Success3);
    }
    {
        bool Success1;
        iwpolyline1->AddVertexAfter( 1, 40, 12.25, &Success1 );
        bool Success2;
        iwpolyline1->SetVertexCoordinate( 2, 41, 1e-07, &Success2 );
        bool Success3;
        iwpolyline1->SetSegmentStartWidth( 0, 0.25 );
        iwpolyline1->SetSegmentEndWidth( 0, 0.75 );
        bool Success4;
        iwpolyline1->Straighten( 1, 3, &Success4 );
        bool Success5;
        iwPolyLine_ptr splittedPolyline5;
        iwpolyline1->Split( 2, &splittedPolyline5, &Success5 );
    }
    {
        bool Success1;
        iwpolyline3d7->AddVertexAfter( 0, 10, 60, 1.5, &Success1 );
        bool Success2;
        iwpolyline3d7->SetVertexCoordinate( 1, 10, 61, 1.5, &Success2 );
        bool Success3;
        iwPolyLine3D_ptr splittedPolyline3D3;
        iwpolyline3d7->Split( 2, &splittedPolyline3D3, &Success3 );
    }
    {
        bool Success1;
        iwpolyline3d7->AddVertexAfter( 1, 20, 70, 2.5, &Success1 );
        bool Success2;
        iwpolyline3d7->DeleteVertex( 0, &Success2 );
    }
    {
        iwObjectType_e type1;
        iwPolyLine_ptr iwpolyline8;
        iwDoc->GetObjectByHandle(L"70", &type1, &iwpolyline8);
        bool Success2;
        iwpolyline8->Spline( &Success2 );
    }
    iwReferenceImage_ptr iwreferenceimage9;
    {
        iwSketchManager->InsertPicture( L"C:\site\aerial.png", 300.00000000000000, 20.00000000000000, 0.00000000000000, 0.37500000000000, 1.50000000000000, &iwreferenceimage9 );
        bool Success1;
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(300);Coordinates1.add(20);
        Coordinates1.add(340.5);Coordinates1.add(20);
        Coordinates1.add(340.5);Coordinates1.add(50);
        Coordinates1.add(300);Coordinates1.add(50);

        iwreferenceimage9->SetClipBoundary( Coordinates1, &Success1 );

    }
    {
        bool Success1;
        iwreferenceimage9->RemoveClipBoundary( &Success1 );
    }
