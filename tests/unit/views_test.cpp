// Custom actions of coordinate systems, sheets, named views, view tiles and zoom.

#include "TestActions.h"
#include "TestDrawing.h"
#include "TestTarget.h"

#include "module/walk.h"
#include "targets/coordinateSystems.h"
#include "targets/display.h"
#include "targets/namedViews.h"
#include "targets/sheets.h"

#include <QFileInfo>

using inkmacro::Target;

namespace {

constexpr std::int32_t kSystem = 12;
constexpr std::int32_t kSheet = 13;
constexpr std::int32_t kNamedView = 14;
constexpr std::int32_t kBackground = 41;
constexpr std::int32_t kZoom = 43;
constexpr std::int32_t kTiles = 49;

const OdGePoint3d origin{};
const OdGePoint3d point{1.0, 2.0, 3.0};

CFxString word(const char* text)
{
    return CFxString(text);
}

/// A model's view that the macro knows under handle 1A.
class Views : public testing::Test
{
protected:
    Views() { conversion.names().RegisterObject(OdDbHandle(0x1a), view); }

    std::int32_t convert(std::int32_t kind, const TestData& data, const QString& before = {})
    {
        Statement statement = before;
        const std::int32_t status = ConvertAction(conversion, odrxNew<TestCustom>(kind, data), statement);
        text = textOf(statement);
        return status;
    }
    QString converted(std::int32_t kind, const TestData& data, const QString& before = {})
    {
        EXPECT_EQ(convert(kind, data, before), kFxSuccess);
        return text;
    }
    QString namedView(bool mayRename, bool onSheet, const char* oldName, const char* name,
                      const OdGePoint3d& opposite = origin, const QString& before = {})
    {
        return converted(
            kNamedView,
            {OdDbHandle(0x1a), view, mayRename, onSheet, word(oldName), word(name), word("Walls"), origin, opposite},
            before);
    }
    QString background(bool isNew, bool onSheet, const char* sheet, TestData settings, const QString& before = {},
                       std::uint64_t handle = 0x1a)
    {
        TestData data{OdDbHandle(handle), view, isNew, onSheet, word(sheet), word("North")};
        data.insert(data.end(), settings.begin(), settings.end());
        return converted(kBackground, data, before);
    }

