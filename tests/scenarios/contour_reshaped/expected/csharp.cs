
            PolyLine polyline1;
            {
                polyline1 = iwSketchManager.InsertPolyline2D( new double[]{0,0,40,0,40,30.5,0,30.5}, true );
            }
            polyline1.SetSegmentAngle( 1, 1.5708 );
            polyline1.SetSegmentAngle( 3, -3.14159 );
            polyline1.SetSegmentStartWidth( 0, 0.00000000000000 );
            polyline1.SetSegmentEndWidth( 0, 0.50000000000000 );
            polyline1.SetSegmentStartWidth( 1, 0.50000000000000 );
            polyline1.SetSegmentEndWidth( 1, 0.50000000000000 );
            polyline1.SetSegmentStartWidth( 2, 0.00000000000000 );
            polyline1.SetSegmentEndWidth( 2, 0.00000000000000 );
            polyline1.SetSegmentStartWidth( 3, 0.00000000000000 );
            polyline1.SetSegmentEndWidth( 3, 0.00000000000000 );

            PolyLine polyline2;
            {
                polyline2 = iwSketchManager.InsertPolyline2D( new double[]{60,0,80,45.25}, false );
            }
            polyline2.GlobalWidth = 1.25000000000000;
            Line line3;
            {
                line3 = iwSketchManager.InsertLine( 80.00000000000000, 20.00000000000000, 0.00000000000000, 90.00000000000000, 20.00000000000000, 0.00000000000000 );
            }
            CircleArc circlearc4;
            {
                circlearc4 = iwSketchManager.InsertArc( 90.00000000000000, 25.00000000000000, 0.00000000000000, 5.00000000000000, 0.00000000000000, 1.50000000000000 );
            }
            PolyLine polyline5;
            {
                polyline5 = iwSketchManager.InsertPolyline2D(
                 new double[]{95.00000000000000,25.00000000000000,95.00000000000000,40.00000000000000},
                 false );
            }
            Circle circle6;
            {
                circle6 = iwSketchManager.InsertCircle( 90.00000000000000, 25.00000000000000, 0.00000000000000, 2.00000000000000 );
            }
            PolyLine3D polyline3d7;
            {
                polyline3d7 = iwSketchManager.InsertPolyline3D(
                 new double[]{0.00000000000000,60.00000000000000,1.00000000000000,20.00000000000000,60.00000000000000,2.00000000000000,20.00000000000000,80.00000000000000,3.00000000000000},
                 false );
            }
            {
                polyline1.Fit();
            }
            {
                polyline1.Decurve();
            }
            {
                polyline1.Spline();
            }
            {
                polyline2.JoinLine(line3);
                polyline2.JoinCircleArc(circlearc4);
                polyline2.JoinPolyLine(polyline5);
            }
            {
                polyline1.AddVertexAfter( 1, 40, 12.25 );
                polyline1.SetVertexCoordinate( 2, 41, 1e-07 );
                polyline1.SetSegmentStartWidth( 0, 0.25 );
                polyline1.SetSegmentEndWidth( 0, 0.75 );
                polyline1.Straighten( 1, 3 );
                PolyLine splittedPolyline1;
                polyline1.Split( 2, out splittedPolyline1 );
            }
            {
                polyline3d7.AddVertexAfter( 0, 10, 60, 1.5 );
                polyline3d7.SetVertexCoordinate( 1, 10, 61, 1.5 );
                PolyLine3D splittedPolyline3D1;
                polyline3d7.Split( 2, out splittedPolyline3D1 );
            }
            {
                polyline3d7.AddVertexAfter( 1, 20, 70, 2.5 );
                polyline3d7.DeleteVertex( 0 );
            }
            {
                iwObjectType_e type1;
                PolyLine polyline8 = iwApp.GetActiveDocument().GetObjectByHandle("70", out type1) as PolyLine;
                polyline8.Spline();
            }
            ReferenceImage referenceimage9;
            {
                referenceimage9 = iwApp.GetActiveDocument().GetModel().GetSketchManager().InsertPicture(  "C:\\site\\aerial.png", 300.00000000000000, 20.00000000000000, 0.00000000000000, 0.37500000000000, 1.50000000000000 );
                referenceimage9.SetClipBoundary( new double[]{300,20,340.5,20,340.5,50,300,50} );

            }
            {
                referenceimage9.RemoveClipBoundary();
            }
