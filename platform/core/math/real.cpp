#include "platform/core/math/real.h"

#include <cmath>
#include <cstdint>

bool gfRealEq(double a, double b, double eps) { return a == b || std::fabs(a - b) <= eps; }

long gfIFloor(double value) {
    if (std::isnan(value)) return 0;
    if (value >= 2147483647.0) return INT32_MAX;
    if (value <= -2147483648.0) return INT32_MIN;
    return static_cast<long>(std::floor(value));
}
