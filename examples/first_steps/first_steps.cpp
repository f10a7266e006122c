// A bow tie: build it, measure it, see that it crosses itself.
#include "gkcntr.h"

#include <iostream>

int main() {
    const gkContour bow({{0, 0}, {8, 6}, {8, 0}, {0, 6}}, true, 1);
    std::cout << "length   " << bow.length() << '\n';
    std::cout << "diameter " << bow.diameter(gkContourDefs::eExact) << '\n';
    const gkRect box = bow.encloseRect(gkXform<2>());
    std::cout << "box      " << box.width() << " x " << box.height() << '\n';
    std::cout << "crosses itself: " << (bow.isSelfIntersecting() ? "yes" : "no") << '\n';
    for (const gkVector<2>& p : bow.intersections(gkLineSeg({2, -1}, {2, 7}), true))
        std::cout << "meets x = 2 at y = " << p.y() << '\n';
}
