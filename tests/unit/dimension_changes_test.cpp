// Changes of dimensions, dimension styles and rich line styles: every tag, and the forms that its value may take.

#include "TestActions.h"
#include "TestDrawing.h"
#include "TestTags.h"

#include "host/db/OdDbClassMap.h"
#include "objects/classTable.h"
#include "objects/entries.h"

#include <QRegularExpression>

using inkmacro::Target;

namespace {

CFxPropertyChangedPtr record(const char* tag, const CFxVariant& value)
{
    return odrxNew<TestProperty>(tag, value);
}

CFxVariant item(std::int32_t number, const char* text)
{
    return CFxVariantCollectionElement(number, CFxString(text));
}

CFxVariant text(const char* words)
{
    return CFxString(words);
}

const CFxVariant yes = item(0, "Yes");
const CFxVariant no = item(1, "No");

class DimensionChanges : public testing::Test
{
protected:
    DimensionChanges()
    {
        drawing.add(0x11, "AcDbLinetypeTableRecord", {{"name", OdString("DASHED")}});
        for (const char* cls : {"AcDbRotatedDimension", "AcDbDimStyleTableRecord"})
            drawing.add(handleOf(cls), cls);
    }
    static std::uint64_t handleOf(const char* cls) { return QString(cls) == "AcDbDimStyleTableRecord" ? 2 : 1; }

    /// The statements for a change of an object, without group and indentation.
    std::string change(TestTarget& made, const char* cls, PropertyList list, bool fromAdded = false)
    {
        const OdRxClass* const type = oddbClassByName(cls);
        made.conversion.names().RegisterObject(OdDbHandle(handleOf(cls)), type);
        Statement text;
        ConvertObjectChanges(made.conversion, type, OdDbHandle(handleOf(cls)), list, fromAdded, text);
        static const QRegularExpression group("^(\\{|\\}|If 1 Then|End If|)\n", QRegularExpression::MultilineOption);
        return textOf(text)
            .remove(QRegularExpression("^ +", QRegularExpression::MultilineOption))
            .remove(group)
            .toStdString();
    }
    std::string inCSharp(const char* cls, PropertyList list)
    {
        TestTarget made(Target::CSharp);
        return change(made, cls, std::move(list));
    }

    /// Gives all tags of the groups in one change, the last one first but tags that are told twice, and compares.
    void expectAll(const char* cls, const char* variable, const std::vector<Group>& groups,
                   const PropertyList& also = {})
    {
        PropertyList list = also;
        for (const Group& group : groups)
            for (const Tag& tag : group.tags)
                list.push_back(record(tag.tag, tag.value));
        std::stable_sort(list.begin(), list.end(),
                         [](const auto& a, const auto& b) { return b->GetName() < a->GetName(); });
        for (const Target target : allTargets) {
            TestTarget made(target);
            Expected expected(target, target == Target::Cpp ? CFxString("iw" + QString(variable)) : variable);
            // The fetch of a dimension for its general properties takes a number, though none of them is there.
            if (IsDimensionClass(oddbClassByName(cls)))
                expected.skipNumber();
            for (const Group& group : groups)
                expected.add(group);
            EXPECT_EQ(change(made, cls, list), expected.lines().toStdString()) << static_cast<int>(target);
        }
    }

