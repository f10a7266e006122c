// The bases of all errors.
#include "platform/core/object/exception.h"

#include <gtest/gtest.h>

#include <sstream>
#include <type_traits>

namespace {

class Numbered : public gkException {
public:
    long errorNumber() const override { return 5; }
    void suicideAndRethrow() override {}
};

class Worded : public gkExceptionWithString {
public:
    explicit Worded(const wchar_t* text) : gkExceptionWithString(text) {}
    long errorNumber() const override { return 6; }
    void suicideAndRethrow() override {}
};

static_assert(std::is_abstract_v<gkException>);
static_assert(std::is_abstract_v<gkExceptionWithString>);
static_assert(!std::is_base_of_v<std::exception, gkException>);
static_assert(std::is_convertible_v<gkExceptionWithString*, gkPersistent*>);

} // namespace

TEST(Exception, HasNoTextOfItsOwn) { EXPECT_EQ(L"", Numbered().message()); }

TEST(Exception, WithStringKeepsItsText) {
    EXPECT_EQ(L"caf\u00e9", Worded(L"caf\u00e9").message());
    EXPECT_EQ(L"", Worded(L"").message());
    EXPECT_EQ(L"", Worded(nullptr).message());
}

TEST(Exception, WritesItsTextToAStream) {
    std::wostringstream out;
    const gkException& error = Worded(L"text");
    error.message_(out);
    EXPECT_EQ(L"text", out.str());
}

TEST(Exception, CopiesItsText) {
    const Worded original(L"text");
    Worded copy(original);
    EXPECT_EQ(L"text", copy.message());
    copy = Worded(L"other");
    EXPECT_EQ(L"other", copy.message());
    EXPECT_EQ(L"text", original.message());
}
