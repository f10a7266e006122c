#include "cntr/search/vertex_runs.h"

#include "platform/core/math/two_doubles.h"

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

} // namespace

gk_VertexRuns::gk_VertexRuns(const Points& points) {
    runs_.reserve(points.size() / kRun + 1);
    for (std::size_t begin = 0; begin < points.size(); begin += kRun) {
        gk_TwoDoubles least(kInfinity);
        gk_TwoDoubles greatest(-kInfinity);
        for (std::size_t i = begin; i < std::min(begin + kRun, points.size()); ++i) {
            const gk_TwoDoubles p = gk_TwoOf(points[i]);
            least = p.orLess(least); // a NaN leaves both as they are
            greatest = p.orGreater(greatest);
        }
        runs_.push_back({least.first(), least.second(), greatest.first(), greatest.second()});
    }
    groups_.reserve(runs_.size() / kGroup + 1);
    for (std::size_t begin = 0; begin < runs_.size(); begin += kGroup) {
        gk_Box box = runs_[begin];
        for (std::size_t i = begin; i < endOf(begin / kGroup, kGroup, runs_.size()); ++i)
            box = box.enclosing(runs_[i]);
        groups_.push_back(box);
    }
}
