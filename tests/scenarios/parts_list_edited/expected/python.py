def style(drawing):
    """STYLE"""
    styles = drawing.doc.GetTextStyleManager()
    drawing.textstyle1 = styles.GetTextStyle("Titles")
    if drawing.textstyle1 is None:
        drawing.textstyle1, _ = styles.CreateTextStyle("Titles")
    drawing.textstyle1.Font = "arial.ttf"
    return drawing.textstyle1


def tablestyle(drawing):
    """TABLESTYLE"""
    styles = drawing.doc.GetTableStyleManager()
    drawing.tablestyle2, _ = styles.CreateTableStyle("Parts")
    drawing.tablestyle2.Rename("Parts")
    return drawing.tablestyle2


def table(drawing):
    """TABLE"""
    drawing.table3 = drawing.sketch.InsertTable(10.0, 200.0, 3, 3, 9.0, 15.0, 1, 2, 3)
    drawing.table3.SetRowHeightAt(0, 12.0)
    return drawing.table3


def tabledit(drawing):
    """TABLEDIT"""
    # AcDbTable object modified
    drawing.table3.SetText(0, 0, "Bill of materials")
    drawing.table3.SetText(1, 0, "No")
    drawing.table3.SetText(1, 1, "Part")
    drawing.table3.SetText(1, 2, "Drawing")
    drawing.table3.SetText(2, 0, "1")
    drawing.table3.SetText(2, 1, "{\\fArial;Bolt} M8")
    drawing.table3.SetText(2, 2, "")


def tabledit_2(drawing):
    """TABLEDIT"""
    # AcDbTable object modified
    drawing.table3.InsertRow(3, 9.0)
    drawing.table3.InsertRow(4, 9.0)
    drawing.table3.SetText(3, 0, "2")
    drawing.table3.SetText(3, 1, "Washer")
    drawing.table3.SetText(4, 0, "3")
    drawing.table3.SetText(4, 1, "Nut")
    drawing.table3.SetText(4, 2, "D:\\parts\\nut.dwg")
    drawing.table3.SetText(3, 0, "2")
    drawing.table3.SetText(3, 1, "Washer")
    drawing.table3.SetText(3, 2, "")
    drawing.table3.SetText(4, 0, "3")
    drawing.table3.SetText(4, 1, "Nut")
    drawing.table3.SetText(4, 2, "D:\\parts\\nut.dwg")
    drawing.table3.SetRowHeightAt(3, 9.0)
    drawing.table3.SetRowHeightAt(4, 9.0)


def tabledit_3(drawing):
    """TABLEDIT"""
    # AcDbTable object modified
    drawing.table3.InsertColumn(3, 20.0)
    drawing.table3.SetText(1, 3, "Qty")
    drawing.table3.SetText(2, 3, "8")
    drawing.table3.SetText(1, 3, "Qty")
    drawing.table3.SetText(2, 3, "8")
    drawing.table3.SetColumnWidthAt(3, 20.0)


def tabledit_4(drawing):
    """TABLEDIT"""
    # AcDbTable object modified
    drawing.table3.DeleteRow(4)
    drawing.table3.DeleteRow(3)
    drawing.table3.SetText(3, 0, "")
    drawing.table3.SetRowHeightAt(2, 12.0)


def tabledit_5(drawing):
    """TABLEDIT"""
    # AcDbTable object modified
    drawing.table3.DeleteColumn(3)


def grip_stretch(drawing):
    """GRIP_STRETCH"""
    # AcDbTable object modified
    for row in range(drawing.table3.TotalRowCount()):
        drawing.table3.SetRowHeightAt(row, drawing.table3.GetRowHeight(row) * 2.0)


def grip_stretch_2(drawing):
    """GRIP_STRETCH"""
    # AcDbTable object modified
    for column in range(drawing.table3.TotalColumnCount()):
        drawing.table3.SetColumnWidthAt(
            column, drawing.table3.GetColumnWidth(column) * 1.5
        )


def grip_stretch_3(drawing):
    """GRIP_STRETCH"""
    # AcDbTable object modified
    drawing.table3.SetColumnWidthAt(1, 40.0)


