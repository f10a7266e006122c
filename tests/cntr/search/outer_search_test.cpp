// Directions, boxes and the farthest pair from outer vertices. Oracles: tests/oracle/extremal.h, enclose.h,
// circle.h.
#include "cntr/measures.h"
#include "cntr/search/farthest_pair.h"
#include "cntr/search/outer_vertices.h"
#include "tests/cntr/search/search_shapes.h"
#include "tests/oracle/circle.h"
#include "tests/oracle/enclose.h"
#include "tests/oracle/extremal.h"
#include "tests/support/answer.h"

#include <cmath>
#include <limits>

namespace {

using gen::Points;

// Along the axes, along edges and across them, and any.
std::vector<gkRadian> angles(const Points& points, gen::Random& random) {
    std::vector<gkRadian> list;
    for (int quarter = -4; quarter <= 4; ++quarter) list.emplace_back(quarter * 1.5707963267948966);
    for (int i = 0; i < 10; ++i) {
        const gkVector<2> edge = points[random.index(points.size())] - points[random.index(points.size())];
        list.push_back(edge.angle());
        list.push_back(edge.angle() + gkRadian(1.5707963267948966));
        list.emplace_back(random.between(-10.0, 10.0));
    }
    return list;
}

gkXform<2> transform(gen::Random& random) {
    const double sizes[] = {0.0, 1e-160, 1e-9, 1.0, 1.0, 1e9, 1e160};
    const auto number = [&] { return random.between(-1.0, 1.0) * sizes[random.index(7)]; };
    return gkXform<2>(gkMatrix<2>(number(), number(), number(), number()), gkVector<2>(number(), number()));
}

} // namespace

TEST(OuterSearch, KnowsTheVertexFarthestInEveryDirection) {
    int fewer = 0;
    search::each(12, [&](const Points& points, std::uint64_t seed) {
        const auto outer = gk_OuterVertices(points);
        if (!outer || points.size() < 2) return;
        if (outer->size() < points.size()) ++fewer;
        gen::Random random(seed);
        for (const gkRadian& angle : angles(points, random)) {
            ASSERT_EQ(oracle::extremalVertexIndex(points, angle), gk_ExtremalVertex(points, *outer, angle))
                << angle.toDouble();
        }
    });
    EXPECT_LT(100, fewer);
}

TEST(OuterSearch, KnowsTheBoxUnderEveryTransform) {
    search::each(12, [](const Points& points, std::uint64_t seed) {
        const auto outer = gk_OuterVertices(points);
        if (!outer || points.empty()) return;
        gen::Random random(seed);
        for (int i = 0; i < 30; ++i) {
            const gkXform<2> xform = transform(random);
            ASSERT_EQ(answer([&] { return oracle::encloseRect(points, xform); }),
                      answer([&] { return gk_EncloseRect(points, *outer, xform); }));
        }
    });
}

TEST(OuterSearch, KnowsTheFarthestPair) {
    search::each(12, [](const Points& points, std::uint64_t) {
        const auto outer = gk_OuterVertices(points);
        if (!outer) return;
        const gk_VertexPair pair = gk_FarthestPair(points, *outer);
        ASSERT_LT(0.0, pair.distance);
        const gkCircle found((points[pair.first] + points[pair.second]) / 2.0, pair.distance / 2.0);
        ASSERT_EQ(answer([&] { return oracle::circleOverFarthestPair(points); }),
                  answer([&] { return found; }));
    });
}

TEST(OuterSearch, TakesTheFirstOfEquallyFarPairs) {
    // The corners of two equal squares, one turned by an eighth, have four farthest pairs.
    const Points points = {{0, 3},  {5, 0},  {4, 3}, {-3, 4}, {-4, -3},
                           {3, -4}, {-5, 0}, {0, 5}, {0, -5}, {1, 1}};
    const auto outer = gk_OuterVertices(points);
    ASSERT_TRUE(outer);
    const gk_VertexPair pair = gk_FarthestPair(points, *outer);
    EXPECT_EQ(1u, pair.first);
    EXPECT_EQ(6u, pair.second);
    EXPECT_EQ(10.0, pair.distance);
}

TEST(OuterSearch, KeepsVerticesThatRoundingBringsLevelWithTheHull) {
    // One unit in the last place below the upper side: no direction tells them apart for certain.
    const Points points = {{0, 0}, {8, 0}, {8, 8}, {4, std::nextafter(8.0, 0.0)}, {0, 8}, {4, 4}};
    const auto outer = gk_OuterVertices(points);
    ASSERT_TRUE(outer);
    EXPECT_EQ((std::vector<std::uint32_t>{0, 1, 2, 3, 4}), *outer);
}

TEST(OuterSearch, LeavesFlatAndBadShapesAlone) {
    EXPECT_FALSE(gk_OuterVertices({{0, 0}, {1, 1}, {2, 2}}));
    EXPECT_FALSE(gk_OuterVertices({{0, 0}, {1, 0}, {2, 1e-15}}));
    EXPECT_FALSE(gk_OuterVertices({{0, 0}, {1, 0}, {0, std::numeric_limits<double>::quiet_NaN()}}));
    EXPECT_FALSE(gk_OuterVertices({}));
}
