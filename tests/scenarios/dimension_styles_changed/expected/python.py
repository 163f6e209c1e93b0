def dimstyle(drawing):
    """DIMSTYLE"""
    styles = drawing.doc.GetDimensionStyleManager()
    drawing.dimensionstyle1, _ = styles.CreateDimensionStyle("Shop")
    options = drawing.dimensionstyle1.GetDimensionStyleArrowsOptions()
    options.Size = 3.5
    options.SetStartArrow(constants.iwDimensionArrowType_ArchitecturalTick, "")
    options.SetEndArrow(constants.iwDimensionArrowType_Custom, "My arrow")
    options = drawing.dimensionstyle1.GetDimensionStyleDualDimensionOptions()
    options.Show = False
    options = drawing.dimensionstyle1.GetDimensionStyleFitOptions()
    options.FitGeometry = constants.iwDimensionFitGeometry_TextAndArrows
    options = drawing.dimensionstyle1.GetDimensionStyleLinearDimensionOptions()
    options.Precision = constants.iwUnitPrecision_2
    options.DecimalSeparator = constants.iwLinearDimensionDecimalSeparator_Comma
    options.Prefix = "ca. "
    options.Suffix = " mm"
    options = drawing.dimensionstyle1.GetDimensionStyleTextOptions()
    options.Style = "Titles"
    options.Height = 2.5
    drawing.dimensionstyle2, _ = styles.CreateDimensionStyle("Site")
    styles = drawing.doc.GetRichLineStyleManager()
    drawing.richlinestyle3, _ = styles.CreateRichLineStyle("Walls")


def dimstyle_2(drawing):
    """DIMSTYLE"""
    # AcDbDimStyleTableRec... object modified
    drawing.dimensionstyle1.Rename("Workshop")
    drawing.dimensionstyle1.Activate()
    options = drawing.dimensionstyle1.GetDimensionStyleArrowsOptions()
    options.Size = 2.25
    options.SetLeaderArrow(constants.iwDimensionArrowType_DotSmall, "")
    options = drawing.dimensionstyle1.GetDimensionStyleAngularDimensionOptions()
    options.Format = constants.iwDimensionStyleAngleFormat_Deg_Min_Sec
    options.Precision = constants.iwUnitPrecision_3
    options.HideTrailingZeroes = True
    options.ArcLengthSymbols = constants.iwArcLengthSymbols_None
    options = drawing.dimensionstyle1.GetDimensionStyleDualDimensionOptions()
    options.Show = True
    options.Format = constants.iwDualDimensionFormat_Engineering
    options.MultiplierForConvertingUnits = 0.0393700787
    options.Suffix = " in"
    options.Insertion = constants.iwDualDimensionInsertPlacement_BelowPrimaryUnits
    options = drawing.dimensionstyle1.GetDimensionStyleFitOptions()
    options.FitGeometry = constants.iwDimensionFitGeometry_Arrows
    options.FitGeometry = constants.iwDimensionFitGeometry_Text
    options.FitDimensionText = (
        constants.iwDimensionFitDimensionText_AboveDimensionLineWithLeader
    )
    options.DimensionLinesBetweenExtensionLine = True
    options.SetDimensionScale(constants.iwDimensionScale_UseScaleFactor, 1.5)
    options.SetDimensionScale(
        constants.iwDimensionScale_ScaleDimensionsAccordingToSheet, 1.0
    )
    options = drawing.dimensionstyle1.GetDimensionStyleLinearDimensionOptions()
    options.Format = constants.iwLinearDimensionFormat_Decimal
    options.Precision = constants.iwUnitPrecision_0
    options.DecimalSeparator = constants.iwLinearDimensionDecimalSeparator_Period
    options.Prefix = "R "
    options.ZeroesDisplayFollowSheetDimensions = False
    options = drawing.dimensionstyle1.GetDimensionStyleLineOptions()
    options.DimensionLineStyle = "DASHED"
    options.DimensionLineLineWeight = constants.iwLnWt_035
    options.DimensionLineColor = drawing.app.GetRGBColor(255, 128, 0)
    options.ExtensionLine1Style = "ByBlock"
    options.ExtensionLineColor = drawing.app.GetColorByIndex(256)
    options.SetExtensionLineFixedLength(True, 2.25)
    options = drawing.dimensionstyle1.GetDimensionStyleRadialDiameterDimensionOptions()
    options.SetCenterMarkDisplay(
        constants.iwDimensionCenterMarkDisplay_AsCenterLine, 0.09
    )
    options.RadiusDimensionJogAngle = 0.7853981633974483
    options = drawing.dimensionstyle1.GetDimensionStyleTextOptions()
    options.Style = "Standard"
    options.Color = drawing.app.GetColorByIndex(3)
    options.VerticalPosition = constants.iwDimensionTextVerticalPosition_Above
    options.Alignment = constants.iwDimensionTextAlignment_AlignWithDimensionLines
    options = drawing.dimensionstyle1.GetDimensionStyleToleranceOptions()
    options.Calculation = constants.iwToleranceCalculation_Deviation
    options.MaximumValue = 0.05
    options.MinimumValue = 0.02
    options.VerticalTextJustification = (
        constants.iwToleranceVerticalTextJustification_Middle
    )
    # AcDbDimStyleTableRec... object modified
    options = drawing.dimensionstyle2.GetDimensionStyleLinearDimensionOptions()
    options.Precision = constants.iwUnitPrecision_1
    # AcDbDimStyleTableRec... object modified
    drawing.dimensionstyle2.Rename("Plans")


def mlstyle(drawing):
    """MLSTYLE"""
    # AcDbMlineStyle object modified
    drawing.richlinestyle3.Rename("Outer walls")
    drawing.richlinestyle3.ShowJunctions = False


def main():
    try:
        drawing = connect()
    except RuntimeError as error:
        return "recording: " + str(error)
    drawing.app.AbortRunningCommand()
    dimstyle(drawing)
    dimstyle_2(drawing)
    mlstyle(drawing)
