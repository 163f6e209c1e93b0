            {
                LayerManager iwLayerManager_1 = iwDoc.GetLayerManager();
                Layer layer1 = iwLayerManager_1.GetLayer( "0" );
                // AcDbLayerTableRecord object modified
                {
                    layer1.Color = iwApp.GetColorByIndex( 8 );
                    layer1.LineWeight = iwLineWeight_e.iwLnWt_035;
                    layer1.Rename("Walls existing");
                }
            }
            Layer layer2;
            {
                LayerManager iwLayerManager1 = iwDoc.GetLayerManager();
                iwCreateObjectResult_e iwCreateObjectResult1;
                iwLayerManager1.CreateLayer( "Walls new", out layer2, out iwCreateObjectResult1 );
            }
            {
                // AcDbMText object modified
                Note note3 = leader4.GetNoteAnnotation();
                {
                    note3.Text = "see detail B";
                }
            }
            Note note5;
            {
                string[] strArray1 = new string[1];
                strArray1[0] = "Bath";
                note5 = iwSketchManager.InsertNote( 1.00000000000000, 3.00000000000000, 0.00000000000000, 5.00000000000000, 2.75000000000000, 0.00000000000000, strArray1 );
                note5.Width = 4.00000000000000;
                note5.TextStyle = "Notes";
                {
                    note5.Layer = "Walls";
                }
            }
            {
                iwObjectType_e type1;
                Layer layer6 = iwApp.GetActiveDocument().GetObjectByHandle("12", out type1) as Layer;
                layer6.Erased = true;
            }
