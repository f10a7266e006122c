// The shapes' errors: numbers, classes, archive form.
#include "cntr/contour_defs.h"
#include "platform/core/archive/archive_memory.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>

namespace {

using Defs = gkContourDefs;

// A concrete error that counts its living instances, to see that the heap object is freed.
class CountedBadParams : public Defs::BadParams {
public:
    CountedBadParams() : Defs::BadParams(L"counted") { ++alive(); }
    CountedBadParams(const CountedBadParams& other) : Defs::BadParams(other) { ++alive(); }
    CountedBadParams& operator=(const CountedBadParams&) = default;
    ~CountedBadParams() override { --alive(); }
    static int& alive() {
        static int count = 0;
        return count;
    }
};

template <class Error> std::unique_ptr<gkPersistent> writtenAndRead(const Error& error) {
    gkArchiveMemory out;
    out.writeObject(&error);
    gkArchiveMemory in(out.bytes());
    std::unique_ptr<gkPersistent> object(in.readObject());
    in.finish();
    return object;
}

template <class Error> class ContourErrors : public testing::Test {};
using Concrete =
    testing::Types<Defs::EmptyContour, Defs::EmptyRegionSet, Defs::BadParams, Defs::RegionCannotBeSetOpen>;
TYPED_TEST_SUITE(ContourErrors, Concrete);

} // namespace

TEST(ContourDefs, ErrorsCarryTheirFixedNumbers) {
    EXPECT_EQ(0x10004680, Defs::EmptyContour(L"").errorNumber());
    EXPECT_EQ(0x10004682, Defs::EmptyRegionSet(L"").errorNumber());
    EXPECT_EQ(0x10004683, Defs::BadParams(L"").errorNumber());
    EXPECT_EQ(0x10004684, Defs::RegionCannotBeSetOpen(L"").errorNumber());
}

TEST(ContourDefs, NoErrorCarriesTheNumberBetweenTheFirstTwo) {
    const std::set<long> numbers = {Defs::EmptyContour(L"").errorNumber(),
                                    Defs::EmptyRegionSet(L"").errorNumber(), Defs::BadParams(L"").errorNumber(),
                                    Defs::RegionCannotBeSetOpen(L"").errorNumber()};
    EXPECT_EQ(4u, numbers.size());
    EXPECT_EQ(0u, numbers.count(0x10004681));
}

TEST(ContourDefs, EnumeratorsHaveTheirFixedValues) {
    EXPECT_EQ(0, Defs::eExact);
    EXPECT_EQ(1, Defs::eApproximate);
    EXPECT_EQ(0, Defs::eKeepIntersections);
    EXPECT_EQ(1, Defs::eOuterHull);
    EXPECT_EQ(2, Defs::eRegularize);
}

TEST(ContourDefs, MessageIsTheOneGiven) {
    EXPECT_EQ(L"why", Defs::BadParams(L"why").message());
    EXPECT_EQ(L"", Defs::EmptyContour(L"").message());
}

TYPED_TEST(ContourErrors, IsCaughtAsErrors) {
    try {
        throw TypeParam(L"text");
    } catch (const Defs::Errors& error) {
        EXPECT_EQ(L"text", error.message());
        EXPECT_EQ(TypeParam(L"").errorNumber(), error.errorNumber());
        EXPECT_TRUE(dynamic_cast<const TypeParam*>(&error) != nullptr);
    }
}

TYPED_TEST(ContourErrors, IsCaughtAsEveryClassOfItsChain) {
    EXPECT_THROW(throw TypeParam(L""), TypeParam);
    EXPECT_THROW(throw TypeParam(L""), gkExceptionWithString);
    EXPECT_THROW(throw TypeParam(L""), gkException);
    EXPECT_THROW(throw TypeParam(L""), gkPersistent);
}

TYPED_TEST(ContourErrors, WrittenAndReadIsOfTheSameClassAndNumber) {
    const std::unique_ptr<gkPersistent> read = writtenAndRead(TypeParam(L"lost on the way"));
    const auto* error = dynamic_cast<const TypeParam*>(read.get());
    ASSERT_TRUE(error != nullptr);
    EXPECT_EQ(TypeParam(L"").errorNumber(), error->errorNumber());
    EXPECT_EQ(L"", error->message());
}

TYPED_TEST(ContourErrors, RecordIsOneVersionByteForEveryLevel) {
    gkArchiveMemory empty;
    gkArchiveMemory out;
    TypeParam error(L"not written");
    out || static_cast<gkPersistent&>(error);
    const std::vector<unsigned char> record(
        out.bytes().begin() + static_cast<std::ptrdiff_t>(empty.bytes().size()), out.bytes().end());
    // concrete class, Errors, gkException, gkPersistent
    EXPECT_EQ((std::vector<unsigned char>{0, 0, 0, 0}), record);
}

TYPED_TEST(ContourErrors, RethrownFromTheHeapIsACopyOfItsClass) {
    gkException* held = new TypeParam(L"held");
    try {
        held->suicideAndRethrow();
        FAIL() << "nothing was thrown";
    } catch (const TypeParam& error) {
        EXPECT_EQ(L"held", error.message());
    }
}

TEST(ContourDefs, SuicideAndRethrowFreesTheHeapObject) {
    gkException* held = new CountedBadParams;
    EXPECT_EQ(1, CountedBadParams::alive());
    try {
        held->suicideAndRethrow();
        FAIL() << "nothing was thrown";
    } catch (const Defs::BadParams& error) {
        EXPECT_EQ(L"counted", error.message());
    }
    EXPECT_EQ(0, CountedBadParams::alive());
}

namespace {

// Offset of a version byte within the record of an error, counted from the concrete class's own.
template <class Error> void expectUnknownVersion(std::size_t level, const std::string& text) {
    gkArchiveMemory empty;
    gkArchiveMemory out;
    Error error(L"");
    out || static_cast<gkPersistent&>(error);
    std::vector<unsigned char> bytes = out.bytes();
    bytes[empty.bytes().size() + level] = 1;
    gkArchiveMemory in(bytes);
    try {
        in || static_cast<gkPersistent&>(error);
        FAIL() << "nothing was thrown";
    } catch (const gkArchive::UnknownVersion& unknown) {
        EXPECT_EQ(text, unknown.text());
        EXPECT_EQ(0, unknown.number());
    }
}

} // namespace

TEST(ContourDefs, UnknownVersionNamesTheClass) {
    expectUnknownVersion<Defs::EmptyContour>(0, "gkContourDefs::EmptyContour");
    expectUnknownVersion<Defs::EmptyRegionSet>(0, "gkContourDefs::EmptyRegionSet");
    expectUnknownVersion<Defs::BadParams>(0, "gkContourDefs::BadParams");
    expectUnknownVersion<Defs::RegionCannotBeSetOpen>(0, "gkContourDefs::RegionCannotBeSetOpen");
}

TEST(ContourDefs, UnknownVersionOfTheBaseLevelNamesErrors) {
    expectUnknownVersion<Defs::BadParams>(1, "gkContourDefs::Errors");
}

TEST(ContourDefs, AnErrorVisitedBeforeIsWrittenOnce) {
    gkArchiveMemory once;
    gkArchiveMemory twice;
    Defs::BadParams error(L"");
    once || static_cast<gkPersistent&>(error);
    twice || static_cast<gkPersistent&>(error);
    twice || static_cast<gkPersistent&>(error);
    EXPECT_EQ(once.bytes(), twice.bytes());
}
