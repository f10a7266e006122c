#include "cntr/search/inside_scan.h"

#include "cntr/search/inside_parity.h"
#include "platform/core/math/two_doubles.h"
#include "platform/core/shapes/line_ops.h"

namespace {

constexpr std::size_t kAtOnce = 4; // vertices that are looked at together

// Where vertices stand to the level band around a point: far below, far above, or neither.
class Band {
public:
    Band(const gkVector<2>& point, double halfHeight)
        : below_(point.y() - halfHeight), above_(point.y() + halfHeight) {}

    bool isBelow(const gkVector<2>& vertex) const { return vertex.y() < below_; }
    bool isAbove(const gkVector<2>& vertex) const { return vertex.y() > above_; }
    // All on the side of `before`. Where the numbers compared are NaN they may pass for that.
    bool areAside(const gkVector<2>& before, const gk_TwoDoubles& least, const gk_TwoDoubles& greatest) const {
        return (isBelow(before) && greatest.second() < below_) || (isAbove(before) && least.second() > above_);
    }

private:
    double below_;
    double above_;
};

// The passage of the level ray from the point to the right.
class Passage {
public:
    Passage(const gk_InsideCertificate& certificate, const gkVector<2>& point)
        : certificate_(certificate), point_(point), band_(point, certificate.vertexDistance()) {}

    const Band& band() const { return band_; }
    bool odd() const { return odd_; }

    // False where the certificate does not hold.
    bool passes(const gkVector<2>& from, const gkVector<2>& to) {
        if ((band_.isBelow(from) && band_.isBelow(to)) || (band_.isAbove(from) && band_.isAbove(to)))
            return true;
        if (!gk_IsModerate(to) || certificate_.isVertexNear(to, point_)) return false;
        const double margin = certificate_.segmentDistance();
        if (gk_Box::of(from, to).grownBy(margin).holds(point_) &&
            gk_LineOps::distToPoint(gkLineSeg(from, to), point_) <= margin)
            return false;
        if (gk_InsideParity::crossesRayRight(from, to, point_)) odd_ = !odd_;
        return true;
    }

private:
    const gk_InsideCertificate& certificate_;
    gkVector<2> point_;
    Band band_;
    bool odd_ = false;
};

} // namespace

// Segments well above or below the point neither cross the level ray nor come near. All vertices lie in the
// finite circle that the certificate knows, so only a NaN can be beyond the bounds, and it would pass for far
// away: the sum finds it.
gk_Inside gk_ScanInside(const gk_Segments& outline, const gk_InsideCertificate& certificate,
                        const gkVector<2>& point) {
    Passage passage(certificate, point);
    gk_TwoDoubles sum;
    const gkVector<2>* before = &outline.first(0);
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
        if (!passage.band().areAside(*before, least, greatest)) {
            for (std::size_t i = 0; i < kAtOnce; ++i) {
                if (!passage.passes(i == 0 ? *before : next[i - 1], next[i])) return gk_Inside::eUnknown;
            }
        }
        before = next + (kAtOnce - 1);
    }
    for (; k < outline.size(); ++k) {
        const gkVector<2>& to = outline.vertex(k);
        sum = sum + gk_TwoOf(to);
        if (!passage.passes(*before, to)) return gk_Inside::eUnknown;
        before = &to;
    }
    if (std::isnan(sum.first()) || std::isnan(sum.second())) return gk_Inside::eUnknown;
    return passage.odd() ? gk_Inside::eInside : gk_Inside::eOutside;
}
