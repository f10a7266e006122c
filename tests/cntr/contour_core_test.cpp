// Construction, accessors, equality, mapping, and what forgets kept results.
#include "cntr/region.h"
#include "platform/core/object/errors.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

#include <climits>
#include <limits>

namespace {

const char* const kTriangle = "0 0, 4 0, 0 3";

gkPolygon polygonOf(const std::string& text) { return gkPolygon(points(text)); }

} // namespace

TEST(ContourCore, KeepsWhatItIsGiven) {
    const gkContour contour(points(kTriangle), false, 17);
    EXPECT_EQ(points(kTriangle), contour.points());
    EXPECT_FALSE(contour.isClosed());
    EXPECT_EQ(17ul, contour.label());
    EXPECT_EQ(3, contour.cachedVectorSize());
}

TEST(ContourCore, DefaultIsEmptyClosedAndUnlabelled) {
    const gkContour contour;
    EXPECT_TRUE(contour.points().empty());
    EXPECT_TRUE(contour.isClosed());
    EXPECT_EQ(0ul, contour.label());
}

TEST(ContourCore, FromAPolygonWithEqualEndsIsClosedAndKeepsTheRepeatedVertex) {
    const gkContour contour(polygonOf("0 0, 4 0, 0 3, 0 0"), 5);
    EXPECT_TRUE(contour.isClosed());
    EXPECT_EQ(4u, contour.points().size());
    EXPECT_EQ(5ul, contour.label());
}

TEST(ContourCore, FromAPolygonWithEndsWithin1eMinus15IsClosedTheBoundIncluded) {
    EXPECT_TRUE(gkContour(gkPolygon({{0, 0}, {4, 0}, {0, 3}, {1e-15, -1e-15}}), 0).isClosed());
    EXPECT_FALSE(gkContour(gkPolygon({{0, 0}, {4, 0}, {0, 3}, {above(1e-15), 0}}), 0).isClosed());
}

TEST(ContourCore, FromAPolygonWithEndsApartBy1eMinus12IsOpen) {
    EXPECT_FALSE(gkContour(gkPolygon({{0, 0}, {4, 0}, {0, 3}, {1e-12, 0}}), 0).isClosed());
}

TEST(ContourCore, FromAnEmptyPolygonThrows) {
    EXPECT_THROW(gkContour(gkPolygon(), 0), gkMathError::OutOfRange);
}

TEST(ContourCore, PolygonOfAClosedContourRepeatsTheFirstVertex) {
    const gkPolygon polygon = closed(kTriangle).polygon();
    ASSERT_EQ(4u, polygon.size());
    EXPECT_EQ(polygon[0], polygon[3]);
    EXPECT_EQ(0, polygon.fillMode());
}

TEST(ContourCore, PolygonOfAnOpenContourHasItsVertices) { EXPECT_EQ(3u, open(kTriangle).polygon().size()); }

TEST(ContourCore, PolygonOfAnEmptyContourIsEmpty) { EXPECT_EQ(0u, closed("").polygon().size()); }

TEST(ContourCore, LabelIsNotPartOfEquality) {
    EXPECT_TRUE(gkContour(points(kTriangle), true, 1) == gkContour(points(kTriangle), true, 2));
}

TEST(ContourCore, EqualityComparesVerticesClosedFlagAndCachedVectorSize) {
    EXPECT_FALSE(closed(kTriangle) == open(kTriangle));
    EXPECT_FALSE(closed(kTriangle) == closed("0 0, 4 0, 0 4"));
    EXPECT_FALSE(closed(kTriangle) == closed("0 0, 4 0"));
    gkContour other = closed(kTriangle);
    other.cachedVectorSize(4);
    EXPECT_TRUE(closed(kTriangle) != other);
}

TEST(ContourCore, VerticesAreComparedExactly) {
    EXPECT_FALSE(gkContour({{0, 0}, {1, 1}}, true, 0) == gkContour({{0, 0}, {1, above(1)}}, true, 0));
}

TEST(ContourCore, NegativeCachedVectorSizeIsRefused) {
    gkContour contour = closed(kTriangle);
    contour.cachedVectorSize(7);
    try {
        contour.cachedVectorSize(-1);
        FAIL() << "nothing was thrown";
    } catch (const gkContourDefs::BadParams& error) {
        EXPECT_EQ(L"", error.message());
    }
    EXPECT_EQ(7, contour.cachedVectorSize());
    contour.cachedVectorSize(0);
    EXPECT_EQ(0, contour.cachedVectorSize());
}