def properties(drawing):
    """PROPERTIES"""
    # AcDbTable object modified
    x, _, z = drawing.table3.GetPosition()
    drawing.table3.SetPosition(x, 180.0, z)
    styles = drawing.doc.GetTableStyleManager()
    drawing.table3.TableStyle = styles.GetTableStyle("Parts")
    drawing.table3.Direction = constants.iwTableDirection_BottomToTop


def tablestyle_2(drawing):
    """TABLESTYLE"""
    # AcDbTableStyle object modified
    drawing.tablestyle2.Rename("Parts lists")


def tablestyle_3(drawing):
    """TABLESTYLE"""
    # AcDbTableStyle object modified
    drawing.tablestyle2.SetAlignment(
        constants.iwTableCellType_Data, constants.iwTableCellAlignment_MiddleCenter
    )
    drawing.tablestyle2.SetTextHeight(constants.iwTableCellType_Data, 3.5)
    drawing.tablestyle2.SetTextStyle(constants.iwTableCellType_Title, "Titles")


def tablestyle_4(drawing):
    """TABLESTYLE"""
    # AcDbTableStyle object modified
    drawing.tablestyle2.SetBackgroundColor(
        constants.iwTableCellType_Header, drawing.app.GetColorByIndex(8)
    )
    drawing.tablestyle2.SetTextColor(
        constants.iwTableCellType_Header, drawing.app.GetRGBColor(20, 40, 60)
    )


def tablestyle_5(drawing):
    """TABLESTYLE"""
    # AcDbTableStyle object modified
    drawing.tablestyle2.SetHorizontalMargin(constants.iwTableCellType_Data, 1.5)
    drawing.tablestyle2.SetVerticalMargin(constants.iwTableCellType_Data, 0.75)
    drawing.tablestyle2.HeaderOrientation = constants.iwTableHeaderOrientation_Down


def tablestyle_6(drawing):
    """TABLESTYLE"""
    # AcDbTableStyle object modified
    drawing.tablestyle2.SetBordersColor(
        constants.iwTableCellType_Data,
        constants.iwTableBordersLineType_VerticalInside,
        drawing.app.GetColorByIndex(1),
    )
    drawing.tablestyle2.SetBordersLineWeight(
        constants.iwTableCellType_Title,
        constants.iwTableBordersLineType_HorizontalBottom,
        constants.iwLnWt_050,
    )


def style_2(drawing):
    """STYLE"""
    # AcDbTextStyleTableRe... object modified
    drawing.textstyle1.Rename("Headings")
    drawing.textstyle1.Font = "C:\\Fonts\\arialbd.ttf"
    drawing.textstyle1.Angle = 0.25
    drawing.textstyle1.Height = 5.0
    drawing.textstyle1.Spacing = 1.1
    drawing.textstyle1.Backwards = False
    drawing.textstyle1.UpsideDown = False
    drawing.textstyle1.Vertical = True
    drawing.textstyle1.BigFont = "extfont.shx"


def attdef(drawing):
    """-ATTDEF"""
    drawing.attributedefinition4 = drawing.sketch.InsertAttributeDefinition(
        "M8",
        "SIZE",
        "Size?",
        1.0,
        2.0,
        0.0,
        "",
        constants.iwTextJustification_Left,
        0.2,
        0.0,
        False,
        False,
        False,
        False,
        False,
        False,
    )
    return drawing.attributedefinition4


def properties_2(drawing):
    """PROPERTIES"""
    # AcDbAttributeDefinit... object modified
    drawing.attributedefinition4.Angle = 0.1
    drawing.attributedefinition4.Height = 2.5
    drawing.attributedefinition4.Justification = constants.iwTextJustification_Center
    drawing.attributedefinition4.Caption = "Size of the bolt?"
    drawing.attributedefinition4.Rotation = 0.5
    drawing.attributedefinition4.Spacing = 0.9
    drawing.attributedefinition4.TextStyle = "Headings"
    drawing.attributedefinition4.Name = "BOLT"
    drawing.attributedefinition4.Value = "M10"
    _, y, z = drawing.attributedefinition4.GetPosition()
    drawing.attributedefinition4.SetPosition(3.0, y, z)
    x, _, z = drawing.attributedefinition4.GetAlignmentPoint()
    drawing.attributedefinition4.SetAlignmentPoint(x, 4.0, z)
    drawing.attributedefinition4.Backwards = True
    drawing.attributedefinition4.Constant = False
    drawing.attributedefinition4.Hidden = True
    drawing.attributedefinition4.LockPosition = True
    drawing.attributedefinition4.Preset = False
    drawing.attributedefinition4.UpsideDown = False
    drawing.attributedefinition4.Verify = True


