#include "platform/core/transform/rigid.h"

gkVector<2> gk2Rigid::mapPoint(const gkVector<2>& point) const { return xform() * point; }

gk2Rigid gk2Rigid::inverse() const {
    const gkMatrix<2> back(-angle_, -angle_, 1.0, 1.0);
    return gk2Rigid(-angle_, -(back * translation_));
}

gk2Rigid gk2Rigid::operator*(const gk2Rigid& first) const {
    return gk2Rigid(first.angle_ + angle_, mapPoint(first.translation_));
}

gkXform<2> gk2Rigid::xform() const { return gkXform<2>(gkMatrix<2>(angle_, angle_, 1.0, 1.0), translation_); }
