// The inline body of a transform's image of a point, for the library's own loops.
//
// Not for users: their compiler could contract the two roundings into one. The exported member calls this.
#ifndef GK_PLATFORM_CORE_MATH_XFORM_OPS_H
#define GK_PLATFORM_CORE_MATH_XFORM_OPS_H

#include "platform/core/math/two_doubles.h"
#include "platform/core/math/xform.h"

// A transform taken apart once, to be applied to many points.
class gk_XformOps {
public:
    explicit gk_XformOps(const gkXform<2>& xform)
        : e00_(xform.matrix().element(0, 0)), e01_(xform.matrix().element(0, 1)),
          e10_(xform.matrix().element(1, 0)), e11_(xform.matrix().element(1, 1)),
          translation_(xform.translation()) {}

    gkVector<2> image(const gkVector<2>& p) const {
        return gkVector<2>(e00_ * p.x() + e01_ * p.y(), e10_ * p.x() + e11_ * p.y()) + translation_;
    }
    // The same of a point's two coordinates.
    gk_TwoDoubles image(gk_TwoDoubles p) const {
        return gk_TwoDoubles(e00_, e10_) * gk_TwoDoubles(p.first()) +
               gk_TwoDoubles(e01_, e11_) * gk_TwoDoubles(p.second()) + gk_TwoOf(translation_);
    }

private:
    double e00_;
    double e01_;
    double e10_;
    double e11_;
    gkVector<2> translation_;
};

#endif
