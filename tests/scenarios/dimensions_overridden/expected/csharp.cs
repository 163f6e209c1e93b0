            AlignedDimension aligneddimension1;
            {
                aligneddimension1 = iwSketchManager.InsertAlignedDimension( new double[]{0.00000000000000,0.00000000000000,0.00000000000000}, new double[]{120.00000000000000,50.00000000000000,0.00000000000000}, new double[]{60.00000000000000,-15.00000000000000,0.00000000000000}, "" );
            }
            RotatedDimension rotateddimension2;
            {
                rotateddimension2 = iwSketchManager.InsertRotatedDimension(
                new double[]{0.00000000000000,0.00000000000000,0.00000000000000},
                new double[]{120.00000000000000,0.00000000000000,0.00000000000000},
                new double[]{60.00000000000000,-15.00000000000000,0.00000000000000},
                "", 0.00000000000000 );
            }
            RadialDimension radialdimension3;
            {
                Circle radialdimension3_associated_circle = iwSketchManager.InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000 );
                radialdimension3 = iwSketchManager.InsertRadialDimensionCircle( radialdimension3_associated_circle, new double[]{42.50000000000000,30.00000000000000,0.00000000000000}, "" );
                radialdimension3_associated_circle.Erased = true;
            }
            ArcLengthDimension arclengthdimension4;
            {
                CircleArc arclengthdimension4_associated_arc = iwSketchManager.InsertArc( 90.00000000000000, 30.00000000000000, 0.00000000000000, 32.01562118716424, 0.00000000000000, 1.57079632679490 );
                arclengthdimension4 = iwSketchManager.InsertArcLengthDimension( arclengthdimension4_associated_arc, new double[]{110.00000000000000,55.00000000000000,0.00000000000000}, "" );
                arclengthdimension4_associated_arc.Erased = true;
            }
            JoggedDimension joggeddimension5;
            {
                Circle joggeddimension5_associated_circle = iwSketchManager.InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000 );
                joggeddimension5 = iwSketchManager.InsertJoggedDimensionCircle( joggeddimension5_associated_circle, new double[]{10.00000000000000,20.00000000000000,0.00000000000000}, new double[]{16.00000000000000,26.00000000000000,0.00000000000000}, new double[]{17.50000000000000,30.00000000000000,0.00000000000000}, "R<>" );
                joggeddimension5_associated_circle.Erased = true;
            }
            {
                // AcDbAlignedDimension object modified
                {
                    GeneralDimension generalDimension2 = aligneddimension1.GetGeneralDimension();
                    generalDimension2.DimensionStyle = "Workshop";
                    GeneralDimension generalDimension3 = aligneddimension1.GetGeneralDimension();
                    Inkwright.DimensionStyleUserData dimensionStyle4 = generalDimension3.GetDimensionStyleUserData();
                    DimensionStyleArrowsOptions arrowsOptions5 = dimensionStyle4.GetDimensionStyleArrowsOptions();
                    arrowsOptions5.SetStartArrow( iwDimensionArrowType_e.iwDimensionArrowType_Custom, "My arrow" );
                    arrowsOptions5.SetEndArrow( iwDimensionArrowType_e.iwDimensionArrowType_Open, "" );
                    arrowsOptions5.Size = 3.00000000000000;
                }
            }
            {
                // AcDbRotatedDimension object modified
                {
                    GeneralDimension generalDimension2 = rotateddimension2.GetGeneralDimension();
                    generalDimension2.TextRotation = 0.50000000000000;
                }
            }
            {
                // AcDbRotatedDimension object modified
                    GeneralDimension generalDimension1 = rotateddimension2.GetGeneralDimension();
                generalDimension1.Color = iwApp.GetColorByIndex( 1 );
                GeneralDimension generalDimension2 = rotateddimension2.GetGeneralDimension();
                Inkwright.DimensionStyleUserData dimensionStyle3 = generalDimension2.GetDimensionStyleUserData();
                DimensionStyleFitOptions fitOptions4 = dimensionStyle3.GetDimensionStyleFitOptions();
                fitOptions4.FitGeometry = iwDimensionFitGeometry_e.iwDimensionFitGeometry_TextAndArrows;
                fitOptions4.FitGeometry = iwDimensionFitGeometry_e.iwDimensionFitGeometry_KeepTextBetweenExtensionLines;
                fitOptions4.SetDimensionScale( iwDimensionScale_e.iwDimensionScale_UseScaleFactor, 2.00000000000000 );
                GeneralDimension generalDimension5 = rotateddimension2.GetGeneralDimension();
                double x6, y6;
                generalDimension5.GetTextPosition( out x6, out y6 );
                generalDimension5.SetTextPosition( 55.00000000000000, y6 );
                double x7, y7;
                generalDimension5.GetTextPosition( out x7, out y7 );
                generalDimension5.SetTextPosition( x7, -20.00000000000000 );
                generalDimension5.TextOverride = "<> \\A1;typ.";
                Inkwright.DimensionStyleUserData dimensionStyle8 = generalDimension5.GetDimensionStyleUserData();
                DimensionStyleTextOptions textOptions9 = dimensionStyle8.GetDimensionStyleTextOptions();
                textOptions9.Height = 5.00000000000000;
                textOptions9.Alignment = iwDimensionTextAlignment_e.iwDimensionTextAlignment_AlignHorizontally;
                textOptions9.Alignment = iwDimensionTextAlignment_e.iwDimensionTextAlignment_AlignWithDimensionLines;
            }
            {
                // AcDbRotatedDimension object modified
                {
                    GeneralDimension generalDimension2 = rotateddimension2.GetGeneralDimension();
                    Inkwright.DimensionStyleUserData dimensionStyle3 = generalDimension2.GetDimensionStyleUserData();
                    DimensionStyleAngularDimensionOptions angularDimensionOptions4 = dimensionStyle3.GetDimensionStyleAngularDimensionOptions();
                    angularDimensionOptions4.HideTrailingZeroes = true;
                    GeneralDimension generalDimension5 = rotateddimension2.GetGeneralDimension();
                    Inkwright.DimensionStyleUserData dimensionStyle6 = generalDimension5.GetDimensionStyleUserData();
                    DimensionStyleDualDimensionOptions dualDimensionOptions7 = dimensionStyle6.GetDimensionStyleDualDimensionOptions();
                    dualDimensionOptions7.Show = true;
                    dualDimensionOptions7.Suffix = " in";
                    GeneralDimension generalDimension8 = rotateddimension2.GetGeneralDimension();
                    Inkwright.DimensionStyleUserData dimensionStyle9 = generalDimension8.GetDimensionStyleUserData();
                    DimensionStyleLineOptions lineOptions10 = dimensionStyle9.GetDimensionStyleLineOptions();
                    lineOptions10.DimensionLineStyle = "DASHED";
                    lineOptions10.DimensionLineLineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                    lineOptions10.DimensionLineColor = iwApp.GetColorByIndex( 2 );
                    lineOptions10.HideDimensionLine2 = true;
                    lineOptions10.HideDimensionLine2 = false;
                    lineOptions10.SetExtensionLineFixedLength(false, 1.25000000000000);
                    GeneralDimension generalDimension11 = rotateddimension2.GetGeneralDimension();
                    Inkwright.DimensionStyleUserData dimensionStyle12 = generalDimension11.GetDimensionStyleUserData();
                    DimensionStyleLinearDimensionOptions linearDimensionOptions13 = dimensionStyle12.GetDimensionStyleLinearDimensionOptions();
                    linearDimensionOptions13.Precision = iwUnitPrecision_e.iwUnitPrecision_3;
                    linearDimensionOptions13.DecimalSeparator = iwLinearDimensionDecimalSeparator_e.iwLinearDimensionDecimalSeparator_Space;
                    linearDimensionOptions13.Prefix = "~";
                    GeneralDimension generalDimension14 = rotateddimension2.GetGeneralDimension();
                    Inkwright.DimensionStyleUserData dimensionStyle15 = generalDimension14.GetDimensionStyleUserData();
                    DimensionStyleToleranceOptions toleranceOptions16 = dimensionStyle15.GetDimensionStyleToleranceOptions();
                    toleranceOptions16.Calculation = iwToleranceCalculation_e.iwToleranceCalculation_Basic;
                    toleranceOptions16.MaximumValue = 0.10000000000000;
                }
            }
            {
                // AcDbRadialDimension object modified
                {
                    GeneralDimension generalDimension2 = radialdimension3.GetGeneralDimension();
                    Inkwright.DimensionStyleUserData dimensionStyle3 = generalDimension2.GetDimensionStyleUserData();
                    DimensionStyleRadialDiameterDimensionOptions radialDiameterDimensionOptions4 = dimensionStyle3.GetDimensionStyleRadialDiameterDimensionOptions();
                    iwDimensionCenterMarkDisplay_e CenterMarkDisplay5;
                    double markSize5;
                    radialDiameterDimensionOptions4.GetCenterMarkDisplay( out CenterMarkDisplay5, out markSize5 );
                    markSize5 = 0.50000000000000;
                    radialDiameterDimensionOptions4.SetCenterMarkDisplay( CenterMarkDisplay5, markSize5 );
                    iwDimensionCenterMarkDisplay_e CenterMarkDisplay6;
                    double markSize6;
                    radialDiameterDimensionOptions4.GetCenterMarkDisplay( out CenterMarkDisplay6, out markSize6 );
                    CenterMarkDisplay6 = iwDimensionCenterMarkDisplay_e.iwDimensionCenterMarkDisplay_AsMark;
                    radialDiameterDimensionOptions4.SetCenterMarkDisplay( CenterMarkDisplay6, markSize6 );
                }
            }
            {
                // AcDbArcDimension object modified
                {
                    GeneralDimension generalDimension2 = arclengthdimension4.GetGeneralDimension();
                    Inkwright.DimensionStyleUserData dimensionStyle3 = generalDimension2.GetDimensionStyleUserData();
                    DimensionStyleAngularDimensionOptions angularDimensionOptions4 = dimensionStyle3.GetDimensionStyleAngularDimensionOptions();
                    angularDimensionOptions4.Format = iwDimensionStyleAngleFormat_e.iwDimensionStyleAngleFormat_Radians;
                    angularDimensionOptions4.HideLeadingZeroes = true;
                    arclengthdimension4.ArcSymbolType = iwArcSymbolType_e.iwArcSymbolType_None;
                }
            }
            {
                // AcDbRadialDimensionLarge object modified
                {
                    GeneralDimension generalDimension2 = joggeddimension5.GetGeneralDimension();
                    Inkwright.DimensionStyleUserData dimensionStyle3 = generalDimension2.GetDimensionStyleUserData();
                    DimensionStyleRadialDiameterDimensionOptions radialDiameterDimensionOptions4 = dimensionStyle3.GetDimensionStyleRadialDiameterDimensionOptions();
                    radialDiameterDimensionOptions4.RadiusDimensionJogAngle = 0.75000000000000;
                    double x5, y5, z5;
                    joggeddimension5.GetOverrideCenterPoint( out x5, out y5, out z5 );
                    joggeddimension5.SetOverrideCenterPoint( x5, 21.50000000000000, z5 );
                    double x6, y6, z6;
                    joggeddimension5.GetJogPoint( out x6, out y6, out z6 );
                    joggeddimension5.SetJogPoint( 17.00000000000000, y6, z6 );
                }
            }
            {
                {
                    GeneralDimension generalDimension2 = radialdimension3.GetGeneralDimension();
                    Inkwright.DimensionStyleUserData dimensionStyle3 = generalDimension2.GetDimensionStyleUserData();
                    DimensionStyleTextOptions textOptions4 = dimensionStyle3.GetDimensionStyleTextOptions();
                    textOptions4.FillColor = iwApp.GetColorByIndex( 8 );
                }
            }
