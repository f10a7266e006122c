// Kept results of regions that carry edgelets, those of the contour part included, against changes.
#include "platform/display/recording_tablet.h"
#include "tests/ch_core/edgelets.h"
#include "tests/support/cache_laws.h"

#include <gtest/gtest.h>

namespace {

// Opens the protected side of any contour through pointers to its members; no object of this class is ever
// made.
struct Reach : gkContour {
    static constexpr auto setPointsOf = &Reach::setPoints;
    static constexpr auto cleanCacheInfoOf = &Reach::cleanCacheInfo;
    static constexpr auto makeDataOf = &Reach::makeDataConsistentWithPoints;
    static constexpr auto makePointsOf = &Reach::makePointsConsistentWithData;
};

using EdgeletHoles = EdgeletRegion::Holes;

// Outlines that cross themselves, with a plain hole each that meets neither.
const char* const kBefore = "0 0, 16 12, 16 0, 0 8";
const char* const kHoleBefore = "1 2, 2 2, 2 3.5, 1 3.5";
const char* const kAfter = "0 0, 9 -2, 11 7, 12 1, 5 8, -1 6, 8 2, 0.25 1";
const char* const kHoleAfter = "8 -1, 9 -1, 9 0";

EdgeletRegion made(const char* outline) {
    Transform transform = scale(2);
    return EdgeletRegion(edgelets(outline, 2), transform, 3);
}
EdgeletRegion made(const char* outline, const char* hole) {
    EdgeletRegion region = made(outline);
    static_cast<gkRegion&>(region).holes({shared(hole)});
    return region;
}
EdgeletRegion before() { return made(kBefore, kHoleBefore); }
EdgeletRegion after() { return made(kAfter, kHoleAfter); }

gkRegion fresh(const EdgeletRegion& region) {
    const gkRegion& plain = region;
    gkRegion copy(region.points());
    Holes holes;
    for (const auto& hole : plain.holes()) holes.push_back(Shared(new gkRegion(hole->points())));
    copy.holes(holes);
    copy.label(region.label());
    return copy;
}

gkPtrHandle_const<EdgeletRegion> edgeletHole() {
    return gkPtrHandle_const<EdgeletRegion>(new EdgeletRegion(edgelets(kHoleBefore, 1), 1));
}

// For what the contour part keeps: six vertices or more; only the first outline crosses itself.
EdgeletRegion outlineBefore() { return made("0 0, 8 6, 16 12, 16 6, 16 0, 8 4, 0 8"); }
EdgeletRegion outlineAfter() { return made("0 0, 9 -2, 12 1, 11 7, 5 8, -1 6, 0.5 2, 0.25 1"); }

std::vector<Kept<gkRegion>> keptByTheContourPart() {
    std::vector<Kept<gkRegion>> list;
    for (const Kept<gkContour>& result : keptOfContours()) list.push_back({result.name, result.ask});
    return list;
}

const std::vector<Change<EdgeletRegion>> kChanges = {
    {"data(v)", [](EdgeletRegion& r) { r.data(edgelets(kAfter, 2)); }},
    {"points(v)", [](EdgeletRegion& r) { r.points(points(kAfter)); }},
    {"edgelet holes", [](EdgeletRegion& r) { r.holes(EdgeletHoles{edgeletHole()}); }},
    {"plain holes", [](EdgeletRegion& r) { static_cast<gkRegion&>(r).holes({shared("13 7, 14 7, 14 8")}); }},
    {"plain holes refused",
     [](EdgeletRegion& r) {
         EXPECT_THROW(static_cast<gkRegion&>(r).holes({shared("0 0, 30 1, 0 30")}), gkContourDefs::BadParams);
     }},
    {"assignment", [](EdgeletRegion& r) { r = after(); }},
    {"assignment of the region part",
     [](EdgeletRegion& r) { static_cast<gkRegion&>(r) = gkRegion(points(kAfter)); }},
    {"loading from an archive",
     [](EdgeletRegion& r) {
         EdgeletRegion source = after();
         loadInto(r, archived(source));
     }},
    {"map onto itself",
     [](EdgeletRegion& r) {
         r.map(gkXform<2>(gkMatrix<2>(1, 0.5, -0.25, 2), {3, -1}), r);
     }},
    {"convexHull onto itself", [](EdgeletRegion& r) { r.convexHull(r); }},
    {"regularize onto itself", [](EdgeletRegion& r) { r.regularize(r); }},
    {"outerHull onto itself", [](EdgeletRegion& r) { r.outerHull(r); }},
    {"setPoints", [](EdgeletRegion& r) { (r.*Reach::setPointsOf)(points(kAfter)); }},
    {"makeDataConsistentWithPoints", [](EdgeletRegion& r) { (r.*Reach::makeDataOf)(); }},
    {"makePointsConsistentWithData", [](EdgeletRegion& r) { (r.*Reach::makePointsOf)(); }},
    {"cleanCacheInfo", [](EdgeletRegion& r) { (r.*Reach::cleanCacheInfoOf)(); }},
};

const std::vector<Change<EdgeletRegion>> kNoChanges = {
    {"label", [](EdgeletRegion& r) { r.label(77); }},
    {"cachedVectorSize", [](EdgeletRegion& r) { r.cachedVectorSize(9); }},
    {"isClosed(true)", [](EdgeletRegion& r) { r.isClosed(true); }},
    {"isClosed(false)",
     [](EdgeletRegion& r) { EXPECT_THROW(r.isClosed(false), gkContourDefs::RegionCannotBeSetOpen); }},
    {"datum",
     [](EdgeletRegion& r) {
         r.datum({1, 2});
     }},
    {"point",
     [](EdgeletRegion& r) {
         r.point(gkEdgelet({1, 2}, 3, gkAngle8(4)));
     }},
    {"draw",
     [](EdgeletRegion& r) {
         gkRecordingTablet tablet;
         r.draw(tablet, gkColor::red(), gkUITablet::eOverlayLayer);
     }},
    {"assignment to itself",
     [](EdgeletRegion& r) {
         const EdgeletRegion& same = r;
         r = same;
     }},
    {"change of a copy", [](EdgeletRegion& r) { EdgeletRegion(r).data(edgelets(kAfter, 2)); }},
    {"mapT refused", [](EdgeletRegion& r) { EXPECT_THROW(r.mapT(gkXform<2>(), r), gkPel::BadWindow); }},
    {"regularizeT refused", [](EdgeletRegion& r) { EXPECT_THROW(r.regularizeT(r), gkPel::BadWindow); }},
};

using Table = CacheTable<EdgeletRegion, gkRegion>;

const Table kTables[] = {
    {keptOfRegions(), kChanges, kNoChanges, &before, &after, &fresh, "inertiaMatrix(true)"},
    {keptByTheContourPart(), kChanges, kNoChanges, &outlineBefore, &outlineAfter, &fresh, ""},
};

void both(void (Table::*law)() const) {
    for (const Table& table : kTables) (table.*law)();
}

} // namespace

