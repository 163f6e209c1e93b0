// Hatches: which way of insertion an action asks for, what becomes of the objects of a boundary, and the settings of a
// hatch that exists. And the backgrounds of views.

#include "TestActions.h"
#include "TestDrawing.h"
#include "TestTarget.h"

#include "module/walk.h"
#include "objects/changed/changeLists.h"
#include "objects/targets/points.h"
#include "objects/targets/viewBackgrounds.h"
#include "statements/counters.h"

#include <limits>

using inkmacro::Target;

namespace {

using Points2d = OdArray<OdGePoint2d>;
using Ids = OdArray<OdDbObjectId>;

const Points2d triangle{{0, 0}, {4, 0}, {4, 3}};

/// The data of an action up to the marks of the four ways: internal points, entities, bulges, gradient.
TestData head(bool internalPoints, bool entities, bool bulges, bool gradient)
{
    return {CFxString("ANSI31"), 2.0, 0.5, internalPoints, entities, bulges, gradient};
}

TestData operator+(TestData data, const TestData& more)
{
    data.insert(data.end(), more.begin(), more.end());
    return data;
}

const TestData gradient{OdCmColor::byIndex(1), OdCmColor::byRgb(1, 2, 3), true, 0.25};

/// A line and a spline that the macro knows (1A and 1B), and others that it does not. The numbers of temporary entities
/// begin anew.
class Hatches : public testing::Test
{
protected:
    Hatches()
    {
        processCounters = {};
        for (const auto& [handle, cls] : {std::pair{0x1a, "AcDbLine"}, {0x1b, "AcDbSpline"}})
            drawing.add(static_cast<std::uint64_t>(handle), cls);
        drawing.add(0x20, "AcDbCircle", {{"radius", 1.5}});
        drawing.add(0x21, "AcDbLine", {{"isErased", true}});
        drawing.add(0x22, "AcDbText");
    }

    /// What the action makes of the hatch "h".
    std::string inserted(Target target, const TestData& data, std::int32_t expectedStatus = kFxSuccess)
    {
        TestTarget made(target);
        for (const auto& [handle, cls] : {std::pair{0x1a, "AcDbLine"}, {0x1b, "AcDbSpline"}}) {
            Statement ignored;
            made.conversion.names().RegisterObject(OdDbHandle(static_cast<std::uint64_t>(handle)),
                                                   oddbClassByName(cls));
            ConvertAction(made.conversion, odrxNew<TestAdded>(cls, static_cast<std::uint64_t>(handle)), ignored);
        }
        made.writer.UniqueCounter = 0;
        Statement text("h");
        EXPECT_EQ(ConvertAction(made.conversion, odrxNew<TestCustom>(18, data), text), expectedStatus);
        return text.toStdString();
    }
    std::string byEntities(Target target, const std::vector<std::uint64_t>& handles, bool erase = true)
    {
        Ids ids;
        for (const std::uint64_t handle : handles)
            ids.append(drawing.id(handle));
        return inserted(target, head(false, true, false, false) + TestData{ids, erase});
    }

