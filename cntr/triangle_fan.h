// Second moments of the triangles of a fan, two at a time.
#ifndef GK_CNTR_TRIANGLE_FAN_H
#define GK_CNTR_TRIANGLE_FAN_H

#include "cntr/search/magnitude.h"
#include "cntr/triangle_inertia.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace gk_TriangleFan {

// Lengths above this have products of six that are ordinary numbers.
constexpr double kLeast = 1e-40;

// A third, rounded as a division would, for +0 and where no thousandth of it is subnormal.
//
// With c the double nearest to 1/3 the product q is within an ulp of x / 3. Both differences are exact, being
// of numbers within a factor of two, so r is what x lacks of 3 q. Then q + r / 3 is x / 3 exactly, and no third
// is nearer than a sixth of an ulp to the middle of two doubles, while r c is off by less than 2^-52 of an ulp.
inline gk_TwoDoubles third(gk_TwoDoubles x) {
    const gk_TwoDoubles c(1.0 / 3.0);
    const gk_TwoDoubles q = x * c;
    const gk_TwoDoubles r = (x - (q + q)) - q;
    return q + r * c;
}

// One edge of each of two triangles, by three products.
struct Edge {
    gk_TwoDoubles foot;   // (apex - from) . (to - from): where the apex's foot falls, in squared lengths
    gk_TwoDoubles square; // of the edge's length
};

// The corners of a triangle, the first two once more at the end: from any on, base and apex.
struct Corners {
    explicit Corners(gk_TwoDoubles hub) : at{hub, {}, {}, hub, {}} {}
    void set(gk_TwoDoubles previous, gk_TwoDoubles current) {
        at[1] = at[4] = previous;
        at[2] = current;
    }
    std::array<gk_TwoDoubles, 5> at;
};

// Tells bases without roots.
//
// Where the foot falls strictly within an edge, both distances that the definition compares are the distance to
// the line, and the edge is a base. The quotient of two doubles is below 1 exactly when the first is the lesser
// one, and it does not underflow here.
//
// Where it falls outside by e, the distance d to the nearer end and the distance to the line differ by more
// than e^2 / 2d. Computed distances are off by the slack of magnitude.h, and so is e. Let s be the definition's
// 1e-10 and three slacks. From the computed e > 2 slacks, the true one is at least e / 2; if then e^2 > 8 s (1
// + d^2), the difference is more than s, as 2 d <= 1 + d^2, and the edge is no base. That e exceeds two slacks
// follows from it.
class BaseTest {
public:
    explicit BaseTest(double reach) : slack_(gk_DistanceSlack(reach)), factor_(8.25 * (1e-10 + 3.0 * slack_)) {}

    // False where coordinates are so large that nothing is certain, or infinite.
    bool isUsable() const { return slack_ < 0.1; }

    static gk_TwoBools isBase(const Edge& edge) {
        return (edge.foot > gk_TwoDoubles(kLeast * kLeast)) & (edge.foot < edge.square);
    }
    // With the squares of the distances of the apex from both ends.
    gk_TwoBools isNone(const Edge& edge, gk_TwoDoubles fromSquare, gk_TwoDoubles toSquare) const {
        const gk_TwoDoubles outside = (-edge.foot).orGreater(edge.foot - edge.square); // e times the length
        const gk_TwoDoubles endSquare = fromSquare.orLess(toSquare);
        const gk_TwoDoubles factor(factor_);
        return (edge.square > gk_TwoDoubles(kLeast * kLeast)) & (outside > gk_TwoDoubles()) &
               (outside * outside > edge.square * (factor + factor * endSquare));
    }

private:
    double slack_;
    double factor_;
};

// What two triangles measure along their bases.
struct Measured {
    gk_TwoVectors foot; // of the apex
    gk_TwoVectors unit; // the base's direction
    gk_TwoDoubles left; // distances of the foot from both ends of the base and from the apex
    gk_TwoDoubles right;
    gk_TwoDoubles height;
    gk_TwoBools turnsLeft;
};

inline Measured measured(const gk_TwoVectors& from, const gk_TwoVectors& to, const gk_TwoVectors& apex) {
    const gk_TwoVectors along = to - from;
    const gk_TwoVectors across = apex - from;
    const gk_TwoDoubles square = along.dot(along);
    const gk_TwoDoubles length = square.root();
    const gk_TwoVectors foot = from + along * (across.dot(along) / square);
    const gk_TwoVectors toFrom = from - foot;
    const gk_TwoVectors toTo = to - foot;
    const gk_TwoVectors toApex = apex - foot;
    return {foot,
            {along.x / length, along.y / length},
            toFrom.dot(toFrom).root(),
            toTo.dot(toTo).root(),
            toApex.dot(toApex).root(),
            along.cross(across) >= gk_TwoDoubles()};
}

