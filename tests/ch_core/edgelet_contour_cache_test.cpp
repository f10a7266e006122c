// Kept results of contours that carry edgelets against changes, and the kept inverse of the transform.
#include "tests/ch_core/edgelets.h"
#include "tests/support/cache_laws.h"

#include <gtest/gtest.h>

namespace {

// Opens the protected side of any contour through pointers to its members; no object of this class is ever
// made.
struct Reach : gkContour {
    static constexpr auto setPointsOf = &Reach::setPoints;
    static constexpr auto cleanCacheInfoOf = &Reach::cleanCacheInfo;
    static constexpr auto makeDataOf = &Reach::makeDataConsistentWithPoints;
    static constexpr auto makePointsOf = &Reach::makePointsConsistentWithData;
};

const char* const kBefore = "0 0, 4 4, 4 4, 4 0.5, 0 3.5, -2 2, 1 1";
const char* const kAfter = "0 0, 9 -2, 12 1, 11 7, 5 8, -1 6, 0.5 2, 0.25 1";

EdgeletContour made(const char* text) { return EdgeletContour(edgelets(text, 2), scale(2)); }
EdgeletContour before() { return made(kBefore); }
EdgeletContour after() { return made(kAfter); }

gkContour fresh(const EdgeletContour& contour) { return gkContour(contour.points(), contour.isClosed(), 0); }

const std::vector<Change<EdgeletContour>> kChanges = {
    {"data(v)", [](EdgeletContour& c) { c.data(edgelets(kAfter, 2)); }},
    {"points(v)", [](EdgeletContour& c) { c.points(points(kAfter)); }},
    {"isClosed(b)", [](EdgeletContour& c) { c.isClosed(!c.isClosed()); }},
    {"assignment", [](EdgeletContour& c) { c = after(); }},
    {"assignment of the contour part",
     [](EdgeletContour& c) { static_cast<gkContour&>(c) = static_cast<const gkContour&>(open(kAfter)); }},
    {"loading from an archive",
     [](EdgeletContour& c) {
         EdgeletContour source = after();
         loadInto(c, archived(source));
     }},
    {"map onto itself",
     [](EdgeletContour& c) {
         c.map(gkXform<2>(gkMatrix<2>(1, 0.5, -0.25, 2), {3, -1}), c);
     }},
    {"setPoints", [](EdgeletContour& c) { (c.*Reach::setPointsOf)(points(kAfter)); }},
    {"makeDataConsistentWithPoints", [](EdgeletContour& c) { (c.*Reach::makeDataOf)(); }},
    {"makePointsConsistentWithData", [](EdgeletContour& c) { (c.*Reach::makePointsOf)(); }},
    {"cleanCacheInfo", [](EdgeletContour& c) { (c.*Reach::cleanCacheInfoOf)(); }},
};

const std::vector<Change<EdgeletContour>> kNoChanges = {
    {"label", [](EdgeletContour& c) { c.label(77); }},
    {"cachedVectorSize", [](EdgeletContour& c) { c.cachedVectorSize(9); }},
    {"datum",
     [](EdgeletContour& c) {
         c.datum({1, 2});
     }},
    {"point",
     [](EdgeletContour& c) {
         c.point(gkEdgelet({1, 2}, 3, gkAngle8(4)));
     }},
    {"assignment to itself",
     [](EdgeletContour& c) {
         const EdgeletContour& same = c;
         c = same;
     }},
    {"change of a copy", [](EdgeletContour& c) { EdgeletContour(c).data(edgelets(kAfter, 2)); }},
    {"map onto another",
     [](EdgeletContour& c) {
         gkContour out;
         c.map(gkXform<2>(gkMatrix<2>::identity(), {3, -1}), out);
     }},
    {"mapT refused", [](EdgeletContour& c) { EXPECT_THROW(c.mapT(gkXform<2>(), c), gkPel::BadWindow); }},
    {"convexHullT refused",
     [](EdgeletContour& c) {
         EdgeletRegion hull;
         EXPECT_THROW(c.convexHullT(hull), gkPel::BadWindow);
     }},
};

const CacheTable<EdgeletContour, gkContour> kTable = {keptOfContours(), kChanges, kNoChanges, &before,
                                                      &after,           &fresh,   ""};

gkEdgelet at(double x, double y) { return gkEdgelet({x, y}, 0, gkAngle8(0)); }

} // namespace

TEST(EdgeletContourCache, TheTwoContoursDifferInEveryKeptResult) { kTable.theTwoDifferInEveryResult(); }

TEST(EdgeletContourCache, EveryResultIsKept) { kTable.everyResultIsKept(); }

TEST(EdgeletContourCache, EveryChangeForgetsEveryKeptResult) { kTable.everyChangeForgetsEveryResult(); }

