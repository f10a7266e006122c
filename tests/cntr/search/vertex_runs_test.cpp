// The greatest score by runs of vertices: directions and boxes under transforms. Oracles:
// tests/oracle/extremal.h, enclose.h.
#include "cntr/measures.h"
#include "cntr/search/vertex_runs.h"
#include "tests/cntr/search/search_shapes.h"
#include "tests/oracle/enclose.h"
#include "tests/oracle/extremal.h"
#include "tests/support/answer.h"

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

struct Rightwards {
    double operator()(const gkVector<2>& vertex) const { return vertex.x(); }
    gkVector<2> corner(const gk_Box& box) const { return {box.x1, box.y1}; }
};

} // namespace

TEST(VertexRuns, KnowTheVertexFarthestInEveryDirection) {
    search::each(12, [](const Points& points, std::uint64_t seed) {
        if (points.size() < 2) return;
        const gk_VertexRuns runs(points);
        gen::Random random(seed);
        for (const gkRadian& angle : angles(points, random)) {
            const long expected = oracle::extremalVertexIndex(points, angle);
            ASSERT_EQ(expected, gk_ExtremalVertex(points, runs, angle)) << angle.toDouble();
            ASSERT_EQ(expected, gk_ExtremalVertex(points, angle)) << angle.toDouble();
        }
    });
}

TEST(VertexRuns, KnowTheBoxUnderEveryTransform) {
    search::each(12, [](const Points& points, std::uint64_t seed) {
        if (points.size() < 2) return;
        const gk_VertexRuns runs(points);
        gen::Random random(seed);
        for (int i = 0; i < 30; ++i) {
            const gkXform<2> xform = transform(random);
            const Answer expected = answer([&] { return oracle::encloseRect(points, xform); });
            ASSERT_EQ(expected, answer([&] { return gk_EncloseRect(points, runs, xform); }));
            ASSERT_EQ(expected, answer([&] { return gk_EncloseRect(points, xform); }));
        }
    });
}

// Vertices that are level as they round, zeros of both signs, NaN and infinities among ordinary ones.
TEST(VertexRuns, TakeTheFirstOfEqualScores) {
    const double odd[] = {0.0,
                          -0.0,
                          1.0,
                          std::numeric_limits<double>::quiet_NaN(),
                          std::numeric_limits<double>::infinity(),
                          -std::numeric_limits<double>::infinity()};
    gen::Random random(9);
    for (std::uint64_t round = 0; round < gen::rounds(500); ++round) {
        const double share = random.chance(0.5) ? 0.0 : 0.05;
        Points points;
        for (int i = 0; i < 700; ++i) {
            const auto number = [&] {
                return random.chance(share)
                           ? odd[random.index(6)]
                           : static_cast<double>(random.integer(-3, 0)) * 0.0 + random.integer(-2, 2);
            };
            const double x = number();
            points.emplace_back(x, number());
        }
        const gk_VertexRuns runs(points);
        for (const gkRadian& angle : angles(points, random))
            ASSERT_EQ(oracle::extremalVertexIndex(points, angle), gk_ExtremalVertex(points, runs, angle));
        for (int i = 0; i < 10; ++i) {
            const gkXform<2> xform = transform(random);
            ASSERT_EQ(answer([&] { return oracle::encloseRect(points, xform); }),
                      answer([&] { return gk_EncloseRect(points, runs, xform); }));
        }
    }
}

TEST(VertexRuns, OfNoVerticesHaveNoGreatestScore) {
    EXPECT_EQ(-1, gk_VertexRuns(Points()).firstGreatest(Points(), Rightwards()));
    Points points;
    for (int i = 0; i < 600; ++i) points.emplace_back(i < 300 ? i : 599 - i, 0);
    EXPECT_EQ(299, gk_VertexRuns(points).firstGreatest(points, Rightwards()));
}

TEST(VertexRuns, OfNoNumbersHaveTheBoxOfTheScan) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const Points points(40, {nan, nan});
    const gkXform<2> xform(gkMatrix<2>(2, 1, -1, 3), gkVector<2>(5, 7));
    EXPECT_EQ(answer([&] { return oracle::encloseRect(points, xform); }),
              answer([&] { return gk_EncloseRect(points, gk_VertexRuns(points), xform); }));
}
