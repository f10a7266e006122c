// The private steps of a repair, which no public call reaches with every input.
#ifndef GK_TESTS_SUPPORT_REPAIR_ACCESS_H
#define GK_TESTS_SUPPORT_REPAIR_ACCESS_H

#include "cntr/region.h"

// gkRegion::splice, whatever the two regions are.
void splice(const gkRegion& one, const gkRegion& other, gkRegion& result);

// The repair itself, without asking first whether the outline crosses itself.
void repairAnyway(const gkRegion& region, bool outerHull, gkRegion& result);

#endif
