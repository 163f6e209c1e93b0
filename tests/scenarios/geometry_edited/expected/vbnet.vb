        Dim polyline1 As Inkwright.PolyLine
        Dim Coordinates1(-1) As Double

        polyline1 = iwSketchManager.InsertPolyline2D( Coordinates1, False )
        polyline1.Color = iwApp.GetColorByIndex( 256 )
        polyline1.Layer = "Walls"
        polyline1.LineStyle = "Continuous"
        polyline1.LineScale = 1.00000000000000
        polyline1.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
        polyline1.Thickness = 0.00000000000000
        Dim polyline3d2 As Inkwright.PolyLine3D
        Dim Coordinates2(-1) As Double

        polyline3d2 = iwSketchManager.InsertPolyline3D( Coordinates2, False )
        polyline3d2.Color = iwApp.GetColorByIndex( 256 )
        polyline3d2.Layer = "Walls"
        polyline3d2.LineStyle = "Continuous"
        polyline3d2.LineScale = 1.00000000000000
        polyline3d2.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
        polyline3d2.Thickness = 0.00000000000000
        Dim spline3 As Inkwright.Spline
        Dim Coordinates3(-1) As Double

        spline3 = iwSketchManager.InsertSpline( Coordinates3, False, 0.00000000000000, 0.00000000000000 ,0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000 )
        spline3.Color = iwApp.GetColorByIndex( 256 )
        spline3.Layer = "Walls"
        spline3.LineStyle = "Continuous"
        spline3.LineScale = 1.00000000000000
        spline3.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
        spline3.Thickness = 0.00000000000000
        Dim polygonmesh4 As Inkwright.PolygonMesh
        Dim Coordinates4(-1) As Double

        polygonmesh4 = iwSketchManager.InsertPolygonMesh( 0, 0, Coordinates4 )
        polygonmesh4.Color = iwApp.GetColorByIndex( 256 )
        polygonmesh4.Layer = "Walls"
        polygonmesh4.LineStyle = "Continuous"
        polygonmesh4.LineScale = 1.00000000000000
        polygonmesh4.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
        polygonmesh4.Thickness = 0.00000000000000
        Dim polyfacemesh5 As Inkwright.PolyFaceMesh
        Dim Coordinates5(-1) As Double
        Dim FaceVerticesCountLongArray5(-1) As Integer
        Dim FaceVerticesLongArray5(-1) As Integer



        polyfacemesh5 = iwSketchManager.InsertPolyFaceMesh( 0, Coordinates5, FaceVerticesCountLongArray5, FaceVerticesLongArray5 )
        polyfacemesh5.Color = iwApp.GetColorByIndex( 256 )
        polyfacemesh5.Layer = "Walls"
        polyfacemesh5.LineStyle = "Continuous"
        polyfacemesh5.LineScale = 1.00000000000000
        polyfacemesh5.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
        polyfacemesh5.Thickness = 0.00000000000000
        Dim solid6 As Inkwright.Solid
        Dim Coordinates6(-1) As Double

        solid6 = iwSketchManager.InsertSolid( Coordinates6 )
        solid6.Color = iwApp.GetColorByIndex( 256 )
        solid6.Layer = "Walls"
        solid6.LineStyle = "Continuous"
        solid6.LineScale = 1.00000000000000
        solid6.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
        solid6.Thickness = 0.00000000000000
        Dim trace7 As Inkwright.Trace
        Dim Coordinates7(-1) As Double

        trace7 = iwSketchManager.InsertTrace( Coordinates7 )
        trace7.Color = iwApp.GetColorByIndex( 256 )
        trace7.Layer = "Walls"
        trace7.LineStyle = "Continuous"
        trace7.LineScale = 1.00000000000000
        trace7.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
        trace7.Thickness = 0.00000000000000
        Dim face8 As Inkwright.Face
        Dim Coordinates8(-1) As Double

        face8 = iwSketchManager.InsertFace( Coordinates8, False, False, False, False )
        face8.Color = iwApp.GetColorByIndex( 256 )
        face8.Layer = "Walls"
        face8.LineStyle = "Continuous"
        face8.LineScale = 1.00000000000000
        face8.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
        face8.Thickness = 0.00000000000000
        Dim richline9 As Inkwright.RichLine
        Dim Coordinates9(-1) As Double

        richline9 = iwSketchManager.InsertRichLine( Coordinates9, Inkwright.iwRichLineJustification_e.iwRichLineJustification_Top, 0.00000000000000, "", False )
        richline9.Color = iwApp.GetColorByIndex( 256 )
        richline9.Layer = "Walls"
        richline9.LineStyle = "Continuous"
        richline9.LineScale = 1.00000000000000
        richline9.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
        richline9.Thickness = 0.00000000000000
        Dim shape10 As Inkwright.Shape
        shape10 = iwSketchManager.InsertShape( "", 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000 )
        shape10.Color = iwApp.GetColorByIndex( 256 )
        shape10.Layer = "Walls"
        shape10.LineStyle = "Continuous"
        shape10.LineScale = 1.00000000000000
        shape10.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
        shape10.Thickness = 0.00000000000000
        Dim embeddedobject11 As Inkwright.EmbeddedObject
        Dim viewport12 As Inkwright.Viewport
        Dim rotateddimension13 As Inkwright.RotatedDimension
        If 1 Then
            rotateddimension13 = iwSketchManager.InsertRotatedDimension( New double(){0.00000000000000,0.00000000000000,0.00000000000000}, New double(){0.00000000000000,0.00000000000000,0.00000000000000}, new double(){0.00000000000000,0.00000000000000,0.00000000000000}, "", 0.00000000000000 )
                Dim generalDimension1 As Inkwright.GeneralDimension = rotateddimension13.GetGeneralDimension()
            generalDimension1.Color = iwApp.GetColorByIndex( 256 )
            generalDimension1.Layer = "Walls"
            generalDimension1.LineStyle = "Continuous"
            generalDimension1.LineScale = 1.00000000000000
            generalDimension1.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
            generalDimension1.Thickness = 0.00000000000000
        End If

        Dim modelnamedview14 As Inkwright.ModelNamedView
        If 1 Then
            Dim X10 As Double
            Dim Y10 As Double
            polyline1.GetVertexCoordinate( 2, X10, Y10 )
            X10 = 1.50000000000000
            polyline1.SetVertexCoordinate( 2, X10, Y10 )
        End If

        If 1 Then
            polyline1.SetSegmentStartWidth( 0, 0.25000000000000 )
        End If

        If 1 Then
            polyline1.SetSegmentEndWidth( 0, 0.50000000000000 )
        End If

        ' AcDbPolyline object modified
        If 1 Then
            polyline1.Elevation = 1.00000000000000
            polyline1.GlobalWidth = 0.10000000000000
            polyline1.Closed = True
            polyline1.LineStyleGeneration = True
        End If

        ' AcDbPolyline object modified
        If 1 Then
            polyline1.Closed = False
            polyline1.LineStyleGeneration = False
        End If

        If 1 Then
            Dim X11 As Double
            Dim Y11 As Double
            Dim Z11 As Double
            polyline3d2.GetVertexCoordinate( 1, X11, Y11, Z11 )
            Z11 = 7.00000000000000
            polyline3d2.SetVertexCoordinate( 1, X11, Y11, Z11 )
        End If

        ' AcDb3dPolyline object modified
        If 1 Then
            polyline3d2.FitSmooth = Inkwright.iwPolyLine3DFitSmooth_e.iwPolyLine3DFitSmooth_Qudratic
            polyline3d2.Closed = True
        End If

        If 1 Then
            Dim X12 As Double
            Dim Y12 As Double
            Dim Z12 As Double
            spline3.GetControlPointCoordinate( 0, X12, Y12, Z12 )
            X12 = 3.00000000000000
            spline3.SetControlPointCoordinate( 0, X12, Y12, Z12 )
        End If

        If 1 Then
            Dim X13 As Double
            Dim Y13 As Double
            Dim Z13 As Double
            spline3.GetFitPointCoordinate( 3, X13, Y13, Z13 )
            Y13 = 4.00000000000000
            spline3.SetFitPointCoordinate( 3, X13, Y13, Z13 )
        End If

        ' AcDbSpline object modified
        If 1 Then
            spline3.FitTolerance = 0.00100000000000
        End If

        If 1 Then
            Dim X14 As Double
            Dim Y14 As Double
            Dim Z14 As Double
            polygonmesh4.GetVertexCoordinate( 0, X14, Y14, Z14 )
            X14 = 5.00000000000000
            polygonmesh4.SetVertexCoordinate( 0, X14, Y14, Z14 )
        End If

        ' AcDbPolygonMesh object modified
        If 1 Then
            polygonmesh4.MClosed = True
            polygonmesh4.MDensity = 6.00000000000000
            polygonmesh4.NDensity = 4.00000000000000
            polygonmesh4.NClosed = False
            polygonmesh4.FitSmooth = Inkwright.iwPolygonMeshFitSmooth_e.iwPolygonMeshFitSmooth_Bezier
        End If

        If 1 Then
            Dim X15 As Double
            Dim Y15 As Double
            Dim Z15 As Double
            polyfacemesh5.GetVertexCoordinate( 5, X15, Y15, Z15 )
            Y15 = 6.00000000000000
            polyfacemesh5.SetVertexCoordinate( 5, X15, Y15, Z15 )
        End If

        If 1 Then
            Dim X16 As Double
            Dim Y16 As Double
            Dim Z16 As Double
            solid6.GetVertex1Coordinate( X16, Y16, Z16 )
            X16 = 1.00000000000000
            solid6.SetVertex1Coordinate( X16, Y16, Z16 )
        End If

        If 1 Then
            Dim X17 As Double
            Dim Y17 As Double
            Dim Z17 As Double
            trace7.GetVertex4Coordinate( X17, Y17, Z17 )
            Z17 = 2.00000000000000
            trace7.SetVertex4Coordinate( X17, Y17, Z17 )
        End If

        ' AcDbFace object modified
        If 1 Then
            face8.Edge1Visible = True
            face8.Edge4Visible = False
        End If

        If 1 Then
            Dim X18 As Double
            Dim Y18 As Double
            Dim Z18 As Double
            face8.GetVertex4Coordinate( X18, Y18, Z18 )
            X18 = 1.00000000000000
            face8.SetVertex4Coordinate( X18, Y18, Z18 )
        End If

        ' AcDbMline object modified
        If 1 Then
            richline9.Justification = Inkwright.iwRichLineJustification_e.iwRichLineJustification_Zero
            richline9.Scale = 20.00000000000000
        End If

        ' AcDbShape object modified
        If 1 Then
            Dim X19 As Double
            Dim Y19 As Double
            Dim Z19 As Double
            shape10.GetPosition( X19, Y19, Z19 )
            X19 = 1.00000000000000
            shape10.SetPosition( X19, Y19, Z19 )
            shape10.Obliquing = 0.10000000000000
            shape10.Rotation = 0.20000000000000
            shape10.Size = 3.00000000000000
            shape10.WidthFactor = 0.80000000000000
        End If

        ' AcDbOle2Frame object modified
        If 1 Then
            embeddedobject11.Height = 2.00000000000000
            Dim X20 As Double
            Dim Y20 As Double
            Dim Z20 As Double
            embeddedobject11.GetPosition( X20, Y20, Z20 )
            Y20 = 1.00000000000000
            embeddedobject11.SetPosition( X20, Y20, Z20 )
            embeddedobject11.Width = 3.00000000000000
            embeddedobject11.PrintQuality = Inkwright.iwEmbeddedObjectPrintQuality_e.iwEmbeddedObjectPrintQuality_HighGraphics
        End If

        ' AcDbViewport object modified
        If 1 Then
            Dim X21 As Double
            Dim Y21 As Double
            Dim Z21 As Double
            viewport12.GetCenter( X21, Y21, Z21 )
            X21 = 5.00000000000000
            viewport12.SetCenter( X21, Y21, Z21 )
            viewport12.Height = 4.00000000000000
            viewport12.CCSPerViewport = True
            viewport12.CustomScale = 0.50000000000000
            viewport12.DisplayLocked = False
            viewport12.IsOn = True
            viewport12.ShadePrintStyle = Inkwright.iwViewportShadePrintStyle_e.iwViewportShadePrintStyle_Hidden
            viewport12.StandardScale = Inkwright.iwViewportStandardScale_e.iwViewportStandardScale_1_2
        End If

        ' AcDbRotatedDimension object modified
            Dim generalDimension22 As Inkwright.GeneralDimension = rotateddimension13.GetGeneralDimension()
        generalDimension22.Color = iwApp.GetColorByIndex( 2 )
        ' AcDbRotatedDimension object modified
        If 1 Then
            Dim generalDimension23 As Inkwright.GeneralDimension = rotateddimension13.GetGeneralDimension()
            generalDimension23.Layer = "Walls"
        End If

        ' AcDbRotatedDimension object modified
        If 1 Then
            Dim generalDimension25 As Inkwright.GeneralDimension = rotateddimension13.GetGeneralDimension()
            generalDimension25.Erased = True
        End If

        ' AcDbBlockTableRecord object modified
        Dim blockdefinition15 As Inkwright.BlockDefinition
        If 1 Then

            Dim objects_27 As DispatchWrapper()
            objects_27 = New DispatchWrapper( -1 ) {}

            Dim objecttypes_27 As Integer() = New Integer( -1 ) {}

             blockdefinition15 = iwDoc.CreateBlockDefinition( "Bolt", "", 0.00000000000000, 0.00000000000000, 0.00000000000000, objecttypes_27, objects_27, Inkwright.iwBlockDefinitionEntities_e.iwBlockDefinitionEntities_RemoveFromDrawing )
            blockdefinition15.Erased = True
        End If

        Dim iwLayerManager_1 As Inkwright.LayerManager = iwDoc.GetLayerManager()
        Dim layer16 As Inkwright.Layer = iwLayerManager_1.GetLayer( "0" )
        ' AcDbLayerTableRecord object modified
        If 1 Then
            Dim iwLayerManager28 As Inkwright.LayerManager = iwDoc.GetLayerManager()
            Dim layerName28 As String = layer16.Name
            iwLayerManager28.RemoveLayer( layerName28 )
        End If

        ' AcDbViewTableRecord object modified
        If 1 Then
            iwViewManager.RemoveModelNamedView( "Front" )
        End If

        Dim modelnamedview17 As Inkwright.ModelNamedView
        ' AcDbViewTableRecord object modified
        If 1 Then
            iwViewManager.RemoveSheetNamedView( "Title block" )
        End If

