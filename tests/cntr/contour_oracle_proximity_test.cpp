// Nearest points, nearest vertices and vertices within a tolerance against their definitions, probe by probe.
#include "cntr/contour.h"
#include "tests/gen/each.h"
#include "tests/gen/probes.h"
#include "tests/oracle/closest.h"
#include "tests/oracle/vertex_cells.h"
#include "tests/support/answer.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

// The shape's own probes and some that are no points at all.
Points probesWithBadOnes(const Points& points, std::uint64_t seed) {
    Points probes = gen::probes(points, seed);
    for (const gkVector<2>& p : {gkVector<2>(kNan, 0.0), gkVector<2>(0.0, kInf), gkVector<2>(-kInf, kNan)}) {
        probes.push_back(p);
    }
    return probes;
}

std::vector<double> tolerancesWithBadOnes(const Points& points) {
    std::vector<double> list = gen::tolerances(points);
    for (const double bad : {0.0, -1.0, kInf, kNan}) list.push_back(bad);
    return list;
}

} // namespace

TEST(ContourOracleProximity, ClosestPointIsTheDefinitions) {
    gen::eachOutline(80, [](const Points& points, bool closed, std::uint64_t seed) {
        const gkContour contour(points, closed, 0);
        for (const gkVector<2>& p : probesWithBadOnes(points, seed)) {
            for (const bool verticesOnly : {false, true}) {
                ASSERT_EQ(answer([&] { return oracle::closestPoint(points, closed, p, verticesOnly); }),
                          answer([&] { return contour.closestPoint(p, verticesOnly); }))
                    << p << verticesOnly;
            }
        }
    });
}

TEST(ContourOracleProximity, DistanceIsTheDefinitions) {
    gen::eachOutline(80, [](const Points& points, bool closed, std::uint64_t seed) {
        const gkContour contour(points, closed, 0);
        for (const gkVector<2>& p : probesWithBadOnes(points, seed)) {
            for (const bool verticesOnly : {false, true}) {
                ASSERT_EQ(answer([&] { return oracle::distToPoint(points, closed, p, verticesOnly); }),
                          answer([&] { return contour.distToPoint(p, verticesOnly); }))
                    << p << verticesOnly;
            }
        }
    });
}

TEST(ContourOracleProximity, ClosestVertexIsTheDefinitions) {
    gen::eachShape(80, [](const Points& points, std::uint64_t seed) {
        const gkContour contour(points, false, 0);
        for (const gkVector<2>& p : probesWithBadOnes(points, seed)) {
            ASSERT_EQ(answer([&] { return oracle::closestVertexIndex(points, p); }),
                      answer([&] { return contour.closestVertexIndex(p); }))
                << p;
        }
    });
}

// One contour is asked with all tolerances in turn, so grids are built and met again among others.
TEST(ContourOracleProximity, VerticesWithinATolerancesAreTheDefinitionsInItsOrder) {
    gen::eachShape(40, [](const Points& points, std::uint64_t seed) {
        const gkContour contour(points, true, 0);
        for (const gkVector<2>& p : probesWithBadOnes(points, seed)) {
            for (const double tolerance : tolerancesWithBadOnes(points)) {
                ASSERT_EQ(answer([&] { return oracle::vertexIndex(points, p, tolerance); }),
                          answer([&] { return contour.vertexIndex(p, tolerance); }))
                    << p << " within " << tolerance;
            }
        }
    });
}

// A vertex exactly at the tolerance is out, and one ulp more brings it in.
TEST(ContourOracleProximity, VerticesExactlyAtTheToleranceAreLeftOut) {
    gen::eachShape(40, [](const Points& points, std::uint64_t seed) {
        if (points.size() < 2) return;
        const gkContour contour(points, true, 0);
        gen::Random random(seed);
        for (int i = 0; i < 10; ++i) {
            const gkVector<2>& p = points[random.index(points.size())];
            const double distance = p.distance(points[random.index(points.size())]);
            for (const double tolerance : {below(distance), distance, above(distance)}) {
                if (!(tolerance > 0.0)) continue;
                ASSERT_EQ(answer([&] { return oracle::vertexIndex(points, p, tolerance); }),
                          answer([&] { return contour.vertexIndex(p, tolerance); }))
                    << p << " within " << tolerance;
            }
        }
    });
}
