// Nearest points, nearest vertices and vertices within a tolerance against their definitions, probe by probe.
#include "cntr/contour.h"
#include "tests/gen/each.h"
#include "tests/gen/questions.h"
#include "tests/oracle/closest.h"
#include "tests/oracle/vertex_cells.h"
#include "tests/support/answer.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

TEST(ContourOracleProximity, ClosestPointIsTheDefinitions) {
    gen::eachOutline(80, [](const Points& points, bool closed, std::uint64_t seed) {
        const gkContour contour(points, closed, 0);
        for (const gkVector<2>& p : gen::probesWithBadOnes(points, seed)) {
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
        for (const gkVector<2>& p : gen::probesWithBadOnes(points, seed)) {
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
        for (const gkVector<2>& p : gen::probesWithBadOnes(points, seed)) {
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
        for (const gkVector<2>& p : gen::probesWithBadOnes(points, seed)) {
            for (const double tolerance : gen::tolerancesWithBadOnes(points)) {
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
