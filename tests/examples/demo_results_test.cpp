// tests/examples/demo_results_test.cpp - the files the demo writes, and the scale. Oracle: discs of known place
// and size.
#include "tests/examples/demo_run.h"

#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <opencv2/imgcodecs.hpp>

namespace {

using testing::HasSubstr;
using testing::StartsWith;

constexpr double kPi = 3.14159265358979323846;
constexpr double kBorder = 0.06; // how far an edge may be off, in pixels; see demo_test.cpp

const std::vector<Disc> kDiscs = {{60, 60, 40}, {60, 60, 18, kGround}, {160.5, 50.25, 24}};

std::string savedPicture(const Folder& folder) {
    const std::string file = folder.file("discs.png").string();
    cv::imwrite(file, pictureOf(kDiscs, 220, 120, false));
    return file;
}

} // namespace

TEST(DemoResults, AreInMillimetresWithAScale) {
    const Folder folder;
    const std::string file = savedPicture(folder);
    const Outcome run = runDemo(folder, {file, "--scale", "0.05"});
    EXPECT_EQ("", run.complaint);
    EXPECT_THAT(run.printed, HasSubstr(" mm^2, filled "));
    const std::vector<std::vector<std::string>> outlines = outlinesOf(run.printed);
    ASSERT_EQ(2U, outlines.size());
    EXPECT_NEAR(0.05 * 160.5, std::stod(outlines[1][4]), 0.05 * kBorder);
    EXPECT_NEAR(0.05 * 50.25, std::stod(outlines[1][5]), 0.05 * kBorder);
    EXPECT_NEAR(0.05 * 48, std::stod(outlines[1][6]), 0.1 * kBorder);
    const std::vector<std::vector<std::string>> areas = areasOf(run.printed);
    const double area = kPi * (40 * 40 - 18 * 18);
    EXPECT_NEAR(0.0025 * area, std::stod(areas[0][2]), 0.0025 * kBorder * 2 * kPi * (40 + 18));
}

TEST(DemoResults, AsCsvHaveUnitsAndPointsInEveryLocale) {
    const Folder folder;
    const std::string csv = folder.file("discs.csv").string();
    setenv("LC_ALL", "de_DE.UTF-8", 1);
    const Outcome run = runDemo(folder, {savedPicture(folder), "--scale", "0.05", "--csv", csv});
    unsetenv("LC_ALL");
    EXPECT_THAT(run.printed, HasSubstr("discs.csv written.\n"));
    const std::vector<std::vector<std::string>> rows = cellsOf(readText(csv));
    ASSERT_EQ(3U, rows.size());
    for (const std::vector<std::string>& row : rows) EXPECT_EQ(24U, row.size());
    EXPECT_EQ("number", rows[0][0]);
    EXPECT_EQ("length [mm]", rows[0][4]);
    EXPECT_EQ("area [mm^2]", rows[0][5]);
    EXPECT_EQ("filled area [mm^2]", rows[0][6]);
    EXPECT_EQ("centre of mass x [mm]", rows[0][7]);
    EXPECT_EQ("diameter [mm]", rows[0][11]);
    EXPECT_EQ("fitted ellipse r1 [mm]", rows[0][14]);
    EXPECT_EQ("1", rows[1][0]);
    EXPECT_EQ("1", rows[1][3]);
    EXPECT_NEAR(0.05 * 2 * kPi * 24, std::stod(rows[2][4]), 0.05 * kBorder * 2 * kPi);
    EXPECT_NEAR(0.0025 * kPi * 40 * 40, std::stod(rows[1][6]), 0.0025 * kBorder * 2 * kPi * 40);
    EXPECT_NEAR(0.05 * 160.5, std::stod(rows[2][7]), 0.05 * kBorder);
    EXPECT_NEAR(0.05 * 24, std::stod(rows[2][14]), 0.05 * kBorder);
}

TEST(DemoResults, AsJsonCanBeParsed) {
    const Folder folder;
    const std::string file = folder.file("discs.json").string();
    runDemo(folder, {savedPicture(folder), "--json", file});
    const nlohmann::json json = nlohmann::json::parse(readText(file));
    EXPECT_EQ("discs.png", json.at("image"));
    EXPECT_EQ(220, json.at("width"));
    EXPECT_EQ(120, json.at("height"));
    EXPECT_EQ("px", json.at("unit"));
    ASSERT_EQ(2U, json.at("objects").size());
    const nlohmann::json& ring = json.at("objects")[0];
    EXPECT_EQ(1, ring.at("number"));
    EXPECT_EQ(1, ring.at("holes"));
    EXPECT_EQ(false, ring.at("crossesItself"));
    EXPECT_NEAR(60, ring.at("centerOfMass")[0].get<double>(), kBorder);
    EXPECT_NEAR(40, ring.at("fittedEllipse").at("radii")[1].get<double>(), kBorder);
    EXPECT_NEAR(kPi * (40 * 40 - 18 * 18), ring.at("area").get<double>(), kBorder * 2 * kPi * (40 + 18));
}

TEST(DemoResults, GoWhereTheyAreToldToGo) {
    const Folder folder;
    const std::string file = savedPicture(folder);
    for (const auto& [name, begin] :
         {std::pair("a.png", "\x89PNG"), std::pair("a.svg", "<svg"), std::pair("a.pdf", "%PDF")}) {
        const std::string picture = folder.file(name).string();
        EXPECT_EQ(0, runDemo(folder, {file, "--picture", picture}).status);
        EXPECT_THAT(readText(picture), StartsWith(begin));
    }
    runDemo(folder, {file, "--out", folder.file("out").string()});
    for (const char* name : {"discs_measured.png", "discs_measured.svg", "discs_measured.pdf",
                             "discs_measures.csv", "discs_measures.json", "discs_regions.gka"})
        EXPECT_TRUE(std::filesystem::exists(folder.file("out") / name)) << name;
}

TEST(DemoResults, AreOnlyPrintedWhenNoFileIsNamed) {
    const Folder folder;
    const Outcome run = runDemo(folder, {savedPicture(folder)});
    EXPECT_EQ(0, run.status);
    EXPECT_EQ("", run.complaint); // nobody waits long enough to be told of progress
    EXPECT_EQ(std::string::npos, run.printed.find("written"));
}

TEST(DemoResults, AreExplainedByHelp) {
    const Folder folder;
    const Outcome run = runDemo(folder, {"--help"});
    EXPECT_EQ(0, run.status);
    for (const char* option : {"--scale", "--csv", "--json", "--picture", "--archive", "--part", "--out"})
        EXPECT_THAT(run.printed, HasSubstr(option));
}
