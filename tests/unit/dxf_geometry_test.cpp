// Curves and directions of drawings.

#include "dxf/directions.h"
#include "dxf/splines.h"
#include "dxf/vectors.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <numbers>

using namespace inkmacro::dxf;

namespace {

/// Places on the spline through fit points, close to one another. Its derivatives are found by going round until they
/// no longer change, as each follows from its neighbours.
std::vector<OdGePoint3d> placesOn(const FitPoints& fit)
{
    const auto& points = fit.points;
    const size_t last = points.size() - 1;
    std::vector<OdGeVector3d> slopes(points.size());
    slopes[0] = fit.startTangent;
    slopes[last] = fit.endTangent;
    const auto chord = [&](size_t i) { return points[i].distanceTo(points[i + 1]); };
    for (int round = 0; round < 80; ++round)
        for (size_t i = 1; i < last; ++i) {
            const double p = chord(i - 1);
            const double q = chord(i);
            slopes[i] = 1 / (2 * (1 / p + 1 / q)) *
                        (3 / (p * p) * (points[i] - points[i - 1]) + 3 / (q * q) * (points[i + 1] - points[i]) -
                         1 / p * slopes[i - 1] - 1 / q * slopes[i + 1]);
        }
    std::vector<OdGePoint3d> places;
    for (size_t i = 0; i < last; ++i)
        for (double t = 0; t < 1; t += 1.0 / 64) {
            const OdGeVector3d way = points[i + 1] - points[i];
            places.push_back(points[i] + t * t * (3 - 2 * t) * way +
                             chord(i) * t * (1 - t) * ((1 - t) * slopes[i] - t * slopes[i + 1]));
        }
    places.push_back(points[last]);
    return places;
}

/// Expects a fit whose spline stays as near to a shape as it says, and that to be near enough.
FitPoints expectFit(const Nurbs& curve, double tolerance,
                    const std::function<double(const OdGePoint3d&)>& distanceToShape)
{
    const std::optional<FitPoints> fit = fitPoints(curve, tolerance);
    EXPECT_TRUE(fit);
    if (!fit)
        return {};
    EXPECT_LE(fit->deviation, tolerance);
    double farthest = 0;
    for (const OdGePoint3d& place : placesOn(*fit))
        farthest = std::max(farthest, distanceToShape(place));
    EXPECT_LE(farthest, 1.05 * tolerance);
    for (size_t i = 1; i < fit->points.size(); ++i)
        EXPECT_GT(fit->points[i].distanceTo(fit->points[i - 1]), 0);
    return *fit;
}

void expectVector(const OdGeVector3d& vector, double x, double y, double z)
{
    EXPECT_NEAR(vector.x, x, 1e-12);
    EXPECT_NEAR(vector.y, y, 1e-12);
    EXPECT_NEAR(vector.z, z, 1e-12);
}

Nurbs bezier(std::vector<OdGePoint3d> points)
{
    const int degree = int(points.size()) - 1;
    Nurbs curve{degree, std::vector<double>(2 * points.size()), std::move(points), {}};
    std::fill(curve.knots.begin() + degree + 1, curve.knots.end(), 2.0);
    return curve;
}

/// Around the origin, of radius 5, from four arcs.
Nurbs circle()
{
    const double r = std::sqrt(0.5);
    return {2,
            {0, 0, 0, 1, 1, 2, 2, 3, 3, 4, 4, 4},
            {{5, 0}, {5, 5}, {0, 5}, {-5, 5}, {-5, 0}, {-5, -5}, {0, -5}, {5, -5}, {5, 0}},
            {1, r, 1, r, 1, r, 1, r, 1}};
}

/// Two straight cubics at a right angle; with one knot more the second one is apart.
Nurbs corner()
{
    return {3, {0, 0, 0, 0, 1, 1, 1, 2, 2, 2, 2}, {{0, 0}, {1, 0}, {2, 0}, {3, 0}, {3, 1}, {3, 2}, {3, 3}}, {}};
}

TEST(DxfSplines, GiveTheFitPointsAgainOfWhichTheyWereMade)
{
    const Nurbs made{3,
                     {0, 0, 0, 0, 5, 11, 21, 21, 21, 21},
                     {{0, 0},
                      {5 / 3.0, 0},
                      {4.023575312032844, 4.182540895918228},
                      {1.0450955593832936, 13.994048171503556},
                      {8.642977396044841, 6.3570226039551585},
                      {11, 4}},
                     {}};
    const auto fit = fitPoints(made, 1e-6);
    ASSERT_TRUE(fit);
    const std::vector<OdGePoint3d> points{{0, 0}, {3, 4}, {3, 10}, {11, 4}};
    ASSERT_EQ(fit->points.size(), points.size());
    for (size_t i = 0; i < points.size(); ++i)
        EXPECT_LT(fit->points[i].distanceTo(points[i]), 1e-9);
    EXPECT_LT(fit->deviation, 1e-9);
    expectVector(fit->startTangent, 1, 0, 0);
    expectVector(fit->endTangent, std::sqrt(0.5), -std::sqrt(0.5), 0);
}

TEST(DxfSplines, StayWithinTheTolerance)
{
    const auto fromCircle = [](const OdGePoint3d& p) { return std::abs(std::hypot(p.x, p.y) - 5) + std::abs(p.z); };
    size_t last = 4;
    for (const double tolerance : {1e-2, 1e-4, 1e-6}) {
        const FitPoints fit = expectFit(circle(), tolerance, fromCircle);
        EXPECT_GT(fit.points.size(), last);
        last = fit.points.size();
        expectVector(fit.startTangent, 0, 1, 0);
        expectVector(fit.endTangent, 0, 1, 0);
    }
    EXPECT_LT(last, 150U);

    // A parabola, and one that is left and taken back on the same way.
    expectFit(bezier({{0, 0}, {1, 0}, {2, 4}}), 1e-5,
              [](const OdGePoint3d& p) { return std::abs(p.y - p.x * p.x) / std::hypot(1, 2 * p.x); });
    const FitPoints there = expectFit(bezier({{0, 0}, {8, 0}, {0, 0}}), 1e-5, [](const OdGePoint3d& p) {
        return std::abs(p.y) + std::max(0.0, p.x - 4) + std::max(0.0, -p.x);
    });
    expectVector(there.startTangent, 1, 0, 0);
    expectVector(there.endTangent, -1, 0, 0);

    // Corners cost points in their neighbourhood only.
    const auto fromCorner = [](const OdGePoint3d& p) {
        return std::min(std::hypot(p.y, std::max(0.0, p.x - 3)), std::hypot(p.x - 3, std::max(0.0, -p.y)));
    };
    const FitPoints bent = expectFit(corner(), 1e-6, fromCorner);
    EXPECT_LT(bent.points.size(), 200U);
    EXPECT_EQ(std::count(bent.points.begin(), bent.points.end(), OdGePoint3d{3, 0, 0}), 1);
}

TEST(DxfSplines, BeginAndEndInTheirDirections)
{
    // Where the outermost control points are equal, the next ones tell.
    const auto still = fitPoints(bezier({{0, 0}, {0, 0}, {3, 4}, {6, 2, 5}, {6, 2, 5}, {6, 2, 5}}), 1e-3);
    ASSERT_TRUE(still);
    expectVector(still->startTangent, 0.6, 0.8, 0);
    EXPECT_NEAR(dot(still->endTangent, unit({3, -2, 5})), 1, 1e-12);
    EXPECT_EQ(still->points.back(), (OdGePoint3d{6, 2, 5}));

    // A closed one whose last control points are the first ones again.
    Nurbs closed{3, {}, {{0, 0}, {4, 0}, {5, 3}, {2, 6}, {-2, 3}, {0, 0}, {4, 0}, {5, 3}}, {}};
    for (int i = 0; i < 12; ++i)
        closed.knots.push_back(i);
    const auto round = fitPoints(closed, 1e-3);
    ASSERT_TRUE(round);
    EXPECT_LT(round->points.front().distanceTo(round->points.back()), 1e-12);
    EXPECT_NEAR(round->points.front().x, (0 + 4 * 4 + 5) / 6.0, 1e-12);
    EXPECT_NEAR(dot(round->startTangent, unit({5, 3, 0})), 1, 1e-12);
    EXPECT_NEAR(dot(round->startTangent, round->endTangent), 1, 1e-12);

    // A loop within a single span.
    const auto loop = fitPoints(bezier({{0, 0}, {9, 9}, {-9, 9}, {0, 0}}), 1e-3);
    ASSERT_TRUE(loop);
    EXPECT_LE(loop->deviation, 1e-3);
    EXPECT_EQ(loop->points.front(), loop->points.back());
}

TEST(DxfSplines, AreRefusedWhereTheyAreNoCurve)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double endless = std::numeric_limits<double>::infinity();
    const std::vector<std::function<void(Nurbs&)>> faults{
        [](Nurbs& c) { c.degree = 0; },
        [](Nurbs& c) { c.degree = -3; },
        [](Nurbs& c) { c.degree = 2147483647; },
        [](Nurbs& c) { c.knots.pop_back(); },
        [](Nurbs& c) { c.knots.push_back(4); },
        [](Nurbs& c) { c.knots.clear(); },
        [](Nurbs& c) { c.points.clear(); },
        [](Nurbs& c) { c.points.pop_back(); },
        [](Nurbs& c) { c.weights.pop_back(); },
        [](Nurbs& c) { c.weights[3] = 0; },
        [](Nurbs& c) { c.weights[3] = -1; },
        [](Nurbs& c) { c.weights[3] = 1e-40; },
        [=](Nurbs& c) { c.weights[3] = nan; },
        [=](Nurbs& c) { c.weights[3] = endless; },
        [](Nurbs& c) { std::swap(c.knots[4], c.knots[5]); },
        [=](Nurbs& c) { c.knots[4] = nan; },
        [=](Nurbs& c) { c.knots.back() = endless; },
        [](Nurbs& c) { std::fill(c.knots.begin(), c.knots.end(), 1.0); },
        [](Nurbs& c) { c.knots.front() = -1.7e308, c.knots.back() = 1.7e308; },
        [=](Nurbs& c) { c.points[2].z = nan; },
        [](Nurbs& c) { c.points[2].x = 1e308; },
        [](Nurbs& c) {
            std::fill(c.points.begin(), c.points.end(), OdGePoint3d{7, 7, 7});
        },
    };
    for (size_t i = 0; i < faults.size(); ++i) {
        Nurbs faulty = circle();
        faulty.knots[4] = 1.5;
        faulty.knots[5] = 1.7;
        ASSERT_TRUE(fitPoints(faulty, 1));
        faults[i](faulty);
        EXPECT_FALSE(fitPoints(faulty, 1)) << i;
    }

