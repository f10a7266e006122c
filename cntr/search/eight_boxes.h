// Eight boxes side by side, so that one question to all of them takes few instructions.
#ifndef GK_CNTR_SEARCH_EIGHT_BOXES_H
#define GK_CNTR_SEARCH_EIGHT_BOXES_H

#include "cntr/search/box.h"

#include <array>
#include <cstddef>

struct gk_EightBoxes {
    static constexpr std::size_t kCount = 8;
    using Numbers = std::array<double, kCount>;

    // Those that are not set keep zeros, or what they have been.
    Numbers x0{};
    Numbers y0{};
    Numbers x1{};
    Numbers y1{};

    gk_Box box(std::size_t i) const { return {x0[i], y0[i], x1[i], y1[i]}; }
    void set(std::size_t i, const gk_Box& box) {
        x0[i] = box.x0;
        y0[i] = box.y0;
        x1[i] = box.x1;
        y1[i] = box.y1;
    }

    // gk_Box::distance2 of each.
    Numbers distances2(const gkVector<2>& p) const {
        Numbers squares;
        for (std::size_t i = 0; i < kCount; ++i) {
            const double dx = std::max(std::max(x0[i] - p.x(), p.x() - x1[i]), 0.0);
            const double dy = std::max(std::max(y0[i] - p.y(), p.y() - y1[i]), 0.0);
            squares[i] = dx * dx + dy * dy;
        }
        return squares;
    }
};

#endif
