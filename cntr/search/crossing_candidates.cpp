#include "cntr/search/crossing_candidates.h"

#include "cntr/search/crossing_test.h"
#include "platform/core/math/vector_ops.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace {

double lengthOf(const gkLineSeg& segment) { return gk_VectorOps::length(segment.line().direction()); }

// Lines are parallel where the product of their directions' lengths, the scale of their sine, is no number.
void dropIncomparable(std::vector<gkLineSeg>& segments) {
    double least = std::numeric_limits<double>::infinity();
    for (const gkLineSeg& segment : segments) least = std::min(least, lengthOf(segment));
    segments.erase(
        std::remove_if(segments.begin(), segments.end(),
                       [&](const gkLineSeg& segment) { return !std::isfinite(lengthOf(segment) * least); }),
        segments.end());
}

// Two directions so near a third are parallel to each other, roundings included.
bool areAllParallel(const std::vector<gkLineSeg>& segments) {
    constexpr double kSine = 0.1 * gkLine::kParallelSine;
    return std::all_of(segments.begin(), segments.end(), [&](const gkLineSeg& segment) {
        const gkVector<2> a = segments.front().line().direction();
        const gkVector<2> b = segment.line().direction();
        return std::fabs(gk_VectorOps::cross(a, b)) <=
               kSine * (gk_VectorOps::length(a) * gk_VectorOps::length(b));
    });
}

std::array<double, 4> endsOf(const gkLineSeg& segment) {
    return {segment.p1().x(), segment.p1().y(), segment.p2().x(), segment.p2().y()};
}

void keepOneOfEach(std::vector<gkLineSeg>& segments) {
    std::sort(segments.begin(), segments.end(),
              [](const gkLineSeg& a, const gkLineSeg& b) { return endsOf(a) < endsOf(b); });
    segments.erase(std::unique(segments.begin(), segments.end(),
                               [](const gkLineSeg& a, const gkLineSeg& b) { return endsOf(a) == endsOf(b); }),
                   segments.end());
}

} // namespace

std::vector<gkLineSeg> gk_CrossingCandidates(const gk_Segments& outline) {
    std::vector<gkLineSeg> segments;
    segments.reserve(outline.size());
    for (std::size_t k = 0; k < outline.size(); ++k) {
        if (gk_IsValidLine(outline.first(k), outline.second(k)))
            segments.emplace_back(outline.first(k), outline.second(k));
    }
    dropIncomparable(segments);
    keepOneOfEach(segments);
    if (areAllParallel(segments)) segments.clear();
    return segments;
}
