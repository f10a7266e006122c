/// \file
/// The linear transform of the plane: a matrix and a translation.
#ifndef GK_PLATFORM_CORE_MATH_XFORM_H
#define GK_PLATFORM_CORE_MATH_XFORM_H

#include "platform/core/math/matrix.h"
#include "platform/core/math/vector.h"
#include "platform/export.h"

template <int N> class gkXform;

/// Maps a point p to matrix * p + translation.
template <> class GKCNTR_API gkXform<2> {
public:
    /// The identity.
    constexpr gkXform() = default;
    constexpr gkXform(const gkMatrix<2>& matrix, const gkVector<2>& translation)
        : matrix_(matrix), translation_(translation) {}

    constexpr const gkMatrix<2>& matrix() const { return matrix_; }
    constexpr const gkVector<2>& translation() const { return translation_; }

    /// The image of a point.
    gkVector<2> operator*(const gkVector<2>& point) const;
    /// The transform that applies `first`, then this one.
    gkXform operator*(const gkXform& first) const;
    /// The inverse; gkMathError::Singular when the matrix has none.
    gkXform inverse() const;

    /// Exact comparison of all six numbers.
    friend constexpr bool operator==(const gkXform& a, const gkXform& b) {
        return a.matrix_ == b.matrix_ && a.translation_ == b.translation_;
    }
    friend constexpr bool operator!=(const gkXform& a, const gkXform& b) { return !(a == b); }

private:
    gkMatrix<2> matrix_ = gkMatrix<2>::identity();
    gkVector<2> translation_;
};

/// True when all six numbers are equal within `eps`.
GKCNTR_API bool gfRealEq(const gkXform<2>& a, const gkXform<2>& b, double eps);

#endif
