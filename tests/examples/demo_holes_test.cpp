// tests/examples/demo_holes_test.cpp - holes as the demo's users see them. Oracle: discs less discs.
#include "cntr/regionst.h"
#include "platform/core/archive/archive_file.h"
#include "tests/examples/demo_run.h"

#include <cmath>
#include <cstdio>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <opencv2/imgcodecs.hpp>

namespace {

using testing::HasSubstr;
using testing::Not;
using Rows = std::vector<std::vector<std::string>>;

constexpr double kPi = 3.14159265358979323846;

// A concentric ring, one with two holes, one with a hole to one side, and a solid disc.
const std::vector<Disc> kRings = {{60, 60, 40},           {60, 60, 18, kGround},  {160, 60, 36},
                                  {145, 60, 9, kGround},  {175, 62, 10, kGround}, {70, 160, 38},
                                  {84, 160, 16, kGround}, {180, 160, 30}};

// A ring and its holes, with the borders where `inset` pixels of object are lost all around.
struct Expected {
    double area = 0.0;
    double filled = 0.0;
    double border = 0.0; // length of the outline and the holes, by which the area changes for a pixel of shift
    double momentX = 0.0;
    std::size_t holes = 0;
    Disc outer = {};
};

std::vector<Expected> expectedOf(const std::vector<Disc>& discs, double inset) {
    std::vector<Expected> all;
    for (const Disc& disc : discs) {
        const bool isHole = disc.level == kGround;
        const double radius = disc.radius + (isHole ? inset : -inset);
        const double area = kPi * radius * radius;
        if (!isHole) all.emplace_back();
        Expected& ring = all.back();
        if (!isHole) {
            ring.filled = area;
            ring.outer = disc;
        }
        ring.area += isHole ? -area : area;
        ring.momentX += (isHole ? -area : area) * disc.x;
        ring.border += 2 * kPi * radius;
        ring.holes += isHole ? 1 : 0;
    }
    return all;
}

void expectRings(const Rows& rows, const std::vector<Expected>& rings) {
    ASSERT_EQ(rings.size(), rows.size());
    for (std::size_t i = 0; i < rings.size(); ++i) {
        SCOPED_TRACE(i);
        const Expected& ring = rings[i];
        EXPECT_EQ(std::to_string(ring.holes), rows[i][1]);
        EXPECT_NEAR(ring.area, std::stod(rows[i][2]), 0.5 * ring.border);
        EXPECT_NEAR(ring.filled, std::stod(rows[i][3]), kPi * ring.outer.radius);
        EXPECT_NEAR(ring.momentX / ring.area, std::stod(rows[i][4]), 0.5);
        EXPECT_NEAR(ring.outer.y, std::stod(rows[i][5]), 0.5);
    }
}

Outcome runOn(const Folder& folder, const std::vector<Disc>& discs, bool dark = false) {
    const std::string file = folder.file("rings.png").string();
    const cv::Mat picture = pictureOf(discs, 250, 220, false);
    cv::imwrite(file, dark ? cv::Mat(255 - picture) : picture);
    return runDemo(folder, {file, "--out", folder.file("out").string()});
}

} // namespace

TEST(DemoHoles, AreTakenAwayFromAreaAndCentre) {
    const Folder folder;
    const Outcome run = runOn(folder, kRings);
    EXPECT_EQ("", run.complaint);
    expectRings(areasOf(run.printed), expectedOf(kRings, 0.5));
    EXPECT_THAT(run.printed, Not(HasSubstr("left out")));
}

TEST(DemoHoles, OfDarkObjectsAreFoundAsWell) {
    const Folder folder;
    expectRings(areasOf(runOn(folder, kRings, true).printed), expectedOf(kRings, 0.5));
}

// A ring's second moment about a diameter is pi (R^4 - r^4) / 4, a solid disc's pi a^4 / 4.
TEST(DemoHoles, MakeTheEllipseOfTheMomentsSmaller) {
    const Folder folder;
    const Rows rows = areasOf(runOn(folder, kRings).printed);
    ASSERT_EQ(4U, rows.size());
    const double radius = std::sqrt(std::sqrt(std::pow(39.5, 4) - std::pow(18.5, 4)));
    EXPECT_NEAR(radius, std::stod(rows[0][6]), 0.6);
    EXPECT_NEAR(radius, std::stod(rows[0][7]), 0.6);
    EXPECT_NEAR(29.5, std::stod(rows[3][6]), 0.6);
    EXPECT_NEAR(29.5, std::stod(rows[3][7]), 0.6);
}

