// When the parity of a point must be what the plain ray count gives, whatever direction its ray takes.
#ifndef GK_CNTR_SEARCH_INSIDE_CERTIFICATE_H
#define GK_CNTR_SEARCH_INSIDE_CERTIFICATE_H

#include "cntr/search/box.h"
#include "cntr/search/magnitude.h"
#include "platform/core/math/vector_ops.h"

enum class gk_Inside { eOutside, eInside, eUnknown };

// The plain count casts a ray of length D through the middle of a gap between vertex directions that is wider
// than pi / n; there is always one, for n gaps make a full turn. So the ray keeps an angle of pi / 2n from
// every vertex, and a vertex at distance r from the point keeps r sin(pi / 2n) from the ray's line. Let t be
// four touches, or 2e-12 D where that is more, and the slack of all distances involved. Suppose
//   - the slack is at most half a touch,
//   - every vertex is at least t / sin(pi / 2n) from the point,
//   - every segment is farther than t from the point, and
//   - every place D from the point is farther than t from the outline, and outside it.
// Then each segment either has both ends on one side of the ray's line and farther than t from it, and is not
// counted; or its ends are on opposite sides, both farther than t from the line, so that it is not parallel to
// it: no segment is longer than D, so the sine is at least 2 t / D, four times that of parallel lines. Rounding
// moves the computed crossing along both lines, by less than a touch across either. So a crossing on the ray is
// found within a touch of both and counts once, and one before the ray's start or behind its end, where the
// segment passes farther than t, does not. The count then has the parity of the crossings on a way from the
// point to the outside.
struct gk_InsideMargins {
    double segment; // t
    double vertex;  // t / sin(pi / 2n) and a little more

    gk_InsideMargins(std::size_t vertexCount, double rayLength, double slack)
        : segment(std::max(4e-6, 2e-12 * rayLength) + slack) {
        const double halfGap = 3.141592653589793 / (2.0 * static_cast<double>(vertexCount));
        const double leastSine = halfGap * (1.0 - halfGap * halfGap / 6.0); // the series' first two terms
        vertex = 1.01 * segment / leastSine;
    }

    bool isVertexNear(const gkVector<2>& vertexPlace, const gkVector<2>& point) const {
        return std::fabs(vertexPlace.x() - point.x()) <= vertex &&
               std::fabs(vertexPlace.y() - point.y()) <= vertex;
    }
};

class gk_InsideCertificate {
public:
    // The slack that is small enough for any ray.
    static constexpr double kMostSlack = 5e-7;

    // `first` is vertex 0, `rayLength` = D twice the distance of the farthest vertex from it, `box` the
    // vertices' own.
    gk_InsideCertificate(std::size_t vertexCount, const gkVector<2>& first, double rayLength, const gk_Box& box)
        : gk_InsideCertificate(vertexCount, first, rayLength, rayLength, box) {}
    // Where D is only known to be between two numbers.
    gk_InsideCertificate(std::size_t vertexCount, const gkVector<2>& first, double leastLength,
                         double greatestLength, const gk_Box& box)
        : first_(first), rayLength_(leastLength), box_(box), slack_(slackOf(greatestLength, box)),
          margins_(vertexCount, greatestLength, slack_), aroundFirst_(rayLength_ / 2.0 - margins_.segment),
          aroundPoint_(rayLength_ - margins_.segment) {}

    // Least distances of segments and of vertices from the point.
    const gk_InsideMargins& margins() const { return margins_; }

    bool isExact() const { return slack_ <= kMostSlack; }
    // A ray that ends here ends outside the outline and away from it.
    bool allowsEnd(const gkVector<2>& end) const {
        return gk_VectorOps::distance(first_, end) > rayLength_ / 2.0 + margins_.segment;
    }
    // The slack is small enough, and no ray from the point ends inside the outline or at it: the outline lies
    // within D / 2 of its first vertex, and within its box.
    bool allowsRaysFrom(const gkVector<2>& point) const {
        if (!isExact()) return false;
        if (aroundFirst_.holds(point - first_)) return true;
        const gkVector<2> farthest(std::max(point.x() - box_.x0, box_.x1 - point.x()),
                                   std::max(point.y() - box_.y0, box_.y1 - point.y()));
        return aroundPoint_.holds(farthest);
    }

private:
    // Vectors that are certainly shorter than a length. The factor covers the roundings of both squares.
    class Shorter {
    public:
        explicit Shorter(double length) : square_(length > 0.0 ? length * length * (1.0 - 0x1p-48) : 0.0) {}
        bool holds(const gkVector<2>& v) const { return v.x() * v.x() + v.y() * v.y() < square_; }

    private:
        double square_;
    };

    static double slackOf(double rayLength, const gk_Box& box) {
        const double reach = std::max(gk_Reach({box.x0, box.y0}), gk_Reach({box.x1, box.y1}));
        return 8.0 * gk_DistanceSlack(reach + rayLength);
    }

    gkVector<2> first_;
    double rayLength_;
    gk_Box box_;
    double slack_;
    gk_InsideMargins margins_;
    Shorter aroundFirst_;
    Shorter aroundPoint_;
};

#endif
