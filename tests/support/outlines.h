// Two outlines of any wished size, the same on every platform.
#ifndef GK_TESTS_SUPPORT_OUTLINES_H
#define GK_TESTS_SUPPORT_OUTLINES_H

#include "tests/gen/random.h"
#include "tests/support/shapes.h"

// A round outline of this radius about a place, with a seeded noise of up to 1 outwards.
inline Points starOutline(int count, double radius, const gkVector<2>& center = {0.0, 0.0}) {
    gen::Random random(7);
    Points outline;
    for (int i = 0; i < count; ++i)
        outline.push_back(center +
                          gkVector<2>(radius + random.unit(), gkRadian(6.283185307179586 * i / count)));
    return outline;
}

// Two loops, 60 wide and 40 high in all, that cross in the origin.
inline Points eightOutline(int count) {
    Points outline;
    for (int i = 0; i < count; ++i) {
        const double t = 6.283185307179586 * (i + 0.25) / count;
        outline.emplace_back(30.0 * gkVector<2>(1.0, gkRadian(t)).y(),
                             20.0 * gkVector<2>(1.0, gkRadian(2.0 * t)).y());
    }
    return outline;
}

#endif
