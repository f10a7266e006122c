// Kept results of region sets against changes: every changing method x every kept result, directly, through
// copies and through handles to members. The two tables below are the whole of both.
#include "tests/support/answer.h"
#include "tests/support/archived.h"
#include "tests/support/region_sets.h"

#include <gtest/gtest.h>

#include <string>

namespace {

const auto kKeep = gkContourDefs::eKeepIntersections;

struct KeptResult {
    const char* name;
    Answer (*ask)(const gkRegionSet&);
};

Answer repaired(const gkRegionSet& set, void (gkRegionSet::*repair)(gkRegionSet&) const) {
    gkRegionSet result;
    (set.*repair)(result);
    Answer outlines;
    for (const auto& region : result.regions()) outlines.add(region->points());
    return outlines;
}

const KeptResult kKept[] = {
    {"area(false)", [](const gkRegionSet& s) { return answer([&] { return s.area(false); }); }},
    {"area(true)", [](const gkRegionSet& s) { return answer([&] { return s.area(true); }); }},
    {"centerOfMass(false)", [](const gkRegionSet& s) { return answer([&] { return s.centerOfMass(false); }); }},
    {"centerOfMass(true)", [](const gkRegionSet& s) { return answer([&] { return s.centerOfMass(true); }); }},
    {"inertiaMatrix(false)",
     [](const gkRegionSet& s) { return answer([&] { return s.inertiaMatrix(false); }); }},
    {"inertiaMatrix(true)", [](const gkRegionSet& s) { return answer([&] { return s.inertiaMatrix(true); }); }},
    {"encloseRect",
     [](const gkRegionSet& s) {
         return answer([&] { return s.encloseRect(gkXform<2>(gkMatrix<2>(1, 0.5, -0.25, 2), {3, -1})); });
     }},
    {"isSelfIntersecting", [](const gkRegionSet& s) { return answer([&] { return s.isSelfIntersecting(); }); }},
    {"regularize", [](const gkRegionSet& s) { return repaired(s, &gkRegionSet::regularize); }},
    {"outerHull", [](const gkRegionSet& s) { return repaired(s, &gkRegionSet::outerHull); }},
};

// Two that overlap and one beside them.
Holes before() { return {sharedSquare(0, 0, 4), sharedSquare(2, 2, 4), sharedSquare(20, 0, 3)}; }
// None that overlaps.
Holes after() { return {sharedSquare(1, -1, 5), sharedSquare(30, 7, 6)}; }

struct Change {
    const char* name;
    void (*apply)(OpenedSet&);
};

const Change kChanges[] = {
    {"regions(const handles)", [](OpenedSet& s) { s.regions(after(), kKeep); }},
    {"regions(handles)",
     [](OpenedSet& s) {
         s.regions(std::vector<Shared>{sharedSquare(1, -1, 5), sharedSquare(30, 7, 6)}, kKeep);
     }},
    {"regions of one", [](OpenedSet& s) { s.regions({sharedSquare(8, 8, 1)}, kKeep); }},
    {"add", [](OpenedSet& s) { s.add(sharedSquare(50, 50, 2), kKeep); }},
    {"add with a repair", [](OpenedSet& s) { s.add(sharedSquare(50, 50, 2), gkContourDefs::eRegularize); }},
    {"assignment", [](OpenedSet& s) { s = OpenedSet(after()); }},
    {"loading from an archive",
     [](OpenedSet& s) {
         gkRegionSet source(after());
         load(written(source), s);
     }},
    {"cleanCacheInfo", [](OpenedSet& s) { s.forget(); }},
    {"makePointsConsistentWithData", [](OpenedSet& s) { s.makePointsConsistentWithData(); }},
    {"regularize onto itself", [](OpenedSet& s) { s.regularize(s); }},
    {"outerHull onto itself", [](OpenedSet& s) { s.outerHull(s); }},
    {"setRegions and cleanCacheInfo",
     [](OpenedSet& s) {
         s.setRegions(after());
         s.forget();
     }},
};

const Change kNoChanges[] = {
    {"cachedVectorSize", [](OpenedSet& s) { s.cachedVectorSize(9); }},
    {"setRegions", [](OpenedSet& s) { s.setRegions(after()); }},
    {"change of a copy", [](OpenedSet& s) { gkRegionSet(s).regions(after(), kKeep); }},
    {"assignment to itself",
     [](OpenedSet& s) {
         const OpenedSet& same = s;
         s = same;
     }},
    {"a failed cachedVectorSize",
     [](OpenedSet& s) { EXPECT_THROW(s.cachedVectorSize(-1), gkContourDefs::BadParams); }},
};

// A set with the same value that never kept anything, nor its regions.
gkRegionSet fresh(const gkRegionSet& set) {
    Holes regions;
    for (const auto& region : set.regions()) regions.push_back(Shared(new gkRegion(region->points())));
    return gkRegionSet(regions);
}

template <std::size_t N, class Check> void everyPair(const Change (&changes)[N], Check check) {
    for (const Change& change : changes) {
        for (const KeptResult& kept : kKept) {
            SCOPED_TRACE(std::string(change.name) + " x " + kept.name);
            check(change, kept);
        }
    }
}

} // namespace

