// Boxes above boxes: finds those among many that a question concerns.
#ifndef GK_CNTR_SEARCH_BOX_HIERARCHY_H
#define GK_CNTR_SEARCH_BOX_HIERARCHY_H

#include "cntr/search/box.h"

#include <array>
#include <cstddef>
#include <utility>
#include <vector>

// Flat and implicit: every kFan boxes that follow each other have one above them, so boxes should come in an
// order in which neighbours are near each other. 32 bytes per box and a seventh more.
class gk_BoxHierarchy {
public:
    static constexpr std::size_t kFan = 8;

    gk_BoxHierarchy() = default;
    // There must be a box.
    explicit gk_BoxHierarchy(std::vector<gk_Box> leaves);

    const gk_Box& box() const { return boxes_.back(); }
    const gk_Box& leaf(std::size_t position) const { return boxes_[position]; }

    // Calls visit(leaf) for every leaf whose box, and whose every box above, wanted(box) accepts. In no order.
    // A visit that returns true ends it; tells whether one did.
    template <class Wanted, class Visit> bool any(Wanted wanted, Visit visit) const {
        Pending pending;
        if (wanted(box())) pending.push({top(), 0, 0.0});
        while (!pending.empty()) {
            const Node node = pending.pop();
            if (node.level == 0) {
                if (visit(node.position)) return true;
                continue;
            }
            const gk_Box* const below = level(node.level - 1);
            const Range children = childrenOf(node.level, node.position);
            for (std::size_t child = children.begin; child < children.end; ++child) {
                if (wanted(below[child])) pending.push({node.level - 1, child, 0.0});
            }
        }
        return false;
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
            const gk_Box* const below = level(node.level - 1);
            // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): each is set before it is read
            std::array<Node, kFan> nearer;
            std::size_t count = 0;
            const Range children = childrenOf(node.level, node.position);
            for (std::size_t child = children.begin; child < children.end; ++child) {
                const double key = nearness(below[child]);
                if (key > limit()) continue;
                std::size_t place = count++;
                for (; place > 0 && nearer[place - 1].key < key; --place) nearer[place] = nearer[place - 1];
                nearer[place] = {node.level - 1, child, key};
            }
            for (std::size_t i = 0; i < count; ++i) pending.push(nearer[i]);
        }
    }

    // Calls visit(leaf, other) once for every two leaves whose boxes, and whose every boxes above, wanted(box,
    // other) accepts, and visit(leaf, leaf) for every leaf. A visit that returns true ends it; tells whether
    // one did.
    template <class Wanted, class Visit> bool anyPair(Wanted wanted, Visit visit) const {
        return anyPairWithin(top(), 0, wanted, visit);
    }

private:
    struct Node {
        std::size_t level;
        std::size_t position;
        double key;
    };
    struct Range {
        std::size_t begin;
        std::size_t end;
    };

    // Depth first: every level leaves at most kFan boxes behind, and 2^32 leaves have 11 levels.
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): each is set before it is read
    class Pending {
    public:
        bool empty() const { return size_ == 0; }
        void push(const Node& node) { nodes_[size_++] = node; }
        Node pop() { return nodes_[--size_]; }

    private:
        std::array<Node, 12 * kFan> nodes_;
        std::size_t size_ = 0;
    };

    std::size_t top() const { return levelStarts_.size() - 1; }
    const gk_Box* level(std::size_t level) const { return boxes_.data() + levelStarts_[level]; }
    Range childrenOf(std::size_t level, std::size_t position) const {
        const std::size_t begin = position * kFan;
        return {begin, std::min(begin + kFan, levelStarts_[level] - levelStarts_[level - 1])};
    }

    template <class Wanted, class Visit>
    bool anyPairWithin(std::size_t at, std::size_t position, Wanted& wanted, Visit& visit) const {
        if (at == 0) return visit(position, position);
        const gk_Box* const below = level(at - 1);
        const Range children = childrenOf(at, position);
        for (std::size_t i = children.begin; i < children.end; ++i) {
            if (anyPairWithin(at - 1, i, wanted, visit)) return true;
            for (std::size_t j = i + 1; j < children.end; ++j)
                if (wanted(below[i], below[j]) && anyPairOf(at - 1, i, j, wanted, visit)) return true;
        }
        return false;
    }

    template <class Wanted, class Visit>
    bool anyPairOf(std::size_t at, std::size_t one, std::size_t other, Wanted& wanted, Visit& visit) const {
        if (at == 0) return visit(one, other);
        const gk_Box* const below = level(at - 1);
        const Range ones = childrenOf(at, one);
        const Range others = childrenOf(at, other);
        for (std::size_t i = ones.begin; i < ones.end; ++i) {
            if (!wanted(below[i], level(at)[other])) continue;
            for (std::size_t j = others.begin; j < others.end; ++j)
                if (wanted(below[i], below[j]) && anyPairOf(at - 1, i, j, wanted, visit)) return true;
        }
        return false;
    }

    std::vector<gk_Box> boxes_; // the leaves, then level by level up to the one box of all
    std::vector<std::size_t> levelStarts_;
};

#endif
