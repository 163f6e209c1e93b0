// What of a recording is seen behind which step.

#include "RecordedPicture.h"

#include <numbers>

namespace {

using inkmacro::view::kNoStep;
using inkmacro::view::Shape;

constexpr char kLayer0[] = R"({"object":{"class":"AcDbLayerTableRecord","handle":"10","name":"0"}})";
constexpr char kWalls[] =
    R"({"object":{"class":"AcDbLayerTableRecord","handle":"11","name":"Walls","color":{"index":3}}})";
constexpr char kDrawnLine[] = R"({"object":{"class":"AcDbLine","handle":"2F","endPoint":[4,0,0]}})";

} // namespace

TEST(Fold, NumbersAllActionsWithCommandsInFront)
{
    const RecordedPicture seen({command({addedLine("30", 0, 0, 1, 0), "{\"null\":null}", addedLine("31", 0, 0, 2, 0)}),
                                addedLine("32", 0, 0, 3, 0)});
    EXPECT_EQ(seen.object(0x30).added, 1);
    EXPECT_EQ(seen.object(0x31).added, 3);
    EXPECT_EQ(seen.object(0x32).added, 4);
    EXPECT_EQ(seen.behind(1).size(), 0U);
    EXPECT_EQ(seen.behind(2).size(), 1U);
    EXPECT_EQ(seen.behind(5).size(), 3U);
}

TEST(Fold, ShowsEachStateOnce)
{
    const RecordedPicture seen({addedLine("30", 0, 0, 4, 3),                                  // 0
                                modified("AcDbLine", "30", {{"LineWeight", R"({"int":5})"}}), // 1
                                modified("AcDbLine", "30", {{"End x", "9"}}),                 // 2
                                R"({"property":{"class":"AcDbLine","handle":"30","tag":"End Y","value":7}})",
                                modified("AcDbLine", "30", {{"End X", "9"}})});
    expectNear(seen.behind(1), {{0, 0, 4, 3}});
    expectNear(seen.behind(3), {{0, 0, 9, 3}});
    expectNear(seen.behind(5), {{0, 0, 9, 7}});
    EXPECT_EQ(seen.picture.primitives.size(), 3U);
}

TEST(Fold, TakesChangesOfWhatIsMeasured)
{
    const RecordedPicture seen({addedCircle("30", 0, 0, 1), modified("AcDbCircle", "30", {{"Diameter", "6"}}),
                                modified("AcDbCircle", "30", {{"Area", "12.566370614359172"}}),
                                modified("AcDbCircle", "30", {{"Circumference", "31.41592653589793"}})});
    for (const auto& [steps, radius] : {std::pair(1, 1), {2, 3}, {3, 2}, {4, 5}})
        EXPECT_DOUBLE_EQ(seen.behind(steps).at(0).at(2), radius);
    const RecordedPicture ellipse(
        {added("AcDbEllipse", "30", {{"Center X", "0"}, {"Major axis vector X", "4"}, {"Minor radius", "1"}}),
         modified("AcDbEllipse", "30", {{"Radius ratio", "0.5"}})});
    EXPECT_DOUBLE_EQ(ellipse.behind(2).at(0).at(6), 2);
}

TEST(Fold, TakesTheEndFromTheDrawing)
{
    const QString changes = R"({"modified":{"class":"AcDbLine","handle":"2F","properties":[)"
                            R"({"tag":"End X","value":4,"old":2.5},{"tag":"End X","value":9,"old":8}]}})";
    const RecordedPicture seen({kDrawnLine, changes});
    expectNear(seen.behind(0), {{0, 0, 2.5, 0}});
    expectNear(seen.behind(1), {{0, 0, 4, 0}});
    EXPECT_EQ(seen.object(0x2F).added, kNoStep);

    // An added object has what its drawing has beside its properties, which win.
    const RecordedPicture added({kDrawnLine, ::added("AcDbLine", "2F", {{"Start X", "1"}, {"Start Y", "1"}})});
    expectNear(added.behind(0), {});
    expectNear(added.behind(1), {{1, 1, 4, 0}});
}

