// Rectangles: exact corners, closed borders, boxes that touch, NaN.
#include "platform/core/shapes/rect.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using Vector = gkVector<2>;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

double above(double value) { return std::nextafter(value, kInfinity); }
double below(double value) { return std::nextafter(value, -kInfinity); }

const gkRect kBox = gkRect::fromCorners({1, 2}, {4, 8});

} // namespace

TEST(Rect, IsThePointZeroByDefault) {
    EXPECT_EQ(gkRect::fromCorners({0, 0}, {0, 0}), gkRect());
    EXPECT_TRUE(gkRect().within({0, 0}));
}

TEST(Rect, FromCornersTakesThemInAnyOrder) {
    EXPECT_EQ(Vector(1, 2), kBox.ul());
    EXPECT_EQ(Vector(4, 8), kBox.lr());
    EXPECT_EQ(kBox, gkRect::fromCorners({4, 8}, {1, 2}));
    EXPECT_EQ(kBox, gkRect::fromCorners({1, 8}, {4, 2}));
    EXPECT_EQ(kBox, gkRect::fromCorners({4, 2}, {1, 8}));
}

TEST(Rect, KeepsItsCornersExactly) {
    // 0.1 + (1e16 - 0.1) is not 1e16 + anything small: a corner and a size could not give both corners back.
    const Vector a(0.1, -1e-300);
    const Vector b(1e16, 0.3);
    const gkRect rect = gkRect::fromCorners(a, b);
    EXPECT_EQ(a, rect.ul());
    EXPECT_EQ(b, rect.lr());
}

TEST(Rect, OfACornerAndASizeReachesToEitherSide) {
    EXPECT_EQ(kBox, gkRect({1, 2}, {3, 6}));
    EXPECT_EQ(kBox, gkRect({4, 8}, {-3, -6}));
    EXPECT_EQ(kBox, gkRect({4, 2}, {-3, 6}));
}

TEST(Rect, TellsItsSizeAndCenter) {
    EXPECT_EQ(Vector(3, 6), kBox.size());
    EXPECT_EQ(3, kBox.width());
    EXPECT_EQ(6, kBox.height());
    EXPECT_EQ(Vector(2.5, 5), kBox.center());
}

TEST(Rect, WithinCountsTheBorderAndNothingBeyond) {
    for (const Vector& p :
         {Vector(1, 2), Vector(4, 2), Vector(4, 8), Vector(1, 8), Vector(2, 2), Vector(2, 5)}) {
        EXPECT_TRUE(kBox.within(p)) << p.x() << " " << p.y();
    }
    for (const Vector& p :
         {Vector(below(1), 5), Vector(above(4), 5), Vector(2, below(2)), Vector(2, above(8))}) {
        EXPECT_FALSE(kBox.within(p)) << p.x() << " " << p.y();
    }
}

TEST(Rect, BoxesThatTouchOverlapAndOneUlpApartTheyDoNot) {
    EXPECT_TRUE(kBox.overlaps(gkRect::fromCorners({4, 3}, {9, 4})));
    EXPECT_FALSE(kBox.overlaps(gkRect::fromCorners({above(4), 3}, {9, 4})));
    EXPECT_TRUE(kBox.overlaps(gkRect::fromCorners({0, 3}, {1, 4})));
    EXPECT_FALSE(kBox.overlaps(gkRect::fromCorners({0, 3}, {below(1), 4})));
    EXPECT_TRUE(kBox.overlaps(gkRect::fromCorners({2, 8}, {3, 9})));
    EXPECT_FALSE(kBox.overlaps(gkRect::fromCorners({2, above(8)}, {3, 9})));
    EXPECT_TRUE(kBox.overlaps(gkRect::fromCorners({2, 0}, {3, 2})));
    EXPECT_FALSE(kBox.overlaps(gkRect::fromCorners({2, 0}, {3, below(2)})));
}

TEST(Rect, BoxesThatShareACornerOverlap) {
    EXPECT_TRUE(kBox.overlaps(gkRect::fromCorners({4, 8}, {5, 9})));
    EXPECT_FALSE(kBox.overlaps(gkRect::fromCorners({above(4), above(8)}, {5, 9})));
}

TEST(Rect, OverlapsIsMutual) {
    const gkRect inner = gkRect::fromCorners({2, 3}, {3, 4});
    const gkRect cross = gkRect::fromCorners({0, 4}, {9, 5});
    const gkRect beside = gkRect::fromCorners({5, 2}, {9, 8});
    EXPECT_TRUE(kBox.overlaps(inner) && inner.overlaps(kBox));
    EXPECT_TRUE(kBox.overlaps(cross) && cross.overlaps(kBox));
    EXPECT_FALSE(kBox.overlaps(beside) || beside.overlaps(kBox));
}

TEST(Rect, OfSizeZeroOverlapsWhatHoldsItsPoint) {
    EXPECT_TRUE(kBox.overlaps(gkRect({4, 8}, {0, 0})));
    EXPECT_FALSE(kBox.overlaps(gkRect({above(4), 8}, {0, 0})));
}

TEST(Rect, EncloseHoldsBothAndNoMore) {
    EXPECT_EQ(gkRect::fromCorners({0, 2}, {4, 9}), kBox.enclose(gkRect::fromCorners({0, 3}, {2, 9})));
    EXPECT_EQ(kBox, kBox.enclose(gkRect::fromCorners({2, 3}, {3, 4})));
    EXPECT_EQ(kBox, gkRect::fromCorners({2, 3}, {3, 4}).enclose(kBox));
}

TEST(Rect, EncloseCountsABoxOfSizeZeroAsItsPoint) {
    EXPECT_EQ(gkRect::fromCorners({0, 0}, {4, 8}), kBox.enclose(gkRect()));
    EXPECT_EQ(gkRect::fromCorners({0, 0}, {4, 8}), gkRect().enclose(kBox));
    EXPECT_EQ(gkRect::fromCorners({1, 2}, {6, 8}), kBox.enclose(gkRect({6, 3}, {0, 0})));
}

TEST(Rect, WithNaNHoldsNothingAndOverlapsNothing) {
    EXPECT_FALSE(kBox.within({kNaN, 5}));
    EXPECT_FALSE(kBox.within({2, kNaN}));
    const gkRect bad = gkRect::fromCorners({kNaN, 2}, {kNaN, 8});
    EXPECT_FALSE(bad.within({2, 5}));
    EXPECT_FALSE(kBox.overlaps(bad));
    EXPECT_FALSE(bad.overlaps(kBox));
    EXPECT_NE(bad, bad);
}

TEST(Rect, EncloseTakesNoNaNOverAndKeepsItsOwn) {
    const gkRect bad = gkRect::fromCorners({kNaN, 0}, {kNaN, 9});
    EXPECT_EQ(gkRect::fromCorners({1, 0}, {4, 9}), kBox.enclose(bad));
    EXPECT_TRUE(std::isnan(bad.enclose(kBox).ul().x()));
}
