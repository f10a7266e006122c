#include "interop/opencv.h" // first: it stands alone

#include "tests/gen/random.h"
#include "tests/interop/texts.h"

namespace {

using Contours = std::vector<std::vector<cv::Point>>;
using Links = std::vector<cv::Vec4i>;

struct Found {
    Contours contours;
    Links links;
};

Found found(const cv::Mat& mask, int mode) {
    Found all;
    cv::findContours(mask, all.contours, all.links, mode, cv::CHAIN_APPROX_NONE);
    return all;
}

// A square frame with a square in it, in which a hole is.
cv::Mat nested() {
    cv::Mat mask(40, 40, CV_8UC1, cv::Scalar(0));
    cv::rectangle(mask, {2, 2}, {36, 36}, cv::Scalar(255), cv::FILLED);
    cv::rectangle(mask, {8, 8}, {30, 30}, cv::Scalar(0), cv::FILLED);
    cv::rectangle(mask, {12, 12}, {26, 26}, cv::Scalar(255), cv::FILLED);
    cv::rectangle(mask, {16, 16}, {20, 20}, cv::Scalar(0), cv::FILLED);
    return mask;
}

// Discs and holes at random, borders of any thickness.
cv::Mat blobs(std::uint64_t seed) {
    gen::Random random(seed);
    cv::Mat mask(80, 100, CV_8UC1, cv::Scalar(0));
    for (int i = 0; i < 12; ++i) {
        const int x = random.integer(0, 99), y = random.integer(0, 79), radius = random.integer(1, 15);
        cv::circle(mask, {x, y}, radius, cv::Scalar(i % 3 == 2 ? 0 : 255), cv::FILLED);
    }
    return mask;
}

} // namespace

TEST(OpenCvPoints, AreTheVertices) {
    const Points vertices = {{0.5, -2}, {1.5, 3}};
    EXPECT_EQ((std::vector<cv::Point2d>{{0.5, -2}, {1.5, 3}}), gnOpenCv::toPoints<cv::Point2d>(vertices));
    EXPECT_EQ((std::vector<cv::Point2f>{{0.5f, -2}, {1.5f, 3}}), gnOpenCv::toPoints<cv::Point2f>(vertices));
    EXPECT_EQ(vertices, gnOpenCv::toVertices(gnOpenCv::toPoints<cv::Point2d>(vertices)));
    EXPECT_EQ(vertices, gnOpenCv::toVertices(gnOpenCv::toPoints<cv::Point2f>(vertices)));
}

TEST(OpenCvPoints, MakeAContour) {
    const gkContour contour = gnOpenCv::toContour(std::vector<cv::Point>{{0, 0}, {4, 3}}, false, 7);
    EXPECT_EQ(gkContour({{0, 0}, {4, 3}}, false, 0), contour);
    EXPECT_EQ(7u, contour.label());
}

TEST(OpenCvPoints, AreRoundedToWholeNumbersHalvesToEven) {
    EXPECT_EQ((std::vector<cv::Point>{{0, -2}, {2, 3}, {3, -1}}),
              gnOpenCv::toPoints<cv::Point>({{0.5, -2}, {1.5, 3.25}, {2.75, -0.75}}));
    EXPECT_EQ((std::vector<cv::Point>{{2147483647, -2147483647 - 1}}),
              gnOpenCv::toPoints<cv::Point>({{2147483647.25, -2147483648.5}}));
}

TEST(OpenCvPoints, WhatTheTypeCannotHoldIsRefused) {
    for (const double x : {2147483648.0, -2147483650.0, kNan, kInfinity})
        EXPECT_THROW(gnOpenCv::toPoints<cv::Point>({{0, x}}), gkContourDefs::BadParams) << x;
    EXPECT_THROW(gnOpenCv::toPoints<cv::Point2f>({{1e300, 0}}), gkContourDefs::BadParams);
    EXPECT_TRUE(std::isnan(gnOpenCv::toPoints<cv::Point2f>({{kNan, 0}})[0].x));
    EXPECT_TRUE(std::isinf(gnOpenCv::toPoints<cv::Point2f>({{kInfinity, 0}})[0].x));
}

TEST(OpenCvRegions, HolesInsideHolesAreRegionsOfTheirOwn) {
    for (const int mode : {cv::RETR_TREE, cv::RETR_CCOMP}) {
        SCOPED_TRACE(mode);
        const Found all = found(nested(), mode);
        const gkRegionSet set = gnOpenCv::toRegionSet(all.contours, all.links);
        ASSERT_EQ(2u, set.regions().size());
        double areas = 0.0;
        for (const Shared& region : set.regions()) {
            EXPECT_EQ(1u, region->holes().size());
            areas += region->area(true);
        }
        // Borders run through the centres of the regions' pixels: 34 and 14 wide, the holes 24 and 6; those of
        // holes cut their four corners, half a pixel each.
        EXPECT_EQ(34.0 * 34 - (24 * 24 - 2) + 14 * 14 - (6 * 6 - 2), areas);
    }
}

