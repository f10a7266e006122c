// What became of an outline or a set that was repaired.
#ifndef GK_TESTS_SUPPORT_REPAIR_OUTCOME_H
#define GK_TESTS_SUPPORT_REPAIR_OUTCOME_H

#include "platform/core/math/vector.h"

#include <vector>

using Outline = std::vector<gkVector<2>>;

// Whether the point lies outside every outline by the even-odd rule and farther than `margin` from all of them.
bool isOutside(const std::vector<Outline>& outlines, const gkVector<2>& point, double margin);

// Whether a vertex of the outlines given lies outside the repaired ones: a part was lost.
bool losesAPart(const std::vector<Outline>& given, const std::vector<Outline>& repaired);

#endif
