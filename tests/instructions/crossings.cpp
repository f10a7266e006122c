// Crossings with segments, with another outline and of an outline with itself.
#include "tests/instructions/shapes.h"

namespace instructions {
namespace {

struct Asked {
    std::unique_ptr<gkContour> contour;
    std::vector<gkLineSeg> segments;
};

std::function<void()> withSegments(const std::vector<Points>& outlines, int copies, int questions) {
    auto list = std::make_shared<std::vector<Asked>>();
    for (std::unique_ptr<gkContour>& contour : contours(outlines, copies)) {
        std::vector<gkLineSeg> segments = segmentsIn(contour->points(), questions);
        list->push_back({std::move(contour), std::move(segments)});
    }
    return [=] {
        for (const Asked& asked : *list) {
            for (const gkLineSeg& seg : asked.segments) asked.contour->intersections(seg, true);
        }
    };
}

std::function<void()> withContour() {
    auto stars = std::make_shared<Fresh<gkContour>>(contours({outline(Kind::eStar, 4000)}, 10));
    auto curves = std::make_shared<Fresh<gkContour>>(contours({outline(Kind::eLissajous, 4000)}, 10));
    return [=] {
        for (std::size_t i = 0; i < stars->size(); ++i) (*stars)[i]->intersections(*(*curves)[i]);
    };
}

std::function<void()> withItself() {
    std::vector<Points> outlines = simpleOutlines(4000);
    outlines.push_back(outline(Kind::eLissajous, 4000));
    auto list = std::make_shared<Fresh<gkContour>>(contours(outlines, 1));
    return [=] {
        for (const auto& contour : *list) contour->isSelfIntersecting();
    };
}

} // namespace

Workloads crossingWorkloads() {
    return {{"crossings with a segment, fresh", [] { return withSegments(simpleOutlines(1000), 20, 1); }},
            {"crossings with a segment, repeated", [] { return withSegments(simpleOutlines(4000), 1, 400); }},
            {"crossings of two outlines", &withContour},
            {"crosses itself", &withItself}};
}

} // namespace instructions
