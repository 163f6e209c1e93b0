def line(drawing):
    """LINE"""
    drawing.line1 = drawing.sketch.InsertLine(0.0, 0.0, 0.0, 4.0, 2.5, 0.0)
    return drawing.line1


def layout(drawing):
    """LAYOUT"""
    drawing.doc.CreateSheet("Ground floor")


def layout_2(drawing):
    """LAYOUT"""
    drawing.doc.CopySheet("Ground floor", "First floor")


def layout_3(drawing):
    """LAYOUT"""
    drawing.doc.CopySheet("First floor", "First floor")


def layout_4(drawing):
    """LAYOUT"""
    sheet = drawing.doc.GetSheet("First floor")
    if sheet is not None:
        sheet.Name = "Upper floor"


def layout_5(drawing):
    """LAYOUT"""
    drawing.doc.CreateSheetByTemplate("A3.dwt", "Frame", "Sections")


def layout_6(drawing):
    """LAYOUT"""
    drawing.doc.RemoveSheet("Layout2")


def layout_7(drawing):
    """LAYOUT"""
    drawing.sheet = drawing.doc.GetSheet("Ground floor")
    if drawing.sheet is not None:
        drawing.sheet.Activate()
        drawing.sketch = drawing.sheet.GetSketchManager()


def layout_8(drawing):
    """LAYOUT"""
    drawing.model.Activate()
    drawing.sketch = drawing.model.GetSketchManager()


def ccs(drawing):
    """CCS"""
    systems = drawing.doc.GetCustomCoordinateSystemManager()
    systems.SetActiveCustomCoordinateSystemOrigin(1.5, 2.0, 0.0)
    systems.SaveActiveViewAs("Corner")
    systems.AlignActiveCustomCoordinateSystemZAxis(1.0, 1.0, 0.0, 1.0, 1.0, 5.0)
    systems.AlignActiveCustomCoordinateSystemZAxis(1.0, 1.0, 0.0, 1.5, 1.0, 1.0)


