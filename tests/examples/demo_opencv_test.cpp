// tests/examples/demo_opencv_test.cpp - measures of the outlines the demo finds. Oracle: OpenCV's own measures.
#include "tests/examples/demo_run.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <opencv2/imgcodecs.hpp>
#include <opencv2/imgproc.hpp>

namespace {

const double kDouble = std::ldexp(1.0, -53); // one rounding, of a number between 1/2 and 1
const double kFloat = std::ldexp(1.0, -24);

// OpenCV measures float outlines. Rounding is done by OpenCV, whose compiler cannot leave it away, and back, so
// that both measure the very same vertices.
struct Outline {
    std::vector<cv::Point2f> floats;
    gkRegion region;
    double size = 0.0; // the greatest coordinate
    double roundings =
        0.0; // sum of roundings of as many additions of products of coordinates as there are vertices
};

Outline roundedOutline(const gkRegion& region) {
    cv::Mat exact(static_cast<int>(region.points().size()), 2, CV_64F);
    for (int i = 0; i < exact.rows; ++i) {
        exact.at<double>(i, 0) = region.points()[static_cast<std::size_t>(i)].x();
        exact.at<double>(i, 1) = region.points()[static_cast<std::size_t>(i)].y();
    }
    cv::Mat rounded, back;
    exact.convertTo(rounded, CV_32F);
    rounded.convertTo(back, CV_64F);
    Outline outline;
    std::vector<gkVector<2>> vertices;
    for (int i = 0; i < rounded.rows; ++i) {
        outline.floats.emplace_back(rounded.at<float>(i, 0), rounded.at<float>(i, 1));
        vertices.emplace_back(back.at<double>(i, 0), back.at<double>(i, 1));
        outline.size = std::max({outline.size, back.at<double>(i, 0), back.at<double>(i, 1)});
    }
    outline.region.points(vertices);
    outline.roundings = 4.0 * rounded.rows * kDouble;
    return outline;
}

// Discs, a ring, and shapes of several discs that are neither round nor convex.
std::vector<Outline> outlines() {
    const Folder folder;
    cv::imwrite(folder.file("shapes.png").string(), pictureOf({{50, 50, 30},
                                                               {130, 45, 25},
                                                               {155, 60, 18},
                                                               {60, 140, 35},
                                                               {60, 140, 15, kGround},
                                                               {150, 130, 20},
                                                               {175, 150, 20},
                                                               {150, 170, 20},
                                                               {220.5, 60.25, 22}},
                                                              260, 210, false));
    runDemo(folder, {folder.file("shapes.png").string(), "--archive", folder.file("shapes.gka").string()});
    const Archived archived = loadArchive(folder.file("shapes.gka"));
    std::vector<Outline> all;
    for (const gkPtrHandle_const<gkRegion>& region : archived.regions.regions()) {
        all.push_back(roundedOutline(*region));
        for (const gkPtrHandle_const<gkRegion>& hole : region->holes()) all.push_back(roundedOutline(*hole));
    }
    return all;
}

class DemoAndOpenCV : public testing::Test {
protected:
    static void SetUpTestSuite() { outlines_ = outlines(); }
    static void TearDownTestSuite() { outlines_.clear(); }

    void SetUp() override { ASSERT_EQ(6U, outlines_.size()); }

    // The difference may be as large as `bound`; the worst share of it goes into the report.
    void expectNear(double theirs, double ours, double bound) {
        EXPECT_NEAR(theirs, ours, bound);
        worst_ = std::max(worst_, std::fabs(theirs - ours));
        RecordProperty("worst difference", testing::PrintToString(worst_));
    }

    static std::vector<Outline> outlines_;

private:
    double worst_ = 0.0;
};

std::vector<Outline> DemoAndOpenCV::outlines_;

} // namespace

// Twice the area is a sum of n differences of products, each at most the size squared.
TEST_F(DemoAndOpenCV, AgreeOnTheArea) {
    for (const Outline& outline : outlines_)
        expectNear(cv::contourArea(outline.floats), outline.region.area(false),
                   outline.roundings * outline.size * outline.size);
}

// Theirs takes each side in floats: two differences, two squares, a sum and a root.
TEST_F(DemoAndOpenCV, AgreeOnTheLength) {
    for (const Outline& outline : outlines_) {
        const double length = outline.region.length();
        expectNear(cv::arcLength(outline.floats, true), length, 4.0 * kFloat * length);
    }
}

