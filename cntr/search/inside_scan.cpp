#include "cntr/search/inside_scan.h"

#include "cntr/search/inside_parity.h"
#include "platform/core/shapes/line_ops.h"

// Segments well above or below the point neither cross the level ray nor come near. All vertices lie in the
// finite circle that the certificate knows, so only a NaN can be beyond the bounds, and it would pass for far
// away: the sum finds it.
gk_Inside gk_ScanInside(const gk_Segments& outline, const gk_InsideCertificate& certificate,
                        const gkVector<2>& point) {
    const double margin = certificate.segmentDistance();
    const double below = point.y() - certificate.vertexDistance();
    const double above = point.y() + certificate.vertexDistance();
    bool odd = false;
    double sum = 0.0;
    const gkVector<2>* a = &outline.first(0);
    for (std::size_t k = 0; k < outline.size(); ++k) {
        const gkVector<2>& from = *a;
        const gkVector<2>& to = outline.second(k);
        a = &to;
        sum += to.x();
        if ((from.y() < below && to.y() < below) || (from.y() > above && to.y() > above)) continue;
        if (!gk_IsModerate(to) || certificate.isVertexNear(to, point)) return gk_Inside::eUnknown;
        if (gk_Box::of(from, to).grownBy(margin).holds(point) &&
            gk_LineOps::distToPoint(gkLineSeg(from, to), point) <= margin) {
            return gk_Inside::eUnknown;
        }
        if (gk_InsideParity::crossesRayRight(from, to, point)) odd = !odd;
    }
    if (std::isnan(sum)) return gk_Inside::eUnknown;
    return odd ? gk_Inside::eInside : gk_Inside::eOutside;
}
