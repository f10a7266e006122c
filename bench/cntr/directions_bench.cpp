// What the hull decides: itself, the diameter, boxes under transforms, the vertex furthest in a direction.
#include "bench/contestants.h"
#include "bench/peers/boost.h"
#include "bench/peers/calipers.h"
#include "bench/peers/cgal.h"
#include "bench/peers/geos.h"
#include "bench/peers/opencv.h"
#include "bench/suite.h"
#include "tests/oracle/circle.h"
#include "tests/oracle/enclose.h"
#include "tests/oracle/extremal.h"
#include "tests/oracle/hull.h"

namespace bench {

namespace {

auto cvMaker(const SharedPoints& points, Kind kind) {
    const auto numbers = kind == Kind::eLattice ? CvOutline::Numbers::ePixels : CvOutline::Numbers::eFloats;
    return [=] { return std::make_unique<CvOutline>(*points, numbers); };
}

Standing standingOfOpenCv(Kind kind) { return kind == Kind::eLattice ? Standing::ePeer : Standing::eAside; }

// Its number of vertices is what is compared.
void convexHull(Race& race, Kind kind, std::size_t n) {
    const SharedPoints points = shared(outline(kind, n));
    race.add("ours", Standing::eOurs, contourMaker(points), [](const gkContour& c, std::size_t) {
        gkRegion hull;
        c.convexHull(hull);
        return hull.points().size();
    });
    race.add("plain", Standing::ePlain, oracleMaker(points),
             [](const oracle::Points& p, std::size_t) { return oracle::convexHull(p).size(); });
    race.add("GEOS", Standing::ePeer, maker<GeosOutline>(points),
             [](const GeosOutline& a, std::size_t) { return a.hull().size(); });
    race.add("Boost", Standing::ePeer, areaMaker<BoostArea>(points),
             [](const BoostArea& a, std::size_t) { return a.hull().size(); });
    race.add("CGAL Melkman", Standing::ePeer, maker<CgalOutline>(points),
             [](const CgalOutline& a, std::size_t) { return a.hullOfSimple().size(); });
    race.add("CGAL Akl-Toussaint", Standing::ePeer, maker<CgalOutline>(points),
             [](const CgalOutline& a, std::size_t) { return a.hull().size(); });
    race.add("OpenCV", standingOfOpenCv(kind), cvMaker(points, kind),
             [](const CvOutline& a, std::size_t) { return a.hull().size(); });
}

void diameter(Race& race, Kind kind, std::size_t n) {
    const SharedPoints points = shared(outline(kind, n));
    race.add("ours", Standing::eOurs, contourMaker(points),
             [](const gkContour& c, std::size_t) { return c.diameter(gkContourDefs::eExact); });
    race.add("plain", Standing::ePlain, oracleMaker(points), [](const oracle::Points& p, std::size_t) {
        return 2.0 * oracle::circleOverFarthestPair(p).radius();
    });
    race.add("GEOS hull, calipers", Standing::ePeer, maker<GeosOutline>(points),
             [](const GeosOutline& a, std::size_t) { return diameterOfConvex(a.hull()); });
    race.add("Boost hull, calipers", Standing::ePeer, areaMaker<BoostArea>(points),
             [](const BoostArea& a, std::size_t) { return diameterOfConvex(a.hull()); });
    race.add("CGAL Melkman, calipers", Standing::ePeer, maker<CgalOutline>(points),
             [](const CgalOutline& a, std::size_t) { return diameterOfConvex(a.hullOfSimple()); });
    race.add("CGAL furthest neighbors", Standing::ePeer, maker<CgalOutline>(points),
             [](const CgalOutline& a, std::size_t) { return a.diameterOfSimple(); });
    race.add("OpenCV hull, calipers", standingOfOpenCv(kind), cvMaker(points, kind),
             [](const CvOutline& a, std::size_t) { return diameterOfConvex(a.hull()); });
}

gkXform<2> xformOf(const Affine& t) { return gkXform<2>(gkMatrix<2>(t.a, t.b, t.c, t.d), {t.dx, t.dy}); }

double widthOf(const gkRect& rect) { return rect.lr().x() - rect.ul().x(); }

void enclosingBox(Race& race, Kind kind, std::size_t n) {
    const SharedPoints points = shared(outline(kind, n));
    const auto maps = std::make_shared<const std::vector<Affine>>(transforms(race.queries()));
    race.add("ours", Standing::eOurs, contourMaker(points),
             [=](const gkContour& c, std::size_t k) { return widthOf(c.encloseRect(xformOf((*maps)[k]))); });
    race.add("plain", Standing::ePlain, oracleMaker(points), [=](const oracle::Points& p, std::size_t k) {
        return widthOf(oracle::encloseRect(p, xformOf((*maps)[k])));
    });
    race.add("GEOS", Standing::ePeer, areaMaker<GeosArea>(points),
             [=](const GeosArea& a, std::size_t k) { return widthOf(a.boxUnder((*maps)[k])); });
    race.add("Boost", Standing::ePeer, areaMaker<BoostArea>(points),
             [=](const BoostArea& a, std::size_t k) { return widthOf(a.boxUnder((*maps)[k])); });
    race.add("CGAL", Standing::ePeer, maker<CgalOutline>(points),
             [=](const CgalOutline& a, std::size_t k) { return widthOf(a.boxUnder((*maps)[k])); });
    race.add("OpenCV doubles", Standing::ePeer, maker<CvVertices>(points),
             [=](const CvVertices& a, std::size_t k) { return widthOf(a.boxUnder((*maps)[k])); });
}

void extremalVertex(Race& race, Kind kind, std::size_t n) {
    const SharedPoints points = shared(outline(kind, n));
    const auto directions = std::make_shared<const std::vector<double>>(angles(race.queries()));
    race.add("ours", Standing::eOurs, contourMaker(points), [=](const gkContour& c, std::size_t k) {
        return c.extremalVertexIndex(gkRadian((*directions)[k]));
    });
    race.add("plain", Standing::ePlain, oracleMaker(points), [=](const oracle::Points& p, std::size_t k) {
        return oracle::extremalVertexIndex(p, gkRadian((*directions)[k]));
    });
}

} // namespace

void addDirectionRows(std::vector<Row>& rows) {
    const std::vector<Kind> kinds = {Kind::eStar, Kind::eComb, Kind::eLattice};
    const std::vector<Mode> both = {Mode::eFresh, Mode::eRepeated};
    rows.push_back({"convex_hull", kinds, {}, {Mode::eFresh}, convexHull});
    rows.push_back({"diameter", kinds, {}, {Mode::eFresh}, diameter});
    rows.push_back({"enclosing_box", {Kind::eStar}, {}, both, enclosingBox});
    rows.push_back({"extremal_vertex", {Kind::eStar}, {}, both, extremalVertex});
}

} // namespace bench
