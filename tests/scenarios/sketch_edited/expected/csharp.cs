            Line line1;
            Line line2;
            Line line3;
            {
                line1 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 12.50000000000000, 0.00000000000000, 0.00000000000000 );
                line1.Color = iwApp.GetColorByIndex( 256 );
                line1.Layer = "0";
                line1.LineStyle = "Continuous";
                line1.LineScale = 1.00000000000000;
                line1.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                line1.Thickness = 0.00000000000000;
                line2 = iwSketchManager.InsertLine( 12.50000000000000, 0.00000000000000, 0.00000000000000, 12.50000000000000, 8.00000000000000, 0.00000000000000 );
                line2.Color = iwApp.GetColorByIndex( 256 );
                line2.Layer = "Walls";
                line2.LineStyle = "Continuous";
                line2.LineScale = 1.00000000000000;
                line2.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                line2.Thickness = 0.00000000000000;
                line3 = iwSketchManager.InsertLine( 12.50000000000000, 8.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000 );
                line3.Color = iwApp.GetColorByIndex( 1 );
                line3.Layer = "0";
                line3.LineStyle = "DASHED2";
                line3.LineScale = 1.00000000000000;
                line3.LineWeight = iwLineWeight_e.iwLnWt_030;
                line3.Thickness = 0.00000000000000;
            }
            Circle circle4;
            Circle circle5;
            {
                circle4 = iwSketchManager.InsertCircle( 6.00000000000000, 3.00000000000000, 0.00000000000000, 1.50000000000000 );
                circle4.Color = iwApp.GetRGBColor( 255, 128, 0 );
                circle4.Layer = "0";
                circle4.LineStyle = "Continuous";
                circle4.LineScale = 1.00000000000000;
                circle4.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                circle4.Thickness = 0.00000000000000;
                circle5 = iwSketchManager.InsertCircle( 2.00000000000000, 2.00000000000000, 0.00000000000000, 0.25000000000000 );
                circle5.Color = iwApp.GetColorByIndex( 256 );
                circle5.Layer = "0";
                circle5.LineStyle = "Continuous";
                circle5.LineScale = 1.00000000000000;
                circle5.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                circle5.Thickness = 0.00000000000000;
            }
            CircleArc circlearc6;
            {
                circlearc6 = iwSketchManager.InsertArc( 6.00000000000000, 3.00000000000000, 0.00000000000000, 4.00000000000000, 0.00000000000000, 1.57079632679490 );
                circlearc6.Color = iwApp.GetColorByIndex( 256 );
                circlearc6.Layer = "0";
                circlearc6.LineStyle = "Continuous";
                circlearc6.LineScale = 1.00000000000000;
                circlearc6.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                circlearc6.Thickness = 0.00000000000000;
            }
            Point point7;
            Ray ray8;
            InfiniteLine infiniteline9;
            EllipseArc ellipsearc10;
            {
                point7 = iwSketchManager.InsertPoint( 1.00000000000000, 2.00000000000000, 3.00000000000000 );
                point7.Color = iwApp.GetColorByIndex( 256 );
                point7.Layer = "0";
                point7.LineStyle = "Continuous";
                point7.LineScale = 1.00000000000000;
                point7.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                point7.Thickness = 0.00000000000000;
                ray8 = iwSketchManager.InsertRay( 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 1.00000000000000, 0.00000000000000 );
                ray8.Color = iwApp.GetColorByIndex( 256 );
                ray8.Layer = "0";
                ray8.LineStyle = "Continuous";
                ray8.LineScale = 1.00000000000000;
                ray8.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                ray8.Thickness = 0.00000000000000;
                infiniteline9 = iwSketchManager.InsertInfiniteLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 0.00000000000000 );
                infiniteline9.Color = iwApp.GetColorByIndex( 256 );
                infiniteline9.Layer = "0";
                infiniteline9.LineStyle = "Continuous";
                infiniteline9.LineScale = 1.00000000000000;
                infiniteline9.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                infiniteline9.Thickness = 0.00000000000000;
                ellipsearc10 = iwSketchManager.InsertEllipseDistanceToOtherAxis( 3.00000000000000, 0.00000000000000, -3.00000000000000, 0.00000000000000, 1.00000000000000 );
                ellipsearc10.Color = iwApp.GetColorByIndex( 256 );
                ellipsearc10.Layer = "0";
                ellipsearc10.LineStyle = "Continuous";
                ellipsearc10.LineScale = 1.00000000000000;
                ellipsearc10.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                ellipsearc10.Thickness = 0.00000000000000;
            }
            {
                // AcDbLine object modified
                {
                    line1.Layer = "Hidden édges";
                }
            }
            {
                // AcDbLine object modified
                line2.Color = iwApp.GetColorByIndex( 5 );
                // AcDbLine object modified
                line3.Color = iwApp.GetColorByIndex( 0 );
                line3.PrintStyle = "Style_1";
                Transparency iwTransparency0 = line3.Transparency;
                iwTransparency0.SetByAlpha( 50 );
                line3.Transparency = iwTransparency0;
            }
            {
                // AcDbLine object modified
                {
                    double getX1;
                    double getY1;
                    double getZ1;
                    line1.GetSecondPoint(out getX1, out getY1, out getZ1);
                    getX1 = 13.00000000000000;
                    line1.SetSecondPoint(getX1, getY1, getZ1);
                    double getX2;
                    double getY2;
                    double getZ2;
                    line1.GetSecondPoint(out getX2, out getY2, out getZ2);
                    getY2 = 0.50000000000000;
                    line1.SetSecondPoint(getX2, getY2, getZ2);
                }
                // AcDbLine object modified
                {
                    double getX3;
                    double getY3;
                    double getZ3;
                    line2.GetFirstPoint(out getX3, out getY3, out getZ3);
                    getX3 = 13.00000000000000;
                    line2.SetFirstPoint(getX3, getY3, getZ3);
                }
            }
            {
                // AcDbCircle object modified
                {
                    circle4.Radius = 2.00000000000000;
                    double X1;
                    double Y1;
                    double Z1;
                    circle4.GetCenter(out X1, out Y1, out Z1);
                    Y1 = 4.00000000000000;
                    circle4.SetCenter(X1, Y1, Z1);
                    circle4.Radius = 2.00000000000000;
                    circle4.Radius = 2.00000000000000;
                    circle4.Radius = 2.00000000000000;
                }
            }
            {
                // AcDbArc object modified
                {
                    double X1;
                    double Y1;
                    double Z1;
                    circlearc6.GetCenter(out X1, out Y1, out Z1);
                    X1 = 7.00000000000000;
                    circlearc6.SetCenter(X1, Y1, Z1);
                    double X2;
                    double Y2;
                    double Z2;
                    circlearc6.GetCenter(out X2, out Y2, out Z2);
                    Y2 = 4.00000000000000;
                    circlearc6.SetCenter(X2, Y2, Z2);
                    circlearc6.EndAngle = 3.00000000000000;
                    circlearc6.StartAngle = 0.50000000000000;
                }
                // AcDbPoint object modified
                {
                    double getX3;
                    double getY3;
                    double getZ3;
                    point7.GetPosition(out getX3, out getY3, out getZ3);
                    getZ3 = 0.00000000000000;
                    point7.SetPosition(getX3, getY3, getZ3);
                }
                // AcDbRay object modified
                {
                    double X4;
                    double Y4;
                    double Z4;
                    ray8.GetBasePoint(out X4, out Y4, out Z4);
                    X4 = 1.00000000000000;
                    ray8.SetBasePoint(X4, Y4, Z4);
                    double X5;
                    double Y5;
                    double Z5;
                    ray8.GetThroughPoint(out X5, out Y5, out Z5);
                    Y5 = 2.00000000000000;
                    ray8.SetThroughPoint(X5, Y5, Z5);
                }
                // AcDbXline object modified
                {
                    double getX6;
                    double getY6;
                    double getZ6;
                    infiniteline9.GetFirstPoint(out getX6, out getY6, out getZ6);
                    getY6 = 1.00000000000000;
                    infiniteline9.SetFirstPoint(getX6, getY6, getZ6);
                    double getX7;
                    double getY7;
                    double getZ7;
                    infiniteline9.GetSecondPoint(out getX7, out getY7, out getZ7);
                    getX7 = 2.00000000000000;
                    infiniteline9.SetSecondPoint(getX7, getY7, getZ7);
                }
                // AcDbEllipse object modified
                {
                    ellipsearc10.EndAngle = 3.00000000000000;
                    ellipsearc10.MajorRadius = 3.50000000000000;
                }
            }
            {
                // AcDbCircle object modified
                {
                    Transparency iwTransparency1 = circle5.Transparency;
                    iwTransparency1.SetByLayer();
                    circle5.Transparency = iwTransparency1;
                }
                // AcDbCircle object modified
                {
                    Transparency iwTransparency2 = circle4.Transparency;
                    iwTransparency2.SetByBlock();
                    circle4.Transparency = iwTransparency2;
                }
            }
            {
                // AcDbCircle object modified
                {
                    circle5.Erased = true;
                }
            }
            // AcDbLine object modified
            {
                line1.LineScale = 2.50000000000000;
                line1.Thickness = 0.50000000000000;
            }
            {
                double getX1;
                double getY1;
                double getZ1;
                line2.GetSecondPoint(out getX1, out getY1, out getZ1);
                getY1 = 9.00000000000000;
                line2.SetSecondPoint(getX1, getY1, getZ1);
            }
