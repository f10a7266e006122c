#include "platform/display/svg_tablet.h"

#include "platform/display/drawable.h"
#include "platform/display/svg_text.h"
#include "platform/display/write_file.h"

#include <new>

using gk_Drawable::isFinite;
using gk_Drawable::isPositive;
using gk_SvgText::attribute;

namespace {

std::string opacity(const char* name, const gkColor& color) {
    return color.a() == 255 ? std::string() : attribute(name, color.a() / 255.0);
}

std::string fill(const gkColor& color) {
    return attribute("fill", color.hex()) + opacity("fill-opacity", color);
}

std::string group(const char* id, const std::string& elements) {
    return std::string("<g id=\"") + id + "\">\n" + elements + "</g>\n";
}

} // namespace

gkSvgTablet::gkSvgTablet(long width, long height, double scale)
    : width_(width), height_(height), scale_(scale) {
    if (width <= 0 || height <= 0 || !isPositive(scale) || !isFinite(static_cast<double>(width) * scale) ||
        !isFinite(static_cast<double>(height) * scale))
        throw BadSize(L"a picture needs a positive width, height and scale");
}

gkSvgTablet::gkSvgTablet(const gkSvgTablet& other) = default;

gkSvgTablet& gkSvgTablet::operator=(const gkSvgTablet& other) = default;

gkSvgTablet::~gkSvgTablet() = default;

double gkSvgTablet::strokeWidth() const { return strokeWidth_; }

void gkSvgTablet::strokeWidth(double width) {
    if (!isPositive(width)) throw BadSize(L"a stroke width must be positive and finite");
    strokeWidth_ = width;
}

void gkSvgTablet::background(const gkColor& color) {
    background_ = "<rect width=\"100%\" height=\"100%\"" + fill(color) + "/>\n";
}

void gkSvgTablet::drawLineSeg(const gkPair<double>& from, const gkPair<double>& to, const gkColor& color,
                              const Layers& layers) {
    if (!isFinite(from) || !isFinite(to)) return;
    add(layers, "<line" + attribute("x1", from.x()) + attribute("y1", from.y()) + attribute("x2", to.x()) +
                    attribute("y2", to.y()) + stroke(color) + "/>\n");
}

void gkSvgTablet::drawCircle(const gkPair<double>& center, double radius, const gkColor& color,
                             const Layers& layers) {
    if (!isFinite(center) || !isPositive(radius)) return;
    add(layers, "<circle" + attribute("cx", center.x()) + attribute("cy", center.y()) + attribute("r", radius) +
                    " fill=\"none\"" + stroke(color) + "/>\n");
}

void gkSvgTablet::drawEllipse(const gkPair<double>& center, const gkPair<double>& radii,
                              const gkRadian& rotation, const gkColor& color, const Layers& layers) {
    const double degrees = gkDegree(rotation).toDouble();
    if (!isFinite(center) || !isPositive(radii) || !isFinite(degrees)) return;
    const std::string turn = "rotate(" + gk_SvgText::number(degrees) + " " + gk_SvgText::number(center.x()) +
                             " " + gk_SvgText::number(center.y()) + ")";
    add(layers, "<ellipse" + attribute("cx", center.x()) + attribute("cy", center.y()) +
                    attribute("rx", radii.x()) + attribute("ry", radii.y()) + attribute("transform", turn) +
                    " fill=\"none\"" + stroke(color) + "/>\n");
}

void gkSvgTablet::drawPoint(const gkPair<double>& position, const gkColor& color, const Layers& layers) {
    const double radius = 1.5 * strokeWidth_;
    if (!isFinite(position) || !isFinite(radius)) return;
    add(layers, "<circle" + attribute("cx", position.x()) + attribute("cy", position.y()) +
                    attribute("r", radius) + fill(color) + "/>\n");
}

void gkSvgTablet::drawText(const gkPair<double>& position, const std::string& text, double height,
                           const gkColor& color, const Layers& layers) {
    if (!isFinite(position) || !isPositive(height)) return;
    add(layers, "<text" + attribute("x", position.x()) + attribute("y", position.y()) +
                    " xml:space=\"preserve\" font-family=\"sans-serif\"" + attribute("font-size", height) +
                    fill(color) + ">" + gk_SvgText::escaped(text) + "</text>\n");
}

void gkSvgTablet::drawImage(const gkPair<double>& origin, const gkPair<double>& size,
                            const std::vector<unsigned char>& pngBytes, const Layers& layers) {
    if (!isFinite(origin) || !isPositive(size) || pngBytes.empty()) return;
    // Viewers older than SVG 2 know only optimizeSpeed and the xlink form of the reference; newer ones still
    // read them.
    add(layers, "<image" + attribute("x", origin.x()) + attribute("y", origin.y()) +
                    attribute("width", size.x()) + attribute("height", size.y()) +
                    " preserveAspectRatio=\"none\" image-rendering=\"optimizeSpeed\" "
                    "style=\"image-rendering:pixelated\""
                    " xlink:href=\"data:image/png;base64," +
                    gk_SvgText::base64(pngBytes) + "\"/>\n");
}

std::string gkSvgTablet::svg() const {
    const double width = static_cast<double>(width_), height = static_cast<double>(height_);
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\"" +
           attribute("width", width * scale_) + attribute("height", height * scale_) + " viewBox=\"0 0 " +
           std::to_string(width_) + " " + std::to_string(height_) + "\">\n" + background_ +
           group("image", image_) + group("overlay", overlay_) + group("label", label_) + "</svg>\n";
}

void gkSvgTablet::save(const gkFileName& file) const { gk_WriteFile::write(file.native(), svg()); }

std::string gkSvgTablet::stroke(const gkColor& color) const {
    return attribute("stroke", color.hex()) + opacity("stroke-opacity", color) +
           attribute("stroke-width", strokeWidth_) + " stroke-linecap=\"round\"";
}

// Where memory fails on the way, layers that have the element already lose it again.
void gkSvgTablet::add(const Layers& layers, const std::string& element) {
    const std::size_t image = image_.size();
    const std::size_t overlay = overlay_.size();
    try {
        if (layers & eImageLayer) image_ += element;
        if (layers & eOverlayLayer) overlay_ += element;
        if (layers & eLabelLayer) label_ += element;
    } catch (const std::bad_alloc&) {
        image_.resize(image);
        overlay_.resize(overlay);
        throw;
    }
}
