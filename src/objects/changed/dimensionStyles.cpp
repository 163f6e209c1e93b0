// Changed dimension styles and rich line styles, and added dimension styles, whose settings all come this way.

#include "objects/changeKinds.h"
#include "objects/changed/changeLists.h"
#include "objects/targets/dimensionOptions.h"

using namespace kinds;
using namespace inkmacro::enums;

const ChangeGroups modifiedDimensionStyle{
    ChangeGroup{{{dimensionStyleName, "DimensionStyleName"}}},

    ChangeGroup{{styleOptions::arrows,
                 {
                     {length, "Arrow Size", "Size"},
                     {styleArrow, "Start arrow", "SetStartArrow"},
                     {styleArrow, "End arrow", "SetEndArrow"},
                     {styleArrow, "Leader arrow", "SetLeaderArrow"},
                 }}},

    ChangeGroup{{styleOptions::angular,
                 {
                     {anyEnumValue(dimensionStyleAngleFormat), "Angular Format", "Format"},
                     {anyEnumValue(unitPrecision), "Angular Precision", "Precision"},
                     {exactYes, "Angular Hide leading zeros", "HideLeadingZeroes"},
                     {exactYes, "Angular Hide trailing zeros", "HideTrailingZeroes"},
                     {anyEnumValue(arcLengthSymbols), "Arc Before dimension text", "ArcLengthSymbols"},
                 }}},

    ChangeGroup{{styleOptions::dual,
                 {
                     {plainYes, "Show dual dimensions", "Show"},
                     {anyEnumValue(dualDimensionFormat), "Dual Dimensions Format", "Format"},
                     {anyEnumValue(unitPrecision), "Dual Dimensions Precision", "Precision"},
                     {factor, "Dual Dimensions Multiplier for converting units", "MultiplierForConvertingUnits"},
                     {length, "Dual Dimensions Round to the nearest", "RoundToTheNearest"},
                     {affix, "Dual Dimensions Prefix", "Prefix"},
                     {affix, "Dual Dimensions Suffix", "Suffix"},
                     {exactYes, "Dual Dimensions Hide leading zeros", "HideLeadingZeroes"},
                     {exactYes, "Dual Dimensions Hide trailing zeros", "HideTrailingZeroes"},
                     {exactYes, "Dual Dimensions Hide zeros feet", "HideZeroesIf0Feet"},
                     {exactYes, "Dual Dimensions Hide zeros inches", "HideZeroesIf0Inches"},
                     {exactYesEnum(dualDimensionInsertPlacement, "AfterPrimaryUnits"),
                      "Dual Dimensions After primary units", "Insertion"},
                     {exactYesEnum(dualDimensionInsertPlacement, "BelowPrimaryUnits"),
                      "Dual Dimensions Below primary units", "Insertion"},
                 }}},

    ChangeGroup{
        {styleOptions::fit,
         {
             {plainYesEnum(dimensionFitGeometry, "Automatic"), "FitDimensionsGeometryAutomatic", "FitGeometry"},
             {plainYesEnum(dimensionFitGeometry, "Arrows"), "FitDimensionsGeometryArrows", "FitGeometry"},
             {plainYesEnum(dimensionFitGeometry, "Text"), "FitDimensionsGeometryText", "FitGeometry"},
             {plainYesEnum(dimensionFitGeometry, "TextAndArrows"), "FitDimensionsGeometryTextAndArrows", "FitGeometry"},
             {plainYesEnum(dimensionFitGeometry, "KeepTextBetweenExtensionLines"),
              "FitDimensionsGeometryKeepTextBetweenExtensionLines", "FitGeometry"},
             {exactYes, "FitDimensionsGeometryHideArrows", "HideArrows"},
             {exactYesEnum(dimensionFitDimensionText, "AboveDimensionLineWithLeader"),
              "FitTextAboveTheDimensionLineWithLeader", "FitDimensionText"},
             {exactYesEnum(dimensionFitDimensionText, "AboveDimensionLineWithoutLeader"),
              "FitTextAboveTheDimensionLineWithoutLeader", "FitDimensionText"},
             {exactYesEnum(dimensionFitDimensionText, "NextToDimensionLine"), "FitTextNextToTheDimensionLine",
              "FitDimensionText"},
             {exactYes, "FitDimensionLinesBetweenExtensionLines", "DimensionLinesBetweenExtensionLine"},
             {exactYes, "FitSpecifyTextPlacement", "SpecifyTextPlacement"},
             {scaleFactor, "FitScaleFactor", "SetDimensionScale"},
             {sheetScale, "FitScaleDimensionsAccordingToSheet", "SetDimensionScale"},
         }}},

    ChangeGroup{
        {styleOptions::linear,
         {
             {anyEnumValue(linearDimensionFormat), "LinearDimensionsFormat", "Format"},
             {anyEnumValue(unitPrecision), "LinearDimensionsPrecision", "Precision"},
             {anyEnumValue(linearDimensionFractionalDisplay), "LinearDimensionsFractionalDisplay", "FractionalDisplay"},
             {decimalSeparator, "LinearDimensionsDecimalSeparator", "DecimalSeparator"},
             {length, "LinearDimensionsRoundToTheNearest", "RoundToTheNearest"},
             {prefixAndSuffix, "Linear Dimensions Prefix"},
             {factor, "LinearDimensionsScaleFactor", "MeasurementScaleFactor"},
             {exactYes, "LinearDimensionsFollowSheet", "ZeroesDisplayFollowSheetDimensions"},
             {exactYes, "Linear Dimensions Hide leading zeros", "HideLeadingZeroes"},
             {exactYes, "Linear Dimensions Hide trailing zeros", "HideTrailingZeroes"},
             {exactYes, "Linear Dimensions Hide zeros feet", "HideZeroesIf0Feet"},
             {exactYes, "Linear Dimensions Hide zeros inches", "HideZeroesIf0Inches"},
         }}},

    ChangeGroup{{styleOptions::lines,
                 {
                     {lineStyle, "LineDimensionsStyle", "DimensionLineStyle"},
                     {lineWeight, "LineDimensionsWeight", "DimensionLineLineWeight"},
                     {color, "LineDimensionsColor", "DimensionLineColor"},
                     {length, "LineDimensionsOffset", "DimensionLineOffset"},
                     {length, "LineDimensionsDistStartArrow", "DimensionLineDistancePastStartArrow"},
                     {exactYes, "LineDimensionsSuppressDimLine1", "HideDimensionLine1"},
                     {exactYes, "LineDimensionsSuppressDimLine2", "HideDimensionLine2"},
                     {lineStyle, "ExtLineDimensionsLine1", "ExtensionLine1Style"},
                     {lineStyle, "ExtLineDimensionsLine2", "ExtensionLine2Style"},
                     {lineWeight, "ExtLineDimensionsWeight", "ExtensionLineLineWeight"},
                     {color, "ExtLineDimensionsColor", "ExtensionLineColor"},
                     {length, "ExtLineDimensionsOffset", "ExtensionLineOffset"},
                     {length, "ExtLineDimensionsDistPastDimLines", "ExtensionLineDistancePastDimensionLines"},
                     {exactYes, "ExtLineDimensionsSuppressExtLine1", "HideExtensionLine1"},
                     {exactYes, "ExtLineDimensionsSuppressExtLine2", "HideExtensionLine2"},
                     {fixedLength("ExtLineDimensionsOffsetFixedLength_Length"), "ExtLineDimensionsOffsetFixedLength"},
                 }}},

    ChangeGroup{{styleOptions::radial,
                 {
                     {styleCenterMark, "CenterMarkDisplay", "SetCenterMarkDisplay"},
                     {angle, "RadiusDimensionJog", "RadiusDimensionJogAngle"},
                 }}},

    // The tag of the last alignment is the host's own spelling.
    ChangeGroup{
        {styleOptions::text,
         {
             {anyQuoted, "TextDimensionTextStyle", "Style"},
             {color, "TextDimensionTextColor", "Color"},
             {color, "TextDimensionTextFill", "FillColor"},
             {length, "TextDimensionTextHeight", "Height"},
             {factor, "TextDimensionTextFractionalScale", "FractionalScale"},
             {exactYes, "TextDimensionTextFrameDimensionText", "FrameDimensionText"},
             {anyEnumValue(dimensionTextHorizontalPosition), "TextDimensionTextHorizontalPosition",
              "HorizontalPosition"},
             {anyEnumValue(dimensionTextVerticalPosition), "TextDimensionTextVerticalPosition", "VerticalPosition"},
             {length, "TextDimensionTextOffsetFromDimLine", "OffsetFromDimensionLines"},
             {exactYesEnum(dimensionTextAlignment, "UseISOStandard"), "TextDimensionTextAlignmentUseISOStandard",
              "Alignment"},
             {exactYesEnum(dimensionTextAlignment, "AlignHorizontally"), "TextDimensionTextAlignmentAlignHorizontally",
              "Alignment"},
             {exactYesEnum(dimensionTextAlignment, "AlignWithDimensionLines"),
              "TextDimensionTextAlignmentAlignWithWimensionLines", "Alignment"},
         }}},

    ChangeGroup{{styleOptions::tolerance,
                 {
                     {anyEnumValue(toleranceCalculation), "ToleranceSettingsCalculation", "Calculation"},
                     {anyEnumValue(unitPrecision), "ToleranceSettingsPrecision", "Precision"},
                     {length, "ToleranceSettingsMaximumValue", "MaximumValue"},
                     {length, "ToleranceSettingsMinimumValue", "MinimumValue"},
                     {factor, "ToleranceSettingsScale", "Scale"},
                     {anyEnumValue(toleranceVerticalTextJustification), "ToleranceSettingsVerticalTextJustification",
                      "VerticalTextJustification"},
                     {exactYes, "ToleranceSettingsHideLeadingZeroes", "HideLeadingZeroes"},
                     {exactYes, "ToleranceSettingsHideTrailingZeroes", "HideTrailingZeroes"},
                     {exactYes, "ToleranceSettingsHideZeroFeet", "HideZeroesIf0Feet"},
                     {exactYes, "ToleranceSettingsHideZeroInches", "HideZeroesIf0Inches"},
                     {anyEnumValue(unitPrecision), "ToleranceSettingsDualDimPrecision", "DualDimensionPrecision"},
                     {exactYes, "ToleranceSettingsDualDimHideLeadingZeroes", "DualDimensionHideLeadingZeroes"},
                     {exactYes, "ToleranceSettingsDualDimHideTrailingZeroes", "DualDimensionHideTrailingZeroes"},
                     {exactYes, "ToleranceSettingsDualDimHideZeroFeet", "DualDimensionHideZeroesIf0Feet"},
                     {exactYes, "ToleranceSettingsDualDimHideZeroInches", "DualDimensionHideZeroesIf0Inches"},
                 }}},
};

const ChangeGroups modifiedRichLineStyle{
    {richLineStyleName, "RichLineStyleName"},
    {exactYes, "Show junctions", "ShowJunctions"},
};
