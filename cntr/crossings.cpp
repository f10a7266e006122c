#include "cntr/crossings.h"

#include "cntr/index.h"
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

// Whether segments of two runs cross, either as the query of the other.
class RunPairs {
public:
    RunPairs(const gk_Segments& outline, const gk_SegmentTree& tree, const gk_Box& keptBox)
        : outline_(outline), tree_(tree), keptBox_(keptBox) {}

    // Segments of a run that goes on in one direction along an axis have boxes that do not overlap, but for
    // neighbours.
    bool crossWithin(std::size_t run) const {
        const gk_SegmentTree::Range range = tree_.segmentsOf(run);
        if (goesOn(range)) return false;
        for (std::size_t k = range.begin; k < range.end; ++k)
            if (crosses(k, {k + 2, range.end})) return true;
        return false;
    }

    // Only what lies in both boxes can meet: where runs follow each other, the ends beside their common vertex.
    bool cross(std::size_t run, const gk_Box& box, std::size_t other, const gk_Box& otherBox) const {
        const gk_SegmentTree::Range ones = tree_.segmentsOf(run);
        const gk_Box common = box.common(otherBox);
        for (std::size_t k = ones.begin; k < ones.end; ++k)
            if (boxOf(k).overlaps(common) && crosses(k, tree_.segmentsOf(other))) return true;
        return false;
    }

private:
    gk_Box boxOf(std::size_t k) const { return gk_Box::of(outline_.first(k), outline_.second(k)); }

    bool goesOn(gk_SegmentTree::Range range) const {
        bool right = true;
        bool left = true;
        bool up = true;
        bool down = true;
        for (std::size_t k = range.begin; k < range.end; ++k) {
            const gkVector<2>& from = outline_.first(k);
            const gkVector<2>& to = outline_.second(k);
            right = right && from.x() < to.x();
            left = left && from.x() > to.x();
            up = up && from.y() < to.y();
            down = down && from.y() > to.y();
        }
        return right || left || up || down;
    }

    // A neighbour touches an end and never counts.
    bool areNeighbours(std::size_t k, std::size_t j) const {
        const std::size_t apart = k < j ? j - k : k - j;
        return apart <= 1 || (outline_.closed() && apart == outline_.size() - 1);
    }

    bool crosses(std::size_t k, gk_SegmentTree::Range others) const {
        const gkVector<2>& p1 = outline_.first(k);
        const gkVector<2>& p2 = outline_.second(k);
        const gk_Box box = gk_Box::of(p1, p2);
        const gk_LineSide side(p1, p2, tree_.reach());
        for (std::size_t j = others.begin; j < others.end; ++j) {
            const gkVector<2>& q1 = outline_.first(j);
            const gkVector<2>& q2 = outline_.second(j);
            if (!gk_Box::of(q1, q2).overlaps(box) || areNeighbours(k, j) || side.rejects(q1, q2)) continue;
            if (isQuery(p1, p2, q1, q2) || isQuery(q1, q2, p1, p2)) return true;
        }
        return false;
    }

    bool isQuery(const gkVector<2>& p1, const gkVector<2>& p2, const gkVector<2>& q1,
                 const gkVector<2>& q2) const {
        const gk_CrossingTest query(gkLineSeg(p1, p2), false);
        gkVector<2> point;
        return keptBox_.overlaps(query.box()) && gk_IsValidLine(p1, p2) && query.crosses(q1, q2, point);
    }

    const gk_Segments& outline_;
    const gk_SegmentTree& tree_;
    const gk_Box& keptBox_;
};

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

// Only whether there is a crossing is asked, so the pairs may come in any order, each once.
bool gk_CrossesItself(const gk_Segments& outline, const gk_SegmentTree& tree, const gk_Box& box) {
    const RunPairs pairs(outline, tree, box);
    return tree.anyPair([&](std::size_t run, const gk_Box& runBox, std::size_t other, const gk_Box& otherBox) {
        return run == other ? pairs.crossWithin(run) : pairs.cross(run, runBox, other, otherBox);
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
