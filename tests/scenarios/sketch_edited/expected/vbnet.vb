        Dim line1 As Inkwright.Line
        Dim line2 As Inkwright.Line
        Dim line3 As Inkwright.Line
        If 1 Then
            line1 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 12.50000000000000, 0.00000000000000, 0.00000000000000 )
            line1.Color = iwApp.GetColorByIndex( 256 )
            line1.Layer = "0"
            line1.LineStyle = "Continuous"
            line1.LineScale = 1.00000000000000
            line1.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            line1.Thickness = 0.00000000000000
            line2 = iwSketchManager.InsertLine( 12.50000000000000, 0.00000000000000, 0.00000000000000, 12.50000000000000, 8.00000000000000, 0.00000000000000 )
            line2.Color = iwApp.GetColorByIndex( 256 )
            line2.Layer = "Walls"
            line2.LineStyle = "Continuous"
            line2.LineScale = 1.00000000000000
            line2.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            line2.Thickness = 0.00000000000000
            line3 = iwSketchManager.InsertLine( 12.50000000000000, 8.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000 )
            line3.Color = iwApp.GetColorByIndex( 1 )
            line3.Layer = "0"
            line3.LineStyle = "DASHED2"
            line3.LineScale = 1.00000000000000
            line3.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_030
            line3.Thickness = 0.00000000000000
        End If

        Dim circle4 As Inkwright.Circle
        Dim circle5 As Inkwright.Circle
        If 1 Then
            circle4 = iwSketchManager.InsertCircle( 6.00000000000000, 3.00000000000000, 0.00000000000000, 1.50000000000000 )
            circle4.Color = iwApp.GetRGBColor( 255, 128, 0 )
            circle4.Layer = "0"
            circle4.LineStyle = "Continuous"
            circle4.LineScale = 1.00000000000000
            circle4.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            circle4.Thickness = 0.00000000000000
            circle5 = iwSketchManager.InsertCircle( 2.00000000000000, 2.00000000000000, 0.00000000000000, 0.25000000000000 )
            circle5.Color = iwApp.GetColorByIndex( 256 )
            circle5.Layer = "0"
            circle5.LineStyle = "Continuous"
            circle5.LineScale = 1.00000000000000
            circle5.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            circle5.Thickness = 0.00000000000000
        End If

        Dim circlearc6 As Inkwright.CircleArc
        If 1 Then
            circlearc6 = iwSketchManager.InsertArc( 6.00000000000000, 3.00000000000000, 0.00000000000000, 4.00000000000000, 0.00000000000000, 1.57079632679490 )
            circlearc6.Color = iwApp.GetColorByIndex( 256 )
            circlearc6.Layer = "0"
            circlearc6.LineStyle = "Continuous"
            circlearc6.LineScale = 1.00000000000000
            circlearc6.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            circlearc6.Thickness = 0.00000000000000
        End If

        Dim point7 As Inkwright.Point
        Dim ray8 As Inkwright.Ray
        Dim infiniteline9 As Inkwright.InfiniteLine
        Dim ellipsearc10 As Inkwright.EllipseArc
        If 1 Then
            point7 = iwSketchManager.InsertPoint( 1.00000000000000, 2.00000000000000, 3.00000000000000 )
            point7.Color = iwApp.GetColorByIndex( 256 )
            point7.Layer = "0"
            point7.LineStyle = "Continuous"
            point7.LineScale = 1.00000000000000
            point7.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            point7.Thickness = 0.00000000000000
            ray8 = iwSketchManager.InsertRay( 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 1.00000000000000, 0.00000000000000 )
            ray8.Color = iwApp.GetColorByIndex( 256 )
            ray8.Layer = "0"
            ray8.LineStyle = "Continuous"
            ray8.LineScale = 1.00000000000000
            ray8.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            ray8.Thickness = 0.00000000000000
            infiniteline9 = iwSketchManager.InsertInfiniteLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 0.00000000000000 )
            infiniteline9.Color = iwApp.GetColorByIndex( 256 )
            infiniteline9.Layer = "0"
            infiniteline9.LineStyle = "Continuous"
            infiniteline9.LineScale = 1.00000000000000
            infiniteline9.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            infiniteline9.Thickness = 0.00000000000000
            ellipsearc10 = iwSketchManager.InsertEllipseDistanceToOtherAxis( 3.00000000000000, 0.00000000000000, -3.00000000000000, 0.00000000000000, 1.00000000000000 )
            ellipsearc10.Color = iwApp.GetColorByIndex( 256 )
            ellipsearc10.Layer = "0"
            ellipsearc10.LineStyle = "Continuous"
            ellipsearc10.LineScale = 1.00000000000000
            ellipsearc10.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            ellipsearc10.Thickness = 0.00000000000000
        End If

        If 1 Then
            ' AcDbLine object modified
            If 1 Then
                line1.Layer = "Hidden édges"
            End If

        End If

        If 1 Then
            ' AcDbLine object modified
            line2.Color = iwApp.GetColorByIndex( 5 )
            ' AcDbLine object modified
            line3.Color = iwApp.GetColorByIndex( 0 )
            line3.PrintStyle = "Style_1"
            Dim iwTransparency0 As Inkwright.Transparency
            iwTransparency0 = line3.Transparency
            iwTransparency0.SetByAlpha( 50 )
            line3.Transparency = iwTransparency0
        End If

        If 1 Then
            ' AcDbLine object modified
            If 1 Then
                Dim getX1 As Double
                Dim getY1 As Double
                Dim getZ1 As Double
                line1.GetSecondPoint( getX1, getY1, getZ1 )
                getX1 = 13.00000000000000
                line1.SetSecondPoint( getX1, getY1, getZ1 )
                Dim getX2 As Double
                Dim getY2 As Double
                Dim getZ2 As Double
                line1.GetSecondPoint( getX2, getY2, getZ2 )
                getY2 = 0.50000000000000
                line1.SetSecondPoint( getX2, getY2, getZ2 )
            End If

            ' AcDbLine object modified
            If 1 Then
                Dim getX3 As Double
                Dim getY3 As Double
                Dim getZ3 As Double
                line2.GetFirstPoint( getX3, getY3, getZ3 )
                getX3 = 13.00000000000000
                line2.SetFirstPoint( getX3, getY3, getZ3 )
            End If

        End If

        If 1 Then
            ' AcDbCircle object modified
            If 1 Then
                circle4.Radius = 2.00000000000000
                Dim X1 As Double
                Dim Y1 As Double
                Dim Z1 As Double
                circle4.GetCenter( X1, Y1, Z1 )
                Y1 = 4.00000000000000
                circle4.SetCenter( X1, Y1, Z1 )
                circle4.Radius = 2.00000000000000
                circle4.Radius = 2.00000000000000
                circle4.Radius = 2.00000000000000
            End If

        End If

        If 1 Then
            ' AcDbArc object modified
            If 1 Then
                Dim X1 As Double
                Dim Y1 As Double
                Dim Z1 As Double
                circlearc6.GetCenter( X1, Y1, Z1 )
                X1 = 7.00000000000000
                circlearc6.SetCenter( X1, Y1, Z1 )
                Dim X2 As Double
                Dim Y2 As Double
                Dim Z2 As Double
                circlearc6.GetCenter( X2, Y2, Z2 )
                Y2 = 4.00000000000000
                circlearc6.SetCenter( X2, Y2, Z2 )
                circlearc6.EndAngle = 3.00000000000000
                circlearc6.StartAngle = 0.50000000000000
            End If

            ' AcDbPoint object modified
            If 1 Then
                Dim getX3 As Double
                Dim getY3 As Double
                Dim getZ3 As Double
                point7.GetPosition( getX3, getY3, getZ3 )
                getZ3 = 0.00000000000000
                point7.SetPosition( getX3, getY3, getZ3 )
            End If

            ' AcDbRay object modified
            If 1 Then
                Dim X4 As Double
                Dim Y4 As Double
                Dim Z4 As Double
                ray8.GetBasePoint( X4, Y4, Z4 )
                X4 = 1.00000000000000
                ray8.SetBasePoint( X4, Y4, Z4 )
                Dim X5 As Double
                Dim Y5 As Double
                Dim Z5 As Double
                ray8.GetThroughPoint( X5, Y5, Z5 )
                Y5 = 2.00000000000000
                ray8.SetThroughPoint( X5, Y5, Z5 )
            End If

            ' AcDbXline object modified
            If 1 Then
                Dim getX6 As Double
                Dim getY6 As Double
                Dim getZ6 As Double
                infiniteline9.GetFirstPoint( getX6, getY6, getZ6 )
                getY6 = 1.00000000000000
                infiniteline9.SetFirstPoint( getX6, getY6, getZ6 )
                Dim getX7 As Double
                Dim getY7 As Double
                Dim getZ7 As Double
                infiniteline9.GetSecondPoint( getX7, getY7, getZ7 )
                getX7 = 2.00000000000000
                infiniteline9.SetSecondPoint( getX7, getY7, getZ7 )
            End If

            ' AcDbEllipse object modified
            If 1 Then
                ellipsearc10.EndAngle = 3.00000000000000
                ellipsearc10.MajorRadius = 3.50000000000000
            End If

        End If

        If 1 Then
            ' AcDbCircle object modified
            If 1 Then
                Dim iwTransparency1 As Inkwright.Transparency
                iwTransparency1 = circle5.Transparency
                iwTransparency1.SetByLayer()
                circle5.Transparency = iwTransparency1
            End If

            ' AcDbCircle object modified
            If 1 Then
                Dim iwTransparency2 As Inkwright.Transparency
                iwTransparency2 = circle4.Transparency
                iwTransparency2.SetByBlock()
                circle4.Transparency = iwTransparency2
            End If

        End If

        If 1 Then
            ' AcDbCircle object modified
            If 1 Then
                circle5.Erased = True
            End If

        End If

        ' AcDbLine object modified
        If 1 Then
            line1.LineScale = 2.50000000000000
            line1.Thickness = 0.50000000000000
        End If

        If 1 Then
            Dim getX1 As Double
            Dim getY1 As Double
            Dim getZ1 As Double
            line2.GetSecondPoint( getX1, getY1, getZ1 )
            getY1 = 9.00000000000000
            line2.SetSecondPoint( getX1, getY1, getZ1 )
        End If

