def line(drawing):
    """LINE"""
    drawing.line1 = drawing.sketch.InsertLine(0.0, 0.0, 0.0, 20.0, 0.0, 0.0)
    drawing.line2 = drawing.sketch.InsertLine(20.0, 0.0, 0.0, 20.0, 12.0, 0.0)
    drawing.line3 = drawing.sketch.InsertLine(20.0, 12.0, 0.0, 0.0, 12.0, 0.0)
    drawing.line4 = drawing.sketch.InsertLine(0.0, 12.0, 0.0, 0.0, 0.0, 0.0)


def line_2(drawing):
    """LINE"""
    drawing.line5 = drawing.sketch.InsertLine(8.0, -3.0, 0.0, 8.0, 15.0, 0.0)
    drawing.line6 = drawing.sketch.InsertLine(14.0, -3.0, 0.0, 14.0, 15.0, 0.0)


def circle(drawing):
    """CIRCLE"""
    drawing.circle7 = drawing.sketch.InsertCircle(8.0, 6.0, 0.0, 3.0)
    return drawing.circle7


def reals(*values):
    """An array of numbers."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_R8, values)


def pline(drawing):
    """PLINE"""
    drawing.polyline8 = drawing.sketch.InsertPolyline2D(
        reals(0.0, 20.0, 20.0, 20.0, 20.0, 24.0), False
    )
    return drawing.polyline8


def ellipse(drawing):
    """ELLIPSE"""
    drawing.ellipsearc9 = drawing.sketch.InsertEllipseDistanceToOtherAxis(
        17.0, 30.0, 5.0, 30.0, 2.0
    )
    return drawing.ellipsearc9


def command_3dpoly(drawing):
    """3DPOLY"""
    drawing.polyline3d10 = drawing.sketch.InsertPolyline3D(
        reals(0.0, 40.0, 1.0, 20.0, 40.0, 1.0, 20.0, 44.0, 3.0), False
    )
    return drawing.polyline3d10


def spline(drawing):
    """SPLINE"""
    drawing.spline11 = drawing.sketch.InsertSpline(
        reals(0.0, 50.0, 0.0, 10.0, 54.0, 0.0, 20.0, 50.0, 0.0),
        False,
        1.0,
        0.0,
        0.0,
        1.0,
        0.0,
        0.0,
    )
    return drawing.spline11


def xline(drawing):
    """XLINE"""
    drawing.infiniteline12 = drawing.sketch.InsertInfiniteLine(
        14.0, 60.0, 0.0, 16.0, 63.0, 0.0
    )
    return drawing.infiniteline12


def objects(*values):
    """An array of the interface's objects."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_DISPATCH, values)


def selected(drawing):
    """What was selected last: each object with its type."""
    selection = drawing.doc.GetSelectionManager()
    previous = constants.iwSelectionSetType_Previous
    count = selection.GetSelectedObjectCount(previous)
    return [selection.GetSelectedObject(previous, index) for index in range(count)]


def find_piece(drawing, kind, place, numbers_of, numbers):
    """The object at the place that has these numbers, which a trim has left there."""
    tolerance = 0.1
    x, y, z = place
    selection = drawing.doc.GetSelectionManager()
    selection.GetSelectionFilter().Active = False
    selection.ClearSelections(constants.iwSelectionSetType_Current)
    selection.ClearSelections(constants.iwSelectionSetType_Previous)
    utility = drawing.app.GetMathUtility()
    first = utility.CreatePoint(x + tolerance, y + tolerance, z)
    second = utility.CreatePoint(x - tolerance, y - tolerance, z)
    selection.SelectByWindow(first, second, True)
    for entity in [entity for entity, found in selected(drawing) if found == kind]:
        pairs = zip(numbers_of(entity), numbers)
        if all(abs(value - number) < tolerance for value, number in pairs):
            return entity