TEST(EdgeletRegionCache, TheTwoRegionsDifferInEveryKeptResult) { both(&Table::theTwoDifferInEveryResult); }

TEST(EdgeletRegionCache, EveryResultIsKept) { both(&Table::everyResultIsKept); }

TEST(EdgeletRegionCache, EveryChangeForgetsEveryKeptResult) { both(&Table::everyChangeForgetsEveryResult); }

TEST(EdgeletRegionCache, EveryChangeForgetsAllResultsTogether) {
    both(&Table::everyChangeForgetsAllResultsTogether);
}

TEST(EdgeletRegionCache, WhatChangesNoGeometryKeepsEveryResult) {
    both(&Table::whatIsNoChangeKeepsEveryResult);
}

TEST(EdgeletRegionCache, ACopyAnswersWithoutComputing) { both(&Table::aCopyAnswersWithoutComputing); }

TEST(EdgeletRegionCache, AnAssignedRegionForgetsResultsTheSourceHasNot) {
    both(&Table::anAssignedOneForgetsResultsTheSourceHasNot);
}

TEST(EdgeletRegionCache, ChangingTheOriginalLeavesACopy) { both(&Table::changingTheOriginalLeavesACopy); }

TEST(EdgeletRegionCache, ChangingACopyLeavesTheOriginal) { both(&Table::changingACopyLeavesTheOriginal); }

TEST(EdgeletRegionCache, ACopyMadeAfterTheChangeKnowsNothingOfBefore) {
    both(&Table::aCopyMadeAfterTheChangeKnowsNothingOfBefore);
}
