// tests/examples/demo_test.cpp - the demo as its users run it. Oracle: discs of known place and radius.
#include "tests/examples/demo_run.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <opencv2/imgcodecs.hpp>

namespace {

using testing::HasSubstr;
using testing::StartsWith;

// In reading order: the first row is not quite level, as rows of real objects are.
const std::vector<Disc> kDiscs = {
    {60, 58, 30}, {160.5, 50.5, 24}, {250, 62, 36}, {70, 160, 20}, {200.25, 155.5, 40}};

// The steepest place of a blurred disc's edge lies sigma^2 / (2 r) inside, with 1 and a pixel's 1/12 for
// sigma^2 here at most 0.03; the rest is for grey levels in 256 steps and light that changes along the edge.
constexpr double kBorder = 0.06;

std::string savedPicture(const Folder& folder, const std::vector<Disc>& discs, bool uneven) {
    const std::string file = folder.file("discs.png").string();
    cv::imwrite(file, pictureOf(discs, 300, 220, uneven));
    return file;
}

void expectDiscs(const std::vector<std::vector<std::string>>& rows) {
    ASSERT_EQ(kDiscs.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        SCOPED_TRACE(i);
        const std::vector<std::string>& row = rows[i];
        const Disc& disc = kDiscs[i];
        EXPECT_EQ(std::to_string(i + 1), row[0]);
        EXPECT_EQ("0", row[2]);
        EXPECT_NEAR(disc.x, std::stod(row[4]), kBorder);
        EXPECT_NEAR(disc.y, std::stod(row[5]), kBorder);
        EXPECT_NEAR(2 * disc.radius, std::stod(row[6]), 2 * kBorder);
        EXPECT_NEAR(disc.radius, std::stod(row[8]), kBorder);
        EXPECT_NEAR(disc.radius, std::stod(row[9]), kBorder);
        EXPECT_LT(std::stod(row[11]), kBorder);
        EXPECT_EQ("no", row[12]);
    }
}

} // namespace

TEST(Demo, MeasuresDiscsInReadingOrder) {
    const Folder folder;
    const Outcome run =
        runDemo(folder, {savedPicture(folder, kDiscs, false), "--out", folder.file("out").string()});
    EXPECT_EQ(0, run.status);
    EXPECT_EQ("", run.complaint);
    EXPECT_THAT(run.printed, HasSubstr("300 x 220 pixels, 5 objects\n"));
    expectDiscs(outlinesOf(run.printed));
}

TEST(Demo, FindsThemUnderUnevenLight) {
    const Folder folder;
    const Outcome run =
        runDemo(folder, {savedPicture(folder, kDiscs, true), "--out", folder.file("out").string()});
    EXPECT_EQ(0, run.status);
    expectDiscs(outlinesOf(run.printed));
}

TEST(Demo, FindsDarkObjectsOnBrightGround) {
    const Folder folder;
    const std::string file = folder.file("dark.png").string();
    cv::imwrite(file, cv::Scalar(255) - pictureOf(kDiscs, 300, 220, true));
    const Outcome run = runDemo(folder, {file, "--out", folder.file("out").string()});
    EXPECT_EQ(0, run.status);
    expectDiscs(outlinesOf(run.printed));
}

TEST(Demo, KeepsTheRegionsInAnArchive) {
    const Folder folder;
    const Outcome run =
        runDemo(folder, {savedPicture(folder, kDiscs, false), "--out", folder.file("out").string()});
    EXPECT_THAT(run.printed, HasSubstr("holds 5 regions and their edge points; read back, they are equal.\n"));

    const Archived archived = loadArchive(folder.file("out/discs_regions.gka"));
    const std::vector<gkPtrHandle_const<gkRegion>> regions = archived.regions.regions();
    const std::vector<std::vector<std::string>> rows = outlinesOf(run.printed);
    ASSERT_EQ(rows.size(), regions.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(rows[i][0], std::to_string(regions[i]->label()));
        EXPECT_EQ(rows[i][1], std::to_string(regions[i]->points().size()));
        for (const gkVector<2>& vertex : regions[i]->points())
            EXPECT_NEAR(kDiscs[i].radius, vertex.distance(gkVector<2>(kDiscs[i].x, kDiscs[i].y)), 2 * kBorder);
    }
}

TEST(Demo, WritesThePictureInThreeFormats) {
    const Folder folder;
    runDemo(folder,
            {savedPicture(folder, kDiscs, false), "--out", folder.file("out").string(), "--side", "700"});
    const cv::Mat png = cv::imread(folder.file("out/discs_measured.png").string());
    EXPECT_EQ(600, png.cols); // twice the picture, the most that stays within 700
    EXPECT_GT(png.rows, 440); // and the legend below it
    EXPECT_THAT(readText(folder.file("out/discs_measured.pdf")), StartsWith("%PDF"));
    const std::string svg = readText(folder.file("out/discs_measured.svg"));
    for (const char* part : {"<image", "<ellipse", ">5</text>", "hole", "convex hull", "farthest pair",
                             "mean position", "centre of mass", "ellipse of the moments"})
        EXPECT_THAT(svg, HasSubstr(part));
}

