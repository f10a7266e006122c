/// \file
/// A plain list of vertices with a fill rule, as other parts of a vision program exchange polygons.
#ifndef GK_PLATFORM_CORE_SHAPES_POLYGON_H
#define GK_PLATFORM_CORE_SHAPES_POLYGON_H

#include "platform/core/math/vector.h"
#include "platform/export.h"

#include <cstddef>
#include <utility>
#include <vector>

/// A list of vertices. Whether it is closed is told by its vertices: a closed polygon repeats the first one at
/// the end.
class GKCNTR_API gkPolygon {
public:
    /// Which points count as inside where the outline crosses itself.
    enum FillMode { eEvenOdd = 0, eNonZero = 1 };

    /// No vertices, even-odd filling.
    gkPolygon() = default;
    explicit gkPolygon(std::vector<gkVector<2>> vertices, FillMode fillMode = eEvenOdd)
        : vertices_(std::move(vertices)), fillMode_(fillMode) {}

    std::size_t size() const { return vertices_.size(); }
    /// Vertex `index`; gkMathError::OutOfRange when there is none.
    const gkVector<2>& operator[](std::size_t index) const;
    const std::vector<gkVector<2>>& vertices() const { return vertices_; }
    void append(const gkVector<2>& vertex) { vertices_.push_back(vertex); }
    FillMode fillMode() const { return fillMode_; }

    friend bool operator==(const gkPolygon& a, const gkPolygon& b) {
        return a.fillMode_ == b.fillMode_ && a.vertices_ == b.vertices_;
    }
    friend bool operator!=(const gkPolygon& a, const gkPolygon& b) { return !(a == b); }

private:
    std::vector<gkVector<2>> vertices_;
    FillMode fillMode_ = eEvenOdd;
};

#endif
