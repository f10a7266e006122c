#include "tests/instructions/shapes.h"

#include "tests/gen/places.h"

#include <algorithm>

namespace instructions {
namespace {

constexpr double kTurn = 6.283185307179586;

const char* nameOf(Kind kind) {
    switch (kind) {
    case Kind::eStar:
        return "large star";
    case Kind::eComb:
        return "large comb";
    case Kind::eSpiral:
        return "large spiral";
    case Kind::eLissajous:
        return "large lissajous";
    }
    return "";
}

template <class Shape, class Make>
Fresh<Shape> fresh(const std::vector<Points>& outlines, int copies, Make make) {
    Fresh<Shape> list;
    for (int i = 0; i < copies; ++i) {
        for (const Points& points : outlines) list.push_back(make(points));
    }
    return list;
}

} // namespace

Points outline(Kind kind, int count) {
    gen::Random random(1);
    const auto& kinds = gen::largeKinds();
    const auto found = std::find_if(kinds.begin(), kinds.end(), [&](const gen::LargeKind& k) {
        return k.name == std::string(nameOf(kind));
    });
    return gen::exactly(*found, random, count);
}

std::vector<Points> simpleOutlines(int count) {
    return {outline(Kind::eStar, count), outline(Kind::eComb, count), outline(Kind::eSpiral, count)};
}

Points pointsIn(const Points& outline, int count) {
    gkVector<2> low = outline.front();
    gkVector<2> high = low;
    for (const gkVector<2>& p : outline) {
        low = gkVector<2>(std::min(low.x(), p.x()), std::min(low.y(), p.y()));
        high = gkVector<2>(std::max(high.x(), p.x()), std::max(high.y(), p.y()));
    }
    gen::Random random(2);
    Points list;
    for (int i = 0; i < count; ++i) list.push_back(gen::placeBetween(random, low, high));
    return list;
}

std::vector<gkLineSeg> segmentsIn(const Points& outline, int count) {
    const Points ends = pointsIn(outline, 2 * count);
    std::vector<gkLineSeg> list;
    for (std::size_t i = 0; i < ends.size(); i += 2) list.emplace_back(ends[i], ends[i + 1]);
    return list;
}

Fresh<gkContour> contours(const std::vector<Points>& outlines, int copies) {
    return fresh<gkContour>(outlines, copies,
                            [](const Points& points) { return std::make_unique<gkContour>(points, true, 0); });
}

Fresh<gkRegion> regions(const std::vector<Points>& outlines, int copies) {
    return fresh<gkRegion>(outlines, copies,
                           [](const Points& points) { return std::make_unique<gkRegion>(points); });
}

gkRegionSet rows(int count, double spacing) {
    gen::Random random(3);
    std::vector<gkPtrHandle_const<gkRegion>> list;
    for (int i = 0; i < count; ++i) {
        const gkVector<2> center(spacing * (i % 20), spacing * (i / 20));
        Points points;
        for (int k = 0; k < 20; ++k) {
            points.push_back(center + gkVector<2>(random.between(8.0, 10.0), gkRadian(kTurn * k / 20)));
        }
        list.emplace_back(new gkRegion(points));
    }
    return gkRegionSet(list);
}

} // namespace instructions
