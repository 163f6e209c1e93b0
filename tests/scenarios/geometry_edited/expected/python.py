def reals(*values):
    """An array of numbers."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_R8, values)


def integers(*values):
    """An array of integers, as the interface takes it."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_I4, values)


def step(drawing):
    """Outside of commands"""
    drawing.polyline1 = drawing.sketch.InsertPolyline2D(reals(), False)
    drawing.polyline1.Color = drawing.app.GetColorByIndex(256)
    drawing.polyline1.Layer = "Walls"
    drawing.polyline1.LineStyle = "Continuous"
    drawing.polyline1.LineScale = 1.0
    drawing.polyline1.LineWeight = constants.iwLnWt_ByLayer
    drawing.polyline1.Thickness = 0.0
    drawing.polyline3d2 = drawing.sketch.InsertPolyline3D(reals(), False)
    drawing.polyline3d2.Color = drawing.app.GetColorByIndex(256)
    drawing.polyline3d2.Layer = "Walls"
    drawing.polyline3d2.LineStyle = "Continuous"
    drawing.polyline3d2.LineScale = 1.0
    drawing.polyline3d2.LineWeight = constants.iwLnWt_ByLayer
    drawing.polyline3d2.Thickness = 0.0
    drawing.spline3 = drawing.sketch.InsertSpline(
        reals(), False, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0
    )
    drawing.spline3.Color = drawing.app.GetColorByIndex(256)
    drawing.spline3.Layer = "Walls"
    drawing.spline3.LineStyle = "Continuous"
    drawing.spline3.LineScale = 1.0
    drawing.spline3.LineWeight = constants.iwLnWt_ByLayer
    drawing.spline3.Thickness = 0.0
    drawing.polygonmesh4 = drawing.sketch.InsertPolygonMesh(0, 0, reals())
    drawing.polygonmesh4.Color = drawing.app.GetColorByIndex(256)
    drawing.polygonmesh4.Layer = "Walls"
    drawing.polygonmesh4.LineStyle = "Continuous"
    drawing.polygonmesh4.LineScale = 1.0
    drawing.polygonmesh4.LineWeight = constants.iwLnWt_ByLayer
    drawing.polygonmesh4.Thickness = 0.0
    drawing.polyfacemesh5 = drawing.sketch.InsertPolyFaceMesh(
        0, reals(), integers(), integers()
    )
    drawing.polyfacemesh5.Color = drawing.app.GetColorByIndex(256)
    drawing.polyfacemesh5.Layer = "Walls"
    drawing.polyfacemesh5.LineStyle = "Continuous"
    drawing.polyfacemesh5.LineScale = 1.0
    drawing.polyfacemesh5.LineWeight = constants.iwLnWt_ByLayer
    drawing.polyfacemesh5.Thickness = 0.0
    drawing.solid6 = drawing.sketch.InsertSolid(reals())
    drawing.solid6.Color = drawing.app.GetColorByIndex(256)
    drawing.solid6.Layer = "Walls"
    drawing.solid6.LineStyle = "Continuous"
    drawing.solid6.LineScale = 1.0
    drawing.solid6.LineWeight = constants.iwLnWt_ByLayer
    drawing.solid6.Thickness = 0.0
    drawing.trace7 = drawing.sketch.InsertTrace(reals())
    drawing.trace7.Color = drawing.app.GetColorByIndex(256)
    drawing.trace7.Layer = "Walls"
    drawing.trace7.LineStyle = "Continuous"
    drawing.trace7.LineScale = 1.0
    drawing.trace7.LineWeight = constants.iwLnWt_ByLayer
    drawing.trace7.Thickness = 0.0
    drawing.face8 = drawing.sketch.InsertFace(reals(), False, False, False, False)
    drawing.face8.Color = drawing.app.GetColorByIndex(256)
    drawing.face8.Layer = "Walls"
    drawing.face8.LineStyle = "Continuous"
    drawing.face8.LineScale = 1.0
    drawing.face8.LineWeight = constants.iwLnWt_ByLayer
    drawing.face8.Thickness = 0.0
    drawing.richline9 = drawing.sketch.InsertRichLine(
        reals(), constants.iwRichLineJustification_Top, 0.0, "", False
    )
    drawing.richline9.Color = drawing.app.GetColorByIndex(256)
    drawing.richline9.Layer = "Walls"
    drawing.richline9.LineStyle = "Continuous"
    drawing.richline9.LineScale = 1.0
    drawing.richline9.LineWeight = constants.iwLnWt_ByLayer
    drawing.richline9.Thickness = 0.0
    drawing.shape10 = drawing.sketch.InsertShape("", 0.0, 0.0, 0.0, 0.0, 0.0)
    drawing.shape10.Color = drawing.app.GetColorByIndex(256)
    drawing.shape10.Layer = "Walls"
    drawing.shape10.LineStyle = "Continuous"
    drawing.shape10.LineScale = 1.0
    drawing.shape10.LineWeight = constants.iwLnWt_ByLayer
    drawing.shape10.Thickness = 0.0


