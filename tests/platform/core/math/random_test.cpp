// The random numbers: fixed sequences, ranges without their upper end.
#include "platform/core/math/random.h"

#include "platform/core/math/real.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kGreatest = std::numeric_limits<double>::max();
constexpr double kLeast = std::numeric_limits<double>::denorm_min();

// The first numbers times 2^53, from a script of its own in integers without bounds (the first of seed 0 is
// also the upper part of the published e220a8397b1dcdaf).
constexpr std::uint64_t kFromSeed0[] = {0x1c4415072f63b9, 0x0dcf13cd54372c, 0x00d88ba3100128,
                                        0x1f1177150e4990, 0x0367312d4a350e, 0x0a7973e18e8fd4};
constexpr std::uint64_t kFromSeed1[] = {0x122145bd91204b, 0x17dd71b42cb1dd, 0x1f12745ddf664a,
                                        0x0e3830d21dc859, 0x0e376a9b1a2036, 0x1869a17ff202a0};
constexpr std::uint64_t kFromSeed4294967295[] = {0x0e76277455fe30, 0x0c240860a2681a, 0x1dc9593fe8e4eb,
                                                 0x025e9dd6e79da9, 0x16e207161a2012, 0x1f6a3700e58eb1};

template <std::size_t N> void expectSequence(const std::uint64_t (&expected)[N], unsigned long seed) {
    gkRandomUniform random(seed);
    for (std::uint64_t value : expected) EXPECT_EQ(static_cast<double>(value) * 0x1p-53, random.next()) << seed;
}

} // namespace

TEST(RandomUniform, GivesTheSameSequenceEverywhere) {
    expectSequence(kFromSeed0, 0);
    expectSequence(kFromSeed1, 1);
    expectSequence(kFromSeed4294967295, 4294967295UL);
}

TEST(RandomUniform, FirstMillionOfSeedOneHashesToTheKnownValue) {
    // h = 31 h + number modulo 2^64, from the same script.
    gkRandomUniform random(1);
    std::uint64_t hash = 0;
    for (int i = 0; i < 1000000; ++i) hash = hash * 31 + static_cast<std::uint64_t>(random.next() * 0x1p53);
    EXPECT_EQ(0x3b8f929cac7ebcaU, hash);
}

TEST(RandomUniform, ChoosesTheKnownIndices) {
    // floor(3 v / 2^53) of the script's numbers v: what a full cache of three entries evicts.
    gkRandomUniform random(1);
    for (long expected : {1, 2, 2, 1, 1, 2, 2, 1, 0, 2, 1, 1, 1, 1, 1, 0, 1, 2, 2, 2}) {
        EXPECT_EQ(expected, gfIFloor(random.next(0.0, 3.0)));
    }
}

TEST(RandomUniform, TakesTheSeedModulo32Bits) {
    const unsigned long wrapped =
        static_cast<unsigned long>((std::uint64_t{1} << 32) + 1); // 1 where long has 32 bits
    EXPECT_EQ(gkRandomUniform(1).next(), gkRandomUniform(wrapped).next());
}

TEST(RandomUniform, CopyContinuesFromTheSamePlace) {
    gkRandomUniform random(5);
    random.next();
    gkRandomUniform copy = random;
    const double expected = random.next();
    random.next();
    EXPECT_EQ(expected, copy.next());
}

TEST(RandomUniform, StaysWithinItsRangeAndReachesEveryTenthOfIt) {
    for (unsigned long seed = 0; seed < 50; ++seed) {
        SCOPED_TRACE(seed);
        gkRandomUniform random(seed);
        int tenths[10] = {};
        for (int i = 0; i < 2000; ++i) {
            const double value = random.next(-3.0, 7.0);
            ASSERT_GE(value, -3.0);
            ASSERT_LT(value, 7.0);
            ++tenths[static_cast<int>(value + 3.0)];
        }
        // 200 are expected with a standard deviation of 13.4; the bounds are 7.4 of them away.
        for (int count : tenths) EXPECT_NEAR(200, count, 100);
    }
}

TEST(RandomUniform, NeverGivesTheUpperEndWhereTheSumRoundsToIt) {
    // Only two doubles are in range, and half of the sums round to b.
    gkRandomUniform random(11);
    const double a = 1.0;
    const double b = std::nextafter(std::nextafter(1.0, 2.0), 2.0);
    int upper = 0;
    for (int i = 0; i < 1000; ++i) {
        const double value = random.next(a, b);
        ASSERT_GE(value, a);
        ASSERT_LT(value, b);
        if (value > a) ++upper;
    }
    EXPECT_GT(upper, 0);
    for (int i = 0; i < 100; ++i) EXPECT_EQ(1.0, random.next(1.0, std::nextafter(1.0, 2.0)));
    for (int i = 0; i < 100; ++i) EXPECT_EQ(0.0, random.next(0.0, kLeast));
    for (int i = 0; i < 100; ++i) EXPECT_EQ(-kLeast, random.next(-kLeast, 0.0));
}

TEST(RandomUniform, OfAnEmptyIntervalIsItsEndAndStillTakesAStep) {
    gkRandomUniform random(1);
    EXPECT_EQ(2.5, random.next(2.5, 2.5));
    EXPECT_EQ(static_cast<double>(kFromSeed1[1]) * 0x1p-53, random.next());
    EXPECT_EQ(kInfinity, random.next(kInfinity, kInfinity));
}

TEST(RandomUniform, WithSwappedEndsLeavesOutTheSecond) {
    gkRandomUniform random(3);
    for (int i = 0; i < 1000; ++i) {
        const double value = random.next(2.0, -1.0);
        ASSERT_LE(value, 2.0);
        ASSERT_GT(value, -1.0);
        ASSERT_EQ(1.0, random.next(1.0, std::nextafter(1.0, 0.0)));
    }
}

TEST(RandomUniform, SpansTheWholeRangeOfDoubles) {
    gkRandomUniform random(4);
    int negative = 0;
    for (int i = 0; i < 1000; ++i) {
        const double value = random.next(-kGreatest, kGreatest);
        ASSERT_TRUE(std::isfinite(value));
        ASSERT_LT(value, kGreatest);
        if (value < 0.0) ++negative;
    }
    EXPECT_NEAR(500, negative, 120); // standard deviation 15.8
}

TEST(RandomUniform, OfInfiniteEndsOrNaNIsNaN) {
    gkRandomUniform random(1);
    EXPECT_TRUE(std::isnan(random.next(0.0, kInfinity)));
    EXPECT_TRUE(std::isnan(random.next(-kInfinity, kInfinity)));
    EXPECT_TRUE(std::isnan(random.next(kNaN, 1.0)));
    EXPECT_TRUE(std::isnan(random.next(0.0, kNaN)));
}
