def line(drawing):
    """LINE"""
    drawing.line1 = drawing.sketch.InsertLine(0.0, 0.0, 0.0, 120.0, 0.0, 0.0)
    drawing.line1.Color = drawing.app.GetColorByIndex(256)
    drawing.line1.Layer = "0"
    drawing.line1.LineStyle = "Continuous"
    drawing.line1.LineScale = 1.0
    drawing.line1.LineWeight = constants.iwLnWt_ByLayer
    drawing.line1.Thickness = 0.0
    drawing.line2 = drawing.sketch.InsertLine(120.0, 0.0, 0.0, 120.0, 80.5, 0.0)
    drawing.line2.Color = drawing.app.GetColorByIndex(256)
    drawing.line2.Layer = "0"
    drawing.line2.LineStyle = "Continuous"
    drawing.line2.LineScale = 1.0
    drawing.line2.LineWeight = constants.iwLnWt_ByLayer
    drawing.line2.Thickness = 0.0
    drawing.line3 = drawing.sketch.InsertLine(120.0, 80.5, 0.0, 0.0, 80.5, 0.0)
    drawing.line3.Color = drawing.app.GetColorByIndex(1)
    drawing.line3.Layer = "0"
    drawing.line3.LineStyle = "Continuous"
    drawing.line3.LineScale = 1.0
    drawing.line3.LineWeight = constants.iwLnWt_ByLayer
    drawing.line3.Thickness = 0.0
    drawing.line4 = drawing.sketch.InsertLine(0.0, 80.5, 0.0, 0.0, 0.0, 0.0)
    drawing.line4.Color = drawing.app.GetRGBColor(255, 128, 0)
    drawing.line4.Layer = "0"
    drawing.line4.LineStyle = "Continuous"
    drawing.line4.LineScale = 1.0
    drawing.line4.LineWeight = constants.iwLnWt_ByLayer
    drawing.line4.Thickness = 0.0


def circle(drawing, center_point=(20.0, 20.0, 0.0)):
    """CIRCLE"""
    drawing.circle5 = drawing.sketch.InsertCircle(*center_point, 6.25)
    drawing.circle5.Color = drawing.app.GetColorByIndex(256)
    drawing.circle5.Layer = "0"
    drawing.circle5.LineStyle = "Continuous"
    drawing.circle5.LineScale = 1.0
    drawing.circle5.LineWeight = constants.iwLnWt_ByLayer
    drawing.circle5.Thickness = 0.0
    drawing.circle6 = drawing.sketch.InsertCircle(100.0, 20.0, 0.0, 1.0)
    drawing.circle6.Color = drawing.app.GetColorByIndex(256)
    drawing.circle6.Layer = "0"
    drawing.circle6.LineStyle = "Continuous"
    drawing.circle6.LineScale = 1.0
    drawing.circle6.LineWeight = constants.iwLnWt_ByLayer
    drawing.circle6.Thickness = 0.0


def arc(drawing):
    """ARC"""
    drawing.circlearc7 = drawing.sketch.InsertArc(
        60.0, 40.0, 0.0, 15.0, 0.7853981633974483, 2.356194490192345
    )
    drawing.circlearc8 = drawing.sketch.InsertArc(60.0, 40.0, 0.0, 0.0, 0.0, 0.0)


def ellipse(drawing):
    """ELLIPSE"""
    drawing.ellipsearc10 = drawing.sketch.InsertEllipseDistanceToOtherAxis(
        90.0, 40.0, 30.0, 40.0, 12.5
    )
    drawing.ellipsearc11 = drawing.sketch.InsertEllipseArcDistanceToOtherAxis(
        60.1, 40.2, 59.9, 39.8, 1.0, 0.0, 6.28318530717958
    )


def point(drawing):
    """POINT"""
    drawing.point12 = drawing.sketch.InsertPoint(-4e-15, -0.0, 1e-14)
    drawing.point13 = drawing.sketch.InsertPoint(0.0, 7.0, 0.0)


def ray(drawing):
    """RAY"""
    drawing.ray14 = drawing.sketch.InsertRay(1.0, 2.0, 3.0, 4.0, 5.0, 6.0)
    return drawing.ray14


def infiniteline(drawing):
    """INFINITELINE"""
    drawing.infiniteline15 = drawing.sketch.InsertInfiniteLine(
        -1.0, -2.0, -3.0, 123456789.12345679, 0.0, 0.3333333333333333
    )
    return drawing.infiniteline15


def step(drawing):
    """Outside of commands"""
    drawing.circle16 = drawing.sketch.InsertCircle(
        10.0625, 11.000030517578125, 0.0, 2.0
    )
    drawing.circle16.Color = drawing.app.GetColorByIndex(256)
    drawing.circle16.Layer = "0"
    drawing.circle16.LineStyle = "Continuous"
    drawing.circle16.LineScale = 1.0
    drawing.circle16.LineWeight = constants.iwLnWt_ByLayer
    drawing.circle16.Thickness = 0.0
    # AcDbLine object modified
    _, y, z = drawing.line1.GetSecondPoint()
    drawing.line1.SetSecondPoint(130.0, y, z)
    drawing.line18 = drawing.sketch.InsertLine(0.0, 0.0, 0.0, 0.1, 0.2, 0.0)
    drawing.line18.Color = drawing.app.GetColorByIndex(256)
    drawing.line18.Layer = "0"
    drawing.line18.LineStyle = "Continuous"
    drawing.line18.LineScale = 1.0
    drawing.line18.LineWeight = constants.iwLnWt_ByLayer
    drawing.line18.Thickness = 0.0


def main():
    try:
        drawing = connect()
    except RuntimeError as error:
        return "recording: " + str(error)
    drawing.app.AbortRunningCommand()
    line(drawing)
    circle(drawing)
    arc(drawing)
    ellipse(drawing)
    point(drawing)
    ray(drawing)
    infiniteline(drawing)
    step(drawing)
