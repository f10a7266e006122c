// Area, centre of mass and second moments of regions, with and without holes.
#include "tests/support/regions.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

gkRegion holed() {
    gkRegion region(square(0, 0, 10));
    region.holes({sharedSquare(2, 2, 2)});
    return region;
}

void expectNear(const gkVector<2>& expected, const gkVector<2>& found) {
    EXPECT_NEAR(expected.x(), found.x(), 1e-12);
    EXPECT_NEAR(expected.y(), found.y(), 1e-12);
}

// The whole's moment minus the hole's: (100 (5, 5) - 4 (3, 3)) / 96.
const gkVector<2> kHoledCenter(488.0 / 96.0, 488.0 / 96.0);

} // namespace

TEST(RegionArea, IsThatOfTheOutlineOrLessTheHoles) {
    const gkRegion region = holed();
    EXPECT_EQ(100.0, region.area(false));
    EXPECT_EQ(96.0, region.area(true));
}

TEST(RegionArea, WithoutHolesIsTheSameEitherWay) {
    const gkRegion region(points("0 0, 4 0, 0 3"));
    EXPECT_EQ(6.0, region.area(true));
    EXPECT_EQ(6.0, region.area(false));
}

TEST(RegionArea, SubtractsEveryHoleWhereverItLies) {
    gkRegion region(square(0, 0, 10));
    // One inside, one outside, one around, one with no extent.
    region.holes(
        {sharedSquare(2, 2, 2), sharedSquare(20, 0, 3), sharedSquare(-5, -5, 20), shared("4 4, 5 5, 6 6")});
    EXPECT_EQ(100.0 - 4.0 - 9.0 - 400.0, region.area(true));
}

TEST(RegionArea, CountsAHoleListedTwiceTwice) {
    gkRegion region(square(0, 0, 10));
    const Shared hole = sharedSquare(2, 2, 2);
    region.holes({hole, hole});
    EXPECT_EQ(92.0, region.area(true));
}

TEST(RegionArea, LeavesOutTheHolesOfHoles) {
    const Shared hole = sharedSquare(2, 2, 4);
    hole->holes({sharedSquare(3, 3, 1)});
    gkRegion region(square(0, 0, 10));
    region.holes({hole});
    EXPECT_EQ(84.0, region.area(true));
    EXPECT_EQ(15.0, hole->area(true));
}

TEST(RegionArea, OfAHoleTracedTheOtherWayIsSubtractedToo) {
    gkRegion region(square(0, 0, 10));
    region.holes({shared("2 2, 2 4, 4 4, 4 2")});
    EXPECT_EQ(96.0, region.area(true));
}

TEST(RegionArea, OfAHoleBelowThreeVerticesThrowsAndIsNotKept) {
    const Shared hole = shared("2 2, 4 4");
    gkRegion region(square(0, 0, 10));
    region.holes({hole});
    EXPECT_THROW(region.area(true), gkContourDefs::EmptyContour);
    EXPECT_EQ(100.0, region.area(false));
    hole->points(square(2, 2, 2));
    EXPECT_EQ(96.0, region.area(true));
}

TEST(RegionCenter, IgnoringHolesIsTheOutlines) {
    expectNear({5, 5}, holed().centerOfMass(false));
    expectNear({4.0 / 3.0, 1.0}, gkRegion(points("0 0, 4 0, 0 3")).centerOfMass(false));
}

TEST(RegionCenter, WithHolesIsComputedOnTheFirstCallAndTheStoredFieldLater) {
    gkRegion region = holed();
    expectNear(kHoledCenter, region.centerOfMass(true));
    EXPECT_EQ(gkVector<2>(0, 0), region.centerOfMass(true));
    EXPECT_EQ(gkVector<2>(0, 0), region.centerOfMass(true));
    expectNear({5, 5}, region.centerOfMass(false));
    region.points(region.points()); // forgets
    expectNear(kHoledCenter, region.centerOfMass(true));
    EXPECT_EQ(gkVector<2>(0, 0), region.centerOfMass(true));
}

TEST(RegionCenter, WithHolesComesToACopyAsItIs) {
    const gkRegion asked = holed();
    asked.centerOfMass(true);
    EXPECT_EQ(gkVector<2>(0, 0), gkRegion(asked).centerOfMass(true));
    gkRegion fresh = holed();
    const gkRegion copy(fresh);
    expectNear(kHoledCenter, copy.centerOfMass(true));
    expectNear(kHoledCenter, fresh.centerOfMass(true));
    fresh = holed();
    expectNear(kHoledCenter, fresh.centerOfMass(true));
}

