// The SVG surface: the exact text of small drawings.
#include "platform/display/svg_tablet.h"

#include <gtest/gtest.h>

#include <clocale>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <locale>

namespace {

using Tablet = gkUITablet;

const double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kInfinity = std::numeric_limits<double>::infinity();

std::string document(const std::string& image, const std::string& overlay, const std::string& label) {
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\""
           " width=\"40\" height=\"30\" viewBox=\"0 0 40 30\">\n"
           "<g id=\"image\">\n" +
           image + "</g>\n<g id=\"overlay\">\n" + overlay + "</g>\n<g id=\"label\">\n" + label +
           "</g>\n</svg>\n";
}

const std::string kRedLine =
    "<line x1=\"1\" y1=\"2.5\" x2=\"-3\" y2=\"0.1\" stroke=\"#ff0000\" stroke-width=\"1\""
    " stroke-linecap=\"round\"/>\n";

void drawRedLine(gkUITablet& tablet, const Tablet::Layers& layers) {
    tablet.drawLineSeg({1, 2.5}, {-3, 0.1}, gkColor::red(), layers);
}

TEST(SvgTablet, WithoutACallHasThreeEmptyLayers) { EXPECT_EQ(document("", "", ""), gkSvgTablet(40, 30).svg()); }

TEST(SvgTablet, DrawsALineOnItsLayer) {
    gkSvgTablet tablet(40, 30);
    drawRedLine(tablet, Tablet::eOverlayLayer);
    EXPECT_EQ(document("", kRedLine, ""), tablet.svg());
}

TEST(SvgTablet, StacksLayersWhateverTheOrderOfCalls) {
    gkSvgTablet tablet(40, 30);
    tablet.drawPoint({1, 1}, gkColor::red(), Tablet::eLabelLayer);
    tablet.drawPoint({2, 2}, gkColor::red(), Tablet::eImageLayer);
    tablet.drawPoint({3, 3}, gkColor::red(), Tablet::eOverlayLayer);
    tablet.drawPoint({4, 4}, gkColor::red(), Tablet::eOverlayLayer);
    const auto point = [](const std::string& at) {
        return "<circle cx=\"" + at + "\" cy=\"" + at + "\" r=\"1.5\" fill=\"#ff0000\"/>\n";
    };
    EXPECT_EQ(document(point("2"), point("3") + point("4"), point("1")), tablet.svg());
}

TEST(SvgTablet, DrawsOnEveryLayerNamed) {
    gkSvgTablet tablet(40, 30);
    drawRedLine(tablet, Tablet::eImageLayer | Tablet::eLabelLayer);
    EXPECT_EQ(document(kRedLine, "", kRedLine), tablet.svg());
}

TEST(SvgTablet, DrawsNothingWithoutALayer) {
    gkSvgTablet tablet(40, 30);
    drawRedLine(tablet, static_cast<Tablet::Layers>(0));
    EXPECT_EQ(document("", "", ""), tablet.svg());
}

TEST(SvgTablet, DrawsCirclesAndEllipsesAsOutlines) {
    gkSvgTablet tablet(40, 30);
    tablet.drawCircle({5, 6}, 2, gkColor::blue(), Tablet::eOverlayLayer);
    tablet.drawEllipse({8, 9}, {4, 3}, gkDegree(90.0), gkColor::blue(), Tablet::eOverlayLayer);
    const std::string blue =
        " fill=\"none\" stroke=\"#0000ff\" stroke-width=\"1\" stroke-linecap=\"round\"/>\n";
    EXPECT_EQ(document("",
                       "<circle cx=\"5\" cy=\"6\" r=\"2\"" + blue +
                           "<ellipse cx=\"8\" cy=\"9\" rx=\"4\" ry=\"3\" transform=\"rotate(90 8 9)\"" + blue,
                       ""),
              tablet.svg());
}

TEST(SvgTablet, EscapesText) {
    gkSvgTablet tablet(40, 30);
    tablet.drawText({1, 2}, "a < b & \xC3\xA4\n\xFF", 7, gkColor::white(), Tablet::eLabelLayer);
    EXPECT_EQ(document("", "",
                       "<text x=\"1\" y=\"2\" xml:space=\"preserve\" font-family=\"sans-serif\" font-size=\"7\""
                       " fill=\"#ffffff\">a &lt; b &amp; \xC3\xA4 \xEF\xBF\xBD</text>\n"),
              tablet.svg());
}

TEST(SvgTablet, EmbedsImagesAsBase64) {
    gkSvgTablet tablet(40, 30);
    tablet.drawImage({0, 0}, {40, 30}, {'f', 'o', 'o', 'b'}, Tablet::eImageLayer);
    EXPECT_EQ(document("<image x=\"0\" y=\"0\" width=\"40\" height=\"30\" preserveAspectRatio=\"none\""
                       " image-rendering=\"optimizeSpeed\" style=\"image-rendering:pixelated\""
                       " xlink:href=\"data:image/png;base64,Zm9vYg==\"/>\n",
                       "", ""),
              tablet.svg());
}

TEST(SvgTablet, StrokeWidthHoldsForTheCallsThatFollow) {
    gkSvgTablet tablet(40, 30);
    EXPECT_EQ(1.0, tablet.strokeWidth());
    drawRedLine(tablet, Tablet::eOverlayLayer);
    tablet.strokeWidth(0.25);
    EXPECT_EQ(0.25, tablet.strokeWidth());
    tablet.drawLineSeg({0, 0}, {1, 1}, gkColor::black(), Tablet::eOverlayLayer);
    tablet.drawPoint({3, 4}, gkColor::black(), Tablet::eOverlayLayer);
    EXPECT_EQ(document("",
                       kRedLine +
                           "<line x1=\"0\" y1=\"0\" x2=\"1\" y2=\"1\" stroke=\"#000000\" stroke-width=\"0.25\""
                           " stroke-linecap=\"round\"/>\n"
                           "<circle cx=\"3\" cy=\"4\" r=\"0.375\" fill=\"#000000\"/>\n",
                       ""),
              tablet.svg());
}

TEST(SvgTablet, TranslucentColorsHaveAnOpacity) {
    gkSvgTablet tablet(40, 30);
    tablet.drawLineSeg({0, 0}, {1, 1}, gkColor(0, 0, 0, 51), Tablet::eOverlayLayer);
    tablet.drawPoint({3, 4}, gkColor(0, 0, 0, 0), Tablet::eOverlayLayer);
    EXPECT_EQ(document("",
                       "<line x1=\"0\" y1=\"0\" x2=\"1\" y2=\"1\" stroke=\"#000000\" stroke-opacity=\"0.2\""
                       " stroke-width=\"1\" stroke-linecap=\"round\"/>\n"
                       "<circle cx=\"3\" cy=\"4\" r=\"1.5\" fill=\"#000000\" fill-opacity=\"0\"/>\n",
                       ""),
              tablet.svg());
}

TEST(SvgTablet, ScaleEnlargesThePictureNotTheCoordinates) {
    gkSvgTablet tablet(40, 30, 2.5);
    EXPECT_NE(std::string::npos, tablet.svg().find(" width=\"100\" height=\"75\" viewBox=\"0 0 40 30\">"));
}

TEST(SvgTablet, BackgroundLiesBelowAllLayers) {
    gkSvgTablet tablet(40, 30);
    tablet.background(gkColor::black());
    tablet.background(gkColor::white()); // the last one holds
    EXPECT_NE(std::string::npos, tablet.svg().find("viewBox=\"0 0 40 30\">\n"
                                                   "<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n"
                                                   "<g id=\"image\">\n"));
}

TEST(SvgTablet, LeavesOutCallsWithNaNOrInfinity) {
    gkSvgTablet tablet(40, 30);
    const Tablet::Layers layer = Tablet::eOverlayLayer;
    for (const double bad : {kNaN, kInfinity, -kInfinity}) {
        tablet.drawLineSeg({bad, 0}, {0, 0}, gkColor(), layer);
        tablet.drawLineSeg({0, bad}, {0, 0}, gkColor(), layer);
        tablet.drawLineSeg({0, 0}, {bad, 0}, gkColor(), layer);
        tablet.drawLineSeg({0, 0}, {0, bad}, gkColor(), layer);
        tablet.drawCircle({bad, 0}, 1, gkColor(), layer);
        tablet.drawCircle({0, 0}, bad, gkColor(), layer);
        tablet.drawEllipse({0, bad}, {1, 1}, gkRadian(0), gkColor(), layer);
        tablet.drawEllipse({0, 0}, {bad, 1}, gkRadian(0), gkColor(), layer);
        tablet.drawEllipse({0, 0}, {1, bad}, gkRadian(0), gkColor(), layer);
        tablet.drawEllipse({0, 0}, {1, 1}, gkRadian(bad), gkColor(), layer);
        tablet.drawPoint({0, bad}, gkColor(), layer);
        tablet.drawPoint({bad, 0}, gkColor(), layer);
        tablet.drawText({bad, 0}, "a", 1, gkColor(), layer);
        tablet.drawText({0, 0}, "a", bad, gkColor(), layer);
        tablet.drawImage({bad, 0}, {1, 1}, {1}, layer);
        tablet.drawImage({0, 0}, {1, bad}, {1}, layer);
    }
    EXPECT_EQ(document("", "", ""), tablet.svg());
}

TEST(SvgTablet, LeavesOutWhatHasNoExtent) {
    gkSvgTablet tablet(40, 30);
    const Tablet::Layers layer = Tablet::eOverlayLayer;
    tablet.drawCircle({0, 0}, 0, gkColor(), layer);
    tablet.drawCircle({0, 0}, -1, gkColor(), layer);
    tablet.drawEllipse({0, 0}, {1, 0}, gkRadian(0), gkColor(), layer);
    tablet.drawText({0, 0}, "a", 0, gkColor(), layer);
    tablet.drawImage({0, 0}, {0, 1}, {1}, layer);
    tablet.drawImage({0, 0}, {1, 1}, {}, layer);
    tablet.strokeWidth(1.7e308); // a dot of half as much again would be infinite
    tablet.drawPoint({0, 0}, gkColor(), layer);
    EXPECT_EQ(document("", "", ""), tablet.svg());
}

TEST(SvgTablet, ADegenerateSegmentIsStillDrawn) {
    gkSvgTablet tablet(40, 30);
    tablet.drawLineSeg({1, 1}, {1, 1}, gkColor(), Tablet::eOverlayLayer);
    EXPECT_NE(document("", "", ""), tablet.svg());
}

TEST(SvgTablet, NumbersIgnoreTheLocale) {
    struct CommaForThePoint : std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };
    const std::locale before = std::locale::global(std::locale(std::locale(), new CommaForThePoint));
    gkSvgTablet tablet(4000, 30);
    tablet.drawPoint({1234.5, 1}, gkColor(), Tablet::eOverlayLayer);
    const std::string svg = tablet.svg();
    std::locale::global(before);
    EXPECT_NE(std::string::npos, svg.find("cx=\"1234.5\""));
    EXPECT_NE(std::string::npos, svg.find("viewBox=\"0 0 4000 30\""));
}

