// Crossings from a tree. Oracle: tests/oracle/crossings.h, every segment, no shortcut.
#include "cntr/crossings.h"

#include "cntr/search/close_segments.h"
#include "cntr/search/crossing_candidates.h"
#include "tests/cntr/search/search_shapes.h"
#include "tests/oracle/crossings.h"
#include "tests/support/answer.h"
#include "tests/support/shapes.h"

#include <limits>

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
    std::uint64_t crossing = 0;
    std::uint64_t simple = 0;
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
    EXPECT_LT(gen::rounds(50), crossing);
    EXPECT_LT(gen::rounds(50), simple);
}

// Outlines without a tree take part.
TEST(CrossingSearch, CandidatesKnowWhetherAnOutlineCrossesItself) {
    search::each(6, [&](const Points& points, std::uint64_t) {
        if (points.size() < 2) return;
        for (const bool closed : {false, true}) {
            const gk_Box box = gk_Box::of(oracle::encloseRect(points, gkXform<2>()));
            ASSERT_EQ(oracle::isSelfIntersecting(points, closed),
                      gk_CrossesItselfByCandidates(gk_Segments(points, closed), box));
        }
    });
}

// Every two segments are close, so the tree alone would look at all pairs.
TEST(CrossingSearch, SegmentsOnTopOfEachOtherAreKnownToCrossOrNot) {
    gen::Random random(5);
    const auto along = [&](const gkVector<2>& step) {
        Points points;
        for (int i = 0; i < 300; ++i) points.push_back(random.unit() * step);
        return points;
    };
    const Points twoPlaces = {{1, 2}, {5, 7}};
    const Points corners = {{0, 0}, {8, 6}, {8, 0}, {0, 6}}; // round an eight
    const auto repeatedly = [](const Points& places) {
        Points points;
        for (std::size_t i = 0; i < 300; ++i) points.push_back(places[i % places.size()]);
        return points;
    };
    const std::vector<Points> outlines = {repeatedly(twoPlaces), repeatedly({{3, 3}}),
                                          repeatedly(corners),   along({0, 7}),
                                          along({3, 1}),         along({1.0 / 3.0, 1.0 / 7.0})};
    int crossing = 0;
    for (const Points& points : outlines) {
        const gk_Segments outline(points, true);
        const auto tree = gk_SegmentTree::of(outline);
        ASSERT_TRUE(tree);
        const bool expected = oracle::isSelfIntersecting(points, true);
        crossing += expected ? 1 : 0;
        const gk_Box box = gk_Box::of(oracle::encloseRect(points, gkXform<2>()));
        EXPECT_EQ(expected, gk_CrossesItself(outline, *tree, box));
        EXPECT_EQ(expected, gk_CrossesItselfByCandidates(outline, box));
    }
    EXPECT_LE(1, crossing);
}

// Where steps are as short as a touch, those on either side of one may still count as crossing.
TEST(CrossingSearch, OutlinesThatLeadOnByAboutATouchAreKnownToCrossOrNot) {
    std::uint64_t crossing = 0;
    std::uint64_t simple = 0;
    for (std::uint64_t seed = 1; seed <= gen::rounds(400); ++seed) {
        SCOPED_TRACE(seed);
        gen::Random random(seed);
        const gkVector<2> along(random.between(-1, 1), random.between(-1, 1));
        const gkVector<2> across(-along.y(), along.x());
        const double least = random.between(-2e-6, 4e-6);
        const double spread = random.chance(0.5) ? 2e-6 : 2e-4;
        const double away = random.chance(0.3) ? random.between(-1e5, 1e5) : 0.0;
        Points points;
        double place = 0.0;
        for (int i = 0; i < 80; ++i) {
            place += least + random.between(0, 4e-6);
            points.push_back(gkVector<2>(away, away) + place * along +
                             random.between(-spread, spread) * across);
        }
        const gk_Segments outline(points, false);
        const auto tree = gk_SegmentTree::of(outline);
        ASSERT_TRUE(tree);
        const bool expected = oracle::isSelfIntersecting(points, false);
        ++(expected ? crossing : simple);
        const gk_Box box = gk_Box::of(oracle::encloseRect(points, gkXform<2>()));
        ASSERT_EQ(expected, gk_CrossesItself(outline, *tree, box));
    }
    EXPECT_LT(gen::rounds(50), crossing);
    EXPECT_LT(gen::rounds(50), simple);
}

