// One small picture: what was given in grey, the answer in one strong colour.
#ifndef GK_EXAMPLES_PICTURES_FIGURE_H
#define GK_EXAMPLES_PICTURES_FIGURE_H

#include "cntr/region.h"
#include "platform/display/svg_tablet.h"

#include <string>
#include <vector>

class Figure {
public:
    enum Role { eGiven, eAnswer };

    Figure();

    void draw(const gkContour& contour, Role role);
    void draw(const gkLineSeg& segment, Role role);
    void draw(const gkCircle& circle, Role role);
    void draw(const gkEllipse& ellipse, Role role);
    // The rectangle's corners, taken back by the transform they were measured under.
    void draw(const gkRect& rect, const gkXform<2>& xform, Role role);
    void dot(const gkVector<2>& place, Role role);
    void dots(const std::vector<gkVector<2>>& places, Role role);
    // Fills what is inside the outline and outside of its holes with lines.
    void hatch(const gkRegion& region, Role role);
    // A few words at a place, or below the picture.
    void say(const gkVector<2>& place, const std::string& words, Role role);
    void say(const std::string& words);

    void save(const std::string& file) const { tablet_.save(file); }

private:
    void line(const gkVector<2>& from, const gkVector<2>& to, const gkColor& color, double width);

    gkSvgTablet tablet_;
};

// With one digit behind the point: enough for a picture, and the same everywhere.
std::string oneDigit(double value);

#endif
