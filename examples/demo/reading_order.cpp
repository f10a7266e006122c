#include "examples/demo/reading_order.h"

#include <algorithm>

void sortForReading(std::vector<gkContour>& contours) {
    const auto box = [](const gkContour& contour) { return contour.encloseRect(gkXform<2>()); };
    std::stable_sort(contours.begin(), contours.end(), [&](const gkContour& a, const gkContour& b) {
        return box(a).center().y() < box(b).center().y();
    });
    for (auto row = contours.begin(); row != contours.end();) {
        const double lowerEdge = box(*row).lr().y();
        const auto end = std::find_if(row, contours.end(), [&](const gkContour& contour) {
            return box(contour).center().y() >= lowerEdge;
        });
        // A shape without height is a row of its own.
        const auto next = end == row ? row + 1 : end;
        std::stable_sort(row, next, [&](const gkContour& a, const gkContour& b) {
            return box(a).center().x() < box(b).center().x();
        });
        row = next;
    }
}
