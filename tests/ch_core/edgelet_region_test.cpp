// Regions whose outlines carry edgelets.
#include "platform/display/recording_tablet.h"
#include "tests/ch_core/edgelets.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(EdgeletRegion, FromEdgeletsDerivesItsOutline) {
    Transform half = scale(2);
    const EdgeletRegion region(triangle(), half, 6);
    EXPECT_EQ(points("0 0, 2 0, 0 1"), region.points());
    EXPECT_EQ(1.0, region.area(false));
    EXPECT_EQ(6ul, region.label());
    EXPECT_EQ(triangle(), region.data());
    EXPECT_EQ(4.0, EdgeletRegion(triangle(), 1).area(true));
}

TEST(EdgeletRegion, FromAnEdgeletContourHasItsDataAndAnEmptyOutline) {
    const EdgeletContour contour(triangle(), scale(2));
    const EdgeletRegion region(contour, 8);
    EXPECT_TRUE(region.points().empty());
    EXPECT_EQ(triangle(), region.data());
    EXPECT_EQ(8ul, region.label());
    EXPECT_TRUE(region.dataFromPointsXform() == contour.dataFromPointsXform());
    EXPECT_THROW(region.area(false), gkContourDefs::EmptyContour);
}

TEST(EdgeletRegion, DefaultHasNothing) {
    EdgeletRegion region;
    EXPECT_TRUE(region.points().empty());
    EXPECT_TRUE(region.data().empty());
    EXPECT_TRUE(region.dataFromPointsXform().isNull());
    EXPECT_THROW(region.points(points("1 1")), gkBadPointer);
}

TEST(EdgeletRegion, DrawsOneUnitStrokePerEdgeletAcrossItsGradient) {
    // Gradient along +y (64 steps): the stroke lies along x.
    const EdgeletRegion region(std::vector<gkEdgelet>{gkEdgelet({3, 5}, 1, gkAngle8(64)),
                                                      gkEdgelet({0, 0}, 1, gkAngle8(0)),
                                                      gkEdgelet({1, 1}, 1, gkAngle8(32))},
                               0);
    gkRecordingTablet tablet;
    region.draw(tablet, gkColor::red(), gkUITablet::eOverlayLayer);
    ASSERT_EQ(3u, tablet.records().size());
    EXPECT_EQ((std::vector<double>{3.5, 5, 2.5, 5}), [&] {
        std::vector<double> n = tablet.records()[0].numbers;
        for (double& v : n) v = std::round(v * 1e12) / 1e12;
        return n;
    }());
    for (const auto& record : tablet.records()) {
        EXPECT_EQ(gkRecordingTablet::eLineSeg, record.kind);
        const std::vector<double>& n = record.numbers;
        EXPECT_NEAR(1.0, gkVector<2>(n[0], n[1]).distance({n[2], n[3]}), 1e-12);
    }
}

TEST(EdgeletRegion, EdgeletHolesDoNotReachTheArea) {
    EdgeletRegion region(triangle(), 0);
    const gkPtrHandle_const<EdgeletRegion> hole(new EdgeletRegion(triangle(), 1));
    EXPECT_EQ(4.0, region.area(true));
    region.holes({hole});
    EXPECT_EQ(1u, region.holes().size());
    EXPECT_TRUE(region.gkRegion::holes().empty());
    EXPECT_EQ(4.0, region.area(true));
}

TEST(EdgeletRegion, SettingPlainHolesResetsTheEdgelets) {
    EdgeletRegion region(triangle(), 0);
    gkRegion& plain = region;
    plain.holes({});
    EXPECT_EQ(0, region.data()[0].magnitude());
    EXPECT_EQ(gkVector<2>(4, 0), region.data()[1].position());
    EdgeletRegion bare;
    EXPECT_NO_THROW(bare.gkRegion::holes({}));
}

TEST(EdgeletRegion, CopiesAndAssignmentsTakeTwoPartsNotTheEdgeletHoles) {
    EdgeletRegion region(triangle(), 3);
    region.holes({gkPtrHandle_const<EdgeletRegion>(new EdgeletRegion(triangle(), 1))});
    const EdgeletRegion copy(region);
    EXPECT_TRUE(copy == region);
    EXPECT_EQ(region.points(), copy.points());
    EXPECT_EQ(3ul, copy.label());
    EXPECT_EQ(triangle(), copy.data());
    EXPECT_TRUE(copy.holes().empty());
    EdgeletRegion assigned;
    assigned.holes({gkPtrHandle_const<EdgeletRegion>(new EdgeletRegion(triangle(), 1))});
    assigned = copy;
    EXPECT_TRUE(assigned == region);
    EXPECT_EQ(1u, assigned.holes().size());
}

TEST(EdgeletRegion, SavedAndLoadedKeepsOutlineAndLabelButNoEdgelets) {
    EdgeletRegion region(triangle(), 12);
    EdgeletRegion read;
    loadInto(read, archived(region));
    EXPECT_EQ(region.points(), read.points());
    EXPECT_EQ(12ul, read.label());
    EXPECT_TRUE(read.data().empty());
    EXPECT_TRUE(read.dataFromPointsXform().isNull());
}

TEST(EdgeletRegion, IsAlwaysClosed) {
    EdgeletRegion region(triangle(), 0);
    EXPECT_TRUE(region.isClosed());
    region.isClosed(true);
    EXPECT_EQ(triangle(), region.data());
}

TEST(EdgeletRegion, RecordIsAVersionByteAndTheRegions) {
    const std::string record = "00"                                // version
                               "01"                                // gkRegion
                               "01 00 0c000000 01"                 // gkContour, its base, label, closed
                               "00 03000000"                       // vertices
                               "0000000000000000 0000000000000000" // 0, 0
                               "0000000000001040 0000000000000000" // 4, 0
                               "0000000000000000 0000000000000040" // 0, 2
                               "03000000"                          // cachedVectorSize
                               "00 00000000";                      // no holes
    EdgeletRegion region(triangle(), 12);
    EXPECT_EQ(toHex(fromHex(record)), recordOf(region));
    EdgeletRegion read;
    loadInto(read, archiveOf(record));
    EXPECT_EQ(points("0 0, 4 0, 0 2"), read.points());
    EXPECT_EQ(12ul, read.label());
    EXPECT_TRUE(read.data().empty());
}
