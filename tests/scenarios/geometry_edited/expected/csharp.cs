            PolyLine polyline1;
            polyline1 = iwSketchManager.InsertPolyline2D(
             new double[]{},
             false );
            polyline1.Color = iwApp.GetColorByIndex( 256 );
            polyline1.Layer = "Walls";
            polyline1.LineStyle = "Continuous";
            polyline1.LineScale = 1.00000000000000;
            polyline1.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
            polyline1.Thickness = 0.00000000000000;
            PolyLine3D polyline3d2;
            polyline3d2 = iwSketchManager.InsertPolyline3D(
             new double[]{},
             false );
            polyline3d2.Color = iwApp.GetColorByIndex( 256 );
            polyline3d2.Layer = "Walls";
            polyline3d2.LineStyle = "Continuous";
            polyline3d2.LineScale = 1.00000000000000;
            polyline3d2.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
            polyline3d2.Thickness = 0.00000000000000;
            Spline spline3;
            spline3 = iwSketchManager.InsertSpline(
             new double[]{}, 
             false, 
             0.00000000000000, 
             0.00000000000000, 
             0.00000000000000, 
             0.00000000000000, 
             0.00000000000000, 
             0.00000000000000 );
            spline3.Color = iwApp.GetColorByIndex( 256 );
            spline3.Layer = "Walls";
            spline3.LineStyle = "Continuous";
            spline3.LineScale = 1.00000000000000;
            spline3.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
            spline3.Thickness = 0.00000000000000;
            PolygonMesh polygonmesh4;
            polygonmesh4 = iwSketchManager.InsertPolygonMesh(
             0, 
             0, 
             new double[]{} );
            polygonmesh4.Color = iwApp.GetColorByIndex( 256 );
            polygonmesh4.Layer = "Walls";
            polygonmesh4.LineStyle = "Continuous";
            polygonmesh4.LineScale = 1.00000000000000;
            polygonmesh4.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
            polygonmesh4.Thickness = 0.00000000000000;
            PolyFaceMesh polyfacemesh5;
            polyfacemesh5 = iwSketchManager.InsertPolyFaceMesh(
             0, 
             new double[]{}, 
             new int[] {}, 
             new int[] {});
            polyfacemesh5.Color = iwApp.GetColorByIndex( 256 );
            polyfacemesh5.Layer = "Walls";
            polyfacemesh5.LineStyle = "Continuous";
            polyfacemesh5.LineScale = 1.00000000000000;
            polyfacemesh5.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
            polyfacemesh5.Thickness = 0.00000000000000;
            Solid solid6;
            solid6 = iwSketchManager.InsertSolid(
             new double[]{} );
            solid6.Color = iwApp.GetColorByIndex( 256 );
            solid6.Layer = "Walls";
            solid6.LineStyle = "Continuous";
            solid6.LineScale = 1.00000000000000;
            solid6.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
            solid6.Thickness = 0.00000000000000;
            Trace trace7;
            trace7 = iwSketchManager.InsertTrace(
             new double[]{} );
            trace7.Color = iwApp.GetColorByIndex( 256 );
            trace7.Layer = "Walls";
            trace7.LineStyle = "Continuous";
            trace7.LineScale = 1.00000000000000;
            trace7.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
            trace7.Thickness = 0.00000000000000;
            Face face8;
            face8 = iwSketchManager.InsertFace(
             new double[]{},
             false,
             false,
             false,
             false );
            face8.Color = iwApp.GetColorByIndex( 256 );
            face8.Layer = "Walls";
            face8.LineStyle = "Continuous";
            face8.LineScale = 1.00000000000000;
            face8.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
            face8.Thickness = 0.00000000000000;
            RichLine richline9;
            richline9 = iwSketchManager.InsertRichLine(
             new double[]{},
             iwRichLineJustification_e.iwRichLineJustification_Top,
             0.00000000000000,
             "",
             false );
            richline9.Color = iwApp.GetColorByIndex( 256 );
            richline9.Layer = "Walls";
            richline9.LineStyle = "Continuous";
            richline9.LineScale = 1.00000000000000;
            richline9.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
            richline9.Thickness = 0.00000000000000;
            Shape shape10;
            shape10 = iwSketchManager.InsertShape( "", 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000 );
            shape10.Color = iwApp.GetColorByIndex( 256 );
            shape10.Layer = "Walls";
            shape10.LineStyle = "Continuous";
            shape10.LineScale = 1.00000000000000;
            shape10.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
            shape10.Thickness = 0.00000000000000;
            EmbeddedObject embeddedobject11;
            Viewport viewport12;
            RotatedDimension rotateddimension13;
            {
                rotateddimension13 = iwSketchManager.InsertRotatedDimension(
                new double[]{0.00000000000000,0.00000000000000,0.00000000000000},
                new double[]{0.00000000000000,0.00000000000000,0.00000000000000},
                new double[]{0.00000000000000,0.00000000000000,0.00000000000000},
                "", 0.00000000000000 );
                    GeneralDimension generalDimension1 = rotateddimension13.GetGeneralDimension();
                generalDimension1.Color = iwApp.GetColorByIndex( 256 );
                generalDimension1.Layer = "Walls";
                generalDimension1.LineStyle = "Continuous";
                generalDimension1.LineScale = 1.00000000000000;
                generalDimension1.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                generalDimension1.Thickness = 0.00000000000000;
            }
            ModelNamedView modelnamedview14;
            {
                double X1;
                double Y1;
                polyline1.GetVertexCoordinate(2, out X1, out Y1);
                X1 = 1.50000000000000;
                polyline1.SetVertexCoordinate(2, X1, Y1);
            }
            {
                polyline1.SetSegmentStartWidth( 0, 0.25000000000000 );
            }
            {
                polyline1.SetSegmentEndWidth( 0, 0.50000000000000 );
            }
            // AcDbPolyline object modified
            {
                polyline1.Elevation = 1.00000000000000;
                polyline1.GlobalWidth = 0.10000000000000;
                polyline1.Closed = true;
                polyline1.LineStyleGeneration = true;
            }
            // AcDbPolyline object modified
            {
                polyline1.Closed = false;
                polyline1.LineStyleGeneration = false;
            }
            {
                double X2;
                double Y2;
                double Z2;
                polyline3d2.GetVertexCoordinate(1, out X2, out Y2, out Z2);
                Z2 = 7.00000000000000;
                polyline3d2.SetVertexCoordinate(1, X2, Y2, Z2);
            }
            // AcDb3dPolyline object modified
            {
                polyline3d2.FitSmooth = iwPolyLine3DFitSmooth_e.iwPolyLine3DFitSmooth_Qudratic;
                polyline3d2.Closed = true;
            }
            {
                double X3;
                double Y3;
                double Z3;
                spline3.GetControlPointCoordinate(0, out X3, out Y3, out Z3);
                X3 = 3.00000000000000;
                spline3.SetControlPointCoordinate(0, X3, Y3, Z3);
            }
            {
                double X4;
                double Y4;
                double Z4;
                spline3.GetFitPointCoordinate(3, out X4, out Y4, out Z4);
                Y4 = 4.00000000000000;
                spline3.SetFitPointCoordinate(3, X4, Y4, Z4);
            }
            // AcDbSpline object modified
            {
                spline3.FitTolerance = 0.00100000000000;
            }
            {
                double X5;
                double Y5;
                double Z5;
                polygonmesh4.GetVertexCoordinate(0, out X5, out Y5, out Z5);
                X5 = 5.00000000000000;
                polygonmesh4.SetVertexCoordinate(0, X5, Y5, Z5);
            }
            // AcDbPolygonMesh object modified
            {
                polygonmesh4.MClosed = true;
                polygonmesh4.MDensity = 6.00000000000000;
                polygonmesh4.NDensity = 4.00000000000000;
                polygonmesh4.NClosed = false;
                polygonmesh4.FitSmooth = iwPolygonMeshFitSmooth_e.iwPolygonMeshFitSmooth_Bezier;
            }
            {
                double X6;
                double Y6;
                double Z6;
                polyfacemesh5.GetVertexCoordinate(5, out X6, out Y6, out Z6);
                Y6 = 6.00000000000000;
                polyfacemesh5.SetVertexCoordinate(5, X6, Y6, Z6);
            }
            {
                double X7;
                double Y7;
                double Z7;
                solid6.GetVertex1Coordinate(out X7, out Y7, out Z7);
                X7 = 1.00000000000000;
                solid6.SetVertex1Coordinate(X7, Y7, Z7);
            }
            {
                double X8;
                double Y8;
                double Z8;
                trace7.GetVertex4Coordinate(out X8, out Y8, out Z8);
                Z8 = 2.00000000000000;
                trace7.SetVertex4Coordinate(X8, Y8, Z8);
            }
            // AcDbFace object modified
            {
                face8.Edge1Visible = true;
                face8.Edge4Visible = false;
            }
            {
                double X9;
                double Y9;
                double Z9;
                face8.GetVertex4Coordinate(out X9, out Y9, out Z9);
                X9 = 1.00000000000000;
                face8.SetVertex4Coordinate(X9, Y9, Z9);
            }
            // AcDbMline object modified
            {
                richline9.Justification = iwRichLineJustification_e.iwRichLineJustification_Zero;
                richline9.Scale = 20.00000000000000;
            }
            // AcDbShape object modified
            {
                double X10;
                double Y10;
                double Z10;
                shape10.GetPosition(out X10, out Y10, out Z10);
                X10 = 1.00000000000000;
                shape10.SetPosition(X10, Y10, Z10);
                shape10.Obliquing = 0.10000000000000;
                shape10.Rotation = 0.20000000000000;
                shape10.Size = 3.00000000000000;
                shape10.WidthFactor = 0.80000000000000;
            }
            // AcDbOle2Frame object modified
            {
                embeddedobject11.Height = 2.00000000000000;
                double X11;
                double Y11;
                double Z11;
                embeddedobject11.GetPosition(out X11, out Y11, out Z11);
                Y11 = 1.00000000000000;
                embeddedobject11.SetPosition(X11, Y11, Z11);
                embeddedobject11.Width = 3.00000000000000;
                embeddedobject11.PrintQuality = iwEmbeddedObjectPrintQuality_e.iwEmbeddedObjectPrintQuality_HighGraphics;
            }
            // AcDbViewport object modified
            {
                double X12;
                double Y12;
                double Z12;
                viewport12.GetCenter(out X12, out Y12, out Z12);
                X12 = 5.00000000000000;
                viewport12.SetCenter(X12, Y12, Z12);
                viewport12.Height = 4.00000000000000;
                viewport12.CCSPerViewport = true;
                viewport12.CustomScale = 0.50000000000000;
                viewport12.DisplayLocked = false;
                viewport12.IsOn = true;
                viewport12.ShadePrintStyle = iwViewportShadePrintStyle_e.iwViewportShadePrintStyle_Hidden;
                viewport12.StandardScale = iwViewportStandardScale_e.iwViewportStandardScale_1_2;
            }
            // AcDbRotatedDimension object modified
                GeneralDimension generalDimension13 = rotateddimension13.GetGeneralDimension();
            generalDimension13.Color = iwApp.GetColorByIndex( 2 );
            // AcDbRotatedDimension object modified
            {
                GeneralDimension generalDimension14 = rotateddimension13.GetGeneralDimension();
                generalDimension14.Layer = "Walls";
            }
            // AcDbRotatedDimension object modified
            {
                GeneralDimension generalDimension16 = rotateddimension13.GetGeneralDimension();
                generalDimension16.Erased = true;
            }
            // AcDbBlockTableRecord object modified
            BlockDefinition blockdefinition15;
            {

                DispatchWrapper[] objects_18 = new DispatchWrapper[0];

                int[] objecttypes_18 = new int[0];

                 blockdefinition15 = iwDoc.CreateBlockDefinition(
                 "Bolt", 
                 "", 
                 0.00000000000000, 
                 0.00000000000000, 
                 0.00000000000000, 
                 objecttypes_18,  
                 objects_18, 
                 iwBlockDefinitionEntities_e.iwBlockDefinitionEntities_RemoveFromDrawing );
                blockdefinition15.Erased = true;
            }
            LayerManager iwLayerManager_1 = iwDoc.GetLayerManager();
            Layer layer16 = iwLayerManager_1.GetLayer( "0" );
            // AcDbLayerTableRecord object modified
            {
                LayerManager iwLayerManager19 = iwDoc.GetLayerManager();
                string layerName19 = layer16.Name;
                iwLayerManager19.RemoveLayer( layerName19 );
            }
            // AcDbViewTableRecord object modified
            {
                iwViewManager.RemoveModelNamedView( "Front" );
            }
            ModelNamedView modelnamedview17;
            // AcDbViewTableRecord object modified
            {
                iwViewManager.RemoveSheetNamedView( "Title block" );
            }
