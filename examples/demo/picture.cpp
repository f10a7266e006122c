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

// A surface and a page: the surfaces set their stroke width alike, but the abstract one leaves it to them. The
// surface is the picture's, in pixels; measures are in units.
template <class Tablet> class Painter {
public:
    Painter(const Page& page, const Scale& scale)
        : page_(page), toPixels_(scale.toPixels()), pixelsPerUnit_(1.0 / scale.size()),
          tablet_(page.width(), page.heightWithLegend(), page.scale()) {
        tablet_.background(kPaper);
    }

    const Tablet& tablet() const { return tablet_; }

    void photograph(const Photograph& photo) {
        tablet_.drawImage(gkPair<double>(0, 0),
                          gkPair<double>(static_cast<double>(photo.width), static_cast<double>(photo.height)),
                          photo.pngBytes, gkUITablet::eImageLayer);
    }

    void outlines(const Object& object) {
        contour(*object.shape, Page::outline);
        for (const gkPtrHandle_const<gkRegion>& hole : object.shape->holes()) contour(*hole, Page::hole);
    }

    void measures(const Measures& object) {
        contour(object.hull, Page::hull);
        if (object.fit) ellipse(object.fit->ellipse, Page::ellipse);
        if (object.momentsEllipse) ellipse(*object.momentsEllipse, Page::momentsEllipse);
        use(Page::farthestPair);
        tablet_.drawLineSeg(place(object.farthestPair.p1()), place(object.farthestPair.p2()),
                            Page::farthestPair.color, kShapes);
        use(Page::meanPosition);
        tablet_.drawPoint(place(object.meanPosition), Page::meanPosition.color, kShapes);
        use(Page::centerOfMass);
        tablet_.drawPoint(place(object.centerOfMass), Page::centerOfMass.color, kShapes);
    }

    // An edgelet region draws its edge points, which are in pixels already.
    void edges(const EdgeRegion& region) {
        use(Page::edgePoint);
        region.draw(tablet_, Page::edgePoint.color, kShapes);
        for (const gkPtrHandle_const<EdgeRegion>& hole : region.holes()) edges(*hole);
    }

    // Above the upper left corner of the object's box, where a round object leaves room.
    void number(const gkContour& contour) {
        const std::string text = std::to_string(contour.label());
        const double height = 1.2 * page_.textHeight();
        const double width = Page::textWidth(text, height);
        const gkVector<2> corner = contour.encloseRect(toPixels_).ul() - gkVector<2>(0.0, 0.5 * height);
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
    void contour(const gkContour& contour, const Key& key) {
        use(key);
        gkContour inPixels;
        contour.map(toPixels_, inPixels);
        inPixels.draw(tablet_, gkContourDefs::eDrawOutline, key.color, kShapes);
    }

    void ellipse(const gkEllipse& ellipse, const Key& key) {
        use(key);
        tablet_.drawEllipse(place(ellipse.center().vector()), pair(ellipse.radii() * pixelsPerUnit_),
                            ellipse.rotation(), key.color, kShapes);
    }

    gkPair<double> place(const gkVector<2>& inUnits) const { return pair(toPixels_ * inUnits); }

    void use(const Key& key) { tablet_.strokeWidth(key.width * page_.pen()); }

    const Page& page_;
    gkXform<2> toPixels_;
    double pixelsPerUnit_;
    Tablet tablet_;
};

template <class Tablet> void paint(Painter<Tablet>& painter, const Scene& scene) {
    painter.photograph(scene.photograph);
    for (const Measures& object : scene.measures) painter.measures(object);
    for (const Object& object : scene.objects) painter.edges(*object.edges);
    for (const Object& object : scene.objects) painter.outlines(object);
    for (const Object& object : scene.objects) painter.number(*object.shape);
    painter.legend();
}

} // namespace

void savePicture(const std::filesystem::path& file, const Scene& scene, double wantedSide) {
    const Page page(scene.photograph.width, scene.photograph.height, wantedSide);
    if (file.extension() == ".svg") {
        Painter<gkSvgTablet> painter(page, scene.scale);
        paint(painter, scene);
        painter.tablet().save(file);
    } else {
        Painter<gkCairoTablet> painter(page, scene.scale);
        paint(painter, scene);
        file.extension() == ".pdf" ? painter.tablet().savePdf(file) : painter.tablet().savePng(file);
    }
}