TEST(OpenCvRegions, WithoutParentsEveryContourIsARegion) {
    const Found all = found(nested(), cv::RETR_LIST);
    const gkRegionSet set = gnOpenCv::toRegionSet(all.contours, all.links);
    EXPECT_EQ(4u, set.regions().size());
    for (const Shared& region : set.regions()) EXPECT_TRUE(region->holes().empty());
}

TEST(OpenCvRegions, AHoleThatTouchesIsRefusedOrDropped) {
    cv::Mat mask(9, 9, CV_8UC1, cv::Scalar(0)); // a frame one pixel thin
    cv::rectangle(mask, {1, 1}, {7, 7}, cv::Scalar(255));
    const Found all = found(mask, cv::RETR_CCOMP);
    EXPECT_THROW(gnOpenCv::toRegionSet(all.contours, all.links), gkContourDefs::BadParams);
    const gkRegionSet set = gnOpenCv::toRegionSet(all.contours, all.links, gnOpenCv::eDropTouchingHoles);
    ASSERT_EQ(1u, set.regions().size());
    EXPECT_EQ(36.0, set.area(true));
}

TEST(OpenCvRegions, LinksThatAreNotOfTheContoursAreRefused) {
    const Contours two = {{{0, 0}, {1, 0}, {0, 1}}, {{5, 5}, {6, 5}, {5, 6}}};
    const auto refused = [&](const Links& links) {
        EXPECT_THROW(gnOpenCv::toRegionSet(two, links), gkContourDefs::BadParams);
    };
    refused({});
    refused({{-1, -1, -1, -1}});
    refused({{-1, -1, -1, -1}, {-1, -1, -1, 2}});
    refused({{-1, -1, -1, 0}, {-1, -1, -1, -1}});
    refused({{-1, -1, -1, 1}, {-1, -1, -1, 0}});
}

TEST(OpenCvRegions, SurviveTheWayToContoursAndBack) {
    const gkRegionSet set =
        setOf({regionWithHoles(square(0, 0, 9), {square(1, 1, 1), square(4, 4, 2)}), gkRegion(square(20, 0, 3)),
               regionWithHoles(square(40, 0, 9), {square(42, 2, 1)})});
    Contours contours;
    Links links;
    gnOpenCv::toContours(set, contours, links);
    EXPECT_EQ(
        (Links{
            {3, -1, 1, -1}, {2, -1, -1, 0}, {-1, 1, -1, 0}, {4, 0, -1, -1}, {-1, 3, 5, -1}, {-1, -1, -1, 4}}),
        links);
    EXPECT_TRUE(sameSet(set, gnOpenCv::toRegionSet(contours, links)));
}

TEST(OpenCvMask, HasThePixelsFromBorderToBorder) {
    const cv::Mat mask = gnOpenCv::toMask(regionWithHoles(square(1, 1, 6), {square(3, 3, 2)}), {9, 9});
    for (int y = 0; y < 9; ++y)
        for (int x = 0; x < 9; ++x) {
            const bool inside = x >= 1 && x <= 7 && y >= 1 && y <= 7 && !(x == 4 && y == 4);
            EXPECT_EQ(inside ? 255 : 0, mask.at<unsigned char>(y, x)) << x << ", " << y;
        }
}

TEST(OpenCvMask, OtherPixelsStay) {
    cv::Mat mask(4, 4, CV_8UC1, cv::Scalar(7));
    gnOpenCv::fill(mask, gkRegion(square(0, 0, 1)), 9);
    gnOpenCv::fill(mask, gkRegion());
    EXPECT_EQ(9, mask.at<unsigned char>(1, 1));
    EXPECT_EQ(7, mask.at<unsigned char>(2, 2));
    cv::Mat color(4, 4, CV_8UC3);
    EXPECT_THROW(gnOpenCv::fill(color, gkRegion()), gkContourDefs::BadParams);
}

TEST(OpenCvMask, WhatIsFoundInAMaskFillsItAgain) {
    int compared = 0;
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE(seed);
        const cv::Mat mask = blobs(seed);
        for (const int mode : {cv::RETR_TREE, cv::RETR_CCOMP}) {
            const Found all = found(mask, mode);
            try {
                const gkRegionSet set = gnOpenCv::toRegionSet(all.contours, all.links);
                EXPECT_EQ(0, cv::countNonZero(gnOpenCv::toMask(set, mask.size()) != mask));
                ++compared;
            } catch (const gkContourDefs::BadParams&) { // a region one pixel thin
            }
        }
    }
    EXPECT_GT(compared, 100);
}