TEST(CrossingSearch, CandidatesAreOneOfEachKindAndNoneWhereAllAreParallel) {
    const auto candidates = [](const Points& points) {
        return gk_CrossingCandidates(gk_Segments(points, true));
    };
    EXPECT_EQ(4U, candidates({{0, 0}, {8, 6}, {8, 0}, {0, 6}, {0, 0}, {8, 6}, {8, 0}, {0, 6}}).size());
    EXPECT_TRUE(candidates({{1, 1}, {1, 5}, {1, 3}, {1, 9}}).empty());
    EXPECT_TRUE(candidates({{1, 1}, {1, 1}, {1, 1}}).empty());
    EXPECT_TRUE(candidates({{-1e308, 0}, {1e308, 1e308}, {5, -1e308}}).empty());
    const double inf = std::numeric_limits<double>::infinity();
    EXPECT_EQ(2U, candidates({{0, 0}, {1, 2}, {3, 1}, {inf, 3}}).size());
}

// A segment beyond the tree's bounds is held against every one, wherever the one it meets stands in the list.
TEST(CrossingSearch, AVastSegmentMeetsTheOnlyOneItCrosses) {
    const gk_CrossingTest query(gkLineSeg({-1e145, 0.5}, {1e145, 0.5}), false);
    for (std::size_t crossed = 0; crossed + 1 < 64; ++crossed) {
        Points points;
        for (std::size_t i = 0; i < 64; ++i)
            points.emplace_back(static_cast<double>(i % 2), i <= crossed ? 0.0 : 1.0);
        const gk_Segments outline(points, false);
        const auto tree = gk_SegmentTree::of(outline);
        ASSERT_TRUE(tree);
        for (const std::size_t asked : {std::size_t{0}, std::size_t{31}, std::size_t{62}}) {
            std::size_t met = asked;
            EXPECT_TRUE(gk_MeetsAny(outline, *tree, query, met)) << crossed << ' ' << asked;
            EXPECT_EQ(crossed, met);
        }
    }
}

// The same segment crosses each step from one level to the other.
TEST(CrossingSearch, AVastSegmentsCrossingsAreCountedUpToTheMost) {
    Points points;
    for (std::size_t i = 0; i < 64; ++i)
        points.emplace_back(static_cast<double>(i), static_cast<double>(i % 2));
    const gk_Segments outline(points, false);
    const auto tree = gk_SegmentTree::of(outline);
    ASSERT_TRUE(tree);
    const gk_CrossingTest query(gkLineSeg({-1e145, 0.5}, {1e145, 0.5}), false);
    for (const std::size_t most : {std::size_t{1}, std::size_t{7}, std::size_t{1000}}) {
        EXPECT_EQ(std::min(most, std::size_t{63}), gk_CountCrossings(outline, *tree, query, most));
        EXPECT_EQ(std::min(most, std::size_t{63}), gk_CountCrossings(outline, query, most));
    }
}

TEST(CrossingSearch, TreeKnowsWhetherASegmentMeetsAny) {
    search::each(12, [](const Points& points, std::uint64_t seed) {
        if (points.size() < 2) return;
        const gk_Segments outline(points, true);
        const auto tree = gk_SegmentTree::of(outline);
        if (!tree) return;
        std::size_t met = seed % points.size();
        for (const gkLineSeg& seg : gen::querySegments(points, seed)) {
            const gk_CrossingTest query(seg, false);
            const bool expected = !gk_Crossings(outline, query).empty();
            ASSERT_EQ(expected, gk_MeetsAny(outline, *tree, query, met)) << seg.p1() << seg.p2();
            gkVector<2> point;
            if (expected) {
                ASSERT_TRUE(query.crosses(outline.first(met), outline.second(met), point));
            }
        }
    });
}

