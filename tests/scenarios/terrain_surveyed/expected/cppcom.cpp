    IPolyLinePtr polyline1;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 6 );
        long rgIndices1;
        rgIndices1 = -1;
        double x, y;
        x=0.00000000000000; y=0.00000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=120.50000000000000; y=0.00000000000000;
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );
        x=120.50000000000000; y=80.00000000000000;
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );

        polyline1=iwSketchManager->InsertPolyline2D( variant1, true);
    }
    IPolyLinePtr polyline2;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 2 );
        long rgIndices1;
        rgIndices1 = -1;
        double x, y;
        x=1.00000000000000; y=2.00000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y) );

        polyline2=iwSketchManager->InsertPolyline2D( variant1, false);
    }
    IPolyLine3DPtr polyline3d3;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 9 );
        long rgIndices1;
        rgIndices1 = -1;
        double x_1, y_1, z_1;
        x_1=0.00000000000000; y_1=0.00000000000000; z_1=1.50000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=10.00000000000000; y_1=4.00000000000000; z_1=1.00000000000000;
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=20.00000000000000; y_1=5.00000000000000; z_1=0.25000000000000;
        rgIndices1=6;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=7;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=8;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );

        polyline3d3 = iwSketchManager->InsertPolyline3D( variant1, true );
    }
    ISplinePtr spline4;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 9 );
        long rgIndices1;
        rgIndices1 = -1;
        double x_1, y_1, z_1;
        x_1=0.00000000000000; y_1=0.00000000000000; z_1=0.00000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=5.00000000000000; y_1=5.00000000000000; z_1=0.00000000000000;
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=10.00000000000000; y_1=0.00000000000000; z_1=0.00000000000000;
        rgIndices1=6;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=7;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=8;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );

        spline4 = iwSketchManager->InsertSpline( variant1, false, 1.00000000000000, 0.50000000000000, 0.00000000000000, 0.00000000000000, -1.00000000000000, 0.12500000000000 );
        spline4->put_FitTolerance( 0.01000000000000 );
    }
    IRichLinePtr richline5;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 6 );
        long rgIndices1;
        rgIndices1 = -1;
        double x_1, y_1, z_1;
        x_1=0.00000000000000; y_1=10.00000000000000; z_1=0.00000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=50.00000000000000; y_1=10.00000000000000; z_1=0.00000000000000;
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );

        richline5 = iwSketchManager->InsertRichLine( variant1, iwRichLineJustification_Zero, 7.50000000000000, L"STANDARD", false );
    }
    IRichLinePtr richline6;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 9 );
        long rgIndices1;
        rgIndices1 = -1;
        double x_1, y_1, z_1;
        x_1=0.00000000000000; y_1=20.00000000000000; z_1=0.00000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=50.00000000000000; y_1=20.00000000000000; z_1=0.00000000000000;
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=50.00000000000000; y_1=30.00000000000000; z_1=0.00000000000000;
        rgIndices1=6;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=7;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=8;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );

        richline6 = iwSketchManager->InsertRichLine( variant1, iwRichLineJustification_Bottom, 1.00000000000000, L"Road", true );
    }
    IFacePtr face7;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 12 );
        long rgIndices1;
        rgIndices1 = -1;
        double x_1, y_1, z_1;
        x_1=0.00000000000000; y_1=0.00000000000000; z_1=0.00000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=4.00000000000000; y_1=0.00000000000000; z_1=0.00000000000000;
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=4.00000000000000; y_1=3.00000000000000; z_1=1.00000000000000;
        rgIndices1=6;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=7;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=8;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=0.00000000000000; y_1=3.00000000000000; z_1=1.00000000000000;
        rgIndices1=9;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=10;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=11;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );

         face7 = iwSketchManager->InsertFace(
         variant1,
         true,
         false,
         true ,false );
    }
    IPolygonMeshPtr polygonmesh8;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 18 );
        long rgIndices1;
        rgIndices1 = -1;
        double x_1, y_1, z_1;
        x_1=0.00000000000000; y_1=0.00000000000000; z_1=1.50000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=10.00000000000000; y_1=0.00000000000000; z_1=2.00000000000000;
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=20.00000000000000; y_1=0.00000000000000; z_1=2.25000000000000;
        rgIndices1=6;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=7;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=8;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=0.00000000000000; y_1=10.00000000000000; z_1=1.00000000000000;
        rgIndices1=9;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=10;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=11;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=10.00000000000000; y_1=10.00000000000000; z_1=3.12500000000000;
        rgIndices1=12;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=13;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=14;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=20.00000000000000; y_1=10.00000000000000; z_1=2.00000000000000;
        rgIndices1=15;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=16;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=17;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );

        polygonmesh8 = iwSketchManager->InsertPolygonMesh( 2, 3, variant1 );
        polygonmesh8->put_MClosed( true );
        polygonmesh8->put_NClosed( true );
    }
    IPolygonMeshPtr polygonmesh9;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 0 );
        long rgIndices1;
        rgIndices1 = -1;
        double x_1, y_1, z_1;

        polygonmesh9 = iwSketchManager->InsertPolygonMesh( 1, 1, variant1 );
    }
    IPolyFaceMeshPtr polyfacemesh10;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 12 );
        VARIANT FaceVerticesCountLongArray2;
        FaceVerticesCountLongArray2.vt = ( VT_ARRAY | VT_I4 );
        FaceVerticesCountLongArray2.parray = SafeArrayCreateVector( VT_I4, 0, 2 );
        VARIANT FaceVerticesLongArray3;
        FaceVerticesLongArray3.vt = ( VT_ARRAY | VT_I4 );
        FaceVerticesLongArray3.parray = SafeArrayCreateVector( VT_I4, 0, 7 );
        long rgIndices1;
        rgIndices1 = -1;
        double x_1, y_1, z_1;
        x_1=0.00000000000000; y_1=0.00000000000000; z_1=0.00000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=4.00000000000000; y_1=0.00000000000000; z_1=0.00000000000000;
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=4.00000000000000; y_1=3.00000000000000; z_1=0.00000000000000;
        rgIndices1=6;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=7;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=8;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=0.00000000000000; y_1=3.00000000000000; z_1=1.00000000000000;
        rgIndices1=9;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=10;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=11;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );

        long rgIndices2;
        rgIndices2 = 0;
        int val2;
        val2 = 4;
        SafeArrayPutElement( FaceVerticesCountLongArray2.parray, &rgIndices2, (int*)&(val2) );
        rgIndices2++;
        val2 = 3;
        SafeArrayPutElement( FaceVerticesCountLongArray2.parray, &rgIndices2, (int*)&(val2) );
        rgIndices2++;

        long rgIndices3;
        rgIndices3 = 0;
        int val3;
        val3 = 1;
        SafeArrayPutElement( FaceVerticesLongArray3.parray, &rgIndices3, (int*)&(val3) );
        rgIndices3++;
        val3 = 2;
        SafeArrayPutElement( FaceVerticesLongArray3.parray, &rgIndices3, (int*)&(val3) );
        rgIndices3++;
        val3 = 3;
        SafeArrayPutElement( FaceVerticesLongArray3.parray, &rgIndices3, (int*)&(val3) );
        rgIndices3++;
        val3 = 4;
        SafeArrayPutElement( FaceVerticesLongArray3.parray, &rgIndices3, (int*)&(val3) );
        rgIndices3++;
        val3 = 1;
        SafeArrayPutElement( FaceVerticesLongArray3.parray, &rgIndices3, (int*)&(val3) );
        rgIndices3++;
        val3 = -2;
        SafeArrayPutElement( FaceVerticesLongArray3.parray, &rgIndices3, (int*)&(val3) );
        rgIndices3++;
        val3 = 3;
        SafeArrayPutElement( FaceVerticesLongArray3.parray, &rgIndices3, (int*)&(val3) );
        rgIndices3++;

        polyfacemesh10 = iwSketchManager->InsertPolyFaceMesh( 4, variant1, FaceVerticesCountLongArray2, FaceVerticesLongArray3 );
    }
    ISolidPtr solid11;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 9 );
        long rgIndices1;
        rgIndices1 = -1;
        double x_1, y_1, z_1;
        x_1=0.00000000000000; y_1=0.00000000000000; z_1=0.00000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=2.00000000000000; y_1=0.00000000000000; z_1=0.00000000000000;
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=0.00000000000000; y_1=2.00000000000000; z_1=0.00000000000000;
        rgIndices1=6;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=7;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=8;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );

        solid11 = iwSketchManager->InsertSolid( variant1 );
    }
    ITracePtr trace12;
    {
        VARIANT variant1;
        variant1.vt = ( VT_ARRAY | VT_R8 );
        variant1.parray = SafeArrayCreateVector( VT_R8, 0, 12 );
                long rgIndices1;
        rgIndices1 = -1;
        double x_1, y_1, z_1;
        x_1=0.00000000000000; y_1=0.00000000000000; z_1=0.00000000000000;
        rgIndices1=0;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=1;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=2;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=8.00000000000000; y_1=0.00000000000000; z_1=0.00000000000000;
        rgIndices1=3;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=4;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=5;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=0.00000000000000; y_1=1.00000000000000; z_1=0.00000000000000;
        rgIndices1=6;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=7;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=8;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );
        x_1=8.00000000000000; y_1=1.00000000000000; z_1=0.00000000000000;
        rgIndices1=9;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(x_1) );
        rgIndices1=10;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(y_1) );
        rgIndices1=11;
        SafeArrayPutElement( variant1.parray, &rgIndices1, (double*)&(z_1) );

        trace12=iwSketchManager->InsertTrace( variant1 );
        trace12->put_Thickness( 0.25000000000000 );
    }
