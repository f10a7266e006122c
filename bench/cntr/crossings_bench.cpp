// Crossings of an outline with a segment, with another outline and with itself.
#include "bench/contestants.h"
#include "bench/peers/boost.h"
#include "bench/peers/cgal.h"
#include "bench/peers/geos.h"
#include "bench/suite.h"
#include "tests/oracle/crossings.h"

namespace bench {

namespace {

using SharedSegments = std::shared_ptr<const std::vector<Segment>>;

void crossingsWithSegment(Race& race, const SharedPoints& points, const SharedSegments& segments) {
    race.add("ours", Standing::eOurs, contourMaker(points), [=](const gkContour& c, std::size_t k) {
        return c.intersections(segmentOf((*segments)[k]), true).size();
    });
    race.add("plain", Standing::ePlain, oracleMaker(points), [=](const oracle::Points& c, std::size_t k) {
        return oracle::crossings(c, true, segmentOf((*segments)[k]), true).size();
    });
    race.add("GEOS", Standing::ePeer, maker<GeosOutline>(points),
             [=](const GeosOutline& outline, std::size_t k) { return outline.crossings((*segments)[k]); });
    race.add("GEOS STRtree", Standing::ePeer, maker<GeosOutline>(points), Indexed<GeosSegments>(),
             [=](GeosSegments& tree, std::size_t k) { return tree.crossings((*segments)[k]); });
    race.add("Boost", Standing::ePeer, maker<BoostOutline>(points),
             [=](const BoostOutline& outline, std::size_t k) { return outline.crossings((*segments)[k]); });
    race.add("Boost rtree", Standing::ePeer, maker<BoostOutline>(points), Indexed<BoostSegments>(),
             [=](const BoostSegments& tree, std::size_t k) { return tree.crossings((*segments)[k]); });
    race.add("CGAL AABB tree", Standing::ePeer, maker<CgalOutline>(points), Indexed<CgalSegments>(),
             [=](const CgalSegments& tree, std::size_t k) { return tree.crossings((*segments)[k]); });
}

template <std::vector<Segment> (*Segments)(const Box&, std::size_t)>
void crossingsWith(Race& race, Kind kind, std::size_t n) {
    const SharedPoints points = shared(outline(kind, n));
    const auto segments =
        std::make_shared<const std::vector<Segment>>(Segments(boxOf(*points), race.queries()));
    crossingsWithSegment(race, points, segments);
}

template <class Shape> struct Two { std::unique_ptr<Shape> one, other; };

// Two shapes, each made as `make` makes one.
template <class Make> auto twice(Make make, const SharedPoints& one, const SharedPoints& other) {
    using Shape = std::remove_reference_t<decltype(*make(one)())>;
    return [=] { return std::unique_ptr<Two<Shape>>(new Two<Shape>{make(one)(), make(other)()}); };
}

void crossingsOfTwo(Race& race, Kind, std::size_t n) {
    const std::vector<Points> blobs = overlappingBlobs(n);
    const SharedPoints one = shared(blobs[0]);
    const SharedPoints other = shared(blobs[1]);
    const auto geos = twice(&maker<GeosOutline, SharedPoints>, one, other);
    race.add("ours", Standing::eOurs, twice(&contourMaker, one, other),
             [](const Two<gkContour>& two, std::size_t) { return two.one->intersections(*two.other).size(); });
    race.add("plain", Standing::ePlain, twice(&oracleMaker, one, other),
             [](const Two<oracle::Points>& two, std::size_t) {
                 return oracle::crossingsWithContour(*two.one, true, *two.other, true).size();
             });
    race.add("GEOS", Standing::ePeer, geos,
             [](const Two<GeosOutline>& two, std::size_t) { return two.one->crossings(*two.other); });
    race.add("GEOS STRtree", Standing::ePeer, geos, [](const Two<GeosOutline>& two, std::size_t) {
        return GeosSegments(*two.one).crossings(*two.other);
    });
    race.add("Boost", Standing::ePeer, twice(&maker<BoostOutline, SharedPoints>, one, other),
             [](const Two<BoostOutline>& two, std::size_t) { return two.one->crossings(*two.other); });
    race.add("CGAL box_intersection_d", Standing::ePeer, twice(&maker<CgalOutline, SharedPoints>, one, other),
             [](const Two<CgalOutline>& two, std::size_t) { return two.one->crossings(*two.other); });
}

void crossesItself(Race& race, Kind kind, std::size_t n) {
    const SharedPoints points = shared(outline(kind, n));
    race.add("ours", Standing::eOurs, contourMaker(points),
             [](const gkContour& c, std::size_t) { return c.isSelfIntersecting(); });
    race.add("plain", Standing::ePlain, oracleMaker(points),
             [](const oracle::Points& c, std::size_t) { return oracle::isSelfIntersecting(c, true); });
    race.add("GEOS", Standing::ePeer, maker<GeosOutline>(points),
             [](const GeosOutline& outline, std::size_t) { return outline.crossesItself(); });
    race.add("Boost", Standing::ePeer, areaMaker<BoostArea>(points),
             [](const BoostArea& area, std::size_t) { return area.crossesItself(); });
    race.add("CGAL is_simple", Standing::ePeer, maker<CgalOutline>(points),
             [](const CgalOutline& outline, std::size_t) { return outline.crossesItself(); });
    race.add("CGAL box_self_intersection_d", Standing::ePeer, maker<CgalOutline>(points),
             [](const CgalOutline& outline, std::size_t) { return outline.boxesCross(); });
}

} // namespace

void addCrossingRows(std::vector<Row>& rows) {
    const std::vector<Kind> kinds = {Kind::eStar, Kind::eComb, Kind::eSpiral};
    const std::vector<Mode> both = {Mode::eFresh, Mode::eRepeated};
    rows.push_back({"crossings_short", kinds, {}, both, crossingsWith<shortSegments>});
    rows.push_back({"crossings_long", kinds, {}, both, crossingsWith<longSegments>});
    rows.push_back({"crossings_of_two", {Kind::eStar}, {}, {Mode::eFresh}, crossingsOfTwo});
    rows.push_back({"crosses_itself", kSimpleKinds, {}, {Mode::eFresh}, crossesItself});
}

} // namespace bench
