// That rays both ways meet an outline, proved without their direction. Oracle: tests/oracle/inside_count.h.
#include "cntr/search/rays_ahead.h"

#include "cntr/measures.h"
#include "cntr/search/magnitude.h"
#include "tests/cntr/search/search_shapes.h"
#include "tests/gen/random.h"
#include "tests/oracle/inside_count.h"
#include "tests/support/shapes.h"

#include <array>
#include <cmath>
#include <limits>

namespace {

using gen::Points;

std::shared_ptr<const gk_SegmentTree> treeOf(const gk_Segments& outline) {
    std::optional<gk_SegmentTree> tree = gk_SegmentTree::of(outline);
    return tree ? std::make_shared<const gk_SegmentTree>(*std::move(tree)) : nullptr;
}

std::optional<gk_RaysAhead> raysOf(const Points& points) {
    const gk_Segments outline(points, true);
    const auto tree = treeOf(outline);
    if (!tree) return std::nullopt;
    return gk_RaysAhead::of(outline, tree, 2.0 * gk_CircleAroundFirst(points).radius());
}

// Beside the middles of some edges that follow each other, near and not so near.
Points besideEdges(const Points& points, std::size_t first, double probe) {
    Points places;
    for (std::size_t i = first; i < first + 8; ++i) {
        const gkVector<2>& from = points[i % points.size()];
        const gkVector<2>& to = points[(i + 1) % points.size()];
        const gkVector<2> across = gkVector<2>(from.y() - to.y(), to.x() - from.x()) * probe;
        places.push_back((from + to) / 2.0 + across);
        places.push_back((from + to) / 2.0 - across);
    }
    return places;
}

gk_Box boxOf(const Points& places) {
    gk_Box box = gk_Box::of(places.front(), places.front());
    for (const gkVector<2>& p : places) box = box.enclosing(gk_Box::of(p, p));
    return box;
}

struct Counts {
    int proved = 0;
    int meeting = 0;
};

void compare(const Points& points, std::uint64_t seed, Counts& counts) {
    if (points.size() < 3) return;
    std::optional<gk_RaysAhead> rays = raysOf(points);
    if (!rays) return;
    const gk_Segments outline(points, true);
    const gkRect box = gk_EncloseRect(points, gkXform<2>());
    gen::Random random(seed);
    gk_RaysMet met;
    for (const double probe : {1e-9, 1e-5, 0.01, 0.02, 0.1, 0.3, 1.0, 3.0, 10.0, 30.0}) {
        const Points places = besideEdges(points, random.index(points.size()), probe);
        rays->gather(outline, boxOf(places));
        for (const gkVector<2>& p : places) {
            const bool isProved = rays->bothMeet(outline, p, met);
            const bool isMeeting = box.within(p) && oracle::insideCount(points, p, true) != 0;
            if (isProved && box.within(p)) {
                ASSERT_TRUE(isMeeting) << p;
            }
            counts.proved += isProved ? 1 : 0;
            counts.meeting += isMeeting ? 1 : 0;
        }
    }
}

} // namespace

TEST(RaysAhead, WhatIsProvedIsWhatThePlainRaysMeet) {
    Counts counts;
    search::each(12, [&](const Points& points, std::uint64_t seed) { compare(points, seed, counts); });
    EXPECT_LT(counts.meeting / 4, counts.proved);
}

TEST(RaysAhead, IsTheSameWhereverTheOutlineIs) {
    Counts counts;
    search::each(4, [&](const Points& points, std::uint64_t seed) {
        gen::Random random(seed);
        const double scale = std::ldexp(1.0, random.integer(-12, 12));
        const gkVector<2> shift(random.between(-1e6, 1e6), random.between(-1e6, 1e6));
        Points moved;
        for (const gkVector<2>& p : points) moved.push_back(p * scale + shift);
        compare(moved, seed, counts);
    });
    EXPECT_LT(counts.meeting / 8, counts.proved);
}

