#include "platform/core/fit/scatter.h"

#include "platform/core/math/two_doubles.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace {

constexpr double kLeastShare = 0x1p-20; // of a column's square: a thousandth of its length

// Sums of x^i y^j, for the even and the odd points by themselves.
struct Powers {
    gk_TwoDoubles x, y;
    gk_TwoDoubles xx, xy, yy;
    gk_TwoDoubles xxx, xxy, xyy, yyy;
    gk_TwoDoubles xxxx, xxxy, xxyy, xyyy, yyyy;

    void add(const gk_TwoVectors& p) {
        const gk_TwoDoubles a = p.x * p.x;
        const gk_TwoDoubles b = p.x * p.y;
        const gk_TwoDoubles c = p.y * p.y;
        x = x + p.x;
        y = y + p.y;
        xx = xx + a;
        xy = xy + b;
        yy = yy + c;
        xxx = xxx + a * p.x;
        xxy = xxy + a * p.y;
        xyy = xyy + c * p.x;
        yyy = yyy + c * p.y;
        xxxx = xxxx + a * a;
        xxxy = xxxy + a * b;
        xxyy = xxyy + b * b;
        xyyy = xyyy + b * c;
        yyyy = yyyy + c * c;
    }
    void add(const Powers& o) {
        const auto join = [](gk_TwoDoubles& sum, gk_TwoDoubles more) { sum = sum + more; };
        join(x, o.x), join(y, o.y);
        join(xx, o.xx), join(xy, o.xy), join(yy, o.yy);
        join(xxx, o.xxx), join(xxy, o.xxy), join(xyy, o.xyy), join(yyy, o.yyy);
        join(xxxx, o.xxxx), join(xxxy, o.xxxy), join(xxyy, o.xxyy), join(xyyy, o.xyyy), join(yyyy, o.yyyy);
    }
};

// Block by block: rounding errors then grow with the number of blocks rather than of points.
Powers powersOf(const gk_FitFrame& frame, const std::vector<gkVector<2>>& points) {
    constexpr std::size_t kBlock = 256;
    Powers all;
    const gkVector<2>* const end = points.data() + points.size() / 2 * 2;
    for (const gkVector<2>* begin = points.data(); begin < end;) {
        const gkVector<2>* const next = begin + std::min(kBlock, static_cast<std::size_t>(end - begin));
        Powers some;
        frame.forTwo(begin, next, [&](const gk_TwoVectors& p) { some.add(p); });
        all.add(some);
        begin = next;
    }
    frame.forTwo(end, points.data() + points.size(), [&](const gk_TwoVectors& p) {
        Powers one;
        one.add(gk_TwoVectors{gk_TwoDoubles(p.x.first(), 0.0), gk_TwoDoubles(p.y.first(), 0.0)});
        all.add(one);
    });
    return all;
}

} // namespace

gk_DesignFactor gk_FactorOfSums(const gk_FitFrame& frame, const std::vector<gkVector<2>>& points) {
    const Powers p = powersOf(frame, points);
    const auto both = [](gk_TwoDoubles sum) { return sum.first() + sum.second(); };
    const double n = static_cast<double>(points.size());
    const double x = both(p.x), y = both(p.y);
    const double xx = both(p.xx), xy = both(p.xy), yy = both(p.yy);
    const double xxx = both(p.xxx), xxy = both(p.xxy), xyy = both(p.xyy), yyy = both(p.yyy);
    const double xxxx = both(p.xxxx), xxxy = both(p.xxxy), xxyy = both(p.xxyy), xyyy = both(p.xyyy),
                 yyyy = both(p.yyyy);
    const double products[6][6] = {
        {xx, xy, x, xxx, xxy, xyy},       {xy, yy, y, xxy, xyy, yyy},       {x, y, n, xx, xy, yy},
        {xxx, xxy, xx, xxxx, xxxy, xxyy}, {xxy, xyy, xy, xxxy, xxyy, xyyy}, {xyy, yyy, yy, xxyy, xyyy, yyyy}};
    // Cholesky's factor, row by row.
    gk_DesignFactor r;
    for (std::size_t k = 0; k < 6; ++k) {
        for (std::size_t column = k; column < 6; ++column) {
            double rest = products[k][column];
            for (std::size_t row = 0; row < k; ++row) rest -= r.rows[row][k] * r.rows[row][column];
            if (column == k && !(rest > kLeastShare * products[k][k])) return r;
            r.rows[k][column] = column == k ? std::sqrt(rest) : rest / r.rows[k][k];
        }
    }
    r.isSound = true;
    return r;
}