// False for a height or base so small that a third could round otherwise.
inline bool isLargeEnough(const Measured& m) {
    const gk_TwoDoubles least(kLeast);
    return ((m.height > least) & (m.left + m.right > least)).all();
}

// The records of two triangles, by the steps of triangle_inertia.cpp.
inline void setRecords(const Measured& m, gk_InertiaPiece& first, gk_InertiaPiece& second) {
    const gk_TwoDoubles quarter(0.25);
    const gk_TwoDoubles width = m.left + m.right;
    const gk_TwoDoubles right2 = m.right * m.right;
    const gk_TwoDoubles left2 = m.left * m.left;
    const gk_TwoDoubles height2 = m.height * m.height;
    gk_TwoDoubles area = width * m.height * gk_TwoDoubles(0.5);
    const gk_TwoDoubles centerX = third(m.right - m.left);
    gk_TwoDoubles centerY = third(m.height);
    const gk_TwoDoubles yy = third(width * (height2 * m.height)) * quarter - area * (centerY * centerY);
    const gk_TwoDoubles xx =
        third((right2 * m.right + left2 * m.left) * m.height) * quarter - area * (centerX * centerX);
    gk_TwoDoubles xy = third((right2 - left2) * height2) * gk_TwoDoubles(0.125) - area * centerX * centerY;
    area = area.negatedUnless(m.turnsLeft);
    centerY = centerY.negatedUnless(m.turnsLeft);
    xy = xy.negatedUnless(m.turnsLeft);

    const gk_TwoDoubles co = m.unit.x;
    const gk_TwoDoubles si = m.unit.y;
    const gk_TwoDoubles coco = co * co;
    const gk_TwoDoubles sisi = si * si;
    const gk_TwoDoubles twist = (xy + xy) * si * co;
    const gk_TwoDoubles placedXx = xx * coco - twist + yy * sisi;
    const gk_TwoDoubles placedYy = xx * sisi + twist + yy * coco;
    const gk_TwoDoubles placedXy = xx * si * co + xy * (coco - sisi) - yy * si * co;
    const gk_TwoVectors center = {m.foot.x + (co * centerX - si * centerY),
                                  m.foot.y + (si * centerX + co * centerY)};
    first = {area.first(), placedXy.first(), gk_TwoDoubles::firsts(center.x, center.y),
             gk_TwoDoubles::firsts(placedXx, placedYy)};
    second = {area.second(), placedXy.second(), gk_TwoDoubles::seconds(center.x, center.y),
              gk_TwoDoubles::seconds(placedXx, placedYy)};
}

// Finds the bases of two neighbouring triangles of the fan: how many corners after the hub each begins. False
// when the plain way has to be taken.
inline bool findBases(const BaseTest& test, const gk_TwoVectors& hub, const gk_TwoVectors& previous,
                      const gk_TwoVectors& current, std::size_t& first, std::size_t& second) {
    const gk_TwoVectors toPrevious = previous - hub;
    const gk_TwoVectors toCurrent = current - hub;
    const gk_TwoVectors step = current - previous;
    const gk_TwoDoubles previous2 = toPrevious.dot(toPrevious);
    const gk_TwoDoubles current2 = toCurrent.dot(toCurrent);
    const gk_TwoDoubles step2 = step.dot(step);
    // A product of two negated vectors is that of the vectors, bit for bit.
    const Edge out = {toCurrent.dot(toPrevious), previous2};
    const Edge side = {-toPrevious.dot(step), step2};
    const Edge back = {step.dot(toCurrent), current2};
    const gk_TwoBools isOut = BaseTest::isBase(out);
    const gk_TwoBools isNotOut = test.isNone(out, current2, step2);
    const gk_TwoBools isSide = isNotOut & BaseTest::isBase(side);
    const gk_TwoBools isBack = isNotOut & test.isNone(side, previous2, current2) & BaseTest::isBase(back);
    if (!(isOut | isSide | isBack).all()) return false;
    const unsigned sides = isSide.bits();
    const unsigned backs = isBack.bits();
    first = (sides & 1u) + 2u * (backs & 1u);
    second = (sides >> 1) + (backs & 2u);
    return true;
}

