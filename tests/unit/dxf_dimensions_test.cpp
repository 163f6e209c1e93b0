// Dimensions, their styles, and leaders of drawing files.

#include "TestDrawingFile.h"

#include <gtest/gtest.h>

using namespace inkmacro;
using namespace inkmacro::dxf;

namespace {

Groups dimension(const std::string& flags, const Groups& more, const std::string& kind = "DIMENSION")
{
    return Groups{{0, kind}, {5, "5A"}, {8, "0"}, {70, flags}, {3, "Mine"}} + more;
}

Groups point(int code, const std::string& x, const std::string& y)
{
    return {{code, x}, {code + 10, y}, {code + 20, "0"}};
}

std::string pointTag(const std::string& name, const std::string& coordinates)
{
    return tag(name, R"({"point":[)" + coordinates + ",0]}");
}

std::string item(const std::string& name, int number, const std::string& word)
{
    return tag(name, R"({"element":{"tag":{"int":)" + std::to_string(number) + R"(},"value":")" + word + R"("}})");
}

/// A drawing with that style, and that entity.
Imported drawn(const Groups& style, const Groups& entity)
{
    const Groups blocks{{0, "TABLE"},        {2, "BLOCK_RECORD"}, {0, "BLOCK_RECORD"}, {5, "B1"},    {2, "_Open30"},
                        {0, "BLOCK_RECORD"}, {5, "B2"},           {2, "Own"},          {0, "ENDTAB"}};
    const Groups styles = Groups{{0, "TABLE"}, {2, "DIMSTYLE"}, {0, "DIMSTYLE"}, {105, "D1"}, {2, "Mine"}} + style +
                          Groups{{0, "ENDTAB"}};
    return imported(asText(section("TABLES", blocks + styles) + section("ENTITIES", entity)));
}

std::string lossOf(const Groups& entity)
{
    const Imported result = entities(entity);
    return result.accounts.lost.empty() ? "" : result.accounts.lost.begin()->first.second;
}

const Groups kLine = point(10, "3", "5") + point(13, "1", "0") + point(14, "6", "1");

} // namespace

TEST(DxfDimensions, AreWhatTheirFlagsSay)
{
    const Groups points =
        point(10, "1", "2") + point(13, "3", "4") + point(14, "5", "6") + point(15, "7", "8") + point(16, "9", "0");
    const struct
    {
        const char* flags;
        std::vector<std::string> parts;
    } kinds[] = {
        {"32", {"AcDbRotatedDimension", pointTag("xLine1Point", "3,4"), pointTag("dimLinePoint", "1,2")}},
        {"1", {"AcDbAlignedDimension", pointTag("xLine2Point", "5,6"), pointTag("dimLinePoint", "1,2")}},
        {"34",
         {"AcDb2LineAngularDimension", pointTag("xLine2Start", "7,8"), pointTag("xLine2End", "1,2"),
          pointTag("arcPoint", "9,0")}},
        {"163", {"AcDbDiametricDimension", pointTag("chordPoint", "7,8")}},
        {"4", {"AcDbRadialDimension", pointTag("chordPoint", "7,8")}},
        {"37", {"AcDb3PointAngularDimension", pointTag("centerPoint", "7,8"), pointTag("arcPoint", "1,2")}},
        {"102", {"AcDbOrdinateDimension", pointTag("setZero", "1,2"), tag("isUsingXAxis", R"({"int":1})")}},
        {"6", {"AcDbOrdinateDimension", pointTag("definingPoint", "3,4"), tag("isUsingXAxis", R"({"int":0})")}},
    };
    for (const auto& kind : kinds) {
        const Imported result = entities(dimension(kind.flags, points));
        for (const std::string& part : kind.parts)
            EXPECT_TRUE(result.has(part)) << kind.flags << ' ' << part << "\n" << result.actions.at(0);
    }
    EXPECT_NE(entities(dimension("3", points)).head.find(R"("farChordPoint":[1,2,0])"), std::string::npos);
    EXPECT_NE(entities(dimension("4", points)).head.find(R"("center":[1,2,0])"), std::string::npos);

    EXPECT_EQ(lossOf(dimension("7", points)), "there is no such kind of dimension");
    EXPECT_EQ(lossOf(dimension("4", point(10, "1", "2") + point(15, "1", "2"))), "its circle has no size");
    EXPECT_EQ(lossOf(dimension("6", Groups{{51, "30"}})), "it measures along a turned axis");
    EXPECT_EQ(lossOf(dimension("1", kLine + Groups{{210, "1"}, {220, "0"}, {230, "0"}})), "its plane is tilted");
}

