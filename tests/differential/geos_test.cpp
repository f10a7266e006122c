// Lengths, areas, centroids, hulls and nearest points beside those of GEOS.
//
// Known differences, none of them an error of either:
// - GEOS takes coordinates from the first vertex for area and centroid, we from the origin: the last digits
// differ.
// - The centroid of a polygon without area is that of its lines there, (0, 0) here, and here a doubled area
// within 1e-6
//   counts as none.
// - The hull of GEOS runs clockwise from the lowest y; ours counter-clockwise from the lowest x.
// - Distances of GEOS to a polygon are 0 inside; to compare, its line string is asked.
// - Among equally near points GEOS names any; only the distance is the same.
// - What GEOS calls simple also forbids touching and overlapping, where we look for crossings away from the
// ends.
#include "cntr/moments.h"
#include "cntr/region.h"
#include "tests/differential/compare.h"
#include "tests/differential/geos_shape.h"
#include "tests/gen/probes.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

namespace {

constexpr double kU = 0x1p-53;

} // namespace

TEST(BesideGeos, LengthIsEqualUpToRounding) {
    eachOrdinaryShape(60, 2, [](const Points& points, std::uint64_t) {
        for (const bool closed : {false, true}) {
            const double expected = GeosShape::lines(points, closed).length();
            EXPECT_NEAR(expected, gkContour(points, closed, 0).length(),
                        4.0 * kU * static_cast<double>(points.size()) * expected);
        }
    });
}

TEST(BesideGeos, AreaIsEqualUpToRounding) {
    eachOrdinaryShape(60, 3, [](const Points& points, std::uint64_t) {
        const double size = sizeOf(points);
        const double n = static_cast<double>(points.size());
        EXPECT_NEAR(std::fabs(GeosShape::polygon(points).area()), gf_Area(points),
                    8.0 * kU * n * n * size * size);
    });
}

TEST(BesideGeos, CentroidIsEqualUpToRounding) {
    std::size_t compared = 0;
    eachOrdinaryShape(60, 3, [&](const Points& points, std::uint64_t) {
        const double size = sizeOf(points);
        const double area = gf_Area(points);
        if (area < 1e-5 || area < 1e-3 * size * size) return;
        ++compared;
        const gkVector<2> expected = GeosShape::polygon(points).centroid();
        const gkVector<2> found = gnContour::centerOfMass(points);
        const double n = static_cast<double>(points.size());
        const double bound = 16.0 * kU * n * n * size * size * size / area;
        EXPECT_NEAR(expected.x(), found.x(), bound);
        EXPECT_NEAR(expected.y(), found.y(), bound);
    });
    EXPECT_GT(compared, 5 * gen::rounds(60));
}

TEST(BesideGeos, HullHasTheSameVertices) {
    eachOrdinaryShape(60, 2, [](const Points& points, std::uint64_t) {
        Points expected = GeosShape::lines(points, false).hull();
        std::reverse(expected.begin(), expected.end());
        gkRegion hull;
        gkContour(points, true, 0).convexHull(hull);
        EXPECT_EQ(fromLowest(expected), hull.points());
    });
}

TEST(BesideGeos, DistanceIsEqualUpToRounding) {
    eachOrdinaryShape(20, 2, [](const Points& points, std::uint64_t seed) {
        for (const bool closed : {false, true}) {
            const gkContour contour(points, closed, 0);
            const GeosShape lines = GeosShape::lines(points, closed);
            for (const gkVector<2>& p : gen::probes(points, seed)) {
                const double scale = sizeOf(points) + sizeOf({p});
                const double expected = lines.distance(p);
                ASSERT_NEAR(expected, contour.distToPoint(p, false), 16.0 * kU * scale) << p;
                // Both nearest points are as near, though not always the same.
                ASSERT_NEAR(expected, p.distance(lines.closestPoint(p)), 16.0 * kU * scale) << p;
            }
        }
    });
}

TEST(BesideGeos, SimpleOutlinesDoNotCrossThemselves) {
    std::size_t simple = 0;
    eachOrdinaryShape(60, 3, [&](const Points& points, std::uint64_t) {
        if (!GeosShape::lines(points, true).isSimple()) return;
        ++simple;
        EXPECT_FALSE(gkContour(points, true, 0).isSelfIntersecting());
    });
    EXPECT_GT(simple, 2 * gen::rounds(60));
}
