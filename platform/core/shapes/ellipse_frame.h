// Measurements in an ellipse's own frame; made once, asked for many points.
#ifndef GK_PLATFORM_CORE_SHAPES_ELLIPSE_FRAME_H
#define GK_PLATFORM_CORE_SHAPES_ELLIPSE_FRAME_H

#include "platform/core/math/trig.h"
#include "platform/core/math/two_doubles.h"
#include "platform/core/shapes/ellipse.h"

#include <array>
#include <vector>

class gk_EllipseFrame {
public:
    explicit gk_EllipseFrame(const gkEllipse::gkEllipseGeom& geom);

    // The point whose coordinates along the two radii are given, and back.
    gkVector<2> fromLocal(const gkVector<2>& local) const;
    gkVector<2> toLocal(const gkVector<2>& p) const;

    // See gkEllipse::distToPoint.
    double distance(const gkVector<2>& p) const;
    // Sum of the squared distances, of points and radii whose fourth powers are ordinary numbers; each distance
    // is off by a few roundings as those of distance() are, though not by the same ones.
    double sumOfSquares(const std::vector<gkVector<2>>& points) const;

private:
    // False where the iteration is no good.
    bool fourSquares(const gkVector<2>* points, std::array<double, 4>& squares) const;

    gkVector<2> center_;
    double radiusX_;
    double radiusY_;
    gk_Trig::SinCos axis_;
};

#endif
