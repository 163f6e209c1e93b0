        Dim line1 As Inkwright.Line
        Dim line2 As Inkwright.Line
        Dim circle3 As Inkwright.Circle
        If 1 Then
            Set line1 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 10.00000000000000, 0.00000000000000, 0.00000000000000 )
            line1.Color = iwApp.GetColorByIndex( 256 )
            line1.Layer = "0"
            line1.LineStyle = "Continuous"
            line1.LineScale = 1.00000000000000
            line1.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            line1.Thickness = 0.00000000000000
            Set line2 = iwSketchManager.InsertLine( 10.00000000000000, 0.00000000000000, 0.00000000000000, 10.00000000000000, 5.00000000000000, 0.00000000000000 )
            line2.Color = iwApp.GetColorByIndex( 256 )
            line2.Layer = "0"
            line2.LineStyle = "Continuous"
            line2.LineScale = 1.00000000000000
            line2.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            line2.Thickness = 0.00000000000000
            Set circle3 = iwSketchManager.InsertCircle( 5.00000000000000, 2.50000000000000, 0.00000000000000, 1.00000000000000 )
            circle3.Color = iwApp.GetColorByIndex( 256 )
            circle3.Layer = "0"
            circle3.LineStyle = "Continuous"
            circle3.LineScale = 1.00000000000000
            circle3.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            circle3.Thickness = 0.00000000000000
        End If

        Dim line4 As Inkwright.Line
        Dim line5 As Inkwright.Line
        If 1 Then
            Dim iwEntities0( 1 ) As Object
            Dim types0( 1 ) As iwObjectType_e

            types0( 0 ) = Inkwright.iwObjectType_e.iwLineType
            Set iwEntities0( 0 ) = line1
            types0( 1 ) = Inkwright.iwObjectType_e.iwLineType
            Set iwEntities0( 1 ) = line2

            iwSketchManager.MirrorEntities 0, 5, 0, 10, 5, 0, False, types0, iwEntities0
            Set line4 = iwSketchManager.InsertLine( 0.00000000000000, 10.00000000000000, 0.00000000000000, 10.00000000000000, 10.00000000000000, 0.00000000000000 )
            line4.Color = iwApp.GetColorByIndex( 256 )
            line4.Layer = "0"
            line4.LineStyle = "Continuous"
            line4.LineScale = 1.00000000000000
            line4.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            line4.Thickness = 0.00000000000000
            Set line5 = iwSketchManager.InsertLine( 10.00000000000000, 10.00000000000000, 0.00000000000000, 10.00000000000000, 5.00000000000000, 0.00000000000000 )
            line5.Color = iwApp.GetColorByIndex( 256 )
            line5.Layer = "0"
            line5.LineStyle = "Continuous"
            line5.LineScale = 1.00000000000000
            line5.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            line5.Thickness = 0.00000000000000
        End If

        If 1 Then
            Dim iwEntities0( 0 ) As Object
            Dim crossingBoxStartCorner0(2) As Double
            Dim crossingBoxEndCorner0(2) As Double

            Set iwEntities0( 0 ) = line1

            crossingBoxStartCorner0(0) = 9
            crossingBoxStartCorner0(1) = -1
            crossingBoxStartCorner0(2) = 0
            crossingBoxEndCorner0(0) = 11
            crossingBoxEndCorner0(1) = 1
            crossingBoxEndCorner0(2) = 0

            iwSketchManager.StretchEntities 2.5, 0, 0, iwEntities0, crossingBoxStartCorner0, crossingBoxEndCorner0
        End If

        Dim circle6 As Inkwright.Circle
        If 1 Then
            Dim iwEntities0( 1 ) As Object
            Dim types0( 1 ) As iwObjectType_e

            types0( 0 ) = Inkwright.iwObjectType_e.iwCircleType
            Set iwEntities0( 0 ) = circle3
            Dim iwTypeForCopy0 As Inkwright.iwObjectType_e
            Dim iwObjForCopy0 As Object
            Set iwObjForCopy0 = iwApp.GetActiveDocument().GetObjectByHandle("A0", iwTypeForCopy0)
            types0( 1 ) = iwTypeForCopy0
            Set iwEntities0( 1 ) = iwObjForCopy0

            iwSketchManager.CopyEntities 1, 0, 0, types0, iwEntities0
            iwSketchManager.CopyEntities 2, 0, 0, types0, iwEntities0
            iwSketchManager.CopyEntities 3, 0, 0, types0, iwEntities0
            Set circle6 = iwSketchManager.InsertCircle( 6.00000000000000, 2.50000000000000, 0.00000000000000, 1.00000000000000 )
            circle6.Color = iwApp.GetColorByIndex( 256 )
            circle6.Layer = "0"
            circle6.LineStyle = "Continuous"
            circle6.LineScale = 1.00000000000000
            circle6.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            circle6.Thickness = 0.00000000000000
        End If

        If 1 Then
            Dim iwEntities0( 1 ) As Object

            Set iwEntities0( 0 ) = line2
            Set iwEntities0( 1 ) = line4

            iwSketchManager.MoveEntities 0, 0.125, 0, iwEntities0
        End If

        If 1 Then
            Dim iwEntities0( 0 ) As Object
            Dim types0( 0 ) As iwObjectType_e

            types0( 0 ) = Inkwright.iwObjectType_e.iwCircleType
            Set iwEntities0( 0 ) = circle3

            iwSketchManager.RotateEntities 1, 2, 1.5708, types0, iwEntities0
        End If

        If 1 Then
            Dim iwEntities0( 1 ) As Object
            Dim types0( 1 ) As iwObjectType_e

            types0( 0 ) = Inkwright.iwObjectType_e.iwLineType
            Set iwEntities0( 0 ) = line1
            types0( 1 ) = Inkwright.iwObjectType_e.iwCircleType
            Set iwEntities0( 1 ) = circle3

            iwSketchManager.ScaleEntities 1, 2, 2, 3, types0, iwEntities0
        End If

        If 1 Then
            Dim iwSelectionMgr0 As Inkwright.SelectionManager
            Set iwSelectionMgr0 = iwDoc.GetSelectionManager()
            Dim iwMathUtility0 As Inkwright.MathUtility
            Set iwMathUtility0 = iwApp.GetMathUtility()
            Dim Point_0_1 As Inkwright.MathPoint
            Set Point_0_1 = iwMathUtility0.CreatePoint(1, 2, 0)
            iwSelectionMgr0.SelectByPoint Point_0_1
            Dim iCount0 As Integer
            iCount0 = iwSelectionMgr0.GetSelectedObjectCount(Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous)
            Dim iwSelectionMgr1 As Inkwright.SelectionManager
            Set iwSelectionMgr1 = iwDoc.GetSelectionManager()
            Dim iwMathUtility1 As Inkwright.MathUtility
            Set iwMathUtility1 = iwApp.GetMathUtility()
            Dim Point_1_1 As Inkwright.MathPoint
            Set Point_1_1 = iwMathUtility1.CreatePoint(0, 0, 0)
            Dim Point_1_2 As Inkwright.MathPoint
            Set Point_1_2 = iwMathUtility1.CreatePoint(4, 3, 0)
            iwSelectionMgr1.SelectByWindow Point_1_1, Point_1_2, False
            Dim iCount1 As Integer
            iCount1 = iwSelectionMgr1.GetSelectedObjectCount(Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous)
            Dim iwSelectionMgr2 As Inkwright.SelectionManager
            Set iwSelectionMgr2 = iwDoc.GetSelectionManager()
            Dim iwMathUtility2 As Inkwright.MathUtility
            Set iwMathUtility2 = iwApp.GetMathUtility()
            Dim doubleArray2(14) As Double
            doubleArray2(0) = 0
            doubleArray2(1) = 0
            doubleArray2(2) = 0
            doubleArray2(0) = 4
            doubleArray2(1) = 0
            doubleArray2(2) = 0
            doubleArray2(0) = 4
            doubleArray2(1) = 3
            doubleArray2(2) = 0
            doubleArray2(0) = 0
            doubleArray2(1) = 3
            doubleArray2(2) = 0
            doubleArray2(0) = 0
            doubleArray2(1) = 0
            doubleArray2(2) = 0
            iwSelectionMgr2.SelectByPolygon doubleArray2, True
            Dim iCount2 As Integer
            iCount2 = iwSelectionMgr2.GetSelectedObjectCount(Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous)
            Dim iwSelectionMgr3 As Inkwright.SelectionManager
            Set iwSelectionMgr3 = iwDoc.GetSelectionManager()
            Dim iwMathUtility3 As Inkwright.MathUtility
            Set iwMathUtility3 = iwApp.GetMathUtility()
            Dim doubleArray3(5) As Double
            doubleArray3(0) = 0
            doubleArray3(1) = 0
            doubleArray3(2) = 0
            doubleArray3(0) = 1
            doubleArray3(1) = 1
            doubleArray3(2) = 0
            iwSelectionMgr3.SelectByCrossline doubleArray3
            Dim iCount3 As Integer
            iCount3 = iwSelectionMgr3.GetSelectedObjectCount(Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous)
            Dim iwSelectionMgr4 As Inkwright.SelectionManager
            Set iwSelectionMgr4 = iwDoc.GetSelectionManager()
            Dim iwMathUtility4 As Inkwright.MathUtility
            Set iwMathUtility4 = iwApp.GetMathUtility()
            Dim Point_4_1 As Inkwright.MathPoint
            Set Point_4_1 = iwMathUtility4.CreatePoint(1, 2.5, 0)
            Dim Point_4_2 As Inkwright.MathPoint
            Set Point_4_2 = iwMathUtility4.CreatePoint(5, 4, 0)
            iwSelectionMgr4.SelectByWindow Point_4_1, Point_4_2, True
            Dim iCount4 As Integer
            iCount4 = iwSelectionMgr4.GetSelectedObjectCount(Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous)
        End If

        If 1 Then
            Dim iwSelectionMgr5 As Inkwright.SelectionManager
            Set iwSelectionMgr5 = iwDoc.GetSelectionManager()
            Dim selectionFilter5 As Inkwright.SelectionFilter
            Set selectionFilter5 = iwSelectionMgr5.GetSelectionFilter()
            selectionFilter5.Clear
            selectionFilter5.AddEntityType Inkwright.iwObjectType_e.iwLineType
            selectionFilter5.AddEntityType Inkwright.iwObjectType_e.iwCircleType

            selectionFilter5.Active = True
            Dim iwMathUtility5 As Inkwright.MathUtility
            Set iwMathUtility5 = iwApp.GetMathUtility()
            Dim Point_5_1 As Inkwright.MathPoint
            Set Point_5_1 = iwMathUtility5.CreatePoint(0, 0, 0)
            Dim Point_5_2 As Inkwright.MathPoint
            Set Point_5_2 = iwMathUtility5.CreatePoint(1e+06, 1, 0)
            iwSelectionMgr5.SelectByWindow Point_5_1, Point_5_2, False
            Dim iCount5 As Integer
            iCount5 = iwSelectionMgr5.GetSelectedObjectCount(Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous)
            selectionFilter5.Active = False
        End If

        If 1 Then
            Dim line7 As Inkwright.Line
            Dim type1 As Inkwright.iwObjectType_e
            Set line7 = iwApp.GetActiveDocument().GetObjectByHandle ("A0", type1 )
            line1.Join line7
        End If

        If 1 Then
            Dim line8 As Inkwright.Line
            Dim type1 As Inkwright.iwObjectType_e
            Set line8 = iwApp.GetActiveDocument().GetObjectByHandle ("A0", type1 )
            line4.Erased = True
            line8.Erased = True
        End If

        If 1 Then
            Dim leader10 As Inkwright.Leader
            Dim type2 As Inkwright.iwObjectType_e
            Set leader10 = iwApp.GetActiveDocument().GetObjectByHandle ("62", type2 )
            Dim note9 As Inkwright.Note
            Set note9 = leader10.GetNoteAnnotation()
            note9.Erased = True
        End If

        Dim group11 As Inkwright.Group
        If 1 Then
            Dim entities(-1) As Object
            Set group11 = iwDoc.CreateGroup( "", False, "", entities )

            Dim entities1( 0 ) As Object
            If Not group11.HasEntity(line1) Then
                Set entities1( 0 ) = line1
                group11.AddEntities entities1
            End If
            If Not group11.HasEntity(line2) Then
                Set entities1( 0 ) = line2
                group11.AddEntities entities1
            End If

        End If

        If 1 Then

            Dim removeObject1( 0 ) As Object
            Set removeObject1( 0 ) = line2

            group11.RemoveEntities removeObject1
        End If

        If 1 Then
            circle3.Explode
            Dim line12 As Inkwright.Line
            Dim type1 As Inkwright.iwObjectType_e
            Set line12 = iwApp.GetActiveDocument().GetObjectByHandle ("A0", type1 )
            line12.Explode
        End If

        Dim region13 As Inkwright.Region
        If 1 Then

            Dim iwRegionEntities_1(2) As Object
            Set iwRegionEntities_1(0) = line1
            Set iwRegionEntities_1(1) = line2
            Set iwRegionEntities_1(2) = 
            Dim regionArray1 As Variant
            iwSketchManager.InsertRegion iwRegionEntities_1, regionArray1 
            Set region13 = regionArray1(0)

        End If

        Dim embeddedobject14 As Inkwright.EmbeddedObject
        If 1 Then
            Set embeddedobject14 = iwSketchManager.InsertEmbeddedObjectFromFile( "C:\\data\\parts list.xls", True, False )
        End If

        Dim blockinstance15 As Inkwright.BlockInstance
        If 1 Then
            Set blockinstance15 = iwSketchManager.InsertBlock2( "", 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 1.00000000000000, 1.00000000000000, 0.00000000000000 )
            Dim iwAttributes1 As Variant
            iwAttributes1 = blockinstance15.GetAttributeInstances()
            Dim iwAttribute1 As Variant
            For Each iwAttribute1 In iwAttributes1
                If iwAttribute1.Name = "SIZE" Then
                    iwAttribute1.Value = "M8"
                End If
            Next
        End If

        Dim viewport17 As Inkwright.Viewport
        Dim sheetsArray1 As Inkwright.Sheet
        Set sheetsArray1 = iwDoc.GetSheet("Layout1")
        If Not sheetsArray1 Is Nothing Then
            Dim Coordinates1(8) As Double
            Coordinates1( 0 )=0
            Coordinates1( 1 )=0
            Coordinates1( 2 )=0
            Coordinates1( 3 )=4
            Coordinates1( 4 )=0
            Coordinates1( 5 )=0
            Coordinates1( 6 )=4
            Coordinates1( 7 )=3
            Coordinates1( 8 )=0
            Set viewport17 = sheetsArray1.InsertViewport( Coordinates1 )
        End If
        If 1 Then
            viewport17.Activate
        End If

        If 1 Then
            Dim appOption As Inkwright.ApplicationOptions
            Set appOption = iwApp.GetApplicationOptions()
            Dim iwColor1 As Inkwright.Color
            Set ElementOption As Inkwright.iwElementColor_e
            
            Set ElementOption = 3
            Set iwColor1 = iwApp.GetColorByIndex( 5 )
            Set appOption.SetElementColor(ElementOption, iwColor1)
            Set ElementOption = 4
            Set iwColor1 = iwApp.GetRGBColor( 1, 2, 3 )
            Set appOption.SetElementColor(ElementOption, iwColor1)
        End If

        If 1 Then
            If 1 Then
            Dim resultInt161 As Inkwright.iwSetCommandOptionResult_e 
            iwApp.GetActiveDocument().SetCommandOptionInt16 Inkwright.iwCommandOptionInt16_e.iwCommandOptionInt16_EnblChmfAng, 1, resultInt161
            End If

            iwApp.GetApplicationOptions().SetApplicationOptionInt16 Inkwright.iwApplicationOptionInt16_e.iwApplicationOptionInt16_EnblChmfAng, 1
            If 1 Then
            Dim resultString2 As Inkwright.iwSetCommandOptionResult_e 
            iwApp.GetActiveDocument().SetCommandOptionString Inkwright.iwCommandOptionString_e.iwCommandOptionString_SetCLAYER, "Walls", resultString2
            End If
        End If

        If 1 Then
            iwModel.PrintStyle = "monochrome.ctb"
        End If

        Dim line18 As Inkwright.Line
        Dim line19 As Inkwright.Line
        If 1 Then
            Set line18 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 1.00000000000000, 0.00000000000000 )
            line18.Color = iwApp.GetColorByIndex( 256 )
            line18.Layer = "0"
            line18.LineStyle = "Continuous"
            line18.LineScale = 1.00000000000000
            line18.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            line18.Thickness = 0.00000000000000
        End If

        If 1 Then
            Set iwSheet = iwDoc.GetSheet("Layout1")
            If Not iwSheet Is Nothing Then
                 iwSheet.Activate
                 Set iwSketchManager = iwSheet.GetSketchManager()
            End If
            iwSheet.PrintStyle = "monochrome.ctb"
        End If

