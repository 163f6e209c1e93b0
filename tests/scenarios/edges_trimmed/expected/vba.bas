        Dim line1 As Inkwright.Line
        Dim line2 As Inkwright.Line
        Dim line3 As Inkwright.Line
        Dim line4 As Inkwright.Line
        If 1 Then
            Set line1 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 20.00000000000000, 0.00000000000000, 0.00000000000000 )
            Set line2 = iwSketchManager.InsertLine( 20.00000000000000, 0.00000000000000, 0.00000000000000, 20.00000000000000, 12.00000000000000, 0.00000000000000 )
            Set line3 = iwSketchManager.InsertLine( 20.00000000000000, 12.00000000000000, 0.00000000000000, 0.00000000000000, 12.00000000000000, 0.00000000000000 )
            Set line4 = iwSketchManager.InsertLine( 0.00000000000000, 12.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000 )
        End If

        Dim line5 As Inkwright.Line
        Dim line6 As Inkwright.Line
        If 1 Then
            Set line5 = iwSketchManager.InsertLine( 8.00000000000000, -3.00000000000000, 0.00000000000000, 8.00000000000000, 15.00000000000000, 0.00000000000000 )
            Set line6 = iwSketchManager.InsertLine( 14.00000000000000, -3.00000000000000, 0.00000000000000, 14.00000000000000, 15.00000000000000, 0.00000000000000 )
        End If

        Dim circle7 As Inkwright.Circle
        If 1 Then
            Set circle7 = iwSketchManager.InsertCircle( 8.00000000000000, 6.00000000000000, 0.00000000000000, 3.00000000000000 )
        End If

        Dim polyline8 As Inkwright.PolyLine
        If 1 Then
            Dim Coordinates1(5) As Double
            Coordinates1( 0 )=0.00000000000000
            Coordinates1( 1 )=20.00000000000000
            Coordinates1( 2 )=20.00000000000000
            Coordinates1( 3 )=20.00000000000000
            Coordinates1( 4 )=20.00000000000000
            Coordinates1( 5 )=24.00000000000000

            Set polyline8 = iwSketchManager.InsertPolyline2D( Coordinates1, False )
        End If

        Dim ellipsearc9 As Inkwright.EllipseArc
        If 1 Then
            Set ellipsearc9 = iwSketchManager.InsertEllipseDistanceToOtherAxis( 17.00000000000000, 30.00000000000000, 5.00000000000000, 30.00000000000000, 2.00000000000000 )
        End If

        Dim polyline3d10 As Inkwright.PolyLine3D
        If 1 Then
            Dim Coordinates1(8) As Double
            Coordinates1( 0 )=0.00000000000000
            Coordinates1( 1 )=40.00000000000000
            Coordinates1( 2 )=1.00000000000000
            Coordinates1( 3 )=20.00000000000000
            Coordinates1( 4 )=40.00000000000000
            Coordinates1( 5 )=1.00000000000000
            Coordinates1( 6 )=20.00000000000000
            Coordinates1( 7 )=44.00000000000000
            Coordinates1( 8 )=3.00000000000000

            Set polyline3d10 = iwSketchManager.InsertPolyline3D( Coordinates1, False )
        End If

        Dim spline11 As Inkwright.Spline
        If 1 Then
            Dim Coordinates1(8) As Double
            Coordinates1( 0 )=0.00000000000000
            Coordinates1( 1 )=50.00000000000000
            Coordinates1( 2 )=0.00000000000000
            Coordinates1( 3 )=10.00000000000000
            Coordinates1( 4 )=54.00000000000000
            Coordinates1( 5 )=0.00000000000000
            Coordinates1( 6 )=20.00000000000000
            Coordinates1( 7 )=50.00000000000000
            Coordinates1( 8 )=0.00000000000000

            Set spline11 = iwSketchManager.InsertSpline( Coordinates1, False, 1.00000000000000, 0.00000000000000 ,0.00000000000000, 1.00000000000000, 0.00000000000000, 0.00000000000000 )
        End If

        Dim infiniteline12 As Inkwright.InfiniteLine
        If 1 Then
            Set infiniteline12 = iwSketchManager.InsertInfiniteLine( 14.00000000000000, 60.00000000000000, 0.00000000000000, 16.00000000000000, 63.00000000000000, 0.00000000000000 )
        End If

        If 1 Then
        End If

        Dim line13 As Inkwright.Line
        Dim line14 As Inkwright.Line
        Dim circlearc15 As Inkwright.CircleArc
        Dim polyline16 As Inkwright.PolyLine
        Dim ellipsearc17 As Inkwright.EllipseArc
        Dim polyline3d18 As Inkwright.PolyLine3D
        Dim spline19 As Inkwright.Spline
        Dim ray20 As Inkwright.Ray
        If 1 Then
            Dim CuttingEntitiesArray0( 1 ) As Object
            Dim EntitiesToRemoveArray0( 7 ) As Object
            Dim PointOnEntityDblArray0(23) As Double

            Set CuttingEntitiesArray0( 0 ) = line5
            Set CuttingEntitiesArray0( 1 ) = line6

            Set EntitiesToRemoveArray0( 0 ) = line1
            Set EntitiesToRemoveArray0( 1 ) = line3
            Set EntitiesToRemoveArray0( 2 ) = circle7
            Set EntitiesToRemoveArray0( 3 ) = polyline8
            Set EntitiesToRemoveArray0( 4 ) = ellipsearc9
            Set EntitiesToRemoveArray0( 5 ) = polyline3d10
            Set EntitiesToRemoveArray0( 6 ) = spline11
            Set EntitiesToRemoveArray0( 7 ) = infiniteline12

            PointOnEntityDblArray0(0) = 11
            PointOnEntityDblArray0(1) = 0
            PointOnEntityDblArray0(2) = 0
            PointOnEntityDblArray0(3) = 11.25
            PointOnEntityDblArray0(4) = 12
            PointOnEntityDblArray0(5) = 0
            PointOnEntityDblArray0(6) = 11
            PointOnEntityDblArray0(7) = 6
            PointOnEntityDblArray0(8) = 0
            PointOnEntityDblArray0(9) = 11
            PointOnEntityDblArray0(10) = 20
            PointOnEntityDblArray0(11) = 0
            PointOnEntityDblArray0(12) = 11
            PointOnEntityDblArray0(13) = 32
            PointOnEntityDblArray0(14) = 0
            PointOnEntityDblArray0(15) = 11
            PointOnEntityDblArray0(16) = 40
            PointOnEntityDblArray0(17) = 1
            PointOnEntityDblArray0(18) = 11
            PointOnEntityDblArray0(19) = 51
            PointOnEntityDblArray0(20) = 0
            PointOnEntityDblArray0(21) = 8
            PointOnEntityDblArray0(22) = 51
            PointOnEntityDblArray0(23) = 0

            If 1 Then
            Dim resultInt161 As Inkwright.iwSetCommandOptionResult_e 
            iwApp.GetActiveDocument().SetCommandOptionInt16 Inkwright.iwCommandOptionInt16_e.iwCommandOptionInt16_EnblEdgeExtd, 0, resultInt161
            End If
            iwSketchManager.TrimEntities CuttingEntitiesArray0, EntitiesToRemoveArray0, PointOnEntityDblArray0

            Dim iwSelectionManager As Inkwright.SelectionManager
            Set iwSelectionManager = iwDoc.GetSelectionManager()

            iwSelectionManager.GetSelectionFilter().Active = False

            iwSelectionManager.ClearSelections Inkwright.iwSelectionSetType_e.iwSelectionSetType_Current
            iwSelectionManager.ClearSelections Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous

            Dim epsi As Double
            epsi = 0.1
            Dim iwMathUtility As Inkwright.MathUtility
            Set iwMathUtility = iwApp.GetMathUtility()
            Dim selPts(23) As Double                'selection points
            Dim prop(47) As Double                  'properties
            selPts(0) = 14
            selPts(1) = 0
            selPts(2) = 0
            selPts(3) = 8
            selPts(4) = 12
            selPts(5) = 0
            selPts(6) = 8
            selPts(7) = 9
            selPts(8) = 0
            selPts(9) = 14
            selPts(10) = 20
            selPts(11) = 0
            selPts(12) = 17
            selPts(13) = 30
            selPts(14) = 0
            selPts(15) = 14
            selPts(16) = 40
            selPts(17) = 1
            selPts(18) = 14
            selPts(19) = 50
            selPts(20) = 0
            selPts(21) = 14
            selPts(22) = 60
            selPts(23) = 0
            prop(0) = 14
            prop(1) = 0
            prop(2) = 0
            prop(3) = 20
            prop(4) = 0
            prop(5) = 0
            prop(6) = 8
            prop(7) = 12
            prop(8) = 0
            prop(9) = 0
            prop(10) = 12
            prop(11) = 0
            prop(12) = 8
            prop(13) = 6
            prop(14) = 0
            prop(15) = 3
            prop(16) = 1.5708
            prop(17) = 4.71239
            prop(18) = 14
            prop(19) = 20
            prop(20) = 0
            prop(21) = 20
            prop(22) = 20
            prop(23) = 0
            prop(24) = 11
            prop(25) = 30
            prop(26) = 0
            prop(27) = 6
            prop(28) = 2
            prop(29) = 0
            prop(30) = 14
            prop(31) = 40
            prop(32) = 1
            prop(33) = 20
            prop(34) = 40
            prop(35) = 1
            prop(36) = 14
            prop(37) = 50
            prop(38) = 0
            prop(39) = 16
            prop(40) = 52
            prop(41) = 0
            prop(42) = 14
            prop(43) = 60
            prop(44) = 0
            prop(45) = 15
            prop(46) = 61.5
            prop(47) = 0
            Set polyline3d18 = Nothing
            Set circlearc15 = Nothing
            Set ellipsearc17 = Nothing
            Set line13 = Nothing
            Set line14 = Nothing
            Set polyline16 = Nothing
            Set ray20 = Nothing
            Set spline19 = Nothing
            Dim iNewEnt As Integer
            For iNewEnt = 0 To 8 - 1
                Dim firstPoint As Inkwright.MathPoint
                Set firstPoint = iwMathUtility.CreatePoint(selPts(iNewEnt*3) + epsi, selPts(iNewEnt*3 + 1) + epsi, selPts(iNewEnt*3 + 2))
                Dim secondPoint As Inkwright.MathPoint
                Set secondPoint = iwMathUtility.CreatePoint(selPts(iNewEnt*3) - epsi, selPts(iNewEnt*3 + 1) - epsi, selPts(iNewEnt*3 + 2))

                iwSelectionManager.SelectByWindow firstPoint, secondPoint, True

                Dim count As Integer
                count = iwSelectionManager.GetSelectedObjectCount(Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous)

                Dim i As Integer
                For i = 0 To count - 1
                    Dim retObjType As Inkwright.iwObjectType_e
                    Dim obj As Object
                    Set obj = iwSelectionManager.GetSelectedObject(Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous, i, retObjType)
                    If retObjType = Inkwright.iwObjectType_e.iwPolyLine3DType Then
                Dim polyline3d As Inkwright.PolyLine3D
                Dim firstX As Double
                Dim firstY As Double
                Dim firstZ As Double
                Dim secondX As Double
                Dim secondY As Double
                Dim secondZ As Double
                Set polyline3d = obj
                polyline3d.GetVertexCoordinate 0, firstX, firstY, firstZ
                polyline3d.GetVertexCoordinate 1, secondX, secondY, secondZ
                If Abs(firstX - prop(iNewEnt*6)) < epsi And _
                    Abs(firstY - prop(iNewEnt*6 + 1)) < epsi And _
                    Abs(firstZ - prop(iNewEnt*6 + 2)) < epsi And _
                    Abs(secondX - prop(iNewEnt*6 + 3)) < epsi And _
                    Abs(secondY - prop(iNewEnt*6 + 4)) < epsi And _
                    Abs(secondZ - prop(iNewEnt*6 + 5)) < epsi Then
            If iNewEnt = 5 Then
                Set polyline3d18 = polyline3d
            End If
                    Exit For
                End If
            ElseIf retObjType = Inkwright.iwObjectType_e.iwCircleArcType Then
                Dim circlearc As Inkwright.CircleArc
                Dim centerX As Double
                Dim centerY As Double
                Dim centerZ As Double
                Set circlearc = obj
                circlearc.GetCenter centerX, centerY, centerZ
                If Abs(centerX - prop(iNewEnt*6)) < epsi And _
                    Abs(centerY - prop(iNewEnt*6 + 1)) < epsi And _
                    Abs(centerZ - prop(iNewEnt*6 + 2)) < epsi And _
                    Abs(circlearc.Radius - prop(iNewEnt*6 + 3)) < epsi And _
                    Abs(circlearc.StartAngle - prop(iNewEnt*6 + 4)) < epsi And _
                    Abs(circlearc.EndAngle - prop(iNewEnt*6 + 5)) < epsi Then
            If iNewEnt = 2 Then
                Set circlearc15 = circlearc
            End If
                    Exit For
                End If
            ElseIf retObjType = Inkwright.iwObjectType_e.iwEllipseArcType Then
                Dim ellipsearc As Inkwright.EllipseArc
                Set ellipsearc = obj
                ellipsearc.GetCenter centerX, centerY, centerZ
                If Abs(centerX - prop(iNewEnt*6)) < epsi And _
                    Abs(centerY - prop(iNewEnt*6 + 1)) < epsi And _
                    Abs(centerZ - prop(iNewEnt*6 + 2)) < epsi And _
                    Abs(ellipsearc.MajorRadius - prop(iNewEnt*6 + 3)) < epsi And _
                    Abs(ellipsearc.MinorRadius - prop(iNewEnt*6 + 4)) < epsi Then
            If iNewEnt = 4 Then
                Set ellipsearc17 = ellipsearc
            End If
                    Exit For
                End If
            ElseIf retObjType = Inkwright.iwObjectType_e.iwLineType Then
                Dim line As Inkwright.Line
                Set line = obj
                line.GetFirstPoint firstX, firstY, firstZ
                line.GetSecondPoint secondX, secondY, secondZ
                If Abs(firstX - prop(iNewEnt*6)) < epsi And _
                    Abs(firstY - prop(iNewEnt*6 + 1)) < epsi And _
                    Abs(firstZ - prop(iNewEnt*6 + 2)) < epsi And _
                    Abs(secondX - prop(iNewEnt*6 + 3)) < epsi And _
                    Abs(secondY - prop(iNewEnt*6 + 4)) < epsi And _
                    Abs(secondZ - prop(iNewEnt*6 + 5)) < epsi Then
            If iNewEnt = 0 Then
                Set line13 = line
            End If
            If iNewEnt = 1 Then
                Set line14 = line
            End If
                    Exit For
                End If
            ElseIf retObjType = Inkwright.iwObjectType_e.iwPolyLineType Then
                Dim polyline As Inkwright.PolyLine
                Set polyline = obj
                polyline.GetVertexCoordinate 0, firstX, firstY
                polyline.GetVertexCoordinate 1, secondX, secondY
                If Abs(firstX - prop(iNewEnt*6)) < epsi And _
                    Abs(firstY - prop(iNewEnt*6 + 1)) < epsi And _
                    Abs(secondX - prop(iNewEnt*6 + 3)) < epsi And _
                    Abs(secondY - prop(iNewEnt*6 + 4)) < epsi Then
            If iNewEnt = 3 Then
                Set polyline16 = polyline
            End If
                    Exit For
                End If
            ElseIf retObjType = Inkwright.iwObjectType_e.iwRayType Then
                Dim ray As Inkwright.Ray
                Dim baseX As Double
                Dim baseY As Double
                Dim baseZ As Double
                Dim throughX As Double
                Dim throughY As Double
                Dim throughZ As Double
                Set ray = obj
                ray.GetBasePoint baseX, baseY, baseZ
                ray.GetThroughPoint throughX, throughY, throughZ
                If Abs(baseX - prop(iNewEnt*6)) < epsi And _
                    Abs(baseY - prop(iNewEnt*6 + 1)) < epsi And _
                    Abs(baseZ - prop(iNewEnt*6 + 2)) < epsi And _
                    Abs(throughX - prop(iNewEnt*6 + 3)) < epsi And _
                    Abs(throughY - prop(iNewEnt*6 + 4)) < epsi And _
                    Abs(throughZ - prop(iNewEnt*6 + 5)) < epsi Then
            If iNewEnt = 7 Then
                Set ray20 = ray
            End If
                    Exit For
                End If
            ElseIf retObjType = Inkwright.iwObjectType_e.iwSplineType Then
                Dim spline As Inkwright.Spline
                Set spline = obj
                spline.GetControlPointCoordinate 0, firstX, firstY, firstZ
                spline.GetControlPointCoordinate 1, secondX, secondY, secondZ
                If Abs(firstX - prop(iNewEnt*6)) < epsi And _
                    Abs(firstY - prop(iNewEnt*6 + 1)) < epsi And _
                    Abs(firstZ - prop(iNewEnt*6 + 2)) < epsi And _
                    Abs(secondX - prop(iNewEnt*6 + 3)) < epsi And _
                    Abs(secondY - prop(iNewEnt*6 + 4)) < epsi And _
                    Abs(secondZ - prop(iNewEnt*6 + 5)) < epsi Then
            If iNewEnt = 6 Then
                Set spline19 = spline
            End If
                    Exit For
                End If
            End If

                Next
                iwSelectionManager.ClearSelections Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous
            Next

        End If

        If 1 Then
            ' AcDbLine object modified
            If 1 Then
                line13.Layer = "Walls"
            End If

            ' AcDbArc object modified
            If 1 Then
                circlearc15.Layer = "Walls"
            End If

            ' AcDbPolyline object modified
            If 1 Then
                polyline16.Layer = "Walls"
            End If

        End If

        If 1 Then
            ' AcDbEllipse object modified
            If 1 Then
                ellipsearc17.Layer = "Axes"
            End If

            ' AcDb3dPolyline object modified
            If 1 Then
                polyline3d18.Layer = "Axes"
            End If

        End If

        If 1 Then
            line14.Erased = True
        End If

        If 1 Then
            Dim BoundaryEntitiesArray0( 0 ) As Object
            Dim EntitiesToExtendArray0( 1 ) As Object
            Dim PointOnEntityDblArray0(5) As Double

            Set BoundaryEntitiesArray0( 0 ) = line6

            Set EntitiesToExtendArray0( 0 ) = line1
            Set EntitiesToExtendArray0( 1 ) = circlearc15

            PointOnEntityDblArray0(0) = 7.5
            PointOnEntityDblArray0(1) = 0
            PointOnEntityDblArray0(2) = 0
            PointOnEntityDblArray0(3) = 8
            PointOnEntityDblArray0(4) = 3
            PointOnEntityDblArray0(5) = 0

            If 1 Then
            Dim resultInt161 As Inkwright.iwSetCommandOptionResult_e 
            iwApp.GetActiveDocument().SetCommandOptionInt16 Inkwright.iwCommandOptionInt16_e.iwCommandOptionInt16_EnblEdgeExtd, 0, resultInt161
            End If
            iwSketchManager.ExtendEntities BoundaryEntitiesArray0, EntitiesToExtendArray0, PointOnEntityDblArray0
        End If

        If 1 Then
            Dim CuttingEntitiesArray0( 0 ) As Object
            Dim EntitiesToRemoveArray0( 0 ) As Object
            Dim PointOnEntityDblArray0(2) As Double

            Set CuttingEntitiesArray0( 0 ) = line2

            Set EntitiesToRemoveArray0( 0 ) = line5

            PointOnEntityDblArray0(0) = 8
            PointOnEntityDblArray0(1) = 14.5
            PointOnEntityDblArray0(2) = 0

            If 1 Then
            Dim resultInt161 As Inkwright.iwSetCommandOptionResult_e 
            iwApp.GetActiveDocument().SetCommandOptionInt16 Inkwright.iwCommandOptionInt16_e.iwCommandOptionInt16_EnblEdgeExtd, 0, resultInt161
            End If
            iwSketchManager.TrimEntities CuttingEntitiesArray0, EntitiesToRemoveArray0, PointOnEntityDblArray0
        End If

        If 1 Then
            Dim firstEntityArray0( 0 ) As Object
            Dim secondEntityArray0( 0 ) As Object
            Dim firstPointOnEntityDblArray0(2) As Double
            Dim secondPointOnEntityDblArray0(2) As Double

            Set firstEntityArray0( 0 ) = line2

            Set secondEntityArray0( 0 ) = line3

            firstPointOnEntityDblArray0(0) = 20
            firstPointOnEntityDblArray0(1) = 10
            firstPointOnEntityDblArray0(2) = 0

            secondPointOnEntityDblArray0(0) = 18
            secondPointOnEntityDblArray0(1) = 12
            secondPointOnEntityDblArray0(2) = 0

            If 1 Then
            Dim resultDouble1 As Inkwright.iwSetCommandOptionResult_e 
            iwApp.GetActiveDocument().SetCommandOptionDouble Inkwright.iwCommandOptionDouble_e.iwCommandOptionDouble_SetFltRad, 2.5, resultDouble1
            End If
            iwSketchManager.FilletEntities firstPointOnEntityDblArray0, firstEntityArray0, secondPointOnEntityDblArray0, secondEntityArray0
        End If

        If 1 Then
            Dim firstEntityArray1( 0 ) As Object
            Dim secondEntityArray1( 0 ) As Object
            Dim firstPointOnEntityDblArray1(2) As Double
            Dim secondPointOnEntityDblArray1(2) As Double

            Set firstEntityArray1( 0 ) = circlearc15

            Set secondEntityArray1( 0 ) = polyline16

            firstPointOnEntityDblArray1(0) = 5
            firstPointOnEntityDblArray1(1) = 6
            firstPointOnEntityDblArray1(2) = 0

            secondPointOnEntityDblArray1(0) = 15.5
            secondPointOnEntityDblArray1(1) = 20
            secondPointOnEntityDblArray1(2) = 0

            If 1 Then
            Dim resultDouble1 As Inkwright.iwSetCommandOptionResult_e 
            iwApp.GetActiveDocument().SetCommandOptionDouble Inkwright.iwCommandOptionDouble_e.iwCommandOptionDouble_SetFltRad, 2.5, resultDouble1
            End If
            iwSketchManager.FilletEntities firstPointOnEntityDblArray1, firstEntityArray1, secondPointOnEntityDblArray1, secondEntityArray1
        End If

        If 1 Then
            Dim firstEntityArray0( 0 ) As Object
            Dim secondEntityArray0( 0 ) As Object
            Dim firstPointOnEntityDblArray0(2) As Double
            Dim secondPointOnEntityDblArray0(2) As Double

            Set firstEntityArray0( 0 ) = line4

            Set secondEntityArray0( 0 ) = line1

            firstPointOnEntityDblArray0(0) = 0
            firstPointOnEntityDblArray0(1) = 1.25
            firstPointOnEntityDblArray0(2) = 0

            secondPointOnEntityDblArray0(0) = 1.5
            secondPointOnEntityDblArray0(1) = 0
            secondPointOnEntityDblArray0(2) = 0

            If 1 Then
            Dim resultDouble1 As Inkwright.iwSetCommandOptionResult_e 
            iwApp.GetActiveDocument().SetCommandOptionDouble Inkwright.iwCommandOptionDouble_e.iwCommandOptionDouble_SetChmfDst1, 1.5, resultDouble1
            End If
            If 1 Then
            Dim resultDouble2 As Inkwright.iwSetCommandOptionResult_e 
            iwApp.GetActiveDocument().SetCommandOptionDouble Inkwright.iwCommandOptionDouble_e.iwCommandOptionDouble_SetChmfDst2, 2, resultDouble2
            End If
            If 1 Then
            Dim resultDouble3 As Inkwright.iwSetCommandOptionResult_e 
            iwApp.GetActiveDocument().SetCommandOptionDouble Inkwright.iwCommandOptionDouble_e.iwCommandOptionDouble_SetChmfLen, 3, resultDouble3
            End If
            If 1 Then
            Dim resultDouble4 As Inkwright.iwSetCommandOptionResult_e 
            iwApp.GetActiveDocument().SetCommandOptionDouble Inkwright.iwCommandOptionDouble_e.iwCommandOptionDouble_SetChmfAng, 0.785398, resultDouble4
            End If
            If 1 Then
            Dim resultInt165 As Inkwright.iwSetCommandOptionResult_e 
            iwApp.GetActiveDocument().SetCommandOptionInt16 Inkwright.iwCommandOptionInt16_e.iwCommandOptionInt16_EnblChmfAng, 1, resultInt165
            End If
            If 1 Then
            Dim resultInt166 As Inkwright.iwSetCommandOptionResult_e 
            iwApp.GetActiveDocument().SetCommandOptionInt16 Inkwright.iwCommandOptionInt16_e.iwCommandOptionInt16_EnblFltTrm, 0, resultInt166
            End If
            iwSketchManager.ChamferEntities firstPointOnEntityDblArray0, firstEntityArray0, secondPointOnEntityDblArray0, secondEntityArray0
        End If

