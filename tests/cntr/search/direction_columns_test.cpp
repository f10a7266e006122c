// Columns of vertex directions. Expected gaps from sorted angles.
#include "cntr/search/direction_columns.h"

#include "tests/gen/random.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

constexpr double kRight = 1.5707963267948966;

double turnAt(double angle) { return gk_QuarterTurns(std::cos(angle), std::sin(angle)); }

std::vector<gk_DirectionColumns::Range> gapsOf(const gk_DirectionColumns& columns) {
    std::vector<gk_DirectionColumns::Range> gaps;
    EXPECT_FALSE(columns.anyGap([&](const gk_DirectionColumns::Range& gap) {
        gaps.push_back(gap);
        return false;
    }));
    return gaps;
}

// Angles from one to 2.5 right ones on, some of whose distances are a little more than a step.
std::vector<double> anglesFrom(double angle, double step, gen::Random& random) {
    std::vector<double> angles;
    while (angle < 2.5 * kRight && angles.size() < 400) {
        angles.push_back(angle);
        angle += random.integer(0, 3) == 0 ? step * random.between(1.0001, 1.2) : step * random.unit();
    }
    return angles;
}

} // namespace

TEST(DirectionColumns, VisitsEveryGapWiderThanAStepInOrder) {
    for (std::uint64_t seed = 1; seed <= 200; ++seed) {
        gen::Random random(seed);
        const double step = std::pow(10.0, random.between(-8.0, -1.0));
        const std::vector<double> angles = anglesFrom(random.between(0.0, 2.0 * kRight), step, random);
        gk_DirectionColumns columns(turnAt(angles.front()) - 1e-12, turnAt(angles.back()) + step, step);
        for (const double angle : angles) columns.add(turnAt(angle));
        const auto gaps = gapsOf(columns);
        auto gap = gaps.begin();
        for (std::size_t i = 1; i < angles.size(); ++i) {
            if (angles[i] - angles[i - 1] <= step) continue;
            const auto holds = [&](const auto& range) {
                return range.begin <= turnAt(angles[i - 1]) + 1e-12 && range.end >= turnAt(angles[i]) - 1e-12;
            };
            gap = std::find_if(gap, gaps.end(), holds);
            ASSERT_NE(gaps.end(), gap) << "seed " << seed << ", angle " << i;
            EXPECT_GT(turnAt(angles[i]) - turnAt(angles[i - 1]), gap->end - gap->begin - step / 19.0)
                << "no longer than the gap and a column at either side";
        }
    }
}

TEST(DirectionColumns, GapsAreBetweenDirectionsOnly) {
    gk_DirectionColumns columns(0.0, 0.5, 0.01);
    EXPECT_TRUE(gapsOf(columns).empty());
    columns.add(0.25);
    EXPECT_TRUE(gapsOf(columns).empty()) << "wide on both sides, but nothing is there";
    columns.add(0.4);
    ASSERT_EQ(1u, gapsOf(columns).size());
    EXPECT_NEAR(0.25, gapsOf(columns).front().begin, 0.01 / 40.0);
    EXPECT_NEAR(0.4, gapsOf(columns).front().end, 0.01 / 40.0);
}

TEST(DirectionColumns, AVisitThatReturnsTrueEndsIt) {
    gk_DirectionColumns columns(0.0, 0.5, 0.01);
    for (const double turn : {0.1, 0.2, 0.3}) columns.add(turn);
    int visits = 0;
    EXPECT_TRUE(columns.anyGap([&](const gk_DirectionColumns::Range&) { return ++visits == 1; }));
    EXPECT_EQ(1, visits);
}

TEST(DirectionColumns, LastIsTheGreatestOfThoseWithin) {
    gk_DirectionColumns columns(0.1, 0.5, 0.01);
    EXPECT_TRUE(columns.isEmpty());
    for (const double turn : {0.09, 0.6, std::nan("")}) columns.add(turn);
    EXPECT_TRUE(columns.isEmpty());
    for (const double turn : {0.2, 0.3, 0.25, 0.7, -1.0}) columns.add(turn);
    EXPECT_FALSE(columns.isEmpty());
    EXPECT_LE(columns.last().begin, 0.3);
    EXPECT_GE(columns.last().end, 0.3);
    EXPECT_NEAR(0.01 / 40.0, columns.last().end - columns.last().begin, 1e-12);
}