    const OdRxClass* view = oddbClassByName("AcDbViewTableRecord");
    TestDrawing drawing;
    TestTarget csharp{Target::CSharp};
    Conversion& conversion = csharp.conversion;
    TestConversion recording;
    QString text;
};

TEST_F(Views, AreRefusedWhenCountOrTypesDoNotFit)
{
    const CFxString name("a");
    const std::vector<std::pair<std::int32_t, TestData>> refused{
        {kSystem, {}},
        {kSystem, {word("top")}},
        {kSystem, {word("PREVIOUS")}},
        {kSystem, {word("Delete")}},
        {kSystem, {1}},
        {kSystem, {OdGeVector3d()}},
        {kSystem, {word("delete"), name}},
        {kSystem, {word("World"), name}},
        {kSystem, {word("Delete"), 1}},
        {kSystem, {origin, name}},
        {kSystem, {OdGeVector3d(), origin}},
        {kSystem, {origin, origin, origin}},
        {kSystem, {OdDbHandle(0x1a), view, OdGeVector3d()}},
        {kSystem, {view, OdDbHandle(0x1a), origin}},
        {kSystem, {word("3POINTS"), origin, origin, origin}},
        {kSystem, {word("X"), origin, origin, OdGeVector3d()}},
        {kSystem, {word("X"), origin, origin}},
        {kSystem, {word("X"), origin, origin, origin, origin}},
        {kSheet, {}},
        {kSheet, {1}},
        {kSheet, {word("New"), 1}},
        {kSheet, {1, name}},
        {kSheet, {word("New"), name, name}},
        {kSheet, {word("copy"), name, name}},
        {kSheet, {word("Copy"), name, true}},
        {kSheet, {word("Layout From Template"), name, name, name}},
        {kSheet, {word("Layout from template"), name, name, origin}},
        {kSheet, {word("Layout from template"), name, name, name, name}},
    };
    for (const auto& [kind, data] : refused) {
        EXPECT_EQ(convert(kind, data, "x"), kFxFailure) << kind << " with " << data.size();
        EXPECT_EQ(text, "x");
        // Within a command they end it, at top level everything.
        const OdRxObjectPtr action = odrxNew<TestCustom>(kind, data);
        EXPECT_EQ(recording.run({command({addedLine(1), action, addedLine(2)}), addedLine(3)}), kFxSuccess);
        EXPECT_TRUE(recording.body().contains("line1 = "));
        EXPECT_FALSE(recording.body().contains("line2 = "));
        EXPECT_TRUE(recording.body().contains("line3 = "));
        EXPECT_EQ(recording.run({addedLine(1), action}), kFxFailure);
        EXPECT_FALSE(QFileInfo::exists(recording.path()));
    }
    // Of the others a missing datum fails, one of another type is that type's neutral value.
    for (const auto& [kind, data] : std::vector<std::pair<std::int32_t, TestData>>{
             {kNamedView, {OdDbHandle(0x1a), view, true, false, name, name, name, origin}},
             {kBackground, {OdDbHandle(0x1a), view, true, false, name}},
             {kBackground, {OdDbHandle(0x1a), view, false, false, name, name, word("Solid...")}},
             {kZoom, {}},
             {kZoom, {word("iwZoomRange_Window"), origin}},
             {kTiles, {true, 1, std::vector<OdDbHandle>{OdDbHandle(5)}}},
             {kTiles, {true, 1, std::vector<OdDbHandle>{OdDbHandle(5)}, std::vector<const OdRxClass*>{}}}})
        EXPECT_EQ(convert(kind, data), kFxFailure) << kind << " with " << data.size();
    EXPECT_EQ(converted(kZoom, {1}), " iwApp.Zoom(iwZoomRange_e., null, null);\n");
}

TEST_F(Views, TellCoordinateSystemsByTypesAndWords)
{
    EXPECT_TRUE(converted(kSystem, {word("Previous")}, "x").startsWith(" CustomCoordinateSystemManager "));
    EXPECT_TRUE(text.contains("GetPreviousCustomCoordinateSystem();"));
    EXPECT_TRUE(converted(kSystem, {word("World")}).contains("GetWorldCustomCoordinateSystem();"));
    EXPECT_TRUE(converted(kSystem, {word("View")}).contains("AlignActiveCustomCoordinateSystemByView();"));
    for (const char* side : {"Top", "Bottom", "Left", "Right", "Front", "Back"})
        EXPECT_TRUE(
            converted(kSystem, {word(side)})
                .contains(
                    QString("( iwDefaultCustomCoordinateSystem_e.iwDefaultCustomCoordinateSystem_%1 );").arg(side)));
    EXPECT_TRUE(converted(kSystem, {point}).contains("Origin( 1, 2, 3  );"));
    EXPECT_TRUE(converted(kSystem, {word("Delete"), word("A")}).contains(".RemoveCustomCoordinateSystem( \"A\" );"));
    EXPECT_TRUE(converted(kSystem, {word("NamedSave"), word("A")}).contains(".SaveActiveViewAs( \"A\", out "));
    EXPECT_TRUE(converted(kSystem, {word("NamedRestore"), word("A")}).contains("System( \"A\");"));
    EXPECT_TRUE(converted(kSystem, {point, point}).contains("ZAxis( 1, 2, 3, 2, 4, 6 );"));
    EXPECT_TRUE(converted(kSystem, {point, OdGeVector3d{0.0, 0.0, 1e6}}).contains("( 1, 2, 3, 1, 2, 1e+06 );"));
    for (const char* way : {"3point", "x", "Y", "z", "ZAxis"})
        EXPECT_TRUE(converted(kSystem, {word(way), point, origin, point})
                        .contains("CreatePoint( 1, 2, 3 );\n     MathPoint XAxisThroughPoint_"));
    // An entity that the macro does not know leaves its place empty.
    EXPECT_TRUE(converted(kSystem, {OdDbHandle(0x1a), view, point})
                    .contains("ByEntity( modelnamedview1, new double[]{1,2,3} );"));
    EXPECT_TRUE(converted(kSystem, {OdDbHandle(0x99), view, point}).contains("ByEntity( , new double[]{1,2,3} );"));
}

TEST_F(Views, TellSheetsByWords)
{
    EXPECT_EQ(converted(kSheet, {word("Model")}, "x"),
              " iwModel.Activate();\n iwSketchManager = iwModel.GetSketchManager();\n");
    EXPECT_TRUE(converted(kSheet, {word("model")}).startsWith(" iwSheet = iwDoc.GetSheet(\"model\");\n"));
    EXPECT_TRUE(converted(kSheet, {word("New"), word("A3")}).endsWith(" = iwDoc.CreateSheet(\"A3\");\n"));
    EXPECT_TRUE(converted(kSheet, {word("new"), word("A3")}).contains(".Name = \"A3\";\n"));
    EXPECT_EQ(converted(kSheet, {word("Delete"), word("A3")}), " iwDoc.RemoveSheet(\"A3\");\n");
    EXPECT_EQ(converted(kSheet, {word("Copy"), word("A3")}), " iwDoc.CopySheet(\"A3\" , \"A3\" );\n");
    EXPECT_EQ(converted(kSheet, {word("Copy"), word("A3"), word("A4")}), " iwDoc.CopySheet(\"A3\" , \"A4\" );\n");
    EXPECT_TRUE(converted(kSheet, {word("Layout from template"), word("f"), word("A"), word("B")})
                    .endsWith(".CreateSheetByTemplate( \"f\", \"A\", \"B\" );\n"));
    EXPECT_EQ(EmitCopySheet(TestTarget(Target::Vba).writer, "A3", "A4"), " iwDoc.CopySheet(L\"\n\" , L\"A3\" )2");
    // A name that looks like a marker takes the number in the text's order.
    TestTarget other(Target::CSharp);
    EXPECT_EQ(EmitRenameSheet(other.writer, "%4", "B"),
              " Sheet PreSheet1 = iwDoc.GetSheet(\"1\");\n if (null != PreSheet1)\n    PreSheet1.Name = \"B\";\n");
}

TEST_F(Views, OfTheModelAreChangedByTheirVariable)
{
    EXPECT_EQ(namedView(true, false, "North", "South"), " modelnamedview1.GetNamedView().Rename( \"South\" );\n\n"
                                                        " modelnamedview1.GetNamedView().Class = \"Walls\";\n\n");
    const QString classOnly = " modelnamedview1.GetNamedView().Class = \"Walls\";\n\n";
    EXPECT_EQ(namedView(false, false, "North", "South"), classOnly);
    for (const char* choice : {"", "<None>", "Solid...", "Gradient...", "Image..."})
        EXPECT_EQ(namedView(true, false, choice, "South"), classOnly);
    EXPECT_TRUE(namedView(true, false, "<none>", "South").contains("Rename"));
    EXPECT_EQ(namedView(false, false, "North", "cURRENT"), "");
    EXPECT_EQ(namedView(false, false, "", "Current", {0.0, 1e-11, 0.0}), "");
    EXPECT_TRUE(namedView(false, false, "", "Current", {0.0, 1e-9, 0.0}).contains("CreatePoint( 0, 1e-09, 0 );"));
    EXPECT_EQ(namedView(false, false, "", "A", origin, "handed"), " handed.GetNamedView().Class = \"Walls\";\n\n");
    EXPECT_EQ(converted(kNamedView, {OdDbHandle(0x99), view}, "x"), "") << "not known to the macro";
}

TEST_F(Views, OfSheetsAreFoundByTheNameThatTheyHave)
{
    EXPECT_EQ(namedView(true, true, "A", "B", point),
              " SheetNamedView sheetNamedView_1_rename = iwViewManager.GetSheetNamedView( \"A\" );\n"
              " sheetNamedView_1_rename.GetNamedView().Rename( \"B\" );\n\n"
              " SheetNamedView sheetNamedView_2_class = iwViewManager.GetSheetNamedView( \"B\" );\n"
              " sheetNamedView_2_class.GetNamedView().Class = \"Walls\";\n\n"
              " MathUtility iwMathUtility3 = iwApp.GetMathUtility();\n"
              " MathPoint FirstCorner_3_1 = iwMathUtility3.CreatePoint( 0, 0, 0 );\n"
              " MathPoint OppositeCorner_3_1 = iwMathUtility3.CreatePoint( 1, 2, 3 );\n"
              " SheetNamedView sheetNamedView_3_Pt = iwViewManager.GetSheetNamedView( \"B\" );\n"
              " sheetNamedView_3_Pt.GetNamedView().SetWindow( FirstCorner_3_1, OppositeCorner_3_1 );\n\n");
}

TEST_F(Views, AreMadeInTheirSpaceAndGetABackground)
{
    const QString toModel = " iwModel.Activate();\n iwSketchManager = iwModel.GetSketchManager();\n";
    const QString toSheet = " iwSheet = iwDoc.GetSheet(\"A3\");\n if (null != iwSheet)\n {\n"
                            "      iwSheet.Activate();\n      iwSketchManager = iwSheet.GetSketchManager();\n }\n";
    const TestData none{word("<None>")};
    const QString made = " v = iwViewManager.CreateModelNamedView( \"North\" );\n";
    EXPECT_EQ(background(true, false, "A3", none, "v"), toModel + made + toSheet);
    for (const char* model : {"", "Model"})
        EXPECT_EQ(background(true, false, model, none, "v"), toModel + made);
    // A sheet's view has no background, whatever is told.
    EXPECT_EQ(background(true, true, "A3", {word("Solid..."), OdCmColor::byRgb(1, 2, 3)}, "v"),
              toSheet + " SheetNamedView sheetNamedView_1 = iwViewManager.CreateSheetNamedView( \"North\" );\n" +
                  toModel);
    EXPECT_TRUE(
        background(false, false, "", {word("Solid..."), OdCmColor::byRgb(1, 2, 3)}).startsWith(" Color solidColor"));
    EXPECT_TRUE(text.contains(".SetRGBColor( 1, 2, 3 );\n"));
    EXPECT_TRUE(text.contains("\n modelnamedview1.SetSolidBackground( iwSolidBackground"));
    EXPECT_EQ(background(false, false, "", {word("solid..."), OdCmColor::byRgb(1, 2, 3)}), "");
    EXPECT_TRUE(background(false, false, "",
                           {word("Gradient..."), true, OdCmColor::byRgb(1, 1, 1), OdCmColor::byRgb(2, 2, 2),
                            OdCmColor::byRgb(3, 3, 3), 0.25})
                    .contains(", 0.00000000000000, 0.25000000000000 );\n modelnamedview1.SetGradientBackground( "));
    EXPECT_TRUE(background(false, false, "",
                           {word("Image..."), true, true, true, word("a.png"), word("iwImageBackgroundPosition_Tile"),
                            1.0, 2.0, 3.0, 4.0})
                    .contains("( \"a.png\", iwImageBackgroundPosition_e.iwImageBackgroundPosition_Tile, "
                              "1.00000000000000, 2.00000000000000, 3.00000000000000, 4.00000000000000 );\n"));
    // One that nothing has declared is declared here, once.
    EXPECT_EQ(background(true, false, "", none, {}, 0x99),
              " ModelNamedView modelnamedview2;\n {\n    iwModel.Activate();\n"
              "    iwSketchManager = iwModel.GetSketchManager();\n"
              "    modelnamedview2 = iwViewManager.CreateModelNamedView( \"North\" );\n }\n");
    EXPECT_EQ(conversion.writer.IndentLevel, 0U);
    EXPECT_FALSE(background(true, false, "", none, {}, 0x99).contains("ModelNamedView modelnamedview"));
    EXPECT_EQ(converted(kBackground, {OdDbHandle(7), oddbClassByName("AcDbProxyEntity"), true, false, word(""),
                                      word("N"), word("<None>")}),
              "");
}

TEST_F(Views, TakeTilesFromAnArrayThatIsNumberedForTheProcess)
{
    const auto* const cls = oddbClassByName("AcDbViewportTableRecord");
    const auto tiles = [&](int mode) {
        return converted(kTiles, {mode != 0, mode, std::vector<OdDbHandle>{OdDbHandle(5), OdDbHandle(6), OdDbHandle(7)},
                                  std::vector<const OdRxClass*>{cls, oddbClassByName("HostWeldSymbol"), cls}});
    };
    const QString first = tiles(0);
    const int number = first.section("iwViewTileArray", 1, 1).section(' ', 0, 0).toInt();
    const QString array = QString("iwViewTileArray%1").arg(number);
    EXPECT_EQ(first.toStdString(), QString(" object[] %1 = (object[])iwModel.InsertViewTiles(iwViewTilesMode_e."
                                           "iwViewTilesMode_1, iwViewTilesApplyTo_e."
                                           "iwViewTilesApplyTo_ActiveViewTile);\n"
                                           " %1 = (object[])iwModel.GetViewTiles();\n\n"
                                           " Inkwright.ViewTile viewtile2 =(Inkwright.ViewTile)%1[0];\n"
                                           " Inkwright.ViewTile viewtile3 =(Inkwright.ViewTile)%1[2];\n")
                                       .arg(array)
                                       .toStdString());
    EXPECT_TRUE(tiles(11).contains(".iwViewTilesMode_4_Left, iwViewTilesApplyTo_e.iwViewTilesApplyTo_Display);"));
    EXPECT_TRUE(text.contains(QString("iwViewTileArray%1[2]").arg(number + 1)));
    EXPECT_TRUE(tiles(1).contains(".iwViewTilesMode_2_Vertical,"));
    EXPECT_TRUE(tiles(6).contains(".iwViewTilesMode_3_Below,"));
    for (const int unknown : {12, -1})
        EXPECT_TRUE(tiles(unknown).contains(".iwViewTilesMode_1,"));
}

TEST_F(Views, ZoomToAWindowInAnyCase)
{
    EXPECT_TRUE(converted(kZoom, {word("IWZOOMRANGE_window"), origin, point}, "x")
                    .endsWith("{ 1, 2, 3 };\n iwApp.Zoom(iwZoomRange_e.IWZOOMRANGE_window, lowerLeft_1, "
                              "upperRight_1);\n"));
    EXPECT_EQ(converted(kZoom, {word("iwZoomRange_Fit"), origin, point}),
              " iwApp.Zoom(iwZoomRange_e.iwZoomRange_Fit, null, null);\n");
    EXPECT_EQ(conversion.writer.UniqueCounter, 1U);
}

TEST_F(Views, LeaveNoMarkerUnfilled)
{
    for (const Target target : allTargets) {
        TestTarget made(target);
        Writer& writer = made.writer;
        Statement written = EmitSaveCoordinateSystem(writer, "a") + EmitRestoreCoordinateSystem(writer, "a") +
                            EmitRemoveCoordinateSystem(writer, "a") + EmitPreviousCoordinateSystem(writer) +
                            EmitWorldCoordinateSystem(writer) + EmitDefaultCoordinateSystem(writer, "a") +
                            EmitViewCoordinateSystem(writer) + EmitCoordinateSystemOrigin(writer, point) +
                            EmitAlignCoordinateSystemToEntity(writer, "a", point) +
                            EmitAlignCoordinateSystemZAxis(writer, point, point) +
                            EmitThreePointCoordinateSystem(writer, point, point, point) + EmitActivateModel(writer) +
                            EmitCreateSheet(writer, "a") + EmitCreateSheetFromTemplate(writer, "a", "b", "c") +
                            EmitCopySheet(writer, "a", "b") + EmitRenameSheet(writer, "a", "b") +
                            EmitRemoveSheet(writer, "a") + EmitInsertViewTiles(writer, "a", "b", "c") +
                            EmitSelectViewTile(writer, "a", 0, "b", true) + EmitZoom(writer, "a") +
                            EmitZoom(writer, "a", point, point);
        for (const bool onSheet : {false, true})
            written += EmitCreateNamedView(writer, "a", onSheet, "b") +
                       EmitRenameNamedView(writer, {"a", onSheet}, "b") +
                       EmitSetNamedViewClass(writer, {"a", onSheet}, "b") +
                       EmitSetViewWindow(writer, {"a", onSheet}, point, point);
        EXPECT_FALSE(textOf(written).contains('%')) << written.toStdString();
        EXPECT_EQ(writer.IndentLevel, 0U);
    }
}

} // namespace
