def style(drawing):
    """STYLE"""
    styles = drawing.doc.GetTextStyleManager()
    drawing.textstyle1 = styles.GetTextStyle("Titles")
    if drawing.textstyle1 is None:
        drawing.textstyle1, _ = styles.CreateTextStyle("Titles")
    drawing.textstyle1.Font = "C:\\fonts\\arial.ttf"
    return drawing.textstyle1


def load(drawing):
    """LOAD"""
    shapes = drawing.doc.GetShapeManager()
    shapes.Load("C:\\shapes\\stairs.shx")


def attdef(drawing):
    """-ATTDEF"""
    drawing.attributedefinition3 = drawing.sketch.InsertAttributeDefinition(
        "M8",
        "SIZE",
        "Size of the bolt?",
        1.0,
        2.0,
        0.0,
        "Standard",
        constants.iwTextJustification_Left,
        3.5,
        0.0,
        False,
        True,
        False,
        True,
        True,
        False,
    )
    drawing.attributedefinition3.Color = drawing.app.GetColorByIndex(256)
    drawing.attributedefinition3.Layer = "0"
    drawing.attributedefinition3.LineStyle = "Continuous"
    drawing.attributedefinition3.LineScale = 1.0
    drawing.attributedefinition3.LineWeight = constants.iwLnWt_ByLayer
    drawing.attributedefinition3.Thickness = 0.0
    return drawing.attributedefinition3


def attdef_2(drawing):
    """-ATTDEF"""
    drawing.attributedefinition4 = drawing.sketch.InsertAttributeDefinition(
        "",
        "NO",
        "",
        4.0,
        5.0,
        0.0,
        "Titles",
        constants.iwTextJustification_MiddleCenter,
        0.2,
        0.25,
        False,
        False,
        False,
        False,
        False,
        False,
    )
    drawing.attributedefinition4.Color = drawing.app.GetColorByIndex(2)
    drawing.attributedefinition4.Layer = "0"
    drawing.attributedefinition4.LineStyle = "Continuous"
    drawing.attributedefinition4.LineScale = 1.0
    drawing.attributedefinition4.LineWeight = constants.iwLnWt_ByLayer
    drawing.attributedefinition4.Thickness = 0.0
    return drawing.attributedefinition4


def text(drawing):
    """TEXT"""
    drawing.simplenote5 = drawing.sketch.InsertSimpleNote(
        1.0, 1.0, 0.0, 5.0, 0.1, "Section A-A"
    )
    drawing.simplenote5.Justify = constants.iwTextJustification_MiddleCenter
    drawing.simplenote5.SetAlignmentPoint(2.0, 2.0, 0.0)
    drawing.simplenote5.SetPosition(1.0, 1.0, 0.0)
    drawing.simplenote5.Color = drawing.app.GetColorByIndex(256)
    drawing.simplenote5.Layer = "Walls"
    drawing.simplenote5.LineStyle = "Continuous"
    drawing.simplenote5.LineScale = 1.0
    drawing.simplenote5.LineWeight = constants.iwLnWt_ByLayer
    drawing.simplenote5.Thickness = 0.0
    return drawing.simplenote5


def text_2(drawing):
    """TEXT"""
    drawing.simplenote6 = drawing.sketch.InsertSimpleNote(
        0.0, 0.0, 0.0, 2.5, 0.0, '100% of "it"'
    )
    drawing.simplenote6.SetAlignmentPoint(0.0, 0.0, 0.0)
    drawing.simplenote6.SetPosition(0.0, 0.0, 0.0)
    return drawing.simplenote6


