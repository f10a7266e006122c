// tests/interface/edgelet_slots_test.cpp - which operations of the shapes with edgelets go through virtual
// tables.
#include "platform/display/recording_tablet.h"
#include "tests/ch_core/edgelets.h"
#include "tests/interface/witness.h"

#include <gtest/gtest.h>

TEST(EdgeletSlots, SettingTheDataOfAContourRebuildsThePoints) {
    WitnessOfContour<EdgeletContour> witness((EdgeletContour(triangle())));
    static_cast<EdgeletContour&>(witness).data(triangle());
    // Once by the hook, once by the replacement of the points.
    EXPECT_EQ((Calls{"makePointsConsistentWithData", "cleanCacheInfo", "cleanCacheInfo"}), witness.calls);
}

TEST(EdgeletSlots, SettingThePointsOfAContourRebuildsTheData) {
    WitnessOfContour<EdgeletContour> witness((EdgeletContour(triangle())));
    static_cast<gkContour&>(witness).points(points("1 1, 2 2"));
    EXPECT_EQ((Calls{"points", "cleanCacheInfo", "makeDataConsistentWithPoints", "cleanCacheInfo"}),
              witness.calls);
    EXPECT_EQ(2U, witness.data().size());
}

TEST(EdgeletSlots, LoadingAContourCleans) {
    EdgeletContour source(triangle());
    WitnessOfContour<EdgeletContour> witness((EdgeletContour()));
    loadInto(witness, archived(source));
    EXPECT_EQ((Calls{"dispatchSerialize", "cleanCacheInfo"}), witness.calls);
}

TEST(EdgeletSlots, ARegionFollowsItsPointsAndItsData) {
    WitnessOfRegion<EdgeletRegion> witness(EdgeletRegion(triangle(), 3));
    static_cast<gkContour&>(witness).points(points("1 1, 2 2, 1 2"));
    EXPECT_EQ((Calls{"points", "cleanCacheInfo", "makeDataConsistentWithPoints", "cleanCacheInfo"}),
              witness.calls);
    witness.calls.clear();
    static_cast<EdgeletContour&>(witness).data(triangle());
    EXPECT_EQ((Calls{"makePointsConsistentWithData", "cleanCacheInfo", "cleanCacheInfo"}), witness.calls);
}

TEST(EdgeletSlots, ARegionsCleaningIsThatOfRegions) {
    EdgeletRegion region(triangle(), 3);
    EXPECT_EQ(4.0, region.area(false));
    static_cast<EdgeletContour&>(region).data({gkEdgelet({0, 0}, 1, gkAngle8(0)),
                                               gkEdgelet({2, 0}, 1, gkAngle8(0)),
                                               gkEdgelet({0, 2}, 1, gkAngle8(0))});
    EXPECT_EQ(2.0, region.area(false));
}

TEST(EdgeletSlots, SettingEdgeletHolesCleans) {
    WitnessOfRegion<EdgeletRegion> witness(EdgeletRegion(triangle(), 3));
    static_cast<EdgeletRegion&>(witness).holes(EdgeletRegion::Holes());
    EXPECT_EQ(Calls{"cleanCacheInfo"}, witness.calls);
}

TEST(EdgeletSlots, ARegionIsClosedThroughBothItsBases) {
    WitnessOfRegion<EdgeletRegion> witness(EdgeletRegion(triangle(), 3));
    static_cast<EdgeletContour&>(witness).isClosed(true);
    static_cast<gkRegion&>(witness).isClosed(true);
    EXPECT_EQ((Calls{"isClosed", "isClosed"}), witness.calls);
    EXPECT_THROW(static_cast<EdgeletContour&>(witness).isClosed(false), gkContourDefs::RegionCannotBeSetOpen);
}

TEST(EdgeletSlots, ASetDrawsTheEdgeletsOfItsRegions) {
    const gkPtrHandle_const<EdgeletRegion> region(new EdgeletRegion(triangle(), 3));
    const EdgeletSet set(EdgeletSet::Regions{region});
    gkRecordingTablet tablet;
    static_cast<const gkRegionSet&>(set).draw(tablet, gkColor::red(), gkUITablet::eOverlayLayer);
    EXPECT_EQ(3U, tablet.records().size());
}

TEST(EdgeletSlots, ChangingThePlainListOfASetRebuildsTheEdgeletRegions) {
    WitnessOfHooks<EdgeletSet> witness((EdgeletSet()));
    gkRegionSet& set = witness;
    const Calls listChanged{"cleanCacheInfo", "makeDataConsistentWithPoints", "cleanCacheInfo"};
    set.regions({gkPtrHandle_const<gkRegion>(new gkRegion)}, gkContourDefs::eKeepIntersections);
    EXPECT_EQ(listChanged, witness.calls);
    EXPECT_EQ(1U, witness.regionsT().size());
    witness.calls.clear();
    set.add(gkPtrHandle_const<gkRegion>(new gkRegion), gkContourDefs::eKeepIntersections);
    EXPECT_EQ(listChanged, witness.calls);
    EXPECT_EQ(2U, witness.regionsT().size());
}

TEST(EdgeletSlots, LoadingASetCleans) {
    EdgeletSet source(EdgeletSet::Regions{gkPtrHandle_const<EdgeletRegion>(new EdgeletRegion(triangle(), 3))});
    WitnessOfHooks<EdgeletSet> witness((EdgeletSet()));
    loadInto(witness, archived(source));
    EXPECT_EQ((Calls{"dispatchSerialize", "cleanCacheInfo"}), witness.calls);
}

TEST(EdgeletSlots, DestructionGoesThroughEveryBase) {
    bool gone = false;
    delete static_cast<gkContour*>(new Mortal<EdgeletContour>(gone));
    EXPECT_TRUE(gone);
    gone = false;
    delete static_cast<gkRegion*>(new Mortal<EdgeletRegion>(gone));
    EXPECT_TRUE(gone);
    gone = false;
    delete static_cast<gkRegionSet*>(new Mortal<EdgeletSet>(gone));
    EXPECT_TRUE(gone);
}
