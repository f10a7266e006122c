// The walk over an outline's segments. Expected segments by hand.
#include "cntr/segment_walk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

namespace {

using Points = std::vector<gkVector<2>>;
using Ends = std::vector<std::pair<double, double>>; // the x of both

Ends walked(const Points& points, bool closed) {
    Ends ends;
    gk_WalkSegments(points, closed, [&](const gkVector<2>& previous, const gkVector<2>& current) {
        ends.emplace_back(previous.x(), current.x());
    });
    return ends;
}

Ends walkedTwoByTwo(const Points& points, bool closed) {
    Ends ends;
    gk_WalkTwoByTwo(points, closed,
                    [&](const gk_TwoVectors& previous, const gk_TwoVectors& current, bool areTwo) {
                        ends.emplace_back(previous.x.first(), current.x.first());
                        if (areTwo) ends.emplace_back(previous.x.second(), current.x.second());
                    });
    return ends;
}

void expectWalk(const Points& points, bool closed, const Ends& expected) {
    EXPECT_EQ(expected, walked(points, closed));
    EXPECT_EQ(expected, walkedTwoByTwo(points, closed));
    EXPECT_EQ(expected.size(), gk_SegmentCount(points, closed));
}

} // namespace

TEST(SegmentWalk, BeginsWithTheClosingSegmentOfAClosedOutline) {
    expectWalk({{1, 0}, {2, 0}, {3, 0}}, true, {{3, 1}, {1, 2}, {2, 3}});
    expectWalk({{1, 0}, {2, 0}}, true, {{2, 1}, {1, 2}});
}

TEST(SegmentWalk, OfAnOpenOutlineHasNoClosingSegment) {
    expectWalk({{1, 0}, {2, 0}, {3, 0}}, false, {{1, 2}, {2, 3}});
    expectWalk({{1, 0}, {2, 0}}, false, {{1, 2}});
}

TEST(SegmentWalk, OfOneVertexIsASegmentOfNoLengthWhereItIsClosed) {
    expectWalk({{1, 0}}, true, {{1, 1}});
    expectWalk({{1, 0}}, false, {});
}

TEST(SegmentWalk, OfNoVerticesVisitsNothing) {
    for (const bool closed : {false, true}) expectWalk({}, closed, {});
}
