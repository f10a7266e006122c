#include "interop/print.h"
#include "tests/interop/texts.h"

#include <iomanip>
#include <locale>
#include <sstream>

namespace {

template <class Value> std::string printed(const Value& value) {
    std::ostringstream out;
    out << value;
    return out.str();
}

// Decimal commas and digits in groups of two.
class Commas : public std::numpunct<char> {
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\2"; }
};

const gkEdgelet kEdgelet({1.5, 2}, 7, gkAngle8(64));

} // namespace

TEST(Print, PlacesAreCoordinatesInParentheses) {
    EXPECT_EQ("(0.5, -2)", printed(gkVector<2>(0.5, -2)));
    EXPECT_EQ("(0.5, -2)", printed(gkPoint(0.5, -2)));
    EXPECT_EQ("(0.5, -2)", printed(gkPair<double>(0.5, -2)));
    EXPECT_EQ("(3, -2)", printed(gkPair<long>(3, -2)));
    EXPECT_EQ("(nan, -inf)", printed(gkVector<2>(kNan, -kInfinity)));
    EXPECT_EQ("(-0, 0)", printed(gkVector<2>(-0.0, 0)));
}

TEST(Print, AListOfVerticesIsNoRegion) {
    EXPECT_EQ("(0, 0), (1, 2)", printed(Points{{0, 0}, {1, 2}}));
    EXPECT_EQ("no vertices", printed(Points()));
}

TEST(Print, AnglesTellTheirUnit) {
    EXPECT_EQ("1.5 rad", printed(gkRadian(1.5)));
    EXPECT_EQ("90 deg", printed(gkDegree(90)));
    EXPECT_EQ("64/256 turn", printed(gkAngle8(64)));
}

TEST(Print, MatricesAndTransformsAreRowByRow) {
    EXPECT_EQ("[1 2; 3 4]", printed(gkMatrix<2>(1, 2, 3, 4)));
    EXPECT_EQ("[1 2; 3 4] + (5, 6)", printed(gkXform<2>(gkMatrix<2>(1, 2, 3, 4), {5, 6})));
    EXPECT_EQ("[1 0; 0 1] + (0, 0)", printed(gk2XformLinear()));
    EXPECT_EQ("turn 0.5 rad, move (1, 2)", printed(gk2Rigid(gkRadian(0.5), {1, 2})));
}

TEST(Print, FiguresTellWhatTheyAre) {
    EXPECT_EQ("line through (1, 2) along (3, 4)", printed(gkLine({1, 2}, {3, 4})));
    EXPECT_EQ("segment (1, 2) to (3, 4)", printed(gkLineSeg({1, 2}, {3, 4})));
    EXPECT_EQ("rect (1, 0) to (3, 2)", printed(gkRect::fromCorners({3, 0}, {1, 2})));
    EXPECT_EQ("circle about (1, 2), radius 3", printed(gkCircle({1, 2}, 3)));
    gkEllipse::gkEllipseGeom geom({1, 2}, {4, 3}, gkRadian(0.5));
    EXPECT_EQ("ellipse about (1, 2), radii (4, 3), rotation 0.5 rad", printed(gkEllipse(geom)));
    geom.isReversed = geom.isHole = true;
    EXPECT_EQ("ellipse about (1, 2), radii (4, 3), rotation 0.5 rad, reversed, hole", printed(gkEllipse(geom)));
    EXPECT_EQ("polygon, even-odd: no vertices", printed(gkPolygon()));
    EXPECT_EQ("polygon, non-zero: (1, 2)", printed(gkPolygon({{1, 2}}, gkPolygon::eNonZero)));
}

TEST(Print, TheOtherValues) {
    EXPECT_EQ("edge point (1.5, 2), magnitude 7, angle 64/256 turn", printed(kEdgelet));
    EXPECT_EQ("#ffa500, opacity 255", printed(gkColor::orange()));
    EXPECT_EQ("area 4, centre of mass (1, 2), moments [5 6; 6 7]",
              printed(gk_InertiaData(4, {1, 2}, gkMatrix<2>(5, 6, 6, 7))));
}

