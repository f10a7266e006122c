// The assertion entry and its handler.
#include "platform/system/assert.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string seen;

void remember(const char* expression, const char* file, long line) {
    seen = std::string(expression) + "|" + file + "|" + std::to_string(line);
}

void other(const char*, const char*, long) {}

// Whatever a test installs goes with it.
class AssertTest : public testing::Test {
protected:
    void SetUp() override { seen.clear(); }
    void TearDown() override { gk_SetAssertHandler(nullptr); }
};

} // namespace

TEST_F(AssertTest, ThrowsATypedErrorByDefault) {
    try {
        gstd_assert_("a == b", "cntr/contour.cpp", 12);
        FAIL() << "not thrown";
    } catch (const gkAssertionFailed& error) {
        EXPECT_STREQ("a == b", error.expression());
        EXPECT_STREQ("cntr/contour.cpp", error.file());
        EXPECT_EQ(12, error.line());
        EXPECT_EQ(L"assertion failed: a == b (cntr/contour.cpp:12)", error.message());
    }
}

TEST_F(AssertTest, ShowsThatATextIsNotAscii) {
    EXPECT_EQ(L"assertion failed: ?? (f:1)", gkAssertionFailed("\xC3\xAF", "f", 1).message());
}

TEST_F(AssertTest, TakesNullTexts) {
    EXPECT_THROW(gstd_assert_(nullptr, nullptr, 0), gkAssertionFailed);
    EXPECT_STREQ("", gkAssertionFailed(nullptr, nullptr, 0).file());
    gk_SetAssertHandler(&remember);
    gstd_assert_(nullptr, nullptr, 7);
    EXPECT_EQ("||7", seen);
}

TEST_F(AssertTest, GoesOnWhenTheHandlerReturns) {
    gk_SetAssertHandler(&remember);
    gstd_assert_("x", "f", 3);
    EXPECT_EQ("x|f|3", seen);
}

TEST_F(AssertTest, TellsTheFormerHandlerAndTakesNullForTheDefault) {
    const gkAssertHandler standard = gk_SetAssertHandler(&remember);
    EXPECT_NE(nullptr, standard);
    EXPECT_EQ(&remember, gk_SetAssertHandler(&other));
    EXPECT_EQ(&other, gk_SetAssertHandler(nullptr));
    EXPECT_EQ(standard, gk_SetAssertHandler(&remember));
    EXPECT_EQ(&remember, gk_SetAssertHandler(nullptr));
    EXPECT_THROW(gstd_assert_("x", "f", 3), gkAssertionFailed);
}

TEST_F(AssertTest, TheErrorCopiesAndRethrowsItself) {
    try {
        (new gkAssertionFailed("x", "f", 3))->suicideAndRethrow();
        FAIL() << "not thrown";
    } catch (const gkExceptionWithString& error) {
        const gkAssertionFailed copy(dynamic_cast<const gkAssertionFailed&>(error));
        EXPECT_EQ(3, copy.line());
        EXPECT_STREQ("x", copy.expression());
    }
}
