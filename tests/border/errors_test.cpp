// Errors that the library throws and the program catches. Oracle: the chain of bases that the headers tell.
#include "tests/border/thrown.h"

#include <gtest/gtest.h>

#include <exception>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>

namespace {

// Made here; copied, freed and thrown by the library.
template <class Error, class... Bases, class... Arguments>
void expectSelfThrown(const Arguments&... arguments) {
    SCOPED_TRACE(typeid(Error).name());
    expectCaughtByItsChain<Error, Bases...>([&] { (new Error(arguments...))->suicideAndRethrow(); });
}

gkArchiveMemory reading(std::vector<unsigned char> record) {
    std::vector<unsigned char> bytes = gkArchiveMemory().bytes();
    bytes.insert(bytes.end(), record.begin(), record.end());
    return gkArchiveMemory(std::move(bytes));
}

// A transform of the program's that fails with an error of the program's.
class Failing : public gk2XformBase {
public:
    struct Error {
        int code;
    };

    gkVector<2> mapPoint(const gkVector<2>&) const override { throw Error{17}; }
    gkPtrHandle_const<gk2XformBase> inverseBase() const override { throw std::runtime_error("no way back"); }
    gkPtrHandle_const<gk2XformBase> clone() const override {
        return gkPtrHandle_const<gk2XformBase>(new Failing);
    }
};

gkContourT<gkEdgelet> withFailingTransform() {
    return gkContourT<gkEdgelet>({}, gkPtrHandle_const<gk2XformBase>(new Failing));
}

} // namespace

TEST(BorderErrors, OfContoursAreCaughtByEveryClassOfTheirChain) {
    using Errors = gkContourDefs::Errors;
    expectCaughtByItsChain<gkContourDefs::EmptyContour, Errors>([] { gkContour().meanPosition(); });
    expectCaughtByItsChain<gkContourDefs::EmptyRegionSet, Errors>([] { gkRegionSet().centerOfMass(false); });
    expectCaughtByItsChain<gkContourDefs::BadParams, Errors>([] { gkContour().cachedVectorSize(-1); });
    expectCaughtByItsChain<gkContourDefs::RegionCannotBeSetOpen, Errors>([] { gkRegion().isClosed(false); });
}

TEST(BorderErrors, OfTheCoreAreCaughtByEveryClassOfTheirChain) {
    expectCaughtByItsChain<gkMathError::Singular>([] { gkMatrix<2>(1, 2, 2, 4).inverse(); });
    expectCaughtByItsChain<gkMathError::OutOfRange>([] { gkContour(gkPolygon(), 0); });
    expectCaughtByItsChain<gkBadPointer>([] { gkPtrHandle<gkContour>()->length(); });
    expectCaughtByItsChain<gkPel::BadWindow>([] {
        gkContourT<gkEdgelet> result;
        gkContourT<gkEdgelet>().mapT(gkXform<2>(), result);
    });
    expectCaughtByItsChain<gkAssertionFailed>([] { gstd_assert_("1 < 0", "here.cpp", 3); });
}

TEST(BorderErrors, OfPicturesAndFitsAreCaughtByEveryClassOfTheirChain) {
    expectCaughtByItsChain<gkUITablet::BadSize>([] { gkSvgTablet(0, 1); });
    expectCaughtByItsChain<gkUITablet::CannotWrite>([] { gkSvgTablet(1, 1).save("no such folder/x.svg"); });
    expectCaughtByItsChain<gkEllipseFitDefs::TooFewPoints>([] {
        gkEllipse ellipse;
        double error = 0.0;
        gkContour({{0, 0}, {1, 0}, {0, 1}}, true, 0).fitEllipse(ellipse, error);
    });
    expectSelfThrown<gkEllipseFitDefs::Degenerate>(L"");
    expectSelfThrown<gkEllipseFitDefs::NotFinite>(L"");
    expectSelfThrown<gkEllipseFitDefs::LimitExceeded>(L"");
    expectSelfThrown<gkEllipseFitDefs::BadParams>(L"");
}

