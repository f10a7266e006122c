// Repair of one outline. Expected vertices are worked out by hand; tests/oracle/repair.h is the plain repair.
#include "cntr/boundary_walk.h"
#include "cntr/loops.h"
#include "cntr/region.h"
#include "platform/system/assert.h"
#include "tests/oracle/length.h"
#include "tests/oracle/repair.h"
#include "tests/support/repair_access.h"
#include "tests/support/shapes.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

gkRegion region(const std::string& text) { return gkRegion(points(text)); }

Points regularized(const gkRegion& given) {
    gkRegion result;
    given.regularize(result);
    return result.points();
}

Points outerHull(const gkRegion& given) {
    gkRegion result;
    given.outerHull(result);
    return result.points();
}

long startEdge(const std::string& text, double probe) {
    gk_Outline outline(points(text));
    return gk_StartEdge(outline, probe);
}

std::wstring refusal(const gkRegion& given) {
    try {
        regularized(given);
    } catch (const gkContourDefs::BadParams& refused) {
        return refused.message();
    }
    return L"repaired";
}

// Two upright sides; the other two edges cross in (2, 1).
const char* const kFigureEight = "0 0, 0 2, 4 0, 4 2";
// An inner square (4, 4) to (6, 6) in which the outline turns a second time; it crosses itself in (4, 6).
const char* const kDoubleTurn = "4 4, 6 4, 6 6, 2 6, 2 2, 8 2, 8 8, 4 8";

} // namespace

TEST(RegionRepair, AnOutlineThatDoesNotCrossItselfIsReturnedWithHolesAndLabel) {
    gkRegion given = region("0 0, 9 0, 9 9, 0 9");
    const gkPtrHandle<gkRegion> hole(new gkRegion(points("2 2, 4 2, 2 4")));
    given.holes({hole});
    given.label(7);
    gkRegion regular;
    given.regularize(regular);
    gkRegion hull;
    given.outerHull(hull);
    for (const gkRegion& result : {regular, hull}) {
        EXPECT_EQ(given.points(), result.points());
        ASSERT_EQ(1u, result.holes().size());
        EXPECT_EQ(&*hole, &*result.holes()[0]);
        EXPECT_EQ(7u, result.label());
    }
}

TEST(RegionRepair, TheWalkTurnsBackAtTheCrossingOfAFigureEight) {
    EXPECT_THAT(regularized(region(kFigureEight)), ElementsAreArray(points("0 2, 2 1, 4 2, 4 0, 2 1, 0 0")));
}

TEST(RegionRepair, TwoLobesSideBySideAreCutKeptAndJoinedAgain) {
    const Points walked = points("0 2, 2 1, 4 2, 4 0, 2 1, 0 0");
    const std::vector<gk_Loop> lobes = gk_CutLoops(walked);
    ASSERT_EQ(2u, lobes.size());
    EXPECT_EQ(points("2 1, 4 2, 4 0"), lobes[0]);
    EXPECT_EQ(points("2 1, 0 0, 0 2"), lobes[1]);
    EXPECT_EQ(lobes, gk_DropInnerLoops(lobes));
    EXPECT_THAT(outerHull(region(kFigureEight)), ElementsAreArray(points("2 1, 4 2, 4 0, 2 1, 0 0, 0 2")));
}

TEST(RegionRepair, VerticesNearerThanAMillionthAreTheSameWhereLoopsAreCutAndJoined) {
    const gkVector<2> knot(2, 1);
    const Points near = {knot, {4, 2}, {4, 0}, knot + gkVector<2>(0.9e-6, 0), {0, 0}, {0, 2}};
    EXPECT_EQ(2u, gk_CutLoops(near).size());
    EXPECT_EQ(1u, gk_JoinLoops(gk_CutLoops(near)).size());
    const Points apart = {knot, {4, 2}, {4, 0}, knot + gkVector<2>(1.1e-6, 0), {0, 0}, {0, 2}};
    EXPECT_EQ(1u, gk_CutLoops(apart).size());
    EXPECT_EQ(2u,
              gk_JoinLoops({{knot, {4, 2}, {4, 0}}, {knot + gkVector<2>(1.1e-6, 0), {0, 0}, {0, 2}}}).size());
}

