        Dim line1 As Inkwright.Line
        Dim line2 As Inkwright.Line
        Dim circle3 As Inkwright.Circle
        If 1 Then
            line1 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 10.00000000000000, 0.00000000000000, 0.00000000000000 )
            line1.Color = iwApp.GetColorByIndex( 256 )
            line1.Layer = "0"
            line1.LineStyle = "Continuous"
            line1.LineScale = 1.00000000000000
            line1.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            line1.Thickness = 0.00000000000000
            line2 = iwSketchManager.InsertLine( 10.00000000000000, 0.00000000000000, 0.00000000000000, 10.00000000000000, 5.00000000000000, 0.00000000000000 )
            line2.Color = iwApp.GetColorByIndex( 256 )
            line2.Layer = "0"
            line2.LineStyle = "Continuous"
            line2.LineScale = 1.00000000000000
            line2.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            line2.Thickness = 0.00000000000000
            circle3 = iwSketchManager.InsertCircle( 5.00000000000000, 2.50000000000000, 0.00000000000000, 1.00000000000000 )
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
            Dim iwEntities0 As DispatchWrapper()
            Dim types0 As Integer() = New Integer( 1 ) {}
            iwEntities0 = New DispatchWrapper( 1 ) {}

            types0( 0 ) = CInt( Inkwright.iwObjectType_e.iwLineType )
            iwEntities0( 0 ) = New DispatchWrapper( line1 )
            types0( 1 ) = CInt( Inkwright.iwObjectType_e.iwLineType )
            iwEntities0( 1 ) = New DispatchWrapper( line2 )

            iwSketchManager.MirrorEntities( 0, 5, 0, 10, 5, 0, false, types0, iwEntities0 )
            line4 = iwSketchManager.InsertLine( 0.00000000000000, 10.00000000000000, 0.00000000000000, 10.00000000000000, 10.00000000000000, 0.00000000000000 )
            line4.Color = iwApp.GetColorByIndex( 256 )
            line4.Layer = "0"
            line4.LineStyle = "Continuous"
            line4.LineScale = 1.00000000000000
            line4.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            line4.Thickness = 0.00000000000000
            line5 = iwSketchManager.InsertLine( 10.00000000000000, 10.00000000000000, 0.00000000000000, 10.00000000000000, 5.00000000000000, 0.00000000000000 )
            line5.Color = iwApp.GetColorByIndex( 256 )
            line5.Layer = "0"
            line5.LineStyle = "Continuous"
            line5.LineScale = 1.00000000000000
            line5.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            line5.Thickness = 0.00000000000000
        End If

        If 1 Then
            Dim iwEntities0 As DispatchWrapper()
            Dim crossingBoxStartCorner0 As Double()
            Dim crossingBoxEndCorner0 As Double()

            iwEntities0 = New DispatchWrapper( 0 ) {}
            iwEntities0( 0 ) = New DispatchWrapper( line1 )

            crossingBoxStartCorner0 = New Double() { 9, -1, 0}
            crossingBoxEndCorner0 = New Double() { 11, 1, 0}

            iwSketchManager.StretchEntities( 2.5, 0, 0, iwEntities0, crossingBoxStartCorner0, crossingBoxEndCorner0 )
        End If

        Dim circle6 As Inkwright.Circle
        If 1 Then
            Dim iwEntities0 As DispatchWrapper()
            Dim types0 As Integer() = New Integer( 1 ) {}
            iwEntities0 = New DispatchWrapper( 1 ) {}

            types0( 0 ) = CInt( Inkwright.iwObjectType_e.iwCircleType )
            iwEntities0( 0 ) = New DispatchWrapper( circle3 )
            Dim iwTypeForCopy0 As Inkwright.iwObjectType_e
            Dim iwObjForCopy0 As Object = iwApp.GetActiveDocument().GetObjectByHandle("A0", iwTypeForCopy0)
            types0( 1 ) = CInt( iwTypeForCopy0 )
            iwEntities0( 1 ) = New DispatchWrapper( iwObjForCopy0 )

            iwSketchManager.CopyEntities( 1, 0, 0, types0, iwEntities0 )
            iwSketchManager.CopyEntities( 2, 0, 0, types0, iwEntities0 )
            iwSketchManager.CopyEntities( 3, 0, 0, types0, iwEntities0 )
            circle6 = iwSketchManager.InsertCircle( 6.00000000000000, 2.50000000000000, 0.00000000000000, 1.00000000000000 )
            circle6.Color = iwApp.GetColorByIndex( 256 )
            circle6.Layer = "0"
            circle6.LineStyle = "Continuous"
            circle6.LineScale = 1.00000000000000
            circle6.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            circle6.Thickness = 0.00000000000000
        End If

        If 1 Then
            Dim iwEntities0 As DispatchWrapper()
            iwEntities0 = New DispatchWrapper( 1 ) {}

            iwEntities0( 0 ) = New DispatchWrapper( line2 )
            iwEntities0( 1 ) = New DispatchWrapper( line4 )

            iwSketchManager.MoveEntities( 0, 0.125, 0, iwEntities0 )
        End If

        If 1 Then
            Dim iwEntities0 As DispatchWrapper()
            Dim types0 As Integer() = New Integer( 0 ) {}
            iwEntities0 = New DispatchWrapper( 0 ) {}

            types0( 0 ) = CInt( Inkwright.iwObjectType_e.iwCircleType )
            iwEntities0( 0 ) = New DispatchWrapper( circle3 )

            iwSketchManager.RotateEntities( 1, 2, 1.5708, types0, iwEntities0 )
        End If

        If 1 Then
            Dim iwEntities0 As DispatchWrapper()
            Dim types0 As Integer() = New Integer( 1 ) {}
            iwEntities0 = New DispatchWrapper( 1 ) {}

            types0( 0 ) = CInt( Inkwright.iwObjectType_e.iwLineType )
            iwEntities0( 0 ) = New DispatchWrapper( line1 )
            types0( 1 ) = CInt( Inkwright.iwObjectType_e.iwCircleType )
            iwEntities0( 1 ) = New DispatchWrapper( circle3 )

            iwSketchManager.ScaleEntities( 1, 2, 2, 3, types0, iwEntities0 )
        End If

        If 1 Then
            Dim type1 As Inkwright.iwObjectType_e
            Dim line7 As Inkwright.Line = iwApp.GetActiveDocument().GetObjectByHandle("A0", type1)
            line1.Join( line7 )
        End If

        If 1 Then
            Dim type1 As Inkwright.iwObjectType_e
            Dim line8 As Inkwright.Line = iwApp.GetActiveDocument().GetObjectByHandle("A0", type1)
            line4.Erased = True
            line8.Erased = True
        End If

        If 1 Then
            Dim type2 As Inkwright.iwObjectType_e
            Dim leader10 As Inkwright.Leader = iwApp.GetActiveDocument().GetObjectByHandle("62", type2)
            Dim note9 As Inkwright.Note = leader10.GetNoteAnnotation()
            note9.Erased = True
        End If

        Dim group11 As Inkwright.Group
        If 1 Then
            Dim entities1 As DispatchWrapper() = New DispatchWrapper(-1) {}
            group11 = iwDoc.CreateGroup( "", False, "", entities1 )

            If Not group11.HasEntity(line1) Then
                Dim entities2 As DispatchWrapper()
                entities2 = New DispatchWrapper( 0 ) {}
                entities2( 0 ) = New DispatchWrapper( line1 )
                group11.AddEntities(entities2)
            End If
            If Not group11.HasEntity(line2) Then
                Dim entities2 As DispatchWrapper()
                entities2 = New DispatchWrapper( 0 ) {}
                entities2( 0 ) = New DispatchWrapper( line2 )
                group11.AddEntities(entities2)
            End If

        End If

        If 1 Then

            Dim removeObject1 As DispatchWrapper()
            removeObject1 = New DispatchWrapper( 0 ) {}
            removeObject1( 0 ) = New DispatchWrapper( line2 )

            group11.RemoveEntities(removeObject1)
        End If

        If 1 Then
            circle3.Explode()
            Dim type1 As Inkwright.iwObjectType_e
            Dim line12 As Inkwright.Line = iwApp.GetActiveDocument().GetObjectByHandle("A0", type1)
            line12.Explode()
        End If

        Dim region13 As Inkwright.Region
        If 1 Then

            Dim iwEntities_1 As DispatchWrapper() = New DispatchWrapper(2) {}
            iwEntities_1(0) = New DispatchWrapper(line1)
            iwEntities_1(1) = New DispatchWrapper(line2)
            iwEntities_1(2) = New DispatchWrapper()
            Dim regionArray1 As Object
            iwSketchManager.InsertRegion( iwEntities_1, regionArray1 )

            Dim iwRegionObjs As Object() = DirectCast(regionArray1, Object())
            region13 = TryCast(iwRegionObjs(0), Inkwright.Region)
        End If

        Dim embeddedobject14 As Inkwright.EmbeddedObject
        If 1 Then
            embeddedobject14 = iwSketchManager.InsertEmbeddedObjectFromFile( "C:\\data\\parts list.xls", true, false )
        End If

        Dim blockinstance15 As Inkwright.BlockInstance
        If 1 Then
            blockinstance15 = iwSketchManager.InsertBlock2( "", 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 1.00000000000000, 1.00000000000000, 0.00000000000000 )
            Dim iwAttributes1 As Object() = blockinstance15.GetAttributeInstances()
            For Each iwAttribute1 As Inkwright.AttributeInstance In iwAttributes1
                If iwAttribute1.Name = "SIZE" Then
                    iwAttribute1.Value = "M8"
                End If
            Next
        End If

        Dim viewport17 As Inkwright.Viewport = Nothing
        Dim sheetsArray1 As Inkwright.Sheet = iwDoc.GetSheet("Layout1")
        If sheetsArray1 IsNot Nothing Then
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
             viewport17 = sheetsArray1.InsertViewport( Coordinates1 )
        End If
        If 1 Then
            viewport17.Activate()
        End If

        If 1 Then
            Dim appOption As Inkwright.ApplicationOptions
            appOption = iwApp.GetApplicationOptions()
            Dim iwColor1 As Inkwright.Color
            Dim ElementOption As Inkwright.iwElementColor_e
            
            ElementOption = 3
            iwColor1 = iwApp.GetColorByIndex( 5 )
            appOption.SetElementColor(ElementOption, iwColor1)
            ElementOption = 4
            iwColor1 = iwApp.GetRGBColor( 1, 2, 3 )
            appOption.SetElementColor(ElementOption, iwColor1)
        End If

        If 1 Then
            If 1 Then
                Dim result1 As Inkwright.iwSetCommandOptionResult_e 
                iwApp.GetActiveDocument().SetCommandOptionInt16(Inkwright.iwCommandOptionInt16_e.iwCommandOptionInt16_EnblChmfAng, 1,result1)
            End If

            iwApp.GetApplicationOptions().SetApplicationOptionInt16(Inkwright.iwApplicationOptionInt16_e.iwApplicationOptionInt16_EnblChmfAng, 1)
            If 1 Then
                Dim result2 As Inkwright.iwSetCommandOptionResult_e 
                iwApp.GetActiveDocument().SetCommandOptionString(Inkwright.iwCommandOptionString_e.iwCommandOptionString_SetCLAYER, "Walls",result2)
            End If
        End If

        If 1 Then
            iwModel.PrintStyle = "monochrome.ctb"
        End If

        Dim line18 As Inkwright.Line
        Dim line19 As Inkwright.Line
        If 1 Then
            line18 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 1.00000000000000, 0.00000000000000 )
            line18.Color = iwApp.GetColorByIndex( 256 )
            line18.Layer = "0"
            line18.LineStyle = "Continuous"
            line18.LineScale = 1.00000000000000
            line18.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            line18.Thickness = 0.00000000000000
        End If

        If 1 Then
            iwSheet = iwDoc.GetSheet("Layout1")
            If iwSheet IsNot Nothing Then
                 iwSheet.Activate()
                 iwSketchManager = iwSheet.GetSketchManager()
            End If
            iwSheet.PrintStyle = "monochrome.ctb"
        End If

