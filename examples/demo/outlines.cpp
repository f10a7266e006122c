#include "examples/demo/outlines.h"

#include "cntr/moments.h"
#include "examples/demo/object_mask.h"

#include <algorithm>
#include <opencv2/imgproc.hpp>

namespace {

using Vertices = std::vector<gkVector<2>>;
using Border = std::vector<cv::Point>;

// The second moments are true for counter-clockwise vertices.
Vertices pixelCentres(const Border& border, int enlargement) {
    Vertices centres;
    centres.reserve(border.size());
    for (const cv::Point& pixel : border)
        centres.emplace_back((pixel.x + 0.5) / enlargement, (pixel.y + 0.5) / enlargement);
    if (gf_InertiaDataPolygon(centres).area() < 0.0) std::reverse(centres.begin(), centres.end());
    return centres;
}

class Finder {
public:
    Finder(const ObjectMask& mask, double leastArea) : enlargement_(mask.enlargement), leastArea_(leastArea) {
        cv::findContours(mask.pixels, borders_, links_, cv::RETR_CCOMP, cv::CHAIN_APPROX_NONE);
    }

    std::vector<PixelOutline> find() const {
        std::vector<PixelOutline> found;
        for (int i = borders_.empty() ? -1 : 0; i >= 0; i = links_[index(i)][kNext]) {
            const Vertices outline = vertices(i);
            if (gf_Area(outline) >= leastArea_)
                found.push_back({outline, holes(links_[index(i)][kFirstChild])});
        }
        return found;
    }

private:
    static constexpr int kNext = 0; // places in a link of the hierarchy
    static constexpr int kFirstChild = 2;

    static std::size_t index(int i) { return static_cast<std::size_t>(i); }

    Vertices vertices(int i) const { return pixelCentres(borders_[index(i)], enlargement_); }

    std::vector<Vertices> holes(int first) const {
        std::vector<Vertices> all;
        for (int i = first; i >= 0; i = links_[index(i)][kNext]) {
            const Vertices hole = vertices(i);
            if (gf_Area(hole) >= leastArea_) all.push_back(hole);
        }
        return all;
    }

    std::vector<Border> borders_;
    std::vector<cv::Vec4i> links_;
    int enlargement_;
    double leastArea_;
};

} // namespace

PixelOutlines findOutlines(const cv::Mat& picture, double leastArea) {
    const ObjectMask mask = findObjects(picture);
    return {Finder(mask, leastArea).find(), mask.enlargement > 1};
}