TEST(ContourCore, ValuesBeyond32BitsAreRefusedNeverCut) {
    gkContour contour(points(kTriangle), true, 4294967295ul);
    EXPECT_EQ(4294967295ul, contour.label());
    contour.cachedVectorSize(2147483647);
    EXPECT_EQ(2147483647, contour.cachedVectorSize());
    if constexpr (sizeof(long) > 4) {
        EXPECT_THROW(contour.label(4294967295ul + 1), gkContourDefs::BadParams);
        EXPECT_THROW(contour.label(ULONG_MAX), gkContourDefs::BadParams);
        EXPECT_THROW(contour.cachedVectorSize(2147483647l + 1), gkContourDefs::BadParams);
        EXPECT_THROW(contour.cachedVectorSize(LONG_MAX), gkContourDefs::BadParams);
        EXPECT_THROW(gkContour(points(kTriangle), true, ULONG_MAX), gkContourDefs::BadParams);
        EXPECT_THROW(gkContour(polygonOf(kTriangle), ULONG_MAX), gkContourDefs::BadParams);
    }
    EXPECT_EQ(4294967295ul, contour.label());
    EXPECT_EQ(2147483647, contour.cachedVectorSize());
}

TEST(ContourCore, MapMovesVerticesAndResetsCachedVectorSize) {
    gkContour contour(points(kTriangle), false, 9);
    contour.cachedVectorSize(10);
    gkContour out;
    contour.map(gkXform<2>(gkMatrix<2>(2, 0, 0, 3), {1, -1}), out);
    EXPECT_EQ(points("1 -1, 9 -1, 1 8"), out.points());
    EXPECT_EQ(3, out.cachedVectorSize());
    EXPECT_FALSE(out.isClosed());
    EXPECT_EQ(9ul, out.label());
}

TEST(ContourCore, MapOntoItself) {
    gkContour contour(points(kTriangle), false, 9);
    contour.map(gkXform<2>(gkMatrix<2>::identity(), {1, 1}), contour);
    EXPECT_EQ(points("1 1, 5 1, 1 4"), contour.points());
    EXPECT_EQ(9ul, contour.label());
}

TEST(ContourCore, SettingTheLabelKeepsAComputedLength) {
    OpenedContour contour = closed(kTriangle);
    EXPECT_EQ(12.0, contour.length());
    const int cleaned = contour.cleaned;
    contour.label(3);
    EXPECT_EQ(cleaned, contour.cleaned);
    EXPECT_EQ(12.0, contour.length());
}

TEST(ContourCore, ClosingAnOpenContourAddsTheClosingSegmentToItsLength) {
    gkContour contour = open(kTriangle);
    EXPECT_EQ(9.0, contour.length());
    contour.isClosed(true);
    EXPECT_EQ(12.0, contour.length());
    contour.isClosed(false);
    EXPECT_EQ(9.0, contour.length());
}

TEST(ContourCore, SettingThePointsCleansThenRebuilds) {
    OpenedContour contour = closed(kTriangle);
    contour.points(points("1 1, 2 2"));
    EXPECT_EQ(2, contour.cleaned); // before the change, and by the contour's own rebuilding
    EXPECT_EQ(1, contour.dataRebuilt);
    EXPECT_EQ(points("1 1, 2 2"), contour.points());
}

TEST(ContourCore, ProtectedSetPointsDoesNotRebuild) {
    OpenedContour contour = closed(kTriangle);
    contour.setPoints(points("1 1, 2 2"));
    EXPECT_EQ(1, contour.cleaned);
    EXPECT_EQ(0, contour.dataRebuilt);
}

TEST(ContourCore, PointsSetFromItself) {
    gkContour contour = closed(kTriangle);
    contour.points(contour.points());
    EXPECT_EQ(points(kTriangle), contour.points());
}

TEST(ContourCore, AssignmentTakesEverythingAndSelfAssignmentNothing) {
    gkContour source(points(kTriangle), false, 8);
    source.cachedVectorSize(5);
    gkContour target;
    target = source;
    EXPECT_TRUE(target == source);
    EXPECT_EQ(8ul, target.label());
    gkContour& self = target;
    target = self;
    EXPECT_TRUE(target == source);
}

