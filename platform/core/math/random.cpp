#include "platform/core/math/random.h"

#include <cmath>
#include <limits>

namespace {

std::uint64_t mixed(std::uint64_t z) {
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9U;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebU;
    return z ^ (z >> 31);
}

} // namespace

gkRandomUniform::gkRandomUniform(unsigned long seed) : state_(seed & 0xffffffffUL) {}

double gkRandomUniform::next() {
    state_ += 0x9e3779b97f4a7c15U;
    return static_cast<double>(mixed(state_) >> 11) * 0x1p-53;
}

double gkRandomUniform::next(double a, double b) {
    const double fraction = next();
    if (a == b) return a;
    if (!std::isfinite(a) || !std::isfinite(b)) return std::numeric_limits<double>::quiet_NaN();
    const double width = b - a;
    // Only ends of opposite sign and of the greatest exponents overflow, and those are halved exactly.
    const double value =
        std::isfinite(width) ? a + width * fraction : 2.0 * (0.5 * a + (0.5 * b - 0.5 * a) * fraction);
    const bool reached = a < b ? value >= b : value <= b;
    return reached ? std::nextafter(b, a) : value;
}
