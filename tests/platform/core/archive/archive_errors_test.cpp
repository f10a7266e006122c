// The archive's errors as a family.
#include "platform/core/archive/archive.h"

#include <gtest/gtest.h>

#include <set>

namespace {

// Errors seen so far: numbers must not come twice.
template <class Error> void check(std::set<long>& numbers) {
    const Error error;
    EXPECT_NE(L"", error.message());
    EXPECT_TRUE(numbers.insert(error.errorNumber()).second) << error.errorNumber();
    EXPECT_TRUE(error.errorNumber() < 0x10004680 || error.errorNumber() > 0x10004684);
    EXPECT_THROW(throw error, gkArchive::Errors);
    EXPECT_THROW(throw error, gkException);
    EXPECT_THROW((new Error(error))->suicideAndRethrow(), Error);
    try {
        (new Error(error))->suicideAndRethrow();
    } catch (const Error& thrown) {
        EXPECT_EQ(error.message(), thrown.message());
        EXPECT_EQ(error.errorNumber(), thrown.errorNumber());
    }
}

} // namespace

TEST(ArchiveErrors, HaveTextsNumbersOfTheirOwnAndOneBase) {
    std::set<long> numbers;
    check<gkArchive::UnknownVersion>(numbers);
    check<gkArchive::NotAnArchive>(numbers);
    check<gkArchive::UnknownFormat>(numbers);
    check<gkArchive::Truncated>(numbers);
    check<gkArchive::TrailingBytes>(numbers);
    check<gkArchive::CountTooLarge>(numbers);
    check<gkArchive::UnknownType>(numbers);
    check<gkArchive::WrongType>(numbers);
    check<gkArchive::BadReference>(numbers);
    check<gkArchive::BadValue>(numbers);
    check<gkArchive::ValueOutOfRange>(numbers);
    check<gkArchive::TooDeep>(numbers);
    check<gkArchive::CannotOpen>(numbers);
    check<gkArchive::ReadFailed>(numbers);
    check<gkArchive::WriteFailed>(numbers);
    check<gkArchive::WrongDirection>(numbers);
    EXPECT_EQ(16u, numbers.size());
}

TEST(UnknownVersion, CarriesTextAndNumber) {
    const gkArchive::UnknownVersion error("cntr/contour", 12);
    EXPECT_STREQ("cntr/contour", error.text());
    EXPECT_EQ(12, error.number());
    EXPECT_EQ(L"unknown version: cntr/contour (12)", error.message());
    gkArchive::UnknownVersion copy;
    copy = error;
    EXPECT_STREQ("cntr/contour", copy.text());
}

TEST(UnknownVersion, ShowsThatATextIsNotAscii) {
    EXPECT_EQ(L"unknown version: na??ve (1)", gkArchive::UnknownVersion("na\xC3\xAFve", 1).message());
}

TEST(UnknownVersion, WithoutTextHasAnEmptyOneAndZero) {
    EXPECT_STREQ("", gkArchive::UnknownVersion().text());
    EXPECT_EQ(0, gkArchive::UnknownVersion().number());
    EXPECT_STREQ("", gkArchive::UnknownVersion(nullptr, 3).text());
    EXPECT_EQ(3, gkArchive::UnknownVersion(nullptr, 3).number());
}

TEST(UnknownVersion, KeepsItsTextWhenRethrown) {
    try {
        (new gkArchive::UnknownVersion("a", 1))->suicideAndRethrow();
    } catch (const gkArchive::UnknownVersion& error) {
        EXPECT_STREQ("a", error.text());
        EXPECT_EQ(1, error.number());
    }
}
