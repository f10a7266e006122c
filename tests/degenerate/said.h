// Answers as docs/degenerate.md writes them.
#ifndef GK_TESTS_DEGENERATE_SAID_H
#define GK_TESTS_DEGENERATE_SAID_H

#include "platform/core/math/matrix.h"
#include "platform/core/shapes/circle.h"
#include "platform/core/shapes/ellipse.h"
#include "platform/core/shapes/rect.h"
#include "tests/degenerate/kinds.h"

#include <type_traits>

// Nine decimals at most, no zeros behind.
std::string said(double value);
std::string said(bool value);
template <class Integer, class = std::enable_if_t<std::is_integral_v<Integer>>>
std::string said(Integer value) {
    return std::to_string(value);
}
std::string said(const std::vector<int>& values);
std::string said(const gkMatrix<2>& matrix);

// Places are said from the kind's origin on, which is called D where it is not (0, 0).
std::string said(const gkVector<2>& place, const Kind& kind);
std::string said(const Points& places, const Kind& kind);
std::string said(const gkCircle& circle, const Kind& kind);
std::string said(const gkRect& rect, const Kind& kind);
std::string said(const gkEllipse& ellipse, const Kind& kind);
// "none" for an empty list.
std::string saidLast(const Points& places, const Kind& kind);

#endif
