// Sorts out points that lie inside their convex hull, run by run.
#ifndef GK_PLATFORM_CORE_SHAPES_HULL_SIEVE_H
#define GK_PLATFORM_CORE_SHAPES_HULL_SIEVE_H

#include "platform/core/math/vector.h"
#include "platform/core/shapes/hull_edge.h"

#include <cstddef>
#include <vector>

// Boxes over runs of consecutive points: the neighbours of an outline's vertices are near them, so most runs
// are inside the hull as a whole. Refers to the points.
//
// A polygon grows in the hull as in Quickhull (Eddy, 1977), first over runs and then over single points.
class gk_HullSieve {
public:
    using Points = std::vector<gkVector<2>>;
    using Indices = std::vector<std::size_t>;
    // Indices, by and large counter-clockwise around the hull, some twice.
    struct OuterPoints {
        Indices lower; // from the least point, by x and then y, to the greatest
        Indices upper; // and back
    };
    struct OuterRuns {
        Indices runs;            // some twice
        Points corners;          // points far out
        bool areTelling = false; // not where the boxes are too large for the runs to be near the hull
    };

    static constexpr std::size_t kRun = 8; // points

    explicit gk_HullSieve(const Points& points);

    // False when a coordinate is NaN or infinite. Then, and without points, nothing else may be called but
    // box().
    bool areFinite() const { return areFinite_; }
    const gk_HullBox& box() const { return box_; }
    const gk_HullBox& boxOf(std::size_t run) const { return runs_[run]; }

    // All points but those certainly deeper inside the hull than `slack`, and some more. With no slack at least
    // all vertices of the hull and the points equal to them.
    OuterPoints outerPoints(double slack) const;
    // The runs that hold the same.
    OuterRuns outerRuns(double slack) const;

private:
    const Points& points_;
    std::vector<gk_HullBox> runs_;
    gk_HullBox box_;
    bool areFinite_;
};

#endif
