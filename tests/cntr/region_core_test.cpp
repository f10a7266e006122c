// Regions: construction, holes, copies, equality, mapping, drawing and what is called on them from outside.
#include "platform/core/object/errors.h"
#include "platform/display/recording_tablet.h"
#include "tests/support/regions.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

namespace {

const char* const kTriangle = "0 0, 4 0, 0 3";

std::wstring messageOf(gkRegion& region, const Holes& holes) {
    try {
        region.holes(holes);
    } catch (const gkContourDefs::BadParams& error) {
        return error.message();
    }
    return L"nothing was thrown";
}

const wchar_t* const kCannotIntersect = L"holes cannot intersect region";

// Whether a caller without special rights can ask for the crossings and their segments.
template <class T, class = void> struct OffersSegmentIndices : std::false_type {};
template <class T>
struct OffersSegmentIndices<T, std::void_t<decltype(std::declval<const T&>().intersections(
                                   std::declval<const gkLineSeg&>(), std::declval<std::vector<int>&>(), true))>>
    : std::true_type {};
static_assert(!OffersSegmentIndices<gkRegion>::value, "the overload with segment indices is protected");
static_assert(!OffersSegmentIndices<gkContour>::value, "the overload with segment indices is protected");
static_assert(OffersSegmentIndices<OpenedRegion>::value, "derived classes reach it");

template <class T, class = void> struct OffersCheck : std::false_type {};
template <class T>
struct OffersCheck<T, std::void_t<decltype(std::declval<const T&>().checkEmptyContour())>> : std::true_type {};
static_assert(!OffersCheck<gkRegion>::value, "the check for emptiness is protected");

} // namespace

TEST(RegionCore, DefaultHasNoVerticesNoHolesAndNoArea) {
    const gkRegion region;
    EXPECT_TRUE(region.points().empty());
    EXPECT_TRUE(region.holes().empty());
    EXPECT_TRUE(region.isClosed());
    EXPECT_EQ(0ul, region.label());
    EXPECT_EQ(3, region.cachedVectorSize());
    EXPECT_THROW(region.area(false), gkContourDefs::EmptyContour);
}

TEST(RegionCore, FromVerticesIsClosedWithoutHolesAndHasLabel0) {
    const gkRegion region(points(kTriangle));
    EXPECT_EQ(points(kTriangle), region.points());
    EXPECT_EQ(0ul, region.label());
    EXPECT_TRUE(region.holes().empty());
    EXPECT_TRUE(region.gkContour::isClosed());
    EXPECT_EQ(12.0, region.length());
}

TEST(RegionCore, FromAPolygonKeepsARepeatedVertexAndIsClosedAnyway) {
    const gkRegion repeated(gkPolygon(points("0 0, 4 0, 0 3, 0 0")), gkContourDefs::eKeepIntersections);
    EXPECT_EQ(4u, repeated.points().size());
    const gkRegion open(gkPolygon(points(kTriangle)), gkContourDefs::eKeepIntersections);
    EXPECT_FALSE(open.gkContour::isClosed());
    EXPECT_TRUE(open.isClosed());
    EXPECT_EQ(12.0, open.length());
    EXPECT_EQ(0ul, open.label());
}

TEST(RegionCore, FromAnEmptyPolygonThrows) {
    EXPECT_THROW(gkRegion(gkPolygon(), gkContourDefs::eKeepIntersections), gkMathError::OutOfRange);
}

TEST(RegionCore, FromAnOpenContourIsClosedAndKeepsLabelAndCachedVectorSize) {
    gkContour contour(points(kTriangle), false, 17);
    contour.cachedVectorSize(6);
    EXPECT_EQ(9.0, contour.length()); // kept, and wrong for the closed outline
    const gkRegion region(contour, gkContourDefs::eKeepIntersections);
    EXPECT_TRUE(region.isClosed());
    EXPECT_FALSE(region.gkContour::isClosed());
    EXPECT_EQ(17ul, region.label());
    EXPECT_EQ(6, region.cachedVectorSize());
    EXPECT_EQ(12.0, region.length());
}

