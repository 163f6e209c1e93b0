// Boxes around what is drawn, and what drawers make of objects, against numbers that were reckoned by hand.

#include "RecordedPicture.h"

#include "view/Pen.h"
#include "view/arcs.h"
#include "view/parallels.h"
#include "view/pathSteps.h"

#include <numbers>

namespace {

using namespace inkmacro::view;

constexpr double kPi = std::numbers::pi;

void expectBox(const std::optional<Box>& seen, const Box& wanted)
{
    ASSERT_TRUE(seen);
    EXPECT_NEAR(seen->left, wanted.left, 1e-9);
    EXPECT_NEAR(seen->bottom, wanted.bottom, 1e-9);
    EXPECT_NEAR(seen->right, wanted.right, 1e-9);
    EXPECT_NEAR(seen->top, wanted.top, 1e-9);
}

/// A picture of one object, which a test draws.
struct Sheet
{
    Sheet()
    {
        picture.spaces.resize(2);
        picture.layers.resize(1);
        picture.objects.resize(1);
    }
    Pen pen(std::uint16_t space = 0) { return Pen(picture, {0, 0, {}, space, kNoStep, kNoStep}); }
    std::optional<Box> box() const { return boxOf(picture.primitives.back(), picture); }

    Picture picture;
};

std::optional<Box> boxOf(const Outline& outline)
{
    Sheet sheet;
    sheet.pen().path(outline);
    return sheet.box();
}

/// The points that the steps of the n-th primitive lead to.
std::vector<Point> cornersOf(const RecordedPicture& seen, std::size_t number = 0)
{
    std::vector<Point> corners;
    PathSteps steps(seen.picture.numbersOf(seen.picture.primitives.at(number)));
    PathSteps::Step step;
    while (steps.next(step))
        if (step.numbers.size() >= 2)
            corners.push_back({step.numbers[step.numbers.size() - 2], step.numbers.back()});
    return corners;
}

QString points(const std::vector<Point>& points)
{
    QStringList elements;
    for (const Point& point : points)
        elements.append(QString(R"({"tag":0,"value":{"point":[%1,%2,0]}})").arg(point.x).arg(point.y));
    return R"({"collection":{"elements":[)" + elements.join(',') + "]}}";
}

} // namespace

TEST(Boxes, OfArcsAtTheirQuarters)
{
    const auto arc = [](double start, double sweep) {
        Sheet sheet;
        sheet.pen().arc({1, 2}, 3, start, sweep);
        return sheet.box();
    };
    const double half = 3 * std::sqrt(0.5);
    expectBox(arc(0, kPi / 2), {1, 2, 4, 5});
    expectBox(arc(kPi / 4, kPi / 2), {1 - half, 2 + half, 1 + half, 5});
    expectBox(arc(3 * kPi / 4, -kPi / 2), {1 - half, 2 + half, 1 + half, 5});
    expectBox(arc(-kPi / 4, kPi / 2), {1 + half, 2 - half, 4, 2 + half});
    expectBox(arc(7, 2 * kPi), {-2, -1, 4, 5});
}

TEST(Boxes, OfBulges)
{
    const auto bulged = [](double bulge) {
        const ArcBetween arc = arcBetween({0, 0}, {2, 0}, bulge);
        return boxOf(Outline().move({0, 0}).arc(arc.center, arc.radius, arc.start, arc.sweep));
    };
    expectBox(bulged(1), {0, -1, 2, 0});
    // An arc is as high as half its chord times its bulge.
    expectBox(bulged(-0.41), {0, 0, 2, 0.41});
    expectBox(bulged(-2), {1 - 1.25, 0, 1 + 1.25, 2});
}

