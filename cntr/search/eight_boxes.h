// Eight boxes side by side, so that one question to all of them takes few instructions.
#ifndef GK_CNTR_SEARCH_EIGHT_BOXES_H
#define GK_CNTR_SEARCH_EIGHT_BOXES_H

#include "cntr/search/box.h"
#include "platform/core/math/two_doubles.h"

#include <array>
#include <cstddef>

// Of eight bits, at least one of them set: the number of the lowest one. Its product with this number has
// another upper three bits for each place.
inline std::size_t gk_LowestBit(unsigned bits) {
    constexpr std::array<unsigned char, 8> kPlaces{0, 1, 2, 4, 7, 3, 6, 5};
    return kPlaces[((bits & (0u - bits)) * 0x17u & 0xFFu) >> 5];
}

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

    // Bit i tells whether box i overlaps the other one, as gk_Box::overlaps does.
    unsigned overlapping(const gk_Box& other) const {
        const gk_TwoDoubles otherX0(other.x0);
        const gk_TwoDoubles otherY0(other.y0);
        const gk_TwoDoubles otherX1(other.x1);
        const gk_TwoDoubles otherY1(other.y1);
        const auto two = [](const Numbers& numbers, std::size_t i) {
            return gk_TwoDoubles(numbers[i], numbers[i + 1]);
        };
        unsigned bits = 0;
        for (std::size_t i = 0; i < kCount; i += 2) {
            const gk_TwoBools overlap = (two(x1, i) >= otherX0) & (two(x0, i) <= otherX1) &
                                        (two(y1, i) >= otherY0) & (two(y0, i) <= otherY1);
            bits |= overlap.bits() << i;
        }
        return bits;
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
