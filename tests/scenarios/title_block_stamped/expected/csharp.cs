            Layer layer1;
            {
                LayerManager iwLayerManager1 = iwDoc.GetLayerManager();
                iwCreateObjectResult_e iwCreateObjectResult1;
                iwLayerManager1.CreateLayer( "Frame", out layer1, out iwCreateObjectResult1 );
                layer1.Activate();
            }
            Line line2;
            Line line3;
            {
                line2 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, 180.00000000000000, 0.00000000000000, 0.00000000000000 );
                line3 = iwSketchManager.InsertLine( 0.00000000000000, 55.00000000000000, 0.00000000000000, 180.00000000000000, 55.00000000000000, 0.00000000000000 );
            }
            Circle circle4;
            {
                circle4 = iwSketchManager.InsertCircle( 160.00000000000000, 40.00000000000000, 0.00000000000000, 6.00000000000000 );
            }
            AttributeDefinition attributedefinition5;
            {
                attributedefinition5 = iwSketchManager.InsertAttributeDefinition(  "", "DRAWN", "Drawn by?", 100.00000000000000, 40.00000000000000, 0.00000000000000, "", iwTextJustification_e.iwTextJustification_Left, 3.50000000000000, 0.00000000000000, false, false, false, false, false, false );
            }
            Leader leader6;
            {
                leader6 = iwSketchManager.InsertLeader(
                 new double[]{1.00000000000000,1.00000000000000,0.00000000000000,5.00000000000000,5.00000000000000,0.00000000000000},
                 12.50000000000000,
                 "Scale" );
                Note note7 = leader6.GetNoteAnnotation();
                note7.BackgroundMask = false;
                note7.UseDrawingBackgroundColor = false;
                note7.BackgroundBorderOffsetFactor = 1.50000000000000;
                note7.LineSpaceDistance = 0.00000000000000;
                note7.LineSpaceFactor = 1.00000000000000;
                note7.Rotation = 0.00000000000000;
                note7.TextHeight = 0.00000000000000;
                note7.Width = 0.00000000000000;
                note7.Justify = iwNoteJustification_e.iwNoteJustification_TopLeft;
            }
            Hatch hatch8;
            BlockDefinition blockdefinition9;
            {
                Note note10 = leader6.GetNoteAnnotation();


                                iwObjectType_e type2;
                Leader leader11 = iwApp.GetActiveDocument().GetObjectByHandle("3B", out type2) as Leader;
                Note note12 = leader11.GetNoteAnnotation();

                ArcLengthDimension arcLengthDimension_0;
                CircleArc arcLengthDimension_0_associated_arc = iwSketchManager.InsertArc( 170.00000000000000, 10.00000000000000, 0.00000000000000, 8.48528137423857, 0.25000000000000, 1.25000000000000 );
                arcLengthDimension_0 = iwSketchManager.InsertArcLengthDimension( arcLengthDimension_0_associated_arc, new double[]{176.00000000000000,16.00000000000000,0.00000000000000}, "\\A1;<>" );
                arcLengthDimension_0_associated_arc.Erased = true;

                hatch8 = iwSketchManager.InsertHatchByBoundary(
                 new int[]{3,4}, 
                 new double[]{0.00000000000000,0.00000000000000,9.00000000000000,0.00000000000000,9.00000000000000,4.00000000000000,2.00000000000000,1.00000000000000,3.00000000000000,1.00000000000000,3.00000000000000,2.00000000000000,2.00000000000000,2.00000000000000,0.00000000000000,0.00000000000000}, 
                 "ANSI31", 
                 2.50000000000000, 
                 0.75000000000000 );

                CircleArc arc_0;
                arc_0 = iwSketchManager.InsertArc( 170.00000000000000, 10.00000000000000, 0.00000000000000, 7.50000000000000, 0.00000000000000, 1.50000000000000 );


                DispatchWrapper[] objects_4 = new DispatchWrapper[9];
                objects_4[0] = new DispatchWrapper(line2);
                objects_4[1] = new DispatchWrapper(line3);
                objects_4[2] = new DispatchWrapper(circle4);
                objects_4[3] = new DispatchWrapper(attributedefinition5);
                objects_4[4] = new DispatchWrapper(note10);
                objects_4[5] = new DispatchWrapper(note12);
                objects_4[6] = new DispatchWrapper(arcLengthDimension_0);
                objects_4[7] = new DispatchWrapper(hatch8);
                objects_4[8] = new DispatchWrapper(arc_0);

                int[] objecttypes_4 = new int[9];
                objecttypes_4[0] = (int)iwObjectType_e.iwLineType;
                objecttypes_4[1] = (int)iwObjectType_e.iwLineType;
                objecttypes_4[2] = (int)iwObjectType_e.iwCircleType;
                objecttypes_4[3] = (int)iwObjectType_e.iwSimpleNoteType;
                objecttypes_4[4] = (int)iwObjectType_e.iwNoteType;
                objecttypes_4[5] = (int)iwObjectType_e.iwNoteType;
                objecttypes_4[6] = (int)iwObjectType_e.iwArcLengthDimensionType;
                objecttypes_4[7] = (int)iwObjectType_e.iwHatchType;
                objecttypes_4[8] = (int)iwObjectType_e.iwCircleArcType;

                 blockdefinition9 = iwDoc.CreateBlockDefinition(
                 "TITLE", 
                 "A3 frame\nmetric", 
                 180.00000000000000, 
                 0.00000000000000, 
                 0.00000000000000, 
                 objecttypes_4,  
                 objects_4, 
                 iwBlockDefinitionEntities_e.iwBlockDefinitionEntities_RemoveFromDrawing );
            }
            Line line13;
            {
                line13 = iwSketchManager.InsertLine( 10.00000000000000, 95.00000000000000, 0.00000000000000, 20.00000000000000, 95.00000000000000, 0.00000000000000 );
            }
            BlockInstance blockinstance14;
            {
                blockinstance14 = iwApp.GetActiveDocument().GetModel().GetSketchManager().InsertBlock2( "TITLE", 400.00000000000000, 10.00000000000000, 0.00000000000000, 1.25000000000000, 0.75000000000000, 1.00000000000000, 0.25000000000000 );
                object[] iwAttributes1 = (object[])blockinstance14.GetAttributeInstances();
                foreach (object attribute1 in iwAttributes1)
                {
                    AttributeInstance iwAttribute1 = attribute1 as AttributeInstance;
                    if (iwAttribute1.Name == "DRAWN")
                        iwAttribute1.Value = "M. Weber";
                }
                object[] iwAttributes2 = (object[])blockinstance14.GetAttributeInstances();
                foreach (object attribute2 in iwAttributes2)
                {
                    AttributeInstance iwAttribute2 = attribute2 as AttributeInstance;
                    if (iwAttribute2.Name == "DATE")
                        iwAttribute2.Value = "2024-05-17";
                }
            }
            BlockInstance blockinstance15;
            {
                BlockDefinition blockinstance15Def;
                CircleArc arc_1;
                arc_1 = iwSketchManager.InsertArc( 10.00000000000000, 100.00000000000000, 0.00000000000000, 5.00000000000000, 0.00000000000000, 2.00000000000000 );

                CircleArc arc_2;
                arc_2 = iwSketchManager.InsertArc( 20.00000000000000, 100.00000000000000, 0.00000000000000, 5.00000000000000, 1.00000000000000, 3.00000000000000 );


                DispatchWrapper[] objects_1 = new DispatchWrapper[3];
                objects_1[0] = new DispatchWrapper(line13);
                objects_1[1] = new DispatchWrapper(arc_1);
                objects_1[2] = new DispatchWrapper(arc_2);

                int[] objecttypes_1 = new int[3];
                objecttypes_1[0] = (int)iwObjectType_e.iwLineType;
                objecttypes_1[1] = (int)iwObjectType_e.iwCircleArcType;
                objecttypes_1[2] = (int)iwObjectType_e.iwCircleArcType;

                 blockinstance15Def = iwDoc.CreateBlockDefinition(
                 "*U", 
                 "Rev A\nchecked", 
                 10.00000000000000, 
                 100.00000000000000, 
                 0.00000000000000, 
                 objecttypes_1,  
                 objects_1, 
                 iwBlockDefinitionEntities_e.iwBlockDefinitionEntities_RemoveFromDrawing );

                 string blockinstance15Name;

                 blockinstance15Name = blockinstance15Def.GetName();
                blockinstance15 = iwApp.GetActiveDocument().GetModel().GetSketchManager().InsertBlock2( blockinstance15Name, 10.00000000000000, 100.00000000000000, 0.00000000000000, 1.00000000000000, 1.00000000000000, 1.00000000000000, 0.00000000000000 );
                 CustomData iwCustomData;
                 iwCustomData = blockinstance15.GetCustomData("PE_CLOUD");
                 iwCustomData.Empty();
                 int count;
                 count = iwCustomData.GetDataCount();
                 iwCustomData.InsertStringData(count, 1000, "REV A");
                 count = iwCustomData.GetDataCount();
                 iwCustomData.InsertDoubleData(count, 1041, 2.50000000000000);
                 count = iwCustomData.GetDataCount();
                 iwCustomData.InsertPointData(count, 1011, 10.00000000000000, 100.00000000000000, 0.50000000000000);
                 blockinstance15.SetCustomData("PE_CLOUD", iwCustomData);
            }
            BlockInstance blockinstance16;
            {
                blockinstance16 = iwSketchManager.InsertExternalReference(  "../refs/site.dwg", 20.00000000000000, 30.00000000000000, 0.00000000000000, 0.50000000000000, 0.25000000000000);
            }
            ReferenceImage referenceimage17;
            {
                referenceimage17 = iwApp.GetActiveDocument().GetModel().GetSketchManager().InsertPicture(  "C:\\logos\\weber.png", 300.00000000000000, 20.00000000000000, 0.00000000000000, 0.37500000000000, 1.50000000000000 );
            }
            Shape shape18;
            {
                shape18 = iwSketchManager.InsertShape( "ARROW", 330.00000000000000, 25.00000000000000, 0.00000000000000, 4.50000000000000, 0.87500000000000 );
            }
            Line line19;
            Group group20;
            {
                line19 = iwSketchManager.InsertLine( 300.00000000000000, 10.00000000000000, 0.00000000000000, 390.00000000000000, 10.00000000000000, 0.00000000000000 );
                DispatchWrapper[] entities1 = new DispatchWrapper[2];
                entities1[0] = new DispatchWrapper(referenceimage17);
                entities1[1] = new DispatchWrapper(line19);
                group20 = iwDoc.CreateGroup( "LOGO", true, "Logo and line", entities1 );
            }
            Group group21;
            {
                DispatchWrapper[] entities1 = new DispatchWrapper[1];
                entities1[0] = new DispatchWrapper(shape18);
                group21 = iwDoc.CreateGroup( "*A1", false, "", entities1 );
            }
            Viewport viewport22;
            {
                viewport22 = null;
                Sheet sheetsArray1 = iwDoc.GetSheet("A3");
                if ( null != sheetsArray1 )
                {
                     Circle circle_0 = iwSketchManager.InsertCircle( 210.00000000000000, 148.50000000000000, 0.00000000000000, 60.00000000000000 );
                     viewport22 = sheetsArray1.InsertViewportByEntity(circle_0);
                }
            }
            Viewport viewport23;
            {
                viewport23 = null;
                Sheet sheetsArray1 = iwDoc.GetSheet("A3");
                if ( null != sheetsArray1 )
                {
                     
                     viewport23 = sheetsArray1.InsertViewportByEntity(circle4);
                }
            }
            Viewport viewport24;
            {
                viewport24 = null;
                Sheet sheetsArray1 = iwDoc.GetSheet("A3");
                if ( null != sheetsArray1 )
                {
                     PolyLine pLine_0 = iwSketchManager.InsertPolyline2D(
                 new double[]{250.00000000000000,150.00000000000000,330.00000000000000,150.00000000000000,330.00000000000000,220.00000000000000},
                 true );

                     viewport24 = sheetsArray1.InsertViewportByEntity(pLine_0);
                }
            }
            Viewport viewport25;
            {
                viewport25 = null;
                Sheet sheetsArray1 = iwDoc.GetSheet("A3");
                if ( null != sheetsArray1 )
                {
                     PolyLine3D pLine_1 = iwSketchManager.InsertPolyline3D(
                 new double[]{30.00000000000000,200.00000000000000,0.00000000000000,80.00000000000000,200.00000000000000,0.00000000000000,80.00000000000000,240.00000000000000,1.00000000000000},
                 false );

                     viewport25 = sheetsArray1.InsertViewportByEntity(pLine_1);
                }
            }
            Viewport viewport26;
            {
                viewport26 = null;
                Sheet sheetsArray1 = iwDoc.GetSheet("A3");
                if ( null != sheetsArray1 )
                {
                     EllipseArc ellipse_0 = iwSketchManager.InsertEllipseDistanceToOtherAxis( 145.00000000000000, 220.00000000000000, 95.00000000000000, 220.00000000000000, 13.00000000000000 );
                     viewport26 = sheetsArray1.InsertViewportByEntity(ellipse_0);
                }
            }
            Viewport viewport27;
            {
                viewport27 = null;
                Sheet sheetsArray1 = iwDoc.GetSheet("A3");
                if ( null != sheetsArray1 )
                {
                     EllipseArc ellipse_1 = iwSketchManager.InsertEllipseArcDistanceToOtherAxis( 320.00000000000000, 80.00000000000000, 320.00000000000000, 40.00000000000000, 10.00000000000000, 0.50000000000000, 4.00000000000000 );
                     viewport27 = sheetsArray1.InsertViewportByEntity(ellipse_1);
                }
            }
