// Vertices that share their place with others. Oracle: tests/oracle/vertex_cells.h, every vertex asked.
#include "cntr/search/vertex_company.h"

#include "tests/cntr/search/search_shapes.h"
#include "tests/oracle/vertex_cells.h"

#include <cmath>
#include <limits>

namespace {

using gen::Points;

// Some vertices again, a few at their place, a few about the tolerance beside it.
Points withRepeats(Points points, double tolerance, std::uint64_t seed) {
    gen::Random random(seed);
    const std::size_t count = points.size();
    for (std::size_t i = 0; i < count; i += 7) {
        const double beside = random.chance(0.5) ? 0.0 : random.between(-1.2, 1.2) * tolerance;
        points.push_back(points[i] + gkVector<2>(beside, random.between(-1.0, 1.0) * beside));
    }
    return points;
}

void expectPlainCompany(const Points& points, double tolerance) {
    const gk_VertexCompany company(points, tolerance);
    std::vector<gk_VertexCompany::Index> accompanied;
    for (gk_VertexCompany::Index i = 0; i < points.size(); ++i) {
        const std::vector<int> plain = oracle::vertexIndex(points, points[i], tolerance);
        const std::vector<gk_VertexCompany::Index>& near = company.near(i);
        if (plain.size() < 2) {
            ASSERT_TRUE(near.empty()) << i;
            continue;
        }
        accompanied.push_back(i);
        ASSERT_EQ(plain, std::vector<int>(near.begin(), near.end())) << i;
    }
    ASSERT_EQ(accompanied, company.vertices());
}

} // namespace

TEST(VertexCompany, IsWhatThePlainCellsTellOfEachVertex) {
    search::each(4, [](const Points& points, std::uint64_t seed) {
        for (const gkVector<2>& p : points)
            if (std::isnan(p.x()) || std::isnan(p.y())) return;
        expectPlainCompany(withRepeats(points, 1e-6, seed), 1e-6);
        expectPlainCompany(withRepeats(points, 0.5, seed), 0.5);
    });
}

TEST(VertexCompany, OfVerticesFarAwayAndAtInfinity) {
    constexpr double kInf = std::numeric_limits<double>::infinity();
    expectPlainCompany({{1e200, 0}, {1e200, 0}, {kInf, 0}, {kInf, 0}, {-1e300, 1}, {0, -0.0}, {-0.0, 0}}, 1e-6);
}

TEST(VertexCompany, ANanIsRefused) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const gkVector<2>& bad : {gkVector<2>(nan, 0), gkVector<2>(0, nan)})
        EXPECT_ANY_THROW(gk_VertexCompany({{0, 0}, bad, {1, 0}}, 1e-6));
}
