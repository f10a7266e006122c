// Outlines with vertices enough for an index, which their numbers or their place forbid or make useless: every
// question is asked until an index would be there. Oracle: the definitions in tests/oracle.
#include "cntr/region.h"
#include "tests/gen/random.h"
#include "tests/oracle/circle.h"
#include "tests/oracle/closest.h"
#include "tests/oracle/crossings.h"
#include "tests/oracle/enclose.h"
#include "tests/oracle/extremal.h"
#include "tests/oracle/inside_count.h"
#include "tests/support/answer.h"
#include "tests/support/outlines.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

constexpr int kTimes = 15; // the latest index comes with the twelfth question
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

Points moved(Points points, double scale, const gkVector<2>& by) {
    for (gkVector<2>& p : points) p = p * scale + by;
    return points;
}

// About the outline's first vertices, some of them on it.
Points placesAbout(const Points& points) {
    Points places = {{0.5, 0.5}, {kNaN, 1.0}, {1.0, -kInfinity}, {3e140, 1.0}};
    for (std::size_t i = 0; i + 1 < 12; ++i) {
        places.push_back(points[i]);
        places.push_back((points[i] + points[i + 1]) / 2.0);
        places.push_back((points[i] + points[i + points.size() / 2]) / 2.0);
    }
    return places;
}

void expectInside(const Points& points, const Points& places) {
    const gkRegion region(points);
    for (int time = 0; time < kTimes; ++time) {
        for (const gkVector<2>& p : places)
            ASSERT_EQ(answer([&] { return oracle::inside(points, p); }),
                      answer([&] { return region.inside(p, false); }))
                << p << " asked " << time;
    }
}

void expectNearest(const Points& points, const Points& places) {
    for (const bool closed : {false, true}) {
        const gkContour contour(points, closed, 0);
        for (const gkVector<2>& p : places) {
            ASSERT_EQ(answer([&] { return oracle::closestVertexIndex(points, p); }),
                      answer([&] { return contour.closestVertexIndex(p); }))
                << p;
            ASSERT_EQ(answer([&] { return oracle::closestPoint(points, closed, p, false); }),
                      answer([&] { return contour.closestPoint(p, false); }))
                << p;
        }
    }
}

void expectExtremes(const Points& points) {
    const gkContour contour(points, true, 0);
    gkXform<2> xform(gkMatrix<2>(2, 1, -1, 3), gkVector<2>(5, 7));
    for (int time = 0; time < kTimes; ++time) {
        const gkRadian angle(0.5 * time);
        ASSERT_EQ(answer([&] { return oracle::extremalVertexPosition(points, angle); }),
                  answer([&] { return contour.extremalVertexPosition(angle); }))
            << time;
        xform = gkXform<2>(xform.matrix(), xform.translation() + gkVector<2>(1, 0));
        ASSERT_EQ(answer([&] { return oracle::encloseRect(points, xform); }),
                  answer([&] { return contour.encloseRect(xform); }))
            << time;
    }
    ASSERT_EQ(answer([&] { return oracle::circleOverFarthestPair(points); }),
              answer([&] { return contour.encloseCircle(gkContourDefs::eExact); }));
}

void expectCrossings(const Points& points) {
    const gkContour contour(points, true, 0);
    const gkContour other(moved(points, 1.0, {0.25, 0.125}), true, 0);
    for (std::size_t i = 0; i < kTimes; ++i) {
        const gkLineSeg across(points[i], points[i + points.size() / 2]);
        ASSERT_EQ(answer([&] {
                      Points places;
                      for (const oracle::Crossing& c : oracle::crossings(points, true, across, true))
                          places.push_back(c.point);
                      return places;
                  }),
                  answer([&] { return contour.intersections(across, true); }))
            << i;
    }
    ASSERT_EQ(answer([&] { return oracle::crossingsWithContour(points, true, other.points(), true); }),
              answer([&] { return contour.intersections(other); }));
    ASSERT_EQ(answer([&] { return oracle::isSelfIntersecting(points, true); }),
              answer([&] { return contour.isSelfIntersecting(); }));
}

void expectDefinitions(const Points& points) {
    const Points places = placesAbout(points);
    expectInside(points, places);
    expectNearest(points, places);
    expectExtremes(points);
    expectCrossings(points);
}

Points withVertex(Points points, std::size_t i, const gkVector<2>& vertex) {
    points[i] = vertex;
    return points;
}

