// The farthest pair. Oracle: tests/oracle/circle.h, all pairs.
#include "cntr/search/farthest_pair.h"

#include "cntr/contour.h"
#include "cntr/search/distinct_places.h"
#include "tests/cntr/search/search_shapes.h"
#include "tests/oracle/circle.h"
#include "tests/support/answer.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

using gen::Points;

namespace {

void expectThePlainPair(const Points& points) {
    const std::optional<gk_VertexPair> pair = gk_FarthestPair(points);
    if (!pair) return;
    const gkCircle before({7, 8}, 9.0);
    const gkCircle found = pair->distance > 0.0 ? gkCircle((points[pair->first] + points[pair->second]) / 2.0,
                                                           pair->distance / 2.0)
                                                : before;
    ASSERT_EQ(answer([&] { return oracle::circleOverFarthestPair(points, before); }),
              answer([&] { return found; }));
}

Points regularPolygon(std::size_t count, double radius) {
    Points points;
    for (std::size_t i = 0; i < count; ++i) {
        const double angle = 6.283185307179586 * static_cast<double>(i) / static_cast<double>(count);
        points.emplace_back(radius * std::cos(angle), radius * std::sin(angle));
    }
    return points;
}

} // namespace

TEST(FarthestPair, IsThatOfThePlainScan) {
    search::each(12, [&](const Points& points, std::uint64_t) { expectThePlainPair(points); });
}

TEST(FarthestPair, OfVerticesAtFewPlacesIsThatOfThePlainScan) {
    for (std::uint64_t seed = 1; seed <= gen::rounds(40); ++seed) {
        SCOPED_TRACE(seed);
        gen::Random random(seed);
        Points places = {{0, 0}};
        const int count = random.integer(0, 9);
        for (int i = 0; i < count; ++i) places.emplace_back(random.integer(-3, 3), random.integer(-3, 3));
        Points points;
        for (int i = 0; i < 1500; ++i) points.push_back(places[random.index(places.size())]);
        ASSERT_TRUE(gk_FarthestPair(points));
        expectThePlainPair(points);
    }
}

TEST(DistinctPlaces, AreTheFirstVerticesAtThem) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const Points points = {{2, 1}, {nan, 1}, {0, 1}, {2, 1}, {-0.0, 1}, {1, nan}, {2, 0}, {2, 1}};
    EXPECT_EQ((std::vector<std::size_t>{0, 2, 6}), gk_DistinctPlaces(points));
    EXPECT_EQ((Points{{2, 1}, {0, 1}, {2, 0}}), gk_VerticesAt(points, {0, 2, 6}));
}

// Without a tree as well: large, infinite and no numbers among the vertices.
TEST(FarthestPair, OfAContourIsThatOfThePlainScan) {
    search::each(4, [&](const Points& points, std::uint64_t) {
        const gkContour contour(points, true, 0);
        ASSERT_EQ(answer([&] { return oracle::circleOverFarthestPair(points, gkCircle()); }),
                  answer([&] { return contour.encloseCircle(gkContourDefs::eExact); }));
    });
}

TEST(FarthestPair, IsThatOfThePlainScanWhateverTheOrder) {
    search::each(4, [&](Points points, std::uint64_t seed) {
        std::reverse(points.begin(), points.end());
        expectThePlainPair(points);
        std::rotate(points.begin(), points.begin() + static_cast<std::ptrdiff_t>(seed % (points.size() + 1)),
                    points.end());
        expectThePlainPair(points);
        std::sort(points.begin(), points.end(), [](const gkVector<2>& a, const gkVector<2>& b) {
            return a.x() * 7.0 - a.y() < b.x() * 7.0 - b.y();
        });
        expectThePlainPair(points);
    });
}

TEST(FarthestPair, IsThatOfThePlainScanAtAnyScale) {
    for (const int exponent : {-1070, -540, -500, -455, -440, -300, 100, 440, 463}) {
        search::each(1, [&](Points points, std::uint64_t) {
            for (gkVector<2>& p : points)
                p = gkVector<2>(std::ldexp(p.x(), exponent), std::ldexp(p.y(), exponent));
            expectThePlainPair(points);
        });
    }
}

TEST(FarthestPair, OfManyThatRoundingAloneTellsApartIsTheFirst) {
    for (std::size_t count = 3; count < 700; count += 1 + count / 5) {
        for (const double radius : {1.0, 1e-7, 1e9, 0.1}) expectThePlainPair(regularPolygon(count, radius));
        Points far = regularPolygon(count, 1e-3);
        for (gkVector<2>& p : far) p += gkVector<2>(1e6, -1e9);
        expectThePlainPair(far);
        Points twice = regularPolygon(count, 10.0);
        twice.insert(twice.end(), twice.begin(), twice.begin() + static_cast<std::ptrdiff_t>(count));
        expectThePlainPair(twice);
    }
}

TEST(FarthestPair, OfVerticesInNoOrderIsThatOfThePlainScan) {
    for (std::uint64_t seed = 1; seed <= 12; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937_64 random(seed);
        Points round = regularPolygon(1200, 0.3);
        std::shuffle(round.begin(), round.end(), random);
        expectThePlainPair(round);
        Points crowd;
        const double size = seed % 2 == 0 ? 20.0 : 1e9;
        const auto number = [&] { return std::floor(size * static_cast<double>(random() >> 11) * 0x1p-53); };
        for (int i = 0; i < 1500; ++i) {
            const double x = number();
            crowd.emplace_back(x, number());
        }
        expectThePlainPair(crowd);
    }
}

TEST(FarthestPair, TakesTheFirstOfEquallyFarPairs) {
    // The corners of two equal squares, one turned by an eighth, have four farthest pairs.
    const Points points = {{0, 3},  {5, 0},  {4, 3}, {-3, 4}, {-4, -3},
                           {3, -4}, {-5, 0}, {0, 5}, {0, -5}, {1, 1}};
    const std::optional<gk_VertexPair> pair = gk_FarthestPair(points);
    ASSERT_TRUE(pair);
    EXPECT_EQ(1u, pair->first);
    EXPECT_EQ(6u, pair->second);
    EXPECT_EQ(10.0, pair->distance);
}

TEST(FarthestPair, OfAFlatShapeIsThatOfItsEnds) {
    const std::optional<gk_VertexPair> pair = gk_FarthestPair({{1, 1}, {0, 0}, {3, 3}, {2, 2}});
    ASSERT_TRUE(pair);
    EXPECT_EQ(1u, pair->first);
    EXPECT_EQ(2u, pair->second);
}

TEST(FarthestPair, OfEqualVerticesHasNoDistance) {
    for (const std::size_t count : {1u, 2u, 50u, 1000u}) {
        const std::optional<gk_VertexPair> pair = gk_FarthestPair(Points(count, {3, 4}));
        ASSERT_TRUE(pair);
        EXPECT_EQ(0.0, pair->distance);
    }
}

TEST(FarthestPair, IsNotKnownOfNoVerticesNorOfOnesThatAreNotModerate) {
    EXPECT_FALSE(gk_FarthestPair({}));
    for (const double stray : {std::numeric_limits<double>::quiet_NaN(), HUGE_VAL, -HUGE_VAL, 1e141, -1e300}) {
        Points points = regularPolygon(100, 1.0);
        points[71] = gkVector<2>(points[71].x(), stray);
        EXPECT_FALSE(gk_FarthestPair(points));
        points[71] = gkVector<2>(stray, 0.0);
        EXPECT_FALSE(gk_FarthestPair(points));
    }
}
