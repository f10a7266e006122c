// Paints calls straight onto a Cairo context.
#ifndef GK_PLATFORM_DISPLAY_CAIRO_CAIRO_PAINTER_H
#define GK_PLATFORM_DISPLAY_CAIRO_CAIRO_PAINTER_H

#include "platform/display/uitablet.h"

#include <cairo.h>

#include <string>
#include <vector>

// All calls go to the one context, whatever their layer: the order is the caller's business. A Cairo error is
// left in the context, where the caller finds it.
class gk_CairoPainter : public gkUITablet {
public:
    explicit gk_CairoPainter(cairo_t* context);

    void strokeWidth(double width);
    void fillAll(const gkColor& color);

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

private:
    void use(const gkColor& color);
    void stroke(const gkColor& color);

    cairo_t* context_;
    double strokeWidth_ = 1.0;
};

#endif
