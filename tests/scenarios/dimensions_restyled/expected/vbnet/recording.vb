
Imports System.Runtime.InteropServices


Public Class recording

    Sub Run(ByVal iwApp As Inkwright.Application)

        Dim iwDoc As Inkwright.Document
        iwDoc = iwApp.GetActiveDocument()
        If iwDoc Is Nothing Then
            Return
        End If

        Dim iwModel As Inkwright.Model
        iwModel = iwDoc.GetModel()
        If iwModel Is Nothing Then
            Return
        End If

        Dim iwSketchManager As Inkwright.SketchManager
        iwSketchManager = iwModel.GetSketchManager()
        If iwSketchManager Is Nothing Then
            Return
        End If

        Dim iwSheet As Inkwright.Sheet
        Dim iwVarSheets As Object
        iwVarSheets = iwDoc.GetSheets()
        iwSheet = iwVarSheets(1)
        If iwSheet Is Nothing Then
            Return
        End If

        Dim iwViewManager As Inkwright.ViewManager
        iwViewManager = iwDoc.GetViewManager()
        If iwViewManager Is Nothing Then
            Return
        End If

        Dim aligneddimension4 As Inkwright.AlignedDimension
        Dim rotateddimension5 As Inkwright.RotatedDimension
        Dim radialdimension6 As Inkwright.RadialDimension
        Dim arclengthdimension7 As Inkwright.ArcLengthDimension
        Dim joggeddimension8 As Inkwright.JoggedDimension
        If 1 Then
            aligneddimension4 = iwSketchManager.InsertAlignedDimension( New double(){0.00000000000000,0.00000000000000,0.00000000000000}, New double(){120.00000000000000,50.00000000000000,0.00000000000000}, new double(){60.00000000000000,-15.00000000000000,0.00000000000000}, "" )
            rotateddimension5 = iwSketchManager.InsertRotatedDimension( New double(){0.00000000000000,0.00000000000000,0.00000000000000}, New double(){120.00000000000000,0.00000000000000,0.00000000000000}, new double(){60.00000000000000,-15.00000000000000,0.00000000000000}, "", 0.00000000000000 )
            Dim radialdimension6_associated_circle As Inkwright.Circle
            radialdimension6_associated_circle = iwSketchManager.InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000 )
            radialdimension6 = iwSketchManager.InsertRadialDimensionCircle( radialdimension6_associated_circle, new double(){42.50000000000000,30.00000000000000,0.00000000000000}, "" )
            radialdimension6_associated_circle.Erased = true
            Dim arclengthdimension7_associated_arc As Inkwright.CircleArc
            arclengthdimension7_associated_arc = iwSketchManager.InsertArc( 90.00000000000000, 30.00000000000000, 0.00000000000000, 32.01562118716424, 0.00000000000000, 1.57079632679490 )
            arclengthdimension7 = iwSketchManager.InsertArcLengthDimension( arclengthdimension7_associated_arc, new double(){110.00000000000000,55.00000000000000,0.00000000000000}, "" )
            arclengthdimension7_associated_arc.Erased = true
            Dim joggeddimension8_associated_circle As Inkwright.Circle
            joggeddimension8_associated_circle = iwSketchManager.InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000 )
            joggeddimension8 = iwSketchManager.InsertJoggedDimensionCircle( joggeddimension8_associated_circle, new double(){10.00000000000000,20.00000000000000,0.00000000000000}, new double(){16.00000000000000,26.00000000000000,0.00000000000000}, new double(){17.50000000000000,30.00000000000000,0.00000000000000}, "R<>" )
            joggeddimension8_associated_circle.Erased = true
        End If

        If 1 Then
            ' AcDbDimStyleTableRecord object modified
            If 1 Then
                Dim arrowOptions1 As Inkwright.DimensionStyleArrowsOptions = dimensionstyle1.GetDimensionStyleArrowsOptions()
                arrowOptions1.Size = 2.25000000000000
                Dim arrowType2 As Inkwright.iwDimensionArrowType_e = Inkwright.iwDimensionArrowType_e.iwDimensionArrowType_DotSmall
                Dim arrowName2 As String = ""
                arrowOptions1.SetLeaderArrow(arrowType2, arrowName2)
                Dim angularOptions3 As Inkwright.DimensionStyleAngularDimensionOptions = dimensionstyle1.GetDimensionStyleAngularDimensionOptions()
                angularOptions3.Format = Inkwright.iwDimensionStyleAngleFormat_e.iwDimensionStyleAngleFormat_Deg_Min_Sec
                angularOptions3.Precision = Inkwright.iwUnitPrecision_e.iwUnitPrecision_3
                angularOptions3.HideTrailingZeroes = True
                angularOptions3.ArcLengthSymbols = Inkwright.iwArcLengthSymbols_e.iwArcLengthSymbols_None
                Dim dualOptions4 As Inkwright.DimensionStyleDualDimensionOptions = dimensionstyle1.GetDimensionStyleDualDimensionOptions()
                dualOptions4.Show = True
                dualOptions4.Format = Inkwright.iwDualDimensionFormat_e.iwDualDimensionFormat_Engineering
                dualOptions4.MultiplierForConvertingUnits = 0.03937007870000
                dualOptions4.Suffix = " in"
                dualOptions4.Insertion = Inkwright.iwDualDimensionInsertPlacement_e.iwDualDimensionInsertPlacement_BelowPrimaryUnits
                Dim fitOptions5 As Inkwright.DimensionStyleFitOptions = dimensionstyle1.GetDimensionStyleFitOptions()
                fitOptions5.FitGeometry = Inkwright.iwDimensionFitGeometry_e.iwDimensionFitGeometry_Arrows
                fitOptions5.FitGeometry = Inkwright.iwDimensionFitGeometry_e.iwDimensionFitGeometry_Text
                fitOptions5.FitDimensionText = Inkwright.iwDimensionFitDimensionText_e.iwDimensionFitDimensionText_AboveDimensionLineWithLeader
                fitOptions5.DimensionLinesBetweenExtensionLine = True
                fitOptions5.SetDimensionScale( Inkwright.iwDimensionScale_e.iwDimensionScale_UseScaleFactor, 1.50000000000000 )
                fitOptions5.SetDimensionScale( Inkwright.iwDimensionScale_e.iwDimensionScale_ScaleDimensionsAccordingToSheet, 1.00000000000000 )
                Dim linearOptions6 As Inkwright.DimensionStyleLinearDimensionOptions = dimensionstyle1.GetDimensionStyleLinearDimensionOptions()
                linearOptions6.Format = Inkwright.iwLinearDimensionFormat_e.iwLinearDimensionFormat_Decimal
                linearOptions6.Precision = Inkwright.iwUnitPrecision_e.iwUnitPrecision_0
                linearOptions6.DecimalSeparator = Inkwright.iwLinearDimensionDecimalSeparator_e.iwLinearDimensionDecimalSeparator_Period
                linearOptions6.Prefix = "R "
                linearOptions6.ZeroesDisplayFollowSheetDimensions = False
                Dim linesOptions7 As Inkwright.DimensionStyleLineOptions = dimensionstyle1.GetDimensionStyleLineOptions()
                linesOptions7.DimensionLineStyle = "DASHED"
                linesOptions7.DimensionLineLineWeight = Inkwright.iwLineWeight_e.iwLnWt_035
                linesOptions7.DimensionLineColor = iwApp.GetRGBColor( 255, 128, 0 )
                linesOptions7.ExtensionLine1Style = "ByBlock"
                linesOptions7.ExtensionLineColor = iwApp.GetColorByIndex( 256 )
                linesOptions7.SetExtensionLineFixedLength(True, 2.25000000000000)
                Dim radialDiameterOptions8 As Inkwright.DimensionStyleRadialDiameterDimensionOptions = dimensionstyle1.GetDimensionStyleRadialDiameterDimensionOptions()
                radialDiameterOptions8.SetCenterMarkDisplay(Inkwright.iwDimensionCenterMarkDisplay_e.iwDimensionCenterMarkDisplay_AsCenterLine, 0.09000000000000)
                radialDiameterOptions8.RadiusDimensionJogAngle = 0.78539816339745
                Dim textOptions9 As Inkwright.DimensionStyleTextOptions = dimensionstyle1.GetDimensionStyleTextOptions()
                textOptions9.Style = "Standard"
                textOptions9.Color = iwApp.GetColorByIndex( 3 )
                textOptions9.VerticalPosition = Inkwright.iwDimensionTextVerticalPosition_e.iwDimensionTextVerticalPosition_Above
                textOptions9.Alignment = Inkwright.iwDimensionTextAlignment_e.iwDimensionTextAlignment_AlignWithDimensionLines
                Dim toleranceOptions10 As Inkwright.DimensionStyleToleranceOptions = dimensionstyle1.GetDimensionStyleToleranceOptions()
                toleranceOptions10.Calculation = Inkwright.iwToleranceCalculation_e.iwToleranceCalculation_Deviation
                toleranceOptions10.MaximumValue = 0.05000000000000
                toleranceOptions10.MinimumValue = 0.02000000000000
                toleranceOptions10.VerticalTextJustification = Inkwright.iwToleranceVerticalTextJustification_e.iwToleranceVerticalTextJustification_Middle
            End If

            ' AcDbDimStyleTableRecord object modified
            If 1 Then
                Dim linearOptions11 As Inkwright.DimensionStyleLinearDimensionOptions = dimensionstyle2.GetDimensionStyleLinearDimensionOptions()
                linearOptions11.Precision = Inkwright.iwUnitPrecision_e.iwUnitPrecision_1
            End If

        End If

        If 1 Then
            ' AcDbMlineStyle object modified
            If 1 Then
                richlinestyle3.ShowJunctions = False
            End If

        End If

        If 1 Then
            ' AcDbAlignedDimension object modified
            If 1 Then
                Dim generalDimension2 As Inkwright.GeneralDimension = aligneddimension4.GetGeneralDimension()
                generalDimension2.DimensionStyle = "Workshop"
                Dim generalDimension3 As Inkwright.GeneralDimension = aligneddimension4.GetGeneralDimension()
                Dim dimensionStyle4 As Inkwright.DimensionStyleUserData = generalDimension3.GetDimensionStyleUserData()
                Dim arrowsOptions5 As Inkwright.DimensionStyleArrowsOptions = dimensionStyle4.GetDimensionStyleArrowsOptions()
                arrowsOptions5.SetStartArrow( Inkwright.iwDimensionArrowType_e.iwDimensionArrowType_Custom, "My arrow" )
                arrowsOptions5.SetEndArrow( Inkwright.iwDimensionArrowType_e.iwDimensionArrowType_Open, "" )
                arrowsOptions5.Size = 3.00000000000000
            End If

        End If

        If 1 Then
            ' AcDbRotatedDimension object modified
            If 1 Then
                Dim generalDimension2 As Inkwright.GeneralDimension = rotateddimension5.GetGeneralDimension()
                generalDimension2.TextRotation = 0.50000000000000
            End If

        End If

        If 1 Then
            ' AcDbRotatedDimension object modified
                Dim generalDimension1 As Inkwright.GeneralDimension = rotateddimension5.GetGeneralDimension()
            generalDimension1.Color = iwApp.GetColorByIndex( 1 )
            Dim generalDimension2 As Inkwright.GeneralDimension = rotateddimension5.GetGeneralDimension()
            Dim dimensionStyle3 As Inkwright.DimensionStyleUserData = generalDimension2.GetDimensionStyleUserData()
            Dim fitOptions4 As Inkwright.DimensionStyleFitOptions = dimensionStyle3.GetDimensionStyleFitOptions()
            fitOptions4.FitGeometry = Inkwright.iwDimensionFitGeometry_e.iwDimensionFitGeometry_TextAndArrows
            fitOptions4.FitGeometry = Inkwright.iwDimensionFitGeometry_e.iwDimensionFitGeometry_KeepTextBetweenExtensionLines
            fitOptions4.SetDimensionScale( Inkwright.iwDimensionScale_e.iwDimensionScale_UseScaleFactor, 2.00000000000000 )
            Dim generalDimension5 As Inkwright.GeneralDimension = rotateddimension5.GetGeneralDimension()
            Dim x6 As Double
            Dim y6 As Double
            generalDimension5.GetTextPosition( x6, y6 )
            generalDimension5.SetTextPosition( 55.00000000000000, y6 )
            Dim x7 As Double
            Dim y7 As Double
            generalDimension5.GetTextPosition( x7, y7 )
            generalDimension5.SetTextPosition( x7, -20.00000000000000 )
            generalDimension5.TextOverride = "<> \\A1;typ."
            Dim dimensionStyle8 As Inkwright.DimensionStyleUserData = generalDimension5.GetDimensionStyleUserData()
            Dim textOptions9 As Inkwright.DimensionStyleTextOptions = dimensionStyle8.GetDimensionStyleTextOptions()
            textOptions9.Height = 5.00000000000000
            textOptions9.Alignment = Inkwright.iwDimensionTextAlignment_e.iwDimensionTextAlignment_AlignHorizontally
            textOptions9.Alignment = Inkwright.iwDimensionTextAlignment_e.iwDimensionTextAlignment_AlignWithDimensionLines
        End If

        If 1 Then
            ' AcDbRotatedDimension object modified
            If 1 Then
                Dim generalDimension2 As Inkwright.GeneralDimension = rotateddimension5.GetGeneralDimension()
                Dim dimensionStyle3 As Inkwright.DimensionStyleUserData = generalDimension2.GetDimensionStyleUserData()
                Dim angularDimensionOptions4 As Inkwright.DimensionStyleAngularDimensionOptions = dimensionStyle3.GetDimensionStyleAngularDimensionOptions()
                angularDimensionOptions4.HideTrailingZeroes = True
                Dim generalDimension5 As Inkwright.GeneralDimension = rotateddimension5.GetGeneralDimension()
                Dim dimensionStyle6 As Inkwright.DimensionStyleUserData = generalDimension5.GetDimensionStyleUserData()
                Dim dualDimensionOptions7 As Inkwright.DimensionStyleDualDimensionOptions = dimensionStyle6.GetDimensionStyleDualDimensionOptions()
                dualDimensionOptions7.Show = True
                dualDimensionOptions7.Suffix = " in"
                Dim generalDimension8 As Inkwright.GeneralDimension = rotateddimension5.GetGeneralDimension()
                Dim dimensionStyle9 As Inkwright.DimensionStyleUserData = generalDimension8.GetDimensionStyleUserData()
                Dim lineOptions10 As Inkwright.DimensionStyleLineOptions = dimensionStyle9.GetDimensionStyleLineOptions()
                lineOptions10.DimensionLineStyle = "DASHED"
                lineOptions10.DimensionLineLineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
                lineOptions10.DimensionLineColor = iwApp.GetColorByIndex( 2 )
                lineOptions10.HideDimensionLine2 = True
                lineOptions10.HideDimensionLine2 = False
                lineOptions10.SetExtensionLineFixedLength(False, 1.25000000000000)
                Dim generalDimension11 As Inkwright.GeneralDimension = rotateddimension5.GetGeneralDimension()
                Dim dimensionStyle12 As Inkwright.DimensionStyleUserData = generalDimension11.GetDimensionStyleUserData()
                Dim linearDimensionOptions13 As Inkwright.DimensionStyleLinearDimensionOptions = dimensionStyle12.GetDimensionStyleLinearDimensionOptions()
                linearDimensionOptions13.Precision = Inkwright.iwUnitPrecision_e.iwUnitPrecision_3
                linearDimensionOptions13.DecimalSeparator = Inkwright.iwLinearDimensionDecimalSeparator_e.iwLinearDimensionDecimalSeparator_Space
                linearDimensionOptions13.Prefix = "~"
                Dim generalDimension14 As Inkwright.GeneralDimension = rotateddimension5.GetGeneralDimension()
                Dim dimensionStyle15 As Inkwright.DimensionStyleUserData = generalDimension14.GetDimensionStyleUserData()
                Dim toleranceOptions16 As Inkwright.DimensionStyleToleranceOptions = dimensionStyle15.GetDimensionStyleToleranceOptions()
                toleranceOptions16.Calculation = Inkwright.iwToleranceCalculation_e.iwToleranceCalculation_Basic
                toleranceOptions16.MaximumValue = 0.10000000000000
            End If

        End If

        If 1 Then
            ' AcDbRadialDimension object modified
            If 1 Then
                Dim generalDimension2 As Inkwright.GeneralDimension = radialdimension6.GetGeneralDimension()
                Dim dimensionStyle3 As Inkwright.DimensionStyleUserData = generalDimension2.GetDimensionStyleUserData()
                Dim radialDiameterDimensionOptions4 As Inkwright.DimensionStyleRadialDiameterDimensionOptions = dimensionStyle3.GetDimensionStyleRadialDiameterDimensionOptions()
                Dim CenterMarkDisplay5 As Inkwright.iwDimensionCenterMarkDisplay_e
                Dim markSize5 As Double
                radialDiameterDimensionOptions4.GetCenterMarkDisplay( CenterMarkDisplay5, markSize5 )
                markSize5 = 0.50000000000000
                radialDiameterDimensionOptions4.SetCenterMarkDisplay( CenterMarkDisplay5, markSize5 )
                Dim CenterMarkDisplay6 As Inkwright.iwDimensionCenterMarkDisplay_e
                Dim markSize6 As Double
                radialDiameterDimensionOptions4.GetCenterMarkDisplay( CenterMarkDisplay6, markSize6 )
                CenterMarkDisplay6 = Inkwright.iwDimensionCenterMarkDisplay_e.iwDimensionCenterMarkDisplay_AsMark
                radialDiameterDimensionOptions4.SetCenterMarkDisplay( CenterMarkDisplay6, markSize6 )
            End If

        End If

        If 1 Then
            ' AcDbArcDimension object modified
            If 1 Then
                Dim generalDimension2 As Inkwright.GeneralDimension = arclengthdimension7.GetGeneralDimension()
                Dim dimensionStyle3 As Inkwright.DimensionStyleUserData = generalDimension2.GetDimensionStyleUserData()
                Dim angularDimensionOptions4 As Inkwright.DimensionStyleAngularDimensionOptions = dimensionStyle3.GetDimensionStyleAngularDimensionOptions()
                angularDimensionOptions4.Format = Inkwright.iwDimensionStyleAngleFormat_e.iwDimensionStyleAngleFormat_Radians
                angularDimensionOptions4.HideLeadingZeroes = True
                arclengthdimension7.ArcSymbolType = Inkwright.iwArcSymbolType_e.iwArcSymbolType_None
            End If

        End If

        If 1 Then
            ' AcDbRadialDimensionLarge object modified
            If 1 Then
                Dim generalDimension2 As Inkwright.GeneralDimension = joggeddimension8.GetGeneralDimension()
                Dim dimensionStyle3 As Inkwright.DimensionStyleUserData = generalDimension2.GetDimensionStyleUserData()
                Dim radialDiameterDimensionOptions4 As Inkwright.DimensionStyleRadialDiameterDimensionOptions = dimensionStyle3.GetDimensionStyleRadialDiameterDimensionOptions()
                radialDiameterDimensionOptions4.RadiusDimensionJogAngle = 0.75000000000000
                Dim x5 As Double
                Dim y5 As Double
                Dim z5 As Double
                joggeddimension8.GetOverrideCenterPoint( x5, y5, z5 )
                joggeddimension8.SetOverrideCenterPoint( x5, 21.50000000000000, z5 )
                Dim x6 As Double
                Dim y6 As Double
                Dim z6 As Double
                joggeddimension8.GetJogPoint( x6, y6, z6 )
                joggeddimension8.SetJogPoint( 17.00000000000000, y6, z6 )
            End If

        End If

        If 1 Then
            If 1 Then
                Dim generalDimension2 As Inkwright.GeneralDimension = radialdimension6.GetGeneralDimension()
                Dim dimensionStyle3 As Inkwright.DimensionStyleUserData = generalDimension2.GetDimensionStyleUserData()
                Dim textOptions4 As Inkwright.DimensionStyleTextOptions = dimensionStyle3.GetDimensionStyleTextOptions()
                textOptions4.FillColor = iwApp.GetColorByIndex( 8 )
            End If

        End If


    End Sub

End Class