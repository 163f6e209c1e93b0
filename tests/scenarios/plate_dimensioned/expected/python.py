def line(drawing):
    """LINE"""
    drawing.line1 = drawing.sketch.InsertLine(0.0, 0.0, 0.0, 120.0, 0.0, 0.0)
    drawing.line2 = drawing.sketch.InsertLine(120.0, 0.0, 0.0, 150.0, 60.0, 0.0)


def circle(drawing):
    """CIRCLE"""
    drawing.circle3 = drawing.sketch.InsertCircle(30.0, 30.0, 0.0, 12.5)
    return drawing.circle3


def arc(drawing):
    """ARC"""
    drawing.circlearc4 = drawing.sketch.InsertArc(
        90.0, 30.0, 0.0, 20.0, 0.0, 1.5707963267948966
    )
    return drawing.circlearc4


def reals(*values):
    """An array of numbers."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_R8, values)


def dimaligned(drawing):
    """DIMALIGNED"""
    drawing.aligneddimension5 = drawing.sketch.InsertAlignedDimension(
        reals(120.0, 0.0, 0.0),
        reals(150.0, 60.0, 0.0),
        reals(145.0, 25.0, 0.5),
        "<> H7",
    )
    general = drawing.aligneddimension5.GetGeneralDimension()
    general.TextRotation = 0.25
    general = drawing.aligneddimension5.GetGeneralDimension()
    general.Color = drawing.app.GetColorByIndex(1)
    general.Layer = "Dimensions"
    return drawing.aligneddimension5


def dimrotated(drawing):
    """DIMROTATED"""
    drawing.rotateddimension6 = drawing.sketch.InsertRotatedDimension(
        reals(0.0, 0.0, 0.0),
        reals(120.0, 0.0, 0.0),
        reals(60.0, -15.0, 0.0),
        "A\\B",
        3.141592653589793,
    )
    general = drawing.rotateddimension6.GetGeneralDimension()
    general.Layer = "Dimensions"
    return drawing.rotateddimension6


def dimordinate(drawing):
    """DIMORDINATE"""
    drawing.ordinatedimension7 = drawing.sketch.InsertOrdinateDimension(
        reals(30.0, 30.0, 0.0),
        reals(30.0, 80.0, 0.0),
        "",
        constants.iwOrdinateDimensionMeasure_UseXAxis,
    )
    general = drawing.ordinatedimension7.GetGeneralDimension()
    general.TextRotation = 1.5
    drawing.ordinatedimension7.SetOriginPoint(10.0, 5.0, 0.0)
    return drawing.ordinatedimension7


def dimordinate_2(drawing):
    """DIMORDINATE"""
    drawing.ordinatedimension8 = drawing.sketch.InsertOrdinateDimension(
        reals(90.0, 30.0, 0.0),
        reals(160.0, 30.0, 0.0),
        "",
        constants.iwOrdinateDimensionMeasure_UseYAxis,
    )
    return drawing.ordinatedimension8


def dimangular(drawing):
    """DIMANGULAR"""
    drawing.angulardimension9 = drawing.sketch.InsertAngularDimension3Point(
        reals(90.123456789, 30.0, 0.0),
        reals(110.0, 30.0, 0.0),
        reals(90.0, 50.0, 0.0),
        reals(105.0, 45.0, 0.0),
        "",
    )
    return drawing.angulardimension9


def dimangular_2(drawing):
    """DIMANGULAR"""
    drawing.angulardimension10 = drawing.sketch.InsertAngularDimensionArc(
        drawing.circlearc4, reals(107.0, 47.0, 0.0), ""
    )
    return drawing.angulardimension10


def dimangular_3(drawing):
    """DIMANGULAR"""
    measured_arc = drawing.sketch.InsertArc(
        200.0000125, 0.0, 0.0, 8.3333333333, 0.1, 3.041592653589793
    )
    drawing.angulardimension11 = drawing.sketch.InsertAngularDimensionArc(
        measured_arc, reals(200.0, 12.0, 0.0), "<>\\P(typ.)"
    )
    measured_arc.Erased = True
    return drawing.angulardimension11


def dimangular_4(drawing):
    """DIMANGULAR"""
    drawing.angulardimension12 = drawing.sketch.InsertAngularDimension2Line(
        drawing.line1, drawing.line2, reals(100.0, 20.0, 0.0), "<>"
    )
    return drawing.angulardimension12


def dimangular_5(drawing):
    """DIMANGULAR"""
    second_line = drawing.sketch.InsertLine(0.0, 0.0, 0.0, 0.0, 60.0, 0.0)
    drawing.angulardimension13 = drawing.sketch.InsertAngularDimension2Line(
        drawing.line1, second_line, reals(15.0, 15.0, 0.0), "<>"
    )
    second_line.Erased = True
    return drawing.angulardimension13


def dimangular_6(drawing):
    """DIMANGULAR"""
    first_line = drawing.sketch.InsertLine(1.0, 0.0, 0.0, 2.0, 0.0, 0.0)
    second_line = drawing.sketch.InsertLine(1.0, 1.0, 0.0, 2.0, 3.0, 0.0)
    drawing.angulardimension14 = drawing.sketch.InsertAngularDimension2Line(
        first_line, second_line, reals(5.0, 1.0, 0.0), "<>"
    )
    first_line.Erased = True
    second_line.Erased = True
    return drawing.angulardimension14


def dimarc(drawing):
    """DIMARC"""
    drawing.arclengthdimension15 = drawing.sketch.InsertArcLengthDimensionPartial(
        drawing.circlearc4,
        reals(110.0, 30.0, 0.0),
        reals(90.0, 50.0, 0.0),
        reals(110.0, 55.0, 0.0),
        "",
    )
    return drawing.arclengthdimension15


def dimarc_2(drawing):
    """DIMARC"""
    measured_arc = drawing.sketch.InsertArc(
        200.0000125, 0.0, 0.0, 8.3333333333, 0.1, 3.041592653589793
    )
    drawing.arclengthdimension16 = drawing.sketch.InsertArcLengthDimensionPartial(
        measured_arc,
        reals(110.0, 30.0, 0.0),
        reals(90.0, 50.0, 0.0),
        reals(110.0, 55.0, 0.0),
        "",
    )
    measured_arc.Erased = True
    return drawing.arclengthdimension16


def dimarc_3(drawing):
    """DIMARC"""
    drawing.arclengthdimension17 = drawing.sketch.InsertArcLengthDimension(
        drawing.circlearc4, reals(110.0, 55.0, 0.0), ""
    )
    return drawing.arclengthdimension17


def dimarc_4(drawing):
    """DIMARC"""
    measured_arc = drawing.sketch.InsertArc(1.0, 2.0, 3.0, 5.0, 0.25, 1.75)
    drawing.arclengthdimension18 = drawing.sketch.InsertArcLengthDimension(
        measured_arc, reals(110.0, 55.0, 0.0), ""
    )
    measured_arc.Erased = True
    return drawing.arclengthdimension18


def dimdiameter(drawing):
    """DIMDIAMETER"""
    drawing.diameterdimension19 = drawing.sketch.InsertDiameterDimensionCircle(
        drawing.circle3, reals(42.5, 30.0, 0.0), "<> H7"
    )
    measured_circle = drawing.sketch.InsertCircle(0.0, 0.0, 0.0, 5.0)
    drawing.diameterdimension20 = drawing.sketch.InsertDiameterDimensionCircle(
        measured_circle, reals(3.0, 4.0, 0.0), ""
    )
    measured_circle.Erased = True
    drawing.diameterdimension21 = drawing.sketch.InsertDiameterDimensionArc(
        drawing.circlearc4, reals(110.0, 30.0, 0.0), ""
    )
    measured_arc = drawing.sketch.InsertArc(
        200.0000125, 0.0, 0.0, 8.3333333333, 0.1, 3.041592653589793
    )
    drawing.diameterdimension22 = drawing.sketch.InsertDiameterDimensionArc(
        measured_arc, reals(208.5, 0.0, 0.0), ""
    )
    measured_arc.Erased = True


def dimradius(drawing):
    """DIMRADIUS"""
    drawing.radialdimension23 = drawing.sketch.InsertRadialDimensionCircle(
        drawing.circle3, reals(30.0, 42.5, 0.0), ""
    )
    measured_circle = drawing.sketch.InsertCircle(175.0, 30.0, 0.5, 4.25)
    drawing.radialdimension24 = drawing.sketch.InsertRadialDimensionCircle(
        measured_circle, reals(179.25, 30.0, 0.0), "R<>"
    )
    measured_circle.Erased = True
    drawing.radialdimension25 = drawing.sketch.InsertRadialDimensionArc(
        drawing.circlearc4, reals(90.0, 50.0, 0.0), ""
    )
    measured_arc = drawing.sketch.InsertArc(
        200.0000125, 0.0, 0.0, 8.3333333333, 0.1, 3.041592653589793
    )
    drawing.radialdimension26 = drawing.sketch.InsertRadialDimensionArc(
        measured_arc, reals(200.0, 8.3, 0.0), ""
    )
    measured_arc.Erased = True


def dimradius_2(drawing):
    """DIMRADIUS"""
    measured_circle = drawing.sketch.InsertCircle(5.0, 5.0, 0.0, 2.0)
    drawing.radialdimension28 = drawing.sketch.InsertRadialDimensionCircle(
        measured_circle, reals(7.0, 5.0, 0.0), ""
    )
    measured_circle.Erased = True
    return drawing.radialdimension28


def dimjogged(drawing):
    """DIMJOGGED"""
    drawing.joggeddimension29 = drawing.sketch.InsertJoggedDimensionCircle(
        drawing.circle3,
        reals(10.0, 20.0, 0.0),
        reals(16.0, 26.0, 0.0),
        reals(17.5, 30.0, 0.0),
        "R<>",
    )
    return drawing.joggeddimension29


def dimjogged_2(drawing):
    """DIMJOGGED"""
    measured_circle = drawing.sketch.InsertCircle(30.0, 30.0, 0.0, 12.5)
    drawing.joggeddimension30 = drawing.sketch.InsertJoggedDimensionCircle(
        measured_circle,
        reals(10.0, 20.0, 0.0),
        reals(16.0, 26.0, 0.0),
        reals(17.5, 30.0, 0.0),
        "R<>",
    )
    measured_circle.Erased = True
    return drawing.joggeddimension30


def dimjogged_3(drawing):
    """DIMJOGGED"""
    drawing.joggeddimension31 = drawing.sketch.InsertJoggedDimensionArc(
        drawing.circlearc4,
        reals(10.0, 20.0, 0.0),
        reals(16.0, 26.0, 0.0),
        reals(17.5, 30.0, 0.0),
        "R<>",
    )
    return drawing.joggeddimension31


def dimjogged_4(drawing):
    """DIMJOGGED"""
    measured_arc = drawing.sketch.InsertArc(
        200.0000125, 0.0, 0.0, 8.3333333333, 0.1, 3.041592653589793
    )
    drawing.joggeddimension32 = drawing.sketch.InsertJoggedDimensionArc(
        measured_arc,
        reals(10.0, 20.0, 0.0),
        reals(16.0, 26.0, 0.0),
        reals(17.5, 30.0, 0.0),
        "R<>",
    )
    measured_arc.Erased = True
    return drawing.joggeddimension32


def main():
    try:
        drawing = connect()
    except RuntimeError as error:
        return "recording: " + str(error)
    drawing.app.AbortRunningCommand()
    line(drawing)
    circle(drawing)
    arc(drawing)
    dimaligned(drawing)
    dimrotated(drawing)
    dimordinate(drawing)
    dimordinate_2(drawing)
    dimangular(drawing)
    dimangular_2(drawing)
    dimangular_3(drawing)
    dimangular_4(drawing)
    dimangular_5(drawing)
    dimangular_6(drawing)
    dimarc(drawing)
    dimarc_2(drawing)
    dimarc_3(drawing)
    dimarc_4(drawing)
    dimdiameter(drawing)
    dimradius(drawing)
    dimradius_2(drawing)
    dimjogged(drawing)
    dimjogged_2(drawing)
    dimjogged_3(drawing)
    dimjogged_4(drawing)
