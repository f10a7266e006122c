// Sums over the outline: area, length, mean position, centre of mass, second moments; and the ellipse fit.
#include "bench/contestants.h"
#include "bench/peers/boost.h"
#include "bench/peers/cgal.h"
#include "bench/peers/clipper.h"
#include "bench/peers/geos.h"
#include "bench/peers/opencv.h"
#include "bench/suite.h"
#include "tests/oracle/area.h"
#include "tests/oracle/inertia.h"
#include "tests/oracle/length.h"

namespace bench {

namespace {

// Whole numbers are taken as such, and then OpenCV sums in doubles without any loss.
CvOutline::Numbers numbersOf(Kind kind) {
    return kind == Kind::eLattice ? CvOutline::Numbers::ePixels : CvOutline::Numbers::eFloats;
}

Standing standingOfOpenCv(Kind kind) { return kind == Kind::eLattice ? Standing::ePeer : Standing::eAside; }

template <class Ask> void addOpenCv(Race& race, Kind kind, const SharedPoints& points, Ask ask) {
    race.add(
        "OpenCV", standingOfOpenCv(kind), [=] { return std::make_unique<CvOutline>(*points, numbersOf(kind)); },
        [=](const CvOutline& outline, std::size_t) { return ask(outline); });
}

void area(Race& race, Kind kind, std::size_t n) {
    const SharedPoints points = shared(outline(kind, n));
    race.add("ours", Standing::eOurs, regionMaker(points),
             [](const gkRegion& r, std::size_t) { return r.area(false); });
    race.add("plain", Standing::ePlain, oracleMaker(points),
             [](const oracle::Points& p, std::size_t) { return oracle::area(p); });
    race.add("GEOS", Standing::ePeer, areaMaker<GeosArea>(points),
             [](const GeosArea& a, std::size_t) { return a.area(); });
    race.add("Boost", Standing::ePeer, areaMaker<BoostArea>(points),
             [](const BoostArea& a, std::size_t) { return a.area(); });
    race.add("CGAL", Standing::ePeer, maker<CgalOutline>(points),
             [](const CgalOutline& a, std::size_t) { return a.area(); });
    race.add(
        "clipper", Standing::eAside,
        [=] { return std::make_unique<ClipperPaths>(std::vector<Points>{*points}); },
        [](const ClipperPaths& a, std::size_t) { return a.area(); });
    addOpenCv(race, kind, points, [](const CvOutline& a) { return a.area(); });
}

void length(Race& race, Kind kind, std::size_t n) {
    const SharedPoints points = shared(outline(kind, n));
    race.add("ours", Standing::eOurs, contourMaker(points),
             [](const gkContour& c, std::size_t) { return c.length(); });
    race.add("plain", Standing::ePlain, oracleMaker(points),
             [](const oracle::Points& p, std::size_t) { return oracle::length(p, true); });
    race.add("GEOS", Standing::ePeer, maker<GeosOutline>(points),
             [](const GeosOutline& a, std::size_t) { return a.length(); });
    race.add("Boost", Standing::ePeer, maker<BoostOutline>(points),
             [](const BoostOutline& a, std::size_t) { return a.length(); });
    race.add(
        "OpenCV", Standing::eAside, [=] { return std::make_unique<CvOutline>(*points, numbersOf(kind)); },
        [](const CvOutline& outline, std::size_t) { return outline.length(); });
}

void meanPosition(Race& race, Kind kind, std::size_t n) {
    const SharedPoints points = shared(outline(kind, n));
    race.add("ours", Standing::eOurs, contourMaker(points),
             [](const gkContour& c, std::size_t) { return c.meanPosition().x(); });
    race.add("plain", Standing::ePlain, oracleMaker(points),
             [](const oracle::Points& p, std::size_t) { return oracle::meanPosition(p, true).x(); });
    race.add("GEOS", Standing::ePeer, maker<GeosOutline>(points),
             [](const GeosOutline& a, std::size_t) { return a.meanPosition().x; });
    race.add("Boost", Standing::ePeer, maker<BoostOutline>(points),
             [](const BoostOutline& a, std::size_t) { return a.meanPosition().x; });
}

void centreOfMass(Race& race, Kind kind, std::size_t n) {
    const SharedPoints points = shared(outline(kind, n));
    race.add("ours", Standing::eOurs, regionMaker(points),
             [](const gkRegion& r, std::size_t) { return r.centerOfMass(false).x(); });
    race.add("plain", Standing::ePlain, oracleMaker(points),
             [](const oracle::Points& p, std::size_t) { return oracle::centroid(p).x(); });
    race.add("GEOS", Standing::ePeer, areaMaker<GeosArea>(points),
             [](const GeosArea& a, std::size_t) { return a.centroid().x; });
    race.add("Boost", Standing::ePeer, areaMaker<BoostArea>(points),
             [](const BoostArea& a, std::size_t) { return a.centroid().x; });
    addOpenCv(race, kind, points, [](const CvOutline& a) { return a.centreOfMass().x; });
}

void secondMoments(Race& race, Kind kind, std::size_t n) {
    const SharedPoints points = shared(outline(kind, n));
    race.tolerance(1e-6); // both take differences of far greater sums
    race.add("ours", Standing::eOurs, regionMaker(points),
             [](const gkRegion& r, std::size_t) { return r.inertiaMatrix(false).element(0, 0); });
    race.add("plain", Standing::ePlain, oracleMaker(points),
             [](const oracle::Points& p, std::size_t) { return oracle::polygonInertia(p).xx; });
    addOpenCv(race, kind, points, [](const CvOutline& a) { return a.secondMoments().xx; });
}

// OpenCV fits by another criterion, in singles; there is no other peer.
void ellipseFit(Race& race, Kind kind, std::size_t n) {
    const SharedPoints points = shared(outline(kind, n));
    race.tolerance(1e-3);
    race.add("ours", Standing::eOurs, contourMaker(points), [](const gkContour& c, std::size_t) {
        gkEllipse ellipse;
        double error = 0.0;
        c.fitEllipse(ellipse, error);
        const gkVector<2> radii = ellipse.radii();
        return radii.x() > radii.y() ? radii.x() : radii.y();
    });
    race.add(
        "OpenCV", Standing::eAside, [=] { return std::make_unique<CvOutline>(*points, numbersOf(kind)); },
        [](const CvOutline& outline, std::size_t) { return outline.fittedRadius(); });
}

} // namespace

void addMeasureRows(std::vector<Row>& rows) {
    const std::vector<Kind> kinds = {Kind::eStar, Kind::eLattice};
    rows.push_back({"area", kinds, {}, {Mode::eFresh}, area});
    rows.push_back({"length", kinds, {}, {Mode::eFresh}, length});
    rows.push_back({"mean_position", {Kind::eStar}, {}, {Mode::eFresh}, meanPosition});
    rows.push_back({"centre_of_mass", kinds, {}, {Mode::eFresh}, centreOfMass});
    rows.push_back({"second_moments", kinds, {}, {Mode::eFresh}, secondMoments});
    rows.push_back({"ellipse_fit", {Kind::eStar}, {}, {Mode::eFresh}, ellipseFit});
}

} // namespace bench
