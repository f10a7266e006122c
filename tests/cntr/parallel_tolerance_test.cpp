// What the tolerance of parallel lines (gkLine::kParallelSine) gives and takes, on outlines with collinear
// edges. The figures are in docs/decisions/0010-parallel-lines.md; the seeds and shapes are those measured
// there.
#include "cntr/contour.h"
#include "cntr/contour_defs.h"
#include "cntr/region.h"
#include "tests/support/collinear.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

namespace {

using collinear::Frame;
using collinear::Outline;

constexpr unsigned long kShapes = 300;
// Shapes of at least a hundredth of their coordinates: an object of ten pixels in an image of a thousand.
constexpr Frame kFrames[] = {{1, 1}, {1e3, 1e3}, {1e3, 10}, {1e6, 1e6}};

bool repairs(const Outline& outline) {
    try {
        gkRegion repaired;
        gkRegion(outline).regularize(repaired);
        return true;
    } catch (const gkContourDefs::BadParams&) {
        return false;
    }
}

// How many of the outlines that cross themselves and can be repaired still can after every edge was cut.
struct Share {
    int cut = 0;
    int whole = 0;
};

Share repaired(const Frame& frame) {
    Share share;
    for (unsigned long seed = 1; seed <= kShapes; ++seed) {
        gkRandomUniform random(seed);
        const gkXform<2> where = collinear::place(random, frame);
        const Outline outline = collinear::placed(where, collinear::scribble(random));
        if (!gkContour(outline, true, 0).isSelfIntersecting() || !repairs(outline)) continue;
        ++share.whole;
        share.cut += repairs(collinear::subdivided(random, outline)) ? 1 : 0;
    }
    return share;
}

Points bowCutInThree() { return points("0 0, 2 2, 4 4, 6 6, 6 4, 6 2, 6 0, 4 2, 2 4, 0 6, 0 4, 0 2"); }

} // namespace

TEST(ParallelTolerance, OutlinesWithOneWholeEdgeOutsideRepairHoweverTheOthersAreCut) {
    // The bow with its right side whole: that edge's neighbours are the diagonals' ends, not its own
    // continuation.
    EXPECT_TRUE(repairs(points("0 0, 2 2, 4 4, 6 6, 6 0, 4 2, 2 4, 0 6, 0 4, 0 2")));
}

TEST(ParallelTolerance, OutlinesWhoseEveryEdgeHasAnExactlyCollinearNeighbourAreRefused) {
    // No tolerance could repair these: each piece meets one neighbour at its end and lies along the other.
    EXPECT_TRUE(gkContour(bowCutInThree(), true, 0).isSelfIntersecting());
    EXPECT_FALSE(repairs(bowCutInThree()));
}

TEST(ParallelTolerance, CutOutlinesAsLargeAsTheirCoordinatesRepairAsOftenAsExactlyCollinearOnes) {
    // 36 % measured, wrong areas included: those where a piece that crosses another edge can start the walk.
    for (const Frame& frame : {Frame{1, 1}, Frame{1e3, 1e3}, Frame{1e6, 1e6}}) {
        SCOPED_TRACE(frame.coordinates);
        const Share share = repaired(frame);
        EXPECT_GT(share.whole, static_cast<int>(kShapes) / 2);
        EXPECT_GE(share.cut, share.whole * 30 / 100);
    }
}

TEST(ParallelTolerance, SmallCutOutlinesFarOutRepairWhereRoundingBendsTheirEdges) {
    // At 1e6 the vertices of a shape of size 10 are 1e-10 off, and pieces of an edge are no longer parallel.
    const Share share = repaired({1e6, 10});
    EXPECT_GE(share.cut, share.whole * 95 / 100);
}

TEST(ParallelTolerance, OutlinesFoldedUponThemselvesDoNotCrossThemselves) {
    for (const Frame& frame : kFrames) {
        for (unsigned long seed = 1; seed <= kShapes; ++seed) {
            SCOPED_TRACE(testing::Message() << frame.coordinates << " / " << frame.shape << ", seed " << seed);
            gkRandomUniform random(seed);
            const Outline outline = collinear::folded(random, collinear::star(random));
            const gkContour contour(collinear::placed(collinear::place(random, frame), outline), true, 0);
            EXPECT_FALSE(contour.isSelfIntersecting());
        }
    }
}

TEST(ParallelTolerance, OutlinesWithACommonBorderMeetAtVerticesOnly) {
    for (const Frame& frame : kFrames) {
        for (unsigned long seed = 1; seed <= kShapes; ++seed) {
            SCOPED_TRACE(testing::Message() << frame.coordinates << " / " << frame.shape << ", seed " << seed);
            gkRandomUniform random(seed);
            const auto pair = collinear::neighbours(random);
            const gkXform<2> where = collinear::place(random, frame);
            const gkContour one(collinear::placed(where, pair.first), true, 0);
            const gkContour other(collinear::placed(where, pair.second), true, 0);
            for (const gkVector<2>& x : one.intersections(other)) {
                EXPECT_LT(std::fmin(one.distToPoint(x, true), other.distToPoint(x, true)), 1e-5);
            }
        }
    }
}

TEST(ParallelTolerance, NeedlesWhoseEndsAreApartCrossThemselves) {
    // Edges of length 2 * shape whose ends are tangent * shape apart, at least ten times the touch of 1e-6.
    struct Needle {
        double tangent;
        Frame frame;
    };
    for (const Needle& needle : {Needle{1e-3, {1, 1}}, Needle{1e-5, {1, 1}}, Needle{1e-7, {1e3, 1e3}},
                                 Needle{1e-9, {1e6, 1e6}}, Needle{1e-11, {1e6, 1e6}}}) {
        for (unsigned long seed = 1; seed <= kShapes; ++seed) {
            SCOPED_TRACE(testing::Message() << needle.tangent << ", seed " << seed);
            gkRandomUniform random(seed);
            const gkXform<2> where = collinear::place(random, needle.frame);
            const gkContour contour(collinear::placed(where, collinear::needle(needle.tangent)), true, 0);
            EXPECT_TRUE(contour.isSelfIntersecting());
        }
    }
}
