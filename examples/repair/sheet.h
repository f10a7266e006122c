// A sheet of panels that show regions at one scale.
#ifndef GK_EXAMPLES_REPAIR_SHEET_H
#define GK_EXAMPLES_REPAIR_SHEET_H

#include "cntr/region.h"
#include "platform/display/svg_tablet.h"

#include <string>
#include <vector>

class Sheet {
public:
    // `whole` is what every panel has room for.
    Sheet(int columns, int rows, const gkRect& whole);

    enum Numbers { eNone, eVertices };

    // The next panel, row by row: the regions with their even-odd filling hatched, their direction in arrows,
    // and two lines of text. Where an outline passes twice through a point its corners are cut, so that one
    // sees which strands belong together.
    void panel(const std::vector<gkRegion>& regions, const std::string& title, const std::string& note,
               Numbers numbers = eNone);
    // The same over thin lines that show what was given.
    void panelOver(const std::vector<gkRegion>& given, const std::vector<gkRegion>& regions,
                   const std::string& title, const std::string& note);

    void save(const std::string& file) const { tablet_.save(file); }

private:
    void nextCorner();
    gkVector<2> place(const gkVector<2>& p) const;
    std::vector<gkVector<2>> placed(const gkRegion& region) const;
    void line(const gkVector<2>& a, const gkVector<2>& b, const gkColor& color, double width);
    void text(const gkVector<2>& at, const std::string& text, double height, const gkColor& color);
    void hatch(const std::vector<gkVector<2>>& points, const gkColor& color);
    void outline(const std::vector<gkVector<2>>& points, const gkColor& color);
    void arrows(const std::vector<gkVector<2>>& points, const gkColor& color);
    void number(const std::vector<gkVector<2>>& points, const gkColor& color);

    gkSvgTablet tablet_;
    int columns_;
    gkRect whole_;
    double scale_;
    double height_; // of the part of a panel that regions are drawn in
    int next_ = 0;
    gkVector<2> corner_;
};

#endif