def reals(*values):
    """An array of numbers."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_R8, values)


def ccs_2(drawing):
    """CCS"""
    systems = drawing.doc.GetCustomCoordinateSystemManager()
    systems.AlignActiveCustomCoordinateSystemByEntity(
        drawing.line1, reals(4.0, 2.5, 0.25)
    )
    system = systems.GetPreviousCustomCoordinateSystem()
    system.Activate()
    systems.AlignActiveCustomCoordinateSystemByView()


def ccs_3(drawing):
    """CCS"""
    systems = drawing.doc.GetCustomCoordinateSystemManager()
    utility = drawing.app.GetMathUtility()
    first = utility.CreatePoint(0.0, 0.0, 0.0)
    second = utility.CreatePoint(4.0, 0.0, 0.0)
    third = utility.CreatePoint(0.0, 0.0, 2.75)
    systems.AlignActiveCustomCoordinateSystemXYPlane(first, second, third)
    system = systems.GetDefaultCustomCoordinateSystem(
        constants.iwDefaultCustomCoordinateSystem_Front
    )
    system.Activate()


def ccs_4(drawing):
    """CCS"""
    systems = drawing.doc.GetCustomCoordinateSystemManager()
    system = systems.GetNamedCustomCoordinateSystem("Corner")
    system.Activate()
    systems.RemoveCustomCoordinateSystem("Corner")
    system = systems.GetWorldCustomCoordinateSystem()
    system.Activate()


def view(drawing):
    """VIEW"""
    drawing.model.Activate()
    drawing.sketch = drawing.model.GetSketchManager()
    drawing.modelnamedview2 = drawing.views.CreateModelNamedView("North wall")
    drawing.sheet = drawing.doc.GetSheet("Ground floor")
    if drawing.sheet is not None:
        drawing.sheet.Activate()
        drawing.sketch = drawing.sheet.GetSketchManager()
    background = drawing.views.CreateGradientBackground(
        drawing.app.GetRGBColor(10, 20, 200),
        drawing.app.GetRGBColor(90, 120, 220),
        drawing.app.GetRGBColor(200, 220, 255),
        0.0,
        0.5,
    )
    drawing.modelnamedview2.SetGradientBackground(background)
    drawing.model.Activate()
    drawing.sketch = drawing.model.GetSketchManager()
    drawing.modelnamedview3 = drawing.views.CreateModelNamedView("Roof")
    background = drawing.views.CreateSolidBackground(
        drawing.app.GetRGBColor(255, 250, 240)
    )
    drawing.modelnamedview3.SetSolidBackground(background)


def view_2(drawing):
    """VIEW"""
    drawing.sheet = drawing.doc.GetSheet("Ground floor")
    if drawing.sheet is not None:
        drawing.sheet.Activate()
        drawing.sketch = drawing.sheet.GetSketchManager()
    drawing.views.CreateSheetNamedView("Detail")
    drawing.model.Activate()
    drawing.sketch = drawing.model.GetSketchManager()


def view_3(drawing):
    """VIEW"""
    view = drawing.modelnamedview2.GetNamedView()
    view.Rename("North facade")
    view = drawing.modelnamedview2.GetNamedView()
    view.Class = "Elevations"
    utility = drawing.app.GetMathUtility()
    first = utility.CreatePoint(0.0, 0.0, 0.0)
    second = utility.CreatePoint(12.0, 8.5, 0.0)
    view = drawing.modelnamedview2.GetNamedView()
    view.SetWindow(first, second)


def view_4(drawing):
    """VIEW"""
    view = drawing.views.GetSheetNamedView("Detail")
    view = view.GetNamedView()
    view.Rename("Detail 1:10")
    view = drawing.views.GetSheetNamedView("Detail 1:10")
    view = view.GetNamedView()
    view.Class = "Details"
    utility = drawing.app.GetMathUtility()
    first = utility.CreatePoint(1.0, 1.0, 0.0)
    second = utility.CreatePoint(2.0, 2.0, 0.0)
    view = drawing.views.GetSheetNamedView("Detail 1:10")
    view = view.GetNamedView()
    view.SetWindow(first, second)


def zoom(drawing):
    """ZOOM"""
    drawing.app.Zoom(
        constants.iwZoomRange_Window, reals(0.0, 0.0, 0.0), reals(12.5, 8.25, 0.0)
    )


def zoom_2(drawing):
    """ZOOM"""
    drawing.app.Zoom(constants.iwZoomRange_Fit, pythoncom.Nothing, pythoncom.Nothing)


def vports(drawing):
    """VPORTS"""
    drawing.model.InsertViewTiles(
        constants.iwViewTilesMode_2_Vertical, constants.iwViewTilesApplyTo_Display
    )


def vports_2(drawing):
    """VPORTS"""
    drawing.model.InsertViewTiles(
        constants.iwViewTilesMode_1, constants.iwViewTilesApplyTo_ActiveViewTile
    )


def view_5(drawing):
    """VIEW"""
    drawing.model.Activate()
    drawing.sketch = drawing.model.GetSketchManager()
    drawing.modelnamedview8 = drawing.views.CreateModelNamedView("Garden")
    background = drawing.views.CreateImageBackground(
        "garden.png", constants.iwImageBackgroundPosition_Center, 0.0, 0.0, 1.5, 1.5
    )
    drawing.modelnamedview8.SetImageBackground(background)


def zoom_3(drawing):
    """ZOOM"""
    drawing.app.Zoom(constants.iwZoomRange_All, pythoncom.Nothing, pythoncom.Nothing)


def main():
    try:
        drawing = connect()
    except RuntimeError as error:
        return "recording: " + str(error)
    drawing.app.AbortRunningCommand()
    line(drawing)
    layout(drawing)
    layout_2(drawing)
    layout_3(drawing)
    layout_4(drawing)
    layout_5(drawing)
    layout_6(drawing)
    layout_7(drawing)
    layout_8(drawing)
    ccs(drawing)
    ccs_2(drawing)
    ccs_3(drawing)
    ccs_4(drawing)
    view(drawing)
    view_2(drawing)
    view_3(drawing)
    view_4(drawing)
    zoom(drawing)
    zoom_2(drawing)
    vports(drawing)
    vports_2(drawing)
    view_5(drawing)
    zoom_3(drawing)
