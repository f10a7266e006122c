#include "tests/oracle/crossings.h"
#include "tests/oracle/repair.h"

namespace oracle {

Points splice(const Points& one, const Points& other) {
    const std::vector<gkLineSeg> edges = segments(one, true);
    for (std::size_t k = 0; k < edges.size(); ++k) {
        if (!isValidLine(edges[k])) continue;
        needsTwo(other);
        const std::vector<Crossing> found = crossings(other, true, edges[k], true);
        if (found.empty()) continue;
        Points spliced = {found[0].point};
        for (std::size_t i = 0; i < one.size(); ++i) spliced.push_back(one[(k + i) % one.size()]);
        spliced.push_back(found[0].point);
        const auto g = static_cast<std::size_t>(found[0].segment);
        for (std::size_t i = 0; i < other.size(); ++i) spliced.push_back(other[(g + i) % other.size()]);
        return spliced;
    }
    throw Refusal{"BadParams"};
}

bool isSelfIntersecting(const std::vector<Points>& set) {
    bool some = false;
    for (const Points& region : set) some = isSelfIntersecting(region, true) || some;
    for (std::size_t i = 0; i + 1 < set.size(); ++i) {
        for (std::size_t j = i + 1; j < set.size(); ++j) {
            if (!crossingsWithContour(set[i], true, set[j], true).empty()) return true;
        }
    }
    return some;
}

std::vector<Points> mergeOnce(std::vector<Points> set) {
    for (std::size_t i = 0; i + 1 < set.size(); ++i) {
        for (std::size_t j = i + 1; j < set.size(); ++j) {
            if (crossingsWithContour(set[i], true, set[j], true).empty()) continue;
            set[i] = splice(set[i], set[j]);
            set[j] = Points(set.back());
            set.pop_back();
        }
    }
    return set;
}

std::vector<Points> regularize(const std::vector<Points>& set) {
    if (!isSelfIntersecting(set)) return set;
    std::vector<Points> repaired;
    for (const Points& region : mergeOnce(set)) repaired.push_back(regularize(region));
    return repaired;
}

std::vector<Points> outerHull(const std::vector<Points>& set) {
    if (!isSelfIntersecting(set)) return set;
    std::vector<Points> repaired;
    for (const Points& region : mergeOnce(set)) repaired.push_back(outerHull(region));
    return repaired;
}

} // namespace oracle
