// Kept results of regions against changes: every changing method x every kept result, directly, through copies
// and through handles to shared holes. The two tables below are the whole of both. (What the contour part keeps
// has a table of its own.)
#include "tests/support/answer.h"
#include "tests/support/archived.h"
#include "tests/support/regions.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// Opens the protected side of any region through pointers to its members; no object of this class is ever made.
struct Reach : gkContour {
    static constexpr auto setPointsOf = &Reach::setPoints;
    static constexpr auto cleanCacheInfoOf = &Reach::cleanCacheInfo;
};

struct KeptResult {
    const char* name;
    Answer (*ask)(const gkRegion&);
};

Answer described(const gkRegion& region) {
    Answer result;
    result.add(region.points());
    result.add(static_cast<long>(region.holes().size()));
    result.add(static_cast<long>(region.label()));
    return result;
}

Answer repaired(const gkRegion& region, void (gkRegion::*repair)(gkRegion&) const) {
    gkRegion result;
    (region.*repair)(result);
    return described(result);
}

const KeptResult kKept[] = {
    {"area(false)", [](const gkRegion& r) { return answer([&] { return r.area(false); }); }},
    {"area(true)", [](const gkRegion& r) { return answer([&] { return r.area(true); }); }},
    {"centerOfMass(false)", [](const gkRegion& r) { return answer([&] { return r.centerOfMass(false); }); }},
    {"centerOfMass(true)", [](const gkRegion& r) { return answer([&] { return r.centerOfMass(true); }); }},
    {"inertiaMatrix(false)", [](const gkRegion& r) { return answer([&] { return r.inertiaMatrix(false); }); }},
    {"inertiaMatrix(true)", [](const gkRegion& r) { return answer([&] { return r.inertiaMatrix(true); }); }},
    {"regularize", [](const gkRegion& r) { return repaired(r, &gkRegion::regularize); }},
    {"outerHull", [](const gkRegion& r) { return repaired(r, &gkRegion::outerHull); }},
    {"inside", [](const gkRegion& r) { return answer([&] {
                                           return r.inside({1, 4.5}, true);
                                       }); }},
    {"length", [](const gkRegion& r) { return answer([&] { return r.length(); }); }},
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

struct Change {
    const char* name;
    void (*apply)(gkRegion&);
};

const Change kChanges[] = {
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

const Change kNoChanges[] = {
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

// The answers to the first two questions; those for the centre with holes differ.
std::vector<Answer> twice(const gkRegion& region, const KeptResult& kept) {
    std::vector<Answer> answers;
    for (int i = 0; i < 2; ++i) answers.push_back(kept.ask(region));
    return answers;
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

TEST(RegionCache, TheTwoRegionsCrossThemselvesAndDifferInEveryKeptResult) {
    EXPECT_TRUE(before().isSelfIntersecting()); // or the repairs keep nothing
    EXPECT_TRUE(after().isSelfIntersecting());
    for (const KeptResult& kept : kKept) {
        if (std::string(kept.name) == "inertiaMatrix(true)") continue; // refused for both
        EXPECT_NE(kept.ask(before()), kept.ask(after())) << kept.name;
    }
}

TEST(RegionCache, EveryResultIsKept) {
    for (const KeptResult& kept : kKept) {
        if (std::string(kept.name) == "inertiaMatrix(true)") continue; // never computed
        const gkRegion region = before();
        region.clearChanged();
        EXPECT_TRUE(computes(region, kept.ask)) << kept.name;
        EXPECT_FALSE(computes(region, kept.ask)) << kept.name;
    }
}

TEST(RegionCache, EveryChangeForgetsEveryKeptResult) {
    everyPair(kChanges, [](const Change& change, const KeptResult& kept) {
        gkRegion region = before();
        twice(region, kept);
        change.apply(region);
        EXPECT_EQ(twice(fresh(region), kept), twice(region, kept));
    });
}

TEST(RegionCache, EveryChangeForgetsAllResultsTogether) {
    for (const Change& change : kChanges) {
        SCOPED_TRACE(change.name);
        gkRegion region = before();
        for (const KeptResult& kept : kKept) kept.ask(region);
        change.apply(region);
        const gkRegion expected = fresh(region);
        for (const KeptResult& kept : kKept) EXPECT_EQ(twice(expected, kept), twice(region, kept)) << kept.name;
    }
}

TEST(RegionCache, WhatChangesNoGeometryKeepsEveryResult) {
    everyPair(kNoChanges, [](const Change& change, const KeptResult& kept) {
        gkRegion region = before();
        const Answer second = twice(region, kept).back();
        change.apply(region);
        EXPECT_FALSE(computes(region, kept.ask));
        EXPECT_EQ(second, kept.ask(region));
    });
}

TEST(RegionCache, ACopyAnswersWithoutComputing) {
    for (const KeptResult& kept : kKept) {
        SCOPED_TRACE(kept.name);
        const gkRegion region = before();
        const Answer second = twice(region, kept).back();
        const gkRegion copy(region);
        EXPECT_FALSE(computes(copy, kept.ask));
        EXPECT_EQ(second, kept.ask(copy));
        gkRegion target = after();
        twice(target, kept);
        target = region;
        EXPECT_FALSE(computes(target, kept.ask));
        EXPECT_EQ(second, kept.ask(target));
    }
}

TEST(RegionCache, AnAssignedRegionForgetsResultsTheSourceHasNot) {
    for (const KeptResult& kept : kKept) {
        SCOPED_TRACE(kept.name);
        gkRegion target = before();
        twice(target, kept);
        const gkRegion source = after();
        target = source;
        EXPECT_EQ(twice(fresh(source), kept), twice(target, kept));
    }
}

TEST(RegionCache, ChangingTheOriginalLeavesACopy) {
    everyPair(kChanges, [](const Change& change, const KeptResult& kept) {
        gkRegion region = before();
        const Answer second = twice(region, kept).back();
        const gkRegion copy(region);
        change.apply(region);
        EXPECT_FALSE(computes(copy, kept.ask));
        EXPECT_EQ(second, kept.ask(copy));
        EXPECT_EQ(twice(fresh(region), kept), twice(region, kept));
    });
}

TEST(RegionCache, ChangingACopyLeavesTheOriginal) {
    everyPair(kChanges, [](const Change& change, const KeptResult& kept) {
        const gkRegion region = before();
        const Answer second = twice(region, kept).back();
        gkRegion copy(region);
        change.apply(copy);
        EXPECT_EQ(twice(fresh(copy), kept), twice(copy, kept));
        EXPECT_FALSE(computes(region, kept.ask));
        EXPECT_EQ(second, kept.ask(region));
    });
}

TEST(RegionCache, ACopyMadeAfterTheChangeKnowsNothingOfBefore) {
    everyPair(kChanges, [](const Change& change, const KeptResult& kept) {
        gkRegion region = before();
        twice(region, kept);
        change.apply(region);
        const gkRegion copy(region);
        EXPECT_EQ(twice(fresh(region), kept), twice(copy, kept));
    });
}

TEST(RegionCache, AChangedHoleIsNotSeenUntilTheRegionForgets) {
    for (const KeptResult& kept : kKept) {
        if (std::string(kept.name) == "inside") continue; // keeps no answer of a hole
        SCOPED_TRACE(kept.name);
        const Shared hole = shared(kHoleBefore);
        gkRegion region(points(kBefore));
        gkRegion other(points(kBefore));
        region.holes({hole});
        other.holes({hole});
        const Answer second = twice(region, kept).back();
        hole->points(points("13 7, 15 7, 15 9.5"));
        EXPECT_EQ(second, kept.ask(region));
        // The other region with that hole had not been asked yet.
        EXPECT_EQ(twice(fresh(other), kept), twice(other, kept));
        (region.*Reach::cleanCacheInfoOf)();
        EXPECT_EQ(twice(fresh(region), kept), twice(region, kept));
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
