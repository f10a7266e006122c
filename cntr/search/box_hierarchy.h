// Boxes above boxes: finds those among many that a question concerns.
#ifndef GK_CNTR_SEARCH_BOX_HIERARCHY_H
#define GK_CNTR_SEARCH_BOX_HIERARCHY_H

#include "cntr/search/eight_boxes.h"

#include <array>
#include <cstddef>
#include <utility>
#include <vector>

// Flat and implicit: every kFan boxes that follow each other have one above them, so boxes should come in an
// order in which neighbours are near each other. 32 bytes per box and a seventh more.
class gk_BoxHierarchy {
public:
    static constexpr std::size_t kFan = gk_EightBoxes::kCount;

    gk_BoxHierarchy() = default;
    // There must be a box.
    explicit gk_BoxHierarchy(const std::vector<gk_Box>& leaves);

    const gk_Box& box() const { return box_; }
    gk_Box leaf(std::size_t position) const { return boxAt(0, position); }

    // Calls visit(leaf) for every leaf whose box, and whose every box above, wanted(box) accepts. In no order.
    // A visit that returns true ends it; tells whether one did.
    template <class Wanted, class Visit> bool any(Wanted wanted, Visit visit) const {
        const auto choose = [&](const gk_EightBoxes& boxes, unsigned among) {
            return chosen(among, [&](std::size_t i) { return wanted(boxes.box(i)); });
        };
        return wanted(box()) && anyChosen(choose, visit);
    }

    // The same for boxes that overlap the given one and are wanted besides.
    template <class Wanted, class Visit>
    bool anyOverlapping(const gk_Box& other, Wanted wanted, Visit visit) const {
        const auto choose = [&](const gk_EightBoxes& boxes, unsigned among) {
            return chosen(among & boxes.overlapping(other),
                          [&](std::size_t i) { return wanted(boxes.box(i)); });
        };
        return box().overlaps(other) && wanted(box()) && anyChosen(choose, visit);
    }

    template <class Visit> bool anyOverlapping(const gk_Box& other, Visit visit) const {
        return anyOverlapping(
            other, [](const gk_Box&) { return true; }, visit);
    }

    // Calls visit(leaf) for the leaves in no order but that those near p tend to come first, as far as the
    // squared distance of their box and of every box above does not exceed limit(), which visits may lower.
    template <class Limit, class Visit> void nearestTo(const gkVector<2>& p, Limit limit, Visit visit) const {
        if (top() == 0) {
            visit(0);
            return;
        }
        Pending pending;
        pending.push({top(), 0, 0.0});
        while (!pending.empty()) {
            const Node node = pending.pop();
            if (node.key > limit()) continue;
            const gk_EightBoxes::Numbers keys = under(node.level, node.position).distances2(p);
            const std::size_t count = countUnder(node.level, node.position);
            const std::size_t first = node.position * kFan;
            if (node.level > 1) {
                pushNearestLast(pending, node.level - 1, first, keys, count, limit());
                continue;
            }
            const auto nearest = static_cast<std::size_t>(
                std::min_element(keys.begin(), keys.begin() + static_cast<std::ptrdiff_t>(count)) -
                keys.begin());
            if (keys[nearest] > limit()) continue;
            visit(first + nearest);
            for (std::size_t i = 0; i < count; ++i)
                if (i != nearest && !(keys[i] > limit())) visit(first + i);
        }
    }

    // Calls visit(leaf) for the leaves nearest first, as far as nearness(box) does not exceed limit(), which
    // visits may lower. A box may not be nearer than the one above it.
    template <class Nearness, class Limit, class Visit>
    void nearestFirst(Nearness nearness, Limit limit, Visit visit) const {
        Pending pending;
        pending.push({top(), 0, nearness(box())});
        while (!pending.empty()) {
            const Node node = pending.pop();
            if (node.key > limit()) continue;
            if (node.level == 0) {
                visit(node.position);
                continue;
            }
            gk_EightBoxes::Numbers keys;
            const gk_EightBoxes& below = under(node.level, node.position);
            const std::size_t count = countUnder(node.level, node.position);
            for (std::size_t i = 0; i < count; ++i) keys[i] = nearness(below.box(i));
            pushNearestLast(pending, node.level - 1, node.position * kFan, keys, count, limit());
        }
    }

    // Calls visit(leaf, other) once for every two leaves whose boxes, and whose every boxes above, wanted(box,
    // other) accepts, and visit(leaf, leaf) for every leaf. A visit that returns true ends it; tells whether
    // one did.
    template <class Wanted, class Visit> bool anyPair(Wanted wanted, Visit visit) const {
        const auto choose = [&](const gk_Box& box, const gk_EightBoxes& others, const gk_Box& around,
                                unsigned among) {
            if (!wanted(box, around)) return 0u;
            // Copies, which no compiler reads anew for each of the boxes.
            return chosen(among, [=, &others](std::size_t i) { return wanted(box, others.box(i)); });
        };
        const auto isNone = [](std::size_t, std::size_t) { return false; };
        return anyPairWithin(top(), 0, choose, isNone, visit);
    }

    // The same for boxes within a margin of each other, but for those among some leaves that follow each other
    // of which isNone(first leaf, count) tells that none of their pairs, with themselves included, is of use.
    template <class IsNone, class Visit> bool anyClosePair(double margin, IsNone isNone, Visit visit) const {
        const auto choose = [&](const gk_Box& box, const gk_EightBoxes& others, const gk_Box& /*around*/,
                                unsigned among) { return among & others.overlapping(box.grownBy(margin)); };
        return anyPairWithin(top(), 0, choose, isNone, visit);
    }

private:
    struct Node {
        std::size_t level;
        std::size_t position;
        double key;
    };

