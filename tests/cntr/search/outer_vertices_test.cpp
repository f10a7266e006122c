// Boxes under transforms from the outer vertices. Oracle: tests/oracle/enclose.h.
#include "cntr/search/outer_vertices.h"
#include "cntr/search/outline_search.h"
#include "tests/cntr/search/search_shapes.h"
#include "tests/oracle/enclose.h"
#include "tests/support/answer.h"

#include <cmath>
#include <limits>

namespace {

using gen::Points;

gkXform<2> transform(gen::Random& random) {
    const double sizes[] = {0.0, 1e-310, 1e-160, 1e-99, 1e-9, 1.0, 1.0, 1.0, 1e9, 1e139, 1e160};
    const double size = sizes[random.index(11)];
    const auto number = [&] {
        return random.between(-1.0, 1.0) * (random.index(4) == 0 ? sizes[random.index(11)] : size);
    };
    return gkXform<2>(gkMatrix<2>(number(), number(), number(), number()), gkVector<2>(number(), number()));
}

gkXform<2> withEntry(double entry) {
    return gkXform<2>(gkMatrix<2>(1.0, entry, 2.0, 3.0), gkVector<2>(4.0, 5.0));
}

} // namespace

TEST(OuterVertices, KnowTheBoxUnderATransform) {
    std::size_t answered = 0;
    std::size_t fewer = 0;
    constexpr std::uint64_t kSeeds = 30;
    search::each(kSeeds, [&](const Points& points, std::uint64_t seed) {
        const auto outer = gk_OuterVertices::of(points, points.size());
        if (!outer || points.size() < 2) return;
        fewer += outer->points().size() < points.size() ? 1 : 0;
        gen::Random random(seed);
        for (int i = 0; i < 60; ++i) {
            const gkXform<2> xform = i == 0 ? gkXform<2>() : transform(random);
            const auto rect = outer->encloseRect(xform);
            if (!rect) continue;
            ++answered;
            ASSERT_EQ(answer([&] { return oracle::encloseRect(points, xform); }),
                      answer([&] { return *rect; }));
        }
    });
    EXPECT_LT(300 * gen::rounds(kSeeds), answered);
    EXPECT_LT(3 * gen::rounds(kSeeds), fewer);
}

TEST(OuterVertices, LeaveBoxesThatRoundingCouldChangeToTheScan) {
    const auto outer = gk_OuterVertices::of({{1, 1}, {9, 2}, {5, 8}, {4, 4}}, 4);
    ASSERT_TRUE(outer);
    EXPECT_TRUE(outer->encloseRect(withEntry(1e-300)));
    for (const double entry : {std::numeric_limits<double>::quiet_NaN(), HUGE_VAL, -1e200})
        EXPECT_FALSE(outer->encloseRect(withEntry(entry)));
    EXPECT_FALSE(outer->encloseRect(gkXform<2>(gkMatrix<2>(1e-200, 0, 0, 1), {1, 1})));
    EXPECT_FALSE(outer->encloseRect(gkXform<2>(gkMatrix<2>(1, 0, 0, 1), {HUGE_VAL, 1})));
}

TEST(OuterVertices, LeaveZeroSidesToTheScanForTheirSign) {
    const auto outer = gk_OuterVertices::of({{0, 1}, {9, 2}, {5, 8}}, 3);
    ASSERT_TRUE(outer);
    EXPECT_FALSE(outer->encloseRect(gkXform<2>(gkMatrix<2>(2, 0, 0, 1), {0, 0})));
    EXPECT_FALSE(outer->encloseRect(gkXform<2>(gkMatrix<2>(1, 0, 0, 1), {2, -8})));
    EXPECT_TRUE(outer->encloseRect(gkXform<2>(gkMatrix<2>(2, 0, 0, 1), {1, 0})));
}

TEST(OuterVertices, AreNotLookedForInManyOrInNumbersThatAreNotModerate) {
    EXPECT_FALSE(gk_OuterVertices::of({{1, 1}, {9, 2}, {5, 8}}, 2));
    EXPECT_FALSE(gk_OuterVertices::of({}, 2));
    EXPECT_FALSE(gk_OuterVertices::of({{1, 1}, {9, std::numeric_limits<double>::quiet_NaN()}}, 2));
    EXPECT_FALSE(gk_OuterVertices::of({{1, 1}, {1e150, 3}}, 2));
    EXPECT_FALSE(gk_OuterVertices::of({{1e-120, 0}, {0, -1e-130}}, 2));
}

TEST(OuterVertices, AnswerALaterQuestionAboutALargeOutline) {
    search::each(2, [&](const Points& points, std::uint64_t seed) {
        Points many = points;
        while (many.size() < 600 && !points.empty()) many.insert(many.end(), points.begin(), points.end());
        if (many.size() < 2) return;
        gk_OutlineSearch outline;
        gen::Random random(seed);
        for (int i = 0; i < 40; ++i) {
            const gkXform<2> xform = i % 20 == 5 ? gkXform<2>() : transform(random);
            ASSERT_EQ(answer([&] { return oracle::encloseRect(many, xform); }),
                      answer([&] { return outline.encloseRect(many, xform); }));
        }
    });
}