TEST(Demo, LeavesOutSpecks) {
    const Folder folder;
    const std::string file = savedPicture(folder, {{60, 60, 30}, {150, 60, 5.6}}, false);
    const std::string out = folder.file("out").string();
    EXPECT_EQ(2U,
              outlinesOf(runDemo(folder, {file, "--out", out}).printed).size()); // pi 5^2 = 78.5 is above 64
    EXPECT_EQ(1U, outlinesOf(runDemo(folder, {file, "--out", out, "--least-area", "100"}).printed).size());
}

TEST(Demo, OfAPictureWithoutObjectsSaysSo) {
    const Folder folder;
    const std::string out = folder.file("out").string();
    expectOneSentence(runDemo(folder, {savedPicture(folder, {}, false), "--out", out}), "No objects were found",
                      1);
    expectOneSentence(runDemo(folder, {savedPicture(folder, {}, true), "--out", out}), "No objects were found",
                      1);
}

TEST(Demo, OfNoiseFindsNoObjects) {
    const Folder folder;
    const std::string file = folder.file("noise.png").string();
    cv::Mat noise(150, 200, CV_8UC1);
    cv::RNG random(1);
    random.fill(noise, cv::RNG::NORMAL, 128, 50);
    cv::imwrite(file, noise);
    expectOneSentence(runDemo(folder, {file, "--out", folder.file("out").string()}), "No objects were found",
                      1);
}

TEST(Demo, MeasuresAPartOfThePicture) {
    const Folder folder;
    const std::string file =
        savedPicture(folder, {{60, 58, 16}, {130, 100, 12}, {250, 150, 30}, {100, 200, 15}}, false);
    const Outcome run =
        runDemo(folder, {file, "--out", folder.file("out").string(), "--part", "20,10,170,150"});
    EXPECT_THAT(run.printed, HasSubstr("170 x 150 pixels, 2 objects\n"));
    const std::vector<std::vector<std::string>> rows = outlinesOf(run.printed);
    ASSERT_EQ(2U, rows.size());
    EXPECT_NEAR(40, std::stod(rows[0][4]), kBorder);
    EXPECT_NEAR(48, std::stod(rows[0][5]), kBorder);
    EXPECT_NEAR(110, std::stod(rows[1][4]), kBorder);
    EXPECT_NEAR(90, std::stod(rows[1][5]), kBorder);
}

// Objects that cover most of a small picture are not taken for its background.
TEST(Demo, FindsAnObjectThatFillsThePicture) {
    const Folder folder;
    for (bool dark : {false, true}) {
        SCOPED_TRACE(dark);
        const std::string file = folder.file("full.png").string();
        const cv::Mat picture = pictureOf({{30, 30, 26}}, 60, 60, false);
        cv::imwrite(file, dark ? cv::Mat(255 - picture) : picture);
        const std::vector<std::vector<std::string>> rows = outlinesOf(runDemo(folder, {file}).printed);
        ASSERT_EQ(1U, rows.size());
        EXPECT_NEAR(30, std::stod(rows[0][4]), kBorder);
        EXPECT_NEAR(30, std::stod(rows[0][5]), kBorder);
        EXPECT_NEAR(26, std::stod(rows[0][8]), kBorder);
    }
}

TEST(Demo, KeepsEdgePointsWithTheirGradient) {
    const Folder folder;
    const std::string archive = folder.file("discs.gka").string();
    runDemo(folder, {savedPicture(folder, {{60, 60, 30}, {150.5, 60.5, 24}}, false), "--archive", archive,
                     "--scale", "0.5"});
    const Archived archived = loadArchive(archive);
    ASSERT_EQ(2U, archived.edges.size());
    const gkContourT<gkEdgelet>& edges = *archived.edges[0];
    ASSERT_EQ(edges.points().size(), edges.data().size());
    for (std::size_t i = 0; i < edges.data().size(); ++i) {
        SCOPED_TRACE(i);
        const gkVector<2> way = gkVector<2>(60, 60) - edges.data()[i].position(); // the disc is brighter inside
        EXPECT_NEAR(30, way.length(), 2 * kBorder);
        const gkVector<2> gradient(1.0, gkRadian(edges.data()[i].angle()));
        EXPECT_GT(gradient * way.unit(), 0.998); // 3.6 degrees; a step of the angle is 1.4
        // A step of 110 levels behind a Gaussian rises by 110 / sqrt(2 pi variance), in 256ths. The variance is
        // that of the Gaussian, 1, less 1/12 where the edge runs between two pixels, and 2/12 more where it
        // halves a pixel.
        EXPECT_LT(0.99 * 256 * 40.63, edges.data()[i].magnitude());
        EXPECT_GT(1.01 * 256 * 45.84, edges.data()[i].magnitude());
        EXPECT_NEAR(0.0, edges.points()[i].distance(0.5 * edges.data()[i].position()), 1e-12);
    }
}
