#include "platform/core/shapes/point.h"

#include "platform/core/math/vector_ops.h"

double gkPoint::distance(const gkPoint& other) const { return gk_VectorOps::distance(vector_, other.vector_); }
