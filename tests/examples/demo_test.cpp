// tests/examples/demo_test.cpp - the demo as its users run it. Oracle: discs of known place and radius.
#include "cntr/contour.h"
#include "platform/core/archive/archive_file.h"
#include "tests/examples/demo_run.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <opencv2/imgcodecs.hpp>

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

// In reading order: the first row is not quite level, as rows of real objects are.
const std::vector<Disc> kDiscs = {
    {60, 58, 30}, {160.5, 50.5, 24}, {250, 62, 36}, {70, 160, 20}, {200.25, 155.5, 40}};

// Vertices are pixel centres inside the disc, so half a pixel is lost all around; blurring and thresholds may
// move the border by another half.
constexpr double kBorder = 1.0;

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
        const double radius = disc.radius - 0.5;
        EXPECT_EQ(std::to_string(i + 1), row[0]);
        EXPECT_EQ("yes", row[2]);
        EXPECT_NEAR(disc.x, std::stod(row[4]), 0.5);
        EXPECT_NEAR(disc.y, std::stod(row[5]), 0.5);
        EXPECT_NEAR(2 * radius, std::stod(row[6]), 2 * kBorder);
        EXPECT_NEAR(radius, std::stod(row[8]), kBorder);
        EXPECT_NEAR(radius, std::stod(row[9]), kBorder);
        EXPECT_LT(std::stod(row[11]), 0.5);
        EXPECT_EQ("no", row[12]);
    }
}

void expectOneSentence(const Outcome& run, const std::string& part) {
    EXPECT_EQ(1, run.status);
    EXPECT_EQ("", run.printed);
    EXPECT_THAT(run.complaint, StartsWith("demo: "));
    EXPECT_THAT(run.complaint, HasSubstr(part));
    EXPECT_THAT(run.complaint, EndsWith(".\n"));
    EXPECT_EQ(1, std::count(run.complaint.begin(), run.complaint.end(), '\n'));
}

} // namespace

TEST(Demo, MeasuresDiscsInReadingOrder) {
    const Folder folder;
    const Outcome run =
        runDemo(folder, {savedPicture(folder, kDiscs, false), "--out", folder.file("out").string()});
    EXPECT_EQ(0, run.status);
    EXPECT_EQ("", run.complaint);
    EXPECT_THAT(run.printed, HasSubstr("300 x 220 pixels, 5 objects\n"));
    expectDiscs(rowsOf(run.printed));
}

TEST(Demo, FindsThemUnderUnevenLight) {
    const Folder folder;
    const Outcome run =
        runDemo(folder, {savedPicture(folder, kDiscs, true), "--out", folder.file("out").string()});
    EXPECT_EQ(0, run.status);
    expectDiscs(rowsOf(run.printed));
}

TEST(Demo, FindsDarkObjectsOnBrightGround) {
    const Folder folder;
    const std::string file = folder.file("dark.png").string();
    cv::imwrite(file, cv::Scalar(255) - pictureOf(kDiscs, 300, 220, true));
    const Outcome run = runDemo(folder, {file, "--out", folder.file("out").string()});
    EXPECT_EQ(0, run.status);
    expectDiscs(rowsOf(run.printed));
}

