using System;
using Inkwright;
using System.Runtime.InteropServices;

// This code was automatically generated.
namespace IWAPIMacros
{
    class recording
    {
        public void Run( Inkwright.Application iwApp )
        {
            Document iwDoc = iwApp.GetActiveDocument();
            if (null == iwDoc)
            {
                return;
            }

            Model iwModel = iwDoc.GetModel();
            if (null == iwModel)
            {
                return;
            }

            SketchManager iwSketchManager;
            iwSketchManager = iwModel.GetSketchManager();
            if (null == iwSketchManager)
            {
                return;
            }

            object[] sheetsList = (object[])iwDoc.GetSheets();
            Sheet iwSheet = (Sheet)sheetsList[1];
            if (null == iwSheet)
            {
                 return;
            }

            ViewManager iwViewManager = iwDoc.GetViewManager();
            if (null == iwViewManager)
            {
                return;
            }

            AlignedDimension aligneddimension4;
            RotatedDimension rotateddimension5;
            RadialDimension radialdimension6;
            ArcLengthDimension arclengthdimension7;
            JoggedDimension joggeddimension8;
            {
                aligneddimension4 = iwSketchManager.InsertAlignedDimension( new double[]{0.00000000000000,0.00000000000000,0.00000000000000}, new double[]{120.00000000000000,50.00000000000000,0.00000000000000}, new double[]{60.00000000000000,-15.00000000000000,0.00000000000000}, "" );
                rotateddimension5 = iwSketchManager.InsertRotatedDimension(
                new double[]{0.00000000000000,0.00000000000000,0.00000000000000},
                new double[]{120.00000000000000,0.00000000000000,0.00000000000000},
                new double[]{60.00000000000000,-15.00000000000000,0.00000000000000},
                "", 0.00000000000000 );
                Circle radialdimension6_associated_circle = iwSketchManager.InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000 );
                radialdimension6 = iwSketchManager.InsertRadialDimensionCircle( radialdimension6_associated_circle, new double[]{42.50000000000000,30.00000000000000,0.00000000000000}, "" );
                radialdimension6_associated_circle.Erased = true;
                CircleArc arclengthdimension7_associated_arc = iwSketchManager.InsertArc( 90.00000000000000, 30.00000000000000, 0.00000000000000, 32.01562118716424, 0.00000000000000, 1.57079632679490 );
                arclengthdimension7 = iwSketchManager.InsertArcLengthDimension( arclengthdimension7_associated_arc, new double[]{110.00000000000000,55.00000000000000,0.00000000000000}, "" );
                arclengthdimension7_associated_arc.Erased = true;
                Circle joggeddimension8_associated_circle = iwSketchManager.InsertCircle( 30.00000000000000, 30.00000000000000, 0.00000000000000, 12.50000000000000 );
                joggeddimension8 = iwSketchManager.InsertJoggedDimensionCircle( joggeddimension8_associated_circle, new double[]{10.00000000000000,20.00000000000000,0.00000000000000}, new double[]{16.00000000000000,26.00000000000000,0.00000000000000}, new double[]{17.50000000000000,30.00000000000000,0.00000000000000}, "R<>" );
                joggeddimension8_associated_circle.Erased = true;
            }
            {
                // AcDbDimStyleTableRecord object modified
                {
                    DimensionStyleArrowsOptions arrowOptions1 = dimensionstyle1.GetDimensionStyleArrowsOptions();
                    arrowOptions1.Size = 2.25000000000000;
                    iwDimensionArrowType_e arrowType2=iwDimensionArrowType_e.iwDimensionArrowType_DotSmall;
                    string arrowName2="";
                    arrowOptions1.SetLeaderArrow(arrowType2, arrowName2);
                    DimensionStyleAngularDimensionOptions angularOptions3 = dimensionstyle1.GetDimensionStyleAngularDimensionOptions();
                    angularOptions3.Format = iwDimensionStyleAngleFormat_e.iwDimensionStyleAngleFormat_Deg_Min_Sec;
                    angularOptions3.Precision = iwUnitPrecision_e.iwUnitPrecision_3;
                    angularOptions3.HideTrailingZeroes = true;
                    angularOptions3.ArcLengthSymbols = iwArcLengthSymbols_e.iwArcLengthSymbols_None;
                    DimensionStyleDualDimensionOptions dualOptions4 = dimensionstyle1.GetDimensionStyleDualDimensionOptions();
                    dualOptions4.Show = true;
                    dualOptions4.Format = iwDualDimensionFormat_e.iwDualDimensionFormat_Engineering;
                    dualOptions4.MultiplierForConvertingUnits = 0.03937007870000;
                    dualOptions4.Suffix = " in";
                    dualOptions4.Insertion = iwDualDimensionInsertPlacement_e.iwDualDimensionInsertPlacement_BelowPrimaryUnits;
                    DimensionStyleFitOptions fitOptions5 = dimensionstyle1.GetDimensionStyleFitOptions();
                    fitOptions5.FitGeometry = iwDimensionFitGeometry_e.iwDimensionFitGeometry_Arrows;
                    fitOptions5.FitGeometry = iwDimensionFitGeometry_e.iwDimensionFitGeometry_Text;
                    fitOptions5.FitDimensionText = iwDimensionFitDimensionText_e.iwDimensionFitDimensionText_AboveDimensionLineWithLeader;
                    fitOptions5.DimensionLinesBetweenExtensionLine = true;
                    fitOptions5.SetDimensionScale( iwDimensionScale_e.iwDimensionScale_UseScaleFactor, 1.50000000000000 );
                    fitOptions5.SetDimensionScale( iwDimensionScale_e.iwDimensionScale_ScaleDimensionsAccordingToSheet, 1.00000000000000 );
                    DimensionStyleLinearDimensionOptions linearOptions6 = dimensionstyle1.GetDimensionStyleLinearDimensionOptions();
                    linearOptions6.Format = iwLinearDimensionFormat_e.iwLinearDimensionFormat_Decimal;
                    linearOptions6.Precision = iwUnitPrecision_e.iwUnitPrecision_0;
                    linearOptions6.DecimalSeparator = iwLinearDimensionDecimalSeparator_e.iwLinearDimensionDecimalSeparator_Period;
                    linearOptions6.Prefix = "R ";
                    linearOptions6.ZeroesDisplayFollowSheetDimensions = false;
                    DimensionStyleLineOptions linesOptions7 = dimensionstyle1.GetDimensionStyleLineOptions();
                    linesOptions7.DimensionLineStyle = "DASHED";
                    linesOptions7.DimensionLineLineWeight = iwLineWeight_e.iwLnWt_035;
                    linesOptions7.DimensionLineColor = iwApp.GetRGBColor( 255, 128, 0 );
                    linesOptions7.ExtensionLine1Style = "ByBlock";
                    linesOptions7.ExtensionLineColor = iwApp.GetColorByIndex( 256 );
                    linesOptions7.SetExtensionLineFixedLength(true, 2.25000000000000);
                    DimensionStyleRadialDiameterDimensionOptions radialDiameterOptions8 = dimensionstyle1.GetDimensionStyleRadialDiameterDimensionOptions();
                    radialDiameterOptions8.SetCenterMarkDisplay(iwDimensionCenterMarkDisplay_e.iwDimensionCenterMarkDisplay_AsCenterLine, 0.09000000000000);
                    radialDiameterOptions8.RadiusDimensionJogAngle = 0.78539816339745;
                    DimensionStyleTextOptions textOptions9 = dimensionstyle1.GetDimensionStyleTextOptions();
                    textOptions9.Style = "Standard";
                    textOptions9.Color = iwApp.GetColorByIndex( 3 );
                    textOptions9.VerticalPosition = iwDimensionTextVerticalPosition_e.iwDimensionTextVerticalPosition_Above;
                    textOptions9.Alignment = iwDimensionTextAlignment_e.iwDimensionTextAlignment_AlignWithDimensionLines;
                    DimensionStyleToleranceOptions toleranceOptions10 = dimensionstyle1.GetDimensionStyleToleranceOptions();
                    toleranceOptions10.Calculation = iwToleranceCalculation_e.iwToleranceCalculation_Deviation;
                    toleranceOptions10.MaximumValue = 0.05000000000000;
                    toleranceOptions10.MinimumValue = 0.02000000000000;
                    toleranceOptions10.VerticalTextJustification = iwToleranceVerticalTextJustification_e.iwToleranceVerticalTextJustification_Middle;
                }
                // AcDbDimStyleTableRecord object modified
                {
                    DimensionStyleLinearDimensionOptions linearOptions11 = dimensionstyle2.GetDimensionStyleLinearDimensionOptions();
                    linearOptions11.Precision = iwUnitPrecision_e.iwUnitPrecision_1;
                }
            }
            {
                // AcDbMlineStyle object modified
                {
                    richlinestyle3.ShowJunctions = false;
                }
            }
            {
                // AcDbAlignedDimension object modified
                {
                    GeneralDimension generalDimension2 = aligneddimension4.GetGeneralDimension();
                    generalDimension2.DimensionStyle = "Workshop";
                    GeneralDimension generalDimension3 = aligneddimension4.GetGeneralDimension();
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
                    GeneralDimension generalDimension2 = rotateddimension5.GetGeneralDimension();
                    generalDimension2.TextRotation = 0.50000000000000;
                }
            }
            {
                // AcDbRotatedDimension object modified
                    GeneralDimension generalDimension1 = rotateddimension5.GetGeneralDimension();
                generalDimension1.Color = iwApp.GetColorByIndex( 1 );
                GeneralDimension generalDimension2 = rotateddimension5.GetGeneralDimension();
                Inkwright.DimensionStyleUserData dimensionStyle3 = generalDimension2.GetDimensionStyleUserData();
                DimensionStyleFitOptions fitOptions4 = dimensionStyle3.GetDimensionStyleFitOptions();
                fitOptions4.FitGeometry = iwDimensionFitGeometry_e.iwDimensionFitGeometry_TextAndArrows;
                fitOptions4.FitGeometry = iwDimensionFitGeometry_e.iwDimensionFitGeometry_KeepTextBetweenExtensionLines;
                fitOptions4.SetDimensionScale( iwDimensionScale_e.iwDimensionScale_UseScaleFactor, 2.00000000000000 );
                GeneralDimension generalDimension5 = rotateddimension5.GetGeneralDimension();
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
                    GeneralDimension generalDimension2 = rotateddimension5.GetGeneralDimension();
                    Inkwright.DimensionStyleUserData dimensionStyle3 = generalDimension2.GetDimensionStyleUserData();
                    DimensionStyleAngularDimensionOptions angularDimensionOptions4 = dimensionStyle3.GetDimensionStyleAngularDimensionOptions();
                    angularDimensionOptions4.HideTrailingZeroes = true;
                    GeneralDimension generalDimension5 = rotateddimension5.GetGeneralDimension();
                    Inkwright.DimensionStyleUserData dimensionStyle6 = generalDimension5.GetDimensionStyleUserData();
                    DimensionStyleDualDimensionOptions dualDimensionOptions7 = dimensionStyle6.GetDimensionStyleDualDimensionOptions();
                    dualDimensionOptions7.Show = true;
                    dualDimensionOptions7.Suffix = " in";
                    GeneralDimension generalDimension8 = rotateddimension5.GetGeneralDimension();
                    Inkwright.DimensionStyleUserData dimensionStyle9 = generalDimension8.GetDimensionStyleUserData();
                    DimensionStyleLineOptions lineOptions10 = dimensionStyle9.GetDimensionStyleLineOptions();
                    lineOptions10.DimensionLineStyle = "DASHED";
                    lineOptions10.DimensionLineLineWeight = iwLineWeight_e.iwLnWt_ByLayer;
                    lineOptions10.DimensionLineColor = iwApp.GetColorByIndex( 2 );
                    lineOptions10.HideDimensionLine2 = true;
                    lineOptions10.HideDimensionLine2 = false;
                    lineOptions10.SetExtensionLineFixedLength(false, 1.25000000000000);
                    GeneralDimension generalDimension11 = rotateddimension5.GetGeneralDimension();
                    Inkwright.DimensionStyleUserData dimensionStyle12 = generalDimension11.GetDimensionStyleUserData();
                    DimensionStyleLinearDimensionOptions linearDimensionOptions13 = dimensionStyle12.GetDimensionStyleLinearDimensionOptions();
                    linearDimensionOptions13.Precision = iwUnitPrecision_e.iwUnitPrecision_3;
                    linearDimensionOptions13.DecimalSeparator = iwLinearDimensionDecimalSeparator_e.iwLinearDimensionDecimalSeparator_Space;
                    linearDimensionOptions13.Prefix = "~";
                    GeneralDimension generalDimension14 = rotateddimension5.GetGeneralDimension();
                    Inkwright.DimensionStyleUserData dimensionStyle15 = generalDimension14.GetDimensionStyleUserData();
                    DimensionStyleToleranceOptions toleranceOptions16 = dimensionStyle15.GetDimensionStyleToleranceOptions();
                    toleranceOptions16.Calculation = iwToleranceCalculation_e.iwToleranceCalculation_Basic;
                    toleranceOptions16.MaximumValue = 0.10000000000000;
                }
            }
            {
                // AcDbRadialDimension object modified
                {
                    GeneralDimension generalDimension2 = radialdimension6.GetGeneralDimension();
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
                    GeneralDimension generalDimension2 = arclengthdimension7.GetGeneralDimension();
                    Inkwright.DimensionStyleUserData dimensionStyle3 = generalDimension2.GetDimensionStyleUserData();
                    DimensionStyleAngularDimensionOptions angularDimensionOptions4 = dimensionStyle3.GetDimensionStyleAngularDimensionOptions();
                    angularDimensionOptions4.Format = iwDimensionStyleAngleFormat_e.iwDimensionStyleAngleFormat_Radians;
                    angularDimensionOptions4.HideLeadingZeroes = true;
                    arclengthdimension7.ArcSymbolType = iwArcSymbolType_e.iwArcSymbolType_None;
                }
            }
            {
                // AcDbRadialDimensionLarge object modified
                {
                    GeneralDimension generalDimension2 = joggeddimension8.GetGeneralDimension();
                    Inkwright.DimensionStyleUserData dimensionStyle3 = generalDimension2.GetDimensionStyleUserData();
                    DimensionStyleRadialDiameterDimensionOptions radialDiameterDimensionOptions4 = dimensionStyle3.GetDimensionStyleRadialDiameterDimensionOptions();
                    radialDiameterDimensionOptions4.RadiusDimensionJogAngle = 0.75000000000000;
                    double x5, y5, z5;
                    joggeddimension8.GetOverrideCenterPoint( out x5, out y5, out z5 );
                    joggeddimension8.SetOverrideCenterPoint( x5, 21.50000000000000, z5 );
                    double x6, y6, z6;
                    joggeddimension8.GetJogPoint( out x6, out y6, out z6 );
                    joggeddimension8.SetJogPoint( 17.00000000000000, y6, z6 );
                }
            }
            {
                {
                    GeneralDimension generalDimension2 = radialdimension6.GetGeneralDimension();
                    Inkwright.DimensionStyleUserData dimensionStyle3 = generalDimension2.GetDimensionStyleUserData();
                    DimensionStyleTextOptions textOptions4 = dimensionStyle3.GetDimensionStyleTextOptions();
                    textOptions4.FillColor = iwApp.GetColorByIndex( 8 );
                }
            }
        }
    }
}