def texts(*values):
    """An array of texts."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_BSTR, values)


def mtext(drawing):
    """MTEXT"""
    drawing.note7 = drawing.sketch.InsertNote(
        -20.0, 25.0, 0.0, 40.0, 15.0, 0.0, texts("First\\PSecond")
    )
    drawing.note7.Rotation = 0.2
    drawing.note7.TextHeight = 2.5
    drawing.note7.Width = 60.0
    drawing.note7.LineSpaceDistance = 4.17
    drawing.note7.TextStyle = "Standard"
    drawing.note7.Justify = constants.iwNoteJustification_MiddleCenter
    drawing.note7.Direction = constants.iwNoteDirection_Horizontal
    drawing.note7.Color = drawing.app.GetColorByIndex(256)
    drawing.note7.Layer = "0"
    drawing.note7.LineStyle = "Continuous"
    drawing.note7.LineScale = 1.0
    drawing.note7.LineWeight = constants.iwLnWt_ByLayer
    drawing.note7.Thickness = 0.0
    return drawing.note7


def mtext_2(drawing):
    """MTEXT"""
    drawing.note8 = drawing.sketch.InsertNote(
        0.0, 0.0, 0.0, 0.0, 0.0, 0.0, texts("Bare")
    )
    return drawing.note8


def reals(*values):
    """An array of numbers."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_R8, values)


def tolerance(drawing):
    """TOLERANCE"""
    drawing.tolerance9 = drawing.sketch.InsertTolerance(
        reals(3.0, 4.0, 0.0), "{\\Fgdt;r}%%v0.05%%v\n%%vB"
    )
    drawing.tolerance9.Color = drawing.app.GetColorByIndex(256)
    drawing.tolerance9.Layer = "0"
    drawing.tolerance9.LineStyle = "Continuous"
    drawing.tolerance9.LineScale = 1.0
    drawing.tolerance9.LineWeight = constants.iwLnWt_ByLayer
    drawing.tolerance9.Thickness = 0.0
    return drawing.tolerance9


def leader(drawing):
    """LEADER"""
    drawing.leader10 = drawing.sketch.InsertLeader(
        reals(0.0, 0.0, 0.0, 5.0, 5.0, 0.0, 9.0, 5.0, 0.0), 40.0, "See\ndetail \\ 5"
    )
    drawing.note11 = drawing.leader10.GetNoteAnnotation()
    drawing.note11.BackgroundMask = True
    drawing.note11.UseDrawingBackgroundColor = False
    drawing.note11.BackgroundFillColor = drawing.app.GetColorByIndex(3)
    drawing.note11.BackgroundBorderOffsetFactor = 1.25
    drawing.note11.LineSpaceDistance = 6.25
    drawing.note11.LineSpaceFactor = 1.5
    drawing.note11.Rotation = 0.5
    drawing.note11.TextHeight = 2.5
    drawing.note11.Width = 40.0
    drawing.note11.Justify = constants.iwNoteJustification_MiddleCenter
    drawing.note11.TextStyle = "Titles"
    drawing.leader10.Color = drawing.app.GetColorByIndex(256)
    drawing.leader10.Layer = "0"
    drawing.leader10.LineStyle = "Continuous"
    drawing.leader10.LineScale = 1.0
    drawing.leader10.LineWeight = constants.iwLnWt_ByLayer
    drawing.leader10.Thickness = 0.0
    return drawing.leader10


def leader_2(drawing):
    """LEADER"""
    drawing.leader12 = drawing.sketch.InsertLeader(
        reals(1.0, 0.0, 0.0, 6.0, 5.0, 0.0), 0.0, ""
    )
    drawing.leader12.SetToleranceAnnotation("{\\Fgdt;j}%%v0.1\nA")
    drawing.leader12.Color = drawing.app.GetColorByIndex(256)
    drawing.leader12.Layer = "0"
    drawing.leader12.LineStyle = "Continuous"
    drawing.leader12.LineScale = 1.0
    drawing.leader12.LineWeight = constants.iwLnWt_ByLayer
    drawing.leader12.Thickness = 0.0
    return drawing.leader12


def leader_3(drawing):
    """LEADER"""
    drawing.leader13 = drawing.sketch.InsertLeader(
        reals(2.0, 0.0, 0.0, 7.0, 5.0, 0.0), 0.0, ""
    )
    drawing.leader13.SetBlockAnnotation("Balloon")
    drawing.leader13.Color = drawing.app.GetRGBColor(1, 2, 3)
    drawing.leader13.Layer = "0"
    drawing.leader13.LineStyle = "Continuous"
    drawing.leader13.LineScale = 1.0
    drawing.leader13.LineWeight = constants.iwLnWt_ByLayer
    drawing.leader13.Thickness = 0.0
    return drawing.leader13


