#include "platform/core/shapes/circle.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

TEST(Circle, IsThePointZeroByDefault) {
    EXPECT_EQ(gkPoint(0, 0), gkCircle().center());
    EXPECT_EQ(0.0, gkCircle().radius());
}

TEST(Circle, KeepsCentreAndRadius) {
    const gkCircle circle({1, 2}, 3);
    EXPECT_EQ(gkPoint(1, 2), circle.center());
    EXPECT_EQ(3.0, circle.radius());
}

TEST(Circle, AreaAndCircumferenceAreThoseOfGeometry) {
    EXPECT_DOUBLE_EQ(28.274333882308138, gkCircle({1, 2}, 3).area());
    EXPECT_DOUBLE_EQ(18.849555921538759, gkCircle({1, 2}, 3).circumference());
}

TEST(Circle, ContainsItsInsideAndItsBoundary) {
    const gkCircle circle({1, 2}, 5);
    EXPECT_TRUE(circle.within({1, 2}));
    EXPECT_TRUE(circle.within({4, 6}));
    EXPECT_TRUE(circle.within({6, 2}));
    EXPECT_FALSE(circle.within({std::nextafter(6.0, 7.0), 2}));
}

TEST(Circle, OfRadiusZeroContainsItsCentreOnly) {
    EXPECT_TRUE(gkCircle({1, 2}, 0).within({1, 2}));
    EXPECT_FALSE(gkCircle({1, 2}, 0).within({1, 3}));
}

TEST(Circle, ContainsNothingWithANaNOrANegativeRadius) {
    EXPECT_FALSE(gkCircle({1, 2}, -1).within({1, 2}));
    EXPECT_FALSE(gkCircle({1, 2}, std::numeric_limits<double>::quiet_NaN()).within({1, 2}));
}

TEST(Circle, ComparesCentreAndRadius) {
    EXPECT_TRUE(gkCircle({1, 2}, 3) == gkCircle({1, 2}, 3));
    EXPECT_TRUE(gkCircle({1, 2}, 3) != gkCircle({1, 2}, 4));
    EXPECT_TRUE(gkCircle({1, 2}, 3) != gkCircle({1, 1}, 3));
}
