def answered(results, count=1):
    """The answer at a prompt: the last of its results. Without one the macro ends."""
    if not isinstance(results, tuple):
        results = (results,)
    missing = results[-1] is None
    if missing or (len(results) > count and not results[0]):
        raise SystemExit("The prompt was cancelled, so the macro ends here.")
    return results[-count:] if count > 1 else results[-1]


def line(drawing, corner=(4.0, 3.0, 0.0), *, ask=False):
    """LINE"""
    if ask:
        message = drawing.app.GetCommandMessage()
        corner = answered(message.PromptForPoint("Specify corner: "), 3)
    drawing.line1 = drawing.sketch.InsertLine(1.5, 2.0, 0.0, *corner)
    drawing.line1.Color = drawing.app.GetColorByIndex(256)
    drawing.line1.Layer = "0"
    drawing.line1.LineStyle = "Continuous"
    drawing.line1.LineScale = 1.0
    drawing.line1.LineWeight = constants.iwLnWt_ByLayer
    drawing.line1.Thickness = 0.0
    return drawing.line1


def rotate(drawing):
    """ROTATE"""
    message = drawing.app.GetCommandMessage()
    message.PromptForSelection(False, "Select Objects: ", "")


def circle(drawing):
    """CIRCLE"""
    drawing.circle2 = drawing.sketch.InsertCircle(1.0, 2.0, 0.0, 3.0)
    drawing.circle2.Color = drawing.app.GetColorByIndex(256)
    drawing.circle2.Layer = "0"
    drawing.circle2.LineStyle = "Continuous"
    drawing.circle2.LineScale = 1.0
    drawing.circle2.LineWeight = constants.iwLnWt_ByLayer
    drawing.circle2.Thickness = 0.0
    return drawing.circle2


def step(drawing):
    """Outside of commands"""
    drawing.doc.SetCommandOptionBool(constants.iwCommandOptionBool_EnblBnds, True)
    drawing.doc.SetCommandOptionDouble(constants.iwCommandOptionDouble_SetFltRad, 2.5)
    drawing.doc.SetCommandOptionInt8(constants.iwCommandOptionInt8_SetDmTolVJst, 1)
    drawing.doc.SetCommandOptionInt16(constants.iwCommandOptionInt16_SetCVPORT, 2)
    drawing.doc.SetCommandOptionInt16(constants.iwCommandOptionInt16_SetActLClr, 5)
    drawing.doc.SetCommandOptionInt16(constants.iwCommandOptionInt16_SetActLClr, 0)
    drawing.doc.SetCommandOptionPoint2D(
        constants.iwCommandOptionPoint2d_SetLIMMAX, 420.0, 297.0
    )
    drawing.doc.SetCommandOptionPoint3D(
        constants.iwCommandOptionPoint3d_SetINSBASE, 1.0, 2.0, 3.5
    )
    drawing.doc.SetCommandOptionString(
        constants.iwCommandOptionString_SetCLAYER, "Walls"
    )
    options = drawing.app.GetApplicationOptions()
    options.SetApplicationOptionBool(
        constants.iwApplicationOptionBool_EnblEntSelPreSel, False
    )
    options.SetApplicationOptionDouble(
        constants.iwApplicationOptionDouble_SetPOLARANG, 0.5
    )
    options.SetApplicationOptionInt16(
        constants.iwApplicationOptionInt16_EnblEdgeExtd, 1
    )
    options.SetApplicationOptionInt32(constants.iwApplicationOptionInt32_SetSvTm, 15)
    options.SetApplicationOptionString(
        constants.iwApplicationOptionString_SetFONTALT, "simplex.shx"
    )
    drawing.doc.SetCommandOptionInt16(constants.iwCommandOptionInt16_EnblChmfAng, 1)


def texts(*values):
    """An array of texts."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_BSTR, values)


def options(drawing):
    """OPTIONS"""
    files = drawing.app.GetInterfaceFiles()
    files.MenuFilesPath = "C:\\menus\\my.cuix"
    files = drawing.app.GetSystemFiles()
    files.FontsPaths = texts("C:\\fonts", "D:\\more")
    files = drawing.app.GetDrawingSupportFiles()
    files.DrawingTemplateFilesPath = "T:\\tpl"


def main():
    try:
        drawing = connect()
    except RuntimeError as error:
        return "recording: " + str(error)
    drawing.app.AbortRunningCommand()
    line(drawing, ask=True)
    rotate(drawing)
    circle(drawing)
    step(drawing)
    options(drawing)