// Boxes that are exactly the margin apart are near, also where the outline goes on by just that in each step.
TEST(CrossingSearch, SegmentsAreCloseAtTheMarginInEveryDirection) {
    const double margin = 0.25;
    for (const gkVector<2>& step :
         {gkVector<2>(margin, 0), gkVector<2>(-margin, 0), gkVector<2>(0, margin), gkVector<2>(0, -margin)}) {
        Points points;
        for (int i = 0; i < 64; ++i) points.push_back(step * i);
        const gk_Segments outline(points, false);
        const auto tree = gk_SegmentTree::of(outline);
        ASSERT_TRUE(tree);
        const auto close = gk_CloseSegments::of(outline, *tree, margin);
        ASSERT_TRUE(close);
        for (std::size_t k = 0; k + 2 < outline.size(); ++k) {
            bool isMet = false;
            close->visitAround(k, [&](std::size_t j) { isMet = isMet || j == k + 2; });
            EXPECT_TRUE(isMet) << step << k;
        }
    }
}

// The plain answer: all pairs of boxes. A box grown by a margin may round to either side of another.
TEST(CrossingSearch, CloseSegmentsAreThoseWhoseBoxesAreNear) {
    search::each(6, [](const Points& points, std::uint64_t seed) {
        if (points.size() < 4) return;
        const gk_Segments outline(points, true);
        const auto tree = gk_SegmentTree::of(outline);
        if (!tree) return;
        const double margin = gen::Random(seed).chance(0.5) ? 1e-6 : 0.3;
        const auto close = gk_CloseSegments::of(outline, *tree, margin);
        if (!close) return;
        const auto boxOf = [&](std::size_t k) { return gk_Box::of(outline.first(k), outline.second(k)); };
        const std::size_t n = outline.size();
        for (std::size_t k = 0; k < n; ++k) {
            std::vector<bool> isAround(n, false);
            std::size_t next = 0;
            close->visitAround(k, [&](std::size_t j) {
                ASSERT_LE(next, j);
                next = j + 1;
                isAround[j] = true;
            });
            std::size_t apart = 0;
            for (std::size_t j = 0; j < n; ++j) {
                const bool isNeighbour = j == k || (j + 1) % n == k || (k + 1) % n == j;
                if (isNeighbour || boxOf(k).grownBy(0.9999 * margin).overlaps(boxOf(j))) {
                    ASSERT_TRUE(isAround[j]) << k << ' ' << j;
                }
                if (isAround[j] && !isNeighbour) {
                    ++apart;
                    ASSERT_TRUE(boxOf(k).grownBy(1.0001 * margin + 1e-300).overlaps(boxOf(j))) << k << ' ' << j;
                }
            }
            ASSERT_EQ(apart == 0, close->hasNone(k));
        }
    });
}

// Long slanting segments beside each other: the boxes of all pairs overlap and none are the same, so neither
// the tree nor leaving out equal segments saves anything.
TEST(CrossingSearch, ManySegmentsAcrossEachOthersBoxesAreAskedPairByPair) {
    constexpr int kTeeth = 60;
    Points comb;
    for (int i = 0; i < kTeeth; ++i) {
        comb.push_back({2.0 * i, 0.0});
        comb.push_back({2.0 * i + 1000.0, 1000.0});
    }
    for (const bool isCut : {false, true}) {
        Points points = comb;
        // Home round the outside, or straight across the teeth.
        if (!isCut)
            for (const gkVector<2>& corner : Points{{1200, 1100}, {1200, -100}, {-100, -100}})
                points.push_back(corner);
        const gk_Segments outline(points, true);
        const auto tree = gk_SegmentTree::of(outline);
        ASSERT_TRUE(tree);
        const gk_Box box = gk_Box::of(oracle::encloseRect(points, gkXform<2>()));
        EXPECT_EQ(isCut, oracle::isSelfIntersecting(points, true));
        EXPECT_EQ(isCut, gk_CrossesItself(outline, *tree, box));
    }
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
    EXPECT_TRUE(gk_CrossesItselfByCandidates(outline, {0, 0, 8, 6}));
    EXPECT_FALSE(gk_CrossesItselfByCandidates(outline, {20, 20, 30, 30}));
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
