// Shapes written as short strings, and a contour whose protected side tests can reach.
#ifndef GK_TESTS_SUPPORT_SHAPES_H
#define GK_TESTS_SUPPORT_SHAPES_H

#include "cntr/contour.h"

#include <ostream>
#include <string>
#include <vector>

using Points = std::vector<gkVector<2>>;

// "0 0, 4 0, 0 3" as three points.
Points points(const std::string& text);

// A contour that shows its protected operations and counts the calls of its hooks.
class OpenedContour : public gkContour {
public:
    using gkContour::gkContour;
    explicit OpenedContour(const gkContour& other) : gkContour(other) {}
    OpenedContour(const OpenedContour& other) : gkPersistent(other), gkRepBase(other), gkContour(other) {}
    OpenedContour& operator=(const OpenedContour& other) {
        gkContour::operator=(other);
        return *this;
    }

    using gkContour::checkEmptyContour;
    using gkContour::computeLineSegs;
    using gkContour::intersections;
    using gkContour::lineSegs;
    using gkContour::medianFeatureSize;
    using gkContour::setPoints;
    using gkContour::validLine;

    int cleaned = 0;
    int dataRebuilt = 0;

protected:
    void cleanCacheInfo() override {
        ++cleaned;
        gkContour::cleanCacheInfo();
    }
    void makeDataConsistentWithPoints() override {
        ++dataRebuilt;
        gkContour::makeDataConsistentWithPoints();
    }
};

OpenedContour open(const std::string& text);
OpenedContour closed(const std::string& text);

std::ostream& operator<<(std::ostream& out, const gkVector<2>& v);
std::ostream& operator<<(std::ostream& out, const gkRect& rect);

// The value one representable step above or below.
double above(double value);
double below(double value);

#endif
