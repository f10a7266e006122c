#include "examples/demo/scale.h"

#include "platform/core/transform/xform_linear.h"

#include <algorithm>
#include <cmath>

gkXform<2> Scale::toPixels() const {
    return gkXform<2>(gkMatrix<2>(1.0 / size_, 0.0, 0.0, 1.0 / size_), gkVector<2>());
}

gkPtrHandle_const<gk2XformBase> Scale::sharedToPixels() const {
    return gkPtrHandle_const<gk2XformBase>(new gk2XformLinear(toPixels()));
}

int Scale::digits() const { return std::max(0, static_cast<int>(std::ceil(2.0 - std::log10(size_)))); }
