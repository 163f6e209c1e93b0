def line(drawing):
    """LINE"""
    drawing.line1 = drawing.sketch.InsertLine(0.0, 0.0, 0.0, 12.5, 0.0, 0.0)
    drawing.line1.Color = drawing.app.GetColorByIndex(256)
    drawing.line1.Layer = "0"
    drawing.line1.LineStyle = "Continuous"
    drawing.line1.LineScale = 1.0
    drawing.line1.LineWeight = constants.iwLnWt_ByLayer
    drawing.line1.Thickness = 0.0
    drawing.line2 = drawing.sketch.InsertLine(12.5, 0.0, 0.0, 12.5, 8.0, 0.0)
    drawing.line2.Color = drawing.app.GetColorByIndex(256)
    drawing.line2.Layer = "Walls"
    drawing.line2.LineStyle = "Continuous"
    drawing.line2.LineScale = 1.0
    drawing.line2.LineWeight = constants.iwLnWt_ByLayer
    drawing.line2.Thickness = 0.0
    drawing.line3 = drawing.sketch.InsertLine(12.5, 8.0, 0.0, 0.0, 0.0, 0.0)
    drawing.line3.Color = drawing.app.GetColorByIndex(1)
    drawing.line3.Layer = "0"
    drawing.line3.LineStyle = "DASHED2"
    drawing.line3.LineScale = 1.0
    drawing.line3.LineWeight = constants.iwLnWt_030
    drawing.line3.Thickness = 0.0


def circle(drawing):
    """CIRCLE"""
    drawing.circle4 = drawing.sketch.InsertCircle(6.0, 3.0, 0.0, 1.5)
    drawing.circle4.Color = drawing.app.GetRGBColor(255, 128, 0)
    drawing.circle4.Layer = "0"
    drawing.circle4.LineStyle = "Continuous"
    drawing.circle4.LineScale = 1.0
    drawing.circle4.LineWeight = constants.iwLnWt_ByLayer
    drawing.circle4.Thickness = 0.0
    drawing.circle5 = drawing.sketch.InsertCircle(2.0, 2.0, 0.0, 0.25)
    drawing.circle5.Color = drawing.app.GetColorByIndex(256)
    drawing.circle5.Layer = "0"
    drawing.circle5.LineStyle = "Continuous"
    drawing.circle5.LineScale = 1.0
    drawing.circle5.LineWeight = constants.iwLnWt_ByLayer
    drawing.circle5.Thickness = 0.0


def pline(drawing):
    """PLINE"""
    drawing.circlearc6 = drawing.sketch.InsertArc(
        6.0, 3.0, 0.0, 4.0, 0.0, 1.5707963267948966
    )
    drawing.circlearc6.Color = drawing.app.GetColorByIndex(256)
    drawing.circlearc6.Layer = "0"
    drawing.circlearc6.LineStyle = "Continuous"
    drawing.circlearc6.LineScale = 1.0
    drawing.circlearc6.LineWeight = constants.iwLnWt_ByLayer
    drawing.circlearc6.Thickness = 0.0
    return drawing.circlearc6


def point(drawing):
    """POINT"""
    drawing.point7 = drawing.sketch.InsertPoint(1.0, 2.0, 3.0)
    drawing.point7.Color = drawing.app.GetColorByIndex(256)
    drawing.point7.Layer = "0"
    drawing.point7.LineStyle = "Continuous"
    drawing.point7.LineScale = 1.0
    drawing.point7.LineWeight = constants.iwLnWt_ByLayer
    drawing.point7.Thickness = 0.0
    drawing.ray8 = drawing.sketch.InsertRay(0.0, 0.0, 0.0, 1.0, 1.0, 0.0)
    drawing.ray8.Color = drawing.app.GetColorByIndex(256)
    drawing.ray8.Layer = "0"
    drawing.ray8.LineStyle = "Continuous"
    drawing.ray8.LineScale = 1.0
    drawing.ray8.LineWeight = constants.iwLnWt_ByLayer
    drawing.ray8.Thickness = 0.0
    drawing.infiniteline9 = drawing.sketch.InsertInfiniteLine(
        0.0, 0.0, 0.0, 0.0, 1.0, 0.0
    )
    drawing.infiniteline9.Color = drawing.app.GetColorByIndex(256)
    drawing.infiniteline9.Layer = "0"
    drawing.infiniteline9.LineStyle = "Continuous"
    drawing.infiniteline9.LineScale = 1.0
    drawing.infiniteline9.LineWeight = constants.iwLnWt_ByLayer
    drawing.infiniteline9.Thickness = 0.0
    drawing.ellipsearc10 = drawing.sketch.InsertEllipseDistanceToOtherAxis(
        3.0, 0.0, -3.0, 0.0, 1.0
    )
    drawing.ellipsearc10.Color = drawing.app.GetColorByIndex(256)
    drawing.ellipsearc10.Layer = "0"
    drawing.ellipsearc10.LineStyle = "Continuous"
    drawing.ellipsearc10.LineScale = 1.0
    drawing.ellipsearc10.LineWeight = constants.iwLnWt_ByLayer
    drawing.ellipsearc10.Thickness = 0.0


