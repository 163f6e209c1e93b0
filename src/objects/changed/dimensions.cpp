// Changed dimensions, leaders and tolerances. What they override of a dimension style is kept in option objects, those
// of a dimension behind its general dimension.

#include "objects/changeKinds.h"
#include "objects/changed/changeLists.h"
#include "objects/targets/dimensionOptions.h"

using namespace kinds;
using namespace inkmacro::enums;

/// Tags of all dimensions. One tag may stand in several groups: the first takes it.
const ChangeGroups modifiedDimension{
    ChangeGroup{{generalDimension, {{anyQuoted, "Dim style", "DimensionStyle"}}}},

    ChangeGroup{{dimensionOptions::angular,
                 {
                     {anyEnumValue(dimensionStyleAngleFormat), "Angle format", "Format"},
                     {anyEnumValue(unitPrecision), "Angle precision", "Precision"},
                     {exactYes, "Suppress leading zeros", "HideLeadingZeroes"},
                     {exactYes, "Suppress trailing zeros", "HideTrailingZeroes"},
                 }}},

    ChangeGroup{{dimensionOptions::arrows,
                 {
                     {dimensionArrow, "Arrow 1", "SetStartArrow"},
                     {dimensionArrow, "Arrow 2", "SetEndArrow"},
                     {dimensionArrow, "Arrow", "SetLeaderArrow"},
                     {length, "Arrow size", "Size"},
                 }}},

    ChangeGroup{{dimensionOptions::dual,
                 {
                     {exactYes, "Alt enabled", "Show"},
                     {anyEnumValue(dualDimensionFormat), "Alt format", "Format"},
                     {anyEnumValue(unitPrecision), "Alt precision", "Precision"},
                     {length, "Alt round", "RoundToTheNearest"},
                     {factor, "Alt scale", "MultiplierForConvertingUnits"},
                     {contents, "Alt prefix", "Prefix"},
                     {contents, "Alt suffix", "Suffix"},
                     {exactYes, "Alt suppress leading zeros", "HideLeadingZeroes"},
                     {exactYes, "Alt suppress trailing zeros", "HideTrailingZeroes"},
                     {exactYes, "Alt suppress zeros feet", "HideZeroesIf0Feet"},
                     {exactYes, "Alt suppress zeros inches", "HideZeroesIf0Inches"},
                 }}},

    ChangeGroup{{dimensionOptions::fit,
                 {
                     {exactYes, "DimLine inside", "HideArrows"},
                     {anyEnumValue(dimensionFitGeometry), "Fit", "FitGeometry"},
                     {textInside, "Text inside", "FitGeometry"},
                     {anyEnumValue(dimensionFitDimensionText), "Text movement", "FitDimensionText"},
                     {scaleFactor, "Dim scale overall", "SetDimensionScale"},
                     {exactYes, "DimLine forced", "DimensionLinesBetweenExtensionLine"},
                 }}},

    // "DimLine" sets the second line, as "DimLine 2" does.
    ChangeGroup{{dimensionOptions::lines,
                 {
                     {lineStyle, "DimLine LStyle", "DimensionLineStyle"},
                     {lineWeight, "DimLine LWeight", "DimensionLineLineWeight"},
                     {color, "DimLine LColor", "DimensionLineColor"},
                     {exactYes, "DimLine 1", "HideDimensionLine1"},
                     {exactYes, "DimLine 2", "HideDimensionLine2"},
                     {exactYes, "DimLine", "HideDimensionLine2"},
                     {lineStyle, "ExtLine 1 LStyle", "ExtensionLine1Style"},
                     {lineStyle, "ExtLine 2 LStyle", "ExtensionLine2Style"},
                     {lineWeight, "ExtLine LWeight", "ExtensionLineLineWeight"},
                     {color, "ExtLine LColor", "ExtensionLineColor"},
                     {length, "ExtLine ext", "ExtensionLineDistancePastDimensionLines"},
                     {exactYes, "ExtLine 1", "HideExtensionLine1"},
                     {exactYes, "ExtLine 2", "HideExtensionLine2"},
                     {fixedLength("ExtLine fixed length"), "ExtLine fixed"},
                     {length, "ExtLine offset", "ExtensionLineOffset"},
                 }}},

    ChangeGroup{{dimensionOptions::linear,
                 {
                     {anyEnumValue(linearDimensionFormat), "Dim UnitSystem", "Format"},
                     {anyEnumValue(unitPrecision), "Precision", "Precision"},
                     {anyEnumValue(linearDimensionFractionalDisplay), "Fractional type", "FractionalDisplay"},
                     {decimalSeparator, "Decimal separator", "DecimalSeparator"},
                     {length, "Dim roundoff", "RoundToTheNearest"},
                     {contents, "Dim prefix", "Prefix"},
                     {contents, "Dim suffix", "Suffix"},
                     {factor, "Dim scale linear", "MeasurementScaleFactor"},
                     {exactYes, "Suppress leading zeros", "HideLeadingZeroes"},
                     {exactYes, "Suppress trailing zeros", "HideTrailingZeroes"},
                     {exactYes, "Suppress zero feet", "HideZeroesIf0Feet"},
                     {exactYes, "Suppress zero inches", "HideZeroesIf0Inches"},
                 }}},

    ChangeGroup{{dimensionOptions::radial,
                 {
                     {centerMarkSize, "CenterMark size", "SetCenterMarkDisplay"},
                     {centerMark, "CenterMark", "SetCenterMarkDisplay"},
                     {angle, "Jog angle", "RadiusDimensionJogAngle"},
                 }}},

    ChangeGroup{{generalDimension,
                 {
                     {angle, "Rotation", "TextRotation"},
                     {planeCoordinate, "Position", "TextPosition"},
                     {doubledBackslashes, "Text override", "TextOverride"},
                 }},
                {dimensionOptions::text,
                 {
                     {anyQuoted, "TextStyle", "Style"},
                     {color, "Text color", "Color"},
                     {color, "Fill color", "FillColor"},
                     {length, "Text height", "Height"},
                     {anyEnumValue(dimensionTextHorizontalPosition), "Text pos hor", "HorizontalPosition"},
                     {anyEnumValue(dimensionTextVerticalPosition), "Text pos vert", "VerticalPosition"},
                     {length, "Text offset", "OffsetFromDimensionLines"},
                     {anyEnumValue(dimensionTextAlignment), "Text inside align", "Alignment"},
                     {anyEnumValue(dimensionTextAlignment), "Text outside align", "Alignment"},
                 }}},

    ChangeGroup{
        {dimensionOptions::tolerance,
         {
             {anyEnumValue(toleranceCalculation), "Tolerance display", "Calculation"},
             {anyEnumValue(unitPrecision), "Tolerance precision", "Precision"},
             {length, "Tolerance limit upper", "MaximumValue"},
             {length, "Tolerance limit lower", "MinimumValue"},
             {factor, "Tolerance text height", "Scale"},
             {anyEnumValue(toleranceVerticalTextJustification), "Tolerance pos vert", "VerticalTextJustification"},
             {exactYes, "Tolerance suppress leading zeros", "HideLeadingZeroes"},
             {exactYes, "Tolerance suppress trailing zeros", "HideTrailingZeroes"},
             {exactYes, "Tolerance suppress zero feet", "HideZeroesIf0Feet"},
             {exactYes, "Tolerance suppress zero inches", "HideZeroesIf0Inches"},
             {anyEnumValue(unitPrecision), "Alt tolerance precision", "DualDimensionPrecision"},
             {exactYes, "Alt tolerance suppress leading zeros", "DualDimensionHideLeadingZeroes"},
             {exactYes, "Alt tolerance suppress trailing zeros", "DualDimensionHideTrailingZeroes"},
             {exactYes, "Alt tolerance suppress zero feet", "DualDimensionHideZeroesIf0Feet"},
             {exactYes, "Alt tolerance suppress zero inches", "DualDimensionHideZeroesIf0Inches"},
         }}},
};

