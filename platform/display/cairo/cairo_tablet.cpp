#include "platform/display/cairo/cairo_tablet.h"

#include "platform/display/cairo/cairo_painter.h"
#include "platform/display/drawable.h"
#include "platform/display/recording_tablet.h"
#include "platform/display/write_file.h"

#include <cairo-pdf.h>
#include <cairo-svg.h>

#include <cmath>
#include <cstddef>
#include <exception>
#include <optional>

using gk_Drawable::isPositive;

namespace {

constexpr double kLargestSide = 32767; // of a Cairo image surface

using Surface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;
using Context = std::unique_ptr<cairo_t, decltype(&cairo_destroy)>;

// Called by Cairo, which is C: no exception may pass.
cairo_status_t append(void* closure, const unsigned char* data, unsigned length) {
    try {
        static_cast<std::string*>(closure)->append(reinterpret_cast<const char*>(data), length);
        return CAIRO_STATUS_SUCCESS;
    } catch (const std::exception&) {
        return CAIRO_STATUS_WRITE_ERROR;
    }
}

void check(cairo_status_t status, const std::filesystem::path& file) {
    if (status != CAIRO_STATUS_SUCCESS) gk_WriteFile::refuse(file);
}

} // namespace

class gkCairoTablet::Drawing {
public:
    Drawing(long width, long height, double scale)
        : width_(static_cast<double>(width) * scale), height_(static_cast<double>(height) * scale),
          scale_(scale) {
        if (!isPositive(width_) || !isPositive(height_) || !isPositive(scale) || width_ > kLargestSide ||
            height_ > kLargestSide)
            throw BadSize(
                L"a picture needs a positive width, height and scale and at most 32767 pixels a side");
    }

    double width() const { return width_; }
    double height() const { return height_; }

    // Where the next call is kept.
    gkRecordingTablet& next() {
        strokeWidths_.resize(calls_.records().size()); // drops the width of a call that ran out of memory
        strokeWidths_.push_back(strokeWidth);
        return calls_;
    }

    cairo_status_t paint(cairo_surface_t* surface) const {
        const Context context(cairo_create(surface), &cairo_destroy);
        cairo_scale(context.get(), scale_, scale_);
        gk_CairoPainter painter(context.get());
        if (background) painter.fillAll(*background);
        for (const Layers layer : {eImageLayer, eOverlayLayer, eLabelLayer}) paintLayer(layer, painter);
        return cairo_status(context.get());
    }

    // For a surface whose stream is `bytes`.
    void save(cairo_surface_t* surface, const std::string& bytes, const std::filesystem::path& file) const {
        check(paint(surface), file);
        cairo_surface_finish(surface);
        check(cairo_surface_status(surface), file);
        gk_WriteFile::write(file, bytes);
    }

    double strokeWidth = 1.0;
    std::optional<gkColor> background;

private:
    void paintLayer(Layers layer, gk_CairoPainter& painter) const {
        for (std::size_t i = 0; i < calls_.records().size(); ++i) {
            const gkRecordingTablet::Record& call = calls_.records()[i];
            if (!(call.layers & layer)) continue;
            painter.strokeWidth(strokeWidths_[i]);
            call.replay(painter);
        }
    }

    double width_;
    double height_;
    double scale_;
    gkRecordingTablet calls_;
    std::vector<double> strokeWidths_; // one per call
};

gkCairoTablet::gkCairoTablet(long width, long height, double scale)
    : drawing_(std::make_unique<Drawing>(width, height, scale)) {}

gkCairoTablet::~gkCairoTablet() = default;

double gkCairoTablet::strokeWidth() const { return drawing_->strokeWidth; }

void gkCairoTablet::strokeWidth(double width) {
    if (!isPositive(width)) throw BadSize(L"a stroke width must be positive and finite");
    drawing_->strokeWidth = width;
}

void gkCairoTablet::background(const gkColor& color) { drawing_->background = color; }

void gkCairoTablet::drawLineSeg(const gkPair<double>& from, const gkPair<double>& to, const gkColor& color,
                                const Layers& layers) {
    drawing_->next().drawLineSeg(from, to, color, layers);
}

void gkCairoTablet::drawCircle(const gkPair<double>& center, double radius, const gkColor& color,
                               const Layers& layers) {
    drawing_->next().drawCircle(center, radius, color, layers);
}

void gkCairoTablet::drawEllipse(const gkPair<double>& center, const gkPair<double>& radii,
                                const gkRadian& rotation, const gkColor& color, const Layers& layers) {
    drawing_->next().drawEllipse(center, radii, rotation, color, layers);
}

void gkCairoTablet::drawPoint(const gkPair<double>& position, const gkColor& color, const Layers& layers) {
    drawing_->next().drawPoint(position, color, layers);
}

void gkCairoTablet::drawText(const gkPair<double>& position, const std::string& text, double height,
                             const gkColor& color, const Layers& layers) {
    drawing_->next().drawText(position, text, height, color, layers);
}

void gkCairoTablet::drawImage(const gkPair<double>& origin, const gkPair<double>& size,
                              const std::vector<unsigned char>& pngBytes, const Layers& layers) {
    drawing_->next().drawImage(origin, size, pngBytes, layers);
}

void gkCairoTablet::savePng(const std::filesystem::path& file) const {
    const Surface surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32,
                                                     static_cast<int>(std::ceil(drawing_->width())),
                                                     static_cast<int>(std::ceil(drawing_->height()))),
                          &cairo_surface_destroy);
    check(drawing_->paint(surface.get()), file);
    std::string bytes;
    check(cairo_surface_write_to_png_stream(surface.get(), append, &bytes), file);
    gk_WriteFile::write(file, bytes);
}

void gkCairoTablet::saveSvg(const std::filesystem::path& file) const {
    std::string bytes;
    const Surface surface(
        cairo_svg_surface_create_for_stream(append, &bytes, drawing_->width(), drawing_->height()),
        &cairo_surface_destroy);
    cairo_svg_surface_set_document_unit(surface.get(), CAIRO_SVG_UNIT_PX);
    drawing_->save(surface.get(), bytes, file);
}

void gkCairoTablet::savePdf(const std::filesystem::path& file) const {
    std::string bytes;
    const Surface surface(
        cairo_pdf_surface_create_for_stream(append, &bytes, drawing_->width(), drawing_->height()),
        &cairo_surface_destroy);
    // Without the date, the same drawing gives the same bytes again.
    cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_CREATE_DATE, "");
    drawing_->save(surface.get(), bytes, file);
}
