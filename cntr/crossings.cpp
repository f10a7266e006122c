#include "cntr/crossings.h"

#include "cntr/index.h"
#include "cntr/search/close_pairs.h"
#include "cntr/search/line_side.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

// Below this many crossings the exchanges are made as they are written.
constexpr std::size_t kFewestToSort = 24;

void append(const gk_Segments& outline, gk_SegmentTree::Range range, const gk_CrossingTest& query,
            std::vector<gk_Crossing>& crossings) {
    for (std::size_t k = range.begin; k < range.end; ++k) {
        gkVector<2> point;
        if (query.crosses(outline.first(k), outline.second(k), point))
            crossings.push_back({point, gk_IndexAs<int>(k)});
    }
}

bool isModerate(const gkLineSeg& seg) { return gk_IsModerate(seg.p1()) && gk_IsModerate(seg.p2()); }

gk_LineSide sideOf(const gkLineSeg& seg, const gk_SegmentTree& tree) {
    return gk_LineSide(seg.p1(), seg.p2(), std::max({tree.reach(), gk_Reach(seg.p1()), gk_Reach(seg.p2())}));
}

// Whether the query from p1 to p2 is asked and crosses the other segment.
bool isCrossed(const gk_Box& keptBox, const gkVector<2>& p1, const gkVector<2>& p2, const gkVector<2>& q1,
               const gkVector<2>& q2) {
    const gk_CrossingTest query(gkLineSeg(p1, p2), false);
    gkVector<2> point;
    return keptBox.overlaps(query.box()) && gk_IsValidLine(p1, p2) && query.crosses(q1, q2, point);
}

} // namespace

std::vector<gk_Crossing> gk_Crossings(const gk_Segments& outline, const gk_CrossingTest& query) {
    std::vector<gk_Crossing> crossings;
    append(outline, {0, outline.size()}, query, crossings);
    return crossings;
}

std::vector<gk_Crossing> gk_Crossings(const gk_Segments& outline, const gk_SegmentTree& tree,
                                      const gk_CrossingTest& query) {
    if (!isModerate(query.segment())) return gk_Crossings(outline, query);
    const gk_LineSide side = sideOf(query.segment(), tree);
    std::vector<std::uint32_t> runs;
    tree.any([&](const gk_Box& box) { return box.overlaps(query.box()) && !side.rejects(box); },
             [&](std::uint32_t run) {
                 runs.push_back(run);
                 return false;
             });
    std::sort(runs.begin(), runs.end());
    std::vector<gk_Crossing> crossings;
    for (const std::uint32_t run : runs) append(outline, tree.segmentsOf(run), query, crossings);
    return crossings;
}

bool gk_MeetsAny(const gk_Segments& outline, const gk_SegmentTree& tree, const gk_CrossingTest& query,
                 std::size_t& segment) {
    constexpr std::size_t kNeighbours = 2;
    const auto meets = [&](std::size_t begin, std::size_t end) {
        gkVector<2> point;
        for (std::size_t k = begin; k < end; ++k) {
            if (!query.crosses(outline.first(k), outline.second(k), point)) continue;
            segment = k;
            return true;
        }
        return false;
    };
    if (meets(segment - std::min(segment, kNeighbours), std::min(segment + kNeighbours + 1, outline.size())))
        return true;
    if (!isModerate(query.segment())) return meets(0, outline.size());
    const gk_LineSide side = sideOf(query.segment(), tree);
    return tree.any([&](const gk_Box& box) { return box.overlaps(query.box()) && !side.rejects(box); },
                    [&](std::uint32_t run) {
                        const gk_SegmentTree::Range range = tree.segmentsOf(run);
                        return meets(range.begin, range.end);
                    });
}

bool gk_CrossesItself(const gk_Segments& outline, const gk_Box& box) {
    for (std::size_t k = 0; k < outline.size(); ++k) {
        const gkLineSeg seg(outline.first(k), outline.second(k));
        const gk_CrossingTest query(seg, false);
        if (!box.overlaps(query.box()) || !gk_IsValidLine(seg.p1(), seg.p2())) continue;
        for (std::size_t j = 0; j < outline.size(); ++j) {
            gkVector<2> point;
            if (query.crosses(outline.first(j), outline.second(j), point)) return true;
        }
    }
    return false;
}

// Only whether there is a crossing is asked, so the pairs may come in any order, each once, either segment as
// the query. A neighbour touches an end and never counts; boxes that do not overlap cannot cross.
bool gk_CrossesItself(const gk_Segments& outline, const gk_SegmentTree& tree, const gk_Box& box) {
    return gk_ClosePairs(outline, tree, 0.0).any([&](std::size_t k, std::size_t j) {
        const gkVector<2>& p1 = outline.first(k);
        const gkVector<2>& p2 = outline.second(k);
        const gkVector<2>& q1 = outline.first(j);
        const gkVector<2>& q2 = outline.second(j);
        if (gk_LineSide(p1, p2, tree.reach()).rejects(q1, q2)) return false;
        return isCrossed(box, p1, p2, q1, q2) || isCrossed(box, q1, q2, p1, p2);
    });
}

void gk_OrderAlong(const gkLineSeg& seg, std::vector<gk_Crossing>& crossings) {
    const gkVector<2> direction = seg.p2() - seg.p1();
    struct Keyed {
        double key;
        gk_Crossing crossing;
    };
    std::vector<Keyed> keyed;
    keyed.reserve(crossings.size());
    for (const gk_Crossing& crossing : crossings)
        keyed.push_back({gk_VectorOps::dot(crossing.point - seg.p1(), direction), crossing});
    const auto isBefore = [](const Keyed& a, const Keyed& b) { return a.key < b.key; };
    // Distinct keys have one order, however it is reached; only equal ones, and NaN, tell how it was.
    const bool comparable =
        std::none_of(keyed.begin(), keyed.end(), [](const Keyed& k) { return std::isnan(k.key); });
    bool oneOrder = false;
    if (comparable && keyed.size() >= kFewestToSort) {
        std::vector<Keyed> sorted(keyed);
        std::stable_sort(sorted.begin(), sorted.end(), isBefore);
        oneOrder = true;
        for (std::size_t i = 0; i + 1 < sorted.size() && oneOrder; ++i)
            oneOrder = sorted[i].key < sorted[i + 1].key;
        if (oneOrder) keyed = std::move(sorted);
    }
    if (!oneOrder) {
        for (std::size_t i = 0; i + 1 < keyed.size(); ++i) {
            for (std::size_t j = i + 1; j < keyed.size(); ++j) {
                if (keyed[i].key > keyed[j].key) std::swap(keyed[i], keyed[j]);
            }
        }
    }
    for (std::size_t i = 0; i < keyed.size(); ++i) crossings[i] = keyed[i].crossing;
}
