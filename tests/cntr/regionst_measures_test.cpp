// Measures, point queries and the enclosing box of region sets.
#include "tests/support/region_sets.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

void expectNear(const gkVector<2>& expected, const gkVector<2>& found) {
    EXPECT_NEAR(expected.x(), found.x(), 1e-12);
    EXPECT_NEAR(expected.y(), found.y(), 1e-12);
}

Shared holedSquare() {
    const Shared region = sharedSquare(0, 0, 10);
    region->holes({sharedSquare(2, 2, 2)});
    return region;
}

// A square of area 4 with a hole of area 8 beside it: -4 in all.
Shared negative() {
    const Shared region = sharedSquare(10, 0, 2);
    region->holes({shared("20 0, 24 0, 24 2, 20 2")});
    return region;
}

gkXform<2> shifted(double by) { return gkXform<2>(gkMatrix<2>::identity(), {by, 0}); }

// Whether the set answers from its map. Asks a copy, so that the set's own map stays as it is.
bool keeps(const gkRegionSet& set, const gkXform<2>& xform) {
    const gkRegionSet copy(set);
    return !computes(copy, [&](const gkRegionSet& s) { s.encloseRect(xform); });
}

int keptOf(const gkRegionSet& set, int count) {
    int kept = 0;
    for (int i = 1; i <= count; ++i) kept += keeps(set, shifted(i)) ? 1 : 0;
    return kept;
}

void expectEmptyRegionSet(void (*ask)(const gkRegionSet&)) {
    try {
        ask(gkRegionSet());
        FAIL() << "nothing was thrown";
    } catch (const gkContourDefs::EmptyRegionSet& error) {
        EXPECT_EQ(L"", error.message());
    }
}

} // namespace

TEST(RegionSetArea, IsTheSumInEitherWay) {
    const gkRegionSet set({holedSquare(), sharedSquare(20, 0, 3)});
    EXPECT_EQ(109.0, set.area(false));
    EXPECT_EQ(105.0, set.area(true));
}

TEST(RegionSetArea, CountsOverlapsAndRepeatsTwice) {
    const Shared region = sharedSquare(0, 0, 2);
    EXPECT_EQ(12.0, gkRegionSet({region, region, sharedSquare(1, 1, 2)}).area(false));
}

TEST(RegionSetArea, OfARegionOfTooFewVerticesThrowsAndIsNotKept) {
    const Shared region = shared("0 0, 2 2");
    const gkRegionSet set({sharedSquare(5, 5, 1), region});
    EXPECT_THROW(set.area(false), gkContourDefs::EmptyContour);
    EXPECT_THROW(set.centerOfMass(false), gkContourDefs::EmptyContour);
    EXPECT_THROW(set.inertiaMatrix(false), gkContourDefs::EmptyContour);
    region->points(square(0, 0, 2));
    EXPECT_EQ(5.0, set.area(false));
    expectNear({(4 * 1 + 5.5) / 5, (4 * 1 + 5.5) / 5}, set.centerOfMass(false));
}

TEST(RegionSetCenter, IsWeightedByArea) {
    const gkRegionSet set({sharedSquare(0, 0, 2), sharedSquare(10, 0, 4)}); // 4 at (1, 1), 16 at (12, 2)
    expectNear({(4 * 1 + 16 * 12) / 20.0, (4 * 1 + 16 * 2) / 20.0}, set.centerOfMass(false));
    expectNear(set.centerOfMass(false), set.centerOfMass(true));
}

TEST(RegionSetCenter, WithHolesTakesTheRegionsFirstAnswerAndKeepsIt) {
    const Shared region = holedSquare();
    const gkRegionSet set({region});
    for (int call = 0; call < 2; ++call) expectNear({488.0 / 96.0, 488.0 / 96.0}, set.centerOfMass(true));
    EXPECT_EQ(gkVector<2>(0, 0), region->centerOfMass(true)) << "the region's first answer has gone to the set";
    EXPECT_EQ(gkVector<2>(0, 0), gkRegionSet({region}).centerOfMass(true));
}

TEST(RegionSetCenter, OfAreasThatSumToNothingIsTheOrigin) {
    EXPECT_EQ(gkVector<2>(0, 0),
              gkRegionSet({shared("5 5, 6 6, 7 7"), shared("9 1, 9 2, 9 3")}).centerOfMass(false));
    const gkRegionSet balanced({sharedSquare(0, 0, 2), negative()});
    EXPECT_EQ(0.0, balanced.area(true));
    EXPECT_EQ(gkVector<2>(0, 0), balanced.centerOfMass(true));
}

