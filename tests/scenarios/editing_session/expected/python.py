def line(drawing):
    """LINE"""
    drawing.line1 = drawing.sketch.InsertLine(0.0, 0.0, 0.0, 10.0, 0.0, 0.0)
    drawing.line1.Color = drawing.app.GetColorByIndex(256)
    drawing.line1.Layer = "0"
    drawing.line1.LineStyle = "Continuous"
    drawing.line1.LineScale = 1.0
    drawing.line1.LineWeight = constants.iwLnWt_ByLayer
    drawing.line1.Thickness = 0.0
    drawing.line2 = drawing.sketch.InsertLine(10.0, 0.0, 0.0, 10.0, 5.0, 0.0)
    drawing.line2.Color = drawing.app.GetColorByIndex(256)
    drawing.line2.Layer = "0"
    drawing.line2.LineStyle = "Continuous"
    drawing.line2.LineScale = 1.0
    drawing.line2.LineWeight = constants.iwLnWt_ByLayer
    drawing.line2.Thickness = 0.0
    drawing.circle3 = drawing.sketch.InsertCircle(5.0, 2.5, 0.0, 1.0)
    drawing.circle3.Color = drawing.app.GetColorByIndex(256)
    drawing.circle3.Layer = "0"
    drawing.circle3.LineStyle = "Continuous"
    drawing.circle3.LineScale = 1.0
    drawing.circle3.LineWeight = constants.iwLnWt_ByLayer
    drawing.circle3.Thickness = 0.0


def integers(*values):
    """An array of integers, as the interface takes it."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_I4, values)


def objects(*values):
    """An array of the interface's objects."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_DISPATCH, values)


def mirror(drawing):
    """MIRROR"""
    drawing.sketch.MirrorEntities(
        0.0,
        5.0,
        0.0,
        10.0,
        5.0,
        0.0,
        False,
        integers(constants.iwLineType, constants.iwLineType),
        objects(drawing.line1, drawing.line2),
    )
    drawing.line4 = drawing.sketch.InsertLine(0.0, 10.0, 0.0, 10.0, 10.0, 0.0)
    drawing.line4.Color = drawing.app.GetColorByIndex(256)
    drawing.line4.Layer = "0"
    drawing.line4.LineStyle = "Continuous"
    drawing.line4.LineScale = 1.0
    drawing.line4.LineWeight = constants.iwLnWt_ByLayer
    drawing.line4.Thickness = 0.0
    drawing.line5 = drawing.sketch.InsertLine(10.0, 10.0, 0.0, 10.0, 5.0, 0.0)
    drawing.line5.Color = drawing.app.GetColorByIndex(256)
    drawing.line5.Layer = "0"
    drawing.line5.LineStyle = "Continuous"
    drawing.line5.LineScale = 1.0
    drawing.line5.LineWeight = constants.iwLnWt_ByLayer
    drawing.line5.Thickness = 0.0


