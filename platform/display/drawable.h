// Which calls a surface draws at all. Inline, since the Cairo surface is a library of its own.
#ifndef GK_PLATFORM_DISPLAY_DRAWABLE_H
#define GK_PLATFORM_DISPLAY_DRAWABLE_H

#include "platform/core/math/pair.h"

#include <cmath>

namespace gk_Drawable {

inline bool isFinite(double value) { return std::isfinite(value); }
inline bool isFinite(const gkPair<double>& p) { return isFinite(p.x()) && isFinite(p.y()); }

inline bool isPositive(double value) { return isFinite(value) && value > 0; }
inline bool isPositive(const gkPair<double>& p) { return isPositive(p.x()) && isPositive(p.y()); }

} // namespace gk_Drawable

#endif