def rotateddimension(drawing):
    """ROTATEDDIMENSION"""
    drawing.rotateddimension13 = drawing.sketch.InsertRotatedDimension(
        reals(0.0, 0.0, 0.0), reals(0.0, 0.0, 0.0), reals(0.0, 0.0, 0.0), "", 0.0
    )
    general = drawing.rotateddimension13.GetGeneralDimension()
    general.Color = drawing.app.GetColorByIndex(256)
    general.Layer = "Walls"
    general.LineStyle = "Continuous"
    general.LineScale = 1.0
    general.LineWeight = constants.iwLnWt_ByLayer
    general.Thickness = 0.0
    return drawing.rotateddimension13


def objects(*values):
    """An array of the interface's objects."""
    return win32com.client.VARIANT(pythoncom.VT_ARRAY | pythoncom.VT_DISPATCH, values)


def step_2(drawing):
    """Outside of commands"""
    _, y = drawing.polyline1.GetVertexCoordinate(2)
    drawing.polyline1.SetVertexCoordinate(2, 1.5, y)
    drawing.polyline1.SetSegmentStartWidth(0, 0.25)
    drawing.polyline1.SetSegmentEndWidth(0, 0.5)
    # AcDbPolyline object modified
    drawing.polyline1.Elevation = 1.0
    drawing.polyline1.GlobalWidth = 0.1
    drawing.polyline1.Closed = True
    drawing.polyline1.LineStyleGeneration = True
    # AcDbPolyline object modified
    drawing.polyline1.Closed = False
    drawing.polyline1.LineStyleGeneration = False
    *_, x, y, _ = drawing.polyline3d2.GetVertexCoordinate(1)
    drawing.polyline3d2.SetVertexCoordinate(1, x, y, 7.0)
    # AcDb3dPolyline object modified
    drawing.polyline3d2.FitSmooth = constants.iwPolyLine3DFitSmooth_Qudratic
    drawing.polyline3d2.Closed = True
    *_, _, y, z = drawing.spline3.GetControlPointCoordinate(0)
    drawing.spline3.SetControlPointCoordinate(0, 3.0, y, z)
    *_, x, _, z = drawing.spline3.GetFitPointCoordinate(3)
    drawing.spline3.SetFitPointCoordinate(3, x, 4.0, z)
    # AcDbSpline object modified
    drawing.spline3.FitTolerance = 0.001
    *_, _, y, z = drawing.polygonmesh4.GetVertexCoordinate(0)
    drawing.polygonmesh4.SetVertexCoordinate(0, 5.0, y, z)
    # AcDbPolygonMesh object modified
    drawing.polygonmesh4.MClosed = True
    drawing.polygonmesh4.MDensity = 6.0
    drawing.polygonmesh4.NDensity = 4.0
    drawing.polygonmesh4.NClosed = False
    drawing.polygonmesh4.FitSmooth = constants.iwPolygonMeshFitSmooth_Bezier
    *_, x, _, z = drawing.polyfacemesh5.GetVertexCoordinate(5)
    drawing.polyfacemesh5.SetVertexCoordinate(5, x, 6.0, z)
    _, y, z = drawing.solid6.GetVertex1Coordinate()
    drawing.solid6.SetVertex1Coordinate(1.0, y, z)
    x, y, _ = drawing.trace7.GetVertex4Coordinate()
    drawing.trace7.SetVertex4Coordinate(x, y, 2.0)
    # AcDbFace object modified
    drawing.face8.Edge1Visible = True
    drawing.face8.Edge4Visible = False
    _, y, z = drawing.face8.GetVertex4Coordinate()
    drawing.face8.SetVertex4Coordinate(1.0, y, z)
    # AcDbMline object modified
    drawing.richline9.Justification = constants.iwRichLineJustification_Zero
    drawing.richline9.Scale = 20.0
    # AcDbShape object modified
    _, y, z = drawing.shape10.GetPosition()
    drawing.shape10.SetPosition(1.0, y, z)
    drawing.shape10.Obliquing = 0.1
    drawing.shape10.Rotation = 0.2
    drawing.shape10.Size = 3.0
    drawing.shape10.WidthFactor = 0.8
    # AcDbRotatedDimension object modified
    general = drawing.rotateddimension13.GetGeneralDimension()
    general.Color = drawing.app.GetColorByIndex(2)
    # AcDbRotatedDimension object modified
    general = drawing.rotateddimension13.GetGeneralDimension()
    general.Layer = "Walls"
    # AcDbRotatedDimension object modified
    general = drawing.rotateddimension13.GetGeneralDimension()
    general.Erased = True
    # AcDbBlockTableRecord object modified
    types = integers()
    entities = objects()
    drawing.blockdefinition15 = drawing.doc.CreateBlockDefinition(
        "Bolt",
        "",
        0.0,
        0.0,
        0.0,
        types,
        entities,
        constants.iwBlockDefinitionEntities_RemoveFromDrawing,
    )
    drawing.blockdefinition15.Erased = True
    # AcDbLayerTableRecord object modified
    layers = drawing.doc.GetLayerManager()
    drawing.layer16 = layers.GetLayer("Hidden édges")
    layers.RemoveLayer(drawing.layer16.Name)


def main():
    try:
        drawing = connect()
    except RuntimeError as error:
        return "recording: " + str(error)
    drawing.app.AbortRunningCommand()
    step(drawing)
    rotateddimension(drawing)
    step_2(drawing)