TEST(SvgTablet, RefusesSizesThatAreNotPositiveAndFinite) {
    EXPECT_THROW(gkSvgTablet(0, 30), gkUITablet::BadSize);
    EXPECT_THROW(gkSvgTablet(40, -1), gkUITablet::BadSize);
    EXPECT_THROW(gkSvgTablet(-40, -30, -1), gkUITablet::BadSize);
    EXPECT_THROW(gkSvgTablet(40, 30, 0), gkUITablet::BadSize);
    EXPECT_THROW(gkSvgTablet(40, 30, kNaN), gkUITablet::BadSize);
    EXPECT_THROW(gkSvgTablet(40, 30, kInfinity), gkUITablet::BadSize);
    EXPECT_THROW(gkSvgTablet(40, 30, std::numeric_limits<double>::max()), gkUITablet::BadSize);
    gkSvgTablet tablet(40, 30);
    for (const double bad : {0.0, -1.0, kNaN, kInfinity})
        EXPECT_THROW(tablet.strokeWidth(bad), gkUITablet::BadSize);
    EXPECT_EQ(1.0, tablet.strokeWidth());
}

TEST(SvgTablet, ACopyGoesItsOwnWay) {
    gkSvgTablet tablet(40, 30);
    drawRedLine(tablet, Tablet::eImageLayer);
    gkSvgTablet copy(tablet);
    drawRedLine(copy, Tablet::eLabelLayer);
    EXPECT_EQ(document(kRedLine, "", ""), tablet.svg());
    EXPECT_EQ(document(kRedLine, "", kRedLine), copy.svg());
    tablet = copy;
    EXPECT_EQ(copy.svg(), tablet.svg());
}

