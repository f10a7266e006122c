// The older integer clipper: coordinates become whole numbers below 2^30, where it is quickest.
#ifndef GK_BENCH_PEERS_CLIPPER_H
#define GK_BENCH_PEERS_CLIPPER_H

#include "bench/plain.h"

#include <memory>
#include <vector>

namespace bench {

// Outlines on one common grid.
class ClipperPaths {
public:
    explicit ClipperPaths(const std::vector<Points>& outlines);
    ~ClipperPaths();

    bool inside(const Point& p) const; // in the first outline
    double area() const;               // of the first
    // Area within the outer boundaries of everything that some outline winds around.
    double outerArea() const;
    // The same by the even-odd rule.
    double evenOddArea() const;

private:
    struct Body;
    std::unique_ptr<Body> body_;
};

} // namespace bench

#endif