def arctext(drawing):
    """ARCTEXT"""
    drawing.circlearc14 = drawing.sketch.InsertArc(0.0, 0.0, 0.0, 30.0, 0.0, 3.0)
    drawing.arcalignedtext15 = drawing.sketch.InsertCurvedText(
        "Round the bend", drawing.circlearc14
    )
    settings = drawing.arcalignedtext15.GetCurvedSettings()
    settings.Color = drawing.app.GetColorByIndex(6)
    drawing.arcalignedtext15.SetCurvedSettings(settings)
    drawing.arcalignedtext15.Layer = "0"
    drawing.arcalignedtext15.LineStyle = "Continuous"
    drawing.arcalignedtext15.LineScale = 1.0
    drawing.arcalignedtext15.LineWeight = constants.iwLnWt_ByLayer
    drawing.arcalignedtext15.Thickness = 0.0


def properties(drawing):
    """PROPERTIES"""
    # AcDbMText object modified
    drawing.note16 = drawing.leader10.GetNoteAnnotation()
    drawing.note16.Layer = "Walls"


def properties_2(drawing):
    """PROPERTIES"""
    _, y, z = drawing.leader10.GetVertexCoordinate(0)
    drawing.leader10.SetVertexCoordinate(0, 1.0, y, z)
    # AcDbLeader object modified
    drawing.leader10.DimensionStyle = "ISO-25"
    drawing.leader10.Type = constants.iwLeaderType_SplineWithArrow
    data = drawing.leader10.GetDimensionStyleUserData()
    options = data.GetDimensionStyleArrowsOptions()
    options.SetLeaderArrow(constants.iwDimensionArrowType_Dot, "")
    data = drawing.leader10.GetDimensionStyleUserData()
    options = data.GetDimensionStyleArrowsOptions()
    options.Size = 2.5
    data = drawing.leader10.GetDimensionStyleUserData()
    options = data.GetDimensionStyleLineOptions()
    options.DimensionLineColor = drawing.app.GetColorByIndex(1)
    data = drawing.leader10.GetDimensionStyleUserData()
    options = data.GetDimensionStyleLineOptions()
    options.DimensionLineLineWeight = constants.iwLnWt_025
    data = drawing.leader10.GetDimensionStyleUserData()
    options = data.GetDimensionStyleTextOptions()
    options.OffsetFromDimensionLines = 0.625
    data = drawing.leader10.GetDimensionStyleUserData()
    options = data.GetDimensionStyleFitOptions()
    options.SetDimensionScale(constants.iwDimensionScale_UseScaleFactor, 2.0)


def properties_3(drawing):
    """PROPERTIES"""
    # AcDbFcf object modified
    _, y, z = drawing.tolerance9.GetPosition()
    drawing.tolerance9.SetPosition(5.0, y, z)
    drawing.tolerance9.DimensionScaleFactor = 2.0
    drawing.tolerance9.DimensionStyle = "ISO-25"
    data = drawing.tolerance9.GetDimensionStyleUserData()
    options = data.GetDimensionStyleLineOptions()
    options.DimensionLineColor = drawing.app.GetColorByIndex(4)
    drawing.tolerance9.TextStyle = "Titles"
    drawing.tolerance9.TextHeight = 3.0
    drawing.tolerance9.TextColor = drawing.app.GetColorByIndex(7)
    drawing.tolerance9.Text = "a\\b\nc"


def erase(drawing):
    """ERASE"""
    # AcDbText object modified
    drawing.simplenote6.Erased = True


def main():
    try:
        drawing = connect()
    except RuntimeError as error:
        return "recording: " + str(error)
    drawing.app.AbortRunningCommand()
    style(drawing)
    load(drawing)
    attdef(drawing)
    attdef_2(drawing)
    text(drawing)
    text_2(drawing)
    mtext(drawing)
    mtext_2(drawing)
    tolerance(drawing)
    leader(drawing)
    leader_2(drawing)
    leader_3(drawing)
    arctext(drawing)
    properties(drawing)
    properties_2(drawing)
    properties_3(drawing)
    erase(drawing)
