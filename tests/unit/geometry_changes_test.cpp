// Changes of curves and geometry: which statements a changed tag becomes. What a target makes of them is shown by the
// scenarios.

#include "TestChanges.h"

#include "objects/ChangeRows.h"
#include "objects/changed/changeLists.h"
#include "objects/entries.h"

#include <gtest/gtest.h>

#include <numbers>

using inkmacro::Target;

namespace {

CFxVariant choice(std::int32_t chosen)
{
    return CFxVariantCollection({item(0, "Yes"), item(1, "Quadratic")}, chosen);
}

TEST(GeometryChanges, NumberTheirLocals)
{
    EXPECT_EQ(changed("AcDbRay", {record("Second point X", 1.0), record("Base point Z", -2.0)}),
              " double X1;\n double Y1;\n double Z1;\n it1.GetBasePoint(out X1, out Y1, out Z1);\n"
              " Z1 = -2.00000000000000;\n it1.SetBasePoint(X1, Y1, Z1);\n"
              " double X2;\n double Y2;\n double Z2;\n it1.GetThroughPoint(out X2, out Y2, out Z2);\n"
              " X2 = 1.00000000000000;\n it1.SetThroughPoint(X2, Y2, Z2);\n");
}

TEST(GeometryChanges, SetTheRadiusForEverySizeOfACircle)
{
    constexpr double pi = std::numbers::pi;
    std::string four;
    for (int i = 0; i < 4; ++i)
        four += " it1.Radius = 2.00000000000000;\n";
    EXPECT_EQ(changed("AcDbCircle", {record("Radius", 2.0), record("Diameter", 4.0), record("Circumference", 4 * pi),
                                     record("Area", 4 * pi)}),
              four);
    EXPECT_EQ(changed("AcDbCircle", {record("Area", 0.0)}), " it1.Radius = 0.00000000000000;\n");
}

TEST(GeometryChanges, NeedANumberWhereAPropertyIsRepeated)
{
    for (const CFxVariant& none : {CFxVariant(), CFxVariant(-1)}) {
        EXPECT_EQ(changed("AcDb3dPolyline", {record("Vertex X", 1.0, none)}), "");
        EXPECT_EQ(changed("AcDbPolyline", {record("Start segment width", 1.0, none)}), "");
        EXPECT_EQ(changed("AcDbSolid", {record("Vertex Z", 1.0, none)}), "");
    }
    // A number that belongs to no repeated property does not count.
    EXPECT_EQ(changed("AcDbCircle", {record("Center Y", 2.5, 7)}), changed("AcDbCircle", {record("Center Y", 2.5)}));
}

TEST(GeometryChanges, CountTheVerticesOfSolidsAndFacesFromOne)
{
    const std::string first = " double X1;\n double Y1;\n double Z1;\n"
                              " it1.GetVertex1Coordinate(out X1, out Y1, out Z1);\n X1 = 5.00000000000000;\n"
                              " it1.SetVertex1Coordinate(X1, Y1, Z1);\n";
    for (const char* cls : {"AcDbSolid", "AcDbTrace", "AcDbFace"})
        EXPECT_EQ(changed(cls, {record("Vertex X", 5.0, 0)}), first);
    EXPECT_NE(changed("AcDbFace", {record("Vertex X", 5.0, 3)}), "");
    EXPECT_EQ(changed("AcDbFace", {record("Vertex X", 5.0, 4)}), "");
    EXPECT_EQ(changed("AcDbFace", {record("Edge 2", item(0, "VISIBLE"))}), " it1.Edge2Visible = true;\n");
}

TEST(GeometryChanges, ReadTheChosenWord)
{
    const auto closed = [](const CFxVariant& value) { return changed("AcDbPolyline", {record("Closed", value)}); };
    EXPECT_EQ(closed(choice(0)), " it1.Closed = true;\n");
    EXPECT_EQ(closed(choice(1)), " it1.Closed = false;\n");
    EXPECT_EQ(closed(item(1, "YES")), " it1.Closed = true;\n");
    EXPECT_EQ(closed(item(0, "No")), " it1.Closed = false;\n");
    EXPECT_EQ(closed(CFxString("Yes")), "");

    const auto smooth = [](const CFxVariant& value) {
        return changed("AcDb3dPolyline", {record("Fit/Smooth", value)}, Target::JavaScript);
    };
    EXPECT_EQ(smooth(choice(1)), " it1.put_FitSmooth(\"iwPolyLine3DFitSmooth_Qudratic\");\n");
    EXPECT_EQ(smooth(item(0, "cubic")), " it1.put_FitSmooth(\"iwPolyLine3DFitSmooth_Cubic\");\n");
    for (const CFxVariant& none : {choice(2), choice(-1), CFxVariant(CFxString("Cubic"))})
        EXPECT_EQ(smooth(none), "");
}

TEST(GeometryChanges, KnowTheTwoPointsOfALine)
{
    const std::string second = " double getX1;\n double getY1;\n double getZ1;\n"
                               " it1.GetSecondPoint(out getX1, out getY1, out getZ1);\n getZ1 = 4.00000000000000;\n"
                               " it1.SetSecondPoint(getX1, getY1, getZ1);\n";
    EXPECT_EQ(changed("AcDbLine", {record("End Z", 4.0)}), second);
    EXPECT_EQ(changed("AcDbXline", {record("Second point Z", 4.0)}), second);
}

TEST(GeometryChanges, OfALeaderTakeATextAsItStands)
{
    EXPECT_EQ(changed("AcDbLeader", {record("Text offset", CFxString("0,5"))}),
              " Inkwright.DimensionStyleUserData dimensionStyle1 = it1.GetDimensionStyleUserData();\n"
              " DimensionStyleTextOptions textOptions2 = dimensionStyle1.GetDimensionStyleTextOptions();\n"
              " textOptions2.OffsetFromDimensionLines = 0,5;\n");
}

TEST(GeometryChanges, OfAToleranceEscapeItsText)
{
    EXPECT_EQ(changed("AcDbFcf", {record("Content", CFxString("{\\Fgdt}\nA")), record("Dim style", item(0, "ISO-25"))}),
              " it1.DimensionStyle = \"ISO-25\";\n it1.Text = \"{\\\\Fgdt}\\nA\";\n");
}

TEST(GeometryChanges, AreThoseOfNoScenarioToo)
{
    EXPECT_EQ(changed("AcDbArc", {record("Radius", 1.0)}), " it1.Radius = 1.00000000000000;\n");
    EXPECT_EQ(
        changed("AcDbEllipse", {record("Minor radius", 1.0), record("Radius ratio", 2.0), record("Start angle", 3.0)}),
        " it1.MinorRadius = 1.00000000000000;\n it1.RadiusRatio = 2.00000000000000;\n"
        " it1.StartAngle = 3.00000000000000;\n");
    EXPECT_EQ(changed("AcDbFace", {record("Edge 3", item(1, "Hidden"))}), " it1.Edge3Visible = false;\n");
    EXPECT_EQ(changed("AcDbViewport", {record("Width", 1.0)}), " it1.Width = 1.00000000000000;\n");
}

/// What the reader of an added object leaves of its changes is left or written, as the class's row says.
TEST(GeometryChanges, OfAddedObjectsFollowTheirClass)
{
    for (const ClassRow& row : ClassTable()) {
        PropertyList list;
        if (row.changes.groups)
            for (const ChangeGroup& group : *row.changes.groups)
                for (const ChangeRows& rows : group)
                    for (const ChangeRow& change : rows.rows)
                        list.push_back(record(change.tag.text(), 1.0, 0));
        else if (row.changes.handler == &ConvertModifiedLine)
            for (const char* tag : {"Start X", "Start Y", "Start Z", "End X", "End Y", "End Z"})
                list.push_back(record(tag, 1.0, 0));
        if (list.empty())
            continue;
        const std::size_t all = list.size();
        TestTarget made(Target::CSharp);
        OdRxClass* const cls = oddbClassByName(row.name);
        made.conversion.names().RegisterObject(OdDbHandle(1), cls);
        Statement text;
        ConvertObjectChanges(made.conversion, cls, OdDbHandle(1), list, true, text);
        EXPECT_EQ(text.isEmpty(), !row.has(kSetWhenAdded)) << row.name;
        EXPECT_EQ(list.size(), row.has(kSetWhenAdded) ? 0 : all) << row.name;
        // A dimension is fetched for its general properties before it is known that there are none.
        if (!row.has(kSetWhenAdded)) {
            EXPECT_EQ(made.writer.UniqueCounter, row.has(kDimension) ? 1U : 0U) << row.name;
        }
    }
}

} // namespace
