def layer(drawing, name_of_new_layer="Holes"):
    """LAYER"""
    layers = drawing.doc.GetLayerManager()
    drawing.layer1, _ = layers.CreateLayer(name_of_new_layer)
    return drawing.layer1


def reals(*values):
    """An array of numbers."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_R8, values)


def pline(
    drawing,
    next_vertexs=(
        (40.0, 0.0, 0.0),
        (40.0, 30.0, 0.0),
        (20.0, 45.0, 0.0),
        (0.0, 35.0, 0.0),
        (0.0, 30.0, 0.0),
    ),
):
    """PLINE"""
    drawing.polyline2 = drawing.sketch.InsertPolyline2D(
        reals(
            *(0.0, 0.0),
            *next_vertexs[0][:2],
            *next_vertexs[1][:2],
            *next_vertexs[2][:2],
            *next_vertexs[3][:2],
            *next_vertexs[4][:2],
            *(0.0, 0.0),
        ),
        False,
    )
    return drawing.polyline2


def circle(drawing, center_point=(20.0, 20.0, 0.0), lambda_=6.25):
    """CIRCLE"""
    drawing.circle3 = drawing.sketch.InsertCircle(*center_point, lambda_)
    drawing.circle3.Layer = "Holes"
    return drawing.circle3


def circle_2(drawing, center_point=(30.0, 10.0, 0.0), center_point_2=(10.0, 10.0, 0.0)):
    """CIRCLE"""
    drawing.circle4 = drawing.sketch.InsertCircle(*center_point, 6.25)
    drawing.circle5 = drawing.sketch.InsertCircle(*center_point_2, 6.25)


def print_(drawing):
    """PRINT"""
    drawing.circle6 = drawing.sketch.InsertCircle(5.0, 5.0, 213.36, 10.0)
    return drawing.circle6


def text(
    drawing, start_position=(5.0, -30.0, 0.0), height=2.5, text='Ø 12,5 "H7"\n(4x)'
):
    """TEXT"""
    drawing.simplenote7 = drawing.sketch.InsertSimpleNote(
        *start_position, height, 0.0, text
    )
    drawing.simplenote7.SetAlignmentPoint(0.0, 0.0, 0.0)
    drawing.simplenote7.SetPosition(*start_position)
    return drawing.simplenote7


def properties(drawing, radius=7.125):
    """PROPERTIES"""
    # AcDbCircle object modified
    x, _, z = drawing.circle3.GetCenter()
    drawing.circle3.SetCenter(x, 18.5, z)
    drawing.circle3.Radius = radius


def gro_e(drawing, start_angle=0.5, end_angle=2.25):
    """GR??E"""
    drawing.circlearc8 = drawing.sketch.InsertArc(
        0.0, 0.0, 0.0, 4.0, start_angle, end_angle
    )
    return drawing.circlearc8


def main():
    try:
        drawing = connect()
    except RuntimeError as error:
        return "recording: " + str(error)
    drawing.app.AbortRunningCommand()
    layer(drawing)
    pline(drawing)
    circle(drawing)
    circle_2(drawing)
    print_(drawing)
    text(drawing)
    properties(drawing)
    gro_e(drawing)
