// Laws that hold between the answers of related outlines: reversed, started elsewhere, mirrored, moved, scaled.
//
// Mirroring, and moving or scaling by powers of two where that is exact, keep every rounding as it was: those
// answers are equal. Reversing and starting elsewhere change the order of sums, which then agree up to
// rounding.
#include "cntr/moments.h"
#include "cntr/region.h"
#include "tests/gen/each.h"
#include "tests/gen/probes.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

namespace {

constexpr double kU = 0x1p-53;

template <class Map> Points mapped(Points points, Map map) {
    for (gkVector<2>& p : points) p = map(p);
    return points;
}

gkVector<2> mirror(const gkVector<2>& p) { return gkVector<2>(-p.x(), p.y()); }

Points reversed(const Points& points) { return Points(points.rbegin(), points.rend()); }

Points startedAt(Points points, std::size_t first) {
    std::rotate(points.begin(), points.begin() + static_cast<std::ptrdiff_t>(first % points.size()),
                points.end());
    return points;
}

Points hullOf(const gkContour& contour) {
    gkRegion hull;
    contour.convexHull(hull);
    return hull.points();
}

std::vector<int> sorted(std::vector<int> list) {
    std::sort(list.begin(), list.end());
    return list;
}

double sizeOf(const Points& points) {
    double size = 0.0;
    for (const gkVector<2>& p : points) size = std::max({size, std::fabs(p.x()), std::fabs(p.y())});
    return size;
}

// Shapes of finite vertices whose squares are finite and normal, at least two; check(points, seed).
template <class Check> void eachSoundShape(std::uint64_t seeds, Check check) {
    gen::eachShape(seeds, [&](const Points& points, std::uint64_t seed) {
        const double size = sizeOf(points);
        const bool finite = std::all_of(points.begin(), points.end(), [](const gkVector<2>& p) {
            return std::isfinite(p.x()) && std::isfinite(p.y());
        });
        if (points.size() >= 2 && finite && size < 1e100) check(points, seed);
    });
}

// Shapes on the quarters of whole numbers, which move by powers of two without rounding; check(points, seed).
template <class Check> void eachLatticeShape(std::uint64_t seeds, Check check) {
    eachSoundShape(seeds, [&](const Points& points, std::uint64_t seed) {
        const bool lattice = std::all_of(points.begin(), points.end(), [](const gkVector<2>& p) {
            return std::fabs(p.x()) < 1e3 && std::fabs(p.y()) < 1e3 && p.x() * 4.0 == std::floor(p.x() * 4.0) &&
                   p.y() * 4.0 == std::floor(p.y() * 4.0);
        });
        if (lattice) check(points, seed);
    });
}

// What holds for any order of a closed outline's vertices that keeps its segments.
void expectSameOutline(const Points& points, const Points& other, std::uint64_t seed) {
    const OpenedContour a(points, true, 0);
    const OpenedContour b(other, true, 0);
    const double n = static_cast<double>(points.size());
    const double size = sizeOf(points);
    EXPECT_NEAR(a.length(), b.length(), 2.0 * n * kU * a.length());
    EXPECT_NEAR(gf_Area(points), gf_Area(other), 4.0 * n * n * kU * size * size);
    EXPECT_EQ(a.diameter(gkContourDefs::eExact), b.diameter(gkContourDefs::eExact));
    EXPECT_EQ(a.medianFeatureSize(), b.medianFeatureSize());
    EXPECT_EQ(a.encloseRect(gkXform<2>()), b.encloseRect(gkXform<2>()));
    EXPECT_EQ(hullOf(a), hullOf(b));
    for (const double angle : {0.0, 1.0, 2.5}) {
        const gkRadian direction(angle);
        const gkVector<2> unit(1.0, direction);
        EXPECT_EQ(unit * a.extremalVertexPosition(direction), unit * b.extremalVertexPosition(direction));
    }
    for (const gkVector<2>& p : gen::probes(points, seed)) {
        const double scale = size + sizeOf({p});
        ASSERT_EQ(a.distToPoint(p, true), b.distToPoint(p, true)) << p;
        ASSERT_NEAR(a.distToPoint(p, false), b.distToPoint(p, false), 16.0 * kU * scale) << p;
    }
}

// The vertex that holds place i of `other` is vertex from(i) of `points`.
void expectSameNeighbours(const Points& points, const Points& other, const std::function<int(int)>& from,
                          std::uint64_t seed) {
    const gkContour a(points, true, 0);
    const gkContour b(other, true, 0);
    for (const gkVector<2>& p : gen::probes(points, seed)) {
        for (const double tolerance : gen::tolerances(points)) {
            std::vector<int> found = b.vertexIndex(p, tolerance);
            for (int& index : found) index = from(index);
            ASSERT_EQ(sorted(a.vertexIndex(p, tolerance)), sorted(found)) << p << " within " << tolerance;
        }
    }
}

} // namespace

