            TextStyle textstyle1;
            {
                iwCreateObjectResult_e result1;
                string textStyleName1 = "Titles";
                textstyle1 = iwApp.GetActiveDocument().GetTextStyleManager().GetTextStyle( textStyleName1 );
                if (null == textstyle1)
                {
                    iwApp.GetActiveDocument().GetTextStyleManager().CreateTextStyle( textStyleName1, out textstyle1, out result1 );
                }
                textstyle1.Font = "arial.ttf";
            }
            TableStyle tablestyle2;
            {
                iwCreateObjectResult_e result1;
                string tableStyleName1 = "Parts";
                iwApp.GetActiveDocument().GetTableStyleManager().CreateTableStyle( tableStyleName1, out tablestyle2, out result1 );
                iwCreateObjectResult_e result2;
                string styleName2 = "Parts";
                result2 = tablestyle2.Rename( styleName2 );
            }
            Table table3;
            {
                table3 = iwSketchManager.InsertTable(
                 10.00000000000000, 200.00000000000000, 3, 3, 9.00000000000000, 15.00000000000000, (iwTableCellType_e)1, (iwTableCellType_e)2, (iwTableCellType_e)3 );
                table3.SetRowHeightAt( 0, 12.00000000000000 );
            }
            {
                // AcDbTable object modified
                {
                    table3.SetText( 0, 0, "Bill of materials" );
                    table3.SetText( 1, 0, "No" );
                    table3.SetText( 1, 1, "Part" );
                    table3.SetText( 1, 2, "Drawing" );
                    table3.SetText( 2, 0, "1" );
                    table3.SetText( 2, 1, "{\\fArial;Bolt} M8" );
                    table3.SetText( 2, 2, "" );
                }
            }
            {
                // AcDbTable object modified
                {
                    table3.InsertRow( 3, 9.00000000000000 );
                    table3.InsertRow( 4, 9.00000000000000 );
                    table3.SetText( 3, 0, "2" );
                    table3.SetText( 3, 1, "Washer" );
                    table3.SetText( 4, 0, "3" );
                    table3.SetText( 4, 1, "Nut" );
                    table3.SetText( 4, 2, "D:\\parts\\nut.dwg" );
                    table3.SetText( 3, 0, "2" );
                    table3.SetText( 3, 1, "Washer" );
                    table3.SetText( 3, 2, "" );
                    table3.SetText( 4, 0, "3" );
                    table3.SetText( 4, 1, "Nut" );
                    table3.SetText( 4, 2, "D:\\parts\\nut.dwg" );
                    table3.SetRowHeightAt( 3, 9.00000000000000 );
                    table3.SetRowHeightAt( 4, 9.00000000000000 );
                }
            }
            {
                // AcDbTable object modified
                {
                    table3.InsertColumn( 3, 20.00000000000000 );
                    table3.SetText( 1, 3, "Qty" );
                    table3.SetText( 2, 3, "8" );
                    table3.SetText( 1, 3, "Qty" );
                    table3.SetText( 2, 3, "8" );
                    table3.SetColumnWidthAt( 3, 20.00000000000000 );
                }
            }
            {
                // AcDbTable object modified
                {
                    table3.DeleteRow( 4 );
                    table3.SetText( 3, 0, "" );
                    table3.SetRowHeightAt( 2, 12.00000000000000 );
                }
            }
            {
                // AcDbTable object modified
                {
                    table3.DeleteColumn( 3 );
                }
            }
            {
                // AcDbTable object modified
                {
                    double coef1 = 2.00000000000000;
                    int iRowCount1 = table3.TotalRowCount();
                    for (int i = 0; i < iRowCount1; ++i)
                    {
                        double height = table3.GetRowHeight(i)*coef1;
                        table3.SetRowHeightAt(i, height);
                    }
                }
            }
            {
                // AcDbTable object modified
                {
                    double coef1 = 1.50000000000000;
                    int iColumnCount1 = table3.TotalColumnCount();
                    for (int i = 0; i < iColumnCount1; ++i)
                    {
                        double width = table3.GetColumnWidth(i)*coef1;
                        table3.SetColumnWidthAt(i, width);
                    }
                }
            }
            {
                // AcDbTable object modified
                {
                    table3.SetColumnWidthAt( 1, 40.00000000000000 );
                }
            }
            {
                // AcDbTable object modified
                {
                    double X1;
                    double Y1;
                    double Z1;
                    table3.GetPosition(out X1, out Y1, out Z1);
                    Y1 = 180.00000000000000;
                    table3.SetPosition(X1, Y1, Z1);
                    TableStyleManager tablestylemgr2 = iwDoc.GetTableStyleManager();
                    table3.TableStyle = tablestylemgr2.GetTableStyle("Parts");
                     table3.Direction= iwTableDirection_e.iwTableDirection_BottomToTop;
                }
            }
            {
                // AcDbTableStyle object modified
                {
                    iwCreateObjectResult_e result1;
                    string styleName1 = "Parts lists";
                    result1 = tablestyle2.Rename( styleName1 );
                }
            }
            {
                // AcDbTableStyle object modified
                {
                     tablestyle2.SetAlignment(iwTableCellType_e.iwTableCellType_Data,iwTableCellAlignment_e.iwTableCellAlignment_MiddleCenter);
                     tablestyle2.SetTextHeight(iwTableCellType_e.iwTableCellType_Data,3.50000000000000);
                     tablestyle2.SetTextStyle(iwTableCellType_e.iwTableCellType_Title,"Titles");
                }
            }
            {
                // AcDbTableStyle object modified
                {
                     tablestyle2.SetBackgroundColor(iwTableCellType_e.iwTableCellType_Header,iwApp.GetColorByIndex( 8 ));
                     tablestyle2.SetTextColor(iwTableCellType_e.iwTableCellType_Header,iwApp.GetRGBColor( 20 ,40 ,60 ));
                }
            }
            {
                // AcDbTableStyle object modified
                {
                     tablestyle2.SetHorizontalMargin(iwTableCellType_e.iwTableCellType_Data,1.50000000000000);
                     tablestyle2.SetVerticalMargin(iwTableCellType_e.iwTableCellType_Data,0.75000000000000);
                     tablestyle2.HeaderOrientation = iwTableHeaderOrientation_e.iwTableHeaderOrientation_Down;
                }
            }
            {
                // AcDbTableStyle object modified
                {
                     tablestyle2.SetBordersColor(  iwTableCellType_e.iwTableCellType_Data,iwTableBordersLineType_e.iwTableBordersLineType_VerticalInside,iwApp.GetColorByIndex( 1 ));
                     tablestyle2.SetBordersLineWeight(  iwTableCellType_e.iwTableCellType_Title,iwTableBordersLineType_e.iwTableBordersLineType_HorizontalBottom,iwLineWeight_e.iwLnWt_050);
                }
            }
            {
                // AcDbTextStyleTableRecord object modified
                {
                    iwCreateObjectResult_e result1;
                    string styleName1 = "Headings";
                    result1 = textstyle1.Rename( styleName1 );
                    textstyle1.Font = "C:\\Fonts\\arialbd.ttf";
                    textstyle1.Angle = 0.25000000000000;
                    textstyle1.Height = 5.00000000000000;
                    textstyle1.Spacing = 1.10000000000000;
                    textstyle1.Backwards = false;
                    textstyle1.UpsideDown = false;
                    textstyle1.Vertical = true;
                    textstyle1.BigFont = "extfont.shx";
                }
            }
            AttributeDefinition attributedefinition4;
            {
                attributedefinition4 = iwSketchManager.InsertAttributeDefinition(  "M8", "SIZE", "Size?", 1.00000000000000, 2.00000000000000, 0.00000000000000, "", iwTextJustification_e.iwTextJustification_Left, 0.20000000000000, 0.00000000000000, false, false, false, false, false, false );
            }
            {
                // AcDbAttributeDefinition object modified
                {
                    attributedefinition4.Angle = 0.10000000000000;
                    attributedefinition4.Height = 2.50000000000000;
                    attributedefinition4.Justification = iwTextJustification_e.iwTextJustification_Center;
                    attributedefinition4.Caption = "Size of the bolt?";
                    attributedefinition4.Rotation = 0.50000000000000;
                    attributedefinition4.Spacing = 0.90000000000000;
                    attributedefinition4.TextStyle = "Headings";
                    attributedefinition4.Name = "BOLT";
                    attributedefinition4.Value = "M10";
                    double X1;
                    double Y1;
                    double Z1;
                    attributedefinition4.GetPosition(out X1, out Y1, out Z1);
                    X1 = 3.00000000000000;
                    attributedefinition4.SetPosition(X1, Y1, Z1);
                    double X2;
                    double Y2;
                    double Z2;
                    attributedefinition4.GetAlignmentPoint(out X2, out Y2, out Z2);
                    Y2 = 4.00000000000000;
                    attributedefinition4.SetAlignmentPoint(X2, Y2, Z2);
                    attributedefinition4.Backwards = true;
                    attributedefinition4.Constant = false;
                    attributedefinition4.Hidden = true;
                    attributedefinition4.LockPosition = true;
                    attributedefinition4.Preset = false;
                    attributedefinition4.UpsideDown = false;
                    attributedefinition4.Verify = true;
                }
            }
            SimpleNote simplenote5;
            {
                simplenote5 = iwSketchManager.InsertSimpleNote( 1.00000000000000, 1.00000000000000, 0.00000000000000, 5.00000000000000, 0.10000000000000, "Section A-A" );
                simplenote5.SetAlignmentPoint( 0.00000000000000, 0.00000000000000, 0.00000000000000 );
                simplenote5.SetPosition( 1.00000000000000, 1.00000000000000, 0.00000000000000 );
            }
            {
                // AcDbText object modified
                {
                    simplenote5.Angle = 0.20000000000000;
                    simplenote5.Contents = "Section B-B";
                    simplenote5.Height = 7.00000000000000;
                    simplenote5.Rotation = 0.00000000000000;
                    simplenote5.Spacing = 1.20000000000000;
                    simplenote5.TextStyle = "Headings";
                    double X1;
                    double Y1;
                    double Z1;
                    simplenote5.GetPosition(out X1, out Y1, out Z1);
                    Z1 = 1.00000000000000;
                    simplenote5.SetPosition(X1, Y1, Z1);
                    simplenote5.Backwards = false;
                    simplenote5.UpsideDown = false;
                    simplenote5.Justify = iwTextJustification_e.iwTextJustification_MiddleCenter;
                    double X2;
                    double Y2;
                    double Z2;
                    simplenote5.GetAlignmentPoint(out X2, out Y2, out Z2);
                    X2 = 2.00000000000000;
                    simplenote5.SetAlignmentPoint(X2, Y2, Z2);
                }
            }
            Note note6;
            {
                string[] strArray1 = new string[1];
                strArray1[0] = "All parts galvanized";
                note6 = iwSketchManager.InsertNote( 10.00000000000000, 20.00000000000000, 0.00000000000000, 70.00000000000000, 20.00000000000000, 0.00000000000000, strArray1 );
                note6.TextHeight = 2.50000000000000;
                note6.Width = 60.00000000000000;
            }
            {
                // AcDbMText object modified
                {
                    note6.BackgroundMask = true;
                    note6.BackgroundFillColor = iwApp.GetColorByIndex( 2 );
                    note6.UseDrawingBackgroundColor = false;
                    note6.BackgroundBorderOffsetFactor = 1.50000000000000;
                    note6.Text = "All parts\\Pzinc coated";
                    note6.Direction = iwNoteDirection_e.iwNoteDirection_Horizontal;
                    note6.Justify = iwNoteJustification_e.iwNoteJustification_TopCenter;
                    note6.LineSpaceDistance = 4.00000000000000;
                    note6.LineSpaceFactor = 1.25000000000000;
                    note6.LineSpacingStyle = iwNoteLineSpacingStyle_e.iwNoteLineSpacingStyle_Exactly;
                    note6.Rotation = 0.50000000000000;
                    note6.TextStyle = "Headings";
                    note6.TextHeight = 3.00000000000000;
                    note6.Width = 80.00000000000000;
                    double getX1;
                    double getY1;
                    double getZ1;
                    note6.GetPosition(out getX1, out getY1, out getZ1);
                    getX1 = 12.00000000000000;
                    note6.SetPosition(getX1, getY1, getZ1);
                    double getX2;
                    double getY2;
                    double getZ2;
                    note6.GetPosition(out getX2, out getY2, out getZ2);
                    getY2 = 22.00000000000000;
                    note6.SetPosition(getX2, getY2, getZ2);
                }
            }
            CircleArc circlearc7;
            ArcAlignedText arcalignedtext8;
            {
                circlearc7 = iwSketchManager.InsertArc( 0.00000000000000, 0.00000000000000, 0.00000000000000, 20.00000000000000, 0.00000000000000, 3.00000000000000 );
                arcalignedtext8 = iwSketchManager.InsertCurvedText( "Round the bend", circlearc7 );
            }
            {
                // AcDbArcAlignedText object modified
                {
                    arcalignedtext8.Contents = "Turn here";
                    arcalignedtext8.Height = 4.00000000000000;
                    arcalignedtext8.WidthFactor = 0.80000000000000;
                    arcalignedtext8.CharSpacing = 0.10000000000000;
                    double X1;
                    double Y1;
                    double Z1;
                    arcalignedtext8.GetCenter(out X1, out Y1, out Z1);
                    X1 = 1.00000000000000;
                    arcalignedtext8.SetCenter(X1, Y1, Z1);
                    arcalignedtext8.StartAngle = 0.10000000000000;
                    arcalignedtext8.EndAngle = 2.90000000000000;
                    arcalignedtext8.ArcOffset = 2.00000000000000;
                    arcalignedtext8.LeftOffset = 1.00000000000000;
                    arcalignedtext8.RightOffset = 1.50000000000000;
                    CurvedSettings curvedSettings2 = arcalignedtext8.GetCurvedSettings();
                    curvedSettings2.Underlined = true;
                    arcalignedtext8.SetCurvedSettings( curvedSettings2 );
                    CurvedSettings curvedSettings3 = arcalignedtext8.GetCurvedSettings();
                    curvedSettings3.Flip = false;
                    arcalignedtext8.SetCurvedSettings( curvedSettings3 );
                    CurvedSettings curvedSettings4 = arcalignedtext8.GetCurvedSettings();
                    curvedSettings4.Alignment = iwArcTextAlignment_e.iwArcTextAlignment_Center;
                    arcalignedtext8.SetCurvedSettings( curvedSettings4 );
                    CurvedSettings curvedSettings5 = arcalignedtext8.GetCurvedSettings();
                    curvedSettings5.TextSide = iwArcTextPosition_e.iwArcTextPosition_OnConvexSide;
                    arcalignedtext8.SetCurvedSettings( curvedSettings5 );
                    CurvedSettings curvedSettings6 = arcalignedtext8.GetCurvedSettings();
                    curvedSettings6.TextDirection = iwArcTextDirection_e.iwArcTextDirection_InwardToTheCenter;
                    arcalignedtext8.SetCurvedSettings( curvedSettings6 );
                    CurvedSettings curvedSettings7 = arcalignedtext8.GetCurvedSettings();
                    curvedSettings7.TextStyle = "Headings";
                    arcalignedtext8.SetCurvedSettings( curvedSettings7 );
                    CurvedSettings curvedSettings8 = arcalignedtext8.GetCurvedSettings();
                    curvedSettings8.Font = "Arial";
                    arcalignedtext8.SetCurvedSettings( curvedSettings8 );
                    CurvedSettings curvedSettings9 = arcalignedtext8.GetCurvedSettings();
                    string Typeface;
                    bool Bold = false;
                    bool Italic = false;
                    long Charset = 0;
                    long PitchAndFamily = 0;
                    curvedSettings9.GetFontParameters( out Typeface, out Bold, out Italic, out Charset, out PitchAndFamily);
                    Bold = true;
                    curvedSettings9.SetFontParameters( Typeface, Bold, Italic, Charset, PitchAndFamily);
                    arcalignedtext8.SetCurvedSettings( curvedSettings9 );
                }
            }
            {
                // AcDbArcAlignedText object modified
                {
                    CurvedSettings curvedSettings1 = arcalignedtext8.GetCurvedSettings();
                    string Typeface;
                    bool Bold = false;
                    bool Italic = false;
                    long Charset = 0;
                    long PitchAndFamily = 0;
                    curvedSettings1.GetFontParameters( out Typeface, out Bold, out Italic, out Charset, out PitchAndFamily);
                    Italic = false;
                    curvedSettings1.SetFontParameters( Typeface, Bold, Italic, Charset, PitchAndFamily);
                    arcalignedtext8.SetCurvedSettings( curvedSettings1 );
                }
            }
            BlockInstance blockinstance9;
            {
                blockinstance9 = iwApp.GetActiveDocument().GetModel().GetSketchManager().InsertBlock2( "Balloon", 0.00000000000000, 0.00000000000000, 0.00000000000000, 1.00000000000000, 1.00000000000000, 1.00000000000000, 0.00000000000000 );
            }
            {
                // AcDbBlockReference object modified
                {
                    double X1;
                    double Y1;
                    double Z1;
                    blockinstance9.GetPosition(out X1, out Y1, out Z1);
                    Y1 = 30.00000000000000;
                    blockinstance9.SetPosition(X1, Y1, Z1);
                    double X2;
                    double Y2;
                    double Z2;
                    blockinstance9.GetScales(out X2, out Y2, out Z2);
                    X2 = 2.00000000000000;
                    blockinstance9.SetScales(X2, Y2, Z2);
                    blockinstance9.Rotation = 0.50000000000000;
                    object[] iwAttributes3 = (object[])blockinstance9.GetAttributeInstances();
                    foreach (object attribute3 in iwAttributes3)
                    {
                        AttributeInstance iwAttribute3 = attribute3 as AttributeInstance;
                        if (iwAttribute3.Name == "NO")
                            iwAttribute3.Value = "3";
                    }
                    object[] iwAttributes4 = (object[])blockinstance9.GetAttributeInstances();
                    foreach (object attribute4 in iwAttributes4)
                    {
                        AttributeInstance iwAttribute4 = attribute4 as AttributeInstance;
                        if (iwAttribute4.Name == "NAME")
                            iwAttribute4.Value = "Nut";
                    }
                }
            }
