// Contours whose vertices carry edgelets.
#include "tests/ch_core/edgelets.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(EdgeletContour, WithoutATransformItsPointsAreThePositions) {
    const EdgeletContour contour(triangle());
    EXPECT_EQ(points("0 0, 4 0, 0 2"), contour.points());
    EXPECT_TRUE(contour.isClosed());
    EXPECT_EQ(triangle(), contour.data());
}

TEST(EdgeletContour, ANullTransformIsTheIdentity) {
    EdgeletContour contour(triangle(), Transform());
    EXPECT_EQ(points("0 0, 4 0, 0 2"), contour.points());
    EXPECT_EQ(gkVector<2>(3, 4), contour.datum({3, 4}).position());
}

TEST(EdgeletContour, WithAScaleOfTwoItsPointsAreHalfThePositions) {
    EdgeletContour contour(triangle(), scale(2));
    EXPECT_EQ(points("0 0, 2 0, 0 1"), contour.points());
    EXPECT_EQ(gkEdgelet({6, 8}, 0, gkAngle8(0)), contour.datum({3, 4}));
    EXPECT_EQ(gkVector<2>(3, 4), contour.point(gkEdgelet({6, 8}, 5, gkAngle8(9))));
}

TEST(EdgeletContour, SettingThePointsResetsMagnitudesAndAngles) {
    EdgeletContour contour(triangle(), scale(2));
    contour.points(points("1 1, 2 2"));
    EXPECT_EQ((std::vector<gkEdgelet>{gkEdgelet({2, 2}, 0, gkAngle8(0)), gkEdgelet({4, 4}, 0, gkAngle8(0))}),
              contour.data());
    EXPECT_EQ(points("1 1, 2 2"), contour.points());
}

TEST(EdgeletContour, SettingTheDataDerivesThePointsAndForgetsResults) {
    EdgeletContour contour(triangle());
    EXPECT_EQ(4 + 2 + std::sqrt(20.0), contour.length());
    contour.data({gkEdgelet({0, 0}, 1, gkAngle8(1)), gkEdgelet({3, 4}, 2, gkAngle8(2))});
    EXPECT_EQ(10.0, contour.length());
    EXPECT_EQ(2, contour.data()[1].magnitude());
}

TEST(EdgeletContour, TwoFromOneHandleHoldTwoClonesAndAreUnequal) {
    const Transform shared = scale(2);
    const EdgeletContour one(triangle(), shared);
    const EdgeletContour other(triangle(), shared);
    EXPECT_TRUE(one != other);
    EXPECT_TRUE(one.dataFromPointsXform() != shared);
}

TEST(EdgeletContour, ACopyIsEqualAndSharesTheTransform) {
    const EdgeletContour one(triangle(), scale(2));
    const EdgeletContour copy(one);
    EdgeletContour assigned;
    assigned = one;
    EXPECT_TRUE(one == copy);
    EXPECT_TRUE(one == assigned);
    EXPECT_EQ(one.points(), assigned.points());
    EXPECT_EQ(triangle(), copy.data());
    EXPECT_TRUE(one.dataFromPointsXform() == assigned.dataFromPointsXform());
}

TEST(EdgeletContour, EqualityLooksAtVerticesAndTransformOnly) {
    EdgeletContour one(triangle(), scale(2));
    EdgeletContour copy(one);
    copy.label(9);
    copy.isClosed(false);
    copy.cachedVectorSize(8);
    EXPECT_TRUE(one == copy);
}

