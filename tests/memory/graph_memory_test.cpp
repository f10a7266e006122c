// Objects behind handles, drawings and errors when memory runs short.
#include "platform/core/archive/archive_memory.h"
#include "platform/core/fit/ellipse_fit.h"
#include "platform/core/shapes/convex_hull.h"
#include "platform/display/recording_tablet.h"
#include "platform/display/svg_tablet.h"
#include "tests/memory/sweep.h"
#include "tests/memory/twins.h"
#include "tests/support/regions.h"

#include <memory>
#include <sstream>

namespace {

// A hole that two regions share, and holes in holes.
std::vector<Shared> graph() {
    const Shared inner = sharedSquare(2, 2, 1);
    const Shared middle = sharedSquare(1, 1, 4);
    middle->holes({inner});
    const Shared one = sharedSquare(0, 0, 9);
    const Shared two = sharedSquare(-1, -1, 20);
    one->holes({middle});
    two->holes({middle, inner});
    return {one, two, one};
}

std::vector<unsigned char> bytesOf(std::vector<Shared> list) {
    gkArchiveMemory archive;
    archive || list;
    archive.finish();
    return archive.bytes();
}

const auto nothing = [] { return 0; };
const auto noCheck = [](int, Outcome) {};

} // namespace

TEST(GraphMemory, AFailedLoadOfSharedObjectsLosesNone) {
    const std::vector<unsigned char> bytes = bytesOf(graph());
    EXPECT_GT(sweep([] { return std::make_unique<std::vector<Shared>>(); },
                    [&](const std::unique_ptr<std::vector<Shared>>& list) {
                        gkArchiveMemory archive(bytes);
                        archive || *list;
                        archive.finish();
                    },
                    [](const std::unique_ptr<std::vector<Shared>>& list, Outcome outcome) {
                        if (outcome != Outcome::eDone) return;
                        ASSERT_EQ(3U, list->size());
                        EXPECT_EQ((*list)[0], (*list)[2]);
                        EXPECT_EQ((*list)[0]->holes()[0], (*list)[1]->holes()[0]);
                    }),
              0);
}

TEST(GraphMemory, AFailedSaveLosesNothing) {
    const std::vector<Shared> list = graph();
    EXPECT_GT(sweep(
                  nothing, [&](int) { bytesOf(list); }, noCheck),
              0);
}

TEST(GraphMemory, AFailedDrawingKeepsWhatWasDrawn) {
    const gkContour contour(starOutline(60, 40.0), true, 0);
    const auto drawIn = [&](gkUITablet& tablet) {
        contour.draw(tablet, gkContourDefs::eDrawOutline, gkColor::red(), gkUITablet::eOverlayLayer);
    };
    EXPECT_GT(sweep([] { return std::make_unique<gkRecordingTablet>(); },
                    [&](const auto& tablet) { drawIn(*tablet); },
                    [&](const auto& tablet, Outcome) {
                        const std::size_t before = tablet->records().size();
                        drawIn(*tablet);
                        EXPECT_EQ(before + 60, tablet->records().size());
                    }),
              0);
    EXPECT_GT(
        sweep([] { return std::make_unique<gkSvgTablet>(100, 100); },
              [&](const auto& tablet) {
                  drawIn(*tablet);
                  tablet->drawText({1, 1}, "a label that needs memory of its own", 3, gkColor::red(),
                                   gkUITablet::eOverlayLayer);
                  tablet->svg();
              },
              [](const auto& tablet, Outcome) { EXPECT_NE(std::string::npos, tablet->svg().find("</svg>")); }),
        0);
}

TEST(GraphMemory, FreeFunctionsLoseNothing) {
    const Points outline = starOutline(300, 40.0);
    EXPECT_GT(sweep(
                  nothing, [&](int) { gfConvexHull(outline); }, noCheck),
              0);
    EXPECT_GT(sweep(
                  nothing, [&](int) { gkContourDefs::BadParams(std::wstring(90, L'x').c_str()); }, noCheck),
              0);
}
