#include "cntr/loops.h"
#include "cntr/outline.h"

#include <utility>

namespace {

constexpr double kSameVertex = 1e-6; // vertex units

struct Repeat {
    long first;
    long second; // behind `first`, possibly past the end
};

// The first vertex that comes again, and the place where it does.
bool findRepeat(gk_Outline& loop, Repeat& repeat) {
    for (long j = 0; j < loop.size(); ++j) {
        for (const int q : loop.near(loop[j], kSameVertex)) {
            if (q == j) continue;
            repeat = {j, q < j ? q + loop.size() : q};
            return true;
        }
    }
    return false;
}

gk_Loop part(const gk_Outline& loop, long from, long to) {
    gk_Loop vertices;
    vertices.reserve(static_cast<std::size_t>(to - from));
    for (long i = from; i < to; ++i) vertices.push_back(loop.wrapped(i));
    return vertices;
}

} // namespace

// Ends: a cut turns one loop of m vertices into two that have at least one each, m together, so there are fewer
// cuts than vertices. After a cut the scan starts over; loops before the cut one were found free of repeats and
// stay so.
std::vector<gk_Loop> gk_CutLoops(const gk_Loop& walked) {
    std::vector<gk_Loop> loops = {walked};
    for (std::size_t i = 0; i < loops.size();) {
        gk_Outline loop(loops[i]);
        Repeat repeat{};
        if (!findRepeat(loop, repeat)) {
            ++i;
            continue;
        }
        loops[i] = part(loop, repeat.first, repeat.second);
        loops.push_back(part(loop, repeat.second, repeat.first + loop.size()));
    }
    return loops;
}
