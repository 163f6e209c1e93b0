            Line line1;
            {
                line1 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 4.00000000000000, 2.50000000000000, 0.00000000000000 );
            }
            {
                Sheet sheet1 = iwDoc.CreateSheet("Ground floor");
            }
            {
                iwDoc.CopySheet("Ground floor" , "First floor" );
            }
            {
                iwDoc.CopySheet("First floor" , "First floor" );
            }
            {
                Sheet PreSheet1 = iwDoc.GetSheet("First floor");
                if (null != PreSheet1)
                   PreSheet1.Name = "Upper floor";
            }
            {
                Sheet template_sheet1 = iwDoc.CreateSheetByTemplate( "A3.dwt", "Frame", "Sections" );
            }
            {
                iwDoc.RemoveSheet("Layout2");
            }
            {
                iwSheet = iwDoc.GetSheet("Ground floor");
                if (null != iwSheet)
                {
                     iwSheet.Activate();
                     iwSketchManager = iwSheet.GetSketchManager();
                }
            }
            {
                iwModel.Activate();
                iwSketchManager = iwModel.GetSketchManager();
            }
            {
                CustomCoordinateSystemManager iwCustomCoordinateSystemMgr1 = null;
                iwCustomCoordinateSystemMgr1 = iwDoc.GetCustomCoordinateSystemManager();
                if ( null != iwCustomCoordinateSystemMgr1 )
                {
                    iwCustomCoordinateSystemMgr1.SetActiveCustomCoordinateSystemOrigin( 1.5, 2, 0  );
                }
                CustomCoordinateSystemManager iwCustomCoordinateSystemMgr2 = null;
                iwCustomCoordinateSystemMgr2 = iwDoc.GetCustomCoordinateSystemManager();
                CustomCoordinateSystem iwCustomCoordinateSystem2 = null;
                if ( null != iwCustomCoordinateSystemMgr2 )
                {
                    iwCustomCoordinateSystemMgr2.SaveActiveViewAs( "Corner", out iwCustomCoordinateSystem2 );
                }
                CustomCoordinateSystemManager iwCustomCoordinateSystemMgr3 = null;
                iwCustomCoordinateSystemMgr3 = iwDoc.GetCustomCoordinateSystemManager();
                if ( null != iwCustomCoordinateSystemMgr3 )
                {
                    iwCustomCoordinateSystemMgr3.AlignActiveCustomCoordinateSystemZAxis( 1, 1, 0, 1, 1, 5 );
                }
                CustomCoordinateSystemManager iwCustomCoordinateSystemMgr4 = null;
                iwCustomCoordinateSystemMgr4 = iwDoc.GetCustomCoordinateSystemManager();
                if ( null != iwCustomCoordinateSystemMgr4 )
                {
                    iwCustomCoordinateSystemMgr4.AlignActiveCustomCoordinateSystemZAxis( 1, 1, 0, 1.5, 1, 1 );
                }
            }
            {
                CustomCoordinateSystemManager iwCustomCoordinateSystemMgr1 = null;
                iwCustomCoordinateSystemMgr1 = iwDoc.GetCustomCoordinateSystemManager();
                if ( null != iwCustomCoordinateSystemMgr1 )
                {
                    iwCustomCoordinateSystemMgr1.AlignActiveCustomCoordinateSystemByEntity( line1, new double[]{4,2.5,0.25} );
                }
                CustomCoordinateSystemManager iwCustomCoordinateSystemMgr2 = null;
                iwCustomCoordinateSystemMgr2 = iwDoc.GetCustomCoordinateSystemManager();
                CustomCoordinateSystem iwPreviousCCS2;
                if ( null != iwCustomCoordinateSystemMgr2 )
                {
                    iwPreviousCCS2 = iwCustomCoordinateSystemMgr2.GetPreviousCustomCoordinateSystem();
                    iwPreviousCCS2.Activate();
                }
                CustomCoordinateSystemManager iwCustomCoordinateSystemMgr3 = null;
                iwCustomCoordinateSystemMgr3 = iwDoc.GetCustomCoordinateSystemManager();
                if ( null != iwCustomCoordinateSystemMgr3 )
                {
                    iwCustomCoordinateSystemMgr3.AlignActiveCustomCoordinateSystemByView();
                }
            }
            {
                CustomCoordinateSystemManager iwCustomCoordinateSystemMgr_1 = iwDoc.GetCustomCoordinateSystemManager();
                if ( null != iwCustomCoordinateSystemMgr_1 )
                {
                    MathUtility iwMathUtility_1 = iwApp.GetMathUtility();
                    MathPoint Origin_1 = iwMathUtility_1.CreatePoint( 0, 0, 0 );
                    MathPoint XAxisThroughPoint_1 = iwMathUtility_1.CreatePoint( 4, 0, 0 );
                    MathPoint XYPlaneThroughPoint_1 = iwMathUtility_1.CreatePoint( 0, 0, 2.75 );
                    iwCustomCoordinateSystemMgr_1.AlignActiveCustomCoordinateSystemXYPlane( Origin_1, XAxisThroughPoint_1, XYPlaneThroughPoint_1 );
                }
                CustomCoordinateSystemManager iwCustomCoordinateSystemMgr2 = null;
                iwCustomCoordinateSystemMgr2 = iwDoc.GetCustomCoordinateSystemManager();
                CustomCoordinateSystem iwCustomCoordinateSystem2 = null;
                if ( null != iwCustomCoordinateSystemMgr2 )
                {
                    iwCustomCoordinateSystem2 = iwCustomCoordinateSystemMgr2.GetDefaultCustomCoordinateSystem( iwDefaultCustomCoordinateSystem_e.iwDefaultCustomCoordinateSystem_Front );
                    iwCustomCoordinateSystem2.Activate();
                }
            }
            {
                CustomCoordinateSystemManager iwCustomCoordinateSystemMgr1 = null;
                iwCustomCoordinateSystemMgr1 = iwDoc.GetCustomCoordinateSystemManager();
                CustomCoordinateSystem iwCustomCoordinateSystem1;
                iwCustomCoordinateSystem1 = iwCustomCoordinateSystemMgr1.GetNamedCustomCoordinateSystem( "Corner");
                iwCustomCoordinateSystem1.Activate();
                CustomCoordinateSystemManager iwCustomCoordinateSystemMgr2 = null;
                iwCustomCoordinateSystemMgr2 = iwDoc.GetCustomCoordinateSystemManager();
                if ( null != iwCustomCoordinateSystemMgr2 )
                {
                    iwCustomCoordinateSystemMgr2.RemoveCustomCoordinateSystem( "Corner" );
                }
                CustomCoordinateSystemManager iwCustomCoordinateSystemMgr3 = null;
                iwCustomCoordinateSystemMgr3 = iwDoc.GetCustomCoordinateSystemManager();
                CustomCoordinateSystem iwWorldCCS3;
                if ( null != iwCustomCoordinateSystemMgr3 )
                {
                    iwWorldCCS3 = iwCustomCoordinateSystemMgr3.GetWorldCustomCoordinateSystem();
                    iwWorldCCS3.Activate();
                }
            }
            ModelNamedView modelnamedview2;
            ModelNamedView modelnamedview3;
            {
                iwModel.Activate();
                iwSketchManager = iwModel.GetSketchManager();
                modelnamedview2 = iwViewManager.CreateModelNamedView( "North wall" );
                iwSheet = iwDoc.GetSheet("Ground floor");
                if (null != iwSheet)
                {
                     iwSheet.Activate();
                     iwSketchManager = iwSheet.GetSketchManager();
                }
                Color topColor0 = iwApp.GetColorByIndex( 1 );
                Color middleColor0 = iwApp.GetColorByIndex( 2 );
                Color bottomColor0 = iwApp.GetColorByIndex( 3 );
                topColor0.SetRGBColor( 10, 20, 200 );
                middleColor0.SetRGBColor( 90, 120, 220 );
                bottomColor0.SetRGBColor( 200, 220, 255 );
                GradientBackground iwGradientBackground0 = iwViewManager.CreateGradientBackground( topColor0, middleColor0, bottomColor0, 0.00000000000000, 0.50000000000000 );
                modelnamedview2.SetGradientBackground( iwGradientBackground0 );

                iwModel.Activate();
                iwSketchManager = iwModel.GetSketchManager();
                modelnamedview3 = iwViewManager.CreateModelNamedView( "Roof" );
                Color solidColor0 = iwApp.GetColorByIndex( 3 );
                solidColor0.SetRGBColor( 255, 250, 240 );
                SolidBackground iwSolidBackground0 = iwViewManager.CreateSolidBackground( solidColor0 );
                modelnamedview3.SetSolidBackground( iwSolidBackground0 );

            }
            ModelNamedView modelnamedview4;
            {
                iwSheet = iwDoc.GetSheet("Ground floor");
                if (null != iwSheet)
                {
                     iwSheet.Activate();
                     iwSketchManager = iwSheet.GetSketchManager();
                }
                SheetNamedView sheetNamedView_1 = iwViewManager.CreateSheetNamedView( "Detail" );
                iwModel.Activate();
                iwSketchManager = iwModel.GetSketchManager();
            }
            {
                modelnamedview2.GetNamedView().Rename( "North facade" );

                modelnamedview2.GetNamedView().Class = "Elevations";

                MathUtility iwMathUtility1 = iwApp.GetMathUtility();
                MathPoint FirstCorner_1_1 = iwMathUtility1.CreatePoint( 0, 0, 0 );
                MathPoint OppositeCorner_1_1 = iwMathUtility1.CreatePoint( 12, 8.5, 0 );
                modelnamedview2.GetNamedView().SetWindow( FirstCorner_1_1, OppositeCorner_1_1 );

            }
            {
                SheetNamedView sheetNamedView_1_rename = iwViewManager.GetSheetNamedView( "Detail" );
                sheetNamedView_1_rename.GetNamedView().Rename( "Detail 1:10" );

                SheetNamedView sheetNamedView_2_class = iwViewManager.GetSheetNamedView( "Detail 1:10" );
                sheetNamedView_2_class.GetNamedView().Class = "Details";

                MathUtility iwMathUtility3 = iwApp.GetMathUtility();
                MathPoint FirstCorner_3_1 = iwMathUtility3.CreatePoint( 1, 1, 0 );
                MathPoint OppositeCorner_3_1 = iwMathUtility3.CreatePoint( 2, 2, 0 );
                SheetNamedView sheetNamedView_3_Pt = iwViewManager.GetSheetNamedView( "Detail 1:10" );
                sheetNamedView_3_Pt.GetNamedView().SetWindow( FirstCorner_3_1, OppositeCorner_3_1 );

            }
            {
                double[] lowerLeft_1 = new double[] { 0, 0, 0 };
                double[] upperRight_1 = new double[] { 12.5, 8.25, 0 };
                iwApp.Zoom(iwZoomRange_e.iwZoomRange_Window, lowerLeft_1, upperRight_1);
            }
            {
                iwApp.Zoom(iwZoomRange_e.iwZoomRange_Fit, null, null);
            }
            {
                object[] iwViewTileArray0 = (object[])iwModel.InsertViewTiles(iwViewTilesMode_e.iwViewTilesMode_2_Vertical, iwViewTilesApplyTo_e.iwViewTilesApplyTo_Display);
                iwViewTileArray0 = (object[])iwModel.GetViewTiles();

                Inkwright.ViewTile viewtile5 =(Inkwright.ViewTile)iwViewTileArray0[0];
                Inkwright.ViewTile viewtile6 =(Inkwright.ViewTile)iwViewTileArray0[1];
            }
            {
                object[] iwViewTileArray1 = (object[])iwModel.InsertViewTiles(iwViewTilesMode_e.iwViewTilesMode_1, iwViewTilesApplyTo_e.iwViewTilesApplyTo_ActiveViewTile);
                iwViewTileArray1 = (object[])iwModel.GetViewTiles();

                Inkwright.ViewTile viewtile7 =(Inkwright.ViewTile)iwViewTileArray1[0];
            }
                ModelNamedView modelnamedview8;
                {
                    iwModel.Activate();
                    iwSketchManager = iwModel.GetSketchManager();
                    modelnamedview8 = iwViewManager.CreateModelNamedView( "Garden" );
                }
                ImageBackground iwImageBackground0 = iwViewManager.CreateImageBackground( "garden.png", iwImageBackgroundPosition_e.iwImageBackgroundPosition_Center, 0.00000000000000, 0.00000000000000, 1.50000000000000, 1.50000000000000 );
                modelnamedview8.SetImageBackground( iwImageBackground0 );

                {
                    iwApp.Zoom(iwZoomRange_e.iwZoomRange_All, null, null);
                }
