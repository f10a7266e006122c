#include "interop/wkt.h"
#include "platform/core/object/errors.h"
#include "tests/interop/texts.h"

TEST(WktWriting, AnOpenContourIsALine) {
    EXPECT_EQ("LINESTRING (0 0, 4 0.5, -0 1e+22)",
              gnWkt::write(gkContour({{0, 0}, {4, 0.5}, {-0.0, 1e22}}, false, 3)));
    EXPECT_EQ("LINESTRING (1 2)", gnWkt::write(gkContour({{1, 2}}, false, 0)));
    EXPECT_EQ("LINESTRING EMPTY", gnWkt::write(gkContour({}, false, 0)));
}

TEST(WktWriting, AClosedContourIsAPolygonThatRepeatsItsFirstVertex) {
    EXPECT_EQ("POLYGON ((0 0, 4 0, 0 3, 0 0))", gnWkt::write(gkContour({{0, 0}, {4, 0}, {0, 3}}, true, 3)));
    EXPECT_EQ("POLYGON ((1 2, 1 2))", gnWkt::write(gkContour({{1, 2}}, true, 0)));
    EXPECT_EQ("POLYGON EMPTY", gnWkt::write(gkContour()));
}

TEST(WktWriting, HolesFollowTheOutline) {
    EXPECT_EQ("POLYGON ((0 0, 9 0, 9 9, 0 9, 0 0), (1 1, 2 1, 2 2, 1 2, 1 1), EMPTY)",
              gnWkt::write(regionWithHoles(square(0, 0, 9), {square(1, 1, 1), {}})));
    EXPECT_EQ("POLYGON EMPTY", gnWkt::write(gkRegion()));
}

TEST(WktWriting, ASetIsAMultipolygon) {
    EXPECT_EQ("MULTIPOLYGON (((0 0, 1 0, 1 1, 0 1, 0 0)), EMPTY)",
              gnWkt::write(setOf({gkRegion(square(0, 0, 1)), gkRegion()})));
    EXPECT_EQ("MULTIPOLYGON EMPTY", gnWkt::write(gkRegionSet()));
}

TEST(WktWriting, WhatTheFormatCannotTellIsRefused) {
    EXPECT_THROW(gnWkt::write(gkContour({{0, 0}, {1, kNan}}, false, 0)), gkTextDefs::CannotWrite);
    EXPECT_THROW(gnWkt::write(gkRegion({{0, 0}, {kInfinity, 1}})), gkTextDefs::CannotWrite);
    gkRegion outer(square(0, 0, 9));
    outer.holes({Shared(new gkRegion(regionWithHoles(square(1, 1, 5), {square(2, 2, 1)})))});
    EXPECT_THROW(gnWkt::write(outer), gkTextDefs::CannotWrite);
    gkRegion emptied = regionWithHoles(square(0, 0, 9), {square(1, 1, 1)});
    emptied.points({{0, 0}});
    EXPECT_THROW(gnWkt::write(emptied), gkTextDefs::CannotWrite);
    EXPECT_THROW(gnWkt::write(gkRegionSet({Shared()})), gkBadPointer);
}

TEST(WktWriting, ARefusalNamesTheVertex) {
    try {
        gnWkt::write(gkContour({{0, 0}, {1, kNan}}, false, 0));
        FAIL() << "was written";
    } catch (const gkTextDefs::CannotWrite& error) {
        EXPECT_EQ(L"vertex 1 is not finite", error.message());
    }
}

TEST(WktReading, ALineIsAnOpenContour) {
    const gkContour contour = gnWkt::readContour("LINESTRING (0 0, 4 0.5, -0 1e+22)");
    EXPECT_TRUE(sameContour(gkContour({{0, 0}, {4, 0.5}, {-0.0, 1e22}}, false, 0), contour));
    EXPECT_EQ(gkContour({}, false, 0), gnWkt::readContour("LINESTRING EMPTY"));
}

TEST(WktReading, APolygonWithoutHolesIsAClosedContour) {
    EXPECT_EQ(gkContour({{0, 0}, {4, 0}, {0, 3}}, true, 0),
              gnWkt::readContour("POLYGON ((0 0, 4 0, 0 3, 0 0))"));
    EXPECT_EQ(gkContour(), gnWkt::readContour("POLYGON EMPTY"));
    expectRefused<gkTextDefs::Unsupported>(
        [] { gnWkt::readContour("POLYGON ((0 0, 4 0, 0 3, 0 0), (1 1, 2 1, 1 2, 1 1))"); }, 31, "no holes");
}

TEST(WktReading, TakesEveryFormOfNumbersSpacesAndLetters) {
    EXPECT_EQ(gkContour({{1, -0.5}, {2, 300}, {0.25, 4}}, false, 0),
              gnWkt::readContour(" \t\n\f\rLineString(+1 -.5,2.\t3E2 , 2.5e-1\n4.0e+0 ) "));
}

TEST(WktReading, HolesBelongToTheRegion) {
    EXPECT_TRUE(
        sameRegion(regionWithHoles(square(0, 0, 9), {square(1, 1, 1), {}}),
                   gnWkt::readRegion("POLYGON ((0 0, 9 0, 9 9, 0 9, 0 0), (1 1, 2 1, 2 2, 1 2, 1 1), EMPTY)")));
}

TEST(WktReading, AHoleThatMeetsItsOutlineIsRefused) {
    expectRefused<gkTextDefs::Unsupported>(
        [] { gnWkt::readRegion("POLYGON ((0 0, 9 0, 9 9, 0 0), (8 1, 10 1, 10 2, 8 1))"); }, 8, "meet");
    expectRefused<gkTextDefs::Unsupported>([] { gnWkt::readRegion("POLYGON (EMPTY, (8 1, 9 1, 8 1))"); }, 8,
                                           "two vertices");
}

