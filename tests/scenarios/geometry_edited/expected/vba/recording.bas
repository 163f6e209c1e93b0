'--------------------------------------------------------------
' Preconditions:
' 1. Create a VBA macro in a software product in which VBA is
'    embedded.
' 2. Copy and paste this example into the Visual Basic IDE.
' 3. Add a reference to the Inkwright type library,
'    install_dir\bin\iwAutomation.dll.
' 4. Start Inkwright and open a document.
' 5. Run the macro.
'
' Postconditions: A message box pops up when an Arc is
' constructed in the drawing document.
'----------------------------------------------------------------
Option Explicit
Sub main()
	Dim iwApp As Inkwright.Application
	Dim iwDoc As Inkwright.Document
	Dim iwModel As Inkwright.Model
	Dim iwSketchManager As Inkwright.SketchManager
   Dim iwViewManager As Inkwright.ViewManager
	'Connect to Inkwright
	Set iwApp = GetObject(, "Inkwright.Application")
	'Abort any command currently running in Inkwright
	'to avoid nested commands
	iwApp.AbortRunningCommand

	'Get active document
	Set iwDoc = iwApp.GetActiveDocument()
	If Not iwDoc Is Nothing Then

		'Get model space
		Set iwModel = iwDoc.GetModel()

		'Get Sketch Manager
		Set iwSketchManager = iwModel.GetSketchManager()

        Dim iwSheet As Inkwright.Sheet
        Dim iwVarSheets As Variant
        iwVarSheets = iwDoc.GetSheets
        Set iwSheet = iwVarSheets(1)
        If iwSheet Is Nothing Then
            Return
        End If

		'Get View Manager
		Set iwViewManager = iwDoc.GetViewManager()

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
        Dim extLine1Point_Rot1(2) As Double
        extLine1Point_Rot1(0) = 0.00000000000000
        extLine1Point_Rot1(1) = 0.00000000000000
        extLine1Point_Rot1(2) = 0.00000000000000
        Dim extLine2Point_Rot1(2) As Double
        extLine2Point_Rot1(0) = 0.00000000000000
        extLine2Point_Rot1(1) = 0.00000000000000
        extLine2Point_Rot1(2) = 0.00000000000000
        Dim dimLinePoint_Rot1(2) As Double
        dimLinePoint_Rot1(0) = 0.00000000000000
        dimLinePoint_Rot1(1) = 0.00000000000000
        dimLinePoint_Rot1(2) = 0.00000000000000
        Set rotateddimension13 = iwSketchManager.InsertRotatedDimension( extLine1Point_Rot1, extLine2Point_Rot1, dimLinePoint_Rot1, "", 0.00000000000000 )
            Dim generalDimension2 As Inkwright.GeneralDimension
            Set generalDimension2 = rotateddimension13.GetGeneralDimension()
        generalDimension2.Color = iwApp.GetColorByIndex( 256 )
        generalDimension2.Layer = "Walls"
        generalDimension2.LineStyle = "Continuous"
        generalDimension2.LineScale = 1.00000000000000
        generalDimension2.LineWeight = Inkwright.iwLineWeight_e.iwLnWt_ByLayer
        generalDimension2.Thickness = 0.00000000000000
        Dim modelnamedview14 As Inkwright.ModelNamedView
        If 1 Then
            Dim X3 As Double
            Dim Y3 As Double
            polyline1.GetVertexCoordinate 2, X3, Y3
            X3 = 1.50000000000000
            polyline1.SetVertexCoordinate 2, X3, Y3
        End If

        If 1 Then
            polyline1.SetSegmentStartWidth 0, 0.25000000000000
        End If

        If 1 Then
            polyline1.SetSegmentEndWidth 0, 0.50000000000000
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
            Dim X4 As Double
            Dim Y4 As Double
            Dim Z4 As Double
            polyline3d2.GetVertexCoordinate 1, X4, Y4, Z4 
            Z4 = 7.00000000000000
            polyline3d2.SetVertexCoordinate 1, X4, Y4, Z4 
        End If

        ' AcDb3dPolyline object modified
        If 1 Then
            polyline3d2.FitSmooth = Inkwright.iwPolyLine3DFitSmooth_e.iwPolyLine3DFitSmooth_Qudratic
            polyline3d2.Closed = True
        End If

        If 1 Then
            Dim X5 As Double
            Dim Y5 As Double
            Dim Z5 As Double
            spline3.GetControlPointCoordinate 0, X5, Y5, Z5 
            X5 = 3.00000000000000
            spline3.SetControlPointCoordinate 0, X5, Y5, Z5 
        End If

        If 1 Then
            Dim X6 As Double
            Dim Y6 As Double
            Dim Z6 As Double
            spline3.GetFitPointCoordinate 3, X6, Y6, Z6 
            Y6 = 4.00000000000000
            spline3.SetFitPointCoordinate 3, X6, Y6, Z6 
        End If

        ' AcDbSpline object modified
        If 1 Then
            spline3.FitTolerance = 0.00100000000000
        End If

        If 1 Then
            Dim X7 As Double
            Dim Y7 As Double
            Dim Z7 As Double
            polygonmesh4.GetVertexCoordinate 0, X7, Y7, Z7 
            X7 = 5.00000000000000
            polygonmesh4.SetVertexCoordinate 0, X7, Y7, Z7 
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
            Dim X8 As Double
            Dim Y8 As Double
            Dim Z8 As Double
            polyfacemesh5.GetVertexCoordinate 5, X8, Y8, Z8 
            Y8 = 6.00000000000000
            polyfacemesh5.SetVertexCoordinate 5, X8, Y8, Z8 
        End If

        If 1 Then
            Dim X9 As Double
            Dim Y9 As Double
            Dim Z9 As Double
            solid6.GetVertex1Coordinate X9, Y9, Z9 
            X9 = 1.00000000000000
            solid6.SetVertex1Coordinate X9, Y9, Z9 
        End If

        If 1 Then
            Dim X10 As Double
            Dim Y10 As Double
            Dim Z10 As Double
            trace7.GetVertex4Coordinate X10, Y10, Z10 
            Z10 = 2.00000000000000
            trace7.SetVertex4Coordinate X10, Y10, Z10 
        End If

        ' AcDbFace object modified
        If 1 Then
            face8.Edge1Visible = True
            face8.Edge4Visible = False
        End If

        If 1 Then
            Dim X11 As Double
            Dim Y11 As Double
            Dim Z11 As Double
            face8.GetVertex4Coordinate X11, Y11, Z11 
            X11 = 1.00000000000000
            face8.SetVertex4Coordinate X11, Y11, Z11 
        End If

        ' AcDbMline object modified
        If 1 Then
            richline9.Justification = Inkwright.iwRichLineJustification_e.iwRichLineJustification_Zero
            richline9.Scale = 20.00000000000000
        End If

        ' AcDbShape object modified
        If 1 Then
            Dim X12 As Double
            Dim Y12 As Double
            Dim Z12 As Double
            shape10.GetPosition X12, Y12, Z12 
            X12 = 1.00000000000000
            shape10.SetPosition X12, Y12, Z12 
            shape10.Obliquing = 0.10000000000000
            shape10.Rotation = 0.20000000000000
            shape10.Size = 3.00000000000000
            shape10.WidthFactor = 0.80000000000000
        End If

        ' AcDbOle2Frame object modified
        If 1 Then
            embeddedobject11.Height = 2.00000000000000
            Dim X13 As Double
            Dim Y13 As Double
            Dim Z13 As Double
            embeddedobject11.GetPosition X13, Y13, Z13 
            Y13 = 1.00000000000000
            embeddedobject11.SetPosition X13, Y13, Z13 
            embeddedobject11.Width = 3.00000000000000
            embeddedobject11.PrintQuality = Inkwright.iwEmbeddedObjectPrintQuality_e.iwEmbeddedObjectPrintQuality_HighGraphics
        End If

        ' AcDbViewport object modified
        If 1 Then
            Dim X14 As Double
            Dim Y14 As Double
            Dim Z14 As Double
            viewport12.GetCenter X14, Y14, Z14 
            X14 = 5.00000000000000
            viewport12.SetCenter X14, Y14, Z14 
            viewport12.Height = 4.00000000000000
            viewport12.CCSPerViewport = True
            viewport12.CustomScale = 0.50000000000000
            viewport12.DisplayLocked = False
            viewport12.IsOn = True
            viewport12.ShadePrintStyle = Inkwright.iwViewportShadePrintStyle_e.iwViewportShadePrintStyle_Hidden
            viewport12.StandardScale = Inkwright.iwViewportStandardScale_e.iwViewportStandardScale_1_2
        End If

        ' AcDbRotatedDimension object modified
            Dim generalDimension15 As Inkwright.GeneralDimension
            Set generalDimension15 = rotateddimension13.GetGeneralDimension()
        generalDimension15.Color = iwApp.GetColorByIndex( 2 )
        ' AcDbRotatedDimension object modified
        If 1 Then
            Dim generalDimension16 As Inkwright.GeneralDimension
            Set generalDimension16 = rotateddimension13.GetGeneralDimension()
            generalDimension16.Layer = "Walls"
        End If

        ' AcDbRotatedDimension object modified
        If 1 Then
            Dim generalDimension18 As Inkwright.GeneralDimension
            Set generalDimension18 = rotateddimension13.GetGeneralDimension()
            generalDimension18.Erased = True
        End If

        ' AcDbBlockTableRecord object modified
        Dim blockdefinition15 As Inkwright.BlockDefinition
        If 1 Then
            blockdefinition15.Erased = True
        End If

        Dim iwLayerManager_1 As Inkwright.LayerManager
        Set iwLayerManager_1  = iwDoc.GetLayerManager()
        Dim layer16 As Inkwright.Layer
        Set layer16  = iwLayerManager_1.GetLayer( "0" )
        ' AcDbLayerTableRecord object modified
        If 1 Then
            Dim iwLayerManager20 As Inkwright.LayerManager
            Set iwLayerManager20 = iwDoc.GetLayerManager()
            Dim layerName20 As String
            layerName20 = layer16.Name
            iwLayerManager20.RemoveLayer layerName20
        End If

        ' AcDbViewTableRecord object modified
        If 1 Then
            iwViewManager.RemoveModelNamedView "Front"
        End If

        Dim modelnamedview17 As Inkwright.ModelNamedView
        ' AcDbViewTableRecord object modified
        If 1 Then
            iwViewManager.RemoveSheetNamedView "Title block"
        End If

	Else

		MsgBox "There are no open documents in Inkwright"

	End If
End Sub
