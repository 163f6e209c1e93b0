        If 1 Then
            Dim iwLayerManager_1 As Inkwright.LayerManager = iwDoc.GetLayerManager()
            Dim layer1 As Inkwright.Layer = iwLayerManager_1.GetLayer( "0" )
            ' AcDbLayerTableRecord object modified
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
            ' AcDbMText object modified
            Dim note3 As Inkwright.Note = leader4.GetNoteAnnotation()
            If 1 Then
                note3.Text = "see detail B"
            End If

        End If

        Dim note5 As Inkwright.Note
        If 1 Then
            Dim strArray1(0) As String
            strArray1(0) = "Bath"
            note5 = iwSketchManager.InsertNote( 1.00000000000000, 3.00000000000000, 0.00000000000000, 5.00000000000000, 2.75000000000000, 0.00000000000000, strArray1 )
            note5.Width = 4.00000000000000
            note5.TextStyle = "Notes"
            If 1 Then
                note5.Layer = "Walls"
            End If

        End If

        If 1 Then
            Dim type1 As Inkwright.iwObjectType_e
            Dim layer6 As Inkwright.Layer = iwApp.GetActiveDocument().GetObjectByHandle("12", type1)
            layer6.Erased = True
        End If

