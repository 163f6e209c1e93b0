        If 1 Then
            ' AcDbLayerTableRecord object modified
            Dim iwLayerManager_1 As Inkwright.LayerManager
            Set iwLayerManager_1  = iwDoc.GetLayerManager()
            Dim layer1 As Inkwright.Layer
            Set layer1  = iwLayerManager_1.GetLayer( "Walls" )
            If 1 Then
                layer1.Color = iwApp.GetColorByIndex( 8 )
                layer1.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_035
                layer1.Rename( "Walls existing" ) 
            End If

        End If

        Dim layer2 As Inkwright.Layer
        If 1 Then
            Dim iwLayerManager1 As Inkwright.LayerManager
            Set iwLayerManager1 = iwDoc.GetLayerManager()
            Dim iwCreateObjectResult1 As Inkwright.iwCreateObjectResult_e
            iwLayerManager1.CreateLayer "Walls new", layer2, iwCreateObjectResult1
        End If

        If 1 Then
            ' AcDbTextStyleTableRecord object modified
            Dim textstyle3 As Inkwright.TextStyle
            Dim type2 As Inkwright.iwObjectType_e
            Set textstyle3 = iwApp.GetActiveDocument().GetObjectByHandle ("13", type2 )
            If 1 Then
                Dim result3 As Inkwright.iwCreateObjectResult_e
                Dim styleName3 As String
                styleName3 = "Room names"
                result3 = textstyle3.Rename( styleName3 )
                textstyle3.Height = 0.25000000000000
            End If

        End If

        If 1 Then
            ' AcDbLine object modified
            Dim line4 As Inkwright.Line
            Dim type4 As Inkwright.iwObjectType_e
            Set line4 = iwApp.GetActiveDocument().GetObjectByHandle ("2A", type4 )
            line4.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_050
            Dim getX5 As Double
            Dim getY5 As Double
            Dim getZ5 As Double
            line4.GetSecondPoint getX5, getY5, getZ5
            getX5 = 7.50000000000000
            line4.SetSecondPoint getX5, getY5, getZ5
            ' AcDbCircle object modified
            Dim circle5 As Inkwright.Circle
            Dim type6 As Inkwright.iwObjectType_e
            Set circle5 = iwApp.GetActiveDocument().GetObjectByHandle ("2C", type6 )
            If 1 Then
                circle5.Layer = "Walls existing"
            End If

            ' AcDbText object modified
            Dim simplenote6 As Inkwright.SimpleNote
            Dim type7 As Inkwright.iwObjectType_e
            Set simplenote6 = iwApp.GetActiveDocument().GetObjectByHandle ("2D", type7 )
            If 1 Then
                simplenote6.Layer = "Rooms"
                simplenote6.Contents = "Kitchen"
                simplenote6.TextStyle = "Room names"
            End If

            ' AcDbRotatedDimension object modified
            Dim rotateddimension7 As Inkwright.RotatedDimension
            Dim type8 As Inkwright.iwObjectType_e
            Set rotateddimension7 = iwApp.GetActiveDocument().GetObjectByHandle ("2F", type8 )
            If 1 Then
                Dim generalDimension9 As Inkwright.GeneralDimension
                Set generalDimension9 = rotateddimension7.GetGeneralDimension()
                generalDimension9.Layer = "Rooms"
                Dim generalDimension10 As Inkwright.GeneralDimension
                Set generalDimension10 = rotateddimension7.GetGeneralDimension()
                generalDimension10.TextOverride = "7.50"
            End If

        End If

        If 1 Then
            ' AcDbPolyline object modified
            Dim polyline8 As Inkwright.PolyLine
            Dim type11 As Inkwright.iwObjectType_e
            Set polyline8 = iwApp.GetActiveDocument().GetObjectByHandle ("2B", type11 )
            If 1 Then
                Dim X12 As Double
                Dim Y12 As Double
                polyline8.GetVertexCoordinate 2, X12, Y12
                X12 = 7.50000000000000
                polyline8.SetVertexCoordinate 2, X12, Y12
            End If

            ' AcDbPolyline object modified
            If 1 Then
                Dim X13 As Double
                Dim Y13 As Double
                polyline8.GetVertexCoordinate 1, X13, Y13
                Y13 = 4.50000000000000
                polyline8.SetVertexCoordinate 1, X13, Y13
            End If

        End If

        If 1 Then
            ' AcDbBlockReference object modified
            Dim blockinstance9 As Inkwright.BlockInstance
            Dim type14 As Inkwright.iwObjectType_e
            Set blockinstance9 = iwApp.GetActiveDocument().GetObjectByHandle ("2E", type14 )
            If 1 Then
                blockinstance9.Rotation = 1.57079632679490
                Dim iwAttributes15 As Variant
                iwAttributes15 = blockinstance9.GetAttributeInstances()
                Dim iwAttribute15 As Variant
                For Each iwAttribute15 In iwAttributes15
                    If iwAttribute15.Name = "NUMBER" Then
                        iwAttribute15.Value = "D 02"
                    End If
                Next
            End If

        End If

        If 1 Then
            ' AcDbHatch object modified
            Dim hatch10 As Inkwright.Hatch
            Dim type16 As Inkwright.iwObjectType_e
            Set hatch10 = iwApp.GetActiveDocument().GetObjectByHandle ("30", type16 )
            If 1 Then
                Dim hatchPattern17 As Inkwright.HatchPattern
                Set hatchPattern17 = hatch10.GetHatchPattern()
                Dim PatternName As String
                Dim Angle As Double
                Dim scale As Double
                Dim HatchPatternType As Inkwright.iwHatchPatternType_e
                Dim Elevation As Double

                hatchPattern17.GetHatchOrSolidData PatternName, Angle, scale, HatchPatternType, Elevation
                scale = 2.00000000000000
                PatternName = "BRICK"
                hatchPattern17.SetHatchOrSolidData PatternName, Angle, scale, HatchPatternType, Elevation

            End If

        End If

        If 1 Then
            ' AcDbTable object modified
            Dim table11 As Inkwright.Table
            Dim type18 As Inkwright.iwObjectType_e
            Set table11 = iwApp.GetActiveDocument().GetObjectByHandle ("31", type18 )
            If 1 Then
                table11.InsertRow 2, 0.50000000000000
                table11.SetText 2, 0, "Kitchen"
                table11.SetText 2, 0, "Kitchen"
                table11.SetRowHeightAt 2, 0.50000000000000
            End If

        End If

        If 1 Then
            ' AcDbMText object modified
            Dim leader13 As Inkwright.Leader
            Dim type20 As Inkwright.iwObjectType_e
            Set leader13 = iwApp.GetActiveDocument().GetObjectByHandle ("33", type20 )
            Dim note12 As Inkwright.Note
            Set note12 = leader13.GetNoteAnnotation()
            If 1 Then
                note12.Text = "see detail B"
            End If

        End If

        Dim note14 As Inkwright.Note
        If 1 Then
            Dim strArray21(0) As String
            strArray21(0) = "Bath"
            Set note14 = iwSketchManager.InsertNote( 1.00000000000000, 3.00000000000000, 0.00000000000000, 5.00000000000000, 2.75000000000000, 0.00000000000000, strArray21 )
            note14.Width = 4.00000000000000
            note14.TextStyle = "Room names"
            If 1 Then
                note14.Layer = "Walls existing"
            End If

        End If

        Dim circle15 As Inkwright.Circle
        Dim type22 As Inkwright.iwObjectType_e
        Set circle15 = iwApp.GetActiveDocument().GetObjectByHandle ("2C", type22 )
        If 1 Then
            circle15.Radius = 0.75000000000000
        End If

        If 1 Then
            ' AcDbRotatedDimension object modified
            Dim rotateddimension16 As Inkwright.RotatedDimension
            Dim type23 As Inkwright.iwObjectType_e
            Set rotateddimension16 = iwApp.GetActiveDocument().GetObjectByHandle ("2F", type23 )
            If 1 Then
                Dim generalDimension25 As Inkwright.GeneralDimension
                Set generalDimension25 = rotateddimension16.GetGeneralDimension()
                generalDimension25.Erased = True
            End If

        End If

        If 1 Then
            Dim iwLayerManager_2 As Inkwright.LayerManager
            Set iwLayerManager_2  = iwDoc.GetLayerManager()
            Dim layer17 As Inkwright.Layer
            Set layer17  = iwLayerManager_2.GetLayer( "Scrap" )
            Dim iwLayerManager27 As Inkwright.LayerManager
            Set iwLayerManager27 = iwDoc.GetLayerManager()
            Dim layerName27 As String
            layerName27 = layer17.Name
            iwLayerManager27.RemoveLayer layerName27
        End If