TEST(RegionCore, RepairAtConstructionLeavesAnOutlineThatDoesNotCrossItself) {
    for (const auto mode : {gkContourDefs::eOuterHull, gkContourDefs::eRegularize}) {
        EXPECT_EQ(points(kTriangle), gkRegion(points(kTriangle), mode).points());
        EXPECT_EQ(points(kTriangle), gkRegion(gkPolygon(points(kTriangle)), mode).points());
        const gkRegion labelled(gkContour(points(kTriangle), true, 5), mode);
        EXPECT_EQ(points(kTriangle), labelled.points());
        EXPECT_EQ(5ul, labelled.label());
    }
}

TEST(RegionCore, ModesActAtConstructionAsTheOperationsOfTheirNames) {
    gkRegion hull;
    gkRegion regular;
    gkRegion(points(kBowtie)).outerHull(hull);
    gkRegion(points(kBowtie)).regularize(regular);
    EXPECT_EQ(hull.points(), gkRegion(points(kBowtie), gkContourDefs::eOuterHull).points());
    EXPECT_EQ(regular.points(), gkRegion(points(kBowtie), gkContourDefs::eRegularize).points());
    EXPECT_EQ(regular.points(), gkRegion(gkPolygon(points(kBowtie)), gkContourDefs::eRegularize).points());
    const gkRegion labelled(gkContour(points(kBowtie), true, 5), gkContourDefs::eRegularize);
    EXPECT_EQ(regular.points(), labelled.points());
    EXPECT_EQ(0ul, labelled.label());
    EXPECT_FALSE(hull.isSelfIntersecting());
    EXPECT_FALSE(regular.isSelfIntersecting());
}

TEST(RegionCore, UnknownModesKeepTheOutline) {
    EXPECT_EQ(points(kBowtie), gkRegion(points(kBowtie), gkContourDefs::eKeepIntersections).points());
    for (const int mode : {-1, 3, 99}) {
        const auto unknown = static_cast<gkContourDefs::IntersectionMode>(mode);
        EXPECT_EQ(points(kBowtie), gkRegion(points(kBowtie), unknown).points()) << mode;
    }
}

TEST(RegionCore, ConstructorsCallNoHookOfADerivedClass) {
    for (const auto mode :
         {gkContourDefs::eKeepIntersections, gkContourDefs::eOuterHull, gkContourDefs::eRegularize}) {
        const OpenedRegion made(points(kBowtie), mode);
        EXPECT_EQ(0, made.cleaned);
        EXPECT_EQ(0, made.dataRebuilt);
        const OpenedRegion copy(made);
        EXPECT_EQ(0, copy.cleaned);
        EXPECT_EQ(0, copy.dataRebuilt);
    }
}

TEST(RegionCore, ARepairAtConstructionThatFailsThrows) {
    EXPECT_THROW(gkRegion(points(kBowtieTwice), gkContourDefs::eRegularize), gkContourDefs::BadParams);
    EXPECT_THROW(gkRegion(points(kBowtieTwice), gkContourDefs::eOuterHull), gkContourDefs::BadParams);
}

TEST(RegionCore, CopiesShareHolesAndTakeEverything) {
    gkRegion source(square(0, 0, 10));
    const Shared hole = sharedSquare(2, 2, 2);
    source.holes({hole});
    source.label(8);
    source.cachedVectorSize(5);
    const gkRegion copy(source);
    gkRegion assigned;
    EXPECT_EQ(&assigned, &(assigned = source));
    for (const gkRegion* each : {&copy, static_cast<const gkRegion*>(&assigned)}) {
        EXPECT_TRUE(*each == source);
        EXPECT_EQ(8ul, each->label());
        ASSERT_EQ(1u, each->holes().size());
        EXPECT_EQ(hole, each->holes()[0]);
    }
}