def text(drawing):
    """TEXT"""
    drawing.simplenote5 = drawing.sketch.InsertSimpleNote(
        1.0, 1.0, 0.0, 5.0, 0.1, "Section A-A"
    )
    drawing.simplenote5.SetAlignmentPoint(0.0, 0.0, 0.0)
    drawing.simplenote5.SetPosition(1.0, 1.0, 0.0)
    return drawing.simplenote5


def properties_3(drawing):
    """PROPERTIES"""
    # AcDbText object modified
    drawing.simplenote5.Angle = 0.2
    drawing.simplenote5.Contents = "Section B-B"
    drawing.simplenote5.Height = 7.0
    drawing.simplenote5.Rotation = 0.0
    drawing.simplenote5.Spacing = 1.2
    drawing.simplenote5.TextStyle = "Headings"
    x, y, _ = drawing.simplenote5.GetPosition()
    drawing.simplenote5.SetPosition(x, y, 1.0)
    drawing.simplenote5.Backwards = False
    drawing.simplenote5.UpsideDown = False
    drawing.simplenote5.Justify = constants.iwTextJustification_MiddleCenter
    _, y, z = drawing.simplenote5.GetAlignmentPoint()
    drawing.simplenote5.SetAlignmentPoint(2.0, y, z)


def texts(*values):
    """An array of texts."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_BSTR, values)


def mtext(drawing):
    """MTEXT"""
    drawing.note6 = drawing.sketch.InsertNote(
        10.0, 20.0, 0.0, 70.0, 20.0, 0.0, texts("All parts galvanized")
    )
    drawing.note6.TextHeight = 2.5
    drawing.note6.Width = 60.0
    return drawing.note6


def properties_4(drawing):
    """PROPERTIES"""
    # AcDbMText object modified
    drawing.note6.BackgroundMask = True
    drawing.note6.BackgroundFillColor = drawing.app.GetColorByIndex(2)
    drawing.note6.UseDrawingBackgroundColor = False
    drawing.note6.BackgroundBorderOffsetFactor = 1.5
    drawing.note6.Text = "All parts\\Pzinc coated"
    drawing.note6.Direction = constants.iwNoteDirection_Horizontal
    drawing.note6.Justify = constants.iwNoteJustification_TopCenter
    drawing.note6.LineSpaceDistance = 4.0
    drawing.note6.LineSpaceFactor = 1.25
    drawing.note6.LineSpacingStyle = constants.iwNoteLineSpacingStyle_Exactly
    drawing.note6.Rotation = 0.5
    drawing.note6.TextStyle = "Headings"
    drawing.note6.TextHeight = 3.0
    drawing.note6.Width = 80.0
    _, y, z = drawing.note6.GetPosition()
    drawing.note6.SetPosition(12.0, y, z)
    x, _, z = drawing.note6.GetPosition()
    drawing.note6.SetPosition(x, 22.0, z)


def arctext(drawing):
    """ARCTEXT"""
    drawing.circlearc7 = drawing.sketch.InsertArc(0.0, 0.0, 0.0, 20.0, 0.0, 3.0)
    drawing.arcalignedtext8 = drawing.sketch.InsertCurvedText(
        "Round the bend", drawing.circlearc7
    )


def properties_5(drawing):
    """PROPERTIES"""
    # AcDbArcAlignedText object modified
    drawing.arcalignedtext8.Contents = "Turn here"
    drawing.arcalignedtext8.Height = 4.0
    drawing.arcalignedtext8.WidthFactor = 0.8
    drawing.arcalignedtext8.CharSpacing = 0.1
    _, y, z = drawing.arcalignedtext8.GetCenter()
    drawing.arcalignedtext8.SetCenter(1.0, y, z)
    drawing.arcalignedtext8.StartAngle = 0.1
    drawing.arcalignedtext8.EndAngle = 2.9
    drawing.arcalignedtext8.ArcOffset = 2.0
    drawing.arcalignedtext8.LeftOffset = 1.0
    drawing.arcalignedtext8.RightOffset = 1.5
    settings = drawing.arcalignedtext8.GetCurvedSettings()
    settings.Underlined = True
    drawing.arcalignedtext8.SetCurvedSettings(settings)
    settings = drawing.arcalignedtext8.GetCurvedSettings()
    settings.Flip = False
    drawing.arcalignedtext8.SetCurvedSettings(settings)
    settings = drawing.arcalignedtext8.GetCurvedSettings()
    settings.Alignment = constants.iwArcTextAlignment_Center
    drawing.arcalignedtext8.SetCurvedSettings(settings)
    settings = drawing.arcalignedtext8.GetCurvedSettings()
    settings.TextSide = constants.iwArcTextPosition_OnConvexSide
    drawing.arcalignedtext8.SetCurvedSettings(settings)
    settings = drawing.arcalignedtext8.GetCurvedSettings()
    settings.TextDirection = constants.iwArcTextDirection_InwardToTheCenter
    drawing.arcalignedtext8.SetCurvedSettings(settings)
    settings = drawing.arcalignedtext8.GetCurvedSettings()
    settings.TextStyle = "Headings"
    drawing.arcalignedtext8.SetCurvedSettings(settings)
    settings = drawing.arcalignedtext8.GetCurvedSettings()
    settings.Font = "Arial"
    drawing.arcalignedtext8.SetCurvedSettings(settings)
    settings = drawing.arcalignedtext8.GetCurvedSettings()
    typeface, _, italic, charset, pitch = settings.GetFontParameters()
    settings.SetFontParameters(typeface, True, italic, charset, pitch)
    drawing.arcalignedtext8.SetCurvedSettings(settings)


def properties_6(drawing):
    """PROPERTIES"""
    # AcDbArcAlignedText object modified
    settings = drawing.arcalignedtext8.GetCurvedSettings()
    typeface, bold, _, charset, pitch = settings.GetFontParameters()
    settings.SetFontParameters(typeface, bold, False, charset, pitch)
    drawing.arcalignedtext8.SetCurvedSettings(settings)


def insertblock(drawing):
    """-INSERTBLOCK"""
    drawing.blockinstance9 = drawing.sketch.InsertBlock2(
        "Balloon", 0.0, 0.0, 0.0, 1.0, 1.0, 1.0, 0.0
    )
    return drawing.blockinstance9


def properties_7(drawing):
    """PROPERTIES"""
    # AcDbBlockReference object modified
    x, _, z = drawing.blockinstance9.GetPosition()
    drawing.blockinstance9.SetPosition(x, 30.0, z)
    _, y, z = drawing.blockinstance9.GetScales()
    drawing.blockinstance9.SetScales(2.0, y, z)
    drawing.blockinstance9.Rotation = 0.5
    for attribute in drawing.blockinstance9.GetAttributeInstances():
        if attribute.Name == "NO":
            attribute.Value = "3"
    for attribute in drawing.blockinstance9.GetAttributeInstances():
        if attribute.Name == "NAME":
            attribute.Value = "Nut"


def main():
    try:
        drawing = connect()
    except RuntimeError as error:
        return "recording: " + str(error)
    drawing.app.AbortRunningCommand()
    style(drawing)
    tablestyle(drawing)
    table(drawing)
    tabledit(drawing)
    tabledit_2(drawing)
    tabledit_3(drawing)
    tabledit_4(drawing)
    tabledit_5(drawing)
    grip_stretch(drawing)
    grip_stretch_2(drawing)
    grip_stretch_3(drawing)
    properties(drawing)
    tablestyle_2(drawing)
    tablestyle_3(drawing)
    tablestyle_4(drawing)
    tablestyle_5(drawing)
    tablestyle_6(drawing)
    style_2(drawing)
    attdef(drawing)
    properties_2(drawing)
    text(drawing)
    properties_3(drawing)
    mtext(drawing)
    properties_4(drawing)
    arctext(drawing)
    properties_5(drawing)
    properties_6(drawing)
    insertblock(drawing)
    properties_7(drawing)
