        Dim line1 As Inkwright.Line
        Dim spline2 As Inkwright.Spline
        If 1 Then
            line1 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 40.00000000000000, 0.00000000000000, 0.00000000000000 )
            Dim Coordinates1(8) As Double
            Coordinates1( 0 )=0.00000000000000
            Coordinates1( 1 )=60.00000000000000
            Coordinates1( 2 )=0.00000000000000
            Coordinates1( 3 )=10.00000000000000
            Coordinates1( 4 )=65.00000000000000
            Coordinates1( 5 )=0.00000000000000
            Coordinates1( 6 )=20.00000000000000
            Coordinates1( 7 )=60.00000000000000
            Coordinates1( 8 )=0.00000000000000

            spline2 = iwSketchManager.InsertSpline( Coordinates1, False, 0.00000000000000, 0.00000000000000 ,0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000 )
        End If

        Dim hatch3 As Inkwright.Hatch
        If 1 Then
            Dim Coordinates1(3) As Double
            Coordinates1( 0 )=2.00000000000000
            Coordinates1( 1 )=1.00000000000000
            Coordinates1( 2 )=30.00000000000000
            Coordinates1( 3 )=12.50000000000000

            hatch3 = iwSketchManager.InsertHatchByInternalPoints( Coordinates1, "ANSI31", 1.50000000000000, 0.78539816339745 )
            Dim hatchPattern As Inkwright.HatchPattern
            hatchPattern = hatch3.GetHatchPattern()

            hatchPattern.InternalRegionDetection = Inkwright.iwHatchPatternInternalRegionDetection_e.iwHatchPatternInternalRegionDetection_Outer
            Dim x2 As Double
            Dim y2 As Double
            hatchPattern.GetOrigin( x2, y2 )
            hatchPattern.SetOrigin( 4.00000000000000, y2 )
            Dim x3 As Double
            Dim y3 As Double
            hatchPattern.GetOrigin( x3, y3 )
            hatchPattern.SetOrigin( x3, -2.50000000000000 )
            hatch3.Color = iwApp.GetColorByIndex( 3 )
            hatch3.Layer = "Planting"
        End If

        Dim hatch4 As Inkwright.Hatch
        If 1 Then
            Dim hatchCircle_0 As Inkwright.Circle
            hatchCircle_0 = iwSketchManager.InsertCircle( 10.00000000000000, 10.00000000000000, 0.00000000000000, 2.50000000000000 )
            Dim hatchTable_0 As Inkwright.Table
            hatchTable_0 = iwSketchManager.InsertTable( 60.00000000000000, 20.00000000000000, 3, 2, 10.00000000000000, 25.00000000000000, 1, 2, 3 )
            Dim hatchRegion_0 As Inkwright.Region
            Dim circle_0 As Inkwright.Circle
            circle_0 = iwSketchManager.InsertCircle( 90.00000000000000, 10.00000000000000, 0.00000000000000, 1.00000000000000 )
            Dim ellipse_0 As Inkwright.EllipseArc
            ellipse_0 = iwSketchManager.InsertEllipseDistanceToOtherAxis( 93.00000000000000, 20.00000000000000, 87.00000000000000, 20.00000000000000, 1.00000000000000 )
            Dim arc_0 As Inkwright.CircleArc
            arc_0 = iwSketchManager.InsertArc( 90.00000000000000, 30.00000000000000, 0.00000000000000, 2.00000000000000, 0.00000000000000, 1.50000000000000 )
            Dim line_0 As Inkwright.Line
            line_0 = iwSketchManager.InsertLine( 90.00000000000000, 40.00000000000000, 0.00000000000000, 95.00000000000000, 40.00000000000000, 0.00000000000000 )

            Dim iwEntities_1 As DispatchWrapper() = New DispatchWrapper(3) {}
            iwEntities_1(0) = New DispatchWrapper(circle_0)
            iwEntities_1(1) = New DispatchWrapper(ellipse_0)
            iwEntities_1(2) = New DispatchWrapper(arc_0)
            iwEntities_1(3) = New DispatchWrapper(line_0)
            Dim regionArray1 As Object
            iwSketchManager.InsertRegion( iwEntities_1, regionArray1 )

            Dim iwRegionObjs As Object() = DirectCast(regionArray1, Object())
            hatchRegion_0 = TryCast(iwRegionObjs(0), Inkwright.Region)
            Dim hatchBlkRef_0 As Inkwright.BlockInstance
            hatchBlkRef_0 = iwSketchManager.InsertExternalReference(  "Tree", 5.00000000000000, 30.00000000000000, 0.00000000000000, 1.00000000000000, 2.00000000000000)
            Dim hatchBlkRef_1 As Inkwright.BlockInstance
            hatchBlkRef_1 = iwSketchManager.InsertExternalReference(  "survey.dwg", 15.00000000000000, 30.00000000000000, 1.00000000000000, 1.00000000000000, 1.00000000000000)
            Dim hatchPolygonMesh_0 As Inkwright.PolygonMesh
            Dim Coordinates1(17) As Double
            Coordinates1( 0 )=0.00000000000000
            Coordinates1( 1 )=0.00000000000000
            Coordinates1( 2 )=0.00000000000000
            Coordinates1( 3 )=1.00000000000000
            Coordinates1( 4 )=0.00000000000000
            Coordinates1( 5 )=0.00000000000000
            Coordinates1( 6 )=2.00000000000000
            Coordinates1( 7 )=0.00000000000000
            Coordinates1( 8 )=0.00000000000000
            Coordinates1( 9 )=0.00000000000000
            Coordinates1( 10 )=1.00000000000000
            Coordinates1( 11 )=0.00000000000000
            Coordinates1( 12 )=1.00000000000000
            Coordinates1( 13 )=1.00000000000000
            Coordinates1( 14 )=0.50000000000000
            Coordinates1( 15 )=2.00000000000000
            Coordinates1( 16 )=1.00000000000000
            Coordinates1( 17 )=0.00000000000000

            hatchPolygonMesh_0 = iwSketchManager.InsertPolygonMesh( 2, 3, Coordinates1 )
            Dim hatchPolyFaceMesh_0 As Inkwright.PolyFaceMesh
            Dim Coordinates2(14) As Double
            Dim FaceVerticesCountLongArray2(1) As Integer
            Dim FaceVerticesLongArray2(6) As Integer
            Coordinates2( 0 )=0.00000000000000
            Coordinates2( 1 )=0.00000000000000
            Coordinates2( 2 )=0.00000000000000
            Coordinates2( 3 )=1.00000000000000
            Coordinates2( 4 )=0.00000000000000
            Coordinates2( 5 )=0.00000000000000
            Coordinates2( 6 )=1.00000000000000
            Coordinates2( 7 )=1.00000000000000
            Coordinates2( 8 )=0.00000000000000
            Coordinates2( 9 )=0.00000000000000
            Coordinates2( 10 )=1.00000000000000
            Coordinates2( 11 )=0.00000000000000
            Coordinates2( 12 )=0.50000000000000
            Coordinates2( 13 )=0.50000000000000
            Coordinates2( 14 )=1.00000000000000

            FaceVerticesCountLongArray2(0) = 4
            FaceVerticesCountLongArray2(1) = 3

            FaceVerticesLongArray2(0) = 1
            FaceVerticesLongArray2(1) = 2
            FaceVerticesLongArray2(2) = 3
            FaceVerticesLongArray2(3) = 4
            FaceVerticesLongArray2(4) = 1
            FaceVerticesLongArray2(5) = 2
            FaceVerticesLongArray2(6) = 5

            hatchPolyFaceMesh_0 = iwSketchManager.InsertPolyFaceMesh( 5, Coordinates2, FaceVerticesCountLongArray2, FaceVerticesLongArray2 )
            Dim hatchSolid_0 As Inkwright.Solid
            Dim Coordinates3(11) As Double
            Coordinates3( 0 )=0.00000000000000
            Coordinates3( 1 )=40.00000000000000
            Coordinates3( 2 )=0.00000000000000
            Coordinates3( 3 )=5.00000000000000
            Coordinates3( 4 )=40.00000000000000
            Coordinates3( 5 )=0.00000000000000
            Coordinates3( 6 )=0.00000000000000
            Coordinates3( 7 )=45.00000000000000
            Coordinates3( 8 )=0.00000000000000
            Coordinates3( 9 )=5.00000000000000
            Coordinates3( 10 )=45.00000000000000
            Coordinates3( 11 )=0.00000000000000

            hatchSolid_0 = iwSketchManager.InsertSolid( Coordinates3 )
            Dim hatchPolyLine3D_0 As Inkwright.PolyLine3D
            Dim Coordinates4(8) As Double
            Coordinates4( 0 )=0.00000000000000
            Coordinates4( 1 )=0.00000000000000
            Coordinates4( 2 )=0.00000000000000
            Coordinates4( 3 )=3.00000000000000
            Coordinates4( 4 )=0.00000000000000
            Coordinates4( 5 )=1.00000000000000
            Coordinates4( 6 )=3.00000000000000
            Coordinates4( 7 )=3.00000000000000
            Coordinates4( 8 )=2.00000000000000

            hatchPolyLine3D_0 = iwSketchManager.InsertPolyline3D( Coordinates4, True )
            Dim hatchArc_0 As Inkwright.CircleArc
            hatchArc_0 = iwSketchManager.InsertArc( 20.00000000000000, 10.00000000000000, 0.00000000000000, 4.00000000000000, 0.50000000000000, 2.25000000000000 )
            Dim hatchPolyline_0 As Inkwright.PolyLine
            Dim Coordinates5(7) As Double
            Coordinates5( 0 )=0.00000000000000
            Coordinates5( 1 )=0.00000000000000
            Coordinates5( 2 )=12.50000000000000
            Coordinates5( 3 )=0.00000000000000
            Coordinates5( 4 )=12.50000000000000
            Coordinates5( 5 )=8.00000000000000
            Coordinates5( 6 )=0.00000000000000
            Coordinates5( 7 )=8.00000000000000

            hatchPolyline_0 = iwSketchManager.InsertPolyline2D( Coordinates5, True )
            hatchPolyline_0.SetSegmentAngle( 1, 3.14159 )
            hatchPolyline_0.SetSegmentAngle( 3, -1.5708 )
            Dim hatcEllipse_0 As Inkwright.EllipseArc
            hatcEllipse_0 = iwSketchManager.InsertEllipseDistanceToOtherAxis( 36.00000000000000, 10.00000000000000, 24.00000000000000, 10.00000000000000, 5.00000000000000 )
            Dim hatcEllipse_1 As Inkwright.EllipseArc
            hatcEllipse_1 = iwSketchManager.InsertEllipseArcDistanceToOtherAxis( 45.00000000000000, 16.00000000000000, 45.00000000000000, 4.00000000000000, 2.00000000000000, 0.00000000000000, 6.28318530717959 )
            Dim hatchLine_0 As Inkwright.Line
            hatchLine_0 = iwSketchManager.InsertLine( 40.00000000000000, 0.00000000000000, 0.00000000000000, 40.00000000000000, 25.00000000000000, 0.00000000000000 )
            Dim hatchLine_1 As Inkwright.Line
            hatchLine_1 = iwSketchManager.InsertLine( 40.00000000000000, 25.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000 )
            Dim hatchFace_0 As Inkwright.Face
            Dim Coordinates6(11) As Double
            Coordinates6( 0 )=0.00000000000000
            Coordinates6( 1 )=0.00000000000000
            Coordinates6( 2 )=0.00000000000000
            Coordinates6( 3 )=1.00000000000000
            Coordinates6( 4 )=0.00000000000000
            Coordinates6( 5 )=0.00000000000000
            Coordinates6( 6 )=1.00000000000000
            Coordinates6( 7 )=1.00000000000000
            Coordinates6( 8 )=0.00000000000000
            Coordinates6( 9 )=0.00000000000000
            Coordinates6( 10 )=1.00000000000000
            Coordinates6( 11 )=0.00000000000000

            hatchFace_0 = iwSketchManager.InsertFace( Coordinates6, True, True, False, True )
            Dim hatchRichLine_0 As Inkwright.RichLine
            Dim Coordinates7(5) As Double
            Coordinates7( 0 )=0.00000000000000
            Coordinates7( 1 )=50.00000000000000
            Coordinates7( 2 )=0.00000000000000
            Coordinates7( 3 )=20.00000000000000
            Coordinates7( 4 )=50.00000000000000
            Coordinates7( 5 )=0.00000000000000

            hatchRichLine_0 = iwSketchManager.InsertRichLine( Coordinates7, Inkwright.iwRichLineJustification_e.iwRichLineJustification_Zero, 0.75000000000000, "Wall", False )
            Dim hatchLeader_0 As Inkwright.Leader
            Dim Coordinates8(5) As Double
            Coordinates8( 0 )=70.00000000000000
            Coordinates8( 1 )=10.00000000000000
            Coordinates8( 2 )=0.00000000000000
            Coordinates8( 3 )=75.00000000000000
            Coordinates8( 4 )=15.00000000000000
            Coordinates8( 5 )=0.00000000000000

            hatchLeader_0 = iwSketchManager.InsertLeader( Coordinates8, 12.50000000000000, "\fArial;Lawn" )
            Dim hatchLeader_1 As Inkwright.Leader
            Dim Coordinates9(5) As Double
            Coordinates9( 0 )=80.00000000000000
            Coordinates9( 1 )=10.00000000000000
            Coordinates9( 2 )=0.00000000000000
            Coordinates9( 3 )=85.00000000000000
            Coordinates9( 4 )=15.00000000000000
            Coordinates9( 5 )=0.00000000000000

            hatchLeader_1 = iwSketchManager.InsertLeader( Coordinates9, 0.00000000000000, "" )
            Dim iwEntities As DispatchWrapper() = New DispatchWrapper(19) {}
            iwEntities(0) = New DispatchWrapper(line1)
            iwEntities(1) = New DispatchWrapper(hatchCircle_0)
            iwEntities(2) = New DispatchWrapper(hatchTable_0)
            iwEntities(3) = New DispatchWrapper(hatchRegion_0)
            iwEntities(4) = New DispatchWrapper(hatchBlkRef_0)
            iwEntities(5) = New DispatchWrapper(hatchBlkRef_1)
            iwEntities(6) = New DispatchWrapper(hatchPolygonMesh_0)
            iwEntities(7) = New DispatchWrapper(hatchPolyFaceMesh_0)
            iwEntities(8) = New DispatchWrapper(hatchSolid_0)
            iwEntities(9) = New DispatchWrapper(hatchPolyLine3D_0)
            iwEntities(10) = New DispatchWrapper(hatchArc_0)
            iwEntities(11) = New DispatchWrapper(hatchPolyline_0)
            iwEntities(12) = New DispatchWrapper(hatcEllipse_0)
            iwEntities(13) = New DispatchWrapper(hatcEllipse_1)
            iwEntities(14) = New DispatchWrapper(hatchLine_0)
            iwEntities(15) = New DispatchWrapper(hatchLine_1)
            iwEntities(16) = New DispatchWrapper(hatchFace_0)
            iwEntities(17) = New DispatchWrapper(hatchRichLine_0)
            iwEntities(18) = New DispatchWrapper(hatchLeader_0)
            iwEntities(19) = New DispatchWrapper(hatchLeader_1)

            hatch4 = iwSketchManager.InsertHatchByEntities( iwEntities, "AR-CONC", 1234567.50000000000000, 0.00000000000000 )
            hatchCircle_0.Erased = true
            hatchTable_0.Erased = true
            hatchRegion_0.Erased = true
            hatchBlkRef_0.Erased = true
            hatchBlkRef_1.Erased = true
            hatchPolygonMesh_0.Erased = true
            hatchPolyFaceMesh_0.Erased = true
            hatchSolid_0.Erased = true
            hatchPolyLine3D_0.Erased = true
            hatchArc_0.Erased = true
            hatchPolyline_0.Erased = true
            hatcEllipse_0.Erased = true
            hatcEllipse_1.Erased = true
            hatchLine_0.Erased = true
            hatchLine_1.Erased = true
            hatchFace_0.Erased = true
            hatchRichLine_0.Erased = true
            hatchLeader_0.Erased = true
            hatchLeader_1.Erased = true

            Dim hatchPattern As Inkwright.HatchPattern
            hatchPattern = hatch4.GetHatchPattern()
            Dim x10 As Double
            Dim y10 As Double
            hatchPattern.GetOrigin( x10, y10 )
            hatchPattern.SetOrigin( 1.00000000000000, y10 )
            hatch4.Color = iwApp.GetColorByIndex( 3 )
            hatch4.Layer = "Planting"
        End If

        Dim hatch5 As Inkwright.Hatch
        If 1 Then
            Dim hatchCircle_1 As Inkwright.Circle
            hatchCircle_1 = iwSketchManager.InsertCircle( 10.00000000000000, 10.00000000000000, 0.00000000000000, 2.50000000000000 )
            Dim iwEntities As DispatchWrapper() = New DispatchWrapper(1) {}
            iwEntities(0) = New DispatchWrapper(line1)
            iwEntities(1) = New DispatchWrapper(hatchCircle_1)
            hatch5 = iwSketchManager.InsertHatchByEntities( iwEntities, "GRASS", 0.10000000000000, 0.25000000000000 )

            Dim hatchPattern1 As Inkwright.HatchPattern
            hatchPattern1 = hatch5.GetHatchPattern()
            hatchPattern1.SetGradientData( iwApp.GetColorByIndex( 3 ), iwApp.GetRGBColor( 12 ,200 ,255 ), True, 0.50000000000000)
        End If

        Dim hatch6 As Inkwright.Hatch
        If 1 Then
            Dim iwEntities As DispatchWrapper() = New DispatchWrapper(-1) {}
            hatch6 = iwSketchManager.InsertHatchByEntities( iwEntities, "SOLID", 1.00000000000000, 0.00000000000000 )
        End If

        Dim hatch7 As Inkwright.Hatch
        If 1 Then
            Dim hatch_Polyline_0 As Inkwright.PolyLine
            Dim Coordinates1(7) As Double
            Coordinates1( 0 )=0
            Coordinates1( 1 )=0
            Coordinates1( 2 )=12.5
            Coordinates1( 3 )=0
            Coordinates1( 4 )=12.5
            Coordinates1( 5 )=8.12346
            Coordinates1( 6 )=0
            Coordinates1( 7 )=8

            hatch_Polyline_0 = iwSketchManager.InsertPolyline2D( Coordinates1, True )
            hatch_Polyline_0.SetSegmentAngle( 1, 3.14159 )
            hatch_Polyline_0.SetSegmentAngle( 3, -1.5708 )

            Dim iwEntities As DispatchWrapper() = New DispatchWrapper(0) {}
            iwEntities(0) = New DispatchWrapper( hatch_Polyline_0 )
            hatch7 = iwSketchManager.InsertHatchByEntities( iwEntities, "GRAVEL", 2.00000000000000, 0.00000000000000 )

            hatch_Polyline_0.Erased = True

            Dim hatchPattern2 As Inkwright.HatchPattern
            hatchPattern2 = hatch7.GetHatchPattern()
            hatchPattern2.SetGradientData( iwApp.GetRGBColor( 255 ,0 ,0 ), iwApp.GetColorByIndex( 7 ), False, 1.25000000000000)
        End If

        Dim hatch8 As Inkwright.Hatch
        If 1 Then
            Dim hatch_Polyline_1 As Inkwright.PolyLine
            Dim Coordinates1(5) As Double
            Coordinates1( 0 )=0
            Coordinates1( 1 )=0
            Coordinates1( 2 )=4
            Coordinates1( 3 )=0
            Coordinates1( 4 )=4
            Coordinates1( 5 )=3

            hatch_Polyline_1 = iwSketchManager.InsertPolyline2D( Coordinates1, True )

            Dim iwEntities As DispatchWrapper() = New DispatchWrapper(0) {}
            iwEntities(0) = New DispatchWrapper( hatch_Polyline_1 )
            hatch8 = iwSketchManager.InsertHatchByEntities( iwEntities, "GRAVEL", 2.00000000000000, 0.00000000000000 )
        End If

        Dim hatch9 As Inkwright.Hatch
        If 1 Then
            Dim Coordinates1(15) As Double
            Dim BoundaryPointCountLongArray1(1) As Long
            Coordinates1( 0 )=0.00000000000000
            Coordinates1( 1 )=0.00000000000000
            Coordinates1( 2 )=20.00000000000000
            Coordinates1( 3 )=0.00000000000000
            Coordinates1( 4 )=20.00000000000000
            Coordinates1( 5 )=10.00000000000000
            Coordinates1( 6 )=0.00000000000000
            Coordinates1( 7 )=10.00000000000000
            Coordinates1( 8 )=5.00000000000000
            Coordinates1( 9 )=5.00000000000000
            Coordinates1( 10 )=8.00000000000000
            Coordinates1( 11 )=5.00000000000000
            Coordinates1( 12 )=8.00000000000000
            Coordinates1( 13 )=8.00000000000000
            Coordinates1( 14 )=0.00000000000000
            Coordinates1( 15 )=0.00000000000000

            BoundaryPointCountLongArray1(0) = 4
            BoundaryPointCountLongArray1(1) = 3

            hatch9 = iwSketchManager.InsertHatchByBoundary( BoundaryPointCountLongArray1, Coordinates1, "BRICK", 0.75000000000000, 1.57079632679490 )

            Dim hatchPattern2 As Inkwright.HatchPattern
            hatchPattern2 = hatch9.GetHatchPattern()
            hatchPattern2.SetGradientData( iwApp.GetRGBColor( 0 ,0 ,0 ), iwApp.GetColorByIndex( 1 ), False, 0.00000000000000)
            Dim hatchPattern As Inkwright.HatchPattern
            hatchPattern = hatch9.GetHatchPattern()

            hatchPattern.InternalRegionDetection = Inkwright.iwHatchPatternInternalRegionDetection_e.iwHatchPatternInternalRegionDetection_Ignore
        End If

        Dim hatch11 As Inkwright.Hatch
        If 1 Then
            Dim Coordinates1(1) As Double
            Coordinates1( 0 )=50.00000000000000
            Coordinates1( 1 )=5.00000000000000

            hatch11 = iwSketchManager.InsertHatchByInternalPoints( Coordinates1, "CROSS", 1.00000000000000, 0.00000000000000 )

            Dim hatchPattern2 As Inkwright.HatchPattern
            hatchPattern2 = hatch11.GetHatchPattern()
            hatchPattern2.SetGradientData( iwApp.GetColorByIndex( 5 ), iwApp.GetColorByIndex( 6 ), True, 0.12500000000000)
        End If

        If 1 Then
            ' AcDbHatch object modified
            If 1 Then
                Dim hatchPattern As Inkwright.HatchPattern
                hatchPattern = hatch3.GetHatchPattern()
                Dim PatternName As String
                Dim Angle As Double
                Dim Scale As Double
                Dim HatchPatternType As Inkwright.iwHatchPatternType_e
                Dim Spacing As Double

                hatchPattern.GetHatchOrSolidData( PatternName, Angle, Scale, HatchPatternType, Spacing )

                Angle = 0.50000000000000
                Scale = 3.00000000000000
                Spacing = 1.25000000000000
                PatternName = "ANSI37"
                HatchPatternType = Inkwright.iwHatchPatternType_e.iwHatchPatternType_UserDefined
                hatchPattern.SetHatchOrSolidData( PatternName, Angle, Scale, HatchPatternType, Spacing )

            End If

        End If

        If 1 Then
            ' AcDbHatch object modified
            If 1 Then
                Dim hatchPattern As Inkwright.HatchPattern
                hatchPattern = hatch5.GetHatchPattern()

                Dim color1 As Inkwright.Color
                Dim color2 As Inkwright.Color
                Dim bCentered As Boolean
                Dim gradientAngle As Double

                hatchPattern.GetGradientData( color1, color2, bCentered, gradientAngle)
                color1 = iwApp.GetColorByIndex( 2 )
                color2 = iwApp.GetRGBColor( 1 ,2 ,3 )
                gradientAngle = 0.75000000000000
                bCentered = True
                hatchPattern.SetGradientData(color1, color2, bCentered, gradientAngle)
            End If

        End If

        If 1 Then
            ' AcDbHatch object modified
            hatch4.Color = iwApp.GetColorByIndex( 1 )
            Dim hatchPattern As Inkwright.HatchPattern
            hatchPattern = hatch4.GetHatchPattern()
            Dim PatternName As String
            Dim Angle As Double
            Dim Scale As Double
            Dim HatchPatternType As Inkwright.iwHatchPatternType_e
            Dim Spacing As Double

            hatchPattern.GetHatchOrSolidData( PatternName, Angle, Scale, HatchPatternType, Spacing )

            HatchPatternType = Inkwright.iwHatchPatternType_e.iwHatchPatternType_Custom
            hatchPattern.SetHatchOrSolidData( PatternName, Angle, Scale, HatchPatternType, Spacing )


            Dim color1 As Inkwright.Color
            Dim color2 As Inkwright.Color
            Dim bCentered As Boolean
            Dim gradientAngle As Double

            hatchPattern.GetGradientData( color1, color2, bCentered, gradientAngle)
            bCentered = False
            hatchPattern.SetGradientData(color1, color2, bCentered, gradientAngle)

            hatchPattern.InternalRegionDetection = Inkwright.iwHatchPatternInternalRegionDetection_e.iwHatchPatternInternalRegionDetection_Ignore
            Dim x1 As Double
            Dim y1 As Double
            hatchPattern.GetOrigin( x1, y1 )
            hatchPattern.SetOrigin( x1, 7.00000000000000 )
        End If

        If 1 Then
            Dim hatchPattern As Inkwright.HatchPattern
            hatchPattern = hatch9.GetHatchPattern()
            Dim PatternName As String
            Dim Angle As Double
            Dim Scale As Double
            Dim HatchPatternType As Inkwright.iwHatchPatternType_e
            Dim Spacing As Double

            hatchPattern.GetHatchOrSolidData( PatternName, Angle, Scale, HatchPatternType, Spacing )

            Scale = 2.50000000000000
            hatchPattern.SetHatchOrSolidData( PatternName, Angle, Scale, HatchPatternType, Spacing )

        End If