class SvgFile : public ::testing::Test {
protected:
    SvgFile() { std::filesystem::create_directories(directory); }
    ~SvgFile() override { std::filesystem::remove_all(directory); }

    std::string contents(const std::filesystem::path& file) {
        std::ifstream in(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

    const std::filesystem::path directory =
        std::filesystem::temp_directory_path() /
        (std::string("svg_tablet_") + ::testing::UnitTest::GetInstance()->current_test_info()->name());
};

TEST_F(SvgFile, HoldsTheWholeDocumentAndReplacesWhatWasThere) {
    const std::filesystem::path file = directory / "picture.svg";
    std::ofstream(file) << std::string(5000, 'x');
    gkSvgTablet tablet(40, 30);
    drawRedLine(tablet, Tablet::eOverlayLayer);
    tablet.save(file);
    EXPECT_EQ(tablet.svg(), contents(file));
}

TEST_F(SvgFile, ThatCannotBeWrittenIsRefused) {
    const gkSvgTablet tablet(40, 30);
    EXPECT_THROW(tablet.save(directory / "missing" / "picture.svg"), gkUITablet::CannotWrite);
    EXPECT_THROW(tablet.save(directory), gkUITablet::CannotWrite);
}

TEST_F(SvgFile, WithANameThatIsNoTextIsRefusedAllTheSame) {
#ifdef _WIN32 // where half a character in a name can be shown
    const std::filesystem::path file = directory / "missing" / L"\xD800.svg";
    const std::wstring shown = file.wstring();
#else
    const std::filesystem::path file = directory / "missing" / "\xFF.svg";
    const std::wstring shown = L"(name cannot be shown)";
#endif
    try {
        gkSvgTablet(40, 30).save(file);
        FAIL() << "not thrown";
    } catch (const gkUITablet::CannotWrite& error) {
        EXPECT_EQ(L"cannot write the picture " + shown, error.message());
    }
}

} // namespace
