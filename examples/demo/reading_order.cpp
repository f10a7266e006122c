#include "examples/demo/reading_order.h"

#include <algorithm>

void sortForReading(std::vector<Object>& objects) {
    const auto box = [](const Object& object) { return object.shape->encloseRect(gkXform<2>()); };
    std::stable_sort(objects.begin(), objects.end(), [&](const Object& a, const Object& b) {
        return box(a).center().y() < box(b).center().y();
    });
    for (auto row = objects.begin(); row != objects.end();) {
        const double lowerEdge = box(*row).lr().y();
        const auto end = std::find_if(
            row, objects.end(), [&](const Object& object) { return box(object).center().y() >= lowerEdge; });
        // A shape without height is a row of its own.
        const auto next = end == row ? row + 1 : end;
        std::stable_sort(row, next, [&](const Object& a, const Object& b) {
            return box(a).center().x() < box(b).center().x();
        });
        row = next;
    }
}