TEST(RegionSetCenter, OfAreasThatSumToWithin1eMinus15IsTheOrigin) {
    // 4 at (1, 1), -4 at (33, 1) and a sliver: the moment is -128, the area the sliver's.
    const auto balancedUpTo = [](double area) {
        const Shared sliver(new gkRegion(Points{{0, 0}, {2 * area, 0}, {2 * area, 1}}));
        return gkRegionSet({sharedSquare(0, 0, 2), negative(), sliver});
    };
    const gkRegionSet within = balancedUpTo(0x1p-50); // 0.9e-15
    EXPECT_EQ(0x1p-50, within.area(true));
    EXPECT_EQ(gkVector<2>(0, 0), within.centerOfMass(true));
    const gkRegionSet beyond = balancedUpTo(0x1p-49); // 1.8e-15
    EXPECT_NEAR(-0x1p56, beyond.centerOfMass(true).x(), 0x1p20);
}

TEST(RegionSetInertia, OfTwoSquaresFollowsTheParallelAxes) {
    // Areas 4 and 4, centres 10 apart: the common centre lies 5 from each.
    const gkRegionSet set({sharedSquare(0, 0, 2), sharedSquare(10, 0, 2)});
    const gkMatrix<2> inertia = set.inertiaMatrix(false);
    EXPECT_NEAR(2 * (16.0 / 12.0 + 4 * 25.0), inertia.element(0, 0), 1e-9);
    EXPECT_NEAR(2 * 16.0 / 12.0, inertia.element(1, 1), 1e-9);
    EXPECT_NEAR(0.0, inertia.element(0, 1), 1e-9);
    EXPECT_EQ(inertia, set.inertiaMatrix(true)) << "no region has holes";
}

TEST(RegionSetInertia, WithHolesPassesOnWhatTheRegionThrowsBeforeTheCentreIsAsked) {
    const Shared region = holedSquare();
    const gkRegionSet set({region});
    for (int call = 0; call < 2; ++call) {
        try {
            set.inertiaMatrix(true);
            FAIL() << "nothing was thrown";
        } catch (const gkContourDefs::BadParams& error) {
            EXPECT_EQ(L"inertiaMatrix(considerHoles) is not implemented", error.message());
        }
    }
    // The region's first answer, the only true one, is still to be had: its inertia was asked first.
    expectNear({488.0 / 96.0, 488.0 / 96.0}, region->centerOfMass(true));
    EXPECT_NEAR(10000.0 / 12.0, set.inertiaMatrix(false).element(0, 0), 1e-9);
}

TEST(RegionSetInertia, ThatThrewIsAskedAfresh) {
    const Shared region = holedSquare();
    const gkRegionSet set({region});
    EXPECT_THROW(set.inertiaMatrix(true), gkContourDefs::BadParams);
    region->holes({});
    EXPECT_NEAR(10000.0 / 12.0, set.inertiaMatrix(true).element(0, 0), 1e-9);
}

TEST(RegionSetInside, IsThatOfAnyRegion) {
    const gkRegionSet set({holedSquare(), sharedSquare(20, 0, 3)});
    EXPECT_TRUE(set.inside({1, 1}, true));
    EXPECT_FALSE(set.inside({3, 3}, true));
    EXPECT_TRUE(set.inside({3, 3}, false));
    EXPECT_TRUE(set.inside({21, 1}, true));
    EXPECT_FALSE(set.inside({15, 1}, false));
    EXPECT_TRUE(gkRegionSet({holedSquare(), sharedSquare(2.5, 2.5, 1)}).inside({3, 3}, true));
}

TEST(RegionSetInside, StopsAtTheFirstRegionThatContainsThePoint) {
    const gkRegionSet set({sharedSquare(0, 0, 10), shared("5 5")});
    EXPECT_TRUE(set.inside({5, 5}, false));
    EXPECT_THROW(set.inside({15, 5}, false), gkContourDefs::EmptyContour);
}

