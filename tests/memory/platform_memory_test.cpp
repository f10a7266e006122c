// Fits, polygons, plain values in archives and drawing surfaces when memory runs short.
#include "platform/core/archive/archive_file.h"
#include "platform/core/archive/archive_memory.h"
#include "platform/core/archive/archive_vector.h"
#include "platform/core/fit/ellipse_fit.h"
#include "platform/core/shapes/polygon.h"
#include "platform/display/recording_tablet.h"
#include "platform/display/svg_tablet.h"
#include "tests/memory/sweep.h"
#include "tests/support/outlines.h"

#include <cmath>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace {

const std::string kText = "a label that is too long to lie within its string object";
const auto kEverywhere = static_cast<gkUITablet::Layers>(gkUITablet::eImageLayer | gkUITablet::eOverlayLayer |
                                                         gkUITablet::eLabelLayer);

using Draw = std::function<void(gkUITablet&)>;

// One of each call, all of them on all layers.
const std::vector<Draw>& calls() {
    static const std::vector<Draw> list = {
        [](gkUITablet& t) {
            t.drawLineSeg({1, 2}, {3, 4}, gkColor::red(), kEverywhere);
        },
        [](gkUITablet& t) {
            t.drawCircle({1, 2}, 3, gkColor::red(), kEverywhere);
        },
        [](gkUITablet& t) {
            t.drawEllipse({1, 2}, {3, 4}, gkRadian(0.5), gkColor::red(), kEverywhere);
        },
        [](gkUITablet& t) {
            t.drawPoint({1, 2}, gkColor::red(), kEverywhere);
        },
        [](gkUITablet& t) {
            t.drawText({1, 2}, kText, 3, gkColor::red(), kEverywhere);
        },
        [](gkUITablet& t) {
            t.drawImage({1, 2}, {3, 4}, std::vector<unsigned char>(100, 7), kEverywhere);
        }};
    return list;
}

const auto nothing = [] { return 0; };
const auto noCheck = [](int, Outcome) {};

struct Values {
    std::string text = kText;
    std::wstring wide = std::wstring(60, L'w');
    std::vector<double> numbers = std::vector<double>(20, 1.5);
    std::vector<std::vector<std::string>> nested = {{kText, kText}, {}, {kText}};
    std::vector<bool> flags = std::vector<bool>(70, true);
    Points points = starOutline(30, 4.0);

    void pass(gkArchive& archive) { archive || text || wide || numbers || nested || flags || points; }
    bool operator==(const Values& other) const {
        return text == other.text && wide == other.wide && numbers == other.numbers && nested == other.nested &&
               flags == other.flags && points == other.points;
    }
};

std::vector<unsigned char> bytesOf(Values values) {
    gkArchiveMemory archive;
    values.pass(archive);
    archive.finish();
    return archive.bytes();
}

} // namespace

TEST(PlatformMemory, AFailedFitLeavesTheResultsAlone) {
    const Points outline = starOutline(80, 40.0);
    const gkEllipseFitResults before(gkEllipse(), -7.0);
    const auto sweepLeavingOut = [&](unsigned long count) {
        const gkEllipseFitParams params(gkEllipseFitDefs::eDirectLeastSquares, gkRadian(0.0), count, HUGE_VAL);
        return sweep([&] { return before; },
                     [&](gkEllipseFitResults& results) { gfEllipseFit(params, outline, results); },
                     [&](const gkEllipseFitResults& results, Outcome outcome) {
                         EXPECT_EQ(outcome == Outcome::eFailed, results.error() == before.error());
                     });
    };
    EXPECT_EQ(0, sweepLeavingOut(0)); // needs no memory
    EXPECT_GT(sweepLeavingOut(2), 0);
}

TEST(PlatformMemory, APolygonThatCannotGrowStaysAsItWas) {
    const gkPolygon before(starOutline(32, 4.0));
    EXPECT_GT(sweep([&] { return before; },
                    [](gkPolygon& polygon) {
                        polygon.append({9, 9});
                    },
                    [&](const gkPolygon& polygon, Outcome outcome) {
                        EXPECT_EQ(outcome == Outcome::eFailed, polygon == before);
                    }),
              0);
}