    TestDrawing drawing;
};

TEST_F(Hatches, AreInsertedInTheFirstWayThatIsMarked)
{
    const TestData internal = head(true, true, true, true) + TestData{triangle} + gradient;
    EXPECT_EQ(inserted(Target::CSharp, internal),
              " h = iwSketchManager.InsertHatchByInternalPoints(\n"
              "  new double[]{0.00000000000000,0.00000000000000,4.00000000000000,0.00000000000000,"
              "4.00000000000000,3.00000000000000}, \n"
              "  \"ANSI31\", \n  2.00000000000000, \n  0.50000000000000 );\n"
              "\n HatchPattern hatchPattern1 = h.GetHatchPattern();\n"
              " hatchPattern1.SetGradientData( iwApp.GetColorByIndex( 1 ), iwApp.GetRGBColor( 1 ,2 ,3 ), true, "
              "0.25000000000000);\n");
    const TestData entities = head(false, true, true, true) + TestData{Ids{drawing.id(0x1a)}, true} + gradient;
    EXPECT_EQ(inserted(Target::JavaScript, entities),
              " var iwEntities = new Array(1);\n iwEntities[0] = line1;\n"
              " h = mSkMgr.InsertHatchByEntities(iwEntities, \"ANSI31\", 2.00000000000000, 0.50000000000000);\n"
              "\n var hatchPattern1 = h.GetHatchPattern();\n"
              " hatchPattern1.SetGradientData( mApp.GetColorByIndex(1), mApp.GetRGBColor(1 ,2 ,3), true, "
              "0.25000000000000);\n");
}

TEST_F(Hatches, BendSegmentsBeyondATolerance)
{
    const auto bent = [&](const OdArray<double>& bulges, bool erase) {
        return inserted(Target::VbNet, head(false, false, true, false) + TestData{bulges, triangle, erase});
    };
    const std::string text = bent({1e-10, 1.0000001e-10, -1e-10, -1.0}, false);
    EXPECT_EQ(text.find(".SetSegmentAngle( 0,"), std::string::npos);
    EXPECT_NE(text.find(" hatch_Polyline_0.SetSegmentAngle( 1, 4e-10 )\n"), std::string::npos);
    EXPECT_EQ(text.find(".SetSegmentAngle( 2,"), std::string::npos);
    EXPECT_NE(text.find(" hatch_Polyline_0.SetSegmentAngle( 3, -3.14159 )\n"), std::string::npos);
    EXPECT_EQ(text.find("Erased"), std::string::npos);
    // The next polyline has the next number, in whatever conversion it stands.
    const std::string next = bent({}, true);
    EXPECT_TRUE(next.ends_with("\n hatch_Polyline_1.Erased = True\n")) << next;
}

TEST_F(Hatches, OfLoopsRepeatTheFirstPointAndKeepTheirCounts)
{
    const auto loops = [&](const OdArray<int>& counts, const Points2d& points, bool hasGradient,
                           std::int32_t status = kFxSuccess) {
        return inserted(Target::CSharp, head(false, false, false, hasGradient) + TestData{counts, points} + gradient,
                        status);
    };
    EXPECT_NE(loops({3}, triangle, false)
                  .find(" new int[]{3}, \n  new double[]{0.00000000000000,0.00000000000000,4.00000000000000,"
                        "0.00000000000000,4.00000000000000,3.00000000000000,0.00000000000000,0.00000000000000}, \n"),
              std::string::npos);
    // Without a count the hatch is lost, and its name with it; a gradient is written all the same.
    EXPECT_EQ(loops({}, triangle, false), "");
    EXPECT_EQ(loops({}, triangle, true).substr(0, 45), "\n HatchPattern hatchPattern1 = h.GetHatchPatt");
    EXPECT_EQ(loops({3}, {}, false, kFxFailure), "");
    EXPECT_EQ(inserted(Target::CSharp, {CFxString("ANSI31")}, kFxFailure), "");
}

TEST_F(Hatches, MakeTheObjectsThatTheMacroDoesNotKnow)
{
    EXPECT_EQ(byEntities(Target::VbNet, {0x1b, 0x20, 0x1a, 0x20, 0x22, 0x21}),
              " Dim hatchCircle_0 As Inkwright.Circle\n"
              " hatchCircle_0 = iwSketchManager.InsertCircle( 0.00000000000000, 0.00000000000000, 0.00000000000000, "
              "1.50000000000000 )\n"
              " Dim hatchLine_0 As Inkwright.Line\n"
              " hatchLine_0 = iwSketchManager.InsertLine( 0.00000000000000, 0.00000000000000, 0.00000000000000, "
              "0.00000000000000, 0.00000000000000, 0.00000000000000 )\n"
              " Dim iwEntities As DispatchWrapper() = New DispatchWrapper(2) {}\n"
              " iwEntities(0) = New DispatchWrapper(hatchCircle_0)\n"
              " iwEntities(1) = New DispatchWrapper(line1)\n"
              " iwEntities(2) = New DispatchWrapper(hatchLine_0)\n\n"
              " h = iwSketchManager.InsertHatchByEntities( iwEntities, \"ANSI31\", 2.00000000000000, "
              "0.50000000000000 )\n"
              " hatchCircle_0.Erased = true\n hatchLine_0.Erased = true\n\n");
    // The numbers go on, and what the macro knows is never erased.
    const std::string kept = byEntities(Target::VbNet, {0x20, 0x1a}, false);
    EXPECT_NE(kept.find("New DispatchWrapper(hatchCircle_1)"), std::string::npos);
    EXPECT_EQ(kept.find("Erased"), std::string::npos);
    EXPECT_EQ(byEntities(Target::VbNet, {0x1a}).find("\n\n"), std::string::npos);
    // Each target counts for itself.
    EXPECT_NE(byEntities(Target::Vba, {0x20}).find(" Set iwEntities(0) = hatchCircle_0\n"), std::string::npos);
    EXPECT_NE(byEntities(Target::Vba, {0x1b, 0x22}).find(" Dim iwEntities(-1) As Object\n"), std::string::npos);
}

TEST_F(Hatches, OfMissingObjectsFail)
{
    const TestData missing = head(false, true, false, false) + TestData{Ids{drawing.id(0x99)}, true};
    EXPECT_EQ(inserted(Target::CSharp, missing, kFxFailure), "");
    const TestData null = head(false, true, false, false) + TestData{Ids{OdDbObjectId()}, true};
    EXPECT_EQ(inserted(Target::CSharp, null, kFxFailure), "");
    // They are missed at their turn: what stands ahead of them has used up its number.
    const TestData behind = head(false, true, false, false) + TestData{Ids{drawing.id(0x20), drawing.id(0x99)}, true};
    EXPECT_EQ(inserted(Target::CSharp, behind, kFxFailure), "");
    EXPECT_NE(byEntities(Target::CSharp, {0x20}).find("Circle hatchCircle_1 = "), std::string::npos);
}

TEST_F(Hatches, AreNotMadeByAnActionThatFails)
{
    const auto madeBy = [](const TestData& data, std::int32_t status) {
        TestTarget made(Target::CSharp);
        Statement text("h");
        EXPECT_EQ(ConvertAction(made.conversion, odrxNew<TestCustom>(18, data), text), status);
        return made.conversion.insertedHatches.contains("h");
    };
    const TestData internal = head(true, false, false, true) + TestData{triangle};
    EXPECT_TRUE(madeBy(internal + gradient, kFxSuccess));
    EXPECT_FALSE(madeBy(internal, kFxFailure));
}

TEST_F(Hatches, EraseRegionsByTheNumberOfTables)
{
    drawing.add(0x30, "AcDbRegion", {{"pieces", Ids{drawing.id(0x20), drawing.id(0x1b)}}});
    drawing.add(0x31, "AcDbTable");
    const auto erasure = [&](Target target) {
        const std::string text = byEntities(target, {0x31, 0x30});
        return text.substr(text.find("hatchTable_0", text.find("InsertHatchByEntities")));
    };
    EXPECT_EQ(erasure(Target::Cpp), "hatchTable_0->put_Erased( true );\n hatchRegion_1->put_Erased( true );\n\n");
    EXPECT_EQ(erasure(Target::CppCom), "hatchTable_0->put_Erased( true );\n hatchRegion_0->put_Erased( true );\n\n");
    EXPECT_EQ(erasure(Target::CSharp), "hatchTable_0.Erased = true;\n hatchRegion_1.Erased = true;\n\n");
    EXPECT_EQ(erasure(Target::VbNet), "hatchTable_0.Erased = true\n hatchRegion_0.Erased = true\n\n");
    EXPECT_EQ(erasure(Target::Vba),
              "hatchTable_0.Erased = True\n Dim regionObj0 As Variant\n Dim iwRegion0 As Inkwright.Region\n"
              " Set regionObj0 = hatchRegion_0(0)\n Set iwRegion = regionObj\n iwRegion.Erased = True\n\n");
    // The piece that is no curve of a known kind is left out.
    const std::string script = byEntities(Target::JavaScript, {0x31, 0x30});
    EXPECT_NE(script.find(" iwEntities_1[0] = circle_0; var regionArray_1"), std::string::npos) << script;
    EXPECT_TRUE(script.ends_with("\n%hatchTable_\n.put_Erased(true);  hatchRegion_1.put_Erased(true);\n\n")) << script;
}

/// What a changed hatch "h" becomes.
std::string changed(Target target, const PropertyList& records)
{
    TestTarget made(target);
    PropertyList list = records;
    Statement text;
    ConvertModifiedHatch(made.conversion, {oddbClassByName("AcDbHatch"), {}, "h"}, list, text);
    return text.toStdString();
}

CFxPropertyChangedPtr record(const char* tag, const CFxVariant& value)
{
    return odrxNew<TestProperty>(tag, value);
}

CFxVariant item(const char* text)
{
    return CFxVariantCollectionElement(0, CFxString(text));
}

CFxVariant choice(std::int32_t chosen)
{
    return CFxVariantCollection({{0, CFxString("Yes")}, {1, CFxString("Outer")}, {2, CFxString("Custom")}}, chosen);
}

bool holds(const std::string& text, const char* part)
{
    return text.find(part) != std::string::npos;
}

TEST(ChangedHatches, TakeTheTypeOfAPatternByPlainWords)
{
    struct Row
    {
        const char* word;
        TestTexts types;
    };
    const char* const basicUser = "Inkwright.iwHatchPatternType_e.iwHatchPatternType_UserDefined";
    const char* const basicCustom = "Inkwright.iwHatchPatternType_e.iwHatchPatternType_Custom";
    const char* const user = "iwHatchPatternType_UserDefined";
    const char* const predefined = "iwHatchPatternType_Predefined";
    const char* const custom = "iwHatchPatternType_Custom";
    const char* const sharpUser = "iwHatchPatternType_e.iwHatchPatternType_UserDefined";
    const Row rows[] = {
        {"PREDEFINED", {predefined, predefined, sharpUser, predefined, basicUser, basicUser}},
        {"custom",
         {custom, custom, "iwHatchPatternType_e.iwHatchPatternType_Custom", custom, basicCustom, basicCustom}},
        {"Inkwright.iwHatchPatternType_e.Predefined", {user, user, sharpUser, user, basicUser, basicUser}},
    };
    for (const Row& row : rows)
        for (const Target target : allTargets) {
            const bool script = target == Target::JavaScript;
            const std::string text =
                std::string("HatchPatternType = ") + (script ? "\"" : "") + row.types.in(target) + (script ? "\"" : "");
            const std::string made = changed(target, {record("Type", item(row.word))});
            EXPECT_TRUE(holds(made, (text + (isBasic(target) ? "\n" : ";\n")).c_str())) << text << '\n' << made;
        }
}

TEST(ChangedHatches, TellInnerRegionsByNumberOrWord)
{
    const auto way = [](const CFxVariant& value) {
        const std::string text = changed(Target::Cpp, {record("Internal region detection", value)});
        const std::size_t from = text.find("Detection_") + 10;
        return text.substr(from, text.find(' ', from) - from);
    };
    EXPECT_EQ(way(choice(0)), "Normal");
    EXPECT_EQ(way(choice(1)), "Outer");
    EXPECT_EQ(way(choice(2)), "Ignore");
    for (const std::int32_t chosen : {-1, 3, std::numeric_limits<std::int32_t>::max()})
        EXPECT_EQ(way(choice(chosen)), "Normal") << chosen;
    EXPECT_EQ(way(item("OUTER")), "Outer");
    EXPECT_EQ(way(CFxString("ignore")), "Ignore");
    EXPECT_EQ(way(CFxString("?")), "Normal");
    EXPECT_EQ(way(1.0), "Normal");
}

TEST(ChangedHatches, LoseAngleAndMarkOfTheirGradientInCpp)
{
    const PropertyList list{record("Color 2", OdCmColor::byBlock()), record("Color 1", OdCmColor::byIndex(7)),
                            record("Centered", choice(0)), record("Gradient Angle", 0.5)};
    EXPECT_EQ(changed(Target::Cpp, list),
              " iwHatchPattern_ptr iwHatchPattern;\n h->GetHatchPattern( &iwHatchPattern );\n"
              "\n iwColor_ptr color1;\n iwColor_ptr color2;\n bool bCentered;\n double gradientAngle;\n\n"
              " iwHatchPattern->GetGradientData( &color1, &color2, &bCentered, &gradientAngle);\n"
              " m_pIwApp->GetColorByIndex( 7, &color1 ); m_pIwApp->GetRGBColor( 0 ,0 ,0, &color2 );"
              " gradientAngle = \n; bCentered = \n;"
              "\n iwHatchPattern->SetGradientData(color1, color2, bCentered, gradientAngle);\n");
    // The word counts as it stands.
    EXPECT_TRUE(holds(changed(Target::VbNet, {record("Centered", item("Yes"))}), " bCentered = True\n"));
    EXPECT_TRUE(holds(changed(Target::VbNet, {record("Centered", item("YES"))}), " bCentered = False\n"));
    EXPECT_TRUE(holds(changed(Target::VbNet, {record("Centered", choice(9))}), " bCentered = False\n"));
}

TEST(ChangedHatches, WriteNothingWithoutATagOfTheirs)
{
    EXPECT_EQ(changed(Target::Vba, {record("Area", 4.0)}), "");
}

TEST_F(Hatches, AddedWithoutSettingsWriteNothing)
{
    for (const bool hasOrigin : {false, true}) {
        TestTarget made(Target::CSharp);
        made.conversion.names().RegisterObject(OdDbHandle(0x40), oddbClassByName("AcDbHatch"));
        PropertyList records{record("Pattern name", CFxString("ANSI37")), record("LineColor", OdCmColor::byIndex(2))};
        if (hasOrigin)
            records.push_back(record("Origin X", 4.0));
        Statement added;
        ConvertAction(made.conversion, odrxNew<TestAdded>("AcDbHatch", 0x40, records, records), added);
        const QString text = textOf(added);
        // With no statement of its own the hatch does not get its color either.
        EXPECT_EQ(text.contains("SetOrigin( 4.00000000000000, y1 );"), hasOrigin) << text.toStdString();
        EXPECT_EQ(text.contains("hatch1.Color = "), hasOrigin);
        EXPECT_FALSE(text.contains("ANSI37"));
    }
}

TEST(Coordinates, AreChangedBetweenReadingAndWriting)
{
    const auto middle = [](TestTarget& made) { return EmitChangeCoordinateY(made.writer, "d", "JogPoint", 0.5); };
    expectInAllTargets({.cpp = "    double x1, y1, z1;\n    d->GetJogPoint( &x1, &y1, &z1 );\n"
                               "    d->SetJogPoint( x1, 0.50000000000000, z1 );\n",
                        .cppCom = "    double x1, y1, z1;\n    d->GetJogPoint( &x1, &y1, &z1 );\n"
                                  "    d->SetJogPoint( x1, 0.50000000000000, z1 );\n",
                        .csharp = "    double x1, y1, z1;\n    d.GetJogPoint( out x1, out y1, out z1 );\n"
                                  "    d.SetJogPoint( x1, 0.50000000000000, z1 );\n",
                        .javascript = "    var points = d.GetJogPoint( );\n"
                                      "    d.SetJogPoint(points.X, 0.50000000000000, points.Z);\n",
                        .vbNet = "    Dim x1 As Double\n    Dim y1 As Double\n    Dim z1 As Double\n"
                                 "    d.GetJogPoint( x1, y1, z1 )\n    d.SetJogPoint( x1, 0.50000000000000, z1 )\n",
                        .vba = "    Dim x1 As Double\n    Dim y1 As Double\n    Dim z1 As Double\n"
                               "    d.GetJogPoint x1, y1, z1\n    d.SetJogPoint x1, 0.50000000000000, z1\n"},
                       middle);
    TestTarget made(Target::CSharp);
    EXPECT_TRUE(textOf(EmitChangeCoordinateX(made.writer, "d", "P", 1)).contains("SetP( 1.00000000000000, y1, z1 )"));
    EXPECT_TRUE(textOf(EmitChangeCoordinateZ(made.writer, "d", "P", 1)).contains("SetP( x2, y2, 1.00000000000000 )"));
}

TEST(ViewBackgrounds, AreNumberedForTheProcess)
{
    processCounters = {};
    const OdCmColor red = OdCmColor::byRgb(255, 0, 0);
    const OdCmColor dark = OdCmColor::byRgb(10, 20, 30);
    expectInAllTargets(
        {.cpp = "    iwColor_ptr SolidColor0;\n    m_pIwApp->GetRGBColor( 255, 0, 0, &SolidColor0 );\n"
                "    iwSolidBackground_ptr iwSolidBackground0;\n"
                "    iwViewManager->CreateSolidBackground( SolidColor0, &iwSolidBackground0 );\n"
                "    v->SetSolidBackground( iwSolidBackground0 );\n\n",
         .cppCom = "    IColorPtr SolidColor0;\n"
                   "    SolidColor0 = pConnection->m_IwApp->GetRGBColor( 255, 0, 0 );\n"
                   "    ISolidBackgroundPtr iwSolidBackground0;\n"
                   "    iwSolidBackground0 = iwViewManager->CreateSolidBackground( SolidColor0 );\n"
                   "    v->SetSolidBackground( iwSolidBackground0 );\n\n",
         .csharp = "    Color solidColor0 = iwApp.GetColorByIndex( 3 );\n    solidColor0.SetRGBColor( 255, 0, 0 );\n"
                   "    SolidBackground iwSolidBackground0 = iwViewManager.CreateSolidBackground( solidColor0 );\n"
                   "    v.SetSolidBackground( iwSolidBackground0 );\n\n",
         .javascript = "    var solidColor0 = mApp.GetColorByIndex( 3 );\n    solidColor0.SetRGBColor( 255, 0, 0 );\n"
                       "    var iwSolidBackground0 = mViewManager.CreateSolidBackground( solidColor0 );\n"
                       "    v.SetSolidBackground( iwSolidBackground0 );\n\n",
         .vbNet = "    Dim solidColor0 As Inkwright.Color = iwApp.GetColorByIndex( 3 )\n"
                  "    solidColor0.SetRGBColor( 255, 0, 0 )\n"
                  "    Dim iwSolidBackground0 As Inkwright.SolidBackground = "
                  "iwViewManager.CreateSolidBackground( solidColor0 )\n"
                  "    v.SetSolidBackground( iwSolidBackground0 )\n\n",
         .vba = "    Dim solidColor0 As Inkwright.Color\n    Set solidColor0 = iwApp.GetColorByIndex( 3 )\n"
                "    solidColor0.SetRGBColor 255, 0, 0\n"
                "    Dim iwSolidBackground0 As Inkwright.SolidBackground\n"
                "    Set iwSolidBackground0 = iwViewManager.CreateSolidBackground( solidColor0 )\n"
                "    v.SetSolidBackground iwSolidBackground0\n\n"},
        [&](TestTarget& made) { return EmitSolidBackground(made.writer, red, "v"); });

    TestTarget cpp(Target::Cpp);
    EXPECT_TRUE(
        textOf(EmitSolidBackground(cpp.writer, dark, "v")).contains("GetRGBColor( 10, 20, 30, &SolidColor1 );"));
    EXPECT_EQ(EmitGradientBackground(cpp.writer, red, dark, red, 0.5, 2, "v"),
              " iwColor_ptr TopColor0;\n iwColor_ptr MiddleColor0;\n iwColor_ptr BottomColor0;\n"
              " m_pIwApp->GetRGBColor( 255, 0, 0, &TopColor0 );\n m_pIwApp->GetRGBColor( 10, 20, 30, &MiddleColor0 );\n"
              " m_pIwApp->GetRGBColor( 255, 0, 0, &BottomColor0 );\n"
              " iwGradientBackground_ptr iwGradientBackground0;\n"
              " iwViewManager->CreateGradientBackground( TopColor0, MiddleColor0, BottomColor0, 2.00000000000000, "
              "0.50000000000000, &iwGradientBackground0 );\n v->SetGradientBackground( iwGradientBackground0 );\n\n");
    EXPECT_EQ(EmitImageBackground(cpp.writer, "sky.png", "iwImageBackgroundPosition_Tile", {1, 2, 3, 4}, "v"),
              " iwImageBackground_ptr iwImageBackground0;\n"
              " iwViewManager->CreateImageBackground( L\"sky.png\", iwImageBackgroundPosition_Tile, 1.00000000000000, "
              "2.00000000000000, 3.00000000000000, 4.00000000000000, &iwImageBackground0 );\n"
              " v->SetImageBackground( iwImageBackground0 );\n\n");
    TestTarget script(Target::JavaScript);
    EXPECT_TRUE(textOf(EmitImageBackground(script.writer, "sky.png", "iwImageBackgroundPosition_Tile", {}, "v"))
                    .contains("CreateImageBackground( \"sky.png\", \"iwImageBackgroundPosition_Tile\", 0"));
}

} // namespace
