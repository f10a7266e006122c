// A small polygon far from the origin loses digits, and how to keep them: the sums behind area, centroid and
// moments are anchored at the origin, so each term grows with the distance while the result does not. Shift the
// polygon to its first vertex, measure there, and shift the result back.
#include "gkcntr.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace {

using Vertices = std::vector<gkVector<2>>;

// A square of side 10, tilted. Its vertices are exact at each of the distances below, so all digits that go are
// lost in the sums.
constexpr double kSide = 10;

Vertices square(double distance) {
    const gkVector<2> corner(distance, 0.75 * distance);
    return {corner, corner + gkVector<2>(8, 6), corner + gkVector<2>(2, 14), corner + gkVector<2>(-6, 8)};
}

Vertices shifted(Vertices vertices, const gkVector<2>& by) {
    for (gkVector<2>& vertex : vertices) vertex += by;
    return vertices;
}

// How far the centroid is from the middle of the square.
double centroidError(const Vertices& square, const gkVector<2>& centroid) {
    return centroid.distance((square[0] + square[2]) / 2.0);
}

gkVector<2> centroidAfterShift(const Vertices& vertices) {
    const gkVector<2> first = vertices.front();
    return gf_CenterOfMass(shifted(vertices, -first)) + first;
}

// Of the second moment about the vertical axis through the centroid, as a fraction of the true value, side^4
// / 12.
double momentError(const Vertices& vertices) {
    const double truth = kSide * kSide * kSide * kSide / 12;
    return std::fabs(gf_InertiaDataPolygon(vertices).inertiaMatrix().element(0, 0) - truth) / truth;
}

} // namespace

int main() {
    std::puts("A square of side 10 at (d, 0.75 d)");
    std::puts("");
    std::puts("         centroid is off by     moment is off by a part of");
    std::puts("     d   as it is    shifted    as it is    shifted");
    for (double distance : {1e0, 1e2, 1e4, 1e6, 1e8}) {
        const Vertices here = square(distance);
        std::printf("%6.0e   %8.0e   %8.0e   %9.0e   %8.0e\n", distance,
                    centroidError(here, gf_CenterOfMass(here)), centroidError(here, centroidAfterShift(here)),
                    momentError(here), momentError(shifted(here, -here.front())));
    }
}
