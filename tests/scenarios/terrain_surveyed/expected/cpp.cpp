    iwPolyLine_ptr iwpolyline1;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(120.50000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(120.50000000000000);Coordinates1.add(80.00000000000000);

        iwSketchManager->InsertPolyline2D( Coordinates1, true, &iwpolyline1 );
    }
    iwPolyLine_ptr iwpolyline2;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(1.00000000000000);Coordinates1.add(2.00000000000000);

        iwSketchManager->InsertPolyline2D( Coordinates1, false, &iwpolyline2 );
    }
    iwPolyLine3D_ptr iwpolyline3d3;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(1.50000000000000);
        Coordinates1.add(10.00000000000000);Coordinates1.add(4.00000000000000);Coordinates1.add(1.00000000000000);
        Coordinates1.add(20.00000000000000);Coordinates1.add(5.00000000000000);Coordinates1.add(0.25000000000000);

        iwSketchManager->InsertPolyline3D( Coordinates1, true, &iwpolyline3d3 );
    }
    iwSpline_ptr iwspline4;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(5.00000000000000);Coordinates1.add(5.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(10.00000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);

        iwSketchManager->InsertSpline( Coordinates1, false, 1.00000000000000, 0.50000000000000, 0.00000000000000, 0.00000000000000, -1.00000000000000, 0.12500000000000, &iwspline4 );
        iwspline4->put_FitTolerance( 0.01000000000000 );
    }
    iwRichLine_ptr iwrichline5;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(0.00000000000000);Coordinates1.add(10.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(50.00000000000000);Coordinates1.add(10.00000000000000);Coordinates1.add(0.00000000000000);

        iwSketchManager->InsertRichLine( Coordinates1, iwRichLineJustification_Zero, 7.50000000000000, L"STANDARD", false, &iwrichline5 );
    }
    iwRichLine_ptr iwrichline6;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(0.00000000000000);Coordinates1.add(20.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(50.00000000000000);Coordinates1.add(20.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(50.00000000000000);Coordinates1.add(30.00000000000000);Coordinates1.add(0.00000000000000);

        iwSketchManager->InsertRichLine( Coordinates1, iwRichLineJustification_Bottom, 1.00000000000000, L"Road", true, &iwrichline6 );
    }
    iwFace_ptr iwface7;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(4.00000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(4.00000000000000);Coordinates1.add(3.00000000000000);Coordinates1.add(1.00000000000000);
        Coordinates1.add(0.00000000000000);Coordinates1.add(3.00000000000000);Coordinates1.add(1.00000000000000);

         iwSketchManager->InsertFace(
         Coordinates1,
         true,
         false,
         true ,false ,&iwface7);
    }
    iwPolygonMesh_ptr iwpolygonmesh8;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(1.50000000000000);
        Coordinates1.add(10.00000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(2.00000000000000);
        Coordinates1.add(20.00000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(2.25000000000000);
        Coordinates1.add(0.00000000000000);Coordinates1.add(10.00000000000000);Coordinates1.add(1.00000000000000);
        Coordinates1.add(10.00000000000000);Coordinates1.add(10.00000000000000);Coordinates1.add(3.12500000000000);
        Coordinates1.add(20.00000000000000);Coordinates1.add(10.00000000000000);Coordinates1.add(2.00000000000000);

        iwSketchManager->InsertPolygonMesh( 2, 3, Coordinates1, &iwpolygonmesh8 );
        iwpolygonmesh8->put_MClosed( true );
        iwpolygonmesh8->put_NClosed( true );
    }
    iwPolygonMesh_ptr iwpolygonmesh9;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();


        iwSketchManager->InsertPolygonMesh( 1, 1, Coordinates1, &iwpolygonmesh9 );
    }
    iwPolyFaceMesh_ptr iwpolyfacemesh10;
    {
        iwDoubleArray Coordinates1;
        iwLongArray FaceVerticesCountLongArray1;
        iwLongArray FaceVerticesLongArray1;

        Coordinates1.clear();
        FaceVerticesCountLongArray1.clear();
        FaceVerticesLongArray1.clear();

        Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(4.00000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(4.00000000000000);Coordinates1.add(3.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(0.00000000000000);Coordinates1.add(3.00000000000000);Coordinates1.add(1.00000000000000);

        FaceVerticesCountLongArray1.add(4);
        FaceVerticesCountLongArray1.add(3);

        FaceVerticesLongArray1.add(1);
        FaceVerticesLongArray1.add(2);
        FaceVerticesLongArray1.add(3);
        FaceVerticesLongArray1.add(4);
        FaceVerticesLongArray1.add(1);
        FaceVerticesLongArray1.add(-2);
        FaceVerticesLongArray1.add(3);

        iwSketchManager->InsertPolyFaceMesh( 4, Coordinates1, FaceVerticesCountLongArray1, FaceVerticesLongArray1, &iwpolyfacemesh10 );
    }
    iwSolid_ptr iwsolid11;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(2.00000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(0.00000000000000);Coordinates1.add(2.00000000000000);Coordinates1.add(0.00000000000000);

        iwSketchManager->InsertSolid( Coordinates1, &iwsolid11 );
    }
    iwTrace_ptr iwtrace12;
    {
        iwDoubleArray Coordinates1;
        Coordinates1.clear();

        Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(8.00000000000000);Coordinates1.add(0.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(0.00000000000000);Coordinates1.add(1.00000000000000);Coordinates1.add(0.00000000000000);
        Coordinates1.add(8.00000000000000);Coordinates1.add(1.00000000000000);Coordinates1.add(0.00000000000000);

        iwSketchManager->InsertTrace( Coordinates1, &iwtrace12 );
        iwtrace12->put_Thickness( 0.25000000000000 );
    }