TEST(RegionCore, SelfAssignmentDoesNothing) {
    gkRegion region(square(0, 0, 10));
    region.holes({sharedSquare(2, 2, 2)});
    region.area(true);
    gkRegion& self = region;
    region.clearChanged();
    region = self;
    EXPECT_EQ(1u, region.holes().size());
    EXPECT_EQ(96.0, region.area(true));
    EXPECT_FALSE(region.isChanged());
}

TEST(RegionCore, EqualityIgnoresHolesAndLabel) {
    gkRegion plain(square(0, 0, 10));
    gkRegion other(square(0, 0, 10));
    other.holes({sharedSquare(2, 2, 2)});
    other.label(9);
    EXPECT_TRUE(plain == other);
    EXPECT_FALSE(plain != other);
}

TEST(RegionCore, EqualitySeesVerticesAndCachedVectorSize) {
    const gkRegion plain(square(0, 0, 10));
    EXPECT_FALSE(plain == gkRegion(square(0, 0, 11)));
    EXPECT_FALSE(plain == gkRegion(points("0 10, 10 10, 10 0, 0 0")));
    gkRegion other(square(0, 0, 10));
    other.cachedVectorSize(4);
    EXPECT_TRUE(plain != other);
}

TEST(RegionHoles, AreKeptInOrderThroughBothKindsOfHandle) {
    const Shared one = sharedSquare(1, 1, 1);
    const Shared two = sharedSquare(5, 5, 1);
    gkRegion region(square(0, 0, 10));
    region.holes(std::vector<Shared>{one, two});
    ASSERT_EQ(2u, region.holes().size());
    EXPECT_EQ(one, region.holes()[0]);
    EXPECT_EQ(two, region.holes()[1]);
    region.holes(Holes{two, one});
    ASSERT_EQ(2u, region.holes().size());
    EXPECT_EQ(two, region.holes()[0]);
    region.holes(std::vector<Shared>{one});
    EXPECT_EQ(1u, region.holes().size());
}

TEST(RegionHoles, AnEmptyListClearsThem) {
    gkRegion region(square(0, 0, 10));
    region.holes({sharedSquare(2, 2, 2)});
    region.holes({});
    EXPECT_TRUE(region.holes().empty());
    EXPECT_EQ(100.0, region.area(true));
    region.holes({sharedSquare(2, 2, 2)});
    region.holes(std::vector<Shared>());
    EXPECT_TRUE(region.holes().empty());
}

TEST(RegionHoles, OwnListCanBeGivenBack) {
    gkRegion region(square(0, 0, 10));
    region.holes({sharedSquare(2, 2, 2), sharedSquare(5, 5, 2)});
    region.holes(region.holes());
    EXPECT_EQ(2u, region.holes().size());
}

TEST(RegionHoles, ThatCrossTheOutlineAreRefused) {
    gkRegion region(square(0, 0, 10));
    EXPECT_EQ(kCannotIntersect, messageOf(region, {sharedSquare(8, 8, 4)}));
    EXPECT_EQ(kCannotIntersect, messageOf(region, {sharedSquare(0, 0, 10)})) << "its own outline";
}

TEST(RegionHoles, ThatTouchTheOutlineInOnePointAreRefused) {
    gkRegion region(square(0, 0, 10));
    EXPECT_EQ(kCannotIntersect, messageOf(region, {shared("5 0, 6 2, 4 2")})) << "a vertex on an edge";
    EXPECT_EQ(kCannotIntersect, messageOf(region, {shared("0 0, 3 1, 1 3")})) << "a vertex on a vertex";
    EXPECT_EQ(kCannotIntersect, messageOf(region, {shared("5 -1, 7 0, 9 -1")})) << "from outside";
    EXPECT_TRUE(region.holes().empty());
}

