#include "platform/core/math/vector.h"

#include "platform/core/math/real.h"
#include "platform/core/math/trig.h"
#include "platform/core/math/vector_ops.h"

gkVector<2>::gkVector(double length, const gkRadian& direction) {
    const gk_Trig::SinCos unit = gk_Trig::sinCos(direction.toDouble());
    x_ = length * unit.cos;
    y_ = length * unit.sin;
}

double gkVector<2>::length() const { return gk_VectorOps::length(*this); }

double gkVector<2>::distance(const gkVector& other) const { return gk_VectorOps::distance(*this, other); }

gkRadian gkVector<2>::angle() const { return gkRadian(gk_Trig::atan2(y_, x_)); }

double gkVector<2>::cross(const gkVector& other) const { return gk_VectorOps::cross(*this, other); }

gkVector<2> gkVector<2>::unit() const { return *this / length(); }

double gkVector<2>::operator*(const gkVector& other) const { return gk_VectorOps::dot(*this, other); }

bool gfRealEq(const gkVector<2>& a, const gkVector<2>& b, double eps) {
    return gfRealEq(a.x(), b.x(), eps) && gfRealEq(a.y(), b.y(), eps);
}