def line_numbers(line):
    """What tells a line from others."""
    return (*line.GetFirstPoint(), *line.GetSecondPoint())


def circlearc_numbers(arc):
    """What tells an arc from others."""
    return (*arc.GetCenter(), arc.Radius, arc.StartAngle, arc.EndAngle)


def polyline_numbers(polyline):
    """What tells a polyline of a plane from others."""
    return (*polyline.GetVertexCoordinate(0), *polyline.GetVertexCoordinate(1))


def ellipsearc_numbers(arc):
    """What tells an elliptic arc from others."""
    return (*arc.GetCenter(), arc.MajorRadius, arc.MinorRadius)


def polyline3d_numbers(polyline):
    """What tells a polyline of space from others."""
    first = polyline.GetVertexCoordinate(0)
    second = polyline.GetVertexCoordinate(1)
    return (*first[-3:], *second[-3:])


def spline_numbers(spline):
    """What tells a spline from others."""
    first = spline.GetControlPointCoordinate(0)
    second = spline.GetControlPointCoordinate(1)
    return (*first[-3:], *second[-3:])


def ray_numbers(ray):
    """What tells a ray from others."""
    return (*ray.GetBasePoint(), *ray.GetThroughPoint())


def trim(drawing):
    """TRIM"""
    drawing.doc.SetCommandOptionInt16(constants.iwCommandOptionInt16_EnblEdgeExtd, 0)
    drawing.sketch.TrimEntities(
        objects(drawing.line5, drawing.line6),
        objects(
            drawing.line1,
            drawing.line3,
            drawing.circle7,
            drawing.polyline8,
            drawing.ellipsearc9,
            drawing.polyline3d10,
            drawing.spline11,
            drawing.infiniteline12,
        ),
        reals(
            *(11.0, 0.0, 0.0),
            *(11.25, 12.0, 0.0),
            *(11.0, 6.0, 0.0),
            *(11.0, 20.0, 0.0),
            *(11.0, 32.0, 0.0),
            *(11.0, 40.0, 1.0),
            *(11.0, 51.0, 0.0),
            *(8.0, 51.0, 0.0),
        ),
    )
    drawing.line13 = find_piece(
        drawing,
        constants.iwLineType,
        (14.0, 0.0, 0.0),
        line_numbers,
        (14.0, 0.0, 0.0, 20.0, 0.0, 0.0),
    )
    drawing.line14 = find_piece(
        drawing,
        constants.iwLineType,
        (8.0, 12.0, 0.0),
        line_numbers,
        (8.0, 12.0, 0.0, 0.0, 12.0, 0.0),
    )
    drawing.circlearc15 = find_piece(
        drawing,
        constants.iwCircleArcType,
        (8.0, 9.0, 0.0),
        circlearc_numbers,
        (8.0, 6.0, 0.0, 3.0, 1.5707963267948966, 4.71238898038469),
    )
    drawing.polyline16 = find_piece(
        drawing,
        constants.iwPolyLineType,
        (14.0, 20.0, 0.0),
        polyline_numbers,
        (14.0, 20.0, 20.0, 20.0),
    )
    drawing.ellipsearc17 = find_piece(
        drawing,
        constants.iwEllipseArcType,
        (17.0, 30.0, 0.0),
        ellipsearc_numbers,
        (11.0, 30.0, 0.0, 6.0, 2.0),
    )
    drawing.polyline3d18 = find_piece(
        drawing,
        constants.iwPolyLine3DType,
        (14.0, 40.0, 1.0),
        polyline3d_numbers,
        (14.0, 40.0, 1.0, 20.0, 40.0, 1.0),
    )
    drawing.spline19 = find_piece(
        drawing,
        constants.iwSplineType,
        (14.0, 50.0, 0.0),
        spline_numbers,
        (14.0, 50.0, 0.0, 16.0, 52.0, 0.0),
    )
    drawing.ray20 = find_piece(
        drawing,
        constants.iwRayType,
        (14.0, 60.0, 0.0),
        ray_numbers,
        (14.0, 60.0, 0.0, 15.0, 61.5, 0.0),
    )


