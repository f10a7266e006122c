// An operation's answer in the form of the cases: {"num": 3.0}, {"pts": [[0, 0], ...]}, {"throws": [class,
// message]}.
#ifndef GK_TESTS_REFERENCE_ANSWER_H
#define GK_TESTS_REFERENCE_ANSWER_H

#include "cntr/moments.h"
#include "platform/core/math/xform.h"
#include "platform/core/shapes/circle.h"
#include "platform/core/shapes/ellipse.h"
#include "platform/core/shapes/line_seg.h"
#include "platform/core/shapes/rect.h"

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace answer {

using Json = nlohmann::json;

// Reads "nan", "inf" and "-inf" as well as numbers.
double number(const Json& value);
gkVector<2> vector(const Json& value);
std::vector<gkVector<2>> points(const Json& value);
gkMatrix<2> matrix(const Json& value);
gkXform<2> xform(const Json& value);
gkLineSeg segment(const Json& value);
gk_InertiaData inertia(const Json& value);

Json nothing();
Json of(double value);
Json of(long value);
Json of(int value);
Json of(bool value);
Json of(const gkVector<2>& value);
Json of(const std::vector<gkVector<2>>& value);
Json of(const std::vector<int>& value);
Json of(const std::vector<bool>& value);
Json of(const gkRect& value);
Json of(const gkCircle& value);
Json of(const gkMatrix<2>& value);
Json of(const gk_InertiaData& value);
Json of(const gkEllipse& value);
Json of(const std::vector<gkLineSeg>& value);

// Empty when the answers agree within `tolerance` per number (0: exactly), else what differs. `asSet`: order
// and start of a list of points are free.
std::string difference(const Json& wanted, const Json& given, double tolerance, bool asSet);

} // namespace answer

#endif