TEST(RegionSetDistance, IsTheLeastOfTheRegions) {
    const gkRegionSet set({holedSquare(), sharedSquare(20, 0, 3)});
    EXPECT_EQ(2.0, set.distToPoint({12, 5}, false, false, false));
    EXPECT_EQ(3.0, set.distToPoint({17, 1}, false, false, false));
    EXPECT_EQ(0.0, set.distToPoint({21, 1}, false, true, true));
    EXPECT_EQ(0.5, set.distToPoint({3, 3.5}, false, true, true)) << "in the hole";
    EXPECT_EQ(0.0, set.distToPoint({3, 3.5}, false, false, true));
    EXPECT_EQ(1.0, set.distToPoint({4, 5}, true, true, false)) << "the hole's vertex";
    EXPECT_EQ(5.0, set.distToPoint({26, 7}, true, false, false)) << "3 4 5 from (23, 3)";
}

TEST(RegionSetDistance, PassesOverRegionsWhoseDistanceIsNan) {
    const double nan = std::nan("");
    const Shared strange(new gkRegion(Points{{nan, nan}, {nan, nan}, {nan, nan}}));
    const Shared plain = sharedSquare(0, 0, 1);
    EXPECT_EQ(3.0, gkRegionSet({strange, plain}).distToPoint({4, 1}, true, false, false));
    EXPECT_EQ(3.0, gkRegionSet({plain, strange}).distToPoint({4, 1}, true, false, false));
    EXPECT_EQ(INFINITY, gkRegionSet({strange}).distToPoint({4, 1}, true, false, false));
    EXPECT_EQ(INFINITY, gkRegionSet({plain}).distToPoint({nan, 1}, true, false, false));
}

TEST(RegionSetRect, HoldsEveryOutlineAndNoHole) {
    const Shared region = sharedSquare(0, 0, 10);
    region->holes({sharedSquare(50, 50, 2)});
    const gkRegionSet set({region, sharedSquare(20, -5, 3)});
    EXPECT_EQ(gkRect::fromCorners({0, -5}, {23, 10}), set.encloseRect(gkXform<2>()));
    EXPECT_EQ(gkRect::fromCorners({1, -10}, {24, 20}),
              set.encloseRect(gkXform<2>(gkMatrix<2>(1, 0, 0.0, 2), {1, 0})));
}

TEST(RegionSetRect, IsKeptPerTransform) {
    const gkRegionSet set({sharedSquare(0, 0, 1)});
    const auto ask = [](const gkRegionSet& s) { s.encloseRect(shifted(1)); };
    EXPECT_TRUE(computes(set, ask));
    EXPECT_FALSE(computes(set, ask));
    EXPECT_EQ(gkRect::fromCorners({1, 0}, {2, 1}), set.encloseRect(shifted(1)));
}

TEST(RegionSetRect, TransformsThatDifferOnlyInTheLastElementShareOneKeptBox) {
    const gkRegionSet set({sharedSquare(0, 0, 1)});
    const gkRect first = set.encloseRect(gkXform<2>());
    EXPECT_EQ(first, set.encloseRect(gkXform<2>(gkMatrix<2>(1, 0, 0, 2), {0, 0})));
    EXPECT_EQ(gkRect::fromCorners({0, 0}, {2, 1}),
              set.encloseRect(gkXform<2>(gkMatrix<2>(2, 0, 0, 1), {0, 0})));
    EXPECT_EQ(gkRect::fromCorners({0, 0}, {2, 1}),
              set.encloseRect(gkXform<2>(gkMatrix<2>(1, 1, 0, 1), {0, 0})));
    EXPECT_EQ(gkRect::fromCorners({0, 0}, {1, 2}),
              set.encloseRect(gkXform<2>(gkMatrix<2>(1, 0, 1, 1), {0, 0})));
}

TEST(RegionSetRect, OfATransformWithNanIsAnsweredAndNotKept) {
    const gkRegionSet set({sharedSquare(0, 0, 1)});
    set.encloseRect(shifted(1));
    const gkXform<2> strange(gkMatrix<2>::identity(), {std::nan(""), 0});
    EXPECT_TRUE(std::isnan(set.encloseRect(strange).ul().x()));
    EXPECT_TRUE(keeps(set, shifted(1)));
    EXPECT_EQ(gkRect::fromCorners({2, 0}, {3, 1}), set.encloseRect(shifted(2)));
}

