// Crossings with segments and contours and self-intersection against their definitions: points, order and
// indices.
#include "cntr/contour.h"
#include "tests/gen/each.h"
#include "tests/gen/questions.h"
#include "tests/oracle/crossings.h"
#include "tests/support/answer.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

namespace {

// Points first, then the segment of each.
Answer asAnswer(const Points& points, const std::vector<int>& indices) {
    Answer result;
    result.add(points);
    result.add(indices);
    return result;
}

Answer expectedCrossings(const Points& points, bool closed, const gkLineSeg& seg, bool includeEnds) {
    Answer result;
    Points found;
    std::vector<int> indices;
    result = answer([&] {
        for (const oracle::Crossing& crossing : oracle::crossings(points, closed, seg, includeEnds)) {
            found.push_back(crossing.point);
            indices.push_back(crossing.segment);
        }
        return found;
    });
    return result.error.empty() ? asAnswer(found, indices) : result;
}

Answer foundCrossings(const OpenedContour& contour, const gkLineSeg& seg, bool includeEnds) {
    std::vector<int> indices = {-7};
    Points found;
    const Answer result = answer([&] { return found = contour.intersections(seg, indices, includeEnds); });
    return result.error.empty() ? asAnswer(found, indices) : result;
}

} // namespace

TEST(ContourOracleCrossings, WithASegmentAreTheDefinitions) {
    std::size_t crossed = 0;
    gen::eachOutline(80, [&](const Points& points, bool closed, std::uint64_t seed) {
        const OpenedContour contour(points, closed, 0);
        for (const gkLineSeg& seg : gen::segmentsWithBadOnes(points, seed)) {
            for (const bool includeEnds : {false, true}) {
                const Answer found = foundCrossings(contour, seg, includeEnds);
                ASSERT_EQ(expectedCrossings(points, closed, seg, includeEnds), found)
                    << seg.p1() << " to " << seg.p2() << (includeEnds ? " with ends" : " without ends");
                crossed += found.bits.size() > 2 ? 1 : 0;
            }
        }
    });
    EXPECT_GT(crossed, 20000u) << "the generators hardly cross any more";
}

TEST(ContourOracleCrossings, PublicQueryGivesTheSamePoints) {
    gen::eachOutline(40, [](const Points& points, bool closed, std::uint64_t seed) {
        const OpenedContour contour(points, closed, 0);
        const gkContour& plain = contour;
        std::vector<int> indices;
        for (const gkLineSeg& seg : gen::querySegments(points, seed)) {
            for (const bool includeEnds : {false, true}) {
                ASSERT_EQ(answer([&] { return contour.intersections(seg, indices, includeEnds); }),
                          answer([&] { return plain.intersections(seg, includeEnds); }));
            }
        }
    });
}

// The box kept for a transform that shares the identity's key decides what is looked at.
TEST(ContourOracleCrossings, FollowTheBoxThatIsKept) {
    gen::eachOutline(40, [](const Points& points, bool closed, std::uint64_t seed) {
        if (points.size() < 2) return;
        const OpenedContour contour(points, closed, 0);
        const gkRect box = contour.encloseRect(gkXform<2>(gkMatrix<2>(1.0, 0.0, 0.0, -0.5), {0.0, 0.0}));
        for (const gkLineSeg& seg : gen::querySegments(points, seed)) {
            Points expected;
            for (const oracle::Crossing& crossing : oracle::crossings(points, closed, seg, true, box)) {
                expected.push_back(crossing.point);
            }
            std::vector<int> indices;
            ASSERT_EQ(answer([&] { return expected; }),
                      answer([&] { return contour.intersections(seg, indices, true); }));
        }
    });
}

TEST(ContourOracleCrossings, WithAContourAreTheDefinitions) {
    gen::eachOutline(16, [](const Points& points, bool closed, std::uint64_t seed) {
        const gkContour contour(points, closed, 0);
        for (const gen::Kind& kind : gen::kinds()) {
            const Points other = gen::shape(kind, seed + 1000);
            for (const bool otherClosed : {false, true}) {
                ASSERT_EQ(
                    answer([&] { return oracle::crossingsWithContour(points, closed, other, otherClosed); }),
                    answer([&] { return contour.intersections(gkContour(other, otherClosed, 0)); }))
                    << "with " << kind.name << (otherClosed ? ", closed" : ", open");
            }
        }
    });
}

TEST(ContourOracleCrossings, WithItselfAreTheDefinitions) {
    gen::eachOutline(80, [](const Points& points, bool closed, std::uint64_t) {
        const gkContour contour(points, closed, 0);
        EXPECT_EQ(answer([&] { return oracle::crossingsWithContour(points, closed, points, closed); }),
                  answer([&] { return contour.intersections(contour); }));
    });
}

TEST(ContourOracleCrossings, SelfIntersectionIsTheDefinitions) {
    std::size_t crossing = 0;
    std::size_t simple = 0;
    gen::eachOutline(200, [&](const Points& points, bool closed, std::uint64_t) {
        const gkContour contour(points, closed, 0);
        const bool expected = oracle::isSelfIntersecting(points, closed);
        const Answer wanted = answer([&] { return expected; });
        EXPECT_EQ(wanted, answer([&] { return contour.isSelfIntersecting(); }));
        EXPECT_EQ(wanted, answer([&] { return contour.isSelfIntersecting(); })) << "asked again";
        ++(expected ? crossing : simple);
    });
    EXPECT_GT(crossing, 200u);
    EXPECT_GT(simple, 200u);
}
