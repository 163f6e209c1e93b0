
Imports System.Runtime.InteropServices


Public Class recording

    Sub Run(ByVal iwApp As Inkwright.Application)

        Dim iwDoc As Inkwright.Document
        iwDoc = iwApp.GetActiveDocument()
        If iwDoc Is Nothing Then
            Return
        End If

        Dim iwModel As Inkwright.Model
        iwModel = iwDoc.GetModel()
        If iwModel Is Nothing Then
            Return
        End If

        Dim iwSketchManager As Inkwright.SketchManager
        iwSketchManager = iwModel.GetSketchManager()
        If iwSketchManager Is Nothing Then
            Return
        End If

        Dim iwSheet As Inkwright.Sheet
        Dim iwVarSheets As Object
        iwVarSheets = iwDoc.GetSheets()
        iwSheet = iwVarSheets(1)
        If iwSheet Is Nothing Then
            Return
        End If

        Dim iwViewManager As Inkwright.ViewManager
        iwViewManager = iwDoc.GetViewManager()
        If iwViewManager Is Nothing Then
            Return
        End If

        Dim polyline1 As Inkwright.PolyLine
        Dim polyline3d2 As Inkwright.PolyLine3D
        Dim spline3 As Inkwright.Spline
        Dim polygonmesh4 As Inkwright.PolygonMesh
        Dim polyfacemesh5 As Inkwright.PolyFaceMesh
        Dim solid6 As Inkwright.Solid
        Dim trace7 As Inkwright.Trace
        Dim face8 As Inkwright.Face
        Dim richline9 As Inkwright.RichLine
        Dim shape10 As Inkwright.Shape
        Dim embeddedobject11 As Inkwright.EmbeddedObject
        Dim viewport12 As Inkwright.Viewport
        Dim rotateddimension13 As Inkwright.RotatedDimension
        rotateddimension13 = iwSketchManager.InsertRotatedDimension( New double(){0.00000000000000,0.00000000000000,0.00000000000000}, New double(){0.00000000000000,0.00000000000000,0.00000000000000}, new double(){0.00000000000000,0.00000000000000,0.00000000000000}, "", 0.00000000000000 )
            Dim generalDimension1 As Inkwright.GeneralDimension = rotateddimension13.GetGeneralDimension()
        generalDimension1.Color = iwApp.GetColorByIndex( 256 )
        generalDimension1.Layer = "Walls"
        generalDimension1.LineStyle = "Continuous"
        generalDimension1.LineScale = 1.00000000000000
        generalDimension1.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
        generalDimension1.Thickness = 0.00000000000000
        Dim modelnamedview14 As Inkwright.ModelNamedView
        If 1 Then
            Dim X2 As Double
            Dim Y2 As Double
            polyline1.GetVertexCoordinate( 2, X2, Y2 )
            X2 = 1.50000000000000
            polyline1.SetVertexCoordinate( 2, X2, Y2 )
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
            Dim X3 As Double
            Dim Y3 As Double
            Dim Z3 As Double
            polyline3d2.GetVertexCoordinate( 1, X3, Y3, Z3 )
            Z3 = 7.00000000000000
            polyline3d2.SetVertexCoordinate( 1, X3, Y3, Z3 )
        End If

        ' AcDb3dPolyline object modified
        If 1 Then
            polyline3d2.FitSmooth = Inkwright.iwPolyLine3DFitSmooth_e.iwPolyLine3DFitSmooth_Qudratic
            polyline3d2.Closed = True
        End If

        If 1 Then
            Dim X4 As Double
            Dim Y4 As Double
            Dim Z4 As Double
            spline3.GetControlPointCoordinate( 0, X4, Y4, Z4 )
            X4 = 3.00000000000000
            spline3.SetControlPointCoordinate( 0, X4, Y4, Z4 )
        End If

        If 1 Then
            Dim X5 As Double
            Dim Y5 As Double
            Dim Z5 As Double
            spline3.GetFitPointCoordinate( 3, X5, Y5, Z5 )
            Y5 = 4.00000000000000
            spline3.SetFitPointCoordinate( 3, X5, Y5, Z5 )
        End If

        ' AcDbSpline object modified
        If 1 Then
            spline3.FitTolerance = 0.00100000000000
        End If

        If 1 Then
            Dim X6 As Double
            Dim Y6 As Double
            Dim Z6 As Double
            polygonmesh4.GetVertexCoordinate( 0, X6, Y6, Z6 )
            X6 = 5.00000000000000
            polygonmesh4.SetVertexCoordinate( 0, X6, Y6, Z6 )
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
            Dim X7 As Double
            Dim Y7 As Double
            Dim Z7 As Double
            polyfacemesh5.GetVertexCoordinate( 5, X7, Y7, Z7 )
            Y7 = 6.00000000000000
            polyfacemesh5.SetVertexCoordinate( 5, X7, Y7, Z7 )
        End If

        If 1 Then
            Dim X8 As Double
            Dim Y8 As Double
            Dim Z8 As Double
            solid6.GetVertex1Coordinate( X8, Y8, Z8 )
            X8 = 1.00000000000000
            solid6.SetVertex1Coordinate( X8, Y8, Z8 )
        End If

        If 1 Then
            Dim X9 As Double
            Dim Y9 As Double
            Dim Z9 As Double
            trace7.GetVertex4Coordinate( X9, Y9, Z9 )
            Z9 = 2.00000000000000
            trace7.SetVertex4Coordinate( X9, Y9, Z9 )
        End If

        ' AcDbFace object modified
        If 1 Then
            face8.Edge1Visible = True
            face8.Edge4Visible = False
        End If

        If 1 Then
            Dim X10 As Double
            Dim Y10 As Double
            Dim Z10 As Double
            face8.GetVertex4Coordinate( X10, Y10, Z10 )
            X10 = 1.00000000000000
            face8.SetVertex4Coordinate( X10, Y10, Z10 )
        End If

        ' AcDbMline object modified
        If 1 Then
            richline9.Justification = Inkwright.iwRichLineJustification_e.iwRichLineJustification_Zero
            richline9.Scale = 20.00000000000000
        End If

        ' AcDbShape object modified
        If 1 Then
            Dim X11 As Double
            Dim Y11 As Double
            Dim Z11 As Double
            shape10.GetPosition( X11, Y11, Z11 )
            X11 = 1.00000000000000
            shape10.SetPosition( X11, Y11, Z11 )
            shape10.Obliquing = 0.10000000000000
            shape10.Rotation = 0.20000000000000
            shape10.Size = 3.00000000000000
            shape10.WidthFactor = 0.80000000000000
        End If

        ' AcDbOle2Frame object modified
        If 1 Then
            embeddedobject11.Height = 2.00000000000000
            Dim X12 As Double
            Dim Y12 As Double
            Dim Z12 As Double
            embeddedobject11.GetPosition( X12, Y12, Z12 )
            Y12 = 1.00000000000000
            embeddedobject11.SetPosition( X12, Y12, Z12 )
            embeddedobject11.Width = 3.00000000000000
            embeddedobject11.PrintQuality = Inkwright.iwEmbeddedObjectPrintQuality_e.iwEmbeddedObjectPrintQuality_HighGraphics
        End If

        ' AcDbViewport object modified
        If 1 Then
            Dim X13 As Double
            Dim Y13 As Double
            Dim Z13 As Double
            viewport12.GetCenter( X13, Y13, Z13 )
            X13 = 5.00000000000000
            viewport12.SetCenter( X13, Y13, Z13 )
            viewport12.Height = 4.00000000000000
            viewport12.CCSPerViewport = True
            viewport12.CustomScale = 0.50000000000000
            viewport12.DisplayLocked = False
            viewport12.IsOn = True
            viewport12.ShadePrintStyle = Inkwright.iwViewportShadePrintStyle_e.iwViewportShadePrintStyle_Hidden
            viewport12.StandardScale = Inkwright.iwViewportStandardScale_e.iwViewportStandardScale_1_2
        End If

        ' AcDbRotatedDimension object modified
            Dim generalDimension14 As Inkwright.GeneralDimension = rotateddimension13.GetGeneralDimension()
        generalDimension14.Color = iwApp.GetColorByIndex( 2 )
        ' AcDbRotatedDimension object modified
        If 1 Then
            Dim generalDimension15 As Inkwright.GeneralDimension = rotateddimension13.GetGeneralDimension()
            generalDimension15.Layer = "Walls"
        End If

        ' AcDbRotatedDimension object modified
        If 1 Then
            Dim generalDimension17 As Inkwright.GeneralDimension = rotateddimension13.GetGeneralDimension()
            generalDimension17.Erased = True
        End If

        ' AcDbBlockTableRecord object modified
        Dim blockdefinition15 As Inkwright.BlockDefinition
        If 1 Then
            blockdefinition15.Erased = True
        End If

        Dim iwLayerManager_1 As Inkwright.LayerManager = iwDoc.GetLayerManager()
        Dim layer16 As Inkwright.Layer = iwLayerManager_1.GetLayer( "0" )
        ' AcDbLayerTableRecord object modified
        If 1 Then
            Dim iwLayerManager19 As Inkwright.LayerManager = iwDoc.GetLayerManager()
            Dim layerName19 As String = layer16.Name
            iwLayerManager19.RemoveLayer( layerName19 )
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


    End Sub

End Class