TEST(EdgeletContour, RecordIsContourDataAndTransform) {
    EdgeletContour contour({gkEdgelet({1, 2}, 0x0304, gkAngle8(5))});
    EXPECT_EQ("01" // version
              "01"
              "00"
              "00000000"
              "01"
              "00"
              "01000000" // contour, its base, label, closed, vertices
              "000000000000f03f"
              "0000000000000040"
              "03000000" // 1, 2, cachedVectorSize
              "00"
              "01000000" // data: form, count
              "000000000000f03f"
              "0000000000000040"
              "0403"
              "05" // the edgelet
              "01000000"
              "0e000000"
              "676b3258666f726d4c696e656172" // a new gk2XformLinear
              "00"
              "00" // its version, base
              "000000000000f03f"
              "0000000000000000"
              "0000000000000000"
              "000000000000f03f"
              "0000000000000000"
              "0000000000000000",
              recordOf(contour));
}

TEST(EdgeletContour, LoadedIsTheSameButForTheTransformObject) {
    EdgeletContour contour(triangle(), scale(2));
    EdgeletContour read;
    loadInto(read, archived(contour));
    EXPECT_EQ(contour.points(), read.points());
    EXPECT_EQ(contour.data(), read.data());
    EXPECT_EQ(gkVector<2>(6, 8), read.datum({3, 4}).position());
    EXPECT_EQ(gkVector<2>(3, 4), read.point(gkEdgelet({6, 8}, 0, gkAngle8(0))));
    EXPECT_TRUE(contour != read);
}

TEST(EdgeletContour, Version0LeavesTheTransformNull) {
    // edgelet record 0 over a version-1 contour record, and over a version-0 one
    const std::string data = "00"
                             "01000000"
                             "000000000000f03f"
                             "0000000000000040"
                             "0403"
                             "05";
    const std::string newer = "01"
                              "00"
                              "00000000"
                              "01"
                              "00"
                              "01000000"
                              "000000000000f03f"
                              "0000000000000040"
                              "03000000";
    const std::string older = "00"
                              "0000"
                              "00"
                              "01000000"
                              "000000000000f03f"
                              "0000000000000040"
                              "7b"
                              "03000000"
                              "01";
    for (const std::string& contour : {newer, older}) {
        EdgeletContour read;
        loadInto(read, archiveOf("00" + contour + data));
        EXPECT_EQ(points("1 2"), read.points());
        EXPECT_EQ(1u, read.data().size());
        EXPECT_TRUE(read.dataFromPointsXform().isNull());
        EXPECT_THROW(read.datum({1, 1}), gkBadPointer);
    }
}

TEST(EdgeletContour, IsMadeByTypeWhenAnArchiveNamesIt) {
    gkPtrHandle<gkContour> handle(new EdgeletContour(triangle(), scale(2)));
    gkArchiveMemory out;
    out || handle;
    gkArchiveMemory in(out.bytes());
    gkPtrHandle<gkContour> read;
    in || read;
    const auto* edgelets = dynamic_cast<const EdgeletContour*>(read.get());
    ASSERT_TRUE(edgelets != nullptr);
    EXPECT_EQ(triangle(), edgelets->data());
}

TEST(EdgeletContour, ATransformSharedByTwoIsWrittenOnce) {
    EdgeletContour contour({}, scale(2));
    EdgeletContour copy(contour);
    gkArchiveMemory out;
    out || static_cast<gkPersistent&>(contour) || static_cast<gkPersistent&>(copy);
    const std::string empty = "01 01 00 00000000 01 00 00000000 03000000 00 00000000";
    EXPECT_EQ(archiveOf(empty +
                        "01000000 0e000000 676b3258666f726d4c696e656172" // a new gk2XformLinear
                        "00 00"                                          // its version, base
                        "0000000000000040 0000000000000000"              // 2 0
                        "0000000000000000 0000000000000040"              // 0 2
                        "0000000000000000 0000000000000000" +
                        empty + "01000000"), // the same again
              out.bytes());
    gkArchiveMemory in(out.bytes());
    EdgeletContour one;
    EdgeletContour other;
    in || static_cast<gkPersistent&>(one) || static_cast<gkPersistent&>(other);
    EXPECT_TRUE(one.dataFromPointsXform() == other.dataFromPointsXform());
    EXPECT_TRUE(one == other);
}
