// A diagram with two logarithmic axes.
#ifndef GK_EXAMPLES_ACCURACY_AXES_H
#define GK_EXAMPLES_ACCURACY_AXES_H

#include "platform/core/math/vector.h"
#include "platform/display/svg_tablet.h"

#include <string>
#include <vector>

struct Range {
    double from = 0.0;
    double to = 0.0;
};

class Axes {
public:
    static constexpr double kWidth = 400; // of the frame, in pixels of the drawing
    static constexpr double kHeight = 330;

    // `corner` is the frame's lower left one.
    Axes(gkSvgTablet& tablet, const gkVector<2>& corner, const Range& x, const Range& y);

    void frame(const std::string& title, const std::string& nameOfX, const std::vector<double>& ticksOfX,
               const std::vector<double>& ticksOfY);
    void curve(const std::vector<gkVector<2>>& values, const gkColor& color);
    void dots(const std::vector<gkVector<2>>& values, const gkColor& color);
    // A word at the right of the frame, level with `value`.
    void name(const std::string& text, double value, const gkColor& color);

private:
    gkPair<double> place(const gkVector<2>& value) const;
    void line(const gkVector<2>& from, const gkVector<2>& to, const gkColor& color, double width);

    gkSvgTablet& tablet_;
    gkVector<2> corner_;
    Range x_;
    Range y_;
};

#endif
