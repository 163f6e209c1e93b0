        Dim polyline1 As Inkwright.PolyLine
        If 1 Then
            Dim Coordinates1(5) As Double
            Coordinates1( 0 )=0.00000000000000
            Coordinates1( 1 )=0.00000000000000
            Coordinates1( 2 )=120.50000000000000
            Coordinates1( 3 )=0.00000000000000
            Coordinates1( 4 )=120.50000000000000
            Coordinates1( 5 )=80.00000000000000

            polyline1 = iwSketchManager.InsertPolyline2D( Coordinates1, True )
        End If

        Dim polyline2 As Inkwright.PolyLine
        If 1 Then
            Dim Coordinates1(1) As Double
            Coordinates1( 0 )=1.00000000000000
            Coordinates1( 1 )=2.00000000000000

            polyline2 = iwSketchManager.InsertPolyline2D( Coordinates1, False )
        End If

        Dim polyline3d3 As Inkwright.PolyLine3D
        If 1 Then
            Dim Coordinates1(8) As Double
            Coordinates1( 0 )=0.00000000000000
            Coordinates1( 1 )=0.00000000000000
            Coordinates1( 2 )=1.50000000000000
            Coordinates1( 3 )=10.00000000000000
            Coordinates1( 4 )=4.00000000000000
            Coordinates1( 5 )=1.00000000000000
            Coordinates1( 6 )=20.00000000000000
            Coordinates1( 7 )=5.00000000000000
            Coordinates1( 8 )=0.25000000000000

            polyline3d3 = iwSketchManager.InsertPolyline3D( Coordinates1, True )
        End If

        Dim spline4 As Inkwright.Spline
        If 1 Then
            Dim Coordinates1(8) As Double
            Coordinates1( 0 )=0.00000000000000
            Coordinates1( 1 )=0.00000000000000
            Coordinates1( 2 )=0.00000000000000
            Coordinates1( 3 )=5.00000000000000
            Coordinates1( 4 )=5.00000000000000
            Coordinates1( 5 )=0.00000000000000
            Coordinates1( 6 )=10.00000000000000
            Coordinates1( 7 )=0.00000000000000
            Coordinates1( 8 )=0.00000000000000

            spline4 = iwSketchManager.InsertSpline( Coordinates1, False, 1.00000000000000, 0.50000000000000 ,0.00000000000000, 0.00000000000000, -1.00000000000000, 0.12500000000000 )
            spline4.FitTolerance = 0.01000000000000
        End If

        Dim richline5 As Inkwright.RichLine
        If 1 Then
            Dim Coordinates1(5) As Double
            Coordinates1( 0 )=0.00000000000000
            Coordinates1( 1 )=10.00000000000000
            Coordinates1( 2 )=0.00000000000000
            Coordinates1( 3 )=50.00000000000000
            Coordinates1( 4 )=10.00000000000000
            Coordinates1( 5 )=0.00000000000000

            richline5 = iwSketchManager.InsertRichLine( Coordinates1, Inkwright.iwRichLineJustification_e.iwRichLineJustification_Zero, 7.50000000000000, "STANDARD", False )
        End If

        Dim richline6 As Inkwright.RichLine
        If 1 Then
            Dim Coordinates1(8) As Double
            Coordinates1( 0 )=0.00000000000000
            Coordinates1( 1 )=20.00000000000000
            Coordinates1( 2 )=0.00000000000000
            Coordinates1( 3 )=50.00000000000000
            Coordinates1( 4 )=20.00000000000000
            Coordinates1( 5 )=0.00000000000000
            Coordinates1( 6 )=50.00000000000000
            Coordinates1( 7 )=30.00000000000000
            Coordinates1( 8 )=0.00000000000000

            richline6 = iwSketchManager.InsertRichLine( Coordinates1, Inkwright.iwRichLineJustification_e.iwRichLineJustification_Bottom, 1.00000000000000, "Road", True )
        End If

        Dim face7 As Inkwright.Face
        If 1 Then
            Dim Coordinates1(11) As Double
            Coordinates1( 0 )=0.00000000000000
            Coordinates1( 1 )=0.00000000000000
            Coordinates1( 2 )=0.00000000000000
            Coordinates1( 3 )=4.00000000000000
            Coordinates1( 4 )=0.00000000000000
            Coordinates1( 5 )=0.00000000000000
            Coordinates1( 6 )=4.00000000000000
            Coordinates1( 7 )=3.00000000000000
            Coordinates1( 8 )=1.00000000000000
            Coordinates1( 9 )=0.00000000000000
            Coordinates1( 10 )=3.00000000000000
            Coordinates1( 11 )=1.00000000000000

            face7 = iwSketchManager.InsertFace( Coordinates1, True, False, True, False )
        End If

        Dim polygonmesh8 As Inkwright.PolygonMesh
        If 1 Then
            Dim Coordinates1(17) As Double
            Coordinates1( 0 )=0.00000000000000
            Coordinates1( 1 )=0.00000000000000
            Coordinates1( 2 )=1.50000000000000
            Coordinates1( 3 )=10.00000000000000
            Coordinates1( 4 )=0.00000000000000
            Coordinates1( 5 )=2.00000000000000
            Coordinates1( 6 )=20.00000000000000
            Coordinates1( 7 )=0.00000000000000
            Coordinates1( 8 )=2.25000000000000
            Coordinates1( 9 )=0.00000000000000
            Coordinates1( 10 )=10.00000000000000
            Coordinates1( 11 )=1.00000000000000
            Coordinates1( 12 )=10.00000000000000
            Coordinates1( 13 )=10.00000000000000
            Coordinates1( 14 )=3.12500000000000
            Coordinates1( 15 )=20.00000000000000
            Coordinates1( 16 )=10.00000000000000
            Coordinates1( 17 )=2.00000000000000

            polygonmesh8 = iwSketchManager.InsertPolygonMesh( 2, 3, Coordinates1 )
            polygonmesh8.MClosed = True
            polygonmesh8.NClosed = True
        End If

        Dim polygonmesh9 As Inkwright.PolygonMesh
        If 1 Then
            Dim Coordinates1(-1) As Double

            polygonmesh9 = iwSketchManager.InsertPolygonMesh( 1, 1, Coordinates1 )
        End If

        Dim polyfacemesh10 As Inkwright.PolyFaceMesh
        If 1 Then
            Dim Coordinates1(11) As Double
            Dim FaceVerticesCountLongArray1(1) As Integer
            Dim FaceVerticesLongArray1(6) As Integer
            Coordinates1( 0 )=0.00000000000000
            Coordinates1( 1 )=0.00000000000000
            Coordinates1( 2 )=0.00000000000000
            Coordinates1( 3 )=4.00000000000000
            Coordinates1( 4 )=0.00000000000000
            Coordinates1( 5 )=0.00000000000000
            Coordinates1( 6 )=4.00000000000000
            Coordinates1( 7 )=3.00000000000000
            Coordinates1( 8 )=0.00000000000000
            Coordinates1( 9 )=0.00000000000000
            Coordinates1( 10 )=3.00000000000000
            Coordinates1( 11 )=1.00000000000000

            FaceVerticesCountLongArray1(0) = 4
            FaceVerticesCountLongArray1(1) = 3

            FaceVerticesLongArray1(0) = 1
            FaceVerticesLongArray1(1) = 2
            FaceVerticesLongArray1(2) = 3
            FaceVerticesLongArray1(3) = 4
            FaceVerticesLongArray1(4) = 1
            FaceVerticesLongArray1(5) = -2
            FaceVerticesLongArray1(6) = 3

            polyfacemesh10 = iwSketchManager.InsertPolyFaceMesh( 4, Coordinates1, FaceVerticesCountLongArray1, FaceVerticesLongArray1 )
        End If

        Dim solid11 As Inkwright.Solid
        If 1 Then
            Dim Coordinates1(8) As Double
            Coordinates1( 0 )=0.00000000000000
            Coordinates1( 1 )=0.00000000000000
            Coordinates1( 2 )=0.00000000000000
            Coordinates1( 3 )=2.00000000000000
            Coordinates1( 4 )=0.00000000000000
            Coordinates1( 5 )=0.00000000000000
            Coordinates1( 6 )=0.00000000000000
            Coordinates1( 7 )=2.00000000000000
            Coordinates1( 8 )=0.00000000000000

            solid11 = iwSketchManager.InsertSolid( Coordinates1 )
        End If

        Dim trace12 As Inkwright.Trace
        If 1 Then
            Dim Coordinates1(11) As Double
            Coordinates1( 0 )=0.00000000000000
            Coordinates1( 1 )=0.00000000000000
            Coordinates1( 2 )=0.00000000000000
            Coordinates1( 3 )=8.00000000000000
            Coordinates1( 4 )=0.00000000000000
            Coordinates1( 5 )=0.00000000000000
            Coordinates1( 6 )=0.00000000000000
            Coordinates1( 7 )=1.00000000000000
            Coordinates1( 8 )=0.00000000000000
            Coordinates1( 9 )=8.00000000000000
            Coordinates1( 10 )=1.00000000000000
            Coordinates1( 11 )=0.00000000000000

            trace12 = iwSketchManager.InsertTrace( Coordinates1 )
            trace12.Thickness = 0.25000000000000
        End If