TEST(Boxes, OfEllipsesAndCurves)
{
    // The half width is the root of both axes' squares along it.
    const double x = std::hypot(3, 2);
    const double y = std::hypot(4, 1.5);
    expectBox(boxOf(Outline().ellipse({10, 20}, {3, 4}, {-2, 1.5}, 0, kTurn)), {10 - x, 20 - y, 10 + x, 20 + y});
    expectBox(boxOf(Outline().ellipse({0, 0}, {4, 0}, {0, 2}, 0, kPi / 2)), {0, 0, 4, 2});
    expectBox(boxOf(Outline().move({0, 0}).bezier({0, 1}, {1, 1}, {1, 0})), {0, 0, 1, 0.75});
    // An S turns twice, at the roots of 1/2 - t + t t.
    const double turn = 3 * 0.5 * (1 - std::sqrt(1 / 3.0)) * std::pow(0.5 * (1 + std::sqrt(1 / 3.0)), 2) -
                        3 * std::pow(0.5 * (1 - std::sqrt(1 / 3.0)), 2) * 0.5 * (1 + std::sqrt(1 / 3.0));
    expectBox(boxOf(Outline().move({0, 0}).bezier({1, 1}, {2, -1}, {3, 0})), {0, -turn, 3, turn});
}

TEST(Boxes, OfReferencesAndWhatHasNoEnds)
{
    Sheet sheet;
    sheet.pen(1).line({1, 1}, {2, 3});
    sheet.pen().reference({-2, 0, 0, 1, 10, 0}, 1);
    expectBox(sheet.box(), {6, 1, 8, 3});
    sheet.pen().reference({0, 2, -1, 0, 0, 0}, 1);
    expectBox(sheet.box(), {-3, 2, -1, 4});
    sheet.pen().ray({100, 100}, {200, 200});
    EXPECT_FALSE(sheet.box());
    sheet.pen().xline({100, 100}, {200, 200});
    EXPECT_FALSE(sheet.box());
    sheet.pen().text({.text = "HHHH", .at = {0, 5}, .height = 2, .angle = kPi / 2, .width = 4, .place = 7});
    expectBox(sheet.box(), {-2, 5, 0, 9});
    expectBox(extentsOf(0, sheet.picture), {-3, 1, 8, 9});
    sheet.picture.primitives[1].until = 3; // what is gone does not count
    expectBox(extentsOf(0, sheet.picture), {-3, 2, 0, 9});
}

TEST(Drawers, EllipsesAndArcs)
{
    const RecordedPicture seen(
        {added("AcDbArc", "30",
               {{"Center X", "1"}, {"Center Y", "1"}, {"Radius", "2"}, {"Start Angle", "4"}, {"End Angle", "1"}}),
         added("AcDbEllipse", "31",
               {{"Center X", "0"},
                {"Center Y", "0"},
                {"Major axis vector X", "0"},
                {"Major axis vector Y", "4"},
                {"Minor radius", "1"},
                {"Start angle", "0"},
                {"End angle", "6.283185307179586"}}),
         modified("AcDbEllipse", "31", {{"Major radius", "6"}})});
    expectNear(seen.behind(2), {{1, 1, 2, 4, 2 * kPi - 3}, {3, 0, 0, 0, 4, -1, 0, 0, 2 * kPi}});
    expectBox(extentsOf(0, seen.picture), {-1, -6, 3, 6});
}

TEST(Drawers, EllipsesAslant)
{
    const QString ellipse = added("AcDbEllipse", "30",
                                  {{"Center X", "0"},
                                   {"Major axis vector X", "4"},
                                   {"Minor radius", "2"},
                                   {"Start angle", "0"},
                                   {"End angle", "0"}});
    const auto tilted = [](const char* minor) {
        return QString(R"({"object":{"class":"AcDbEllipse","handle":"30","majorAxis":[4,0,0],"minorAxis":[%1]}})")
            .arg(minor);
    };
    expectNear(RecordedPicture({tilted("0,1.2,1.6"), ellipse}).behind(1), {{3, 0, 0, 4, 0, 0, 1.2, 0, 2 * kPi}});
    // Not across the longer axis, so it has been turned since.
    expectNear(RecordedPicture({tilted("1.6,1.2,0"), ellipse}).behind(1), {{3, 0, 0, 4, 0, 0, 2, 0, 2 * kPi}});
    expectNear(RecordedPicture({tilted("0,0,2")}).behind(0), {{3, 0, 0, 4, 0, 0, 0, 0, 2 * kPi}});
}

