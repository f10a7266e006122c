// Crossings from a tree. Oracle: tests/oracle/crossings.h, every segment, no shortcut.
#include "cntr/crossings.h"

#include "tests/cntr/search/search_shapes.h"
#include "tests/oracle/crossings.h"
#include "tests/support/answer.h"
#include "tests/support/shapes.h"

namespace {

using gen::Points;

// Points and segment numbers.
template <class Crossings> Answer answerOf(const Crossings& crossings) {
    Answer all;
    for (const auto& crossing : crossings) {
        all.add(crossing.point);
        all.add(crossing.segment);
    }
    return all;
}

// As a contour answers: within its box, and in order along the segment.
std::vector<gk_Crossing> ordered(const Points& points, const gkLineSeg& seg, std::vector<gk_Crossing> found) {
    if (!oracle::boxesOverlap(oracle::encloseRect(points, gkXform<2>()), oracle::segmentBox(seg))) return {};
    gk_OrderAlong(seg, found);
    return found;
}

} // namespace

TEST(CrossingSearch, TreeFindsThePlainCrossings) {
    search::each(12, [](const Points& points, std::uint64_t seed) {
        if (points.size() < 2) return;
        for (const bool closed : {false, true}) {
            const gk_Segments outline(points, closed);
            const auto tree = gk_SegmentTree::of(outline);
            if (!tree) continue;
            for (const gkLineSeg& seg : gen::querySegments(points, seed)) {
                for (const bool includeEnds : {false, true}) {
                    ASSERT_EQ(
                        answerOf(oracle::crossings(points, closed, seg, includeEnds)),
                        answerOf(ordered(points, seg,
                                         gk_Crossings(outline, *tree, gk_CrossingTest(seg, includeEnds)))))
                        << seg.p1() << seg.p2() << includeEnds;
                }
            }
        }
    });
}

TEST(CrossingSearch, TreeKnowsWhetherAnOutlineCrossesItself) {
    int crossing = 0;
    int simple = 0;
    search::each(6, [&](const Points& points, std::uint64_t) {
        if (points.size() < 2) return;
        for (const bool closed : {false, true}) {
            const gk_Segments outline(points, closed);
            const auto tree = gk_SegmentTree::of(outline);
            if (!tree) continue;
            const bool expected = oracle::isSelfIntersecting(points, closed);
            ++(expected ? crossing : simple);
            ASSERT_EQ(expected,
                      gk_CrossesItself(outline, *tree, gk_Box::of(oracle::encloseRect(points, gkXform<2>()))));
        }
    });
    EXPECT_LT(50, crossing);
    EXPECT_LT(50, simple);
}

TEST(CrossingSearch, AsksOnlySegmentsThatReachTheKeptBox) {
    // An eight whose loops cross at (4, 3); a box kept for other coordinates holds none of it.
    const Points eight = {{0, 0}, {8, 6}, {8, 0}, {0, 6}};
    const gk_Segments outline(eight, true);
    const auto tree = gk_SegmentTree::of(outline);
    ASSERT_TRUE(tree);
    EXPECT_TRUE(gk_CrossesItself(outline, *tree, {0, 0, 8, 6}));
    EXPECT_FALSE(gk_CrossesItself(outline, *tree, {20, 20, 30, 30}));
    EXPECT_FALSE(gk_CrossesItself(outline, {20, 20, 30, 30}));
}

TEST(CrossingSearch, ManyCrossingsComeInTheExchangesOrder) {
    // Keys with and without ties, more of them than are exchanged one by one.
    for (std::uint64_t seed = 1; seed <= gen::rounds(200); ++seed) {
        SCOPED_TRACE(seed);
        gen::Random random(seed);
        const int count = random.integer(2, 90);
        const int places = random.chance(0.5) ? 1000000 : random.integer(1, 60);
        std::vector<gk_Crossing> fast;
        std::vector<oracle::Crossing> plain;
        for (int k = 0; k < count; ++k) {
            const gkVector<2> point(random.integer(0, places), random.integer(0, 3));
            fast.push_back({point, k});
            plain.push_back({point, k});
        }
        const gkLineSeg seg({0, 0}, {1, 0});
        gk_OrderAlong(seg, fast);
        oracle::exchangeIntoOrder(plain, seg);
        ASSERT_EQ(answerOf(plain), answerOf(fast));
    }
}
