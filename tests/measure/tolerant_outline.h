// The queries and the walk of a repair with the tolerance of parallel lines as a number one can choose.
#ifndef GK_TESTS_MEASURE_TOLERANT_OUTLINE_H
#define GK_TESTS_MEASURE_TOLERANT_OUTLINE_H

#include "cntr/crossings.h"
#include "cntr/segment_cache.h"

#include <optional>
#include <vector>

// Lines are parallel when |det| <= sine |a| |b| + rounding (|a| B + |b| A), with the directions a, b, their
// cross product det, and the size of each line's coordinates A, B.
struct ParallelTest {
    double sine;
    double rounding;
};

class TolerantOutline {
public:
    using Points = std::vector<gkVector<2>>;

    TolerantOutline(const Points& points, const ParallelTest& parallel);

    std::vector<gk_Crossing> crossings(const gkLineSeg& seg, bool includeEnds) const;
    // The crossings with all edges of another outline, ends included.
    Points crossings(const Points& other) const;
    bool isSelfIntersecting() const;
    // The walked boundary; nothing when no edge starts it or when it does not come back.
    std::optional<Points> repaired() const;

private:
    bool isParallel(const gkLine& a, const gkLine& b) const;
    long insideCount(const gkVector<2>& point) const;
    double probe() const;
    bool canStart(std::size_t i, double probe) const;
    std::optional<Points> walked(std::size_t start) const;

    Points points_;
    gk_SegmentCache edges_;
    gkRect box_;
    double ray_;
    ParallelTest parallel_;
};

#endif
