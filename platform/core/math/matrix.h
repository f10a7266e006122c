/// \file
/// The 2 x 2 matrix of doubles.
#ifndef GK_PLATFORM_CORE_MATH_MATRIX_H
#define GK_PLATFORM_CORE_MATH_MATRIX_H

#include "platform/core/math/angle.h"
#include "platform/core/math/vector.h"
#include "platform/export.h"

#include <array>

template <int N> class gkMatrix;

/// A 2 x 2 matrix, indexed (row, column).
template <> class GKCNTR_API gkMatrix<2> {
public:
    /// All elements zero.
    constexpr gkMatrix() = default;
    /// The four elements, row by row.
    constexpr gkMatrix(double e00, double e01, double e10, double e11)
        : e00_(e00), e01_(e01), e10_(e10), e11_(e11) {}
    /// Scales by (scaleX, scaleY), then turns the x axis by `xAxis` and the y axis by `yAxis`.
    ///
    /// The first column is scaleX (cos xAxis, sin xAxis), the second scaleY (-sin yAxis, cos yAxis), so (t, t,
    /// 1, 1) is the pure rotation by t and unequal angles skew.
    gkMatrix(const gkRadian& xAxis, const gkRadian& yAxis, double scaleX, double scaleY);

    static constexpr gkMatrix identity() { return gkMatrix(1.0, 0.0, 0.0, 1.0); }

    /// The element at (row, column), each 0 or 1; gkMathError::OutOfRange otherwise.
    double element(int row, int column) const;
    /// All four, row by row.
    constexpr std::array<double, 4> elements() const { return {e00_, e01_, e10_, e11_}; }

    double determinant() const;
    gkMatrix transposed() const { return gkMatrix(e00_, e10_, e01_, e11_); }
    /// The inverse matrix; gkMathError::Singular when the determinant is zero or not finite.
    gkMatrix inverse() const;

    /// Matrix product.
    gkMatrix operator*(const gkMatrix& other) const;
    gkVector<2> operator*(const gkVector<2>& vector) const;

    constexpr gkMatrix operator-() const { return gkMatrix(-e00_, -e01_, -e10_, -e11_); }
    friend constexpr gkMatrix operator+(const gkMatrix& a, const gkMatrix& b) {
        return gkMatrix(a.e00_ + b.e00_, a.e01_ + b.e01_, a.e10_ + b.e10_, a.e11_ + b.e11_);
    }
    friend constexpr gkMatrix operator-(const gkMatrix& a, const gkMatrix& b) {
        return gkMatrix(a.e00_ - b.e00_, a.e01_ - b.e01_, a.e10_ - b.e10_, a.e11_ - b.e11_);
    }
    friend constexpr gkMatrix operator*(const gkMatrix& a, double factor) {
        return gkMatrix(a.e00_ * factor, a.e01_ * factor, a.e10_ * factor, a.e11_ * factor);
    }
    friend constexpr gkMatrix operator*(double factor, const gkMatrix& a) { return a * factor; }
    friend constexpr gkMatrix operator/(const gkMatrix& a, double divisor) {
        return gkMatrix(a.e00_ / divisor, a.e01_ / divisor, a.e10_ / divisor, a.e11_ / divisor);
    }
    /// Exact comparison of all four elements.
    friend constexpr bool operator==(const gkMatrix& a, const gkMatrix& b) {
        return a.e00_ == b.e00_ && a.e01_ == b.e01_ && a.e10_ == b.e10_ && a.e11_ == b.e11_;
    }
    friend constexpr bool operator!=(const gkMatrix& a, const gkMatrix& b) { return !(a == b); }

private:
    double e00_ = 0.0;
    double e01_ = 0.0;
    double e10_ = 0.0;
    double e11_ = 0.0;
};

/// True when all four elements are equal within `eps`.
GKCNTR_API bool gfRealEq(const gkMatrix<2>& a, const gkMatrix<2>& b, double eps);

#endif
