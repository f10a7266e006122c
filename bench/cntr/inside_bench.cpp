// Whether a point lies inside an outline, and inside one with holes.
#include "bench/contestants.h"
#include "bench/peers/boost.h"
#include "bench/peers/cgal.h"
#include "bench/peers/clipper.h"
#include "bench/peers/geos.h"
#include "bench/peers/opencv.h"
#include "bench/suite.h"
#include "tests/oracle/region.h"

namespace bench {

namespace {

std::unique_ptr<oracle::Region> oracleRegion(const Polygon& polygon) {
    auto region = std::make_unique<oracle::Region>();
    region->outline = vectorsOf(polygon.outline);
    for (const Points& hole : polygon.holes) region->holes.push_back({vectorsOf(hole), {}});
    return region;
}

// Those that know holes.
void inside(Race& race, const SharedPolygon& polygon, const SharedPoints& probes) {
    const auto geosProbes = std::make_shared<GeosPoints>(*probes);
    race.add("ours", Standing::eOurs, regionMaker(polygon),
             [=](const gkRegion& r, std::size_t k) { return r.inside(vectorOf((*probes)[k]), true); });
    race.add(
        "plain", Standing::ePlain, [=] { return oracleRegion(*polygon); },
        [=](const oracle::Region& r, std::size_t k) {
            return oracle::inside(r, vectorOf((*probes)[k]), true);
        });
    race.add("GEOS", Standing::ePeer, maker<GeosArea>(polygon),
             [=](const GeosArea& area, std::size_t k) { return area.inside((*probes)[k]); });
    race.add("GEOS IndexedPointInArea", Standing::ePeer, maker<GeosArea>(polygon), Indexed<GeosLocator>(),
             [=](GeosLocator& locator, std::size_t k) { return locator.inside((*probes)[k]); });
    race.add("GEOS prepared", Standing::ePeer, maker<GeosArea>(polygon), Indexed<GeosPreparedArea>(),
             [=](const GeosPreparedArea& area, std::size_t k) { return area.inside(*geosProbes, k); });
    race.add("Boost", Standing::ePeer, maker<BoostArea>(polygon),
             [=](const BoostArea& area, std::size_t k) { return area.inside((*probes)[k]); });
}

void insideOutline(Race& race, Kind kind, std::size_t n) {
    const SharedPoints points = shared(outline(kind, n));
    const SharedPoints probes = shared(queryPoints(boxOf(*points), race.queries()));
    const auto numbers = kind == Kind::eLattice ? CvOutline::Numbers::ePixels : CvOutline::Numbers::eFloats;
    inside(race, shared(Polygon{*points, {}}), probes);
    race.add("CGAL", Standing::ePeer, maker<CgalOutline>(points),
             [=](const CgalOutline& outline, std::size_t k) { return outline.inside((*probes)[k]); });
    race.add(
        "clipper", Standing::ePeer,
        [=] { return std::make_unique<ClipperPaths>(std::vector<Points>{*points}); },
        [=](const ClipperPaths& paths, std::size_t k) { return paths.inside((*probes)[k]); });
    race.add(
        "OpenCV", Standing::eAside, [=] { return std::make_unique<CvOutline>(*points, numbers); },
        [=](const CvOutline& outline, std::size_t k) { return outline.inside((*probes)[k]); });
}

void insideWithHoles(Race& race, Kind, std::size_t n) {
    const SharedPolygon polygon = shared(starWithHoles(n));
    inside(race, polygon, shared(queryPoints(boxOf(polygon->outline), race.queries())));
}

} // namespace

void addInsideRows(std::vector<Row>& rows) {
    const std::vector<Mode> both = {Mode::eFresh, Mode::eRepeated};
    rows.push_back({"inside", kSimpleKinds, {}, both, insideOutline});
    rows.push_back({"inside_with_holes", {Kind::eStar}, {}, both, insideWithHoles});
}

} // namespace bench