    TestDrawing drawing;
};

/// All tags of a dimension, as the host's interface has them. Two of them stand for two properties; the first one is
/// given here.
TEST_F(DimensionChanges, SetEveryOverride)
{
    const std::vector<Group> groups{
        {{generalDimension},
         {
             {"Dim style", item(1, "ISO-25"), setText, "DimensionStyle", "ISO-25"},
         }},
        {overrides("DimensionStyleAngularDimensionOptions", "angularDimensionOptions"),
         {
             {"Angle format", 1, setWord, "Format", "iwDimensionStyleAngleFormat_Deg_Min_Sec"},
             {"Angle precision", item(3, "0.000"), setWord, "Precision", "iwUnitPrecision_3"},
             {"Suppress leading zeros", yes, set, "HideLeadingZeroes", "true"},
             {"Suppress trailing zeros", no, set, "HideTrailingZeroes", "false"},
         }},
        {overrides("DimensionStyleArrowsOptions", "arrowsOptions"),
         {
             {"Arrow 1", item(3, "Dot"), setArrow, "SetStartArrow", "iwDimensionArrowType_Dot"},
             {"Arrow 2", 5, setArrow, "SetEndArrow", "iwDimensionArrowType_Oblique"},
             {"Arrow", item(19, "None"), setArrow, "SetLeaderArrow", "iwDimensionArrowType_None"},
             {"Arrow size", 0.25, set, "Size", "0.25000000000000"},
         }},
        {overrides("DimensionStyleDualDimensionOptions", "dualDimensionOptions"),
         {
             {"Alt enabled", yes, set, "Show", "true"},
             {"Alt format", 6, setWord, "Format", "iwDualDimensionFormat_Architectural"},
             {"Alt precision", 8, setWord, "Precision", "iwUnitPrecision_8"},
             {"Alt round", 0.5, set, "RoundToTheNearest", "0.50000000000000"},
             {"Alt scale", 0.75, set, "MultiplierForConvertingUnits", "0.75000000000000"},
             {"Alt prefix", text("ca. "), setText, "Prefix", "ca. "},
             {"Alt suffix", text(" in"), setText, "Suffix", " in"},
             {"Alt suppress leading zeros", no, set, "HideLeadingZeroes", "false"},
             {"Alt suppress trailing zeros", yes, set, "HideTrailingZeroes", "true"},
             {"Alt suppress zeros feet", no, set, "HideZeroesIf0Feet", "false"},
             {"Alt suppress zeros inches", yes, set, "HideZeroesIf0Inches", "true"},
         }},
        {overrides("DimensionStyleFitOptions", "fitOptions"),
         {
             {"DimLine inside", yes, set, "HideArrows", "true"},
             {"Fit", 3, setWord, "FitGeometry", "iwDimensionFitGeometry_Automatic"},
             {"Text inside", yes, setWord, "FitGeometry", "iwDimensionFitGeometry_KeepTextBetweenExtensionLines"},
             {"Text movement", 1, setWord, "FitDimensionText",
              "iwDimensionFitDimensionText_AboveDimensionLineWithLeader"},
             {"Dim scale overall", 1.5, setFactor, "SetDimensionScale", "1.50000000000000"},
             {"DimLine forced", yes, set, "DimensionLinesBetweenExtensionLine", "true"},
         }},
        {overrides("DimensionStyleLineOptions", "lineOptions"),
         {
             {"DimLine LStyle", drawing.id(0x11), setText, "DimensionLineStyle", "DASHED"},
             {"DimLine LWeight", 25, setWeight, "DimensionLineLineWeight", "iwLnWt_025"},
             {"DimLine LColor", OdCmColor::byIndex(3), setColor, "DimensionLineColor", "3"},
             {"DimLine 1", yes, set, "HideDimensionLine1", "true"},
             {"DimLine 2", yes, set, "HideDimensionLine2", "true"},
             {"DimLine", no, set, "HideDimensionLine2", "false"},
             {"ExtLine 1 LStyle", text("ByLayer"), setText, "ExtensionLine1Style", "ByLayer"},
             {"ExtLine 2 LStyle", item(4, "DASHED"), setText, "ExtensionLine2Style", "DASHED"},
             {"ExtLine LWeight", -2, setWeight, "ExtensionLineLineWeight", "iwLnWt_ByBlock"},
             {"ExtLine LColor", OdCmColor::byIndex(4), setColor, "ExtensionLineColor", "4"},
             {"ExtLine ext", 1.0, set, "ExtensionLineDistancePastDimensionLines", "1.00000000000000"},
             {"ExtLine 1", yes, set, "HideExtensionLine1", "true"},
             {"ExtLine 2", no, set, "HideExtensionLine2", "false"},
             {"ExtLine fixed", yes, setFixedLength, "", "0.75000000000000"},
             {"ExtLine offset", 1.25, set, "ExtensionLineOffset", "1.25000000000000"},
         }},
        {overrides("DimensionStyleLinearDimensionOptions", "linearDimensionOptions"),
         {
             {"Dim UnitSystem", 3, setWord, "Format", "iwLinearDimensionFormat_Engineering"},
             {"Precision", 0, setWord, "Precision", "iwUnitPrecision_0"},
             {"Fractional type", 1, setWord, "FractionalDisplay", "iwLinearDimensionFractionalDisplay_Diagonal"},
             {"Decimal separator", text(","), setWord, "DecimalSeparator", "iwLinearDimensionDecimalSeparator_Comma"},
             {"Dim roundoff", 1.5, set, "RoundToTheNearest", "1.50000000000000"},
             {"Dim prefix", text("R "), setText, "Prefix", "R "},
             {"Dim suffix", text(" mm"), setText, "Suffix", " mm"},
             {"Dim scale linear", 1.75, set, "MeasurementScaleFactor", "1.75000000000000"},
             {"Suppress leading zeros", no, set, "HideLeadingZeroes", "false"},
             {"Suppress trailing zeros", yes, set, "HideTrailingZeroes", "true"},
             {"Suppress zero feet", yes, set, "HideZeroesIf0Feet", "true"},
             {"Suppress zero inches", no, set, "HideZeroesIf0Inches", "false"},
         }},
        {overrides("DimensionStyleRadialDiameterDimensionOptions", "radialDiameterDimensionOptions"),
         {
             {"CenterMark size", 0.09, setMarkSize, "SetCenterMarkDisplay", "0.09000000000000"},
             {"CenterMark", 2, setMark, "SetCenterMarkDisplay", "iwDimensionCenterMarkDisplay_AsMark"},
             {"Jog angle", 2.0, set, "RadiusDimensionJogAngle", "2.00000000000000"},
         }},
        {{generalDimension},
         {
             {"Rotation", 2.25, set, "TextRotation", "2.25000000000000"},
             {"Position x", 7.0, changeX2D, "TextPosition", "7.00000000000000"},
             {"Position y", 8.0, changeY2D, "TextPosition", "8.00000000000000"},
             {"Text override", text("about <>\\P"), setText, "TextOverride", "about <>\\\\P"},
         }},
        {{userData, {"DimensionStyleTextOptions", "textOptions"}},
         {
             {"TextStyle", text("Titles"), setText, "Style", "Titles"},
             {"Text color", OdCmColor::byIndex(1), setColor, "Color", "1"},
             {"Fill color", OdCmColor::byIndex(2), setColor, "FillColor", "2"},
             {"Text height", 2.5, set, "Height", "2.50000000000000"},
             {"Text pos hor", 1, setWord, "HorizontalPosition", "iwDimensionTextHorizontalPosition_AtExtLine1"},
             {"Text pos vert", 3, setWord, "VerticalPosition", "iwDimensionTextVerticalPosition_JIS"},
             {"Text offset", 2.75, set, "OffsetFromDimensionLines", "2.75000000000000"},
             {"Text inside align", 1, setWord, "Alignment", "iwDimensionTextAlignment_AlignHorizontally"},
             {"Text outside align", 2, setWord, "Alignment", "iwDimensionTextAlignment_AlignWithDimensionLines"},
         },
         true},
        {overrides("DimensionStyleToleranceOptions", "toleranceOptions"),
         {
             {"Tolerance display", 3, setWord, "Calculation", "iwToleranceCalculation_Limits"},
             {"Tolerance precision", 2, setWord, "Precision", "iwUnitPrecision_2"},
             {"Tolerance limit upper", 3.0, set, "MaximumValue", "3.00000000000000"},
             {"Tolerance limit lower", 3.25, set, "MinimumValue", "3.25000000000000"},
             {"Tolerance text height", 3.5, set, "Scale", "3.50000000000000"},
             {"Tolerance pos vert", 2, setWord, "VerticalTextJustification",
              "iwToleranceVerticalTextJustification_Top"},
             {"Tolerance suppress leading zeros", yes, set, "HideLeadingZeroes", "true"},
             {"Tolerance suppress trailing zeros", no, set, "HideTrailingZeroes", "false"},
             {"Tolerance suppress zero feet", yes, set, "HideZeroesIf0Feet", "true"},
             {"Tolerance suppress zero inches", no, set, "HideZeroesIf0Inches", "false"},
             {"Alt tolerance precision", 5, setWord, "DualDimensionPrecision", "iwUnitPrecision_5"},
             {"Alt tolerance suppress leading zeros", no, set, "DualDimensionHideLeadingZeroes", "false"},
             {"Alt tolerance suppress trailing zeros", yes, set, "DualDimensionHideTrailingZeroes", "true"},
             {"Alt tolerance suppress zero feet", no, set, "DualDimensionHideZeroesIf0Feet", "false"},
             {"Alt tolerance suppress zero inches", yes, set, "DualDimensionHideZeroesIf0Inches", "true"},
         }},
    };
    expectAll("AcDbRotatedDimension", "rotateddimension1", groups, {record("ExtLine fixed length", 0.75)});
}

TEST_F(DimensionChanges, SetWhatOneClassHasOnTheObject)
{
    expectAll("AcDbArcDimension", "arclengthdimension1",
              {{{}, {{"Arc length symbol", 1, setWord, "ArcSymbolType", "iwArcSymbolType_AboveDimensionText"}}}});
    // Of two jog angles the first is an override.
    expectAll("AcDbRadialDimensionLarge", "joggeddimension1",
              {{overrides("DimensionStyleRadialDiameterDimensionOptions", "radialDiameterDimensionOptions"),
                {{"Jog angle", 0.5, set, "RadiusDimensionJogAngle", "0.50000000000000"}}},
               {{},
                {
                    {"Center location override X", 1.0, changeX, "OverrideCenterPoint", "1.00000000000000"},
                    {"Center location override Y", 2.0, changeY, "OverrideCenterPoint", "2.00000000000000"},
                    {"Jog angle", 0.75, set, "JogAngle", "0.75000000000000"},
                    {"Jog location X", 3.0, changeX, "JogPoint", "3.00000000000000"},
                    {"Jog location Y", 4.0, changeY, "JogPoint", "4.00000000000000"},
                }}});
}

/// All tags of a dimension style. Of those that answer one question only the true one writes.
TEST_F(DimensionChanges, SetEveryOptionOfAStyle)
{
    const std::vector<Group> groups{
        {{{"DimensionStyleArrowsOptions", "arrowOptions"}},
         {
             {"Arrow Size", 3.75, set, "Size", "3.75000000000000"},
             {"Start arrow", item(14, "Box"), setStyleArrow, "SetStartArrow", "iwDimensionArrowType_Box"},
             {"End arrow", 8, setStyleArrow, "SetEndArrow", "iwDimensionArrowType_OriginIndicator2"},
             {"Leader arrow", item(18, "Integral"), setStyleArrow, "SetLeaderArrow", "iwDimensionArrowType_Integral"},
         }},
        {{{"DimensionStyleAngularDimensionOptions", "angularOptions"}},
         {
             {"Angular Format", 3, setWord, "Format", "iwDimensionStyleAngleFormat_Radians"},
             {"Angular Precision", 1, setWord, "Precision", "iwUnitPrecision_1"},
             {"Angular Hide leading zeros", yes, set, "HideLeadingZeroes", "true"},
             {"Angular Hide trailing zeros", no, set, "HideTrailingZeroes", "false"},
             {"Arc Before dimension text", 1, setWord, "ArcLengthSymbols", "iwArcLengthSymbols_AboveDimText"},
         }},
        {{{"DimensionStyleDualDimensionOptions", "dualOptions"}},
         {
             {"Show dual dimensions", text("Yes"), set, "Show", "true"},
             {"Dual Dimensions Format", 8, setWord, "Format", "iwDualDimensionFormat_WindowsDesktop"},
             {"Dual Dimensions Precision", 4, setWord, "Precision", "iwUnitPrecision_4"},
             {"Dual Dimensions Multiplier for converting units", 4.0, set, "MultiplierForConvertingUnits",
              "4.00000000000000"},
             {"Dual Dimensions Round to the nearest", 4.25, set, "RoundToTheNearest", "4.25000000000000"},
             {"Dual Dimensions Prefix", text("["), setText, "Prefix", "["},
             {"Dual Dimensions Suffix", text("<>]"), setText, "Suffix", "<>]"},
             {"Dual Dimensions Hide leading zeros", no, set, "HideLeadingZeroes", "false"},
             {"Dual Dimensions Hide trailing zeros", yes, set, "HideTrailingZeroes", "true"},
             {"Dual Dimensions Hide zeros feet", no, set, "HideZeroesIf0Feet", "false"},
             {"Dual Dimensions Hide zeros inches", yes, set, "HideZeroesIf0Inches", "true"},
             {"Dual Dimensions After primary units", yes, setWord, "Insertion",
              "iwDualDimensionInsertPlacement_AfterPrimaryUnits"},
             {"Dual Dimensions Below primary units", yes, setWord, "Insertion",
              "iwDualDimensionInsertPlacement_BelowPrimaryUnits"},
         }},
        {{{"DimensionStyleFitOptions", "fitOptions"}},
         {
             {"FitDimensionsGeometryAutomatic", text("Yes"), setWord, "FitGeometry",
              "iwDimensionFitGeometry_Automatic"},
             {"FitDimensionsGeometryArrows", text("Yes"), setWord, "FitGeometry", "iwDimensionFitGeometry_Arrows"},
             {"FitDimensionsGeometryText", text("Yes"), setWord, "FitGeometry", "iwDimensionFitGeometry_Text"},
             {"FitDimensionsGeometryTextAndArrows", text("Yes"), setWord, "FitGeometry",
              "iwDimensionFitGeometry_TextAndArrows"},
             {"FitDimensionsGeometryKeepTextBetweenExtensionLines", text("Yes"), setWord, "FitGeometry",
              "iwDimensionFitGeometry_KeepTextBetweenExtensionLines"},
             {"FitDimensionsGeometryHideArrows", yes, set, "HideArrows", "true"},
             {"FitTextAboveTheDimensionLineWithLeader", yes, setWord, "FitDimensionText",
              "iwDimensionFitDimensionText_AboveDimensionLineWithLeader"},
             {"FitTextAboveTheDimensionLineWithoutLeader", yes, setWord, "FitDimensionText",
              "iwDimensionFitDimensionText_AboveDimensionLineWithoutLeader"},
             {"FitTextNextToTheDimensionLine", yes, setWord, "FitDimensionText",
              "iwDimensionFitDimensionText_NextToDimensionLine"},
             {"FitDimensionLinesBetweenExtensionLines", no, set, "DimensionLinesBetweenExtensionLine", "false"},
             {"FitSpecifyTextPlacement", yes, set, "SpecifyTextPlacement", "true"},
             {"FitScaleFactor", 0.5, setFactor, "SetDimensionScale", "0.50000000000000"},
             {"FitScaleDimensionsAccordingToSheet", yes, setSheetScale, "SetDimensionScale",
              "iwDimensionScale_ScaleDimensionsAccordingToSheet"},
         }},
        {{{"DimensionStyleLinearDimensionOptions", "linearOptions"}},
         {
             {"LinearDimensionsFormat", 5, setWord, "Format", "iwLinearDimensionFormat_Fractional"},
             {"LinearDimensionsPrecision", 7, setWord, "Precision", "iwUnitPrecision_7"},
             {"LinearDimensionsFractionalDisplay", 2, setWord, "FractionalDisplay",
              "iwLinearDimensionFractionalDisplay_NotStacked"},
             {"LinearDimensionsDecimalSeparator", text("."), setWord, "DecimalSeparator",
              "iwLinearDimensionDecimalSeparator_Period"},
             {"LinearDimensionsRoundToTheNearest", 4.5, set, "RoundToTheNearest", "4.50000000000000"},
             {"Linear Dimensions Prefix", text("ca. "), setText, "Prefix", "ca. "},
             {"LinearDimensionsScaleFactor", 4.75, set, "MeasurementScaleFactor", "4.75000000000000"},
             {"LinearDimensionsFollowSheet", yes, set, "ZeroesDisplayFollowSheetDimensions", "true"},
             {"Linear Dimensions Hide leading zeros", yes, set, "HideLeadingZeroes", "true"},
             {"Linear Dimensions Hide trailing zeros", no, set, "HideTrailingZeroes", "false"},
             {"Linear Dimensions Hide zeros feet", yes, set, "HideZeroesIf0Feet", "true"},
             {"Linear Dimensions Hide zeros inches", no, set, "HideZeroesIf0Inches", "false"},
         }},
        {{{"DimensionStyleLineOptions", "linesOptions"}},
         {
             {"LineDimensionsStyle", drawing.id(0x11), setText, "DimensionLineStyle", "DASHED"},
             {"LineDimensionsWeight", 211, setWeight, "DimensionLineLineWeight", "iwLnWt_211"},
             {"LineDimensionsColor", OdCmColor::byIndex(5), setColor, "DimensionLineColor", "5"},
             {"LineDimensionsOffset", 5.0, set, "DimensionLineOffset", "5.00000000000000"},
             {"LineDimensionsDistStartArrow", 5.25, set, "DimensionLineDistancePastStartArrow", "5.25000000000000"},
             {"LineDimensionsSuppressDimLine1", yes, set, "HideDimensionLine1", "true"},
             {"LineDimensionsSuppressDimLine2", no, set, "HideDimensionLine2", "false"},
             {"ExtLineDimensionsLine1", drawing.id(0x11), setText, "ExtensionLine1Style", "DASHED"},
             {"ExtLineDimensionsLine2", text("ByBlock"), setText, "ExtensionLine2Style", "ByBlock"},
             {"ExtLineDimensionsWeight", -1, setWeight, "ExtensionLineLineWeight", "iwLnWt_ByLayer"},
             {"ExtLineDimensionsColor", OdCmColor::byIndex(6), setColor, "ExtensionLineColor", "6"},
             {"ExtLineDimensionsOffset", 5.5, set, "ExtensionLineOffset", "5.50000000000000"},
             {"ExtLineDimensionsDistPastDimLines", 5.75, set, "ExtensionLineDistancePastDimensionLines",
              "5.75000000000000"},
             {"ExtLineDimensionsSuppressExtLine1", no, set, "HideExtensionLine1", "false"},
             {"ExtLineDimensionsSuppressExtLine2", yes, set, "HideExtensionLine2", "true"},
             {"ExtLineDimensionsOffsetFixedLength", yes, setFixedLength, "", "4.00000000000000"},
         }},
        {{{"DimensionStyleRadialDiameterDimensionOptions", "radialDiameterOptions"}},
         {
             {"CenterMarkDisplay", 2.5, setStyleMark, "SetCenterMarkDisplay", "iwDimensionCenterMarkDisplay_AsMark"},
             {"RadiusDimensionJog", 6.0, set, "RadiusDimensionJogAngle", "6.00000000000000"},
         }},
        {{{"DimensionStyleTextOptions", "textOptions"}},
         {
             {"TextDimensionTextStyle", item(2, "Titles"), setText, "Style", "Titles"},
             {"TextDimensionTextColor", OdCmColor::byIndex(7), setColor, "Color", "7"},
             {"TextDimensionTextFill", OdCmColor::byBlock(), setColor, "FillColor", "0"},
             {"TextDimensionTextHeight", 6.25, set, "Height", "6.25000000000000"},
             {"TextDimensionTextFractionalScale", 6.5, set, "FractionalScale", "6.50000000000000"},
             {"TextDimensionTextFrameDimensionText", yes, set, "FrameDimensionText", "true"},
             {"TextDimensionTextHorizontalPosition", 4, setWord, "HorizontalPosition",
              "iwDimensionTextHorizontalPosition_OverExtLine2"},
             {"TextDimensionTextVerticalPosition", 1, setWord, "VerticalPosition",
              "iwDimensionTextVerticalPosition_Above"},
             {"TextDimensionTextOffsetFromDimLine", 6.75, set, "OffsetFromDimensionLines", "6.75000000000000"},
             {"TextDimensionTextAlignmentUseISOStandard", yes, setWord, "Alignment",
              "iwDimensionTextAlignment_UseISOStandard"},
             {"TextDimensionTextAlignmentAlignHorizontally", yes, setWord, "Alignment",
              "iwDimensionTextAlignment_AlignHorizontally"},
             {"TextDimensionTextAlignmentAlignWithWimensionLines", yes, setWord, "Alignment",
              "iwDimensionTextAlignment_AlignWithDimensionLines"},
         }},
        {{{"DimensionStyleToleranceOptions", "toleranceOptions"}},
         {
             {"ToleranceSettingsCalculation", 1, setWord, "Calculation", "iwToleranceCalculation_Symmetrical"},
             {"ToleranceSettingsPrecision", 6, setWord, "Precision", "iwUnitPrecision_6"},
             {"ToleranceSettingsMaximumValue", 7.0, set, "MaximumValue", "7.00000000000000"},
             {"ToleranceSettingsMinimumValue", 7.25, set, "MinimumValue", "7.25000000000000"},
             {"ToleranceSettingsScale", 7.5, set, "Scale", "7.50000000000000"},
             {"ToleranceSettingsVerticalTextJustification", 1, setWord, "VerticalTextJustification",
              "iwToleranceVerticalTextJustification_Middle"},
             {"ToleranceSettingsHideLeadingZeroes", no, set, "HideLeadingZeroes", "false"},
             {"ToleranceSettingsHideTrailingZeroes", yes, set, "HideTrailingZeroes", "true"},
             {"ToleranceSettingsHideZeroFeet", no, set, "HideZeroesIf0Feet", "false"},
             {"ToleranceSettingsHideZeroInches", yes, set, "HideZeroesIf0Inches", "true"},
             {"ToleranceSettingsDualDimPrecision", 3, setWord, "DualDimensionPrecision", "iwUnitPrecision_3"},
             {"ToleranceSettingsDualDimHideLeadingZeroes", yes, set, "DualDimensionHideLeadingZeroes", "true"},
             {"ToleranceSettingsDualDimHideTrailingZeroes", no, set, "DualDimensionHideTrailingZeroes", "false"},
             {"ToleranceSettingsDualDimHideZeroFeet", yes, set, "DualDimensionHideZeroesIf0Feet", "true"},
             {"ToleranceSettingsDualDimHideZeroInches", no, set, "DualDimensionHideZeroesIf0Inches", "false"},
         }},
    };
    expectAll("AcDbDimStyleTableRecord", "dimensionstyle1", groups,
              {record("ExtLineDimensionsOffsetFixedLength_Length", 4.0)});
}

TEST_F(DimensionChanges, FetchOnlyWhatTheyNeed)
{
    EXPECT_EQ(inCSharp("AcDbRotatedDimension", {record("Rotation", 0.5)}),
              "GeneralDimension generalDimension2 = rotateddimension1.GetGeneralDimension();\n"
              "generalDimension2.TextRotation = 0.50000000000000;\n");
    EXPECT_EQ(inCSharp("AcDbDimStyleTableRecord", {record("LinearDimensionsPrecision", 2)}),
              "DimensionStyleLinearDimensionOptions linearOptions1 = "
              "dimensionstyle1.GetDimensionStyleLinearDimensionOptions();\n"
              "linearOptions1.Precision = iwUnitPrecision_e.iwUnitPrecision_2;\n");
}

/// What follows the fetch of the style's options.
TEST_F(DimensionChanges, OfAStyleTakeValuesInEveryForm)
{
    const auto set = [&](const char* tag, const CFxVariant& value) {
        const auto text = QString::fromStdString(inCSharp("AcDbDimStyleTableRecord", {record(tag, value)}));
        EXPECT_EQ(text.section('\n', 0, 0).count("Options();"), 1) << tag << ": " << text.toStdString();
        return text.section('\n', 1).toStdString();
    };
    const CFxVariant ofTwo = CFxVariantCollection(
        {CFxVariantCollectionElement(0, text("Dot")), CFxVariantCollectionElement(1, text("DASHED"))}, 1);
    EXPECT_EQ(set("Angular Precision", ofTwo), "angularOptions1.Precision = iwUnitPrecision_e.iwUnitPrecision_1;\n");
    EXPECT_EQ(set("LineDimensionsStyle", ofTwo), "linesOptions1.DimensionLineStyle = \"DASHED\";\n");
    EXPECT_EQ(set("LineDimensionsStyle", drawing.id(0x99)), "");
    EXPECT_EQ(set("TextDimensionTextStyle", CFxVariantCollection({}, 0)), "");

    EXPECT_EQ(set("Angular Precision", 2.75), "angularOptions1.Precision = iwUnitPrecision_e.iwUnitPrecision_2;\n");
    EXPECT_EQ(set("Angular Precision", -3e9), "angularOptions1.Precision = iwUnitPrecision_e.iwUnitPrecision_0;\n");
    EXPECT_EQ(set("Arrow Size", 3), "arrowOptions1.Size = 3.00000000000000;\n");

    // Only an arrow of one's own has a name.
    EXPECT_EQ(set("End arrow", item(20, "My arrow")),
              "iwDimensionArrowType_e arrowType2=iwDimensionArrowType_e.iwDimensionArrowType_Custom;\n"
              "string arrowName2=\"My arrow\";\narrowOptions1.SetEndArrow(arrowType2, arrowName2);\n");

    const QString mark = "radialDiameterOptions1.SetCenterMarkDisplay(iwDimensionCenterMarkDisplay_e."
                         "iwDimensionCenterMarkDisplay_%1, %2);\n";
    EXPECT_EQ(set("CenterMarkDisplay", -0.5), mark.arg("AsCenterLine", "0.50000000000000").toStdString());
    EXPECT_EQ(set("CenterMarkDisplay", 0.0), mark.arg("None", "0.00000000000000").toStdString());
    EXPECT_EQ(set("CenterMarkDisplay", item(2, "Mark")), mark.arg("AsMark", "0.00000000000000").toStdString());

    // Either tag calls for the statement.
    EXPECT_EQ(set("ExtLineDimensionsOffsetFixedLength", yes),
              "linesOptions1.SetExtensionLineFixedLength(true, 0.00000000000000);\n");
    EXPECT_EQ(set("ExtLineDimensionsOffsetFixedLength_Length", 2.0),
              "linesOptions1.SetExtensionLineFixedLength(false, 2.00000000000000);\n");

    // "<>" stands for the measure.
    EXPECT_EQ(set("Linear Dimensions Prefix", text("R <> mm <>")),
              "linearOptions1.Prefix = \"R \";\nlinearOptions1.Suffix = \" mm <>\";\n");
    EXPECT_EQ(set("Linear Dimensions Prefix", text("<> mm")), "linearOptions1.Suffix = \" mm\";\n");
    EXPECT_EQ(set("Linear Dimensions Prefix", text("<>")), "");
    EXPECT_EQ(set("Dual Dimensions Prefix", text("<>")), "");
    EXPECT_EQ(set("Dual Dimensions Suffix", text("<>")), "");

    EXPECT_EQ(set("LinearDimensionsDecimalSeparator", text(" ")),
              "linearOptions1.DecimalSeparator = "
              "iwLinearDimensionDecimalSeparator_e.iwLinearDimensionDecimalSeparator_Space;\n");
    EXPECT_EQ(set("Show dual dimensions", yes), "dualOptions1.Show = false;\n");
    const std::vector<std::pair<const char*, CFxVariant>> silent{
        {"FitDimensionsGeometryText", text("No")},
        {"FitDimensionsGeometryText", yes},
        {"FitTextNextToTheDimensionLine", no},
        {"FitScaleDimensionsAccordingToSheet", no},
        {"TextDimensionTextAlignmentUseISOStandard", no},
        {"Dual Dimensions Below primary units", no},
    };
    for (const auto& [tag, value] : silent)
        EXPECT_EQ(set(tag, value), "") << tag;
}

TEST_F(DimensionChanges, KeepATextInsideOfADimensionThatIsThere)
{
    const auto inside = [&](const CFxVariant& value) {
        return inCSharp("AcDbRotatedDimension", {record("Text inside", value)}).find("FitGeometry") !=
               std::string::npos;
    };
    EXPECT_TRUE(inside(yes));
    EXPECT_FALSE(inside(no));
    drawing.add(1, "AcDbRotatedDimension", {{"isErased", true}});
    EXPECT_FALSE(inside(yes));
}

/// Nothing that makes a dimension style says its settings; a dimension is made with all of its own.
TEST_F(DimensionChanges, OfAddedObjectsAreWrittenForStylesOnly)
{
    TestTarget made(Target::Vba);
    EXPECT_EQ(change(made, "AcDbDimStyleTableRecord", {record("Arrow Size", 3.0)}, true),
              "Dim arrowOptions1 As Inkwright.DimensionStyleArrowsOptions\n"
              "Set arrowOptions1 = dimensionstyle1.GetDimensionStyleArrowsOptions()\n"
              "arrowOptions1.Size = 3.00000000000000\n");
    EXPECT_EQ(change(made, "AcDbRotatedDimension", {record("Dim style", text("ISO-25"))}, true), "");
    EXPECT_EQ(change(made, "AcDbMlineStyle", {record("Show junctions", yes)}, true), "");
}

TEST_F(DimensionChanges, RenameStyles)
{
    const PropertyList renamed{record("DimensionStyleName", text("Plans"))};
    const std::string rename = "iwCreateObjectResult_e result1;\nstring styleName1 = \"Plans\";\n"
                               "result1 = dimensionstyle1.Rename( styleName1 );\n";
    EXPECT_EQ(inCSharp("AcDbDimStyleTableRecord", renamed), rename);
    drawing.database.setCurrentDimensionStyleId(drawing.id(2));
    EXPECT_EQ(inCSharp("AcDbDimStyleTableRecord", renamed), rename + "dimensionstyle1.Activate();\n");

    EXPECT_EQ(inCSharp("AcDbMlineStyle", {record("Show junctions", no), record("RichLineStyleName", text("Walls"))}),
              "richlinestyle1.Rename(\"Walls\");\nrichlinestyle1.ShowJunctions = false;\n");
}

} // namespace