TEST(RegionSetRect, FiveTransformsLeaveFourKept) {
    const gkRegionSet set({sharedSquare(0, 0, 1)});
    for (int i = 1; i <= 4; ++i) set.encloseRect(shifted(i));
    EXPECT_EQ(4, keptOf(set, 4)) << "one more than cachedVectorSize";
    set.encloseRect(shifted(5));
    EXPECT_EQ(4, keptOf(set, 5));
    EXPECT_TRUE(keeps(set, shifted(5))) << "the new one took the place of one of the four";
    for (int i = 1; i <= 5; ++i)
        EXPECT_EQ(gkRect::fromCorners({1.0 * i, 0}, {i + 1.0, 1}), set.encloseRect(shifted(i)));
}

TEST(RegionSetRect, EveryEntryCanBeTheOneReplaced) {
    bool replaced[4] = {false, false, false, false};
    for (int round = 0; round < 200; ++round) {
        const gkRegionSet set({sharedSquare(0, 0, 1)});
        for (int i = 1; i <= 5; ++i) set.encloseRect(shifted(i));
        for (int i = 0; i < 4; ++i) replaced[i] = replaced[i] || !keeps(set, shifted(i + 1));
    }
    for (const bool each : replaced) EXPECT_TRUE(each);
}

TEST(RegionSetRect, WithCachedVectorSize0OneIsKept) {
    gkRegionSet set({sharedSquare(0, 0, 1)});
    set.cachedVectorSize(0);
    set.encloseRect(shifted(1));
    EXPECT_TRUE(keeps(set, shifted(1)));
    set.encloseRect(shifted(2));
    EXPECT_TRUE(keeps(set, shifted(2)));
    EXPECT_FALSE(keeps(set, shifted(1)));
}

TEST(RegionSetRect, LoweringCachedVectorSizeKeepsWhatIsKept) {
    gkRegionSet set({sharedSquare(0, 0, 1)});
    for (int i = 1; i <= 4; ++i) set.encloseRect(shifted(i));
    set.cachedVectorSize(0);
    EXPECT_EQ(4, keptOf(set, 4));
    set.encloseRect(shifted(5));
    EXPECT_EQ(4, keptOf(set, 5)) << "one replaced, the size stays";
    EXPECT_TRUE(keeps(set, shifted(5)));
}

TEST(RegionSetRect, OfACopyIsAnsweredFromAMapOfItsOwn) {
    const gkRegionSet set({sharedSquare(0, 0, 1)});
    set.encloseRect(shifted(1));
    const gkRegionSet copy(set);
    EXPECT_FALSE(computes(copy, [](const gkRegionSet& s) { s.encloseRect(shifted(1)); }));
    copy.encloseRect(shifted(2));
    EXPECT_FALSE(keeps(set, shifted(2)));
    set.encloseRect(shifted(3));
    EXPECT_FALSE(keeps(copy, shifted(3)));
    // Assigning a set without a map takes the target's away.
    gkRegionSet target(copy);
    target = gkRegionSet({sharedSquare(0, 0, 1)});
    EXPECT_FALSE(keeps(target, shifted(1)));
}

TEST(RegionSetMeasures, OfTheEmptySetAreRefusedWhereARegionIsNeeded) {
    expectEmptyRegionSet([](const gkRegionSet& s) { s.centerOfMass(false); });
    expectEmptyRegionSet([](const gkRegionSet& s) { s.centerOfMass(true); });
    expectEmptyRegionSet([](const gkRegionSet& s) { s.inertiaMatrix(false); });
    expectEmptyRegionSet([](const gkRegionSet& s) { s.inertiaMatrix(true); });
    expectEmptyRegionSet([](const gkRegionSet& s) { s.distToPoint({0, 0}, false, false, false); });
    expectEmptyRegionSet([](const gkRegionSet& s) { s.encloseRect(gkXform<2>()); });
    EXPECT_THROW(OpenedSet().checkEmptyRegionSet(), gkContourDefs::EmptyRegionSet);
    EXPECT_NO_THROW(OpenedSet({sharedSquare(0, 0, 1)}).checkEmptyRegionSet());
}

TEST(RegionSetMeasures, OfTheEmptySetAreNeutralWhereNoneIsNeeded) {
    const gkRegionSet empty;
    EXPECT_EQ(0.0, empty.area(false));
    EXPECT_EQ(0.0, empty.area(true));
    EXPECT_FALSE(empty.inside({0, 0}, true));
    EXPECT_TRUE(empty == gkRegionSet());
    EXPECT_FALSE(empty.isSelfIntersecting());
}