TEST(Fold, ErasesAndTakesBack)
{
    const RecordedPicture seen({kDrawnLine, addedLine("30", 0, 0, 1, 1),
                                command({custom(17, R"({"handles":["30","2F"]},{"classes":["AcDbLine","AcDbLine"]})")}),
                                modified("AcDbLine", "30", {{"Erased", "\"No\""}}),
                                modified("AcDbLine", "30", {{"Erased", "\"Yes\""}})});
    EXPECT_EQ(seen.behind(1).size(), 2U);
    EXPECT_EQ(seen.behind(3).size(), 0U);
    EXPECT_EQ(seen.behind(4).size(), 1U);
    EXPECT_EQ(seen.behind(5).size(), 0U);
    EXPECT_EQ(seen.object(0x2F).erased, 2);
    EXPECT_EQ(seen.object(0x30).erased, 4);

    // Of what is gone in the end nobody knows until when it was there.
    const RecordedPicture gone({R"({"object":{"class":"AcDbLine","handle":"2F","isErased":true}})"});
    EXPECT_EQ(gone.behind(0).size(), 0U);
}

TEST(Fold, TellsLayersAndColors)
{
    const RecordedPicture seen(
        {kLayer0, kWalls, R"({"drawing":{"layer":"10"}})",
         added("AcDbLine", "30",
               {{"End X", "1"},
                {"Start X", "0"},
                {"Layer", R"({"id":"11"})"},
                {"LineColor", R"({"color":{"index":1}})"}}),
         addedLine("31", 0, 0, 1, 1),                                                                   // 1
         modified("AcDbLayerTableRecord", "11", {{"ActivateLayer", "\"Yes\""}, {"Frozen", "\"Yes\""}}), // 2
         addedLine("32", 0, 0, 2, 2),
         modified("AcDbLayerTableRecord", "11", {{"Frozen", "\"No\""}, {"Show", "\"No\""}}), // 4
         modified("AcDbLayerTableRecord", "11", {{"Show", "\"Yes\""}})});
    const auto& layers = seen.picture.layers;
    EXPECT_EQ(layers[seen.object(0x30).layer].name, "Walls");
    EXPECT_EQ(layers[seen.object(0x31).layer].name, "0");
    EXPECT_EQ(layers[seen.object(0x32).layer].name, "Walls");
    EXPECT_EQ(layers[seen.object(0x30).layer].color, OdCmColor::byIndex(3));
    EXPECT_EQ(seen.picture.styles[seen.picture.primitives[0].style].color, OdCmColor::byIndex(1));
    // Off in the place of frozen is no change.
    ASSERT_EQ(seen.picture.layerSwitches.size(), 2U);
    EXPECT_EQ(seen.picture.layerSwitches[0].step, 2);
    EXPECT_FALSE(seen.picture.layerSwitches[0].visible);
    EXPECT_EQ(seen.picture.layerSwitches[1].step, 5);
    EXPECT_TRUE(seen.picture.layerSwitches[1].visible);
}

TEST(Fold, DrawsIntoTheSheetThatIsActive)
{
    const RecordedPicture seen({R"({"recording":{"version":1,"sheet":{"name":"Plan","model":false}}})",
                                addedLine("30", 0, 0, 1, 1), custom(13, R"({"string":"Model"})"),
                                addedLine("31", 0, 0, 1, 1), custom(13, R"({"string":"New"},{"string":"Detail"})"),
                                R"({"sysvar":{"name":"CTAB","value":{"string":"detail"}}})",
                                addedLine("32", 0, 0, 1, 1),
                                custom(13, R"({"string":"Detail"},{"string":"Detail A"})")});
    EXPECT_EQ(seen.spaceOf(0x30), "Plan");
    EXPECT_EQ(seen.spaceOf(0x31), "Model");
    EXPECT_EQ(seen.spaceOf(0x32), "Detail A");
    EXPECT_EQ(seen.picture.spaces[seen.picture.firstSpace].name, "Plan");
    ASSERT_EQ(seen.picture.spaceSwitches.size(), 2U);
    EXPECT_EQ(seen.picture.spaceSwitches[0].step, 1);
    EXPECT_EQ(seen.picture.spaceSwitches[1].step, 4);
}