// Two vertices are near the knot and not near each other: the one in the cell further left counts, though it
// comes later.
TEST(RegionRepair, OfVerticesNearAKnotTheFirstCellsCounts) {
    const gkVector<2> knot(0, 0);
    const gkVector<2> left(-0.9e-6, 0);
    const gkVector<2> right(0.9e-6, 0);
    const std::vector<gk_Loop> cut = gk_CutLoops({knot, {4, 2}, right, {-3, 2}, left, {-3, -2}});
    EXPECT_THAT(cut, ElementsAre(gk_Loop{knot, {4, 2}}, gk_Loop{left, {-3, -2}}, gk_Loop{right, {-3, 2}}));
    const std::vector<gk_Loop> joined =
        gk_JoinLoops({{knot, {4, 2}, {4, 0}}, {right, {-3, 2}, left, {-3, -2}}});
    EXPECT_THAT(joined, ElementsAre(gk_Loop{knot, {4, 2}, {4, 0}, left, {-3, -2}, right, {-3, 2}}));
}

// In one cell the first in its loop's order counts, whichever is nearer.
TEST(RegionRepair, OfVerticesNearAKnotInOneCellTheFirstCounts) {
    const gkVector<2> near(0.3e-6, 0.1e-6);
    const gkVector<2> nearer(0.2e-6, -0.1e-6);
    const std::vector<gk_Loop> loops = {{{0, 0}, {4, 2}, {4, 0}}, {{-3, 1}, near, {-3, 2}, nearer, {-3, -2}}};
    const std::vector<gk_Loop> joined = gk_JoinLoops(loops);
    EXPECT_EQ(oracle::joinLoops(loops), joined);
    EXPECT_THAT(joined, ElementsAre(gk_Loop{{0, 0}, {4, 2}, {4, 0}, near, {-3, 2}, nearer, {-3, -2}, {-3, 1}}));
}

TEST(RegionRepair, ALoopInsideAnotherIsDroppedFromTheOuterHullAlone) {
    EXPECT_THAT(regularized(region(kDoubleTurn)),
                ElementsAreArray(points("2 2, 8 2, 8 8, 4 8, 4 6, 6 6, 6 4, 4 4, 4 6, 2 6")));
    EXPECT_THAT(outerHull(region(kDoubleTurn)), ElementsAreArray(points("4 6, 2 6, 2 2, 8 2, 8 8, 4 8")));
}

TEST(RegionRepair, ResultsHaveNoHolesAndLabelZero) {
    gkRegion given = region(kFigureEight);
    given.holes({gkPtrHandle<gkRegion>(new gkRegion(points("1 0.9, 1.1 1, 1 1.1")))});
    given.label(7);
    gkRegion regular = given; // what they held before does not stay
    given.regularize(regular);
    gkRegion hull = given;
    given.outerHull(hull);
    for (const gkRegion& result : {regular, hull}) {
        EXPECT_TRUE(result.holes().empty());
        EXPECT_EQ(0u, result.label());
        EXPECT_TRUE(result.isClosed());
    }
}

TEST(RegionRepair, TheResultMayBeTheRegionItself) {
    gkRegion regular = region(kDoubleTurn);
    regular.regularize(regular);
    EXPECT_EQ(regularized(region(kDoubleTurn)), regular.points());
    gkRegion hull = region(kDoubleTurn);
    hull.outerHull(hull);
    EXPECT_EQ(outerHull(region(kDoubleTurn)), hull.points());
}

TEST(RegionRepair, IsDoneByTheConstructorsOnDemand) {
    const Points given = points(kDoubleTurn);
    EXPECT_EQ(given, gkRegion(given, gkContourDefs::eKeepIntersections).points());
    EXPECT_EQ(regularized(gkRegion(given)), gkRegion(given, gkContourDefs::eRegularize).points());
    EXPECT_EQ(outerHull(gkRegion(given)), gkRegion(given, gkContourDefs::eOuterHull).points());
}

TEST(RegionRepair, AnOutlineWithOnlyTheClosingEdgeFreeIsRefused) {
    EXPECT_EQ(L"invalid contour", refusal(region("5 0, 1 1, 4 1, 1 0, 4 5")));
    EXPECT_EQ(L"repaired", refusal(region("4 5, 5 0, 1 1, 4 1, 1 0"))); // the same edge, now the first
}

TEST(RegionRepair, AnOutlineWithEveryEdgeCrossedIsRefused) {
    EXPECT_EQ(L"invalid contour", refusal(region("0 3, 5 3, 1 0, 2.5 5, 4 0"))); // a five-pointed star
}

