// The recording surface: every call is kept in order, as it came, and can be made again.
#include "platform/display/recording_tablet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <sstream>

namespace {

using Record = gkRecordingTablet::Record;
using Tablet = gkUITablet;

void drawOneOfEach(gkUITablet& tablet) {
    tablet.drawLineSeg({1, 2}, {3, 4}, gkColor::red(), Tablet::eOverlayLayer);
    tablet.drawCircle({5, 6}, 7, gkColor::green(), Tablet::eImageLayer);
    tablet.drawEllipse({8, 9}, {10, 11}, gkRadian(0.5), gkColor::blue(), Tablet::eLabelLayer);
    tablet.drawPoint({12, 13}, gkColor(1, 2, 3, 4), Tablet::eOverlayLayer | Tablet::eLabelLayer);
    tablet.drawText({14, 15}, "sixteen", 17, gkColor::white(), Tablet::eLabelLayer);
    tablet.drawImage({18, 19}, {20, 21}, {22, 23}, Tablet::eImageLayer);
}

TEST(RecordingTablet, IsCopiedWithItsCalls) {
    gkRecordingTablet tablet;
    drawOneOfEach(tablet);
    const gkRecordingTablet copy(tablet);
    EXPECT_TRUE(tablet.records() == copy.records());
    gkRecordingTablet assigned;
    assigned = copy;
    EXPECT_TRUE(tablet.records() == assigned.records());
}

TEST(RecordingTablet, KeepsEachKindOfCallInOrder) {
    gkRecordingTablet tablet;
    drawOneOfEach(tablet);
    const std::vector<Record> expected = {
        {gkRecordingTablet::eLineSeg, {1, 2, 3, 4}, gkColor::red(), Tablet::eOverlayLayer, "", {}},
        {gkRecordingTablet::eCircle, {5, 6, 7}, gkColor::green(), Tablet::eImageLayer, "", {}},
        {gkRecordingTablet::eEllipse, {8, 9, 10, 11, 0.5}, gkColor::blue(), Tablet::eLabelLayer, "", {}},
        {gkRecordingTablet::ePoint,
         {12, 13},
         gkColor(1, 2, 3, 4),
         Tablet::eOverlayLayer | Tablet::eLabelLayer,
         "",
         {}},
        {gkRecordingTablet::eText, {14, 15, 17}, gkColor::white(), Tablet::eLabelLayer, "sixteen", {}},
        {gkRecordingTablet::eImage, {18, 19, 20, 21}, gkColor(), Tablet::eImageLayer, "", {22, 23}},
    };
    EXPECT_TRUE(expected == tablet.records());
}

TEST(RecordingTablet, ReplayMakesTheSameCalls) {
    gkRecordingTablet first, second;
    drawOneOfEach(first);
    first.replay(second);
    ASSERT_EQ(6u, second.records().size());
    EXPECT_TRUE(first.records() == second.records());
}

TEST(RecordingTablet, KeepsCallsOtherSurfacesLeaveOut) {
    gkRecordingTablet tablet;
    const double nan = std::numeric_limits<double>::quiet_NaN();
    tablet.drawLineSeg({nan, 0}, {0, 0}, gkColor(), static_cast<Tablet::Layers>(0));
    tablet.drawCircle({0, 0}, -1, gkColor(), Tablet::eImageLayer);
    EXPECT_EQ(2u, tablet.records().size());
}

TEST(RecordingTablet, RecordsDifferInEachField) {
    const Record record{gkRecordingTablet::eText, {1, 2, 3}, gkColor::red(), Tablet::eLabelLayer, "a", {1}};
    std::vector<Record> others(6, record);
    others[0].kind = gkRecordingTablet::eCircle;
    others[1].numbers[2] = 4;
    others[2].color = gkColor::blue();
    others[3].layers = Tablet::eImageLayer;
    others[4].text = "b";
    others[5].pngBytes = {2};
    EXPECT_TRUE(record == Record(record));
    for (const Record& other : others) EXPECT_TRUE(record != other);
}

TEST(RecordingTablet, ARecordOfNoKindDrawsNothing) {
    Record record;
    record.kind = static_cast<gkRecordingTablet::Kind>(7);
    gkRecordingTablet tablet;
    record.replay(tablet);
    EXPECT_TRUE(tablet.records().empty());
}

TEST(RecordingTablet, ClearForgetsTheRecords) {
    gkRecordingTablet tablet;
    drawOneOfEach(tablet);
    tablet.clear();
    EXPECT_TRUE(tablet.records().empty());
}

// A surface that has only what every surface must have.
class LinesOnly : public gkUITablet {
public:
    void drawLineSeg(const gkPair<double>&, const gkPair<double>&, const gkColor&, const Layers&) override {
        ++lines;
    }
    int lines = 0;
};

TEST(UITablet, NeedsNoOperationButLines) {
    LinesOnly tablet;
    drawOneOfEach(tablet);
    EXPECT_EQ(1, tablet.lines);
}

TEST(UITablet, LayersCombineWithoutOverlap) {
    EXPECT_EQ(0, Tablet::eImageLayer & Tablet::eOverlayLayer);
    EXPECT_EQ(0, (Tablet::eImageLayer | Tablet::eOverlayLayer) & Tablet::eLabelLayer);
    EXPECT_EQ(Tablet::eLabelLayer, (Tablet::eImageLayer | Tablet::eLabelLayer) & Tablet::eLabelLayer);
}

template <class Error> void expectRethrownAsItself() {
    gkException* const error = new Error(L"reason");
    const long number = error->errorNumber();
    try {
        error->suicideAndRethrow();
    } catch (const Error& caught) {
        std::wostringstream text;
        caught.message_(text);
        EXPECT_NE(std::wstring::npos, text.str().find(L"reason"));
        EXPECT_EQ(number, caught.errorNumber());
    }
}

TEST(UITablet, ErrorsAreRethrownWithTheirOwnType) {
    expectRethrownAsItself<gkUITablet::CannotWrite>();
    expectRethrownAsItself<gkUITablet::BadSize>();
    EXPECT_NE(gkUITablet::CannotWrite(L"").errorNumber(), gkUITablet::BadSize(L"").errorNumber());
}

} // namespace
