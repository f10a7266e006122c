// What every oracle shares: the vertex list, the refusal of a question, and the walk over an outline's
// segments.
//
// An oracle is the definition of an answer, written so that it can be checked by eye. It uses the value types
// of the platform and their primitives, never the shapes' own sources; what is faster must give the same bits.
#ifndef GK_TESTS_ORACLE_ORACLE_H
#define GK_TESTS_ORACLE_ORACLE_H

#include "platform/core/shapes/line_seg.h"

#include <cstddef>
#include <string>
#include <vector>

namespace oracle {

using Points = std::vector<gkVector<2>>;

// Thrown where the definition has no answer; `name` is that of the error the library throws.
struct Refusal {
    std::string name;
};

inline void needsTwo(const Points& points) {
    if (points.size() < 2) throw Refusal{"EmptyContour"};
}

// The segments in their order: the closing one first when the outline is closed, else from vertex 0 on.
inline std::vector<gkLineSeg> segments(const Points& points, bool closed) {
    std::vector<gkLineSeg> list;
    if (closed && !points.empty()) list.emplace_back(points.back(), points.front());
    for (std::size_t i = 1; i < points.size(); ++i) list.emplace_back(points[i - 1], points[i]);
    return list;
}

} // namespace oracle

#endif