TEST(WktReading, SetsComeFromPolygonsInAnyCompany) {
    const gkRegion one(square(0, 0, 1)), two(square(5, 5, 1));
    const std::string first = "((0 0, 1 0, 1 1, 0 1, 0 0))", second = "((5 5, 6 5, 6 6, 5 6, 5 5))";
    EXPECT_TRUE(
        sameSet(setOf({one, two}), gnWkt::readRegionSet("MULTIPOLYGON (" + first + ", " + second + ")")));
    EXPECT_TRUE(sameSet(setOf({one}), gnWkt::readRegionSet("POLYGON " + first)));
    EXPECT_TRUE(sameSet(setOf({two, gkRegion(), one, two}),
                        gnWkt::readRegionSet("GEOMETRYCOLLECTION (POLYGON " + second +
                                             ", GEOMETRYCOLLECTION (MULTIPOLYGON (EMPTY, " + first +
                                             "), GEOMETRYCOLLECTION EMPTY), POLYGON " + second + ")")));
    EXPECT_TRUE(sameSet(gkRegionSet(), gnWkt::readRegionSet("MULTIPOLYGON EMPTY")));
    EXPECT_TRUE(sameSet(gkRegionSet(), gnWkt::readRegionSet("GEOMETRYCOLLECTION EMPTY")));
}

TEST(WktReading, AKindThatIsNotWantedIsRefused) {
    expectRefused<gkTextDefs::Unsupported>([] { gnWkt::readContour(" MULTIPOLYGON EMPTY"); }, 1, "contour");
    expectRefused<gkTextDefs::Unsupported>([] { gnWkt::readRegion("LINESTRING EMPTY"); }, 0, "one polygon");
    expectRefused<gkTextDefs::Unsupported>(
        [] { gnWkt::readRegionSet("GEOMETRYCOLLECTION (POLYGON EMPTY, LINESTRING (1 2, 3 4))"); }, 46,
        "no lines");
    for (const std::string other :
         {"POINT (1 2)", "multipoint ((1 2))", "CurvePolygon EMPTY", "TIN EMPTY", "PointZM (1 2 3 4)"})
        expectRefused<gkTextDefs::Unsupported>([&] { gnWkt::readRegion(other); }, 0, "no shape is made of a");
}

TEST(WktReading, MoreThanTwoCoordinatesAreRefused) {
    const std::string words = "two coordinates only";
    expectRefused<gkTextDefs::Unsupported>([] { gnWkt::readContour("LINESTRING Z (1 2 3, 4 5 6)"); }, 11,
                                           words);
    expectRefused<gkTextDefs::Unsupported>([] { gnWkt::readContour("LINESTRING zm EMPTY"); }, 11, words);
    expectRefused<gkTextDefs::Unsupported>([] { gnWkt::readContour("LINESTRING (1 2 3, 4 5 6)"); }, 16, words);
    expectRefused<gkTextDefs::Unsupported>([] { gnWkt::readContour("LINESTRINGZ (1 2 3)"); }, 0, "LINESTRINGZ");
}

TEST(WktReading, WhatIsNoWellKnownTextIsRefusedAtItsPlace) {
    const auto refused = [](const std::string& text, std::size_t offset, const std::string& words) {
        SCOPED_TRACE(text);
        expectRefused<gkTextDefs::BadText>([&] { gnWkt::readContour(text); }, offset, words);
    };
    refused("", 0, "LINESTRING, POLYGON");
    refused("  (1 2)", 2, "LINESTRING, POLYGON");
    refused("SRID=4326;LINESTRING (1 2)", 0, "LINESTRING, POLYGON");
    refused("LINESTRING", 10, "EMPTY or an opening parenthesis");
    refused("LINESTRING EMPTIES", 11, "EMPTY or an opening parenthesis");
    refused("LINESTRING ()", 12, "a finite number");
    refused("LINESTRING (1)", 13, "a space and a second number");
    refused("LINESTRING (1-2)", 13, "a space and a second number");
    refused("LINESTRING (1 2", 15, "a comma or a closing parenthesis");
    refused("LINESTRING (1 2; 3 4)", 15, "a comma or a closing parenthesis");
    refused("LINESTRING (1 2,)", 16, "a finite number");
    refused("LINESTRING (1 nan)", 14, "a finite number");
    refused("LINESTRING (inf 1)", 12, "a finite number");
    refused("LINESTRING (. 1)", 12, "a finite number");
    refused("LINESTRING (1 2) x", 17, "the end of the text");
    refused(std::string("LINESTRING (1 2)\0", 17), 16, "the end of the text");
    refused("POLYGON (1 2, 3 4)", 9, "EMPTY or an opening parenthesis");
    refused("POLYGON ((1 2, 3 4))", 9, "ends with the position it begins with");
    refused("POLYGON ((1 2))", 9, "ends with the position it begins with");
}

TEST(WktReading, NumbersBeyondDoubleAreRefused) {
    const auto refused = [](const std::string& number) {
        SCOPED_TRACE(number);
        expectRefused<gkTextDefs::BadText>([&] { gnWkt::readContour("LINESTRING (0 " + number + ")"); }, 14,
                                           "range of double");
    };
    for (const char* number :
         {"1e309", "-1e400", "1e99999999999999999999", "1e-400", "-2e-324", "1e-99999999999"})
        refused(number);
    const gkContour contour =
        gnWkt::readContour("LINESTRING (0e99999 -0e-99999, 5e-324 1.7976931348623157e308)");
    EXPECT_TRUE(sameContour(gkContour({{0.0, -0.0}, {5e-324, 1.7976931348623157e308}}, false, 0), contour));
}
