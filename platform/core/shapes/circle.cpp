#include "platform/core/shapes/circle.h"

namespace {

constexpr double kPi = 3.141592653589793;

} // namespace

double gkCircle::area() const { return kPi * radius_ * radius_; }

double gkCircle::circumference() const { return 2.0 * kPi * radius_; }

bool gkCircle::within(const gkPoint& point) const { return center_.distance(point) <= radius_; }