TEST(ContourLaws, ReversingKeepsTheOutline) {
    eachSoundShape(20, [](const Points& points, std::uint64_t seed) {
        expectSameOutline(points, reversed(points), seed);
        const int last = static_cast<int>(points.size()) - 1;
        expectSameNeighbours(
            points, reversed(points), [=](int i) { return last - i; }, seed);
    });
}

TEST(ContourLaws, StartingElsewhereKeepsTheOutline) {
    eachSoundShape(20, [](const Points& points, std::uint64_t seed) {
        const int n = static_cast<int>(points.size());
        const int first = static_cast<int>(seed % points.size());
        const Points other = startedAt(points, static_cast<std::size_t>(first));
        expectSameOutline(points, other, seed);
        expectSameNeighbours(
            points, other, [=](int i) { return (i + first) % n; }, seed);
    });
}

TEST(ContourLaws, ReversingAnOpenContourKeepsItsLengthsAndTheirMedian) {
    eachSoundShape(60, [](const Points& points, std::uint64_t) {
        const OpenedContour a(points, false, 0);
        const OpenedContour b(reversed(points), false, 0);
        EXPECT_NEAR(a.length(), b.length(), 2.0 * kU * static_cast<double>(points.size()) * a.length());
        EXPECT_EQ(a.medianFeatureSize(), b.medianFeatureSize());
    });
}

TEST(ContourLaws, ReversingTurnsTheSignOfTheArea) {
    gen::eachShape(60, [](const Points& points, std::uint64_t) {
        if (points.size() < 3 || !(gf_Area(points) > 1e-2) || sizeOf(points) > 1e3) return;
        const double forth = gf_InertiaDataPolygon(points).area();
        const double back = gf_InertiaDataPolygon(reversed(points)).area();
        EXPECT_TRUE((forth > 0.0) != (back > 0.0)) << forth << " and " << back;
    });
}

TEST(ContourLaws, ReversingASegmentReversesItsCrossings) {
    eachLatticeShape(40, [](const Points& points, std::uint64_t seed) {
        const gkContour contour(points, true, 0);
        // Ends on the quarters too: nothing is then decided within rounding of the touching distance.
        gen::Random random(seed);
        const auto place = [&] {
            return gkVector<2>(random.integer(-20, 40) / 4.0, random.integer(-20, 40) / 4.0);
        };
        for (int query = 0; query < 20; ++query) {
            const gkLineSeg seg(place(), place());
            Points forth = contour.intersections(seg, false);
            Points back = contour.intersections(gkLineSeg(seg.p2(), seg.p1()), false);
            ASSERT_EQ(forth.size(), back.size());
            std::reverse(back.begin(), back.end());
            for (std::size_t i = 0; i < forth.size(); ++i) {
                EXPECT_LT(forth[i].distance(back[i]), 1e-9 * (1.0 + seg.length()));
            }
        }
    });
}

TEST(ContourLaws, MirroringMirrorsEveryMeasure) {
    eachSoundShape(60, [](const Points& points, std::uint64_t) {
        for (const bool closed : {false, true}) {
            const OpenedContour a(points, closed, 0);
            const OpenedContour b(mapped(points, mirror), closed, 0);
            EXPECT_EQ(a.length(), b.length());
            if (a.length() > 0.0) {
                EXPECT_EQ(mirror(a.meanPosition()), b.meanPosition());
            }
            EXPECT_EQ(a.medianFeatureSize(), b.medianFeatureSize());
            EXPECT_EQ(a.isSelfIntersecting(), b.isSelfIntersecting());
            for (const auto mode : {gkContourDefs::eExact, gkContourDefs::eApproximate}) {
                EXPECT_EQ(mirror(a.encloseCircle(mode).center().vector()),
                          b.encloseCircle(mode).center().vector());
                EXPECT_EQ(a.diameter(mode), b.diameter(mode));
            }
            const gkRect box = a.encloseRect(gkXform<2>());
            EXPECT_EQ(gkRect::fromCorners(mirror(box.ul()), mirror(box.lr())), b.encloseRect(gkXform<2>()));
            EXPECT_EQ(a.extremalVertexIndex(gkRadian(0.0)), b.extremalVertexIndex(gkRadian(3.141592653589793)));
        }
        EXPECT_EQ(gf_Area(points), gf_Area(mapped(points, mirror)));
        EXPECT_EQ(mirror(gf_CenterOfMass(points)), gf_CenterOfMass(mapped(points, mirror)));
    });
}