TEST(Demo, KeepsTheContoursInAnArchive) {
    const Folder folder;
    const Outcome run =
        runDemo(folder, {savedPicture(folder, kDiscs, false), "--out", folder.file("out").string()});
    EXPECT_THAT(run.printed, HasSubstr("holds 5 contours; read back, they are equal.\n"));

    std::vector<gkPtrHandle<gkContour>> contours;
    gkArchiveFile archive(folder.file("out/discs_contours.gka"), gkArchiveFile::eLoad);
    archive || contours;
    archive.close();
    const std::vector<std::vector<std::string>> rows = rowsOf(run.printed);
    ASSERT_EQ(rows.size(), contours.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(rows[i][0], std::to_string(contours[i]->label()));
        EXPECT_EQ(rows[i][1], std::to_string(contours[i]->points().size()));
        for (const gkVector<2>& vertex : contours[i]->points())
            EXPECT_NEAR(kDiscs[i].radius - 0.5, vertex.distance(gkVector<2>(kDiscs[i].x, kDiscs[i].y)), 1.5);
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
    for (const char* part :
         {"<image", "<ellipse", ">5</text>", "convex hull", "farthest pair", "mean position"})
        EXPECT_THAT(svg, HasSubstr(part));
}

TEST(Demo, LeavesOutSpecks) {
    const Folder folder;
    const std::string file = savedPicture(folder, {{60, 60, 30}, {150, 60, 5.5}}, false);
    const std::string out = folder.file("out").string();
    EXPECT_EQ(2U, rowsOf(runDemo(folder, {file, "--out", out}).printed).size()); // pi 5^2 = 78.5 is above 64
    EXPECT_EQ(1U, rowsOf(runDemo(folder, {file, "--out", out, "--least-area", "100"}).printed).size());
}

TEST(Demo, OfAMissingFileSaysSo) {
    const Folder folder;
    const Outcome run =
        runDemo(folder, {folder.file("none.png").string(), "--out", folder.file("out").string()});
    expectOneSentence(run, "none.png' cannot be opened for reading");
    EXPECT_FALSE(std::filesystem::exists(folder.file("out")));
}

TEST(Demo, OfAFolderSaysSo) {
    const Folder folder;
    expectOneSentence(runDemo(folder, {folder.file("").string(), "--out", folder.file("out").string()}),
                      "is a folder, not a picture");
}

TEST(Demo, OfATextRenamedToPngSaysSo) {
    const Folder folder;
    writeText(folder.file("text.png"), "This is no picture.\n");
    const Outcome run =
        runDemo(folder, {folder.file("text.png").string(), "--out", folder.file("out").string()});
    expectOneSentence(run, "text.png' is not a picture");
}

TEST(Demo, OfAnEmptyFileSaysSo) {
    const Folder folder;
    writeText(folder.file("empty.png"), "");
    const Outcome run =
        runDemo(folder, {folder.file("empty.png").string(), "--out", folder.file("out").string()});
    expectOneSentence(run, "empty.png' is not a picture");
}

TEST(Demo, OfAPictureWithoutObjectsSaysSo) {
    const Folder folder;
    const std::string out = folder.file("out").string();
    expectOneSentence(runDemo(folder, {savedPicture(folder, {}, false), "--out", out}),
                      "No objects were found");
    expectOneSentence(runDemo(folder, {savedPicture(folder, {}, true), "--out", out}), "No objects were found");
}

TEST(Demo, OfNoiseFindsNoObjects) {
    const Folder folder;
    const std::string file = folder.file("noise.png").string();
    cv::Mat noise(150, 200, CV_8UC1);
    cv::RNG random(1);
    random.fill(noise, cv::RNG::NORMAL, 128, 50);
    cv::imwrite(file, noise);
    expectOneSentence(runDemo(folder, {file, "--out", folder.file("out").string()}), "No objects were found");
}

TEST(Demo, RefusesWhatItDoesNotUnderstand) {
    const Folder folder;
    const std::string file = savedPicture(folder, kDiscs, false);
    const std::string out = folder.file("out").string();
    expectOneSentence(runDemo(folder, {}), "An image is needed");
    expectOneSentence(runDemo(folder, {file}), "--out FOLDER");
    expectOneSentence(runDemo(folder, {file, "--out"}), "--out needs a value");
    expectOneSentence(runDemo(folder, {file, "--out", out, "--colour"}), "There is no option '--colour'");
    expectOneSentence(runDemo(folder, {file, file, "--out", out}), "Only one image");
    expectOneSentence(runDemo(folder, {file, "--out", out, "--side", "wide"}), "not 'wide'");
    EXPECT_FALSE(std::filesystem::exists(out));
}

TEST(Demo, RefusesAFolderThatIsAFile) {
    const Folder folder;
    const std::string file = savedPicture(folder, kDiscs, false);
    const Outcome run = runDemo(folder, {file, "--out", file});
    EXPECT_EQ(1, run.status);
    EXPECT_THAT(run.complaint, HasSubstr("cannot be made"));
}