// First moments are sums of products of three coordinates, and the centre has them divided by the area.
TEST_F(DemoAndOpenCV, AgreeOnTheCentreOfMass) {
    for (const Outline& outline : outlines_) {
        const cv::Moments moments = cv::moments(outline.floats);
        const gkVector<2> centre = outline.region.centerOfMass(false);
        const double bound = outline.roundings * std::pow(outline.size, 3) / moments.m00;
        expectNear(moments.m10 / moments.m00, centre.x(), bound);
        expectNear(moments.m01 / moments.m00, centre.y(), bound);
    }
}

TEST_F(DemoAndOpenCV, AgreeOnTheSecondMoments) {
    for (const Outline& outline : outlines_) {
        const cv::Moments moments = cv::moments(outline.floats);
        const gkMatrix<2> inertia = outline.region.inertiaMatrix(false);
        const double bound = outline.roundings * std::pow(outline.size, 4);
        expectNear(moments.mu20, inertia.element(0, 0), bound);
        expectNear(moments.mu11, inertia.element(0, 1), bound);
        expectNear(moments.mu02, inertia.element(1, 1), bound);
    }
}

// Theirs takes vertices for collinear that are so to a float's precision.
TEST_F(DemoAndOpenCV, AgreeOnTheHull) {
    for (const Outline& outline : outlines_) {
        std::vector<cv::Point2f> theirs;
        cv::convexHull(outline.floats, theirs);
        gkRegion ours;
        outline.region.convexHull(ours);
        expectNear(cv::contourArea(theirs), ours.area(false), kFloat * outline.size * ours.length());
    }
}

// Jung's theorem: the smallest circle around points has at least half their diameter for a radius, and at most
// 1/sqrt(3) of it. Theirs is found in floats and then enlarged by 1e-4.
TEST_F(DemoAndOpenCV, AgreeOnTheSmallestCircle) {
    for (const Outline& outline : outlines_) {
        cv::Point2f centre;
        float radius = 0.0F;
        cv::minEnclosingCircle(outline.floats, centre, radius);
        const double diameter = outline.region.diameter(gkContourDefs::eExact);
        EXPECT_GE(radius, diameter / 2.0 - 8.0 * kFloat * outline.size);
        EXPECT_LE(radius, diameter / std::sqrt(3.0) + 2e-4);
        for (const gkVector<2>& vertex : outline.region.points())
            EXPECT_LE(vertex.distance(gkVector<2>(centre.x, centre.y)), radius + 8.0 * kFloat * outline.size);
    }
}

// Both fit by Fitzgibbon's method, whose matrix is nearly singular for a circle. Theirs gives floats, and
// shakes such vertices by up to a hundredth of the radius, of which the root of their number is left in the
// mean; four of those.
TEST_F(DemoAndOpenCV, AgreeOnTheFittedEllipse) {
    for (const Outline& outline : outlines_) {
        const cv::RotatedRect theirs = cv::fitEllipseDirect(outline.floats);
        gkEllipse ours;
        double error = 0.0;
        outline.region.fitEllipse(ours, error);
        const double shaking = 0.01 * ours.radii().x() / std::sqrt(static_cast<double>(outline.floats.size()));
        const double bound = 4.0 * kFloat * outline.size + 4.0 * shaking;
        expectNear(theirs.center.x, ours.center().vector().x(), bound);
        expectNear(theirs.center.y, ours.center().vector().y(), bound);
        expectNear(std::max(theirs.size.width, theirs.size.height), 2.0 * ours.radii().x(), bound);
        expectNear(std::min(theirs.size.width, theirs.size.height), 2.0 * ours.radii().y(), bound);
    }
}

TEST_F(DemoAndOpenCV, AgreeOnTheBox) {
    for (const Outline& outline : outlines_) {
        const cv::Rect theirs = cv::boundingRect(outline.floats); // the pixels that the vertices are in
        const gkRect ours = outline.region.encloseRect(gkXform<2>());
        EXPECT_EQ(theirs.x, std::floor(ours.ul().x()));
        EXPECT_EQ(theirs.y, std::floor(ours.ul().y()));
        EXPECT_EQ(theirs.x + theirs.width, std::floor(ours.lr().x()) + 1);
        EXPECT_EQ(theirs.y + theirs.height, std::floor(ours.lr().y()) + 1);
    }
}

TEST_F(DemoAndOpenCV, AgreeOnWhatIsInside) {
    for (const Outline& outline : outlines_) {
        for (int y = 0; y < 210; y += 3) {
            for (int x = 0; x < 260; x += 3) {
                const gkVector<2> point(x, y);
                if (outline.region.distToPoint(point, false) < 1e-3)
                    continue; // on the outline there is no one answer
                const double theirs = cv::pointPolygonTest(
                    outline.floats, cv::Point2f(static_cast<float>(x), static_cast<float>(y)), false);
                EXPECT_EQ(theirs > 0.0, outline.region.inside(point, false)) << x << ' ' << y;
            }
        }
    }
}