TEST(Fold, PutsIntoABlockWhatItIsMadeOf)
{
    const QString objects = R"({"collection":{"elements":[{"tag":0,"value":"30"}]}})";
    const RecordedPicture seen(
        {R"({"object":{"class":"AcDbBlockTableRecord","handle":"40","name":"Chair","origin":[1,2,0],"entities":["30"]}})",
         addedLine("30", 1, 2, 3, 2),
         added("AcDbBlockTableRecord", "40", {{"Name", "\"Chair\""}, {"Objects", objects}}),
         added("AcDbBlockReference", "41",
               {{"Name", "\"chair\""},
                {"Position X", "10"},
                {"Position Y", "0"},
                {"Scale X", "-1"},
                {"Scale Y", "2"},
                {"Rotation", "0"}})});
    EXPECT_EQ(seen.spaceOf(0x30), "Chair");
    ASSERT_EQ(seen.picture.primitives.size(), 3U);
    EXPECT_EQ(seen.picture.primitives[0].space, 0);
    EXPECT_EQ(seen.picture.primitives[0].until, 1);
    EXPECT_EQ(seen.picture.primitives[1].from, 1);
    EXPECT_FALSE(seen.object(0x40).hasGeometry);
    expectNear(seen.behind(3), {{1, 2, 3, 2}, {-1, 0, 0, 2, 11, -4, double(seen.object(0x30).space)}});
    const auto box = extentsOf(0, seen.picture);
    ASSERT_TRUE(box);
    EXPECT_DOUBLE_EQ(box->left, 8);
    EXPECT_DOUBLE_EQ(box->right, 10);
    EXPECT_DOUBLE_EQ(box->top, 0);
}

TEST(Fold, DrawsPolylinesByTheirActions)
{
    const char* const data =
        R"({"points":[[0,0,0],[2,0,0],[2,2,0]]},{"points":[[1,0,0],[0,0,0],[0,0,0]]},{"bool":true},)"
        R"({"handle":"30"},{"class":"AcDbPolyline"},{"doubles":[]},{"doubles":[]},{"bool":false},)"
        R"({"double":0})";
    const QString object = added("AcDbPolyline", "30", {{"Closed", "\"No\""}});
    const std::vector<double> wanted{0, 0, 0, 2, 1, 0, 1, std::numbers::pi, std::numbers::pi, 1, 2, 2, 1, 0, 0, 5};
    for (const QStringList& actions :
         {QStringList{object, custom(16, data)}, {custom(16, data), object}, {custom(16, data)}}) {
        const RecordedPicture seen({command(actions)});
        EXPECT_EQ(seen.picture.primitives.size(), 1U);
        EXPECT_EQ(seen.object(0x30).added, 1);
        expectNear(seen.behind(2), {wanted});
    }
    const RecordedPicture edited({command({custom(16, data)}),
                                  custom(42, R"({"handle":"30"},{"class":"AcDbPolyline"},{"int":1},{"point":[3,1,0]})"),
                                  custom(42, R"({"handle":"30"},{"class":"AcDbPolyline"},{"int":0})"),
                                  custom(42, R"({"handle":"30"},{"class":"AcDbPolyline"},{"int":9})")});
    expectNear(edited.behind(5), {{0, 2, 0, 1, 3, 1, 1, 2, 2, 1, 2, 0, 5}});
}

