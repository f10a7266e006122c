// tests/examples/demo_holes_test.cpp - holes as the demo's users see them. Oracle: discs less discs.
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

// How far a border may be off, in pixels. The steepest place of a blurred disc's edge lies sigma^2 / (2 r)
// nearer to the centre, also for a hole: 0.06 for the smallest here. The rest is for the chords between edge
// points and grey levels.
constexpr double kBorder = 0.08;

// A concentric ring, one with two holes, one with a hole to one side, and a solid disc.
const std::vector<Disc> kRings = {{60, 60, 40},           {60, 60, 18, kGround},  {160, 60, 36},
                                  {145, 60, 9, kGround},  {175, 62, 10, kGround}, {70, 160, 38},
                                  {84, 160, 16, kGround}, {180, 160, 30}};

// A ring and its holes.
struct Expected {
    double area = 0.0;
    double filled = 0.0;
    double border = 0.0; // length of the outline and the holes, by which the area changes for a pixel of shift
    double momentX = 0.0;
    double momentY = 0.0;
    std::size_t holes = 0;
    Disc outer = {};
};

std::vector<Expected> expectedOf(const std::vector<Disc>& discs) {
    std::vector<Expected> all;
    for (const Disc& disc : discs) {
        const bool isHole = disc.level == kGround;
        const double area = kPi * disc.radius * disc.radius;
        if (!isHole) all.emplace_back();
        Expected& ring = all.back();
        if (!isHole) {
            ring.filled = area;
            ring.outer = disc;
        }
        ring.area += isHole ? -area : area;
        ring.momentX += (isHole ? -area : area) * disc.x;
        ring.momentY += (isHole ? -area : area) * disc.y;
        ring.border += 2 * kPi * disc.radius;
        ring.holes += isHole ? 1 : 0;
    }
    return all;
}

void expectRings(const Rows& rows, const std::vector<Expected>& rings, double border) {
    ASSERT_EQ(rings.size(), rows.size());
    for (std::size_t i = 0; i < rings.size(); ++i) {
        SCOPED_TRACE(i);
        const Expected& ring = rings[i];
        EXPECT_EQ(std::to_string(ring.holes), rows[i][1]);
        EXPECT_NEAR(ring.area, std::stod(rows[i][2]), border * ring.border);
        EXPECT_NEAR(ring.filled, std::stod(rows[i][3]), border * 2 * kPi * ring.outer.radius);
        EXPECT_NEAR(ring.momentX / ring.area, std::stod(rows[i][4]), border);
        EXPECT_NEAR(ring.momentY / ring.area, std::stod(rows[i][5]), border);
    }
}

Outcome runOn(const Folder& folder, const std::vector<Disc>& discs, bool dark = false) {
    const std::string file = folder.file("rings.png").string();
    const cv::Mat picture = pictureOf(discs, 250, 220, false);
    cv::imwrite(file, dark ? cv::Mat(255 - picture) : picture);
    return runDemo(folder, {file, "--archive", folder.file("rings.gka").string()});
}

} // namespace

TEST(DemoHoles, AreTakenAwayFromAreaAndCentre) {
    const Folder folder;
    const Outcome run = runOn(folder, kRings);
    EXPECT_EQ("", run.complaint);
    expectRings(areasOf(run.printed), expectedOf(kRings), kBorder);
    EXPECT_THAT(run.printed, Not(HasSubstr("left out, ")));
}

TEST(DemoHoles, OfDarkObjectsAreFoundAsWell) {
    const Folder folder;
    expectRings(areasOf(runOn(folder, kRings, true).printed), expectedOf(kRings), kBorder);
}

// A ring's second moment about a diameter is pi (R^4 - r^4) / 4, a solid disc's pi a^4 / 4.
TEST(DemoHoles, MakeTheEllipseOfTheMomentsSmaller) {
    const Folder folder;
    const Rows rows = areasOf(runOn(folder, kRings).printed);
    ASSERT_EQ(4U, rows.size());
    const double radius = std::sqrt(std::sqrt(std::pow(40, 4) - std::pow(18, 4)));
    EXPECT_NEAR(radius, std::stod(rows[0][6]), kBorder);
    EXPECT_NEAR(radius, std::stod(rows[0][7]), kBorder);
    EXPECT_NEAR(30, std::stod(rows[3][6]), kBorder);
    EXPECT_NEAR(30, std::stod(rows[3][7]), kBorder);
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
    const Archived archived = loadArchive(folder.file("rings.gka"));
    const gkRegionSet& set = archived.regions;
    ASSERT_EQ(4U, set.regions().size());
    EXPECT_EQ(2U, set.regions()[1]->holes().size());
    const gkPtrHandle_const<gkRegion> ring = set.regions()[0];
    ASSERT_EQ(1U, ring->holes().size());
    EXPECT_FALSE(ring->inside({60, 60}, true));
    EXPECT_TRUE(ring->inside({60, 60}, false));
    for (const gkVector<2>& vertex : ring->holes()[0]->points())
        EXPECT_NEAR(18, vertex.distance(gkVector<2>(60, 60)), 2 * kBorder);
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

// The first hole leaves one pixel of the rim. Two edges that near push each other away, so the rim comes out
// too thick.
TEST(DemoHoles, BehindAThinRimAreMeasured) {
    const std::vector<Disc> discs = {
        {80, 80, 40, 250}, {80, 80, 38}, {98, 80, 21, kGround}, {64, 80, 9, kGround}, {180, 80, 30}};
    const Folder folder;
    const Outcome run = runOn(folder, discs);
    EXPECT_EQ(0, run.status);
    const Rows rows = areasOf(run.printed);
    ASSERT_EQ(2U, rows.size());
    EXPECT_EQ("2", rows[0][1]);
    const double area = kPi * (40 * 40 - 21 * 21 - 9 * 9);
    EXPECT_LT(area, std::stod(rows[0][2]));
    EXPECT_NEAR(area, std::stod(rows[0][2]), 2 * kPi * 21); // at most a pixel all around the hole
}

// Strokes of three pixels, of whose two edges each disturbs the other a little.
TEST(DemoHoles, OfSmallPrintAreMeasuredFinely) {
    std::vector<Disc> letters;
    for (int i = 0; i < 8; ++i) {
        const double x = 20.0 + 28 * i;
        letters.push_back({x, 40, 8});
        letters.push_back({x, 40, 5, kGround});
    }
    const Folder folder;
    const std::vector<Expected> rings = expectedOf(letters);
    expectRings(areasOf(runOn(folder, letters, true).printed), rings, 0.15);
}
