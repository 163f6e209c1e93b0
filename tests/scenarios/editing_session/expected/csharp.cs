            Line line1;
            Line line2;
            Circle circle3;
            {
                line1 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 10.00000000000000, 0.00000000000000, 0.00000000000000 );
                line1.Color = iwApp.GetColorByIndex( 256 );
                line1.Layer = "0";
                line1.LineStyle = "Continuous";
                line1.LineScale = 1.00000000000000;
                line1.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                line1.Thickness = 0.00000000000000;
                line2 = iwSketchManager.InsertLine( 10.00000000000000, 0.00000000000000, 0.00000000000000, 10.00000000000000, 5.00000000000000, 0.00000000000000 );
                line2.Color = iwApp.GetColorByIndex( 256 );
                line2.Layer = "0";
                line2.LineStyle = "Continuous";
                line2.LineScale = 1.00000000000000;
                line2.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                line2.Thickness = 0.00000000000000;
                circle3 = iwSketchManager.InsertCircle( 5.00000000000000, 2.50000000000000, 0.00000000000000, 1.00000000000000 );
                circle3.Color = iwApp.GetColorByIndex( 256 );
                circle3.Layer = "0";
                circle3.LineStyle = "Continuous";
                circle3.LineScale = 1.00000000000000;
                circle3.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                circle3.Thickness = 0.00000000000000;
            }
            Line line4;
            Line line5;
            {
                DispatchWrapper[] iwEntities0;
                int[] types0 = new int[2];
                iwEntities0 = new DispatchWrapper[2];

                types0[0] = (int)iwObjectType_e.iwLineType;
                iwEntities0[0] = new DispatchWrapper(line1);
                types0[1] = (int)iwObjectType_e.iwLineType;
                iwEntities0[1] = new DispatchWrapper(line2);

                iwApp.GetActiveDocument().GetModel().GetSketchManager().MirrorEntities(0, 5, 0, 10, 5, 0, false, types0, iwEntities0);
                line4 = iwSketchManager.InsertLine( 0.00000000000000, 10.00000000000000, 0.00000000000000, 10.00000000000000, 10.00000000000000, 0.00000000000000 );
                line4.Color = iwApp.GetColorByIndex( 256 );
                line4.Layer = "0";
                line4.LineStyle = "Continuous";
                line4.LineScale = 1.00000000000000;
                line4.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                line4.Thickness = 0.00000000000000;
                line5 = iwSketchManager.InsertLine( 10.00000000000000, 10.00000000000000, 0.00000000000000, 10.00000000000000, 5.00000000000000, 0.00000000000000 );
                line5.Color = iwApp.GetColorByIndex( 256 );
                line5.Layer = "0";
                line5.LineStyle = "Continuous";
                line5.LineScale = 1.00000000000000;
                line5.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                line5.Thickness = 0.00000000000000;
            }
            {
                DispatchWrapper[] iwEntities0;
                double[] crossingBoxStartCorner0;
                double[] crossingBoxEndCorner0;

                iwEntities0 = new DispatchWrapper[1];
                iwEntities0[0] = new DispatchWrapper(line1);

                crossingBoxStartCorner0 = new double[] { 9, -1, 0};
                crossingBoxEndCorner0 = new double[] { 11, 1, 0};

                iwApp.GetActiveDocument().GetModel().GetSketchManager().StretchEntities(2.5, 0, 0, iwEntities0, crossingBoxStartCorner0, crossingBoxEndCorner0);
            }
            Circle circle6;
            {
                DispatchWrapper[] iwEntities0;
                int[] types0 = new int[2];
                iwEntities0 = new DispatchWrapper[2];

                types0[0] = (int)iwObjectType_e.iwCircleType;
                iwEntities0[0] = new DispatchWrapper(circle3);
                iwObjectType_e iwTypeForCopy0;
                Object iwObjForCopy0 = iwApp.GetActiveDocument().GetObjectByHandle("A0", out iwTypeForCopy0);
                types0[1] = (int)iwTypeForCopy0;
                iwEntities0[1] = new DispatchWrapper(iwObjForCopy0);

                iwApp.GetActiveDocument().GetModel().GetSketchManager().CopyEntities(1, 0, 0, types0, iwEntities0);
                iwApp.GetActiveDocument().GetModel().GetSketchManager().CopyEntities(2, 0, 0, types0, iwEntities0);
                iwApp.GetActiveDocument().GetModel().GetSketchManager().CopyEntities(3, 0, 0, types0, iwEntities0);
                circle6 = iwSketchManager.InsertCircle( 6.00000000000000, 2.50000000000000, 0.00000000000000, 1.00000000000000 );
                circle6.Color = iwApp.GetColorByIndex( 256 );
                circle6.Layer = "0";
                circle6.LineStyle = "Continuous";
                circle6.LineScale = 1.00000000000000;
                circle6.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                circle6.Thickness = 0.00000000000000;
            }
            {
                DispatchWrapper[] iwEntities0;
                iwEntities0 = new DispatchWrapper[2];

                iwEntities0[0] = new DispatchWrapper(line2);
                iwEntities0[1] = new DispatchWrapper(line4);

                iwApp.GetActiveDocument().GetModel().GetSketchManager().MoveEntities(0, 0.125, 0, iwEntities0);
            }
            {
                DispatchWrapper[] iwEntities0;
                int[] types0 = new int[1];
                iwEntities0 = new DispatchWrapper[1];

                types0[0] = (int)iwObjectType_e.iwCircleType;
                iwEntities0[0] = new DispatchWrapper(circle3);

                iwApp.GetActiveDocument().GetModel().GetSketchManager().RotateEntities(1, 2, 1.5708, types0, iwEntities0);
            }
            {
                DispatchWrapper[] iwEntities0;
                int[] types0 = new int[2];
                iwEntities0 = new DispatchWrapper[2];

                types0[0] = (int)iwObjectType_e.iwLineType;
                iwEntities0[0] = new DispatchWrapper(line1);
                types0[1] = (int)iwObjectType_e.iwCircleType;
                iwEntities0[1] = new DispatchWrapper(circle3);

                iwApp.GetActiveDocument().GetModel().GetSketchManager().ScaleEntities(1, 2, 2, 3, types0, iwEntities0);
            }
            {
                SelectionManager iwSelectionMgr0 = iwDoc.GetSelectionManager();
                MathUtility iwMathUtility0 = iwApp.GetMathUtility();
                MathPoint Point_0_1;
                Point_0_1 = iwMathUtility0.CreatePoint(1, 2, 0);
                iwSelectionMgr0.SelectByPoint(Point_0_1);
                int iCount0 = iwSelectionMgr0.GetSelectedObjectCount(iwSelectionSetType_e.iwSelectionSetType_Previous);
                SelectionManager iwSelectionMgr1 = iwDoc.GetSelectionManager();
                MathUtility iwMathUtility1 = iwApp.GetMathUtility();
                MathPoint Point_1_1;
                Point_1_1 = iwMathUtility1.CreatePoint(0, 0, 0);
                MathPoint Point_1_2;
                Point_1_2 = iwMathUtility1.CreatePoint(4, 3, 0);
                iwSelectionMgr1.SelectByWindow(Point_1_1, Point_1_2, false);
                int iCount1 = iwSelectionMgr1.GetSelectedObjectCount(iwSelectionSetType_e.iwSelectionSetType_Previous);
                SelectionManager iwSelectionMgr2 = iwDoc.GetSelectionManager();
                MathUtility iwMathUtility2 = iwApp.GetMathUtility();
                double[] doubleArray2 = new double[15];
                doubleArray2[0] = 0;
                doubleArray2[1] = 0;
                doubleArray2[2] = 0;
                doubleArray2[0] = 4;
                doubleArray2[1] = 0;
                doubleArray2[2] = 0;
                doubleArray2[0] = 4;
                doubleArray2[1] = 3;
                doubleArray2[2] = 0;
                doubleArray2[0] = 0;
                doubleArray2[1] = 3;
                doubleArray2[2] = 0;
                doubleArray2[0] = 0;
                doubleArray2[1] = 0;
                doubleArray2[2] = 0;
                iwSelectionMgr2.SelectByPolygon(doubleArray2, true);
                int iCount2 = iwSelectionMgr2.GetSelectedObjectCount(iwSelectionSetType_e.iwSelectionSetType_Previous);
                SelectionManager iwSelectionMgr3 = iwDoc.GetSelectionManager();
                MathUtility iwMathUtility3 = iwApp.GetMathUtility();
                double[] doubleArray3 = new double[6];
                doubleArray3[0] = 0;
                doubleArray3[1] = 0;
                doubleArray3[2] = 0;
                doubleArray3[0] = 1;
                doubleArray3[1] = 1;
                doubleArray3[2] = 0;
                iwSelectionMgr3.SelectByCrossline(doubleArray3);
                int iCount3 = iwSelectionMgr3.GetSelectedObjectCount(iwSelectionSetType_e.iwSelectionSetType_Previous);
                SelectionManager iwSelectionMgr4 = iwDoc.GetSelectionManager();
                MathUtility iwMathUtility4 = iwApp.GetMathUtility();
                MathPoint Point_4_1;
                Point_4_1 = iwMathUtility4.CreatePoint(1, 2.5, 0);
                MathPoint Point_4_2;
                Point_4_2 = iwMathUtility4.CreatePoint(5, 4, 0);
                iwSelectionMgr4.SelectByWindow(Point_4_1, Point_4_2, true);
                int iCount4 = iwSelectionMgr4.GetSelectedObjectCount(iwSelectionSetType_e.iwSelectionSetType_Previous);
            }
            {
                SelectionManager iwSelectionMgr5 = iwDoc.GetSelectionManager();
                SelectionFilter selectionFilter5 = iwSelectionMgr5.GetSelectionFilter();
                selectionFilter5.Clear();
                selectionFilter5.AddEntityType(iwObjectType_e.iwLineType);
                selectionFilter5.AddEntityType(iwObjectType_e.iwCircleType);

                selectionFilter5.Active = true;
                MathUtility iwMathUtility5 = iwApp.GetMathUtility();
                MathPoint Point_5_1;
                Point_5_1 = iwMathUtility5.CreatePoint(0, 0, 0);
                MathPoint Point_5_2;
                Point_5_2 = iwMathUtility5.CreatePoint(1e+06, 1, 0);
                iwSelectionMgr5.SelectByWindow(Point_5_1, Point_5_2, false);
                int iCount5 = iwSelectionMgr5.GetSelectedObjectCount(iwSelectionSetType_e.iwSelectionSetType_Previous);
                selectionFilter5.Active = false;
            }
            {
                iwObjectType_e type1;
                Line line7 = iwApp.GetActiveDocument().GetObjectByHandle("A0", out type1) as Line;
                line1.Join( line7 );
            }
            {
                iwObjectType_e type1;
                Line line8 = iwApp.GetActiveDocument().GetObjectByHandle("A0", out type1) as Line;
                line4.Erased = true;
                line8.Erased = true;
            }
            {
                iwObjectType_e type2;
                Leader leader10 = iwApp.GetActiveDocument().GetObjectByHandle("62", out type2) as Leader;
                Note note9 = leader10.GetNoteAnnotation();
                note9.Erased = true;
            }
            Group group11;
            {
                DispatchWrapper[] entities1 = new DispatchWrapper[0];
                group11 = iwDoc.CreateGroup( "", false, "", entities1 );

                if ( !group11.HasEntity(line1) )
                {
                    DispatchWrapper[] entities2 = new DispatchWrapper[1];
                    entities2[0] = new DispatchWrapper(line1);
                    group11.AddEntities(entities2);
                }
                if ( !group11.HasEntity(line2) )
                {
                    DispatchWrapper[] entities2 = new DispatchWrapper[1];
                    entities2[0] = new DispatchWrapper(line2);
                    group11.AddEntities(entities2);
                }

            }
            {

                DispatchWrapper[] removeObject1;
                removeObject1 = new DispatchWrapper[1];
                removeObject1[0] = new DispatchWrapper(line2);

                group11.RemoveEntities(removeObject1);
            }
            {
                circle3.Explode();
                iwObjectType_e type1;
                Line line12 = iwApp.GetActiveDocument().GetObjectByHandle("A0", out type1) as Line;
                line12.Explode();
            }
            Region region13;
            {

                DispatchWrapper[] iwEntities_1 = new DispatchWrapper[3];
                iwEntities_1[0] = new DispatchWrapper(line1);                iwEntities_1[1] = new DispatchWrapper(line2);                iwEntities_1[2] = new DispatchWrapper();                object regionArray1;
                iwSketchManager.InsertRegion(iwEntities_1, out regionArray1);
                object[] iwRegions1 = (object[])regionArray1;
                region13 = iwRegions1[0] as Region;
            }
            EmbeddedObject embeddedobject14;
            {
                embeddedobject14 = iwSketchManager.InsertEmbeddedObjectFromFile(
                 "C:\\data\\parts list.xls", 
                 true, 
                 false);
            }
            BlockInstance blockinstance15;
            {
                blockinstance15 = iwApp.GetActiveDocument().GetModel().GetSketchManager().InsertBlock2( "", 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 1.00000000000000, 1.00000000000000, 0.00000000000000 );
                object[] iwAttributes1 = (object[])blockinstance15.GetAttributeInstances();
                foreach (object attribute1 in iwAttributes1)
                {
                    AttributeInstance iwAttribute1 = attribute1 as AttributeInstance;
                    if (iwAttribute1.Name == "SIZE")
                        iwAttribute1.Value = "M8";
                }
            }
            Viewport viewport17 = null;
            Sheet sheetsArray1 = iwDoc.GetSheet("Layout1");
            if ( null != sheetsArray1 )
            {
                 viewport17 = sheetsArray1.InsertViewport( new double[]{0,0,0,4,0,0,4,3,0} );
            }
            {
                viewport17.Activate();
            }
            {
                ApplicationOptions appOption;
                appOption = iwApp.GetApplicationOptions();
                Color iwColor1;
                iwElementColor_e ElementOption;
                
                ElementOption = (iwElementColor_e)3;
                iwColor1 = iwApp.GetColorByIndex( 5 );
                appOption.SetElementColor(ElementOption, iwColor1);
                ElementOption = (iwElementColor_e)4;
                iwColor1 = iwApp.GetRGBColor( 1, 2, 3 );
                appOption.SetElementColor(ElementOption, iwColor1);
            }
            {
                {
                    iwSetCommandOptionResult_e result1;
                    iwApp.GetActiveDocument().SetCommandOptionInt16(iwCommandOptionInt16_e.iwCommandOptionInt16_EnblChmfAng, 1, out result1);
                }

                iwApp.GetApplicationOptions().SetApplicationOptionInt16(iwApplicationOptionInt16_e.iwApplicationOptionInt16_EnblChmfAng, 1);
                {
                    iwSetCommandOptionResult_e result2;
                    iwApp.GetActiveDocument().SetCommandOptionString(iwCommandOptionString_e.iwCommandOptionString_SetCLAYER, "Walls", out result2);
                }
            }
            {
                iwModel.PrintStyle = "monochrome.ctb";
            }
            Line line18;
            Line line19;
            {
                line18 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 1.00000000000000, 0.00000000000000 );
                line18.Color = iwApp.GetColorByIndex( 256 );
                line18.Layer = "0";
                line18.LineStyle = "Continuous";
                line18.LineScale = 1.00000000000000;
                line18.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                line18.Thickness = 0.00000000000000;
            }
            {
                iwSheet = iwDoc.GetSheet("Layout1");
                if (null != iwSheet)
                {
                     iwSheet.Activate();
                     iwSketchManager = iwSheet.GetSketchManager();
                }
                iwSheet.PrintStyle = "monochrome.ctb";
            }
