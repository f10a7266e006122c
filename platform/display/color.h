/// \file
/// The colour of drawn lines and text.
#ifndef GK_PLATFORM_DISPLAY_COLOR_H
#define GK_PLATFORM_DISPLAY_COLOR_H

#include "platform/export.h"

#include <string>

/// An sRGB colour with 8 bits per channel and an opacity (0 transparent, 255 opaque; not premultiplied).
class GKCNTR_API gkColor {
public:
    /// Opaque black.
    constexpr gkColor() = default;
    constexpr gkColor(unsigned char red, unsigned char green, unsigned char blue, unsigned char alpha = 255)
        : red_(red), green_(green), blue_(blue), alpha_(alpha) {}

    constexpr unsigned char r() const { return red_; }
    constexpr unsigned char g() const { return green_; }
    constexpr unsigned char b() const { return blue_; }
    constexpr unsigned char a() const { return alpha_; }

    /// "#rrggbb" in lower-case hexadecimal; the opacity is not part of it.
    std::string hex() const;

    /// The same colour with another opacity.
    constexpr gkColor withAlpha(unsigned char alpha) const { return gkColor(red_, green_, blue_, alpha); }

    static constexpr gkColor black() { return gkColor(0, 0, 0); }
    static constexpr gkColor white() { return gkColor(255, 255, 255); }
    static constexpr gkColor gray() { return gkColor(128, 128, 128); }
    static constexpr gkColor red() { return gkColor(255, 0, 0); }
    static constexpr gkColor green() { return gkColor(0, 255, 0); }
    static constexpr gkColor blue() { return gkColor(0, 0, 255); }
    static constexpr gkColor cyan() { return gkColor(0, 255, 255); }
    static constexpr gkColor magenta() { return gkColor(255, 0, 255); }
    static constexpr gkColor yellow() { return gkColor(255, 255, 0); }
    static constexpr gkColor orange() { return gkColor(255, 165, 0); }

    /// All four channels are compared.
    friend constexpr bool operator==(const gkColor& a, const gkColor& b) {
        return a.red_ == b.red_ && a.green_ == b.green_ && a.blue_ == b.blue_ && a.alpha_ == b.alpha_;
    }
    friend constexpr bool operator!=(const gkColor& a, const gkColor& b) { return !(a == b); }

private:
    unsigned char red_ = 0;
    unsigned char green_ = 0;
    unsigned char blue_ = 0;
    unsigned char alpha_ = 255;
};

#endif
