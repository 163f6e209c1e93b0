// Changes of curves and geometry: which statements a changed tag becomes, and what a target makes of them.

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

TEST(GeometryChanges, ReadChangeAndWriteAPoint)
{
    const auto text = [](Target target) { return changed("AcDbCircle", {record("Center Y", 2.5)}, target); };
    EXPECT_EQ(text(Target::Cpp), " double X1;\n double Y1;\n double Z1;\n it1->GetCenter( &X1, &Y1, &Z1 );\n"
                                 " Y1 = 2.50000000000000;\n it1->SetCenter( X1, Y1, Z1 );\n");
    EXPECT_EQ(text(Target::CppCom), " double X1;\n double Y1;\n double Z1;\n it1->GetCenter( &X1, &Y1, &Z1 );\n"
                                    " Y1 = 2.50000000000000;\n it1->SetCenter( X1, Y1, Z1 );\n \n");
    EXPECT_EQ(text(Target::CSharp), " double X1;\n double Y1;\n double Z1;\n it1.GetCenter(out X1, out Y1, out Z1);\n"
                                    " Y1 = 2.50000000000000;\n it1.SetCenter(X1, Y1, Z1);\n");
    EXPECT_EQ(text(Target::JavaScript), " var points;\n points = it1.GetCenter();\n points.Y = 2.50000000000000;\n"
                                        " it1.SetCenter(points.X, points.Y, points.Z);\n");
    EXPECT_EQ(text(Target::VbNet), " Dim X1 As Double\n Dim Y1 As Double\n Dim Z1 As Double\n"
                                   " it1.GetCenter( X1, Y1, Z1 )\n Y1 = 2.50000000000000\n"
                                   " it1.SetCenter( X1, Y1, Z1 )\n");
    EXPECT_EQ(text(Target::Vba), " Dim X1 As Double\n Dim Y1 As Double\n Dim Z1 As Double\n"
                                 " it1.GetCenter X1, Y1, Z1 \n Y1 = 2.50000000000000\n"
                                 " it1.SetCenter X1, Y1, Z1 \n");
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
    const PropertyList list{record("Fit point Y", 1.0, 3)};
    EXPECT_EQ(changed("AcDbSpline", list, Target::Cpp),
              " double X1;\n double Y1;\n double Z1;\n bool bRetVal1 = false;\n"
              " it1->GetFitPointCoordinate( 3, &X1, &Y1, &Z1, &bRetVal1 );\n Y1 = 1.00000000000000;\n"
              " it1->SetFitPointCoordinate( 3, X1, Y1, Z1, &bRetVal1 );\n");
    EXPECT_EQ(changed("AcDbSpline", list, Target::JavaScript),
              " var points;\n points = it1.GetFitPointCoordinate( 3 );\n points.Y = 1.00000000000000;\n"
              " it1.SetFitPointCoordinate(3, points.X, points.Y, points.Z);\n");
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

    EXPECT_EQ(changed("AcDbViewport",
                      {record("On", item(0, "Yes")), record("Standard scale", item(0, "1:2")),
                       record("Shade print", item(0, "Hidden")), record("Custom scale", 0.5)},
                      Target::VbNet),
              " it1.CustomScale = 0.50000000000000\n it1.IsOn = True\n"
              " it1.ShadePrintStyle = Inkwright.iwViewportShadePrintStyle_e.iwViewportShadePrintStyle_Hidden\n"
              " it1.StandardScale = Inkwright.iwViewportStandardScale_e.iwViewportStandardScale_1_2\n");
}

TEST(GeometryChanges, KnowTheTwoPointsOfALine)
{
    const std::string second = " double getX1;\n double getY1;\n double getZ1;\n"
                               " it1.GetSecondPoint(out getX1, out getY1, out getZ1);\n getZ1 = 4.00000000000000;\n"
                               " it1.SetSecondPoint(getX1, getY1, getZ1);\n";
    EXPECT_EQ(changed("AcDbLine", {record("End Z", 4.0)}), second);
    EXPECT_EQ(changed("AcDbXline", {record("Second point Z", 4.0)}), second);
    EXPECT_EQ(changed("AcDbXline", {record("Base point X", 4.0)}, Target::JavaScript),
              " var get = it1.GetFirstPoint();\n get.X = 4.00000000000000;\n"
              " it1.SetFirstPoint(get.X, get.Y, get.Z);\n");
    EXPECT_EQ(changed("AcDbPoint", {record("Position X", 4.0)}, Target::Vba),
              " Dim getX1 As Double\n Dim getY1 As Double\n Dim getZ1 As Double\n"
              " it1.GetPosition getX1, getY1, getZ1\n getX1 = 4.00000000000000\n"
              " it1.SetPosition getX1, getY1, getZ1\n");
}

