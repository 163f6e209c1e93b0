// Changes of dimensions, dimension styles and rich line styles: the forms in which values come, and the tags that no
// scenario has. What the tags become in each target is shown by the scenarios.

#include "TestActions.h"
#include "TestDrawing.h"
#include "TestTarget.h"
#include "host/db/OdDbClassMap.h"
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

    struct Row
    {
        const char* tag;
        CFxVariant value;
        const char* statement;
    };
    /// Changes each tag on its own, and compares what is set on the options that are fetched for it.
    void expectOptions(const char* cls, const QString& options, const std::vector<Row>& rows)
    {
        for (const Row& row : rows) {
            const auto text = QString::fromStdString(inCSharp(cls, {record(row.tag, row.value)}));
            const QString statement = text.section('\n', -2, -2).remove("0000000000000");
            EXPECT_EQ(QString(statement).remove(QRegularExpression("\\d+(?=\\.\\D)")).toStdString(),
                      options.toStdString() + '.' + row.statement + ';')
                << row.tag;
        }
    }
    /// The values that are set, of which an object's tag may be one of two.
    std::string assignments(const char* cls, PropertyList list)
    {
        static const QRegularExpression ofValue(" = (\\d|true|false)");
        return QString::fromStdString(inCSharp(cls, std::move(list)))
            .split('\n')
            .filter(ofValue)
            .join('|')
            .remove("0000000000000")
            .toStdString();
    }

    TestDrawing drawing;
};

TEST_F(DimensionChanges, SetOverridesOfNoScenario)
{
    const char* const cls = "AcDbRotatedDimension";
    expectOptions(cls, "angularDimensionOptions",
                  {{"Angle precision", item(3, "0.000"), "Precision = iwUnitPrecision_e.iwUnitPrecision_3"}});
    expectOptions(
        cls, "arrowsOptions",
        {{"Arrow", item(19, "None"), "SetLeaderArrow( iwDimensionArrowType_e.iwDimensionArrowType_None, \"\" )"}});
    expectOptions(cls, "dualDimensionOptions",
                  {
                      {"Alt format", 6, "Format = iwDualDimensionFormat_e.iwDualDimensionFormat_Architectural"},
                      {"Alt precision", 8, "Precision = iwUnitPrecision_e.iwUnitPrecision_8"},
                      {"Alt round", 0.5, "RoundToTheNearest = 0.5"},
                      {"Alt scale", 1.5, "MultiplierForConvertingUnits = 1.5"},
                      {"Alt prefix", text("ca. "), "Prefix = \"ca. \""},
                      {"Alt suppress leading zeros", no, "HideLeadingZeroes = false"},
                      {"Alt suppress trailing zeros", yes, "HideTrailingZeroes = true"},
                      {"Alt suppress zeros feet", no, "HideZeroesIf0Feet = false"},
                      {"Alt suppress zeros inches", yes, "HideZeroesIf0Inches = true"},
                  });
    expectOptions(cls, "fitOptions",
                  {
                      {"DimLine inside", yes, "HideArrows = true"},
                      {"Text movement", 1,
                       "FitDimensionText = "
                       "iwDimensionFitDimensionText_e.iwDimensionFitDimensionText_AboveDimensionLineWithLeader"},
                      {"DimLine forced", yes, "DimensionLinesBetweenExtensionLine = true"},
                  });
    expectOptions(cls, "lineOptions",
                  {
                      {"DimLine 1", yes, "HideDimensionLine1 = true"},
                      {"ExtLine 1 LStyle", text("ByLayer"), "ExtensionLine1Style = \"ByLayer\""},
                      {"ExtLine 2 LStyle", item(4, "DASHED"), "ExtensionLine2Style = \"DASHED\""},
                      {"ExtLine LWeight", -2, "ExtensionLineLineWeight = iwLineWeight_e.iwLnWt_ByBlock"},
                      {"ExtLine LColor", OdCmColor::byIndex(4), "ExtensionLineColor = iwApp.GetColorByIndex( 4 )"},
                      {"ExtLine ext", 1.0, "ExtensionLineDistancePastDimensionLines = 1.0"},
                      {"ExtLine 1", yes, "HideExtensionLine1 = true"},
                      {"ExtLine 2", no, "HideExtensionLine2 = false"},
                      {"ExtLine fixed", yes, "SetExtensionLineFixedLength(true, 0.0)"},
                      {"ExtLine offset", 1.5, "ExtensionLineOffset = 1.5"},
                  });
    expectOptions(
        cls, "linearDimensionOptions",
        {
            {"Dim UnitSystem", 3, "Format = iwLinearDimensionFormat_e.iwLinearDimensionFormat_Engineering"},
            {"Fractional type", 1,
             "FractionalDisplay = iwLinearDimensionFractionalDisplay_e.iwLinearDimensionFractionalDisplay_Diagonal"},
            {"Dim roundoff", 1.5, "RoundToTheNearest = 1.5"},
            {"Dim suffix", text(" mm"), "Suffix = \" mm\""},
            {"Dim scale linear", 2.5, "MeasurementScaleFactor = 2.5"},
            {"Suppress zero feet", yes, "HideZeroesIf0Feet = true"},
            {"Suppress zero inches", no, "HideZeroesIf0Inches = false"},
        });
    expectOptions(cls, "textOptions",
                  {
                      {"TextStyle", text("Titles"), "Style = \"Titles\""},
                      {"Text color", OdCmColor::byIndex(1), "Color = iwApp.GetColorByIndex( 1 )"},
                      {"Text pos hor", 1,
                       "HorizontalPosition = iwDimensionTextHorizontalPosition_e."
                       "iwDimensionTextHorizontalPosition_AtExtLine1"},
                      {"Text pos vert", 3,
                       "VerticalPosition = iwDimensionTextVerticalPosition_e.iwDimensionTextVerticalPosition_JIS"},
                      {"Text offset", 2.5, "OffsetFromDimensionLines = 2.5"},
                  });
    expectOptions(cls, "toleranceOptions",
                  {
                      {"Tolerance precision", 2, "Precision = iwUnitPrecision_e.iwUnitPrecision_2"},
                      {"Tolerance limit lower", 3.5, "MinimumValue = 3.5"},
                      {"Tolerance text height", 4.5, "Scale = 4.5"},
                      {"Tolerance pos vert", 2,
                       "VerticalTextJustification = "
                       "iwToleranceVerticalTextJustification_e.iwToleranceVerticalTextJustification_Top"},
                      {"Tolerance suppress leading zeros", yes, "HideLeadingZeroes = true"},
                      {"Tolerance suppress trailing zeros", no, "HideTrailingZeroes = false"},
                      {"Tolerance suppress zero feet", yes, "HideZeroesIf0Feet = true"},
                      {"Tolerance suppress zero inches", no, "HideZeroesIf0Inches = false"},
                      {"Alt tolerance precision", 5, "DualDimensionPrecision = iwUnitPrecision_e.iwUnitPrecision_5"},
                      {"Alt tolerance suppress leading zeros", no, "DualDimensionHideLeadingZeroes = false"},
                      {"Alt tolerance suppress trailing zeros", yes, "DualDimensionHideTrailingZeroes = true"},
                      {"Alt tolerance suppress zero feet", no, "DualDimensionHideZeroesIf0Feet = false"},
                      {"Alt tolerance suppress zero inches", yes, "DualDimensionHideZeroesIf0Inches = true"},
                  });
}

