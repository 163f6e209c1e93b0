def reals(*values):
    """An array of numbers."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_R8, values)


def polyline(drawing):
    """POLYLINE"""
    drawing.polyline1 = drawing.sketch.InsertPolyline2D(
        reals(0.0, 0.0, 40.0, 0.0, 40.0, 30.5, 0.0, 30.5), True
    )
    drawing.polyline1.SetSegmentAngle(1, 1.5707963267948966)
    drawing.polyline1.SetSegmentAngle(3, -3.141592653589793)
    drawing.polyline1.SetSegmentStartWidth(0, 0.0)
    drawing.polyline1.SetSegmentEndWidth(0, 0.5)
    drawing.polyline1.SetSegmentStartWidth(1, 0.5)
    drawing.polyline1.SetSegmentEndWidth(1, 0.5)
    drawing.polyline1.SetSegmentStartWidth(2, 0.0)
    drawing.polyline1.SetSegmentEndWidth(2, 0.0)
    drawing.polyline1.SetSegmentStartWidth(3, 0.0)
    drawing.polyline1.SetSegmentEndWidth(3, 0.0)


def polyline_2(drawing):
    """POLYLINE"""
    drawing.polyline2 = drawing.sketch.InsertPolyline2D(
        reals(60.0, 0.0, 80.0, 45.25), False
    )
    drawing.polyline2.GlobalWidth = 1.25


def line(drawing):
    """LINE"""
    drawing.line3 = drawing.sketch.InsertLine(80.0, 20.0, 0.0, 90.0, 20.0, 0.0)
    return drawing.line3


def arc(drawing):
    """ARC"""
    drawing.circlearc4 = drawing.sketch.InsertArc(90.0, 25.0, 0.0, 5.0, 0.0, 1.5)
    return drawing.circlearc4


def polyline_3(drawing):
    """POLYLINE"""
    drawing.polyline5 = drawing.sketch.InsertPolyline2D(
        reals(95.0, 25.0, 95.0, 40.0), False
    )
    return drawing.polyline5


def circle(drawing):
    """CIRCLE"""
    drawing.circle6 = drawing.sketch.InsertCircle(90.0, 25.0, 0.0, 2.0)
    return drawing.circle6


def command_3dpolyline(drawing):
    """3DPOLYLINE"""
    drawing.polyline3d7 = drawing.sketch.InsertPolyline3D(
        reals(0.0, 60.0, 1.0, 20.0, 60.0, 2.0, 20.0, 80.0, 3.0), False
    )
    return drawing.polyline3d7


def editpolyline(drawing):
    """EDITPOLYLINE"""
    drawing.polyline1.Fit()


def editpolyline_2(drawing):
    """EDITPOLYLINE"""
    drawing.polyline1.Decurve()


def editpolyline_3(drawing):
    """EDITPOLYLINE"""
    drawing.polyline1.Spline()


def editpolyline_4(drawing):
    """EDITPOLYLINE"""
    drawing.polyline2.JoinLine(drawing.line3)
    drawing.polyline2.JoinCircleArc(drawing.circlearc4)
    drawing.polyline2.JoinPolyLine(drawing.polyline5)


def editpolyline_5(drawing):
    """EDITPOLYLINE"""
    drawing.polyline1.AddVertexAfter(1, 40.0, 12.25)
    drawing.polyline1.SetVertexCoordinate(2, 41.0, 1e-07)
    drawing.polyline1.SetSegmentStartWidth(0, 0.25)
    drawing.polyline1.SetSegmentEndWidth(0, 0.75)
    drawing.polyline1.Straighten(1, 3)
    drawing.polyline1.Split(2)


def editpolyline_6(drawing):
    """EDITPOLYLINE"""
    drawing.polyline3d7.AddVertexAfter(0, 10.0, 60.0, 1.5)
    drawing.polyline3d7.SetVertexCoordinate(1, 10.0, 61.0, 1.5)
    drawing.polyline3d7.Split(2)


def gripedit(drawing):
    """GRIPEDIT"""
    drawing.polyline3d7.AddVertexAfter(1, 20.0, 70.0, 2.5)
    drawing.polyline3d7.DeleteVertex(0)


def editpolyline_7(drawing):
    """EDITPOLYLINE"""
    drawing.polyline8, _ = drawing.doc.GetObjectByHandle("70")
    drawing.polyline8.Spline()


def attachimage(drawing):
    """ATTACHIMAGE"""
    drawing.referenceimage9 = drawing.sketch.InsertPicture(
        "C:\\site\\aerial.png", 300.0, 20.0, 0.0, 0.375, 1.5
    )
    drawing.referenceimage9.SetClipBoundary(
        reals(300.0, 20.0, 340.5, 20.0, 340.5, 50.0, 300.0, 50.0)
    )
    return drawing.referenceimage9


def clipimage(drawing):
    """CLIPIMAGE"""
    drawing.referenceimage9.RemoveClipBoundary()


def main():
    try:
        drawing = connect()
    except RuntimeError as error:
        return "recording: " + str(error)
    drawing.app.AbortRunningCommand()
    polyline(drawing)
    polyline_2(drawing)
    line(drawing)
    arc(drawing)
    polyline_3(drawing)
    circle(drawing)
    command_3dpolyline(drawing)
    editpolyline(drawing)
    editpolyline_2(drawing)
    editpolyline_3(drawing)
    editpolyline_4(drawing)
    editpolyline_5(drawing)
    editpolyline_6(drawing)
    gripedit(drawing)
    editpolyline_7(drawing)
    attachimage(drawing)
    clipimage(drawing)
