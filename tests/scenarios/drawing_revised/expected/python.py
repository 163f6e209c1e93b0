def layer(drawing):
    """LAYER"""
    # AcDbLayerTableRecord object modified
    layers = drawing.doc.GetLayerManager()
    drawing.layer1 = layers.GetLayer("Walls")
    drawing.layer1.Color = drawing.app.GetColorByIndex(8)
    drawing.layer1.LineWeight = constants.iwLnWt_035
    drawing.layer1.Rename("Walls existing")


def layer_2(drawing):
    """LAYER"""
    layers = drawing.doc.GetLayerManager()
    drawing.layer2, _ = layers.CreateLayer("Walls new")
    return drawing.layer2


def style(drawing):
    """STYLE"""
    # AcDbTextStyleTableRe... object modified
    drawing.textstyle3, _ = drawing.doc.GetObjectByHandle("13")
    drawing.textstyle3.Rename("Room names")
    drawing.textstyle3.Height = 0.25


def properties(drawing):
    """PROPERTIES"""
    # AcDbLine object modified
    drawing.line4, _ = drawing.doc.GetObjectByHandle("2A")
    drawing.line4.LineWeight = constants.iwLnWt_050
    _, y, z = drawing.line4.GetSecondPoint()
    drawing.line4.SetSecondPoint(7.5, y, z)
    # AcDbCircle object modified
    drawing.circle5, _ = drawing.doc.GetObjectByHandle("2C")
    drawing.circle5.Layer = "Walls existing"
    # AcDbText object modified
    drawing.simplenote6, _ = drawing.doc.GetObjectByHandle("2D")
    drawing.simplenote6.Layer = "Rooms"
    drawing.simplenote6.Contents = "Kitchen"
    drawing.simplenote6.TextStyle = "Room names"
    # AcDbRotatedDimension object modified
    drawing.rotateddimension7, _ = drawing.doc.GetObjectByHandle("2F")
    general = drawing.rotateddimension7.GetGeneralDimension()
    general.Layer = "Rooms"
    general = drawing.rotateddimension7.GetGeneralDimension()
    general.TextOverride = "7.50"


def pedit(drawing):
    """PEDIT"""
    # AcDbPolyline object modified
    drawing.polyline8, _ = drawing.doc.GetObjectByHandle("2B")
    _, y = drawing.polyline8.GetVertexCoordinate(2)
    drawing.polyline8.SetVertexCoordinate(2, 7.5, y)
    # AcDbPolyline object modified
    x, _ = drawing.polyline8.GetVertexCoordinate(1)
    drawing.polyline8.SetVertexCoordinate(1, x, 4.5)


def eattedit(drawing):
    """EATTEDIT"""
    # AcDbBlockReference object modified
    drawing.blockinstance9, _ = drawing.doc.GetObjectByHandle("2E")
    drawing.blockinstance9.Rotation = 1.5707963267948966
    for attribute in drawing.blockinstance9.GetAttributeInstances():
        if attribute.Name == "NUMBER":
            attribute.Value = "D 02"


def hatchedit(drawing):
    """HATCHEDIT"""
    # AcDbHatch object modified
    drawing.hatch10, _ = drawing.doc.GetObjectByHandle("30")
    pattern = drawing.hatch10.GetHatchPattern()
    data = pattern.GetHatchOrSolidData()
    _, pattern_angle, _, pattern_kind, pattern_spacing = data
    pattern.SetHatchOrSolidData(
        "BRICK", pattern_angle, 2.0, pattern_kind, pattern_spacing
    )


def tabledit(drawing):
    """TABLEDIT"""
    # AcDbTable object modified
    drawing.table11, _ = drawing.doc.GetObjectByHandle("31")
    drawing.table11.InsertRow(2, 0.5)
    drawing.table11.SetText(2, 0, "Kitchen")
    drawing.table11.SetText(2, 0, "Kitchen")
    drawing.table11.SetRowHeightAt(2, 0.5)


def editnote(drawing):
    """EDITNOTE"""
    # AcDbMText object modified
    drawing.leader13, _ = drawing.doc.GetObjectByHandle("33")
    drawing.note12 = drawing.leader13.GetNoteAnnotation()
    drawing.note12.Text = "see detail B"


def texts(*values):
    """An array of texts."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_BSTR, values)


def note(drawing):
    """NOTE"""
    drawing.note14 = drawing.sketch.InsertNote(
        1.0, 3.0, 0.0, 5.0, 2.75, 0.0, texts("Bath")
    )
    drawing.note14.Width = 4.0
    drawing.note14.TextStyle = "Room names"
    drawing.note14.Layer = "Walls existing"
    return drawing.note14


def step(drawing):
    """Outside of commands"""
    drawing.circle15, _ = drawing.doc.GetObjectByHandle("2C")
    drawing.circle15.Radius = 0.75


def erase(drawing):
    """ERASE"""
    # AcDbRotatedDimension object modified
    drawing.rotateddimension16, _ = drawing.doc.GetObjectByHandle("2F")
    general = drawing.rotateddimension16.GetGeneralDimension()
    general.Erased = True


def layer_3(drawing):
    """LAYER"""
    layers = drawing.doc.GetLayerManager()
    drawing.layer17 = layers.GetLayer("Scrap")
    layers.RemoveLayer(drawing.layer17.Name)


def main():
    try:
        drawing = connect()
    except RuntimeError as error:
        return "recording: " + str(error)
    drawing.app.AbortRunningCommand()
    layer(drawing)
    layer_2(drawing)
    style(drawing)
    properties(drawing)
    pedit(drawing)
    eattedit(drawing)
    hatchedit(drawing)
    tabledit(drawing)
    editnote(drawing)
    note(drawing)
    step(drawing)
    erase(drawing)
    layer_3(drawing)
