// The errors of the bundled layer.
#include "platform/core/object/errors.h"
#include "platform/system/assert.h"

#include <gtest/gtest.h>

#include <set>

namespace {

template <class Error> void check(std::set<long>& numbers) {
    const Error error;
    EXPECT_NE(L"", error.message());
    EXPECT_EQ(L"own text", Error(L"own text").message());
    EXPECT_TRUE(numbers.insert(error.errorNumber()).second);
    EXPECT_TRUE(error.errorNumber() < 0x10004680 || error.errorNumber() > 0x10004684);
    EXPECT_THROW(throw error, gkExceptionWithString);
    try {
        (new Error(L"own text"))->suicideAndRethrow();
        ADD_FAILURE() << "not thrown";
    } catch (const Error& thrown) {
        EXPECT_EQ(L"own text", thrown.message());
    }
}

} // namespace

TEST(Errors, HaveTextsAndNumbersOfTheirOwnAndRethrowThemselves) {
    std::set<long> numbers = {gkAssertionFailed("", "", 0).errorNumber()};
    check<gkMathError::Singular>(numbers);
    check<gkMathError::OutOfRange>(numbers);
    check<gkBadPointer>(numbers);
    check<gkPel::BadWindow>(numbers);
    EXPECT_EQ(5u, numbers.size());
}