TEST(ContourLaws, MirroringMirrorsEveryQuery) {
    eachSoundShape(20, [](const Points& points, std::uint64_t seed) {
        const OpenedContour a(points, true, 0);
        const OpenedContour b(mapped(points, mirror), true, 0);
        for (const gkVector<2>& p : gen::probes(points, seed)) {
            ASSERT_EQ(mirror(a.closestPoint(p, false)), b.closestPoint(mirror(p), false)) << p;
            ASSERT_EQ(a.closestVertexIndex(p), b.closestVertexIndex(mirror(p))) << p;
            for (const double tolerance : gen::tolerances(points)) {
                ASSERT_EQ(sorted(a.vertexIndex(p, tolerance)), sorted(b.vertexIndex(mirror(p), tolerance)))
                    << p;
            }
        }
        std::vector<int> onA;
        std::vector<int> onB;
        for (const gkLineSeg& seg : gen::querySegments(points, seed)) {
            const Points found = a.intersections(seg, onA, true);
            ASSERT_EQ(mapped(found, mirror),
                      b.intersections(gkLineSeg(mirror(seg.p1()), mirror(seg.p2())), onB, true));
            ASSERT_EQ(onA, onB);
        }
    });
}

TEST(ContourLaws, MovingByAPowerOfTwoMovesLatticeShapes) {
    const gkVector<2> offset(0x1p20, -0x1p18);
    const auto move = [&](const gkVector<2>& p) { return p + offset; };
    eachLatticeShape(60, [&](const Points& points, std::uint64_t seed) {
        const Points moved = mapped(points, move);
        const OpenedContour a(points, true, 0);
        const OpenedContour b(moved, true, 0);
        EXPECT_EQ(a.length(), b.length());
        EXPECT_EQ(a.medianFeatureSize(), b.medianFeatureSize());
        EXPECT_EQ(a.diameter(gkContourDefs::eExact), b.diameter(gkContourDefs::eExact));
        EXPECT_EQ(gf_Area(points), gf_Area(moved));
        EXPECT_EQ(mapped(hullOf(a), move), hullOf(b));
        EXPECT_EQ(a.isSelfIntersecting(), b.isSelfIntersecting());
        const gkRect box = a.encloseRect(gkXform<2>());
        EXPECT_EQ(gkRect::fromCorners(move(box.ul()), move(box.lr())), b.encloseRect(gkXform<2>()));
        gen::Random random(seed);
        for (int i = 0; i < 20; ++i) {
            const gkVector<2> p(random.integer(-40, 40) / 4.0, random.integer(-40, 40) / 4.0);
            EXPECT_EQ(a.closestVertexIndex(p), b.closestVertexIndex(move(p))) << p;
            EXPECT_NEAR(a.distToPoint(p, false), b.distToPoint(move(p), false), 0x1p-31) << p;
            EXPECT_EQ(sorted(a.vertexIndex(p, 2.0)), sorted(b.vertexIndex(move(p), 2.0))) << p;
        }
    });
}

TEST(ContourLaws, ScalingByAPowerOfTwoScalesMeasures) {
    const auto grow = [](const gkVector<2>& p) { return p * 0x1p10; };
    eachSoundShape(40, [&](const Points& points, std::uint64_t seed) {
        const Points grown = mapped(points, grow);
        const OpenedContour a(points, true, 0);
        const OpenedContour b(grown, true, 0);
        EXPECT_EQ(0x1p10 * a.length(), b.length());
        if (a.length() > 0.0) {
            EXPECT_EQ(grow(a.meanPosition()), b.meanPosition());
        }
        EXPECT_EQ(0x1p10 * a.medianFeatureSize(), b.medianFeatureSize());
        EXPECT_EQ(0x1p20 * gf_Area(points), gf_Area(grown));
        EXPECT_EQ(mapped(hullOf(a), grow), hullOf(b));
        for (const gkVector<2>& p : gen::probes(points, seed)) {
            // An ulp beside zero: its products underflow, and then scaling is not exact.
            const bool small =
                (p.x() != 0.0 && std::fabs(p.x()) < 1e-100) || (p.y() != 0.0 && std::fabs(p.y()) < 1e-100);
            if (small) continue;
            ASSERT_EQ(grow(a.closestPoint(p, false)), b.closestPoint(grow(p), false)) << p;
        }
    });
}
