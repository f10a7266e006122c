#include "interop/svg_path.h"
#include "tests/interop/texts.h"

namespace {

const gkContour kOpen({{1, 2}, {3, 4}, {5, 2}}, false, 0);
const gkContour kClosed({{1, 2}, {3, 4}, {5, 2}}, true, 0);

} // namespace

TEST(SvgPathWriting, EndsWithZWhereTheContourIsClosed) {
    EXPECT_EQ("M 1 2 L 3 4 L 5 2", gnSvgPath::write(kOpen));
    EXPECT_EQ("M 1 2 L 3 4 L 5 2 Z", gnSvgPath::write(kClosed));
    EXPECT_EQ("M -0 1e+22", gnSvgPath::write(gkContour({{-0.0, 1e22}}, false, 0)));
    EXPECT_EQ("", gnSvgPath::write(gkContour()));
}

TEST(SvgPathWriting, HolesFollowTheOutline) {
    EXPECT_EQ("M 0 0 L 9 0 L 0 9 Z M 1 1 L 2 1 L 1 2 Z",
              gnSvgPath::write(regionWithHoles({{0, 0}, {9, 0}, {0, 9}}, {{{1, 1}, {2, 1}, {1, 2}}})));
    EXPECT_EQ("", gnSvgPath::write(gkRegion()));
}

TEST(SvgPathWriting, ASetIsAPathForEachRegion) {
    EXPECT_EQ((std::vector<std::string>{"M 1 2 L 3 4 Z", ""}),
              gnSvgPath::write(setOf({gkRegion({{1, 2}, {3, 4}}), gkRegion()})));
}

TEST(SvgPathWriting, WhatTheFormatCannotTellIsRefused) {
    EXPECT_THROW(gnSvgPath::write(gkContour({{0, 0}, {1, kNan}}, false, 0)), gkTextDefs::CannotWrite);
    EXPECT_THROW(gnSvgPath::write(gkContour({}, false, 0)), gkTextDefs::CannotWrite);
    EXPECT_THROW(gnSvgPath::write(regionWithHoles(square(0, 0, 9), {{}})), gkTextDefs::CannotWrite);
}

TEST(SvgPathReading, CommandsAreAbsoluteOrRelative) {
    EXPECT_EQ(kOpen, gnSvgPath::readContour("M 1 2 L 3 4 L 5 2"));
    EXPECT_EQ(kOpen, gnSvgPath::readContour("m 1 2 l 2 2 l 2 -2"));
    EXPECT_EQ(gkContour({{1, 2}, {4, 2}, {4, 7}, {2, 7}, {2, 3}}, false, 0),
              gnSvgPath::readContour("M 1 2 H 4 V 7 h -2 v -4"));
}

TEST(SvgPathReading, CommandsRepeatWithoutTheirLetters) {
    EXPECT_EQ(kOpen, gnSvgPath::readContour("M 1 2 3 4 5 2"));
    EXPECT_EQ(kOpen, gnSvgPath::readContour("m 1 2 2 2 2 -2"));
    EXPECT_EQ(gkContour({{1, 2}, {3, 2}, {5, 2}, {5, 7}, {5, 6}}, false, 0),
              gnSvgPath::readContour("M1 2H3 5V7,6"));
}

TEST(SvgPathReading, TakesEveryFormOfNumbersAndSeparators) {
    EXPECT_EQ(gkContour({{10, -20}, {0.5, 0.25}, {-3, 400}}, false, 0),
              gnSvgPath::readContour("\nM10-20L.5.25\t-3 , +4e2 "));
}

