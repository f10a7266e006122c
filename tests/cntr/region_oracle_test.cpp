// Regions against their definitions, bit for bit, and against exact arithmetic: containment by even-odd
// crossings, area and centre with holes by sums of integers.
#include "tests/gen/each.h"
#include "tests/gen/probes.h"
#include "tests/oracle/region.h"
#include "tests/platform/core/shapes/exact_sign.h"
#include "tests/support/answer.h"
#include "tests/support/regions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>

namespace {

struct Both {
    Shared region;
    oracle::Region plain;
};

Both bothOf(const Points& outline) { return {Shared(new gkRegion(outline)), {outline, {}}}; }

// Gives the region those of the holes that it accepts, and holds each refusal against the definition.
void addHoles(Both& both, const std::vector<Both>& holes) {
    Holes accepted;
    for (const Both& hole : holes) {
        const Answer expected = answer([&] {
            const Points& met =
                oracle::crossingsWithContour(both.plain.outline, true, hole.plain.outline, true);
            if (!met.empty()) throw oracle::Refusal{"BadParams"};
            return true;
        });
        const Answer found = answer([&] {
            gkRegion(both.plain.outline).holes({hole.region});
            return true;
        });
        ASSERT_EQ(expected, found);
        if (!found.error.empty()) continue;
        accepted.push_back(hole.region);
        both.plain.holes.push_back(hole.plain);
    }
    both.region->holes(accepted);
}

Points shrunk(const Points& points, double factor) {
    Points result;
    for (const gkVector<2>& p : points)
        result.push_back(points[0] + (p - points[0]) * factor + gkVector<2>(0.25, 0.125));
    return result;
}

// The shape with a smaller copy of itself as a hole, which has a hole too, and with the next shape as a hole.
Both holed(const Points& points, std::uint64_t seed) {
    Both both = bothOf(points);
    if (points.empty()) return both;
    Both inner = bothOf(shrunk(points, 0.5));
    addHoles(inner, {bothOf(shrunk(points, 0.125))});
    const gen::Kind& other = gen::kinds()[seed % gen::kinds().size()];
    addHoles(both, {inner, bothOf(gen::shape(other, seed + 1))});
    return both;
}

// Whether rounding stays far below the touching distance of 1e-6, which is absolute; false with NaN.
bool isOfModestSize(const Points& points) {
    for (const gkVector<2>& p : points) {
        if (!(std::fabs(p.x()) < 1e4 && std::fabs(p.y()) < 1e4)) return false;
    }
    return true;
}

// Whether an exact ray to the right crosses an odd number of edges.
bool evenOdd(const Points& points, const gkVector<2>& p) {
    bool odd = false;
    for (const gkLineSeg& edge : oracle::segments(points, true)) {
        if ((edge.p1().y() > p.y()) == (edge.p2().y() > p.y())) continue;
        const bool upwards = edge.p2().y() > edge.p1().y();
        const int side = exact::orientation(edge.p1(), edge.p2(), p);
        if (upwards ? side > 0 : side < 0) odd = !odd;
    }
    return odd;
}

// Points that the definition decides without tolerances: away from the outline, with a ray that passes the
// vertices and reaches beyond the farthest of them.
bool isPlainCase(const Points& points, const gkVector<2>& p) {
    constexpr double kClear = 2e-6;
    if (!(oracle::distToPoint(points, true, p, false) > kClear)) return false;
    const double length = oracle::rayLength(points);
    const gkLineSeg ray(p, p + oracle::rayDirection(points, p) * length);
    for (const gkVector<2>& vertex : points) {
        if (!(ray.distToPoint(vertex) > kClear) || !(p.distance(vertex) + kClear < length)) return false;
    }
    return true;
}

gkVector<2> somewhere(gen::Random& random, const Points& points) {
    const gkRect box = oracle::encloseRect(points, gkXform<2>());
    return gkVector<2>(random.between(box.ul().x(), box.lr().x()), random.between(box.ul().y(), box.lr().y()));
}

// Twice the area and six times the first moments of a lattice outline, sign and all.
struct LatticeSums {
    std::int64_t area = 0;
    std::int64_t x = 0;
    std::int64_t y = 0;
};

LatticeSums latticeSums(const Points& points) {
    LatticeSums sums;
    for (const gkLineSeg& edge : oracle::segments(points, true)) {
        const auto x1 = static_cast<std::int64_t>(edge.p1().x());
        const auto y1 = static_cast<std::int64_t>(edge.p1().y());
        const auto x2 = static_cast<std::int64_t>(edge.p2().x());
        const auto y2 = static_cast<std::int64_t>(edge.p2().y());
        const std::int64_t cross = x1 * y2 - y1 * x2;
        sums.area += cross;
        sums.x += (x1 + x2) * cross;
        sums.y += (y1 + y2) * cross;
    }
    return sums.area < 0 ? LatticeSums{-sums.area, -sums.x, -sums.y} : sums;
}

Points shifted(Points points, double dx, double dy) {
    for (gkVector<2>& p : points) p = p + gkVector<2>(dx, dy);
    return points;
}

} // namespace

