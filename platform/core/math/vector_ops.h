// The inline bodies of the vector operations that multiply and add, for the library's own loops.
//
// Not for users: their compiler could contract the two roundings into one. The exported members call these.
#ifndef GK_PLATFORM_CORE_MATH_VECTOR_OPS_H
#define GK_PLATFORM_CORE_MATH_VECTOR_OPS_H

#include "platform/core/math/vector.h"

#include <cmath>

namespace gk_VectorOps {

inline double dot(const gkVector<2>& a, const gkVector<2>& b) { return a.x() * b.x() + a.y() * b.y(); }
inline double cross(const gkVector<2>& a, const gkVector<2>& b) { return a.x() * b.y() - a.y() * b.x(); }
inline double length(const gkVector<2>& a) { return std::sqrt(dot(a, a)); }
inline double distance(const gkVector<2>& a, const gkVector<2>& b) { return length(b - a); }

} // namespace gk_VectorOps

#endif
