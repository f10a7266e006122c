#include "bench/peers/clipper.h"

#include <polyclipping/clipper.hpp>

#include <algorithm>
#include <cmath>

namespace bench {

namespace {

double scaleOf(const std::vector<Points>& outlines) {
    double greatest = 1.0;
    for (const Points& points : outlines) {
        for (const Point& p : points) greatest = std::max({greatest, std::fabs(p.x), std::fabs(p.y)});
    }
    return std::exp2(29.0 - std::ceil(std::log2(greatest)));
}

} // namespace

struct ClipperPaths::Body {
    double scale;
    ClipperLib::Paths paths;

    ClipperLib::IntPoint of(const Point& p) const {
        return {static_cast<ClipperLib::cInt>(std::llround(p.x * scale)),
                static_cast<ClipperLib::cInt>(std::llround(p.y * scale))};
    }

    double unscaled(double area) const { return std::fabs(area) / (scale * scale); }

    double mergedArea(ClipperLib::PolyFillType rule, bool withHoles) const {
        ClipperLib::Clipper clipper;
        clipper.AddPaths(paths, ClipperLib::ptSubject, true);
        ClipperLib::Paths merged;
        clipper.Execute(ClipperLib::ctUnion, merged, rule, rule);
        double sum = 0.0;
        for (const ClipperLib::Path& path : merged) {
            const double area = ClipperLib::Area(path);
            if (withHoles || area > 0.0) sum += area;
        }
        return unscaled(sum);
    }
};

ClipperPaths::ClipperPaths(const std::vector<Points>& outlines) : body_(new Body{scaleOf(outlines), {}}) {
    for (const Points& points : outlines) {
        ClipperLib::Path path;
        for (const Point& p : points) path.push_back(body_->of(p));
        body_->paths.push_back(std::move(path));
    }
}
ClipperPaths::~ClipperPaths() = default;

bool ClipperPaths::inside(const Point& p) const {
    return ClipperLib::PointInPolygon(body_->of(p), body_->paths.front()) == 1;
}

double ClipperPaths::area() const { return body_->unscaled(ClipperLib::Area(body_->paths.front())); }
double ClipperPaths::outerArea() const { return body_->mergedArea(ClipperLib::pftNonZero, false); }
double ClipperPaths::evenOddArea() const { return body_->mergedArea(ClipperLib::pftEvenOdd, true); }

} // namespace bench