TEST(RegionHoles, ARefusalKeepsTheOldListWhole) {
    gkRegion region(square(0, 0, 10));
    const Shared old = sharedSquare(1, 1, 1);
    region.holes({old});
    EXPECT_EQ(kCannotIntersect, messageOf(region, {sharedSquare(4, 4, 1), sharedSquare(8, 8, 4)}));
    ASSERT_EQ(1u, region.holes().size());
    EXPECT_EQ(old, region.holes()[0]);
    EXPECT_THROW(region.holes(std::vector<Shared>{sharedSquare(8, 8, 4)}), gkContourDefs::BadParams);
    EXPECT_EQ(old, region.holes()[0]);
}

TEST(RegionHoles, AreForgottenResultsBeforeTheyAreChecked) {
    OpenedRegion outline = region("0 0, 10 0, 10 10, 0 10");
    outline.holes({sharedSquare(1, 1, 2)});
    EXPECT_EQ(96.0, outline.area(true));
    const int cleaned = outline.cleaned;
    const int rebuilt = outline.dataRebuilt;
    EXPECT_THROW(outline.holes({sharedSquare(8, 8, 4)}), gkContourDefs::BadParams);
    EXPECT_EQ(cleaned + 2, outline.cleaned); // by itself and by the rebuilding
    EXPECT_EQ(rebuilt + 1, outline.dataRebuilt);
    EXPECT_TRUE(computes(outline, [](const gkRegion& r) { r.area(true); }));
    EXPECT_EQ(96.0, outline.area(true));
}

TEST(RegionHoles, OutsideInsideEachOtherOrCrossingEachOtherAreAccepted) {
    gkRegion region(square(0, 0, 10));
    EXPECT_NO_THROW(region.holes({sharedSquare(20, 20, 2)}));
    EXPECT_NO_THROW(region.holes({sharedSquare(1, 1, 5), sharedSquare(2, 2, 1)}));
    EXPECT_NO_THROW(region.holes({sharedSquare(1, 1, 3), sharedSquare(2, 2, 3)}));
    EXPECT_NO_THROW(region.holes({sharedSquare(-5, -5, 30)}));
    const Shared twice = sharedSquare(4, 4, 1);
    EXPECT_NO_THROW(region.holes({twice, twice}));
    EXPECT_EQ(2u, region.holes().size());
}

TEST(RegionHoles, ANullHandleIsRefused) {
    gkRegion region(square(0, 0, 10));
    const Shared old = sharedSquare(1, 1, 1);
    region.holes({old});
    EXPECT_THROW(region.holes(Holes{gkPtrHandle_const<gkRegion>()}), gkBadPointer);
    EXPECT_THROW(region.holes(std::vector<Shared>{Shared()}), gkBadPointer);
    EXPECT_EQ(old, region.holes()[0]);
}

TEST(RegionHoles, OfAnOutlineBelowTwoVerticesAreRefusedUnlessThereAreNone) {
    for (const char* text : {"", "5 5"}) {
        gkRegion region(points(text));
        EXPECT_THROW(region.holes({sharedSquare(0, 0, 1)}), gkContourDefs::EmptyContour) << text;
        EXPECT_NO_THROW(region.holes({})) << text;
    }
    gkRegion two(points("0 0, 5 5"));
    EXPECT_NO_THROW(two.holes({sharedSquare(10, 0, 1)}));
}

TEST(RegionHoles, MayHaveAnyNumberOfVertices) {
    gkRegion region(square(0, 0, 10));
    EXPECT_NO_THROW(region.holes({shared(""), shared("5 5"), shared("4 4, 6 6")}));
    EXPECT_EQ(3u, region.holes().size());
}

TEST(RegionCore, CannotBeSetOpen) {
    gkRegion region(points(kTriangle));
    region.clearChanged();
    EXPECT_NO_THROW(region.isClosed(true));
    EXPECT_FALSE(region.isChanged());
    try {
        region.isClosed(false);
        FAIL() << "nothing was thrown";
    } catch (const gkContourDefs::RegionCannotBeSetOpen& error) {
        EXPECT_EQ(L"", error.message());
    }
    EXPECT_TRUE(region.isClosed());
    EXPECT_FALSE(region.isChanged());
}

