// The turn of three points. Oracle: exact integers.
#include "platform/core/shapes/orientation.h"

#include "tests/platform/core/shapes/exact_sign.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>

namespace {

using V = gkVector<2>;

// Also asks the exact step by itself, which the filter would otherwise keep from easy triples.
void expectExact(const V& a, const V& b, const V& c) {
    const int expected = exact::orientation(a, b, c);
    const auto text = [&] {
        std::ostringstream out;
        out.precision(17);
        out << a.x() << " " << a.y() << ", " << b.x() << " " << b.y() << ", " << c.x() << " " << c.y();
        return out.str();
    };
    ASSERT_EQ(expected, gk_Orientation(a, b, c)) << text();
    ASSERT_EQ(expected, gk_OrientationSteps::exact(a, b, c)) << text();
    const int filtered = gk_OrientationSteps::filtered(a, b, c);
    ASSERT_TRUE(filtered == 0 || filtered == expected) << text();
}

void expectExactInAllOrders(const V& a, const V& b, const V& c) {
    const int sign = gk_Orientation(a, b, c);
    ASSERT_EQ(sign, gk_Orientation(b, c, a));
    ASSERT_EQ(sign, gk_Orientation(c, a, b));
    ASSERT_EQ(-sign, gk_Orientation(b, a, c));
    ASSERT_NO_FATAL_FAILURE(expectExact(a, b, c));
    ASSERT_NO_FATAL_FAILURE(expectExact(b, c, a));
    ASSERT_NO_FATAL_FAILURE(expectExact(c, b, a));
}

double steps(double value, int count) {
    const double far = count > 0 ? HUGE_VAL : -HUGE_VAL;
    for (int i = 0; i < std::abs(count); ++i) value = std::nextafter(value, far);
    return value;
}

// Any finite bit pattern is as likely as any other.
double anyFinite(std::mt19937_64& random) {
    for (;;) {
        const std::uint64_t bits = random();
        double value = 0.0;
        std::memcpy(&value, &bits, sizeof value);
        if (std::isfinite(value)) return value;
    }
}

double between(std::mt19937_64& random, double low, double high) {
    return low + (high - low) * (static_cast<double>(random() >> 11) * 0x1p-53);
}

} // namespace

TEST(Orientation, OfALeftTurnIsPositive) { EXPECT_EQ(1, gk_Orientation({0, 0}, {1, 0}, {0, 1})); }

TEST(Orientation, OfARightTurnIsNegative) { EXPECT_EQ(-1, gk_Orientation({0, 0}, {0, 1}, {1, 0})); }

TEST(Orientation, OfCollinearPointsIsZero) {
    EXPECT_EQ(0, gk_Orientation({0, 0}, {1, 1}, {7, 7}));
    EXPECT_EQ(0, gk_Orientation({0, 5}, {1, 5}, {-7, 5}));
    EXPECT_EQ(0, gk_Orientation({3, 0}, {3, 1e300}, {3, -1e-300}));
}

TEST(Orientation, OfRepeatedPointsIsZero) {
    EXPECT_EQ(0, gk_Orientation({0.1, 0.7}, {0.1, 0.7}, {3, 4}));
    EXPECT_EQ(0, gk_Orientation({0.1, 0.7}, {3, 4}, {3, 4}));
    EXPECT_EQ(0, gk_Orientation({1e300, 1e-310}, {1e300, 1e-310}, {1e300, 1e-310}));
}

TEST(Orientation, IsExactOnAGridOfUlpNeighbours) {
    for (int i = 0; i < 64; ++i)
        for (int j = 0; j < 64; ++j) expectExactInAllOrders({steps(0.5, i), steps(0.5, j)}, {12, 12}, {24, 24});
}

TEST(Orientation, IsExactBesideAnInexactLine) {
    for (int i = -20; i <= 20; ++i)
        for (int j = -20; j <= 20; ++j)
            expectExactInAllOrders({steps(0.1, i), steps(0.3, j)}, {1.0 / 3.0, 1.0}, {17.3, 51.9});
}

TEST(Orientation, IsExactForRandomNearlyCollinearPoints) {
    for (std::uint64_t seed = 1; seed <= 20000; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937_64 random(seed);
        const V a(between(random, -1, 1), between(random, -1, 1));
        const V b(between(random, -9, 9), between(random, -9, 9));
        const double t = between(random, -2, 2);
        const V c(a.x() + t * (b.x() - a.x()), a.y() + t * (b.y() - a.y()));
        ASSERT_NO_FATAL_FAILURE(expectExact(a, b, c));
    }
}

TEST(Orientation, IsExactForNearlyCollinearPointsOfAnyMagnitude) {
    for (std::uint64_t seed = 1; seed <= 20000; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937_64 random(seed);
        const int power = static_cast<int>(random() % 2040) - 1065;
        const double x = between(random, -1, 1);
        const double y = between(random, -1, 1);
        const double t = between(random, -1, 1);
        const V a(std::ldexp(x, power), std::ldexp(y, power));
        const V b(std::ldexp(x * t, power), std::ldexp(y * t, power));
        const V c(std::ldexp(x * -0.75, power), std::ldexp(y * -0.75, power));
        ASSERT_NO_FATAL_FAILURE(expectExact(a, b, c));
    }
}

TEST(Orientation, IsExactForArbitraryBitPatterns) {
    for (std::uint64_t seed = 1; seed <= 20000; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937_64 random(seed);
        V a(anyFinite(random), anyFinite(random));
        V b(anyFinite(random), anyFinite(random));
        V c(anyFinite(random), anyFinite(random));
        ASSERT_NO_FATAL_FAILURE(expectExact(a, b, c));
        ASSERT_NO_FATAL_FAILURE(expectExact(a, {a.y(), a.x()}, -a));
    }
}

TEST(Orientation, IsExactAtTheEndsOfTheRange) {
    const double values[] = {0.0,
                             -0.0,
                             std::numeric_limits<double>::denorm_min(),
                             -3 * std::numeric_limits<double>::denorm_min(),
                             std::numeric_limits<double>::min(),
                             1.0,
                             steps(1.0, 1),
                             0x1p-450,
                             steps(0x1p-450, -1),
                             0x1p450,
                             steps(0x1p450, 1),
                             1e300,
                             std::numeric_limits<double>::max(),
                             -std::numeric_limits<double>::max()};
    std::mt19937_64 random(7);
    const auto pick = [&] { return values[random() % (sizeof values / sizeof values[0])]; };
    for (int i = 0; i < 40000; ++i) {
        const V a(pick(), pick());
        const V b(pick(), pick());
        const V c(pick(), pick());
        ASSERT_NO_FATAL_FAILURE(expectExact(a, b, c));
    }
}

TEST(Orientation, IsExactOnASmallLatticeOfTinyAndHugeUnits) {
    for (const double unit : {0x1p-1074, 0x1p-460, 1.0, 1e18, 0x1p1020})
        for (int code = 0; code < 4096; ++code) {
            const auto digit = [&](int place) { return unit * ((code >> (2 * place)) & 3); };
            ASSERT_NO_FATAL_FAILURE(
                expectExact({digit(0), digit(1)}, {digit(2), digit(3)}, {digit(4), digit(5)}));
        }
}
