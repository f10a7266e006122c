#include "platform/core/math/matrix.h"

#include "platform/core/math/real.h"
#include "platform/core/math/trig.h"
#include "platform/core/object/errors.h"

#include <cmath>

gkMatrix<2>::gkMatrix(const gkRadian& xAxis, const gkRadian& yAxis, double scaleX, double scaleY) {
    const gk_Trig::SinCos x = gk_Trig::sinCos(xAxis.toDouble());
    const gk_Trig::SinCos y = gk_Trig::sinCos(yAxis.toDouble());
    *this = gkMatrix(scaleX * x.cos, scaleY * -y.sin, scaleX * x.sin, scaleY * y.cos);
}

double gkMatrix<2>::element(int row, int column) const {
    if (row < 0 || row > 1 || column < 0 || column > 1) throw gkMathError::OutOfRange();
    if (row == 0) return column == 0 ? e00_ : e01_;
    return column == 0 ? e10_ : e11_;
}

double gkMatrix<2>::determinant() const { return e00_ * e11_ - e01_ * e10_; }

gkMatrix<2> gkMatrix<2>::inverse() const {
    const double d = determinant();
    if (d == 0.0 || !std::isfinite(d)) throw gkMathError::Singular();
    return gkMatrix(e11_ / d, -e01_ / d, -e10_ / d, e00_ / d);
}

gkMatrix<2> gkMatrix<2>::operator*(const gkMatrix& other) const {
    return gkMatrix(e00_ * other.e00_ + e01_ * other.e10_, e00_ * other.e01_ + e01_ * other.e11_,
                    e10_ * other.e00_ + e11_ * other.e10_, e10_ * other.e01_ + e11_ * other.e11_);
}

gkVector<2> gkMatrix<2>::operator*(const gkVector<2>& vector) const {
    return gkVector<2>(e00_ * vector.x() + e01_ * vector.y(), e10_ * vector.x() + e11_ * vector.y());
}

bool gfRealEq(const gkMatrix<2>& a, const gkMatrix<2>& b, double eps) {
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 2; ++column) {
            if (!gfRealEq(a.element(row, column), b.element(row, column), eps)) return false;
        }
    }
    return true;
}