TEST(SvgPathReading, ZClosesAndTheNextCommandGoesOnFromTheStart) {
    EXPECT_EQ(kClosed, gnSvgPath::readContour("M1 2L3 4L5 2z"));
    const std::vector<gkContour> contours = gnSvgPath::readContours("m1 2 3 4ZZl1 1Z m 2 2 h 1 M 0 0");
    ASSERT_EQ(4u, contours.size());
    EXPECT_EQ(gkContour({{1, 2}, {4, 6}}, true, 0), contours[0]);
    EXPECT_EQ(gkContour({{1, 2}, {2, 3}}, true, 0), contours[1]);
    EXPECT_EQ(gkContour({{3, 4}, {4, 4}}, false, 0), contours[2]);
    EXPECT_EQ(gkContour({{0, 0}}, false, 0), contours[3]);
}

TEST(SvgPathReading, AVertexThatIsToldTwiceIsKeptTwice) {
    EXPECT_EQ(gkContour({{0, 0}, {1, 0}, {0, 0}}, true, 0), gnSvgPath::readContour("M0 0 1 0 0 0Z"));
}

TEST(SvgPathReading, AnEmptyPathIsTheEmptyClosedContour) {
    EXPECT_EQ(gkContour(), gnSvgPath::readContour(" \n"));
    EXPECT_TRUE(gnSvgPath::readContours("").empty());
    EXPECT_TRUE(sameRegion(gkRegion(), gnSvgPath::readRegion("")));
}

TEST(SvgPathReading, ARegionIsTheFirstContourWithoutTheOthers) {
    const gkRegion region = regionWithHoles({{0, 0}, {9, 0}, {0, 9}}, {{{1, 1}, {2, 1}, {1, 2}}});
    EXPECT_TRUE(sameRegion(region, gnSvgPath::readRegion("M0 0H9L0 9ZM1 1H2L1 2Z")));
    EXPECT_TRUE(sameRegion(region, gnSvgPath::readRegion("M0 0H9L0 9M1 1H2L1 2"))); // filling closes them
    expectRefused<gkTextDefs::Unsupported>([] { gnSvgPath::readRegion("M0 0H9L0 9ZM1 1H20L1 2Z"); }, 0, "meet");
}

TEST(SvgPathReading, ASetIsReadPathByPath) {
    EXPECT_TRUE(sameSet(setOf({gkRegion({{1, 2}, {3, 4}}), gkRegion()}),
                        gnSvgPath::readRegionSet({"M 1 2 L 3 4 Z", ""})));
}

TEST(SvgPathReading, CurvesAreRefused) {
    for (const char letter : std::string("CcSsQqTtAa"))
        expectRefused<gkTextDefs::Unsupported>(
            [&] { gnSvgPath::readContours(std::string("M 0 0 ") + letter + " 1 2 3 4 5 6"); }, 6, "curves");
}

TEST(SvgPathReading, MoreThanOneContourIsRefusedWhereOneIsWanted) {
    expectRefused<gkTextDefs::Unsupported>([] { gnSvgPath::readContour("M 0 0 M 1 1"); }, 6, "one contour");
}

TEST(SvgPathReading, WhatIsNoPathIsRefusedAtItsPlace) {
    const auto refused = [](const std::string& text, std::size_t offset, const std::string& words) {
        SCOPED_TRACE(text);
        expectRefused<gkTextDefs::BadText>([&] { gnSvgPath::readContours(text); }, offset, words);
    };
    refused("L 1 2", 0, "begins with the command M");
    refused(" Z", 1, "begins with the command M");
    refused("1 2", 0, "one of the commands");
    refused("M 1 2 X", 6, "one of the commands");
    refused("M 1 2 , L 3 4", 8, "a finite number");
    refused("M 1 2 Z 3", 8, "one of the commands");
    refused(std::string("M 1 2\0", 6), 5, "one of the commands");
    refused("M", 1, "a finite number");
    refused("M 1", 3, "a finite number");
    refused("M 1,,2", 4, "a finite number");
    refused("M 1 2,", 6, "a finite number");
    refused("M 1 2 3", 7, "a finite number");
    refused("M 1 inf", 4, "a finite number");
    refused("M 1 1e309", 4, "range of double");
    refused("M 1e308 0 h 1e308", 12, "range of double");
}
