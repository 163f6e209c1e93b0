def reals(*values):
    """An array of numbers."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_R8, values)


def dimaligned(drawing):
    """DIMALIGNED"""
    drawing.aligneddimension1 = drawing.sketch.InsertAlignedDimension(
        reals(0.0, 0.0, 0.0), reals(120.0, 50.0, 0.0), reals(60.0, -15.0, 0.0), ""
    )
    return drawing.aligneddimension1


def dimrotated(drawing):
    """DIMROTATED"""
    drawing.rotateddimension2 = drawing.sketch.InsertRotatedDimension(
        reals(0.0, 0.0, 0.0), reals(120.0, 0.0, 0.0), reals(60.0, -15.0, 0.0), "", 0.0
    )
    return drawing.rotateddimension2


def dimradius(drawing):
    """DIMRADIUS"""
    measured_circle = drawing.sketch.InsertCircle(30.0, 30.0, 0.0, 12.5)
    drawing.radialdimension3 = drawing.sketch.InsertRadialDimensionCircle(
        measured_circle, reals(42.5, 30.0, 0.0), ""
    )
    measured_circle.Erased = True
    return drawing.radialdimension3


def dimarc(drawing):
    """DIMARC"""
    measured_arc = drawing.sketch.InsertArc(
        90.0, 30.0, 0.0, 32.01562118716424, 0.0, 1.5707963267948966
    )
    drawing.arclengthdimension4 = drawing.sketch.InsertArcLengthDimension(
        measured_arc, reals(110.0, 55.0, 0.0), ""
    )
    measured_arc.Erased = True
    return drawing.arclengthdimension4


def dimjogged(drawing):
    """DIMJOGGED"""
    measured_circle = drawing.sketch.InsertCircle(30.0, 30.0, 0.0, 12.5)
    drawing.joggeddimension5 = drawing.sketch.InsertJoggedDimensionCircle(
        measured_circle,
        reals(10.0, 20.0, 0.0),
        reals(16.0, 26.0, 0.0),
        reals(17.5, 30.0, 0.0),
        "R<>",
    )
    measured_circle.Erased = True
    return drawing.joggeddimension5


def properties(drawing):
    """PROPERTIES"""
    # AcDbAlignedDimension object modified
    general = drawing.aligneddimension1.GetGeneralDimension()
    general.DimensionStyle = "Workshop"
    general = drawing.aligneddimension1.GetGeneralDimension()
    data = general.GetDimensionStyleUserData()
    options = data.GetDimensionStyleArrowsOptions()
    options.SetStartArrow(constants.iwDimensionArrowType_Custom, "My arrow")
    options.SetEndArrow(constants.iwDimensionArrowType_Open, "")
    options.Size = 3.0


def properties_2(drawing):
    """PROPERTIES"""
    # AcDbRotatedDimension object modified
    general = drawing.rotateddimension2.GetGeneralDimension()
    general.TextRotation = 0.5


def properties_3(drawing):
    """PROPERTIES"""
    # AcDbRotatedDimension object modified
    general = drawing.rotateddimension2.GetGeneralDimension()
    general.Color = drawing.app.GetColorByIndex(1)
    general = drawing.rotateddimension2.GetGeneralDimension()
    data = general.GetDimensionStyleUserData()
    options = data.GetDimensionStyleFitOptions()
    options.FitGeometry = constants.iwDimensionFitGeometry_TextAndArrows
    options.FitGeometry = constants.iwDimensionFitGeometry_KeepTextBetweenExtensionLines
    options.SetDimensionScale(constants.iwDimensionScale_UseScaleFactor, 2.0)
    general = drawing.rotateddimension2.GetGeneralDimension()
    _, y = general.GetTextPosition()
    general.SetTextPosition(55.0, y)
    x, _ = general.GetTextPosition()
    general.SetTextPosition(x, -20.0)
    general.TextOverride = "<> \\A1;typ."
    data = general.GetDimensionStyleUserData()
    options = data.GetDimensionStyleTextOptions()
    options.Height = 5.0
    options.Alignment = constants.iwDimensionTextAlignment_AlignHorizontally
    options.Alignment = constants.iwDimensionTextAlignment_AlignWithDimensionLines


def properties_4(drawing):
    """PROPERTIES"""
    # AcDbRotatedDimension object modified
    general = drawing.rotateddimension2.GetGeneralDimension()
    data = general.GetDimensionStyleUserData()
    options = data.GetDimensionStyleAngularDimensionOptions()
    options.HideTrailingZeroes = True
    general = drawing.rotateddimension2.GetGeneralDimension()
    data = general.GetDimensionStyleUserData()
    options = data.GetDimensionStyleDualDimensionOptions()
    options.Show = True
    options.Suffix = " in"
    general = drawing.rotateddimension2.GetGeneralDimension()
    data = general.GetDimensionStyleUserData()
    options = data.GetDimensionStyleLineOptions()
    options.DimensionLineStyle = "DASHED"
    options.DimensionLineLineWeight = constants.iwLnWt_ByLayer
    options.DimensionLineColor = drawing.app.GetColorByIndex(2)
    options.HideDimensionLine2 = True
    options.HideDimensionLine2 = False
    options.SetExtensionLineFixedLength(False, 1.25)
    general = drawing.rotateddimension2.GetGeneralDimension()
    data = general.GetDimensionStyleUserData()
    options = data.GetDimensionStyleLinearDimensionOptions()
    options.Precision = constants.iwUnitPrecision_3
    options.DecimalSeparator = constants.iwLinearDimensionDecimalSeparator_Space
    options.Prefix = "~"
    general = drawing.rotateddimension2.GetGeneralDimension()
    data = general.GetDimensionStyleUserData()
    options = data.GetDimensionStyleToleranceOptions()
    options.Calculation = constants.iwToleranceCalculation_Basic
    options.MaximumValue = 0.1


def properties_5(drawing):
    """PROPERTIES"""
    # AcDbRadialDimension object modified
    general = drawing.radialdimension3.GetGeneralDimension()
    data = general.GetDimensionStyleUserData()
    options = data.GetDimensionStyleRadialDiameterDimensionOptions()
    kind, _ = options.GetCenterMarkDisplay()
    options.SetCenterMarkDisplay(kind, 0.5)
    _, size = options.GetCenterMarkDisplay()
    options.SetCenterMarkDisplay(constants.iwDimensionCenterMarkDisplay_AsMark, size)


def properties_6(drawing):
    """PROPERTIES"""
    # AcDbArcDimension object modified
    general = drawing.arclengthdimension4.GetGeneralDimension()
    data = general.GetDimensionStyleUserData()
    options = data.GetDimensionStyleAngularDimensionOptions()
    options.Format = constants.iwDimensionStyleAngleFormat_Radians
    options.HideLeadingZeroes = True
    drawing.arclengthdimension4.ArcSymbolType = constants.iwArcSymbolType_None


def properties_7(drawing):
    """PROPERTIES"""
    # AcDbRadialDimensionL... object modified
    general = drawing.joggeddimension5.GetGeneralDimension()
    data = general.GetDimensionStyleUserData()
    options = data.GetDimensionStyleRadialDiameterDimensionOptions()
    options.RadiusDimensionJogAngle = 0.75
    x, _, z = drawing.joggeddimension5.GetOverrideCenterPoint()
    drawing.joggeddimension5.SetOverrideCenterPoint(x, 21.5, z)
    _, y, z = drawing.joggeddimension5.GetJogPoint()
    drawing.joggeddimension5.SetJogPoint(17.0, y, z)


def properties_8(drawing):
    """PROPERTIES"""
    general = drawing.radialdimension3.GetGeneralDimension()
    data = general.GetDimensionStyleUserData()
    options = data.GetDimensionStyleTextOptions()
    options.FillColor = drawing.app.GetColorByIndex(8)


def main():
    try:
        drawing = connect()
    except RuntimeError as error:
        return "recording: " + str(error)
    drawing.app.AbortRunningCommand()
    dimaligned(drawing)
    dimrotated(drawing)
    dimradius(drawing)
    dimarc(drawing)
    dimjogged(drawing)
    properties(drawing)
    properties_2(drawing)
    properties_3(drawing)
    properties_4(drawing)
    properties_5(drawing)
    properties_6(drawing)
    properties_7(drawing)
    properties_8(drawing)
