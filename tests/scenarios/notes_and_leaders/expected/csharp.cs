            TextStyle textstyle1;
            {
                iwCreateObjectResult_e result1;
                string textStyleName1 = "Titles";
                textstyle1 = iwApp.GetActiveDocument().GetTextStyleManager().GetTextStyle( textStyleName1 );
                if (null == textstyle1)
                {
                    iwApp.GetActiveDocument().GetTextStyleManager().CreateTextStyle( textStyleName1, out textstyle1, out result1 );
                }
                textstyle1.Font = "C:\\fonts\\arial.ttf";
            }
            ShapeManager iwShapeManager = iwDoc.GetShapeManager();
            iwShapeManager.Load( "C:\\shapes\\stairs.shx" );
            AttributeDefinition attributedefinition3;
            {
                attributedefinition3 = iwSketchManager.InsertAttributeDefinition(  "M8", "SIZE", "Size of the bolt?", 1.00000000000000, 2.00000000000000, 0.00000000000000, "Standard", iwTextJustification_e.iwTextJustification_Left, 3.50000000000000, 0.00000000000000, false, true, false, true, true, false );
                attributedefinition3.Color = iwApp.GetColorByIndex( 256 );
                attributedefinition3.Layer = "0";
                attributedefinition3.LineStyle = "Continuous";
                attributedefinition3.LineScale = 1.00000000000000;
                attributedefinition3.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                attributedefinition3.Thickness = 0.00000000000000;
            }
            AttributeDefinition attributedefinition4;
            {
                attributedefinition4 = iwSketchManager.InsertAttributeDefinition(  "", "NO", "", 4.00000000000000, 5.00000000000000, 0.00000000000000, "Titles", iwTextJustification_e.iwTextJustification_MiddleCenter, 0.20000000000000, 0.25000000000000, false, false, false, false, false, false );
                attributedefinition4.Color = iwApp.GetColorByIndex( 2 );
                attributedefinition4.Layer = "0";
                attributedefinition4.LineStyle = "Continuous";
                attributedefinition4.LineScale = 1.00000000000000;
                attributedefinition4.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                attributedefinition4.Thickness = 0.00000000000000;
            }
            SimpleNote simplenote5;
            {
                simplenote5 = iwSketchManager.InsertSimpleNote( 1.00000000000000, 1.00000000000000, 0.00000000000000, 5.00000000000000, 0.10000000000000, "Section A-A" );
                simplenote5.Justify = iwTextJustification_e.iwTextJustification_MiddleCenter;
                simplenote5.SetAlignmentPoint( 2.00000000000000, 2.00000000000000, 0.00000000000000 );
                simplenote5.SetPosition( 1.00000000000000, 1.00000000000000, 0.00000000000000 );
                simplenote5.Color = iwApp.GetColorByIndex( 256 );
                simplenote5.Layer = "Walls";
                simplenote5.LineStyle = "Continuous";
                simplenote5.LineScale = 1.00000000000000;
                simplenote5.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                simplenote5.Thickness = 0.00000000000000;
            }
            SimpleNote simplenote6;
            {
                simplenote6 = iwSketchManager.InsertSimpleNote( 0.00000000000000, 0.00000000000000, 0.00000000000000, 2.50000000000000, 0.00000000000000, "100% of "it"" );
                simplenote6.SetAlignmentPoint( 0.00000000000000, 0.00000000000000, 0.00000000000000 );
                simplenote6.SetPosition( 0.00000000000000, 0.00000000000000, 0.00000000000000 );
            }
            Note note7;
            {
                string[] strArray1 = new string[1];
                strArray1[0] = "First\PSecond";
                note7 = iwSketchManager.InsertNote( -20.00000000000000, 25.00000000000000, 0.00000000000000, 40.00000000000000, 15.00000000000000, 0.00000000000000, strArray1 );
                note7.Rotation = 0.20000000000000;
                note7.TextHeight = 2.50000000000000;
                note7.Width = 60.00000000000000;
                note7.LineSpaceDistance = 4.17000000000000;
                note7.TextStyle = "Standard";
                note7.Justify = iwNoteJustification_e.iwNoteJustification_MiddleCenter;
                note7.Direction = iwNoteDirection_e.iwNoteDirection_Horizontal;
                note7.Color = iwApp.GetColorByIndex( 256 );
                note7.Layer = "0";
                note7.LineStyle = "Continuous";
                note7.LineScale = 1.00000000000000;
                note7.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                note7.Thickness = 0.00000000000000;
            }
            Note note8;
            {
                string[] strArray1 = new string[1];
                strArray1[0] = "Bare";
                note8 = iwSketchManager.InsertNote( 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, 0.00000000000000, strArray1 );
            }
            Tolerance tolerance9;
            {
                tolerance9 = iwSketchManager.InsertTolerance(
                 new double[]{3.00000000000000,4.00000000000000,0.00000000000000}, 
                 "{\\Fgdt;r}%%v0.05%%v\n%%vB" );
                tolerance9.Color = iwApp.GetColorByIndex( 256 );
                tolerance9.Layer = "0";
                tolerance9.LineStyle = "Continuous";
                tolerance9.LineScale = 1.00000000000000;
                tolerance9.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                tolerance9.Thickness = 0.00000000000000;
            }
            Leader leader10;
            {
                leader10 = iwSketchManager.InsertLeader(
                 new double[]{0.00000000000000,0.00000000000000,0.00000000000000,5.00000000000000,5.00000000000000,0.00000000000000,9.00000000000000,5.00000000000000,0.00000000000000},
                 40.00000000000000,
                 "See\ndetail \\ 5" );
                Note note11 = leader10.GetNoteAnnotation();
                note11.BackgroundMask = true;
                note11.UseDrawingBackgroundColor = false;
                note11.BackgroundFillColor = iwApp.GetColorByIndex( 3 );
                note11.BackgroundBorderOffsetFactor = 1.25000000000000;
                note11.LineSpaceDistance = 6.25000000000000;
                note11.LineSpaceFactor = 1.50000000000000;
                note11.Rotation = 0.50000000000000;
                note11.TextHeight = 2.50000000000000;
                note11.Width = 40.00000000000000;
                note11.Justify = iwNoteJustification_e.iwNoteJustification_MiddleCenter;
                note11.TextStyle = "Titles";
                leader10.Color = iwApp.GetColorByIndex( 256 );
                leader10.Layer = "0";
                leader10.LineStyle = "Continuous";
                leader10.LineScale = 1.00000000000000;
                leader10.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                leader10.Thickness = 0.00000000000000;
            }
            Leader leader12;
            {
                leader12 = iwSketchManager.InsertLeader(
                 new double[]{1.00000000000000,0.00000000000000,0.00000000000000,6.00000000000000,5.00000000000000,0.00000000000000},
                 0.00000000000000,
                 "" );
                leader12.SetToleranceAnnotation( "{\\Fgdt;j}%%v0.1\nA" );
                leader12.Color = iwApp.GetColorByIndex( 256 );
                leader12.Layer = "0";
                leader12.LineStyle = "Continuous";
                leader12.LineScale = 1.00000000000000;
                leader12.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                leader12.Thickness = 0.00000000000000;
            }
            Leader leader13;
            {
                leader13 = iwSketchManager.InsertLeader(
                 new double[]{2.00000000000000,0.00000000000000,0.00000000000000,7.00000000000000,5.00000000000000,0.00000000000000},
                 0.00000000000000,
                 "" );
                leader13.SetBlockAnnotation( "Balloon" );
                leader13.Color = iwApp.GetRGBColor( 1, 2, 3 );
                leader13.Layer = "0";
                leader13.LineStyle = "Continuous";
                leader13.LineScale = 1.00000000000000;
                leader13.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                leader13.Thickness = 0.00000000000000;
            }
            CircleArc circlearc14;
            ArcAlignedText arcalignedtext15;
            {
                circlearc14 = iwSketchManager.InsertArc( 0.00000000000000, 0.00000000000000, 0.00000000000000, 30.00000000000000, 0.00000000000000, 3.00000000000000 );
                arcalignedtext15 = iwSketchManager.InsertCurvedText( "Round the bend", circlearc14 );
                CurvedSettings curvedSettings1 = arcalignedtext15.GetCurvedSettings();
                curvedSettings1.Color = iwApp.GetColorByIndex( 6 );
                arcalignedtext15.SetCurvedSettings( curvedSettings1 );
                arcalignedtext15.Layer = "0";
                arcalignedtext15.LineStyle = "Continuous";
                arcalignedtext15.LineScale = 1.00000000000000;
                arcalignedtext15.LineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                arcalignedtext15.Thickness = 0.00000000000000;
            }
            {
                // AcDbMText object modified
                Note note16 = leader10.GetNoteAnnotation();
                {
                    note16.Layer = "Walls";
                }
            }
            {
                {
                    double X1;
                    double Y1;
                    double Z1;
                    leader10.GetVertexCoordinate(0, out X1, out Y1, out Z1);
                    X1 = 1.00000000000000;
                    leader10.SetVertexCoordinate(0, X1, Y1, Z1);
                }
                // AcDbLeader object modified
                {
                    leader10.DimensionStyle = "ISO-25";
                    leader10.Type = iwLeaderType_e.iwLeaderType_SplineWithArrow;
                    Inkwright.DimensionStyleUserData dimensionStyle2 = leader10.GetDimensionStyleUserData();
                    DimensionStyleArrowsOptions arrowOptions3 = dimensionStyle2.GetDimensionStyleArrowsOptions();
                    arrowOptions3.SetLeaderArrow( iwDimensionArrowType_e.iwDimensionArrowType_Dot, "" );
                    Inkwright.DimensionStyleUserData dimensionStyle4 = leader10.GetDimensionStyleUserData();
                    DimensionStyleArrowsOptions arrowOptions5 = dimensionStyle4.GetDimensionStyleArrowsOptions();
                    arrowOptions5.Size = 2.5;
                    Inkwright.DimensionStyleUserData dimensionStyle6 = leader10.GetDimensionStyleUserData();
                    DimensionStyleLineOptions linesOptions7 = dimensionStyle6.GetDimensionStyleLineOptions();
                    linesOptions7.DimensionLineColor = iwApp.GetColorByIndex( 1 );
                    Inkwright.DimensionStyleUserData dimensionStyle8 = leader10.GetDimensionStyleUserData();
                    DimensionStyleLineOptions linesOptions9 = dimensionStyle8.GetDimensionStyleLineOptions();
                    linesOptions9.DimensionLineLineWeight = iwLineWeight_e.iwLnWt_025;
                    Inkwright.DimensionStyleUserData dimensionStyle10 = leader10.GetDimensionStyleUserData();
                    DimensionStyleTextOptions textOptions11 = dimensionStyle10.GetDimensionStyleTextOptions();
                    textOptions11.OffsetFromDimensionLines = 0.625;
                    Inkwright.DimensionStyleUserData dimensionStyle12 = leader10.GetDimensionStyleUserData();
                    DimensionStyleFitOptions fitOptions13 = dimensionStyle12.GetDimensionStyleFitOptions();
                    fitOptions13.SetDimensionScale( iwDimensionScale_e.iwDimensionScale_UseScaleFactor, 2.00000000000000 );
                }
            }
            {
                // AcDbFcf object modified
                {
                    double X1;
                    double Y1;
                    double Z1;
                    tolerance9.GetPosition(out X1, out Y1, out Z1);
                    X1 = 5.00000000000000;
                    tolerance9.SetPosition(X1, Y1, Z1);
                    tolerance9.DimensionScaleFactor = 2.00000000000000;
                    tolerance9.DimensionStyle = "ISO-25";
                    Inkwright.DimensionStyleUserData dimensionStyle2 = tolerance9.GetDimensionStyleUserData();
                    DimensionStyleLineOptions linesOptions3 = dimensionStyle2.GetDimensionStyleLineOptions();
                    linesOptions3.DimensionLineColor = iwApp.GetColorByIndex( 4 );
                    tolerance9.TextStyle = "Titles";
                    tolerance9.TextHeight = 3.00000000000000;
                    tolerance9.TextColor = iwApp.GetColorByIndex( 7 );
                    tolerance9.Text = "a\\b\nc";
                }
            }
            {
                // AcDbText object modified
                {
                    simplenote6.Erased = true;
                }
            }