TEST(RegionCore, SettingClosedKeepsResultsAndTheOutlinesOwnFlag) {
    gkRegion region(gkContour(points(kTriangle), false, 0), gkContourDefs::eKeepIntersections);
    EXPECT_EQ(12.0, region.length());
    region.isClosed(true);
    EXPECT_FALSE(computes(region, [](const gkRegion& r) { r.length(); }));
    EXPECT_FALSE(region.gkContour::isClosed());
}

TEST(RegionMap, DropsHolesAndKeepsTheLabel) {
    gkRegion region(square(0, 0, 10));
    region.holes({sharedSquare(2, 2, 2)});
    region.label(12);
    region.cachedVectorSize(9);
    gkRegion result(square(7, 7, 1));
    result.holes({shared("7.25 7.25, 7.5 7.25, 7.5 7.5")});
    region.map(gkXform<2>(gkMatrix<2>(2, 0, 0, 3), {1, -1}), result);
    EXPECT_EQ(points("1 -1, 21 -1, 21 29, 1 29"), result.points());
    EXPECT_TRUE(result.holes().empty());
    EXPECT_EQ(12ul, result.label());
    EXPECT_EQ(3, result.cachedVectorSize());
    EXPECT_EQ(600.0, result.area(true));
    EXPECT_EQ(1u, region.holes().size());
}

TEST(RegionMap, OntoItselfKeepsTheLabel) {
    gkRegion region(square(0, 0, 10));
    region.holes({sharedSquare(2, 2, 2)});
    region.label(12);
    EXPECT_EQ(96.0, region.area(true));
    region.map(gkXform<2>(gkMatrix<2>::identity(), {1, 1}), region);
    EXPECT_EQ(square(1, 1, 10), region.points());
    EXPECT_EQ(12ul, region.label());
    EXPECT_TRUE(region.holes().empty());
    EXPECT_EQ(100.0, region.area(true));
}

TEST(RegionMap, DoesNotLookForCrossings) {
    gkRegion result;
    gkRegion(points(kBowtie)).map(gkXform<2>(), result);
    EXPECT_EQ(points(kBowtie), result.points());
}

TEST(RegionMap, OfTheContourPartIsStillThere) {
    gkContour result;
    const gkRegion region(points(kTriangle));
    region.map(gkXform<2>(gkMatrix<2>::identity(), {1, 1}), result);
    EXPECT_EQ(points("1 1, 5 1, 1 4"), result.points());
    EXPECT_TRUE(result.isClosed());
}

TEST(RegionDraw, WithColorAndLayersDrawsNothing) {
    gkRecordingTablet tablet;
    gkRegion region(square(0, 0, 10));
    region.holes({sharedSquare(2, 2, 2)});
    region.draw(tablet, gkColor::red(), gkUITablet::eOverlayLayer);
    EXPECT_TRUE(tablet.records().empty());
}

TEST(RegionDraw, WithADrawModeDrawsTheOutline) {
    gkRecordingTablet tablet;
    gkRegion(points(kTriangle))
        .draw(tablet, gkContourDefs::eDrawOutline, gkColor::red(), gkUITablet::eOverlayLayer);
    EXPECT_EQ(3u, tablet.records().size());
    // An outline whose own flag says open is drawn closed all the same.
    gkRecordingTablet other;
    gkRegion(gkContour(points(kTriangle), false, 0), gkContourDefs::eKeepIntersections)
        .draw(other, gkContourDefs::eDrawOutline, gkColor::red(), gkUITablet::eOverlayLayer);
    EXPECT_EQ(tablet.records(), other.records());
}

