            iwSetCommandOptionResult_e result;
            Line line1;
            Line line2;
            Line line3;
            Line line4;
            {
                line1 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 120.00000000000000, 0.00000000000000, 0.00000000000000 );
                line1.Color = iwApp.GetColorByIndex( 256 );
                line1.Layer = "0";
                line1.LineStyle = "Continuous";
                line1.LineScale = 1.00000000000000;
                line1.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                line1.Thickness = 0.00000000000000;
                line2 = iwSketchManager.InsertLine( 120.00000000000000, 0.00000000000000, 0.00000000000000, 120.00000000000000, 80.50000000000000, 0.00000000000000 );
                line2.Color = iwApp.GetColorByIndex( 256 );
                line2.Layer = "0";
                line2.LineStyle = "Continuous";
                line2.LineScale = 1.00000000000000;
                line2.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                line2.Thickness = 0.00000000000000;
                line3 = iwSketchManager.InsertLine( 120.00000000000000, 80.50000000000000, 0.00000000000000, 0.00000000000000, 80.50000000000000, 0.00000000000000 );
                line3.Color = iwApp.GetColorByIndex( 1 );
                line3.Layer = "0";
                line3.LineStyle = "Continuous";
                line3.LineScale = 1.00000000000000;
                line3.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                line3.Thickness = 0.00000000000000;
                line4 = iwSketchManager.InsertLine( 0.00000000000000, 80.50000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000 );
                line4.Color = iwApp.GetRGBColor( 255, 128, 0 );
                line4.Layer = "0";
                line4.LineStyle = "Continuous";
                line4.LineScale = 1.00000000000000;
                line4.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                line4.Thickness = 0.00000000000000;
            }
            Circle circle5;
            Circle circle6;
            {
                circle5 = iwSketchManager.InsertCircle( 20.00000000000000, 20.00000000000000, 0.00000000000000, 6.25000000000000 );
                circle5.Color = iwApp.GetColorByIndex( 256 );
                circle5.Layer = "0";
                circle5.LineStyle = "Continuous";
                circle5.LineScale = 1.00000000000000;
                circle5.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                circle5.Thickness = 0.00000000000000;
                circle6 = iwSketchManager.InsertCircle( 100.00000000000000, 20.00000000000000, 0.00000000000000, 1.00000000000000 );
                circle6.Color = iwApp.GetColorByIndex( 256 );
                circle6.Layer = "0";
                circle6.LineStyle = "Continuous";
                circle6.LineScale = 1.00000000000000;
                circle6.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                circle6.Thickness = 0.00000000000000;
            }
            CircleArc circlearc7;
            CircleArc circlearc8;
            {
                circlearc7 = iwSketchManager.InsertArc( 60.00000000000000, 40.00000000000000, 0.00000000000000, 15.00000000000000, 0.78539816339745, 2.35619449019234 );
                circlearc8 = iwSketchManager.InsertArc( 60.00000000000000, 40.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000 );
            }
            EllipseArc ellipsearc10;
            EllipseArc ellipsearc11;
            {
                ellipsearc10 = iwSketchManager.InsertEllipseDistanceToOtherAxis( 90.00000000000000, 40.00000000000000, 30.00000000000000, 40.00000000000000, 12.50000000000000 );
                ellipsearc11 = iwSketchManager.InsertEllipseArcDistanceToOtherAxis( 60.10000000000000, 40.20000000000000, 59.90000000000000, 39.80000000000000, 1.00000000000000, 0.00000000000000, 6.28318530717958 );
            }
            Point point12;
            Point point13;
            {
                point12 = iwSketchManager.InsertPoint( -0.00000000000000, 0.00000000000000, 0.00000000000001 );
                point13 = iwSketchManager.InsertPoint( 0.00000000000000, 7.00000000000000, 0.00000000000000 );
            }
            Ray ray14;
            {
                ray14 = iwSketchManager.InsertRay( 1.00000000000000, 2.00000000000000, 3.00000000000000, 4.00000000000000, 5.00000000000000, 6.00000000000000 );
            }
            InfiniteLine infiniteline15;
            {
                infiniteline15 = iwSketchManager.InsertInfiniteLine( -1.00000000000000, -2.00000000000000, -3.00000000000000, 123456789.12345679104328, 0.00000000000000, 0.33333333333333 );
            }
            Circle circle16;
            circle16 = iwSketchManager.InsertCircle( 10.06250000000000, 11.00003051757813, 0.00000000000000, 2.00000000000000 );
            circle16.Color = iwApp.GetColorByIndex( 256 );
            circle16.Layer = "0";
            circle16.LineStyle = "Continuous";
            circle16.LineScale = 1.00000000000000;
            circle16.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
            circle16.Thickness = 0.00000000000000;
            // AcDbLine object modified
            {
                double getX1;
                double getY1;
                double getZ1;
                line1.GetSecondPoint(out getX1, out getY1, out getZ1);
                getX1 = 130.00000000000000;
                line1.SetSecondPoint(getX1, getY1, getZ1);
            }
            Line line18;
            line18 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.10000000000000, 0.20000000000000, 0.00000000000000 );
            line18.Color = iwApp.GetColorByIndex( 256 );
            line18.Layer = "0";
            line18.LineStyle = "Continuous";
            line18.LineScale = 1.00000000000000;
            line18.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
            line18.Thickness = 0.00000000000000;