TEST(Fold, MovesWhatTheActionsMove)
{
    const RecordedPicture seen(
        {addedLine("30", 1, 0, 2, 0), addedCircle("31", 1, 0, 0.5),
         custom(3, R"({"handles":["30"]},{"classes":["AcDbLine"]},{"vector":[0,1,0]})"),
         custom(4, R"({"handles":["30","31"]},{"classes":[]},{"point":[0,0,0]},{"double":1.5707963267948966})"),
         custom(5, R"({"handles":["31"]},{"classes":[]},{"point":[0,0,0]},{"double":2})"),
         custom(0, R"({"handles":["30"]},{"classes":[]},{"point":[0,0,0]},{"point":[0,5,0]},{"bool":true})"),
         modified("AcDbLine", "30", {{"End X", "7"}}), modified("AcDbCircle", "31", {{"Radius", "3"}})});
    expectNear(seen.behind(3), {{1, 1, 2, 1}, {1, 0, 0.5, 0, 2 * std::numbers::pi}});
    expectNear(seen.behind(4), {{-1, 1, -1, 2}, {0, 1, 0.5, std::numbers::pi / 2, 2 * std::numbers::pi}});
    expectNear(seen.behind(5), {{-1, 1, -1, 2}, {0, 2, 1, std::numbers::pi / 2, 2 * std::numbers::pi}});
    expectNear(seen.behind(6), {{1, 1, 1, 2}, {0, 2, 1, std::numbers::pi / 2, 2 * std::numbers::pi}});
    // What is changed then is told as it is now.
    expectNear(seen.behind(8), {{1, 1, 7, 2}, {0, 2, 3, std::numbers::pi / 2, 2 * std::numbers::pi}});
}

TEST(Fold, CopiesWhatNoActionAdds)
{
    const char* const copy = R"({"handles":["30"]},{"classes":["AcDbLine"]},{"vector":[0,1,0]},{"vector":[0,2,0]})";
    const RecordedPicture made({addedLine("30", 0, 0, 1, 0), command({custom(2, copy)})});
    expectNear(made.behind(3), {{0, 0, 1, 0}, {0, 1, 1, 1}, {0, 2, 1, 2}});
    EXPECT_EQ(made.picture.objects.back().added, 2);
    const RecordedPicture told({addedLine("30", 0, 0, 1, 0), command({custom(2, copy), addedLine("31", 0, 1, 1, 1)})});
    expectNear(told.behind(4), {{0, 0, 1, 0}, {0, 1, 1, 1}});
    // In the drawing things stand where they stand in the end.
    const RecordedPicture drawn({kDrawnLine, custom(3, R"({"handles":["2F"]},{"classes":[]},{"vector":[0,1,0]})")});
    expectNear(drawn.behind(1), {{0, 0, 4, 0}});
}

TEST(Fold, ShowsWhatTheApplicationMakes)
{
    const RecordedPicture trimmed(
        {R"({"object":{"class":"AcDbArc","handle":"31","center":[1,1,0],"radius":2,"startAngle":0,"endAngle":1}})",
         addedLine("30", 0, 0, 9, 0), addedCircle("31", 1, 1, 2), addedCircle("32", 5, 5, 1),
         custom(6,
                R"({"handles":["40"]},{"classes":["AcDbLine"]},{"handles":["30","31"]},{"classes":[]},{"points":[]},)"
                R"({"handles":["30","33"]},{"classes":["AcDbLine","AcDbLine"]},{"points":[]},)"
                R"({"doubles":[0,0,0,4,0,0, 6,0,0,9,0,0]})"),
         custom(7, R"({"handles":[]},{"classes":[]},{"handles":["32"]},{"classes":[]},{"points":[]})")});
    expectNear(trimmed.behind(4), {{0, 0, 4, 0}, {1, 1, 2, 0, 1}, {5, 5, 1, 0, 2 * std::numbers::pi}, {6, 0, 9, 0}});
    EXPECT_EQ(trimmed.object(0x33).added, 3);
    EXPECT_EQ(trimmed.remark(0x31), "made by the application at this step");
    EXPECT_EQ(trimmed.remark(0x32), "made by the application at this step");

    const RecordedPicture used(
        {kDrawnLine, addedLine("30", 0, 0, 1, 0), addedLine("31", 1, 0, 2, 0),
         custom(50, R"({"handle":"30"},{"class":"AcDbLine"},{"handle":"31"},{"class":"AcDbLine"})"),
         custom(55, R"({"handles":["30","2F"]},{"classes":["AcDbLine","AcDbLine"]})")});
    EXPECT_EQ(used.object(0x31).erased, 2);
    EXPECT_EQ(used.object(0x30).erased, 3);
    EXPECT_EQ(used.object(0x2F).erased, kNoStep);
}

