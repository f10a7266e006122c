/// \file
/// A surface that remembers what was drawn on it.
#ifndef GK_PLATFORM_DISPLAY_RECORDING_TABLET_H
#define GK_PLATFORM_DISPLAY_RECORDING_TABLET_H

#include "platform/display/uitablet.h"
#include "platform/export.h"

#include <string>
#include <vector>

/// Keeps every call as a record, in order: to look at drawing in a test, or to replay it onto other surfaces.
///
/// Nothing is checked or left out; a call with a NaN, an empty text or no layer is recorded as it came. A call
/// that throws std::bad_alloc is not recorded.
/// One object belongs to one thread at a time.
class GKCNTR_API gkRecordingTablet : public gkUITablet {
public:
    enum Kind { eLineSeg, eCircle, eEllipse, ePoint, eText, eImage };

    /// One call.
    struct GKCNTR_API Record {
        Kind kind = eLineSeg;
        /// The numbers of the call in the order of its parameters, pairs as x, y:
        /// segment (from, to), circle (center, radius), ellipse (center, radii, rotation in radians), point
        /// (position), text (position, height), image (origin, size).
        std::vector<double> numbers;
        /// Black for an image.
        gkColor color;
        Layers layers = eImageLayer;
        /// Of a text only.
        std::string text;
        /// Of an image only.
        std::vector<unsigned char> pngBytes;

        /// The same call once more, on `tablet`. The record must be one that a gkRecordingTablet made.
        void replay(gkUITablet& tablet) const;

        /// Exact comparison of all fields; a record with a NaN equals nothing.
        friend bool operator==(const Record& a, const Record& b) {
            return a.kind == b.kind && a.numbers == b.numbers && a.color == b.color && a.layers == b.layers &&
                   a.text == b.text && a.pngBytes == b.pngBytes;
        }
        friend bool operator!=(const Record& a, const Record& b) { return !(a == b); }
    };

    gkRecordingTablet();
    gkRecordingTablet(const gkRecordingTablet& other);
    gkRecordingTablet& operator=(const gkRecordingTablet& other);
    ~gkRecordingTablet() override;

    /// All calls since construction or clear(), oldest first.
    const std::vector<Record>& records() const;
    void clear();
    /// All calls once more, in order, on `tablet`, which must not be this one.
    void replay(gkUITablet& tablet) const;

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
    std::vector<Record> records_;
};

#endif