TEST(RegionSetCache, TheTwoSetsDifferInEveryKeptResult) {
    for (const KeptResult& kept : kKept) {
        EXPECT_NE(kept.ask(gkRegionSet(before())), kept.ask(gkRegionSet(after()))) << kept.name;
    }
}

TEST(RegionSetCache, EveryResultIsKept) {
    for (const KeptResult& kept : kKept) {
        const OpenedSet set(before());
        EXPECT_TRUE(computes(set, kept.ask)) << kept.name;
        EXPECT_FALSE(computes(set, kept.ask)) << kept.name;
    }
}

TEST(RegionSetCache, EveryChangeForgetsEveryKeptResult) {
    everyPair(kChanges, [](const Change& change, const KeptResult& kept) {
        OpenedSet set(before());
        kept.ask(set);
        change.apply(set);
        EXPECT_EQ(kept.ask(fresh(set)), kept.ask(set));
        EXPECT_FALSE(computes(set, kept.ask));
    });
}

TEST(RegionSetCache, WhatChangesNoListKeepsEveryResult) {
    everyPair(kNoChanges, [](const Change& change, const KeptResult& kept) {
        OpenedSet set(before());
        const Answer first = kept.ask(set);
        change.apply(set);
        // Without a crossing the repair is the set itself, whatever was kept; with one, what was kept.
        EXPECT_FALSE(computes(set, kept.ask));
        EXPECT_EQ(first, kept.ask(set));
    });
}

TEST(RegionSetCache, ACopyAnswersWithoutComputing) {
    for (const KeptResult& kept : kKept) {
        SCOPED_TRACE(kept.name);
        const OpenedSet set(before());
        const Answer first = kept.ask(set);
        const OpenedSet copy(set);
        EXPECT_FALSE(computes(copy, kept.ask));
        EXPECT_EQ(first, kept.ask(copy));
        OpenedSet target(after());
        kept.ask(target);
        target = set;
        EXPECT_FALSE(computes(target, kept.ask));
        EXPECT_EQ(first, kept.ask(target));
    }
}

TEST(RegionSetCache, AnAssignedSetForgetsResultsTheSourceHasNot) {
    for (const KeptResult& kept : kKept) {
        SCOPED_TRACE(kept.name);
        OpenedSet target(before());
        kept.ask(target);
        const OpenedSet source(after());
        target = source;
        EXPECT_EQ(kept.ask(fresh(source)), kept.ask(target));
    }
}

TEST(RegionSetCache, ChangingTheOriginalLeavesACopy) {
    everyPair(kChanges, [](const Change& change, const KeptResult& kept) {
        OpenedSet set(before());
        const Answer first = kept.ask(set);
        const OpenedSet copy(set);
        change.apply(set);
        EXPECT_FALSE(computes(copy, kept.ask));
        EXPECT_EQ(first, kept.ask(copy));
        EXPECT_EQ(kept.ask(fresh(set)), kept.ask(set));
    });
}

TEST(RegionSetCache, ChangingACopyLeavesTheOriginal) {
    everyPair(kChanges, [](const Change& change, const KeptResult& kept) {
        const OpenedSet set(before());
        const Answer first = kept.ask(set);
        OpenedSet copy(set);
        change.apply(copy);
        EXPECT_EQ(kept.ask(fresh(copy)), kept.ask(copy));
        EXPECT_FALSE(computes(set, kept.ask));
        EXPECT_EQ(first, kept.ask(set));
    });
}

TEST(RegionSetCache, AChangedMemberIsNotSeenUntilTheSetForgets) {
    for (const KeptResult& kept : kKept) {
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
