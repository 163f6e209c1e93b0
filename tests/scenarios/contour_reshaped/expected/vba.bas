        Dim polyline1 As Inkwright.PolyLine
        Dim Coordinates1(7) As Double
        Coordinates1( 0 )=0
        Coordinates1( 1 )=0
        Coordinates1( 2 )=40
        Coordinates1( 3 )=0
        Coordinates1( 4 )=40
        Coordinates1( 5 )=30.5
        Coordinates1( 6 )=0
        Coordinates1( 7 )=30.5

        Set polyline1 = iwSketchManager.InsertPolyline2D( Coordinates1, True )
        polyline1.SetSegmentAngle 1, 1.5708
        polyline1.SetSegmentAngle 3, -3.14159
        polyline1.SetSegmentStartWidth 0, 0.00000000000000
        polyline1.SetSegmentEndWidth 0, 0.50000000000000
        polyline1.SetSegmentStartWidth 1, 0.50000000000000
        polyline1.SetSegmentEndWidth 1, 0.50000000000000
        polyline1.SetSegmentStartWidth 2, 0.00000000000000
        polyline1.SetSegmentEndWidth 2, 0.00000000000000
        polyline1.SetSegmentStartWidth 3, 0.00000000000000
        polyline1.SetSegmentEndWidth 3, 0.00000000000000
        Dim polyline2 As Inkwright.PolyLine
        Dim Coordinates1(3) As Double
        Coordinates1( 0 )=60
        Coordinates1( 1 )=0
        Coordinates1( 2 )=80
        Coordinates1( 3 )=45.25

        Set polyline2 = iwSketchManager.InsertPolyline2D( Coordinates1, False )
        polyline2.GlobalWidth = 1.25000000000000
        Dim line3 As Inkwright.Line
        If 1 Then
            Set line3 = iwSketchManager.InsertLine( 80.00000000000000, 20.00000000000000, 0.00000000000000, 90.00000000000000, 20.00000000000000, 0.00000000000000 )
        End If

        Dim circlearc4 As Inkwright.CircleArc
        If 1 Then
            Set circlearc4 = iwSketchManager.InsertArc( 90.00000000000000, 25.00000000000000, 0.00000000000000, 5.00000000000000, 0.00000000000000, 1.50000000000000 )
        End If

        Dim polyline5 As Inkwright.PolyLine
        If 1 Then
            Dim Coordinates1(3) As Double
            Coordinates1( 0 )=95.00000000000000
            Coordinates1( 1 )=25.00000000000000
            Coordinates1( 2 )=95.00000000000000
            Coordinates1( 3 )=40.00000000000000

            Set polyline5 = iwSketchManager.InsertPolyline2D( Coordinates1, False )
        End If

        Dim circle6 As Inkwright.Circle
        If 1 Then
            Set circle6 = iwSketchManager.InsertCircle( 90.00000000000000, 25.00000000000000, 0.00000000000000, 2.00000000000000 )
        End If

        Dim polyline3d7 As Inkwright.PolyLine3D
        If 1 Then
            Dim Coordinates1(8) As Double
            Coordinates1( 0 )=0.00000000000000
            Coordinates1( 1 )=60.00000000000000
            Coordinates1( 2 )=1.00000000000000
            Coordinates1( 3 )=20.00000000000000
            Coordinates1( 4 )=60.00000000000000
            Coordinates1( 5 )=2.00000000000000
            Coordinates1( 6 )=20.00000000000000
            Coordinates1( 7 )=80.00000000000000
            Coordinates1( 8 )=3.00000000000000

            Set polyline3d7 = iwSketchManager.InsertPolyline3D( Coordinates1, False )
        End If

        If 1 Then
            polyline1.Fit
        End If

        If 1 Then
            polyline1.Decurve
        End If

        If 1 Then
            polyline1.Spline
        End If

        If 1 Then
            polyline2.JoinLine( line3 )
            polyline2.JoinCircleArc( circlearc4 )
            polyline2.JoinPolyLine( polyline5 )
        End If

        If 1 Then
            polyline1.AddVertexAfter 1, 40, 12.25 
            polyline1.SetVertexCoordinate 2, 41, 1e-07 
            polyline1.SetSegmentStartWidth 0, 0.25 
            polyline1.SetSegmentEndWidth 0, 0.75 
            polyline1.Straighten 1, 3 
            Dim splittedPolyline1 As Inkwright.PolyLine
            polyline1.Split 2, splittedPolyline1
        End If

        If 1 Then
            polyline3d7.AddVertexAfter 0, 10, 60, 1.5 
            polyline3d7.SetVertexCoordinate 1, 10, 61, 1.5 
            Dim splittedPolyline3D1 As Inkwright.PolyLine3D
            polyline3d7.Split 2, splittedPolyline3D1
        End If

        If 1 Then
            polyline3d7.AddVertexAfter 1, 20, 70, 2.5 
            polyline3d7.DeleteVertex( 0 )
        End If

        If 1 Then
            Dim polyline8 As Inkwright.PolyLine
            Dim type1 As Inkwright.iwObjectType_e
            Set polyline8 = iwApp.GetActiveDocument().GetObjectByHandle ("70", type1 )
            polyline8.Spline
        End If

        Dim referenceimage9 As Inkwright.ReferenceImage
        If 1 Then
            Set referenceimage9 = iwSketchManager.InsertPicture(  "C:\site\aerial.png", 300.00000000000000, 20.00000000000000, 0.00000000000000, 0.37500000000000, 1.50000000000000 )
            Dim Coordinates1(7) As Double
            Coordinates1( 0 )=300
            Coordinates1( 1 )=20
            Coordinates1( 2 )=340.5
            Coordinates1( 3 )=20
            Coordinates1( 4 )=340.5
            Coordinates1( 5 )=50
            Coordinates1( 6 )=300
            Coordinates1( 7 )=50

            referenceimage9.SetClipBoundary( Coordinates1 )

        End If

        If 1 Then
            referenceimage9.RemoveClipBoundary
        End If

