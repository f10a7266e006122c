/// \file
/// Area, centroid, second moments and ellipses of plain vertex lists.
///
/// All functions are pure: they keep no state and may run on any number of threads. The closing edge from the
/// last vertex back to the first is always implied.
///
/// Sums are anchored at the coordinate origin, so a small polygon far away loses digits: with side a at
/// distance d the centroid's error grows like u d^3 / a^2 and the area's like u d^2, u = 2^-53. A 10-unit
/// square is off by up to
///
/// | distance | centroid | area | centroid, vertices at whole numbers |
/// |---|---|---|---|
/// | 1e2 | 1e-12 | 1e-12 | 1e-13 |
/// | 1e4 | 1e-6 | 1e-8 | 1e-9 |
/// | 1e6 | 1 | 1e-4 | 1e-5 |
/// | 1e8 | 1e6 | 1 | 1e-1 |
///
/// (of vertices at whole numbers, such as pixels, the area is exact that far). Shift such input to its first
/// vertex beforehand (examples/far_away shows how).
#ifndef GK_CNTR_MOMENTS_H
#define GK_CNTR_MOMENTS_H

#include "platform/core/math/matrix.h"
#include "platform/core/math/vector.h"
#include "platform/core/shapes/ellipse.h"
#include "platform/export.h"
#include "platform/image/edgelet.h"

#include <vector>

/// Area, centre of mass and central second moments of one piece; pieces are added with operator+.
///
/// The area is signed: positive for a counter-clockwise piece (x to the right, y up), negative for a clockwise
/// one. The matrix holds the integrals over the area (not divided by it) of (x-cx)^2 in (0,0), (y-cy)^2 in
/// (1,1) and (x-cx)(y-cy) in both others, taken with the absolute area. Units: that of the vertices squared,
/// plain, to the fourth.
class GKCNTR_API gk_InertiaData {
public:
    /// Stores the three values as given.
    gk_InertiaData(double area, const gkVector<2>& centerOfMass, const gkMatrix<2>& inertiaMatrix)
        : area_(area), centerOfMass_(centerOfMass), inertiaMatrix_(inertiaMatrix) {}

    double area() const { return area_; }
    const gkVector<2>& centerOfMass() const { return centerOfMass_; }
    const gkMatrix<2>& inertiaMatrix() const { return inertiaMatrix_; }

    /// The union of two pieces, by the parallel-axis theorem.
    ///
    /// A piece whose area is exactly 0 (for the first piece also NaN) is passed over: the other is returned
    /// unchanged. Pieces of the same orientation add their moments. Of two pieces of opposite orientation the
    /// one with the smaller signed area is subtracted, both its own moments and its shift. A total area within
    /// 1e-16 of zero has its centre at (0, 0). Source: Steiner's theorem.
    gk_InertiaData operator+(const gk_InertiaData& other) const;

private:
    double area_;
    gkVector<2> centerOfMass_;
    gkMatrix<2> inertiaMatrix_;
};

/// Area inside the closed polygon, whatever its orientation; never negative.
///
/// One or two points give exactly 0. `points` must not be empty: the checked access of its last vertex throws
/// std::out_of_range. Lobes of a self-crossing outline that turn opposite ways cancel. Error: at most (n + 2) u
/// S to first order, S half the sum of |x_i y_j| + |y_i x_j| over the edges. Cost: O(n). Source: shoelace
/// formula (Meister, 1769).
GKCNTR_API double gf_Area(const std::vector<gkVector<2>>& points);
/// The same over the edgelets' positions; 0 for fewer than 3 edgelets, an empty list included. (The list of
/// points is not tested for emptiness, this one is; the difference is meant.)
GKCNTR_API double gf_Area(const std::vector<gkEdgelet>& edgelets);

namespace gnContour {
/// Centroid of the area inside the closed polygon, independent of its orientation.
///
/// (0, 0), not the mean of the points, for fewer than 3 vertices and for polygons whose doubled signed area is
/// within 1e-6 of zero; edges whose triangle with the origin has a doubled area within 1e-15 of zero are
/// skipped. Both bounds are absolute, in squared units: scale coordinates in metres up first. Cost: O(n).
/// Source: weighted triangle centroids, each the crossing of two medians.
GKCNTR_API gkVector<2> centerOfMass(const std::vector<gkVector<2>>& points);
} // namespace gnContour

/// gnContour::centerOfMass of the points.
GKCNTR_API gkVector<2> gf_CenterOfMass(const std::vector<gkVector<2>>& points);
/// gnContour::centerOfMass of the edgelets' positions.
GKCNTR_API gkVector<2> gf_CenterOfMass(const std::vector<gkEdgelet>& edgelets);

/// Signed area, centroid and central second moments of the closed polygon, as a fan of triangles about its
/// centroid.
///
/// Fewer than 3 vertices give the zero record, and so does a NaN vertex: it makes the centroid NaN, and a
/// triangle with such a corner counts for nothing. For a counter-clockwise polygon the moments are the true
/// ones. For a clockwise polygon the area is negative, and the moments are true only when no triangle of the
/// fan is reversed (the outline is star-shaped from its centroid): the signs of gk_InertiaData's operator+ then
/// subtract what they should add. This is the defined result, not to be mended by turning the outline around;
/// turn the vertices yourself when you need true moments.
///
/// A triangle's base is found with a slack of 1e-10: an apex that falls up to sqrt(2e-10 h) beside it, h being
/// the triangle's height, counts as within, and the triangle is too large by that share (some 1e-5 at unit
/// size). Scale small shapes up. Cost: O(n).
GKCNTR_API gk_InertiaData gf_InertiaDataPolygon(const std::vector<gkVector<2>>& points);

/// The solid ellipse with the same centre and the same second moments; the record's area plays no part.
///
/// The first radius lies along the rotation, half the angle of (M00 - M11, 2 M01), in [-pi/2, pi/2]; it need
/// not be the larger one. gkMathError::Singular when a principal moment is within 1e-12 of zero (collinear
/// pieces, the zero record). Source: the moments of a solid ellipse, pi a^3 b / 4 and pi a b^3 / 4, solved for
/// a and b.
/// \image html moments_ellipse.svg
GKCNTR_API gkEllipse gf_EllipseFromInertiaData(const gk_InertiaData& data);

/// Fits an ellipse to the points and tells the root mean square distance of the points to it.
///
/// What the fitter throws (gkEllipseFitDefs, for too few or degenerate points) passes through, and both outputs
/// are then left as they were. Cost: O(n). Source: Halir and Flusser, Numerically stable direct least squares
/// fitting of ellipses, 1998.
GKCNTR_API void gf_FitEllipse(const std::vector<gkVector<2>>& points, gkEllipse& ellipse, double& error);
/// The same through the edgelets' positions.
GKCNTR_API void gf_FitEllipse(const std::vector<gkEdgelet>& edgelets, gkEllipse& ellipse, double& error);

/// Population standard deviation, sqrt(sum((v - mean)^2) / N): divided by N, not by N - 1. NaN for no values.
GKCNTR_API double gf_StdDev(const std::vector<double>& values);

#endif
