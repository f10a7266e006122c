// The kept segments: one entry per segment, a placeholder where the two ends are equal within 1e-15.
#ifndef GK_TESTS_ORACLE_SEGMENT_LIST_H
#define GK_TESTS_ORACLE_SEGMENT_LIST_H

#include "tests/oracle/oracle.h"

namespace oracle {

inline bool isValidLine(const gkLineSeg& seg) { return !gfRealEq(seg.p2(), seg.p1(), 1e-15); }

inline std::vector<bool> validLine(const Points& points, bool closed) {
    std::vector<bool> flags;
    for (const gkLineSeg& seg : segments(points, closed)) flags.push_back(isValidLine(seg));
    return flags;
}

inline std::vector<gkLineSeg> lineSegs(const Points& points, bool closed) {
    std::vector<gkLineSeg> list;
    for (const gkLineSeg& seg : segments(points, closed)) list.push_back(isValidLine(seg) ? seg : gkLineSeg());
    return list;
}

} // namespace oracle

#endif
