        Dim textstyle1 As Inkwright.TextStyle
        If 1 Then
            Dim result1 As Inkwright.iwCreateObjectResult_e
            Dim textStyleName1 As String = "Titles"
            textstyle1 = iwApp.GetActiveDocument().GetTextStyleManager().GetTextStyle( textStyleName1 )
            If textstyle1 Is Nothing Then
                iwApp.GetActiveDocument().GetTextStyleManager().CreateTextStyle( textStyleName1, textstyle1, result1 )
            End If
            textstyle1.Font = "C:\\fonts\\arial.ttf"
        End If

        Dim iwShapeManager As Inkwright.ShapeManager = iwDoc.GetShapeManager()
        iwShapeManager.Load( "C:\\shapes\\stairs.shx" )
        Dim attributedefinition3 As Inkwright.AttributeDefinition
        If 1 Then
            attributedefinition3 = iwSketchManager.InsertAttributeDefinition(  "M8", "SIZE", "Size of the bolt?", 1.00000000000000, 2.00000000000000, 0.00000000000000, "Standard", Inkwright.iwTextJustification_e.iwTextJustification_Left, 3.50000000000000, 0.00000000000000, False, True, False, True, True, False )
            attributedefinition3.Color = iwApp.GetColorByIndex( 256 )
            attributedefinition3.Layer = "0"
            attributedefinition3.LineStyle = "Continuous"
            attributedefinition3.LineScale = 1.00000000000000
            attributedefinition3.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            attributedefinition3.Thickness = 0.00000000000000
        End If

        Dim attributedefinition4 As Inkwright.AttributeDefinition
        If 1 Then
            attributedefinition4 = iwSketchManager.InsertAttributeDefinition(  "", "NO", "", 4.00000000000000, 5.00000000000000, 0.00000000000000, "Titles", Inkwright.iwTextJustification_e.iwTextJustification_MiddleCenter, 0.20000000000000, 0.25000000000000, False, False, False, False, False, False )
            attributedefinition4.Color = iwApp.GetColorByIndex( 2 )
            attributedefinition4.Layer = "0"
            attributedefinition4.LineStyle = "Continuous"
            attributedefinition4.LineScale = 1.00000000000000
            attributedefinition4.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            attributedefinition4.Thickness = 0.00000000000000
        End If

        Dim simplenote5 As Inkwright.SimpleNote
        If 1 Then
            simplenote5 = iwSketchManager.InsertSimpleNote( 1.00000000000000, 1.00000000000000, 0.00000000000000, 5.00000000000000, 0.10000000000000, "Section A-A" )
            simplenote5.Justify = Inkwright.iwTextJustification_e.iwTextJustification_MiddleCenter
            simplenote5.SetAlignmentPoint( 2.00000000000000, 2.00000000000000, 0.00000000000000 )
            simplenote5.SetPosition( 1.00000000000000, 1.00000000000000, 0.00000000000000 )
            simplenote5.Color = iwApp.GetColorByIndex( 256 )
            simplenote5.Layer = "Walls"
            simplenote5.LineStyle = "Continuous"
            simplenote5.LineScale = 1.00000000000000
            simplenote5.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            simplenote5.Thickness = 0.00000000000000
        End If

        Dim simplenote6 As Inkwright.SimpleNote
        If 1 Then
            simplenote6 = iwSketchManager.InsertSimpleNote( 0.00000000000000, 0.00000000000000, 0.00000000000000, 2.50000000000000, 0.00000000000000, "100% of "it"" )
            simplenote6.SetAlignmentPoint( 0.00000000000000, 0.00000000000000, 0.00000000000000 )
            simplenote6.SetPosition( 0.00000000000000, 0.00000000000000, 0.00000000000000 )
        End If

        Dim note7 As Inkwright.Note
        If 1 Then
            Dim strArray1(0) As String
            strArray1(0) = "First\PSecond"
            note7 = iwSketchManager.InsertNote( -20.00000000000000, 25.00000000000000, 0.00000000000000, 40.00000000000000, 15.00000000000000, 0.00000000000000, strArray1 )
            note7.Rotation = 0.20000000000000
            note7.TextHeight = 2.50000000000000
            note7.Width = 60.00000000000000
            note7.LineSpaceDistance = 4.17000000000000
            note7.TextStyle = "Standard"
            note7.Justify = Inkwright.iwNoteJustification_e.iwNoteJustification_MiddleCenter
            note7.Direction = Inkwright.iwNoteDirection_e.iwNoteDirection_Horizontal
            note7.Color = iwApp.GetColorByIndex( 256 )
            note7.Layer = "0"
            note7.LineStyle = "Continuous"
            note7.LineScale = 1.00000000000000
            note7.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            note7.Thickness = 0.00000000000000
        End If

        Dim note8 As Inkwright.Note
        If 1 Then
            Dim strArray1(0) As String
            strArray1(0) = "Bare"
            note8 = iwSketchManager.InsertNote( 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, strArray1 )
        End If

        Dim tolerance9 As Inkwright.Tolerance
        If 1 Then
            tolerance9 = iwSketchManager.InsertTolerance( New Double(){3.00000000000000,4.00000000000000,0.00000000000000}, "{\Fgdt;r}%%v0.05%%v" & vbLf & "%%vB" )
            tolerance9.Color = iwApp.GetColorByIndex( 256 )
            tolerance9.Layer = "0"
            tolerance9.LineStyle = "Continuous"
            tolerance9.LineScale = 1.00000000000000
            tolerance9.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            tolerance9.Thickness = 0.00000000000000
        End If

        Dim leader10 As Inkwright.Leader
        If 1 Then
            Dim Coordinates1(8) As Double
            Coordinates1( 0 )=0.00000000000000
            Coordinates1( 1 )=0.00000000000000
            Coordinates1( 2 )=0.00000000000000
            Coordinates1( 3 )=5.00000000000000
            Coordinates1( 4 )=5.00000000000000
            Coordinates1( 5 )=0.00000000000000
            Coordinates1( 6 )=9.00000000000000
            Coordinates1( 7 )=5.00000000000000
            Coordinates1( 8 )=0.00000000000000

            leader10 = iwSketchManager.InsertLeader( Coordinates1, 40.00000000000000, "See\ndetail \\ 5" )
            Dim note11 As Inkwright.Note = leader10.GetNoteAnnotation()
            note11.BackgroundMask = True
            note11.UseDrawingBackgroundColor = False
            note11.BackgroundFillColor = iwApp.GetColorByIndex( 3 )
            note11.BackgroundBorderOffsetFactor = 1.25000000000000
            note11.LineSpaceDistance = 6.25000000000000
            note11.LineSpaceFactor = 1.50000000000000
            note11.Rotation = 0.50000000000000
            note11.TextHeight = 2.50000000000000
            note11.Width = 40.00000000000000
            note11.Justify = Inkwright.iwNoteJustification_e.iwNoteJustification_MiddleCenter
            note11.TextStyle = "Titles"
            leader10.Color = iwApp.GetColorByIndex( 256 )
            leader10.Layer = "0"
            leader10.LineStyle = "Continuous"
            leader10.LineScale = 1.00000000000000
            leader10.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            leader10.Thickness = 0.00000000000000
        End If

        Dim leader12 As Inkwright.Leader
        If 1 Then
            Dim Coordinates1(5) As Double
            Coordinates1( 0 )=1.00000000000000
            Coordinates1( 1 )=0.00000000000000
            Coordinates1( 2 )=0.00000000000000
            Coordinates1( 3 )=6.00000000000000
            Coordinates1( 4 )=5.00000000000000
            Coordinates1( 5 )=0.00000000000000

            leader12 = iwSketchManager.InsertLeader( Coordinates1, 0.00000000000000, "" )
            leader12.SetToleranceAnnotation( "{\\Fgdt;j}%%v0.1\nA" )
            leader12.Color = iwApp.GetColorByIndex( 256 )
            leader12.Layer = "0"
            leader12.LineStyle = "Continuous"
            leader12.LineScale = 1.00000000000000
            leader12.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            leader12.Thickness = 0.00000000000000
        End If

        Dim leader13 As Inkwright.Leader
        If 1 Then
            Dim Coordinates1(5) As Double
            Coordinates1( 0 )=2.00000000000000
            Coordinates1( 1 )=0.00000000000000
            Coordinates1( 2 )=0.00000000000000
            Coordinates1( 3 )=7.00000000000000
            Coordinates1( 4 )=5.00000000000000
            Coordinates1( 5 )=0.00000000000000

            leader13 = iwSketchManager.InsertLeader( Coordinates1, 0.00000000000000, "" )
            leader13.SetBlockAnnotation( "Balloon" )
            leader13.Color = iwApp.GetRGBColor( 1, 2, 3 )
            leader13.Layer = "0"
            leader13.LineStyle = "Continuous"
            leader13.LineScale = 1.00000000000000
            leader13.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            leader13.Thickness = 0.00000000000000
        End If

        Dim circlearc14 As Inkwright.CircleArc
        Dim arcalignedtext15 As Inkwright.ArcAlignedText
        If 1 Then
            circlearc14 = iwSketchManager.InsertArc( 0.00000000000000, 0.00000000000000, 0.00000000000000, 30.00000000000000, 0.00000000000000, 3.00000000000000 )
            arcalignedtext15 = iwSketchManager.InsertCurvedText( "Round the bend", circlearc14 )
            Dim curvedSettings1 As Inkwright.CurvedSettings = arcalignedtext15.GetCurvedSettings()
            curvedSettings1.Color = iwApp.GetColorByIndex( 6 )
            arcalignedtext15.SetCurvedSettings( curvedSettings1 )
            arcalignedtext15.Layer = "0"
            arcalignedtext15.LineStyle = "Continuous"
            arcalignedtext15.LineScale = 1.00000000000000
            arcalignedtext15.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            arcalignedtext15.Thickness = 0.00000000000000
        End If

        If 1 Then
            ' AcDbMText object modified
            Dim note16 As Inkwright.Note = leader10.GetNoteAnnotation()
            If 1 Then
                note16.Layer = "Walls"
            End If

        End If

        If 1 Then
            If 1 Then
                Dim X1 As Double
                Dim Y1 As Double
                Dim Z1 As Double
                leader10.GetVertexCoordinate( 0, X1, Y1, Z1 )
                X1 = 1.00000000000000
                leader10.SetVertexCoordinate( 0, X1, Y1, Z1 )
            End If

            ' AcDbLeader object modified
            If 1 Then
                leader10.DimensionStyle = "ISO-25"
                leader10.Type = Inkwright.iwLeaderType_e.iwLeaderType_SplineWithArrow
                Dim dimensionStyle2 As Inkwright.DimensionStyleUserData = leader10.GetDimensionStyleUserData()
                Dim arrowOptions3 As Inkwright.DimensionStyleArrowsOptions = dimensionStyle2.GetDimensionStyleArrowsOptions()
                arrowOptions3.SetLeaderArrow( Inkwright.iwDimensionArrowType_e.iwDimensionArrowType_Dot, "" )
                Dim dimensionStyle4 As Inkwright.DimensionStyleUserData = leader10.GetDimensionStyleUserData()
                Dim arrowOptions5 As Inkwright.DimensionStyleArrowsOptions = dimensionStyle4.GetDimensionStyleArrowsOptions()
                arrowOptions5.Size = 2.5
                Dim dimensionStyle6 As Inkwright.DimensionStyleUserData = leader10.GetDimensionStyleUserData()
                Dim linesOptions7 As Inkwright.DimensionStyleLineOptions = dimensionStyle6.GetDimensionStyleLineOptions()
                linesOptions7.DimensionLineColor = iwApp.GetColorByIndex( 1 )
                Dim dimensionStyle8 As Inkwright.DimensionStyleUserData = leader10.GetDimensionStyleUserData()
                Dim linesOptions9 As Inkwright.DimensionStyleLineOptions = dimensionStyle8.GetDimensionStyleLineOptions()
                linesOptions9.DimensionLineLineWeight = Inkwright.iwLineWeight_e.iwLnWt_025
                Dim dimensionStyle10 As Inkwright.DimensionStyleUserData = leader10.GetDimensionStyleUserData()
                Dim textOptions11 As Inkwright.DimensionStyleTextOptions = dimensionStyle10.GetDimensionStyleTextOptions()
                textOptions11.OffsetFromDimensionLines = 0.625
                Dim dimensionStyle12 As Inkwright.DimensionStyleUserData = leader10.GetDimensionStyleUserData()
                Dim fitOptions13 As Inkwright.DimensionStyleFitOptions = dimensionStyle12.GetDimensionStyleFitOptions()
                fitOptions13.SetDimensionScale( Inkwright.iwDimensionScale_e.iwDimensionScale_UseScaleFactor, 2.00000000000000 )
            End If

        End If

        If 1 Then
            ' AcDbFcf object modified
            If 1 Then
                Dim X1 As Double
                Dim Y1 As Double
                Dim Z1 As Double
                tolerance9.GetPosition( X1, Y1, Z1 )
                X1 = 5.00000000000000
                tolerance9.SetPosition( X1, Y1, Z1 )
                tolerance9.DimensionScaleFactor = 2.00000000000000
                tolerance9.DimensionStyle = "ISO-25"
                Dim dimensionStyle2 As Inkwright.DimensionStyleUserData = tolerance9.GetDimensionStyleUserData()
                Dim linesOptions3 As Inkwright.DimensionStyleLineOptions = dimensionStyle2.GetDimensionStyleLineOptions()
                linesOptions3.DimensionLineColor = iwApp.GetColorByIndex( 4 )
                tolerance9.TextStyle = "Titles"
                tolerance9.TextHeight = 3.00000000000000
                tolerance9.TextColor = iwApp.GetColorByIndex( 7 )
                tolerance9.Text = "a\b" & vbLf & "c"
            End If

        End If

        If 1 Then
            ' AcDbText object modified
            If 1 Then
                simplenote6.Erased = True
            End If

        End If