    // A knot more than the degree has: fine where both sides meet.
    Nurbs joined = corner();
    joined.knots.insert(joined.knots.begin() + 4, 1);
    joined.points.insert(joined.points.begin() + 3, {3, 0});
    ASSERT_TRUE(fitPoints(joined, 1e-3));
    joined.points[3].y = 0.5;
    EXPECT_FALSE(fitPoints(joined, 1e-3));

    EXPECT_TRUE(isPolyline({1, {0, 0, 1, 2, 2}, {{0, 0}, {1, 5}, {2, 0}}, {}}));
    EXPECT_FALSE(isPolyline({1, {0, 0, 1, 2}, {{0, 0}, {1, 5}, {2, 0}}, {}}));
    EXPECT_FALSE(isPolyline(circle()));
}

TEST(DxfSplines, AreFollowedByLinesAndArcs)
{
    const std::optional<Bends> round = bends(circle(), 1e-9);
    ASSERT_TRUE(round);
    EXPECT_LT(round->deviation, 1e-12);
    EXPECT_LE(round->points.size(), 9U);
    double turned = 0;
    for (const double bulge : round->bulges)
        turned += 4 * std::atan(bulge);
    EXPECT_NEAR(turned, 2 * std::numbers::pi, 1e-12); // against the clock, all of them

    // Arcs need far fewer points than lines, and end where the curve does.
    const std::optional<Bends> wave = bends(bezier({{0, 0}, {4, 6}, {6, -6}, {10, 0}}), 1e-4);
    ASSERT_TRUE(wave);
    EXPECT_LE(wave->deviation, 1e-4);
    EXPECT_LT(wave->points.size(), 50U);
    EXPECT_LT(wave->bulges.front(), 0);
    EXPECT_GT(wave->bulges[wave->bulges.size() - 2], 0);
    EXPECT_DOUBLE_EQ(wave->points.back().x, 10);

    const std::optional<Bends> lines = bends(corner(), 1e-9);
    ASSERT_TRUE(lines);
    EXPECT_EQ(lines->points, (std::vector<OdGePoint2d>{{0, 0}, {3, 0}, {3, 3}}));
    EXPECT_FALSE(bends({3, {0, 1}, {{0, 0}}, {}}, 1e-9));
}

