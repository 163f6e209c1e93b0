            iwSetCommandOptionResult_e result;
            Line line1;
            Line line2;
            {
                line1 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 2.80000000000000, 0.00000000000000, 0.00000000000000 );
                line1.Color = iwApp.GetColorByIndex( 256 );
                line1.LineScale = 1.00000000000000;
                line1.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                line1.Thickness = 0.00000000000000;
                line2 = iwSketchManager.InsertLine( 0.00000000000000, 0.28000000000000, 0.00000000000000, 2.80000000000000, 0.28000000000000, 0.00000000000000 );
                line2.Color = iwApp.GetColorByIndex( 256 );
                line2.LineScale = 1.00000000000000;
                line2.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                line2.Thickness = 0.00000000000000;
            }
            ShapeManager iwShapeManager = iwDoc.GetShapeManager();
            iwShapeManager.Load( "stairs.shx" );
                line4 = iwSketchManager.InsertLine( 1.40000000000000, 0.00000000000000, 0.00000000000000, 1.40000000000000, 0.28000000000000, 0.00000000000000 );
                line4.Color = iwApp.GetColorByIndex( 256 );
                line4.LineScale = 1.00000000000000;
                line4.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                line4.Thickness = 0.00000000000000;
            TextStyle textstyle5;
            Line line6;
            {
                line6 = iwSketchManager.InsertLine( 1.40000000000000, 0.28000000000000, 0.00000000000000, 1.40000000000000, 0.56000000000000, 0.00000000000000 );
                line6.Color = iwApp.GetColorByIndex( 256 );
                line6.LineScale = 1.00000000000000;
                line6.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                line6.Thickness = 0.00000000000000;
            }
            Note note7;
            Line line8;
            {
                string[] strArray1 = new string[1];
                strArray1[0] = "";
                note7 = iwSketchManager.InsertNote( 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, strArray1 );
                line8 = iwSketchManager.InsertLine( 3.00000000000000, 0.00000000000000, 0.00000000000000, 4.00000000000000, 1.00000000000000, 0.00000000000000 );
                line8.Color = iwApp.GetColorByIndex( 256 );
                line8.LineScale = 1.00000000000000;
                line8.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                line8.Thickness = 0.00000000000000;
            }
            Line line9;
            Line line10;
            {
                line9 = iwSketchManager.InsertLine( 5.00000000000000, 0.00000000000000, 0.00000000000000, 6.00000000000000, 0.00000000000000, 0.00000000000000 );
                line9.Color = iwApp.GetColorByIndex( 256 );
                line9.LineScale = 1.00000000000000;
                line9.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                line9.Thickness = 0.00000000000000;
            }
            Line line11;
            {
                line11 = iwSketchManager.InsertLine( 7.00000000000000, 0.00000000000000, 0.00000000000000, 8.00000000000000, 0.00000000000000, 0.00000000000000 );
                line11.Color = iwApp.GetColorByIndex( 256 );
                line11.LineScale = 1.00000000000000;
                line11.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                line11.Thickness = 0.00000000000000;
            }
            LayerManager iwLayerManager_1 = iwDoc.GetLayerManager();
            Layer layer13 = iwLayerManager_1.GetLayer( "0" );
            // AcDbLayerTableRecord object modified
            {
                layer13.Frozen = true;
            }
            {
                LayerManager iwLayerManager_2 = iwDoc.GetLayerManager();
                Layer layer14 = iwLayerManager_2.GetLayer( "0" );
                // AcDbLayerTableRecord object modified
                {
                    layer14.Locked = true;
                }
                // AcDbLayerTableRecord object modified
                {
                    layer13.Frozen = false;
                }
            }
            {
                line1.Thickness = 2.00000000000000;
            }
            {
                iwSetCommandOptionResult_e result1;
                iwApp.GetActiveDocument().SetCommandOptionInt16(iwCommandOptionInt16_e.iwCommandOptionInt16_SetCVPORT, 2, out result1);
            }
