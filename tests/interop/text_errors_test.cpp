#include "interop/wkt.h"
#include "tests/interop/texts.h"

TEST(TextErrors, TellLineAndColumnOfTheByte) {
    try {
        gnWkt::readContour("LINESTRING\n(1 2,\n 3 x)");
        FAIL() << "was read";
    } catch (const gkTextDefs::BadText& error) {
        EXPECT_EQ(20u, error.place().offset);
        EXPECT_EQ(3u, error.place().line);
        EXPECT_EQ(4u, error.place().column);
        EXPECT_EQ("a finite number was expected", error.explanation());
        EXPECT_EQ(L"line 3, column 4: a finite number was expected", error.message());
    }
}

TEST(TextErrors, HaveNumbersOfTheirOwn) {
    const gkTextDefs::Place place;
    EXPECT_EQ(0x10000501, gkTextDefs::BadText(place, "").errorNumber());
    EXPECT_EQ(0x10000502, gkTextDefs::Unsupported(place, "").errorNumber());
    EXPECT_EQ(0x10000503, gkTextDefs::TooLarge(place, "").errorNumber());
    EXPECT_EQ(0x10000504, gkTextDefs::CannotWrite(L"").errorNumber());
}

TEST(TextErrors, AreCaughtByEachOfTheirBases) {
    const auto read = [] { gnWkt::readContour(""); };
    EXPECT_THROW(read(), gkTextDefs::ReadErrors);
    EXPECT_THROW(read(), gkTextDefs::Errors);
    EXPECT_THROW(read(), gkException);
    const auto write = [] { gnWkt::write(gkContour({{kNan, 0}}, true, 0)); };
    EXPECT_THROW(write(), gkTextDefs::CannotWrite);
    EXPECT_THROW(write(), gkTextDefs::Errors);
}

TEST(TextErrors, AreThrownAnewAsTheirOwnClass) {
    gkTextDefs::Place place;
    place.offset = 9;
    const auto thrownAnew = [](gkException* held) { held->suicideAndRethrow(); };
    EXPECT_THROW(thrownAnew(new gkTextDefs::BadText(place, "")), gkTextDefs::BadText);
    EXPECT_THROW(thrownAnew(new gkTextDefs::TooLarge(place, "")), gkTextDefs::TooLarge);
    EXPECT_THROW(thrownAnew(new gkTextDefs::CannotWrite(L"")), gkTextDefs::CannotWrite);
    expectRefused<gkTextDefs::Unsupported>([&] { thrownAnew(new gkTextDefs::Unsupported(place, "reason")); }, 9,
                                           "reason");
}
