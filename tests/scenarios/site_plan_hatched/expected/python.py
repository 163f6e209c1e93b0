def reals(*values):
    """An array of numbers."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_R8, values)


def line(drawing):
    """LINE"""
    drawing.line1 = drawing.sketch.InsertLine(0.0, 0.0, 0.0, 40.0, 0.0, 0.0)
    drawing.spline2 = drawing.sketch.InsertSpline(
        reals(0.0, 60.0, 0.0, 10.0, 65.0, 0.0, 20.0, 60.0, 0.0),
        False,
        0.0,
        0.0,
        0.0,
        0.0,
        0.0,
        0.0,
    )


def hatch(drawing):
    """HATCH"""
    drawing.hatch3 = drawing.sketch.InsertHatchByInternalPoints(
        reals(2.0, 1.0, 30.0, 12.5), "ANSI31", 1.5, 0.785398163397448
    )
    pattern = drawing.hatch3.GetHatchPattern()
    pattern.InternalRegionDetection = (
        constants.iwHatchPatternInternalRegionDetection_Outer
    )
    _, y = pattern.GetOrigin()
    pattern.SetOrigin(4.0, y)
    x, _ = pattern.GetOrigin()
    pattern.SetOrigin(x, -2.5)
    drawing.hatch3.Color = drawing.app.GetColorByIndex(3)
    drawing.hatch3.Layer = "Planting"
    return drawing.hatch3


def objects(*values):
    """An array of the interface's objects."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_DISPATCH, values)