TEST(RegionRepairStart, IsTheLowestEdgeThatQualifies) {
    EXPECT_EQ(0, startEdge("0 0, 0 2, 4 0, 4 2", 0.04));
    EXPECT_EQ(1, startEdge("4 2, 0 0, 0 2, 4 0", 0.04));
    EXPECT_EQ(0, startEdge("4 0, 4 2, 0 0, 0 2", 0.04));
    EXPECT_EQ(1, startEdge("0 2, 4 0, 4 2, 0 0", 0.04)); // the closing edge would qualify too
}

TEST(RegionRepairStart, IsNotAnEdgeThatAVertexTouches) {
    EXPECT_EQ(1, startEdge("0 0, 4 0, 4 4, 2 0, 0 4", 0.04));
}

TEST(RegionRepairStart, IsNotAnEdgeWhoseNeighbourGoesStraightOn) {
    EXPECT_EQ(2, startEdge("0 0, 2 0, 4 0, 4 4, 0 4", 0.04)); // parallel neighbours give no crossing
}

TEST(RegionRepairStart, IsNotAnEdgeWithAnotherWithinTheProbeEndsIncluded) {
    const std::string hook = "0 0, 0 8, 8 8, 8 7, 1 7, 1 0";
    EXPECT_EQ(0, startEdge(hook, 0.5));
    EXPECT_EQ(2, startEdge(hook, 1.0)); // the probe ends on the other edge
}

TEST(RegionRepairStart, HasTheOutsideOnOneSide) {
    EXPECT_EQ(3, startEdge(kDoubleTurn, 0.02)); // edges 0 and 1 lie within the outer turn, edge 2 is crossed
}

TEST(RegionRepairStart, IsSoughtByAProbeOfAHundredthOfTheMedianEdge) {
    // A slit runs beside the first edge. With a median length of 8 the probe is 0.08 long; the walk then starts
    // at edge 0 or, beside a narrower slit, at edge 2. Its last point is the vertex that it started from.
    EXPECT_EQ(gkVector<2>(0, 0), regularized(region("0 0, 0 8, 8 8, 8 0, 0.09 8.5, 0.09 0")).back());
    EXPECT_EQ(gkVector<2>(8, 8), regularized(region("0 0, 0 8, 8 8, 8 0, 0.07 8.5, 0.07 0")).back());
}

TEST(RegionRepairWrap, CorrectsOnceAndIsNoModulo) {
    EXPECT_EQ(4, gk_WrapOnce(-1, 5));
    EXPECT_EQ(0, gk_WrapOnce(-5, 5));
    EXPECT_EQ(-1, gk_WrapOnce(-6, 5));
    EXPECT_EQ(0, gk_WrapOnce(0, 5));
    EXPECT_EQ(4, gk_WrapOnce(4, 5));
    EXPECT_EQ(0, gk_WrapOnce(5, 5));
    EXPECT_EQ(6, gk_WrapOnce(11, 5));
}

TEST(RegionRepairFailure, BelowThreeVerticesThereIsNothingToWalk) {
    for (const char* text : {"", "1 1", "1 1, 2 2"}) {
        gkRegion result;
        EXPECT_THROW(repairAnyway(region(text), false, result), gkContourDefs::EmptyContour) << text;
        EXPECT_THROW(repairAnyway(region(text), true, result), gkContourDefs::EmptyContour) << text;
        EXPECT_EQ(points(text), regularized(region(text))) << text; // it does not cross itself
    }
}

TEST(RegionRepairFailure, ARepeatedVertexIsCutIntoALoopOfOneAndRefused) {
    const gkRegion given = region("0 0, 0 2, 0 2, 4 0, 4 2");
    EXPECT_EQ(points("0 2, 0 2, 2 1, 4 2, 4 0, 2 1, 0 0"), regularized(given));
    EXPECT_THROW(outerHull(given), gkContourDefs::EmptyContour);
    EXPECT_THROW(gk_CutLoops(points("0 2, 0 2, 2 1")), gkContourDefs::EmptyContour);
}

TEST(RegionRepairFailure, LeavesNothingKeptSoTheNextCallRefusesAgain) {
    const gkRegion given = region("0 0, 0 2, 0 2, 4 0, 4 2");
    EXPECT_THROW(outerHull(given), gkContourDefs::EmptyContour);
    EXPECT_THROW(outerHull(given), gkContourDefs::EmptyContour);
}

