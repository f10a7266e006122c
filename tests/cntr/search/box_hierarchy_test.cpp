// Boxes above boxes find those that a scan over all of them finds.
#include "cntr/search/box_hierarchy.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>

namespace {

// On a small lattice, so that many only touch.
gk_Box anyBox(std::mt19937& random) {
    const auto any = [&](unsigned below) { return static_cast<double>(random() % below); };
    const gkVector<2> corner(any(20), any(20));
    return gk_Box::of(corner, corner + gkVector<2>(any(4), any(4)));
}

// The leaves whose boxes are accepted.
template <class Accepts> std::vector<std::size_t> scanned(const std::vector<gk_Box>& boxes, Accepts accepts) {
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < boxes.size(); ++i)
        if (accepts(boxes[i])) found.push_back(i);
    return found;
}

std::vector<std::size_t> sorted(std::vector<std::size_t> found) {
    std::sort(found.begin(), found.end());
    return found;
}

} // namespace

TEST(BoxHierarchy, FindsTheBoxesThatOverlapAnother) {
    const unsigned seed = 20262;
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    for (const std::size_t count : {1u, 2u, 7u, 8u, 9u, 63u, 64u, 65u, 200u, 513u}) {
        std::vector<gk_Box> boxes(count);
        for (gk_Box& box : boxes) box = anyBox(random);
        const gk_BoxHierarchy hierarchy(boxes);
        for (int round = 0; round < 200; ++round) {
            const gk_Box other = anyBox(random);
            // As a predicate must be: a box that is wanted has wanted boxes above it.
            const auto isWanted = [](const gk_Box& box) { return box.x0 < 10; };
            std::vector<std::size_t> found;
            std::vector<std::size_t> wanted;
            std::vector<std::size_t> byPredicate;
            const auto into = [](std::vector<std::size_t>& list) {
                return [&list](std::size_t leaf) {
                    list.push_back(leaf);
                    return false;
                };
            };
            EXPECT_FALSE(hierarchy.anyOverlapping(other, into(found)));
            EXPECT_FALSE(hierarchy.anyOverlapping(other, isWanted, into(wanted)));
            EXPECT_FALSE(
                hierarchy.any([&](const gk_Box& box) { return box.overlaps(other); }, into(byPredicate)));
            const auto overlaps = [&](const gk_Box& box) { return box.overlaps(other); };
            ASSERT_EQ(scanned(boxes, overlaps), sorted(found)) << count;
            ASSERT_EQ(sorted(found), sorted(byPredicate)) << count;
            ASSERT_EQ(scanned(boxes, [&](const gk_Box& box) { return overlaps(box) && isWanted(box); }),
                      sorted(wanted))
                << count;
        }
    }
}

TEST(BoxHierarchy, StopsWhereAVisitEndsIt) {
    std::mt19937 random(1);
    std::vector<gk_Box> boxes(300);
    for (gk_Box& box : boxes) box = anyBox(random);
    int visits = 0;
    EXPECT_TRUE(
        gk_BoxHierarchy(boxes).anyOverlapping({0, 0, 30, 30}, [&](std::size_t) { return ++visits == 42; }));
    EXPECT_EQ(42, visits);
}

TEST(BoxHierarchy, FindsNothingWithNan) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const gk_BoxHierarchy hierarchy(std::vector<gk_Box>(20, {0, 0, 1, 1}));
    for (const gk_Box& other : {gk_Box{nan, 0, 1, 1}, {0, nan, 1, 1}, {0, 0, nan, 1}, {0, 0, 1, nan}})
        EXPECT_FALSE(hierarchy.anyOverlapping(other, [](std::size_t) { return true; }));
}

TEST(EightBoxes, TellWhichOfThemOverlapAsEachDoes) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    std::mt19937 random(2);
    for (int round = 0; round < 1000; ++round) {
        gk_EightBoxes boxes;
        for (std::size_t i = 0; i < 8; ++i) boxes.set(i, anyBox(random));
        if (round % 10 == 0) boxes.set(random() % 8, {0, 0, nan, 30});
        const gk_Box other = anyBox(random);
        unsigned expected = 0;
        for (std::size_t i = 0; i < 8; ++i) expected |= (boxes.box(i).overlaps(other) ? 1u : 0u) << i;
        ASSERT_EQ(expected, boxes.overlapping(other));
    }
}

TEST(EightBoxes, TheLowestBitOfEight) {
    for (unsigned bits = 1; bits < 256; ++bits) {
        std::size_t lowest = 0;
        while ((bits >> lowest) % 2 == 0) ++lowest;
        EXPECT_EQ(lowest, gk_LowestBit(bits));
    }
}