TEST(RaysAhead, ProvesNothingOfPlacesNotGatheredFor) {
    const Points points = {{0, 0}, {8, 0.5}, {9, 8}, {0.5, 7}};
    const gk_Segments outline(points, true);
    std::optional<gk_RaysAhead> rays = raysOf(points);
    ASSERT_TRUE(rays);
    gk_RaysMet met;
    EXPECT_FALSE(rays->bothMeet(outline, {4, 4}, met));
    rays->gather(outline, gk_Box{3, 3, 5, 5});
    EXPECT_TRUE(rays->bothMeet(outline, {4, 4}, met));
    EXPECT_FALSE(rays->bothMeet(outline, {6, 4}, met));
}

TEST(RaysAhead, ProvesNothingWhereRoundingIsTooMuch) {
    EXPECT_FALSE(raysOf({{1e9, 0}, {2e9, 0}, {2e9, 1e9}, {1e9, 1e9}}));
}

// One edge lies along a ray back from the place, so that it is met in neither way; nothing else is behind.
TEST(RaysAhead, ProvesNothingOfARayAlongAnEdge) {
    const Points points = {{1, 0}, {8, -2}, {8, 2}, {2, 2}, {1, 0}, {0, 0}, {-3, 0}, {-3, 1}, {-3, 0}, {0, 0}};
    const gk_Segments outline(points, true);
    std::optional<gk_RaysAhead> rays = raysOf(points);
    ASSERT_TRUE(rays);
    for (const gkVector<2>& p : {gkVector<2>(3, 0), gkVector<2>(3, 1e-7), gkVector<2>(3, -1e-12)}) {
        rays->gather(outline, gk_Box::of(p, p));
        gk_RaysMet met;
        if (rays->bothMeet(outline, p, met)) {
            EXPECT_NE(0, oracle::insideCount(points, p, true)) << p;
        }
    }
}

// Seen from just above the x axis a vertex on it lies in a direction below zero that is computed as zero: it
// is the first of all there, not the last.
TEST(RaysAhead, ProvesNothingOfAVertexBelowTheXDirectionByLessThanAnAngleCanBe) {
    const Points points = {{9, 0}, {9, 2}, {8, 8}, {-8, 8}, {-9, -2}, {-8, -8}, {8, -8}};
    const gk_Segments outline(points, true);
    std::optional<gk_RaysAhead> rays = raysOf(points);
    ASSERT_TRUE(rays);
    gk_RaysMet met;
    for (const double y : {std::numeric_limits<double>::denorm_min(), 1e-310, 1e-290}) {
        rays->gather(outline, gk_Box{-1, -1, 1, 1});
        EXPECT_FALSE(rays->bothMeet(outline, {0, y}, met)) << y;
    }
    EXPECT_TRUE(rays->bothMeet(outline, {0, 0.5}, met));
}

// The first wide gap is the mouth of a bay, wide by less than is known of its sine. The ray leaves through it;
// one through the next gap would not.
TEST(RaysAhead, ProvesNothingOfAGapThatIsWideByAHair) {
    constexpr std::size_t kHalf = 40; // of the vertices: inside the bay, and outside
    const gkVector<2> place(3, 5);
    const double step = std::acos(-1.0) / (2.0 * kHalf);
    for (const double more : {1e-13, 1e-12, 4e-12, 1e-10}) {
        const double first = 0.01 + step + more;
        const double apart = (2.0 * std::acos(-1.0) - step - more) / (kHalf - 1);
        Points points;
        for (std::size_t i = 0; i < kHalf; ++i) {
            const double angle = first + apart * static_cast<double>(i);
            points.push_back(place + gkVector<2>(std::cos(angle), std::sin(angle)) * 50.0);
        }
        for (std::size_t i = kHalf; i-- > 0;) points.push_back(place + (points[i] - place) * 1.2);
        const gk_Segments outline(points, true);
        std::optional<gk_RaysAhead> rays = raysOf(points);
        ASSERT_TRUE(rays);
        ASSERT_EQ(0, oracle::insideCount(points, place, true)) << more;
        rays->gather(outline, gk_Box::of(place, place));
        gk_RaysMet met;
        EXPECT_FALSE(rays->bothMeet(outline, place, met)) << more;
    }
}
