#include "platform/core/shapes/point.h"

#include <gtest/gtest.h>

TEST(Point, IsTheOriginByDefault) { EXPECT_EQ(gkPoint(0, 0), gkPoint()); }

TEST(Point, IsMadeFromAVectorAndBack) {
    const gkPoint p = gkVector<2>(3, 4);
    EXPECT_EQ(3.0, p.x());
    EXPECT_EQ(4.0, p.y());
    EXPECT_EQ(gkVector<2>(3, 4), p.vector());
}

TEST(Point, ComparesBothCoordinates) {
    EXPECT_TRUE(gkPoint(1, 2) == gkPoint(1, 2));
    EXPECT_TRUE(gkPoint(1, 2) != gkPoint(1, 3));
    EXPECT_TRUE(gkPoint(1, 2) != gkPoint(0, 2));
}

TEST(Point, DistanceIsEuclidean) { EXPECT_EQ(5.0, gkPoint(1, 2).distance({4, 6})); }
