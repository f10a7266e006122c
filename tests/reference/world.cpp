#include "tests/reference/world.h"

#include "cntr/moments.h"
#include "tests/reference/answer.h"

namespace {

using Json = nlohmann::json;
using Points = std::vector<gkVector<2>>;

// Names the contour's protected operations, to ask them of any contour.
struct Protected : gkContour {
    using gkContour::intersections;
    using gkContour::lineSegs;
    using gkContour::medianFeatureSize;
    using gkContour::validLine;
};

using IndexedQuery = Points (gkContour::*)(const gkLineSeg&, std::vector<int>&, bool) const;

gkContourDefs::DiameterMode diameterMode(const Json& step) {
    return static_cast<gkContourDefs::DiameterMode>(step.at("mode").get<int>());
}

gkVector<2> probe(const Json& step) { return answer::vector(step.at("p")); }

} // namespace

Json World::ask(const Json& step) {
    // Each group answers the operations it knows and null for others.
    for (const auto group : {&World::make, &World::askContour, &World::askContourProtected, &World::askFreeFunction}) {
        Json answered = (this->*group)(step);
        if (!answered.is_null()) return answered;
    }
    throw NotBuilt(step.at("op").get<std::string>());
}

gkContour& World::contour(const Json& step, const char* key) {
    const auto shape = shapes_.find(step.at(key).get<std::string>());
    if (shape == shapes_.end() || !shape->second) throw NotBuilt("an object that was not built");
    return *shape->second;
}

gkRegion& World::filledRegion(const Json& step) {
    std::shared_ptr<gkContour>& shape = shapes_[step.at("into").get<std::string>()];
    if (!shape) shape = std::make_shared<gkRegion>();
    return dynamic_cast<gkRegion&>(*shape);
}

Json World::make(const Json& step) {
    const std::string op = step.at("op");
    if (!step.contains("as")) return nullptr;
    std::shared_ptr<gkContour>& shape = shapes_[step.at("as").get<std::string>()];
    const auto label = [&] { return step.at("label").get<unsigned long>(); };
    if (op == "contour") {
        shape = std::make_shared<gkContour>(answer::points(step.at("points")), step.at("closed").get<bool>(), label());
    } else if (op == "contourPolygon") {
        shape = std::make_shared<gkContour>(gkPolygon(answer::points(step.at("points"))), label());
    } else if (op == "contourCopy") {
        shape = std::make_shared<gkContour>(contour(step, "from"));
    } else if (op == "region" && step.at("mode") == 0) {
        shape = std::make_shared<gkRegion>(answer::points(step.at("points")));
    } else if (op == "copy") {
        const gkContour& from = contour(step, "from");
        if (const auto* region = dynamic_cast<const gkRegion*>(&from)) {
            shape = std::make_shared<gkRegion>(*region);
        } else {
            shape = std::make_shared<gkContour>(from);
        }
    } else {
        shapes_.erase(step.at("as").get<std::string>());
        return nullptr;
    }
    return answer::nothing();
}

