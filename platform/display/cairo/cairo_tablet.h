/// \file
/// A surface that saves PNG, SVG and PDF pictures through the Cairo library.
///
/// It is in the library gkcntr_cairo, which is built with the CMake option GKCNTR_CAIRO.
#ifndef GK_PLATFORM_DISPLAY_CAIRO_CAIRO_TABLET_H
#define GK_PLATFORM_DISPLAY_CAIRO_CAIRO_TABLET_H

#include "platform/display/uitablet.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

/// Keeps the calls and paints them whenever a picture is saved, so one drawing can be saved in several formats.
///
/// A call with a NaN or an infinity is left out. Cairo computes in fixed point: what reaches beyond some 8
/// million output pixels comes out distorted, and text is at most 32767 of them high. Lines are antialiased and
/// text takes the system's sans-serif font, so pictures look alike on all machines but their bytes may differ.
/// One object belongs to one thread at a time.
class gkCairoTablet : public gkUITablet {
public:
    /// An empty picture of width x height image pixels, shown `scale` times as large. The drawing coordinates,
    /// stroke width and text height remain in image pixels and are enlarged with the rest.
    ///
    /// Throws BadSize unless all three are positive and finite and neither side comes out above 32767, Cairo's
    /// limit.
    gkCairoTablet(long width, long height, double scale = 1.0);
    gkCairoTablet(const gkCairoTablet&) = delete;
    gkCairoTablet& operator=(const gkCairoTablet&) = delete;
    ~gkCairoTablet() override;

    /// Line width in image pixels for the calls that follow; 1 at first. A point is a dot three line widths
    /// across.
    double strokeWidth() const;
    /// Throws BadSize unless `width` is positive and finite.
    void strokeWidth(double width);

    /// Fills the whole picture behind all layers; without it the picture is transparent.
    void background(const gkColor& color);

    void drawLineSeg(const gkPair<double>& from, const gkPair<double>& to, const gkColor& color,
                     const Layers& layers) override;
    void drawCircle(const gkPair<double>& center, double radius, const gkColor& color,
                    const Layers& layers) override;
    void drawEllipse(const gkPair<double>& center, const gkPair<double>& radii, const gkRadian& rotation,
                     const gkColor& color, const Layers& layers) override;
    void drawPoint(const gkPair<double>& position, const gkColor& color, const Layers& layers) override;
    void drawText(const gkPair<double>& position, const std::string& text, double height, const gkColor& color,
                  const Layers& layers) override;
    void drawImage(const gkPair<double>& origin, const gkPair<double>& size,
                   const std::vector<unsigned char>& pngBytes, const Layers& layers) override;

    /// Each replaces the file, keeps the drawing, and throws CannotWrite when the picture cannot be painted or
    /// the file not written. The size is width * scale by height * scale, for PNG rounded up to whole pixels,
    /// in PDF in points.
    void savePng(const std::filesystem::path& file) const;
    void saveSvg(const std::filesystem::path& file) const;
    void savePdf(const std::filesystem::path& file) const;

private:
    class Drawing;
    std::unique_ptr<Drawing> drawing_;
};

#endif