TEST(RegionCore, OffersEveryPublicOperationOfTheContour) {
    gkRegion region(square(0, 0, 10));
    const gkContour& contour = region;
    const gkLineSeg across({-1, 5}, {11, 5});
    const gkContour line(points("-1 5, 11 5"), false, 0);
    EXPECT_EQ(contour.intersections(across, true), region.intersections(across, true));
    EXPECT_EQ(contour.intersections(line), region.intersections(line));
    EXPECT_EQ(contour.closestPoint({5, 4}, false), region.closestPoint({5, 4}, false));
    EXPECT_EQ(contour.closestVertexIndex({9, 9}), region.closestVertexIndex({9, 9}));
    EXPECT_EQ(contour.distToPoint({5, 4}, true), region.distToPoint({5, 4}, true));
    EXPECT_EQ(contour.vertexIndex({0, 0}, 1.0), region.vertexIndex({0, 0}, 1.0));
    EXPECT_EQ(contour.meanPosition(), region.meanPosition());
    EXPECT_EQ(contour.diameter(gkContourDefs::eExact), region.diameter(gkContourDefs::eExact));
    EXPECT_EQ(contour.extremalVertexIndex(gkRadian(0.5)), region.extremalVertexIndex(gkRadian(0.5)));
    EXPECT_EQ(contour.encloseRect(gkXform<2>()), region.encloseRect(gkXform<2>()));
    EXPECT_EQ(contour.polygon().size(), region.polygon().size());
    region.points(points(kTriangle));
    EXPECT_EQ(points(kTriangle), region.points());
}

TEST(RegionCore, MeasuresAskForThreeVerticesAndPointQueriesForTwo) {
    const OpenedRegion two = region("0 0, 4 4");
    EXPECT_THROW(two.checkEmptyContour(), gkContourDefs::EmptyContour);
    EXPECT_NO_THROW(region("0 0, 4 4, 4 4").checkEmptyContour());
    EXPECT_THROW(two.area(false), gkContourDefs::EmptyContour);
    EXPECT_THROW(two.area(true), gkContourDefs::EmptyContour);
    EXPECT_THROW(two.centerOfMass(false), gkContourDefs::EmptyContour);
    EXPECT_THROW(two.centerOfMass(true), gkContourDefs::EmptyContour);
    EXPECT_THROW(two.inertiaMatrix(false), gkContourDefs::EmptyContour);
    EXPECT_THROW(two.inertiaMatrix(true), gkContourDefs::EmptyContour);
    EXPECT_NO_THROW(two.inside({1, 1}, true));
    EXPECT_EQ(1, two.closestVertexIndex({3, 3}));
    EXPECT_EQ(gkVector<2>(1, 1), two.closestPoint({0, 2}, false, true));
    EXPECT_EQ(1.0, two.distToPoint({4, 5}, true, true, false));
    EXPECT_EQ(0u, two.intersections(gkLineSeg({9, 9}, {8, 8}), true, true).size());
}

TEST(RegionCore, TheErrorForTooFewVerticesHasNoMessage) {
    try {
        gkRegion(points("0 0, 4 4")).area(false);
        FAIL() << "nothing was thrown";
    } catch (const gkContourDefs::EmptyContour& error) {
        EXPECT_EQ(L"", error.message());
    }
}

TEST(RegionCore, QueriesThatFillSlotsMarkTheRegionChanged) {
    gkRegion region(square(0, 0, 10));
    region.holes({sharedSquare(2, 2, 2)});
    const auto area = [](const gkRegion& r) { r.area(true); };
    const auto center = [](const gkRegion& r) { r.centerOfMass(true); };
    const auto inertia = [](const gkRegion& r) { r.inertiaMatrix(false); };
    EXPECT_TRUE(computes(region, area));
    EXPECT_TRUE(computes(region, center));
    EXPECT_TRUE(computes(region, inertia));
    EXPECT_FALSE(computes(region, area));
    EXPECT_FALSE(computes(region, center));
    EXPECT_FALSE(computes(region, inertia));
}
