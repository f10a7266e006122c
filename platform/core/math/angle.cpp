#include "platform/core/math/angle.h"

#include <cmath>

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kTwoPi = 6.283185307179586;

// fmod is exact, so only the correction of a negative remainder rounds; it must not round up to the full turn.
double reduced(double value, double turn) {
    double rest = std::fmod(value, turn);
    if (rest < 0.0) rest += turn;
    if (rest >= turn) return std::nextafter(turn, 0.0);
    return rest == 0.0 ? 0.0 : rest;
}

// The signed remainder is exact and the comparison with the half is too; adding 0.5 before rounding down would
// lift the greatest double below a half.
unsigned char nearestStep(double value, double turn) {
    const double steps = std::fmod(value, turn) / turn * 256.0;
    if (std::isnan(steps)) return 0;
    const double below = std::floor(steps);
    const double nearest = steps - below >= 0.5 ? below + 1.0 : below;
    return static_cast<unsigned char>(static_cast<int>(nearest) & 255);
}

} // namespace

gkRadian::gkRadian(const gkDegree& angle) : value_(angle.toDouble() * kPi / 180.0) {}

gkRadian::gkRadian(const gkAngle8& angle) : value_(angle.toByte() * kTwoPi / 256.0) {}

gkRadian gkRadian::norm() const { return gkRadian(reduced(value_, kTwoPi)); }

gkDegree::gkDegree(const gkRadian& angle) : value_(angle.toDouble() * 180.0 / kPi) {}

gkDegree::gkDegree(const gkAngle8& angle) : value_(angle.toByte() * 360.0 / 256.0) {}

gkDegree gkDegree::norm() const { return gkDegree(reduced(value_, 360.0)); }

gkAngle8::gkAngle8(const gkRadian& angle) : value_(nearestStep(angle.toDouble(), kTwoPi)) {}

gkAngle8::gkAngle8(const gkDegree& angle) : value_(nearestStep(angle.toDouble(), 360.0)) {}