TEST(DemoHoles, CountInTheTotals) {
    const Folder folder;
    const Outcome run = runOn(folder, kRings);
    double area = 0.0;
    double filled = 0.0;
    double momentX = 0.0;
    for (const std::vector<std::string>& row : areasOf(run.printed)) {
        area += std::stod(row[2]);
        filled += std::stod(row[3]);
        momentX += std::stod(row[2]) * std::stod(row[4]);
    }
    const std::size_t begin = run.printed.find("4 regions: area ");
    ASSERT_NE(std::string::npos, begin);
    double totals[3] = {};
    ASSERT_EQ(3, std::sscanf(run.printed.c_str() + begin,
                             "4 regions: area %lf px^2, filled %lf px^2, centre of mass (%lf", totals,
                             totals + 1, totals + 2));
    EXPECT_NEAR(area, totals[0], 0.03);
    EXPECT_NEAR(filled, totals[1], 0.03);
    EXPECT_NEAR(momentX / area, totals[2], 0.02);
    EXPECT_THAT(run.printed, HasSubstr("no outlines cross\n"));
}

TEST(DemoHoles, AreKeptInTheArchive) {
    const Folder folder;
    runOn(folder, kRings);
    gkRegionSet set;
    gkArchiveFile archive(folder.file("out/rings_regions.gka"), gkArchiveFile::eLoad);
    archive || set;
    archive.close();
    ASSERT_EQ(4U, set.regions().size());
    EXPECT_EQ(2U, set.regions()[1]->holes().size());
    const gkPtrHandle_const<gkRegion> ring = set.regions()[0];
    ASSERT_EQ(1U, ring->holes().size());
    EXPECT_FALSE(ring->inside({60, 60}, true));
    EXPECT_TRUE(ring->inside({60, 60}, false));
    for (const gkVector<2>& vertex : ring->holes()[0]->points())
        EXPECT_NEAR(18.5, vertex.distance(gkVector<2>(60, 60)), 1.5);
}

// Darker than halfway to the ground, as relief in the shade is.
TEST(DemoHoles, AreNotWhereAnObjectIsOnlyDarker) {
    const Folder folder;
    const Rows rows = areasOf(runOn(folder, {{80, 80, 45}, {80, 80, 20, 80}, {180, 80, 30}}).printed);
    ASSERT_EQ(2U, rows.size());
    EXPECT_EQ("0", rows[0][1]);
}

TEST(DemoHoles, ThatAreSpecksAreLeftOut) {
    const Folder folder;
    const Rows rows = areasOf(runOn(folder, {{80, 80, 45}, {80, 80, 3.5, kGround}, {180, 80, 30}}).printed);
    ASSERT_EQ(2U, rows.size());
    EXPECT_EQ("0", rows[0][1]);
}

// The first hole leaves one pixel of the rim, which is bright enough to stay one object's border through the
// blur.
TEST(DemoHoles, ThatTouchTheOutlineAreTold) {
    const Folder folder;
    const Outcome run = runOn(
        folder, {{80, 80, 40, 250}, {80, 80, 38}, {98, 80, 21, kGround}, {64, 80, 9, kGround}, {180, 80, 30}});
    EXPECT_EQ(0, run.status);
    EXPECT_THAT(run.printed, HasSubstr("1 hole is left out, since it touches its outline.\n"));
    const Rows rows = areasOf(run.printed);
    ASSERT_EQ(2U, rows.size());
    EXPECT_EQ("1", rows[0][1]);
}

// Strokes of three pixels: the picture is enlarged four times, so an eighth of a pixel is lost.
TEST(DemoHoles, OfSmallPrintAreMeasuredFinely) {
    std::vector<Disc> letters;
    for (int i = 0; i < 8; ++i) {
        const double x = 20.0 + 28 * i;
        letters.push_back({x, 40, 8});
        letters.push_back({x, 40, 5, kGround});
    }
    const Folder folder;
    const std::vector<Expected> rings = expectedOf(letters, 0.125);
    expectRings(areasOf(runOn(folder, letters, true).printed), rings);
}
