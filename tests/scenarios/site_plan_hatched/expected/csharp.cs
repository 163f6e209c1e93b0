            Line line1;
            Spline spline2;
            {
                line1 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 40.00000000000000, 0.00000000000000, 0.00000000000000 );
                spline2 = iwSketchManager.InsertSpline(
                 new double[]{0.00000000000000,60.00000000000000,0.00000000000000,10.00000000000000,65.00000000000000,0.00000000000000,20.00000000000000,60.00000000000000,0.00000000000000}, 
                 false, 
                 0.00000000000000, 
                 0.00000000000000, 
                 0.00000000000000, 
                 0.00000000000000, 
                 0.00000000000000, 
                 0.00000000000000 );
            }
            Hatch hatch3;
            {
                hatch3 = iwSketchManager.InsertHatchByInternalPoints(
                 new double[]{2.00000000000000,1.00000000000000,30.00000000000000,12.50000000000000}, 
                 "ANSI31", 
                 1.50000000000000, 
                 0.78539816339745 );
                HatchPattern hatchPattern = hatch3.GetHatchPattern();

                hatchPattern.InternalRegionDetection = iwHatchPatternInternalRegionDetection_e.iwHatchPatternInternalRegionDetection_Outer;
                double x1, y1;
                hatchPattern.GetOrigin( out x1, out y1 );
                hatchPattern.SetOrigin( 4.00000000000000, y1 );
                double x2, y2;
                hatchPattern.GetOrigin( out x2, out y2 );
                hatchPattern.SetOrigin( x2, -2.50000000000000 );
                hatch3.Color = iwApp.GetColorByIndex( 3 );
                hatch3.Layer = "Planting";
            }
            Hatch hatch4;
            {
                Circle hatchCircle_0 = iwSketchManager.InsertCircle( 10.00000000000000, 10.00000000000000, 0.00000000000000, 2.50000000000000 );
                Table hatchTable_0 = iwSketchManager.InsertTable(
                 60.00000000000000, 20.00000000000000, 3, 2, 10.00000000000000, 25.00000000000000, (iwTableCellType_e)1, (iwTableCellType_e)2, (iwTableCellType_e)3 );
                Circle circle_0 = iwSketchManager.InsertCircle( 90.00000000000000, 10.00000000000000, 0.00000000000000, 1.00000000000000 );
                EllipseArc ellipse_0 = iwSketchManager.InsertEllipseDistanceToOtherAxis( 93.00000000000000, 20.00000000000000, 87.00000000000000, 20.00000000000000, 1.00000000000000 );
                CircleArc arc_0 = iwSketchManager.InsertArc( 90.00000000000000, 30.00000000000000, 0.00000000000000, 2.00000000000000, 0.00000000000000, 1.50000000000000 );
                Line line_0 = iwSketchManager.InsertLine( 90.00000000000000, 40.00000000000000, 0.00000000000000, 95.00000000000000, 40.00000000000000, 0.00000000000000 );

                DispatchWrapper[] iwEntities_1 = new DispatchWrapper[4];
                iwEntities_1[0] = new DispatchWrapper(circle_0);                iwEntities_1[1] = new DispatchWrapper(ellipse_0);                iwEntities_1[2] = new DispatchWrapper(arc_0);                iwEntities_1[3] = new DispatchWrapper(line_0);                object regionArray1;
                iwSketchManager.InsertRegion(iwEntities_1, out regionArray1);
                object[] iwRegions1 = (object[])regionArray1;
                Region hatchRegion_0 = iwRegions1[0] as Region;
                BlockInstance hatchBlkRef_0 = iwSketchManager.InsertExternalReference(  "Tree", 5.00000000000000, 30.00000000000000, 0.00000000000000, 1.00000000000000, 2.00000000000000);
                BlockInstance hatchBlkRef_1 = iwSketchManager.InsertExternalReference(  "survey.dwg", 15.00000000000000, 30.00000000000000, 1.00000000000000, 1.00000000000000, 1.00000000000000);
                PolygonMesh hatchPolygonMesh_0 = iwSketchManager.InsertPolygonMesh(
                 2, 
                 3, 
                 new double[]{0.00000000000000,0.00000000000000,0.00000000000000,1.00000000000000,0.00000000000000,0.00000000000000,2.00000000000000,0.00000000000000,0.00000000000000,0.00000000000000,1.00000000000000,0.00000000000000,1.00000000000000,1.00000000000000,0.50000000000000,2.00000000000000,1.00000000000000,0.00000000000000} );
                PolyFaceMesh hatchPolyFaceMesh_0 = iwSketchManager.InsertPolyFaceMesh(
                 5, 
                 new double[]{0.00000000000000,0.00000000000000,0.00000000000000,1.00000000000000,0.00000000000000,0.00000000000000,1.00000000000000,1.00000000000000,0.00000000000000,0.00000000000000,1.00000000000000,0.00000000000000,0.50000000000000,0.50000000000000,1.00000000000000}, 
                 new int[] {4,3}, 
                 new int[] {1,2,3,4,1,2,5});
                Solid hatchSolid_0 = iwSketchManager.InsertSolid(
                 new double[]{0.00000000000000,40.00000000000000,0.00000000000000,5.00000000000000,40.00000000000000,0.00000000000000,0.00000000000000,45.00000000000000,0.00000000000000,5.00000000000000,45.00000000000000,0.00000000000000} );
                PolyLine3D hatchPolyLine3D_0 = iwSketchManager.InsertPolyline3D(
                 new double[]{0.00000000000000,0.00000000000000,0.00000000000000,3.00000000000000,0.00000000000000,1.00000000000000,3.00000000000000,3.00000000000000,2.00000000000000},
                 true );
                CircleArc hatchArc_0 = iwSketchManager.InsertArc( 20.00000000000000, 10.00000000000000, 0.00000000000000, 4.00000000000000, 0.50000000000000, 2.25000000000000 );
                PolyLine hatchPolyline_0 = iwSketchManager.InsertPolyline2D(
                 new double[]{0.00000000000000,0.00000000000000,12.50000000000000,0.00000000000000,12.50000000000000,8.00000000000000,0.00000000000000,8.00000000000000},
                 true );
                hatchPolyline_0.SetSegmentAngle( 1, 3.14159 );
                hatchPolyline_0.SetSegmentAngle( 3, -1.5708 );
                EllipseArc hatcEllipse_0 = iwSketchManager.InsertEllipseDistanceToOtherAxis( 36.00000000000000, 10.00000000000000, 24.00000000000000, 10.00000000000000, 5.00000000000000 );
                EllipseArc hatcEllipse_1 = iwSketchManager.InsertEllipseArcDistanceToOtherAxis( 45.00000000000000, 16.00000000000000, 45.00000000000000, 4.00000000000000, 2.00000000000000, 0.00000000000000, 6.28318530717959 );
                Line hatchLine_0 = iwSketchManager.InsertLine( 40.00000000000000, 0.00000000000000, 0.00000000000000, 40.00000000000000, 25.00000000000000, 0.00000000000000 );
                Line hatchLine_1 = iwSketchManager.InsertLine( 40.00000000000000, 25.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000 );
                Face hatchFace_0 = iwSketchManager.InsertFace(
                 new double[]{0.00000000000000,0.00000000000000,0.00000000000000,1.00000000000000,0.00000000000000,0.00000000000000,1.00000000000000,1.00000000000000,0.00000000000000,0.00000000000000,1.00000000000000,0.00000000000000},
                 true,
                 true,
                 false,
                 true );
                RichLine hatchRichLine_0 = iwSketchManager.InsertRichLine(
                 new double[]{0.00000000000000,50.00000000000000,0.00000000000000,20.00000000000000,50.00000000000000,0.00000000000000},
                 iwRichLineJustification_e.iwRichLineJustification_Zero,
                 0.75000000000000,
                 "Wall",
                 false );
                Leader hatchLeader_0 = iwSketchManager.InsertLeader(
                 new double[]{70.00000000000000,10.00000000000000,0.00000000000000,75.00000000000000,15.00000000000000,0.00000000000000},
                 12.50000000000000,
                 "\fArial;Lawn" );
                Leader hatchLeader_1 = iwSketchManager.InsertLeader(
                 new double[]{80.00000000000000,10.00000000000000,0.00000000000000,85.00000000000000,15.00000000000000,0.00000000000000},
                 0.00000000000000,
                 "" );
                DispatchWrapper[] iwEntities = new DispatchWrapper[20];
                iwEntities[0] = new DispatchWrapper(line1);
                iwEntities[1] = new DispatchWrapper(hatchCircle_0);
                iwEntities[2] = new DispatchWrapper(hatchTable_0);
                iwEntities[3] = new DispatchWrapper(hatchRegion_0);
                iwEntities[4] = new DispatchWrapper(hatchBlkRef_0);
                iwEntities[5] = new DispatchWrapper(hatchBlkRef_1);
                iwEntities[6] = new DispatchWrapper(hatchPolygonMesh_0);
                iwEntities[7] = new DispatchWrapper(hatchPolyFaceMesh_0);
                iwEntities[8] = new DispatchWrapper(hatchSolid_0);
                iwEntities[9] = new DispatchWrapper(hatchPolyLine3D_0);
                iwEntities[10] = new DispatchWrapper(hatchArc_0);
                iwEntities[11] = new DispatchWrapper(hatchPolyline_0);
                iwEntities[12] = new DispatchWrapper(hatcEllipse_0);
                iwEntities[13] = new DispatchWrapper(hatcEllipse_1);
                iwEntities[14] = new DispatchWrapper(hatchLine_0);
                iwEntities[15] = new DispatchWrapper(hatchLine_1);
                iwEntities[16] = new DispatchWrapper(hatchFace_0);
                iwEntities[17] = new DispatchWrapper(hatchRichLine_0);
                iwEntities[18] = new DispatchWrapper(hatchLeader_0);
                iwEntities[19] = new DispatchWrapper(hatchLeader_1);

                hatch4 = iwSketchManager.InsertHatchByEntities(
                 iwEntities, 
                 "AR-CONC", 
                 1234567.50000000000000, 
                 0.00000000000000 );
                hatchCircle_0.Erased = true;
                hatchTable_0.Erased = true;
                hatchRegion_1.Erased = true;
                hatchBlkRef_0.Erased = true;
                hatchBlkRef_1.Erased = true;
                hatchPolygonMesh_0.Erased = true;
                hatchPolyFaceMesh_0.Erased = true;
                hatchSolid_0.Erased = true;
                hatchPolyLine3D_0.Erased = true;
                hatchArc_0.Erased = true;
                hatchPolyline_0.Erased = true;
                hatcEllipse_0.Erased = true;
                hatcEllipse_1.Erased = true;
                hatchLine_0.Erased = true;
                hatchLine_1.Erased = true;
                hatchFace_0.Erased = true;
                hatchRichLine_0.Erased = true;
                hatchLeader_0.Erased = true;
                hatchLeader_1.Erased = true;

                HatchPattern hatchPattern = hatch4.GetHatchPattern();
                double x1, y1;
                hatchPattern.GetOrigin( out x1, out y1 );
                hatchPattern.SetOrigin( 1.00000000000000, y1 );
                hatch4.Color = iwApp.GetColorByIndex( 3 );
                hatch4.Layer = "Planting";
            }
            Hatch hatch5;
            {
                Circle hatchCircle_1 = iwSketchManager.InsertCircle( 10.00000000000000, 10.00000000000000, 0.00000000000000, 2.50000000000000 );
                DispatchWrapper[] iwEntities = new DispatchWrapper[2];
                iwEntities[0] = new DispatchWrapper(line1);
                iwEntities[1] = new DispatchWrapper(hatchCircle_1);
                hatch5 = iwSketchManager.InsertHatchByEntities(
                 iwEntities, 
                 "GRASS", 
                 0.10000000000000, 
                 0.25000000000000 );

                HatchPattern hatchPattern1 = hatch5.GetHatchPattern();
                hatchPattern1.SetGradientData( iwApp.GetColorByIndex( 3 ), iwApp.GetRGBColor( 12 ,200 ,255 ), true, 0.50000000000000);
            }
            Hatch hatch6;
            {
                DispatchWrapper[] iwEntities = new DispatchWrapper[0];
                hatch6 = iwSketchManager.InsertHatchByEntities(
                 iwEntities, 
                 "SOLID", 
                 1.00000000000000, 
                 0.00000000000000 );
            }
            Hatch hatch7;
            {

                PolyLine hatch_Polyline_0;
                {
                    hatch_Polyline_0 = iwSketchManager.InsertPolyline2D( new double[]{0,0,12.5,0,12.5,8.12346,0,8}, true );
                }
                hatch_Polyline_0.SetSegmentAngle( 1, 3.14159 );
                hatch_Polyline_0.SetSegmentAngle( 3, -1.5708 );

                DispatchWrapper[] iwEntities = new DispatchWrapper[1];
                iwEntities[0] = new DispatchWrapper( hatch_Polyline_0 );
                hatch7 = iwSketchManager.InsertHatchByEntities(
                 iwEntities, 
                 "GRAVEL", 
                 2.00000000000000, 
                 0.00000000000000 );

                hatch_Polyline_0.Erased = true;

                HatchPattern hatchPattern1 = hatch7.GetHatchPattern();
                hatchPattern1.SetGradientData( iwApp.GetRGBColor( 255 ,0 ,0 ), iwApp.GetColorByIndex( 7 ), false, 1.25000000000000);
            }
            Hatch hatch8;
            {

                PolyLine hatch_Polyline_1;
                {
                    hatch_Polyline_1 = iwSketchManager.InsertPolyline2D( new double[]{0,0,4,0,4,3}, true );
                }

                DispatchWrapper[] iwEntities = new DispatchWrapper[1];
                iwEntities[0] = new DispatchWrapper( hatch_Polyline_1 );
                hatch8 = iwSketchManager.InsertHatchByEntities(
                 iwEntities, 
                 "GRAVEL", 
                 2.00000000000000, 
                 0.00000000000000 );
            }
            Hatch hatch9;
            {
                hatch9 = iwSketchManager.InsertHatchByBoundary(
                 new int[]{4,3}, 
                 new double[]{0.00000000000000,0.00000000000000,20.00000000000000,0.00000000000000,20.00000000000000,10.00000000000000,0.00000000000000,10.00000000000000,5.00000000000000,5.00000000000000,8.00000000000000,5.00000000000000,8.00000000000000,8.00000000000000,0.00000000000000,0.00000000000000}, 
                 "BRICK", 
                 0.75000000000000, 
                 1.57079632679490 );

                HatchPattern hatchPattern1 = hatch9.GetHatchPattern();
                hatchPattern1.SetGradientData( iwApp.GetRGBColor( 0 ,0 ,0 ), iwApp.GetColorByIndex( 1 ), false, 0.00000000000000);
                HatchPattern hatchPattern = hatch9.GetHatchPattern();

                hatchPattern.InternalRegionDetection = iwHatchPatternInternalRegionDetection_e.iwHatchPatternInternalRegionDetection_Ignore;
            }
            Hatch hatch11;
            {
                hatch11 = iwSketchManager.InsertHatchByInternalPoints(
                 new double[]{50.00000000000000,5.00000000000000}, 
                 "CROSS", 
                 1.00000000000000, 
                 0.00000000000000 );

                HatchPattern hatchPattern1 = hatch11.GetHatchPattern();
                hatchPattern1.SetGradientData( iwApp.GetColorByIndex( 5 ), iwApp.GetColorByIndex( 6 ), true, 0.12500000000000);
            }
            {
                // AcDbHatch object modified
                {
                    HatchPattern hatchPattern = hatch3.GetHatchPattern();

                    string PatternName;
                    double Angle;
                    double Scale;
                    iwHatchPatternType_e HatchPatternType;
                    double Spacing;

                    hatchPattern.GetHatchOrSolidData( out PatternName, out Angle, out Scale, out HatchPatternType, out Spacing );
                    Angle = 0.50000000000000;
                    Scale = 3.00000000000000;
                    Spacing = 1.25000000000000;
                    PatternName = "ANSI37";
                    HatchPatternType = iwHatchPatternType_e.iwHatchPatternType_UserDefined;
                    hatchPattern.SetHatchOrSolidData( PatternName, Angle, Scale, HatchPatternType, Spacing );
                }
            }
            {
                // AcDbHatch object modified
                {
                    HatchPattern hatchPattern = hatch5.GetHatchPattern();

                    Color color1, color2;
                    bool bCentered;
                    double gradientAngle;

                    hatchPattern.GetGradientData(out color1, out color2, out bCentered, out gradientAngle);
                    color1 = iwApp.GetColorByIndex( 2 );
                    color2 = iwApp.GetRGBColor( 1 ,2 ,3 );
                    gradientAngle = 0.75000000000000;
                    bCentered = true;
                    hatchPattern.SetGradientData(color1, color2, bCentered, gradientAngle);
                }
            }
            {
                // AcDbHatch object modified
                hatch4.Color = iwApp.GetColorByIndex( 1 );
                HatchPattern hatchPattern = hatch4.GetHatchPattern();

                string PatternName;
                double Angle;
                double Scale;
                iwHatchPatternType_e HatchPatternType;
                double Spacing;

                hatchPattern.GetHatchOrSolidData( out PatternName, out Angle, out Scale, out HatchPatternType, out Spacing );
                HatchPatternType = iwHatchPatternType_e.iwHatchPatternType_Custom;
                hatchPattern.SetHatchOrSolidData( PatternName, Angle, Scale, HatchPatternType, Spacing );

                Color color1, color2;
                bool bCentered;
                double gradientAngle;

                hatchPattern.GetGradientData(out color1, out color2, out bCentered, out gradientAngle);
                bCentered = false;
                hatchPattern.SetGradientData(color1, color2, bCentered, gradientAngle);

                hatchPattern.InternalRegionDetection = iwHatchPatternInternalRegionDetection_e.iwHatchPatternInternalRegionDetection_Ignore;
                double x1, y1;
                hatchPattern.GetOrigin( out x1, out y1 );
                hatchPattern.SetOrigin( x1, 7.00000000000000 );
            }
            {
                HatchPattern hatchPattern = hatch9.GetHatchPattern();

                string PatternName;
                double Angle;
                double Scale;
                iwHatchPatternType_e HatchPatternType;
                double Spacing;

                hatchPattern.GetHatchOrSolidData( out PatternName, out Angle, out Scale, out HatchPatternType, out Spacing );
                Scale = 2.50000000000000;
                hatchPattern.SetHatchOrSolidData( PatternName, Angle, Scale, HatchPatternType, Spacing );
            }