def reals(*values):
    """An array of numbers."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_R8, values)


def stretch(drawing):
    """STRETCH"""
    drawing.sketch.StretchEntities(
        2.5,
        0.0,
        0.0,
        objects(drawing.line1),
        reals(9.0, -1.0, 0.0),
        reals(11.0, 1.0, 0.0),
    )


def copy(drawing):
    """COPY"""
    drawing.line7, _ = drawing.doc.GetObjectByHandle("A0")
    types = integers(constants.iwCircleType, constants.iwLineType)
    entities = objects(drawing.circle3, drawing.line7)
    drawing.sketch.CopyEntities(1.0, 0.0, 0.0, types, entities)
    drawing.sketch.CopyEntities(2.0, 0.0, 0.0, types, entities)
    drawing.sketch.CopyEntities(3.0, 0.0, 0.0, types, entities)
    drawing.circle6 = drawing.sketch.InsertCircle(6.0, 2.5, 0.0, 1.0)
    drawing.circle6.Color = drawing.app.GetColorByIndex(256)
    drawing.circle6.Layer = "0"
    drawing.circle6.LineStyle = "Continuous"
    drawing.circle6.LineScale = 1.0
    drawing.circle6.LineWeight = constants.iwLnWt_ByLayer
    drawing.circle6.Thickness = 0.0
    return drawing.circle6


def move(drawing):
    """MOVE"""
    drawing.sketch.MoveEntities(0.0, 0.125, 0.0, objects(drawing.line2, drawing.line4))


def rotate(drawing):
    """ROTATE"""
    drawing.sketch.RotateEntities(
        1.0,
        2.0,
        1.5707963267948966,
        integers(constants.iwCircleType),
        objects(drawing.circle3),
    )


def scale(drawing):
    """SCALE"""
    drawing.sketch.ScaleEntities(
        1.0,
        2.0,
        2.0,
        3.0,
        integers(constants.iwLineType, constants.iwCircleType),
        objects(drawing.line1, drawing.circle3),
    )


def select(drawing):
    """SELECT"""
    selection = drawing.doc.GetSelectionManager()
    utility = drawing.app.GetMathUtility()
    first = utility.CreatePoint(1.0, 2.0, 0.0)
    selection.SelectByPoint(first)
    first = utility.CreatePoint(0.0, 0.0, 0.0)
    second = utility.CreatePoint(4.0, 3.0, 0.0)
    selection.SelectByWindow(first, second, False)
    selection.SelectByPolygon(
        reals(
            *(0.0, 0.0, 0.0),
            *(4.0, 0.0, 0.0),
            *(4.0, 3.0, 0.0),
            *(0.0, 3.0, 0.0),
            *(0.0, 0.0, 0.0),
        ),
        True,
    )
    selection.SelectByCrossline(reals(0.0, 0.0, 0.0, 1.0, 1.0, 0.0))
    first = utility.CreatePoint(1.0, 2.5, 0.0)
    second = utility.CreatePoint(5.0, 4.0, 0.0)
    selection.SelectByWindow(first, second, True)


def filter_(drawing):
    """FILTER"""
    selection = drawing.doc.GetSelectionManager()
    selection_filter = selection.GetSelectionFilter()
    selection_filter.Clear()
    selection_filter.AddEntityType(constants.iwLineType)
    selection_filter.AddEntityType(constants.iwCircleType)
    selection_filter.Active = True
    utility = drawing.app.GetMathUtility()
    first = utility.CreatePoint(0.0, 0.0, 0.0)
    second = utility.CreatePoint(1000000.0, 1.0, 0.0)
    selection.SelectByWindow(first, second, False)
    selection_filter.Active = False


def join(drawing):
    """JOIN"""
    drawing.line8, _ = drawing.doc.GetObjectByHandle("A0")
    drawing.line1.Join(drawing.line8)


def erase(drawing):
    """ERASE"""
    drawing.line9, _ = drawing.doc.GetObjectByHandle("A0")
    drawing.line4.Erased = True
    drawing.line9.Erased = True


def erase_2(drawing):
    """ERASE"""
    drawing.leader10, _ = drawing.doc.GetObjectByHandle("62")
    drawing.note11 = drawing.leader10.GetNoteAnnotation()
    drawing.note11.Erased = True


def group(drawing):
    """GROUP"""
    drawing.group12 = drawing.doc.CreateGroup("", False, "", objects())
    if not drawing.group12.HasEntity(drawing.line1):
        drawing.group12.AddEntities(objects(drawing.line1))
    if not drawing.group12.HasEntity(drawing.line2):
        drawing.group12.AddEntities(objects(drawing.line2))
    return drawing.group12


def group_2(drawing):
    """GROUP"""
    drawing.group12.RemoveEntities(objects(drawing.line2))


def explode(drawing):
    """EXPLODE"""
    drawing.circle3.Explode()
    drawing.line13, _ = drawing.doc.GetObjectByHandle("A0")
    drawing.line13.Explode()


def region(drawing):
    """REGION"""
    drawing.line15, _ = drawing.doc.GetObjectByHandle("A0")
    regions = drawing.sketch.InsertRegion(
        objects(drawing.line1, drawing.line2, drawing.line15)
    )
    drawing.region14 = regions[0]
    return drawing.region14


def pastelink(drawing):
    """PASTELINK"""
    drawing.embeddedobject16 = drawing.sketch.InsertEmbeddedObjectFromFile(
        "C:\\data\\parts list.xls", True, False
    )
    return drawing.embeddedobject16


def attedit(drawing):
    """ATTEDIT"""
    drawing.blockinstance17 = drawing.sketch.InsertBlock2(
        "", 0.0, 0.0, 0.0, 1.0, 1.0, 1.0, 0.0
    )
    for attribute in drawing.blockinstance17.GetAttributeInstances():
        if attribute.Name == "SIZE":
            attribute.Value = "M8"
    return drawing.blockinstance17


def vports(drawing):
    """-VPORTS"""
    drawing.viewport19 = None
    sheet = drawing.doc.GetSheet("Layout1")
    if sheet is not None:
        drawing.viewport19 = sheet.InsertViewport(
            reals(0.0, 0.0, 0.0, 4.0, 0.0, 0.0, 4.0, 3.0, 0.0)
        )


def mspace(drawing):
    """MSPACE"""
    drawing.viewport19.Activate()


def options(drawing):
    """OPTIONS"""
    options = drawing.app.GetApplicationOptions()
    options.SetElementColor(3, drawing.app.GetColorByIndex(5))
    options.SetElementColor(4, drawing.app.GetRGBColor(1, 2, 3))


def options_2(drawing):
    """OPTIONS"""
    drawing.doc.SetCommandOptionInt16(constants.iwCommandOptionInt16_EnblChmfAng, 1)
    options = drawing.app.GetApplicationOptions()
    options.SetApplicationOptionInt16(constants.iwApplicationOptionInt16_EnblChmfAng, 1)
    drawing.doc.SetCommandOptionString(
        constants.iwCommandOptionString_SetCLAYER, "Walls"
    )


def plotstyle(drawing):
    """PLOTSTYLE"""
    drawing.model.PrintStyle = "monochrome.ctb"


def wblock(drawing):
    """WBLOCK"""
    drawing.line20 = drawing.sketch.InsertLine(0.0, 0.0, 0.0, 1.0, 1.0, 0.0)
    drawing.line20.Color = drawing.app.GetColorByIndex(256)
    drawing.line20.Layer = "0"
    drawing.line20.LineStyle = "Continuous"
    drawing.line20.LineScale = 1.0
    drawing.line20.LineWeight = constants.iwLnWt_ByLayer
    drawing.line20.Thickness = 0.0
    return drawing.line20


def plotstyle_2(drawing):
    """PLOTSTYLE"""
    sheet = drawing.doc.GetSheet("Layout1")
    sheet.PrintStyle = "monochrome.ctb"


def main():
    try:
        drawing = connect()
    except RuntimeError as error:
        return "recording: " + str(error)
    drawing.app.AbortRunningCommand()
    line(drawing)
    mirror(drawing)
    stretch(drawing)
    copy(drawing)
    move(drawing)
    rotate(drawing)
    scale(drawing)
    select(drawing)
    filter_(drawing)
    join(drawing)
    erase(drawing)
    erase_2(drawing)
    group(drawing)
    group_2(drawing)
    explode(drawing)
    region(drawing)
    pastelink(drawing)
    attedit(drawing)
    vports(drawing)
    mspace(drawing)
    options(drawing)
    options_2(drawing)
    plotstyle(drawing)
    wblock(drawing)
    plotstyle_2(drawing)
