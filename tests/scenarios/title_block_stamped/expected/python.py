def layer(drawing):
    """-LAYER"""
    layers = drawing.doc.GetLayerManager()
    drawing.layer1, _ = layers.CreateLayer("Frame")
    drawing.layer1.Activate()
    return drawing.layer1


def line(drawing):
    """LINE"""
    drawing.line2 = drawing.sketch.InsertLine(0.0, 0.0, 0.0, 180.0, 0.0, 0.0)
    drawing.line3 = drawing.sketch.InsertLine(0.0, 55.0, 0.0, 180.0, 55.0, 0.0)


def circle(drawing):
    """CIRCLE"""
    drawing.circle4 = drawing.sketch.InsertCircle(160.0, 40.0, 0.0, 6.0)
    return drawing.circle4


def attdef(drawing):
    """-ATTDEF"""
    drawing.attributedefinition5 = drawing.sketch.InsertAttributeDefinition(
        "",
        "DRAWN",
        "Drawn by?",
        100.0,
        40.0,
        0.0,
        "",
        constants.iwTextJustification_Left,
        3.5,
        0.0,
        False,
        False,
        False,
        False,
        False,
        False,
    )
    return drawing.attributedefinition5


def reals(*values):
    """An array of numbers."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_R8, values)


def leader(drawing):
    """LEADER"""
    drawing.leader6 = drawing.sketch.InsertLeader(
        reals(1.0, 1.0, 0.0, 5.0, 5.0, 0.0), 12.5, "Scale"
    )
    drawing.note7 = drawing.leader6.GetNoteAnnotation()
    drawing.note7.BackgroundMask = False
    drawing.note7.UseDrawingBackgroundColor = False
    drawing.note7.BackgroundBorderOffsetFactor = 1.5
    drawing.note7.LineSpaceDistance = 0.0
    drawing.note7.LineSpaceFactor = 1.0
    drawing.note7.Rotation = 0.0
    drawing.note7.TextHeight = 0.0
    drawing.note7.Width = 0.0
    drawing.note7.Justify = constants.iwNoteJustification_TopLeft
    return drawing.leader6


def integers(*values):
    """An array of integers, as the interface takes it."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_I4, values)


