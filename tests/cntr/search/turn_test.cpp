// Directions compared without an arctangent.
#include "cntr/search/turn.h"

#include "platform/core/math/vector_ops.h"
#include "tests/gen/random.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

TEST(Turn, GrowsWithTheDirectionAndIsWholeOnTheAxes) {
    EXPECT_EQ(0.0, gk_QuarterTurns(3, 0));
    EXPECT_EQ(1.0, gk_QuarterTurns(0, 3));
    EXPECT_EQ(2.0, gk_QuarterTurns(-3, 0));
    EXPECT_EQ(3.0, gk_QuarterTurns(0, -3));
    double before = 0.0;
    for (double degrees = 0.125; degrees < 360.0; degrees += 0.25) {
        const double angle = degrees / 180.0 * std::acos(-1.0);
        const double turn = gk_QuarterTurns(5.0 * std::cos(angle), 5.0 * std::sin(angle));
        EXPECT_LT(before, turn) << degrees;
        before = turn;
    }
    EXPECT_GT(4.0, before);
}

TEST(Turn, DirectionAtHasTheTurn) {
    for (double turn = 0.0; turn < 4.0; turn += 1.0 / 64.0) {
        const gkVector<2> direction = gk_DirectionAt(turn);
        EXPECT_EQ(turn, gk_QuarterTurns(direction.x(), direction.y()));
    }
}

// Boxes on all sides of the place and around it, some of them lines and points.
TEST(Turn, LeastOfABoxIsThatOfItsLeastPlace) {
    gen::Random random(20261122);
    for (int i = 0; i < 3000; ++i) {
        gk_Box box{random.between(-4, 4), random.between(-4, 4), 0, 0};
        box.x1 = box.x0 + (random.integer(0, 4) == 0 ? 0.0 : random.between(0, 4));
        box.y1 = box.y0 + (random.integer(0, 4) == 0 ? 0.0 : random.between(0, 4));
        const double least = gk_LeastTurn(box);
        double found = 4.0;
        for (int step = 0; step <= 400; ++step) {
            const double along = step / 400.0;
            const double x = box.x0 + (box.x1 - box.x0) * along;
            const double y = box.y0 + (box.y1 - box.y0) * along;
            for (const gkVector<2>& p : {gkVector<2>(x, box.y0), gkVector<2>(x, box.y1), gkVector<2>(box.x0, y),
                                         gkVector<2>(box.x1, y)}) {
                const double turn = gk_QuarterTurns(p.x(), p.y());
                EXPECT_LE(least, turn) << p.x() << ' ' << p.y();
                found = std::min(found, turn);
            }
        }
        const bool reachesX = box.x1 >= 0.0 && box.y0 <= 0.0 && box.y1 >= 0.0;
        EXPECT_NEAR(reachesX ? 0.0 : found, least, 1e-9);
    }
    // A vertex so little below the x direction that its angle is computed as zero must not be left out.
    EXPECT_EQ(0.0, gk_LeastTurn({1, -1, 2, -4.9e-324}));
}
