        Dim line1 As Inkwright.Line
        If 1 Then
            Set line1 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 4.00000000000000, 2.50000000000000, 0.00000000000000 )
        End If

        If 1 Then
            Dim sheet1 As Inkwright.Sheet
            Set sheet1 = iwDoc.CreateSheet("Ground floor")
        End If

        If 1 Then
            iwDoc.CopySheet(L"
" , L"Ground floor" )2        End If

        If 1 Then
            iwDoc.CopySheet(L"
" , L"First floor" )2        End If

        If 1 Then
            Dim PreSheet1 As Inkwright.Sheet
            Set PreSheet1 = iwDoc.GetSheet("First floor")
            If Not PreSheet1 Is Nothing Then
               PreSheet1.Name = "Upper floor"
            End If
        End If

        If 1 Then
            Dim template_sheet1 As Inkwright.Sheet
            Set template_sheet1 = iwDoc.CreateSheetByTemplate( "A3.dwt", "Frame", "Sections" )
        End If

        If 1 Then
            iwDoc.RemoveSheet("Layout2")
        End If

        If 1 Then
            Set iwSheet = iwDoc.GetSheet("Ground floor")
            If Not iwSheet Is Nothing Then
                 iwSheet.Activate
                 Set iwSketchManager = iwSheet.GetSketchManager()
            End If
        End If

        If 1 Then
            iwModel.Activate
            Set iwSketchManager = iwModel.GetSketchManager()
        End If

        If 1 Then
            Dim iwCustomCoordinateSystemMgr1 As Inkwright.CustomCoordinateSystemManager
            Set iwCustomCoordinateSystemMgr1 = iwDoc.GetCustomCoordinateSystemManager()
            If Not iwCustomCoordinateSystemMgr1 Is Nothing Then
                iwCustomCoordinateSystemMgr1.SetActiveCustomCoordinateSystemOrigin 1.5, 2, 0
            End If
            Dim iwCustomCoordinateSystemMgr2 As Inkwright.CustomCoordinateSystemManager
            Set iwCustomCoordinateSystemMgr2 = iwDoc.GetCustomCoordinateSystemManager()
            Dim iwCustomCoordinateSystem2 As Inkwright.CustomCoordinateSystem
            If Not iwCustomCoordinateSystemMgr2 Is Nothing Then
                iwCustomCoordinateSystemMgr2.SaveActiveViewAs "Corner", iwCustomCoordinateSystem2
            End If
            Dim iwCustomCoordinateSystemMgr3 As Inkwright.CustomCoordinateSystemManager
            Set iwCustomCoordinateSystemMgr3 = iwDoc.GetCustomCoordinateSystemManager()
            If Not iwCustomCoordinateSystemMgr3 Is Nothing Then
                iwCustomCoordinateSystemMgr3.AlignActiveCustomCoordinateSystemZAxis 1, 1, 0, 1, 1, 5
            End If
            Dim iwCustomCoordinateSystemMgr4 As Inkwright.CustomCoordinateSystemManager
            Set iwCustomCoordinateSystemMgr4 = iwDoc.GetCustomCoordinateSystemManager()
            If Not iwCustomCoordinateSystemMgr4 Is Nothing Then
                iwCustomCoordinateSystemMgr4.AlignActiveCustomCoordinateSystemZAxis 1, 1, 0, 1.5, 1, 1
            End If
        End If

        If 1 Then
            Dim iwCustomCoordinateSystemMgr1 As Inkwright.CustomCoordinateSystemManager
            Set iwCustomCoordinateSystemMgr1 = iwDoc.GetCustomCoordinateSystemManager()
            If Not iwCustomCoordinateSystemMgr1 Is Nothing Then
                Dim pointOnEntity1(2) As Double
                pointOnEntity1(0) = 4
                pointOnEntity1(1) = 2.5
                pointOnEntity1(2) = 0.25
                iwCustomCoordinateSystemMgr1.AlignActiveCustomCoordinateSystemByEntity line1, pointOnEntity1
            End If
            Dim iwCustomCoordinateSystemMgr2 As Inkwright.CustomCoordinateSystemManager
            Set iwCustomCoordinateSystemMgr2 = iwDoc.GetCustomCoordinateSystemManager()
            Dim iwPreviousCCS2 As Inkwright.CustomCoordinateSystem
            If Not iwCustomCoordinateSystemMgr2 Is Nothing Then
                Set iwPreviousCCS2 = iwCustomCoordinateSystemMgr2.GetPreviousCustomCoordinateSystem()
                iwPreviousCCS2.Activate
            End If
            Dim iwCustomCoordinateSystemMgr3 As Inkwright.CustomCoordinateSystemManager
            Set iwCustomCoordinateSystemMgr3 = iwDoc.GetCustomCoordinateSystemManager()
            If Not iwCustomCoordinateSystemMgr3 Is Nothing Then
                iwCustomCoordinateSystemMgr3.AlignActiveCustomCoordinateSystemByView
            End If
        End If

        If 1 Then
            Dim iwCustomCoordinateSystemMgr_1 As Inkwright.CustomCoordinateSystemManager = Nothing
            Set iwCustomCoordinateSystemMgr_1 = iwDoc.GetCustomCoordinateSystemManager()
            If Not iwCustomCoordinateSystemMgr_1 Is Nothing Then
                Dim iwMathUtility_1 As Inkwright.MathUtility
                Set iwMathUtility_1 = iwApp.GetMathUtility()
                Dim Origin_1 As Inkwright.MathPoint
                Set Origin_1 = iwMathUtility_1.CreatePoint( 0, 0, 0 )
                Dim XAxisThroughPoint_1 As Inkwright.MathPoint
                Set XAxisThroughPoint_1 = iwMathUtility_1.CreatePoint( 4, 0, 0 )
                Dim XYPlaneThroughPoint_1 As Inkwright.MathPoint
                Set XYPlaneThroughPoint_1 = iwMathUtility_1.CreatePoint( 0, 0, 2.75 )
                iwCustomCoordinateSystemMgr_1.AlignActiveCustomCoordinateSystemXYPlane Origin_1, XAxisThroughPoint_1, XYPlaneThroughPoint_1
            End If
            Dim iwCustomCoordinateSystemMgr2 As Inkwright.CustomCoordinateSystemManager
            Set iwCustomCoordinateSystemMgr2 = iwDoc.GetCustomCoordinateSystemManager()
            Dim iwCustomCoordinateSystem2 As Inkwright.CustomCoordinateSystem
            If Not iwCustomCoordinateSystemMgr2 Is Nothing Then
                Set iwCustomCoordinateSystem2 = iwCustomCoordinateSystemMgr2.GetDefaultCustomCoordinateSystem( Inkwright.iwDefaultCustomCoordinateSystem_e.iwDefaultCustomCoordinateSystem_Front )
                iwCustomCoordinateSystem2.Activate
            End If
        End If

        If 1 Then
            Dim iwCustomCoordinateSystemMgr1 As Inkwright.CustomCoordinateSystemManager
            Set iwCustomCoordinateSystemMgr1 = iwDoc.GetCustomCoordinateSystemManager()
            Dim iwCustomCoordinateSystem1 As Inkwright.CustomCoordinateSystem
            Set iwCustomCoordinateSystem1 = iwCustomCoordinateSystemMgr1.GetNamedCustomCoordinateSystem( "Corner")
            iwCustomCoordinateSystem1.Activate
            Dim iwCustomCoordinateSystemMgr2 As Inkwright.CustomCoordinateSystemManager
            Set iwCustomCoordinateSystemMgr2 = iwDoc.GetCustomCoordinateSystemManager()
            If Not iwCustomCoordinateSystemMgr2 Is Nothing Then
                iwCustomCoordinateSystemMgr2.RemoveCustomCoordinateSystem "Corner"
            End If
            Dim iwCustomCoordinateSystemMgr3 As Inkwright.CustomCoordinateSystemManager
            Set iwCustomCoordinateSystemMgr3 = iwDoc.GetCustomCoordinateSystemManager()
            Dim iwWorldCCS3 As Inkwright.CustomCoordinateSystem
            If Not iwCustomCoordinateSystemMgr3 Is Nothing Then
                Set iwWorldCCS3 = iwCustomCoordinateSystemMgr3.GetWorldCustomCoordinateSystem()
                iwWorldCCS3.Activate
            End If
        End If

        Dim modelnamedview2 As Inkwright.ModelNamedView
        Dim modelnamedview3 As Inkwright.ModelNamedView
        If 1 Then
            iwModel.Activate
            Set iwSketchManager = iwModel.GetSketchManager()
            Set modelnamedview2 = iwViewManager.CreateModelNamedView( "North wall" )
            Set iwSheet = iwDoc.GetSheet("Ground floor")
            If Not iwSheet Is Nothing Then
                 iwSheet.Activate
                 Set iwSketchManager = iwSheet.GetSketchManager()
            End If
            Dim topColor0 As Inkwright.Color
            Dim middleColor0 As Inkwright.Color
            Dim bottomColor0 As Inkwright.Color
            Set topColor0 = iwApp.GetColorByIndex( 1 )
            Set middleColor0 = iwApp.GetColorByIndex( 2 )
            Set bottomColor0 = iwApp.GetColorByIndex( 3 )
            topColor0.SetRGBColor 10, 20, 200
            middleColor0.SetRGBColor 90, 120, 220
            bottomColor0.SetRGBColor 200, 220, 255
            Dim iwGradientBackground0 As Inkwright.GradientBackground
            Set iwGradientBackground0 = iwViewManager.CreateGradientBackground( topColor0, middleColor0, bottomColor0, 0.00000000000000, 0.50000000000000 )
            modelnamedview2.SetGradientBackground iwGradientBackground0

            iwModel.Activate
            Set iwSketchManager = iwModel.GetSketchManager()
            Set modelnamedview3 = iwViewManager.CreateModelNamedView( "Roof" )
            Dim solidColor0 As Inkwright.Color
            Set solidColor0 = iwApp.GetColorByIndex( 3 )
            solidColor0.SetRGBColor 255, 250, 240
            Dim iwSolidBackground0 As Inkwright.SolidBackground
            Set iwSolidBackground0 = iwViewManager.CreateSolidBackground( solidColor0 )
            modelnamedview3.SetSolidBackground iwSolidBackground0

        End If

        Dim modelnamedview4 As Inkwright.ModelNamedView
        If 1 Then
            Set iwSheet = iwDoc.GetSheet("Ground floor")
            If Not iwSheet Is Nothing Then
                 iwSheet.Activate
                 Set iwSketchManager = iwSheet.GetSketchManager()
            End If
            Dim sheetNamedView_1 As Inkwright.SheetNamedView
            Set sheetNamedView_1 = iwViewManager.CreateSheetNamedView( "Detail" )
            iwModel.Activate
            Set iwSketchManager = iwModel.GetSketchManager()
        End If

        If 1 Then
            modelnamedview2.GetNamedView().Rename( "North facade" ) 

            modelnamedview2.GetNamedView().Class = "Elevations"

            Dim iwMathUtility1 As Inkwright.MathUtility
            Set iwMathUtility1 = iwApp.GetMathUtility()
            Dim FirstCorner_1_1 As Inkwright.MathPoint
            Set FirstCorner_1_1 = iwMathUtility1.CreatePoint( 0, 0, 0 )
            Dim OppositeCorner_1_1 As Inkwright.MathPoint
            Set OppositeCorner_1_1 = iwMathUtility1.CreatePoint( 12, 8.5, 0 )
            modelnamedview2.GetNamedView().SetWindow FirstCorner_1_1, OppositeCorner_1_1

        End If

        If 1 Then
            Dim sheetNamedView_1_rename As Inkwright.SheetNamedView
            Set sheetNamedView_1_rename = iwViewManager.GetSheetNamedView( "Detail" )
            sheetNamedView_1_rename.GetNamedView().Rename "Detail 1:10"

            Dim sheetNamedView_2_class As Inkwright.SheetNamedView
            Set sheetNamedView_2_class = iwViewManager.GetSheetNamedView( "Detail 1:10" )
            sheetNamedView_2_class.GetNamedView().Class = "Details"

            Dim iwMathUtility3 As Inkwright.MathUtility
            Set iwMathUtility3 = iwApp.GetMathUtility()
            Dim FirstCorner_3_1 As Inkwright.MathPoint
            Set FirstCorner_3_1 = iwMathUtility3.CreatePoint( 1, 1, 0 )
            Dim OppositeCorner_3_1 As Inkwright.MathPoint
            Set OppositeCorner_3_1 = iwMathUtility3.CreatePoint( 2, 2, 0 )
            Dim sheetNamedView_3_Pt As Inkwright.SheetNamedView
            Set sheetNamedView_3_Pt = iwViewManager.GetSheetNamedView( "Detail 1:10" )
            sheetNamedView_3_Pt.GetNamedView().SetWindow FirstCorner_3_1, OppositeCorner_3_1

        End If

        If 1 Then
            Dim lowerLeft_1(2) As Double
            lowerLeft_1(0) = 0
            lowerLeft_1(1) = 0
            lowerLeft_1(2) = 0
            Dim upperRight_1(2) As Double
            upperRight_1(0) = 12.5
            upperRight_1(1) = 8.25
            upperRight_1(2) = 0
            iwApp.Zoom Inkwright.iwZoomRange_e.iwZoomRange_Window, lowerLeft_1, upperRight_1
        End If

        If 1 Then
            iwApp.Zoom Inkwright.iwZoomRange_e.iwZoomRange_Fit, Nothing, Nothing
        End If

        If 1 Then
            Dim iwViewTileArray0 As Variant
            iwViewTileArray0 = iwModel.InsertViewTiles(Inkwright.iwViewTilesMode_e.iwViewTilesMode_2_Vertical, Inkwright.iwViewTilesApplyTo_e.iwViewTilesApplyTo_Display)
            iwViewTileArray0 = iwModel.GetViewTiles()

            Dim viewtile5 As Inkwright.ViewTile
            Set viewtile5 = iwViewTileArray0(0)
            Dim viewtile6 As Inkwright.ViewTile
            Set viewtile6 = iwViewTileArray0(1)
        End If

        If 1 Then
            Dim iwViewTileArray1 As Variant
            iwViewTileArray1 = iwModel.InsertViewTiles(Inkwright.iwViewTilesMode_e.iwViewTilesMode_1, Inkwright.iwViewTilesApplyTo_e.iwViewTilesApplyTo_ActiveViewTile)
            iwViewTileArray1 = iwModel.GetViewTiles()

            Dim viewtile7 As Inkwright.ViewTile
            Set viewtile7 = iwViewTileArray1(0)
        End If

            Dim modelnamedview8 As Inkwright.ModelNamedView
            If 1 Then
                iwModel.Activate
                Set iwSketchManager = iwModel.GetSketchManager()
                Set modelnamedview8 = iwViewManager.CreateModelNamedView( "Garden" )
            End If

            Dim iwImageBackground0 As Inkwright.ImageBackground
            Set iwImageBackground0 = iwViewManager.CreateImageBackground( "garden.png", Inkwright.iwImageBackgroundPosition_e.iwImageBackgroundPosition_Center, 0.00000000000000, 0.00000000000000, 1.50000000000000, 1.50000000000000 )
            modelnamedview8.SetImageBackground iwImageBackground0

            If 1 Then
                iwApp.Zoom Inkwright.iwZoomRange_e.iwZoomRange_All, Nothing, Nothing
            End If