TEST(RegionCenter, WithoutHolesIsTheSameEveryTimeEitherWay) {
    const gkRegion region(square(0, 0, 10));
    for (int call = 0; call < 3; ++call) {
        expectNear({5, 5}, region.centerOfMass(true));
        EXPECT_EQ(region.centerOfMass(false), region.centerOfMass(true));
    }
}

TEST(RegionCenter, LeavesOutTheHolesOfHoles) {
    const Shared hole = sharedSquare(2, 2, 2);
    hole->holes({sharedSquare(2.5, 2.5, 0.5)});
    gkRegion region(square(0, 0, 10));
    region.holes({hole});
    expectNear(kHoledCenter, region.centerOfMass(true));
}

TEST(RegionCenter, WhereHolesTakeAllTheAreaIsNotFinite) {
    gkRegion region(square(0, 0, 2));
    region.holes({sharedSquare(10, 20, 2)});
    EXPECT_EQ(0.0, region.area(true));
    const gkVector<2> center = region.centerOfMass(true); // (4 (1, 1) - 4 (11, 21)) / 0
    EXPECT_EQ(-INFINITY, center.x());
    EXPECT_EQ(-INFINITY, center.y());
    EXPECT_EQ(gkVector<2>(0, 0), region.centerOfMass(true));
}

TEST(RegionCenter, ThatThrowsInAHoleIsAskedAfresh) {
    const Shared hole = shared("2 2, 4 4");
    gkRegion region(square(0, 0, 10));
    region.holes({hole});
    EXPECT_THROW(region.centerOfMass(true), gkContourDefs::EmptyContour);
    hole->points(square(2, 2, 2));
    expectNear(kHoledCenter, region.centerOfMass(true));
}

TEST(RegionInertia, OfASquareIsTheFourthPowerOfItsSideOverTwelve) {
    const gkRegion region(square(3, -2, 6));
    const gkMatrix<2> inertia = region.inertiaMatrix(false);
    EXPECT_NEAR(108.0, inertia.element(0, 0), 1e-9);
    EXPECT_NEAR(108.0, inertia.element(1, 1), 1e-9);
    EXPECT_NEAR(0.0, inertia.element(0, 1), 1e-9);
    EXPECT_NEAR(0.0, inertia.element(1, 0), 1e-9);
}

TEST(RegionInertia, WithoutHolesIsTheSameEitherWay) {
    const gkRegion region(points("0 0, 6 0, 6 3, 0 3"));
    EXPECT_EQ(region.inertiaMatrix(false), region.inertiaMatrix(true));
    EXPECT_NEAR(6.0 * 6.0 * 6.0 * 3.0 / 12.0, region.inertiaMatrix(true).element(0, 0), 1e-9);
    EXPECT_NEAR(3.0 * 3.0 * 3.0 * 6.0 / 12.0, region.inertiaMatrix(true).element(1, 1), 1e-9);
}

TEST(RegionInertia, WithHolesIsNotOffered) {
    const gkRegion region = holed();
    for (int call = 0; call < 2; ++call) {
        try {
            region.inertiaMatrix(true);
            FAIL() << "nothing was thrown";
        } catch (const gkContourDefs::BadParams& error) {
            EXPECT_EQ(L"inertiaMatrix(considerHoles) is not implemented", error.message());
        }
    }
    EXPECT_NEAR(10000.0 / 12.0, region.inertiaMatrix(false).element(0, 0), 1e-9);
}

TEST(RegionInertia, OfTooFewVerticesIsRefusedBeforeHolesAreLookedAt) {
    gkRegion region(points("0 0, 10 10"));
    region.holes({sharedSquare(20, 0, 1)});
    EXPECT_THROW(region.inertiaMatrix(true), gkContourDefs::EmptyContour);
}

TEST(RegionMeasures, AfterHandlesAreForgottenAreThoseOfTheOutline) {
    gkRegion region = holed();
    EXPECT_EQ(96.0, region.area(true));
    region.forgetHandles();
    EXPECT_TRUE(region.holes().empty());
    EXPECT_EQ(100.0, region.area(true));
}
