// tests/interface/contour_slots_test.cpp - which operations of a contour go through its virtual table.
#include "platform/core/archive/archive_memory.h"
#include "platform/display/recording_tablet.h"
#include "tests/interface/witness.h"
#include "tests/support/archived.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

namespace {

using Witness = WitnessOfContour<gkContour>;

gkContour triangle(bool closed) { return gkContour(points("0 0, 4 0, 0 3"), closed, 5); }

// Closed whatever its flag says, as a region is.
class AlwaysClosed : public gkContour {
public:
    using gkContour::gkContour;
    using gkContour::isClosed;
    bool isClosed() const override { return true; }
};

// Names protected operations as members of gkContour.
struct Opened : gkContour {
    using gkContour::cleanCacheInfo;
    using gkContour::makeDataConsistentWithPoints;
    using gkContour::makePointsConsistentWithData;
    using gkContour::serialize_;
    using gkContour::setPoints;
};

} // namespace

TEST(ContourSlots, SettingThePointsCleansThenRebuildsTheData) {
    Witness witness(triangle(true));
    gkContour& contour = witness;
    contour.points(points("1 1, 2 2"));
    EXPECT_EQ((Calls{"points", "cleanCacheInfo", "makeDataConsistentWithPoints", "cleanCacheInfo"}),
              witness.calls);
}

TEST(ContourSlots, OpeningOrClosingCleans) {
    Witness witness(triangle(true));
    gkContour& contour = witness;
    contour.isClosed(false);
    EXPECT_EQ((Calls{"isClosed", "cleanCacheInfo"}), witness.calls);
}

TEST(ContourSlots, ProtectedSetPointsCleansAndRebuildsNothing) {
    Witness witness(triangle(true));
    (static_cast<gkContour&>(witness).*&Opened::setPoints)(points("1 1, 2 2"));
    EXPECT_EQ(Calls{"cleanCacheInfo"}, witness.calls);
}

TEST(ContourSlots, BothHooksOfTheContourClean) {
    Witness witness(triangle(true));
    gkContour& contour = witness;
    (contour.*&Opened::makeDataConsistentWithPoints)();
    (contour.*&Opened::makePointsConsistentWithData)();
    EXPECT_EQ((Calls{"makeDataConsistentWithPoints", "cleanCacheInfo", "makePointsConsistentWithData",
                     "cleanCacheInfo"}),
              witness.calls);
}

TEST(ContourSlots, LoadingCleansAndCallsNoHook) {
    gkContour source = triangle(false);
    Witness witness(triangle(true));
    load(written(source), witness);
    EXPECT_EQ((Calls{"dispatchSerialize", "cleanCacheInfo"}), witness.calls);
    EXPECT_EQ(source, witness);
}

TEST(ContourSlots, SavingCallsNothingButTheRecord) {
    Witness witness(triangle(true));
    written(witness);
    EXPECT_EQ(Calls{"dispatchSerialize"}, witness.calls);
}

TEST(ContourSlots, LoadingOneObjectAloneInitializesItAgain) {
    gkContour source = triangle(false);
    Witness witness(triangle(true));
    gkArchiveMemory archive(written(source));
    static_cast<gkPersistent&>(witness).loadSimple(archive);
    EXPECT_EQ((Calls{"dispatchSerialize", "cleanCacheInfo", "reInit"}), witness.calls);
}

TEST(ContourSlots, TheRecordItselfIsASlot) {
    Witness witness(triangle(true));
    gkArchiveMemory archive;
    (static_cast<gkContour&>(witness).*&Opened::serialize_)(archive, 1);
    EXPECT_EQ(Calls{"serialize_"}, witness.calls);
}

TEST(ContourSlots, LabelAndCachedVectorSizeCleanNothing) {
    Witness witness(triangle(true));
    witness.label(9);
    witness.cachedVectorSize(9);
    EXPECT_EQ(Calls(), witness.calls);
}

TEST(ContourSlots, CopyingAndAssigningCallNothing) {
    Witness witness(triangle(true));
    static_cast<gkContour&>(witness) = triangle(false);
    EXPECT_EQ(Calls(), witness.calls);
}

TEST(ContourSlots, MappingOntoAnotherAssignsIt) {
    Witness witness(triangle(true));
    triangle(false).map(gkXform<2>(), witness);
    EXPECT_EQ(Calls(), witness.calls);
    EXPECT_FALSE(witness.isClosed());
}

TEST(ContourSlots, EveryQueryAsksTheTableWhetherItIsClosed) {
    const AlwaysClosed shape(points("0 0, 4 0, 0 3"), false, 5);
    const gkContour& contour = shape;
    EXPECT_TRUE(contour.isClosed());
    EXPECT_EQ(12.0, contour.length());
    EXPECT_EQ(gkVector<2>(0, 1), contour.closestPoint({-1, 1}, false)); // on the closing side
    EXPECT_EQ(4U, contour.polygon().size());
    EXPECT_EQ(2U, contour.intersections(gkLineSeg({-1, 1}, {4, 1}), true).size());
    EXPECT_TRUE(contour == triangle(true));
    EXPECT_FALSE(contour == triangle(false));
    gkContour mapped;
    contour.map(gkXform<2>(), mapped);
    EXPECT_TRUE(mapped.isClosed());
    gkRecordingTablet tablet;
    contour.draw(tablet, gkContourDefs::eDrawOutline, gkColor::red(), gkUITablet::eOverlayLayer);
    EXPECT_EQ(3U, tablet.records().size());
}

TEST(ContourSlots, DrawIsReachedThroughTheContour) {
    const Witness witness(triangle(true));
    const gkContour& contour = witness;
    gkRecordingTablet tablet;
    contour.draw(tablet, gkContourDefs::eDrawOutline, gkColor::red(), gkUITablet::eOverlayLayer);
    EXPECT_EQ(Calls{"draw"}, witness.calls);
}

TEST(ContourSlots, DestructionGoesThroughEitherBase) {
    bool gone = false;
    delete static_cast<gkPersistent*>(new Mortal<gkContour>(gone));
    EXPECT_TRUE(gone);
    gone = false;
    delete static_cast<gkRepBase*>(new Mortal<gkContour>(gone));
    EXPECT_TRUE(gone);
    gone = false;
    { const gkPtrHandle<gkContour> last(new Mortal<gkContour>(gone)); }
    EXPECT_TRUE(gone);
}
