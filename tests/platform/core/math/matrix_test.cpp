// The 2 x 2 matrix: its four angles-and-scales, products, inverse, comparisons.
#include "platform/core/math/matrix.h"

#include "platform/core/object/errors.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using Matrix = gkMatrix<2>;
using Vector = gkVector<2>;

constexpr double kPi = 3.141592653589793;
constexpr double kUlp = std::numeric_limits<double>::epsilon();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

Matrix angled(double xAxis, double yAxis, double scaleX, double scaleY) {
    return Matrix(gkRadian(xAxis), gkRadian(yAxis), scaleX, scaleY);
}

} // namespace

TEST(Matrix, IsZeroByDefault) { EXPECT_EQ(Matrix(0, 0, 0, 0), Matrix()); }

TEST(Matrix, ElementsAreByRowAndColumn) {
    const Matrix m(1, 2, 3, 4);
    EXPECT_EQ(1, m.element(0, 0));
    EXPECT_EQ(2, m.element(0, 1));
    EXPECT_EQ(3, m.element(1, 0));
    EXPECT_EQ(4, m.element(1, 1));
}

TEST(Matrix, AnElementThatIsNotThereIsRefused) {
    const Matrix m(1, 2, 3, 4);
    for (const int index : {-1, 2, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        EXPECT_THROW(m.element(index, 0), gkMathError::OutOfRange);
        EXPECT_THROW(m.element(0, index), gkMathError::OutOfRange);
    }
}

TEST(Matrix, OfEqualAnglesAndScaleOneIsThePureRotation) {
    const double half = 0.5;
    const double root = std::sqrt(3.0) / 2.0;
    EXPECT_TRUE(gfRealEq(Matrix(root, -half, half, root), angled(kPi / 6, kPi / 6, 1, 1), 2 * kUlp));
    EXPECT_TRUE(gfRealEq(Matrix(0, -1, 1, 0), angled(kPi / 2, kPi / 2, 1, 1), 2 * kUlp));
    EXPECT_EQ(Matrix::identity(), angled(0, 0, 1, 1));
    for (const double t : {-3.0, -1.0, 0.1, 1.5, 2.5}) {
        const Matrix turn = angled(t, t, 1, 1);
        EXPECT_NEAR(1, turn.determinant(), 4 * kUlp);
        EXPECT_TRUE(gfRealEq(Matrix::identity(), turn * turn.transposed(), 4 * kUlp));
        EXPECT_NEAR(std::cos(t), turn.element(0, 0), kUlp);
        EXPECT_NEAR(std::sin(t), turn.element(1, 0), kUlp);
    }
}

TEST(Matrix, ScalesAlongTheTurnedAxes) {
    EXPECT_EQ(Matrix(2, 0, 0, 5), angled(0, 0, 2, 5));
    const Matrix m = angled(kPi / 2, kPi / 2, 2, 5);
    EXPECT_TRUE(gfRealEq(Vector(0, 2), m * Vector(1, 0), 1e-15));
    EXPECT_TRUE(gfRealEq(Vector(-5, 0), m * Vector(0, 1), 1e-15));
}

TEST(Matrix, OfUnequalAnglesIsSkewed) {
    // The x axis stays; the y axis turns by 45 degrees towards -x.
    const double root = std::sqrt(0.5);
    const Matrix m = angled(0, kPi / 4, 1, 2);
    EXPECT_EQ(Vector(1, 0), m * Vector(1, 0));
    EXPECT_TRUE(gfRealEq(Vector(-2 * root, 2 * root), m * Vector(0, 1), 4 * kUlp));
    EXPECT_NEAR(2 * root, m.determinant(), 4 * kUlp);
}

TEST(Matrix, SumsProductsAndScalesAreByElement) {
    const Matrix a(1, 2, 3, 4);
    const Matrix b(10, 20, 30, 40);
    EXPECT_EQ(Matrix(11, 22, 33, 44), a + b);
    EXPECT_EQ(Matrix(9, 18, 27, 36), b - a);
    EXPECT_EQ(Matrix(-1, -2, -3, -4), -a);
    EXPECT_EQ(Matrix(2, 4, 6, 8), a * 2.0);
    EXPECT_EQ(Matrix(2, 4, 6, 8), 2.0 * a);
    EXPECT_EQ(Matrix(0.5, 1, 1.5, 2), a / 2.0);
    EXPECT_EQ(Matrix(1, 3, 2, 4), a.transposed());
}

TEST(Matrix, ProductIsRowsByColumnsAndNotCommutative) {
    const Matrix a(1, 2, 3, 4);
    const Matrix b(0, 1, 1, 0);
    EXPECT_EQ(Matrix(2, 1, 4, 3), a * b);
    EXPECT_EQ(Matrix(3, 4, 1, 2), b * a);
    EXPECT_EQ(Vector(50, 110), a * Vector(10, 20));
    EXPECT_EQ(a, a * Matrix::identity());
    EXPECT_EQ(a, Matrix::identity() * a);
}

TEST(Matrix, InverseUndoes) {
    EXPECT_EQ(Matrix(-2, 1, 1.5, -0.5), Matrix(1, 2, 3, 4).inverse());
    EXPECT_EQ(Matrix(0.5, 0, 0, 0.25), Matrix(2, 0, 0, 4).inverse());
    EXPECT_EQ(Matrix(0, 1, 1, 0), Matrix(0, 1, 1, 0).inverse());
}

TEST(Matrix, WithoutAFiniteDeterminantHasNoInverse) {
    EXPECT_THROW(Matrix().inverse(), gkMathError::Singular);
    EXPECT_THROW(Matrix(1, 2, 2, 4).inverse(), gkMathError::Singular);
    EXPECT_THROW(Matrix(kNaN, 0, 0, 1).inverse(), gkMathError::Singular);
    EXPECT_THROW(Matrix(kInfinity, 0, 0, 1).inverse(), gkMathError::Singular);
    EXPECT_THROW(Matrix(1e200, 0, 0, 1e200).inverse(), gkMathError::Singular);
    EXPECT_THROW(Matrix(1e-200, 0, 0, 1e-200).inverse(), gkMathError::Singular);
    EXPECT_NO_THROW(Matrix(1e-150, 0, 0, 1e-150).inverse());
}

TEST(Matrix, ComparesAllFourElementsExactly) {
    const Matrix m(1, 2, 3, 4);
    EXPECT_EQ(m, Matrix(1, 2, 3, 4));
    EXPECT_NE(m, Matrix(1 + kUlp, 2, 3, 4));
    EXPECT_NE(m, Matrix(1, 2 + 2 * kUlp, 3, 4));
    EXPECT_NE(m, Matrix(1, 2, 3 + 2 * kUlp, 4));
    EXPECT_NE(m, Matrix(1, 2, 3, 4 + 4 * kUlp));
    EXPECT_NE(Matrix(kNaN, 0, 0, 0), Matrix(kNaN, 0, 0, 0));
}

TEST(Matrix, IsEqualWithinABoundThatIsIncludedForEveryElement) {
    const Matrix m(1, 2, 3, 4);
    EXPECT_TRUE(gfRealEq(m, Matrix(1.25, 1.75, 3.25, 3.75), 0.25));
    EXPECT_FALSE(gfRealEq(m, Matrix(1.5, 2, 3, 4), 0.25));
    EXPECT_FALSE(gfRealEq(m, Matrix(1, 2.5, 3, 4), 0.25));
    EXPECT_FALSE(gfRealEq(m, Matrix(1, 2, 3.5, 4), 0.25));
    EXPECT_FALSE(gfRealEq(m, Matrix(1, 2, 3, 4.5), 0.25));
    EXPECT_FALSE(gfRealEq(m, Matrix(1, 2, 3, kNaN), 0.25));
}
