// The least and greatest coordinates of many places, several at a time.
#ifndef GK_CNTR_EXTREMES_H
#define GK_CNTR_EXTREMES_H

#include "platform/core/math/two_doubles.h"

#include <algorithm>
#include <cstddef>

// An extreme coordinate with the bits of the first place that has it: of equal numbers the first one counts,
// which shows between 0 and -0. at(i) is the place number i as gk_TwoDoubles.
template <class At> gkVector<2> gk_WithSignOfFirst(const gkVector<2>& extreme, std::size_t count, At at) {
    const auto signedZero = [&](double number, auto coordinate) {
        if (number != 0.0) return number;
        std::size_t first = 0;
        while (first + 1 < count && coordinate(at(first)) != 0.0) ++first;
        return coordinate(at(first));
    };
    return gkVector<2>(signedZero(extreme.x(), [](gk_TwoDoubles place) { return place.first(); }),
                       signedZero(extreme.y(), [](gk_TwoDoubles place) { return place.second(); }));
}

// Where a scan with std::min and std::max, place by place, ends: NaN is passed over but at the first place.
class gk_Extremes {
public:
    // at(i) is the place number i as gk_TwoDoubles; there is one at least.
    template <class At> gk_Extremes(std::size_t count, At at) {
        // Two chains, for a comparison has to wait for the one before. Written out: a loop over arrays of
        // accumulators would keep them in memory.
        gk_TwoDoubles low = at(0);
        gk_TwoDoubles high = low;
        gk_TwoDoubles otherLow = low;
        gk_TwoDoubles otherHigh = low;
        std::size_t i = 0;
        for (; i + 4 <= count; i += 4) {
            const gk_TwoDoubles a = at(i);
            const gk_TwoDoubles b = at(i + 1);
            const gk_TwoDoubles c = at(i + 2);
            const gk_TwoDoubles d = at(i + 3);
            low = c.orLess(a.orLess(low));
            high = c.orGreater(a.orGreater(high));
            otherLow = d.orLess(b.orLess(otherLow));
            otherHigh = d.orGreater(b.orGreater(otherHigh));
        }
        for (; i < count; ++i) {
            low = at(i).orLess(low);
            high = at(i).orGreater(high);
        }
        low = otherLow.orLess(low);
        high = otherHigh.orGreater(high);
        low_ = gk_WithSignOfFirst(gk_VectorOf(low), count, at);
        high_ = gk_WithSignOfFirst(gk_VectorOf(high), count, at);
    }

    const gkVector<2>& low() const { return low_; }
    const gkVector<2>& high() const { return high_; }

private:
    gkVector<2> low_;
    gkVector<2> high_;
};

#endif
