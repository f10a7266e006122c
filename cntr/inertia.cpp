// Second moments of a polygon: a fan of triangles about the centroid.
#include "cntr/inertia_piece.h"
#include "cntr/moments.h"
#include "cntr/triangle_fan.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

namespace {

gk_InertiaData dataOf(const gk_InertiaPiece& piece) {
    const double xx = piece.squares.first();
    const double yy = piece.squares.second();
    return gk_InertiaData(piece.area, gk_VectorOf(piece.center), gkMatrix<2>(xx, piece.xy, piece.xy, yy));
}

gk_InertiaPiece pieceOf(const gk_InertiaData& data) {
    const gkMatrix<2>& m = data.inertiaMatrix();
    return {data.area(), m.element(0, 1), gk_TwoOf(data.centerOfMass()),
            gk_TwoDoubles(m.element(0, 0), m.element(1, 1))};
}

// Adds every triangle once, the large pieces of the outline's own orientation first. The order is part of the
// result: the sum looks at the first operand's sign. With a negative mean the first pass takes every triangle
// whose area differs from it either way; this asymmetry between the orientations is meant.
class Passes {
public:
    Passes(const std::vector<gk_InertiaPiece>& triangles, double mean)
        : triangles_(triangles), mean_(mean), threshold_(mean > 0.0 ? 1e-6 : -1e-6) {}

    gk_InertiaPiece sum() {
        for (const int pass : {1, 2, 3}) addThoseOf(pass);
        return sum_;
    }

private:
    int passOf(double area) const {
        const bool first = (area > mean_) | ((mean_ < 0.0) & (area < mean_));
        const bool second = (area > threshold_) | ((threshold_ < 0.0) & (area < threshold_));
        return first ? 1 : (second ? 2 : 3);
    }

    // Which triangles a pass takes is as good as random, so they are listed without branches, some at a time.
    void addThoseOf(int pass) {
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): each is set before it is read
        std::array<const gk_InertiaPiece*, 64> listed;
        for (std::size_t begin = 0; begin < triangles_.size() && added_ < triangles_.size();
             begin += listed.size()) {
            const std::size_t end = std::min(begin + listed.size(), triangles_.size());
            std::size_t count = 0;
            for (std::size_t i = begin; i < end; ++i) {
                listed[count] = &triangles_[i];
                count += passOf(triangles_[i].area) == pass ? 1 : 0;
            }
            for (std::size_t i = 0; i < count; ++i) sum_ = gk_Sum(sum_, *listed[i]);
            added_ += count;
        }
    }

    const std::vector<gk_InertiaPiece>& triangles_;
    double mean_;
    double threshold_;
    gk_InertiaPiece sum_;
    std::size_t added_ = 0;
};

} // namespace

gk_InertiaData gk_InertiaData::operator+(const gk_InertiaData& other) const {
    // What is passed over leaves the other unchanged, also where its matrix is not symmetric.
    if (area_ == 0.0 || std::isnan(area_)) return other;
    if (other.area_ == 0.0) return *this;
    return dataOf(gk_Sum(pieceOf(*this), pieceOf(other)));
}

gk_InertiaData gf_InertiaDataPolygon(const std::vector<gkVector<2>>& points) {
    if (points.size() < 3) return dataOf(gk_InertiaPiece());
    std::vector<gk_InertiaPiece> triangles;
    triangles.reserve(points.size());
    double sum = 0.0;
    gk_TriangleFan::forEach(gnContour::centerOfMass(points), points, [&](const gk_InertiaPiece& triangle) {
        triangles.push_back(triangle);
        sum += triangle.area;
    });
    return dataOf(Passes(triangles, sum / static_cast<double>(points.size())).sum());
}
