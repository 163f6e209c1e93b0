            {
                // AcDbLayerTableRecord object modified
                LayerManager iwLayerManager_1 = iwDoc.GetLayerManager();
                Layer layer1 = iwLayerManager_1.GetLayer( "Walls" );
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
                // AcDbTextStyleTableRecord object modified
                iwObjectType_e type2;
                TextStyle textstyle3 = iwApp.GetActiveDocument().GetObjectByHandle("13", out type2) as TextStyle;
                {
                    iwCreateObjectResult_e result3;
                    string styleName3 = "Room names";
                    result3 = textstyle3.Rename( styleName3 );
                    textstyle3.Height = 0.25000000000000;
                }
            }
            {
                // AcDbLine object modified
                iwObjectType_e type4;
                Line line4 = iwApp.GetActiveDocument().GetObjectByHandle("2A", out type4) as Line;
                line4.LineWeight = iwLineWeight_e.iwLnWt_050;
                double getX5;
                double getY5;
                double getZ5;
                line4.GetSecondPoint(out getX5, out getY5, out getZ5);
                getX5 = 7.50000000000000;
                line4.SetSecondPoint(getX5, getY5, getZ5);
                // AcDbCircle object modified
                iwObjectType_e type6;
                Circle circle5 = iwApp.GetActiveDocument().GetObjectByHandle("2C", out type6) as Circle;
                {
                    circle5.Layer = "Walls existing";
                }
                // AcDbText object modified
                iwObjectType_e type7;
                SimpleNote simplenote6 = iwApp.GetActiveDocument().GetObjectByHandle("2D", out type7) as SimpleNote;
                {
                    simplenote6.Layer = "Rooms";
                    simplenote6.Contents = "Kitchen";
                    simplenote6.TextStyle = "Room names";
                }
                // AcDbRotatedDimension object modified
                iwObjectType_e type8;
                RotatedDimension rotateddimension7 = iwApp.GetActiveDocument().GetObjectByHandle("2F", out type8) as RotatedDimension;
                {
                    GeneralDimension generalDimension9 = rotateddimension7.GetGeneralDimension();
                    generalDimension9.Layer = "Rooms";
                    GeneralDimension generalDimension10 = rotateddimension7.GetGeneralDimension();
                    generalDimension10.TextOverride = "7.50";
                }
            }
            {
                // AcDbPolyline object modified
                iwObjectType_e type11;
                PolyLine polyline8 = iwApp.GetActiveDocument().GetObjectByHandle("2B", out type11) as PolyLine;
                {
                    double X12;
                    double Y12;
                    polyline8.GetVertexCoordinate(2, out X12, out Y12);
                    X12 = 7.50000000000000;
                    polyline8.SetVertexCoordinate(2, X12, Y12);
                }
                // AcDbPolyline object modified
                {
                    double X13;
                    double Y13;
                    polyline8.GetVertexCoordinate(1, out X13, out Y13);
                    Y13 = 4.50000000000000;
                    polyline8.SetVertexCoordinate(1, X13, Y13);
                }
            }
            {
                // AcDbBlockReference object modified
                iwObjectType_e type14;
                BlockInstance blockinstance9 = iwApp.GetActiveDocument().GetObjectByHandle("2E", out type14) as BlockInstance;
                {
                    blockinstance9.Rotation = 1.57079632679490;
                    object[] iwAttributes15 = (object[])blockinstance9.GetAttributeInstances();
                    foreach (object attribute15 in iwAttributes15)
                    {
                        AttributeInstance iwAttribute15 = attribute15 as AttributeInstance;
                        if (iwAttribute15.Name == "NUMBER")
                            iwAttribute15.Value = "D 02";
                    }
                }
            }
            {
                // AcDbHatch object modified
                iwObjectType_e type16;
                Hatch hatch10 = iwApp.GetActiveDocument().GetObjectByHandle("30", out type16) as Hatch;
                {
                    HatchPattern hatchPattern = hatch10.GetHatchPattern();

                    string PatternName;
                    double Angle;
                    double Scale;
                    iwHatchPatternType_e HatchPatternType;
                    double Spacing;

                    hatchPattern.GetHatchOrSolidData( out PatternName, out Angle, out Scale, out HatchPatternType, out Spacing );
                    Scale = 2.00000000000000;
                    PatternName = "BRICK";
                    hatchPattern.SetHatchOrSolidData( PatternName, Angle, Scale, HatchPatternType, Spacing );
                }
            }
            {
                // AcDbTable object modified
                iwObjectType_e type17;
                Table table11 = iwApp.GetActiveDocument().GetObjectByHandle("31", out type17) as Table;
                {
                    table11.InsertRow( 2, 0.50000000000000 );
                    table11.SetText( 2, 0, "Kitchen" );
                    table11.SetText( 2, 0, "Kitchen" );
                    table11.SetRowHeightAt( 2, 0.50000000000000 );
                }
            }
            {
                // AcDbMText object modified
                iwObjectType_e type19;
                Leader leader13 = iwApp.GetActiveDocument().GetObjectByHandle("33", out type19) as Leader;
                Note note12 = leader13.GetNoteAnnotation();
                {
                    note12.Text = "see detail B";
                }
            }
            Note note14;
            {
                string[] strArray20 = new string[1];
                strArray20[0] = "Bath";
                note14 = iwSketchManager.InsertNote( 1.00000000000000, 3.00000000000000, 0.00000000000000, 5.00000000000000, 2.75000000000000, 0.00000000000000, strArray20 );
                note14.Width = 4.00000000000000;
                note14.TextStyle = "Room names";
                {
                    note14.Layer = "Walls existing";
                }
            }
            iwObjectType_e type21;
            Circle circle15 = iwApp.GetActiveDocument().GetObjectByHandle("2C", out type21) as Circle;
            {
                circle15.Radius = 0.75000000000000;
            }
            {
                // AcDbRotatedDimension object modified
                iwObjectType_e type22;
                RotatedDimension rotateddimension16 = iwApp.GetActiveDocument().GetObjectByHandle("2F", out type22) as RotatedDimension;
                {
                    GeneralDimension generalDimension24 = rotateddimension16.GetGeneralDimension();
                    generalDimension24.Erased = true;
                }
            }
            {
                LayerManager iwLayerManager_2 = iwDoc.GetLayerManager();
                Layer layer17 = iwLayerManager_2.GetLayer( "Scrap" );
                LayerManager iwLayerManager26 = iwDoc.GetLayerManager();
                string layerName26 = layer17.Name;
                iwLayerManager26.RemoveLayer( layerName26 );
            }