TEST(Drawers, SplinesThroughTheirPoints)
{
    const RecordedPicture natural(
        {added("AcDbSpline", "30", {{"Fit point", points({{0, 0}, {5, 0}, {10, 0}, {10, 0}})}})});
    EXPECT_EQ(cornersOf(natural), (std::vector<Point>{{0, 0}, {5, 0}, {10, 0}}));

    // Between three points with level ends, the slope in the middle is 0 by symmetry.
    const RecordedPicture tangents({added("AcDbSpline", "30",
                                          {{"Fit point", points({{0, 0}, {3, 4}, {6, 0}})},
                                           {"Start tangent vector X", "2"},
                                           {"Start tangent vector Y", "0"},
                                           {"End tangent vector X", "1"},
                                           {"End tangent vector Y", "0"}})});
    const auto numbers = tangents.behind(1).at(0);
    // A third of the span of 5 along the unit tangent; in the middle the slope is 3 (1.2 + ...) by the equation.
    EXPECT_NEAR(numbers[4], 5.0 / 3.0, 1e-9);
    EXPECT_NEAR(numbers[5], 0, 1e-9);
    EXPECT_NEAR(numbers[7], 4, 1e-9);
    EXPECT_NEAR(numbers[6], 3 - 5.0 / 3.0 * ((6.0 * 0.6 - 2.0) / 4.0), 1e-9);

    // A closed one goes around: the same corners in another order make the same curve.
    const RecordedPicture closed({added(
        "AcDbSpline", "30", {{"Fit point", points({{1, 0}, {0, 1}, {-1, 0}, {0, -1}})}, {"Closed", "\"Yes\""}})});
    const auto around = closed.behind(1).at(0);
    const double handle = std::sqrt(2) / 3.0 * 1.5 / std::sqrt(2); // a third of the span along a slope of 1.5 / root 2
    EXPECT_NEAR(around[4], 1, 1e-9);
    EXPECT_NEAR(around[5], handle, 1e-9);
    expectBox(extentsOf(0, closed.picture), {-1, -1, 1, 1});

    const RecordedPicture pulled(
        {R"({"added":{"class":"AcDbSpline","handle":"30","properties":[)"
         R"({"tag":"Control point X","value":0,"index":{"int":0}},{"tag":"Control point Y","value":0,"index":{"int":0}},)"
         R"({"tag":"Control point X","value":4,"index":{"int":1}},{"tag":"Control point Y","value":0,"index":{"int":1}}]}})"});
    EXPECT_EQ(cornersOf(pulled).front(), (Point{0, 0}));
    EXPECT_NEAR(cornersOf(pulled).back().x, 4, 1e-9);
}

TEST(Drawers, RichLinesBesideTheirVertices)
{
    const char* const style = R"({"object":{"class":"AcDbMlineStyle","handle":"20","name":"Wall","elements":[)"
                              R"({"offset":1},{"offset":0,"color":{"index":1}},{"offset":-1}]}})";
    const auto line = [&](const char* justification, const char* closed) {
        return added("AcDbMline", "30",
                     {{"vertices", points({{0, 0}, {10, 0}, {10, 10}})},
                      {"RLine justification", justification},
                      {"RLine scale", "2"},
                      {"RLineStyle", "\"wall\""},
                      {"closedMline", closed}});
    };
    const RecordedPicture zero({style, line("\"Zero\"", "0")});
    ASSERT_EQ(zero.picture.primitives.size(), 3U);
    EXPECT_EQ(cornersOf(zero, 0), (std::vector<Point>{{0, 2}, {8, 2}, {8, 10}}));
    EXPECT_EQ(cornersOf(zero, 1), (std::vector<Point>{{0, 0}, {10, 0}, {10, 10}}));
    EXPECT_EQ(zero.picture.styles[zero.picture.primitives[1].style].color, OdCmColor::byIndex(1));
    EXPECT_TRUE(zero.picture.styles[zero.picture.primitives[2].style].color.isByLayer());
    const RecordedPicture top({style, line("\"Top\"", "0")});
    EXPECT_EQ(cornersOf(top, 2), (std::vector<Point>{{0, -4}, {14, -4}, {14, 10}}));
    EXPECT_EQ(top.remark(0x30), "");
    const RecordedPicture alone({line("\"Bottom\"", "0")});
    EXPECT_EQ(cornersOf(alone, 0), (std::vector<Point>{{0, 2}, {8, 2}, {8, 10}}));
    EXPECT_EQ(alone.remark(0x30), "the lines of its style are not told");
    EXPECT_NEAR(parallelTo({{0, 0}, {10, 0}, {10, 10}, {0, 10}}, true, 1)[0].x, 1, 1e-12);
}

