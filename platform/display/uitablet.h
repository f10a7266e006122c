/// \file
/// The abstract surface shapes draw themselves on.
#ifndef GK_PLATFORM_DISPLAY_UITABLET_H
#define GK_PLATFORM_DISPLAY_UITABLET_H

#include "platform/core/math/angle.h"
#include "platform/core/math/pair.h"
#include "platform/core/object/exception.h"
#include "platform/display/color.h"
#include "platform/export.h"

#include <string>
#include <vector>

/// A drawing surface of three layers over one coordinate system, that of the image being looked at.
///
/// Coordinates are image coordinates in pixels: x to the right, y downwards, (0, 0) the top left corner of the
/// first pixel, so that the centre of that pixel is (0.5, 0.5). Angles turn from +x towards +y, on the screen
/// clockwise.
///
/// Each call names the layers it draws on. Layers are stacked in the order of their enumerators, the image at
/// the bottom; within a layer, later calls cover earlier ones. A call that names several layers draws on each;
/// one that names none draws nothing.
///
/// A surface must be able to draw line segments. All other operations do nothing unless the surface overrides
/// them, so a client may use them freely where a picture without them is still of use.
///
/// The surfaces of this library draw nothing for a call with a NaN or infinite number in it, nor for a radius,
/// text height or image size that is not positive. Only gkRecordingTablet keeps every call as it came.
class GKCNTR_API gkUITablet {
public:
    /// The layers, bottom first; enumerators combine with `|`.
    enum Layers {
        eImageLayer = 1,   ///< the picture itself
        eOverlayLayer = 2, ///< shapes found in it
        eLabelLayer = 4    ///< text and marks on top
    };
    friend constexpr Layers operator|(Layers a, Layers b) {
        return static_cast<Layers>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
    }

    virtual ~gkUITablet();

    /// The segment between two points, outlined in the surface's stroke width. A segment of length zero is a
    /// dot.
    virtual void drawLineSeg(const gkPair<double>& from, const gkPair<double>& to, const gkColor& color,
                             const Layers& layers) = 0;

    /// The outline of a circle.
    virtual void drawCircle(const gkPair<double>& center, double radius, const gkColor& color,
                            const Layers& layers);

    /// The outline of an ellipse. radii.x() is the semi-axis in the direction `rotation`, radii.y() the other
    /// one.
    virtual void drawEllipse(const gkPair<double>& center, const gkPair<double>& radii,
                             const gkRadian& rotation, const gkColor& color, const Layers& layers);

    /// A filled dot that stands for a position; its size is the surface's choice.
    virtual void drawPoint(const gkPair<double>& position, const gkColor& color, const Layers& layers);

    /// One line of UTF-8 text, its baseline beginning at `position`; `height` is the font size in pixels.
    ///
    /// Bytes that are not UTF-8 show as U+FFFD, control characters as spaces. The typeface is a sans-serif one
    /// of the machine the picture is looked at or made on, so the width of a text is not known here.
    virtual void drawText(const gkPair<double>& position, const std::string& text, double height,
                          const gkColor& color, const Layers& layers);

    /// A PNG file, stretched over the rectangle with top left corner `origin`; its pixels stay sharp when
    /// enlarged.
    ///
    /// With the image's own width and height as `size`, image and drawing coordinates agree. Bytes that cannot
    /// be decoded draw nothing.
    virtual void drawImage(const gkPair<double>& origin, const gkPair<double>& size,
                           const std::vector<unsigned char>& pngBytes, const Layers& layers);

    /// A picture could not be encoded or its file could not be written; the message names the file.
    class GKCNTR_API CannotWrite : public gkExceptionWithString {
    public:
        explicit CannotWrite(const wchar_t* message);
        CannotWrite(const CannotWrite&) = default;
        CannotWrite& operator=(const CannotWrite&) = default;
        ~CannotWrite() override;
        long errorNumber() const override;
        void suicideAndRethrow() override;
    };

    /// A width, height, scale or stroke width that is not positive and finite.
    class GKCNTR_API BadSize : public gkExceptionWithString {
    public:
        explicit BadSize(const wchar_t* message);
        BadSize(const BadSize&) = default;
        BadSize& operator=(const BadSize&) = default;
        ~BadSize() override;
        long errorNumber() const override;
        void suicideAndRethrow() override;
    };

protected:
    gkUITablet() = default;
    gkUITablet(const gkUITablet&) = default;
    gkUITablet& operator=(const gkUITablet&) = default;
};

#endif