def properties(drawing):
    """PROPERTIES"""
    # AcDbLine object modified
    drawing.line1.Layer = "Hidden édges"


def properties_2(drawing):
    """PROPERTIES"""
    # AcDbLine object modified
    drawing.line2.Color = drawing.app.GetColorByIndex(5)
    # AcDbLine object modified
    drawing.line3.Color = drawing.app.GetColorByIndex(0)
    drawing.line3.PrintStyle = "Style_1"
    transparency = drawing.line3.Transparency
    transparency.SetByAlpha(50)
    drawing.line3.Transparency = transparency


def stretch(drawing):
    """STRETCH"""
    # AcDbLine object modified
    _, y, z = drawing.line1.GetSecondPoint()
    drawing.line1.SetSecondPoint(13.0, y, z)
    x, _, z = drawing.line1.GetSecondPoint()
    drawing.line1.SetSecondPoint(x, 0.5, z)
    # AcDbLine object modified
    _, y, z = drawing.line2.GetFirstPoint()
    drawing.line2.SetFirstPoint(13.0, y, z)


def properties_3(drawing):
    """PROPERTIES"""
    # AcDbCircle object modified
    drawing.circle4.Radius = 2.0
    x, _, z = drawing.circle4.GetCenter()
    drawing.circle4.SetCenter(x, 4.0, z)
    drawing.circle4.Radius = 2.0
    drawing.circle4.Radius = 2.0
    drawing.circle4.Radius = 2.0


def properties_4(drawing):
    """PROPERTIES"""
    # AcDbArc object modified
    _, y, z = drawing.circlearc6.GetCenter()
    drawing.circlearc6.SetCenter(7.0, y, z)
    x, _, z = drawing.circlearc6.GetCenter()
    drawing.circlearc6.SetCenter(x, 4.0, z)
    drawing.circlearc6.EndAngle = 3.0
    drawing.circlearc6.StartAngle = 0.5
    # AcDbPoint object modified
    x, y, _ = drawing.point7.GetPosition()
    drawing.point7.SetPosition(x, y, 0.0)
    # AcDbRay object modified
    _, y, z = drawing.ray8.GetBasePoint()
    drawing.ray8.SetBasePoint(1.0, y, z)
    x, _, z = drawing.ray8.GetThroughPoint()
    drawing.ray8.SetThroughPoint(x, 2.0, z)
    # AcDbXline object modified
    x, _, z = drawing.infiniteline9.GetFirstPoint()
    drawing.infiniteline9.SetFirstPoint(x, 1.0, z)
    _, y, z = drawing.infiniteline9.GetSecondPoint()
    drawing.infiniteline9.SetSecondPoint(2.0, y, z)
    # AcDbEllipse object modified
    drawing.ellipsearc10.EndAngle = 3.0
    drawing.ellipsearc10.MajorRadius = 3.5


def transparency(drawing):
    """TRANSPARENCY"""
    # AcDbCircle object modified
    transparency = drawing.circle5.Transparency
    transparency.SetByLayer()
    drawing.circle5.Transparency = transparency
    # AcDbCircle object modified
    transparency = drawing.circle4.Transparency
    transparency.SetByBlock()
    drawing.circle4.Transparency = transparency


def erase(drawing):
    """ERASE"""
    # AcDbCircle object modified
    drawing.circle5.Erased = True


def properties_5(drawing):
    """PROPERTIES"""
    # AcDbLine object modified
    drawing.line11, _ = drawing.doc.GetObjectByHandle("A0")
    drawing.line11.Layer = "Walls"


def step(drawing):
    """Outside of commands"""
    # AcDbLine object modified
    drawing.line1.LineScale = 2.5
    drawing.line1.Thickness = 0.5
    x, _, z = drawing.line2.GetSecondPoint()
    drawing.line2.SetSecondPoint(x, 9.0, z)


def main():
    try:
        drawing = connect()
    except RuntimeError as error:
        return "recording: " + str(error)
    drawing.app.AbortRunningCommand()
    line(drawing)
    circle(drawing)
    pline(drawing)
    point(drawing)
    properties(drawing)
    properties_2(drawing)
    stretch(drawing)
    properties_3(drawing)
    properties_4(drawing)
    transparency(drawing)
    erase(drawing)
    properties_5(drawing)
    step(drawing)
