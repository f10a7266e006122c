#include "platform/display/cairo/cairo_painter.h"

#include "platform/display/clean_text.h"
#include "platform/display/drawable.h"

#include <algorithm>
#include <cstddef>
#include <memory>

using gk_Drawable::isFinite;
using gk_Drawable::isPositive;

namespace {

constexpr double kTurn = 6.283185307179586;

// Cairo refuses a matrix whose determinant is zero or infinite, and the error would take the whole picture with
// it. In pixels, the lower limit is far below what shows and the upper one beyond Cairo's own coordinates.
double paintable(double length) { return std::clamp(length, 1e-6, 1e7); }

// In output pixels. FreeType fails somewhere above 50000, and the error would take the whole picture with it.
constexpr double kTallestText = 32767;

struct PngSource {
    const std::vector<unsigned char>& bytes;
    std::size_t next;
};

cairo_status_t readPng(void* closure, unsigned char* data, unsigned length) {
    PngSource& source = *static_cast<PngSource*>(closure);
    if (source.bytes.size() - source.next < length) return CAIRO_STATUS_READ_ERROR;
    std::copy_n(source.bytes.data() + source.next, length, data);
    source.next += length;
    return CAIRO_STATUS_SUCCESS;
}

} // namespace

gk_CairoPainter::gk_CairoPainter(cairo_t* context) : context_(context) {
    cairo_set_line_cap(context_, CAIRO_LINE_CAP_ROUND);
    cairo_select_font_face(context_, "sans-serif", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
}

void gk_CairoPainter::strokeWidth(double width) { strokeWidth_ = paintable(width); }

void gk_CairoPainter::fillAll(const gkColor& color) {
    use(color);
    cairo_paint(context_);
}

void gk_CairoPainter::drawLineSeg(const gkPair<double>& from, const gkPair<double>& to, const gkColor& color,
                                  const Layers&) {
    if (!isFinite(from) || !isFinite(to)) return;
    cairo_move_to(context_, from.x(), from.y());
    cairo_line_to(context_, to.x(), to.y());
    stroke(color);
}

void gk_CairoPainter::drawCircle(const gkPair<double>& center, double radius, const gkColor& color,
                                 const Layers&) {
    if (!isFinite(center) || !isPositive(radius)) return;
    cairo_arc(context_, center.x(), center.y(), paintable(radius), 0, kTurn);
    cairo_close_path(context_);
    stroke(color);
}

void gk_CairoPainter::drawEllipse(const gkPair<double>& center, const gkPair<double>& radii,
                                  const gkRadian& rotation, const gkColor& color, const Layers&) {
    if (!isFinite(center) || !isPositive(radii) || !isFinite(rotation.toDouble())) return;
    cairo_save(context_);
    cairo_translate(context_, center.x(), center.y());
    cairo_rotate(context_, rotation.toDouble());
    cairo_scale(context_, paintable(radii.x()), paintable(radii.y()));
    cairo_arc(context_, 0, 0, 1, 0, kTurn);
    cairo_close_path(context_);
    cairo_restore(context_); // the path stays, and the pen is round again
    stroke(color);
}

void gk_CairoPainter::drawPoint(const gkPair<double>& position, const gkColor& color, const Layers&) {
    if (!isFinite(position)) return;
    use(color);
    cairo_arc(context_, position.x(), position.y(), 1.5 * strokeWidth_, 0, kTurn);
    cairo_fill(context_);
}

void gk_CairoPainter::drawText(const gkPair<double>& position, const std::string& text, double height,
                               const gkColor& color, const Layers&) {
    if (!isFinite(position) || !isPositive(height)) return;
    use(color);
    double scale = 1, unused = 0;
    cairo_user_to_device_distance(context_, &scale, &unused);
    cairo_set_font_size(context_, std::min(paintable(height), kTallestText / scale));
    cairo_move_to(context_, position.x(), position.y());
    cairo_show_text(context_, gk_CleanText::clean(text).c_str());
    cairo_new_path(context_);
}

void gk_CairoPainter::drawImage(const gkPair<double>& origin, const gkPair<double>& size,
                                const std::vector<unsigned char>& pngBytes, const Layers&) {
    if (!isFinite(origin) || !isPositive(size)) return;
    PngSource source{pngBytes, 0};
    const std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> image(
        cairo_image_surface_create_from_png_stream(readPng, &source), &cairo_surface_destroy);
    if (cairo_surface_status(image.get()) != CAIRO_STATUS_SUCCESS) return;
    cairo_save(context_);
    cairo_translate(context_, origin.x(), origin.y());
    cairo_scale(context_, paintable(size.x()) / cairo_image_surface_get_width(image.get()),
                paintable(size.y()) / cairo_image_surface_get_height(image.get()));
    cairo_set_source_surface(context_, image.get(), 0, 0);
    cairo_pattern_set_filter(cairo_get_source(context_), CAIRO_FILTER_NEAREST);
    cairo_paint(context_);
    cairo_restore(context_);
}

void gk_CairoPainter::use(const gkColor& color) {
    cairo_set_source_rgba(context_, color.r() / 255.0, color.g() / 255.0, color.b() / 255.0, color.a() / 255.0);
}

void gk_CairoPainter::stroke(const gkColor& color) {
    use(color);
    cairo_set_line_width(context_, strokeWidth_);
    cairo_stroke(context_);
}
