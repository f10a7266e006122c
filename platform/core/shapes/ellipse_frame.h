// Measurements in an ellipse's own frame; made once, asked for many points.
#ifndef GK_PLATFORM_CORE_SHAPES_ELLIPSE_FRAME_H
#define GK_PLATFORM_CORE_SHAPES_ELLIPSE_FRAME_H

#include "platform/core/math/trig.h"
#include "platform/core/shapes/ellipse.h"

class gk_EllipseFrame {
public:
    explicit gk_EllipseFrame(const gkEllipse::gkEllipseGeom& geom);

    // The point whose coordinates along the two radii are given, and back.
    gkVector<2> fromLocal(const gkVector<2>& local) const;
    gkVector<2> toLocal(const gkVector<2>& p) const;

    // See gkEllipse::distToPoint.
    double distance(const gkVector<2>& p) const;

private:
    gkVector<2> center_;
    double radiusX_;
    double radiusY_;
    gk_Trig::SinCos axis_;
};

#endif