/// Of two records with the tag the second one is for the second property.
TEST_F(DimensionChanges, TakeATagOfTwoPropertiesInTurn)
{
    EXPECT_EQ(assignments("AcDbRadialDimensionLarge", {record("Jog angle", 0.5), record("Jog angle", 1.5)}),
              "radialDiameterDimensionOptions4.RadiusDimensionJogAngle = 0.5;|joggeddimension1.JogAngle = 1.5;");
    EXPECT_EQ(assignments("AcDbRotatedDimension",
                          {record("Suppress leading zeros", yes), record("Suppress leading zeros", no),
                           record("Suppress trailing zeros", no), record("Suppress trailing zeros", yes)}),
              "angularDimensionOptions4.HideLeadingZeroes = true;|"
              "angularDimensionOptions4.HideTrailingZeroes = false;|"
              "linearDimensionOptions7.HideLeadingZeroes = false;|"
              "linearDimensionOptions7.HideTrailingZeroes = true;");
}

TEST_F(DimensionChanges, SetOptionsOfAStyleOfNoScenario)
{
    const char* const cls = "AcDbDimStyleTableRecord";
    expectOptions(cls, "angularOptions", {{"Angular Hide leading zeros", yes, "HideLeadingZeroes = true"}});
    expectOptions(cls, "dualOptions",
                  {
                      {"Dual Dimensions Precision", 4, "Precision = iwUnitPrecision_e.iwUnitPrecision_4"},
                      {"Dual Dimensions Round to the nearest", 4.5, "RoundToTheNearest = 4.5"},
                      {"Dual Dimensions Hide leading zeros", no, "HideLeadingZeroes = false"},
                      {"Dual Dimensions Hide trailing zeros", yes, "HideTrailingZeroes = true"},
                      {"Dual Dimensions Hide zeros feet", no, "HideZeroesIf0Feet = false"},
                      {"Dual Dimensions Hide zeros inches", yes, "HideZeroesIf0Inches = true"},
                  });
    expectOptions(cls, "fitOptions",
                  {
                      {"FitDimensionsGeometryKeepTextBetweenExtensionLines", text("Yes"),
                       "FitGeometry = iwDimensionFitGeometry_e.iwDimensionFitGeometry_KeepTextBetweenExtensionLines"},
                      {"FitDimensionsGeometryHideArrows", yes, "HideArrows = true"},
                      {"FitTextAboveTheDimensionLineWithoutLeader", yes,
                       "FitDimensionText = "
                       "iwDimensionFitDimensionText_e.iwDimensionFitDimensionText_AboveDimensionLineWithoutLeader"},
                      {"FitSpecifyTextPlacement", yes, "SpecifyTextPlacement = true"},
                  });
    expectOptions(
        cls, "linearOptions",
        {
            {"LinearDimensionsFractionalDisplay", 2,
             "FractionalDisplay = iwLinearDimensionFractionalDisplay_e.iwLinearDimensionFractionalDisplay_NotStacked"},
            {"LinearDimensionsRoundToTheNearest", 4.5, "RoundToTheNearest = 4.5"},
            {"LinearDimensionsScaleFactor", 5.5, "MeasurementScaleFactor = 5.5"},
            {"Linear Dimensions Hide leading zeros", yes, "HideLeadingZeroes = true"},
            {"Linear Dimensions Hide trailing zeros", no, "HideTrailingZeroes = false"},
            {"Linear Dimensions Hide zeros feet", yes, "HideZeroesIf0Feet = true"},
            {"Linear Dimensions Hide zeros inches", no, "HideZeroesIf0Inches = false"},
        });
    expectOptions(cls, "linesOptions",
                  {
                      {"LineDimensionsOffset", 5.0, "DimensionLineOffset = 5.0"},
                      {"LineDimensionsDistStartArrow", 5.5, "DimensionLineDistancePastStartArrow = 5.5"},
                      {"LineDimensionsSuppressDimLine1", yes, "HideDimensionLine1 = true"},
                      {"LineDimensionsSuppressDimLine2", no, "HideDimensionLine2 = false"},
                      {"ExtLineDimensionsLine2", text("ByBlock"), "ExtensionLine2Style = \"ByBlock\""},
                      {"ExtLineDimensionsWeight", -1, "ExtensionLineLineWeight = iwLineWeight_e.iwLnWt_ByLayer"},
                      {"ExtLineDimensionsOffset", 6.5, "ExtensionLineOffset = 6.5"},
                      {"ExtLineDimensionsDistPastDimLines", 7.5, "ExtensionLineDistancePastDimensionLines = 7.5"},
                      {"ExtLineDimensionsSuppressExtLine1", no, "HideExtensionLine1 = false"},
                      {"ExtLineDimensionsSuppressExtLine2", yes, "HideExtensionLine2 = true"},
                  });
    expectOptions(cls, "textOptions",
                  {
                      {"TextDimensionTextFill", OdCmColor::byBlock(), "FillColor = iwApp.GetColorByIndex( 0 )"},
                      {"TextDimensionTextFractionalScale", 6.5, "FractionalScale = 6.5"},
                      {"TextDimensionTextFrameDimensionText", yes, "FrameDimensionText = true"},
                      {"TextDimensionTextHorizontalPosition", 4,
                       "HorizontalPosition = iwDimensionTextHorizontalPosition_e."
                       "iwDimensionTextHorizontalPosition_OverExtLine2"},
                      {"TextDimensionTextOffsetFromDimLine", 7.5, "OffsetFromDimensionLines = 7.5"},
                      {"TextDimensionTextAlignmentAlignHorizontally", yes,
                       "Alignment = iwDimensionTextAlignment_e.iwDimensionTextAlignment_AlignHorizontally"},
                  });
    expectOptions(
        cls, "toleranceOptions",
        {
            {"ToleranceSettingsPrecision", 6, "Precision = iwUnitPrecision_e.iwUnitPrecision_6"},
            {"ToleranceSettingsScale", 7.5, "Scale = 7.5"},
            {"ToleranceSettingsHideLeadingZeroes", no, "HideLeadingZeroes = false"},
            {"ToleranceSettingsHideTrailingZeroes", yes, "HideTrailingZeroes = true"},
            {"ToleranceSettingsHideZeroFeet", no, "HideZeroesIf0Feet = false"},
            {"ToleranceSettingsHideZeroInches", yes, "HideZeroesIf0Inches = true"},
            {"ToleranceSettingsDualDimPrecision", 3, "DualDimensionPrecision = iwUnitPrecision_e.iwUnitPrecision_3"},
            {"ToleranceSettingsDualDimHideLeadingZeroes", yes, "DualDimensionHideLeadingZeroes = true"},
            {"ToleranceSettingsDualDimHideTrailingZeroes", no, "DualDimensionHideTrailingZeroes = false"},
            {"ToleranceSettingsDualDimHideZeroFeet", yes, "DualDimensionHideZeroesIf0Feet = true"},
            {"ToleranceSettingsDualDimHideZeroInches", no, "DualDimensionHideZeroesIf0Inches = false"},
        });
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
