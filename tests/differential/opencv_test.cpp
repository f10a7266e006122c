// Lengths, areas, hulls and distances beside those of OpenCV.
//
// Known differences, none of them an error of either:
// - OpenCV computes with float vertices. Shapes are rounded to float first, so that both are given the same
// numbers;
//   what OpenCV then adds up in float is good for seven digits, and the distance has them too.
// - Its area is taken in float products for float vertices: seven digits of the sum of their sizes.
// - Its hull may keep collinear vertices or lose nearly collinear ones, and starts where it likes: the areas of
// both
//   hulls and the containment of all vertices are compared, not the lists.
// - pointPolygonTest knows closed outlines only and is signed; its size is compared. Squares of distances
//   beyond 1e18 have no place in a float: nearer points are compared.
#include "cntr/moments.h"
#include "cntr/region.h"
#include "tests/differential/compare.h"
#include "tests/gen/probes.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wshadow"
#include <opencv2/imgproc.hpp>
#pragma GCC diagnostic pop

namespace {

constexpr double kFloat = 0x1p-24;

// Through memory: GCC 12 drops a conversion to float and back where it vectorizes.
double rounded(double value) {
    const volatile float narrow = static_cast<float>(value);
    return static_cast<double>(narrow);
}

gkVector<2> rounded(const gkVector<2>& p) { return gkVector<2>(rounded(p.x()), rounded(p.y())); }

Points rounded(Points points) {
    for (gkVector<2>& p : points) p = rounded(p);
    return points;
}

cv::Point2f asFloat(const gkVector<2>& p) {
    return cv::Point2f(static_cast<float>(p.x()), static_cast<float>(p.y()));
}

std::vector<cv::Point2f> asFloat(const Points& points) {
    std::vector<cv::Point2f> list;
    for (const gkVector<2>& p : points) list.push_back(asFloat(p));
    return list;
}

Points asPoints(const std::vector<cv::Point2f>& list) {
    Points points;
    for (const cv::Point2f& p : list) points.emplace_back(static_cast<double>(p.x), static_cast<double>(p.y));
    return points;
}

} // namespace

TEST(BesideOpenCv, LengthIsEqualToSevenDigits) {
    eachOrdinaryShape(60, 2, [](const Points& shape, std::uint64_t) {
        const Points points = rounded(shape);
        for (const bool closed : {false, true}) {
            const double expected = cv::arcLength(asFloat(points), closed);
            EXPECT_NEAR(expected, gkContour(points, closed, 0).length(),
                        8.0 * kFloat * sizeOf(points) * static_cast<double>(points.size()));
        }
    });
}

TEST(BesideOpenCv, AreaIsEqualToSevenDigits) {
    eachOrdinaryShape(60, 3, [](const Points& shape, std::uint64_t) {
        const Points points = rounded(shape);
        const double size = sizeOf(points);
        EXPECT_NEAR(cv::contourArea(asFloat(points)), gf_Area(points),
                    8.0 * kFloat * size * size * static_cast<double>(points.size()));
    });
}

TEST(BesideOpenCv, HullHasTheSameArea) {
    eachOrdinaryShape(60, 3, [](const Points& shape, std::uint64_t) {
        const Points points = rounded(shape);
        std::vector<cv::Point2f> expected;
        cv::convexHull(asFloat(points), expected);
        gkRegion hull;
        gkContour(points, true, 0).convexHull(hull);
        const double size = sizeOf(points);
        EXPECT_NEAR(gf_Area(asPoints(expected)), gf_Area(hull.points()),
                    8.0 * kFloat * size * size * static_cast<double>(points.size()));
        for (const gkVector<2>& p : asPoints(expected)) {
            EXPECT_NE(points.end(), std::find(points.begin(), points.end(), p)) << p;
        }
    });
}

TEST(BesideOpenCv, DistanceIsEqualToSevenDigits) {
    eachOrdinaryShape(20, 3, [](const Points& shape, std::uint64_t seed) {
        const Points points = rounded(shape);
        const gkContour contour(points, true, 0);
        const std::vector<cv::Point2f> outline = asFloat(points);
        for (const gkVector<2>& probe : gen::probes(points, seed)) {
            const gkVector<2> p = rounded(probe);
            const double scale = sizeOf(points) + sizeOf({p});
            if (scale > 1e15) continue;
            ASSERT_NEAR(std::fabs(cv::pointPolygonTest(outline, asFloat(p), true)),
                        contour.distToPoint(p, false), 8.0 * kFloat * scale)
                << p;
        }
    });
}

TEST(BesideOpenCv, BoxIsEqual) {
    eachOrdinaryShape(60, 2, [](const Points& shape, std::uint64_t) {
        const Points points = rounded(shape);
        const gkRect box = gkContour(points, true, 0).encloseRect(gkXform<2>());
        // OpenCV's box of float points is the one of whole numbers around them, one wider on the far side.
        const cv::Rect around = cv::boundingRect(asFloat(points));
        EXPECT_EQ(std::floor(box.ul().x()), around.x);
        EXPECT_EQ(std::floor(box.ul().y()), around.y);
        EXPECT_EQ(std::floor(box.lr().x()) - std::floor(box.ul().x()) + 1.0, around.width);
        EXPECT_EQ(std::floor(box.lr().y()) - std::floor(box.ul().y()) + 1.0, around.height);
    });
}
