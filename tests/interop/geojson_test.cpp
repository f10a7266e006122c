#include "interop/geojson.h"
#include "tests/interop/texts.h"

TEST(GeoJsonWriting, AnOpenContourIsALine) {
    EXPECT_EQ(R"({"type":"LineString","coordinates":[[0,0],[4,0.5],[-0.0,1e+22]]})",
              gnGeoJson::write(gkContour({{0, 0}, {4, 0.5}, {-0.0, 1e22}}, false, 3)));
    EXPECT_EQ(R"({"type":"LineString","coordinates":[]})", gnGeoJson::write(gkContour({}, false, 0)));
}

TEST(GeoJsonWriting, AClosedContourIsAPolygonThatRepeatsItsFirstVertex) {
    EXPECT_EQ(R"({"type":"Polygon","coordinates":[[[0,0],[4,0],[0,3],[0,0]]]})",
              gnGeoJson::write(gkContour({{0, 0}, {4, 0}, {0, 3}}, true, 3)));
    EXPECT_EQ(R"({"type":"Polygon","coordinates":[]})", gnGeoJson::write(gkContour()));
}

TEST(GeoJsonWriting, HolesFollowTheOutline) {
    EXPECT_EQ(R"({"type":"Polygon","coordinates":[[[0,0],[9,0],[0,9],[0,0]],[[1,1],[2,1],[1,2],[1,1]],[]]})",
              gnGeoJson::write(regionWithHoles({{0, 0}, {9, 0}, {0, 9}}, {{{1, 1}, {2, 1}, {1, 2}}, {}})));
}

TEST(GeoJsonWriting, ASetIsAMultipolygon) {
    EXPECT_EQ(R"({"type":"MultiPolygon","coordinates":[[[[0,0],[1,0],[1,1],[0,1],[0,0]]],[]]})",
              gnGeoJson::write(setOf({gkRegion(square(0, 0, 1)), gkRegion()})));
    EXPECT_EQ(R"({"type":"MultiPolygon","coordinates":[]})", gnGeoJson::write(gkRegionSet()));
}

TEST(GeoJsonWriting, WhatTheFormatCannotTellIsRefused) {
    EXPECT_THROW(gnGeoJson::write(gkContour({{0, 0}, {1, kNan}}, false, 0)), gkTextDefs::CannotWrite);
    EXPECT_THROW(gnGeoJson::write(gkRegion({{0, 0}, {kInfinity, 1}})), gkTextDefs::CannotWrite);
}