const ChangeGroups modifiedArcLengthDimension{
    modifiedDimension,
    {{anyEnumValue(arcSymbolType), "Arc length symbol", "ArcSymbolType"}},
};

/// A jog angle comes here only where there are two: the first is an override.
const ChangeGroups modifiedJoggedDimension{
    modifiedDimension,
    {
        {coordinate, "Center location override", "OverrideCenterPoint"},
        {angle, "Jog angle", "JogAngle"},
        {coordinate, "Jog location", "JogPoint"},
    },
};

/// Each tag fetches its option object anew, into variables of its own.
const ChangeGroups modifiedLeader{
    ChangeGroup{{
        {vertex, "Vertex"},
        {quoted, "DimStyle", "DimensionStyle"},
        {enumValue(inkmacro::enums::leaderType), "Type", "Type"},
    }},
    ChangeGroup{{leaderOptions::arrows, {{arrow, "Arrow", "SetLeaderArrow"}}}},
    ChangeGroup{{leaderOptions::arrows, {{unquoted, "Arrow size", "Size"}}}},
    ChangeGroup{{leaderOptions::lines, {{color, "DimLine LColor", "DimensionLineColor"}}}},
    ChangeGroup{{leaderOptions::lines, {{lineWeight, "DimLine LWeight", "DimensionLineLineWeight"}}}},
    ChangeGroup{{leaderOptions::text, {{unquoted, "Text offset", "OffsetFromDimensionLines"}}}},
    ChangeGroup{{leaderOptions::fit, {{scaleFactor, "DimScale overall", "SetDimensionScale"}}}},
};

const ChangeGroups modifiedTolerance{ChangeGroup{
    {
        {point, "Position", "Position"},
        {factor, "Dim scale overall", "DimensionScaleFactor"},
        {chosenQuoted, "Dim style", "DimensionStyle"},
    },
    {leaderOptions::lines, {{color, "DimLine LColor", "DimensionLineColor"}}},
    {
        {quoted, "TextStyle", "TextStyle"},
        {length, "Text height", "TextHeight"},
        {color, "TextColor", "TextColor"},
        {escaped, "Content", "Text"},
    },
}};
