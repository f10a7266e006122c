// What shapes that carry edgelets refuse: without a transform, with one that has no inverse, unknown records.
#include "tests/ch_core/edgelets.h"
#include "tests/support/regions.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

const auto kKeep = gkContourDefs::eKeepIntersections;

// Maps the plane onto the line y = x.
Transform flat() { return Transform(new gk2XformLinear(gkXform<2>(gkMatrix<2>(1, 1, 1, 1), {0, 0}))); }

gkEdgelet at(double x, double y) { return gkEdgelet({x, y}, 0, gkAngle8(0)); }

// A contour of version 0: one edgelet at (1, 2) of magnitude 0x0304 and angle 5, no transform.
const char* const kContourOfVersion0 = "00"                                // version
                                       "01 00 00000000 01"                 // contour: base, label, closed
                                       "00 01000000"                       // vertices
                                       "000000000000f03f 0000000000000040" // 1, 2
                                       "03000000"                          // cachedVectorSize
                                       "00 01000000"                       // data
                                       "000000000000f03f 0000000000000040 0403 05";

// Everything that needs a transform throws; everything else works.
void expectNoTransform(EdgeletContour& contour) {
    EXPECT_TRUE(contour.dataFromPointsXform().isNull());
    EXPECT_THROW(contour.datum({1, 1}), gkBadPointer);
    EXPECT_THROW(contour.point(at(1, 1)), gkBadPointer);
    EXPECT_THROW(contour.point(at(1, 1)), gkBadPointer) << "the second time";

    EXPECT_THROW(contour.points(points("1 1, 2 5")), gkBadPointer);
    EXPECT_EQ(points("1 1, 2 5"), contour.points());
    EXPECT_TRUE(contour.data().empty());
    EXPECT_EQ(std::sqrt(17.0) * 2, contour.length());

    EXPECT_THROW(contour.data(triangle()), gkBadPointer);
    EXPECT_EQ(triangle(), contour.data());
    EXPECT_EQ(points("1 1, 2 5"), contour.points());

    EXPECT_NO_THROW(contour.points(Points()));
    EXPECT_TRUE(contour.data().empty());
    EXPECT_NO_THROW(contour.data({}));
}

template <class Shape, class Use> void expectUnknownVersion(int version, int line, Use load) {
    Shape shape;
    try {
        load(shape, archiveOf(toHex({static_cast<unsigned char>(version)})));
        ADD_FAILURE() << "nothing was thrown";
    } catch (const gkArchive::UnknownVersion& error) {
        EXPECT_STREQ("ch_core/cntrtmpl", error.text());
        EXPECT_EQ(line, error.number());
    }
}

} // namespace

TEST(EdgeletWithoutTransform, ADefaultContourRefuses) {
    EdgeletContour contour;
    expectNoTransform(contour);
}

TEST(EdgeletWithoutTransform, ALoadedContourOfVersion0Refuses) {
    EdgeletContour contour;
    loadInto(contour, archiveOf(kContourOfVersion0));
    EXPECT_EQ(points("1 2"), contour.points());
    EXPECT_EQ((std::vector<gkEdgelet>{gkEdgelet({1, 2}, 0x0304, gkAngle8(5))}), contour.data());
    expectNoTransform(contour);
}

TEST(EdgeletWithoutTransform, ACopyAndAnAssignedContourRefuse) {
    const EdgeletContour bare;
    EdgeletContour copy(bare);
    expectNoTransform(copy);
    EdgeletContour assigned(triangle(), scale(2));
    assigned = bare;
    expectNoTransform(assigned);
}

TEST(EdgeletWithoutTransform, DefaultAndLoadedRegionsRefuse) {
    EdgeletRegion region;
    expectNoTransform(region);
    EdgeletRegion source(triangle(), 4);
    EdgeletRegion read;
    loadInto(read, archived(source));
    expectNoTransform(read);
    EdgeletRegion fromBare(EdgeletContour(), 3);
    expectNoTransform(fromBare);
}

