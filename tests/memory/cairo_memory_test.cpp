// The Cairo surface when memory runs short. Cairo's own memory is C's and always there; what fails is the
// library's: the calls that are kept, the picture's bytes, the file. Pictures are compared as PNG files, whose
// bytes say the same whenever the same process saves the same drawing.
#include "platform/display/cairo/cairo_tablet.h"
#include "tests/memory/sweep.h"

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace {

const auto kEverywhere = static_cast<gkUITablet::Layers>(gkUITablet::eImageLayer | gkUITablet::eOverlayLayer |
                                                         gkUITablet::eLabelLayer);
const std::string kText = "a label that is too long to lie within its string object";

class CairoMemory : public testing::Test {
protected:
    CairoMemory() { std::filesystem::create_directories(folder); }
    ~CairoMemory() override { std::filesystem::remove_all(folder); }

    std::string pngOf(const gkCairoTablet& tablet) const {
        tablet.savePng(folder / "look.png");
        return contentsOf(folder / "look.png");
    }
    static std::string contentsOf(const std::filesystem::path& file) {
        std::ifstream in(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() /
        (std::string("gkcntr_cairo_memory_") + testing::UnitTest::GetInstance()->current_test_info()->name());
};

using Draw = std::function<void(gkCairoTablet&)>;

// One of each call, each at a place of its own.
std::vector<Draw> calls(const std::vector<unsigned char>& image) {
    return {[](gkCairoTablet& t) {
                t.drawLineSeg({1, 2}, {60, 2}, gkColor::red(), kEverywhere);
            },
            [](gkCairoTablet& t) {
                t.drawCircle({10, 12}, 6, gkColor::red(), kEverywhere);
            },
            [](gkCairoTablet& t) {
                t.drawEllipse({30, 12}, {8, 4}, gkRadian(0.5), gkColor::red(), kEverywhere);
            },
            [](gkCairoTablet& t) {
                t.drawPoint({50, 12}, gkColor::red(), kEverywhere);
            },
            [](gkCairoTablet& t) {
                t.drawText({1, 36}, kText, 12, gkColor::red(), kEverywhere);
            },
            [image](gkCairoTablet& t) {
                t.drawImage({50, 20}, {10, 10}, image, kEverywhere);
            }};
}

std::unique_ptr<gkCairoTablet> tabletOf(const std::vector<Draw>& drawing) {
    auto tablet = std::make_unique<gkCairoTablet>(64, 40);
    for (const Draw& draw : drawing) draw(*tablet);
    return tablet;
}

std::vector<unsigned char> bytesOf(const std::string& text) { return {text.begin(), text.end()}; }

} // namespace

TEST_F(CairoMemory, ATabletIsMadeOrNot) {
    EXPECT_GT(sweep([] { return 0; }, [](int) { gkCairoTablet(64, 40); }, [](int, Outcome) {}), 0);
}

TEST_F(CairoMemory, ADrawingKeepsACallOrNot) {
    gkCairoTablet blue(4, 4);
    blue.background(gkColor::blue());
    for (const Draw& draw : calls(bytesOf(pngOf(blue)))) {
        const std::string before = pngOf(gkCairoTablet(64, 40));
        const std::string after = pngOf(*tabletOf({draw}));
        ASSERT_NE(before, after);
        EXPECT_GT(sweep([] { return tabletOf({}); }, [&](const auto& tablet) { draw(*tablet); },
                        [&](const auto& tablet, Outcome outcome) {
                            EXPECT_EQ(outcome == Outcome::eDone ? after : before, pngOf(*tablet));
                        }),
                  0);
    }
}

// A call that fails half way must not leave its line width to the next one.
TEST_F(CairoMemory, ACallAfterAFailedOneHasItsOwnLineWidth) {
    const Draw thin = [](gkCairoTablet& tablet) {
        tablet.drawLineSeg({1, 2}, {60, 2}, gkColor::red(), kEverywhere);
    };
    const Draw wide = [](gkCairoTablet& tablet) {
        tablet.strokeWidth(6);
        tablet.drawLineSeg({1, 20}, {60, 20}, gkColor::red(), kEverywhere);
    };
    const std::string alone = pngOf(*tabletOf({wide}));
    const std::string both = pngOf(*tabletOf({thin, wide}));
    EXPECT_GT(sweep([] { return tabletOf({}); }, [&](const auto& tablet) { thin(*tablet); },
                    [&](const auto& tablet, Outcome outcome) {
                        wide(*tablet);
                        EXPECT_EQ(outcome == Outcome::eDone ? both : alone, pngOf(*tablet));
                    }),
              0);
}

// Where the library's memory ends inside one of Cairo's calls, the picture is refused as one that cannot be
// written.
TEST_F(CairoMemory, AFailedSaveLeavesTheDrawingAsItWas) {
    using Save = void (gkCairoTablet::*)(const std::filesystem::path&) const;
    gkCairoTablet blue(4, 4);
    blue.background(gkColor::blue());
    const std::vector<Draw> drawing = calls(bytesOf(pngOf(blue)));
    const std::string picture = pngOf(*tabletOf(drawing));
    for (const Save save : {&gkCairoTablet::savePng, &gkCairoTablet::saveSvg, &gkCairoTablet::savePdf}) {
        const std::filesystem::path file = folder / "saved";
        bool refused = false;
        EXPECT_GT(sweep([&] { return tabletOf(drawing); },
                        [&](const auto& tablet) {
                            try {
                                ((*tablet).*save)(file);
                            } catch (const gkUITablet::CannotWrite&) {
                                refused = true;
                                throw std::bad_alloc();
                            }
                        },
                        [&](const auto& tablet, Outcome outcome) {
                            EXPECT_EQ(picture, pngOf(*tablet));
                            if (outcome == Outcome::eFailed) return;
                            EXPECT_GT(std::filesystem::file_size(file), 0u);
                        }),
                  0);
        EXPECT_TRUE(refused);
    }
}
