// What is written reads back to the bit, whatever the shape.
#include "interop/geojson.h"
#include "interop/svg_path.h"
#include "interop/wkt.h"
#include "tests/gen/each.h"
#include "tests/interop/texts.h"

#include <cmath>

namespace {

bool isFinite(const Points& points) {
    for (const gkVector<2>& p : points)
        if (!std::isfinite(p.x()) || !std::isfinite(p.y())) return false;
    return true;
}

void expectSameAfterwards(const gkContour& contour) {
    EXPECT_TRUE(sameContour(contour, gnWkt::readContour(gnWkt::write(contour))));
    EXPECT_TRUE(sameContour(contour, gnGeoJson::readContour(gnGeoJson::write(contour))));
    EXPECT_TRUE(sameContour(contour, gnSvgPath::readContour(gnSvgPath::write(contour))));
}

void expectSameAfterwards(const gkRegion& region) {
    EXPECT_TRUE(sameRegion(region, gnWkt::readRegion(gnWkt::write(region))));
    EXPECT_TRUE(sameRegion(region, gnGeoJson::readRegion(gnGeoJson::write(region))));
    EXPECT_TRUE(sameRegion(region, gnSvgPath::readRegion(gnSvgPath::write(region))));
}

void expectSameAfterwards(const gkRegionSet& set) {
    EXPECT_TRUE(sameSet(set, gnWkt::readRegionSet(gnWkt::write(set))));
    EXPECT_TRUE(sameSet(set, gnGeoJson::readRegionSet(gnGeoJson::write(set))));
    EXPECT_TRUE(sameSet(set, gnSvgPath::readRegionSet(gnSvgPath::write(set))));
}

// Any finite double, each bit pattern as likely as another.
double anyFinite(gen::Random& random) {
    double value = kNan;
    while (!std::isfinite(value)) {
        const std::uint64_t bits = random.next();
        std::memcpy(&value, &bits, sizeof value);
    }
    return value;
}

} // namespace

TEST(TextRoundTrip, OfContoursOfEveryKind) {
    gen::eachOutline(20, [](const Points& points, bool closed, std::uint64_t) {
        const gkContour contour(points, closed, 0);
        if (!isFinite(points)) {
            EXPECT_THROW(gnWkt::write(contour), gkTextDefs::CannotWrite);
            EXPECT_THROW(gnGeoJson::write(contour), gkTextDefs::CannotWrite);
            EXPECT_THROW(gnSvgPath::write(contour), gkTextDefs::CannotWrite);
        } else if (closed || !points.empty()) { // an open path without vertices is refused
            expectSameAfterwards(contour);
        }
    });
}

TEST(TextRoundTrip, OfRegionsAndSetsOfEveryKind) {
    gen::eachShape(20, [](const Points& points, std::uint64_t seed) {
        if (!isFinite(points) || points.empty()) return;
        const gkRegion plain(points);
        expectSameAfterwards(plain);
        const gkRect box = plain.points().size() < 2 ? gkRect() : plain.encloseRect(gkXform<2>());
        const gkVector<2> margin(1 + box.width(), 1 + box.height());
        const gkVector<2> low = box.ul() - margin, high = box.lr() + margin;
        if (!isFinite({low, high})) return;
        const gkRegion holed = regionWithHoles({low, {high.x(), low.y()}, high, {low.x(), high.y()}},
                                               std::vector<Points>(1 + seed % 2, points));
        expectSameAfterwards(holed);
        expectSameAfterwards(setOf({plain, holed, gkRegion(), holed}));
    });
}

TEST(TextRoundTrip, OfAnyFiniteNumbers) {
    gen::Random random(11);
    Points points;
    for (int i = 0; i < 50000; ++i) {
        const double x = anyFinite(random);
        points.emplace_back(x, anyFinite(random));
    }
    for (const bool closed : {false, true}) expectSameAfterwards(gkContour(points, closed, 0));
}

TEST(TextRoundTrip, OfNothing) {
    expectSameAfterwards(gkContour());
    expectSameAfterwards(gkRegion());
    expectSameAfterwards(gkRegionSet());
    EXPECT_TRUE(gnWkt::readContour(gnWkt::write(gkContour({}, false, 0))) == gkContour({}, false, 0));
    EXPECT_TRUE(gnGeoJson::readContour(gnGeoJson::write(gkContour({}, false, 0))) == gkContour({}, false, 0));
}
