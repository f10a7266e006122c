#include "figure.h"

#include <algorithm>

namespace {

constexpr long kWidth = 240;
constexpr long kHeight = 184;
constexpr double kBelow = 174.0; // the baseline of the words below the picture
constexpr double kHatchStep = 5.0;
constexpr double kLine = 2.0;
constexpr double kDot = 2.4; // line width; a dot is three of them across

gkColor strong(Figure::Role role) {
    return role == Figure::eAnswer ? gkColor(204, 68, 0) : gkColor(130, 130, 130);
}
gkColor faint(Figure::Role role) {
    return role == Figure::eAnswer ? gkColor(245, 186, 150) : gkColor(222, 222, 222);
}

gkPair<double> pair(const gkVector<2>& v) { return gkPair<double>(v.x(), v.y()); }

} // namespace

Figure::Figure() : tablet_(kWidth, kHeight) { tablet_.background(gkColor::white()); }

void Figure::line(const gkVector<2>& from, const gkVector<2>& to, const gkColor& color, double width) {
    tablet_.strokeWidth(width);
    tablet_.drawLineSeg(pair(from), pair(to), color, gkUITablet::eOverlayLayer);
}

void Figure::draw(const gkContour& contour, Role role) {
    tablet_.strokeWidth(kLine);
    contour.draw(tablet_, gkContourDefs::eDrawOutline, strong(role), gkUITablet::eOverlayLayer);
}

void Figure::draw(const gkLineSeg& segment, Role role) {
    line(segment.p1(), segment.p2(), strong(role), kLine);
}

void Figure::draw(const gkCircle& circle, Role role) {
    tablet_.strokeWidth(kLine);
    tablet_.drawCircle(pair(circle.center().vector()), circle.radius(), strong(role),
                       gkUITablet::eOverlayLayer);
}

void Figure::draw(const gkEllipse& ellipse, Role role) {
    tablet_.strokeWidth(kLine);
    tablet_.drawEllipse(pair(ellipse.center().vector()), pair(ellipse.radii()), ellipse.rotation(),
                        strong(role), gkUITablet::eOverlayLayer);
}

void Figure::draw(const gkRect& rect, const gkXform<2>& xform, Role role) {
    const gkXform<2> back = xform.inverse();
    const gkVector<2> ul = rect.ul();
    const gkVector<2> lr = rect.lr();
    draw(gkContour(
             {back * ul, back * gkVector<2>(lr.x(), ul.y()), back * lr, back * gkVector<2>(ul.x(), lr.y())},
             true, 0),
         role);
}

void Figure::dot(const gkVector<2>& place, Role role) {
    tablet_.strokeWidth(kDot);
    tablet_.drawPoint(pair(place), strong(role), gkUITablet::eLabelLayer);
}

void Figure::dots(const std::vector<gkVector<2>>& places, Role role) {
    for (const gkVector<2>& place : places) dot(place, role);
}

void Figure::hatch(const gkRegion& region, Role role) {
    const gkRect box = region.encloseRect(gkXform<2>());
    // A row through a vertex would count it twice; the odd offset keeps rows off round coordinates.
    for (double y = box.ul().y() + 0.3719 * kHatchStep; y < box.lr().y(); y += kHatchStep) {
        const gkLineSeg row({box.ul().x() - 1.0, y}, {box.lr().x() + 1.0, y});
        std::vector<gkVector<2>> ends = region.intersections(row, true, true);
        std::sort(ends.begin(), ends.end(),
                  [](const gkVector<2>& a, const gkVector<2>& b) { return a.x() < b.x(); });
        for (std::size_t i = 0; i + 1 < ends.size(); i += 2) line(ends[i], ends[i + 1], faint(role), 1.5);
    }
}

void Figure::say(const gkVector<2>& place, const std::string& words, Role role) {
    tablet_.drawText(pair(place), words, 12.0, strong(role), gkUITablet::eLabelLayer);
}

void Figure::say(const std::string& words) { say({10.0, kBelow}, words, eAnswer); }

std::string oneDigit(double value) {
    const long tenths = static_cast<long>(value * 10.0 + 0.5);
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
}
