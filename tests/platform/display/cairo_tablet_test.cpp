// The Cairo surface: pictures are read back with Cairo and their pixels compared. Shapes are placed so that the
// pixels looked at are wholly covered or wholly free, where antialiasing leaves no choice.
#include "platform/display/cairo/cairo_tablet.h"

#include <cairo.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <regex>

namespace {

using Tablet = gkUITablet;

const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInfinity = std::numeric_limits<double>::infinity();
constexpr uint32_t kClear = 0, kWhite = 0xFFFFFFFF, kBlack = 0xFF000000, kRed = 0xFFFF0000, kGreen = 0xFF00FF00,
                   kBlue = 0xFF0000FF;

// A decoded PNG; pixels are premultiplied 0xAARRGGBB.
struct Picture {
    explicit Picture(const std::filesystem::path& file) {
        cairo_surface_t* const surface = cairo_image_surface_create_from_png(file.string().c_str());
        EXPECT_EQ(CAIRO_STATUS_SUCCESS, cairo_surface_status(surface));
        width = cairo_image_surface_get_width(surface);
        height = cairo_image_surface_get_height(surface);
        const bool opaque = cairo_image_surface_get_format(surface) == CAIRO_FORMAT_RGB24;
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                uint32_t value;
                std::memcpy(&value,
                            cairo_image_surface_get_data(surface) +
                                y * cairo_image_surface_get_stride(surface) + 4 * x,
                            4);
                pixels.push_back(opaque ? value | 0xFF000000 : value);
            }
        cairo_surface_destroy(surface);
    }
    uint32_t at(int x, int y) const { return pixels.at(static_cast<std::size_t>(y * width + x)); }
    long painted() const {
        long count = 0;
        for (const uint32_t pixel : pixels) count += pixel != kClear;
        return count;
    }

    int width = 0;
    int height = 0;
    std::vector<uint32_t> pixels;
};

class CairoTablet : public ::testing::Test {
protected:
    CairoTablet() { std::filesystem::create_directories(directory); }
    ~CairoTablet() override { std::filesystem::remove_all(directory); }