namespace {

// Loops that share no vertex are left: a spike along the outline is cut off and its like dropped.
const std::vector<std::string> kLoopsRemain = {
    "2 0, 4 0, 0 3, 4 0, 2 3, 4 3",
    "0 3, 2 1, 1 3, 3 3, 2 3, 3 3",
    "0 0, 1 1, 0 1, 0 0, 3 1, 3 0, 1 1",
    "1 4, 3 2, 2 5, 0 4, 1 0, 3 2, 2 4, 0 0, 4 5",
};

long gFailedLine = 0;

void remember(const char*, const char*, long line) { gFailedLine = line; }

// Installs a handler that returns, for one test.
class ReturningHandler {
public:
    ReturningHandler() : before_(gk_SetAssertHandler(&remember)) { gFailedLine = 0; }
    ~ReturningHandler() { gk_SetAssertHandler(before_); }
    ReturningHandler(const ReturningHandler&) = delete;
    ReturningHandler& operator=(const ReturningHandler&) = delete;

private:
    gkAssertHandler before_;
};

} // namespace

TEST(RegionRepairFailure, LoopsThatShareNoVertexEndInAssertion618) {
    for (const std::string& text : kLoopsRemain) {
        SCOPED_TRACE(text);
        EXPECT_GT(oracle::hullLoops(points(text)).size(), 1u);
        EXPECT_NO_THROW(regularized(region(text)));
        try {
            outerHull(region(text));
            ADD_FAILURE() << "one loop";
        } catch (const gkAssertionFailed& failed) {
            EXPECT_EQ(618, failed.line());
        }
    }
}

TEST(RegionRepairFailure, WithAHandlerThatReturnsTheFirstLoopIsTheResult) {
    for (const std::string& text : kLoopsRemain) {
        SCOPED_TRACE(text);
        const ReturningHandler handler;
        EXPECT_EQ(oracle::hullLoops(points(text))[0], outerHull(region(text)));
        EXPECT_EQ(618, gFailedLine);
    }
}

// The kept box leaves out what is above y = 7, where nothing crosses: the walk then asks those edges nothing.
TEST(RegionRepair, AsksWithinTheBoxThatIsKeptForAnotherTransform) {
    const Points tall = points("0 0, 8 6, 8 0, 0 6, 0 20, -4 20, -4 0");
    const gkRegion asked(tall);
    const gkRect kept = asked.encloseRect(gkXform<2>(gkMatrix<2>(1.0, 0.0, 0.0, 0.35), gkVector<2>()));
    EXPECT_EQ(kept, asked.encloseRect(gkXform<2>()));
    EXPECT_EQ(oracle::regularize(tall), regularized(asked));
}

// The walk runs into a cycle that its start is not part of.
class EndlessWalk : public testing::TestWithParam<const char*> {};

TEST_P(EndlessWalk, IsRefusedInsteadOfGoingOnForEver) {
    const Points given = points(GetParam());
    EXPECT_THROW(oracle::walk(given, oracle::startEdge(given)), oracle::EndlessWalk);
    gk_Outline outline(given);
    EXPECT_NO_THROW(gk_StartEdge(outline, oracle::medianFeatureSize(given, true) / 100.0));
    const gkRegion asked(given);
    EXPECT_EQ(L"invalid contour", refusal(asked));
    EXPECT_EQ(L"invalid contour", refusal(asked)); // and again: nothing half done is kept
    EXPECT_THROW(outerHull(asked), gkContourDefs::BadParams);
    EXPECT_THROW(gkRegion(given, gkContourDefs::eRegularize), gkContourDefs::BadParams);
    EXPECT_THROW(gkRegion(given, gkContourDefs::eOuterHull), gkContourDefs::BadParams);
}

INSTANTIATE_TEST_SUITE_P(FoundBySearch, EndlessWalk,
                         testing::Values("1 2, 4 2, 4 4, 2 2, 3 3", "3 4, 0 1, 5 6, 1 0, 2 6",
                                         "4 4, 4 3, 4 5, 5 2, 3 4", "2 1, 3 4, 1 4, 4 3, 1 6, 1 5",
                                         "2 2, 1 0, 2 3, 2 0, 3 3, 0 3", "2 4, 3 4, 3 3, 1 3, 4 3, 3 2",
                                         "2 3, 1 4, 4 1, 4 3, 0 3, 0 2, 3 4",
                                         "0 0, 0 2, 1 2, 0 0, 0 1, 1 0, 0 1",
                                         "3 1, 3 6, 1 5, 5 5, 1 0, 5 3, 2 0, 1 2",
                                         "4 3, 5 4, 1 6, 3 0, 0 6, 2 1, 2 4, 4 2, 1 3"));
