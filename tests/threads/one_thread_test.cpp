// What a build for debugging says about a shape in two threads at once. The threads meet inside a drawing, so
// nothing depends on who is quicker.
#include "cntr/regionst.h"
#include "platform/display/recording_tablet.h"
#include "platform/system/assert.h"
#include "tests/support/regions.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <thread>
#include <utility>

namespace {

#ifdef GKCNTR_CHECK_THREADS
constexpr bool kTells = true;
#else
constexpr bool kTells = false;
#endif

// The failed check that `use` meets on a thread of its own, or nothing.
std::string toldOnAnotherThread(const std::function<void()>& use) {
    std::string told;
    std::thread([&] {
        try {
            use();
        } catch (const gkAssertionFailed& failure) {
            told = failure.expression();
        }
    }).join();
    return told;
}

// Whatever is drawn on it first lets `use` run on another thread.
class Meeting : public gkRecordingTablet {
public:
    explicit Meeting(std::function<void()> use) : use_(std::move(use)) {}

    void drawLineSeg(const gkPair<double>& from, const gkPair<double>& to, const gkColor& color,
                     const Layers& layers) override {
        if (records().empty()) told = toldOnAnotherThread(use_);
        gkRecordingTablet::drawLineSeg(from, to, color, layers);
    }

    std::string told;

private:
    std::function<void()> use_;
};

std::string toldWhileDrawn(const gkContour& drawn, const std::function<void()>& use) {
    Meeting meeting(use);
    drawn.draw(meeting, gkContourDefs::eDrawOutline, gkColor::red(), gkUITablet::eOverlayLayer);
    return meeting.told;
}

const std::string kTold = kTells ? "a shape is used by one thread at a time" : "";

} // namespace

TEST(OneThread, AShapeInTwoThreadsAtOnceIsTold) {
    gkContour contour(square(0, 0, 4), true, 0);
    EXPECT_EQ(kTold, toldWhileDrawn(contour, [&] { contour.length(); }));
    EXPECT_EQ(kTold, toldWhileDrawn(contour, [&] { contour.closestPoint({1, 1}, false); }));
    EXPECT_EQ(kTold, toldWhileDrawn(contour, [&] { contour.isSelfIntersecting(); }));
    EXPECT_EQ(kTold, toldWhileDrawn(contour, [&] { contour.label(3); }));
    gkRegion region(square(0, 0, 4));
    EXPECT_EQ(kTold, toldWhileDrawn(region, [&] { region.area(true); }));
    EXPECT_EQ(kTold, toldWhileDrawn(region, [&] { region.inside({1, 1}, false); }));
    EXPECT_EQ(kTold, toldWhileDrawn(region, [&] { region.regularize(region); }));
}

TEST(OneThread, AHoleThatTwoRegionsShareIsToldToo) {
    const Shared hole = sharedSquare(1, 1, 1);
    gkRegion other(square(0, 0, 9));
    other.holes({hole});
    EXPECT_EQ(kTold, toldWhileDrawn(*hole, [&] { other.area(true); }));
    EXPECT_EQ("", toldWhileDrawn(*hole, [&] { other.area(false); }));
}

TEST(OneThread, AMemberOfASetIsToldToo) {
    const Shared member = sharedSquare(1, 1, 1);
    const gkRegionSet set({member});
    EXPECT_EQ(kTold, toldWhileDrawn(*member, [&] { set.area(false); }));
}

TEST(OneThread, AnotherShapeIsNot) {
    const gkContour contour(square(0, 0, 4), true, 0);
    const gkContour other(contour);
    EXPECT_EQ("", toldWhileDrawn(contour, [&] { other.length(); }));
}

TEST(OneThread, OneThreadAfterTheOtherIsFine) {
    const gkContour contour(square(0, 0, 4), true, 0);
    contour.length();
    EXPECT_EQ("", toldOnAnotherThread([&] { contour.isSelfIntersecting(); }));
    EXPECT_NO_THROW(contour.encloseCircle(gkContourDefs::eExact));
}

TEST(OneThread, AnOperationThatThrewHasLeftTheShape) {
    const gkContour contour;
    EXPECT_THROW(contour.meanPosition(), gkContourDefs::EmptyContour);
    EXPECT_EQ("", toldOnAnotherThread([&] { contour.length(); }));
}

TEST(OneThread, ATabletMayAskTheShapeThatItDraws) {
    const gkContour contour(square(0, 0, 4), true, 0);
    struct Asking : gkRecordingTablet {
        explicit Asking(const gkContour& asked) : shape(asked) {}
        void drawLineSeg(const gkPair<double>& from, const gkPair<double>& to, const gkColor& color,
                         const Layers& layers) override {
            length += shape.length();
            gkRecordingTablet::drawLineSeg(from, to, color, layers);
        }
        const gkContour& shape;
        double length = 0.0;
    } tablet(contour);
    contour.draw(tablet, gkContourDefs::eDrawOutline, gkColor::red(), gkUITablet::eOverlayLayer);
    EXPECT_EQ(4 * 16.0, tablet.length);
}