def integers(*values):
    """An array of integers, as the interface takes it."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_I4, values)


def hatch_2(drawing):
    """HATCH"""
    edge_1 = drawing.sketch.InsertCircle(10.0, 10.0, 0.0, 2.5)
    edge_2 = drawing.sketch.InsertTable(60.0, 20.0, 3, 2, 10.0, 25.0, 1, 2, 3)
    edge_4 = drawing.sketch.InsertCircle(90.0, 10.0, 0.0, 1.0)
    edge_5 = drawing.sketch.InsertEllipseDistanceToOtherAxis(
        93.0, 20.0, 87.0, 20.0, 1.0
    )
    edge_6 = drawing.sketch.InsertArc(90.0, 30.0, 0.0, 2.0, 0.0, 1.5)
    edge_7 = drawing.sketch.InsertLine(90.0, 40.0, 0.0, 95.0, 40.0, 0.0)
    regions = drawing.sketch.InsertRegion(objects(edge_4, edge_5, edge_6, edge_7))
    edge_3 = regions[0]
    edge_8 = drawing.sketch.InsertExternalReference("Tree", 5.0, 30.0, 0.0, 1.0, 2.0)
    edge_9 = drawing.sketch.InsertExternalReference(
        "survey.dwg", 15.0, 30.0, 1.0, 1.0, 1.0
    )
    edge_10 = drawing.sketch.InsertPolygonMesh(
        2,
        3,
        reals(
            *(0.0, 0.0, 0.0),
            *(1.0, 0.0, 0.0),
            *(2.0, 0.0, 0.0),
            *(0.0, 1.0, 0.0),
            *(1.0, 1.0, 0.5),
            *(2.0, 1.0, 0.0),
        ),
    )
    edge_11 = drawing.sketch.InsertPolyFaceMesh(
        5,
        reals(
            *(0.0, 0.0, 0.0),
            *(1.0, 0.0, 0.0),
            *(1.0, 1.0, 0.0),
            *(0.0, 1.0, 0.0),
            *(0.5, 0.5, 1.0),
        ),
        integers(4, 3),
        integers(1, 2, 3, 4, 1, 2, 5),
    )
    edge_12 = drawing.sketch.InsertSolid(
        reals(0.0, 40.0, 0.0, 5.0, 40.0, 0.0, 0.0, 45.0, 0.0, 5.0, 45.0, 0.0)
    )
    edge_13 = drawing.sketch.InsertPolyline3D(
        reals(0.0, 0.0, 0.0, 3.0, 0.0, 1.0, 3.0, 3.0, 2.0), True
    )
    edge_14 = drawing.sketch.InsertArc(20.0, 10.0, 0.0, 4.0, 0.5, 2.25)
    edge_15 = drawing.sketch.InsertPolyline2D(
        reals(0.0, 0.0, 12.5, 0.0, 12.5, 8.0, 0.0, 8.0), True
    )
    edge_15.SetSegmentAngle(1, 3.141592653589793)
    edge_15.SetSegmentAngle(3, -1.5707963267948968)
    edge_16 = drawing.sketch.InsertEllipseDistanceToOtherAxis(
        36.0, 10.0, 24.0, 10.0, 5.0
    )
    edge_17 = drawing.sketch.InsertEllipseArcDistanceToOtherAxis(
        45.0, 16.0, 45.0, 4.0, 2.0, 0.0, 6.283185307179586
    )
    edge_18 = drawing.sketch.InsertLine(40.0, 0.0, 0.0, 40.0, 25.0, 0.0)
    edge_19 = drawing.sketch.InsertLine(40.0, 25.0, 0.0, 0.0, 0.0, 0.0)
    edge_20 = drawing.sketch.InsertFace(
        reals(0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 1.0, 1.0, 0.0, 0.0, 1.0, 0.0),
        True,
        True,
        False,
        True,
    )
    edge_21 = drawing.sketch.InsertRichLine(
        reals(0.0, 50.0, 0.0, 20.0, 50.0, 0.0),
        constants.iwRichLineJustification_Zero,
        0.75,
        "Wall",
        False,
    )
    edge_22 = drawing.sketch.InsertLeader(
        reals(70.0, 10.0, 0.0, 75.0, 15.0, 0.0), 12.5, "\\fArial;Lawn"
    )
    edge_23 = drawing.sketch.InsertLeader(
        reals(80.0, 10.0, 0.0, 85.0, 15.0, 0.0), 0.0, ""
    )
    drawing.hatch4 = drawing.sketch.InsertHatchByEntities(
        objects(
            drawing.line1,
            edge_1,
            edge_2,
            edge_3,
            edge_8,
            edge_9,
            edge_10,
            edge_11,
            edge_12,
            edge_13,
            edge_14,
            edge_15,
            edge_16,
            edge_17,
            edge_18,
            edge_19,
            edge_20,
            edge_21,
            edge_22,
            edge_23,
        ),
        "AR-CONC",
        1234567.5,
        0.0,
    )
    edge_1.Erased = True
    edge_2.Erased = True
    edge_3.Erased = True
    edge_8.Erased = True
    edge_9.Erased = True
    edge_10.Erased = True
    edge_11.Erased = True
    edge_12.Erased = True
    edge_13.Erased = True
    edge_14.Erased = True
    edge_15.Erased = True
    edge_16.Erased = True
    edge_17.Erased = True
    edge_18.Erased = True
    edge_19.Erased = True
    edge_20.Erased = True
    edge_21.Erased = True
    edge_22.Erased = True
    edge_23.Erased = True
    pattern = drawing.hatch4.GetHatchPattern()
    _, y = pattern.GetOrigin()
    pattern.SetOrigin(1.0, y)
    drawing.hatch4.Color = drawing.app.GetColorByIndex(3)
    drawing.hatch4.Layer = "Planting"
    return drawing.hatch4


def hatch_3(drawing):
    """HATCH"""
    edge_1 = drawing.sketch.InsertCircle(10.0, 10.0, 0.0, 2.5)
    drawing.hatch5 = drawing.sketch.InsertHatchByEntities(
        objects(drawing.line1, edge_1), "GRASS", 0.1, 0.25
    )
    pattern = drawing.hatch5.GetHatchPattern()
    pattern.SetGradientData(
        drawing.app.GetColorByIndex(3), drawing.app.GetRGBColor(12, 200, 255), True, 0.5
    )
    drawing.hatch5.Color = drawing.app.GetColorByIndex(3)
    drawing.hatch5.Layer = "Planting"
    return drawing.hatch5


def hatch_4(drawing):
    """HATCH"""
    drawing.hatch6 = drawing.sketch.InsertHatchByEntities(objects(), "SOLID", 1.0, 0.0)
    return drawing.hatch6


def hatch_5(drawing):
    """HATCH"""
    edge_1 = drawing.sketch.InsertPolyline2D(
        reals(0.0, 0.0, 12.5, 0.0, 12.5, 8.123456789, 0.0, 8.0), True
    )
    edge_1.SetSegmentAngle(1, 3.141592653589793)
    edge_1.SetSegmentAngle(3, -1.5707963267948968)
    drawing.hatch7 = drawing.sketch.InsertHatchByEntities(
        objects(edge_1), "GRAVEL", 2.0, 0.0
    )
    edge_1.Erased = True
    pattern = drawing.hatch7.GetHatchPattern()
    pattern.SetGradientData(
        drawing.app.GetRGBColor(255, 0, 0), drawing.app.GetColorByIndex(7), False, 1.25
    )
    return drawing.hatch7


def hatch_6(drawing):
    """HATCH"""
    edge_1 = drawing.sketch.InsertPolyline2D(reals(0.0, 0.0, 4.0, 0.0, 4.0, 3.0), True)
    drawing.hatch8 = drawing.sketch.InsertHatchByEntities(
        objects(edge_1), "GRAVEL", 2.0, 0.0
    )
    return drawing.hatch8


def hatch_7(drawing):
    """HATCH"""
    drawing.hatch9 = drawing.sketch.InsertHatchByBoundary(
        integers(4, 3),
        reals(
            *(0.0, 0.0),
            *(20.0, 0.0),
            *(20.0, 10.0),
            *(0.0, 10.0),
            *(5.0, 5.0),
            *(8.0, 5.0),
            *(8.0, 8.0),
            *(0.0, 0.0),
        ),
        "BRICK",
        0.75,
        1.5707963267949,
    )
    pattern = drawing.hatch9.GetHatchPattern()
    pattern.SetGradientData(
        drawing.app.GetColorByIndex(256), drawing.app.GetColorByIndex(1), False, 0.0
    )
    pattern = drawing.hatch9.GetHatchPattern()
    pattern.InternalRegionDetection = (
        constants.iwHatchPatternInternalRegionDetection_Ignore
    )
    return drawing.hatch9


def hatch_8(drawing):
    """HATCH"""
    drawing.hatch11 = drawing.sketch.InsertHatchByInternalPoints(
        reals(50.0, 5.0), "CROSS", 1.0, 0.0
    )
    pattern = drawing.hatch11.GetHatchPattern()
    pattern.SetGradientData(
        drawing.app.GetColorByIndex(5), drawing.app.GetColorByIndex(6), True, 0.125
    )
    return drawing.hatch11


def hatchedit(drawing):
    """HATCHEDIT"""
    # AcDbHatch object modified
    pattern = drawing.hatch3.GetHatchPattern()
    data = pattern.GetHatchOrSolidData()
    _, _, _, _, _ = data
    pattern.SetHatchOrSolidData(
        "ANSI37", 0.5, 3.0, constants.iwHatchPatternType_Predefined, 1.25
    )


def hatchedit_2(drawing):
    """HATCHEDIT"""
    # AcDbHatch object modified
    pattern = drawing.hatch5.GetHatchPattern()
    data = pattern.GetGradientData()
    _, _, _, _ = data
    pattern.SetGradientData(
        drawing.app.GetColorByIndex(2), drawing.app.GetRGBColor(1, 2, 3), True, 0.75
    )


def properties(drawing):
    """PROPERTIES"""
    # AcDbHatch object modified
    drawing.hatch4.Color = drawing.app.GetColorByIndex(1)
    pattern = drawing.hatch4.GetHatchPattern()
    data = pattern.GetHatchOrSolidData()
    pattern_name, pattern_angle, pattern_scale, _, pattern_spacing = data
    pattern.SetHatchOrSolidData(
        pattern_name,
        pattern_angle,
        pattern_scale,
        constants.iwHatchPatternType_Custom,
        pattern_spacing,
    )
    data = pattern.GetGradientData()
    first_color, second_color, _, gradient_angle = data
    pattern.SetGradientData(first_color, second_color, False, gradient_angle)
    pattern.InternalRegionDetection = (
        constants.iwHatchPatternInternalRegionDetection_Ignore
    )
    x, _ = pattern.GetOrigin()
    pattern.SetOrigin(x, 7.0)


def step(drawing):
    """Outside of commands"""
    pattern = drawing.hatch9.GetHatchPattern()
    data = pattern.GetHatchOrSolidData()
    pattern_name, pattern_angle, _, pattern_kind, pattern_spacing = data
    pattern.SetHatchOrSolidData(
        pattern_name, pattern_angle, 2.5, pattern_kind, pattern_spacing
    )


def main():
    try:
        drawing = connect()
    except RuntimeError as error:
        return "recording: " + str(error)
    drawing.app.AbortRunningCommand()
    line(drawing)
    hatch(drawing)
    hatch_2(drawing)
    hatch_3(drawing)
    hatch_4(drawing)
    hatch_5(drawing)
    hatch_6(drawing)
    hatch_7(drawing)
    hatch_8(drawing)
    hatchedit(drawing)
    hatchedit_2(drawing)
    properties(drawing)
    step(drawing)
