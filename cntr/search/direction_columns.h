// Which directions vertices lie in, column by column: wide gaps between directions show without an order of
// all.
#ifndef GK_CNTR_SEARCH_DIRECTION_COLUMNS_H
#define GK_CNTR_SEARCH_DIRECTION_COLUMNS_H

#include "cntr/search/turn.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

// Of turns (gk_QuarterTurns) in [begin, end). An angle is at most twice the difference of its turns, so a gap
// wider than `step` radians is longer than 20 columns of a 40th of a step, and even where roundings shift both
// its ends 18 whole columns within it stay empty. Of 15 in a row 8 share a byte: a byte without a direction is
// all that needs to be looked for.
class gk_DirectionColumns {
public:
    gk_DirectionColumns(double begin, double end, double step)
        : begin_(begin), width_(step / 40.0), perWidth_(1.0 / width_),
          count_(static_cast<std::size_t>((end - begin) * perWidth_) + 1), bytes_(count_ / 8 + 1, 0) {}

    void add(double turn) {
        const double place = (turn - begin_) * perWidth_;
        if (!(place >= 0.0 && place < static_cast<double>(count_))) return;
        const auto column = static_cast<std::size_t>(place);
        bytes_[column / 8] = static_cast<std::uint8_t>(bytes_[column / 8] | 1u << column % 8);
    }

    // Some consecutive columns, as turns.
    struct Range {
        double begin;
        double end;
    };

    bool isEmpty() const { return std::all_of(bytes_.begin(), bytes_.end(), isNone); }
    // The last column that holds a direction; there must be one.
    Range last() const {
        const auto used = std::find_if_not(bytes_.rbegin(), bytes_.rend(), isNone);
        const std::size_t column = lastOf(static_cast<std::size_t>(bytes_.rend() - used) - 1);
        return {turnOf(column), turnOf(column + 1)};
    }

    // Calls visit(range) in order for what may be a wide gap: from the column of the direction before it to
    // that of the direction behind it. A visit that returns true ends it; tells whether one did.
    template <class Visit> bool anyGap(Visit visit) const {
        auto used = std::find_if_not(bytes_.begin(), bytes_.end(), isNone);
        for (;;) {
            const auto none = std::find(used, bytes_.end(), std::uint8_t{0});
            used = std::find_if_not(none, bytes_.end(), isNone);
            if (used == bytes_.end()) return false;
            const Range gap{turnOf(lastOf(placeOf(none) - 1)), turnOf(firstOf(placeOf(used)) + 1)};
            if (visit(gap)) return true;
        }
    }

private:
    using Bytes = std::vector<std::uint8_t>;

    static bool isNone(std::uint8_t byte) { return byte == 0; }
    std::size_t placeOf(Bytes::const_iterator byte) const {
        return static_cast<std::size_t>(byte - bytes_.begin());
    }
    bool holds(std::size_t column) const { return (bytes_[column / 8] >> column % 8 & 1) != 0; }
    // The first and the last used column of a used byte.
    std::size_t firstOf(std::size_t byte) const {
        std::size_t column = 8 * byte;
        while (!holds(column)) ++column;
        return column;
    }
    std::size_t lastOf(std::size_t byte) const {
        std::size_t column = 8 * byte + 7;
        while (!holds(column)) --column;
        return column;
    }
    double turnOf(std::size_t column) const { return begin_ + static_cast<double>(column) * width_; }

    double begin_;
    double width_;
    double perWidth_;
    std::size_t count_;
    Bytes bytes_;
};

#endif
