        Dim line1 As Inkwright.Line
        Dim line2 As Inkwright.Line
        Dim line3 As Inkwright.Line
        Dim line4 As Inkwright.Line
        If 1 Then
            Set line1 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 120.00000000000000, 0.00000000000000, 0.00000000000000 )
            line1.Color = iwApp.GetColorByIndex( 256 )
            line1.Layer = "0"
            line1.LineStyle = "Continuous"
            line1.LineScale = 1.00000000000000
            line1.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            line1.Thickness = 0.00000000000000
            Set line2 = iwSketchManager.InsertLine( 120.00000000000000, 0.00000000000000, 0.00000000000000, 120.00000000000000, 80.50000000000000, 0.00000000000000 )
            line2.Color = iwApp.GetColorByIndex( 256 )
            line2.Layer = "0"
            line2.LineStyle = "Continuous"
            line2.LineScale = 1.00000000000000
            line2.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            line2.Thickness = 0.00000000000000
            Set line3 = iwSketchManager.InsertLine( 120.00000000000000, 80.50000000000000, 0.00000000000000, 0.00000000000000, 80.50000000000000, 0.00000000000000 )
            line3.Color = iwApp.GetColorByIndex( 1 )
            line3.Layer = "0"
            line3.LineStyle = "Continuous"
            line3.LineScale = 1.00000000000000
            line3.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            line3.Thickness = 0.00000000000000
            Set line4 = iwSketchManager.InsertLine( 0.00000000000000, 80.50000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000 )
            line4.Color = iwApp.GetRGBColor( 255, 128, 0 )
            line4.Layer = "0"
            line4.LineStyle = "Continuous"
            line4.LineScale = 1.00000000000000
            line4.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            line4.Thickness = 0.00000000000000
        End If

        Dim circle5 As Inkwright.Circle
        Dim circle6 As Inkwright.Circle
        If 1 Then
            Set circle5 = iwSketchManager.InsertCircle( 20.00000000000000, 20.00000000000000, 0.00000000000000, 6.25000000000000 )
            circle5.Color = iwApp.GetColorByIndex( 256 )
            circle5.Layer = "0"
            circle5.LineStyle = "Continuous"
            circle5.LineScale = 1.00000000000000
            circle5.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            circle5.Thickness = 0.00000000000000
            Set circle6 = iwSketchManager.InsertCircle( 100.00000000000000, 20.00000000000000, 0.00000000000000, 1.00000000000000 )
            circle6.Color = iwApp.GetColorByIndex( 256 )
            circle6.Layer = "0"
            circle6.LineStyle = "Continuous"
            circle6.LineScale = 1.00000000000000
            circle6.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            circle6.Thickness = 0.00000000000000
        End If

        Dim circlearc7 As Inkwright.CircleArc
        Dim circlearc8 As Inkwright.CircleArc
        If 1 Then
            Set circlearc7 = iwSketchManager.InsertArc( 60.00000000000000, 40.00000000000000, 0.00000000000000, 15.00000000000000, 0.78539816339745, 2.35619449019234 )
            Set circlearc8 = iwSketchManager.InsertArc( 60.00000000000000, 40.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000 )
        End If

        Dim ellipsearc10 As Inkwright.EllipseArc
        Dim ellipsearc11 As Inkwright.EllipseArc
        If 1 Then
            Set ellipsearc10 = iwSketchManager.InsertEllipseDistanceToOtherAxis( 90.00000000000000, 40.00000000000000, 30.00000000000000, 40.00000000000000, 12.50000000000000 )
            Set ellipsearc11 = iwSketchManager.InsertEllipseArcDistanceToOtherAxis( 60.10000000000000, 40.20000000000000, 59.90000000000000, 39.80000000000000, 1.00000000000000, 0.00000000000000, 6.28318530717958 )
        End If

        Dim point12 As Inkwright.Point
        Dim point13 As Inkwright.Point
        If 1 Then
            Set point12 = iwSketchManager.InsertPoint( -0.00000000000000, 0.00000000000000, 0.00000000000001 )
            Set point13 = iwSketchManager.InsertPoint( 0.00000000000000, 7.00000000000000, 0.00000000000000 )
        End If

        Dim ray14 As Inkwright.Ray
        If 1 Then
            Set ray14 = iwSketchManager.InsertRay( 1.00000000000000, 2.00000000000000, 3.00000000000000, 4.00000000000000, 5.00000000000000, 6.00000000000000 )
        End If

        Dim infiniteline15 As Inkwright.InfiniteLine
        If 1 Then
            Set infiniteline15 = iwSketchManager.InsertInfiniteLine( -1.00000000000000, -2.00000000000000, -3.00000000000000, 123456789.12345679104328, 0.00000000000000, 0.33333333333333 )
        End If

        Dim circle16 As Inkwright.Circle
        Set circle16 = iwSketchManager.InsertCircle( 10.06250000000000, 11.00003051757813, 0.00000000000000, 2.00000000000000 )
        circle16.Color = iwApp.GetColorByIndex( 256 )
        circle16.Layer = "0"
        circle16.LineStyle = "Continuous"
        circle16.LineScale = 1.00000000000000
        circle16.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
        circle16.Thickness = 0.00000000000000
        ' AcDbLine object modified
        If 1 Then
            Dim getX1 As Double
            Dim getY1 As Double
            Dim getZ1 As Double
            line1.GetSecondPoint getX1, getY1, getZ1
            getX1 = 130.00000000000000
            line1.SetSecondPoint getX1, getY1, getZ1
        End If

        Dim line18 As Inkwright.Line
        Set line18 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.10000000000000, 0.20000000000000, 0.00000000000000 )
        line18.Color = iwApp.GetColorByIndex( 256 )
        line18.Layer = "0"
        line18.LineStyle = "Continuous"
        line18.LineScale = 1.00000000000000
        line18.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
        line18.Thickness = 0.00000000000000
