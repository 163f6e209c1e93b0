        Dim layer1 As Inkwright.Layer
        If 1 Then
            Dim iwLayerManager1 As Inkwright.LayerManager
            Set iwLayerManager1 = iwDoc.GetLayerManager()
            Dim iwCreateObjectResult1 As Inkwright.iwCreateObjectResult_e
            iwLayerManager1.CreateLayer "Holes", layer1, iwCreateObjectResult1
        End If

        Dim polyline2 As Inkwright.PolyLine
        If 1 Then
            Dim Coordinates1(13) As Double
            Coordinates1( 0 )=0.00000000000000
            Coordinates1( 1 )=0.00000000000000
            Coordinates1( 2 )=40.00000000000000
            Coordinates1( 3 )=0.00000000000000
            Coordinates1( 4 )=40.00000000000000
            Coordinates1( 5 )=30.00000000000000
            Coordinates1( 6 )=20.00000000000000
            Coordinates1( 7 )=45.00000000000000
            Coordinates1( 8 )=0.00000000000000
            Coordinates1( 9 )=35.00000000000000
            Coordinates1( 10 )=0.00000000000000
            Coordinates1( 11 )=30.00000000000000
            Coordinates1( 12 )=0.00000000000000
            Coordinates1( 13 )=0.00000000000000

            Set polyline2 = iwSketchManager.InsertPolyline2D( Coordinates1, False )
        End If

        Dim circle3 As Inkwright.Circle
        If 1 Then
            Set circle3 = iwSketchManager.InsertCircle( 20.00000000000000, 20.00000000000000, 0.00000000000000, 6.25000000000000 )
            If 1 Then
                circle3.Layer = "Holes"
            End If

        End If

        Dim circle4 As Inkwright.Circle
        Dim circle5 As Inkwright.Circle
        If 1 Then
            Set circle4 = iwSketchManager.InsertCircle( 30.00000000000000, 10.00000000000000, 0.00000000000000, 6.25000000000000 )
            Set circle5 = iwSketchManager.InsertCircle( 10.00000000000000, 10.00000000000000, 0.00000000000000, 6.25000000000000 )
        End If

        Dim circle6 As Inkwright.Circle
        If 1 Then
            Set circle6 = iwSketchManager.InsertCircle( 5.00000000000000, 5.00000000000000, 213.36000000000001, 10.00000000000000 )
        End If

        Dim simplenote7 As Inkwright.SimpleNote
        If 1 Then
            Set simplenote7 = iwSketchManager.InsertSimpleNote( 5.00000000000000, -30.00000000000000, 0.00000000000000, 2.50000000000000, 0.00000000000000, "Ø 12,5 "H7"
(4x)" )
            simplenote7.SetAlignmentPoint 0.00000000000000, 0.00000000000000, 0.00000000000000
            simplenote7.SetPosition 5.00000000000000, -30.00000000000000, 0.00000000000000
        End If

        If 1 Then
            ' AcDbCircle object modified
            If 1 Then
                Dim X1 As Double
                Dim Y1 As Double
                Dim Z1 As Double
                circle3.GetCenter X1, Y1, Z1 
                Y1 = 18.50000000000000
                circle3.SetCenter X1, Y1, Z1 
                circle3.Radius = 7.12500000000000
            End If

        End If

        Dim circlearc8 As Inkwright.CircleArc
        If 1 Then
            Set circlearc8 = iwSketchManager.InsertArc( 0.00000000000000, 0.00000000000000, 0.00000000000000, 4.00000000000000, 0.50000000000000, 2.25000000000000 )
        End If

