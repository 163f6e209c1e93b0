def line(drawing):
    """LINE"""
    drawing.line1 = drawing.sketch.InsertLine(0.0, 0.0, 0.0, 2.8, 0.0, 0.0)
    drawing.line1.Color = drawing.app.GetColorByIndex(256)
    drawing.line1.LineScale = 1.0
    drawing.line1.LineWeight = constants.iwLnWt_ByLayer
    drawing.line1.Thickness = 0.0
    drawing.line2 = drawing.sketch.InsertLine(0.0, 0.28, 0.0, 2.8, 0.28, 0.0)
    drawing.line2.Color = drawing.app.GetColorByIndex(256)
    drawing.line2.LineScale = 1.0
    drawing.line2.LineWeight = constants.iwLnWt_ByLayer
    drawing.line2.Thickness = 0.0


def shape(drawing):
    """-SHAPE"""
    shapes = drawing.doc.GetShapeManager()
    shapes.Load("stairs.shx")
    drawing.line4 = drawing.sketch.InsertLine(1.4, 0.0, 0.0, 1.4, 0.28, 0.0)
    drawing.line4.Color = drawing.app.GetColorByIndex(256)
    drawing.line4.LineScale = 1.0
    drawing.line4.LineWeight = constants.iwLnWt_ByLayer
    drawing.line4.Thickness = 0.0


def shape_2(drawing):
    """-SHAPE"""
    drawing.line6 = drawing.sketch.InsertLine(1.4, 0.28, 0.0, 1.4, 0.56, 0.0)
    drawing.line6.Color = drawing.app.GetColorByIndex(256)
    drawing.line6.LineScale = 1.0
    drawing.line6.LineWeight = constants.iwLnWt_ByLayer
    drawing.line6.Thickness = 0.0
    return drawing.line6


def texts(*values):
    """An array of texts."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_BSTR, values)


def leader(drawing):
    """LEADER"""
    drawing.note7 = drawing.sketch.InsertNote(0.0, 0.0, 0.0, 0.0, 0.0, 0.0, texts(""))
    drawing.line8 = drawing.sketch.InsertLine(3.0, 0.0, 0.0, 4.0, 1.0, 0.0)
    drawing.line8.Color = drawing.app.GetColorByIndex(256)
    drawing.line8.LineScale = 1.0
    drawing.line8.LineWeight = constants.iwLnWt_ByLayer
    drawing.line8.Thickness = 0.0


def specialpaste(drawing):
    """SPECIALPASTE"""
    drawing.line9 = drawing.sketch.InsertLine(5.0, 0.0, 0.0, 6.0, 0.0, 0.0)
    drawing.line9.Color = drawing.app.GetColorByIndex(256)
    drawing.line9.LineScale = 1.0
    drawing.line9.LineWeight = constants.iwLnWt_ByLayer
    drawing.line9.Thickness = 0.0
    return drawing.line9


def script(drawing):
    """SCRIPT"""
    drawing.line11 = drawing.sketch.InsertLine(7.0, 0.0, 0.0, 8.0, 0.0, 0.0)
    drawing.line11.Color = drawing.app.GetColorByIndex(256)
    drawing.line11.LineScale = 1.0
    drawing.line11.LineWeight = constants.iwLnWt_ByLayer
    drawing.line11.Thickness = 0.0
    return drawing.line11


def step(drawing):
    """Outside of commands"""
    drawing.line1.Thickness = 2.0
    drawing.doc.SetCommandOptionInt16(constants.iwCommandOptionInt16_SetCVPORT, 2)


def main():
    try:
        drawing = connect()
    except RuntimeError as error:
        return "recording: " + str(error)
    drawing.app.AbortRunningCommand()
    line(drawing)
    shape(drawing)
    shape_2(drawing)
    leader(drawing)
    specialpaste(drawing)
    script(drawing)
    step(drawing)