TEST(DxfSplines, TellHowFarTheyGotWithinTheirPoints)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const auto& [count, tolerance] : {std::pair<size_t, double>{4'000, 0.0}, {30'000, nan}}) {
        Nurbs wave;
        for (size_t i = 0; i < count; ++i)
            wave.points.push_back({double(i), i % 2 ? 40.0 : 0.0, 0});
        for (size_t i = 0; i < count + 4; ++i)
            wave.knots.push_back(double(std::clamp<size_t>(i, 3, count)));
        const auto fit = fitPoints(wave, tolerance);
        ASSERT_TRUE(fit);
        EXPECT_EQ(fit->points.size(), 10'000U);
        EXPECT_GT(fit->deviation, 1e-9);
        EXPECT_EQ(fit->points.back(), wave.points.back());
    }
}

void expectPoint(const OdGePoint3d& point, double x, double y, double z)
{
    expectVector(point - OdGePoint3d{}, x, y, z);
}

constexpr double pi = std::numbers::pi;
const Direction behind({0, 0, -1});

TEST(DxfDirections, FollowTheNormal)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const OdGePoint3d point{3, -4, 5};
    for (const OdGeVector3d& normal : {OdGeVector3d{0, 0, 1},
                                       {0, 0, 1e-320},
                                       {1e290, 0, 1e300},
                                       {0, 0, 0},
                                       {1e-17, -1e-12, 1},
                                       {nan, 0, -1},
                                       {0, 0, -HUGE_VAL}}) {
        const Direction up(normal);
        EXPECT_FALSE(up.isDown() || up.isTilted());
        EXPECT_EQ(up.toWorld(point), point);
    }
    for (const OdGeVector3d& normal : {OdGeVector3d{0, 0, -1}, {0, 0, -5e-324}, {1e-17, 1e-12, -1}, {0, 0, -1e308}}) {
        const Direction down(normal);
        EXPECT_TRUE(down.isDown() && !down.isTilted());
        EXPECT_EQ(down.toWorld(point), (OdGePoint3d{-3, -4, -5}));
    }
    struct Case
    {
        OdGeVector3d normal;
        OdGePoint3d world;
    };
    for (const auto& [normal, world] : {
             Case{{1, 2, 3}, {0.08729896776364665, 6.882801868026663, 1.6184614100175785}},
             Case{{1e-200, 2e-200, 3e-200}, {0.08729896776364665, 6.882801868026663, 1.6184614100175785}},
             Case{{0.01, 0.01, 1}, {3.050244952008436, -3.949805034243876, 5.009495575824855}},
             Case{{0.01, -0.01, -1}, {-2.950254950508686, -4.049795035743626, -4.989504574150151}},
             // On both sides of where the rule changes.
             Case{{1 / 64.0, 0, 1}, {3.0777493211067966, -4, 4.952520481171851}},
             Case{{0, 1 / 63.0, 1}, {-3, 4.078851273068015, 4.9358861709111}},
             Case{{1, 0, 0}, {5, 3, -4}},
             Case{{0, -1e300, 0}, {3, -5, -4}},
         }) {
        const Direction tilted(normal);
        EXPECT_TRUE(tilted.isTilted() && !tilted.isDown());
        expectPoint(tilted.toWorld(point), world.x, world.y, world.z);
    }
}

