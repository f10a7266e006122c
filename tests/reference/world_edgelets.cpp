// The shapes that carry edgelets, and what can be asked of them.
#include "ch_core/cntrtmpl.h"
#include "cntr/moments.h"
#include "platform/core/transform/xform_linear.h"
#include "tests/reference/answer.h"
#include "tests/reference/world.h"

namespace {

using Json = nlohmann::json;
using EdgeletContour = gkContourT<gkEdgelet>;
using EdgeletRegion = gkRegionT<gkEdgelet>;
using EdgeletSet = gkRegionSetT<gkEdgelet>;

gkEdgelet edgelet(const Json& value) {
    return gkEdgelet(gkVector<2>(answer::number(value.at(0)), answer::number(value.at(1))),
                     value.at(2).get<unsigned short>(), gkAngle8(value.at(3).get<unsigned char>()));
}

std::vector<gkEdgelet> edgelets(const Json& value) {
    std::vector<gkEdgelet> list;
    for (const Json& element : value) list.push_back(edgelet(element));
    return list;
}

Json listed(const std::vector<gkEdgelet>& list) {
    Json elements = Json::array();
    for (const gkEdgelet& e : list) {
        elements.push_back({e.position().x(), e.position().y(), e.magnitude(), e.angle().toByte()});
    }
    return Json{{"edgelets", elements}};
}

template <class Shape> Shape& as(gkContour& contour) {
    auto* shape = dynamic_cast<Shape*>(&contour);
    if (!shape) throw NotBuilt("an edgelet shape that was not built");
    return *shape;
}

} // namespace

Json World::makeEdgelets(const Json& step) {
    const std::string op = step.at("op");
    if (!step.contains("as")) return nullptr;
    const std::string name = step.at("as");
    const auto shape = [&](gkContour* made) {
        shapes_[name] = gkPtrHandle<gkContour>(made);
        return answer::nothing();
    };
    const auto data = [&] { return edgelets(step.at("data")); };
    const auto label = [&] { return step.at("label").get<unsigned long>(); };
    if (op == "xform2") {
        xforms_[name] = gkPtrHandle_const<gk2XformBase>(new gk2XformLinear(answer::xform(step)));
        return answer::nothing();
    }
    if (op == "econtourDefault") return shape(new EdgeletContour);
    if (op == "eregionDefault") return shape(new EdgeletRegion);
    if (op == "econtour" && !step.contains("xform")) return shape(new EdgeletContour(data()));
    if (op == "econtour") return shape(new EdgeletContour(data(), xforms_.at(step.at("xform"))));
    if (op == "eregion" && !step.contains("xform")) return shape(new EdgeletRegion(data(), label()));
    if (op == "eregion") return shape(new EdgeletRegion(data(), xforms_.at(step.at("xform")), label()));
    if (op == "eregionContour")
        return shape(new EdgeletRegion(as<EdgeletContour>(contour(step, "from")), label()));
    if (op == "eset") {
        std::vector<gkPtrHandle<EdgeletRegion>> regions;
        for (const Json& region : step.at("regions")) {
            const Json named = {{"on", region}};
            regions.push_back(gkPtrHandle<EdgeletRegion>(&as<EdgeletRegion>(contour(named))));
        }
        sets_[name] = gkPtrHandle<gkRegionSet>(new EdgeletSet(regions));
        return answer::nothing();
    }
    if (op != "copy") return nullptr;
    const std::string from = step.at("from");
    if (sets_.count(from)) {
        const auto* set = dynamic_cast<const EdgeletSet*>(sets_[from].get());
        if (!set) return nullptr;
        sets_[name] = gkPtrHandle<gkRegionSet>(new EdgeletSet(*set));
        return answer::nothing();
    }
    const gkContour& source = contour(step, "from");
    if (const auto* region = dynamic_cast<const EdgeletRegion*>(&source))
        return shape(new EdgeletRegion(*region));
    if (const auto* edges = dynamic_cast<const EdgeletContour*>(&source))
        return shape(new EdgeletContour(*edges));
    return nullptr;
}

Json World::askEdgelets(const Json& step) {
    const std::string op = step.at("op");
    if (op == "gfAreaEdgelets") return answer::of(gf_Area(edgelets(step.at("data"))));
    if (op == "gfComEdgelets") return answer::of(gf_CenterOfMass(edgelets(step.at("data"))));
    if (!step.contains("on")) return nullptr;
    if (sets_.count(step.at("on"))) return askEdgeletSet(step);
    if (!shapes_.count(step.at("on"))) return nullptr;
    auto* found = dynamic_cast<EdgeletContour*>(&contour(step));
    if (!found) return nullptr;
    EdgeletContour& c = *found;
    if (op == "data") return listed(c.data());
    if (op == "datum") return listed({c.datum(answer::vector(step.at("p")))});
    if (op == "pointOf") return answer::of(c.point(edgelet(step.at("edgelet"))));
    if (op == "eEquals") return answer::of(c == as<EdgeletContour>(contour(step, "other")));
    if (op == "sameXform") {
        return answer::of(c.dataFromPointsXform() ==
                          as<EdgeletContour>(contour(step, "other")).dataFromPointsXform());
    }
    if (op == "eHolesCount") return answer::of(static_cast<long>(as<EdgeletRegion>(c).holes().size()));
    if (op == "dataSet") {
        c.data(edgelets(step.at("data")));
    } else if (op == "assign") {
        if (auto* region = dynamic_cast<EdgeletRegion*>(&c)) {
            *region = as<EdgeletRegion>(contour(step, "from"));
        } else {
            c = as<EdgeletContour>(contour(step, "from"));
        }
    } else if (op == "eHolesSet") {
        EdgeletRegion::Holes holes;
        for (const Json& hole : step.at("holes")) {
            const Json named = {{"on", hole}};
            holes.push_back(gkPtrHandle_const<EdgeletRegion>(&as<EdgeletRegion>(contour(named))));
        }
        as<EdgeletRegion>(c).holes(holes);
    } else if (op == "mapT" || op == "convexHullT" || op == "regularizeT") {
        refusedByEdgelets(op, c);
    } else {
        return nullptr;
    }
    return answer::nothing();
}

void World::refusedByEdgelets(const std::string& op, gkContour& shape) {
    EdgeletContour contourOut;
    EdgeletRegion regionOut;
    const auto* region = dynamic_cast<const EdgeletRegion*>(&shape);
    if (op == "convexHullT") {
        as<EdgeletContour>(shape).convexHullT(regionOut);
    } else if (op == "regularizeT") {
        as<EdgeletRegion>(shape).regularizeT(regionOut);
    } else if (region) {
        region->mapT(gkXform<2>(), regionOut);
    } else {
        as<EdgeletContour>(shape).mapT(gkXform<2>(), contourOut);
    }
}

Json World::askEdgeletSet(const Json& step) {
    const std::string op = step.at("op");
    auto* s = dynamic_cast<EdgeletSet*>(&set(step));
    if (!s) return nullptr;
    if (op == "eOwnCount") return answer::of(static_cast<long>(s->regionsT().size()));
    if (op == "eOwnIs") {
        const Json named = {{"on", step.at("region")}};
        return answer::of(s->regionsT().at(step.at("index").get<std::size_t>()).rep() == &contour(named));
    }
    EdgeletSet out;
    if (op == "mapT") {
        s->mapT(gkXform<2>(), out);
    } else if (op == "regularizeT") {
        s->regularizeT(out);
    } else {
        return nullptr;
    }
    return answer::nothing();
}