TEST(Drawers, SurfacesAndMeshes)
{
    const std::vector<Point> square{{0, 0}, {4, 0}, {0, 3}, {4, 3}};
    const RecordedPicture seen({added("AcDbSolid", "30", {{"Vertex", points(square)}}),
                                added("AcDbFace", "31",
                                      {{"Vertex", points(square)},
                                       {"Edge 1", "\"Visible\""},
                                       {"Edge 2", "\"Hidden\""},
                                       {"Edge 3", "\"Visible\""},
                                       {"Edge 4", "\"Hidden\""}}),
                                added("AcDbPolygonMesh", "32",
                                      {{"Vertex", points({{0, 0}, {1, 0}, {2, 0}, {0, 1}, {1, 1}, {2, 1}})},
                                       {"M vertex count", R"({"int":2})"},
                                       {"N vertex count", R"({"int":3})"}}),
                                added("AcDbPolygonMesh", "33",
                                      {{"Vertex", points(square)},
                                       {"M vertex count", R"({"int":2147483647})"},
                                       {"N vertex count", R"({"int":2147483647})"}})});
    EXPECT_EQ(seen.picture.primitives[0].shape, Shape::Area);
    EXPECT_EQ(cornersOf(seen, 0), (std::vector<Point>{{0, 0}, {4, 0}, {4, 3}, {0, 3}}));
    EXPECT_EQ(cornersOf(seen, 1), (std::vector<Point>{{0, 0}, {4, 0}, {0, 3}, {4, 3}}));
    EXPECT_EQ(cornersOf(seen, 2).size(), 2U * 3U + 3U * 2U);
    EXPECT_EQ(seen.picture.primitives.size(), 3U);

    const RecordedPicture faces(
        {R"({"object":{"class":"AcDbPolyFaceMesh","handle":"30","vertices":[[0,0,0],[1,0,0],[1,1,0],[0,1,0]],)"
         R"("faces":[[1,-2,3],[1,3,4,0],[-2147483648,9,1]]}})"});
    EXPECT_EQ(cornersOf(faces),
              (std::vector<Point>{{0, 0}, {1, 0}, {1, 1}, {0, 0}, {0, 0}, {1, 1}, {1, 1}, {0, 1}, {0, 1}, {0, 0}}));

    const RecordedPicture region({R"({"object":{"class":"AcDbRegion","handle":"30","pieces":["31","30"]}})",
                                  R"({"object":{"class":"AcDbCircle","handle":"31","center":[1,1,0],"radius":1}})"});
    EXPECT_EQ(region.picture.primitives.size(), 2U);
    EXPECT_EQ(region.remark(0x30), "a part of its boundary is not told");
}

