#include "Drawn.h"

#include "view/boundaries.h"
#include "view/drawers.h"
#include "view/hatchActions.h"
#include "view/patterns.h"

#include <cmath>
#include <numbers>

using namespace inkmacro::view;

namespace {

constexpr double kPi = std::numbers::pi;

CFxVariant list(const std::vector<CFxVariant>& items)
{
    std::vector<CFxVariantCollectionElement> elements;
    for (const CFxVariant& item : items)
        elements.emplace_back(CFxVariant(), item);
    return CFxVariantCollection(std::move(elements));
}

SaidValues hatch(const char* pattern)
{
    return SaidValues("AcDbHatch").say("Pattern name", pattern);
}

SaidValues withIsland(const char* pattern)
{
    SaidValues values = hatch(pattern);
    values.sayPoints(kBoundaryPoints, {{0, 0}, {20, 0}, {20, 10}, {0, 10}, {5, 5}, {8, 5}, {8, 8}});
    return values.say(kBoundaryCounts, list({4, 3}));
}

std::vector<double> steps(const Outline& outline)
{
    return outline.numbers();
}

TEST(Hatches, LeaveIslandsOut)
{
    const Drawn drawn(drawHatch, withIsland("SOLID"));
    ASSERT_EQ(drawn.corners(Shape::Area).size(), 1U);
    expectNear(drawn.corners(Shape::Area)[0], {{0, 0}, {20, 0}, {20, 10}, {0, 10}, {5, 5}, {8, 5}, {8, 8}});
    const std::vector<double> numbers = drawn.all(Shape::Area)[0];
    EXPECT_EQ(numbers[12], static_cast<double>(PathStep::Close));
    EXPECT_EQ(numbers[13], static_cast<double>(PathStep::Move));

    const Drawn whole(drawHatch, withIsland("SOLID").say("Internal region detection", "Ignore"));
    EXPECT_EQ(whole.corners(Shape::Area).size(), 2U);
}

TEST(Hatches, TakeCountsThatDoNotFit)
{
    SaidValues values = hatch("SOLID");
    values.sayPoints(kBoundaryPoints, {{0, 0}, {20, 0}, {20, 10}}).say(kBoundaryCounts, list({-5, 2, 2'000'000'000}));
    EXPECT_EQ(Drawn(drawHatch, values).corners(Shape::Area).at(0).size(), 3U);
}

TEST(Hatches, ScaleAndTurnTheirPattern)
{
    SaidValues values = withIsland("ansi31");
    values.say("Scale", 2.0).say("Angle", kPi / 4).say("Origin X", 4.0).say("Origin Y", -2.5);
    const Drawn drawn(drawHatch, values);
    std::vector<double> numbers = drawn.all(Shape::Pattern).at(0);
    numbers.resize(6);
    expectNear(numbers, {1, kPi / 2, 4, -2.5, 6.35, 0});

    SaidValues own = withIsland("whatever");
    own.say("Type", "User defined").say("Spacing", 1.5).say("Angle", 0.5).say("Scale", 7.0);
    numbers = Drawn(drawHatch, own).all(Shape::Pattern).at(0);
    numbers.resize(6);
    expectNear(numbers, {1, 0.5, 0, 0, 1.5, 0});
}

TEST(Hatches, OfBricksHaveJoints)
{
    const auto lines = placed(patternNamed("BRICK").value(), 2.0, kPi / 2, {1, 1});
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_NEAR(lines[0].angle, kPi / 2, 1e-12);
    EXPECT_NEAR(lines[0].distance, 12.7, 1e-12);
    expectNear({lines[2].base}, {{1 - 12.7, 1 + 12.7}});
    expectNear(lines[2].dashes, {12.7, -12.7});
    EXPECT_FALSE(patternNamed("GRASS"));
}

TEST(Hatches, OfUnknownPatternsAreTinted)
{
    const Drawn drawn(drawHatch, withIsland("GRASS"));
    EXPECT_EQ(drawn.remark(), "pattern GRASS as outline with tint");
    EXPECT_EQ(drawn.all(Shape::Pattern).at(0)[4], 0.0);
    EXPECT_EQ(drawn.corners(Shape::Path).size(), 1U);
}

TEST(Hatches, WithoutABoundaryShowTheirPoints)
{
    SaidValues values = hatch("ANSI31");
    values.sayPoints(kInternalPoints, {{2, 1}, {30, 12.5}});
    const Drawn drawn(drawHatch, values);
    expectNear(drawn.corners(Shape::Path).at(1), {{28.75, 12.5}, {30, 11.25}, {31.25, 12.5}, {30, 13.75}});
    EXPECT_FALSE(drawn.remark().isEmpty());
    EXPECT_FALSE(Drawn(drawHatch, hatch("SOLID")).remark().isEmpty());
}

TEST(Hatches, HaveBulgesAndLoopsOfTheDrawing)
{
    SaidValues bulged = hatch("SOLID");
    bulged.sayPoints(kBoundaryPoints, {{0, 0}, {10, 0}, {10, 8}}).say(kBoundaryBulges, list({0.0, 1.0}));
    const std::vector<double> numbers = Drawn(drawHatch, bulged).all(Shape::Area).at(0);
    const auto kind = [](PathStep step) { return static_cast<double>(step); };
    expectNear(numbers, {kind(PathStep::Move), 0, 0, kind(PathStep::Line), 10, 0, kind(PathStep::Arc), 10, 4, 4,
                         -kPi / 2, kPi, kind(PathStep::Close)});

    SaidValues drawn = hatch("SOLID");
    OdDbHatchLoop loop;
    loop.vertices = {{0, 0}, {9, 0}, {9, 4}};
    drawn.draw("loops", OdArray<OdDbHatchLoop>{loop});
    expectNear(Drawn(drawHatch, drawn).corners(Shape::Area).at(0), {{0, 0}, {9, 0}, {9, 4}});
}

SaidValues line(Point from, Point to)
{
    SaidValues values("AcDbLine");
    values.say("Start X", from.x).say("Start Y", from.y).say("End X", to.x).say("End Y", to.y);
    return values;
}

TEST(Boundaries, ChainWhatMeets)
{
    // Two lines and half a circle, of which one line runs the other way; and a circle by itself.
    SaidValues arc("AcDbArc");
    arc.say("Center X", 10.0).say("Center Y", 5.0).say("Radius", 5.0);
    arc.say("Start Angle", -kPi / 2).say("End Angle", kPi / 2);
    SaidValues circle("AcDbCircle");
    circle.say("Center X", 5.0).say("Center Y", 5.0).say("Radius", 1.0);
    const SaidValues bottom = line({0, 0}, {10, 0});
    const SaidValues top = line({0, 10}, {10, 10});
    const SaidValues left = line({0, 10}, {0, 0});
    const std::vector<Outline> loops = loopsAlong({&bottom, &top, &circle, &arc, &left});
    ASSERT_EQ(loops.size(), 2U);
    const auto kind = [](PathStep step) { return static_cast<double>(step); };
    expectNear(steps(loops[0]),
               {kind(PathStep::Move), 6, 5, kind(PathStep::Arc), 5, 5, 1, 0, 2 * kPi, kind(PathStep::Close)});
    expectNear(steps(loops[1]),
               {kind(PathStep::Move), 0, 0, kind(PathStep::Line), 10, 0, kind(PathStep::Arc), 10, 5, 5, -kPi / 2, kPi,
                kind(PathStep::Line), 0, 10, kind(PathStep::Line), 0, 0, kind(PathStep::Close)});
}

TEST(Boundaries, FollowWhatIsMoved)
{
    SaidValues edge = line({0, 0}, {10, 0});
    edge.move(Affine::moved(5, 7));
    const auto kind = [](PathStep step) { return static_cast<double>(step); };
    expectNear(steps(loopsAlong({&edge}).at(0)),
               {kind(PathStep::Move), 5, 7, kind(PathStep::Line), 15, 7, kind(PathStep::Close)});
    // A hatch that is moved with it is moved when it is drawn.
    expectNear(steps(loopsAlong({&edge}, Affine::moved(5, 7)).at(0)),
               {kind(PathStep::Move), 0, 0, kind(PathStep::Line), 10, 0, kind(PathStep::Close)});
}

TEST(Boundaries, CloseWhatStaysOpen)
{
    const SaidValues first = line({0, 0}, {10, 0});
    const SaidValues second = line({10, 0}, {10, 10});
    const SaidValues far = line({1e9, 0}, {1e9, 5e8});
    EXPECT_EQ(loopsAlong({&first, &second}).size(), 1U);
    EXPECT_EQ(loopsAlong({}).size(), 0U);
    const SaidValues same = line({3, 3}, {3, 3});
    EXPECT_EQ(loopsAlong({&same, &same, &far}).size(), 3U);
    // Neither itself nor what has no outline is a boundary.
    const SaidValues other = withIsland("SOLID");
    const SaidValues words = SaidValues("AcDbText").say("Contents", "x");
    EXPECT_TRUE(loopsAlong({&other, &words}).empty());
}

} // namespace
