// Kept results of region sets against changes: every changing method x every kept result, directly, through
// copies and through handles to members.
#include "tests/support/archived.h"
#include "tests/support/cache_laws.h"
#include "tests/support/region_sets.h"

#include <gtest/gtest.h>

#include <string>

namespace {

const auto kKeep = gkContourDefs::eKeepIntersections;

// Two that overlap and one beside them.
Holes regionsBefore() { return {sharedSquare(0, 0, 4), sharedSquare(2, 2, 4), sharedSquare(20, 0, 3)}; }
// None that overlaps.
Holes regionsAfter() { return {sharedSquare(1, -1, 5), sharedSquare(30, 7, 6)}; }

const std::vector<Change<OpenedSet>> kChanges = {
    {"regions(const handles)", [](OpenedSet& s) { s.regions(regionsAfter(), kKeep); }},
    {"regions(handles)",
     [](OpenedSet& s) {
         s.regions(std::vector<Shared>{sharedSquare(1, -1, 5), sharedSquare(30, 7, 6)}, kKeep);
     }},
    {"regions of one", [](OpenedSet& s) { s.regions({sharedSquare(8, 8, 1)}, kKeep); }},
    {"add", [](OpenedSet& s) { s.add(sharedSquare(50, 50, 2), kKeep); }},
    {"add with a repair", [](OpenedSet& s) { s.add(sharedSquare(50, 50, 2), gkContourDefs::eRegularize); }},
    {"assignment", [](OpenedSet& s) { s = OpenedSet(regionsAfter()); }},
    {"loading from an archive",
     [](OpenedSet& s) {
         gkRegionSet source(regionsAfter());
         load(written(source), s);
     }},
    {"cleanCacheInfo", [](OpenedSet& s) { s.forget(); }},
    {"makePointsConsistentWithData", [](OpenedSet& s) { s.makePointsConsistentWithData(); }},
    {"regularize onto itself", [](OpenedSet& s) { s.regularize(s); }},
    {"outerHull onto itself", [](OpenedSet& s) { s.outerHull(s); }},
    {"setRegions and cleanCacheInfo",
     [](OpenedSet& s) {
         s.setRegions(regionsAfter());
         s.forget();
     }},
};

const std::vector<Change<OpenedSet>> kNoChanges = {
    {"cachedVectorSize", [](OpenedSet& s) { s.cachedVectorSize(9); }},
    {"setRegions", [](OpenedSet& s) { s.setRegions(regionsAfter()); }},
    {"change of a copy", [](OpenedSet& s) { gkRegionSet(s).regions(regionsAfter(), kKeep); }},
    {"assignment to itself",
     [](OpenedSet& s) {
         const OpenedSet& same = s;
         s = same;
     }},
    {"a failed cachedVectorSize",
     [](OpenedSet& s) { EXPECT_THROW(s.cachedVectorSize(-1), gkContourDefs::BadParams); }},
};

// A set with the same value that never kept anything, nor its regions.
gkRegionSet fresh(const OpenedSet& set) {
    Holes regions;
    for (const auto& region : set.regions()) regions.push_back(Shared(new gkRegion(region->points())));
    return gkRegionSet(regions);
}

const CacheTable<OpenedSet, gkRegionSet> kTable = {keptOfSets(),
                                                   kChanges,
                                                   kNoChanges,
                                                   [] { return OpenedSet(regionsBefore()); },
                                                   [] { return OpenedSet(regionsAfter()); },
                                                   &fresh,
                                                   ""};

} // namespace

TEST(RegionSetCache, TheTwoSetsDifferInEveryKeptResult) { kTable.theTwoDifferInEveryResult(); }

TEST(RegionSetCache, EveryResultIsKept) { kTable.everyResultIsKept(); }

TEST(RegionSetCache, EveryChangeForgetsEveryKeptResult) { kTable.everyChangeForgetsEveryResult(); }

TEST(RegionSetCache, EveryChangeForgetsAllResultsTogether) { kTable.everyChangeForgetsAllResultsTogether(); }

TEST(RegionSetCache, WhatChangesNoListKeepsEveryResult) { kTable.whatIsNoChangeKeepsEveryResult(); }

TEST(RegionSetCache, ACopyAnswersWithoutComputing) { kTable.aCopyAnswersWithoutComputing(); }

TEST(RegionSetCache, AnAssignedSetForgetsResultsTheSourceHasNot) {
    kTable.anAssignedOneForgetsResultsTheSourceHasNot();
}

TEST(RegionSetCache, ChangingTheOriginalLeavesACopy) { kTable.changingTheOriginalLeavesACopy(); }

TEST(RegionSetCache, ChangingACopyLeavesTheOriginal) { kTable.changingACopyLeavesTheOriginal(); }

TEST(RegionSetCache, ACopyMadeAfterTheChangeKnowsNothingOfBefore) {
    kTable.aCopyMadeAfterTheChangeKnowsNothingOfBefore();
}

TEST(RegionSetCache, AChangedMemberIsNotSeenUntilTheSetForgets) {
    for (const Kept<gkRegionSet>& kept : kTable.kept) {
        SCOPED_TRACE(kept.name);
        const Shared member = sharedSquare(0, 0, 4);
        OpenedSet set({member, sharedSquare(2, 2, 4)});
        const OpenedSet other({member, sharedSquare(2, 2, 4)});
        const Answer first = kept.ask(set);
        member->points(square(40, 40, 7)); // no crossing any more
        EXPECT_EQ(first, kept.ask(set));
        EXPECT_EQ(kept.ask(fresh(other)), kept.ask(other)) << "another set, which had not been asked";
        set.forget();
        EXPECT_EQ(kept.ask(fresh(set)), kept.ask(set));
    }
}

TEST(RegionSetCache, ResultsWithAndWithoutHolesAreKeptApart) {
    const Shared holed = sharedSquare(0, 0, 10);
    holed->holes({sharedSquare(2, 2, 2)});
    const gkRegionSet set({holed});
    EXPECT_EQ(100.0, set.area(false));
    EXPECT_TRUE(computes(set, [](const gkRegionSet& s) { s.area(true); }));
    EXPECT_EQ(96.0, set.area(true));
    EXPECT_EQ(100.0, set.area(false));
    set.centerOfMass(false);
    EXPECT_TRUE(computes(set, [](const gkRegionSet& s) { s.centerOfMass(true); }));
    EXPECT_NE(set.centerOfMass(false), set.centerOfMass(true));
    const gkRegionSet plain({sharedSquare(0, 0, 1)});
    plain.inertiaMatrix(false);
    EXPECT_TRUE(computes(plain, [](const gkRegionSet& s) { s.inertiaMatrix(true); }));
}
