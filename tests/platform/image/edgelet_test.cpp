// The edge point: what goes in comes out, and equality looks at all of it.
#include "platform/image/edgelet.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

TEST(Edgelet, IsZeroByDefault) { EXPECT_EQ(gkEdgelet({0, 0}, 0, gkAngle8()), gkEdgelet()); }

TEST(Edgelet, KeepsPositionMagnitudeAndAngle) {
    const gkEdgelet edgelet({1.5, -2.25}, 65535, gkAngle8(static_cast<unsigned char>(200)));
    EXPECT_EQ(gkVector<2>(1.5, -2.25), edgelet.position());
    EXPECT_EQ(65535, edgelet.magnitude());
    EXPECT_EQ(200, edgelet.angle().toByte());
}

TEST(Edgelet, TakesAnAngleInDegrees) { EXPECT_EQ(64, gkEdgelet({0, 0}, 1, gkDegree(90.0)).angle().toByte()); }

TEST(Edgelet, DiffersInEachOfItsParts) {
    const gkAngle8 angle(static_cast<unsigned char>(3));
    const gkEdgelet edgelet({1, 2}, 7, angle);
    EXPECT_TRUE(edgelet == gkEdgelet({1, 2}, 7, angle));
    EXPECT_FALSE(edgelet != gkEdgelet({1, 2}, 7, angle));
    EXPECT_TRUE(edgelet != gkEdgelet({0, 2}, 7, angle));
    EXPECT_TRUE(edgelet != gkEdgelet({1, 0}, 7, angle));
    EXPECT_TRUE(edgelet != gkEdgelet({1, 2}, 8, angle));
    EXPECT_TRUE(edgelet != gkEdgelet({1, 2}, 7, -angle));
}

TEST(Edgelet, WithANaNPositionEqualsNothing) {
    const gkEdgelet edgelet({std::numeric_limits<double>::quiet_NaN(), 0}, 0, gkAngle8());
    EXPECT_FALSE(edgelet == edgelet);
    EXPECT_TRUE(edgelet != edgelet);
}

} // namespace
