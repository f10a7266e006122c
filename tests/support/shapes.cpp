#include "tests/support/shapes.h"

#include <cmath>
#include <limits>
#include <sstream>

Points points(const std::string& text) {
    Points result;
    std::istringstream in(text);
    std::string pair;
    while (std::getline(in, pair, ',')) {
        std::istringstream numbers(pair);
        double x = 0.0;
        double y = 0.0;
        if (numbers >> x >> y) result.emplace_back(x, y);
    }
    return result;
}

OpenedContour open(const std::string& text) { return OpenedContour(points(text), false, 0); }

OpenedContour closed(const std::string& text) { return OpenedContour(points(text), true, 0); }

std::ostream& operator<<(std::ostream& out, const gkVector<2>& v) {
    return out << "(" << v.x() << ", " << v.y() << ")";
}

std::ostream& operator<<(std::ostream& out, const gkRect& rect) {
    return out << rect.ul() << " to " << rect.lr();
}

double above(double value) { return std::nextafter(value, std::numeric_limits<double>::infinity()); }

double below(double value) { return std::nextafter(value, -std::numeric_limits<double>::infinity()); }
