def reals(*values):
    """An array of numbers."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_R8, values)


def polyline(drawing):
    """POLYLINE"""
    drawing.polyline1 = drawing.sketch.InsertPolyline2D(
        reals(0.0, 0.0, 120.5, 0.0, 120.5, 80.0), True
    )
    return drawing.polyline1


def polyline_2(drawing):
    """POLYLINE"""
    drawing.polyline2 = drawing.sketch.InsertPolyline2D(reals(1.0, 2.0), False)
    return drawing.polyline2


def polyline3d(drawing):
    """POLYLINE3D"""
    drawing.polyline3d3 = drawing.sketch.InsertPolyline3D(
        reals(0.0, 0.0, 1.5, 10.0, 4.0, 1.0, 20.0, 5.0, 0.25), True
    )
    return drawing.polyline3d3


def spline(drawing):
    """SPLINE"""
    drawing.spline4 = drawing.sketch.InsertSpline(
        reals(0.0, 0.0, 0.0, 5.0, 5.0, 0.0, 10.0, 0.0, 0.0),
        False,
        1.0,
        0.5,
        0.0,
        0.0,
        -1.0,
        0.125,
    )
    drawing.spline4.FitTolerance = 0.01
    return drawing.spline4


def richline(drawing):
    """RICHLINE"""
    drawing.richline5 = drawing.sketch.InsertRichLine(
        reals(0.0, 10.0, 0.0, 50.0, 10.0, 0.0),
        constants.iwRichLineJustification_Zero,
        7.5,
        "STANDARD",
        False,
    )
    return drawing.richline5


def richline_2(drawing):
    """RICHLINE"""
    drawing.richline6 = drawing.sketch.InsertRichLine(
        reals(0.0, 20.0, 0.0, 50.0, 20.0, 0.0, 50.0, 30.0, 0.0),
        constants.iwRichLineJustification_Bottom,
        1.0,
        "Road",
        True,
    )
    return drawing.richline6


def face(drawing):
    """FACE"""
    drawing.face7 = drawing.sketch.InsertFace(
        reals(0.0, 0.0, 0.0, 4.0, 0.0, 0.0, 4.0, 3.0, 1.0, 0.0, 3.0, 1.0),
        True,
        False,
        True,
        False,
    )
    return drawing.face7


def mesh(drawing):
    """MESH"""
    drawing.polygonmesh8 = drawing.sketch.InsertPolygonMesh(
        2,
        3,
        reals(
            *(0.0, 0.0, 1.5),
            *(10.0, 0.0, 2.0),
            *(20.0, 0.0, 2.25),
            *(0.0, 10.0, 1.0),
            *(10.0, 10.0, 3.125),
            *(20.0, 10.0, 2.0),
        ),
    )
    drawing.polygonmesh8.MClosed = True
    drawing.polygonmesh8.NClosed = True
    return drawing.polygonmesh8


def mesh_2(drawing):
    """MESH"""
    drawing.polygonmesh9 = drawing.sketch.InsertPolygonMesh(1, 1, reals())
    return drawing.polygonmesh9


def integers(*values):
    """An array of integers, as the interface takes it."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_I4, values)


def polyface(drawing):
    """POLYFACE"""
    drawing.polyfacemesh10 = drawing.sketch.InsertPolyFaceMesh(
        4,
        reals(0.0, 0.0, 0.0, 4.0, 0.0, 0.0, 4.0, 3.0, 0.0, 0.0, 3.0, 1.0),
        integers(4, 3),
        integers(1, 2, 3, 4, 1, -2, 3),
    )
    return drawing.polyfacemesh10


def solid(drawing):
    """SOLID"""
    drawing.solid11 = drawing.sketch.InsertSolid(
        reals(0.0, 0.0, 0.0, 2.0, 0.0, 0.0, 0.0, 2.0, 0.0)
    )
    return drawing.solid11


def trace(drawing):
    """TRACE"""
    drawing.trace12 = drawing.sketch.InsertTrace(
        reals(0.0, 0.0, 0.0, 8.0, 0.0, 0.0, 0.0, 1.0, 0.0, 8.0, 1.0, 0.0)
    )
    drawing.trace12.Thickness = 0.25
    return drawing.trace12


def main():
    try:
        drawing = connect()
    except RuntimeError as error:
        return "recording: " + str(error)
    drawing.app.AbortRunningCommand()
    polyline(drawing)
    polyline_2(drawing)
    polyline3d(drawing)
    spline(drawing)
    richline(drawing)
    richline_2(drawing)
    face(drawing)
    mesh(drawing)
    mesh_2(drawing)
    polyface(drawing)
    solid(drawing)
    trace(drawing)
