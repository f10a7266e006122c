// Texts: UTF-8 in the bytes, whatever the width of a wide character.
#include "platform/core/archive/utf8.h"
#include "tests/platform/core/archive/test_objects.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using test::loaded;
using test::saved;

TEST(ArchiveText, IsTheCountAndTheBytes) {
    EXPECT_EQ("00 00 00 00", saved(std::string()));
    EXPECT_EQ("02 00 00 00 61 62", saved(std::string("ab")));
    EXPECT_EQ("ab", loaded<std::string>("02 00 00 00 61 62"));
}

TEST(ArchiveText, MayHoldAZeroCharacter) {
    const std::string text("a\0b", 3);
    EXPECT_EQ("03 00 00 00 61 00 62", saved(text));
    EXPECT_EQ(text, loaded<std::string>(saved(text)));
}

TEST(ArchiveText, IsTheSameForWideAndNarrow) {
    // a, e acute, euro sign, G clef: one, two, three and four bytes.
    const std::wstring wide = L"a\u00e9\u20ac\U0001d11e";
    const char* golden = "0a 00 00 00 61 c3 a9 e2 82 ac f0 9d 84 9e";
    EXPECT_EQ(golden, saved(wide));
    EXPECT_EQ(golden, saved(std::string("a\xc3\xa9\xe2\x82\xac\xf0\x9d\x84\x9e")));
    EXPECT_EQ(wide, loaded<std::wstring>(golden));
}

TEST(ArchiveText, ThatIsNotUtf8IsRefusedInBothDirections) {
    // Stray continuation, overlong (2, 3, 4 bytes), surrogate, beyond Unicode, cut, wrong continuation, never a
    // lead.
    const std::vector<std::string> bad = {
        "80",    "c0 80",    "c1 bf", "e0 9f bf", "f0 8f bf bf", "ed a0 80", "ed bf bf", "f4 90 80 80",   "c3",
        "e2 82", "f0 9d 84", "c3 41", "e2 82 41", "f5 80 80 80", "ff",       "fe",       "f8 88 80 80 80"};
    for (const std::string& one : bad) {
        SCOPED_TRACE(one);
        const std::vector<unsigned char> raw = test::bytes(one);
        const std::string count = test::hex({static_cast<unsigned char>(raw.size()), 0, 0, 0});
        EXPECT_THROW(loaded<std::string>(count + " " + one), gkArchive::BadValue);
        EXPECT_THROW(loaded<std::wstring>(count + " " + one), gkArchive::BadValue);
        EXPECT_THROW(saved(std::string(raw.begin(), raw.end())), gkArchive::BadValue);
    }
}

TEST(ArchiveText, ThatIsNotUnicodeIsRefused) {
    EXPECT_THROW(saved(std::wstring(1, static_cast<wchar_t>(0xD800))), gkArchive::BadValue);
    EXPECT_THROW(saved(std::wstring(1, static_cast<wchar_t>(0xDFFF))), gkArchive::BadValue);
    if constexpr (sizeof(wchar_t) == 4) {
        EXPECT_THROW(saved(std::wstring(1, static_cast<wchar_t>(0x110000))), gkArchive::BadValue);
    }
}

TEST(ArchiveText, LongerThanTheArchiveIsRefusedBeforeMemoryIsTaken) {
    EXPECT_THROW(loaded<std::string>("03 00 00 00 61 62"), gkArchive::CountTooLarge);
    EXPECT_THROW(loaded<std::string>("ff ff ff ff"), gkArchive::CountTooLarge);
    EXPECT_THROW(loaded<std::wstring>("ff ff ff ff 61"), gkArchive::CountTooLarge);
}

TEST(ArchiveText, ThatFailsToLoadLeavesTheFormerText) {
    gkArchiveMemory in(test::archive("01 00 00 00 ff"));
    std::string text = "before";
    EXPECT_THROW(in || text, gkArchive::BadValue);
    EXPECT_EQ("before", text);
}

TEST(Utf8, MakesTheSameBytesOfSixteenAndThirtyTwoBitUnits) {
    const std::u16string wide16 = u"a\u00e9\u20ac\U0001d11e\U0010ffff\ue000";
    const std::u32string wide32 = U"a\u00e9\u20ac\U0001d11e\U0010ffff\ue000";
    std::string from16;
    std::string from32;
    ASSERT_TRUE(gk_Utf8::narrow(wide16, from16));
    ASSERT_TRUE(gk_Utf8::narrow(wide32, from32));
    EXPECT_EQ(from16, from32);
    std::u16string back16;
    std::u32string back32;
    ASSERT_TRUE(gk_Utf8::widen(from16, back16));
    ASSERT_TRUE(gk_Utf8::widen(from32, back32));
    EXPECT_EQ(wide16, back16);
    EXPECT_EQ(wide32, back32);
}

TEST(Utf8, KeepsEveryCodePoint) {
    for (std::uint32_t codePoint = 0; codePoint < 0x110000; ++codePoint) {
        if (gk_Utf8::isSurrogate(codePoint)) continue;
        std::string utf8;
        gk_Utf8::append(codePoint, utf8);
        std::size_t position = 0;
        ASSERT_EQ(codePoint, gk_Utf8::next(utf8, position));
        ASSERT_EQ(utf8.size(), position);
    }
}

TEST(Utf8, RefusesHalvesOfSurrogatePairs) {
    std::string utf8;
    const char16_t high = 0xD834;
    const char16_t low = 0xDD1E;
    EXPECT_TRUE(gk_Utf8::narrow(std::u16string{high, low}, utf8));
    EXPECT_FALSE(gk_Utf8::narrow(std::u16string{high}, utf8));
    EXPECT_FALSE(gk_Utf8::narrow(std::u16string{low}, utf8));
    EXPECT_FALSE(gk_Utf8::narrow(std::u16string{high, u'a'}, utf8));
    EXPECT_FALSE(gk_Utf8::narrow(std::u16string{high, high}, utf8));
    EXPECT_FALSE(gk_Utf8::narrow(std::u16string{high, 0xE000}, utf8));
    EXPECT_FALSE(gk_Utf8::narrow(std::u16string{low, high}, utf8));
}

TEST(Utf8, IsNotWidenedWhereItIsNotUtf8) {
    std::u16string wide16;
    std::u32string wide32;
    for (const char* text : {"\xff", "a\x80", "\xf0\x9d\x84", "\xed\xa0\x80"}) {
        EXPECT_FALSE(gk_Utf8::widen(text, wide16)) << text;
        EXPECT_FALSE(gk_Utf8::widen(text, wide32)) << text;
    }
}
