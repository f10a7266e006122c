// tests/examples/demo_errors_test.cpp - what the demo says, and its exit status, where it cannot do what it is
// told.
#include "tests/examples/demo_run.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <opencv2/imgcodecs.hpp>

namespace {

using testing::HasSubstr;

std::string savedPicture(const Folder& folder, const std::string& name = "disc.png") {
    const std::string file = folder.file(name).string();
    cv::imwrite(file, pictureOf({{40, 40, 20}, {100, 40, 20}}, 140, 80, false));
    return file;
}

// The first `share` of a file's bytes.
std::string cutOff(const Folder& folder, const std::string& file, double share) {
    const std::string bytes = readText(file);
    const std::filesystem::path cut = folder.file("cut" + std::filesystem::path(file).extension().string());
    writeText(cut, bytes.substr(0, static_cast<std::size_t>(share * static_cast<double>(bytes.size()))));
    return cut.string();
}

} // namespace

TEST(DemoErrors, OfTheCommandLineAreTold) {
    const Folder folder;
    const std::string file = savedPicture(folder);
    expectOneSentence(runDemo(folder, {}), "An image is needed", 2);
    expectOneSentence(runDemo(folder, {file, "--colour"}), "There is no option '--colour'", 2);
    expectOneSentence(runDemo(folder, {file, file}), "Only one image", 2);
    for (const char* option : {"--out", "--scale", "--csv", "--json", "--archive", "--picture", "--part",
                               "--least-area", "--side"}) {
        SCOPED_TRACE(option);
        expectOneSentence(runDemo(folder, {file, option}), std::string(option) + " needs a value", 2);
        expectOneSentence(runDemo(folder, {file, option, ""}), std::string(option) + " needs a value", 2);
    }
}

TEST(DemoErrors, OfNumbersAreTold) {
    const Folder folder;
    const std::string file = savedPicture(folder);
    for (const char* scale : {"wide", "0", "-1", "0.0009", "1001", "nan", "inf", "0.5mm", "0,5", "1e400"}) {
        SCOPED_TRACE(scale);
        expectOneSentence(runDemo(folder, {file, "--scale", scale}),
                          "--scale needs a number from 0.001 to 1000, not '" + std::string(scale) + "'", 2);
    }
    expectOneSentence(runDemo(folder, {file, "--side", "wide"}), "not 'wide'", 2);
    expectOneSentence(runDemo(folder, {file, "--least-area", "-3"}), "not '-3'", 2);
    for (const char* part : {"1,2,3", "1,2,3,4,5", "1,2,3,-4", "all"})
        expectOneSentence(runDemo(folder, {file, "--part", part}), "LEFT,TOP,WIDTH,HEIGHT, not '", 2);
}

TEST(DemoErrors, OfPartsOutsideThePictureAreTold) {
    const Folder folder;
    const std::string file = savedPicture(folder);
    for (const char* part : {"0,0,141,80", "1,0,140,80", "0,10,140,71", "10,10,0,5"})
        expectOneSentence(runDemo(folder, {file, "--part", part}), "does not lie within", 1);
}

TEST(DemoErrors, OfPictureNamesAreTold) {
    const Folder folder;
    const std::string file = savedPicture(folder);
    for (const char* name : {"result.gif", "result", "png"})
        expectOneSentence(runDemo(folder, {file, "--picture", name}), ".png, .svg or .pdf", 2);
}

TEST(DemoErrors, OfFilesThatAreNoPicturesAreTold) {
    const Folder folder;
    expectOneSentence(runDemo(folder, {folder.file("none.png").string()}),
                      "none.png' cannot be opened for reading", 1);
    expectOneSentence(runDemo(folder, {folder.file("").string()}), "is a folder, not a picture", 1);
    writeText(folder.file("text.png"), "This is no picture.\n");
    expectOneSentence(runDemo(folder, {folder.file("text.png").string()}), "text.png' is not a picture", 1);
    writeText(folder.file("empty.png"), "");
    expectOneSentence(runDemo(folder, {folder.file("empty.png").string()}), "empty.png' is not a picture", 1);
}

TEST(DemoErrors, OfPicturesThatAreCutOffAreTold) {
    const Folder folder;
    for (const char* name : {"disc.png", "disc.jpg"}) {
        const std::string file = savedPicture(folder, name);
        EXPECT_EQ(0, runDemo(folder, {file}).status);
        for (double share : {0.1, 0.5, 0.9, 0.999}) {
            SCOPED_TRACE(testing::Message() << name << ' ' << share);
            expectOneSentence(runDemo(folder, {cutOff(folder, file, share)}), "is damaged or cut off", 1);
        }
    }
}

TEST(DemoErrors, OfPicturesWithAWrongByteAreTold) {
    const Folder folder;
    std::string bytes = readText(savedPicture(folder));
    bytes[bytes.size() / 2] = static_cast<char>(bytes[bytes.size() / 2] ^ 1);
    writeText(folder.file("wrong.png"), bytes);
    expectOneSentence(runDemo(folder, {folder.file("wrong.png").string()}), "is damaged or cut off", 1);
}

TEST(DemoErrors, OfFilesThatCannotBeWrittenAreTold) {
    const Folder folder;
    const std::string file = savedPicture(folder);
    const std::string nowhere = folder.file("no/such/folder/result").string();
    for (const auto& [option, suffix] :
         {std::pair("--csv", ".csv"), std::pair("--json", ".json"), std::pair("--archive", ".gka"),
          std::pair("--picture", ".png"), std::pair("--picture", ".svg"), std::pair("--picture", ".pdf")}) {
        SCOPED_TRACE(testing::Message() << option << ' ' << suffix);
        const Outcome run = runDemo(folder, {file, option, nowhere + suffix});
        EXPECT_EQ(1, run.status);
        EXPECT_THAT(run.complaint, HasSubstr(nowhere + suffix));
    }
    const Outcome run = runDemo(folder, {file, "--out", file});
    EXPECT_EQ(1, run.status);
    EXPECT_THAT(run.complaint, HasSubstr("cannot be made"));
}

TEST(DemoErrors, LeaveNothingBehind) {
    const Folder folder;
    const std::string out = folder.file("out").string();
    runDemo(folder, {folder.file("none.png").string(), "--out", out});
    runDemo(folder, {savedPicture(folder), "--out", out, "--scale", "0"});
    EXPECT_FALSE(std::filesystem::exists(out));
}