TEST(ContourCore, CheckAsksForTwoVertices) {
    EXPECT_THROW(closed("").checkEmptyContour(), gkContourDefs::EmptyContour);
    EXPECT_THROW(closed("1 1").checkEmptyContour(), gkContourDefs::EmptyContour);
    EXPECT_NO_THROW(closed("1 1, 1 1").checkEmptyContour());
}

TEST(ContourCore, EmptyContourErrorHasNoMessageAndLeavesTheContour) {
    const gkContour contour = closed("1 1");
    try {
        contour.meanPosition();
        FAIL() << "nothing was thrown";
    } catch (const gkContourDefs::EmptyContour& error) {
        EXPECT_EQ(L"", error.message());
    }
    EXPECT_EQ(points("1 1"), contour.points());
}

TEST(ContourCore, ChangesAndFilledCachesMarkTheObjectChanged) {
    gkContour contour = closed(kTriangle);
    const auto marks = [&](auto act) {
        contour.clearChanged();
        act();
        return contour.isChanged();
    };
    EXPECT_TRUE(marks([&] { contour.label(4); }));
    EXPECT_TRUE(marks([&] { contour.cachedVectorSize(4); }));
    EXPECT_TRUE(marks([&] { contour.isClosed(true); }));
    EXPECT_TRUE(marks([&] { contour.points(points(kTriangle)); }));
    EXPECT_TRUE(marks([&] { contour.length(); }));
    EXPECT_FALSE(marks([&] { contour.length(); }));
    EXPECT_FALSE(marks([&] { contour.distToPoint({1, 1}, false); }));
}

TEST(ContourKeys, AnglesCompareByRawValue) {
    const gkContour::gsSTLLessPredicate less;
    EXPECT_TRUE(less(gkRadian(0.0), gkRadian(6.283185307179586)));
    EXPECT_FALSE(less(gkRadian(1.0), gkRadian(1.0)));
    EXPECT_FALSE(less(gkRadian(0.0), gkRadian(-0.0)));
}

TEST(ContourKeys, TransformsCompareByFiveComponentsInOrder) {
    const gkContour::gsSTLLessPredicate less;
    const double base[] = {1, 2, 3, 4, 5};
    const auto xform = [](const double(&c)[5], double last) {
        return gkXform<2>(gkMatrix<2>(c[2], c[3], c[4], last), {c[0], c[1]});
    };
    for (int component = 0; component < 5; ++component) {
        double greater[] = {1, 2, 3, 4, 5};
        greater[component] = above(greater[component]);
        for (int later = component + 1; later < 5; ++later) greater[later] = -100;
        EXPECT_TRUE(less(xform(base, 0), xform(greater, 0))) << component;
        EXPECT_FALSE(less(xform(greater, 0), xform(base, 0))) << component;
    }
    EXPECT_FALSE(less(xform(base, 1), xform(base, 2)));
    EXPECT_FALSE(less(xform(base, 2), xform(base, 1)));
}

TEST(ContourKeys, PairsAndVectorsCompareByXThenY) {
    const gkContour::gsSTLLessPredicate less;
    EXPECT_TRUE(less(gkPair<long>(1, 9), gkPair<long>(2, 0)));
    EXPECT_TRUE(less(gkPair<long>(1, 0), gkPair<long>(1, 1)));
    EXPECT_FALSE(less(gkPair<long>(1, 1), gkPair<long>(1, 1)));
    EXPECT_TRUE(less(gkVector<2>(1, 9), gkVector<2>(2, 0)));
    EXPECT_FALSE(less(gkVector<2>(1, 1), gkVector<2>(1, 0)));
    EXPECT_FALSE(less(gkVector<2>(2, 0), gkVector<2>(1, 9)));
}

TEST(RegionOutline, IsAlwaysClosed) {
    gkRegion region(points(kTriangle));
    EXPECT_TRUE(region.isClosed());
    EXPECT_NO_THROW(region.isClosed(true));
    EXPECT_THROW(region.isClosed(false), gkContourDefs::RegionCannotBeSetOpen);
    EXPECT_EQ(12.0, region.length());
    EXPECT_TRUE(gkRegion().points().empty());
}