TEST(DxfDimensions, KeepTheirTextsAndTheSideFromWhichTheyAreSeen)
{
    const auto withText = [](const std::string& text) {
        return drawn({}, dimension("0", kLine + Groups{{1, text}, {50, "90"}, {53, "45"}}));
    };
    EXPECT_TRUE(withText(" ").has(tag("Text override", R"(" ")")));
    EXPECT_FALSE(withText("<>").has("Text override"));
    EXPECT_FALSE(withText("").has("Text override"));
    EXPECT_TRUE(withText("").has(tag("rotation", "1.5707963267948966")));
    EXPECT_TRUE(withText("").has(tag("Rotation", "0.7853981633974483")));
    EXPECT_TRUE(withText("").has(tag("Dim style", R"("Mine")")));

    const Groups moved = kLine + point(11, "2", "8") + Groups{{50, "90"}};
    EXPECT_FALSE(entities(dimension("0", moved)).has("Position x"));
    EXPECT_TRUE(entities(dimension("128", moved)).has(tag("Position x", "2") + "," + tag("Position y", "8")));
    const Imported down = entities(dimension("128", moved + Groups{{230, "-1"}}));
    EXPECT_TRUE(down.has(tag("Position x", "-2")));
    EXPECT_TRUE(down.has(tag("rotation", "-1.5707963267948966")));
    EXPECT_TRUE(down.has(pointTag("dimLinePoint", "3,5")));
    EXPECT_TRUE(down.accounts.untold.contains({"DIMENSION", "that its text is seen from behind"}));
    EXPECT_TRUE(down.accounts.untold.contains({"DIMENSION", "a style that the drawing lacks"}));
}

TEST(DxfDimensions, MeasureTheArcOnTheSideOfTheirLine)
{
    const auto arc = [](const Groups& first, const Groups& second, const Groups& more) {
        return drawn({}, dimension("37",
                                   point(10, "5", "5") + Groups{{100, "AcDbArcDimension"}} + first + second +
                                       point(15, "0", "0") + more,
                                   "ARC_DIMENSION"));
    };
    const std::string quarter = R"("radius":4,"startAngle":0,"endAngle":1.5707963267948966)";
    const Groups right = point(13, "4", "0");
    EXPECT_NE(arc(right, point(14, "0", "4"), {}).head.find(quarter), std::string::npos);
    EXPECT_NE(arc(point(13, "0", "4"), point(14, "4", "0"), {}).head.find(quarter), std::string::npos);
    const Imported part = arc(right, point(14, "0", "4"), {{70, "1"}, {40, "0.5"}, {41, "1"}});
    EXPECT_NE(part.head.find(R"("startAngle":0.5,"endAngle":1)"), std::string::npos);
    EXPECT_TRUE(part.has(tag("isPartial", R"({"int":1})")));
    EXPECT_TRUE(part.accounts.untold.empty());
}

TEST(DxfDimensions, FindTheJogInWhicheverOrder)
{
    const Groups rest = point(10, "0", "0") + point(11, "8", "1") + Groups{{40, "45"}};
    const Groups orders[] = {point(13, "10", "0") + point(14, "5", "1") + point(15, "7", "2"),
                             point(15, "10", "0") + point(13, "5", "1") + point(14, "7", "2")};
    for (const Groups& points : orders) {
        const Imported result = entities(dimension("0", rest + points, "LARGE_RADIAL_DIMENSION"));
        EXPECT_NE(result.head.find(R"("chordPoint":[10,0,0])"), std::string::npos);
        EXPECT_TRUE(result.has(tag("Center location override X", "5")));
        EXPECT_TRUE(result.has(tag("Jog location X", "7")));
        EXPECT_TRUE(result.has(tag("Jog angle", "0.7853981633974483")));
    }
}

