// The farthest pair from outer vertices. Oracle: tests/oracle/circle.h.
#include "cntr/search/farthest_pair.h"
#include "cntr/search/outer_vertices.h"
#include "tests/cntr/search/search_shapes.h"
#include "tests/oracle/circle.h"
#include "tests/support/answer.h"

#include <cmath>
#include <limits>

using gen::Points;

TEST(OuterSearch, KnowsTheFarthestPair) {
    int fewer = 0;
    search::each(12, [&](const Points& points, std::uint64_t) {
        const auto outer = gk_OuterVertices(points);
        if (!outer) return;
        if (outer->size() < points.size()) ++fewer;
        const gk_VertexPair pair = gk_FarthestPair(points, *outer);
        ASSERT_LT(0.0, pair.distance);
        const gkCircle found((points[pair.first] + points[pair.second]) / 2.0, pair.distance / 2.0);
        ASSERT_EQ(answer([&] { return oracle::circleOverFarthestPair(points); }),
                  answer([&] { return found; }));
    });
    EXPECT_LT(100, fewer);
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
