// Colours: channels, equality and hexadecimal text.
#include "platform/display/color.h"

#include <gtest/gtest.h>

namespace {

TEST(Color, IsOpaqueBlackByDefault) { EXPECT_EQ(gkColor(0, 0, 0, 255), gkColor()); }

TEST(Color, IsOpaqueUnlessAnAlphaIsGiven) {
    EXPECT_EQ(255, gkColor(1, 2, 3).a());
    EXPECT_EQ(4, gkColor(1, 2, 3, 4).a());
}

TEST(Color, KeepsItsChannelsApart) {
    const gkColor color(1, 2, 3, 4);
    EXPECT_EQ(1, color.r());
    EXPECT_EQ(2, color.g());
    EXPECT_EQ(3, color.b());
    EXPECT_EQ(4, color.a());
}

TEST(Color, DiffersInEachChannel) {
    const gkColor color(1, 2, 3, 4);
    EXPECT_TRUE(color == gkColor(1, 2, 3, 4));
    EXPECT_FALSE(color != gkColor(1, 2, 3, 4));
    EXPECT_TRUE(color != gkColor(9, 2, 3, 4));
    EXPECT_TRUE(color != gkColor(1, 9, 3, 4));
    EXPECT_TRUE(color != gkColor(1, 2, 9, 4));
    EXPECT_TRUE(color != gkColor(1, 2, 3, 9));
}

TEST(Color, HexHasTwoLowerCaseDigitsPerChannel) {
    EXPECT_EQ("#000000", gkColor::black().hex());
    EXPECT_EQ("#ff0000", gkColor::red().hex());
    EXPECT_EQ("#00ff00", gkColor::green().hex());
    EXPECT_EQ("#0000ff", gkColor::blue().hex());
    EXPECT_EQ("#0a1bc3", gkColor(10, 27, 195, 7).hex());
}

TEST(Color, WithAlphaKeepsTheHue) { EXPECT_EQ(gkColor(1, 2, 3, 40), gkColor(1, 2, 3).withAlpha(40)); }

TEST(Color, ConstantsAreUsableAtCompileTime) {
    static_assert(gkColor::yellow() == gkColor(255, 255, 0), "red and green make yellow");
    static_assert(gkColor::cyan() != gkColor::magenta(), "");
}

} // namespace
