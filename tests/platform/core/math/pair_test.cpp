// Two values of one type.
#include "platform/core/math/pair.h"

#include <gtest/gtest.h>

#include <limits>

TEST(Pair, IsZeroByDefault) {
    EXPECT_EQ(gkPair<long>(0, 0), gkPair<long>());
    EXPECT_EQ(gkPair<double>(0.0, 0.0), gkPair<double>());
}

TEST(Pair, ValuesCanBeReadAndSet) {
    gkPair<long> pair(1, 2);
    pair.x(-3);
    EXPECT_EQ(-3, pair.x());
    EXPECT_EQ(2, pair.y());
    pair.y(std::numeric_limits<long>::max());
    EXPECT_EQ(-3, pair.x());
    EXPECT_EQ(std::numeric_limits<long>::max(), pair.y());
}

TEST(Pair, ComparesBothValuesExactly) {
    EXPECT_EQ(gkPair<double>(0.1, 2), gkPair<double>(0.1, 2));
    EXPECT_NE(gkPair<double>(0.1, 2), gkPair<double>(0.1 + 1e-16, 2.5));
    EXPECT_NE(gkPair<long>(1, 2), gkPair<long>(2, 1));
    EXPECT_NE(gkPair<long>(1, 2), gkPair<long>(1, 3));
    EXPECT_NE(gkPair<long>(1, 2), gkPair<long>(3, 2));
}

TEST(Pair, OfDoublesFollowsIeeeInItsComparison) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(gkPair<double>(0.0, 1), gkPair<double>(-0.0, 1));
    EXPECT_NE(gkPair<double>(nan, 1), gkPair<double>(nan, 1));
}

TEST(Pair, IsAConstant) {
    constexpr gkPair<long> pair(7, -7);
    static_assert(pair.x() == 7 && pair.y() == -7 && pair == gkPair<long>(7, -7), "usable in constants");
}
