#include "platform/core/shapes/line.h"

#include "platform/core/shapes/line_ops.h"

double gkLine::distToPoint(const gkVector<2>& p) const { return gk_LineOps::distToPoint(*this, p); }

gkVector<2> gkLine::proj(const gkVector<2>& p) const { return gk_LineOps::proj(*this, p); }

bool gkLine::isParallel(const gkLine& other) const { return gk_LineOps::isParallel(*this, other); }

gkVector<2> gkLine::intersect(const gkLine& other) const { return gk_LineOps::intersect(*this, other); }

double gkLineSeg::length() const { return gk_VectorOps::distance(p1_, p2_); }

double gkLineSeg::distToPoint(const gkVector<2>& p) const { return gk_LineOps::distToPoint(*this, p); }

gkVector<2> gkLineSeg::closestPoint(const gkVector<2>& p) const { return gk_LineOps::closestPoint(*this, p); }