TEST(DxfDimensions, HaveVariablesByTheirStyle)
{
    const Imported result = drawn(
        {{70, "0"}, {3, "mm"}, {40, "0"},  {41, "3"},   {147, "-0.5"}, {69, "2"},   {70, "1"},  {78, "13"}, {79, "2"},
         {73, "0"}, {74, "1"}, {170, "1"}, {173, "1"},  {343, "B1"},   {344, "B2"}, {270, "6"}, {287, "4"}, {141, "-2"},
         {77, "9"}, {71, "0"}, {290, "1"}, {49, "2.5"}, {278, "44"},   {176, "0"},  {341, "0"}},
        {});
    for (const std::string& part : {
             tag("Linear Dimensions Prefix", R"("<>mm")"),
             item("FitScaleDimensionsAccordingToSheet", 0, "Yes"),
             tag("Arrow Size", "3"),
             tag("TextDimensionTextOffsetFromDimLine", "0.5"),
             item("TextDimensionTextFrameDimensionText", 0, "Yes"),
             item("ToleranceSettingsCalculation", 4, "Basic"),
             tag("TextDimensionTextFill", R"({"color":{"index":1}})"),
             item("Linear Dimensions Hide leading zeros", 0, "Yes"),
             item("Linear Dimensions Hide zeros feet", 1, "No"),
             item("Angular Hide leading zeros", 1, "No"),
             item("Angular Hide trailing zeros", 0, "Yes"),
             item("TextDimensionTextAlignmentUseISOStandard", 0, "Yes"),
             tag("Show dual dimensions", R"("Yes")"),
             item("Start arrow", 10, "Open30"),
             item("Leader arrow", 0, "ClosedFilled"),
             item("LinearDimensionsFormat", 4, "Architectural"),
             tag("FitDimensionsGeometryAutomatic", R"("Yes")"),
             item("FitTextAboveTheDimensionLineWithLeader", 0, "Yes"),
             tag("CenterMarkDisplay", "-2"),
             item("ExtLineDimensionsOffsetFixedLength", 0, "Yes"),
             tag("ExtLineDimensionsOffsetFixedLength_Length", "2.5"),
             tag("LinearDimensionsDecimalSeparator", R"(",")"),
             tag("LineDimensionsColor", R"({"color":"byblock"})"),
         })
        EXPECT_TRUE(result.has(part)) << part << "\n" << result.actions.at(0);
    // The place of the text and an arrow of its own.
    const auto untold = result.accounts.untold;
    const auto found = untold.find({"DIMSTYLE", "a setting of dimensions that no recording has"});
    ASSERT_NE(found, untold.end());
    EXPECT_EQ(found->second, 2);
    EXPECT_FALSE(result.has("End arrow"));
}

TEST(DxfDimensions, HaveVariablesInPlaceOfTheirStyles)
{
    const Groups style{{79, "2"}, {71, "1"}, {47, "0.1"}, {48, "0.2"}, {342, "B1"}};
    const auto withOwn = [&](const Groups& own) {
        return drawn(style, dimension("0", kLine + Groups{{1001, "ACAD"}, {1000, "DSTYLE"}, {1002, "{"}} + own +
                                               Groups{{1002, "}"}}));
    };
    const Imported zeros = withOwn({{1070, "78"}, {1070, "4"}});
    // The first of two is for angles, which have their style's.
    EXPECT_TRUE(zeros.has(item("Suppress leading zeros", 1, "No") + "," + item("Suppress trailing zeros", 0, "Yes") +
                          "," + item("Suppress leading zeros", 0, "Yes")));
    EXPECT_TRUE(zeros.accounts.untold.empty());
    EXPECT_TRUE(withOwn({{1070, "47"}, {1040, "0.2"}}).has(item("Tolerance display", 1, "Symmetrical")));
    EXPECT_TRUE(withOwn({{1070, "142"}, {1040, "2"}}).has(item("Arrow 1", 5, "Oblique")));
    EXPECT_TRUE(withOwn({{1070, "173"}, {1070, "0"}}).has(item("Arrow 2", 10, "Open30")));
    EXPECT_TRUE(
        withOwn({{1070, "3"}, {1000, "a<>"}}).has(tag("Dim prefix", R"("a")") + "," + tag("Dim suffix", R"("")")));

    const std::pair<std::string, std::string> others{"DIMENSION", "data of other applications"};
    EXPECT_TRUE(
        drawn(style,
              dimension(
                  "0",
                  kLine +
                      Groups{{1001, "ACAD"}, {1000, "DSTYLE"}, {1002, "{"}, {1002, "}"}, {1001, "OTHER"}, {1070, "1"}}))
            .accounts.untold.contains(others));
    EXPECT_TRUE(
        drawn(
            style,
            dimension(
                "0",
                kLine + Groups{{1001, "OTHER"}, {1000, "DSTYLE"}, {1002, "{"}, {1070, "41"}, {1040, "9"}, {1002, "}"}}))
            .accounts.untold.contains(others));
}

TEST(DxfDimensions, LeadWithAndWithoutArrows)
{
    const Groups way = point(10, "0", "0") + point(10, "1", "1");
    const auto leader = [&](const Groups& more) {
        return drawn({}, Groups{{0, "LEADER"}, {8, "0"}, {3, "Mine"}} + more);
    };
    EXPECT_TRUE(leader(way).has(item("Type", 2, "LineWithArrow") + "," + item("DimStyle", 0, "Mine")));
    EXPECT_TRUE(leader(Groups{{71, "0"}, {72, "1"}} + way).has(item("Type", 1, "SplineWithNoArrow")));
    EXPECT_TRUE(
        leader(way + Groups{{1001, "ACAD"}, {1000, "DSTYLE"}, {1002, "{"}, {1070, "41"}, {1040, "0.25"}, {1002, "}"}})
            .has(tag("Arrow size", R"("0.25")")));
    EXPECT_TRUE(leader(Groups{{73, "0"}} + way).accounts.untold.contains({"LEADER", "that something hangs on it"}));
    EXPECT_EQ(leader(point(10, "0", "0")).accounts.lost.size(), 1U);
}
