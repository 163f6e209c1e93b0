        If 1 Then
            ' AcDbLayerTableRecord object modified
            Dim iwLayerManager_1 As Inkwright.LayerManager = iwDoc.GetLayerManager()
            Dim layer1 As Inkwright.Layer = iwLayerManager_1.GetLayer( "Walls" )
            If 1 Then
                layer1.Color = iwApp.GetColorByIndex( 8 )
                layer1.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_035
                layer1.Rename("Walls existing")
            End If

        End If

        Dim layer2 As Inkwright.Layer
        If 1 Then
            Dim iwLayerManager1 As Inkwright.LayerManager = iwDoc.GetLayerManager()
            Dim iwCreateObjectResult1 As Inkwright.iwCreateObjectResult_e
            iwLayerManager1.CreateLayer( "Walls new", layer2, iwCreateObjectResult1 )
        End If

        If 1 Then
            ' AcDbTextStyleTableRecord object modified
            Dim type2 As Inkwright.iwObjectType_e
            Dim textstyle3 As Inkwright.TextStyle = iwApp.GetActiveDocument().GetObjectByHandle("13", type2)
            If 1 Then
                Dim result3 As Inkwright.iwCreateObjectResult_e
                Dim styleName3 As String = "Room names"
                result3 = textstyle3.Rename( styleName3 )
                textstyle3.Height = 0.25000000000000
            End If

        End If

        If 1 Then
            ' AcDbLine object modified
            Dim type4 As Inkwright.iwObjectType_e
            Dim line4 As Inkwright.Line = iwApp.GetActiveDocument().GetObjectByHandle("2A", type4)
            line4.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_050
            Dim getX5 As Double
            Dim getY5 As Double
            Dim getZ5 As Double
            line4.GetSecondPoint( getX5, getY5, getZ5 )
            getX5 = 7.50000000000000
            line4.SetSecondPoint( getX5, getY5, getZ5 )
            ' AcDbCircle object modified
            Dim type6 As Inkwright.iwObjectType_e
            Dim circle5 As Inkwright.Circle = iwApp.GetActiveDocument().GetObjectByHandle("2C", type6)
            If 1 Then
                circle5.Layer = "Walls existing"
            End If

            ' AcDbText object modified
            Dim type7 As Inkwright.iwObjectType_e
            Dim simplenote6 As Inkwright.SimpleNote = iwApp.GetActiveDocument().GetObjectByHandle("2D", type7)
            If 1 Then
                simplenote6.Layer = "Rooms"
                simplenote6.Contents = "Kitchen"
                simplenote6.TextStyle = "Room names"
            End If

            ' AcDbRotatedDimension object modified
            Dim type8 As Inkwright.iwObjectType_e
            Dim rotateddimension7 As Inkwright.RotatedDimension = iwApp.GetActiveDocument().GetObjectByHandle("2F", type8)
            If 1 Then
                Dim generalDimension9 As Inkwright.GeneralDimension = rotateddimension7.GetGeneralDimension()
                generalDimension9.Layer = "Rooms"
                Dim generalDimension10 As Inkwright.GeneralDimension = rotateddimension7.GetGeneralDimension()
                generalDimension10.TextOverride = "7.50"
            End If

        End If

        If 1 Then
            ' AcDbPolyline object modified
            Dim type11 As Inkwright.iwObjectType_e
            Dim polyline8 As Inkwright.PolyLine = iwApp.GetActiveDocument().GetObjectByHandle("2B", type11)
            If 1 Then
                Dim X12 As Double
                Dim Y12 As Double
                polyline8.GetVertexCoordinate( 2, X12, Y12 )
                X12 = 7.50000000000000
                polyline8.SetVertexCoordinate( 2, X12, Y12 )
            End If

            ' AcDbPolyline object modified
            If 1 Then
                Dim X13 As Double
                Dim Y13 As Double
                polyline8.GetVertexCoordinate( 1, X13, Y13 )
                Y13 = 4.50000000000000
                polyline8.SetVertexCoordinate( 1, X13, Y13 )
            End If

        End If

        If 1 Then
            ' AcDbBlockReference object modified
            Dim type14 As Inkwright.iwObjectType_e
            Dim blockinstance9 As Inkwright.BlockInstance = iwApp.GetActiveDocument().GetObjectByHandle("2E", type14)
            If 1 Then
                blockinstance9.Rotation = 1.57079632679490
                Dim iwAttributes15 As Object() = blockinstance9.GetAttributeInstances()
                For Each iwAttribute15 As Inkwright.AttributeInstance In iwAttributes15
                    If iwAttribute15.Name = "NUMBER" Then
                        iwAttribute15.Value = "D 02"
                    End If
                Next
            End If

        End If

        If 1 Then
            ' AcDbHatch object modified
            Dim type16 As Inkwright.iwObjectType_e
            Dim hatch10 As Inkwright.Hatch = iwApp.GetActiveDocument().GetObjectByHandle("30", type16)
            If 1 Then
                Dim hatchPattern As Inkwright.HatchPattern
                hatchPattern = hatch10.GetHatchPattern()
                Dim PatternName As String
                Dim Angle As Double
                Dim Scale As Double
                Dim HatchPatternType As Inkwright.iwHatchPatternType_e
                Dim Spacing As Double

                hatchPattern.GetHatchOrSolidData( PatternName, Angle, Scale, HatchPatternType, Spacing )

                Scale = 2.00000000000000
                PatternName = "BRICK"
                hatchPattern.SetHatchOrSolidData( PatternName, Angle, Scale, HatchPatternType, Spacing )

            End If

        End If

        If 1 Then
            ' AcDbTable object modified
            Dim type17 As Inkwright.iwObjectType_e
            Dim table11 As Inkwright.Table = iwApp.GetActiveDocument().GetObjectByHandle("31", type17)
            If 1 Then
                table11.InsertRow( 2, 0.50000000000000 )
                table11.SetText( 2, 0, "Kitchen" )
                table11.SetText( 2, 0, "Kitchen" )
                table11.SetRowHeightAt( 2, 0.50000000000000 )
            End If

        End If

        If 1 Then
            ' AcDbMText object modified
            Dim type19 As Inkwright.iwObjectType_e
            Dim leader13 As Inkwright.Leader = iwApp.GetActiveDocument().GetObjectByHandle("33", type19)
            Dim note12 As Inkwright.Note = leader13.GetNoteAnnotation()
            If 1 Then
                note12.Text = "see detail B"
            End If

        End If

        Dim note14 As Inkwright.Note
        If 1 Then
            Dim strArray20(0) As String
            strArray20(0) = "Bath"
            note14 = iwSketchManager.InsertNote( 1.00000000000000, 3.00000000000000, 0.00000000000000, 5.00000000000000, 2.75000000000000, 0.00000000000000, strArray20 )
            note14.Width = 4.00000000000000
            note14.TextStyle = "Room names"
            If 1 Then
                note14.Layer = "Walls existing"
            End If

        End If

        Dim type21 As Inkwright.iwObjectType_e
        Dim circle15 As Inkwright.Circle = iwApp.GetActiveDocument().GetObjectByHandle("2C", type21)
        If 1 Then
            circle15.Radius = 0.75000000000000
        End If

        If 1 Then
            ' AcDbRotatedDimension object modified
            Dim type22 As Inkwright.iwObjectType_e
            Dim rotateddimension16 As Inkwright.RotatedDimension = iwApp.GetActiveDocument().GetObjectByHandle("2F", type22)
            If 1 Then
                Dim generalDimension24 As Inkwright.GeneralDimension = rotateddimension16.GetGeneralDimension()
                generalDimension24.Erased = True
            End If

        End If

        If 1 Then
            Dim iwLayerManager_2 As Inkwright.LayerManager = iwDoc.GetLayerManager()
            Dim layer17 As Inkwright.Layer = iwLayerManager_2.GetLayer( "Scrap" )
            Dim iwLayerManager26 As Inkwright.LayerManager = iwDoc.GetLayerManager()
            Dim layerName26 As String = layer17.Name
            iwLayerManager26.RemoveLayer( layerName26 )
        End If