def properties(drawing):
    """PROPERTIES"""
    # AcDbLine object modified
    drawing.line13.Layer = "Walls"
    # AcDbArc object modified
    drawing.circlearc15.Layer = "Walls"
    # AcDbPolyline object modified
    drawing.polyline16.Layer = "Walls"


def properties_2(drawing):
    """PROPERTIES"""
    # AcDbEllipse object modified
    drawing.ellipsearc17.Layer = "Axes"
    # AcDb3dPolyline object modified
    drawing.polyline3d18.Layer = "Axes"


def erase(drawing):
    """ERASE"""
    drawing.line14.Erased = True


def extend(drawing):
    """EXTEND"""
    drawing.doc.SetCommandOptionInt16(constants.iwCommandOptionInt16_EnblEdgeExtd, 0)
    drawing.sketch.ExtendEntities(
        objects(drawing.line6),
        objects(drawing.line1, drawing.circlearc15),
        reals(7.5, 0.0, 0.0, 8.0, 3.0, 0.0),
    )


def trim_2(drawing):
    """TRIM"""
    drawing.doc.SetCommandOptionInt16(constants.iwCommandOptionInt16_EnblEdgeExtd, 0)
    drawing.sketch.TrimEntities(
        objects(drawing.line2), objects(drawing.line5), reals(8.0, 14.5, 0.0)
    )


def fillet(drawing):
    """FILLET"""
    drawing.doc.SetCommandOptionDouble(constants.iwCommandOptionDouble_SetFltRad, 2.5)
    drawing.sketch.FilletEntities(
        reals(20.0, 10.0, 0.0),
        objects(drawing.line2),
        reals(18.0, 12.0, 0.0),
        objects(drawing.line3),
    )


def fillet_2(drawing):
    """FILLET"""
    drawing.doc.SetCommandOptionDouble(constants.iwCommandOptionDouble_SetFltRad, 2.5)
    drawing.sketch.FilletEntities(
        reals(5.0, 6.0, 0.0),
        objects(drawing.circlearc15),
        reals(15.5, 20.0, 0.0),
        objects(drawing.polyline16),
    )


def chamfer(drawing):
    """CHAMFER"""
    drawing.doc.SetCommandOptionDouble(constants.iwCommandOptionDouble_SetChmfDst1, 1.5)
    drawing.doc.SetCommandOptionDouble(constants.iwCommandOptionDouble_SetChmfDst2, 2.0)
    drawing.doc.SetCommandOptionDouble(constants.iwCommandOptionDouble_SetChmfLen, 3.0)
    drawing.doc.SetCommandOptionDouble(
        constants.iwCommandOptionDouble_SetChmfAng, 0.7853981633974483
    )
    drawing.doc.SetCommandOptionInt16(constants.iwCommandOptionInt16_EnblChmfAng, 1)
    drawing.doc.SetCommandOptionInt16(constants.iwCommandOptionInt16_EnblFltTrm, 0)
    drawing.sketch.ChamferEntities(
        reals(0.0, 1.25, 0.0),
        objects(drawing.line4),
        reals(1.5, 0.0, 0.0),
        objects(drawing.line1),
    )


def main():
    try:
        drawing = connect()
    except RuntimeError as error:
        return "recording: " + str(error)
    drawing.app.AbortRunningCommand()
    line(drawing)
    line_2(drawing)
    circle(drawing)
    pline(drawing)
    ellipse(drawing)
    command_3dpoly(drawing)
    spline(drawing)
    xline(drawing)
    trim(drawing)
    properties(drawing)
    properties_2(drawing)
    erase(drawing)
    extend(drawing)
    trim_2(drawing)
    fillet(drawing)
    fillet_2(drawing)
    chamfer(drawing)
