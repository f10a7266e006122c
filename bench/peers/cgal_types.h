// What the sources of this peer share; nobody else includes it.
#ifndef GK_BENCH_PEERS_CGAL_TYPES_H
#define GK_BENCH_PEERS_CGAL_TYPES_H

#include "bench/peers/cgal.h"

#include <CGAL/Exact_predicates_inexact_constructions_kernel.h>
#include <CGAL/Polygon_2.h>

namespace bench {

using CgalKernel = CGAL::Exact_predicates_inexact_constructions_kernel;
using CgalPolygon = CGAL::Polygon_2<CgalKernel>;

struct CgalOutline::Body {
    CgalPolygon polygon;
};

inline CgalKernel::Point_2 cgalPoint(const Point& p) { return {p.x, p.y}; }

} // namespace bench

#endif
