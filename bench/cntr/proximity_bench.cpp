// The nearest point of an outline, its distance, the nearest vertex, and the vertices within a tolerance.
#include "bench/contestants.h"
#include "bench/peers/boost.h"
#include "bench/peers/cgal.h"
#include "bench/peers/geos.h"
#include "bench/peers/opencv.h"
#include "bench/suite.h"
#include "tests/oracle/closest.h"
#include "tests/oracle/vertex_cells.h"

namespace bench {

namespace {

constexpr double kTolerance = 2.0; // in pixels, as are the outlines

// What is compared of a point; points that are equally near agree.
double distanceTo(const gkVector<2>& found, const Point& p) { return found.distance(vectorOf(p)); }

// The peers, who find a distance on the way to the point or instead of it.
void addDistancePeers(Race& race, const SharedPoints& points, const SharedPoints& probes) {
    const auto geosProbes = std::make_shared<GeosPoints>(*probes);
    race.add("GEOS", Standing::ePeer, maker<GeosOutline>(points),
             [=](const GeosOutline& outline, std::size_t k) { return outline.distance(*geosProbes, k); });
    race.add("GEOS IndexedFacetDistance", Standing::ePeer, maker<GeosOutline>(points), Indexed<GeosFacets>(),
             [=](const GeosFacets& facets, std::size_t k) { return facets.distance(*geosProbes, k); });
    race.add("Boost", Standing::ePeer, maker<BoostOutline>(points),
             [=](const BoostOutline& outline, std::size_t k) { return outline.distance((*probes)[k]); });
    race.add("Boost rtree", Standing::ePeer, maker<BoostOutline>(points), Indexed<BoostSegments>(),
             [=](const BoostSegments& tree, std::size_t k) { return tree.distance((*probes)[k]); });
    race.add("CGAL AABB tree", Standing::ePeer, maker<CgalOutline>(points), Indexed<CgalSegments>(),
             [=](const CgalSegments& tree, std::size_t k) { return tree.distance((*probes)[k]); });
    race.add(
        "OpenCV", Standing::eAside,
        [=] { return std::make_unique<CvOutline>(*points, CvOutline::Numbers::eFloats); },
        [=](const CvOutline& outline, std::size_t k) { return outline.distance((*probes)[k]); });
}

void closestPoint(Race& race, Kind kind, std::size_t n) {
    const SharedPoints points = shared(outline(kind, n));
    const SharedPoints probes = shared(queryPoints(boxOf(*points), race.queries()));
    race.add("ours", Standing::eOurs, contourMaker(points), [=](const gkContour& c, std::size_t k) {
        return distanceTo(c.closestPoint(vectorOf((*probes)[k]), false), (*probes)[k]);
    });
    race.add("plain", Standing::ePlain, oracleMaker(points), [=](const oracle::Points& c, std::size_t k) {
        return distanceTo(oracle::closestPoint(c, true, vectorOf((*probes)[k]), false), (*probes)[k]);
    });
    addDistancePeers(race, points, probes);
}

void distance(Race& race, Kind kind, std::size_t n) {
    const SharedPoints points = shared(outline(kind, n));
    const SharedPoints probes = shared(queryPoints(boxOf(*points), race.queries()));
    race.add("ours", Standing::eOurs, contourMaker(points),
             [=](const gkContour& c, std::size_t k) { return c.distToPoint(vectorOf((*probes)[k]), false); });
    race.add("plain", Standing::ePlain, oracleMaker(points), [=](const oracle::Points& c, std::size_t k) {
        return oracle::distToPoint(c, true, vectorOf((*probes)[k]), false);
    });
    addDistancePeers(race, points, probes);
}

void closestVertex(Race& race, Kind kind, std::size_t n) {
    const SharedPoints points = shared(outline(kind, n));
    const SharedPoints probes = shared(queryPoints(boxOf(*points), race.queries()));
    const auto toVertex = [=](std::size_t index, std::size_t k) {
        return distanceTo(vectorOf((*points)[index]), (*probes)[k]);
    };
    race.add("ours", Standing::eOurs, contourMaker(points), [=](const gkContour& c, std::size_t k) {
        return toVertex(static_cast<std::size_t>(c.closestVertexIndex(vectorOf((*probes)[k]))), k);
    });
    race.add("plain", Standing::ePlain, oracleMaker(points), [=](const oracle::Points& c, std::size_t k) {
        return toVertex(static_cast<std::size_t>(oracle::closestVertexIndex(c, vectorOf((*probes)[k]))), k);
    });
    race.add(
        "Boost rtree", Standing::ePeer, [=] { return std::make_unique<Points>(*points); },
        Indexed<BoostVertices>(),
        [=](const BoostVertices& tree, std::size_t k) { return toVertex(tree.closest((*probes)[k]), k); });
    race.add("CGAL kd-tree", Standing::ePeer, maker<CgalOutline>(points), Indexed<CgalVertices>(),
             [=](const CgalVertices& tree, std::size_t k) { return tree.closestDistance((*probes)[k]); });
}

void verticesWithin(Race& race, Kind kind, std::size_t n) {
    const SharedPoints points = shared(outline(kind, n));
    const SharedPoints probes = shared(pointsNear(*points, race.queries()));
    race.add("ours", Standing::eOurs, contourMaker(points), [=](const gkContour& c, std::size_t k) {
        return c.vertexIndex(vectorOf((*probes)[k]), kTolerance).size();
    });
    race.add("plain", Standing::ePlain, oracleMaker(points), [=](const oracle::Points& c, std::size_t k) {
        return oracle::vertexIndex(c, vectorOf((*probes)[k]), kTolerance).size();
    });
    race.add(
        "Boost rtree", Standing::ePeer, [=] { return std::make_unique<Points>(*points); },
        Indexed<BoostVertices>(),
        [=](const BoostVertices& tree, std::size_t k) { return tree.countWithin((*probes)[k], kTolerance); });
    race.add(
        "CGAL kd-tree", Standing::ePeer, maker<CgalOutline>(points), Indexed<CgalVertices>(),
        [=](const CgalVertices& tree, std::size_t k) { return tree.countWithin((*probes)[k], kTolerance); });
}

} // namespace

void addProximityRows(std::vector<Row>& rows) {
    const std::vector<Mode> both = {Mode::eFresh, Mode::eRepeated};
    const std::vector<Kind> two = {Kind::eStar, Kind::eComb};
    rows.push_back({"closest_point", kSimpleKinds, {}, both, closestPoint});
    rows.push_back({"distance", two, {}, both, distance});
    rows.push_back({"closest_vertex", {Kind::eStar, Kind::eComb, Kind::eSpiral}, {}, both, closestVertex});
    rows.push_back({"vertices_within", two, {}, both, verticesWithin});
}

} // namespace bench
