// Shapes as plain numbers, the form in which every library gets them.
#ifndef GK_BENCH_PLAIN_H
#define GK_BENCH_PLAIN_H

#include <vector>

namespace bench {

struct Point {
    double x;
    double y;
};

using Points = std::vector<Point>;

struct Segment {
    Point from;
    Point to;
};

struct Polygon {
    Points outline;
    std::vector<Points> holes;
};

struct Moments {
    double xx;
    double yy;
    double xy;
};

// x' = a x + b y + dx, y' = c x + d y + dy.
struct Affine {
    double a, b, c, d;
    double dx, dy;
};

struct Box {
    Point low;
    Point high;
};

} // namespace bench

#endif
