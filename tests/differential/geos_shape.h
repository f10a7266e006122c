// An outline as GEOS knows it, and what GEOS says about it.
#ifndef GK_TESTS_DIFFERENTIAL_GEOS_SHAPE_H
#define GK_TESTS_DIFFERENTIAL_GEOS_SHAPE_H

#include "platform/core/math/vector.h"

#include <memory>
#include <vector>

struct GEOSContextHandle_HS;
struct GEOSGeom_t;

class GeosShape {
public:
    using Points = std::vector<gkVector<2>>;

    // A line string; a closed one repeats its first vertex.
    static GeosShape lines(const Points& points, bool closed);
    // A polygon without holes, valid or not.
    static GeosShape polygon(const Points& points);

    double length() const;
    double area() const;
    gkVector<2> centroid() const;
    // Of the line string or the polygon's area, from a point.
    double distance(const gkVector<2>& p) const;
    gkVector<2> closestPoint(const gkVector<2>& p) const;
    // Vertices of the convex hull, without the repeated last one; two or one for degenerate shapes.
    Points hull() const;
    // No outline segment crosses or touches another but at shared ends.
    bool isSimple() const;

private:
    using Geometry = std::shared_ptr<GEOSGeom_t>;

    explicit GeosShape(Geometry geometry) : geometry_(std::move(geometry)) {}

    Geometry geometry_;
};

#endif
