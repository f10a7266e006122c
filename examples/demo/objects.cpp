#include "examples/demo/objects.h"

#include "examples/demo/reading_order.h"
#include "examples/subpixel/edge_outline.h"

#include <opencv2/imgproc.hpp>

namespace {

// Of the gradient's Gaussian, and how far an edge may be from its pixels, both in pixels. In small print the
// next edge is only some pixels away.
constexpr double kSmoothing = 1.0;
constexpr double kReach = 2.5;
constexpr double kSmoothingOfPrint = 0.7;
constexpr double kReachOfPrint = 1.0;

constexpr double kMostLeftOut = 0.5; // of an outline's vertices

class Tracer {
public:
    Tracer(const cv::Mat& gray, bool isPrint, const Scale& scale)
        : gradient_(gray, isPrint ? kSmoothingOfPrint : kSmoothing), reach_(isPrint ? kReachOfPrint : kReach),
          toPixels_(scale.sharedToPixels()) {}

    void trace(const PixelOutline& pixels) {
        Object object;
        object.edges = edgeRegion(pixels.outline, object.leftOut);
        if (object.edges.isNull()) return;
        object.shape = gkPtrHandle<gkRegion>(new gkRegion(*object.edges, gkContourDefs::eKeepIntersections));
        for (const std::vector<gkVector<2>>& hole : pixels.holes) addHole(object, hole);
        found_.all.push_back(object);
    }

    Objects& found() { return found_; }

private:
    // Null when there is no clear edge.
    gkPtrHandle<EdgeRegion> edgeRegion(const std::vector<gkVector<2>>& outline, std::size_t& leftOut) {
        const EdgeOutline found = edgeOutline(gradient_, outline, reach_);
        leftOut = found.unclear;
        if (found.edges.size() < 3 ||
            static_cast<double>(leftOut) > kMostLeftOut * static_cast<double>(outline.size())) {
            ++found_.withoutEdge;
            return {};
        }
        return gkPtrHandle<EdgeRegion>(new EdgeRegion(found.edges, toPixels_, 0));
    }

    void addHole(Object& object, const std::vector<gkVector<2>>& outline) {
        std::size_t leftOut = 0;
        const gkPtrHandle<EdgeRegion> edges = edgeRegion(outline, leftOut);
        if (edges.isNull()) return;
        std::vector<gkPtrHandle_const<gkRegion>> plain = object.shape->holes();
        plain.emplace_back(new gkRegion(*edges, gkContourDefs::eKeepIntersections));
        try {
            object.shape->holes(plain);
        } catch (const gkContourDefs::BadParams&) {
            ++found_.touchingHoles;
            return;
        }
        EdgeRegion::Holes holes = object.edges->holes();
        holes.push_back(edges);
        object.edges->holes(holes);
    }

    SmoothGradient gradient_;
    double reach_;
    gkPtrHandle_const<gk2XformBase> toPixels_;
    Objects found_;
};

} // namespace

Objects traceObjects(const cv::Mat& picture, const PixelOutlines& outlines, const Scale& scale,
                     Progress& progress) {
    cv::Mat gray;
    cv::cvtColor(picture, gray, cv::COLOR_BGR2GRAY);
    Tracer tracer(gray, outlines.arePrint, scale);
    for (std::size_t i = 0; i < outlines.all.size(); ++i) {
        progress.tell("looking for the edges of object", i + 1, outlines.all.size());
        tracer.trace(outlines.all[i]);
    }
    Objects& found = tracer.found();
    sortForReading(found.all);
    for (std::size_t i = 0; i < found.all.size(); ++i) {
        found.all[i].edges->label(i + 1);
        found.all[i].shape->label(i + 1);
    }
    return found;
}
