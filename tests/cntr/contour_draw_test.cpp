// Contours drawn onto a recording surface.
#include "platform/display/recording_tablet.h"
#include "tests/support/shapes.h"

#include <gtest/gtest.h>

namespace {

std::vector<gkLineSeg> drawn(const gkContour& contour, gkContourDefs::DrawMode mode) {
    gkRecordingTablet tablet;
    contour.draw(tablet, mode, gkColor::red(), gkUITablet::eOverlayLayer);
    std::vector<gkLineSeg> segments;
    for (const auto& record : tablet.records()) {
        EXPECT_EQ(gkRecordingTablet::eLineSeg, record.kind);
        EXPECT_EQ(gkColor::red(), record.color);
        EXPECT_EQ(gkUITablet::eOverlayLayer, record.layers);
        const std::vector<double>& n = record.numbers;
        segments.emplace_back(gkVector<2>(n.at(0), n.at(1)), gkVector<2>(n.at(2), n.at(3)));
    }
    return segments;
}

const gkContourDefs::DrawMode kModes[] = {gkContourDefs::eDrawOutline, gkContourDefs::eDrawOutlineAndVertices,
                                          static_cast<gkContourDefs::DrawMode>(99)};

} // namespace

TEST(ContourDraw, OfAnOpenContourIsTwoSegmentsForThreeVertices) {
    for (const auto mode : kModes) {
        EXPECT_EQ((std::vector<gkLineSeg>{{{0, 0}, {4, 0}}, {{4, 0}, {0, 3}}}),
                  drawn(open("0 0, 4 0, 0 3"), mode));
    }
}

TEST(ContourDraw, OfAClosedContourBeginsWithTheClosingSegment) {
    for (const auto mode : kModes) {
        EXPECT_EQ((std::vector<gkLineSeg>{{{0, 3}, {0, 0}}, {{0, 0}, {4, 0}}, {{4, 0}, {0, 3}}}),
                  drawn(closed("0 0, 4 0, 0 3"), mode));
    }
}

TEST(ContourDraw, OfAnEmptyContourIsNothing) {
    EXPECT_TRUE(drawn(closed(""), gkContourDefs::eDrawOutline).empty());
}

TEST(ContourDraw, OfOneVertexIsOneDegenerateSegmentWhenClosed) {
    EXPECT_EQ((std::vector<gkLineSeg>{{{5, 5}, {5, 5}}}), drawn(closed("5 5"), gkContourDefs::eDrawOutline));
    EXPECT_TRUE(drawn(open("5 5"), gkContourDefs::eDrawOutline).empty());
}