    Picture picture(const gkCairoTablet& tablet) {
        tablet.savePng(directory / "picture.png");
        return Picture(directory / "picture.png");
    }
    static std::string contents(const std::filesystem::path& file) {
        std::ifstream in(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    // A PNG file of 2 x 1 pixels, red and blue.
    std::vector<unsigned char> redAndBlue() {
        gkCairoTablet tablet(2, 1);
        tablet.drawLineSeg({0.5, -5}, {0.5, 5}, gkColor::red(), Tablet::eImageLayer);
        tablet.drawLineSeg({1.5, -5}, {1.5, 5}, gkColor::blue(), Tablet::eImageLayer);
        tablet.savePng(directory / "source.png");
        const std::string bytes = contents(directory / "source.png");
        return {bytes.begin(), bytes.end()};
    }

    const std::filesystem::path directory =
        std::filesystem::temp_directory_path() /
        (std::string("cairo_tablet_") + ::testing::UnitTest::GetInstance()->current_test_info()->name());
};

TEST_F(CairoTablet, PictureHasTheSizeAskedFor) {
    const Picture plain = picture(gkCairoTablet(40, 30));
    EXPECT_EQ(40, plain.width);
    EXPECT_EQ(30, plain.height);
    const Picture scaled = picture(gkCairoTablet(41, 30, 1.5)); // 61.5 x 45
    EXPECT_EQ(62, scaled.width);
    EXPECT_EQ(45, scaled.height);
}

TEST_F(CairoTablet, PictureIsTransparentUntilDrawnOn) { EXPECT_EQ(0, picture(gkCairoTablet(4, 3)).painted()); }

TEST_F(CairoTablet, BackgroundFillsEveryPixel) {
    gkCairoTablet tablet(4, 3);
    tablet.background(gkColor::white());
    EXPECT_EQ(std::vector<uint32_t>(12, kWhite), picture(tablet).pixels);
}

TEST_F(CairoTablet, LineThroughPixelCentresFillsOneRow) {
    gkCairoTablet tablet(5, 4);
    tablet.drawLineSeg({-5, 1.5}, {10, 1.5}, gkColor::red(), Tablet::eOverlayLayer);
    const Picture result = picture(tablet);
    for (int x = 0; x < 5; ++x) EXPECT_EQ(kRed, result.at(x, 1));
    EXPECT_EQ(5, result.painted());
}

TEST_F(CairoTablet, AxesPointRightAndDown) {
    gkCairoTablet tablet(9, 9);
    tablet.drawPoint({7.5, 1.5}, gkColor::red(), Tablet::eOverlayLayer);
    tablet.drawPoint({1.5, 7.5}, gkColor::blue(), Tablet::eOverlayLayer);
    const Picture result = picture(tablet);
    EXPECT_EQ(kRed, result.at(7, 1));
    EXPECT_EQ(kBlue, result.at(1, 7));
    EXPECT_EQ(kClear, result.at(1, 1));
}

TEST_F(CairoTablet, ScaleEnlargesLinesAndCoordinates) {
    gkCairoTablet tablet(5, 4, 3);
    tablet.drawLineSeg({-5, 1.5}, {10, 1.5}, gkColor::red(), Tablet::eOverlayLayer);
    const Picture result = picture(tablet);
    EXPECT_EQ(3 * 15, result.painted());
    for (int y = 3; y < 6; ++y) EXPECT_EQ(kRed, result.at(7, y));
}

TEST_F(CairoTablet, StrokeWidthHoldsForTheCallsThatFollow) {
    gkCairoTablet tablet(5, 12);
    tablet.drawLineSeg({-9, 1.5}, {14, 1.5}, gkColor::red(), Tablet::eOverlayLayer);
    tablet.strokeWidth(3);
    tablet.drawLineSeg({-9, 7.5}, {14, 7.5}, gkColor::red(), Tablet::eOverlayLayer);
    const Picture result = picture(tablet);
    EXPECT_EQ(5 + 15, result.painted());
    for (const int y : {1, 6, 7, 8}) EXPECT_EQ(kRed, result.at(2, y));
}

TEST_F(CairoTablet, LayersAreStackedWhateverTheOrderOfCalls) {
    gkCairoTablet tablet(3, 4);
    const auto row = [&](double y, const gkColor& color, const Tablet::Layers& layers) {
        tablet.drawLineSeg({-5, y}, {9, y}, color, layers);
    };
    row(0.5, gkColor::red(), Tablet::eLabelLayer);
    row(0.5, gkColor::blue(), Tablet::eOverlayLayer);
    row(1.5, gkColor::blue(), Tablet::eOverlayLayer);
    row(1.5, gkColor::green(), Tablet::eImageLayer);
    row(2.5, gkColor::red(), Tablet::eOverlayLayer);
    row(2.5, gkColor::green(), Tablet::eOverlayLayer);
    row(3.5, gkColor::red(), static_cast<Tablet::Layers>(0));
    const Picture result = picture(tablet);
    EXPECT_EQ(kRed, result.at(1, 0));
    EXPECT_EQ(kBlue, result.at(1, 1));
    EXPECT_EQ(kGreen, result.at(1, 2));
    EXPECT_EQ(kClear, result.at(1, 3));
}

TEST_F(CairoTablet, CircleIsAnOutlineAtItsRadius) {
    gkCairoTablet tablet(41, 41);
    tablet.strokeWidth(3);
    tablet.drawCircle({20.5, 20.5}, 15, gkColor::blue(), Tablet::eOverlayLayer);
    const Picture result = picture(tablet);
    for (const auto& [x, y] : std::vector<std::array<int, 2>>{{35, 20}, {5, 20}, {20, 35}, {20, 5}})
        EXPECT_EQ(kBlue, result.at(x, y));
    EXPECT_EQ(kClear, result.at(20, 20));
    EXPECT_EQ(kClear, result.at(0, 0));
}

TEST_F(CairoTablet, EllipseTurnsFromXTowardsY) {
    gkCairoTablet tablet(41, 41);
    tablet.strokeWidth(3);
    tablet.drawEllipse({20.5, 20.5}, {std::sqrt(2.0) * 14, 4}, gkDegree(45.0), gkColor::blue(),
                       Tablet::eOverlayLayer);
    const Picture result = picture(tablet);
    EXPECT_EQ(kBlue, result.at(34, 34)); // the far ends, on the diagonal that falls to the right
    EXPECT_EQ(kBlue, result.at(6, 6));
    EXPECT_EQ(kClear, result.at(34, 6));
    EXPECT_EQ(kClear, result.at(20, 20));
}

TEST_F(CairoTablet, ColorsMixByTheirAlpha) {
    gkCairoTablet tablet(3, 3);
    tablet.background(gkColor::black());
    tablet.drawLineSeg({-9, 1.5}, {12, 1.5}, gkColor(255, 255, 255, 51), Tablet::eOverlayLayer);
    const Picture result = picture(tablet);
    EXPECT_EQ(0xFF333333, result.at(1, 1)); // a fifth of 255 is 51, 0x33
    EXPECT_EQ(kBlack, result.at(1, 0));
}

TEST_F(CairoTablet, ImageKeepsSharpPixelsWhenEnlarged) {
    gkCairoTablet tablet(10, 8);
    tablet.drawImage({1, 2}, {8, 4}, redAndBlue(), Tablet::eImageLayer);
    const Picture result = picture(tablet);
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 10; ++x) {
            const bool inside = x >= 1 && x < 9 && y >= 2 && y < 6;
            EXPECT_EQ(!inside ? kClear : x < 5 ? kRed : kBlue, result.at(x, y)) << x << ' ' << y;
        }
}

TEST_F(CairoTablet, ImageThatCannotBeDecodedDrawsNothing) {
    gkCairoTablet tablet(4, 3);
    tablet.drawImage({0, 0}, {4, 3}, {}, Tablet::eImageLayer);
    tablet.drawImage({0, 0}, {4, 3}, {'n', 'o'}, Tablet::eImageLayer);
    std::vector<unsigned char> cut = redAndBlue();
    cut.resize(cut.size() / 2);
    tablet.drawImage({0, 0}, {4, 3}, cut, Tablet::eImageLayer);
    EXPECT_EQ(0, picture(tablet).painted());
}

TEST_F(CairoTablet, TextStandsOnItsBaselineRightOfItsPosition) {
    gkCairoTablet tablet(60, 40);
    tablet.drawText({10, 30}, "H", 20, gkColor::red(), Tablet::eLabelLayer);
    const Picture result = picture(tablet);
    EXPECT_GT(result.painted(), 20);
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 60; ++x)
            if (x < 10 || x >= 32 || y < 8 || y > 30) {
                EXPECT_EQ(kClear, result.at(x, y)) << x << ' ' << y;
            }
}

