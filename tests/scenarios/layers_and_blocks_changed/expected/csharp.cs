            Line line1;
            Circle circle2;
            {
                line1 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 0.00000000000000, 0.00000000000000 );
                circle2 = iwSketchManager.InsertCircle( 0.50000000000000, 0.50000000000000, 0.00000000000000, 0.25000000000000 );
            }
            BlockDefinition blockdefinition3;
            {

                DispatchWrapper[] objects_1 = new DispatchWrapper[1];
                objects_1[0] = new DispatchWrapper(line1);

                int[] objecttypes_1 = new int[1];
                objecttypes_1[0] = (int)iwObjectType_e.iwLineType;

                 blockdefinition3 = iwDoc.CreateBlockDefinition(
                 "Chair", 
                 "Swivel", 
                 1.00000000000000, 
                 2.00000000000000, 
                 0.00000000000000, 
                 objecttypes_1,  
                 objects_1, 
                 iwBlockDefinitionEntities_e.iwBlockDefinitionEntities_RemoveFromDrawing );
            }
            {
                // AcDbBlockTableRecord object modified
                {

                    DispatchWrapper[] objects_1 = new DispatchWrapper[2];
                    objects_1[0] = new DispatchWrapper(line1);
                    objects_1[1] = new DispatchWrapper(circle2);

                    int[] objecttypes_1 = new int[2];
                    objecttypes_1[0] = (int)iwObjectType_e.iwLineType;
                    objecttypes_1[1] = (int)iwObjectType_e.iwCircleType;

                    string blkName_1 = blockdefinition3.GetName();

                     blockdefinition3 = iwDoc.CreateBlockDefinition(
                     blkName_1, 
                     "Swivel with a seat", 
                     1.00000000000000, 
                     2.00000000000000, 
                     0.00000000000000, 
                     objecttypes_1,  
                     objects_1, 
                     iwBlockDefinitionEntities_e.iwBlockDefinitionEntities_RemoveFromDrawing );
                }
            }
            Layer layer4;
            {
                LayerManager iwLayerManager1 = iwDoc.GetLayerManager();
                iwCreateObjectResult_e iwCreateObjectResult1;
                iwLayerManager1.CreateLayer( "Furniture", out layer4, out iwCreateObjectResult1 );
                LayerManager iwLayerManager_1 = iwDoc.GetLayerManager();
                Layer layer5 = iwLayerManager_1.GetLayer( "0" );
                // AcDbLayerTableRecord object modified
                {
                    layer5.Description = "Load bearing";
                    layer5.Color = iwApp.GetColorByIndex( 3 );
                    layer5.LineStyle = "DASHED";
                    layer5.LineWeight = iwLineWeight_e.iwLnWt_035;
                    layer5.Frozen = false;
                    layer5.Locked = true;
                    layer5.Printable = true;
                    layer5.Hidden = false;
                    layer5.Shown = true;
                    layer5.Rename("Outer walls");
                    layer5.Activate();
                    layer5.PrintStyle = "Bold";
                    layer5.Transparency = 40;
                    layer5.FrozenInNewViewport = true;
                }
            }
            {
                // AcDbLayerTableRecord object modified
                {
                    layer4.SetFrozenInViewport( false, iwSheet.GetActiveViewport() );
                    layer4.SetColorInViewport( iwApp.GetColorByIndex( 5 ), iwSheet.GetActiveViewport() );
                    layer4.SetLineStyleInViewport( "DASHED", iwSheet.GetActiveViewport() );
                    layer4.SetLineWeigthInViewport( iwLineWeight_e.iwLnWt_025, iwSheet.GetActiveViewport() );
                    layer4.SetTranparencyInViewport( 60, iwSheet.GetActiveViewport() );
                    layer4.SetPrintStyleInViewport( "Grey", iwSheet.GetActiveViewport() );
                }
                // AcDbLayerTableRecord object modified
                {
                    layer4.SetColorInViewport( iwApp.GetRGBColor( 200, 100, 50 ), iwSheet.GetActiveViewport() );
                }
            }
            Group group6;
            {
                DispatchWrapper[] entities1 = new DispatchWrapper[1];
                entities1[0] = new DispatchWrapper(circle2);
                group6 = iwDoc.CreateGroup( "Seat", true, "Chair and seat", entities1 );
                // AcDbGroup object modified
                {
                    group6.Rename("Seats");
                    group6.Description = "All seats";
                    group6.Selectable = false;
                }
            }
            {
                // AcDbLayout object modified
                {
                    iwSheet = iwDoc.GetSheet("Ground floor");
                    if (null != iwSheet)
                    {
                         iwSheet.Activate();
                         iwSketchManager = iwSheet.GetSketchManager();
                    }
                    iwSheet.PrintStyleTable = "mono.ctb";
                }
            }
            ViewTile viewtile7;
            {
                // AcDbViewportTableRecord object modified
                {
                    viewtile7.CCSPerViewTile = true;
                    viewtile7.CSIconAtOrigin = false;
                    viewtile7.CSIconIsOn = true;
                }
            }
