// tests/interface/edgelet_operations_test.cpp - operations of the shapes with edgelets that no other test asks
// for.
#include "tests/ch_core/edgelets.h"

#include <gtest/gtest.h>
#include <memory>

namespace {

using SharedRegion = gkPtrHandle_const<EdgeletRegion>;

SharedRegion shared(unsigned long label) { return SharedRegion(new EdgeletRegion(triangle(), label)); }

// What an archive that is read to the end makes of a handle.
template <class Plain> gkPtrHandle<Plain> readBack(gkPtrHandle<Plain> handle) {
    gkArchiveMemory out;
    out || handle;
    gkArchiveMemory in(out.bytes());
    gkPtrHandle<Plain> read;
    in || read;
    in.finish();
    return read;
}

} // namespace

TEST(EdgeletOperations, RegionsAndSetsAreMadeByType) {
    const gkPtrHandle<gkRegion> region = readBack(gkPtrHandle<gkRegion>(new EdgeletRegion(triangle(), 3)));
    EXPECT_NE(nullptr, dynamic_cast<const EdgeletRegion*>(&*region));
    const gkPtrHandle<gkRegionSet> set =
        readBack(gkPtrHandle<gkRegionSet>(new EdgeletSet(EdgeletSet::Regions{shared(3)})));
    EXPECT_NE(nullptr, dynamic_cast<const EdgeletSet*>(&*set));
}

TEST(EdgeletOperations, MakersMakeEmptyObjects) {
    const std::unique_ptr<gkPersistent> contour(EdgeletContour::make());
    EXPECT_TRUE(dynamic_cast<EdgeletContour&>(*contour).data().empty());
    const std::unique_ptr<gkPersistent> region(EdgeletRegion::make());
    EXPECT_TRUE(dynamic_cast<EdgeletRegion&>(*region).data().empty());
    const std::unique_ptr<gkPersistent> set(EdgeletSet::make());
    EXPECT_TRUE(dynamic_cast<EdgeletSet&>(*set).regionsT().empty());
}

TEST(EdgeletOperations, ARegionWithATransformHasItsOutlineOnTheOtherSideOfIt) {
    Transform half = scale(0.5);
    const EdgeletRegion region(triangle(), half, 7);
    EXPECT_EQ(points("0 0, 8 0, 0 4"), region.points());
    EXPECT_EQ(7ul, region.label());
    EXPECT_FALSE(region.dataFromPointsXform() == half); // a clone
    Transform none;
    EXPECT_EQ(points("0 0, 4 0, 0 2"), EdgeletRegion(triangle(), none, 7).points());
}

TEST(EdgeletOperations, RegionsAreEqualWithTheSameVerticesAndTransform) {
    const EdgeletRegion one(triangle(), 3);
    const EdgeletRegion copy(one);
    const EdgeletRegion like(triangle(), 3);
    EXPECT_TRUE(one == copy);
    EXPECT_FALSE(one != copy);
    EXPECT_FALSE(one == like); // another transform object
    EXPECT_TRUE(one != like);
}

TEST(EdgeletOperations, SetsAreEqualWithEqualOutlinesInOrder) {
    const EdgeletSet one(EdgeletSet::Regions{shared(3)});
    const EdgeletSet like(EdgeletSet::Regions{shared(4)});
    EXPECT_TRUE(one == like);
    EXPECT_FALSE(one != like);
    EXPECT_FALSE(one == EdgeletSet());
    EXPECT_TRUE(one != EdgeletSet());
}

TEST(EdgeletOperations, ForgettingHandlesEmptiesBothLists) {
    EdgeletRegion region(triangle(), 3);
    region.holes({shared(1)});
    region.forgetHandles();
    EXPECT_TRUE(region.holes().empty());
    EdgeletSet set(EdgeletSet::Regions{shared(3)});
    set.forgetHandles();
    EXPECT_TRUE(set.regionsT().empty());
    EXPECT_TRUE(set.regions().empty());
}