TEST_F(CairoTablet, TextThatIsNoUtf8LeavesTheRestOfThePictureAlone) {
    gkCairoTablet tablet(5, 4);
    tablet.drawText({1, 3}, "\xFF\xC0\n", 2, gkColor::blue(), Tablet::eImageLayer);
    tablet.drawLineSeg({-5, 1.5}, {10, 1.5}, gkColor::red(), Tablet::eOverlayLayer);
    EXPECT_EQ(kRed, picture(tablet).at(2, 1));
}

TEST_F(CairoTablet, LeavesOutCallsWithNaNOrInfinity) {
    gkCairoTablet tablet(8, 8);
    const Tablet::Layers layer = Tablet::eOverlayLayer;
    for (const double bad : {kNaN, kInfinity, -kInfinity}) {
        tablet.drawLineSeg({bad, 0}, {4, 4}, gkColor::red(), layer);
        tablet.drawLineSeg({0, 0}, {4, bad}, gkColor::red(), layer);
        tablet.drawCircle({4, bad}, 2, gkColor::red(), layer);
        tablet.drawCircle({4, 4}, bad, gkColor::red(), layer);
        tablet.drawEllipse({4, 4}, {2, bad}, gkRadian(0), gkColor::red(), layer);
        tablet.drawEllipse({4, 4}, {2, 3}, gkRadian(bad), gkColor::red(), layer);
        tablet.drawEllipse({bad, 4}, {2, 3}, gkRadian(0), gkColor::red(), layer);
        tablet.drawPoint({bad, 4}, gkColor::red(), layer);
        tablet.drawText({1, bad}, "a", 5, gkColor::red(), layer);
        tablet.drawText({1, 7}, "a", bad, gkColor::red(), layer);
        tablet.drawImage({0, 0}, {bad, 8}, redAndBlue(), layer);
        tablet.drawImage({bad, 0}, {8, 8}, redAndBlue(), layer);
    }
    EXPECT_EQ(0, picture(tablet).painted());
}

TEST_F(CairoTablet, TextHigherThanThePictureLeavesTheRestAlone) {
    gkCairoTablet tablet(5, 4, 10);
    tablet.drawText({0, 3}, "a", 100000, gkColor::blue(), Tablet::eImageLayer); // a million output pixels
    tablet.drawLineSeg({-5, 1.5}, {10, 1.5}, gkColor::red(), Tablet::eOverlayLayer);
    EXPECT_EQ(kRed, picture(tablet).at(25, 15));
}

