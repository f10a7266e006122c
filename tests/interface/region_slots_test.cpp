// tests/interface/region_slots_test.cpp - which operations of a region go through its virtual tables.
#include "platform/core/archive/archive_memory.h"
#include "platform/display/recording_tablet.h"
#include "tests/interface/witness.h"
#include "tests/support/archived.h"
#include "tests/support/regions.h"

#include <gtest/gtest.h>

namespace {

using Witness = WitnessOfRegion<gkRegion>;

// Names a protected operation as a member of gkContour.
struct Opened : gkContour {
    using gkContour::serialize_;
};

} // namespace

TEST(RegionSlots, SettingThePointsCleansThenRebuildsTheData) {
    Witness witness(gkRegion(square(0, 0, 10)));
    gkContour& contour = witness;
    contour.points(square(1, 1, 2));
    EXPECT_EQ((Calls{"points", "cleanCacheInfo", "makeDataConsistentWithPoints", "cleanCacheInfo"}),
              witness.calls);
}

TEST(RegionSlots, SettingHolesOfEitherKindCleansThenRebuildsTheData) {
    Witness witness(gkRegion(square(0, 0, 10)));
    gkRegion& region = witness;
    region.holes(std::vector<Shared>{sharedSquare(2, 2, 2)});
    const Calls expected{"cleanCacheInfo", "makeDataConsistentWithPoints", "cleanCacheInfo"};
    EXPECT_EQ(expected, witness.calls);
    witness.calls.clear();
    region.holes(Holes{sharedSquare(2, 2, 2)});
    EXPECT_EQ(expected, witness.calls);
}

TEST(RegionSlots, SettingItClosedThroughTheContourIsTheRegions) {
    Witness witness(gkRegion(square(0, 0, 10)));
    gkContour& contour = witness;
    contour.isClosed(true);
    EXPECT_EQ(Calls{"isClosed"}, witness.calls); // and nothing is cleaned
    EXPECT_THROW(contour.isClosed(false), gkContourDefs::RegionCannotBeSetOpen);
    EXPECT_TRUE(contour.isClosed());
}

TEST(RegionSlots, LoadingCleansForTheContourPartAndForTheWhole) {
    gkRegion source(square(1, 1, 2));
    Witness witness(gkRegion(square(0, 0, 10)));
    load(written(source), witness);
    EXPECT_EQ((Calls{"dispatchSerialize", "cleanCacheInfo", "cleanCacheInfo"}), witness.calls);
}

TEST(RegionSlots, TheRecordReachedThroughTheContourIsTheRegions) {
    Witness witness(gkRegion(square(0, 0, 10)));
    gkArchiveMemory archive;
    (static_cast<gkContour&>(witness).*&Opened::serialize_)(archive, 1);
    EXPECT_EQ(Calls{"serialize_"}, witness.calls);
    EXPECT_THROW((static_cast<gkContour&>(witness).*&Opened::serialize_)(archive, 2),
                 gkArchive::UnknownVersion);
}

TEST(RegionSlots, RepairInPlaceCallsNoHook) {
    Witness witness(gkRegion(points(kBowtie)));
    witness.regularize(witness);
    witness.outerHull(witness);
    EXPECT_EQ(Calls(), witness.calls);
}

TEST(RegionSlots, TheTwoWaysToDrawAreTwoSlots) {
    const Witness witness(gkRegion(square(0, 0, 10)));
    const gkRegion& region = witness;
    const gkContour& contour = witness;
    gkRecordingTablet tablet;
    region.draw(tablet, gkColor::red(), gkUITablet::eOverlayLayer);
    contour.draw(tablet, gkContourDefs::eDrawOutline, gkColor::red(), gkUITablet::eOverlayLayer);
    EXPECT_EQ((Calls{"draw without mode", "draw"}), witness.calls);
}

TEST(RegionSlots, DestructionGoesThroughEveryBase) {
    bool gone = false;
    delete static_cast<gkContour*>(new Mortal<gkRegion>(gone));
    EXPECT_TRUE(gone);
    gone = false;
    { const gkPtrHandle_const<gkRegion> last(new Mortal<gkRegion>(gone)); }
    EXPECT_TRUE(gone);
}
