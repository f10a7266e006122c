// Kept results of regions against changes: every changing method x every kept result, directly, through copies
// and through handles to shared holes. (What the contour part keeps has a table of its own.)
#include "tests/support/archived.h"
#include "tests/support/cache_laws.h"
#include "tests/support/regions.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// Opens the protected side of any region through pointers to its members; no object of this class is ever made.
struct Reach : gkContour {
    static constexpr auto setPointsOf = &Reach::setPoints;
    static constexpr auto cleanCacheInfoOf = &Reach::cleanCacheInfo;
};

// Outlines that cross themselves and differ in every kept result, with a hole each that meets neither.
const char* const kBefore = "0 0, 16 12, 16 0, 0 8";
const char* const kHoleBefore = "1 2, 2 2, 2 3.5, 1 3.5";
const char* const kAfter = "0 0, 9 -2, 11 7, 12 1, 5 8, -1 6, 8 2, 0.25 1";
const char* const kHoleAfter = "8 -1, 9 -1, 9 0";

gkRegion before() {
    gkRegion region(points(kBefore));
    region.holes({shared(kHoleBefore)});
    return region;
}

gkRegion after() {
    gkRegion region(points(kAfter));
    region.holes({shared(kHoleAfter)});
    return region;
}

const std::vector<Change<gkRegion>> kChanges = {
    {"points(v)", [](gkRegion& r) { r.points(points(kAfter)); }},
    {"setPoints", [](gkRegion& r) { (r.*Reach::setPointsOf)(points(kAfter)); }},
    {"cleanCacheInfo", [](gkRegion& r) { (r.*Reach::cleanCacheInfoOf)(); }},
    {"holes(const handles)", [](gkRegion& r) { r.holes(Holes{shared("13 7, 14 7, 14 8")}); }},
    {"holes(handles)", [](gkRegion& r) { r.holes(std::vector<Shared>{shared("13 7, 14 7, 14 8")}); }},
    {"holes({})", [](gkRegion& r) { r.holes({}); }},
    {"holes refused",
     [](gkRegion& r) { EXPECT_THROW(r.holes({shared("0 0, 30 1, 0 30")}), gkContourDefs::BadParams); }},
    {"assignment", [](gkRegion& r) { r = after(); }},
    {"loading from an archive",
     [](gkRegion& r) {
         gkRegion source = after();
         load(written(source), r);
     }},
    {"map onto itself",
     [](gkRegion& r) {
         r.map(gkXform<2>(gkMatrix<2>(1, 0.5, -0.25, 2), {3, -1}), r);
     }},
    {"convexHull onto itself", [](gkRegion& r) { r.convexHull(r); }},
    {"regularize onto itself", [](gkRegion& r) { r.regularize(r); }},
    {"outerHull onto itself", [](gkRegion& r) { r.outerHull(r); }},
    {"forgetHandles", [](gkRegion& r) { r.forgetHandles(); }},
};

const std::vector<Change<gkRegion>> kNoChanges = {
    {"label", [](gkRegion& r) { r.label(77); }},
    {"cachedVectorSize", [](gkRegion& r) { r.cachedVectorSize(9); }},
    {"isClosed(true)", [](gkRegion& r) { r.isClosed(true); }},
    {"isClosed(false)",
     [](gkRegion& r) { EXPECT_THROW(r.isClosed(false), gkContourDefs::RegionCannotBeSetOpen); }},
    {"assignment to itself",
     [](gkRegion& r) {
         const gkRegion& same = r;
         r = same;
     }},
    {"change of a copy", [](gkRegion& r) { gkRegion(r).points(points(kAfter)); }},
    {"map onto another",
     [](gkRegion& r) {
         gkRegion out;
         r.map(gkXform<2>(gkMatrix<2>::identity(), {3, -1}), out);
     }},
};

// A region with the same value that never kept anything, holes included.
gkRegion fresh(const gkRegion& region) {
    gkRegion copy(region.points());
    Holes holes;
    for (const auto& hole : region.holes()) holes.push_back(Shared(new gkRegion(hole->points())));
    copy.holes(holes);
    copy.label(region.label());
    return copy;
}