TEST(EdgeletWithoutTransform, PlainHolesOfARegionWithAnOutlineAreRefused) {
    EdgeletRegion source(triangle(), 4);
    EdgeletRegion read;
    loadInto(read, archived(source));
    gkRegion& plain = read;
    EXPECT_THROW(plain.holes({}), gkBadPointer);
    EXPECT_THROW(plain.holes({sharedSquare(0.5, 0.5, 0.25)}), gkBadPointer);
    EXPECT_TRUE(plain.holes().empty());
    EXPECT_EQ(4.0, read.area(true));
    EXPECT_NO_THROW(read.holes({gkPtrHandle_const<EdgeletRegion>(new EdgeletRegion)})) << "its own holes";
}

TEST(EdgeletWithoutTransform, AssigningACompleteOneMakesItUsable) {
    EdgeletContour contour;
    EXPECT_THROW(contour.data(triangle()), gkBadPointer);
    contour = EdgeletContour(triangle(), scale(2));
    EXPECT_EQ(gkVector<2>(3, 4), contour.point(at(6, 8)));
    EXPECT_EQ(at(6, 8), contour.datum({3, 4}));
    EdgeletContour loaded;
    EdgeletContour source(triangle(), scale(2));
    loadInto(loaded, archived(source));
    EXPECT_EQ(at(6, 8), loaded.datum({3, 4}));
}

TEST(EdgeletWithoutTransform, Version0LoadedIntoAContourWithOneLeavesIt) {
    EdgeletContour contour(triangle(), scale(2));
    loadInto(contour, archiveOf(kContourOfVersion0));
    EXPECT_EQ(points("1 2"), contour.points()) << "as stored, not derived";
    EXPECT_EQ(gkVector<2>(1, 2), contour.data()[0].position());
    EXPECT_EQ(gkVector<2>(6, 8), contour.datum({3, 4}).position());
}

TEST(EdgeletWithoutTransform, PlainRegionsWithOutlinesAreRefusedByASet) {
    const Shared plain = sharedSquare(0, 0, 2);
    EdgeletSet set;
    EXPECT_THROW(set.regions({plain}, kKeep), gkBadPointer);
    ASSERT_EQ(1u, set.regions().size());
    EXPECT_EQ(4.0, set.area(false));
    ASSERT_EQ(1u, set.regionsT().size());
    EXPECT_TRUE(set.regionsT()[0].isNull());
    EXPECT_THROW(set.regions(std::vector<Shared>{plain}, kKeep), gkBadPointer);
    EXPECT_THROW(set.regions(Holes{plain}, gkContourDefs::eRegularize), gkBadPointer);
    EXPECT_THROW(set.add(plain, gkContourDefs::eOuterHull), gkBadPointer);
    EXPECT_EQ(2u, set.regions().size());
    set.regions({}, kKeep);
    EXPECT_TRUE(set.regionsT().empty());
    EXPECT_EQ(0.0, set.area(false));
}

TEST(EdgeletWithoutTransform, PlainRegionsWithoutVerticesNeedNone) {
    const Shared bare(new gkRegion);
    bare->label(9);
    EdgeletSet set;
    set.regions({bare, bare}, kKeep);
    ASSERT_EQ(2u, set.regionsT().size());
    EXPECT_TRUE(set.regionsT()[0] != set.regionsT()[1]);
    EXPECT_EQ(0ul, set.regionsT()[0]->label());
    EXPECT_TRUE(set.regionsT()[0]->dataFromPointsXform().isNull());
    EXPECT_TRUE(set.regions()[0] == bare);
}

TEST(EdgeletWithoutInverse, EverythingThatDerivesPointsThrows) {
    Transform none = flat();
    EXPECT_THROW(EdgeletContour(triangle(), none), gkMathError::Singular);
    EXPECT_THROW(EdgeletRegion(triangle(), none, 1), gkMathError::Singular);
    EdgeletContour contour({}, none);
    EXPECT_THROW(contour.point(at(1, 1)), gkMathError::Singular);
    EXPECT_THROW(contour.data(triangle()), gkMathError::Singular);
    EXPECT_EQ(triangle(), contour.data());
    EXPECT_TRUE(contour.points().empty());
    EXPECT_THROW(contour.data(triangle()), gkMathError::Singular) << "the second time";
    EdgeletRegion region({}, none, 1);
    EXPECT_THROW(region.data(triangle()), gkMathError::Singular);
    EXPECT_THROW(region.point(at(1, 1)), gkMathError::Singular);
}

