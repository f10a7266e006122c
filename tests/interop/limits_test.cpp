// What hostile texts are bounded by.
#include "interop/geojson.h"
#include "interop/svg_path.h"
#include "interop/wkt.h"
#include "tests/interop/texts.h"

namespace {

std::string repeated(const std::string& piece, std::size_t count) {
    std::string all;
    for (std::size_t i = 0; i < count; ++i) all += piece;
    return all;
}

std::string collections(std::size_t depth) {
    return repeated("GEOMETRYCOLLECTION (", depth) + "POLYGON EMPTY" + std::string(depth, ')');
}

// `depth` brackets in all, the object's among them.
std::string brackets(std::size_t depth) {
    return R"({"deep":)" + std::string(depth - 1, '[') + std::string(depth - 1, ']') +
           R"(,"type":"MultiPolygon","coordinates":[]})";
}

} // namespace

TEST(TextLimits, LongTextsAreRefusedUnread) {
    const std::string spaces(gkTextDefs::kMostBytes + 1, ' ');
    expectRefused<gkTextDefs::TooLarge>([&] { gnWkt::readContour(spaces); }, 0, "64 MiB");
    expectRefused<gkTextDefs::TooLarge>([&] { gnGeoJson::readContour(spaces); }, 0, "64 MiB");
    expectRefused<gkTextDefs::TooLarge>([&] { gnSvgPath::readContour(spaces); }, 0, "64 MiB");
    EXPECT_EQ(gkContour(), gnSvgPath::readContour(std::string_view(spaces).substr(1)));
}

TEST(TextLimits, CollectionsAreNotNestedDeeperThanTheBound) {
    EXPECT_EQ(1u, gnWkt::readRegionSet(collections(gkTextDefs::kMostDepth)).regions().size());
    expectRefused<gkTextDefs::TooLarge>([] { gnWkt::readRegionSet(collections(gkTextDefs::kMostDepth + 1)); },
                                        std::string("GEOMETRYCOLLECTION (").size() * gkTextDefs::kMostDepth,
                                        "64 levels");
    expectRefused<gkTextDefs::TooLarge>([] { gnWkt::readRegionSet(collections(1000000)); },
                                        std::string("GEOMETRYCOLLECTION (").size() * gkTextDefs::kMostDepth,
                                        "64 levels");
}

TEST(TextLimits, JsonIsNotNestedDeeperThanTheBound) {
    EXPECT_EQ(0u, gnGeoJson::readRegionSet(brackets(gkTextDefs::kMostDepth)).regions().size());
    expectRefused<gkTextDefs::TooLarge>([] { gnGeoJson::readRegionSet(brackets(gkTextDefs::kMostDepth + 1)); },
                                        std::string(R"({"deep":)").size() + gkTextDefs::kMostDepth - 1,
                                        "64 levels");
    expectRefused<gkTextDefs::TooLarge>([] { gnGeoJson::readRegionSet(std::string(1000000, '[')); },
                                        gkTextDefs::kMostDepth, "64 levels");
}

TEST(TextLimits, RingsAreCounted) {
    const std::size_t most = gkTextDefs::kMostRings;
    const std::string words = "1048576 rings";
    expectRefused<gkTextDefs::TooLarge>(
        [&] { gnWkt::readRegionSet("MULTIPOLYGON (" + repeated("EMPTY,", most + 1)); },
        std::string("MULTIPOLYGON (").size() + most * 6, words);
    expectRefused<gkTextDefs::TooLarge>(
        [&] {
            gnGeoJson::readRegionSet(R"({"type":"MultiPolygon","coordinates":[)" + repeated("[],", most) +
                                     "[]]}");
        },
        std::string(R"({"type":"MultiPolygon","coordinates":[)").size() + most * 3, words);
    expectRefused<gkTextDefs::TooLarge>([&] { gnSvgPath::readContours(repeated("M0,0", most + 1)); }, most * 4,
                                        words);
}