const CacheTable<gkRegion> kTable = {keptOfRegions(), kChanges, kNoChanges,           &before,
                                     &after,          &fresh,   "inertiaMatrix(true)"};

} // namespace

TEST(RegionCache, TheTwoRegionsCrossThemselvesAndDifferInEveryKeptResult) {
    EXPECT_TRUE(before().isSelfIntersecting()); // or the repairs keep nothing
    EXPECT_TRUE(after().isSelfIntersecting());
    kTable.theTwoDifferInEveryResult();
}

TEST(RegionCache, EveryResultIsKept) { kTable.everyResultIsKept(); }

TEST(RegionCache, EveryChangeForgetsEveryKeptResult) { kTable.everyChangeForgetsEveryResult(); }

TEST(RegionCache, EveryChangeForgetsAllResultsTogether) { kTable.everyChangeForgetsAllResultsTogether(); }

TEST(RegionCache, WhatChangesNoGeometryKeepsEveryResult) { kTable.whatIsNoChangeKeepsEveryResult(); }

TEST(RegionCache, ACopyAnswersWithoutComputing) { kTable.aCopyAnswersWithoutComputing(); }

TEST(RegionCache, AnAssignedRegionForgetsResultsTheSourceHasNot) {
    kTable.anAssignedOneForgetsResultsTheSourceHasNot();
}

TEST(RegionCache, ChangingTheOriginalLeavesACopy) { kTable.changingTheOriginalLeavesACopy(); }

TEST(RegionCache, ChangingACopyLeavesTheOriginal) { kTable.changingACopyLeavesTheOriginal(); }

TEST(RegionCache, ACopyMadeAfterTheChangeKnowsNothingOfBefore) {
    kTable.aCopyMadeAfterTheChangeKnowsNothingOfBefore();
}

TEST(RegionCache, AChangedHoleIsNotSeenUntilTheRegionForgets) {
    for (const Kept<gkRegion>& kept : kTable.kept) {
        if (kept.name == "inside") continue; // keeps no answer of a hole
        SCOPED_TRACE(kept.name);
        const Shared hole = shared(kHoleBefore);
        gkRegion region(points(kBefore));
        gkRegion other(points(kBefore));
        region.holes({hole});
        other.holes({hole});
        const Answer second = askedTwice(region, kept).back();
        hole->points(points("13 7, 15 7, 15 9.5"));
        EXPECT_EQ(second, kept.ask(region));
        // The other region with that hole had not been asked yet.
        EXPECT_EQ(askedTwice(fresh(other), kept), askedTwice(other, kept));
        (region.*Reach::cleanCacheInfoOf)();
        EXPECT_EQ(askedTwice(fresh(region), kept), askedTwice(region, kept));
    }
}

TEST(RegionCache, AChangedHoleIsSeenByInsideAtOnce) {
    const Shared hole = shared(kHoleBefore);
    gkRegion region(points(kBefore));
    region.holes({hole});
    EXPECT_FALSE(region.inside({1.5, 3}, true));
    hole->points(points("13 7, 15 7, 15 9.5"));
    EXPECT_TRUE(region.inside({1.5, 3}, true));
}

TEST(RegionCache, ARepairedRegionKeptByTwoIsNotDisturbedByEither) {
    const gkRegion region = before();
    const Answer hull = repaired(region, &gkRegion::outerHull);
    gkRegion copy(region);
    gkRegion result;
    copy.outerHull(result);
    result.points(points(kAfter)); // the caller's own
    copy.points(points(kAfter));
    repaired(copy, &gkRegion::outerHull);
    EXPECT_EQ(hull, repaired(region, &gkRegion::outerHull));
}

TEST(RegionCache, AnErrorIsNotKept) {
    gkRegion region(points(kBowtieTwice));
    gkRegion result(square(0, 0, 1));
    for (int call = 0; call < 2; ++call) {
        EXPECT_THROW(region.regularize(result), gkContourDefs::BadParams);
        EXPECT_THROW(region.outerHull(result), gkContourDefs::BadParams);
        EXPECT_EQ(square(0, 0, 1), result.points());
    }
    EXPECT_THROW(region.outerHull(region), gkContourDefs::BadParams);
    EXPECT_EQ(points(kBowtieTwice), region.points());
}
