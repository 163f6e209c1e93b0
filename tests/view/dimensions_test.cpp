#include "Drawn.h"

#include "host/db/OdDbClasses.h"
#include "view/drawers.h"

#include <cmath>
#include <limits>
#include <numbers>

using namespace inkmacro::view;

namespace {

constexpr double kPi = std::numbers::pi;

SaidValues aligned(Point first, Point second, Point line)
{
    SaidValues dimension("AcDbAlignedDimension");
    return dimension.say("xLine1Point", first).say("xLine2Point", second).say("dimLinePoint", line);
}

std::vector<Point> arrow(const Drawn& drawn, std::size_t number)
{
    return drawn.corners(Shape::Area).at(number);
}

TEST(Dimensions, AlignedHasLinesArrowsAndText)
{
    const Drawn drawn(drawAlignedDimension, aligned({0, 0}, {40, 0}, {13, 10}));
    ASSERT_EQ(drawn.lines().size(), 3U);
    expectNear(drawn.lines()[0], {0, 0.625, 0, 11.25});
    expectNear(drawn.lines()[1], {40, 0.625, 40, 11.25});
    expectNear(drawn.lines()[2], {0, 10, 40, 10});
    expectNear(arrow(drawn, 0), {{0, 10}, {2.5, 10 - 2.5 / 6}, {2.5, 10 + 2.5 / 6}});
    expectNear(arrow(drawn, 1), {{40, 10}, {37.5, 10 + 2.5 / 6}, {37.5, 10 - 2.5 / 6}});
    EXPECT_EQ(drawn.texts(), QStringList{"40"});
    expectNear(drawn.text(0), {20, 10.625, 2.5, 0, 0, 11});
    for (const Primitive& primitive : drawn.picture().primitives)
        EXPECT_EQ(drawn.picture().styles[primitive.style].role, Role::Dimension);
}

TEST(Dimensions, AlignedFollowsItsPoints)
{
    // 3, 4, 5: the line lies 10 to the right of the points.
    const Drawn drawn(drawAlignedDimension, aligned({0, 0}, {30, 40}, {8, -6}));
    expectNear(drawn.lines()[2], {8, -6, 38, 34});
    EXPECT_EQ(drawn.texts(), QStringList{"50"});
    const double angle = std::atan2(4, 3);
    expectNear(drawn.text(0), {23 - 0.625 * 0.8, 14 + 0.625 * 0.6, 2.5, angle, 0, 11});
}

TEST(Dimensions, ArrowsWithoutRoomStandOutside)
{
    const Drawn drawn(drawAlignedDimension, aligned({0, 0}, {4, 0}, {0, 10}));
    expectNear(drawn.lines()[2], {-5, 10, 9, 10});
    EXPECT_EQ(arrow(drawn, 0)[0], (Point{0, 10}));
    EXPECT_NEAR(arrow(drawn, 0)[1].x, -2.5, 1e-9);
    EXPECT_NEAR(arrow(drawn, 1)[1].x, 6.5, 1e-9);
}

TEST(Dimensions, RotatedMeasuresAlongItsAngle)
{
    SaidValues dimension("AcDbRotatedDimension");
    dimension.say("xLine1Point", Point{0, 0}).say("xLine2Point", Point{30, 40}).say("dimLinePoint", Point{50, 7});
    dimension.say("rotation", kPi / 2);
    const Drawn drawn(drawRotatedDimension, dimension);
    ASSERT_EQ(drawn.lines().size(), 3U);
    expectNear(drawn.lines()[0], {0.625, 0, 51.25, 0});
    expectNear(drawn.lines()[1], {30.625, 40, 51.25, 40});
    expectNear(drawn.lines()[2], {50, 0, 50, 40});
    EXPECT_EQ(drawn.texts(), QStringList{"40"});
    expectNear(drawn.text(0), {49.375, 20, 2.5, kPi / 2, 0, 11});

    // The text has an angle of its own: it is as high over the line as it is wide.
    dimension.say("Rotation", 2 * kPi);
    const double half = 2 * 0.76 * 2.5 / 2;
    const Drawn turned(drawRotatedDimension, dimension);
    expectNear(turned.text(0), {50 - 0.625 - half, 20 - 1.25, 2.5, 2 * kPi, 0, 11});
}

TEST(Dimensions, OrdinateCountsFromItsOrigin)
{
    SaidValues dimension("AcDbOrdinateDimension");
    dimension.say("definingPoint", Point{30, 30}).say("leaderEndPoint", Point{30, 80});
    dimension.say("isUsingXAxis", 1).say("setZero", Point{10, 5});
    const Drawn straight(drawOrdinateDimension, dimension);
    expectNear(straight.corners(Shape::Path).at(0), {{30, 30.625}, {30, 80}});
    EXPECT_EQ(straight.texts(), QStringList{"20"});
    expectNear(straight.text(0), {31.25, 80.625, 2.5, kPi / 2, 0, 10});

    SaidValues other("AcDbOrdinateDimension");
    other.say("definingPoint", Point{30, 30}).say("leaderEndPoint", Point{-20, 40}).say("isUsingXAxis", 0);
    const Drawn stepped(drawOrdinateDimension, other);
    expectNear(stepped.corners(Shape::Path).at(0), {{29.375, 30}, {-10, 30}, {-15, 40}, {-20, 40}});
    EXPECT_EQ(stepped.texts(), QStringList{"30"});
    expectNear(stepped.text(0), {-20.625, 38.75, 2.5, 0, 0, 12});
}

TEST(Dimensions, AngleLiesBetweenTwoLines)
{
    SaidValues dimension("AcDb2LineAngularDimension");
    dimension.say("xLine1Start", Point{0, 0}).say("xLine1End", Point{10, 0});
    dimension.say("xLine2Start", Point{0, 10}).say("xLine2End", Point{0, 4});
    SaidValues opposite = dimension;
    const Drawn drawn(drawTwoLineAngle, dimension.say("arcPoint", Point{12, 16}));
    ASSERT_EQ(drawn.lines().size(), 2U);
    expectNear(drawn.lines()[0], {10.625, 0, 21.25, 0});
    expectNear(drawn.lines()[1], {0, 10.625, 0, 21.25});
    expectNear(drawn.all(Shape::Arc).at(0), {0, 0, 20, 0, kPi / 2});
    expectNear(std::vector{arrow(drawn, 0)[0], arrow(drawn, 1)[0]}, {{20, 0}, {0, 20}});
    EXPECT_EQ(drawn.texts(), QStringList{QString::fromUtf8("90°")});
    const double aside = 20.625 * std::sqrt(0.5);
    expectNear(drawn.text(0), {aside, aside, 2.5, -kPi / 4, 0, 11});

    // On the other side of both lines.
    const Drawn behind(drawTwoLineAngle, opposite.say("arcPoint", Point{-3, -4}));
    expectNear(behind.all(Shape::Arc).at(0), {0, 0, 5, -kPi, kPi / 2});
}

TEST(Dimensions, ParallelLinesHaveNoAngle)
{
    SaidValues dimension("AcDb2LineAngularDimension");
    dimension.say("xLine1Start", Point{0, 0}).say("xLine1End", Point{10, 0});
    dimension.say("xLine2Start", Point{0, 5}).say("xLine2End", Point{10, 5}).say("arcPoint", Point{20, 2});
    const Drawn drawn(drawTwoLineAngle, dimension);
    EXPECT_TRUE(drawn.isEmpty());
    EXPECT_EQ(drawn.remark(), "its lines are parallel");
}

TEST(Dimensions, AngleOfThreePointsGoesByItsArcPoint)
{
    SaidValues dimension("AcDb3PointAngularDimension");
    dimension.say("centerPoint", Point{0, 0}).say("xLine1Point", Point{10, 0}).say("xLine2Point", Point{0, 30});
    SaidValues large = dimension;
    const Drawn small(drawThreePointAngle, dimension.say("arcPoint", Point{12, 16}));
    expectNear(small.all(Shape::Arc).at(0), {0, 0, 20, 0, kPi / 2});
    ASSERT_EQ(small.lines().size(), 2U);
    expectNear(small.lines()[0], {10.625, 0, 21.25, 0});
    expectNear(small.lines()[1], {0, 29.375, 0, 18.75});

    const Drawn drawn(drawThreePointAngle, large.say("arcPoint", Point{-20, 0}));
    expectNear(drawn.all(Shape::Arc).at(0), {0, 0, 20, kPi / 2, 1.5 * kPi});
    EXPECT_EQ(drawn.texts(), QStringList{QString::fromUtf8("270°")});
}

TEST(Dimensions, ArcLengthIsThatOfTheMeasuredArc)
{
    SaidValues dimension("AcDbArcDimension");
    dimension.draw("centerPoint", OdGePoint3d{1, 2, 0});
    dimension.say("xLine1Point", Point{11, 2}).say("xLine2Point", Point{1, 12}).say("arcPoint", Point{10, 14});
    const Drawn drawn(drawArcLength, dimension);
    expectNear(drawn.all(Shape::Arc).at(0), {1, 2, 15, 0, kPi / 2});
    EXPECT_EQ(drawn.texts(), QStringList{QString::fromUtf8("⌒15.71")});

    const Drawn unknown(drawArcLength, SaidValues("AcDbArcDimension").say("xLine1Point", Point{11, 2}));
    EXPECT_TRUE(unknown.isEmpty());
    EXPECT_FALSE(unknown.remark().isEmpty());
}

TEST(Dimensions, DiameterGoesThroughTheCurve)
{
    SaidValues dimension("AcDbDiametricDimension");
    dimension.draw("chordPoint", OdGePoint3d{5, 0, 0}).draw("farChordPoint", OdGePoint3d{-5, 0, 0});
    const Drawn narrow(drawDiameter, dimension);
    expectNear(narrow.lines().at(0), {-5, 0, 5, 0});
    expectNear(std::vector{arrow(narrow, 0)[0], arrow(narrow, 1)[0]}, {{5, 0}, {-5, 0}});
    EXPECT_EQ(narrow.texts(), QStringList{QString::fromUtf8("Ø10")});
    expectNear(narrow.text(0), {5.625, -1.25, 2.5, 0, 0, 10});

    SaidValues wide("AcDbDiametricDimension");
    wide.draw("chordPoint", OdGePoint3d{50, 0, 0}).draw("farChordPoint", OdGePoint3d{-50, 0, 0});
    expectNear(Drawn(drawDiameter, wide).text(0), {0, 0.625, 2.5, 0, 0, 11});
}

TEST(Dimensions, RadiusIsThatOfTheCurveItHangsOn)
{
    SaidValues dimension("AcDbRadialDimension");
    dimension.draw("center", OdGePoint3d{10, 10, 0}).say("chordPoint", Point{10, 42}).say("Text override", "R<> typ.");
    const Drawn drawn(drawRadius, dimension);
    expectNear(drawn.lines().at(0), {10, 10, 10, 42});
    EXPECT_EQ(drawn.corners(Shape::Area).size(), 1U);
    EXPECT_EQ(arrow(drawn, 0)[0], (Point{10, 42}));
    EXPECT_EQ(drawn.texts(), QStringList{"R32 typ."});
}

TEST(Dimensions, RadiusOfACurveOfTheDrawingIsItsOwn)
{
    OdDbDatabase database;
    const OdDbObjectId circle = database.addObject(OdDbHandle(0x32), odrxNew<OdDbCircle>(OdGePoint3d{10, 10, 0}, 8.25));
    SaidValues association("AcDbDimAssoc");
    association.draw("pointRefs", OdDbFour<OdArray<OdDbObjectId>>{{{}, {circle}, {}, {}}});
    const OdDbObjectId entry = database.addObject(OdDbHandle(0xA32), association.drawnObject());
    SaidValues curve("AcDbCircle");
    curve.say("Center X", 10.0).say("Center Y", 10.0).say("Radius", 8.25);

    SaidValues radius("AcDbRadialDimension");
    radius.draw("extensionDictionary", OdDbNamedIds{{"ACAD_DIMASSOC", entry}}).say("chordPoint", Point{10, 18.3});
    radius.know(0x32, curve);
    const Drawn drawn(drawRadius, radius);
    expectNear(drawn.lines().at(0), {10, 10, 10, 18.3});
    EXPECT_EQ(drawn.texts(), QStringList{"R8.25"});

    SaidValues diameter("AcDbDiametricDimension");
    diameter.draw("extensionDictionary", OdDbNamedIds{{"ACAD_DIMASSOC", entry}}).say("chordPoint", Point{10, 18.3});
    diameter.know(0x32, curve);
    const Drawn across(drawDiameter, diameter);
    expectNear(across.lines().at(0), {10, 1.7, 10, 18.3});
    EXPECT_EQ(across.texts(), QStringList{QString::fromUtf8("Ø16.5")});
}

TEST(Dimensions, SayWhatIsLeftOut)
{
    SaidValues dimension = aligned({0, 0}, {40, 0}, {0, 10});
    EXPECT_TRUE(Drawn(drawAlignedDimension, dimension).remark().isEmpty());
    dimension.say("Arrow 2", 6).say("Tolerance display", 1).say("Alt enabled", "Yes").say("Dim UnitSystem", 4);
    EXPECT_EQ(Drawn(drawAlignedDimension, dimension).remark(),
              "its arrows as closed and filled ones; its tolerances are left out; its second unit is left out; "
              "its lengths as decimal numbers");
}

TEST(Dimensions, JoggedStepsAside)
{
    SaidValues dimension("AcDbRadialDimensionLarge");
    dimension.draw("center", OdGePoint3d{0, 0, 0}).draw("chordPoint", OdGePoint3d{100, 0, 0});
    dimension.say("Center location override x", 60.0).say("Center location override y", -10.0);
    dimension.say("Jog location x", 80.0).say("Jog location y", -5.0);
    const Drawn drawn(drawJogged, dimension);
    expectNear(drawn.corners(Shape::Path).at(0), {{60, -10}, {75, -10}, {85, 0}, {100, 0}});
    EXPECT_EQ(arrow(drawn, 0)[0], (Point{100, 0}));
    EXPECT_EQ(drawn.texts(), QStringList{"R100"});
    expectNear(drawn.text(0), {100.625, -1.25, 2.5, 0, 0, 10});
}

QStringList textsOf(SaidValues dimension, const char* tag, const CFxVariant& value)
{
    return Drawn(drawAlignedDimension, dimension.say(tag, value)).texts();
}

TEST(Dimensions, TextStandsForWhatIsMeasured)
{
    const SaidValues dimension = aligned({0, 0}, {40.125, 0}, {0, 10});
    const auto texts = [&](const char* tag, const CFxVariant& value) { return textsOf(dimension, tag, value); };
    const auto word = [](const char* text) { return CFxVariant(CFxString(text)); };
    EXPECT_EQ(texts("Text override", word("")), QStringList{"40.13"});
    EXPECT_EQ(texts("Text override", word("<> H7\\Ptyp.")), (QStringList{"40.13 H7", "typ."}));
    EXPECT_EQ(texts("Text override", word("A\\B")), QStringList{"A\\B"});
    EXPECT_EQ(texts("Text override", word(" ")), QStringList{});
    EXPECT_EQ(texts("Precision", 1), QStringList{"40.1"});
    EXPECT_EQ(texts("Precision", 4), QStringList{"40.1250"});
    EXPECT_EQ(texts("Precision", -7), QStringList{"40"});
    EXPECT_EQ(texts("Decimal separator", word(",")), QStringList{"40,13"});
    EXPECT_EQ(texts("Dim prefix", word("ca. <> mm")), QStringList{"ca. 40.13 mm"});
    EXPECT_EQ(texts("Dim scale linear", 2.0), QStringList{"80.25"});
    EXPECT_EQ(texts("Dim roundoff", 0.5), QStringList{"40"});
    EXPECT_EQ(Drawn(drawAlignedDimension, aligned({0, 0}, {0.0625, 0}, {0, 1})).texts(), QStringList{"0.0625"});
}

TEST(Dimensions, SizesAreItsOwnOrThoseOfItsStyle)
{
    SaidValues style("AcDbDimStyleTableRecord");
    style.say("Arrow Size", 4.0).say("TextDimensionTextHeight", 5.0).say("ExtLineDimensionsOffset", 0.0);
    style.say("FitScaleFactor", 2.0).say("LinearDimensionsPrecision", 1);
    SaidValues dimension = aligned({0, 0}, {40, 0}, {0, 10});
    dimension.say("Dim style", "Workshop");
    dimension.know("Workshop", style);
    const Drawn drawn(drawAlignedDimension, dimension);
    EXPECT_NEAR(arrow(drawn, 0)[1].x, 8.0, 1e-9);
    EXPECT_NEAR(drawn.text(0)[2], 10.0, 1e-9);
    EXPECT_EQ(drawn.texts(), QStringList{"40.0"});
    expectNear(drawn.lines()[0], {0, 0, 0, 12.5});

    dimension.say("Arrow size", 1.0).say("ExtLine 1", "Yes").say("ExtLine 2", "No");
    const Drawn own(drawAlignedDimension, dimension);
    EXPECT_NEAR(arrow(own, 0)[1].x, 2.0, 1e-9);
    ASSERT_EQ(own.lines().size(), 2U);
    expectNear(own.lines()[0], {40, 0, 40, 12.5});
}

TEST(Dimensions, TextMayStandElsewhere)
{
    SaidValues dimension = aligned({0, 0}, {40, 0}, {0, 10});
    dimension.say("Position x", 55.0).say("Position y", -20.0);
    expectNear(Drawn(drawAlignedDimension, dimension).text(0), {55, -21.25, 2.5, 0, 0, 11});
}

struct Degenerate
{
    const char* className;
    Drawer drawer;
    std::vector<const char*> points;
};

const Degenerate kinds[] = {
    {"AcDbAlignedDimension", drawAlignedDimension, {"xLine1Point", "xLine2Point", "dimLinePoint"}},
    {"AcDbRotatedDimension", drawRotatedDimension, {"xLine1Point", "xLine2Point", "dimLinePoint"}},
    {"AcDbOrdinateDimension", drawOrdinateDimension, {"definingPoint", "leaderEndPoint"}},
    {"AcDb2LineAngularDimension",
     drawTwoLineAngle,
     {"xLine1Start", "xLine1End", "xLine2Start", "xLine2End", "arcPoint"}},
    {"AcDb3PointAngularDimension", drawThreePointAngle, {"centerPoint", "xLine1Point", "xLine2Point", "arcPoint"}},
    {"AcDbArcDimension", drawArcLength, {"xLine1Point", "xLine2Point", "arcPoint"}},
    {"AcDbDiametricDimension", drawDiameter, {"chordPoint"}},
    {"AcDbRadialDimension", drawRadius, {"chordPoint"}},
    {"AcDbRadialDimensionLarge", drawJogged, {"Center location override", "Jog location", "Position"}},
};

TEST(Dimensions, OfPointsThatCoincideNothingIsDrawnAndThatIsSaid)
{
    for (const Degenerate& kind : kinds) {
        SaidValues values(kind.className);
        EXPECT_TRUE(Drawn(kind.drawer, values).isEmpty()) << kind.className;
        for (const char* const tag : kind.points)
            values.say(tag, Point{3, 4});
        const Drawn drawn(kind.drawer, values);
        EXPECT_TRUE(drawn.isEmpty()) << kind.className;
        EXPECT_FALSE(drawn.remark().isEmpty()) << kind.className;
    }
}

TEST(Dimensions, NumbersStayFinite)
{
    constexpr double kHuge = std::numeric_limits<double>::max();
    constexpr double kTiny = std::numeric_limits<double>::denorm_min();
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    const std::vector<double> numbers{0.0, 1.0, -kHuge, kHuge, kTiny, kNone, 1e150};
    for (const Degenerate& kind : kinds)
        for (std::size_t first = 0; first < numbers.size(); ++first) {
            SaidValues values(kind.className);
            std::size_t next = first;
            for (const char* const tag : kind.points) {
                values.say(tag, Point{numbers[next % numbers.size()], numbers[(next + 3) % numbers.size()]});
                next += 2;
            }
            for (const char* const tag : {"Arrow size", "Text height", "Dim scale overall", "Rotation", "rotation",
                                          "Dim scale linear", "ExtLine offset", "Jog angle", "Dim roundoff"})
                values.say(tag, numbers[next++ % numbers.size()]);
            const Drawn drawn(kind.drawer, values);
            for (const double number : drawn.picture().numbers)
                EXPECT_TRUE(std::isfinite(number)) << kind.className << ' ' << first;
        }
}

} // namespace
