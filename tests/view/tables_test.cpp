#include "Drawn.h"

#include "view/drawers.h"

#include <numbers>

using namespace inkmacro::view;

namespace {

SaidValues table(int rows, int columns)
{
    SaidValues values("AcDbTable");
    values.say("Position X", 10.0).say("Position Y", 200.0).say("Rows", rows).say("Columns", columns);
    return values;
}

TEST(Tables, HaveAGridAndTexts)
{
    SaidValues values = table(3, 2);
    values.say("RowHeight_0", 12.0).say("RowHeight_2", 9.0).say("ColumnWidth_0", 15.0).say("ColumnWidth_1", 25.0);
    values.say("Contents_0_0", "No").say("Contents_2_1", "{\\fArial;Bolt} M8");
    const Drawn drawn(drawTable, values);
    // The second row is as high as the third.
    const auto lines = drawn.lines();
    ASSERT_EQ(lines.size(), 7U);
    expectNear(lines[0], {10, 200, 50, 200});
    expectNear(lines[1], {10, 188, 50, 188});
    expectNear(lines[2], {10, 179, 50, 179});
    expectNear(lines[3], {10, 170, 50, 170});
    expectNear(lines[4], {10, 200, 10, 170});
    expectNear(lines[5], {25, 200, 25, 170});
    expectNear(lines[6], {50, 200, 50, 170});
    EXPECT_EQ(drawn.texts(), (QStringList{"No", "Bolt M8"}));
    expectNear(drawn.text(0), {17.5, 194 - 1.25, 2.5, 0, 0, 11});
    expectNear(drawn.text(1), {37.5, 174.5 - 1.25, 2.5, 0, 0, 11});
}

TEST(Tables, ShortenTextsToTheirCells)
{
    SaidValues values = table(1, 1);
    values.say("RowHeight_0", 10.0).say("ColumnWidth_0", 8.5).say("Contents_0_0", "Bill of materials");
    EXPECT_EQ(Drawn(drawTable, values).texts(), QStringList{QString::fromUtf8("Bi…")});

    SaidValues low = table(1, 1);
    low.say("RowHeight_0", 1.2).say("ColumnWidth_0", 50.0).say("Contents_0_0", "x");
    EXPECT_NEAR(Drawn(drawTable, low).text(0)[2], 1.0, 1e-9);
}

TEST(Tables, AreTurnedUpsideDownAndAsideAndShareWhatIsLeft)
{
    SaidValues up = table(2, 1);
    up.say("Table height", 20.0).say("Table width", 30.0).say("Direction", "Up");
    const auto lines = Drawn(drawTable, up).lines();
    expectNear(lines[1], {10, 210, 40, 210});
    expectNear(lines[2], {10, 220, 40, 220});

    SaidValues turned("AcDbTable");
    turned.draw("rotation", std::numbers::pi / 2).draw("position", OdGePoint3d{5, 5, 0});
    turned.draw("rowHeights", OdArray<double>{10, 20}).draw("columnWidths", OdArray<double>{30, 40});
    turned.draw("textStrings", OdArray<OdArray<OdString>>{{"Title"}, {"a", "b"}});
    turned.draw("cellStyles", OdArray<OdString>{"_TITLE"});
    const Drawn drawn(drawTable, turned);
    expectNear(drawn.lines()[0], {5, 5, 5, 75});
    expectNear(drawn.lines()[4], {15, 35, 35, 35});
    EXPECT_EQ(drawn.texts(), (QStringList{"Title", "a", "b"}));
    expectNear(drawn.text(0), {10 + 1.25, 40, 2.5, std::numbers::pi / 2, 0, 11});
}

TEST(Tables, OfAnyNumberOfCellsAreDrawnOrExplained)
{
    EXPECT_FALSE(Drawn(drawTable, table(0, 5)).remark().isEmpty());
    EXPECT_FALSE(Drawn(drawTable, table(-1, -1)).remark().isEmpty());
    const Drawn huge(drawTable, table(2'000'000'000, 2'000'000'000));
    EXPECT_EQ(huge.picture().primitives.size(), 1U);
    EXPECT_FALSE(huge.remark().isEmpty());
}

} // namespace
