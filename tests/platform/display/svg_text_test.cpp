// The text pieces of SVG. Base64 vectors: RFC 4648, section 10. Ill-formed UTF-8: The Unicode Standard, tables
// 3-7, 3-8.
#include "platform/display/clean_text.h"
#include "platform/display/svg_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>

namespace {

std::vector<unsigned char> bytes(const std::string& text) { return {text.begin(), text.end()}; }

TEST(SvgText, NumbersAreShort) {
    EXPECT_EQ("0", gk_SvgText::number(0));
    EXPECT_EQ("1", gk_SvgText::number(1));
    EXPECT_EQ("-2.5", gk_SvgText::number(-2.5));
    EXPECT_EQ("0.1", gk_SvgText::number(0.1));
    EXPECT_EQ("0.30000000000000004", gk_SvgText::number(0.1 + 0.2));
    EXPECT_EQ("1e+300", gk_SvgText::number(1e300));
}

TEST(SvgText, NumbersReadBackAsTheSameDouble) {
    const uint64_t seed = 20240611;
    SCOPED_TRACE(seed);
    std::mt19937_64 random(seed);
    for (int i = 0; i < 20000; ++i) {
        const uint64_t bits = random();
        double value;
        std::memcpy(&value, &bits, sizeof value);
        if (!std::isfinite(value)) continue;
        EXPECT_EQ(value, std::strtod(gk_SvgText::number(value).c_str(), nullptr));
    }
    for (const double value : {std::numeric_limits<double>::max(), std::numeric_limits<double>::min(),
                               std::numeric_limits<double>::denorm_min(), -std::numeric_limits<double>::max()})
        EXPECT_EQ(value, std::strtod(gk_SvgText::number(value).c_str(), nullptr));
}

TEST(SvgText, MarkupCharactersBecomeEntities) {
    EXPECT_EQ("&lt;a href=&quot;b&amp;c&quot;&gt;&apos;&lt;/a&gt;",
              gk_SvgText::escaped("<a href=\"b&c\">'</a>"));
    EXPECT_EQ("plain", gk_SvgText::escaped("plain"));
    EXPECT_EQ("", gk_SvgText::escaped(""));
}

TEST(SvgText, Base64IsThatOfTheStandard) {
    EXPECT_EQ("", gk_SvgText::base64(bytes("")));
    EXPECT_EQ("Zg==", gk_SvgText::base64(bytes("f")));
    EXPECT_EQ("Zm8=", gk_SvgText::base64(bytes("fo")));
    EXPECT_EQ("Zm9v", gk_SvgText::base64(bytes("foo")));
    EXPECT_EQ("Zm9vYg==", gk_SvgText::base64(bytes("foob")));
    EXPECT_EQ("Zm9vYmE=", gk_SvgText::base64(bytes("fooba")));
    EXPECT_EQ("Zm9vYmFy", gk_SvgText::base64(bytes("foobar")));
    EXPECT_EQ("+/8A", gk_SvgText::base64({0xFB, 0xFF, 0x00}));
}

TEST(CleanText, KeepsUtf8OfAllLengths) {
    const std::string text = "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80 \xED\x9F\xBF\xEE\x80\x80\xF4\x8F\xBF\xBD";
    EXPECT_EQ(text, gk_CleanText::clean(text));
}

TEST(CleanText, KeepsTheFirstAndTheLastCharactersOfEachLength) {
    for (const std::string text : {"\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
                                   "\xEF\xBF\xBD", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"})
        EXPECT_EQ(text, gk_CleanText::clean(text));
}

TEST(CleanText, ControlCharactersBecomeSpaces) {
    EXPECT_EQ("a b c d e", gk_CleanText::clean(std::string("a\nb\tc\x7F"
                                                           "d\0e",
                                                           9)));
}

TEST(CleanText, EachIllFormedByteBecomesAReplacementCharacter) {
    const std::string bad = "\xEF\xBF\xBD";
    EXPECT_EQ(bad + "a", gk_CleanText::clean("\x80"
                                             "a")); // stray tail
    EXPECT_EQ(bad, gk_CleanText::clean("\xC3"));    // cut at the end
    EXPECT_EQ(bad + "a", gk_CleanText::clean("\xC3"
                                             "a"));                  // tail missing
    EXPECT_EQ(bad + bad, gk_CleanText::clean("\xE2\x82"));           // three bytes cut to two
    EXPECT_EQ(bad + bad, gk_CleanText::clean("\xF0\x9D"));           // four bytes cut to two
    EXPECT_EQ(bad + bad + bad, gk_CleanText::clean("\xF0\x9D\x84")); // and to three
    EXPECT_EQ(bad + bad, gk_CleanText::clean("\xC0\xAF"));           // overlong slash
    EXPECT_EQ(bad + bad + bad, gk_CleanText::clean("\xE0\x80\xAF")); // overlong slash, three bytes
    EXPECT_EQ(bad + bad + bad + bad, gk_CleanText::clean("\xF0\x80\x80\xAF"));
    EXPECT_EQ(bad + bad + bad, gk_CleanText::clean("\xED\xA0\x80"));           // surrogate
    EXPECT_EQ(bad + bad + bad + bad, gk_CleanText::clean("\xF4\x90\x80\x80")); // above U+10FFFF
    EXPECT_EQ(bad, gk_CleanText::clean("\xFF"));
}

TEST(CleanText, NoncharactersForbiddenInXmlAreReplaced) {
    EXPECT_EQ("\xEF\xBF\xBD\xEF\xBF\xBD", gk_CleanText::clean("\xEF\xBF\xBE\xEF\xBF\xBF"));
}

} // namespace
