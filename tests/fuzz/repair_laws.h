// What the repair of one outline owes, whatever the outline is.
#ifndef GK_TESTS_FUZZ_REPAIR_LAWS_H
#define GK_TESTS_FUZZ_REPAIR_LAWS_H

#include "tests/fuzz/outlines.h"

#include <string>

class gkRegion;
struct Answer;

namespace fuzz {

// The region with this outline, repaired: vertices or error equal the plain definition's, a result is closed
// and, when it is a repaired one, without holes and label, and asking again gives the same.
void demandRepair(const Points& points, bool outerHull);

// The same answer, told with both when it is not.
void demandEqual(const Answer& plain, const Answer& ours, const std::string& what);

} // namespace fuzz

#endif
