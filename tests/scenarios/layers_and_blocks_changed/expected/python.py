def line(drawing):
    """LINE"""
    drawing.line1 = drawing.sketch.InsertLine(0.0, 0.0, 0.0, 1.0, 0.0, 0.0)
    drawing.circle2 = drawing.sketch.InsertCircle(0.5, 0.5, 0.0, 0.25)


def integers(*values):
    """An array of integers, as the interface takes it."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_I4, values)


def objects(*values):
    """An array of the interface's objects."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_DISPATCH, values)


def block(drawing):
    """BLOCK"""
    types = integers(constants.iwLineType)
    entities = objects(drawing.line1)
    drawing.blockdefinition3 = drawing.doc.CreateBlockDefinition(
        "Chair",
        "Swivel",
        1.0,
        2.0,
        0.0,
        types,
        entities,
        constants.iwBlockDefinitionEntities_RemoveFromDrawing,
    )
    return drawing.blockdefinition3


def blockedit(drawing):
    """BLOCKEDIT"""
    # AcDbBlockTableRecord object modified
    types = integers(constants.iwLineType, constants.iwCircleType)
    entities = objects(drawing.line1, drawing.circle2)
    name = drawing.blockdefinition3.GetName()
    drawing.blockdefinition3 = drawing.doc.CreateBlockDefinition(
        name,
        "Swivel with a seat",
        1.0,
        2.0,
        0.0,
        types,
        entities,
        constants.iwBlockDefinitionEntities_RemoveFromDrawing,
    )


def layer(drawing):
    """LAYER"""
    layers = drawing.doc.GetLayerManager()
    drawing.layer4, _ = layers.CreateLayer("Furniture")
    # AcDbLayerTableRecord object modified
    drawing.layer5 = layers.GetLayer("Walls")
    drawing.layer5.Description = "Load bearing"
    drawing.layer5.Color = drawing.app.GetColorByIndex(3)
    drawing.layer5.LineStyle = "DASHED"
    drawing.layer5.LineWeight = constants.iwLnWt_035
    drawing.layer5.Frozen = False
    drawing.layer5.Locked = True
    drawing.layer5.Printable = True
    drawing.layer5.Hidden = False
    drawing.layer5.Shown = False
    drawing.layer5.Rename("Outer walls")
    drawing.layer5.Activate()
    drawing.layer5.PrintStyle = "Bold"
    drawing.layer5.Transparency = 40
    drawing.layer5.FrozenInNewViewport = True
    return drawing.layer4


def layer_2(drawing):
    """LAYER"""
    # AcDbLayerTableRecord object modified
    viewport = drawing.sheet.GetActiveViewport()
    drawing.layer4.SetFrozenInViewport(False, viewport)
    viewport = drawing.sheet.GetActiveViewport()
    drawing.layer4.SetColorInViewport(drawing.app.GetColorByIndex(5), viewport)
    viewport = drawing.sheet.GetActiveViewport()
    drawing.layer4.SetLineStyleInViewport("DASHED", viewport)
    viewport = drawing.sheet.GetActiveViewport()
    drawing.layer4.SetLineWeigthInViewport(constants.iwLnWt_025, viewport)
    viewport = drawing.sheet.GetActiveViewport()
    drawing.layer4.SetTranparencyInViewport(60, viewport)
    viewport = drawing.sheet.GetActiveViewport()
    drawing.layer4.SetPrintStyleInViewport("Grey", viewport)
    # AcDbLayerTableRecord object modified
    viewport = drawing.sheet.GetActiveViewport()
    drawing.layer4.SetColorInViewport(drawing.app.GetRGBColor(200, 100, 50), viewport)


def group(drawing):
    """GROUP"""
    drawing.group6 = drawing.doc.CreateGroup(
        "Seat", True, "Chair and seat", objects(drawing.circle2)
    )
    # AcDbGroup object modified
    drawing.group6.Rename("Seats")
    drawing.group6.Description = "All seats"
    drawing.group6.Selectable = False
    return drawing.group6


def pagesetup(drawing):
    """PAGESETUP"""
    # AcDbLayout object modified
    sheet = drawing.doc.GetSheet("Ground floor")
    sheet.PrintStyleTable = "mono.ctb"


def main():
    try:
        drawing = connect()
    except RuntimeError as error:
        return "recording: " + str(error)
    drawing.app.AbortRunningCommand()
    line(drawing)
    block(drawing)
    blockedit(drawing)
    layer(drawing)
    layer_2(drawing)
    group(drawing)
    pagesetup(drawing)