TEST(Fold, SaysWhyNothingIsDrawn)
{
    const RecordedPicture seen({added("AcDbSpline", "30", {}), added("VendorPipe", "31", {}),
                                added("AcDbGroup", "32", {{"Name", "\"G\""}}),
                                added("AcDbBlockReference", "33", {{"Name", "\"None\""}, {"Position X", "1"}})});
    EXPECT_EQ(seen.remark(0x30), "its place is not recorded");
    EXPECT_EQ(seen.remark(0x31), "nobody knows how objects of its class look");
    EXPECT_TRUE(seen.object(0x31).hasGeometry);
    EXPECT_FALSE(seen.object(0x32).hasGeometry);
    EXPECT_EQ(seen.remark(0x32), "");
    EXPECT_EQ(seen.remark(0x33), "its block is not told");
}

TEST(Fold, LeavesOutWhatIsNotFinite)
{
    const RecordedPicture seen({addedCircle("30", 1e308, 0, 1), addedLine("31", 0, 0, 1, 1),
                                custom(3, R"({"handles":["30"]},{"classes":[]},{"vector":[1e308,0,0]})")});
    EXPECT_EQ(seen.behind(3).size(), 1U);
    EXPECT_EQ(seen.remark(0x30), "its numbers are too large");
}

TEST(Fold, CutsBlocksThatHoldThemselves)
{
    const auto block = [](int number, const QString& entities) {
        return QString(R"({"object":{"class":"AcDbBlockTableRecord","handle":"%1","name":"B%2","entities":[%3]}})")
            .arg(0x100 + number, 0, 16)
            .arg(number)
            .arg(entities);
    };
    const auto reference = [](int number, int to) {
        return QString(R"({"object":{"class":"AcDbBlockReference","handle":"%1","blockTableRecord":"%2"}})")
            .arg(0x200 + number, 0, 16)
            .arg(0x100 + to, 0, 16);
    };
    const RecordedPicture circle({block(0, R"("200","300")"), block(1, R"("201")"), reference(0, 1), reference(1, 0),
                                  reference(2, 0), R"({"object":{"class":"AcDbLine","handle":"300"}})"});
    EXPECT_EQ(circle.behind(0).size(), 2U);
    EXPECT_EQ(circle.remark(0x200), "the block holds itself");
    EXPECT_EQ(circle.remark(0x202), "");

    QStringList chain{R"({"object":{"class":"AcDbLine","handle":"300"}})", reference(0, 0)};
    for (int i = 0; i < 20; ++i) {
        chain.append(block(i, i < 19 ? QString("\"%1\"").arg(0x201 + i, 0, 16) : QString("\"300\"")));
        if (i < 19)
            chain.append(reference(i + 1, i + 1));
    }
    const RecordedPicture deep(chain);
    EXPECT_EQ(deep.remark(0x200 + 15), "");
    EXPECT_EQ(deep.remark(0x200 + 16), "blocks stand in one another more than 16 deep");

    // Each holds the next ten times.
    QStringList wide{R"({"object":{"class":"AcDbLine","handle":"300"}})"};
    for (int i = 0; i < 12; ++i) {
        QStringList within;
        for (int copy = 0; copy < 10; ++copy) {
            within.append(QString("\"%1\"").arg(0x1000 + 16 * i + copy, 0, 16));
            wide.append(QString(R"({"object":{"class":"AcDbBlockReference","handle":"%1","blockTableRecord":"%2"}})")
                            .arg(0x1000 + 16 * i + copy, 0, 16)
                            .arg(0x101 + i, 0, 16));
        }
        wide.append(block(i, within.join(',')));
    }
    wide.append(block(12, R"("300")"));
    const RecordedPicture big(wide);
    EXPECT_EQ(big.picture.remarks, std::vector<QString>{"the blocks within hold too much"});
    EXPECT_EQ(big.remark(0x1000 + 16 * 11), "");
}
