#include "cntr/crossings.h"

#include "cntr/exchange_order.h"
#include "cntr/index.h"
#include "cntr/search/close_pairs.h"
#include "cntr/search/crossing_candidates.h"
#include "cntr/search/line_side.h"

#include <algorithm>
#include <array>

namespace {

// So many crossings are put in order as it is written.
constexpr std::size_t kFewCrossings = 24;
// Pairs of close segments, for each segment, from which on it is asked whether many segments are the same;
// noisy outlines have none or a few.
constexpr std::size_t kPairsBeforeCandidates = 16;
// All pairs of so small a share of the segments cost less than those that are close.
constexpr std::size_t kWorthCandidates = 8;

void append(const gk_Segments& outline, gk_SegmentTree::Range range, const gk_CrossingTest& query,
            std::vector<gk_Crossing>& crossings) {
    for (std::size_t k = range.begin; k < range.end; ++k) {
        gkVector<2> point;
        if (query.crosses(outline.first(k), outline.second(k), point))
            crossings.push_back({point, gk_IndexAs<int>(k)});
    }
}

void countCrossings(const gk_Segments& outline, gk_SegmentTree::Range range, const gk_CrossingTest& query,
                    std::size_t most, std::size_t& count) {
    gkVector<2> point;
    for (std::size_t k = range.begin; k < range.end && count < most; ++k)
        if (query.crosses(outline.first(k), outline.second(k), point)) ++count;
}

double placeAlong(const gkLineSeg& seg, const gk_Crossing& crossing) {
    return gk_VectorOps::dot(crossing.point - seg.p1(), seg.p2() - seg.p1());
}

std::vector<double> placesAlong(const gkLineSeg& seg, const std::vector<gk_Crossing>& crossings) {
    std::vector<double> places;
    places.reserve(crossings.size());
    for (const gk_Crossing& crossing : crossings) places.push_back(placeAlong(seg, crossing));
    return places;
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

bool anyTwoCross(const std::vector<gkLineSeg>& segments, const gk_Box& keptBox) {
    for (const gkLineSeg& a : segments) {
        if (!keptBox.overlaps(gk_Box::of(a.p1(), a.p2()))) continue;
        for (const gkLineSeg& b : segments)
            if (isCrossed(keptBox, a.p1(), a.p2(), b.p1(), b.p2())) return true;
    }
    return false;
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
    tree.anyOverlapping(
        query.box(), [&](const gk_Box& box) { return !side.rejects(box); },
        [&](std::uint32_t run) {
            runs.push_back(run);
            return false;
        });
    std::sort(runs.begin(), runs.end());
    std::vector<gk_Crossing> crossings;
    for (const std::uint32_t run : runs) append(outline, tree.segmentsOf(run), query, crossings);
    return crossings;
}

std::size_t gk_CountCrossings(const gk_Segments& outline, const gk_CrossingTest& query, std::size_t most) {
    std::size_t count = 0;
    countCrossings(outline, {0, outline.size()}, query, most, count);
    return count;
}

std::size_t gk_CountCrossings(const gk_Segments& outline, const gk_SegmentTree& tree,
                              const gk_CrossingTest& query, std::size_t most) {
    if (!isModerate(query.segment())) return gk_CountCrossings(outline, query, most);
    const gk_LineSide side = sideOf(query.segment(), tree);
    std::size_t count = 0;
    tree.anyOverlapping(
        query.box(), [&](const gk_Box& box) { return !side.rejects(box); },
        [&](std::uint32_t run) {
            countCrossings(outline, tree.segmentsOf(run), query, most, count);
            return count == most;
        });
    return count;
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
    return tree.anyOverlapping(
        query.box(), [&](const gk_Box& box) { return !side.rejects(box); },
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

bool gk_CrossesItselfByCandidates(const gk_Segments& outline, const gk_Box& box) {
    return anyTwoCross(gk_CrossingCandidates(outline), box);
}

// Only whether there is a crossing is asked, so the pairs may come in any order, each once, either segment as
// the query. A neighbour touches an end and never counts; boxes that do not overlap cannot cross.
bool gk_CrossesItself(const gk_Segments& outline, const gk_SegmentTree& tree, const gk_Box& box) {
    const gk_ClosePairs close(outline, tree, 0.0);
    const auto areCrossing = [&](std::size_t k, std::size_t j) {
        const gkVector<2>& p1 = outline.first(k);
        const gkVector<2>& p2 = outline.second(k);
        const gkVector<2>& q1 = outline.first(j);
        const gkVector<2>& q2 = outline.second(j);
        if (gk_LineSide(p1, p2, tree.reach()).rejects(q1, q2)) return false;
        return isCrossed(box, p1, p2, q1, q2) || isCrossed(box, q1, q2, p1, p2);
    };
    const std::size_t mostPairs = kPairsBeforeCandidates * outline.size();
    std::size_t pairs = 0;
    bool found = false;
    const bool stopped = close.anyThatMayCross([&](std::size_t k, std::size_t j) {
        found = areCrossing(k, j);
        return found || ++pairs > mostPairs;
    });
    if (found || !stopped) return found;
    const std::vector<gkLineSeg> candidates = gk_CrossingCandidates(outline);
    if (candidates.size() <= outline.size() / kWorthCandidates) return anyTwoCross(candidates, box);
    return close.anyThatMayCross(areCrossing);
}

const gk_Crossing& gk_FirstAlong(const gkLineSeg& seg, const std::vector<gk_Crossing>& crossings) {
    return crossings[gk_FirstByExchange(placesAlong(seg, crossings))];
}

void gk_OrderAlong(const gkLineSeg& seg, std::vector<gk_Crossing>& crossings) {
    if (crossings.size() <= kFewCrossings) {
        std::array<double, kFewCrossings> places{};
        for (std::size_t i = 0; i < crossings.size(); ++i) places[i] = placeAlong(seg, crossings[i]);
        gk_Exchange(places, crossings, crossings.size());
        return;
    }
    const std::vector<std::size_t> order = gk_ExchangeOrder(placesAlong(seg, crossings));
    const std::vector<gk_Crossing> found(crossings);
    for (std::size_t i = 0; i < order.size(); ++i) crossings[i] = found[order[i]];
}