def objects(*values):
    """An array of the interface's objects."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_DISPATCH, values)


def block(drawing):
    """-BLOCK"""
    drawing.note10 = drawing.leader6.GetNoteAnnotation()
    drawing.leader11, _ = drawing.doc.GetObjectByHandle("3B")
    drawing.note12 = drawing.leader11.GetNoteAnnotation()
    measured_arc = drawing.sketch.InsertArc(
        170.0, 10.0, 0.0, 8.48528137423857, 0.25, 1.25
    )
    arcLengthDimension_0 = drawing.sketch.InsertArcLengthDimension(
        measured_arc, reals(176.0, 16.0, 0.0), "\\A1;<>"
    )
    measured_arc.Erased = True
    drawing.hatch8 = drawing.sketch.InsertHatchByBoundary(
        integers(3, 4),
        reals(
            *(0.0, 0.0),
            *(9.0, 0.0),
            *(9.0, 4.0),
            *(2.0, 1.0),
            *(3.0, 1.0),
            *(3.0, 2.0),
            *(2.0, 2.0),
            *(0.0, 0.0),
        ),
        "ANSI31",
        2.5,
        0.75,
    )
    arc_0 = drawing.sketch.InsertArc(170.0, 10.0, 0.0, 7.5, 0.0, 1.5)
    types = integers(
        constants.iwLineType,
        constants.iwLineType,
        constants.iwCircleType,
        constants.iwSimpleNoteType,
        constants.iwNoteType,
        constants.iwNoteType,
        constants.iwArcLengthDimensionType,
        constants.iwHatchType,
        constants.iwCircleArcType,
    )
    entities = objects(
        drawing.line2,
        drawing.line3,
        drawing.circle4,
        drawing.attributedefinition5,
        drawing.note10,
        drawing.note12,
        arcLengthDimension_0,
        drawing.hatch8,
        arc_0,
    )
    drawing.blockdefinition9 = drawing.doc.CreateBlockDefinition(
        "TITLE",
        "A3 frame\\nmetric",
        180.0,
        0.0,
        0.0,
        types,
        entities,
        constants.iwBlockDefinitionEntities_RemoveFromDrawing,
    )


def line_2(drawing):
    """LINE"""
    drawing.line13 = drawing.sketch.InsertLine(10.0, 95.0, 0.0, 20.0, 95.0, 0.0)
    return drawing.line13


def insert(drawing):
    """-INSERT"""
    drawing.blockinstance14 = drawing.sketch.InsertBlock2(
        "TITLE", 400.0, 10.0, 0.0, 1.25, 0.75, 1.0, 0.25
    )
    for attribute in drawing.blockinstance14.GetAttributeInstances():
        if attribute.Name == "DRAWN":
            attribute.Value = "M. Weber"
    for attribute in drawing.blockinstance14.GetAttributeInstances():
        if attribute.Name == "DATE":
            attribute.Value = "2024-05-17"
    return drawing.blockinstance14


def revcloud(drawing):
    """REVCLOUD"""
    arc_1 = drawing.sketch.InsertArc(10.0, 100.0, 0.0, 5.0, 0.0, 2.0)
    arc_2 = drawing.sketch.InsertArc(20.0, 100.0, 0.0, 5.0, 1.0, 3.0)
    types = integers(
        constants.iwLineType, constants.iwCircleArcType, constants.iwCircleArcType
    )
    entities = objects(drawing.line13, arc_1, arc_2)
    definition = drawing.doc.CreateBlockDefinition(
        "*U",
        "Rev A\nchecked",
        10.0,
        100.0,
        0.0,
        types,
        entities,
        constants.iwBlockDefinitionEntities_RemoveFromDrawing,
    )
    name = definition.GetName()
    drawing.blockinstance15 = drawing.sketch.InsertBlock2(
        name, 10.0, 100.0, 0.0, 1.0, 1.0, 1.0, 0.0
    )
    custom_data = drawing.blockinstance15.GetCustomData("PE_CLOUD")
    custom_data.Empty()
    count = custom_data.GetDataCount()
    custom_data.InsertStringData(count, 1000, "REV A")
    count = custom_data.GetDataCount()
    custom_data.InsertDoubleData(count, 1041, 2.5)
    count = custom_data.GetDataCount()
    custom_data.InsertPointData(count, 1011, 10.0, 100.0, 0.5)
    drawing.blockinstance15.SetCustomData("PE_CLOUD", custom_data)
    return drawing.blockinstance15


def attach(drawing):
    """ATTACH"""
    drawing.blockinstance16 = drawing.sketch.InsertExternalReference(
        "../refs/site.dwg", 20.0, 30.0, 0.0, 0.5, 0.25
    )
    return drawing.blockinstance16


def attachimage(drawing):
    """ATTACHIMAGE"""
    drawing.referenceimage17 = drawing.sketch.InsertPicture(
        "C:\\logos\\weber.png", 300.0, 20.0, 0.0, 0.375, 1.5
    )
    return drawing.referenceimage17


def shape(drawing):
    """SHAPE"""
    drawing.shape18 = drawing.sketch.InsertShape("ARROW", 330.0, 25.0, 0.0, 4.5, 0.875)
    return drawing.shape18


def group(drawing):
    """-GROUP"""
    drawing.line19 = drawing.sketch.InsertLine(300.0, 10.0, 0.0, 390.0, 10.0, 0.0)
    drawing.group20 = drawing.doc.CreateGroup(
        "LOGO", True, "Logo and line", objects(drawing.referenceimage17, drawing.line19)
    )


def group_2(drawing):
    """-GROUP"""
    drawing.group21 = drawing.doc.CreateGroup(
        "*A1", False, "", objects(drawing.shape18)
    )
    return drawing.group21


def clipview(drawing):
    """CLIPVIEW"""
    drawing.viewport22 = None
    sheet = drawing.doc.GetSheet("A3")
    if sheet is not None:
        clip = drawing.sketch.InsertCircle(210.0, 148.5, 0.0, 60.0)
        drawing.viewport22 = sheet.InsertViewportByEntity(clip)
    return drawing.viewport22


def clipview_2(drawing):
    """CLIPVIEW"""
    drawing.viewport23 = None
    sheet = drawing.doc.GetSheet("A3")
    if sheet is not None:
        drawing.viewport23 = sheet.InsertViewportByEntity(drawing.circle4)
    return drawing.viewport23


def clipview_3(drawing):
    """CLIPVIEW"""
    drawing.viewport24 = None
    sheet = drawing.doc.GetSheet("A3")
    if sheet is not None:
        clip = drawing.sketch.InsertPolyline2D(
            reals(250.0, 150.0, 330.0, 150.0, 330.0, 220.0), True
        )
        drawing.viewport24 = sheet.InsertViewportByEntity(clip)
    return drawing.viewport24


def clipview_4(drawing):
    """CLIPVIEW"""
    drawing.viewport25 = None
    sheet = drawing.doc.GetSheet("A3")
    if sheet is not None:
        clip = drawing.sketch.InsertPolyline3D(
            reals(30.0, 200.0, 0.0, 80.0, 200.0, 0.0, 80.0, 240.0, 1.0), False
        )
        drawing.viewport25 = sheet.InsertViewportByEntity(clip)
    return drawing.viewport25


def clipview_5(drawing):
    """CLIPVIEW"""
    drawing.viewport26 = None
    sheet = drawing.doc.GetSheet("A3")
    if sheet is not None:
        clip = drawing.sketch.InsertEllipseDistanceToOtherAxis(
            145.0, 220.0, 95.0, 220.0, 13.0
        )
        drawing.viewport26 = sheet.InsertViewportByEntity(clip)
    return drawing.viewport26


def clipview_6(drawing):
    """CLIPVIEW"""
    drawing.viewport27 = None
    sheet = drawing.doc.GetSheet("A3")
    if sheet is not None:
        clip = drawing.sketch.InsertEllipseArcDistanceToOtherAxis(
            320.0, 80.0, 320.0, 40.0, 10.0, 0.5, 4.0
        )
        drawing.viewport27 = sheet.InsertViewportByEntity(clip)
    return drawing.viewport27


def main():
    try:
        drawing = connect()
    except RuntimeError as error:
        return "recording: " + str(error)
    drawing.app.AbortRunningCommand()
    layer(drawing)
    line(drawing)
    circle(drawing)
    attdef(drawing)
    leader(drawing)
    block(drawing)
    line_2(drawing)
    insert(drawing)
    revcloud(drawing)
    attach(drawing)
    attachimage(drawing)
    shape(drawing)
    group(drawing)
    group_2(drawing)
    clipview(drawing)
    clipview_2(drawing)
    clipview_3(drawing)
    clipview_4(drawing)
    clipview_5(drawing)
    clipview_6(drawing)