TEST(GeoJsonReading, MembersMayComeInAnyOrderAndCompany) {
    EXPECT_EQ(gkContour({{0, 0}, {4, 3}}, false, 0), gnGeoJson::readContour(R"(
        {"coordinates": [[0, 0], [4, 3]],
         "bbox": [0, 0, 4, 3], "extra": {"type": "Point", "list": [{}, [], null, true, "\u00e9"]},
         "type": "LineString"})"));
}

TEST(GeoJsonReading, TakesAByteOrderMarkAndEscapedNames) {
    EXPECT_EQ(
        gkContour({{1, 2}}, false, 0),
        gnGeoJson::readContour("\xEF\xBB\xBF{\"t\\u0079pe\":\"Line\\u0053tring\",\"coordinates\":[[1,2]]}"));
}

TEST(GeoJsonReading, KeepsTheSignOfZeroAndEveryBitOfLongIntegers) {
    const gkContour contour = gnGeoJson::readContour(
        R"({"type":"LineString","coordinates":[[-0,-0.0],[123456789012345678901234567890,-9007199254740993]]})");
    EXPECT_TRUE(sameContour(
        gkContour({{-0.0, -0.0}, {123456789012345678901234567890.0, -9007199254740992.0}}, false, 0), contour));
}

TEST(GeoJsonReading, APolygonIsAClosedContourOrARegion) {
    const std::string plain = R"({"type":"Polygon","coordinates":[[[0,0],[9,0],[0,9],[0,0]]]})";
    const std::string holed =
        R"({"type":"Polygon","coordinates":[[[0,0],[9,0],[0,9],[0,0]],[[1,1],[2,1],[1,2],[1,1]],[]]})";
    EXPECT_EQ(gkContour({{0, 0}, {9, 0}, {0, 9}}, true, 0), gnGeoJson::readContour(plain));
    EXPECT_TRUE(sameRegion(regionWithHoles({{0, 0}, {9, 0}, {0, 9}}, {{{1, 1}, {2, 1}, {1, 2}}, {}}),
                           gnGeoJson::readRegion(holed)));
    expectRefused<gkTextDefs::Unsupported>([&] { gnGeoJson::readContour(holed); }, holed.find("[[1,1]"),
                                           "no holes");
}

TEST(GeoJsonReading, SetsComeFromCollectionsAndFeatures) {
    const gkRegion one({{0, 0}, {1, 0}, {0, 1}}), two({{5, 5}, {6, 5}, {5, 6}});
    const std::string first = "[[[0,0],[1,0],[0,1],[0,0]]]", second = "[[[5,5],[6,5],[5,6],[5,5]]]";
    const std::string polygon = R"({"type":"Polygon","coordinates":)" + first + "}";
    const std::string multi = R"({"type":"MultiPolygon","coordinates":[)" + second + "," + first + "]}";
    EXPECT_TRUE(sameSet(setOf({one}), gnGeoJson::readRegionSet(polygon)));
    EXPECT_TRUE(sameSet(setOf({two, one}), gnGeoJson::readRegionSet(multi)));
    EXPECT_TRUE(sameSet(setOf({one, two, one}),
                        gnGeoJson::readRegionSet(R"({"type":"GeometryCollection","geometries":[)" + polygon +
                                                 "," + multi + "]}")));
    EXPECT_TRUE(sameSet(
        setOf({two, one, one}),
        gnGeoJson::readRegionSet(
            R"({"type":"FeatureCollection","features":[{"type":"Feature","properties":{},"geometry":)" + multi +
            R"(},{"type":"Feature","geometry":null},{"type":"Feature","geometry":)" + polygon + "}]}")));
    EXPECT_TRUE(sameRegion(one, gnGeoJson::readRegion(R"({"geometry":)" + polygon + R"(,"type":"Feature"})")));
}

TEST(GeoJsonReading, AKindThatIsNotWantedIsRefused) {
    const auto refused = [](const std::string& text, std::size_t offset, const std::string& words) {
        SCOPED_TRACE(text);
        expectRefused<gkTextDefs::Unsupported>([&] { gnGeoJson::readRegion(text); }, offset, words);
    };
    refused(R"({"type":"Point","coordinates":[1,2]})", 0, "no shape is made of a Point");
    refused(R"({"type":"LineString","coordinates":[]})", 0, "one polygon");
    refused(R"({"type":"Polygon","coordinates":[[[1,2,3],[1,2,3]]]})", 39, "two coordinates only");
    refused(R"({"type":"Polygon","coordinates":[[[0,0],[9,0],[9,9],[0,0]],[[8,1],[10,1],[10,2],[8,1]]]})", 32,
            "meet");
    expectRefused<gkTextDefs::Unsupported>(
        [] {
            gnGeoJson::readRegionSet(
                R"({"type":"GeometryCollection","geometries":[{"type":"LineString","coordinates":[[1,2]]}]})");
        },
        78, "no lines");
}

TEST(GeoJsonReading, WhatIsNoGeometryIsRefusedAtItsPlace) {
    const auto refused = [](const std::string& text, std::size_t offset, const std::string& words) {
        SCOPED_TRACE(text);
        expectRefused<gkTextDefs::BadText>([&] { gnGeoJson::readContour(text); }, offset, words);
    };
    refused("[]", 0, "an object");
    refused("{}", 0, R"(a member "type")");
    refused(R"({"type":1})", 8, "a string that names the type");
    refused(R"({"type": "Circle"})", 9, "LineString, Polygon");
    refused(R"({"type":"LineString"})", 0, R"(a member "coordinates")");
    refused(R"({"type":"LineString","type":"Polygon"})", 21, R"(one member "type")");
    refused(R"({"type":"LineString","coordinates":{}})", 35, "an array");
    refused(R"({"type":"LineString","coordinates":[1,2]})", 36, "a position");
    refused(R"({"type":"LineString","coordinates":[[]]})", 37, "two numbers");
    refused(R"({"type":"LineString","coordinates":[[1]]})", 38, "two numbers");
    refused(R"({"type":"LineString","coordinates":[[1,"2"]]})", 39, "two numbers");
    refused(R"({"type":"LineString","coordinates":[[1,2,null]]})", 41, "two numbers");
    refused(R"({"type":"Polygon","coordinates":[[[1,2],[3,4]]]})", 33, "ends with the position it begins with");
    refused(R"({"type":"Feature","geometry":7})", 29, "an object");
}

TEST(GeoJsonReading, WhatIsNoJsonIsRefusedAtItsPlace) {
    const auto refused = [](const std::string& text, std::size_t offset) {
        SCOPED_TRACE(text);
        expectRefused<gkTextDefs::BadText>([&] { gnGeoJson::readContour(text); }, offset, "JSON was expected");
    };
    refused("", 0);
    refused("{\"a\" 1}", 5);
    refused("{\"a\":[1,]}", 8);
    refused("{} {}", 3);
    refused("{\"a\":01}", 6);
    refused("{\"a\":NaN}", 5);
}

TEST(GeoJsonReading, NumbersBeyondDoubleAreRefused) {
    for (const std::string number : {"1e309", "-1e400", "1e-400", "-2e-324"}) {
        SCOPED_TRACE(number);
        expectRefused<gkTextDefs::BadText>(
            [&] { gnGeoJson::readContour(R"({"coordinates":[[0,)" + number + R"(]],"type":"LineString"})"); },
            19, "range of double");
    }
}