TEST(BorderErrors, OfBytesAreCaughtByEveryClassOfTheirChain) {
    using Errors = gkArchive::Errors;
    expectCaughtByItsChain<gkArchive::NotAnArchive, Errors>([] { gkArchiveMemory({1, 2, 3, 4, 5, 6, 7, 8}); });
    expectCaughtByItsChain<gkArchive::CannotOpen, Errors>(
        [] { gkArchiveFile("no such file", gkArchiveFile::eLoad); });
    expectCaughtByItsChain<gkArchive::UnknownVersion, Errors>([] {
        gkContour contour;
        gkArchiveMemory in = reading({9});
        in || contour;
    });
    expectCaughtByItsChain<gkArchive::Truncated, Errors>([] {
        double value = 0.0;
        gkArchiveMemory in = reading({1});
        in || value;
    });
    expectCaughtByItsChain<gkArchive::TrailingBytes, Errors>([] { reading({1}).finish(); });
}

TEST(BorderErrors, ThatRethrowThemselvesAreCaughtByEveryClassOfTheirChain) {
    using Errors = gkArchive::Errors;
    expectSelfThrown<gkArchive::UnknownFormat, Errors>();
    expectSelfThrown<gkArchive::CountTooLarge, Errors>();
    expectSelfThrown<gkArchive::UnknownType, Errors>();
    expectSelfThrown<gkArchive::WrongType, Errors>();
    expectSelfThrown<gkArchive::BadReference, Errors>();
    expectSelfThrown<gkArchive::BadValue, Errors>();
    expectSelfThrown<gkArchive::ValueOutOfRange, Errors>();
    expectSelfThrown<gkArchive::TooDeep, Errors>();
    expectSelfThrown<gkArchive::ReadFailed, Errors>();
    expectSelfThrown<gkArchive::WriteFailed, Errors>();
    expectSelfThrown<gkArchive::WrongDirection, Errors>();
}

TEST(BorderErrors, KeepTheirTextAndNumber) {
    try {
        gkContour({}, true, 0).cachedVectorSize(-1);
        ADD_FAILURE() << "not thrown";
    } catch (const gkException& error) {
        EXPECT_EQ(0x10004683, error.errorNumber());
        EXPECT_EQ(L"", error.message());
    }
    const std::wstring text(1000, L'\u00e4'); // too long for the string's own room
    try {
        (new gkBadPointer(text.c_str()))->suicideAndRethrow();
        ADD_FAILURE() << "not thrown";
    } catch (const gkException& error) {
        EXPECT_EQ(text, error.message());
    }
}

TEST(BorderErrors, CanBeKeptAndThrownAgainOnAnotherThread) {
    std::exception_ptr kept;
    std::thread([&kept] {
        try {
            gkContour().meanPosition();
        } catch (...) {
            kept = std::current_exception();
        }
    }).join();
    ASSERT_TRUE(kept != nullptr);
    EXPECT_THROW(std::rethrow_exception(kept), gkContourDefs::EmptyContour);
    EXPECT_EQ(0, std::uncaught_exceptions());
}

TEST(BorderErrors, OfTheProgramPassThroughTheLibrary) {
    gkContourT<gkEdgelet> contour = withFailingTransform();
    try {
        contour.points({{1, 2}});
        ADD_FAILURE() << "not thrown";
    } catch (const Failing::Error& error) {
        EXPECT_EQ(17, error.code);
    }
    EXPECT_THROW(contour.data({gkEdgelet()}), std::runtime_error);
    EXPECT_EQ(0, std::uncaught_exceptions());
}

TEST(BorderErrors, OfTheStandardLibraryPassThroughTheLibrary) {
    gkAssertHandler before =
        gk_SetAssertHandler([](const char*, const char*, long) { throw std::out_of_range("told"); });
    EXPECT_THROW(gstd_assert_("x", "y", 1), std::logic_error);
    gk_SetAssertHandler(before);
    EXPECT_EQ(0, std::uncaught_exceptions());
}
