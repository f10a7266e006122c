// How the contestants of the rows come to their shapes and indexes.
#ifndef GK_BENCH_CONTESTANTS_H
#define GK_BENCH_CONTESTANTS_H

#include "bench/ours.h"
#include "tests/oracle/oracle.h"

#include <memory>
#include <utility>
#include <vector>

namespace bench {

// Shared, since every contestant keeps the shape it is made of.
using SharedPoints = std::shared_ptr<const Points>;
using SharedPolygon = std::shared_ptr<const Polygon>;

inline SharedPoints shared(Points points) { return std::make_shared<const Points>(std::move(points)); }
inline SharedPolygon shared(Polygon polygon) { return std::make_shared<const Polygon>(std::move(polygon)); }

inline auto contourMaker(SharedPoints points) {
    return [=] { return contourOf(*points); };
}

template <class Shared> auto regionMaker(Shared shape) {
    return [=] { return regionOf(*shape); };
}

inline auto oracleMaker(SharedPoints points) {
    return [=] { return std::make_unique<oracle::Points>(vectorsOf(*points)); };
}

// A peer's shape from points or from a polygon.
template <class Shape, class Shared> auto maker(Shared shape) {
    return [=] { return std::make_unique<Shape>(*shape); };
}

// A peer's shape that wants a polygon, from an outline without holes.
template <class Shape> auto areaMaker(SharedPoints points) {
    return maker<Shape>(shared(Polygon{*points, {}}));
}

// Builds an index over a peer's shape.
template <class Index> struct Indexed {
    template <class Shape> std::unique_ptr<Index> operator()(const Shape& shape) const {
        return std::make_unique<Index>(shape);
    }
};

} // namespace bench

#endif
