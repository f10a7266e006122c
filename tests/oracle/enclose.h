// The box of an outline's vertices under a transform.
#ifndef GK_TESTS_ORACLE_ENCLOSE_H
#define GK_TESTS_ORACLE_ENCLOSE_H

#include "platform/core/math/xform.h"
#include "platform/core/shapes/rect.h"
#include "tests/oracle/oracle.h"

namespace oracle {

inline gkRect pointBox(const gkVector<2>& p) { return gkRect(p, gkVector<2>(0.0, 0.0)); }

inline gkRect encloseRect(const Points& points, const gkXform<2>& xform) {
    needsTwo(points);
    const bool asTheyAre = gfRealEq(xform, gkXform<2>(), 1e-15);
    Points mapped;
    for (const gkVector<2>& p : points) mapped.push_back(asTheyAre ? p : xform * p);
    gkRect rect = pointBox(mapped[0]);
    for (std::size_t i = 1; i < mapped.size(); ++i) rect = rect.enclose(pointBox(mapped[i]));
    return rect;
}

} // namespace oracle

#endif
