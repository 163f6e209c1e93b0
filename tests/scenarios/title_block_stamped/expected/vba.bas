        Dim layer1 As Inkwright.Layer
        If 1 Then
            Dim iwLayerManager1 As Inkwright.LayerManager
            Set iwLayerManager1 = iwDoc.GetLayerManager()
            Dim iwCreateObjectResult1 As Inkwright.iwCreateObjectResult_e
            iwLayerManager1.CreateLayer "Frame", layer1, iwCreateObjectResult1
            layer1.Activate
        End If

        Dim line2 As Inkwright.Line
        Dim line3 As Inkwright.Line
        If 1 Then
            Set line2 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 180.00000000000000, 0.00000000000000, 0.00000000000000 )
            Set line3 = iwSketchManager.InsertLine( 0.00000000000000, 55.00000000000000, 0.00000000000000, 180.00000000000000, 55.00000000000000, 0.00000000000000 )
        End If

        Dim circle4 As Inkwright.Circle
        If 1 Then
            Set circle4 = iwSketchManager.InsertCircle( 160.00000000000000, 40.00000000000000, 0.00000000000000, 6.00000000000000 )
        End If

        Dim attributedefinition5 As Inkwright.AttributeDefinition
        If 1 Then
            Set attributedefinition5 = iwSketchManager.InsertAttributeDefinition(  "", "DRAWN", "Drawn by?", 100.00000000000000, 40.00000000000000, 0.00000000000000, "", Inkwright.iwTextJustification_e.iwTextJustification_Left, 3.50000000000000, 0.00000000000000, False, False, False, False, False, False )
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

            Set leader6 = iwSketchManager.InsertLeader( Coordinates1, 12.50000000000000, "Scale" )
            Dim note7 As Inkwright.Note
            Set note7 = leader6.GetNoteAnnotation()
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
            Dim note10 As Inkwright.Note
            Set note10 = leader6.GetNoteAnnotation()


                        Dim leader11 As Inkwright.Leader
            Dim type3 As Inkwright.iwObjectType_e
            Set leader11 = iwApp.GetActiveDocument().GetObjectByHandle ("3B", type3 )
            Dim note12 As Inkwright.Note
            Set note12 = leader11.GetNoteAnnotation()

            Dim arcLengthDimension_0 As Inkwright.ArcLengthDimension
            Dim arcLengthDimension_0_associated_arc As Inkwright.CircleArc
            Set arcLengthDimension_0_associated_arc = iwSketchManager.InsertArc( 170.00000000000000, 10.00000000000000, 0.00000000000000, 8.48528137423857, 0.25000000000000, 1.25000000000000 )
            Dim dimPositionPoint_ArcLen5(2) As Double
            dimPositionPoint_ArcLen5(0) = 176.00000000000000
            dimPositionPoint_ArcLen5(1) = 16.00000000000000
            dimPositionPoint_ArcLen5(2) = 0.00000000000000
            Set arcLengthDimension_0 = iwSketchManager.InsertArcLengthDimension( arcLengthDimension_0_associated_arc, dimPositionPoint_ArcLen5, "\\A1;<>" )
            arcLengthDimension_0_associated_arc.Erased = True

            Dim Coordinates6(15) As Double
            Dim BoundaryPointCountLongArray6(1) As Long
            Coordinates6( 0 )=0.00000000000000
            Coordinates6( 1 )=0.00000000000000
            Coordinates6( 2 )=9.00000000000000
            Coordinates6( 3 )=0.00000000000000
            Coordinates6( 4 )=9.00000000000000
            Coordinates6( 5 )=4.00000000000000
            Coordinates6( 6 )=2.00000000000000
            Coordinates6( 7 )=1.00000000000000
            Coordinates6( 8 )=3.00000000000000
            Coordinates6( 9 )=1.00000000000000
            Coordinates6( 10 )=3.00000000000000
            Coordinates6( 11 )=2.00000000000000
            Coordinates6( 12 )=2.00000000000000
            Coordinates6( 13 )=2.00000000000000
            Coordinates6( 14 )=0.00000000000000
            Coordinates6( 15 )=0.00000000000000

            BoundaryPointCountLongArray6(0) = 3
            BoundaryPointCountLongArray6(1) = 4

            Set hatch8 = iwSketchManager.InsertHatchByBoundary( BoundaryPointCountLongArray6, Coordinates6, "ANSI31", 2.50000000000000, 0.75000000000000 )

            Dim arc_0 As Inkwright.CircleArc
            Set arc_0 = iwSketchManager.InsertArc( 170.00000000000000, 10.00000000000000, 0.00000000000000, 7.50000000000000, 0.00000000000000, 1.50000000000000 )


            Dim objects_7( 8 ) As Object
            Set objects_7( 0 ) = line2
            Set objects_7( 1 ) = line3
            Set objects_7( 2 ) = circle4
            Set objects_7( 3 ) = attributedefinition5
            Set objects_7( 4 ) = note10
            Set objects_7( 5 ) = note12
            Set objects_7( 6 ) = arcLengthDimension_0
            Set objects_7( 7 ) = hatch8
            Set objects_7( 8 ) = arc_0

            Dim objecttypes_7( 8 ) As iwObjectType_e
            objecttypes_7( 0 ) = Inkwright.iwObjectType_e.iwLineType
            objecttypes_7( 1 ) = Inkwright.iwObjectType_e.iwLineType
            objecttypes_7( 2 ) = Inkwright.iwObjectType_e.iwCircleType
            objecttypes_7( 3 ) = Inkwright.iwObjectType_e.iwSimpleNoteType
            objecttypes_7( 4 ) = Inkwright.iwObjectType_e.iwNoteType
            objecttypes_7( 5 ) = Inkwright.iwObjectType_e.iwNoteType
            objecttypes_7( 6 ) = Inkwright.iwObjectType_e.iwArcLengthDimensionType
            objecttypes_7( 7 ) = Inkwright.iwObjectType_e.iwHatchType
            objecttypes_7( 8 ) = Inkwright.iwObjectType_e.iwCircleArcType

             Set blockdefinition9 = iwDoc.CreateBlockDefinition( "TITLE", "A3 frame\nmetric", 180.00000000000000, 0.00000000000000, 0.00000000000000, objecttypes_7, objects_7, Inkwright.iwBlockDefinitionEntities_e.iwBlockDefinitionEntities_RemoveFromDrawing )
        End If

        Dim line13 As Inkwright.Line
        If 1 Then
            Set line13 = iwSketchManager.InsertLine( 10.00000000000000, 95.00000000000000, 0.00000000000000, 20.00000000000000, 95.00000000000000, 0.00000000000000 )
        End If

        Dim blockinstance14 As Inkwright.BlockInstance
        If 1 Then
            Set blockinstance14 = iwSketchManager.InsertBlock2( "TITLE", 400.00000000000000, 10.00000000000000, 0.00000000000000, 1.25000000000000, 0.75000000000000, 1.00000000000000, 0.25000000000000 )
            Dim iwAttributes1 As Variant
            iwAttributes1 = blockinstance14.GetAttributeInstances()
            Dim iwAttribute1 As Variant
            For Each iwAttribute1 In iwAttributes1
                If iwAttribute1.Name = "DRAWN" Then
                    iwAttribute1.Value = "M. Weber"
                End If
            Next
            Dim iwAttributes2 As Variant
            iwAttributes2 = blockinstance14.GetAttributeInstances()
            Dim iwAttribute2 As Variant
            For Each iwAttribute2 In iwAttributes2
                If iwAttribute2.Name = "DATE" Then
                    iwAttribute2.Value = "2024-05-17"
                End If
            Next
        End If

        Dim blockinstance15 As Inkwright.BlockInstance
        If 1 Then
            Dim blockinstance15Def As Inkwright.BlockDefinition
            Dim arc_1 As Inkwright.CircleArc
            Set arc_1 = iwSketchManager.InsertArc( 10.00000000000000, 100.00000000000000, 0.00000000000000, 5.00000000000000, 0.00000000000000, 2.00000000000000 )

            Dim arc_2 As Inkwright.CircleArc
            Set arc_2 = iwSketchManager.InsertArc( 20.00000000000000, 100.00000000000000, 0.00000000000000, 5.00000000000000, 1.00000000000000, 3.00000000000000 )


            Dim objects_1( 2 ) As Object
            Set objects_1( 0 ) = line13
            Set objects_1( 1 ) = arc_1
            Set objects_1( 2 ) = arc_2

            Dim objecttypes_1( 2 ) As iwObjectType_e
            objecttypes_1( 0 ) = Inkwright.iwObjectType_e.iwLineType
            objecttypes_1( 1 ) = Inkwright.iwObjectType_e.iwCircleArcType
            objecttypes_1( 2 ) = Inkwright.iwObjectType_e.iwCircleArcType

             Set blockinstance15Def = iwDoc.CreateBlockDefinition( "*U", "Rev A\nchecked", 10.00000000000000, 100.00000000000000, 0.00000000000000, objecttypes_1, objects_1, Inkwright.iwBlockDefinitionEntities_e.iwBlockDefinitionEntities_RemoveFromDrawing )

             Dim blockinstance15Name As String

             blockinstance15Name = blockinstance15Def.GetName()
            Set blockinstance15 = iwSketchManager.InsertBlock2( blockinstance15Name, 10.00000000000000, 100.00000000000000, 0.00000000000000, 1.00000000000000, 1.00000000000000, 1.00000000000000, 0.00000000000000 )
             Dim iwCustomData As Inkwright.CustomData
             Set iwCustomData = blockinstance15.GetCustomData("PE_CLOUD")
             iwCustomData.Empty
             Dim count As Integer
             count = iwCustomData.GetDataCount()
             iwCustomData.InsertStringData count, 1000, "REV A"
             count = iwCustomData.GetDataCount()
             iwCustomData.InsertDoubleData count, 1041, 2.50000000000000
             count = iwCustomData.GetDataCount()
             iwCustomData.InsertPointData count, 1011, 10.00000000000000, 100.00000000000000, 0.50000000000000
             blockinstance15.SetCustomData "PE_CLOUD", iwCustomData
        End If

        Dim blockinstance16 As Inkwright.BlockInstance
        If 1 Then
            Set blockinstance16 = iwSketchManager.InsertExternalReference(  "../refs/site.dwg", 20.00000000000000, 30.00000000000000, 0.00000000000000, 0.50000000000000, 0.25000000000000)
        End If

        Dim referenceimage17 As Inkwright.ReferenceImage
        If 1 Then
            Set referenceimage17 = iwSketchManager.InsertPicture(  "C:\logos\weber.png", 300.00000000000000, 20.00000000000000, 0.00000000000000, 0.37500000000000, 1.50000000000000 )
        End If

        Dim shape18 As Inkwright.Shape
        If 1 Then
            Set shape18 = iwSketchManager.InsertShape( "ARROW", 330.00000000000000, 25.00000000000000, 0.00000000000000, 4.50000000000000, 0.87500000000000 )
        End If

        Dim line19 As Inkwright.Line
        Dim group20 As Inkwright.Group
        If 1 Then
            Set line19 = iwSketchManager.InsertLine( 300.00000000000000, 10.00000000000000, 0.00000000000000, 390.00000000000000, 10.00000000000000, 0.00000000000000 )
            Dim entities(1) As Object
            Set entities(0) = referenceimage17
            Set entities(1) = line19
            Set group20 = iwDoc.CreateGroup( "LOGO", True, "Logo and line", entities )
        End If

        Dim group21 As Inkwright.Group
        If 1 Then
            Dim entities(0) As Object
            Set entities(0) = shape18
            Set group21 = iwDoc.CreateGroup( "*A1", False, "", entities )
        End If

        Dim viewport22 As Inkwright.Viewport
        If 1 Then
            Set viewport22 = Nothing
            Dim sheetsArray1 As Inkwright.Sheet
            Set sheetsArray1 = iwDoc.GetSheet("A3")
            If Not sheetsArray1 Is Nothing Then
                 Dim circle_0 As Inkwright.Circle
            Set circle_0 = iwSketchManager.InsertCircle( 210.00000000000000, 148.50000000000000, 0.00000000000000, 60.00000000000000 )
                 Set viewport22 = sheetsArray1.InsertViewportByEntity(circle_0)
            End If
        End If

        Dim viewport23 As Inkwright.Viewport
        If 1 Then
            Set viewport23 = Nothing
            Dim sheetsArray1 As Inkwright.Sheet
            Set sheetsArray1 = iwDoc.GetSheet("A3")
            If Not sheetsArray1 Is Nothing Then
                 
                 Set viewport23 = sheetsArray1.InsertViewportByEntity(circle4)
            End If
        End If

        Dim viewport24 As Inkwright.Viewport
        If 1 Then
            Set viewport24 = Nothing
            Dim sheetsArray1 As Inkwright.Sheet
            Set sheetsArray1 = iwDoc.GetSheet("A3")
            If Not sheetsArray1 Is Nothing Then
                 Dim pLine_0 As Inkwright.PolyLine
            Dim Coordinates0(5) As Double
            Coordinates0( 0 )=250.00000000000000
            Coordinates0( 1 )=150.00000000000000
            Coordinates0( 2 )=330.00000000000000
            Coordinates0( 3 )=150.00000000000000
            Coordinates0( 4 )=330.00000000000000
            Coordinates0( 5 )=220.00000000000000

            Set pLine_0 = iwSketchManager.InsertPolyline2D( Coordinates0, True )

                 Set viewport24 = sheetsArray1.InsertViewportByEntity(pLine_0)
            End If
        End If

        Dim viewport25 As Inkwright.Viewport
        If 1 Then
            Set viewport25 = Nothing
            Dim sheetsArray1 As Inkwright.Sheet
            Set sheetsArray1 = iwDoc.GetSheet("A3")
            If Not sheetsArray1 Is Nothing Then
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

            Set pLine_1 = iwSketchManager.InsertPolyline3D( Coordinates1, False )

                 Set viewport25 = sheetsArray1.InsertViewportByEntity(pLine_1)
            End If
        End If

        Dim viewport26 As Inkwright.Viewport
        If 1 Then
            Set viewport26 = Nothing
            Dim sheetsArray1 As Inkwright.Sheet
            Set sheetsArray1 = iwDoc.GetSheet("A3")
            If Not sheetsArray1 Is Nothing Then
                 Dim ellipse_0 As Inkwright.EllipseArc
            Set ellipse_0 = iwSketchManager.InsertEllipseDistanceToOtherAxis( 145.00000000000000, 220.00000000000000, 95.00000000000000, 220.00000000000000, 13.00000000000000 )
                 Set viewport26 = sheetsArray1.InsertViewportByEntity(ellipse_0)
            End If
        End If

        Dim viewport27 As Inkwright.Viewport
        If 1 Then
            Set viewport27 = Nothing
            Dim sheetsArray1 As Inkwright.Sheet
            Set sheetsArray1 = iwDoc.GetSheet("A3")
            If Not sheetsArray1 Is Nothing Then
                 Dim ellipse_1 As Inkwright.EllipseArc
            Set ellipse_1 = iwSketchManager.InsertEllipseArcDistanceToOtherAxis( 320.00000000000000, 80.00000000000000, 320.00000000000000, 40.00000000000000, 10.00000000000000, 0.50000000000000, 4.00000000000000 )
                 Set viewport27 = sheetsArray1.InsertViewportByEntity(ellipse_1)
            End If
        End If

