        Dim line1 As Inkwright.Line
        Dim line2 As Inkwright.Line
        If 1 Then
            line1 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 2.80000000000000, 0.00000000000000, 0.00000000000000 )
            line1.Color = iwApp.GetColorByIndex( 256 )
            line1.LineScale = 1.00000000000000
            line1.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            line1.Thickness = 0.00000000000000
            line2 = iwSketchManager.InsertLine( 0.00000000000000, 0.28000000000000, 0.00000000000000, 2.80000000000000, 0.28000000000000, 0.00000000000000 )
            line2.Color = iwApp.GetColorByIndex( 256 )
            line2.LineScale = 1.00000000000000
            line2.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            line2.Thickness = 0.00000000000000
        End If

        Dim iwShapeManager As Inkwright.ShapeManager = iwDoc.GetShapeManager()
        iwShapeManager.Load( "stairs.shx" )
            line4 = iwSketchManager.InsertLine( 1.40000000000000, 0.00000000000000, 0.00000000000000, 1.40000000000000, 0.28000000000000, 0.00000000000000 )
            line4.Color = iwApp.GetColorByIndex( 256 )
            line4.LineScale = 1.00000000000000
            line4.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            line4.Thickness = 0.00000000000000
        Dim textstyle5 As Inkwright.TextStyle
        Dim line6 As Inkwright.Line
        If 1 Then
            line6 = iwSketchManager.InsertLine( 1.40000000000000, 0.28000000000000, 0.00000000000000, 1.40000000000000, 0.56000000000000, 0.00000000000000 )
            line6.Color = iwApp.GetColorByIndex( 256 )
            line6.LineScale = 1.00000000000000
            line6.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            line6.Thickness = 0.00000000000000
        End If

        Dim note7 As Inkwright.Note
        Dim line8 As Inkwright.Line
        If 1 Then
            Dim strArray1(0) As String
            strArray1(0) = ""
            note7 = iwSketchManager.InsertNote( 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, strArray1 )
            line8 = iwSketchManager.InsertLine( 3.00000000000000, 0.00000000000000, 0.00000000000000, 4.00000000000000, 1.00000000000000, 0.00000000000000 )
            line8.Color = iwApp.GetColorByIndex( 256 )
            line8.LineScale = 1.00000000000000
            line8.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            line8.Thickness = 0.00000000000000
        End If

        Dim line9 As Inkwright.Line
        Dim line10 As Inkwright.Line
        If 1 Then
            line9 = iwSketchManager.InsertLine( 5.00000000000000, 0.00000000000000, 0.00000000000000, 6.00000000000000, 0.00000000000000, 0.00000000000000 )
            line9.Color = iwApp.GetColorByIndex( 256 )
            line9.LineScale = 1.00000000000000
            line9.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            line9.Thickness = 0.00000000000000
        End If

        Dim line11 As Inkwright.Line
        If 1 Then
            line11 = iwSketchManager.InsertLine( 7.00000000000000, 0.00000000000000, 0.00000000000000, 8.00000000000000, 0.00000000000000, 0.00000000000000 )
            line11.Color = iwApp.GetColorByIndex( 256 )
            line11.LineScale = 1.00000000000000
            line11.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            line11.Thickness = 0.00000000000000
        End If

        Dim iwLayerManager_1 As Inkwright.LayerManager = iwDoc.GetLayerManager()
        Dim layer13 As Inkwright.Layer = iwLayerManager_1.GetLayer( "0" )
        ' AcDbLayerTableRecord object modified
        If 1 Then
            layer13.Frozen = True
        End If

        If 1 Then
            Dim iwLayerManager_2 As Inkwright.LayerManager = iwDoc.GetLayerManager()
            Dim layer14 As Inkwright.Layer = iwLayerManager_2.GetLayer( "0" )
            ' AcDbLayerTableRecord object modified
            If 1 Then
                layer14.Locked = True
            End If

            ' AcDbLayerTableRecord object modified
            If 1 Then
                layer13.Frozen = False
            End If

        End If

        If 1 Then
            line1.Thickness = 2.00000000000000
        End If

        If 1 Then
            Dim result1 As Inkwright.iwSetCommandOptionResult_e 
            iwApp.GetActiveDocument().SetCommandOptionInt16(Inkwright.iwCommandOptionInt16_e.iwCommandOptionInt16_SetCVPORT, 2,result1)
        End If