TEST(Drawers, WidePolylines)
{
    const auto wide = [](const char* closed, const char* width) {
        return added("AcDbPolyline", "30",
                     {{"Vertex", points({{0, 0}, {10, 0}, {10, 10}})}, {"Closed", closed}, {"Global width", width}});
    };
    const RecordedPicture seen({wide("\"No\"", "2")});
    ASSERT_EQ(seen.picture.primitives.size(), 3U);
    // Both meet in a mitre.
    EXPECT_EQ(cornersOf(seen, 0), (std::vector<Point>{{0, 1}, {9, 1}, {11, -1}, {0, -1}}));
    EXPECT_EQ(cornersOf(seen, 1), (std::vector<Point>{{9, 1}, {9, 10}, {11, 10}, {11, -1}}));
    EXPECT_EQ(RecordedPicture({wide("\"Yes\"", "0")}).picture.primitives.size(), 1U);

    // A half circle of radius 5 that grows from no width to 2 on both sides.
    const RecordedPicture tapered({command(
        {custom(16, R"({"points":[[-5,0,0],[5,0,0]]},{"points":[[1,0,0],[0,0,0]]},{"bool":false},{"handle":"30"},)"
                    R"({"class":"AcDbPolyline"},{"doubles":[0,0]},{"doubles":[4,0]},{"bool":false},{"double":0})")})});
    ASSERT_EQ(tapered.picture.primitives.size(), 2U);
    const std::vector<Point> corners = cornersOf(tapered, 0);
    EXPECT_NEAR(corners.front().x, -5, 1e-9);
    int beside = 0;
    for (const Point& corner : corners) {
        if (corner.y > -1e-9)
            continue;
        const double done = (std::atan2(corner.y, corner.x) + kPi) / kPi;
        const double away = std::abs(std::hypot(corner.x, corner.y) - 5);
        EXPECT_NEAR(away, 2 * done, 1e-9);
        ++beside;
    }
    EXPECT_EQ(beside, 14); // of eight pieces on each side
    expectBox(boxOf(tapered.picture.primitives[1], tapered.picture), {-5, -5, 5, 0});
}

TEST(Drawers, BlocksOfOtherDrawingsAndPictures)
{
    const RecordedPicture seen(
        {R"({"object":{"class":"AcDbBlockTableRecord","handle":"20","name":"site","isFromExternalReference":true,)"
         R"("pathName":"..\\refs\\site.dwg"}})",
         added("AcDbBlockReference", "30", {{"Name", "\"site\""}, {"Position X", "0"}, {"Position Y", "0"}}),
         added(
             "AcDbRasterImage", "31",
             {{"Path", "\"/x/plan.png\""}, {"Position X", "1"}, {"Position Y", "2"}, {"Width", "4"}, {"Height", "3"}}),
         command({added("AcDbViewport", "32", {}),
                  custom(46, R"({"points":[[0,0,0],[4,0,0],[4,3,0]]},{"points":[]},{"bool":true},{"handle":"32"},)"
                             R"({"class":"AcDbViewport"},{"string":"Plan"})")})});
    EXPECT_EQ(seen.picture.texts, (std::vector<QString>{"site.dwg", "plan.png"}));
    EXPECT_EQ(seen.remark(0x30), "it shows another drawing");
    EXPECT_EQ(seen.remark(0x31), "the picture is not loaded");
    EXPECT_EQ(seen.spaceOf(0x32), "Plan");
    expectBox(extentsOf(seen.object(0x32).space, seen.picture), {0, 0, 4, 3});
    for (const Primitive& primitive : seen.picture.primitives)
        EXPECT_EQ(seen.picture.styles[primitive.style].role, Role::Frame);

    const char* const clipped = R"({"handle":"32"},{"class":"AcDbViewport"},{"points2d":[[0,0],[9,0],[9,9]]})";
    const RecordedPicture viewport(
        {added("AcDbViewport", "32", {{"Center X", "5"}, {"Center Y", "5"}, {"Width", "4"}, {"Height", "2"}}),
         custom(48, clipped)});
    EXPECT_EQ(viewport.picture.primitives.size(), 2U);
    expectBox(boxOf(viewport.picture.primitives[0], viewport.picture), {3, 4, 7, 6});
    expectBox(boxOf(viewport.picture.primitives[1], viewport.picture), {0, 0, 9, 9});
}
