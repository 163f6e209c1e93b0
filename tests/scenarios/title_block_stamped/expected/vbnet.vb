        Dim layer1 As Inkwright.Layer
        If 1 Then
            Dim iwLayerManager1 As Inkwright.LayerManager = iwDoc.GetLayerManager()
            Dim iwCreateObjectResult1 As Inkwright.iwCreateObjectResult_e
            iwLayerManager1.CreateLayer( "Frame", layer1, iwCreateObjectResult1 )
            layer1.Activate()
        End If

        Dim line2 As Inkwright.Line
        Dim line3 As Inkwright.Line
        If 1 Then
            line2 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 180.00000000000000, 0.00000000000000, 0.00000000000000 )
            line3 = iwSketchManager.InsertLine( 0.00000000000000, 55.00000000000000, 0.00000000000000, 180.00000000000000, 55.00000000000000, 0.00000000000000 )
        End If

        Dim circle4 As Inkwright.Circle
        If 1 Then
            circle4 = iwSketchManager.InsertCircle( 160.00000000000000, 40.00000000000000, 0.00000000000000, 6.00000000000000 )
        End If

        Dim attributedefinition5 As Inkwright.AttributeDefinition
        If 1 Then
            attributedefinition5 = iwSketchManager.InsertAttributeDefinition(  "", "DRAWN", "Drawn by?", 100.00000000000000, 40.00000000000000, 0.00000000000000, "", Inkwright.iwTextJustification_e.iwTextJustification_Left, 3.50000000000000, 0.00000000000000, False, False, False, False, False, False )
        End If

        Dim leader6 As Inkwright.Leader
        If 1 Then
            Dim Coordinates1(5) As Double
            Coordinates1( 0 )=1.00000000000000
            Coordinates1( 1 )=1.00000000000000
            Coordinates1( 2 )=0.00000000000000
            Coordinates1( 3 )=5.00000000000000
            Coordinates1( 4 )=5.00000000000000
            Coordinates1( 5 )=0.00000000000000

            leader6 = iwSketchManager.InsertLeader( Coordinates1, 12.50000000000000, "Scale" )
            Dim note7 As Inkwright.Note = leader6.GetNoteAnnotation()
            note7.BackgroundMask = False
            note7.UseDrawingBackgroundColor = False
            note7.BackgroundBorderOffsetFactor = 1.50000000000000
            note7.LineSpaceDistance = 0.00000000000000
            note7.LineSpaceFactor = 1.00000000000000
            note7.Rotation = 0.00000000000000
            note7.TextHeight = 0.00000000000000
            note7.Width = 0.00000000000000
            note7.Justify = Inkwright.iwNoteJustification_e.iwNoteJustification_TopLeft
        End If

        Dim hatch8 As Inkwright.Hatch
        Dim blockdefinition9 As Inkwright.BlockDefinition
        If 1 Then
            Dim note10 As Inkwright.Note = leader6.GetNoteAnnotation()


                        Dim type2 As Inkwright.iwObjectType_e
            Dim leader11 As Inkwright.Leader = iwApp.GetActiveDocument().GetObjectByHandle("3B", type2)
            Dim note12 As Inkwright.Note = leader11.GetNoteAnnotation()

            Dim arcLengthDimension_0 As Inkwright.ArcLengthDimension
            Dim arcLengthDimension_0_associated_arc As Inkwright.CircleArc
            arcLengthDimension_0_associated_arc = iwSketchManager.InsertArc( 170.00000000000000, 10.00000000000000, 0.00000000000000, 8.48528137423857, 0.25000000000000, 1.25000000000000 )
            arcLengthDimension_0 = iwSketchManager.InsertArcLengthDimension( arcLengthDimension_0_associated_arc, new double(){176.00000000000000,16.00000000000000,0.00000000000000}, "\\A1;<>" )
            arcLengthDimension_0_associated_arc.Erased = true

            Dim Coordinates4(15) As Double
            Dim BoundaryPointCountLongArray4(1) As Long
            Coordinates4( 0 )=0.00000000000000
            Coordinates4( 1 )=0.00000000000000
            Coordinates4( 2 )=9.00000000000000
            Coordinates4( 3 )=0.00000000000000
            Coordinates4( 4 )=9.00000000000000
            Coordinates4( 5 )=4.00000000000000
            Coordinates4( 6 )=2.00000000000000
            Coordinates4( 7 )=1.00000000000000
            Coordinates4( 8 )=3.00000000000000
            Coordinates4( 9 )=1.00000000000000
            Coordinates4( 10 )=3.00000000000000
            Coordinates4( 11 )=2.00000000000000
            Coordinates4( 12 )=2.00000000000000
            Coordinates4( 13 )=2.00000000000000
            Coordinates4( 14 )=0.00000000000000
            Coordinates4( 15 )=0.00000000000000

            BoundaryPointCountLongArray4(0) = 3
            BoundaryPointCountLongArray4(1) = 4

            hatch8 = iwSketchManager.InsertHatchByBoundary( BoundaryPointCountLongArray4, Coordinates4, "ANSI31", 2.50000000000000, 0.75000000000000 )

            Dim arc_0 As Inkwright.CircleArc
            arc_0 = iwSketchManager.InsertArc( 170.00000000000000, 10.00000000000000, 0.00000000000000, 7.50000000000000, 0.00000000000000, 1.50000000000000 )


            Dim objects_5 As DispatchWrapper()
            objects_5 = New DispatchWrapper( 8 ) {}
            objects_5( 0 ) = New DispatchWrapper( line2 )
            objects_5( 1 ) = New DispatchWrapper( line3 )
            objects_5( 2 ) = New DispatchWrapper( circle4 )
            objects_5( 3 ) = New DispatchWrapper( attributedefinition5 )
            objects_5( 4 ) = New DispatchWrapper( note10 )
            objects_5( 5 ) = New DispatchWrapper( note12 )
            objects_5( 6 ) = New DispatchWrapper( arcLengthDimension_0 )
            objects_5( 7 ) = New DispatchWrapper( hatch8 )
            objects_5( 8 ) = New DispatchWrapper( arc_0 )

            Dim objecttypes_5 As Integer() = New Integer( 8 ) {}
            objecttypes_5( 0 ) = CInt( Inkwright.iwObjectType_e.iwLineType )
            objecttypes_5( 1 ) = CInt( Inkwright.iwObjectType_e.iwLineType )
            objecttypes_5( 2 ) = CInt( Inkwright.iwObjectType_e.iwCircleType )
            objecttypes_5( 3 ) = CInt( Inkwright.iwObjectType_e.iwSimpleNoteType )
            objecttypes_5( 4 ) = CInt( Inkwright.iwObjectType_e.iwNoteType )
            objecttypes_5( 5 ) = CInt( Inkwright.iwObjectType_e.iwNoteType )
            objecttypes_5( 6 ) = CInt( Inkwright.iwObjectType_e.iwArcLengthDimensionType )
            objecttypes_5( 7 ) = CInt( Inkwright.iwObjectType_e.iwHatchType )
            objecttypes_5( 8 ) = CInt( Inkwright.iwObjectType_e.iwCircleArcType )

             blockdefinition9 = iwDoc.CreateBlockDefinition( "TITLE", "A3 frame\nmetric", 180.00000000000000, 0.00000000000000, 0.00000000000000, objecttypes_5, objects_5, Inkwright.iwBlockDefinitionEntities_e.iwBlockDefinitionEntities_RemoveFromDrawing )
        End If

        Dim line13 As Inkwright.Line
        If 1 Then
            line13 = iwSketchManager.InsertLine( 10.00000000000000, 95.00000000000000, 0.00000000000000, 20.00000000000000, 95.00000000000000, 0.00000000000000 )
        End If

        Dim blockinstance14 As Inkwright.BlockInstance
        If 1 Then
            blockinstance14 = iwSketchManager.InsertBlock2( "TITLE", 400.00000000000000, 10.00000000000000, 0.00000000000000, 1.25000000000000, 0.75000000000000, 1.00000000000000, 0.25000000000000 )
            Dim iwAttributes1 As Object() = blockinstance14.GetAttributeInstances()
            For Each iwAttribute1 As Inkwright.AttributeInstance In iwAttributes1
                If iwAttribute1.Name = "DRAWN" Then
                    iwAttribute1.Value = "M. Weber"
                End If
            Next
            Dim iwAttributes2 As Object() = blockinstance14.GetAttributeInstances()
            For Each iwAttribute2 As Inkwright.AttributeInstance In iwAttributes2
                If iwAttribute2.Name = "DATE" Then
                    iwAttribute2.Value = "2024-05-17"
                End If
            Next
        End If

        Dim blockinstance15 As Inkwright.BlockInstance
        If 1 Then
            Dim blockinstance15Def As Inkwright.BlockDefinition
            Dim arc_1 As Inkwright.CircleArc
            arc_1 = iwSketchManager.InsertArc( 10.00000000000000, 100.00000000000000, 0.00000000000000, 5.00000000000000, 0.00000000000000, 2.00000000000000 )

            Dim arc_2 As Inkwright.CircleArc
            arc_2 = iwSketchManager.InsertArc( 20.00000000000000, 100.00000000000000, 0.00000000000000, 5.00000000000000, 1.00000000000000, 3.00000000000000 )


            Dim objects_1 As DispatchWrapper()
            objects_1 = New DispatchWrapper( 2 ) {}
            objects_1( 0 ) = New DispatchWrapper( line13 )
            objects_1( 1 ) = New DispatchWrapper( arc_1 )
            objects_1( 2 ) = New DispatchWrapper( arc_2 )

            Dim objecttypes_1 As Integer() = New Integer( 2 ) {}
            objecttypes_1( 0 ) = CInt( Inkwright.iwObjectType_e.iwLineType )
            objecttypes_1( 1 ) = CInt( Inkwright.iwObjectType_e.iwCircleArcType )
            objecttypes_1( 2 ) = CInt( Inkwright.iwObjectType_e.iwCircleArcType )

             blockinstance15Def = iwDoc.CreateBlockDefinition( "*U", "Rev A\nchecked", 10.00000000000000, 100.00000000000000, 0.00000000000000, objecttypes_1, objects_1, Inkwright.iwBlockDefinitionEntities_e.iwBlockDefinitionEntities_RemoveFromDrawing )

             Dim blockinstance15Name As String

             blockinstance15Name = blockinstance15Def.GetName()
            blockinstance15 = iwSketchManager.InsertBlock2( blockinstance15Name, 10.00000000000000, 100.00000000000000, 0.00000000000000, 1.00000000000000, 1.00000000000000, 1.00000000000000, 0.00000000000000 )
             Dim iwCustomData As Inkwright.CustomData
             iwCustomData = blockinstance15.GetCustomData("PE_CLOUD")
             iwCustomData.Empty()
             Dim count As Integer
             count = iwCustomData.GetDataCount()
             iwCustomData.InsertStringData(count, 1000, "REV A")
             count = iwCustomData.GetDataCount()
             iwCustomData.InsertDoubleData(count, 1041, 2.50000000000000)
             count = iwCustomData.GetDataCount()
             iwCustomData.InsertPointData(count, 1011, 10.00000000000000, 100.00000000000000, 0.50000000000000)
             blockinstance15.SetCustomData("PE_CLOUD", iwCustomData)
        End If

        Dim blockinstance16 As Inkwright.BlockInstance
        If 1 Then
            blockinstance16 = iwSketchManager.InsertExternalReference(  "../refs/site.dwg", 20.00000000000000, 30.00000000000000, 0.00000000000000, 0.50000000000000, 0.25000000000000)
        End If

        Dim referenceimage17 As Inkwright.ReferenceImage
        If 1 Then
            referenceimage17 = iwSketchManager.InsertPicture(  "C:\logos\weber.png", 300.00000000000000, 20.00000000000000, 0.00000000000000, 0.37500000000000, 1.50000000000000 )
        End If

        Dim shape18 As Inkwright.Shape
        If 1 Then
            shape18 = iwSketchManager.InsertShape( "ARROW", 330.00000000000000, 25.00000000000000, 0.00000000000000, 4.50000000000000, 0.87500000000000 )
        End If

        Dim line19 As Inkwright.Line
        Dim group20 As Inkwright.Group
        If 1 Then
            line19 = iwSketchManager.InsertLine( 300.00000000000000, 10.00000000000000, 0.00000000000000, 390.00000000000000, 10.00000000000000, 0.00000000000000 )
            Dim entities1 As DispatchWrapper() = New DispatchWrapper(1) {}
            entities1(0) = New DispatchWrapper(referenceimage17)
            entities1(1) = New DispatchWrapper(line19)
            group20 = iwDoc.CreateGroup( "LOGO", True, "Logo and line", entities1 )
        End If

        Dim group21 As Inkwright.Group
        If 1 Then
            Dim entities1 As DispatchWrapper() = New DispatchWrapper(0) {}
            entities1(0) = New DispatchWrapper(shape18)
            group21 = iwDoc.CreateGroup( "*A1", False, "", entities1 )
        End If

        Dim viewport22 As Inkwright.Viewport
        If 1 Then
            viewport22 = Nothing
            Dim sheetsArray1 As Inkwright.Sheet = iwDoc.GetSheet("A3")
            If sheetsArray1 IsNot Nothing Then
                 Dim circle_0 As Inkwright.Circle
            circle_0 = iwSketchManager.InsertCircle( 210.00000000000000, 148.50000000000000, 0.00000000000000, 60.00000000000000 )
                 viewport22 = sheetsArray1.InsertViewportByEntity(circle_0)
            End If
        End If

        Dim viewport23 As Inkwright.Viewport
        If 1 Then
            viewport23 = Nothing
            Dim sheetsArray1 As Inkwright.Sheet = iwDoc.GetSheet("A3")
            If sheetsArray1 IsNot Nothing Then
                 
                 viewport23 = sheetsArray1.InsertViewportByEntity(circle4)
            End If
        End If

        Dim viewport24 As Inkwright.Viewport
        If 1 Then
            viewport24 = Nothing
            Dim sheetsArray1 As Inkwright.Sheet = iwDoc.GetSheet("A3")
            If sheetsArray1 IsNot Nothing Then
                 Dim pLine_0 As Inkwright.PolyLine
            Dim Coordinates0(5) As Double
            Coordinates0( 0 )=250.00000000000000
            Coordinates0( 1 )=150.00000000000000
            Coordinates0( 2 )=330.00000000000000
            Coordinates0( 3 )=150.00000000000000
            Coordinates0( 4 )=330.00000000000000
            Coordinates0( 5 )=220.00000000000000

            pLine_0 = iwSketchManager.InsertPolyline2D( Coordinates0, True )

                 viewport24 = sheetsArray1.InsertViewportByEntity(pLine_0)
            End If
        End If

        Dim viewport25 As Inkwright.Viewport
        If 1 Then
            viewport25 = Nothing
            Dim sheetsArray1 As Inkwright.Sheet = iwDoc.GetSheet("A3")
            If sheetsArray1 IsNot Nothing Then
                 Dim pLine_1 As Inkwright.PolyLine3D
            Dim Coordinates1(8) As Double
            Coordinates1( 0 )=30.00000000000000
            Coordinates1( 1 )=200.00000000000000
            Coordinates1( 2 )=0.00000000000000
            Coordinates1( 3 )=80.00000000000000
            Coordinates1( 4 )=200.00000000000000
            Coordinates1( 5 )=0.00000000000000
            Coordinates1( 6 )=80.00000000000000
            Coordinates1( 7 )=240.00000000000000
            Coordinates1( 8 )=1.00000000000000

            pLine_1 = iwSketchManager.InsertPolyline3D( Coordinates1, False )

                 viewport25 = sheetsArray1.InsertViewportByEntity(pLine_1)
            End If
        End If

        Dim viewport26 As Inkwright.Viewport
        If 1 Then
            viewport26 = Nothing
            Dim sheetsArray1 As Inkwright.Sheet = iwDoc.GetSheet("A3")
            If sheetsArray1 IsNot Nothing Then
                 Dim ellipse_0 As Inkwright.EllipseArc
            ellipse_0 = iwSketchManager.InsertEllipseDistanceToOtherAxis( 145.00000000000000, 220.00000000000000, 95.00000000000000, 220.00000000000000, 13.00000000000000 )
                 viewport26 = sheetsArray1.InsertViewportByEntity(ellipse_0)
            End If
        End If

        Dim viewport27 As Inkwright.Viewport
        If 1 Then
            viewport27 = Nothing
            Dim sheetsArray1 As Inkwright.Sheet = iwDoc.GetSheet("A3")
            If sheetsArray1 IsNot Nothing Then
                 Dim ellipse_1 As Inkwright.EllipseArc
            ellipse_1 = iwSketchManager.InsertEllipseArcDistanceToOtherAxis( 320.00000000000000, 80.00000000000000, 320.00000000000000, 40.00000000000000, 10.00000000000000, 0.50000000000000, 4.00000000000000 )
                 viewport27 = sheetsArray1.InsertViewportByEntity(ellipse_1)
            End If
        End If

