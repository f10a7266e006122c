#include "platform/core/shapes/polygon.h"

#include "platform/core/object/errors.h"

const gkVector<2>& gkPolygon::operator[](std::size_t index) const {
    if (index >= vertices_.size()) throw gkMathError::OutOfRange();
    return vertices_[index];
}