    // Depth first: every level leaves at most kFan boxes behind, and 2^32 leaves have 11 levels.
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): each is set before it is read
    class Pending {
    public:
        bool empty() const { return size_ == 0; }
        std::size_t size() const { return size_; }
        void push(const Node& node) { nodes_[size_++] = node; }
        // Before those, from position `from` on, that are nearer.
        void pushBeforeNearer(const Node& node, std::size_t from) {
            std::size_t place = size_++;
            for (; place > from && nodes_[place - 1].key < node.key; --place) nodes_[place] = nodes_[place - 1];
            nodes_[place] = node;
        }
        Node pop() { return nodes_[--size_]; }

    private:
        std::array<Node, 12 * kFan> nodes_;
        std::size_t size_ = 0;
    };

    // Those of the bits whose number wanted(number) accepts.
    template <class Wanted> static unsigned chosen(unsigned bits, Wanted wanted) {
        unsigned those = bits;
        for (; bits != 0; bits &= bits - 1) {
            const std::size_t i = gk_LowestBit(bits);
            if (!wanted(i)) those ^= 1u << i;
        }
        return those;
    }

    // Of a hierarchy whose box at the top is wanted; choose(eight boxes, bits) gives those bits whose boxes
    // are.
    template <class Choose, class Visit> bool anyChosen(Choose choose, Visit visit) const {
        if (top() == 0) return visit(std::size_t{0});
        Pending pending;
        pending.push({top(), 0, 0.0});
        while (!pending.empty()) {
            const Node node = pending.pop();
            const std::size_t first = node.position * kFan;
            unsigned those = choose(under(node.level, node.position), allUnder(node.level, node.position));
            for (; those != 0; those &= those - 1) {
                const std::size_t position = first + gk_LowestBit(those);
                if (node.level > 1)
                    pending.push({node.level - 1, position, 0.0});
                else if (visit(position))
                    return true;
            }
        }
        return false;
    }

    static void pushNearestLast(Pending& pending, std::size_t level, std::size_t first,
                                const gk_EightBoxes::Numbers& keys, std::size_t count, double limit) {
        const std::size_t from = pending.size();
        for (std::size_t i = 0; i < count; ++i)
            if (!(keys[i] > limit)) pending.pushBeforeNearer({level, first + i, keys[i]}, from);
    }

    std::size_t top() const { return levels_.size(); }
    const gk_EightBoxes& under(std::size_t level, std::size_t position) const {
        return eights_[levels_[level - 1].first + position];
    }
    std::size_t countUnder(std::size_t level, std::size_t position) const {
        return std::min(levels_[level - 1].count - position * kFan, kFan);
    }
    // A bit for each.
    unsigned allUnder(std::size_t level, std::size_t position) const {
        return (1u << countUnder(level, position)) - 1u;
    }
    gk_Box boxAt(std::size_t level, std::size_t position) const {
        return level == top() ? box_ : under(level + 1, position / kFan).box(position % kFan);
    }

    // choose(box, eight boxes, box around those, bits) gives those bits whose boxes make a wanted pair with it.
    template <class Choose, class IsNone, class Visit>
    bool anyPairWithin(std::size_t at, std::size_t position, Choose& choose, IsNone& isNone,
                       Visit& visit) const {
        if (at == 0) return visit(position, position);
        if (at == 1 && isNone(position * kFan, countUnder(at, position))) return false;
        const gk_EightBoxes& below = under(at, position);
        const unsigned all = allUnder(at, position);
        const gk_Box around = boxAt(at, position);
        const std::size_t first = position * kFan;
        for (unsigned ones = all; ones != 0; ones &= ones - 1) {
            const std::size_t i = gk_LowestBit(ones);
            if (anyPairWithin(at - 1, first + i, choose, isNone, visit)) return true;
            unsigned others = choose(below.box(i), below, around, ones & (ones - 1));
            for (; others != 0; others &= others - 1)
                if (anyPairOf(at - 1, first + i, first + gk_LowestBit(others), choose, visit)) return true;
        }
        return false;
    }

    template <class Choose, class Visit>
    bool anyPairOf(std::size_t at, std::size_t one, std::size_t other, Choose& choose, Visit& visit) const {
        if (at == 0) return visit(one, other);
        const gk_EightBoxes& below = under(at, one);
        const gk_EightBoxes& belowOther = under(at, other);
        const unsigned all = allUnder(at, other);
        const gk_Box around = boxAt(at, other);
        for (unsigned ones = allUnder(at, one); ones != 0; ones &= ones - 1) {
            const std::size_t i = gk_LowestBit(ones);
            unsigned others = choose(below.box(i), belowOther, around, all);
            for (; others != 0; others &= others - 1)
                if (anyPairOf(at - 1, one * kFan + i, other * kFan + gk_LowestBit(others), choose, visit))
                    return true;
        }
        return false;
    }

    // A level's boxes, eight by eight.
    struct Level {
        std::size_t first; // of eights_
        std::size_t count; // of boxes
    };

    gk_Box box_{};
    std::vector<gk_EightBoxes> eights_; // the leaves, then level by level up to below the one box of all
    std::vector<Level> levels_;
};

#endif