// Twelve vertices each towards four corners about the middle, which comes first: D, the length of a ray, is as
// long as the outline is wide, so one from a corner of the box may end within it.
Points fourCornersAbout(const gkVector<2>& middle, double reach) {
    const gkVector<2> corners[] = {{1, 0}, {0, 1}, {-1, 0}, {0, -1}};
    Points points = {middle};
    for (int corner = 0; corner < 4; ++corner) {
        const gkVector<2> here = corners[corner];
        const gkVector<2> next = corners[(corner + 1) % 4];
        for (int i = 0; i < 12; ++i) points.push_back(middle + (here + (next - here) * (0.001 * i)) * reach);
    }
    return points;
}

} // namespace

TEST(LargeOutline, WithAVertexThatIsNoNumber) {
    for (const gkVector<2>& bad : {gkVector<2>(kNaN, 1), gkVector<2>(1, kNaN), gkVector<2>(kNaN, kNaN)}) {
        expectDefinitions(withVertex(starOutline(60, 10.0), 30, bad));
        expectDefinitions(withVertex(starOutline(600, 10.0), 0, bad));
    }
    expectDefinitions(Points(600, {kNaN, kNaN}));
}

TEST(LargeOutline, WithAVertexFarBeyondAnyIndex) {
    for (const gkVector<2>& far :
         {gkVector<2>(1e145, 1), gkVector<2>(1, -kInfinity), gkVector<2>(1e300, 1e300)}) {
        expectDefinitions(withVertex(starOutline(60, 10.0), 30, far));
        expectDefinitions(withVertex(starOutline(600, 10.0), 30, far));
    }
}

TEST(LargeOutline, OfHugeNumbersOrFarAway) {
    for (const double scale : {9e139, 3e139, 1e145, 1e10})
        expectDefinitions(moved(starOutline(60, 1.0), scale, {0, 0}));
    expectDefinitions(moved(starOutline(60, 1.0), 1e138, {5e140, 0}));
    expectDefinitions(moved(starOutline(60, 1.0), 1e10, {1e10, 1e10}));
}

TEST(LargeOutline, OfEqualVertices) { expectDefinitions(Points(600, {3, 4})); }

TEST(LargeOutline, FlatOnes) {
    Points across;
    Points upright;
    for (int i = 0; i < 60; ++i) {
        across.emplace_back(i, 1e-9 * (i % 2));
        upright.emplace_back(1e-9 * (i % 2), i);
    }
    expectDefinitions(across);
    expectDefinitions(upright);
}

// By hand, with reach 50: from (-49, -49) the first wide gap is the one between the corner at the right, 26
// degrees, and the middle, 45; a ray of 100 ends 34 from the middle and within D / 2. From (-49, 49) it leads
// away.
TEST(LargeOutline, WhereRaysMayEndWithinIt) {
    const Points points = fourCornersAbout({0, 0}, 50.0);
    Points places = {{-49, -49}, {-49, 49}, {49, 49}, {49, -49}};
    places.insert(places.end(), points.begin(), points.end());
    gen::Random random(5);
    for (int i = 0; i < 200; ++i) places.emplace_back(random.between(-50, 50), random.between(-50, 50));
    expectInside(points, places);
}

// The tree takes no segment as short as this, the cells do.
TEST(LargeOutline, WhereRaysMayEndWithinItAndASegmentIsTooShort) {
    Points points = fourCornersAbout({0, 0}, 50.0);
    points.insert(points.begin() + 1, {1e-150, 0});
    Points places = {{-49, -49}, {-49, 49}, {49, 49}, {49, -49}};
    places.insert(places.end(), points.begin(), points.end());
    expectInside(points, places);
}

// Runs of the other outline that begin with no number have no box to be left out by.
TEST(LargeOutline, CrossesAnotherThatIsNoNumberInPart) {
    const Points points = starOutline(60, 10.0);
    const gkContour contour(points, true, 0);
    for (const std::size_t begin : {std::size_t{16}, std::size_t{20}, std::size_t{32}}) {
        Points other = moved(points, 1.0, {0.25, 0.125});
        for (std::size_t i = begin; i < begin + 12; ++i) other[i] = {kNaN, kNaN};
        for (int time = 0; time < kTimes; ++time)
            ASSERT_EQ(answer([&] { return oracle::crossingsWithContour(points, true, other, true); }),
                      answer([&] { return contour.intersections(gkContour(other, true, 0)); }))
                << begin;
    }
}

// More segments in one cell than are worth looking at.
TEST(LargeOutline, WithMostSegmentsInOnePlace) {
    Points points = {{100, 0}, {100, 100}, {0, 100}};
    for (int i = 0; i < 3000; ++i) points.emplace_back(0.2 * (i % 2), 0.5 - 0.5 * i / 3000.0);
    expectInside(points, {{0.3, 0.3}, {0.1, 0.25}, {0.4, 0.1}, {50, 50}, {0.01, 0.5}});
}
