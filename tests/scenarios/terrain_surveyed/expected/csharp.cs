            PolyLine polyline1;
            {
                polyline1 = iwSketchManager.InsertPolyline2D(
                 new double[]{0.00000000000000,0.00000000000000,120.50000000000000,0.00000000000000,120.50000000000000,80.00000000000000},
                 true );
            }
            PolyLine polyline2;
            {
                polyline2 = iwSketchManager.InsertPolyline2D(
                 new double[]{1.00000000000000,2.00000000000000},
                 false );
            }
            PolyLine3D polyline3d3;
            {
                polyline3d3 = iwSketchManager.InsertPolyline3D(
                 new double[]{0.00000000000000,0.00000000000000,1.50000000000000,10.00000000000000,4.00000000000000,1.00000000000000,20.00000000000000,5.00000000000000,0.25000000000000},
                 true );
            }
            Spline spline4;
            {
                spline4 = iwSketchManager.InsertSpline(
                 new double[]{0.00000000000000,0.00000000000000,0.00000000000000,5.00000000000000,5.00000000000000,0.00000000000000,10.00000000000000,0.00000000000000,0.00000000000000}, 
                 false, 
                 1.00000000000000, 
                 0.50000000000000, 
                 0.00000000000000, 
                 0.00000000000000, 
                 -1.00000000000000, 
                 0.12500000000000 );
                spline4.FitTolerance = 0.01000000000000;
            }
            RichLine richline5;
            {
                richline5 = iwSketchManager.InsertRichLine(
                 new double[]{0.00000000000000,10.00000000000000,0.00000000000000,50.00000000000000,10.00000000000000,0.00000000000000},
                 iwRichLineJustification_e.iwRichLineJustification_Zero,
                 7.50000000000000,
                 "STANDARD",
                 false );
            }
            RichLine richline6;
            {
                richline6 = iwSketchManager.InsertRichLine(
                 new double[]{0.00000000000000,20.00000000000000,0.00000000000000,50.00000000000000,20.00000000000000,0.00000000000000,50.00000000000000,30.00000000000000,0.00000000000000},
                 iwRichLineJustification_e.iwRichLineJustification_Bottom,
                 1.00000000000000,
                 "Road",
                 true );
            }
            Face face7;
            {
                face7 = iwSketchManager.InsertFace(
                 new double[]{0.00000000000000,0.00000000000000,0.00000000000000,4.00000000000000,0.00000000000000,0.00000000000000,4.00000000000000,3.00000000000000,1.00000000000000,0.00000000000000,3.00000000000000,1.00000000000000},
                 true,
                 false,
                 true,
                 false );
            }
            PolygonMesh polygonmesh8;
            {
                polygonmesh8 = iwSketchManager.InsertPolygonMesh(
                 2, 
                 3, 
                 new double[]{0.00000000000000,0.00000000000000,1.50000000000000,10.00000000000000,0.00000000000000,2.00000000000000,20.00000000000000,0.00000000000000,2.25000000000000,0.00000000000000,10.00000000000000,1.00000000000000,10.00000000000000,10.00000000000000,3.12500000000000,20.00000000000000,10.00000000000000,2.00000000000000} );
                polygonmesh8.MClosed = true;
                polygonmesh8.NClosed = true;
            }
            PolygonMesh polygonmesh9;
            {
                polygonmesh9 = iwSketchManager.InsertPolygonMesh(
                 1, 
                 1, 
                 new double[]{} );
            }
            PolyFaceMesh polyfacemesh10;
            {
                polyfacemesh10 = iwSketchManager.InsertPolyFaceMesh(
                 4, 
                 new double[]{0.00000000000000,0.00000000000000,0.00000000000000,4.00000000000000,0.00000000000000,0.00000000000000,4.00000000000000,3.00000000000000,0.00000000000000,0.00000000000000,3.00000000000000,1.00000000000000}, 
                 new int[] {4,3}, 
                 new int[] {1,2,3,4,1,-2,3});
            }
            Solid solid11;
            {
                solid11 = iwSketchManager.InsertSolid(
                 new double[]{0.00000000000000,0.00000000000000,0.00000000000000,2.00000000000000,0.00000000000000,0.00000000000000,0.00000000000000,2.00000000000000,0.00000000000000} );
            }
            Trace trace12;
            {
                trace12 = iwSketchManager.InsertTrace(
                 new double[]{0.00000000000000,0.00000000000000,0.00000000000000,8.00000000000000,0.00000000000000,0.00000000000000,0.00000000000000,1.00000000000000,0.00000000000000,8.00000000000000,1.00000000000000,0.00000000000000} );
                trace12.Thickness = 0.25000000000000;
            }
