        Dim aligneddimension1 As Inkwright.AlignedDimension
        If 1 Then
            Dim extLine1Point1(2) As Double
            extLine1Point1(0) = 0.00000000000000
            extLine1Point1(1) = 0.00000000000000
            extLine1Point1(2) = 0.00000000000000
            Dim extLine2Point1(2) As Double
            extLine2Point1(0) = 120.00000000000000
            extLine2Point1(1) = 50.00000000000000
            extLine2Point1(2) = 0.00000000000000
            Dim dimLinePoint1(2) As Double
            dimLinePoint1(0) = 60.00000000000000
            dimLinePoint1(1) = -15.00000000000000
            dimLinePoint1(2) = 0.00000000000000
            Set aligneddimension1 = iwSketchManager.InsertAlignedDimension( extLine1Point1, extLine2Point1, dimLinePoint1, "" )
        End If

        Dim rotateddimension2 As Inkwright.RotatedDimension
        If 1 Then
            Dim extLine1Point_Rot1(2) As Double
            extLine1Point_Rot1(0) = 0.00000000000000
            extLine1Point_Rot1(1) = 0.00000000000000
            extLine1Point_Rot1(2) = 0.00000000000000
            Dim extLine2Point_Rot1(2) As Double
            extLine2Point_Rot1(0) = 120.00000000000000
            extLine2Point_Rot1(1) = 0.00000000000000
            extLine2Point_Rot1(2) = 0.00000000000000
            Dim dimLinePoint_Rot1(2) As Double
            dimLinePoint_Rot1(0) = 60.00000000000000
            dimLinePoint_Rot1(1) = -15.00000000000000
            dimLinePoint_Rot1(2) = 0.00000000000000
            Set rotateddimension2 = iwSketchManager.InsertRotatedDimension( extLine1Point_Rot1, extLine2Point_Rot1, dimLinePoint_Rot1, "", 0.00000000000000 )
        End If

        Dim radialdimension3 As Inkwright.RadialDimension
        If 1 Then
            Dim radialdimension3_associated_circle As Inkwright.Circle
            Set radialdimension3_associated_circle = iwSketchManager.InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000 )
            Dim dimPositionPoint_Rad1(2) As Double
            dimPositionPoint_Rad1(0) = 42.50000000000000
            dimPositionPoint_Rad1(1) = 30.00000000000000
            dimPositionPoint_Rad1(2) = 0.00000000000000
            Set radialdimension3 = iwSketchManager.InsertRadialDimensionCircle( radialdimension3_associated_circle, dimPositionPoint_Rad1, "" )
            radialdimension3_associated_circle.Erased = True
        End If

        Dim arclengthdimension4 As Inkwright.ArcLengthDimension
        If 1 Then
            Dim arclengthdimension4_associated_arc As Inkwright.CircleArc
            Set arclengthdimension4_associated_arc = iwSketchManager.InsertArc( 90.00000000000000, 30.00000000000000, 0.00000000000000, 32.01562118716424, 0.00000000000000, 1.57079632679490 )
            Dim dimPositionPoint_ArcLen1(2) As Double
            dimPositionPoint_ArcLen1(0) = 110.00000000000000
            dimPositionPoint_ArcLen1(1) = 55.00000000000000
            dimPositionPoint_ArcLen1(2) = 0.00000000000000
            Set arclengthdimension4 = iwSketchManager.InsertArcLengthDimension( arclengthdimension4_associated_arc, dimPositionPoint_ArcLen1, "" )
            arclengthdimension4_associated_arc.Erased = True
        End If

        Dim joggeddimension5 As Inkwright.JoggedDimension
        If 1 Then
            Dim joggeddimension5_associated_circle As Inkwright.Circle
            Set joggeddimension5_associated_circle = iwSketchManager.InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000 )
            Dim centerPoint_Jog1(2) As Double
            centerPoint_Jog1(0) = 10.00000000000000
            centerPoint_Jog1(1) = 20.00000000000000
            centerPoint_Jog1(2) = 0.00000000000000
            Dim jogPoint_Jog1(2) As Double
            jogPoint_Jog1(0) = 16.00000000000000
            jogPoint_Jog1(1) = 26.00000000000000
            jogPoint_Jog1(2) = 0.00000000000000
            Dim dimPositionPoint_Jog1(2) As Double
            dimPositionPoint_Jog1(0) = 17.50000000000000
            dimPositionPoint_Jog1(1) = 30.00000000000000
            dimPositionPoint_Jog1(2) = 0.00000000000000
            Set joggeddimension5 = iwSketchManager.InsertJoggedDimensionCircle( joggeddimension5_associated_circle, centerPoint_Jog1, jogPoint_Jog1, dimPositionPoint_Jog1, "R<>" )
            joggeddimension5_associated_circle.Erased = True
        End If

        If 1 Then
            ' AcDbAlignedDimension object modified
            If 1 Then
                Dim generalDimension2 As Inkwright.GeneralDimension
                Set generalDimension2 = aligneddimension1.GetGeneralDimension()
                generalDimension2.DimensionStyle = "Workshop"
                Dim generalDimension3 As Inkwright.GeneralDimension
                Set generalDimension3 = aligneddimension1.GetGeneralDimension()
                Dim dimensionStyle4 As Inkwright.DimensionStyleUserData
                Set dimensionStyle4 = generalDimension3.GetDimensionStyleUserData()
                Dim arrowsOptions5 As Inkwright.DimensionStyleArrowsOptions
                Set arrowsOptions5 = dimensionStyle4.GetDimensionStyleArrowsOptions()
                arrowsOptions5.SetStartArrow Inkwright.iwDimensionArrowType_e.iwDimensionArrowType_Custom, "My arrow"
                arrowsOptions5.SetEndArrow Inkwright.iwDimensionArrowType_e.iwDimensionArrowType_Open, ""
                arrowsOptions5.Size = 3.00000000000000
            End If

        End If

        If 1 Then
            ' AcDbRotatedDimension object modified
            If 1 Then
                Dim generalDimension2 As Inkwright.GeneralDimension
                Set generalDimension2 = rotateddimension2.GetGeneralDimension()
                generalDimension2.TextRotation = 0.50000000000000
            End If

        End If

        If 1 Then
            ' AcDbRotatedDimension object modified
                Dim generalDimension1 As Inkwright.GeneralDimension
                Set generalDimension1 = rotateddimension2.GetGeneralDimension()
            generalDimension1.Color = iwApp.GetColorByIndex( 1 )
            Dim generalDimension2 As Inkwright.GeneralDimension
            Set generalDimension2 = rotateddimension2.GetGeneralDimension()
            Dim dimensionStyle3 As Inkwright.DimensionStyleUserData
            Set dimensionStyle3 = generalDimension2.GetDimensionStyleUserData()
            Dim fitOptions4 As Inkwright.DimensionStyleFitOptions
            Set fitOptions4 = dimensionStyle3.GetDimensionStyleFitOptions()
            fitOptions4.FitGeometry = Inkwright.iwDimensionFitGeometry_e.iwDimensionFitGeometry_TextAndArrows
            fitOptions4.FitGeometry = Inkwright.iwDimensionFitGeometry_e.iwDimensionFitGeometry_KeepTextBetweenExtensionLines
            fitOptions4.SetDimensionScale Inkwright.iwDimensionScale_e.iwDimensionScale_UseScaleFactor, 2.00000000000000
            Dim generalDimension5 As Inkwright.GeneralDimension
            Set generalDimension5 = rotateddimension2.GetGeneralDimension()
            Dim x6 As Double
            Dim y6 As Double
            generalDimension5.GetTextPosition x6, y6
            generalDimension5.SetTextPosition 55.00000000000000, y6
            Dim x7 As Double
            Dim y7 As Double
            generalDimension5.GetTextPosition x7, y7
            generalDimension5.SetTextPosition x7, -20.00000000000000
            generalDimension5.TextOverride = "<> \\A1;typ."
            Dim dimensionStyle8 As Inkwright.DimensionStyleUserData
            Set dimensionStyle8 = generalDimension5.GetDimensionStyleUserData()
            Dim textOptions9 As Inkwright.DimensionStyleTextOptions
            Set textOptions9 = dimensionStyle8.GetDimensionStyleTextOptions()
            textOptions9.Height = 5.00000000000000
            textOptions9.Alignment = Inkwright.iwDimensionTextAlignment_e.iwDimensionTextAlignment_AlignHorizontally
            textOptions9.Alignment = Inkwright.iwDimensionTextAlignment_e.iwDimensionTextAlignment_AlignWithDimensionLines
        End If

        If 1 Then
            ' AcDbRotatedDimension object modified
            If 1 Then
                Dim generalDimension2 As Inkwright.GeneralDimension
                Set generalDimension2 = rotateddimension2.GetGeneralDimension()
                Dim dimensionStyle3 As Inkwright.DimensionStyleUserData
                Set dimensionStyle3 = generalDimension2.GetDimensionStyleUserData()
                Dim angularDimensionOptions4 As Inkwright.DimensionStyleAngularDimensionOptions
                Set angularDimensionOptions4 = dimensionStyle3.GetDimensionStyleAngularDimensionOptions()
                angularDimensionOptions4.HideTrailingZeroes = True
                Dim generalDimension5 As Inkwright.GeneralDimension
                Set generalDimension5 = rotateddimension2.GetGeneralDimension()
                Dim dimensionStyle6 As Inkwright.DimensionStyleUserData
                Set dimensionStyle6 = generalDimension5.GetDimensionStyleUserData()
                Dim dualDimensionOptions7 As Inkwright.DimensionStyleDualDimensionOptions
                Set dualDimensionOptions7 = dimensionStyle6.GetDimensionStyleDualDimensionOptions()
                dualDimensionOptions7.Show = True
                dualDimensionOptions7.Suffix = " in"
                Dim generalDimension8 As Inkwright.GeneralDimension
                Set generalDimension8 = rotateddimension2.GetGeneralDimension()
                Dim dimensionStyle9 As Inkwright.DimensionStyleUserData
                Set dimensionStyle9 = generalDimension8.GetDimensionStyleUserData()
                Dim lineOptions10 As Inkwright.DimensionStyleLineOptions
                Set lineOptions10 = dimensionStyle9.GetDimensionStyleLineOptions()
                lineOptions10.DimensionLineStyle = "DASHED"
                lineOptions10.DimensionLineLineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
                lineOptions10.DimensionLineColor = iwApp.GetColorByIndex( 2 )
                lineOptions10.HideDimensionLine2 = True
                lineOptions10.HideDimensionLine2 = False
                lineOptions10.SetExtensionLineFixedLength False, 1.25000000000000
                Dim generalDimension11 As Inkwright.GeneralDimension
                Set generalDimension11 = rotateddimension2.GetGeneralDimension()
                Dim dimensionStyle12 As Inkwright.DimensionStyleUserData
                Set dimensionStyle12 = generalDimension11.GetDimensionStyleUserData()
                Dim linearDimensionOptions13 As Inkwright.DimensionStyleLinearDimensionOptions
                Set linearDimensionOptions13 = dimensionStyle12.GetDimensionStyleLinearDimensionOptions()
                linearDimensionOptions13.Precision = Inkwright.iwUnitPrecision_e.iwUnitPrecision_3
                linearDimensionOptions13.DecimalSeparator = Inkwright.iwLinearDimensionDecimalSeparator_e.iwLinearDimensionDecimalSeparator_Space
                linearDimensionOptions13.Prefix = "~"
                Dim generalDimension14 As Inkwright.GeneralDimension
                Set generalDimension14 = rotateddimension2.GetGeneralDimension()
                Dim dimensionStyle15 As Inkwright.DimensionStyleUserData
                Set dimensionStyle15 = generalDimension14.GetDimensionStyleUserData()
                Dim toleranceOptions16 As Inkwright.DimensionStyleToleranceOptions
                Set toleranceOptions16 = dimensionStyle15.GetDimensionStyleToleranceOptions()
                toleranceOptions16.Calculation = Inkwright.iwToleranceCalculation_e.iwToleranceCalculation_Basic
                toleranceOptions16.MaximumValue = 0.10000000000000
            End If

        End If

        If 1 Then
            ' AcDbRadialDimension object modified
            If 1 Then
                Dim generalDimension2 As Inkwright.GeneralDimension
                Set generalDimension2 = radialdimension3.GetGeneralDimension()
                Dim dimensionStyle3 As Inkwright.DimensionStyleUserData
                Set dimensionStyle3 = generalDimension2.GetDimensionStyleUserData()
                Dim radialDiameterDimensionOptions4 As Inkwright.DimensionStyleRadialDiameterDimensionOptions
                Set radialDiameterDimensionOptions4 = dimensionStyle3.GetDimensionStyleRadialDiameterDimensionOptions()
                Dim CenterMarkDisplay5 As Inkwright.iwDimensionCenterMarkDisplay_e
                Dim markSize5 As Double
                radialDiameterDimensionOptions4.GetCenterMarkDisplay CenterMarkDisplay5, markSize5
                markSize5 = 0.50000000000000
                radialDiameterDimensionOptions4.SetCenterMarkDisplay CenterMarkDisplay5, markSize5
                Dim CenterMarkDisplay6 As Inkwright.iwDimensionCenterMarkDisplay_e
                Dim markSize6 As Double
                radialDiameterDimensionOptions4.GetCenterMarkDisplay CenterMarkDisplay6, markSize6
                CenterMarkDisplay6 = Inkwright.iwDimensionCenterMarkDisplay_e.iwDimensionCenterMarkDisplay_AsMark
                radialDiameterDimensionOptions4.SetCenterMarkDisplay CenterMarkDisplay6, markSize6
            End If

        End If

        If 1 Then
            ' AcDbArcDimension object modified
            If 1 Then
                Dim generalDimension2 As Inkwright.GeneralDimension
                Set generalDimension2 = arclengthdimension4.GetGeneralDimension()
                Dim dimensionStyle3 As Inkwright.DimensionStyleUserData
                Set dimensionStyle3 = generalDimension2.GetDimensionStyleUserData()
                Dim angularDimensionOptions4 As Inkwright.DimensionStyleAngularDimensionOptions
                Set angularDimensionOptions4 = dimensionStyle3.GetDimensionStyleAngularDimensionOptions()
                angularDimensionOptions4.Format = Inkwright.iwDimensionStyleAngleFormat_e.iwDimensionStyleAngleFormat_Radians
                angularDimensionOptions4.HideLeadingZeroes = True
                arclengthdimension4.ArcSymbolType = Inkwright.iwArcSymbolType_e.iwArcSymbolType_None
            End If

        End If

        If 1 Then
            ' AcDbRadialDimensionLarge object modified
            If 1 Then
                Dim generalDimension2 As Inkwright.GeneralDimension
                Set generalDimension2 = joggeddimension5.GetGeneralDimension()
                Dim dimensionStyle3 As Inkwright.DimensionStyleUserData
                Set dimensionStyle3 = generalDimension2.GetDimensionStyleUserData()
                Dim radialDiameterDimensionOptions4 As Inkwright.DimensionStyleRadialDiameterDimensionOptions
                Set radialDiameterDimensionOptions4 = dimensionStyle3.GetDimensionStyleRadialDiameterDimensionOptions()
                radialDiameterDimensionOptions4.RadiusDimensionJogAngle = 0.75000000000000
                Dim x5 As Double
                Dim y5 As Double
                Dim z5 As Double
                joggeddimension5.GetOverrideCenterPoint x5, y5, z5
                joggeddimension5.SetOverrideCenterPoint x5, 21.50000000000000, z5
                Dim x6 As Double
                Dim y6 As Double
                Dim z6 As Double
                joggeddimension5.GetJogPoint x6, y6, z6
                joggeddimension5.SetJogPoint 17.00000000000000, y6, z6
            End If

        End If

        If 1 Then
            If 1 Then
                Dim generalDimension2 As Inkwright.GeneralDimension
                Set generalDimension2 = radialdimension3.GetGeneralDimension()
                Dim dimensionStyle3 As Inkwright.DimensionStyleUserData
                Set dimensionStyle3 = generalDimension2.GetDimensionStyleUserData()
                Dim textOptions4 As Inkwright.DimensionStyleTextOptions
                Set textOptions4 = dimensionStyle3.GetDimensionStyleTextOptions()
                textOptions4.FillColor = iwApp.GetColorByIndex( 8 )
            End If

        End If

