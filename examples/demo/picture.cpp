#include "examples/demo/picture.h"

#include "examples/demo/page.h"
#include "platform/display/cairo/cairo_tablet.h"
#include "platform/display/svg_tablet.h"

#include <algorithm>

namespace {

constexpr gkColor kPaper(24, 26, 30);
constexpr gkUITablet::Layers kShapes = gkUITablet::eOverlayLayer;
constexpr gkUITablet::Layers kText = gkUITablet::eLabelLayer;

gkPair<double> pair(const gkVector<2>& v) { return gkPair<double>(v.x(), v.y()); }

// A surface and a page: the surfaces set their stroke width alike, but the abstract one leaves it to them.
template <class Tablet> class Painter {
public:
    explicit Painter(const Page& page)
        : page_(page), tablet_(page.width(), page.heightWithLegend(), page.scale()) {
        tablet_.background(kPaper);
    }

    const Tablet& tablet() const { return tablet_; }

    void photograph(const Photograph& photo) {
        tablet_.drawImage(gkPair<double>(0, 0),
                          gkPair<double>(static_cast<double>(photo.width), static_cast<double>(photo.height)),
                          photo.pngBytes, gkUITablet::eImageLayer);
    }

    void contour(const gkContour& contour, const Key& key) {
        use(key);
        contour.draw(tablet_, gkContourDefs::eDrawOutline, key.color, kShapes);
    }

    void measures(const Measures& object) {
        contour(object.hull, Page::hull);
        if (object.fit) {
            const gkEllipse& ellipse = object.fit->ellipse;
            use(Page::ellipse);
            tablet_.drawEllipse(pair(ellipse.center().vector()), pair(ellipse.radii()), ellipse.rotation(),
                                Page::ellipse.color, kShapes);
        }
        use(Page::farthestPair);
        tablet_.drawLineSeg(pair(object.farthestPair.p1()), pair(object.farthestPair.p2()),
                            Page::farthestPair.color, kShapes);
        use(Page::meanPosition);
        tablet_.drawPoint(pair(object.meanPosition), Page::meanPosition.color, kShapes);
    }

    // At the upper left corner of the object's box, where a round object leaves room.
    void number(const gkContour& contour) {
        const std::string text = std::to_string(contour.label());
        const double height = 1.2 * page_.textHeight();
        const double width = Page::textWidth(text, height);
        const gkVector<2> corner = contour.encloseRect(gkXform<2>()).ul();
        const gkVector<2> left(std::max(corner.x(), 0.8 * height), std::max(corner.y(), 0.8 * height));
        tablet_.strokeWidth(1.3 * height);
        tablet_.drawLineSeg(pair(left), pair(left + gkVector<2>(width - 0.5 * height, 0.0)),
                            kPaper.withAlpha(210), kText);
        tablet_.drawText(pair(left + gkVector<2>(-0.25 * height, 0.36 * height)), text, height,
                         gkColor::white(), kText);
    }

    void legend() {
        for (const Key& key : page_.keys()) {
            const gkVector<2> end = key.position + gkVector<2>(page_.sampleLength(), 0.0);
            use(key);
            if (key.isDot)
                tablet_.drawPoint(pair((key.position + end) / 2.0), key.color, kText);
            else
                tablet_.drawLineSeg(pair(key.position), pair(end), key.color, kText);
            const double height = page_.textHeight();
            tablet_.drawText(pair(end + gkVector<2>(0.5 * height, 0.35 * height)), key.text, height,
                             gkColor::white(), kText);
        }
    }

private:
    void use(const Key& key) { tablet_.strokeWidth(key.width * page_.pen()); }

    const Page& page_;
    Tablet tablet_;
};

template <class Tablet>
void paint(Painter<Tablet>& painter, const Photograph& photograph, const std::vector<gkContour>& outlines,
           const std::vector<Measures>& objects) {
    painter.photograph(photograph);
    for (const gkContour& outline : outlines) painter.contour(outline, Page::outline);
    for (const Measures& object : objects) painter.measures(object);
    for (const gkContour& outline : outlines) painter.number(outline);
    painter.legend();
}

std::filesystem::path withSuffix(std::filesystem::path stem, const char* suffix) { return stem += suffix; }

} // namespace

std::vector<std::filesystem::path> savePictures(const std::filesystem::path& stem, const Photograph& photograph,
                                                const std::vector<gkContour>& outlines,
                                                const std::vector<Measures>& objects, double wantedSide) {
    const std::vector<std::filesystem::path> files = {withSuffix(stem, ".png"), withSuffix(stem, ".svg"),
                                                      withSuffix(stem, ".pdf")};
    const Page page(photograph.width, photograph.height, wantedSide);
    Painter<gkCairoTablet> cairo(page);
    paint(cairo, photograph, outlines, objects);
    cairo.tablet().savePng(files[0]);
    cairo.tablet().savePdf(files[2]);
    Painter<gkSvgTablet> svg(page);
    paint(svg, photograph, outlines, objects);
    svg.tablet().save(files[1]);
    return files;
}
