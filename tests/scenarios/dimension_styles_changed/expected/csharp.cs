            DimensionStyle dimensionstyle1;
            DimensionStyle dimensionstyle2;
            RichLineStyle richlinestyle3;
            {
                iwCreateObjectResult_e result1;
                string dimStyleName1 = "Shop";
                iwApp.GetActiveDocument().GetDimensionStyleManager().CreateDimensionStyle( dimStyleName1, out dimensionstyle1, out result1 );
                {
                    DimensionStyleArrowsOptions arrowOptions2 = dimensionstyle1.GetDimensionStyleArrowsOptions();
                    arrowOptions2.Size = 3.50000000000000;
                    iwDimensionArrowType_e arrowType3=iwDimensionArrowType_e.iwDimensionArrowType_ArchitecturalTick;
                    string arrowName3="";
                    arrowOptions2.SetStartArrow(arrowType3, arrowName3);
                    iwDimensionArrowType_e arrowType4=iwDimensionArrowType_e.iwDimensionArrowType_Custom;
                    string arrowName4="My arrow";
                    arrowOptions2.SetEndArrow(arrowType4, arrowName4);
                    DimensionStyleDualDimensionOptions dualOptions5 = dimensionstyle1.GetDimensionStyleDualDimensionOptions();
                    dualOptions5.Show = false;
                    DimensionStyleFitOptions fitOptions6 = dimensionstyle1.GetDimensionStyleFitOptions();
                    fitOptions6.FitGeometry = iwDimensionFitGeometry_e.iwDimensionFitGeometry_TextAndArrows;
                    DimensionStyleLinearDimensionOptions linearOptions7 = dimensionstyle1.GetDimensionStyleLinearDimensionOptions();
                    linearOptions7.Precision = iwUnitPrecision_e.iwUnitPrecision_2;
                    linearOptions7.DecimalSeparator = iwLinearDimensionDecimalSeparator_e.iwLinearDimensionDecimalSeparator_Comma;
                    linearOptions7.Prefix = "ca. ";
                    linearOptions7.Suffix = " mm";
                    DimensionStyleTextOptions textOptions8 = dimensionstyle1.GetDimensionStyleTextOptions();
                    textOptions8.Style = "Titles";
                    textOptions8.Height = 2.50000000000000;
                }
                iwCreateObjectResult_e result9;
                string dimStyleName9 = "Site";
                iwApp.GetActiveDocument().GetDimensionStyleManager().CreateDimensionStyle( dimStyleName9, out dimensionstyle2, out result9 );
                iwCreateObjectResult_e result10;
                string richLineStyleName10 = "Walls";
                iwApp.GetActiveDocument().GetRichLineStyleManager().CreateRichLineStyle( richLineStyleName10, out richlinestyle3, out result10 );
            }
            {
                // AcDbDimStyleTableRecord object modified
                {
                    iwCreateObjectResult_e result1;
                    string styleName1 = "Workshop";
                    result1 = dimensionstyle1.Rename( styleName1 );
                    dimensionstyle1.Activate();
                    DimensionStyleArrowsOptions arrowOptions2 = dimensionstyle1.GetDimensionStyleArrowsOptions();
                    arrowOptions2.Size = 2.25000000000000;
                    iwDimensionArrowType_e arrowType3=iwDimensionArrowType_e.iwDimensionArrowType_DotSmall;
                    string arrowName3="";
                    arrowOptions2.SetLeaderArrow(arrowType3, arrowName3);
                    DimensionStyleAngularDimensionOptions angularOptions4 = dimensionstyle1.GetDimensionStyleAngularDimensionOptions();
                    angularOptions4.Format = iwDimensionStyleAngleFormat_e.iwDimensionStyleAngleFormat_Deg_Min_Sec;
                    angularOptions4.Precision = iwUnitPrecision_e.iwUnitPrecision_3;
                    angularOptions4.HideTrailingZeroes = true;
                    angularOptions4.ArcLengthSymbols = iwArcLengthSymbols_e.iwArcLengthSymbols_None;
                    DimensionStyleDualDimensionOptions dualOptions5 = dimensionstyle1.GetDimensionStyleDualDimensionOptions();
                    dualOptions5.Show = true;
                    dualOptions5.Format = iwDualDimensionFormat_e.iwDualDimensionFormat_Engineering;
                    dualOptions5.MultiplierForConvertingUnits = 0.03937007870000;
                    dualOptions5.Suffix = " in";
                    dualOptions5.Insertion = iwDualDimensionInsertPlacement_e.iwDualDimensionInsertPlacement_BelowPrimaryUnits;
                    DimensionStyleFitOptions fitOptions6 = dimensionstyle1.GetDimensionStyleFitOptions();
                    fitOptions6.FitGeometry = iwDimensionFitGeometry_e.iwDimensionFitGeometry_Arrows;
                    fitOptions6.FitGeometry = iwDimensionFitGeometry_e.iwDimensionFitGeometry_Text;
                    fitOptions6.FitDimensionText = iwDimensionFitDimensionText_e.iwDimensionFitDimensionText_AboveDimensionLineWithLeader;
                    fitOptions6.DimensionLinesBetweenExtensionLine = true;
                    fitOptions6.SetDimensionScale( iwDimensionScale_e.iwDimensionScale_UseScaleFactor, 1.50000000000000 );
                    fitOptions6.SetDimensionScale( iwDimensionScale_e.iwDimensionScale_ScaleDimensionsAccordingToSheet, 1.00000000000000 );
                    DimensionStyleLinearDimensionOptions linearOptions7 = dimensionstyle1.GetDimensionStyleLinearDimensionOptions();
                    linearOptions7.Format = iwLinearDimensionFormat_e.iwLinearDimensionFormat_Decimal;
                    linearOptions7.Precision = iwUnitPrecision_e.iwUnitPrecision_0;
                    linearOptions7.DecimalSeparator = iwLinearDimensionDecimalSeparator_e.iwLinearDimensionDecimalSeparator_Period;
                    linearOptions7.Prefix = "R ";
                    linearOptions7.ZeroesDisplayFollowSheetDimensions = false;
                    DimensionStyleLineOptions linesOptions8 = dimensionstyle1.GetDimensionStyleLineOptions();
                    linesOptions8.DimensionLineStyle = "DASHED";
                    linesOptions8.DimensionLineLineWeight = iwLineWeight_e.iwLnWt_035;
                    linesOptions8.DimensionLineColor = iwApp.GetRGBColor( 255, 128, 0 );
                    linesOptions8.ExtensionLine1Style = "ByBlock";
                    linesOptions8.ExtensionLineColor = iwApp.GetColorByIndex( 256 );
                    linesOptions8.SetExtensionLineFixedLength(true, 2.25000000000000);
                    DimensionStyleRadialDiameterDimensionOptions radialDiameterOptions9 = dimensionstyle1.GetDimensionStyleRadialDiameterDimensionOptions();
                    radialDiameterOptions9.SetCenterMarkDisplay(iwDimensionCenterMarkDisplay_e.iwDimensionCenterMarkDisplay_AsCenterLine, 0.09000000000000);
                    radialDiameterOptions9.RadiusDimensionJogAngle = 0.78539816339745;
                    DimensionStyleTextOptions textOptions10 = dimensionstyle1.GetDimensionStyleTextOptions();
                    textOptions10.Style = "Standard";
                    textOptions10.Color = iwApp.GetColorByIndex( 3 );
                    textOptions10.VerticalPosition = iwDimensionTextVerticalPosition_e.iwDimensionTextVerticalPosition_Above;
                    textOptions10.Alignment = iwDimensionTextAlignment_e.iwDimensionTextAlignment_AlignWithDimensionLines;
                    DimensionStyleToleranceOptions toleranceOptions11 = dimensionstyle1.GetDimensionStyleToleranceOptions();
                    toleranceOptions11.Calculation = iwToleranceCalculation_e.iwToleranceCalculation_Deviation;
                    toleranceOptions11.MaximumValue = 0.05000000000000;
                    toleranceOptions11.MinimumValue = 0.02000000000000;
                    toleranceOptions11.VerticalTextJustification = iwToleranceVerticalTextJustification_e.iwToleranceVerticalTextJustification_Middle;
                }
                // AcDbDimStyleTableRecord object modified
                {
                    DimensionStyleLinearDimensionOptions linearOptions12 = dimensionstyle2.GetDimensionStyleLinearDimensionOptions();
                    linearOptions12.Precision = iwUnitPrecision_e.iwUnitPrecision_1;
                }
                // AcDbDimStyleTableRecord object modified
                {
                    iwCreateObjectResult_e result13;
                    string styleName13 = "Plans";
                    result13 = dimensionstyle2.Rename( styleName13 );
                }
            }
            {
                // AcDbMlineStyle object modified
                {
                    richlinestyle3.Rename("Outer walls");
                    richlinestyle3.ShowJunctions = false;
                }
            }
