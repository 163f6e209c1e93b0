            Layer layer1;
            {
                LayerManager iwLayerManager1 = iwDoc.GetLayerManager();
                iwCreateObjectResult_e iwCreateObjectResult1;
                iwLayerManager1.CreateLayer( "Holes", out layer1, out iwCreateObjectResult1 );
            }
            PolyLine polyline2;
            {
                polyline2 = iwSketchManager.InsertPolyline2D(
                 new double[]{0.00000000000000,0.00000000000000,40.00000000000000,0.00000000000000,40.00000000000000,30.00000000000000,20.00000000000000,45.00000000000000,0.00000000000000,35.00000000000000,0.00000000000000,30.00000000000000,0.00000000000000,0.00000000000000},
                 false );
            }
            Circle circle3;
            {
                circle3 = iwSketchManager.InsertCircle( 20.00000000000000, 20.00000000000000, 0.00000000000000, 6.25000000000000 );
                {
                    circle3.Layer = "Holes";
                }
            }
            Circle circle4;
            Circle circle5;
            {
                circle4 = iwSketchManager.InsertCircle( 30.00000000000000, 10.00000000000000, 0.00000000000000, 6.25000000000000 );
                circle5 = iwSketchManager.InsertCircle( 10.00000000000000, 10.00000000000000, 0.00000000000000, 6.25000000000000 );
            }
            Circle circle6;
            {
                circle6 = iwSketchManager.InsertCircle( 5.00000000000000, 5.00000000000000, 213.36000000000001, 10.00000000000000 );
            }
            SimpleNote simplenote7;
            {
                simplenote7 = iwSketchManager.InsertSimpleNote( 5.00000000000000, -30.00000000000000, 0.00000000000000, 2.50000000000000, 0.00000000000000, "Ø 12,5 "H7"
(4x)" );
                simplenote7.SetAlignmentPoint( 0.00000000000000, 0.00000000000000, 0.00000000000000 );
                simplenote7.SetPosition( 5.00000000000000, -30.00000000000000, 0.00000000000000 );
            }
            {
                // AcDbCircle object modified
                {
                    double X1;
                    double Y1;
                    double Z1;
                    circle3.GetCenter(out X1, out Y1, out Z1);
                    Y1 = 18.50000000000000;
                    circle3.SetCenter(X1, Y1, Z1);
                    circle3.Radius = 7.12500000000000;
                }
            }
            CircleArc circlearc8;
            {
                circlearc8 = iwSketchManager.InsertArc( 0.00000000000000, 0.00000000000000, 0.00000000000000, 4.00000000000000, 0.50000000000000, 2.25000000000000 );
            }