TEST(RegionOracle, PointQueriesAreTheDefinitions) {
    std::size_t contained = 0;
    gen::eachShape(12, [&](const Points& points, std::uint64_t seed) {
        const Both both = holed(points, seed);
        if (::testing::Test::HasFailure()) return;
        for (const gkVector<2>& p : gen::probes(points, seed)) {
            for (const bool holes : {false, true}) {
                const Answer found = answer([&] { return both.region->inside(p, holes); });
                ASSERT_EQ(answer([&] { return oracle::inside(both.plain, p, holes); }), found)
                    << p << " " << holes;
                contained += found.error.empty() && found.bits[0] == 1 ? 1 : 0;
                for (const bool vertices : {false, true}) {
                    ASSERT_EQ(answer([&] { return oracle::closestPoint(both.plain, p, vertices, holes); }),
                              answer([&] { return both.region->closestPoint(p, vertices, holes); }))
                        << p << " " << vertices << " " << holes;
                    ASSERT_EQ(answer([&] { return oracle::distToPoint(both.plain, p, vertices, holes, true); }),
                              answer([&] { return both.region->distToPoint(p, vertices, holes, true); }))
                        << p << " " << vertices << " " << holes;
                }
                long expectedHole = 0;
                long foundHole = 0;
                ASSERT_EQ(
                    answer([&] { return oracle::closestVertexIndex(both.plain, p, holes, expectedHole); }),
                    answer([&] { return both.region->closestVertexIndex(p, holes, foundHole); }));
                ASSERT_EQ(expectedHole, foundHole);
            }
        }
    });
    EXPECT_GT(contained, 1000u);
}

TEST(RegionOracle, CrossingsWithSegmentsAreTheDefinitions) {
    std::size_t crossed = 0;
    gen::eachShape(12, [&](const Points& points, std::uint64_t seed) {
        const Both both = holed(points, seed);
        if (::testing::Test::HasFailure()) return;
        for (const gkLineSeg& seg : gen::querySegments(points, seed)) {
            for (const bool holes : {false, true}) {
                const Answer found = answer([&] { return both.region->intersections(seg, true, holes); });
                ASSERT_EQ(answer([&] { return oracle::crossingPoints(both.plain, seg, true, holes); }), found);
                crossed += found.bits.size() > 1 ? 1 : 0;
            }
        }
    });
    EXPECT_GT(crossed, 1000u);
}

TEST(RegionOracle, AreaAndCentreAreTheDefinitions) {
    gen::eachShape(60, [&](const Points& points, std::uint64_t seed) {
        const Both both = holed(points, seed);
        if (::testing::Test::HasFailure()) return;
        for (const bool holes : {false, true}) {
            ASSERT_EQ(answer([&] { return oracle::area(both.plain, holes); }),
                      answer([&] { return both.region->area(holes); }));
            ASSERT_EQ(answer([&] { return oracle::centroid(both.plain, holes); }),
                      answer([&] { return both.region->centerOfMass(holes); }));
        }
    });
}

TEST(RegionExact, ContainmentIsEvenOddAwayFromTheOutline) {
    std::size_t asked = 0;
    std::size_t contained = 0;
    gen::eachShape(40, [&](const Points& points, std::uint64_t seed) {
        if (points.size() < 3 || !isOfModestSize(points)) return;
        const gkRegion region(points);
        gen::Random random(seed + 7);
        std::vector<gkVector<2>> probes = gen::probes(points, seed);
        for (int i = 0; i < 20; ++i) probes.push_back(somewhere(random, points));
        for (const gkVector<2>& p : probes) {
            if (!isPlainCase(points, p)) continue;
            const bool expected = evenOdd(points, p);
            ASSERT_EQ(expected, region.inside(p, false)) << p;
            ++asked;
            contained += expected ? 1 : 0;
        }
    });
    EXPECT_GT(asked, gen::rounds(5000));
    EXPECT_GT(contained, gen::rounds(1000));
}

TEST(RegionExact, ContainmentInLatticeOutlinesIsEvenOddAtEveryQuarter) {
    for (const auto make : {&gen::latticeOutline, &gen::latticePoints}) {
        for (std::uint64_t seed = 1; seed <= gen::rounds(15); ++seed) {
            SCOPED_TRACE(seed);
            gen::Random random(seed);
            const Points points = make(random);
            const gkRegion region(points);
            const gkRect box = oracle::encloseRect(points, gkXform<2>());
            for (double x = box.ul().x(); x <= box.lr().x(); x += 0.25) {
                for (double y = box.ul().y(); y <= box.lr().y(); y += 0.25) {
                    if (!isPlainCase(points, {x, y})) continue;
                    ASSERT_EQ(evenOdd(points, {x, y}), region.inside({x, y}, false)) << gkVector<2>(x, y);
                }
            }
        }
    }
}

TEST(RegionExact, AreaAndCentreOfLatticeOutlinesWithHolesAreSumsOfIntegers) {
    for (std::uint64_t seed = 1; seed <= gen::rounds(500); ++seed) {
        SCOPED_TRACE(seed);
        gen::Random random(seed);
        const Points outline = gen::latticeOutline(random);
        gkRegion region(outline);
        LatticeSums sums = latticeSums(outline);
        Holes holes;
        for (int i = 0, count = random.integer(1, 4); i < count; ++i) {
            // Beside the outline, where it is sure to be accepted; the arithmetic is the same.
            const Points hole = shifted(gen::latticeOutline(random), 40.0 * (i + 1), -30.0);
            holes.push_back(Shared(new gkRegion(hole)));
            const LatticeSums taken = latticeSums(hole);
            sums.area -= taken.area;
            sums.x -= taken.x;
            sums.y -= taken.y;
        }
        region.holes(holes);
        ASSERT_EQ(static_cast<double>(sums.area) / 2.0, region.area(true));
        if (sums.area == 0) continue;
        const gkVector<2> center = region.centerOfMass(true);
        const double area = static_cast<double>(sums.area);
        EXPECT_NEAR(static_cast<double>(sums.x) / (3.0 * area), center.x(), 1e-8);
        EXPECT_NEAR(static_cast<double>(sums.y) / (3.0 * area), center.y(), 1e-8);
    }
}
