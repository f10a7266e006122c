// Kept results of sets of edgelet regions against changes.
#include "tests/ch_core/edgelets.h"
#include "tests/support/cache_laws.h"

#include <gtest/gtest.h>

namespace {

// Opens the protected side of any set through pointers to its members; no object of this class is ever made.
struct Reach : gkRegionSet {
    static constexpr auto setRegionsOf = &Reach::setRegions;
    static constexpr auto cleanCacheInfoOf = &Reach::cleanCacheInfo;
    static constexpr auto makeDataOf = &Reach::makeDataConsistentWithPoints;
    static constexpr auto makePointsOf = &Reach::makePointsConsistentWithData;
};

const auto kKeep = gkContourDefs::eKeepIntersections;

gkPtrHandle_const<EdgeletRegion> sharedEdgelets(double x, double y, double side) {
    std::vector<gkEdgelet> data;
    for (const gkVector<2>& corner : square(x, y, side)) data.emplace_back(corner, 7, gkAngle8(64));
    return gkPtrHandle_const<EdgeletRegion>(new EdgeletRegion(data, 1));
}

// Two that overlap and one beside them.
EdgeletSet before() {
    return EdgeletSet(
        EdgeletSet::Regions{sharedEdgelets(0, 0, 4), sharedEdgelets(2, 2, 4), sharedEdgelets(20, 0, 3)});
}
// None that overlaps.
EdgeletSet after() {
    return EdgeletSet(EdgeletSet::Regions{sharedEdgelets(1, -1, 5), sharedEdgelets(30, 7, 6)});
}

gkRegionSet fresh(const EdgeletSet& set) {
    Holes regions;
    for (const auto& region : set.regions()) regions.push_back(Shared(new gkRegion(region->points())));
    return gkRegionSet(regions);
}

const std::vector<Change<EdgeletSet>> kChanges = {
    {"regions refused for want of a transform",
     [](EdgeletSet& s) { EXPECT_THROW(s.regions({sharedSquare(8, 8, 1)}, kKeep), gkBadPointer); }},
    {"regions of none", [](EdgeletSet& s) { s.regions({}, kKeep); }},
    {"regions without vertices", [](EdgeletSet& s) { s.regions({Shared(new gkRegion)}, kKeep); }},
    {"add refused for want of a transform",
     [](EdgeletSet& s) { EXPECT_THROW(s.add(sharedSquare(50, 50, 2), kKeep), gkBadPointer); }},
    {"assignment", [](EdgeletSet& s) { s = after(); }},
    {"assignment of the set part", [](EdgeletSet& s) { static_cast<gkRegionSet&>(s) = after(); }},
    {"loading from an archive",
     [](EdgeletSet& s) {
         EdgeletSet source = after();
         loadInto(s, archived(source));
     }},
    {"setRegions and makePointsConsistentWithData",
     [](EdgeletSet& s) {
         (s.*Reach::setRegionsOf)({sharedSquare(8, 8, 1)});
         (s.*Reach::makePointsOf)(); // takes the edgelet regions' list again
     }},
    {"setRegions and makeDataConsistentWithPoints",
     [](EdgeletSet& s) {
         (s.*Reach::setRegionsOf)({Shared(new gkRegion)});
         (s.*Reach::makeDataOf)();
     }},
    {"cleanCacheInfo", [](EdgeletSet& s) { (s.*Reach::cleanCacheInfoOf)(); }},
    {"regularize onto itself", [](EdgeletSet& s) { s.regularize(s); }},
    {"outerHull onto itself", [](EdgeletSet& s) { s.outerHull(s); }},
    {"forgetHandles", [](EdgeletSet& s) { s.forgetHandles(); }},
};

const std::vector<Change<EdgeletSet>> kNoChanges = {
    {"cachedVectorSize", [](EdgeletSet& s) { s.cachedVectorSize(9); }},
    {"setRegions", [](EdgeletSet& s) { (s.*Reach::setRegionsOf)({sharedSquare(1, -1, 5)}); }},
    {"change of a copy", [](EdgeletSet& s) { EdgeletSet(s).regions({}, kKeep); }},
    {"assignment to itself",
     [](EdgeletSet& s) {
         const EdgeletSet& same = s;
         s = same;
     }},
    {"mapT refused", [](EdgeletSet& s) { EXPECT_THROW(s.mapT(gkXform<2>(), s), gkPel::BadWindow); }},
    {"regularizeT refused", [](EdgeletSet& s) { EXPECT_THROW(s.regularizeT(s), gkPel::BadWindow); }},
};

const CacheTable<EdgeletSet, gkRegionSet> kTable = {keptOfSets(), kChanges, kNoChanges, &before,
                                                    &after,       &fresh,   ""};

} // namespace

TEST(EdgeletRegionSetCache, TheTwoSetsDifferInEveryKeptResult) { kTable.theTwoDifferInEveryResult(); }

TEST(EdgeletRegionSetCache, EveryResultIsKept) { kTable.everyResultIsKept(); }

TEST(EdgeletRegionSetCache, EveryChangeForgetsEveryKeptResult) { kTable.everyChangeForgetsEveryResult(); }

TEST(EdgeletRegionSetCache, EveryChangeForgetsAllResultsTogether) {
    kTable.everyChangeForgetsAllResultsTogether();
}

TEST(EdgeletRegionSetCache, WhatChangesNoListKeepsEveryResult) { kTable.whatIsNoChangeKeepsEveryResult(); }

TEST(EdgeletRegionSetCache, ACopyAnswersWithoutComputing) { kTable.aCopyAnswersWithoutComputing(); }

TEST(EdgeletRegionSetCache, AnAssignedSetForgetsResultsTheSourceHasNot) {
    kTable.anAssignedOneForgetsResultsTheSourceHasNot();
}

TEST(EdgeletRegionSetCache, ChangingTheOriginalLeavesACopy) { kTable.changingTheOriginalLeavesACopy(); }

TEST(EdgeletRegionSetCache, ChangingACopyLeavesTheOriginal) { kTable.changingACopyLeavesTheOriginal(); }

TEST(EdgeletRegionSetCache, ACopyMadeAfterTheChangeKnowsNothingOfBefore) {
    kTable.aCopyMadeAfterTheChangeKnowsNothingOfBefore();
}
