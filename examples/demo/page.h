// Sizes of the measured picture, all in pixels of the photograph.
#ifndef GK_EXAMPLES_DEMO_PAGE_H
#define GK_EXAMPLES_DEMO_PAGE_H

#include "platform/core/math/vector.h"
#include "platform/display/color.h"

#include <string>
#include <vector>

// One line of the legend's key.
struct Key {
    const char* text;
    gkColor color;
    double width;              // of the line, in pens
    bool isDot;                // a point instead of a line
    gkVector<2> position = {}; // left end of the sample, at its middle height
};

class Page {
public:
    // For a photograph of this size. Small ones are enlarged by a whole number so that the longer side comes to
    // at most `wantedSide` pixels; large ones stay as they are, and pen and text grow instead.
    Page(long width, long height, double wantedSide);

    // How many pixels of the picture one of the photograph becomes.
    double scale() const { return scale_; }
    // The width of a fine line.
    double pen() const { return pen_; }
    double textHeight() const { return 20 * pen_; }
    double sampleLength() const { return 44 * pen_; }
    long width() const { return width_; }
    // The photograph and the legend below it.
    long heightWithLegend() const { return heightWithLegend_; }
    const std::vector<Key>& keys() const { return keys_; }

    // A guess, since the surface chooses the typeface.
    static double textWidth(const std::string& text, double textHeight) {
        return 0.56 * textHeight * static_cast<double>(text.size());
    }

    static const Key edgePoint;
    static const Key outline;
    static const Key hole;
    static const Key hull;
    static const Key ellipse;
    static const Key momentsEllipse;
    static const Key farthestPair;
    static const Key meanPosition;
    static const Key centerOfMass;

private:
    void layOutLegend(double top);

    double scale_;
    double pen_;
    long width_;
    long heightWithLegend_ = 0;
    std::vector<Key> keys_;
};

#endif
