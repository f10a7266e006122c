// What lies near a point: of outlines that nobody has asked yet, and again and again of the same ones.
#include "tests/instructions/shapes.h"

namespace instructions {
namespace {

using Ask = void (*)(const gkContour&, const gkVector<2>&);

struct Asked {
    std::unique_ptr<gkContour> contour;
    Points probes;
};

std::function<void()> prepared(const std::vector<Points>& outlines, int copies, int questions, Ask ask) {
    auto list = std::make_shared<std::vector<Asked>>();
    for (std::unique_ptr<gkContour>& contour : contours(outlines, copies)) {
        Points probes = pointsIn(contour->points(), questions);
        list->push_back({std::move(contour), std::move(probes)});
    }
    return [=] {
        for (const Asked& asked : *list) {
            for (const gkVector<2>& p : asked.probes) ask(*asked.contour, p);
        }
    };
}

void add(Workloads& list, const std::string& name, Ask ask) {
    list.push_back({name + ", fresh", [=] { return prepared(simpleOutlines(1000), 20, 1, ask); }});
    list.push_back({name + ", repeated", [=] { return prepared(simpleOutlines(4000), 1, 1500, ask); }});
}

} // namespace

Workloads proximityWorkloads() {
    Workloads list;
    add(list, "closest point", [](const gkContour& c, const gkVector<2>& p) { c.closestPoint(p, false); });
    add(list, "closest vertex", [](const gkContour& c, const gkVector<2>& p) { c.closestVertexIndex(p); });
    add(list, "vertices within", [](const gkContour& c, const gkVector<2>& p) { c.vertexIndex(p, 2.0); });
    return list;
}

} // namespace instructions