TEST(EdgeletWithoutInverse, EverythingElseWorks) {
    EdgeletContour contour({}, flat());
    EXPECT_THROW(contour.data(triangle()), gkMathError::Singular);
    EXPECT_EQ(at(3, 3), contour.datum({1, 2}));
    contour.points(points("0 0, 3 4"));
    EXPECT_EQ((std::vector<gkEdgelet>{at(0, 0), at(7, 7)}), contour.data());
    EXPECT_EQ(10.0, contour.length());
    EXPECT_NO_THROW(contour.data({}));
    contour.points(points("0 0, 3 4"));
    EdgeletContour copy(contour);
    EXPECT_TRUE(copy == contour);
    EXPECT_THROW(copy.point(at(1, 1)), gkMathError::Singular);
    EdgeletContour read;
    loadInto(read, archived(contour));
    EXPECT_EQ(contour.points(), read.points());
    EXPECT_EQ(contour.data(), read.data());
    EXPECT_THROW(read.point(at(1, 1)), gkMathError::Singular);
    contour = EdgeletContour(triangle(), scale(2));
    EXPECT_EQ(gkVector<2>(3, 4), contour.point(at(6, 8)));
}

TEST(EdgeletWithoutInverse, ARegionsPlainHolesNeedNone) {
    Transform none = flat();
    EdgeletRegion region({}, none, 1);
    region.points(points("0 0, 9 0, 0 9"));
    static_cast<gkRegion&>(region).holes({sharedSquare(1, 1, 2)});
    EXPECT_EQ(36.5, region.area(true));
    EXPECT_EQ(at(9, 9), region.data()[1]);
}

TEST(EdgeletWithoutInverse, ARegionFromAContourDerivesNothing) {
    EdgeletContour contour({}, flat());
    contour.points(points("0 0, 3 4"));
    const EdgeletRegion region(contour, 2);
    EXPECT_TRUE(region.points().empty());
    EXPECT_EQ(contour.data(), region.data());
}

TEST(EdgeletRefusals, EveryUnknownVersionTellsFileAndLine) {
    const auto load = [](auto& shape, const std::vector<unsigned char>& bytes) { loadInto(shape, bytes); };
    for (int version = 1; version < 256; ++version) {
        SCOPED_TRACE(version);
        if (version > 1) expectUnknownVersion<EdgeletContour>(version, 98, load);
        expectUnknownVersion<EdgeletRegion>(version, 186, load);
        expectUnknownVersion<EdgeletSet>(version, 283, load);
    }
}

TEST(EdgeletRefusals, WhatIsNotOfferedLeavesEverythingAlone) {
    const EdgeletContour contour(triangle(), scale(2));
    EdgeletContour mapped(triangle(), scale(4));
    EdgeletRegion hull(triangle(), 5);
    EXPECT_THROW(contour.mapT(gkXform<2>(), mapped), gkPel::BadWindow);
    EXPECT_EQ(points("0 0, 1 0, 0 0.5"), mapped.points());
    EXPECT_THROW(contour.convexHullT(hull), gkPel::BadWindow);
    EXPECT_EQ(points("0 0, 4 0, 0 2"), hull.points());
    const EdgeletRegion region(triangle(), 6);
    EXPECT_THROW(region.mapT(gkXform<2>(), hull), gkPel::BadWindow);
    EXPECT_THROW(region.regularizeT(hull), gkPel::BadWindow);
    EXPECT_EQ(5ul, hull.label());
    EXPECT_EQ(triangle(), hull.data());
    EdgeletSet set(EdgeletSet::Regions{gkPtrHandle_const<EdgeletRegion>(new EdgeletRegion(region))});
    EXPECT_THROW(EdgeletSet().mapT(gkXform<2>(), set), gkPel::BadWindow);
    EXPECT_THROW(EdgeletSet().regularizeT(set), gkPel::BadWindow);
    EXPECT_EQ(1u, set.regions().size());
    EXPECT_EQ(1u, set.regionsT().size());
}

TEST(EdgeletRefusals, ARegionCannotBeOpened) {
    EdgeletRegion region(triangle(), 6);
    try {
        region.isClosed(false);
        ADD_FAILURE() << "nothing was thrown";
    } catch (const gkContourDefs::RegionCannotBeSetOpen& error) {
        EXPECT_EQ(L"", error.message());
    }
    EXPECT_TRUE(region.isClosed());
    EXPECT_EQ(triangle(), region.data());
}
