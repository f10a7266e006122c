// The loops of a repair as rings of vertex numbers, which are cut apart and joined without moving a vertex.
#ifndef GK_CNTR_LOOP_RINGS_H
#define GK_CNTR_LOOP_RINGS_H

#include <cstddef>
#include <cstdint>
#include <vector>

// Numbers in rings, each with a next and a previous one.
class gk_LoopRings {
public:
    using Index = std::uint32_t;
    static constexpr Index kNone = UINT32_MAX;

    explicit gk_LoopRings(std::size_t count) : next_(count, kNone), previous_(count, kNone) {}

    Index next(Index i) const { return next_[i]; }
    // Makes `second` follow `first`.
    void follow(Index first, Index second) {
        next_[first] = second;
        previous_[second] = first;
    }
    // Makes the numbers a ring in their order.
    void close(const std::vector<Index>& numbers) {
        for (std::size_t i = 0; i < numbers.size(); ++i)
            follow(numbers[i], numbers[i + 1 < numbers.size() ? i + 1 : 0]);
    }
    // Exchanges what comes before the two. Of one ring it makes two: from one to before the other, and from the
    // other on. Of two rings it makes one: all from one on, then all from the other on.
    void exchange(Index one, Index other) {
        const Index beforeOne = previous_[one];
        follow(previous_[other], one);
        follow(beforeOne, other);
    }

    // Calls visit(i) for the numbers of a ring from one on; a visit that returns true ends it. Tells whether
    // one did.
    template <class Visit> bool any(Index from, Visit visit) const {
        Index i = from;
        do {
            if (visit(i)) return true;
            i = next_[i];
        } while (i != from);
        return false;
    }

private:
    std::vector<Index> next_;
    std::vector<Index> previous_;
};

#endif