TEST(EdgeletContourCache, EveryChangeForgetsAllResultsTogether) {
    kTable.everyChangeForgetsAllResultsTogether();
}

TEST(EdgeletContourCache, WhatChangesNoGeometryKeepsEveryResult) { kTable.whatIsNoChangeKeepsEveryResult(); }

TEST(EdgeletContourCache, ACopyAnswersWithoutComputing) { kTable.aCopyAnswersWithoutComputing(); }

TEST(EdgeletContourCache, AnAssignedContourForgetsResultsTheSourceHasNot) {
    kTable.anAssignedOneForgetsResultsTheSourceHasNot();
}

TEST(EdgeletContourCache, ChangingTheOriginalLeavesACopy) { kTable.changingTheOriginalLeavesACopy(); }

TEST(EdgeletContourCache, ChangingACopyLeavesTheOriginal) { kTable.changingACopyLeavesTheOriginal(); }

TEST(EdgeletContourCache, ACopyMadeAfterTheChangeKnowsNothingOfBefore) {
    kTable.aCopyMadeAfterTheChangeKnowsNothingOfBefore();
}

TEST(EdgeletContourCache, AFailedChangeForgetsEveryResult) {
    kTable.everyResult([](const Kept<gkContour>& result) {
        EdgeletContour contour(edgelets(kBefore, 1), Transform(new LensTransform));
        result.ask(contour);
        EXPECT_THROW(contour.data({at(1, 1), at(2000, 0)}), gkMathError::OutOfRange);
        EXPECT_EQ(points(kBefore), contour.points());
        EXPECT_EQ(result.ask(fresh(contour)), result.ask(contour));
        EXPECT_THROW(contour.points(points("3 1, 2000 0, 5 6, 0 9")), gkMathError::OutOfRange);
        EXPECT_EQ(points("3 1, 2000 0, 5 6, 0 9"), contour.points());
        EXPECT_EQ(result.ask(fresh(contour)), result.ask(contour));
    });
}

TEST(EdgeletContourInverse, IsMadeOnceWhateverElseChanges) {
    LensTransform::inversesMade = 0;
    EdgeletContour contour(edgelets(kBefore, 1), Transform(new LensTransform));
    contour.point(at(1, 2));
    contour.data(edgelets(kAfter, 1));
    contour.points(points(kBefore));
    contour.isClosed(false);
    (contour.*Reach::cleanCacheInfoOf)();
    contour.point(at(1, 2));
    EXPECT_EQ(1, LensTransform::inversesMade);
}

TEST(EdgeletContourInverse, IsSharedByCopiesAndReplacedByAssignment) {
    EdgeletContour contour(edgelets(kBefore, 1), Transform(new LensTransform));
    contour.point(at(1, 2));
    LensTransform::inversesMade = 0;
    EdgeletContour copy(contour);
    EdgeletContour assigned(edgelets(kAfter, 2), scale(2));
    EXPECT_EQ(gkVector<2>(1, 2), assigned.point(at(2, 4)));
    assigned = contour;
    EXPECT_EQ(gkVector<2>(2, 4), copy.point(at(2, 4)));
    EXPECT_EQ(gkVector<2>(2, 4), assigned.point(at(2, 4)));
    EXPECT_EQ(0, LensTransform::inversesMade);
    assigned = EdgeletContour(edgelets(kAfter, 2), scale(4));
    EXPECT_EQ(gkVector<2>(2, 4), assigned.point(at(8, 16)));
    EXPECT_EQ(gkVector<2>(2, 4), contour.point(at(2, 4)));
}

TEST(EdgeletContourInverse, IsForgottenByLoading) {
    EdgeletContour contour(edgelets(kBefore, 2), scale(2));
    EXPECT_EQ(gkVector<2>(2, 4), contour.point(at(4, 8)));
    EdgeletContour source(edgelets(kBefore, 4), scale(4));
    loadInto(contour, archived(source));
    EXPECT_EQ(gkVector<2>(1, 2), contour.point(at(4, 8)));
}

TEST(EdgeletContourInverse, IsTriedAgainAfterAFailure) {
    EdgeletContour contour(std::vector<gkEdgelet>(), Transform(new LensTransform));
    LensTransform::inversesRefused = 2;
    EXPECT_THROW(contour.point(at(1, 2)), gkMathError::Singular);
    EXPECT_THROW(contour.data({at(1, 2)}), gkMathError::Singular);
    EXPECT_EQ(0, LensTransform::inversesRefused);
    EXPECT_EQ(gkVector<2>(1, 2), contour.point(at(1, 2)));
    contour.data({at(3, 4)});
    EXPECT_EQ(points("3 4"), contour.points());
}
