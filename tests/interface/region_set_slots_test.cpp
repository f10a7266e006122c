// tests/interface/region_set_slots_test.cpp - which operations of a region set go through its virtual table.
#include "platform/core/archive/archive_memory.h"
#include "platform/display/recording_tablet.h"
#include "tests/interface/witness.h"
#include "tests/support/archived.h"
#include "tests/support/regions.h"

#include <gtest/gtest.h>

namespace {

using Witness = WitnessOfHooks<gkRegionSet>;

const Calls kListChanged{"cleanCacheInfo", "makeDataConsistentWithPoints", "cleanCacheInfo"};

// Names protected operations as members of gkRegionSet.
struct Opened : gkRegionSet {
    using gkRegionSet::makePointsConsistentWithData;
    using gkRegionSet::serialize_;
    using gkRegionSet::setRegions;
};

gkRegionSet twoSquares() { return gkRegionSet({sharedSquare(0, 0, 1), sharedSquare(2, 0, 1)}); }

} // namespace

TEST(RegionSetSlots, ReplacingTheListByEitherKindOfHandleCleansThenRebuildsTheData) {
    Witness witness(twoSquares());
    gkRegionSet& set = witness;
    set.regions(Holes{sharedSquare(5, 5, 1)}, gkContourDefs::eKeepIntersections);
    EXPECT_EQ(kListChanged, witness.calls);
    witness.calls.clear();
    set.regions(std::vector<Shared>{sharedSquare(5, 5, 1)}, gkContourDefs::eKeepIntersections);
    EXPECT_EQ(kListChanged, witness.calls);
}

TEST(RegionSetSlots, AddingCleansThenRebuildsTheData) {
    Witness witness(twoSquares());
    static_cast<gkRegionSet&>(witness).add(sharedSquare(5, 5, 1), gkContourDefs::eKeepIntersections);
    EXPECT_EQ(kListChanged, witness.calls);
}

TEST(RegionSetSlots, TheHookOfTheOtherDirectionCleans) {
    Witness witness(twoSquares());
    (static_cast<gkRegionSet&>(witness).*&Opened::makePointsConsistentWithData)();
    EXPECT_EQ((Calls{"makePointsConsistentWithData", "cleanCacheInfo"}), witness.calls);
}

TEST(RegionSetSlots, ProtectedSetRegionsAndCachedVectorSizeCallNothing) {
    Witness witness(twoSquares());
    (static_cast<gkRegionSet&>(witness).*&Opened::setRegions)(Holes());
    witness.cachedVectorSize(7);
    EXPECT_EQ(Calls(), witness.calls);
}

TEST(RegionSetSlots, LoadingCleansAndCallsNoHook) {
    gkRegionSet source = twoSquares();
    Witness witness((gkRegionSet()));
    load(written(source), witness);
    EXPECT_EQ((Calls{"dispatchSerialize", "cleanCacheInfo"}), witness.calls);
}

TEST(RegionSetSlots, TheRecordItselfIsASlot) {
    Witness witness(twoSquares());
    gkArchiveMemory archive;
    (static_cast<gkRegionSet&>(witness).*&Opened::serialize_)(archive, 1);
    EXPECT_EQ(Calls{"serialize_"}, witness.calls);
}

TEST(RegionSetSlots, DrawingReachesEachRegionsOwnDraw) {
    const gkPtrHandle<WitnessOfRegion<gkRegion>> member(
        new WitnessOfRegion<gkRegion>(gkRegion(square(0, 0, 1))));
    const gkRegionSet set({member, member});
    gkRecordingTablet tablet;
    set.draw(tablet, gkColor::red(), gkUITablet::eOverlayLayer);
    EXPECT_EQ((Calls{"draw without mode", "draw without mode"}), member->calls);
}

TEST(RegionSetSlots, DestructionGoesThroughEitherBase) {
    bool gone = false;
    delete static_cast<gkPersistent*>(new Mortal<gkRegionSet>(gone));
    EXPECT_TRUE(gone);
    gone = false;
    delete static_cast<gkRepBase*>(new Mortal<gkRegionSet>(gone));
    EXPECT_TRUE(gone);
}
