#include "tests/oracle/repair.h"

#include "tests/oracle/inside_count.h"
#include "tests/oracle/length.h"
#include "tests/oracle/vertex_cells.h"

#include <cstring>
#include <set>
#include <tuple>

namespace {

using oracle::Points;

// The one correction of an index that is off by less than one turn.
long wrap(long a, long m) {
    if (a < 0) a += m;
    if (a >= m) a -= m;
    return a;
}

const gkVector<2>& at(const Points& points, long index) { return points[static_cast<std::size_t>(index)]; }

long sizeOf(const Points& points) { return static_cast<long>(points.size()); }

bool isStartEdge(const Points& points, long i, double e) {
    const gkVector<2> from = at(points, i);
    const gkVector<2> to = at(points, i + 1);
    const gkVector<2> mid = (from + to) / 2.0;
    const gkVector<2> u = (from - to).unit();
    const gkVector<2> w(-u.y(), u.x());
    const gkVector<2> a = mid + w * e;
    const gkVector<2> b = mid - w * e;
    const std::size_t k1 = oracle::crossings(points, true, gkLineSeg(a, b), true).size();
    const std::size_t k2 = oracle::crossings(points, true, gkLineSeg(from, to), true).size();
    const bool outsideOnOneSide =
        oracle::insideCount(points, a, true) == 0 || oracle::insideCount(points, b, true) == 0;
    return k1 == 1 && k2 == 2 && outsideOnOneSide;
}

std::uint64_t bitsOf(double value) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

Points turned(const Points& points, long from, long to) {
    Points part;
    for (long i = from; i < to; ++i) part.push_back(at(points, wrap(i, sizeOf(points))));
    return part;
}

// Cuts at the first repeated vertex of the first loop that has one.
bool cutOnce(std::vector<Points>& loops) {
    for (Points& loop : loops) {
        const Points piece = loop;
        for (long j = 0; j < sizeOf(piece); ++j) {
            for (const int index : oracle::vertexIndex(piece, at(piece, j), 1e-6)) {
                if (index == j) continue;
                const long q = index < j ? index + sizeOf(piece) : index;
                loop = turned(piece, j, q);
                loops.push_back(turned(piece, q, j + sizeOf(piece)));
                return true;
            }
        }
    }
    return false;
}

bool dropOnce(std::vector<Points>& loops) {
    for (std::size_t i = 0; i < loops.size(); ++i) {
        for (std::size_t k = 0; k < loops.size(); ++k) {
            if (i == k) continue;
            const gkVector<2> middle = (loops[i].at(0) + loops[i].at(1)) / 2.0;
            if (!oracle::inside(loops[k], middle)) continue;
            loops[i] = Points(loops.back());
            loops.pop_back();
            return true;
        }
    }
    return false;
}

bool joinOnce(std::vector<Points>& loops) {
    for (std::size_t i = 0; i + 1 < loops.size(); ++i) {
        for (std::size_t k = i + 1; k < loops.size(); ++k) {
            for (long j = 0; j < sizeOf(loops[i]); ++j) {
                const std::vector<int> same = oracle::vertexIndex(loops[k], at(loops[i], j), 1e-6);
                if (same.empty()) continue;
                Points joined = turned(loops[i], j, j + sizeOf(loops[i]));
                const Points second = turned(loops[k], same[0], same[0] + sizeOf(loops[k]));
                joined.insert(joined.end(), second.begin(), second.end());
                loops[i] = joined;
                loops[k] = Points(loops.back());
                loops.pop_back();
                return true;
            }
        }
    }
    return false;
}

} // namespace

namespace oracle {

long startEdge(const Points& points) {
    if (points.size() < 3) throw Refusal{"EmptyContour"};
    const double e = medianFeatureSize(points, true) / 100.0;
    for (long i = 0; i < sizeOf(points) - 1; ++i) {
        if (isStartEdge(points, i, e)) return i;
    }
    throw NoStartEdge();
}

Points walk(const Points& points, long start) {
    const long n = sizeOf(points);
    std::set<std::tuple<std::uint64_t, std::uint64_t, long, bool>> met;
    Points walked;
    gkVector<2> c = at(points, start);
    bool forward = true;
    long p = start + 1;
    do {
        if (!met.emplace(bitsOf(c.x()), bitsOf(c.y()), p, forward).second) throw EndlessWalk();
        const gkVector<2> t = forward ? at(points, p) : at(points, wrap(p - 1, n));
        const std::vector<Crossing> found = crossings(points, true, gkLineSeg(c, t), false);
        if (!found.empty()) {
            c = found[0].point;
            p = found[0].segment;
            forward = !forward;
        } else {
            c = t;
            p = forward ? wrap(p + 1, n) : wrap(p - 1, n);
        }
        walked.push_back(c);
    } while (c != at(points, start));
    return walked;
}

std::vector<Points> cutLoops(const Points& walked) {
    std::vector<Points> loops = {walked};
    while (cutOnce(loops)) {
    }
    return loops;
}

std::vector<Points> dropInnerLoops(std::vector<Points> loops) {
    while (dropOnce(loops)) {
    }
    return loops;
}

std::vector<Points> joinLoops(std::vector<Points> loops) {
    while (joinOnce(loops)) {
    }
    return loops;
}

std::vector<Points> hullLoops(const Points& points) {
    return joinLoops(dropInnerLoops(cutLoops(walk(points, startEdge(points)))));
}

Points regularize(const Points& points) {
    if (!isSelfIntersecting(points, true)) return points;
    return walk(points, startEdge(points));
}

Points outerHull(const Points& points) {
    if (!isSelfIntersecting(points, true)) return points;
    const std::vector<Points> loops = hullLoops(points);
    if (loops.size() != 1) throw Refusal{"assertion 618"};
    return loops[0];
}

} // namespace oracle
