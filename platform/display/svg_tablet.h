/// \file
/// A surface that writes an SVG picture and needs no other library.
#ifndef GK_PLATFORM_DISPLAY_SVG_TABLET_H
#define GK_PLATFORM_DISPLAY_SVG_TABLET_H

#include "platform/core/file/file_name.h"
#include "platform/display/uitablet.h"
#include "platform/export.h"

#include <string>

/// Collects the calls as SVG 1.1 elements.
///
/// The layers are three groups with the ids "image", "overlay" and "label", in that order, always present.
/// Numbers are the shortest decimal text that reads back as the same double, whatever the locale, so the same
/// calls give the same bytes on every machine. A call with a NaN or an infinity is left out. Images are
/// embedded as base64 data, not decoded. A call that throws std::bad_alloc draws on none of its layers. One
/// object belongs to one thread at a time.
class GKCNTR_API gkSvgTablet : public gkUITablet {
public:
    /// An empty picture of width x height image pixels, shown `scale` times as large. The drawing coordinates,
    /// stroke width and text height remain in image pixels and are enlarged with the rest.
    ///
    /// Throws BadSize unless all three are positive and finite.
    gkSvgTablet(long width, long height, double scale = 1.0);
    gkSvgTablet(const gkSvgTablet& other);
    gkSvgTablet& operator=(const gkSvgTablet& other);
    ~gkSvgTablet() override;

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

    /// The whole document, UTF-8, lines ended by '\n'. Drawing may go on afterwards.
    std::string svg() const;
    /// Writes svg() to a file, replacing it. Throws CannotWrite when the file cannot be written.
    void save(const gkFileName& file) const;

private:
    std::string stroke(const gkColor& color) const;
    void add(const Layers& layers, const std::string& element);

    long width_;
    long height_;
    double scale_;
    double strokeWidth_ = 1.0;
    std::string background_;
    std::string image_;
    std::string overlay_;
    std::string label_;
};

#endif
