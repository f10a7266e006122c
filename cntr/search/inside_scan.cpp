#include "cntr/search/inside_scan.h"

#include "cntr/extremes.h"
#include "cntr/search/inside_parity.h"
#include "platform/core/math/two_doubles.h"
#include "platform/core/shapes/line_ops.h"

namespace {

// Follows an outline past a point: counts the passages of the level ray from it to the right, as long as
// segments and vertices keep their distances.
class Passage {
public:
    Passage(const gk_InsideMargins& margins, const gkVector<2>& point)
        : margins_(margins), point_(point), left_(point.x() - margins.vertex),
          right_(point.x() + margins.vertex), below_(point.y() - margins.vertex),
          above_(point.y() + margins.vertex) {}

    gk_Inside inside() const {
        if (isTooNear_) return gk_Inside::eUnknown;
        return odd_ ? gk_Inside::eInside : gk_Inside::eOutside;
    }

    // Passes a chain from `from` to `to` whose vertices, but for `from`, have these least and greatest
    // coordinates, when it is all on one side of the point: of one on the right the parity depends on its ends
    // alone.
    bool passesAside(const gkVector<2>& from, const gk_TwoDoubles& least, const gk_TwoDoubles& greatest,
                     const gkVector<2>& to) {
        if ((from.y() < below_ && greatest.second() < below_) || (from.y() > above_ && least.second() > above_))
            return true;
        if (from.x() < left_ && greatest.first() < left_) return true;
        if (!(from.x() > right_ && least.first() > right_)) return false;
        odd_ = odd_ != gk_InsideParity::spansHeight(from, to, point_);
        return true;
    }

    void pass(const gkVector<2>& from, const gkVector<2>& to) {
        if ((from.y() < below_ && to.y() < below_) || (from.y() > above_ && to.y() > above_)) return;
        if (from.x() < left_ && to.x() < left_) return;
        if (from.x() > right_ && to.x() > right_) {
            odd_ = odd_ != gk_InsideParity::spansHeight(from, to, point_);
            return;
        }
        if (isNear(from, to))
            isTooNear_ = true;
        else if (gk_InsideParity::crossesRayRight(from, to, point_))
            odd_ = !odd_;
    }

private:
    bool isNear(const gkVector<2>& from, const gkVector<2>& to) const {
        if (!gk_IsModerate(from) || !gk_IsModerate(to) || margins_.isVertexNear(to, point_)) return true;
        return gk_Box::of(from, to).grownBy(margins_.segment).holds(point_) &&
               gk_LineOps::distToPoint(gkLineSeg(from, to), point_) <= margins_.segment;
    }

    gk_InsideMargins margins_;
    gkVector<2> point_;
    double left_;
    double right_;
    double below_;
    double above_;
    bool isTooNear_ = false;
    bool odd_ = false;
};

// A longer ray needs more room at each vertex than a scan leaves.
constexpr double kLongestRay = 2e6;

// Of the box of some vertices, one of them given: bounds on twice the distance of the farthest from that one.
gk_Inside certified(gk_Inside inside, const gk_Segments& outline, const gk_InsideMargins& margins,
                    const gk_Box& box, const gkVector<2>& point) {
    const gkVector<2>& first = outline.vertex(0);
    const double farthest = std::max(std::max(first.x() - box.x0, box.x1 - first.x()),
                                     std::max(first.y() - box.y0, box.y1 - first.y()));
    const double extent = (box.x1 - box.x0) + (box.y1 - box.y0);
    const gk_InsideCertificate certificate(outline.vertexCount(), first, 2.0 * farthest, 2.0 * extent, box);
    const bool isEnough = certificate.margins().segment <= margins.segment;
    return isEnough && certificate.allowsRaysFrom(point) ? inside : gk_Inside::eUnknown;
}

} // namespace

// A NaN is passed over by comparisons: the sum of all coordinates finds it.
gk_InsideScan gk_ScanInside(const gk_Segments& outline, const gkVector<2>& point) {
    constexpr std::size_t kAtOnce = 4;
    const gk_InsideMargins margins(outline.vertexCount(), kLongestRay, gk_InsideCertificate::kMostSlack);
    Passage passage(margins, point);
    const gkVector<2>* before = &outline.first(0);
    gk_TwoDoubles sum;
    gk_TwoDoubles low = gk_TwoOf(outline.vertex(0));
    gk_TwoDoubles high = low;
    std::size_t k = 0;
    for (; k + kAtOnce <= outline.size(); k += kAtOnce) {
        const gkVector<2>* const next = &outline.vertex(k);
        const gk_TwoDoubles a = gk_TwoOf(next[0]);
        const gk_TwoDoubles b = gk_TwoOf(next[1]);
        const gk_TwoDoubles c = gk_TwoOf(next[2]);
        const gk_TwoDoubles d = gk_TwoOf(next[3]);
        sum = sum + ((a + b) + (c + d));
        const gk_TwoDoubles least = a.orLess(b).orLess(c.orLess(d));
        const gk_TwoDoubles greatest = a.orGreater(b).orGreater(c.orGreater(d));
        low = least.orLess(low);
        high = greatest.orGreater(high);
        if (!passage.passesAside(*before, least, greatest, next[kAtOnce - 1])) {
            passage.pass(*before, next[0]);
            for (std::size_t i = 1; i < kAtOnce; ++i) passage.pass(next[i - 1], next[i]);
        }
        before = next + (kAtOnce - 1);
    }
    for (; k < outline.size(); ++k) {
        const gkVector<2>& to = outline.vertex(k);
        sum = sum + gk_TwoOf(to);
        low = gk_TwoOf(to).orLess(low);
        high = gk_TwoOf(to).orGreater(high);
        passage.pass(*before, to);
        before = &to;
    }
    if (std::isnan(sum.first()) || std::isnan(sum.second()) || !gk_IsModerate(gk_VectorOf(low)) ||
        !gk_IsModerate(gk_VectorOf(high)))
        return {};
    const auto at = [&](std::size_t i) { return gk_TwoOf(outline.vertex(i)); };
    const gkVector<2> corner = gk_WithSignOfFirst(gk_VectorOf(low), outline.vertexCount(), at);
    const gkVector<2> opposite = gk_WithSignOfFirst(gk_VectorOf(high), outline.vertexCount(), at);
    const gk_Box box = {corner.x(), corner.y(), opposite.x(), opposite.y()};
    return {box, certified(passage.inside(), outline, margins, box, point)};
}
