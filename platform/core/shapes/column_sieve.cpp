#include "platform/core/shapes/column_sieve.h"

namespace {

// Appends `p` to a chain from left to right whose turns all have the given sign.
void extend(std::vector<gkVector<2>>& chain, const gkVector<2>& p, int sign) {
    while (chain.size() >= 2 && sign * gk_Orientation(chain[chain.size() - 2], chain.back(), p) <= 0)
        chain.pop_back();
    chain.push_back(p);
}

} // namespace

gk_ColumnSieve::gk_ColumnSieve(double left, double right, std::size_t columns)
    : left_(left), scale_(static_cast<double>(columns) / (right - left)), last_(columns - 1), ends_(columns),
      chords_(columns) {}

void gk_ColumnSieve::spanChords() {
    std::vector<gkVector<2>> lower;
    std::vector<gkVector<2>> upper;
    for (const Ends& column : ends_) {
        if (column.lowest.y() > column.highest.y()) continue; // no point came here
        extend(lower, column.lowest, 1);
        extend(upper, column.highest, -1);
    }
    spanAcross(lower, &Chords::lower, [](double a, double b) { return std::max(a, b); });
    spanAcross(upper, &Chords::upper, [](double a, double b) { return std::min(a, b); });
}

// A column between those of two neighbours in the chain lies under or over their chord; the column of a vertex
// of the chain takes the chord that leaves this vertex out.
template <class Limit>
void gk_ColumnSieve::spanAcross(const std::vector<gkVector<2>>& chain, Chord Chords::*side, Limit limit) {
    const auto chord = [&](std::size_t from, std::size_t to) {
        return Chord{chain[from], chain[to], limit(chain[from].y(), chain[to].y())};
    };
    for (std::size_t i = 1; i < chain.size(); ++i) {
        const std::size_t next = columnOf(chain[i].x());
        for (std::size_t column = columnOf(chain[i - 1].x()) + 1; column < next; ++column)
            chords_[column].*side = chord(i - 1, i);
        if (i + 1 < chain.size()) chords_[next].*side = chord(i - 1, i + 1);
    }
}
