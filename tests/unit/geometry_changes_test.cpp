// Changes of curves and geometry: which statements a changed tag becomes, and what a target makes of them.

#include "TestActions.h"
#include "TestTarget.h"

#include <gtest/gtest.h>

#include <numbers>

using inkmacro::Target;

namespace {

using Objects = CFxConverterIWAPIObject;
using Handler = std::int32_t (Objects::*)(PropertyList& list, bool fromAdded, const CFxString& name, QString& text);

CFxPropertyChangedPtr record(const char* tag, const CFxVariant& value, const CFxVariant& index = {})
{
    return odrxNew<TestProperty>(tag, value, CFxString(), index);
}

CFxVariantCollectionElement item(std::int32_t number, const char* text)
{
    return {number, CFxString(text)};
}

CFxVariant choice(std::int32_t chosen)
{
    return CFxVariantCollection({item(0, "Yes"), item(1, "Quadratic")}, chosen);
}

/// What the handler makes of the records of the object "it1", which it must have taken all.
std::string changed(Handler handler, PropertyList list, Target target = Target::CSharp)
{
    TestTarget made(target);
    QString text;
    EXPECT_EQ((made.objects.*handler)(list, false, "it1", text), kFxSuccess);
    EXPECT_TRUE(list.empty());
    return text.toStdString();
}

TEST(GeometryChanges, ReadChangeAndWriteAPoint)
{
    const auto text = [](Target target) {
        return changed(&Objects::ConvertModifiedCircle, {record("Center Y", 2.5)}, target);
    };
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
    EXPECT_EQ(changed(&Objects::ConvertModifiedRay, {record("Second point X", 1.0), record("Base point Z", -2.0)}),
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
    EXPECT_EQ(changed(&Objects::ConvertModifiedCircle, {record("Radius", 2.0), record("Diameter", 4.0),
                                                        record("Circumference", 4 * pi), record("Area", 4 * pi)}),
              four);
    EXPECT_EQ(changed(&Objects::ConvertModifiedCircle, {record("Area", 0.0)}), " it1.Radius = 0.00000000000000;\n");
}

TEST(GeometryChanges, NeedANumberWhereAPropertyIsRepeated)
{
    for (const CFxVariant& none : {CFxVariant(), CFxVariant(-1)}) {
        EXPECT_EQ(changed(&Objects::ConvertModifiedPolyline3D, {record("Vertex X", 1.0, none)}), "");
        EXPECT_EQ(changed(&Objects::ConvertModifiedPolyline, {record("Start segment width", 1.0, none)}), "");
        EXPECT_EQ(changed(&Objects::ConvertModifiedSolid, {record("Vertex Z", 1.0, none)}), "");
    }
    const PropertyList list{record("Fit point Y", 1.0, 3)};
    EXPECT_EQ(changed(&Objects::ConvertModifiedSpline, list, Target::Cpp),
              " double X1;\n double Y1;\n double Z1;\n bool bRetVal1 = false;\n"
              " it1->GetFitPointCoordinate( 3, &X1, &Y1, &Z1, &bRetVal1 );\n Y1 = 1.00000000000000;\n"
              " it1->SetFitPointCoordinate( 3, X1, Y1, Z1, &bRetVal1 );\n");
    EXPECT_EQ(changed(&Objects::ConvertModifiedSpline, list, Target::JavaScript),
              " var points;\n points = it1.GetFitPointCoordinate( 3 );\n points.Y = 1.00000000000000;\n"
              " it1.SetFitPointCoordinate(3, points.X, points.Y, points.Z);\n");
    // A number that belongs to no repeated property does not count.
    EXPECT_EQ(changed(&Objects::ConvertModifiedCircle, {record("Center Y", 2.5, 7)}),
              changed(&Objects::ConvertModifiedCircle, {record("Center Y", 2.5)}));
}

TEST(GeometryChanges, CountTheVerticesOfSolidsAndFacesFromOne)
{
    const std::string first = " double X1;\n double Y1;\n double Z1;\n"
                              " it1.GetVertex1Coordinate(out X1, out Y1, out Z1);\n X1 = 5.00000000000000;\n"
                              " it1.SetVertex1Coordinate(X1, Y1, Z1);\n";
    for (const Handler handler :
         {&Objects::ConvertModifiedSolid, &Objects::ConvertModifiedTrace, &Objects::ConvertModifiedFace})
        EXPECT_EQ(changed(handler, {record("Vertex X", 5.0, 0)}), first);
    EXPECT_NE(changed(&Objects::ConvertModifiedFace, {record("Vertex X", 5.0, 3)}), "");
    EXPECT_EQ(changed(&Objects::ConvertModifiedFace, {record("Vertex X", 5.0, 4)}), "");
    EXPECT_EQ(changed(&Objects::ConvertModifiedFace, {record("Edge 2", item(0, "VISIBLE"))}),
              " it1.Edge2Visible = true;\n");
}

TEST(GeometryChanges, ReadTheChosenWord)
{
    const auto closed = [](const CFxVariant& value) {
        return changed(&Objects::ConvertModifiedPolyline, {record("Closed", value)});
    };
    EXPECT_EQ(closed(choice(0)), " it1.Closed = true;\n");
    EXPECT_EQ(closed(choice(1)), " it1.Closed = false;\n");
    EXPECT_EQ(closed(item(1, "YES")), " it1.Closed = true;\n");
    EXPECT_EQ(closed(item(0, "No")), " it1.Closed = false;\n");
    EXPECT_EQ(closed(CFxString("Yes")), "");

    const auto smooth = [](const CFxVariant& value) {
        return changed(&Objects::ConvertModifiedPolyline3D, {record("Fit/Smooth", value)}, Target::JavaScript);
    };
    EXPECT_EQ(smooth(choice(1)), " it1.put_FitSmooth( \"iwPolyLine3DFitSmooth_Qudratic\" );\n");
    EXPECT_EQ(smooth(item(0, "cubic")), " it1.put_FitSmooth( \"iwPolyLine3DFitSmooth_Cubic\" );\n");
    for (const CFxVariant& none : {choice(2), choice(-1), CFxVariant(CFxString("Cubic"))})
        EXPECT_EQ(smooth(none), "");

    EXPECT_EQ(changed(&Objects::ConvertModifiedViewport,
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
    EXPECT_EQ(changed(&Objects::ConvertModifiedLine, {record("End Z", 4.0)}), second);
    EXPECT_EQ(changed(&Objects::ConvertModifiedInfiniteLine, {record("Second point Z", 4.0)}), second);
    EXPECT_EQ(changed(&Objects::ConvertModifiedInfiniteLine, {record("Base point X", 4.0)}, Target::JavaScript),
              " var get = it1.GetFirstPoint();\n get.X = 4.00000000000000;\n"
              " it1.SetFirstPoint(get.X, get.Y, get.Z);\n");
    EXPECT_EQ(changed(&Objects::ConvertModifiedPoint, {record("Position X", 4.0)}, Target::Vba),
              " Dim getX1 As Double\n Dim getY1 As Double\n Dim getZ1 As Double\n"
              " it1.GetPosition getX1, getY1, getZ1\n getX1 = 4.00000000000000\n"
              " it1.SetPosition getX1, getY1, getZ1\n");
}

TEST(GeometryChanges, KeepTheFaultsOfVertices)
{
    EXPECT_EQ(changed(&Objects::ConvertModifiedLeader, {record("Vertex y", 4.0, 2)}, Target::JavaScript),
              " double X;\n double Y;\n double Z;\n it1.GetVertexCoordinate(2, out X, out Y, out Z);\n"
              " Y = 4.00000000000000;\n it1.SetVertexCoordinate(2, X, Y, Z);\n");
    const PropertyList list{record("Vertex Y", 4.0, 2), record("End segment width", 0.5, 1)};
    EXPECT_EQ(changed(&Objects::ConvertModifiedPolyline, list, Target::Cpp),
              " bool bRetVal1 = false;\n it1->SetSegmentEndWidth( 1, 0.50000000000000, &bRetVal1 );\n"
              " double X;\n double Y;\n bool retVal = false;\n it1->GetVertexCoordinate( 2, &X, &Y );\n"
              " Y = 4.00000000000000;\n it1->SetVertexCoordinate( 2, X, Y, &retVal );\n");
    EXPECT_EQ(changed(&Objects::ConvertModifiedPolyline, list),
              " it1.SetSegmentEndWidth( 1, 0.50000000000000 );\n"
              " double X1;\n double Y1;\n it1.GetVertexCoordinate(2, out X1, out Y1);\n"
              " Y1 = 4.00000000000000;\n it1.SetVertexCoordinate(2, X1, Y1);\n");
}

TEST(GeometryChanges, FetchOptionsForEachTag)
{
    const PropertyList list{record("DimLine LWeight", 25), record("Arrow", item(3, "Dot")),
                            record("Type", item(2, "?")), record("DimScale overall", 2.0)};
    EXPECT_EQ(changed(&Objects::ConvertModifiedLeader, list),
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
    EXPECT_EQ(changed(&Objects::ConvertModifiedLeader, {record("Text offset", CFxString("0,5"))}, Target::Cpp),
              " iwDimensionStyleUserData_ptr dimensionStyle1;\n it1->GetDimensionStyleUserData( &dimensionStyle1 );\n"
              " iwDimensionStyleTextOptions_ptr textOptions2;\n"
              " dimensionStyle1->GetDimensionStyleTextOptions( &textOptions2 );\n"
              " textOptions2->put_OffsetFromDimensionLines( 0,5 );\n");
    EXPECT_EQ(changed(&Objects::ConvertModifiedTolerance,
                      {record("Content", CFxString("{\\Fgdt}\nA")), record("Dim style", item(0, "ISO-25"))}),
              " it1.DimensionStyle = \"ISO-25\";\n it1.Text = \"{\\\\Fgdt}\\nA\";\n");
}

/// With the tags of an added object the handlers only clear the list.
TEST(GeometryChanges, AreNotWrittenForAddedObjects)
{
    const std::vector<std::pair<Handler, std::vector<const char*>>> handlers{
        {&Objects::ConvertModifiedCircle, {"Radius", "Area", "Center X", "Center Y", "Center Z", "Circumference"}},
        {&Objects::ConvertModifiedPoint, {"Position X", "Position Y", "Position Z"}},
        {&Objects::ConvertModifiedRay, {"Base point X", "Second point Z"}},
        {&Objects::ConvertModifiedArc, {"Center X", "End Angle", "Radius", "Start Angle"}},
        {&Objects::ConvertModifiedInfiniteLine, {"Base point Y", "Second point X"}},
        {&Objects::ConvertModifiedEllipse,
         {"Center Z", "End angle", "Major radius", "Minor radius", "Radius ratio", "Start angle"}},
        {&Objects::ConvertModifiedPolyline3D, {"Vertex X", "Vertex Y", "Vertex Z", "Fit/Smooth", "Closed"}},
        {&Objects::ConvertModifiedPolyline,
         {"Elevation", "Global width", "Start segment width", "End segment width", "Vertex X", "Vertex Y", "Closed",
          "LineStyleGen"}},
        {&Objects::ConvertModifiedSpline, {"Control point X", "Fit point Y", "Fit tolerance"}},
        {&Objects::ConvertModifiedPolygonMesh,
         {"Vertex Z", "M closed", "M density", "N density", "N closed", "Fit/Smooth"}},
        {&Objects::ConvertModifiedPolyFaceMesh, {"Vertex X", "Vertex Y", "Vertex Z"}},
        {&Objects::ConvertModifiedSolid, {"Vertex X", "Vertex Y", "Vertex Z"}},
        {&Objects::ConvertModifiedTrace, {"Vertex X", "Vertex Y", "Vertex Z"}},
        {&Objects::ConvertModifiedFace, {"Edge 1", "Edge 2", "Edge 3", "Edge 4", "Vertex X"}},
        {&Objects::ConvertModifiedRichLine, {"RLine justification", "RLine scale"}},
        {&Objects::ConvertModifiedShape, {"Position X", "Obliquing", "Rotation", "Size", "Width factor"}},
        {&Objects::ConvertModifiedEmbeddedObject, {"Height", "Position Z", "Width", "Print quality"}},
        {&Objects::ConvertModifiedLeader,
         {"Vertex x", "Vertex y", "Vertex z", "DimStyle", "Type", "Arrow", "Arrow size", "DimLine LColor",
          "DimLine LWeight", "Text offset", "DimScale overall"}},
        {&Objects::ConvertModifiedTolerance,
         {"Position Y", "Dim scale overall", "Dim style", "DimLine LColor", "TextStyle", "Text height", "TextColor",
          "Content"}},
        {&Objects::ConvertModifiedViewport,
         {"Center X", "Height", "Width", "CCS per viewport", "Custom scale", "Display locked", "On", "Shade print",
          "Standard scale"}},
        {&Objects::ConvertModifiedLine, {"Start X", "Start Y", "Start Z", "End X", "End Y", "End Z"}},
    };
    TestTarget made(Target::CSharp);
    QString text = "before\n";
    for (const auto& [handler, tags] : handlers) {
        EXPECT_EQ(text, "before\n");
        PropertyList list;
        for (const char* tag : tags)
            list.push_back(record(tag, 1.0, 0));
        EXPECT_EQ((made.objects.*handler)(list, true, "it1", text), kFxSuccess);
        EXPECT_TRUE(list.empty()) << tags.front() << ", left: " << list.size();
    }
    EXPECT_EQ(text, "") << "the line's handler empties the text";
    EXPECT_EQ(made.writer.UniqueCounter, 0U);
}

} // namespace
