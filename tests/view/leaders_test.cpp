#include "Drawn.h"

#include "view/drawers.h"

#include <cmath>

using namespace inkmacro::view;

namespace {

SaidValues leader(const std::vector<Point>& vertices)
{
    return SaidValues("AcDbLeader").sayPoints("Vertex", vertices);
}

TEST(Leaders, HaveAPathAnArrowAndTheirContent)
{
    SaidValues values = leader({{0, 0}, {30, 40}, {50, 40}});
    values.say("content", "See\\Pdetail");
    const Drawn drawn(drawLeader, values);
    expectNear(drawn.corners(Shape::Path).at(0), {{0, 0}, {30, 40}, {50, 40}});
    const std::vector<Point> arrow = drawn.corners(Shape::Area).at(0);
    expectNear({arrow[0], {(arrow[1].x + arrow[2].x) / 2, (arrow[1].y + arrow[2].y) / 2}}, {{0, 0}, {1.5, 2}});
    EXPECT_EQ(drawn.texts(), (QStringList{"See", "detail"}));
    // Two lines are 2.5 + 2.5 * 5 / 3 high.
    expectNear(drawn.text(0), {50.625, 40 + 6.6666666666666667 / 2 - 2.5, 2.5, 0, 0, 10});

    SaidValues back = leader({{0, 0}, {-20, 0}});
    back.say("content", "x").say("Arrow size", "4").say("DimScale overall", 2.0).say("Text offset", "1");
    const Drawn other(drawLeader, back);
    expectNear(other.text(0), {-22, -2.5, 5, 0, 0, 12});
    EXPECT_NEAR(other.corners(Shape::Area).at(0)[1].x, -8, 1e-9);
}

TEST(Leaders, MayLackAnArrow)
{
    SaidValues values = leader({{0, 0}, {5, 5}});
    values.say("Type", CFxVariantCollectionElement(CFxVariant(1), CFxVariant(CFxString("Spline"))));
    const Drawn drawn(drawLeader, values);
    EXPECT_TRUE(drawn.corners(Shape::Area).empty());
    EXPECT_EQ(drawn.remark(), "its spline as lines");
}

TEST(Leaders, OfPointsThatCoincideHaveNoArrow)
{
    EXPECT_TRUE(Drawn(drawLeader, leader({})).isEmpty());
    EXPECT_TRUE(Drawn(drawLeader, leader({{3, 4}})).isEmpty());
    EXPECT_TRUE(Drawn(drawLeader, leader({{3, 4}, {3, 4}})).corners(Shape::Area).empty());
}

TEST(Leaders, DrawNotesThatHaveNoPlace)
{
    OdDbDatabase database;
    SaidValues note("AcDbMText");
    note.say("Contents", "\\fArial;Lawn").say("Text Height", 4.0);
    SaidValues values = leader({{0, 0}, {10, 0}});
    values.draw("annotationObjectId", database.getOdDbObjectId(OdDbHandle(0x62)));
    values.know(0x62, note);
    const Drawn drawn(drawLeader, values);
    EXPECT_EQ(drawn.texts(), QStringList{"Lawn"});
    expectNear(drawn.text(0), {10.625, -2, 4, 0, 0, 10});

    // A note that knows its leader is drawn by itself, at the leader's end.
    SaidValues knowing = note;
    knowing.draw("reactors", OdArray<OdDbObjectId>{database.getOdDbObjectId(OdDbHandle(0x61))});
    knowing.know(0x61, values);
    values.know(0x62, knowing);
    EXPECT_TRUE(Drawn(drawLeader, values).texts().isEmpty());
    expectNear(Drawn(drawNote, knowing).text(0), {10.625, -2, 4, 0, 0, 10});
}

TEST(Tolerances, AreFramesOfCells)
{
    SaidValues values("AcDbFcf");
    values.say("Position X", 3.0).say("Position Y", 4.0).say("Content", "{\\Fgdt;r}%%v0.05%%v\n%%vB");
    const Drawn drawn(drawTolerance, values);
    EXPECT_EQ(drawn.texts(), (QStringList{QString::fromUtf8("◎"), "0.05", "B"}));
    const auto frames = drawn.corners(Shape::Path);
    ASSERT_EQ(frames.size(), 3U);
    expectNear(frames[0], {{3, 1.5}, {8, 1.5}, {8, 6.5}, {3, 6.5}});
    // Three digits and a point, and half a height on each side.
    const double right = 8 + (3 * 0.76 + 0.42 + 1) * 2.5;
    expectNear(frames[1], {{8, 1.5}, {right, 1.5}, {right, 6.5}, {8, 6.5}});
    expectNear(frames[2], {{3, -3.5}, {8, -3.5}, {8, 1.5}, {3, 1.5}});
    expectNear(drawn.text(2), {5.5, -1, 2.5, 0, 0, 5});

    const Drawn large(drawTolerance, values.say("Text height", 3.0).say("Dim scale overall", 2.0));
    expectNear(large.corners(Shape::Path).at(0), {{3, -2}, {15, -2}, {15, 10}, {3, 10}});
}

} // namespace
