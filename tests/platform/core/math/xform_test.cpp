// The linear transform of the plane: order of composition, inverse, comparisons.
#include "platform/core/math/xform.h"

#include "platform/core/math/random.h"
#include "platform/core/math/real.h"
#include "platform/core/object/errors.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using Matrix = gkMatrix<2>;
using Vector = gkVector<2>;
using Xform = gkXform<2>;

constexpr double kPi = 3.141592653589793;

Xform turn(double angle) { return Xform(Matrix(gkRadian(angle), gkRadian(angle), 1, 1), {0, 0}); }
Xform shift(double x, double y) { return Xform(Matrix::identity(), {x, y}); }

} // namespace

TEST(Xform, IsTheIdentityByDefault) {
    EXPECT_EQ(Xform(Matrix::identity(), {0, 0}), Xform());
    EXPECT_EQ(Vector(3, -4), Xform() * Vector(3, -4));
}

TEST(Xform, AppliesTheMatrixThenTheTranslation) {
    const Xform xform(Matrix(1, 2, 3, 4), {100, 200});
    EXPECT_EQ(Vector(150, 310), xform * Vector(10, 20));
    EXPECT_EQ(Vector(100, 200), xform * Vector(0, 0));
    EXPECT_EQ(Matrix(1, 2, 3, 4), xform.matrix());
    EXPECT_EQ(Vector(100, 200), xform.translation());
}

TEST(Xform, TurnsByAPositiveAngleFromXTowardsY) {
    EXPECT_TRUE(gfRealEq(Vector(0, 2), turn(kPi / 2) * Vector(2, 0), 1e-15));
    EXPECT_TRUE(gfRealEq(Vector(-2, 0), turn(kPi) * Vector(2, 0), 1e-15));
}

TEST(Xform, AProductAppliesItsRightSideFirst) {
    const Xform quarter(Matrix(0, -1, 1, 0), {0, 0}); // exact quarter turn
    EXPECT_EQ(Vector(-2, 11), quarter * shift(10, 0) * Vector(1, 2));
    EXPECT_EQ(Vector(8, 1), shift(10, 0) * quarter * Vector(1, 2));
    EXPECT_EQ(Xform(Matrix(0, -1, 1, 0), {0, 10}), quarter * shift(10, 0));
    EXPECT_EQ(Xform(Matrix(0, -1, 1, 0), {10, 0}), shift(10, 0) * quarter);
}

TEST(Xform, AProductMapsLikeItsPartsOneAfterTheOther) {
    // Small whole numbers: nothing rounds.
    for (unsigned long seed = 1; seed <= 100; ++seed) {
        SCOPED_TRACE(seed);
        gkRandomUniform random(seed);
        const auto whole = [&] { return static_cast<double>(gfIFloor(random.next(-50, 50))); };
        double n[14];
        for (double& number : n) number = whole();
        const Xform a(Matrix(n[0], n[1], n[2], n[3]), {n[4], n[5]});
        const Xform b(Matrix(n[6], n[7], n[8], n[9]), {n[10], n[11]});
        const Vector p(n[12], n[13]);
        EXPECT_EQ(a * (b * p), (a * b) * p);
    }
}

TEST(Xform, InverseUndoesMatrixAndTranslation) {
    const Xform xform(Matrix(2, 0, 0, 4), {6, 8});
    EXPECT_EQ(Xform(Matrix(0.5, 0, 0, 0.25), {-3, -2}), xform.inverse());
    EXPECT_EQ(Xform(), xform * xform.inverse());
    EXPECT_EQ(Xform(), xform.inverse() * xform);
    const Xform skew(Matrix(gkRadian(0.3), gkRadian(1.1), 2, 0.5), {-7, 11});
    EXPECT_TRUE(gfRealEq(Xform(), skew * skew.inverse(), 1e-14));
    EXPECT_TRUE(gfRealEq(Xform(), skew.inverse() * skew, 1e-14));
}

TEST(Xform, OfASingularMatrixHasNoInverse) {
    EXPECT_THROW(Xform(Matrix(), {1, 2}).inverse(), gkMathError::Singular);
    EXPECT_THROW(Xform(Matrix(1, 2, 2, 4), {0, 0}).inverse(), gkMathError::Singular);
}

TEST(Xform, ComparesAllSixNumbers) {
    const Xform xform(Matrix(1, 2, 3, 4), {5, 6});
    EXPECT_EQ(xform, Xform(Matrix(1, 2, 3, 4), {5, 6}));
    EXPECT_NE(xform, Xform(Matrix(1, 2, 3, 5), {5, 6}));
    EXPECT_NE(xform, Xform(Matrix(1, 2, 3, 4), {5, 7}));
    EXPECT_NE(xform, Xform(Matrix(1, 2, 3, 4), {6, 6}));
}

TEST(Xform, IsEqualWithinABoundThatIsIncluded) {
    const Xform xform(Matrix(1, 2, 3, 4), {5, 6});
    EXPECT_TRUE(gfRealEq(xform, Xform(Matrix(1.5, 2, 3, 4), {4.5, 6.5}), 0.5));
    EXPECT_FALSE(gfRealEq(xform, Xform(Matrix(1, 2, 3, 4), {5, 6.75}), 0.5));
    EXPECT_FALSE(gfRealEq(xform, Xform(Matrix(1, 2.75, 3, 4), {5, 6}), 0.5));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(gfRealEq(Xform(Matrix(1, 2, 3, 4), {nan, 6}), Xform(Matrix(1, 2, 3, 4), {nan, 6}), 0.5));
}
