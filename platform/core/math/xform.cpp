#include "platform/core/math/xform.h"

#include "platform/core/math/xform_ops.h"

gkVector<2> gkXform<2>::operator*(const gkVector<2>& point) const { return gk_XformOps(*this).image(point); }

gkXform<2> gkXform<2>::operator*(const gkXform& first) const {
    return gkXform(matrix_ * first.matrix_, *this * first.translation_);
}

gkXform<2> gkXform<2>::inverse() const {
    const gkMatrix<2> inverse = matrix_.inverse();
    return gkXform(inverse, -(inverse * translation_));
}

bool gfRealEq(const gkXform<2>& a, const gkXform<2>& b, double eps) {
    return gfRealEq(a.matrix(), b.matrix(), eps) && gfRealEq(a.translation(), b.translation(), eps);
}
