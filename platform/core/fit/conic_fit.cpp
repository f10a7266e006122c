// Eigen is compiled here for the plainest processor, and under a name of ours so that a linker cannot exchange
// these functions for those of a program that compiles its own Eigen otherwise. No vector units and no threads:
// sums run in one order everywhere.
#define EIGEN_DONT_VECTORIZE
#define EIGEN_DONT_PARALLELIZE
#define Eigen gk_Eigen

#include "platform/core/fit/conic_fit.h"
#include "platform/core/fit/scatter.h"

#include <Eigen/Core>
#include <Eigen/Jacobi>
#include <Eigen/QR>
#include <Eigen/SVD>

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace {

using Eigen::Index;
using Eigen::Matrix3d;
using Eigen::Vector3d;
using Design = Eigen::Matrix<double, Eigen::Dynamic, 6>;
using Triangle = Eigen::Matrix<double, 6, 6>;

// The triangular factor of the design matrix, whose columns are x, y, 1 - the part to be eliminated - and x^2,
// x y, y^2.
//
// Taken block by block, each below the factor so far: rounding errors then grow with the number of blocks
// rather than of points, and the memory does not grow at all.
Triangle triangleOf(const std::vector<gkVector<2>>& points) {
    constexpr std::size_t kBlock = 250;
    Triangle triangle = Triangle::Zero();
    for (std::size_t start = 0; start < points.size(); start += kBlock) {
        const std::size_t end = std::min(points.size(), start + kBlock);
        Design design(static_cast<Index>(6 + end - start), 6);
        design.topRows<6>() = triangle;
        for (std::size_t i = start; i < end; ++i) {
            const double x = points[i].x();
            const double y = points[i].y();
            design.row(static_cast<Index>(6 + i - start)) << x, y, 1.0, x * x, x * y, y * y;
        }
        const Eigen::HouseholderQR<Design> qr(design);
        triangle = qr.matrixQR().topRows<6>().triangularView<Eigen::Upper>();
    }
    return triangle;
}

// Diagonalizes a symmetric matrix, columns of the result being the eigenvectors. Jacobi's method, since rows of
// very different size keep their relative accuracy in it.
Matrix3d diagonalize(Matrix3d& m) {
    constexpr int kMostSweeps = 40; // about five are taken
    constexpr double kNegligible = 0x1p-56;
    Matrix3d vectors = Matrix3d::Identity();
    for (int sweep = 0; sweep < kMostSweeps; ++sweep) {
        bool isDiagonal = true;
        for (Index p = 0; p < 2; ++p)
            for (Index q = p + 1; q < 3; ++q) {
                if (std::fabs(m(p, q)) <=
                    kNegligible * std::sqrt(std::fabs(m(p, p))) * std::sqrt(std::fabs(m(q, q))))
                    continue;
                isDiagonal = false;
                Eigen::JacobiRotation<double> rotation;
                rotation.makeJacobi(m, p, q);
                m.applyOnTheLeft(p, q, rotation.adjoint());
                m.applyOnTheRight(p, q, rotation);
                vectors.applyOnTheRight(p, q, rotation);
            }
        if (isDiagonal) break;
    }
    return vectors;
}

// The vector a that maximizes a' K a for given |c a|, where a' K a = 4 a0 a2 - a1^2. K has one positive
// eigenvalue, so the maximum is positive and unique.
//
// With c = U S V' and a = V S^-1 y this is the top eigenvector y of S^-1 V' K V S^-1. Multiplied by the
// smallest singular value it has no large entries; for points exactly on a conic that value is but rounding,
// and the floor keeps it from being zero.
Vector3d topOf(const Matrix3d& c) {
    constexpr double kFloor = 0x1p-60;
    const Eigen::JacobiSVD<Matrix3d> svd(c, Eigen::ComputeFullV);
    const Vector3d& sigma = svd.singularValues();
    const Matrix3d& v = svd.matrixV();
    const double smallest = std::max(sigma(2), kFloor * sigma(0));
    const Vector3d weights(smallest / sigma(0), smallest / std::max(sigma(1), smallest), 1.0);
    Matrix3d constraint;
    constraint << 0.0, 0.0, 2.0, 0.0, -1.0, 0.0, 2.0, 0.0, 0.0;
    const Matrix3d scaled = v * weights.asDiagonal();
    Matrix3d m = scaled.transpose() * constraint * scaled;
    const Matrix3d vectors = diagonalize(m);
    Index top = 0;
    for (Index i = 1; i < 3; ++i)
        if (m(i, i) > m(top, top)) top = i;
    const Vector3d a = scaled * vectors.col(top);
    return a / a.cwiseAbs().maxCoeff();
}

// From sums of powers, ten times as quickly, where the points are far enough from any conic.
Triangle triangleOf(const gk_FitFrame& frame, const std::vector<gkVector<2>>& points) {
    const gk_DesignFactor factor = gk_FactorOfSums(frame, points);
    if (!factor.isSound) return triangleOf(frame.toFrame(points));
    Triangle triangle;
    for (std::size_t row = 0; row < 6; ++row)
        for (std::size_t column = 0; column < 6; ++column)
            triangle(static_cast<Index>(row), static_cast<Index>(column)) = factor.rows[row][column];
    return triangle;
}

} // namespace

// Halir and Flusser eliminate the linear part by normal equations; the triangular factor of the design matrix
// does the same without squaring its condition.
gk_Conic gk_FitConic(const gk_FitFrame& frame, const std::vector<gkVector<2>>& points) {
    const Triangle r = triangleOf(frame, points);
    const Matrix3d linear = r.topLeftCorner<3, 3>();
    const Matrix3d mixed = r.topRightCorner<3, 3>();
    const Matrix3d rest = r.bottomRightCorner<3, 3>();
    const Vector3d a = topOf(rest);
    const Vector3d b = -linear.triangularView<Eigen::Upper>().solve(Vector3d(mixed * a));
    return {a(0), a(1), a(2), b(0), b(1), b(2)};
}