// Greatest |coordinate|; a NaN is passed over.
inline double reachOf(const gkVector<2>& hub, const std::vector<gkVector<2>>& points) {
    gk_TwoDoubles reach = gk_TwoOf(hub).magnitude();
    for (const gkVector<2>& p : points) reach = gk_TwoOf(p).magnitude().orGreater(reach);
    return std::max(reach.first(), reach.second());
}

// Some pairs of neighbouring triangles. All bases are found first, and a pair is measured while the records of
// the one before are made: a pair's roots and divisions take longer than a processor looks ahead, so there has
// to be something else to do beside them (25 against 17 ns a triangle).
class Block {
public:
    static constexpr std::size_t kPairs = 16;

    Block(const gkVector<2>& hub, double reach)
        : hub_(hub), test_(reach), a_(gk_TwoOf(hub)), b_(gk_TwoOf(hub)) {}

    // The triangles over the edges to `points`, the first of them from `previous`.
    void fill(const gkVector<2>* previous, const gkVector<2>* points, std::size_t pairs) {
        const gk_TwoVectors hubs = gk_TwoVectors::of(gk_TwoOf(hub_), gk_TwoOf(hub_));
        for (std::size_t i = 0; i < pairs; ++i) {
            Pair& pair = pairs_[i];
            const gk_TwoDoubles middle = gk_TwoOf(points[2 * i]);
            a_.set(gk_TwoOf(i == 0 ? *previous : points[2 * i - 1]), middle);
            b_.set(middle, gk_TwoOf(points[2 * i + 1]));
            std::size_t j = 0;
            std::size_t k = 0;
            pair.isFound = test_.isUsable() && findBases(test_, hubs, gk_TwoVectors::of(a_.at[1], b_.at[1]),
                                                         gk_TwoVectors::of(a_.at[2], b_.at[2]), j, k);
            pair.from = gk_TwoVectors::of(a_.at[j], b_.at[k]);
            pair.to = gk_TwoVectors::of(a_.at[j + 1], b_.at[k + 1]);
            pair.apex = gk_TwoVectors::of(a_.at[j + 2], b_.at[k + 2]);
        }
        Measured next = measured(pairs_[0].from, pairs_[0].to, pairs_[0].apex);
        for (std::size_t i = 0; i < pairs; ++i) {
            const Measured known = next;
            const Pair& after = pairs_[i + 1];
            next = measured(after.from, after.to, after.apex);
            gk_InertiaPiece& first = records_[2 * i];
            gk_InertiaPiece& second = records_[2 * i + 1];
            if (pairs_[i].isFound && isLargeEnough(known)) {
                setRecords(known, first, second);
            } else {
                const gkVector<2>& middle = points[2 * i];
                first = gk_TriangleInertia(hub_, i == 0 ? *previous : points[2 * i - 1], middle);
                second = gk_TriangleInertia(hub_, middle, points[2 * i + 1]);
            }
        }
    }
    const std::array<gk_InertiaPiece, 2 * kPairs>& records() const { return records_; }

private:
    struct Pair {
        gk_TwoVectors from;
        gk_TwoVectors to;
        gk_TwoVectors apex;
        bool isFound = false;
    };

    gkVector<2> hub_;
    BaseTest test_;
    Corners a_;
    Corners b_;
    std::array<Pair, kPairs + 1> pairs_;
    std::array<gk_InertiaPiece, 2 * kPairs> records_;
};

// Calls take(record) for the triangle (hub, previous, current) of every edge, the closing one first: each as
// gk_TriangleInertia gives it.
template <class Take> void forEach(const gkVector<2>& hub, const std::vector<gkVector<2>>& points, Take take) {
    Block block(hub, reachOf(hub, points));
    const gkVector<2>* previous = &points.back();
    std::size_t begin = 0;
    while (begin + 1 < points.size()) {
        const std::size_t pairs = std::min(Block::kPairs, (points.size() - begin) / 2);
        block.fill(previous, &points[begin], pairs);
        for (std::size_t i = 0; i < 2 * pairs; ++i) take(block.records()[i]);
        begin += 2 * pairs;
        previous = &points[begin - 1];
    }
    if (begin < points.size()) take(gk_TriangleInertia(hub, *previous, points[begin]));
}

} // namespace gk_TriangleFan

#endif
