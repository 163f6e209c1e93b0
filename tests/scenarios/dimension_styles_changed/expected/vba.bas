        Dim dimensionstyle1 As Inkwright.DimensionStyle
        Dim dimensionstyle2 As Inkwright.DimensionStyle
        Dim richlinestyle3 As Inkwright.RichLineStyle
        If 1 Then
            Dim result1 As Inkwright.iwCreateObjectResult_e
            Dim dimStyleName1 As String
            dimStyleName1 = "Shop"
            iwApp.GetActiveDocument().GetDimensionStyleManager().CreateDimensionStyle dimStyleName1, dimensionstyle1, result1
            If 1 Then
                Dim arrowOptions2 As Inkwright.DimensionStyleArrowsOptions
                Set arrowOptions2 = dimensionstyle1.GetDimensionStyleArrowsOptions()
                arrowOptions2.Size = 3.50000000000000
                Dim arrowType3 As Inkwright.iwDimensionArrowType_e
                arrowType3 = Inkwright.iwDimensionArrowType_e.iwDimensionArrowType_ArchitecturalTick
                Dim arrowName3 As String
                arrowName3 = ""
                arrowOptions2.SetStartArrow arrowType3, arrowName3
                Dim arrowType4 As Inkwright.iwDimensionArrowType_e
                arrowType4 = Inkwright.iwDimensionArrowType_e.iwDimensionArrowType_Custom
                Dim arrowName4 As String
                arrowName4 = "My arrow"
                arrowOptions2.SetEndArrow arrowType4, arrowName4
                Dim dualOptions5 As Inkwright.DimensionStyleDualDimensionOptions
                Set dualOptions5 = dimensionstyle1.GetDimensionStyleDualDimensionOptions()
                dualOptions5.Show = False
                Dim fitOptions6 As Inkwright.DimensionStyleFitOptions
                Set fitOptions6 = dimensionstyle1.GetDimensionStyleFitOptions()
                fitOptions6.FitGeometry = Inkwright.iwDimensionFitGeometry_e.iwDimensionFitGeometry_TextAndArrows
                Dim linearOptions7 As Inkwright.DimensionStyleLinearDimensionOptions
                Set linearOptions7 = dimensionstyle1.GetDimensionStyleLinearDimensionOptions()
                linearOptions7.Precision = Inkwright.iwUnitPrecision_e.iwUnitPrecision_2
                linearOptions7.DecimalSeparator = Inkwright.iwLinearDimensionDecimalSeparator_e.iwLinearDimensionDecimalSeparator_Comma
                linearOptions7.Prefix = "ca. "
                linearOptions7.Suffix = " mm"
                Dim textOptions8 As Inkwright.DimensionStyleTextOptions
                Set textOptions8 = dimensionstyle1.GetDimensionStyleTextOptions()
                textOptions8.Style = "Titles"
                textOptions8.Height = 2.50000000000000
            End If

            Dim result9 As Inkwright.iwCreateObjectResult_e
            Dim dimStyleName9 As String
            dimStyleName9 = "Site"
            iwApp.GetActiveDocument().GetDimensionStyleManager().CreateDimensionStyle dimStyleName9, dimensionstyle2, result9
            Dim result10 As Inkwright.iwCreateObjectResult_e
            Dim richLineStyleName10 As String
            richLineStyleName10 = "Walls"
            iwApp.GetActiveDocument().GetRichLineStyleManager().CreateRichLineStyle richLineStyleName10, richlinestyle3, result10
        End If

        If 1 Then
            ' AcDbDimStyleTableRecord object modified
            If 1 Then
                Dim result1 As Inkwright.iwCreateObjectResult_e
                Dim styleName1 As String
                styleName1 = "Workshop"
                result1 = dimensionstyle1.Rename( styleName1 )
                dimensionstyle1.Activate
                Dim arrowOptions2 As Inkwright.DimensionStyleArrowsOptions
                Set arrowOptions2 = dimensionstyle1.GetDimensionStyleArrowsOptions()
                arrowOptions2.Size = 2.25000000000000
                Dim arrowType3 As Inkwright.iwDimensionArrowType_e
                arrowType3 = Inkwright.iwDimensionArrowType_e.iwDimensionArrowType_DotSmall
                Dim arrowName3 As String
                arrowName3 = ""
                arrowOptions2.SetLeaderArrow arrowType3, arrowName3
                Dim angularOptions4 As Inkwright.DimensionStyleAngularDimensionOptions
                Set angularOptions4 = dimensionstyle1.GetDimensionStyleAngularDimensionOptions()
                angularOptions4.Format = Inkwright.iwDimensionStyleAngleFormat_e.iwDimensionStyleAngleFormat_Deg_Min_Sec
                angularOptions4.Precision = Inkwright.iwUnitPrecision_e.iwUnitPrecision_3
                angularOptions4.HideTrailingZeroes = True
                angularOptions4.ArcLengthSymbols = Inkwright.iwArcLengthSymbols_e.iwArcLengthSymbols_None
                Dim dualOptions5 As Inkwright.DimensionStyleDualDimensionOptions
                Set dualOptions5 = dimensionstyle1.GetDimensionStyleDualDimensionOptions()
                dualOptions5.Show = True
                dualOptions5.Format = Inkwright.iwDualDimensionFormat_e.iwDualDimensionFormat_Engineering
                dualOptions5.MultiplierForConvertingUnits = 0.03937007870000
                dualOptions5.Suffix = " in"
                dualOptions5.Insertion = Inkwright.iwDualDimensionInsertPlacement_e.iwDualDimensionInsertPlacement_BelowPrimaryUnits
                Dim fitOptions6 As Inkwright.DimensionStyleFitOptions
                Set fitOptions6 = dimensionstyle1.GetDimensionStyleFitOptions()
                fitOptions6.FitGeometry = Inkwright.iwDimensionFitGeometry_e.iwDimensionFitGeometry_Arrows
                fitOptions6.FitGeometry = Inkwright.iwDimensionFitGeometry_e.iwDimensionFitGeometry_Text
                fitOptions6.FitDimensionText = Inkwright.iwDimensionFitDimensionText_e.iwDimensionFitDimensionText_AboveDimensionLineWithLeader
                fitOptions6.DimensionLinesBetweenExtensionLine = True
                fitOptions6.SetDimensionScale Inkwright.iwDimensionScale_e.iwDimensionScale_UseScaleFactor, 1.50000000000000
                fitOptions6.SetDimensionScale Inkwright.iwDimensionScale_e.iwDimensionScale_ScaleDimensionsAccordingToSheet, 1.00000000000000
                Dim linearOptions7 As Inkwright.DimensionStyleLinearDimensionOptions
                Set linearOptions7 = dimensionstyle1.GetDimensionStyleLinearDimensionOptions()
                linearOptions7.Format = Inkwright.iwLinearDimensionFormat_e.iwLinearDimensionFormat_Decimal
                linearOptions7.Precision = Inkwright.iwUnitPrecision_e.iwUnitPrecision_0
                linearOptions7.DecimalSeparator = Inkwright.iwLinearDimensionDecimalSeparator_e.iwLinearDimensionDecimalSeparator_Period
                linearOptions7.Prefix = "R "
                linearOptions7.ZeroesDisplayFollowSheetDimensions = False
                Dim linesOptions8 As Inkwright.DimensionStyleLineOptions
                Set linesOptions8 = dimensionstyle1.GetDimensionStyleLineOptions()
                linesOptions8.DimensionLineStyle = "DASHED"
                linesOptions8.DimensionLineLineWeight = Inkwright.iwLineWeight_e.iwLnWt_035
                linesOptions8.DimensionLineColor = iwApp.GetRGBColor( 255, 128, 0 )
                linesOptions8.ExtensionLine1Style = "ByBlock"
                linesOptions8.ExtensionLineColor = iwApp.GetColorByIndex( 256 )
                linesOptions8.SetExtensionLineFixedLength True, 2.25000000000000
                Dim radialDiameterOptions9 As Inkwright.DimensionStyleRadialDiameterDimensionOptions
                Set radialDiameterOptions9 = dimensionstyle1.GetDimensionStyleRadialDiameterDimensionOptions()
                radialDiameterOptions9.SetCenterMarkDisplay Inkwright.iwDimensionCenterMarkDisplay_e.iwDimensionCenterMarkDisplay_AsCenterLine, 0.09000000000000
                radialDiameterOptions9.RadiusDimensionJogAngle = 0.78539816339745
                Dim textOptions10 As Inkwright.DimensionStyleTextOptions
                Set textOptions10 = dimensionstyle1.GetDimensionStyleTextOptions()
                textOptions10.Style = "Standard"
                textOptions10.Color = iwApp.GetColorByIndex( 3 )
                textOptions10.VerticalPosition = Inkwright.iwDimensionTextVerticalPosition_e.iwDimensionTextVerticalPosition_Above
                textOptions10.Alignment = Inkwright.iwDimensionTextAlignment_e.iwDimensionTextAlignment_AlignWithDimensionLines
                Dim toleranceOptions11 As Inkwright.DimensionStyleToleranceOptions
                Set toleranceOptions11 = dimensionstyle1.GetDimensionStyleToleranceOptions()
                toleranceOptions11.Calculation = Inkwright.iwToleranceCalculation_e.iwToleranceCalculation_Deviation
                toleranceOptions11.MaximumValue = 0.05000000000000
                toleranceOptions11.MinimumValue = 0.02000000000000
                toleranceOptions11.VerticalTextJustification = Inkwright.iwToleranceVerticalTextJustification_e.iwToleranceVerticalTextJustification_Middle
            End If

            ' AcDbDimStyleTableRecord object modified
            If 1 Then
                Dim linearOptions12 As Inkwright.DimensionStyleLinearDimensionOptions
                Set linearOptions12 = dimensionstyle2.GetDimensionStyleLinearDimensionOptions()
                linearOptions12.Precision = Inkwright.iwUnitPrecision_e.iwUnitPrecision_1
            End If

            ' AcDbDimStyleTableRecord object modified
            If 1 Then
                Dim result13 As Inkwright.iwCreateObjectResult_e
                Dim styleName13 As String
                styleName13 = "Plans"
                result13 = dimensionstyle2.Rename( styleName13 )
            End If

        End If

        If 1 Then
            ' AcDbMlineStyle object modified
            If 1 Then
                richlinestyle3.Rename( "Outer walls" ) 
                richlinestyle3.ShowJunctions = False
            End If

        End If