TEST_F(CairoTablet, ExtremeSizesLeaveTheRestOfThePictureAlone) {
    gkCairoTablet tablet(5, 4);
    const Tablet::Layers layer = Tablet::eImageLayer;
    for (const double size : {1e-300, 1e300}) {
        tablet.strokeWidth(size == 1e-300 ? size : 1);
        tablet.drawLineSeg({-size, -size}, {-2 * size, -size}, gkColor::blue(), layer);
        tablet.drawCircle({-99, 99}, size, gkColor::blue(), layer);
        tablet.drawEllipse({-99, 99}, {size, size}, gkRadian(1), gkColor::blue(), layer);
        tablet.drawText({-99, 99}, "a", size, gkColor::blue(), layer);
        tablet.drawImage({99, 99}, {size, size}, redAndBlue(), layer);
    }
    tablet.drawLineSeg({-5, 1.5}, {10, 1.5}, gkColor::red(), Tablet::eOverlayLayer);
    EXPECT_EQ(kRed, picture(tablet).at(2, 1));
}

TEST_F(CairoTablet, SavesTheSameDrawingInEveryFormat) {
    gkCairoTablet tablet(40, 30, 2);
    tablet.drawCircle({20, 15}, 10, gkColor::red(), Tablet::eOverlayLayer);
    tablet.savePng(directory / "picture.png");
    tablet.saveSvg(directory / "picture.svg");
    tablet.savePdf(directory / "picture.pdf");
    EXPECT_EQ("\x89PNG\r\n", contents(directory / "picture.png").substr(0, 6));
    const std::string svg = contents(directory / "picture.svg");
    EXPECT_TRUE(std::regex_search(svg, std::regex("<svg[^>]* width=\"80px\" height=\"60px\""))) << svg;
    EXPECT_NE(std::string::npos, svg.find("<path"));
    const std::string pdf = contents(directory / "picture.pdf");
    EXPECT_EQ("%PDF-", pdf.substr(0, 5));
    EXPECT_TRUE(std::regex_search(pdf, std::regex("/MediaBox \\[ 0 0 80(\\.0+)? 60(\\.0+)? \\]")));
}

TEST_F(CairoTablet, PdfCarriesNoDate) {
    gkCairoTablet(4, 3).savePdf(directory / "picture.pdf");
    EXPECT_EQ(std::string::npos, contents(directory / "picture.pdf").find("CreationDate"));
}

TEST_F(CairoTablet, DrawingGoesOnAfterASave) {
    gkCairoTablet tablet(5, 4);
    tablet.drawLineSeg({-5, 1.5}, {10, 1.5}, gkColor::red(), Tablet::eOverlayLayer);
    EXPECT_EQ(5, picture(tablet).painted());
    tablet.drawLineSeg({-5, 2.5}, {10, 2.5}, gkColor::red(), Tablet::eOverlayLayer);
    EXPECT_EQ(10, picture(tablet).painted());
}

TEST_F(CairoTablet, FileThatCannotBeWrittenIsRefused) {
    const gkCairoTablet tablet(4, 3);
    EXPECT_THROW(tablet.savePng(directory / "missing" / "picture.png"), gkUITablet::CannotWrite);
    EXPECT_THROW(tablet.saveSvg(directory / "missing" / "picture.svg"), gkUITablet::CannotWrite);
    EXPECT_THROW(tablet.savePdf(directory), gkUITablet::CannotWrite);
}

TEST_F(CairoTablet, RefusesSizesItCannotPaint) {
    EXPECT_THROW(gkCairoTablet(0, 3), gkUITablet::BadSize);
    EXPECT_THROW(gkCairoTablet(4, -3), gkUITablet::BadSize);
    EXPECT_THROW(gkCairoTablet(-4, -3, -1), gkUITablet::BadSize);
    EXPECT_THROW(gkCairoTablet(4, 3, kNaN), gkUITablet::BadSize);
    EXPECT_THROW(gkCairoTablet(4, 3, kInfinity), gkUITablet::BadSize);
    EXPECT_THROW(gkCairoTablet(32768, 3), gkUITablet::BadSize);
    EXPECT_NO_THROW(gkCairoTablet(32767, 3));
    gkCairoTablet tablet(4, 3);
    for (const double bad : {0.0, -1.0, kNaN, kInfinity})
        EXPECT_THROW(tablet.strokeWidth(bad), gkUITablet::BadSize);
    EXPECT_EQ(1.0, tablet.strokeWidth());
}

} // namespace