TEST(DxfDirections, KeepThePlacesOfWhatIsSeenFromBehind)
{
    // Arcs, at parts of their sweep; the world's runs the other way.
    for (const Arc& arc : {Arc{0.3, 1.5}, {5.5, 7}, {5, 1}, {pi, 2 * pi}, {0, 2 * pi}, {-0.25, 2 * pi - 0.25}}) {
        const Arc world = behind.arcToWorld(arc);
        const auto sweep = [](const Arc& a) { return a.end > a.start ? a.end - a.start : a.end - a.start + 2 * pi; };
        EXPECT_TRUE(world.start >= 0 && world.start < 2 * pi);
        EXPECT_NEAR(sweep(world), sweep(arc), 1e-12);
        for (const double part : {0.0, 0.2, 1.0}) {
            const double angle = arc.start + part * sweep(arc);
            const double other = world.start + (1 - part) * sweep(world);
            const OdGePoint3d place = behind.toWorld({7 + 2 * std::cos(angle), 2 * std::sin(angle), 1});
            expectPoint(place, -7 + 2 * std::cos(other), 2 * std::sin(other), -1);
        }
    }

    // The top of a bulge between two corners lies to the right of the way.
    const auto top = [](const OdGePoint3d& a, const OdGePoint3d& b, double bulge) {
        const OdGeVector3d way = b - a;
        return a + 0.5 * way + bulge / 2 * OdGeVector3d{way.y, -way.x, 0};
    };
    const OdGePoint3d from{1, 2, 0};
    const OdGePoint3d to{4, -3, 0};
    const OdGePoint3d place = behind.toWorld(top(from, to, 0.4));
    const OdGePoint3d other = top(behind.toWorld(from), behind.toWorld(to), behind.bulgeToWorld(0.4));
    expectPoint(place, other.x, other.y, other.z);

    // A place of a block.
    const auto placed = [](const OdGePoint3d& p, const Placement& placement) {
        const double c = std::cos(placement.rotation);
        const double s = std::sin(placement.rotation);
        const OdGePoint3d scaled{p.x * placement.scale.sx, p.y * placement.scale.sy, p.z * placement.scale.sz};
        return OdGePoint3d{scaled.x * c - scaled.y * s, scaled.x * s + scaled.y * c, scaled.z};
    };
    for (const double rotation : {0.0, 0.7, 3.0, 6.0, -1.0}) {
        const Placement placement{rotation, {2, -3, 0.5}};
        const OdGePoint3d inside{1.5, -0.25, 4};
        const OdGePoint3d seen = placed(inside, behind.placementToWorld(placement));
        expectPoint(behind.toWorld(placed(inside, placement)), seen.x, seen.y, seen.z);
        EXPECT_TRUE(behind.placementToWorld(placement).rotation >= 0 &&
                    behind.placementToWorld(placement).rotation < 2 * pi);
    }

    // Nothing is done to what is seen from the front.
    EXPECT_EQ(Direction().arcToWorld(Arc{350, -1}).start, 350);
    EXPECT_EQ(Direction().placementToWorld(Placement{-7, {1, 2, 3}}).scale, (OdGeScale3d{1, 2, 3}));
    EXPECT_EQ(Direction().bulgeToWorld(0.5), 0.5);
}

} // namespace
