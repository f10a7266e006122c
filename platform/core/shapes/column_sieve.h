// Drops points that lie inside a convex hull, by columns.
#ifndef GK_PLATFORM_CORE_SHAPES_COLUMN_SIEVE_H
#define GK_PLATFORM_CORE_SHAPES_COLUMN_SIEVE_H

#include "platform/core/math/vector.h"
#include "platform/core/shapes/orientation.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <vector>

// The lowest and the highest point of every column make a hull inside that of all points. Across each column
// lie a chord of its lower chain and one of its upper chain, whose ends are in other columns, on both sides. A
// point of the column that is certainly above the one and below the other has a point of the hull straight
// below and one straight above it: it is no vertex of the hull.
//
// The column grows with x (rounding is monotone), so an end in another column has another x, on the right
// side. The turns are certain or count as not known. Thus whatever is dropped is dropped rightly, and its
// equals with it. The first and the last column have no chords and keep all their points.
//
// The idea of extremes by strips is that of Bentley, Faust and Preparata (1982).
class gk_ColumnSieve {
public:
    // For points of finite coordinates with x from `left` to `right`.
    gk_ColumnSieve(double left, double right, std::size_t columns);

    // False when the columns have no width that a double can hold; nothing else may be called then.
    bool isUsable() const { return scale_ > 0.0 && scale_ <= std::numeric_limits<double>::max(); }

    void add(const gkVector<2>& p) {
        Ends& column = ends_[columnOf(p.x())];
        if (p.y() < column.lowest.y()) column.lowest = p;
        if (p.y() > column.highest.y()) column.highest = p;
    }
    // To be called once, when all points have been added.
    void spanChords();
    // True when the point certainly is no vertex of the hull.
    bool drops(const gkVector<2>& p) const {
        const Chords& chords = chords_[columnOf(p.x())];
        return isBeyond(chords.lower, p, p.y() > chords.lower.limit, 1) &&
               isBeyond(chords.upper, p, p.y() < chords.upper.limit, -1);
    }

private:
    struct Ends {
        gkVector<2> lowest{0.0, std::numeric_limits<double>::infinity()};
        gkVector<2> highest{0.0, -std::numeric_limits<double>::infinity()};
    };
    // From left to right; all above the higher end of a lower chord is above it, and so below an upper one. The
    // default has nothing beyond its limit and equal ends, about which nothing turns.
    struct Chord {
        gkVector<2> from;
        gkVector<2> to;
        double limit = std::numeric_limits<double>::quiet_NaN();
    };
    struct Chords {
        Chord lower;
        Chord upper;
    };

    static bool isBeyond(const Chord& chord, const gkVector<2>& p, bool isBeyondLimit, int side) {
        return isBeyondLimit || gk_OrientationSteps::filtered(chord.from, chord.to, p) == side;
    }
    std::size_t columnOf(double x) const {
        return std::min(static_cast<std::size_t>((x - left_) * scale_), last_);
    }
    template <class Limit>
    void spanAcross(const std::vector<gkVector<2>>& chain, Chord Chords::*side, Limit limit);

    double left_;
    double scale_;
    std::size_t last_;
    std::vector<Ends> ends_;
    std::vector<Chords> chords_;
};

#endif