TEST(GeometryChanges, KeepTheFaultsOfVertices)
{
    EXPECT_EQ(changed("AcDbLeader", {record("Vertex y", 4.0, 2)}, Target::JavaScript),
              " double X;\n double Y;\n double Z;\n it1.GetVertexCoordinate(2, out X, out Y, out Z);\n"
              " Y = 4.00000000000000;\n it1.SetVertexCoordinate(2, X, Y, Z);\n");
    const PropertyList list{record("Vertex Y", 4.0, 2), record("End segment width", 0.5, 1)};
    EXPECT_EQ(changed("AcDbPolyline", list, Target::Cpp),
              " bool bRetVal1 = false;\n it1->SetSegmentEndWidth( 1, 0.50000000000000, &bRetVal1 );\n"
              " double X;\n double Y;\n bool retVal = false;\n it1->GetVertexCoordinate( 2, &X, &Y );\n"
              " Y = 4.00000000000000;\n it1->SetVertexCoordinate( 2, X, Y, &retVal );\n");
    EXPECT_EQ(changed("AcDbPolyline", list), " it1.SetSegmentEndWidth( 1, 0.50000000000000 );\n"
                                             " double X1;\n double Y1;\n it1.GetVertexCoordinate(2, out X1, out Y1);\n"
                                             " Y1 = 4.00000000000000;\n it1.SetVertexCoordinate(2, X1, Y1);\n");
}

TEST(GeometryChanges, FetchOptionsForEachTag)
{
    const PropertyList list{record("DimLine LWeight", 25), record("Arrow", item(3, "Dot")),
                            record("Type", item(2, "?")), record("DimScale overall", 2.0)};
    EXPECT_EQ(changed("AcDbLeader", list),
              " it1.Type = iwLeaderType_e.iwLeaderType_LineWithArrow;\n"
              " Inkwright.DimensionStyleUserData dimensionStyle1 = it1.GetDimensionStyleUserData();\n"
              " DimensionStyleArrowsOptions arrowOptions2 = dimensionStyle1.GetDimensionStyleArrowsOptions();\n"
              " arrowOptions2.SetLeaderArrow( iwDimensionArrowType_e.iwDimensionArrowType_Dot, \"\" );\n"
              " Inkwright.DimensionStyleUserData dimensionStyle3 = it1.GetDimensionStyleUserData();\n"
              " DimensionStyleLineOptions linesOptions4 = dimensionStyle3.GetDimensionStyleLineOptions();\n"
              " linesOptions4.DimensionLineLineWeight = iwLineWeight_e.iwLnWt_025;\n"
              " Inkwright.DimensionStyleUserData dimensionStyle5 = it1.GetDimensionStyleUserData();\n"
              " DimensionStyleFitOptions fitOptions6 = dimensionStyle5.GetDimensionStyleFitOptions();\n"
              " fitOptions6.SetDimensionScale( iwDimensionScale_e.iwDimensionScale_UseScaleFactor, "
              "2.00000000000000 );\n");
    EXPECT_EQ(changed("AcDbLeader", {record("Text offset", CFxString("0,5"))}, Target::Cpp),
              " iwDimensionStyleUserData_ptr dimensionStyle1;\n it1->GetDimensionStyleUserData( &dimensionStyle1 );\n"
              " iwDimensionStyleTextOptions_ptr textOptions2;\n"
              " dimensionStyle1->GetDimensionStyleTextOptions( &textOptions2 );\n"
              " textOptions2->put_OffsetFromDimensionLines( 0,5 );\n");
    EXPECT_EQ(changed("AcDbFcf", {record("Content", CFxString("{\\Fgdt}\nA")), record("Dim style", item(0, "ISO-25"))}),
              " it1.DimensionStyle = \"ISO-25\";\n it1.Text = \"{\\\\Fgdt}\\nA\";\n");
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