TEST(Print, ContoursTellLabelAndVertices) {
    EXPECT_EQ("closed contour, label 0: no vertices", printed(gkContour()));
    EXPECT_EQ("open contour, label 7: (0, 0), (4, 3)", printed(gkContour({{0, 0}, {4, 3}}, false, 7)));
}

TEST(Print, RegionsTellTheirHoles) {
    EXPECT_EQ("region, label 0: (0, 0), (9, 0), (9, 9), (0, 9); hole, label 0: (1, 1), (2, 1), (2, 2), (1, 2)",
              printed(regionWithHoles(square(0, 0, 9), {square(1, 1, 1)})));
}

TEST(Print, OfAHolesHolesTheNumberOnly) {
    const Shared hole(new gkRegion(regionWithHoles(square(1, 1, 5), {square(2, 2, 1)})));
    gkRegion region(square(0, 0, 9));
    region.holes({hole});
    EXPECT_EQ("region, label 0: (0, 0), (9, 0), (9, 9), (0, 9); "
              "hole, label 0, with holes of its own, 1: (1, 1), (6, 1), (6, 6), (1, 6)",
              printed(region));
}

TEST(Print, ARegionThatIsItsOwnHoleEnds) {
    const gkPtrHandle<gkRegion> ring(new gkRegion(Points()));
    const gkPtrHandle<gkRegion> hole(new gkRegion(Points()));
    ring->points({{0, 0}, {9, 0}, {9, 9}});
    hole->points({{5, 1}, {6, 1}, {6, 2}});
    ring->holes({Shared(hole)});
    hole->holes({Shared(ring)});
    EXPECT_EQ("region, label 0: (0, 0), (9, 0), (9, 9); "
              "hole, label 0, with holes of its own, 1: (5, 1), (6, 1), (6, 2)",
              printed(*ring));
    hole->holes({}); // else the two would hold each other for ever
}

TEST(Print, SetsTellTheirRegions) {
    EXPECT_EQ("set of regions, 0: ", printed(gkRegionSet()));
    EXPECT_EQ("set of regions, 2: [region, label 0: (1, 2)], [null]",
              printed(gkRegionSet({Shared(new gkRegion(Points{{1, 2}})), Shared()})));
}

TEST(Print, EdgeletShapesTellTheirDataAsWell) {
    const std::string data = "; data: [edge point (1.5, 2), magnitude 7, angle 64/256 turn]";
    EXPECT_EQ("closed contour, label 0: (1.5, 2)" + data, printed(gkContourT<gkEdgelet>({kEdgelet})));
    const gkPtrHandle<gkRegionT<gkEdgelet>> region(
        new gkRegionT<gkEdgelet>(std::vector<gkEdgelet>{kEdgelet}, 3));
    EXPECT_EQ("region, label 3: (1.5, 2)" + data, printed(*region));
    EXPECT_EQ("set of regions, 1: [region, label 3: (1.5, 2)" + data + "]",
              printed(gkRegionSetT<gkEdgelet>(std::vector<gkPtrHandle<gkRegionT<gkEdgelet>>>{region})));
    gkRegionT<gkEdgelet> around;
    around.holes({region, gkPtrHandle_const<gkRegionT<gkEdgelet>>()});
    EXPECT_EQ("region, label 0: no vertices; data: ; edgelet hole, label 3: (1.5, 2); null edgelet hole",
              printed(around));
}

TEST(Print, ForgetsFlagsPrecisionFillAndLocaleOfTheStream) {
    std::ostringstream out;
    out.imbue(std::locale(std::locale::classic(), new Commas));
    out << std::hex << std::showpos << std::fixed << std::setprecision(1) << std::setfill('*');
    out << gkVector<2>(12345.678, 100) << gkPair<long>(12345, 10) << gkAngle8(200);
    EXPECT_EQ("(12345.678, 100)(12345, 10)200/256 turn", out.str());
}

TEST(Print, SetsTheWidthBackAndKeepsTheOtherFlags) {
    std::ostringstream out;
    out << std::setw(40) << std::setprecision(2) << gkVector<2>(1, 2);
    EXPECT_EQ("(1, 2)", out.str());
    EXPECT_EQ(0, out.width());
    EXPECT_EQ(2, out.precision());
}