Json World::askContour(const Json& step) {
    const std::string op = step.at("op");
    if (!step.contains("on")) return nullptr;
    gkContour& c = contour(step);
    if (op == "assign" && dynamic_cast<gkRegion*>(&c)) {
        dynamic_cast<gkRegion&>(c) = dynamic_cast<const gkRegion&>(contour(step, "from"));
    } else if (op == "assign" || op == "contourAssign") {
        c = contour(step, "from");
    } else if (op == "setPoints") {
        c.points(answer::points(step.at("points")));
    } else if (op == "isClosedSet") {
        c.isClosed(step.at("flag").get<bool>());
    } else if (op == "labelSet") {
        c.label(step.at("value").get<unsigned long>());
    } else if (op == "cvsSet") {
        c.cachedVectorSize(step.at("n").get<long>());
    } else if (op == "convexHull") {
        c.convexHull(filledRegion(step));
    } else if (op == "map") {
        std::shared_ptr<gkContour>& out = shapes_[step.at("into").get<std::string>()];
        if (!out) out = std::make_shared<gkContour>();
        c.map(answer::xform(step.at("xform")), *out);
    } else if (op == "points") {
        return answer::of(c.points());
    } else if (op == "isClosed") {
        return answer::of(c.isClosed());
    } else if (op == "label") {
        return answer::of(static_cast<long>(c.label()));
    } else if (op == "cvs") {
        return answer::of(c.cachedVectorSize());
    } else if (op == "polygon") {
        return answer::of(c.polygon().vertices());
    } else if (op == "equals") {
        return answer::of(c == contour(step, "other"));
    } else if (op == "length") {
        return answer::of(c.length());
    } else if (op == "meanPosition") {
        return answer::of(c.meanPosition());
    } else if (op == "encloseCircle") {
        return answer::of(c.encloseCircle(diameterMode(step)));
    } else if (op == "diameter") {
        return answer::of(c.diameter(diameterMode(step)));
    } else if (op == "extremalIndex") {
        return answer::of(c.extremalVertexIndex(gkRadian(answer::number(step.at("angle")))));
    } else if (op == "extremalPosition") {
        return answer::of(c.extremalVertexPosition(gkRadian(answer::number(step.at("angle")))));
    } else if (op == "encloseRect") {
        return answer::of(c.encloseRect(answer::xform(step.at("xform"))));
    } else if (op == "closestPoint") {
        return answer::of(c.closestPoint(probe(step), step.at("verticesOnly").get<bool>()));
    } else if (op == "closestVertexIndex") {
        return answer::of(c.closestVertexIndex(probe(step)));
    } else if (op == "distToPoint") {
        return answer::of(c.distToPoint(probe(step), step.at("verticesOnly").get<bool>()));
    } else if (op == "vertexIndex") {
        return answer::of(c.vertexIndex(probe(step), answer::number(step.at("tol_"))));
    } else if (op == "isectSeg") {
        return answer::of(c.intersections(answer::segment(step.at("seg")), step.at("includeEnds").get<bool>()));
    } else if (op == "isectContour") {
        return answer::of(c.intersections(contour(step, "other")));
    } else if (op == "isSelfIntersecting") {
        return answer::of(c.isSelfIntersecting());
    } else {
        return nullptr;
    }
    return answer::nothing();
}

Json World::askContourProtected(const Json& step) {
    const std::string op = step.at("op");
    if (!step.contains("on")) return nullptr;
    const gkContour& c = contour(step);
    if (op == "lineSegs") return answer::of((c.*(&Protected::lineSegs))());
    if (op == "validLine") return answer::of((c.*(&Protected::validLine))());
    if (op == "medianFeatureSize") return answer::of((c.*(&Protected::medianFeatureSize))());
    if (op == "isectSegIdx") {
        std::vector<int> indices;
        const IndexedQuery query = &Protected::intersections;
        (c.*query)(answer::segment(step.at("seg")), indices, step.at("includeEnds").get<bool>());
        return answer::of(indices);
    }
    return nullptr;
}

Json World::askFreeFunction(const Json& step) {
    const std::string op = step.at("op");
    if (op == "gfArea") return answer::of(gf_Area(answer::points(step.at("points"))));
    if (op == "gfCom") return answer::of(gf_CenterOfMass(answer::points(step.at("points"))));
    if (op == "gfInertia") return answer::of(gf_InertiaDataPolygon(answer::points(step.at("points"))));
    if (op == "inertiaAdd") return answer::of(answer::inertia(step.at("a")) + answer::inertia(step.at("b")));
    if (op == "ellipse") return answer::of(gf_EllipseFromInertiaData(answer::inertia(step.at("inertia"))));
    if (op == "stdDev") {
        std::vector<double> values;
        for (const Json& value : step.at("values")) values.push_back(answer::number(value));
        return answer::of(gf_StdDev(values));
    }
    return nullptr;
}
