#include "tests/degenerate/said.h"

#include <cmath>
#include <cstdio>

namespace {

std::string coordinate(double value, double origin) {
    if (origin == 0.0) return said(value);
    const double rest = value - origin;
    if (rest == 0.0) return "D";
    return rest < 0.0 ? "D - " + said(-rest) : "D + " + said(rest);
}

} // namespace

std::string said(double value) {
    if (std::isnan(value)) return "NaN";
    char text[400]; // the greatest double has 309 digits before the point
    std::snprintf(text, sizeof text, "%.9f", value);
    std::string digits = text;
    digits.erase(digits.find_last_not_of('0') + 1);
    if (digits.back() == '.') digits.pop_back();
    return digits == "-0" ? "0" : digits;
}

std::string said(bool value) { return value ? "true" : "false"; }

std::string said(const std::vector<int>& values) {
    std::string list;
    for (const int value : values) list += (list.empty() ? "" : ", ") + said(value);
    return list.empty() ? "none" : list;
}

std::string said(const gkMatrix<2>& matrix) {
    return "(" + said(matrix.element(0, 0)) + ", " + said(matrix.element(0, 1)) + "; " +
           said(matrix.element(1, 0)) + ", " + said(matrix.element(1, 1)) + ")";
}

std::string said(const gkVector<2>& place, const Kind& kind) {
    return "(" + coordinate(place.x(), kind.origin.x()) + ", " + coordinate(place.y(), kind.origin.y()) + ")";
}

std::string said(const Points& places, const Kind& kind) {
    std::string list;
    for (const gkVector<2>& place : places) list += (list.empty() ? "" : " ") + said(place, kind);
    return list.empty() ? "none" : list;
}

std::string said(const gkCircle& circle, const Kind& kind) {
    return said(circle.center().vector(), kind) + ", radius " + said(circle.radius());
}

std::string said(const gkRect& rect, const Kind& kind) {
    return said(rect.ul(), kind) + " to " + said(rect.lr(), kind);
}

std::string said(const gkEllipse& ellipse, const Kind& kind) {
    return said(ellipse.center().vector(), kind) + ", radii " + said(ellipse.radii(), Kind());
}

std::string saidLast(const Points& places, const Kind& kind) {
    return places.empty() ? "none" : said(places.back(), kind);
}
