// Regions written as short strings, behind handles as well, and a region whose protected side tests can reach.
#ifndef GK_TESTS_SUPPORT_REGIONS_H
#define GK_TESTS_SUPPORT_REGIONS_H

#include "cntr/region.h"
#include "tests/support/shapes.h"

#include <string>
#include <vector>

using Shared = gkPtrHandle<gkRegion>;
using Holes = std::vector<gkPtrHandle_const<gkRegion>>;

// A region that shows its protected operations and counts the calls of its hooks.
class OpenedRegion : public gkRegion {
public:
    explicit OpenedRegion(const Points& vertices = Points(),
                          gkContourDefs::IntersectionMode mode = gkContourDefs::eKeepIntersections)
        : gkContour(vertices, true, 0), gkRegion(vertices, mode) {}
    OpenedRegion(const OpenedRegion& other)
        : gkPersistent(other), gkRepBase(other), gkContour(Points(), true, 0), gkRegion(other) {}
    OpenedRegion& operator=(const OpenedRegion& other) {
        gkRegion::operator=(other);
        return *this;
    }

    using gkRegion::checkEmptyContour;
    using gkRegion::intersections;
    using gkRegion::serialize_;

    int cleaned = 0;
    int dataRebuilt = 0;

protected:
    void cleanCacheInfo() override {
        ++cleaned;
        gkRegion::cleanCacheInfo();
    }
    void makeDataConsistentWithPoints() override {
        ++dataRebuilt;
        gkRegion::makeDataConsistentWithPoints();
    }
};

inline OpenedRegion region(const std::string& text) { return OpenedRegion(points(text)); }

inline Shared shared(const std::string& text) { return Shared(new gkRegion(points(text))); }

// The square of this lower corner and side, counter-clockwise from that corner, a vertex at every corner.
inline Points square(double x, double y, double side) {
    return {{x, y}, {x + side, y}, {x + side, y + side}, {x, y + side}};
}

inline Shared sharedSquare(double x, double y, double side) { return Shared(new gkRegion(square(x, y, side))); }

// Two triangles that meet in (2, 2), where the outline crosses itself.
inline const char* const kBowtie = "0 0, 4 4, 4 0, 0 4";
// The same traced twice: every edge lies on another, so none can start the walk of a repair.
inline const char* const kBowtieTwice = "0 0, 4 4, 4 0, 0 4, 0 0, 4 4, 4 0, 0 4";

// True when the answer had to be computed: filling a slot marks the object changed.
template <class Shape, class Ask> bool computes(const Shape& shape, Ask ask) {
    shape.clearChanged();
    ask(shape);
    return shape.isChanged();
}

#endif