TEST(PlatformMemory, AFailedLoadOfValuesLosesNothing) {
    const Values values;
    const std::vector<unsigned char> bytes = bytesOf(values);
    EXPECT_GT(sweep([] { return std::make_unique<Values>(); },
                    [&](const std::unique_ptr<Values>& loaded) {
                        gkArchiveMemory archive(bytes);
                        loaded->pass(archive);
                        archive.finish();
                    },
                    [&](const std::unique_ptr<Values>& loaded, Outcome outcome) {
                        if (outcome == Outcome::eDone) {
                            EXPECT_TRUE(*loaded == values);
                        }
                    }),
              0);
}

TEST(PlatformMemory, AFailedSaveOfValuesLosesNothing) {
    EXPECT_GT(sweep(
                  nothing, [](int) { bytesOf(Values()); }, noCheck),
              0);
}

// Nothing touches the file before close().
TEST(PlatformMemory, AFileIsWrittenWholeOrNotAtAll) {
    const std::filesystem::path file = std::filesystem::temp_directory_path() / "gkcntr_platform_memory.gka";
    EXPECT_GT(sweep(
                  nothing,
                  [&](int) {
                      std::filesystem::remove(file);
                      gkArchiveFile archive(file, gkArchiveFile::eSave);
                      Values values;
                      values.pass(archive);
                      archive.close();
                  },
                  [&](int, Outcome outcome) {
                      EXPECT_EQ(outcome == Outcome::eDone, std::filesystem::exists(file));
                      if (outcome == Outcome::eFailed) return;
                      Values loaded;
                      gkArchiveFile archive(file, gkArchiveFile::eLoad);
                      loaded.pass(archive);
                      EXPECT_TRUE(loaded == Values());
                  }),
              0);
    std::filesystem::remove(file);
}

TEST(PlatformMemory, ADrawingKeepsAllLayersOfACallOrNone) {
    for (const Draw& draw : calls()) {
        gkSvgTablet before(100, 50);
        for (const Draw& earlier : calls()) earlier(before);
        gkSvgTablet after = before;
        draw(after);
        EXPECT_GT(sweep([&] { return std::make_unique<gkSvgTablet>(before); },
                        [&](const auto& tablet) { draw(*tablet); },
                        [&](const auto& tablet, Outcome outcome) {
                            EXPECT_EQ((outcome == Outcome::eDone ? after : before).svg(), tablet->svg());
                        }),
                  0);
    }
}

TEST(PlatformMemory, ARecordingKeepsACallOrNot) {
    for (const Draw& draw : calls()) {
        gkRecordingTablet before;
        for (const Draw& earlier : calls()) earlier(before);
        EXPECT_GT(sweep([&] { return std::make_unique<gkRecordingTablet>(before); },
                        [&](const auto& tablet) { draw(*tablet); },
                        [&](const auto& tablet, Outcome outcome) {
                            const std::size_t added = outcome == Outcome::eDone ? 1 : 0;
                            EXPECT_EQ(before.records().size() + added, tablet->records().size());
                        }),
                  0);
    }
}

TEST(PlatformMemory, CopiesOfSurfacesAreWholeOrNone) {
    gkRecordingTablet recording;
    gkSvgTablet picture(100, 50);
    for (const Draw& draw : calls()) {
        draw(recording);
        draw(picture);
    }
    EXPECT_GT(sweep([] { return std::make_unique<gkRecordingTablet>(); },
                    [&](const auto& copy) { recording.replay(*copy); },
                    [&](const auto& copy, Outcome outcome) {
                        EXPECT_EQ(outcome == Outcome::eDone, copy->records() == recording.records());
                    }),
              0);
    EXPECT_GT(sweep(
                  nothing, [&](int) { EXPECT_EQ(picture.svg(), gkSvgTablet(picture).svg()); }, noCheck),
              0);
}
