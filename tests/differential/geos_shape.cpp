#include "tests/differential/geos_shape.h"

#include <geos_c.h>

#include <stdexcept>

namespace {

using Points = GeosShape::Points;

struct Context {
    GEOSContextHandle_t handle = GEOS_init_r();
    ~Context() { GEOS_finish_r(handle); }
};

GEOSContextHandle_t context() {
    static const Context one;
    return one.handle;
}

std::shared_ptr<GEOSGeom_t> owned(GEOSGeometry* geometry) {
    if (geometry == nullptr) throw std::runtime_error("GEOS refused");
    return std::shared_ptr<GEOSGeom_t>(geometry, [](GEOSGeometry* g) { GEOSGeom_destroy_r(context(), g); });
}

void require(int answer) {
    if (answer == 0) throw std::runtime_error("GEOS refused");
}

GEOSCoordSequence* sequence(const Points& points, bool repeatFirst) {
    const auto count = static_cast<unsigned>(points.size());
    GEOSCoordSequence* list = GEOSCoordSeq_create_r(context(), count + (repeatFirst ? 1 : 0), 2);
    for (unsigned i = 0; i < count; ++i) GEOSCoordSeq_setXY_r(context(), list, i, points[i].x(), points[i].y());
    if (repeatFirst) GEOSCoordSeq_setXY_r(context(), list, count, points[0].x(), points[0].y());
    return list;
}

gkVector<2> at(const GEOSCoordSequence* list, unsigned i) {
    double x = 0.0;
    double y = 0.0;
    require(GEOSCoordSeq_getXY_r(context(), list, i, &x, &y));
    return gkVector<2>(x, y);
}

std::shared_ptr<GEOSGeom_t> point(const gkVector<2>& p) {
    return owned(GEOSGeom_createPointFromXY_r(context(), p.x(), p.y()));
}

} // namespace

GeosShape GeosShape::lines(const Points& points, bool closed) {
    return GeosShape(owned(GEOSGeom_createLineString_r(context(), sequence(points, closed))));
}

GeosShape GeosShape::polygon(const Points& points) {
    GEOSGeometry* ring = GEOSGeom_createLinearRing_r(context(), sequence(points, true));
    return GeosShape(owned(GEOSGeom_createPolygon_r(context(), ring, nullptr, 0)));
}

double GeosShape::length() const {
    double length = 0.0;
    require(GEOSLength_r(context(), geometry_.get(), &length));
    return length;
}

double GeosShape::area() const {
    double area = 0.0;
    require(GEOSArea_r(context(), geometry_.get(), &area));
    return area;
}

gkVector<2> GeosShape::centroid() const {
    const auto center = owned(GEOSGetCentroid_r(context(), geometry_.get()));
    return at(GEOSGeom_getCoordSeq_r(context(), center.get()), 0);
}

double GeosShape::distance(const gkVector<2>& p) const {
    double distance = 0.0;
    require(GEOSDistance_r(context(), geometry_.get(), point(p).get(), &distance));
    return distance;
}

gkVector<2> GeosShape::closestPoint(const gkVector<2>& p) const {
    GEOSCoordSequence* pair = GEOSNearestPoints_r(context(), geometry_.get(), point(p).get());
    if (pair == nullptr) throw std::runtime_error("GEOS refused");
    const gkVector<2> nearest = at(pair, 0);
    GEOSCoordSeq_destroy_r(context(), pair);
    return nearest;
}

Points GeosShape::hull() const {
    const auto hull = owned(GEOSConvexHull_r(context(), geometry_.get()));
    const bool area = GEOSGeomTypeId_r(context(), hull.get()) == GEOS_POLYGON;
    const GEOSGeometry* border = area ? GEOSGetExteriorRing_r(context(), hull.get()) : hull.get();
    const GEOSCoordSequence* list = GEOSGeom_getCoordSeq_r(context(), border);
    unsigned count = 0;
    require(GEOSCoordSeq_getSize_r(context(), list, &count));
    Points points;
    for (unsigned i = 0; i + (area ? 1 : 0) < count; ++i) points.push_back(at(list, i));
    return points;
}

bool GeosShape::isSimple() const { return GEOSisSimple_r(context(), geometry_.get()) == 1; }
